#pragma once

/// A point in pixels; which origin stands with each call.
struct CPoint {
    int x = 0;
    int y = 0;
    friend bool operator==(const CPoint&, const CPoint&) = default;
};

/// A width and a height in pixels.
struct CSize {
    int cx = 0;
    int cy = 0;
    friend bool operator==(const CSize&, const CSize&) = default;
};

/// A rectangle in pixels; right and bottom lie outside of it.
struct CRect {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    /// Pixels from left to right.
    constexpr int Width() const noexcept { return right - left; }
    /// Pixels from top to bottom.
    constexpr int Height() const noexcept { return bottom - top; }
    /// Whether a point lies inside, the right and the bottom edge excluded.
    constexpr bool PtInRect(CPoint point) const noexcept {
        return point.x >= left && point.x < right && point.y >= top && point.y < bottom;
    }
    friend bool operator==(const CRect&, const CRect&) = default;
};
