#include "workbench/navigation/navigation_tool.h"

#include "workbench/core/workbench.h"
#include "workbench/drawing/lookup.h"
#include "workbench/drawing/records/view.h"
#include "workbench/drawing/records/viewport.h"
#include "workbench/editor/editor.h"
#include "workbench/loader/module_loader.h"
#include "workbench/navigation/navigation_commands.h"

namespace workbench {

namespace {

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

NavigationTool::NavigationTool(Editor& editor, Journal& journal)
    : m_editor(editor),
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
    Workbench::current().modules().loadModule(L"VxVmTools.qlx");
    m_tool.emplace(mode);
    noteMode();
    return true;
}

void NavigationTool::stop() {
    if (!isRunning())
        return;
    m_tool.reset();
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

template <class Change>
void NavigationTool::changeView(Change change) {
    Document* document = m_editor.documents().current();
    if (document == nullptr)
        return;
    drawing::Writing<drawing::Viewport> writing(document->data(),
                                                drawing::activeViewport(document->data()));
    if (!writing)
        return;
    writing->appliedView = {};
    change(*writing);
}

void NavigationTool::setLens(double lens) {
    if (lens > 0.0)
        changeView([lens](drawing::Viewport& viewport) { viewport.view.lens = lens; });
}

void NavigationTool::restorePreset(PresetView preset) {
    changeView([preset](drawing::Viewport& viewport) { turnTo(viewport.view, preset); });
}

void NavigationTool::restoreNamed(drawing::ObjectId view) {
    const Document* document = m_editor.documents().current();
    const auto* named = document == nullptr ? nullptr : document->data().look<drawing::View>(view);
    if (named == nullptr)
        return;
    changeView([named, view](drawing::Viewport& viewport) {
        viewport.view = named->view;
        viewport.appliedView.id = view;
    });
}

void NavigationTool::moveCamera(const drawing::Vec3& eye) {
    changeView([&eye](drawing::Viewport& viewport) { viewport.view.eye = eye; });
}

void NavigationTool::moveTarget(const drawing::Vec3& target) {
    changeView([&target](drawing::Viewport& viewport) { viewport.view.target = target; });
}

void NavigationTool::recordAnimation() {
    if (isRunning())
        setAnimation(AnimationState::Recording);
}

void NavigationTool::pauseRecording() {
    if (m_animation == AnimationState::Recording)
        setAnimation(AnimationState::Paused);
}

void NavigationTool::playAnimation() {
    if (m_animation != AnimationState::None)
        setAnimation(AnimationState::Playing);
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

void NavigationTool::showDialog(const char* name) {
    m_journal.add("dialog", {{"name", name}});
}

void NavigationTool::noteMode() {
    m_journal.add("navigation", {{"mode", mode()}});
}

}  // namespace workbench
