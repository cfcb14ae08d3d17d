-- The road of one gesture: the thumb of the locked-layer fade slider is dragged to 40 and rests.
-- Each step is taken from the journal, in the order in which it happened.

local name = "LayerLockTransparencySliderControl"

wb.env("ENABLEDASHBOARD", "1")
wb.load()
wb.open("examples/house.json")
wb.type("DASHBOARDOLD\n")

local fade = wb.control(name)
assert(wb.var("LAYLOCKFADECTL") == 50)
assert(fade:slider() == 50)

-- The next record that fits; those between are passed over.
local records, at = {}, 0
local function step(kind, fields)
    repeat
        at = at + 1
        local record = records[at]
        assert(record, "the road has no further step of kind " .. kind)
        local fits = record.kind == kind
        for field, value in pairs(fields) do
            fits = fits and record[field] == value
        end
    until fits
    return records[at]
end

-- 1. The user drags. The slider tells its control, which shows the value and starts its timer.
wb.journal()
fade:drag(40)
fade:release()
assert(fade:slider() == 40)
assert(fade:text() == "      40%")
assert(wb.var("LAYLOCKFADECTL") == 50, "nothing is written while the thumb may still move")

records, at = wb.journal(), 0
step("gesture", { text = "drag control " .. name .. " 40" })
step("message", { control = name, number = 1534, wparam = 40 })
step("control", { name = name, field = "edit", old = "      50%", new = "      40%" })
assert(step("call", { name = "CWnd::SetTimer" }).args[3] == 150)

-- 2. The first period only finds that the thumb has moved in it.
wb.wait(299)
assert(wb.var("LAYLOCKFADECTL") == 50)

-- 3. After the second the variable is written; the host says before and after that it changes.
wb.wait(1)
assert(wb.var("LAYLOCKFADECTL") == 40)

records, at = wb.journal(), 0
assert(step("message", { control = name, number = 275 }).t == 150)
assert(step("message", { control = name, number = 275 }).t == 300)
step("call", { name = "CWnd::KillTimer" })
local write = step("call", { name = "vxedSetVar" })
assert(write.args[1] == "LAYLOCKFADECTL" and write.args[2] == 40)
step("message", { control = name, number = 1728, lparam = "LAYLOCKFADECTL" })
step("var", { name = "LAYLOCKFADECTL", old = 50, new = 40 })

-- 4. The event reaches the control, which reads the variable and finds what it shows already.
step("message", { control = name, number = 1727, wparam = 1, lparam = "LAYLOCKFADECTL" })
step("call", { name = "vxedGetVar" })
for rest = at + 1, #records do
    assert(records[rest].kind ~= "control", "the slider moves once only")
    assert(records[rest].name ~= "vxedSetVar", "the variable is written once only")
end

-- 5. A change at the command line takes the last steps in the same way, and there the thumb moves.
wb.type("LAYLOCKFADECTL\n65\n")
records, at = wb.journal(), 0
step("var", { name = "LAYLOCKFADECTL", old = 40, new = 65 })
step("message", { control = name, number = 1727 })
step("control", { name = name, field = "slider", old = 40, new = 65 })
assert(fade:slider() == 65)
assert(fade:text() == "      65%")
