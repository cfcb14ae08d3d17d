#pragma once

#include "workbench/toolkit/bar_place.h"
#include "workbench/toolkit/floating_frame.h"
#include "workbench/toolkit/object_states.h"
#include "workbench/toolkit/state_table.h"
#include "workbench/toolkit/tool_registry.h"
#include "workbench/toolkit/typing_widget.h"
#include "workbench/windows/window_system.h"

#include <hostapi/qrui18/palette_set.h>
#include <hostapi/window/frame.h>

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace workbench {

class Toolkit;

constexpr UINT kLeftDockBar = 59420;   ///< ID of the main frame's left dock bar.
constexpr UINT kRightDockBar = 59421;  ///< ID of the main frame's right dock bar.

/// The host's main window: the drawing view, the docked command line ("DrawingView" and
/// "CommandLine" by name), and the palette sets that dock at its edges or float above it.
class MainFrame {
public:
    using SetStates = StateTable<CQrUiPaletteSet, PaletteSetState>;

    /// A part of the toolkit, whose windows, palette sets and tools must be there already.
    explicit MainFrame(Toolkit& toolkit);
    MainFrame(const MainFrame&) = delete;
    MainFrame& operator=(const MainFrame&) = delete;
    /// Lets all windows go without a message.
    ~MainFrame();

    CFrameWnd& frame() { return m_frame; }
    CWnd& drawingView() { return m_drawingView; }
    CWnd& commandLine() { return m_commandLine; }
    /// Is told what is typed where typing goes to the command line; empty: it is lost.
    void setOnTyped(TypingWidget::Typed typed) { m_onTyped = std::move(typed); }
    /// Is told of each palette set that is shown, hidden or ended, also if it was so before.
    using Shown = std::function<void(const CQrUiPaletteSet& set, bool shown)>;
    void setOnShown(Shown shown) { m_onShown = std::move(shown); }
    /// The palette sets with a window, in order of creation.
    const std::vector<CQrUiPaletteSet*>& bars() const { return m_bars; }
    /// Calls a function with each of them; a set may go while it runs for another one.
    void forEachBar(const std::function<void(CQrUiPaletteSet&)>& function) const;
    /// The frame that a set is docked in or floats in; null before it was placed.
    CFrameWnd* frameOf(const CQrUiPaletteSet& set);

    /// The part of the screen that small frames stand in from now on; empty: no limit.
    void setRoom(const CRect& room) { m_room = room; }

    /// Where a set stands now, the user's sizing of its small frame included.
    BarPlace placeOf(const CQrUiPaletteSet& set);
    /// Takes a set in that has got its window. It is docked nowhere yet.
    void add(CQrUiPaletteSet& set);
    /// Lets a set go whose window ends.
    void forget(CQrUiPaletteSet& set);
    /// Whether a set may stand at a place: one that floats anywhere, another one where it may dock.
    bool mayStand(const CQrUiPaletteSet& set, const BarPlace& place) const;
    /// Puts a set where the user last had its tool, if it may stand there, or else at a dock bar
    /// with a width.
    void restore(CQrUiPaletteSet& set, UINT dockBar, const CRect& rectangle);
    /// Puts a set at a place, with no question whether the edge is allowed.
    void put(CQrUiPaletteSet& set, BarPlace place);
    /// Docks a set as a user does. False if the edge is not allowed.
    bool dock(CQrUiPaletteSet& set, Edge edge);
    /// Floats a set as a user does, within the limits of its palettes.
    void floatAt(CQrUiPaletteSet& set, const CRect& rect);
    /// Anchors a set as a thin strip at its edge, or docks it again. False if the edge is not
    /// allowed.
    bool anchor(CQrUiPaletteSet& set, bool anchored);
    /// Rolls an anchored set out of its strip, or in again.
    void rollOut(CQrUiPaletteSet& set, bool out);
    /// Shows or hides a set; the frame is laid out anew unless `delay`.
    void show(CQrUiPaletteSet& set, bool shown, bool delay);
    /// Closes a set as its user does: it is only hidden.
    void close(CQrUiPaletteSet& set);
    /// Gives a docked set a height in pixels, as far as its edge has room.
    void setDockedHeight(CQrUiPaletteSet& set, int height);
    /// Lays out docks, docked sets, drawing view and command line.
    void layout();

private:
    void makePlainWindow(CWnd& object, const char* className, UINT id);
    void makeTypingWindow(CWnd& object, const char* className);
    void makeWindow(CWnd& object, const char* className, UINT id, std::unique_ptr<Widget> widget);
    void tellShown(const CQrUiPaletteSet& set, bool shown) const;
    bool isEdgeAllowed(const CQrUiPaletteSet& set, Edge edge) const;
    void stand(CQrUiPaletteSet& set);
    void showPalettes(CQrUiPaletteSet& set);
    HWND homeOf(CQrUiPaletteSet& set);
    int widthOf(const CQrUiPaletteSet& set) const;

    Toolkit& m_toolkit;
    WindowSystem& m_windows;
    SetStates& m_sets;
    ToolRegistry& m_tools;
    TypingWidget::Typed m_onTyped;  // empty: what is typed is lost
    Shown m_onShown;                // empty: nobody is told
    CFrameWnd m_frame;
    CWnd m_drawingView;
    CWnd m_commandLine;
    CDockBar m_leftDock;
    CDockBar m_rightDock;
    CRect m_room;                          // for small frames; empty: no limit
    std::vector<CQrUiPaletteSet*> m_bars;  // not owned
    std::map<const CQrUiPaletteSet*, std::unique_ptr<FloatingFrame>> m_floating;
    std::vector<std::unique_ptr<FloatingFrame>> m_orphans;  // their set has gone
};

}  // namespace workbench
