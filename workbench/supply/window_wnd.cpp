#include "workbench/core/host_call.h"
#include "workbench/host/workbench.h"
#include "workbench/supply/qrui_window.h"
#include "workbench/toolkit/dropdowns.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

#include <hostapi/window.h>

#include <cstdint>
#include <utility>

// Calls that change something open with a HostCall; questions and sends don't: a send enters the
// journal as the message that the window gets.

namespace {

using workbench::HostCall;
using workbench::Window;

workbench::WindowSystem& windows() {
    return workbench::Workbench::current().windows();
}

const Window* windowOf(const CWnd* object) {
    return object->m_hWnd == nullptr ? nullptr : windows().find(object->m_hWnd);
}

CWnd* objectOf(HWND handle) {
    const Window* const window = windows().find(handle);
    return window == nullptr ? nullptr : window->object;
}

/// A window as the journal shows it: by name if it has one, else by class.
std::string_view shown(const CWnd* object) {
    const Window* const window = windowOf(object);
    if (window == nullptr)
        return {};
    return window->name.empty() ? window->className : window->name;
}

}  // namespace

CWnd::~CWnd() {
    if (workbench::Workbench* const host = workbench::Workbench::living())
        host->windows().life().objectEnds(*this);
}

CWnd* CWnd::FromHandle(HWND window) {
    return objectOf(window);
}

CWnd* CWnd::GetFocus() {
    return objectOf(windows().focus());
}

CWnd* CWnd::GetActiveWindow() {
    const HWND top = windows().topOf(windows().focus());
    return top == nullptr ? &workbench::Workbench::current().toolkit().frame().frame()
                          : objectOf(top);
}

const CWnd CWnd::wndNoTopMost;

BOOL CWnd::CreateEx(DWORD exStyle, const wchar_t* className, const wchar_t* text, DWORD style,
                    const CRect& rect, CWnd* parent, UINT id) {
    HostCall call("CWnd::CreateEx",
                  {exStyle, className, text, style, rect.Width(), rect.Height(), parent, id});
    const bool isPopup = (style & WS_POPUP) != 0;
    if (call.failed() || className == nullptr || VxString(className) != L"Static" ||
        (!isPopup && parent == nullptr))
        return call.returns(0);
    auto creation = workbench::supply::creationOf("Static", style, rect, parent, id);
    if (text != nullptr)
        creation.text = text;
    if (isPopup) {
        creation.popupOf = std::exchange(creation.parent, nullptr);
        creation.name = workbench::nameOfNewDropdown(windows());
    }
    return call.returns(windows().create(*this, std::move(creation)) ? 1 : 0);
}

BOOL CWnd::DestroyWindow() {
    HostCall call("CWnd::DestroyWindow", {shown(this)});
    if (call.failed())
        return call.returns(0);
    return call.returns(windows().destroy(m_hWnd) ? 1 : 0);
}

LRESULT CWnd::SendMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    return windows().send(m_hWnd, message, wParam, lParam);
}

BOOL CWnd::PostMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    HostCall call("CWnd::PostMessage", {shown(this), message});
    if (call.failed())
        return call.returns(0);
    return call.returns(windows().queue().post(m_hWnd, message, wParam, lParam) ? 1 : 0);
}

void CWnd::SetFocus() {
    HostCall call("CWnd::SetFocus", {shown(this)});
    if (!call.failed() && windowOf(this) != nullptr)
        windows().setFocus(m_hWnd);
}

void CWnd::SetTimer(UINT timer, UINT milliseconds) {
    HostCall call("CWnd::SetTimer", {shown(this), timer, milliseconds});
    if (!call.failed())
        windows().timers().start(m_hWnd, timer, milliseconds);
}

void CWnd::KillTimer(UINT timer) {
    HostCall call("CWnd::KillTimer", {shown(this), timer});
    if (!call.failed())
        windows().timers().stop(m_hWnd, timer);
}

CWnd* CWnd::GetParent() const {
    const Window* const window = windowOf(this);
    if (window == nullptr)
        return nullptr;
    return objectOf(window->popupOf == nullptr ? window->parent : window->popupOf);
}

CFrameWnd* CWnd::GetParentFrame() const {
    for (CWnd* above = GetParent(); above != nullptr; above = above->GetParent()) {
        if (auto* const frame = dynamic_cast<CFrameWnd*>(above))
            return frame;
    }
    return nullptr;
}

