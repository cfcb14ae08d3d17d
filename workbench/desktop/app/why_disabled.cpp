#include "workbench/desktop/app/why_disabled.h"

#include "workbench/desktop/look/text.h"
#include "workbench/drawing/lookup.h"
#include "workbench/drawing/records/viewport.h"
#include "workbench/editor/command_processor.h"
#include "workbench/editor/editor.h"
#include "workbench/host/workbench.h"
#include "workbench/windows/window_system.h"

namespace workbench::desktop {

namespace {

/// The control of lens and angle, which only a perspective view has.
constexpr const char* kLensControl = "3DNavZoomSliderControl";

QString whyViewport(const drawing::Viewport& port, bool isLens) {
    if (port.isPaper())
        return QStringLiteral("The sheet of a layout is current: paper space has no 3D view.");
    if (port.locked)
        return QStringLiteral("The viewport is locked.");
    if (isLens && !port.view.perspective)
        return QStringLiteral("The view is parallel: only a perspective one has a lens.");
    return {};
}

}  // namespace

QString whyDisabled(Workbench& workbench, HWND window) {
    const Document* const document = workbench.editor().documents().active();
    if (document == nullptr)
        return QStringLiteral("No drawing is open.");
    if (document->processor().isActive())
        return QStringLiteral("A command runs: ") + toQt(document->processor().activeNames());
    const drawing::Database& database = document->data();
    const auto* const port = database.look<drawing::Viewport>(drawing::activeViewport(database));
    const WindowSystem& windows = workbench.windows();
    const bool isLens = windows.isWithin(window, windows.findByName(kLensControl));
    return port == nullptr ? QString() : whyViewport(*port, isLens);
}

}  // namespace workbench::desktop
