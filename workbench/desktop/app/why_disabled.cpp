#include "workbench/desktop/app/why_disabled.h"

#include "workbench/desktop/look/text.h"
#include "workbench/drawing/lookup.h"
#include "workbench/drawing/records/viewport.h"
#include "workbench/editor/command_processor.h"
#include "workbench/editor/editor.h"
#include "workbench/host/workbench.h"
#include "workbench/navigation/navigation_tool.h"
#include "workbench/toolkit/tool_panel_item_record.h"
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

/// The buttons of the animation recorder, by what they need.
enum class Recorder { None, Record, Pause, PlayOrSave };

Recorder recorderOf(const CQrUiToolPanelItem* item) {
    const std::wstring id = item == nullptr ? std::wstring() : knownId(*item);
    if (id == L"ID_Animation_Record")
        return Recorder::Record;
    if (id == L"ID_Animation_Pause")
        return Recorder::Pause;
    const bool needsRecording = id == L"ID_Animation_Play" || id == L"ID_Animation_Save";
    return needsRecording ? Recorder::PlayOrSave : Recorder::None;
}

QString whyRecorder(const NavigationTool& navigation, Recorder button) {
    if (!navigation.isRunning())
        return QStringLiteral(
            "No navigation tool runs: an animation is recorded while one, such as Walk, does.");
    const AnimationState state = navigation.animation();
    if (state == AnimationState::Playing)
        return QStringLiteral("The animation is being played.");
    if (state == AnimationState::None)
        return button == Recorder::Record ? QString()
                                          : QStringLiteral("Nothing has been recorded yet.");
    if (state == AnimationState::Recording && button == Recorder::Record)
        return QStringLiteral("The animation is being recorded.");
    if (state == AnimationState::Paused && button == Recorder::Pause)
        return QStringLiteral("The recording is paused.");
    return {};
}

}  // namespace

QString whyDisabled(Workbench& workbench, HWND window, const CQrUiToolPanelItem* item) {
    const Document* const document = workbench.editor().documents().active();
    if (document == nullptr)
        return QStringLiteral("No drawing is open.");
    // The navigation tool that it waits for may itself be the command that runs.
    if (const Recorder button = recorderOf(item); button != Recorder::None)
        return whyRecorder(workbench.navigation(), button);
    if (document->processor().isActive())
        return QStringLiteral("A command runs: ") + toQt(document->processor().activeNames());
    const drawing::Database& database = document->data();
    const auto* const port = database.look<drawing::Viewport>(drawing::activeViewport(database));
    const WindowSystem& windows = workbench.windows();
    const bool isLens = windows.isWithin(window, windows.findByName(kLensControl));
    return port == nullptr ? QString() : whyViewport(*port, isLens);
}

}  // namespace workbench::desktop
