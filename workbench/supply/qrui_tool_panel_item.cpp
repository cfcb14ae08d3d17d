#include "workbench/base/text.h"
#include "workbench/core/host_call.h"
#include "workbench/supply/qrui_window.h"
#include "workbench/toolkit/item_notes.h"
#include "workbench/toolkit/tool_panel_item_record.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

#include <hostapi/qrui18/tool_panel.h>
#include <hostapi/qrui18/tool_panel_item.h>
#include <hostapi/zorq/menu_data.h>

#include <algorithm>

using workbench::HostCall;
using workbench::noteItem;
using workbench::PictureTable;
using workbench::toUtf8;
using workbench::supply::toolkit;
using workbench::supply::windows;

namespace {

void repaint(const CQrUiToolPanelItem& item) {
    if (item.m_record->laidOut && item.m_record->toolPanel != nullptr)
        windows().invalidate(item.m_record->toolPanel->m_hWnd);
}

}  // namespace

CQrUiToolPanelItem::CQrUiToolPanelItem(CQrUiToolPanel* toolPanel) : m_record(new Record) {
    m_record->toolPanel = toolPanel;
    toolkit().noteItemMade();
}

CQrUiToolPanelItem::~CQrUiToolPanelItem() {
    for (CQrUiToolPanelItem* item : m_record->flyoutItems)
        delete item;
    toolkit().pictures().release(m_record->smallImage);
    toolkit().pictures().release(m_record->largeImage);
    toolkit().noteItemEnded();
    delete m_record;
}

int CQrUiToolPanelItem::GetType() const {
    return m_record->type;
}

void CQrUiToolPanelItem::SetType(int type) {
    m_record->type = type;
}

const VxString& CQrUiToolPanelItem::GetID() const {
    return m_record->id;
}

void CQrUiToolPanelItem::SetID(const VxString& id) {
    m_record->id = id;
}

const VxString& CQrUiToolPanelItem::GetName() const {
    return m_record->name;
}

void CQrUiToolPanelItem::SetName(const VxString& name) {
    if (m_record->name == name)
        return;
    if (workbench::isNoted(toolkit().journal(), *this))
        noteItem(toolkit().journal(), *this, "name", toUtf8(m_record->name), toUtf8(name));
    m_record->name = name;
}

UINT CQrUiToolPanelItem::GetState() const {
    return m_record->state;
}

void CQrUiToolPanelItem::SetState(UINT state) {
    if (m_record->state == state)
        return;
    const UINT before = m_record->state;
    m_record->state = state;
    if (workbench::isNoted(toolkit().journal(), *this))
        workbench::noteItemState(toolkit().journal(), *this, before, state);
    repaint(*this);
}

void CQrUiToolPanelItem::SetStyle(UINT style) {
    const HostCall call("CQrUiToolPanelItem::SetStyle", {workbench::knownId(*this), style});
    if (call.failed())
        return;
    m_record->style = style;
    repaint(*this);
}

void CQrUiToolPanelItem::SetImage(int slot, HBITMAP picture) {
    PictureTable& pictures = toolkit().pictures();
    HBITMAP& present = slot == kItemLargeImage ? m_record->largeImage : m_record->smallImage;
    // The small picture is the one that scripts and journals know an item by.
    if (slot != kItemLargeImage && workbench::isNoted(toolkit().journal(), *this))
        noteItem(toolkit().journal(), *this, "image", pictures.source(present),
                 pictures.source(picture));
    pictures.release(present);
    present = picture;
    repaint(*this);
}

HWND CQrUiToolPanelItem::GetControl() const {
    return m_record->control;
}

void CQrUiToolPanelItem::SetControl(HWND control) {
    m_record->control = control;
    if (m_record->data != nullptr && !m_record->data->controlName.empty())
        windows().setName(control, toUtf8(m_record->data->controlName));
}

void CQrUiToolPanelItem::GetRect(CRect& rect, int which) const {
    const HostCall call("CQrUiToolPanelItem::GetRect", {workbench::knownId(*this), which});
    rect = which == kItemClientRect && !call.failed() ? m_record->rect : CRect{};
}

CPoint CQrUiToolPanelItem::GetPosition() const {
    return {m_record->rect.left, m_record->rect.top};
}

void CQrUiToolPanelItem::SetPosition(CPoint position) {
    CRect& rect = m_record->rect;
    rect = {position.x, position.y, position.x + rect.Width(), position.y + rect.Height()};
}

void CQrUiToolPanelItem::Invalidate() {
    const HostCall call("CQrUiToolPanelItem::Invalidate", {workbench::knownId(*this)});
    if (!call.failed())
        repaint(*this);
}

void CQrUiToolPanelItem::AppendFlyoutItem(CQrUiToolPanelItem* item) {
    if (item == nullptr)
        return;
    m_record->flyoutItems.push_back(item);
    item->m_record->flyout = this;
    if (m_record->currentTool == nullptr)
        m_record->currentTool = item;
}

const CTypedPtrArray<CQrUiToolPanelItem*>* CQrUiToolPanelItem::GetFlyoutItems() const {
    return m_record->flyoutItems.empty() ? nullptr : &m_record->flyoutItems;
}

CQrUiToolPanelItem* CQrUiToolPanelItem::GetCurrentFlyoutTool() const {
    return m_record->currentTool;
}

BOOL CQrUiToolPanelItem::SetCurrentFlyoutTool(CQrUiToolPanelItem* item) {
    const auto& items = m_record->flyoutItems;
    if (std::find(items.begin(), items.end(), item) == items.end())
        return 0;
    const CQrUiToolPanelItem* const before = m_record->currentTool;
    if (item != before && workbench::isNoted(toolkit().journal(), *this))
        noteItem(toolkit().journal(), *this, "tool", toUtf8(workbench::knownId(*before)),
                 toUtf8(workbench::knownId(*item)));
    m_record->currentTool = item;
    return 1;
}

VxToolPanelItemData* QrUiGetToolPanelItemData(const CQrUiToolPanelItem* item) {
    return item == nullptr ? nullptr : item->m_record->data;
}

void QrUiSetToolPanelItemData(CQrUiToolPanelItem* item, VxToolPanelItemData* data) {
    if (item != nullptr)
        item->m_record->data = data;
}
