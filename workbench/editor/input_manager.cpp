#include "workbench/editor/input_manager.h"

#include "workbench/core/host_call.h"

namespace workbench {

void InputManager::addReactor(VxEdInputContextReactor* reactor) {
    HostCall call("VxEdInputManager::addReactor", {reactor});
    if (!call.failed())
        m_reactors.add(reactor);
}

void InputManager::removeReactor(VxEdInputContextReactor* reactor) {
    HostCall call("VxEdInputManager::removeReactor", {reactor});
    if (!call.failed())
        m_reactors.remove(reactor);
}

void InputManager::beginInput() {
    m_reactors.notify([](VxEdInputContextReactor& to) { to.beginInput(); });
}

void InputManager::endInput() {
    m_reactors.notify([](VxEdInputContextReactor& to) { to.endInput(); });
}

void InputManager::beginQuiescentState() {
    m_reactors.notify([](VxEdInputContextReactor& to) { to.beginQuiescentState(); });
}

void InputManager::endQuiescentState() {
    m_reactors.notify([](VxEdInputContextReactor& to) { to.endQuiescentState(); });
}

}  // namespace workbench
