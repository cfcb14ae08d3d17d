#pragma once

#include <hostapi/types.h>

/// What the hostile module and its tests agree on: at which moment it strikes, and how.
namespace hostile {

/// A moment at which code of the hostile module runs. Its reactors, listeners and controls come to
/// all of them by themselves, except to those that the test brings it to (`ReachFn`).
enum class Point : int {
    CommandWillStart,
    CommandEnded,
    CommandCancelled,
    CommandFailed,
    CommandRuns,  ///< The module's own command, in place of the host's of that name.
    VariableWillChange,
    VariableChanged,
    QuitBegins,
    QuitAborted,
    ViewChanged,
    DocumentCreated,
    DocumentToBeActivated,
    DocumentBecameCurrent,
    DocumentToBeDestroyed,
    DocumentDestroyed,
    ProfileChanged,
    ProfileWillBeSaved,
    InputBegins,
    InputEnds,
    RestBegins,
    RestEnds,
    ThemeModified,
    PanelsWillUnload,
    PanelsUnloaded,
    PanelsWillLoad,
    PanelsLoaded,
    ControlsWillBeReleased,
    BarShown,
    BarHidden,
    FactoryAsked,     ///< The dashboard asks for a control, which isn't made yet.
    FactoryAnswers,   ///< The control is made, and not yet handed over.
    ControlCreated,   ///< Inside the creation of the control's window.
    ControlSized,     ///< `WM_SIZE`.
    ControlPlaced,    ///< `WM_WINDOWPOSCHANGED`.
    ControlIsEnding,  ///< `WM_DESTROY`.
    ControlIdle,      ///< The idle update.
    ControlTimer,
    ControlThemed,
    FocusAsked,    ///< The query whether a control needs the keyboard focus.
    ListAsked,     ///< The same on behalf of a list that dropped down.
    IconAsked,     ///< The query for an icon of its own.
    RowAsked,      ///< The query whether it takes part in the row's layout.
    KeyOnItsRoad,  ///< A key passes on its way from the field to the frame.
    FieldEntered,
    FieldLeft,
    ToolClicked,
    HeardDocumentToBeActivated,  ///< From here on: a broadcast of the dashboard to its controls.
    HeardLastDocumentDestroyed,
    HeardDocumentBecameCurrent,
    HeardVariableChanged,
    HeardVariableWillChange,
    HeardCommandStarted,
    HeardCommandEnded,
    HeardCommandCancelled,
    HeardViewChanged,
    HeardDocumentToBeDestroyed,
    MenuOpen,  ///< A menu is on show. The test brings the module here.
    BoxOpen,   ///< A message box is on show. The test brings the module here.
    kCount,
};

/// What the module does at that moment, once.
enum class Action : int {
    ReleaseControls,  ///< Code 0.
    UnloadPanels,     ///< Code 1.
    Reload,           ///< Code 2.
    UnloadAndReload,  ///< Codes 1 and 2.
    Show,             ///< The command that shows the dashboard.
    UnloadModule,     ///< Through the host's loader.
    EndModule,        ///< The unload message straight to the dashboard's entry point.
    CloseDocument,    ///< The current one.
    WriteVariable,    ///< The one that is being written, or else some of the dashboard's own.
    DisableParent,    ///< The tool panel that the module's control stands on.
    DestroyPanel,     ///< The panel's window around the module's control.
    DestroyPanelSet,  ///< The panel set's window around it.
    RemoveListener,   ///< Its own one.
    AddListener,      ///< A further one.
    SetVisiblePanels,
    Throw,  ///< An exception of its own, for commands only.
    kCount,
};

/// Exported functions of the module, each under its name with an `Fn`.
///
/// Arms the module: it strikes at the n-th time that it comes to a point, from 1 on.
using HostileArmFn = void (*)(int point, int occurrence, int action);
/// How often the module came to a point since it was armed or loaded.
using HostileCountFn = int (*)(int point);
/// Whether it has struck since it was armed.
using HostileHasStruckFn = bool (*)();
/// Brings the module to a point.
using HostileReachFn = void (*)(int point);
/// Registers its one listener with the dashboard that is loaded now, behind those that are there.
using HostileListenFn = void (*)();

/// The file of the module, and the names of what it puts on panels.
constexpr const wchar_t* kModule = L"VxHostile.qlx";
constexpr const wchar_t* kControl = L"HostileControl";
constexpr const wchar_t* kTool = L"ID_Hostile";

}  // namespace hostile