int CWnd::GetDlgCtrlID() const {
    const Window* const window = windowOf(this);
    return window == nullptr ? 0 : window->id;
}

DWORD CWnd::GetStyle() const {
    const Window* const window = windowOf(this);
    return window == nullptr ? 0 : window->style;
}

void CWnd::SetFont(CFont* font, BOOL redraw) {
    SendMessage(WM_SETFONT, font == nullptr ? 0 : font->GetSafeHandle(), redraw);
}

CFont* CWnd::GetFont() const {
    const Window* const window = windowOf(this);
    return window == nullptr ? nullptr : windows().gdi().fontObject(window->font);
}

BOOL CWnd::IsWindowEnabled() const {
    const Window* const window = windowOf(this);
    return window != nullptr && window->enabled ? 1 : 0;
}

BOOL CWnd::IsWindowVisible() const {
    return windows().isOnScreen(m_hWnd) ? 1 : 0;
}

void CWnd::ShowWindow(int command) {
    HostCall call("CWnd::ShowWindow", {shown(this), command});
    if (!call.failed())
        windows().show(m_hWnd, command != SW_HIDE);
}

void CWnd::EnableWindow(BOOL enable) {
    HostCall call("CWnd::EnableWindow", {shown(this), enable});
    if (!call.failed())
        windows().state().enable(m_hWnd, enable != 0);
}

VxString CWnd::GetWindowText() const {
    const Window* const window = windowOf(this);
    return window == nullptr ? VxString() : window->text;
}

void CWnd::SetWindowText(const VxString& text) {
    HostCall call("CWnd::SetWindowText", {shown(this), text});
    if (!call.failed())
        windows().state().setText(m_hWnd, text);
}

CRect CWnd::GetWindowRect() const {
    return windows().screenRect(m_hWnd);
}

CRect CWnd::GetClientRect() const {
    return windows().clientRect(m_hWnd);
}

CPoint CWnd::ScreenToClient(CPoint point) const {
    const CRect rect = windows().screenRect(m_hWnd);
    return {point.x - rect.left, point.y - rect.top};
}

CPoint CWnd::ClientToScreen(CPoint point) const {
    const CRect rect = windows().screenRect(m_hWnd);
    return {point.x + rect.left, point.y + rect.top};
}

void CWnd::MoveWindow(const CRect& rect) {
    HostCall call("CWnd::MoveWindow",
                  {shown(this), rect.left, rect.top, rect.Width(), rect.Height()});
    if (call.failed())
        return;
    windows().place(m_hWnd, rect);
    windows().invalidate(m_hWnd);
}

void CWnd::SetWindowPos(int x, int y, int cx, int cy, UINT flags) {
    HostCall call("CWnd::SetWindowPos", {shown(this), x, y, cx, cy, flags});
    if (!call.failed())
        windows().place(m_hWnd, {x, y, x + cx, y + cy}, flags);
}

void CWnd::SetWindowPos(const CWnd* insertAfter, int x, int y, int cx, int cy, UINT flags) {
    HostCall call("CWnd::SetWindowPos", {shown(this), x, y, cx, cy, flags});
    if (call.failed())
        return;
    // No window is to stay on top, so that those before all others are before all.
    const bool isOnTop = insertAfter == nullptr || insertAfter == &wndNoTopMost;
    if ((flags & SWP_NOZORDER) == 0)
        windows().state().pile(m_hWnd, isOnTop ? nullptr : insertAfter->m_hWnd);
    windows().place(m_hWnd, {x, y, x + cx, y + cy}, flags);
}

void CWnd::Invalidate(BOOL erase) {
    const HostCall call("CWnd::Invalidate", {shown(this), erase});
    if (!call.failed())
        windows().invalidate(m_hWnd);
}

const MessageMap& CWnd::GetMessageMap() const {
    return GetThisMessageMap();
}

const MessageMap& CWnd::GetThisMessageMap() {
    static const MessageMap kNoMessages{nullptr, nullptr, 0};
    return kNoMessages;
}

BOOL CWnd::PreTranslateMessage(MSG*) {
    return 0;
}

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    return windows().messages().dispatch(*this, message, wParam, lParam);
}

BOOL CWnd::OnCommand(WPARAM wParam, LPARAM lParam) {
    return windows().messages().dispatchCommand(*this, wParam, lParam) ? 1 : 0;
}

LRESULT CWnd::Default() {
    return windows().messages().dispatchToBase(*this);
}
