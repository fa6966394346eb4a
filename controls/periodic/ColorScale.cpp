#include "controls/periodic/ColorScale.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace controls::periodic {

namespace {

/// A colour in Oklab (B. Ottosson, 2020), in which equal distances look alike.
struct Oklab {
    double lightness;
    double a;
    double b;
};

using Three = std::array<double, 3>;
using Matrix = std::array<Three, 3>;

constexpr Matrix labToCone{{{1.0, 0.3963377774, 0.2158037573},
                            {1.0, -0.1055613458, -0.0638541728},
                            {1.0, -0.0894841775, -1.2914855480}}};
constexpr Matrix coneToRgb{{{4.0767416621, -3.3077115913, 0.2309699292},
                            {-1.2684380046, 2.6097574011, -0.3413193965},
                            {-0.0041960863, -0.7034186147, 1.7076147010}}};

constexpr Oklab low{0.97, -0.015, 0.075};
constexpr Oklab middle{0.68, -0.085, -0.015};
constexpr Oklab high{0.28, 0.005, -0.10};

constexpr int steps = 256;

Three multiplied(const Matrix& matrix, const Three& vector) {
    Three result{};
    for (std::size_t i = 0; i < result.size(); ++i) {
        for (std::size_t k = 0; k < vector.size(); ++k) result[i] += matrix[i][k] * vector[k];
    }
    return result;
}

double gammaEncoded(double linear) {
    const double inside = std::clamp(linear, 0.0, 1.0);
    return inside <= 0.0031308 ? 12.92 * inside : 1.055 * std::pow(inside, 1 / 2.4) - 0.055;
}

QColor toColor(const Oklab& lab) {
    Three cone = multiplied(labToCone, {lab.lightness, lab.a, lab.b});
    for (double& each : cone) each = each * each * each;
    const Three rgb = multiplied(coneToRgb, cone);
    return QColor::fromRgbF(static_cast<float>(gammaEncoded(rgb[0])),
                            static_cast<float>(gammaEncoded(rgb[1])),
                            static_cast<float>(gammaEncoded(rgb[2])));
}

double distance(const Oklab& from, const Oklab& to) {
    return std::hypot(to.lightness - from.lightness, to.a - from.a, to.b - from.b);
}

Oklab between(const Oklab& from, const Oklab& to, double share) {
    return {std::lerp(from.lightness, to.lightness, share), std::lerp(from.a, to.a, share),
            std::lerp(from.b, to.b, share)};
}

/// The colour at a position on the way from low over middle to high, with even steps.
Oklab along(double position) {
    const double bend = distance(low, middle) / (distance(low, middle) + distance(middle, high));
    if (position <= bend) return between(low, middle, position / bend);
    return between(middle, high, (position - bend) / (1 - bend));
}

std::array<QColor, steps> allColors() {
    std::array<QColor, steps> colors;
    for (int i = 0; i < steps; ++i) {
        colors[static_cast<std::size_t>(i)] = toColor(along(i / (steps - 1.0)));
    }
    return colors;
}

}  // namespace

QColor scaleColor(double position) {
    static const auto colors = allColors();
    return colors[static_cast<std::size_t>(std::lround(std::clamp(position, 0.0, 1.0) * (steps - 1)))];
}

}  // namespace controls::periodic
