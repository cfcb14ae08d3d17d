#include "workbench/windows/drawing_context.h"

#include "workbench/windows/picture_pixels.h"

#include <algorithm>
#include <cstdint>

namespace workbench {

namespace {

constexpr int kSystemFontHeight = 11;  // pixels

/// Of a corner's channels the upper eight bits.
COLORREF colourOf(const TRIVERTEX& corner) {
    const auto high = [](std::uint16_t channel) { return static_cast<COLORREF>(channel >> 8); };
    return high(corner.Red) | high(corner.Green) << 8 | high(corner.Blue) << 16;
}

}  // namespace

BOOL DrawingContext::PatBlt(int x, int y, int width, int height, DWORD operation) {
    if (m_brush == nullptr || operation != PATCOPY)
        return 0;
    FillSolidRect({x, y, x + width, y + height}, m_brush->colour());
    return 1;
}

void DrawingContext::FillSolidRect(const CRect& rect, COLORREF colour) {
    m_steps.emplace_back(FillStep{rect, colour});
}

BOOL DrawingContext::GradientFill(const TRIVERTEX* vertices, UINT vertexCount,
                                  const GRADIENT_RECT* rects, UINT rectCount, UINT mode) {
    const auto isKnown = [vertexCount](const GRADIENT_RECT& rect) {
        return rect.UpperLeft < vertexCount && rect.LowerRight < vertexCount;
    };
    if (mode != GRADIENT_FILL_RECT_H || !std::all_of(rects, rects + rectCount, isKnown))
        return 0;
    std::for_each(rects, rects + rectCount, [this, vertices](const GRADIENT_RECT& rect) {
        const TRIVERTEX& from = vertices[rect.UpperLeft];
        const TRIVERTEX& to = vertices[rect.LowerRight];
        m_steps.emplace_back(
            GradientStep{{from.x, from.y, to.x, to.y}, colourOf(from), colourOf(to)});
    });
    return 1;
}

BOOL DrawingContext::TransparentBlt(int x, int y, int width, int height, const CBitmap& source,
                                    COLORREF transparent) {
    std::optional<PngPicture> picture =
        m_reader == nullptr ? std::nullopt : m_reader(source.m_hBitmap);
    if (!picture || width <= 0 || height <= 0)
        return 0;
    m_steps.emplace_back(
        PictureStep{{x, y, x + width, y + height},
                    scaled(withoutColour(std::move(*picture), transparent), {width, height})});
    return 1;
}

int DrawingContext::DrawText(const VxString& text, const CRect& rect, UINT format) {
    const WPARAM font = m_font == nullptr ? 0 : m_font->GetSafeHandle();
    m_steps.emplace_back(TextStep{rect, text, m_ink, format, font});
    const LOGFONT* const known = m_gdi.findFont(font);
    return known == nullptr ? kSystemFontHeight : known->height;
}

}  // namespace workbench
