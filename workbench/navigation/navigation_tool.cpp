#include "workbench/navigation/navigation_tool.h"

#include "workbench/drawing/lookup.h"
#include "workbench/drawing/records/view.h"
#include "workbench/drawing/records/viewport.h"
#include "workbench/editor/editor.h"
#include "workbench/loader/module_loader.h"
#include "workbench/navigation/navigation_commands.h"

#include <utility>

namespace workbench {

namespace {

using drawing::Viewport;

const char* nameOf(AnimationState state) {
    switch (state) {
    case AnimationState::None:
        break;
    case AnimationState::Recording:
        return "recording";
    case AnimationState::Paused:
        return "paused";
    case AnimationState::Playing:
        return "playing";
    }
    return "none";
}

}  // namespace

NavigationTool::NavigationTool(Editor& editor, ModuleLoader& modules, Journal& journal)
    : m_editor(editor),
      m_modules(modules),
      m_journal(journal),
      m_graphics(editor.documents()) {
    addNavigationCommands(editor.commands(), *this);
}

NavigationTool::~NavigationTool() {
    m_editor.commands().removeGroup(kNavigationGroup);
}

int NavigationTool::activity() const {
    if (!isRunning())
        return 0;
    return mode() == kWalk || mode() == kFly ? 2 : 1;
}

bool NavigationTool::start(int mode) {
    if (isRunning())
        return false;
    // The host's module of the tools comes with the first of them; without it the tool runs bare.
    m_modules.loadModule(L"VxVmTools.qlx");
    m_tool.emplace(mode);
    m_started = m_editor.documents().current();
    if (m_started != nullptr)
        m_started->beginGesture();
    noteMode();
    return true;
}

void NavigationTool::stop() {
    if (!isRunning())
        return;
    m_tool.reset();
    if (m_editor.documents().find(m_started) != nullptr)
        m_started->endGesture();
    m_started = nullptr;
    m_recorded.clear();
    if (m_animation != AnimationState::None)
        setAnimation(AnimationState::None);
    noteMode();
}

void NavigationTool::switchMode(int mode) {
    if (!isRunning())
        return;
    if (mode == kParallelProjection || mode == kPerspectiveProjection) {
        m_editor.set(L"PERSPECTIVE", mode == kPerspectiveProjection ? 1 : 0);
        return;
    }
    if (mode == m_tool->mode())
        return;
    m_tool->setMode(mode);
    noteMode();
}

void NavigationTool::showWalkSettings() {
    showDialog("Walk and Fly Settings");
}

std::optional<drawing::ViewParameters> NavigationTool::shown() const {
    const Document* document = m_editor.documents().current();
    if (document == nullptr)
        return {};
    const auto* viewport =
        document->data().look<Viewport>(drawing::activeViewport(document->data()));
    return viewport == nullptr ? std::nullopt : std::optional(viewport->view);
}

void NavigationTool::show(const drawing::ViewParameters& view, drawing::ObjectId named) {
    drawing::Database& database = m_editor.documents().current()->data();
    const drawing::ObjectId viewport = drawing::activeViewport(database);
    const auto* const present = database.look<Viewport>(viewport);
    if (present == nullptr || present->locked)
        return;
    {
        drawing::Writing<Viewport> writing(database, viewport);
        if (!writing)
            return;
        writing->view = view;
        writing->appliedView.id = named;
    }
    if (m_animation == AnimationState::Recording)
        m_recorded.push_back(view);
}

void NavigationTool::setLens(double lens) {
    std::optional<drawing::ViewParameters> view = shown();
    if (!view || !(lens > 0.0))
        return;
    const double ratio = view->lens / lens;
    view->width *= ratio;
    view->height *= ratio;
    view->lens = lens;
    show(*view);
}

void NavigationTool::restorePreset(drawing::PresetView preset) {
    std::optional<drawing::ViewParameters> view = shown();
    if (!view)
        return;
    turnTo(*view, preset);
    show(*view);
}

void NavigationTool::restoreNamed(drawing::ObjectId view) {
    const Document* document = m_editor.documents().current();
    const auto* named = document == nullptr ? nullptr : document->data().look<drawing::View>(view);
    if (named != nullptr)
        show(named->view, view);
}

void NavigationTool::moveCamera(const drawing::Vec3& eye) {
    if (const std::optional<drawing::ViewParameters> view = shown())
        aim(eye, view->target);
}

void NavigationTool::moveTarget(const drawing::Vec3& target) {
    if (const std::optional<drawing::ViewParameters> view = shown())
        aim(view->eye, target);
}

void NavigationTool::aim(const drawing::Vec3& eye, const drawing::Vec3& target) {
    drawing::ViewParameters view = *shown();
    const double before = drawing::distance(view.eye, view.target);
    const double after = drawing::distance(eye, target);
    if (after == 0.0)
        return;
    view.eye = eye;
    view.target = target;
    if (before > 0.0) {
        view.width *= after / before;
        view.height *= after / before;
    }
    show(view);
}

void NavigationTool::recordAnimation() {
    const std::optional<drawing::ViewParameters> view = shown();
    if (!isRunning())
        return;
    if (m_recorded.empty() && view)
        m_recorded.push_back(*view);
    setAnimation(AnimationState::Recording);
}

void NavigationTool::pauseRecording() {
    if (m_animation == AnimationState::Recording)
        setAnimation(AnimationState::Paused);
}

void NavigationTool::playAnimation() {
    if (m_animation == AnimationState::None || m_animation == AnimationState::Playing)
        return;
    setAnimation(AnimationState::Playing);
    // Who hears of the views may stop the tool, which ends the play.
    const std::vector<drawing::ViewParameters> views = m_recorded;
    for (const drawing::ViewParameters& view : views) {
        if (m_animation == AnimationState::Playing && shown())
            show(view);
    }
    if (m_animation == AnimationState::Playing)
        setAnimation(AnimationState::Paused);
}

void NavigationTool::saveAnimation() {
    if (m_animation == AnimationState::None)
        return;
    pauseRecording();
    showDialog("Save As");
}

void NavigationTool::showAnimationSettings() {
    showDialog("Animation Settings");
}

void NavigationTool::setAnimation(AnimationState state) {
    m_animation = state;
    m_journal.add("navigation", {{"animation", nameOf(state)}});
}

void NavigationTool::noteFunction(const char* name, Value::List arguments) {
    m_journal.add("navigation", {{"function", name}, {"args", std::move(arguments)}});
}

void NavigationTool::showDialog(const char* name) {
    m_journal.add("dialog", {{"name", name}});
}

void NavigationTool::noteMode() {
    m_journal.add("navigation", {{"mode", mode()}});
}

}  // namespace workbench
