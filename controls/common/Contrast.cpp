#include "controls/common/Contrast.h"

#include <algorithm>
#include <cmath>

namespace controls::appearance {

namespace {

double linear(float channel) {
    const double value = channel;
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& color) {
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

}  // namespace

double contrast(const QColor& one, const QColor& other) {
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

QColor readableOn(const QColor& background) {
    // On any background one of the two has enough contrast.
    return contrast(Qt::black, background) >= contrast(Qt::white, background) ? Qt::black : Qt::white;
}

}  // namespace controls::appearance
