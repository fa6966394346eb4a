#pragma once

#include <optional>
#include <span>

#include "controls/dataanalyser/model/BestFit.h"

namespace controls::dataanalyser {

/// The part of an axis that a graph shows.
struct AxisRange {
    double from = 0;
    double to = 1;
    bool logarithmic = false;

    double span() const { return to - from; }
    /// Whether an axis can be drawn with this range: finite, ascending, and above zero when logarithmic.
    bool valid() const;
    /// The place of a number on the axis: 0 at its beginning, 1 at its end.
    double place(double value) const;
    /// The number at a place of the axis.
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

/// A range that holds all values, with a little room at both ends. The room does not go beyond zero. A
/// logarithmic range has whole decades, and values that its axis cannot show do not count.
AxisRange rangeOf(std::span<const double> values, bool logarithmic);

/// The range multiplied by a factor around one of its places (0 to 1), but not wider than `whole`. A
/// logarithmic range becomes one decade narrower or wider.
AxisRange zoomed(const AxisRange& range, double factor, double place, const AxisRange& whole);

/// The range moved by a part of its span, within `whole`.
AxisRange moved(const AxisRange& range, double part, const AxisRange& whole);

/// The part of a range between two of its places, in whole decades when it is logarithmic.
AxisRange partOf(const AxisRange& range, double fromPlace, double toPlace);

/// The number of decades from one tick of a logarithmic axis to the next, so that there are about `parts`
/// ticks at most.
int decadesPerTick(const AxisRange& range, int parts);

/// The number of decimals with which the numbers at ticks of this distance are written.
int decimalsOfTick(double distance);

}  // namespace controls::dataanalyser
