#pragma once

#include <optional>
#include <span>
#include <string>

namespace controls::dataanalyser {

/// A point of a graph, in the numbers of its axes.
struct PlanePoint {
    double x = 0;
    double y = 0;
    friend bool operator==(const PlanePoint&, const PlanePoint&) = default;
};

/// A straight line and how well it fits the points.
struct BestFit {
    double slope = 0;
    double intercept = 0;
    double rSquared = 0;  ///< the coefficient of determination, 0 to 1
};

/// The straight line of least squares. Nothing for fewer than two points, or when all have the same x.
std::optional<BestFit> bestFit(std::span<const PlanePoint> points);

/// The line's equation in code page 1253, such as "y = 2,5·x - 10" or "log y = 2·log x + 1".
std::string equation(const BestFit& fit, bool logX, bool logY);

}  // namespace controls::dataanalyser
