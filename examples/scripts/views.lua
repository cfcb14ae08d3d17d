-- The list of views: named ones, presets, and the way back.

wb.env("ENABLEDASHBOARD", "1")
wb.load()
wb.open("examples/house.json")
wb.type("DASHBOARDOLD\n")

local views = wb.control("3DNavViewComboCtrl")
local function shown() return views:items()[(views:selected() or -1) + 1] end

assert(shown() == "Garden", "the view that the viewport shows")
assert(views:items()[1] == "Front", "named views in the user's order")

-- A named view is restored by a command; the list keeps what was chosen.
wb.sent()
views:pick("Front")
local sent = wb.sent()
assert(#sent == 1 and sent[1].text == "'_-view _restore Front\n" and sent[1].way == "line")
assert(wb.db("viewports.current.appliedView") == "Front" and shown() == "Front")

-- A preset is none of the drawing's views, so that the list follows only with the next change.
views:pick("SE Isometric")
assert(wb.sent()[1].text == "'_-view _seiso ")
assert(wb.db("viewports.current.appliedView") == nil)
assert(shown() == "SE Isometric")

-- Once the view moves away, by whatever means, the list shows that it is none of its entries.
wb.db("viewports.current.eye.x", wb.db("viewports.current.eye.x") + 1)
assert(shown() == "Current View", shown())
views:pick("Current View")
assert(#wb.sent() == 0, "it is only shown")

-- The button steps back through what the viewport has shown; with shift by one zoom.
local width = wb.db("viewports.current.width")
wb.db("viewports.current.width", width / 2)
views:open()
views:close()
assert(not wb.item("TPB_3DNAV_COMBO"):state().disabled)
wb.hold("shift", true)
views:click()
wb.hold("shift", false)
assert(wb.db("viewports.current.width") == width)

-- New views and the list of views are the host's own commands.
wb.sent()
views:pick("New View...")
assert(wb.sent()[1].text == "'_newview ")
wb.type("\27")
wb.sent()

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
