#include "tests/hostile/module/event_reactors.h"

#include "tests/hostile/module/actions.h"
#include "tests/hostile/module/attacker.h"
#include "workbench/editor/editor.h"
#include "workbench/host/workbench.h"

#include <hostapi/vxdb18/rx_object.h>

namespace hostile {

namespace {

VxEditor& editor() {
    return dynamic_cast<VxEditor&>(*vxrxSysRegistry()->at(L"VxEditor"));
}

std::vector<workbench::Document*> openDocuments() {
    return workbench::Workbench::current().editor().documents().all();
}

}  // namespace

EditorEvents::EditorEvents() {
    editor().addReactor(this);
}

EditorEvents::~EditorEvents() {
    editor().removeReactor(this);
}

void EditorEvents::commandWillStart(const wchar_t* /*command*/) {
    reach(Point::CommandWillStart);
}

void EditorEvents::commandEnded(const wchar_t* /*command*/) {
    reach(Point::CommandEnded);
}

void EditorEvents::commandCancelled(const wchar_t* /*command*/) {
    reach(Point::CommandCancelled);
}

void EditorEvents::commandFailed(const wchar_t* /*command*/) {
    reach(Point::CommandFailed);
}

void EditorEvents::sysVarChanged(const wchar_t* name, BOOL /*success*/) {
    const WrittenVariable written(name);
    reach(Point::VariableChanged);
}

void EditorEvents::sysVarWillChange(const wchar_t* name) {
    const WrittenVariable written(name);
    reach(Point::VariableWillChange);
}

void EditorEvents::beginQuit() {
    reach(Point::QuitBegins);
}

void EditorEvents::quitAborted() {
    reach(Point::QuitAborted);
}

void EditorEvents::viewChanged() {
    reach(Point::ViewChanged);
}

InputEvents::InputEvents() {
    for (workbench::Document* document : openDocuments())
        document->input().addReactor(this);
}

InputEvents::~InputEvents() {
    for (workbench::Document* document : openDocuments())
        document->input().removeReactor(this);
}

void InputEvents::beginInput() {
    reach(Point::InputBegins);
}

void InputEvents::endInput() {
    reach(Point::InputEnds);
}

void InputEvents::beginQuiescentState() {
    reach(Point::RestBegins);
}

void InputEvents::endQuiescentState() {
    reach(Point::RestEnds);
}

DocumentEvents::DocumentEvents(InputEvents& input) : m_input(input) {
    vxDocManagerPtr()->addReactor(this);
}

DocumentEvents::~DocumentEvents() {
    vxDocManagerPtr()->removeReactor(this);
}

void DocumentEvents::documentCreated(VxApDocument* document) {
    document->inputManager()->addReactor(&m_input);
    reach(Point::DocumentCreated);
}

void DocumentEvents::documentToBeDestroyed(VxApDocument* /*document*/) {
    reach(Point::DocumentToBeDestroyed);
}

void DocumentEvents::documentDestroyed(const wchar_t* /*fileName*/) {
    reach(Point::DocumentDestroyed);
}

void DocumentEvents::documentBecameCurrent(VxApDocument* /*document*/) {
    reach(Point::DocumentBecameCurrent);
}

void DocumentEvents::documentToBeActivated(VxApDocument* /*document*/) {
    reach(Point::DocumentToBeActivated);
}

ProfileEvents::ProfileEvents() {
    vxProfileManagerPtr()->addReactor(this);
}

ProfileEvents::~ProfileEvents() {
    vxProfileManagerPtr()->removeReactor(this);
}

void ProfileEvents::currentProfileChanged(const wchar_t* /*name*/) {
    reach(Point::ProfileChanged);
}

void ProfileEvents::currentProfileWillBeSaved(const wchar_t* /*name*/) {
    reach(Point::ProfileWillBeSaved);
}

ThemeEvents::ThemeEvents() : m_theme(QrUiGetThemeManager()->GetTheme(L"ToolPanel")) {
    m_theme->RegisterReactor(this);
}

ThemeEvents::~ThemeEvents() {
    m_theme->UnregisterReactor(this);
    QrUiGetThemeManager()->ReleaseTheme(m_theme);
}

void ThemeEvents::ThemeModified(int /*element*/) {
    reach(Point::ThemeModified);
}

}  // namespace hostile
