#pragma once

#include "workbench/resources/png_picture.h"
#include "workbench/windows/gdi_table.h"

#include <hostapi/window.h>

#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace workbench {

/// A rectangle of one colour.
struct FillStep {
    CRect rect;
    COLORREF colour;
    friend bool operator==(const FillStep&, const FillStep&) = default;
};
/// A rectangle whose colour changes from left to right.
struct GradientStep {
    CRect rect;
    COLORREF left;
    COLORREF right;
    friend bool operator==(const GradientStep&, const GradientStep&) = default;
};
/// A picture, as large as its rectangle; what is not to be drawn of it is transparent.
struct PictureStep {
    CRect rect;
    PngPicture picture;
};
/// A text.
struct TextStep {
    CRect rect;
    std::wstring text;
    COLORREF colour;
    UINT format;  ///< `DT_...`
    WPARAM font;  ///< 0: the system's
    friend bool operator==(const TextStep&, const TextStep&) = default;
};
/// One thing that was drawn.
using DrawingStep = std::variant<FillStep, GradientStep, PictureStep, TextStep>;

/// A device context that keeps what is drawn as a list of steps, for whoever has a screen.
class DrawingContext final : public CDC {
public:
    /// Reads the pixels of a bitmap; nothing for a stale handle.
    using PictureReader = std::function<std::optional<PngPicture>(HBITMAP)>;

    /// `clip` is what may be drawn on. The table, whose fonts texts are measured with, must outlive it.
    DrawingContext(const CRect& clip, const GdiTable& gdi, PictureReader reader = nullptr)
        : m_clip(clip),
          m_gdi(gdi),
          m_reader(std::move(reader)) {}

    /// What was drawn, the first thing first.
    const std::vector<DrawingStep>& steps() const { return m_steps; }

    // CDC:
    CRect GetClipBox() const override { return m_clip; }
    CBrush* SelectObject(CBrush* brush) override { return std::exchange(m_brush, brush); }
    BOOL PatBlt(int x, int y, int width, int height, DWORD operation) override;
    void FillSolidRect(const CRect& rect, COLORREF colour) override;
    BOOL GradientFill(const TRIVERTEX* vertices, UINT vertexCount, const GRADIENT_RECT* rects,
                      UINT rectCount, UINT mode) override;
    BOOL TransparentBlt(int x, int y, int width, int height, const CBitmap& source,
                        COLORREF transparent) override;
    CFont* SelectObject(CFont* font) override { return std::exchange(m_font, font); }
    COLORREF SetTextColor(COLORREF colour) override { return std::exchange(m_ink, colour); }
    int SetBkMode(int mode) override { return std::exchange(m_mode, mode); }
    int DrawText(const VxString& text, const CRect& rect, UINT format) override;

private:
    const CRect m_clip;
    const GdiTable& m_gdi;
    const PictureReader m_reader;  // null: there are no bitmaps
    std::vector<DrawingStep> m_steps;
    CBrush* m_brush = nullptr;  // not owned
    CFont* m_font = nullptr;    // not owned; null: the system's
    COLORREF m_ink = 0;         // of texts
    int m_mode = TRANSPARENT;
};

}  // namespace workbench
