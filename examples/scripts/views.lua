-- The list of views: named ones, presets, and the way back.

wb.env("ENABLEDASHBOARD", "1")
wb.load()
wb.open("examples/house.json")
wb.type("DASHBOARDOLD\n")

local views = wb.control("3DNavViewComboCtrl")
local function shown() return views:items()[(views:selected() or -1) + 1] end

assert(shown() == "Garden", "the view that the viewport shows")
assert(views:items()[1] == "Front", "named views in the user's order")

-- While an interactive tool runs the list asks the tool in place of the command line.
wb.type("3DORBIT\n")
wb.sent()
views:pick("Top")
assert(#wb.sent() == 0)
assert(math.abs(wb.db("viewports.current.eye.x") - wb.db("viewports.current.target.x")) < 1e-9)
wb.type("\27")

-- Without the tools' module a choice has no effect there, and stays.
wb.type("3DORBIT\n")
wb.hide("VxVmTools.qlx")
local x = wb.db("viewports.current.eye.x")
views:pick("Left")
assert(wb.db("viewports.current.eye.x") == x and shown() == "Left")
wb.unhide("VxVmTools.qlx")
wb.type("\27")
wb.sent()
