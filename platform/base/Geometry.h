#pragma once

namespace platform {

/// A point in pixels, origin top-left.
struct CPoint {
    int x = 0;
    int y = 0;
    friend bool operator==(const CPoint&, const CPoint&) = default;
    friend constexpr CPoint operator+(CPoint a, CPoint b) { return {a.x + b.x, a.y + b.y}; }
    friend constexpr CPoint operator-(CPoint a, CPoint b) { return {a.x - b.x, a.y - b.y}; }
};

/// A size in pixels.
struct CSize {
    int cx = 0;
    int cy = 0;
    friend bool operator==(const CSize&, const CSize&) = default;
};

/// A rectangle in pixels. `right` and `bottom` are just outside it.
struct CRect {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    /// The rectangle of the given size with its corner at (x, y).
    static constexpr CRect at(int x, int y, int width, int height) { return {x, y, x + width, y + height}; }

    constexpr int Width() const { return right - left; }
    constexpr int Height() const { return bottom - top; }
    constexpr CPoint TopLeft() const { return {left, top}; }
    constexpr bool PtInRect(CPoint p) const {
        return p.x >= left && p.x < right && p.y >= top && p.y < bottom;
    }
    constexpr CRect offset(CPoint by) const { return {left + by.x, top + by.y, right + by.x, bottom + by.y}; }
    friend bool operator==(const CRect&, const CRect&) = default;
};

/// A colour: red in the lowest byte, then green, then blue.
using COLORREF = unsigned;

/// The colour with these parts, each from 0 to 255.
constexpr COLORREF RGB(unsigned red, unsigned green, unsigned blue) {
    return red | (green << 8) | (blue << 16);
}

}  // namespace platform
