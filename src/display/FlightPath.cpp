#include "src/display/FlightPath.h"

#include <cmath>

namespace kalyxo {

using platform::CRect;

namespace {

constexpr double kFramesPerPixel = 0.025;

int frameCount(int dx, int dy) {
    const double x = dx;
    const double y = dy;
    return static_cast<int>(std::sqrt(x * x + y * y) * kFramesPerPixel);
}

}  // namespace

std::vector<CRect> FlightPath(const CRect& start, const CRect& end) {
    const int count = frameCount(end.left - start.left, end.top - start.top);
    std::vector<CRect> frames;
    for (int k = 0; k < count; ++k) {
        // A step is rounded down to whole pixels first and then multiplied.
        const auto at = [&](int from, int to) { return from + k * ((to - from) / count); };
        frames.push_back(CRect::at(at(start.left, end.left), at(start.top, end.top),
                                   at(start.Width(), end.Width()), at(start.Height(), end.Height())));
    }
    return frames;
}

bool Overlap(const CRect& a, const CRect& b) {
    return a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom;
}

}  // namespace kalyxo
