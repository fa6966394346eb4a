#include "controls/dataanalyser/model/BestFit.h"

#include <algorithm>
#include <cmath>

#include "controls/elements/NumberText.h"
#include "platform/text/GreekLiteral.h"

namespace controls::dataanalyser {

using namespace platform::literals;

std::optional<BestFit> bestFit(std::span<const PlanePoint> points) {
    if (points.size() < 2) return std::nullopt;
    const auto count = static_cast<double>(points.size());
    PlanePoint mean;
    for (const PlanePoint& point : points) {
        mean.x += point.x / count;
        mean.y += point.y / count;
    }
    double sxx = 0;
    double sxy = 0;
    double syy = 0;
    for (const PlanePoint& point : points) {
        sxx += (point.x - mean.x) * (point.x - mean.x);
        sxy += (point.x - mean.x) * (point.y - mean.y);
        syy += (point.y - mean.y) * (point.y - mean.y);
    }
    const double slope = sxy / sxx;
    if (!std::isfinite(slope)) return std::nullopt;
    // A level line fits perfectly when all points have the same y.
    const double rSquared = syy > 0 ? std::clamp(sxy * sxy / (sxx * syy), 0.0, 1.0) : 1;
    return BestFit{slope, mean.y - slope * mean.x, rSquared};
}

std::string equation(const BestFit& fit, bool logX, bool logY) {
    std::string text = logY ? "log y = " : "y = ";
    if (fit.slope < 0) text += '-';
    text += shortNumber(std::abs(fit.slope));
    text += "·"_gr;
    text += logX ? "log x" : "x";
    text += fit.intercept < 0 ? " - " : " + ";
    return text + shortNumber(std::abs(fit.intercept));
}

}  // namespace controls::dataanalyser
