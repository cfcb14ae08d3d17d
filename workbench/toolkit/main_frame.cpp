#include "workbench/toolkit/main_frame.h"

#include "workbench/base/turn.h"
#include "workbench/toolkit/click_focus_widget.h"
#include "workbench/toolkit/dock_layout.h"
#include "workbench/toolkit/reparent.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/toolkit/typing_widget.h"

#include <algorithm>

namespace workbench {

namespace {

constexpr CRect kFrameRect{0, 0, 1280, 800};
constexpr int kStripWidth = 24;  // pixels of an anchored set
constexpr DWORD kDockLeft = 0x1000;
constexpr DWORD kDockRight = 0x4000;

/// An edge as `EnableDocking` takes it.
DWORD bitOf(Edge edge) {
    return edge == Edge::Left ? kDockLeft : kDockRight;
}

/// The smallest and the largest size that the palettes of a set ask for, applied to a size.
CSize limited(const PaletteSetState& state, CSize size) {
    for (const auto& palette : state.palettes) {
        CSize least;
        if (palette->GetMinimumSize(least))
            size.cx = std::max(size.cx, least.cx);
        CSize most;
        if (!palette->GetMaximumSize(most))
            continue;
        if (most.cx > 0)
            size.cx = std::min(size.cx, most.cx);
        if (most.cy > 0)
            size.cy = std::min(size.cy, most.cy);
    }
    return size;
}

}  // namespace

MainFrame::MainFrame(Toolkit& toolkit)
    : m_toolkit(toolkit),
      m_windows(toolkit.windows()),
      m_sets(toolkit.paletteSets()),
      m_tools(toolkit.tools()) {
    makePlainWindow(m_frame, "CFrameWnd", 0);
    makeTypingWindow(m_drawingView, "DrawingView");
    makeTypingWindow(m_commandLine, "CommandLine");
    makePlainWindow(m_leftDock, "CDockBar", kLeftDockBar);
    makePlainWindow(m_rightDock, "CDockBar", kRightDockBar);
    layout();
    m_windows.setFocus(m_drawingView.m_hWnd);
}

MainFrame::~MainFrame() {
    // What is left inside belongs to modules that may be gone, so nothing is told.
    m_windows.life().abandonAll();
}

void MainFrame::makePlainWindow(CWnd& object, const char* className, UINT id) {
    makeWindow(object, className, id, std::make_unique<ClickFocusWidget>(m_toolkit));
}

/// The window's class is its name too.
void MainFrame::makeTypingWindow(CWnd& object, const char* className) {
    makeWindow(object, className, 0, std::make_unique<TypingWidget>(m_toolkit, m_onTyped));
    m_windows.setName(object.m_hWnd, className);
}

void MainFrame::makeWindow(CWnd& object, const char* className, UINT id,
                           std::unique_ptr<Widget> widget) {
    WindowCreation creation;
    creation.className = className;
    creation.style = WS_VISIBLE;
    creation.rect = kFrameRect;
    creation.parent = m_frame.m_hWnd;
    creation.id = static_cast<int>(id);
    if (creation.parent != nullptr)
        creation.style |= WS_CHILD;
    creation.widget = std::move(widget);
    m_windows.create(object, std::move(creation));
}

void MainFrame::forEachBar(const std::function<void(CQrUiPaletteSet&)>& function) const {
    const Turn turn;
    const std::vector<CQrUiPaletteSet*> round(m_bars.begin(), m_bars.end());
    for (CQrUiPaletteSet* set : round) {
        if (std::find(m_bars.begin(), m_bars.end(), set) != m_bars.end())
            function(*set);
    }
}

CFrameWnd* MainFrame::frameOf(const CQrUiPaletteSet& set) {
    const auto floating = m_floating.find(&set);
    if (floating != m_floating.end())
        return &floating->second->frame();
    const Window* const window = m_windows.find(set.m_hWnd);
    const bool docked = window != nullptr && (window->parent == m_leftDock.m_hWnd ||
                                              window->parent == m_rightDock.m_hWnd);
    return docked ? &m_frame : nullptr;
}

BarPlace MainFrame::placeOf(const CQrUiPaletteSet& set) {
    BarPlace place = m_sets.of(&set).place;
    const auto floating = m_floating.find(&set);
    if (floating != m_floating.end())
        place.rect = m_windows.screenRect(floating->second->frame().m_hWnd);
    return place;
}

void MainFrame::add(CQrUiPaletteSet& set) {
    m_bars.push_back(&set);
}

void MainFrame::forget(CQrUiPaletteSet& set) {
    std::erase(m_bars, &set);
    tellShown(set, false);
    const auto floating = m_floating.find(&set);
    if (floating == m_floating.end())
        return;
    // The frame outlives its set's last message and goes at the next layout.
    m_orphans.push_back(std::move(floating->second));
    m_floating.erase(floating);
}

void MainFrame::restore(CQrUiPaletteSet& set, UINT dockBar, const CRect& rectangle) {
    BarPlace first;
    first.edge = dockBar == kLeftDockBar ? Edge::Left : Edge::Right;
    first.rect = rectangle;
    const GUID tool = m_sets.of(&set).toolId;
    const HWND window = set.m_hWnd;
    if (!m_tools.placeOf(tool))
        m_toolkit.bars().load(set);
    if (m_windows.find(window) == nullptr)
        return;
    const BarPlace last = m_tools.placeOf(tool).value_or(first);
    put(set, mayStand(set, last) ? last : first);
}

bool MainFrame::mayStand(const CQrUiPaletteSet& set, const BarPlace& place) const {
    const PaletteSetState* const state = m_sets.find(&set);
    return state != nullptr && (place.floating || (state->edges & bitOf(place.edge)) != 0);
}

void MainFrame::put(CQrUiPaletteSet& set, BarPlace place) {
    PaletteSetState& state = m_sets.of(&set);
    state.place = place;
    state.rolledOut = false;
    m_tools.rememberPlace(state.toolId, place);
    const HWND window = set.m_hWnd;
    stand(set);
    // Moved and sized, its controls may have ended it.
    if (m_windows.find(window) != nullptr)
        showPalettes(set);
}

bool MainFrame::dock(CQrUiPaletteSet& set, Edge edge) {
    if (!isEdgeAllowed(set, edge))
        return false;
    BarPlace place = placeOf(set);
    place.floating = false;
    place.anchored = false;
    place.edge = edge;
    put(set, place);
    return true;
}

void MainFrame::floatAt(CQrUiPaletteSet& set, const CRect& rect) {
    const HWND window = set.m_hWnd;
    BarPlace place = m_sets.of(&set).place;
    place.floating = true;
    place.anchored = false;
    place.rect = rect;
    put(set, place);
    if (m_windows.find(window) == nullptr)
        return;
    // The palettes answer for the set as it stands now: their limits differ while it floats.
    const CSize size = limited(m_sets.of(&set), {rect.Width(), rect.Height()});
    place.rect.right = rect.left + size.cx;
    place.rect.bottom = rect.top + size.cy;
    put(set, place);
}

bool MainFrame::anchor(CQrUiPaletteSet& set, bool anchored) {
    BarPlace place = m_sets.of(&set).place;
    if (!isEdgeAllowed(set, place.edge))
        return false;
    place.floating = false;
    place.anchored = anchored;
    put(set, place);
    return true;
}

void MainFrame::rollOut(CQrUiPaletteSet& set, bool out) {
    PaletteSetState& state = m_sets.of(&set);
    state.rolledOut = out && state.place.anchored;
    showPalettes(set);
    layout();
}

void MainFrame::show(CQrUiPaletteSet& set, bool shown, bool delay) {
    const auto floating = m_floating.find(&set);
    const HWND window = set.m_hWnd;
    if (floating != m_floating.end())
        m_windows.show(floating->second->frame().m_hWnd, shown);
    m_windows.show(window, shown);
    if (!delay)
        layout();
    // Shown or hidden, its controls may have ended it.
    if (m_windows.find(window) != nullptr)
        tellShown(set, shown);
}

void MainFrame::tellShown(const CQrUiPaletteSet& set, bool shown) const {
    if (m_onShown)
        m_onShown(set, shown);
}

void MainFrame::close(CQrUiPaletteSet& set) {
    show(set, false, false);
}

void MainFrame::setDockedHeight(CQrUiPaletteSet& set, int height) {
    m_sets.of(&set).dockedHeight = std::max(0, height);
    layout();
}

void MainFrame::layout() {
    m_orphans.clear();
    std::vector<DockedBar> docked;
    std::vector<HWND> handles;
    for (CQrUiPaletteSet* set : m_bars) {
        const Window* const window = m_windows.find(set->m_hWnd);
        if (window == nullptr || frameOf(*set) != &m_frame)
            continue;
        const PaletteSetState& state = m_sets.of(set);
        docked.push_back(
            {state.place.edge, widthOf(*set), state.dockedHeight, window->hasVisibleStyle()});
        handles.push_back(set->m_hWnd);
    }
    const CRect client = m_windows.clientRect(m_frame.m_hWnd);
    const DockLayout places = layoutDocks({client.Width(), client.Height()}, docked);
    constexpr UINT kFlags = SWP_NOZORDER | SWP_NOACTIVATE;
    m_windows.place(m_leftDock.m_hWnd, places.leftDock, kFlags);
    m_windows.place(m_rightDock.m_hWnd, places.rightDock, kFlags);
    m_windows.place(m_drawingView.m_hWnd, places.drawingView, kFlags);
    m_windows.place(m_commandLine.m_hWnd, places.commandLine, kFlags);
    for (std::size_t index = 0; index < handles.size(); ++index)
        m_windows.place(handles[index], places.bars[index], kFlags);
}

bool MainFrame::isEdgeAllowed(const CQrUiPaletteSet& set, Edge edge) const {
    const PaletteSetState* const state = m_sets.find(&set);
    return state != nullptr && state->dockingAllowed && (state->edges & bitOf(edge)) != 0;
}

/// Moves the set's window to where its place says.
void MainFrame::stand(CQrUiPaletteSet& set) {
    const HWND handle = set.m_hWnd;
    const Window* const window = m_windows.find(handle);
    if (window == nullptr)
        return;
    const bool shown = window->hasVisibleStyle();
    const BarPlace place = m_sets.of(&set).place;
    reparent(m_windows, handle, homeOf(set));
    if (place.floating) {
        FloatingFrame& floating = *m_floating.at(&set);
        const HWND frame = floating.frame().m_hWnd;
        const HWND dockBar = floating.dockBar().m_hWnd;
        m_windows.place(frame, FloatingFrame::reachable(place.rect, m_room),
                        SWP_NOZORDER | SWP_NOACTIVATE);
        const CRect inside = m_windows.clientRect(dockBar);
        m_windows.place(handle, inside, SWP_NOZORDER | SWP_NOACTIVATE);
        m_windows.show(frame, shown);
    } else if (const auto left = m_floating.find(&set); left != m_floating.end()) {
        m_orphans.push_back(std::move(left->second));
        m_floating.erase(left);
    }
    layout();
}

/// Palettes of an anchored set are on show only while it is rolled out.
void MainFrame::showPalettes(CQrUiPaletteSet& set) {
    const PaletteSetState* state = m_sets.find(&set);
    const bool shown = state == nullptr || !state->place.anchored || state->rolledOut;
    for (std::size_t index = 0; state != nullptr && index < state->palettes.size(); ++index) {
        m_windows.show(state->palettes[index]->m_hWnd, shown);
        // A field that is hidden loses the focus, and its control may end the set.
        state = m_sets.find(&set);
    }
}

/// The window that a set is to be a child of.
HWND MainFrame::homeOf(CQrUiPaletteSet& set) {
    const BarPlace& place = m_sets.of(&set).place;
    if (!place.floating)
        return place.edge == Edge::Left ? m_leftDock.m_hWnd : m_rightDock.m_hWnd;
    std::unique_ptr<FloatingFrame>& floating = m_floating[&set];
    if (!floating)
        floating = std::make_unique<FloatingFrame>(m_windows, place.rect, m_room);
    return floating->dockBar().m_hWnd;
}

int MainFrame::widthOf(const CQrUiPaletteSet& set) const {
    const PaletteSetState& state = *m_sets.find(&set);
    if (state.place.anchored && !state.rolledOut)
        return kStripWidth;
    return limited(state, {state.place.rect.Width(), state.place.rect.Height()}).cx;
}

}  // namespace workbench
