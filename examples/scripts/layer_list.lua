-- The host's own layer list in a panel.

wb.env("ENABLEDASHBOARD", "1")
wb.load()
wb.open("examples/house.json")
wb.type("DASHBOARDOLD\n")

local layers = wb.control("LayerControl")
assert(layers:visible())
assert(layers:items()[2] == "Walls")

layers:pick("Roof")
assert(wb.var("CLAYER") == "Roof")

-- While the list is open the toolkit, which asks at the end of a gesture, leaves the keyboard where
-- it is; once the list has closed it takes it back to the drawing.
local function keyboardIsInDrawing()
    return wb.tree():find("DrawingView %[DrawingView%] %b() focus") ~= nil
end
local fade = wb.control("LayerLockTransparencySliderControl")
local function asked()
    for _, message in ipairs(wb.journal("message")) do
        if message.number == 1566 and message.control == "LayerControl" then return true end
    end
    return false
end
assert(keyboardIsInDrawing())
layers:open()
wb.journal()
fade:drag(30)
fade:release()
assert(asked() and not keyboardIsInDrawing())
layers:close()
assert(asked() and keyboardIsInDrawing())

-- A host that is busy is asked again until it takes the choice.
wb.fail("HandleToolbarComboMessage", 0, 3)
layers:pick("Doors")
assert(wb.var("CLAYER") == "Doors")
