-- The edit field and the button of the locked-layer fade slider.

wb.env("ENABLEDASHBOARD", "1")
wb.load()
wb.open("examples/house.json")
wb.type("DASHBOARDOLD\n")

local fade = wb.control("LayerLockTransparencySliderControl")

-- A click on the icon switches fading off by the sign; size and sign live in one variable.
fade:click()
assert(wb.var("LAYLOCKFADECTL") == -50)
assert(not fade:enabled())
assert(fade:slider() == 50, "the size stays to be seen")
fade:click()
assert(wb.var("LAYLOCKFADECTL") == 50)
assert(fade:enabled() and fade:enabled("edit"))

-- A click at 0 switches on at 50.
wb.set("LAYLOCKFADECTL", 0)
fade:click()
assert(wb.var("LAYLOCKFADECTL") == 50)

-- Entries.
fade:enter("45%")
assert(wb.var("LAYLOCKFADECTL") == 45)
assert(fade:slider() == 45)
fade:click()
assert(wb.var("LAYLOCKFADECTL") == -45)
fade:click()
assert(wb.var("LAYLOCKFADECTL") == 45)
fade:enter("90")
assert(wb.var("LAYLOCKFADECTL") == 90)
wb.journal("balloon")

-- What can't be taken is refused by a balloon, and the old value comes back.
for _, entry in ipairs { "95", "much" } do
    fade:enter(entry)
    local balloons = wb.journal("balloon")
    assert(#balloons == 1, entry)
    assert(balloons[1].string == 3998)
    assert(balloons[1].text:find("90%", 1, true))
    assert(wb.var("LAYLOCKFADECTL") == 90)
    assert(fade:text() == "      90%")
end

-- Escape takes an entry back before it counts.
fade:put("12")
assert(fade:text() == "12")
fade:key("escape")
assert(fade:text() == "      90%")
assert(wb.var("LAYLOCKFADECTL") == 90)

-- A change by the host stands, whatever is being typed.
fade:put("12")
wb.set("LAYLOCKFADECTL", -70)
assert(wb.var("LAYLOCKFADECTL") == -70)
assert(fade:text() == "      70%" and not fade:enabled())
wb.set("LAYLOCKFADECTL", 90)

-- A press on the slider leaves the field; the drag is written when it rests, as always.
fade:enter("80")
fade:drag(60)
fade:release()
assert(wb.var("LAYLOCKFADECTL") == 80)
wb.wait(300)
assert(wb.var("LAYLOCKFADECTL") == 60)

-- While a command runs the control waits.
wb.begin("SCALE")
assert(not fade:enabled())
wb.finish("cancelled")
assert(fade:enabled())
