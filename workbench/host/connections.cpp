#include "workbench/host/connections.h"

#include "workbench/editor/editor.h"
#include "workbench/host/dashboard_state.h"
#include "workbench/host/workbench.h"
#include "workbench/menu/menu_host.h"
#include "workbench/toolbar/toolbar_controls.h"
#include "workbench/toolkit/toolkit.h"

#include <memory>
#include <string_view>

namespace workbench {

void connectUnits(Workbench& workbench) {
    Editor& editor = workbench.editor();
    Toolkit& toolkit = workbench.toolkit();
    toolkit.frame().setOnTyped(
        [&editor](wchar_t character) { editor.type(std::wstring_view(&character, 1)); });
    toolkit.frame().setOnShown(
        [state = std::make_shared<DashboardState>(editor, toolkit)](
            const CQrUiPaletteSet& set, bool shown) { state->barShown(set, shown); });
    toolkit.mouse().setGestureEvents({[&editor](Mouse::Begin begin) {
                                          editor.beginGesture(
                                              begin == Mouse::Begin::Continue
                                                  ? drawing::UndoLog::Gesture::Continue
                                                  : drawing::UndoLog::Gesture::New);
                                      },
                                      [&editor] { editor.endGesture(); }});
    workbench.menu().setOnWorkspace([&workbench] { workbench.toolbarControls().refresh(); });
}

void disconnectUnits(Toolkit& toolkit) {
    toolkit.frame().setOnTyped({});
    toolkit.frame().setOnShown({});
    toolkit.mouse().setGestureEvents({});
}

}  // namespace workbench
