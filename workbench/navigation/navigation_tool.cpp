#include "workbench/navigation/navigation_tool.h"

#include "workbench/editor/editor.h"
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
