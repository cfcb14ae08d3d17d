#include "workbench/base/text.h"
#include "workbench/editor/editor.h"
#include "workbench/gestures/key_gestures.h"
#include "workbench/menu/menu_host.h"
#include "workbench/profiles/profile_store.h"
#include "workbench/script/calls.h"
#include "workbench/script/lua_values.h"
#include "workbench/script/script_error.h"
#include "workbench/toolkit/toolkit.h"
#include "workbench/windows/window_system.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>

namespace workbench::script {

namespace {

constexpr std::array<std::string_view, 4> kAnswerKinds = {"box", "menu", "dialog", "select"};

int hide(Session& session, Arguments& arguments) {
    session.workbench().faults().hide(arguments.text(1), arguments.optionalText(2).value_or(""));
    return 0;
}

int unhide(Session& session, Arguments& arguments) {
    session.workbench().faults().unhide(arguments.text(1), arguments.optionalText(2).value_or(""));
    return 0;
}

int fail(Session& session, Arguments& arguments) {
    const int after = arguments.optionalInt32(4).value_or(0);
    if (after < 0)
        throw ScriptError("the number of calls that go well can't be negative");
    session.workbench().faults().fail(arguments.text(1), arguments.optionalInt32(2),
                                      arguments.optionalInt32(3), after);
    return 0;
}

int unfail(Session& session, Arguments& arguments) {
    session.workbench().faults().unfail(arguments.text(1));
    return 0;
}

int answer(Session& session, Arguments& arguments) {
    const std::string kind = arguments.text(1);
    if (std::find(kAnswerKinds.begin(), kAnswerKinds.end(), kind) == kAnswerKinds.end()) {
        throw ScriptError("there is no question of the kind \"" + kind + "\"");
    }
    session.workbench().answers().queue(kind, arguments.value(2));
    return 0;
}

int hold(Session& session, Arguments& arguments) {
    gestures::holdKey(session.toolkit(), arguments.text(1), arguments.truth(2));
    return 0;
}

int wait(Session& session, Arguments& arguments) {
    const std::int64_t milliseconds = arguments.integer(1);
    if (milliseconds < 0)
        throw ScriptError("time doesn't run backwards");
    session.workbench().windows().advance(milliseconds);
    session.runHost();
    return 0;
}

int idle(Session& session, Arguments& arguments) {
    const std::int64_t ticks = arguments.integerOr(1, 1);
    for (std::int64_t i = 0; i < ticks; ++i) {
        session.workbench().toolkit().idleUpdate();
        session.runHost();
    }
    return 0;
}

int profile(Session& session, Arguments& arguments) {
    session.workbench().profiles().switchTo(arguments.text(1));
    session.settle();
    return 0;
}

int saveProfile(Session& session, Arguments& /*arguments*/) {
    session.workbench().profiles().save();
    session.settle();
    return 0;
}

/// A path of the registry within the current profile.
RegistryPath registryPath(const std::string& text) {
    std::optional<RegistryPath> path = parseRegistryPath(text);
    if (!path)
        throw ScriptError("\"" + text +
                          "\" is no path of the registry: names with / or \\ between them");
    return *std::move(path);
}

int registry(Session& session, Arguments& arguments) {
    const std::string text = arguments.text(1);
    const RegistryPath path = registryPath(text);
    Profile& profile = session.workbench().profiles().current();
    if (arguments.count() < 2) {
        push(arguments.lua(), profile.registryValue(path));
        return 1;
    }
    const Value value = arguments.value(2);
    if (!value.isNil() && !isRegistryValue(value)) {
        throw ScriptError("the registry can't hold " + value.describe() +
                          ": a text, or a whole number from 0 to 4294967295");
    }
    session.noteGesture("registry " + text + " " + arguments.words(2));
    profile.setRegistryValue(path, value);
    return 0;
}

int theme(Session& session, Arguments& arguments) {
    const std::string name = arguments.text(1);
    const std::optional<Shade> shade = shadeOf(name);
    if (!shade)
        throw ScriptError("there is no theme \"" + name + "\": light or dark");
    session.toolkit().setShade(*shade);
    session.settle();
    return 0;
}

int workspace(Session& session, Arguments& arguments) {
    const std::string name = arguments.text(1);
    if (!session.workbench().menu().switchWorkspace(name)) {
        throw ScriptError("there is no workspace \"" + name + "\"");
    }
    session.settle();
    return 0;
}

int quitBegin(Session& session, Arguments& /*arguments*/) {
    session.workbench().editor().quitBegin();
    session.settle();
    return 0;
}

int quitAbort(Session& session, Arguments& /*arguments*/) {
    session.workbench().editor().quitAbort();
    session.settle();
    return 0;
}

}  // namespace

const std::vector<Call>& sessionCalls() {
    static const std::vector<Call> calls{
        {"answer", answer, CallKind::Acts},
        {"fail", fail, CallKind::Acts},
        {"hide", hide, CallKind::Acts},
        {"hold", hold, CallKind::Acts},
        {"idle", idle, CallKind::Acts},
        {"profile", profile, CallKind::Acts},
        {"quit_abort", quitAbort, CallKind::Acts},
        {"quit_begin", quitBegin, CallKind::Acts},
        {"registry", registry},
        {"save_profile", saveProfile, CallKind::Acts},
        {"theme", theme, CallKind::Acts},
        {"unfail", unfail, CallKind::Acts},
        {"unhide", unhide, CallKind::Acts},
        {"wait", wait, CallKind::Acts},
        {"workspace", workspace, CallKind::Acts},
    };
    return calls;
}

}  // namespace workbench::script
