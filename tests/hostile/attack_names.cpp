#include "tests/hostile/attack_names.h"

#include <cstddef>
#include <iterator>

namespace hostile {

namespace {

/// In the order of `Point`.
constexpr const char* kPoints[] = {
    "CommandWillStart",
    "CommandEnded",
    "CommandCancelled",
    "CommandFailed",
    "CommandRuns",
    "VariableWillChange",
    "VariableChanged",
    "QuitBegins",
    "QuitAborted",
    "ViewChanged",
    "DocumentCreated",
    "DocumentToBeActivated",
    "DocumentBecameCurrent",
    "DocumentToBeDestroyed",
    "DocumentDestroyed",
    "ProfileChanged",
    "ProfileWillBeSaved",
    "InputBegins",
    "InputEnds",
    "RestBegins",
    "RestEnds",
    "ThemeModified",
    "PanelsWillUnload",
    "PanelsUnloaded",
    "PanelsWillLoad",
    "PanelsLoaded",
    "ControlsWillBeReleased",
    "BarShown",
    "BarHidden",
    "FactoryAsked",
    "FactoryAnswers",
    "ControlCreated",
    "ControlSized",
    "ControlPlaced",
    "ControlIsEnding",
    "ControlIdle",
    "ControlTimer",
    "ControlThemed",
    "FocusAsked",
    "ListAsked",
    "IconAsked",
    "RowAsked",
    "KeyOnItsRoad",
    "FieldEntered",
    "FieldLeft",
    "ToolClicked",
    "HeardDocumentToBeActivated",
    "HeardLastDocumentDestroyed",
    "HeardDocumentBecameCurrent",
    "HeardVariableChanged",
    "HeardVariableWillChange",
    "HeardCommandStarted",
    "HeardCommandEnded",
    "HeardCommandCancelled",
    "HeardViewChanged",
    "HeardDocumentToBeDestroyed",
    "MenuOpen",
    "BoxOpen",
};
static_assert(std::size(kPoints) == static_cast<std::size_t>(Point::kCount));

/// In the order of `Action`.
constexpr const char* kActions[] = {
    "ReleaseControls", "UnloadPanels",    "Reload",         "UnloadAndReload", "Show",
    "UnloadModule",    "EndModule",       "CloseDocument",  "WriteVariable",   "DisableParent",
    "DestroyPanel",    "DestroyPanelSet", "RemoveListener", "AddListener",     "SetVisiblePanels",
    "Throw",
};
static_assert(std::size(kActions) == static_cast<std::size_t>(Action::kCount));

}  // namespace

const char* nameOf(Point point) {
    return kPoints[static_cast<std::size_t>(point)];
}

const char* nameOf(Action action) {
    return kActions[static_cast<std::size_t>(action)];
}

}  // namespace hostile
