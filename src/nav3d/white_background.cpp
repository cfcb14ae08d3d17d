#include "nav3d/white_background.h"

void fillWhite(HDC context) {
    constexpr COLORREF kWhite = 0xffffff;
    CDC* canvas = CDC::FromHandle(context);
    if (canvas == nullptr)
        return;
    CBrush brush(kWhite);
    CBrush* before = canvas->SelectObject(&brush);
    const CRect clip = canvas->GetClipBox();
    canvas->PatBlt(clip.left, clip.top, clip.Width(), clip.Height(), PATCOPY);
    canvas->SelectObject(before);
}
