-- A walk through the drawing: the controls drive the tool that runs, and the recorder's buttons follow.

wb.env("ENABLEDASHBOARD", "1")
wb.load()
wb.open("examples/house.json")
wb.type("DASHBOARDOLD\n")

local zoom = wb.control("3DNavZoomSliderControl")
local eye = wb.control("3DNavPointTriplet1")
local function disabled(name) return wb.item("ID_Animation_" .. name):state().disabled end
local function calls(name)
    local count = 0
    for _, call in ipairs(wb.journal("call")) do
        if call.name == name then count = count + 1 end
    end
    return count
end

wb.idle()
for _, name in ipairs { "Play", "Record", "Pause", "Save" } do
    assert(disabled(name), name .. " needs a tool")
end

-- The tool's module takes lens and point, and the host is told.
wb.type("3DWALK\n")
wb.idle()
assert(not disabled("Record") and disabled("Play"))
wb.journal()
zoom:drag(850)
zoom:release()
assert(wb.db("viewports.current.lens") == 85)
assert(calls("vxedSendViewChanged") == 1)
eye:enter("12", "x")
assert(wb.db("viewports.current.eye.x") == 12)

-- Recording, a pause, and the names that the button takes.
local record = wb.item("ID_Animation_Record"):state().name
wb.item("ID_Animation_Record"):click()
wb.idle()
assert(disabled("Record") and not disabled("Pause") and not disabled("Save"))
wb.item("ID_Animation_Pause"):click()
wb.idle()
assert(not disabled("Record") and disabled("Pause"))
assert(wb.item("ID_Animation_Record"):state().name ~= record)

-- Without the module nothing but the record for undo is made.
wb.hide("VxVmTools.qlx")
wb.idle()
assert(disabled("Play") and disabled("Save") and not disabled("Record"))
eye:blur()
wb.journal()
zoom:drag(500)
zoom:release()
assert(wb.db("viewports.current.lens") == 85)
local undone, told = 0, 0
for _, call in ipairs(wb.journal("call")) do
    if call.name == "vxgsWriteViewToUndoController" then undone = undone + 1 end
    if call.name == "vxedSendViewChanged" then told = told + 1 end
end
assert(undone == 1 and told == 0)
wb.unhide("VxVmTools.qlx")

-- A module that lacks the function leaves the view, yet the host is told.
wb.hide("VxVmTools.qlx", "navUpdateLensLength")
wb.journal()
zoom:drag(240)
zoom:release()
assert(wb.db("viewports.current.lens") == 85)
assert(calls("vxedSendViewChanged") == 1)
wb.unhide("VxVmTools.qlx", "navUpdateLensLength")

wb.type("\27")
wb.idle()
assert(disabled("Record"))
wb.sent()
