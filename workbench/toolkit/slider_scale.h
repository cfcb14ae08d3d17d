#pragma once

namespace workbench {

/// The positions of a slider along its track.
struct SliderScale {
    int lowest = 0;
    int highest = 100;
    int width = 0;  ///< Of the slider's client area, in pixels.

    static constexpr int kThumbWidth = 10;  ///< Pixels.

    /// The nearest position of the range.
    int clamp(int position) const;
    /// The x of the thumb's middle at a position.
    int middleAt(int position) const;
    /// The position whose thumb stands nearest to an x.
    int positionAt(int x) const;
    /// Whether the thumb at a position covers an x.
    bool isOnThumb(int x, int position) const;

private:
    /// Pixels that the thumb's middle can travel.
    int travel() const;
};

}  // namespace workbench
