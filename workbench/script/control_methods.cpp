#include "workbench/base/text.h"
#include "workbench/gestures/item_gestures.h"
#include "workbench/gestures/key_gestures.h"
#include "workbench/gestures/list_gestures.h"
#include "workbench/gestures/mouse_gestures.h"
#include "workbench/gestures/slider_gestures.h"
#include "workbench/script/handles.h"
#include "workbench/script/lua_values.h"
#include "workbench/script/script_error.h"
#include "workbench/toolkit/combo_widget.h"
#include "workbench/toolkit/control_widget.h"
#include "workbench/toolkit/slider_widget.h"
#include "workbench/windows/window_parts.h"
#include "workbench/windows/window_system.h"

#include <lua.hpp>

namespace workbench::script {

namespace {

constexpr const char* kSlider = "slider";
constexpr const char* kEdit = "edit";
constexpr const char* kCombo = "combo";
constexpr const char* kSeparatorText = "-";

WindowSystem& windows(Session& session) {
    return session.workbench().windows();
}

/// A part of the handle's control; throws ScriptError if it has none of that name.
HWND partOf(Session& session, const Arguments& arguments, const std::string& part) {
    const HWND window = findPart(windows(session), controlOf(session, arguments), part);
    if (window == nullptr)
        throw ScriptError("the control has no \"" + part + "\"");
    return window;
}

HWND fieldOf(Session& session, const Arguments& arguments, int number) {
    return partOf(session, arguments, arguments.optionalText(number).value_or(kEdit));
}

const SliderWidget& sliderOf(Session& session, const Arguments& arguments) {
    const Window* window = windows(session).find(partOf(session, arguments, kSlider));
    return dynamic_cast<const SliderWidget&>(*window->widget);
}

int pushTruth(lua_State* lua, bool truth) {
    lua_pushboolean(lua, truth ? 1 : 0);
    return 1;
}

/// Result: whether the slider took the gesture.
int drag(Session& session, Arguments& arguments) {
    if (arguments.count() == 0)
        throw ScriptError("say where to drag the thumb to");
    const HWND slider = partOf(session, arguments, kSlider);
    const bool taken = gestures::dragSlider(session.toolkit(), slider, arguments.int32sFrom(1));
    session.settle();
    return pushTruth(arguments.lua(), taken);
}

int release(Session& session, Arguments& arguments) {
    const HWND slider = partOf(session, arguments, kSlider);
    const bool held = gestures::releaseSlider(session.toolkit(), slider);
    session.settle();
    return pushTruth(arguments.lua(), held);
}

int slider(Session& session, Arguments& arguments) {
    lua_pushinteger(arguments.lua(), sliderOf(session, arguments).position());
    return 1;
}

int range(Session& session, Arguments& arguments) {
    const SliderWidget& widget = sliderOf(session, arguments);
    lua_pushinteger(arguments.lua(), widget.lowest());
    lua_pushinteger(arguments.lua(), widget.highest());
    return 2;
}

/// Without a field: whether the control takes gestures, which its slider, if it has one, must too.
int enabled(Session& session, Arguments& arguments) {
    const HWND control = controlOf(session, arguments);
    if (arguments.has(1)) {
        const HWND field = partOf(session, arguments, arguments.text(1));
        return pushTruth(arguments.lua(), windows(session).takesInput(field));
    }
    const HWND main = findPart(windows(session), control, kSlider);
    return pushTruth(arguments.lua(),
                     windows(session).takesInput(main == nullptr ? control : main));
}

int visible(Session& session, Arguments& arguments) {
    return pushTruth(arguments.lua(), windows(session).isOnScreen(controlOf(session, arguments)));
}

int click(Session& session, Arguments& arguments) {
    const HWND control = controlOf(session, arguments);
    bool taken = false;
    if (arguments.count() == 0) {
        taken = gestures::clickIcon(session.toolkit(), control);
    } else {
        taken =
            gestures::clickAt(session.toolkit(), control, {arguments.int32(1), arguments.int32(2)});
    }
    session.settle();
    return pushTruth(arguments.lua(), taken);
}

int focus(Session& session, Arguments& arguments) {
    const HWND field = fieldOf(session, arguments, 1);
    const bool taken = gestures::focusField(session.toolkit(), field);
    session.settle();
    return pushTruth(arguments.lua(), taken);
}

int text(Session& session, Arguments& arguments) {
    const Window* field = windows(session).find(fieldOf(session, arguments, 1));
    lua_pushstring(arguments.lua(), toUtf8(field->text).c_str());
    return 1;
}

void putText(Session& session, const Arguments& arguments) {
    const std::string entry = arguments.text(1);
    if (!gestures::focusField(session.toolkit(), fieldOf(session, arguments, 2))) {
        throw ScriptError("the field is disabled");
    }
    session.settle();
    gestures::replaceText(session.toolkit(), toWide(entry));
    session.settle();
}

int put(Session& session, Arguments& arguments) {
    putText(session, arguments);
    return 0;
}

/// Key by key, behind what the field holds where it hasn't got the focus yet.
int type(Session& session, Arguments& arguments) {
    const std::string typed = arguments.text(1);
    const HWND field = fieldOf(session, arguments, 2);
    if (windows(session).focus() != field && !gestures::focusField(session.toolkit(), field))
        throw ScriptError("the field is disabled");
    session.settle();
    for (const wchar_t letter : toWide(typed)) {
        gestures::typeText(session.toolkit(), std::wstring_view(&letter, 1));
        session.settle();
    }
    return 0;
}

/// Result: the control's answer.
int send(Session& session, Arguments& arguments) {
    const HWND control = controlOf(session, arguments);
    const LRESULT answer = windows(session).send(control, static_cast<UINT>(arguments.int32(1)),
                                                 static_cast<WPARAM>(arguments.integerOr(2, 0)),
                                                 static_cast<LPARAM>(arguments.integerOr(3, 0)));
    session.settle();
    lua_pushinteger(arguments.lua(), static_cast<lua_Integer>(answer));
    return 1;
}

int enter(Session& session, Arguments& arguments) {
    putText(session, arguments);
    gestures::pressKey(session.toolkit(), "enter");
    session.settle();
    return 0;
}

/// Without a field the key goes to the window with the focus.
int key(Session& session, Arguments& arguments) {
    const std::string name = arguments.text(1);
    controlOf(session, arguments);
    const HWND field = arguments.has(2) ? fieldOf(session, arguments, 2) : nullptr;
    gestures::pressKey(session.toolkit(), name, field);
    session.settle();
    return 0;
}

int blur(Session& session, Arguments& arguments) {
    controlOf(session, arguments);
    gestures::blur(session.toolkit());
    session.settle();
    return 0;
}

int wheel(Session& session, Arguments& arguments) {
    const HWND control = controlOf(session, arguments);
    const HWND main = findPart(windows(session), control, kSlider);
    const HWND target = main == nullptr ? control : main;
    const bool taken =
        gestures::turnWheel(session.toolkit(), target,
                            gestures::middleOf(session.toolkit(), target), arguments.int32(1));
    session.settle();
    return pushTruth(arguments.lua(), taken);
}

/// The list of the handle's control, which may be nothing but a list itself.
HWND listOf(Session& session, const Arguments& arguments) {
    const HWND control = controlOf(session, arguments);
    const Window& window = *windows(session).find(control);
    const bool isList = dynamic_cast<const ComboWidget*>(window.widget.get()) != nullptr;
    return isList ? control : partOf(session, arguments, kCombo);
}

const ComboWidget& comboOf(Session& session, const Arguments& arguments) {
    const Window* window = windows(session).find(listOf(session, arguments));
    return dynamic_cast<const ComboWidget&>(*window->widget);
}

std::string entryText(const ComboWidget& combo, int index) {
    const QRUI_COMBO_CTRL_ITEM& entry = *combo.entry(index);
    return entry.separator != 0 ? kSeparatorText : toUtf8(entry.text);
}

int items(Session& session, Arguments& arguments) {
    const ComboWidget& combo = comboOf(session, arguments);
    std::vector<std::string> texts;
    texts.reserve(static_cast<std::size_t>(combo.count()));
    for (int i = 0; i < combo.count(); ++i)
        texts.push_back(entryText(combo, i));
    push(arguments.lua(), texts);
    return 1;
}

int selected(Session& session, Arguments& arguments) {
    const int index = comboOf(session, arguments).selected();
    if (index < 0)
        lua_pushnil(arguments.lua());
    else
        lua_pushinteger(arguments.lua(), index);
    return 1;
}

/// The index that an argument names: a number itself, a text that of the first entry of it.
int indexArgument(const ComboWidget& combo, const Arguments& arguments) {
    const Value wanted = arguments.value(1);
    if (wanted.isInteger())
        return arguments.int32(1);
    const std::string text = arguments.text(1);
    for (int i = 0; i < combo.count(); ++i) {
        if (entryText(combo, i) == text)
            return i;
    }
    throw ScriptError("the list has no entry \"" + text + "\"");
}

int pick(Session& session, Arguments& arguments) {
    const HWND list = listOf(session, arguments);
    bool taken = gestures::openList(session.toolkit(), list);
    session.settle();
    if (taken) {
        int index = 0;
        try {
            index = indexArgument(comboOf(session, arguments), arguments);
        } catch (const ScriptError&) {
            gestures::closeList(session.toolkit(), list);
            throw;
        }
        taken = gestures::chooseFromList(session.toolkit(), list, index);
        session.settle();
    }
    return pushTruth(arguments.lua(), taken);
}

int open(Session& session, Arguments& arguments) {
    const bool taken = gestures::openList(session.toolkit(), listOf(session, arguments));
    session.settle();
    return pushTruth(arguments.lua(), taken);
}

int close(Session& session, Arguments& arguments) {
    const bool taken = gestures::closeList(session.toolkit(), listOf(session, arguments));
    session.settle();
    return pushTruth(arguments.lua(), taken);
}

/// The part that a control is known by where none is named: its slider, or its list.
HWND mainPart(Session& session, const Arguments& arguments) {
    const HWND control = controlOf(session, arguments);
    const HWND main = findPart(windows(session), control, kSlider);
    return main == nullptr ? listOf(session, arguments) : main;
}

/// The part that is named first, or the main part.
HWND partOrMain(Session& session, const Arguments& arguments) {
    return arguments.has(1) ? partOf(session, arguments, arguments.text(1))
                            : mainPart(session, arguments);
}

/// Result: whether the part takes the mouse.
int hover(Session& session, Arguments& arguments) {
    const HWND part = partOrMain(session, arguments);
    const CPoint middle = gestures::middleOf(session.toolkit(), part);
    const bool taken = gestures::hoverAt(session.toolkit(), part, middle);
    session.settle();
    return pushTruth(arguments.lua(), taken);
}

/// The tooltip of the slider or list, or of a field.
int tip(Session& session, Arguments& arguments) {
    const Window* window = windows(session).find(partOrMain(session, arguments));
    const auto* widget = dynamic_cast<const ControlWidget*>(window->widget.get());
    lua_pushstring(arguments.lua(), widget == nullptr ? "" : toUtf8(widget->tip()).c_str());
    return 1;
}

}  // namespace

const std::vector<Call>& controlMethods() {
    static const std::vector<Call> calls{
        {"blur", blur, CallKind::Acts},
        {"click", click, CallKind::Acts},
        {"close", close, CallKind::Acts},
        {"drag", drag, CallKind::Acts},
        {"enabled", enabled},
        {"enter", enter, CallKind::Acts},
        {"focus", focus, CallKind::Acts},
        {"hover", hover, CallKind::Acts},
        {"items", items},
        {"key", key, CallKind::Acts},
        {"open", open, CallKind::Acts},
        {"pick", pick, CallKind::Acts},
        {"put", put, CallKind::Acts},
        {"range", range},
        {"release", release, CallKind::Acts},
        {"selected", selected},
        {"send", send, CallKind::Acts},
        {"slider", slider},
        {"text", text},
        {"tip", tip},
        {"type", type, CallKind::Acts},
        {"visible", visible},
        {"wheel", wheel, CallKind::Acts},
    };
    return calls;
}

}  // namespace workbench::script
