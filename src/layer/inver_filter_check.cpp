#include "layer/inver_filter_check.h"

#include "core/message_table.h"
#include "layer/filter_dropdown.h"

#include <hostapi/zorq/layers.h>

namespace {

constexpr UINT kCheckMarkBitmap = 1291;
constexpr int kMarkPixels = 16;
constexpr std::uint16_t kLeftChannel = 0xFFFF;
constexpr std::uint16_t kRightChannel = 0xCC00;
constexpr int kTextGap = 8;  // pixels
constexpr WPARAM kChecked = 1;
constexpr WPARAM kIndeterminate = 2;

}  // namespace

constexpr MessageEntry CVxDaInverFilterCheck::kMessages[] = {
    {WM_KILLFOCUS, to<&CVxDaInverFilterCheck::onFocusLost>},
    {BM_GETCHECK, to<&CVxDaInverFilterCheck::onGetCheck>},
    {BM_SETCHECK, to<&CVxDaInverFilterCheck::onSetCheck>},
    {WM_MOUSEMOVE, to<&CVxDaInverFilterCheck::onMouseMove>},
    {WM_MOUSELEAVE, to<&CVxDaInverFilterCheck::onMouseLeave>},
    {WM_REFLECT_BASE + WM_COMMAND, to<&CVxDaInverFilterCheck::onOwnNotice>},
};
const MessageMap CVxDaInverFilterCheck::kMessageMap =
    makeMessageMap(&CVxDaInverFilterCheck::GetThisMessageMap, kMessages);

const MessageMap& CVxDaInverFilterCheck::GetMessageMap() const {
    return kMessageMap;
}

// The check

LRESULT CVxDaInverFilterCheck::onGetCheck(WPARAM /*unused*/, LPARAM /*unusedToo*/) {
    return m_checked ? 1 : 0;
}

LRESULT CVxDaInverFilterCheck::onSetCheck(WPARAM state, LPARAM /*unused*/) {
    setHostCheck(state == kChecked || state == kIndeterminate);
    return 0;
}

LRESULT CVxDaInverFilterCheck::onOwnNotice(WPARAM notice, LPARAM /*control*/) {
    if (HIWORD(notice) == BN_CLICKED) {
        setHostCheck(!m_checked);
        Invalidate();
    }
    return 0;
}

void CVxDaInverFilterCheck::setHostCheck(bool checked) {
    m_checked = checked;
    vxedSetInvertLayerFilterFlag(checked);
}

LRESULT CVxDaInverFilterCheck::onFocusLost(WPARAM /*unused*/, LPARAM /*unusedToo*/) {
    const LRESULT answer = Default();
    m_dropdown.hideIfLeft();
    return answer;
}

// The mouse

LRESULT CVxDaInverFilterCheck::onMouseMove(WPARAM /*keys*/, LPARAM /*point*/) {
    if (!m_hovered) {
        m_hovered = true;
        Invalidate();
        TRACKMOUSEEVENT request{TME_LEAVE, m_hWnd};
        TrackMouseEvent(&request);
    }
    return Default();
}

LRESULT CVxDaInverFilterCheck::onMouseLeave(WPARAM /*unused*/, LPARAM /*unusedToo*/) {
    m_hovered = false;
    Invalidate();
    return Default();
}

// The picture

void CVxDaInverFilterCheck::DrawItem(const DRAWITEMSTRUCT* item) {
    CDC* context = item == nullptr ? nullptr : CDC::FromHandle(item->hDC);
    if (context == nullptr)
        return;
    const CRect client = GetClientRect();
    drawBox(*context, client.Height());
    drawText(*context, client);
}

/// A square at the left, from white to light grey, with the check mark.
void CVxDaInverFilterCheck::drawBox(CDC& context, int height) {
    const TRIVERTEX corners[] = {
        {0, 0, kLeftChannel, kLeftChannel, kLeftChannel, 0},
        {height, height, kRightChannel, kRightChannel, kRightChannel, 0},
    };
    const GRADIENT_RECT square{0, 1};
    context.GradientFill(corners, 2, &square, 1, GRADIENT_FILL_RECT_H);
    if (!m_checked)
        return;
    if (m_checkMark.m_hBitmap == nullptr && !m_checkMark.LoadBitmap(kCheckMarkBitmap))
        return;
    const int offset = (m_boxSize - kMarkPixels) / 2;
    context.TransparentBlt(offset, offset, kMarkPixels, kMarkPixels, m_checkMark,
                           m_checkMark.GetPixel(0, 0));
}

void CVxDaInverFilterCheck::drawText(CDC& context, const CRect& client) {
    const CRect area{m_boxSize, client.top, client.right, client.bottom};
    if (m_hovered)
        context.FillSolidRect(area, GetSysColor(COLOR_HIGHLIGHT));
    context.SetTextColor(GetSysColor(m_hovered ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT));
    context.SetBkMode(TRANSPARENT);
    CFont* before = context.SelectObject(GetFont());
    const CRect textArea{area.left + kTextGap, area.top, area.right, area.bottom};
    context.DrawText(GetWindowText(), textArea, DT_SINGLELINE | DT_VCENTER);
    context.SelectObject(before);
}
