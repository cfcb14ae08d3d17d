-- A flyout follows its variable, and a tool from its list becomes the current one by the same road.

wb.env("ENABLEDASHBOARD", "1")
wb.load()
wb.open("examples/house.json")
wb.type("DASHBOARDOLD\n")

local flyout = wb.item("TPL_0023")
assert(wb.var("VSMATERIALMODE") == 2)
assert(flyout:state().tool == "ID_VSMM2")

wb.journal()
wb.type("VSMATERIALMODE\n0\n")
assert(flyout:state().tool == "ID_VSMM0")
local changes = wb.journal("item")
assert(changes[1].id == "TPL_0023" and changes[1].field == "tool")
assert(changes[1].old == "ID_VSMM2" and changes[1].new == "ID_VSMM0")

-- A tool chosen from the flyout's list sends its macro.
wb.sent()
wb.item("ID_VSMM1"):click()
local sent = wb.sent()
assert(#sent == 1)
assert(sent[1].way == "menu" and sent[1].text == "_vsmaterialmode\n1\n")
assert(wb.var("VSMATERIALMODE") == 1)
assert(flyout:state().tool == "ID_VSMM1")

-- The same value again changes nothing.
wb.journal()
wb.set("VSMATERIALMODE", 1)
assert(#wb.journal("item") == 0)
