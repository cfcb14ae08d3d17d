#include "tests/workbench/script/script_fixture.h"
#include "workbench/script/handles.h"

namespace workbench::script {

namespace {

class ControlMethodsTest : public ScriptTest {
protected:
    void runOnFade(const std::string& text) {
        runOnDashboard("local fade = wb.control('LayerLockTransparencySliderControl') " + text);
    }
};

TEST_F(ControlMethodsTest, SliderIsReadAndDragged) {
    runOnFade(R"(
        local lowest, highest = fade:range()
        assert(lowest == 0 and highest == 90 and fade:slider() == 50)
        assert(fade:drag(10, 20, 33))
        assert(fade:slider() == 33 and fade:text() == "      33%")
        assert(fade:release() and not fade:release())
        wb.wait(300)
        assert(wb.var("LAYLOCKFADECTL") == 33)
    )");
}

TEST_F(ControlMethodsTest, DisabledSliderStays) {
    runOnFade(R"(
        wb.set("LAYLOCKFADECTL", -50)
        assert(not fade:enabled() and not fade:enabled("slider") and not fade:enabled("edit"))
        assert(fade:visible())
        assert(fade:drag(10) == false)
        assert(fade:slider() == 50)
    )");
}

TEST_F(ControlMethodsTest, WheelAndArrowsMoveTheThumb) {
    runOnFade(R"(
        fade:wheel(2)
        assert(fade:slider() == 52)
        fade:key("left", "slider")
        assert(fade:slider() == 51)
    )");
}

TEST_F(ControlMethodsTest, EntryIsTypedAndTaken) {
    runOnFade(R"(
        fade:put("12")
        assert(fade:text() == "12" and wb.var("LAYLOCKFADECTL") == 50)
        fade:key("enter")
        assert(wb.var("LAYLOCKFADECTL") == 12)
        fade:enter("34", "edit")
        assert(fade:text("edit") == "      34%" and wb.var("LAYLOCKFADECTL") == 34)
        fade:put("56")
        fade:blur()
        assert(wb.var("LAYLOCKFADECTL") == 56)
    )");
}

TEST_F(ControlMethodsTest, DisabledFieldTakesNoEntry) {
    runOnFade(R"(
        wb.set("LAYLOCKFADECTL", -50)
        assert(fade:focus() == false)
        local done, reason = pcall(fade.enter, fade, "12")
        assert(not done and reason:find("control:enter: the field is disabled", 1, true))
    )");
}

TEST_F(ControlMethodsTest, ClickGoesToTheIconOrToAPoint) {
    runOnFade(R"(
        assert(fade:click())
        assert(wb.var("LAYLOCKFADECTL") == -50)
        assert(fade:click(8, 8))
        assert(wb.var("LAYLOCKFADECTL") == 50)
    )");
}

TEST_F(ControlMethodsTest, TipsAreThoseOfTheParts) {
    runOnFade(R"(
        assert(fade:tip():find("drag", 1, true))
        assert(fade:tip("edit") ~= fade:tip())
    )");
}

TEST_F(ControlMethodsTest, ATooltipComesUpWhereTheMouseRests) {
    runOnFade(R"(
        assert(fade:hover("edit"))
        wb.wait(499)
        assert(#wb.journal("tip") == 0)
        wb.wait(1)
        assert(wb.journal("tip")[1].text == fade:tip("edit"))
        fade:hover()
        wb.wait(500)
        assert(wb.journal("tip")[1].text == fade:tip())
    )");
}

TEST_F(ControlMethodsTest, ATooltipThatTheModuleRelaysComesUpToo) {
    runOnDashboard(R"(
        local eye = wb.control("3DNavPointTriplet1")
        eye:hover("y")
        wb.wait(500)
        local tips = wb.journal("tip")
        assert(#tips == 1 and tips[1].text == eye:tip("y"))
    )");
}

TEST_F(ControlMethodsTest, UnknownFieldOrKeyIsNamed) {
    runOnFade(R"(
        local done, reason = pcall(fade.text, fade, "edit2")
        assert(not done and reason:find('the control has no "edit2"', 1, true))
        done, reason = pcall(fade.key, fade, "hyper")
        assert(not done and reason:find('there is no key "hyper"', 1, true))
        done, reason = pcall(fade.drag, fade)
        assert(not done and reason:find("say where to drag the thumb to", 1, true))
    )");
}

TEST_F(ControlMethodsTest, TypingGoesKeyByKeyAndEndsNoEntry) {
    runOnFade(R"(
        fade:put("4")
        fade:type("2")
        assert(fade:text():find("42", 1, true) and wb.var("LAYLOCKFADECTL") == 50)
        fade:key("enter")
        assert(wb.var("LAYLOCKFADECTL") == 42)
        fade:enabled("edit")
        wb.begin("LINE")
        local done, reason = pcall(fade.type, fade, "7")
        assert(not done and reason:find("the field is disabled", 1, true))
        wb.finish()
    )");
}

TEST_F(ControlMethodsTest, MessageIsSentToTheControlItself) {
    runOnFade(R"(
        wb.journal()
        assert(fade:send(1567) == 1)
        local sent = wb.journal("message")[1]
        assert(sent.control == "LayerLockTransparencySliderControl" and sent.number == 1567)
        assert(sent.wparam == 0 and sent.lparam == 0)
    )");
}

TEST_F(ControlMethodsTest, ControlOnAHiddenPanelTakesNoGesture) {
    runOnFade(R"(
        wb.panel("Layers"):menu("Hide")
        assert(not fade:visible())
        assert(not pcall(fade.drag, fade, 10))
        assert(not pcall(fade.click, fade))
    )");
}

}  // namespace

}  // namespace workbench::script
