#pragma once

#include <optional>
#include <span>

#include "controls/dataanalyser/model/BestFit.h"

namespace controls::dataanalyser {

/// The numbers at the two ends of an axis.
struct AxisRange {
    double from = 0;
    double to = 1;
    bool logarithmic = false;

    double span() const { return to - from; }
    /// Whether an axis can be drawn with it: finite, ascending, and above zero when logarithmic.
    bool valid() const;
    /// Where a number stands on the axis: 0 at its beginning, 1 at its end.
    double place(double value) const;
    /// The number at a place.
    double at(double place) const;
    friend bool operator==(const AxisRange&, const AxisRange&) = default;
};

/// The part of the plane that a graph shows.
struct GraphWindow {
    AxisRange x;
    AxisRange y;

    bool valid() const { return x.valid() && y.valid(); }
    friend bool operator==(const GraphWindow&, const GraphWindow&) = default;
};

/// A range in which all of the values are well inside: with a little room at the ends, and beginning at zero
/// rather than just below it. Whole decades when logarithmic; values that such an axis cannot show do not
/// count.
AxisRange rangeOf(std::span<const double> values, bool logarithmic);

/// The range made narrower (`factor` below 1) or wider about a place of it (0 to 1) and never wider than
/// `whole`. A logarithmic range goes by whole decades.
AxisRange zoomed(const AxisRange& range, double factor, double place, const AxisRange& whole);

/// The range moved by a part of its span, within `whole`.
AxisRange moved(const AxisRange& range, double part, const AxisRange& whole);

/// The part of a range between two places of it, in whole decades when it is logarithmic.
AxisRange partOf(const AxisRange& range, double fromPlace, double toPlace);

/// A distance of 1, 2 or 5 times a power of ten that parts a span into about `parts`.
double tickDistance(double span, int parts);

/// How many decades lie from one tick of a logarithmic axis to the next, for at most about `parts` of them.
int decadesPerTick(const AxisRange& range, int parts);

/// How many decimals tell such a distance.
int decimalsOfTick(double distance);

}  // namespace controls::dataanalyser
