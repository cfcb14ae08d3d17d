-- A module of another maker serves a button and a control on a panel of the dashboard.

wb.env("ENABLEDASHBOARD", "1")
wb.load()
wb.open("examples/house.json")
wb.type("DASHBOARDOLD\n")

-- Its button: the click goes to the module, which counts.
local count = wb.item("ID_ExampleCount")
count:click()
assert(count:state().name == "1 click")
count:click()
assert(count:state().name == "2 clicks")
assert(#wb.sent() == 0, "such a click sends no command")

-- Its control: a scale in tenths, bound to a variable.
local scale = wb.control("ExampleScaleControl")
local lowest, highest = scale:range()
assert(lowest == 1 and highest == 100)
scale:drag(25)
scale:release()
wb.wait(500)
assert(wb.var("LTSCALE") == 2.5)
wb.type("LTSCALE\n4\n")
assert(scale:slider() == 40)

-- It listens to the dashboard: panels that are built anew have it count anew.
wb.notify(1)
wb.notify(2)
count:click()
assert(count:state().name == "1 click")

-- Without the module its control is left out, its button is there but dead, and the rest stands.
wb.notify(1)
wb.hide("VxExampleTools.qlx")
wb.notify(2)
assert(wb.control("ExampleScaleControl") == nil)
count:click()
assert(wb.control("LayerLockTransparencySliderControl"):visible())
assert(#wb.journal("box") == 0)
