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

-- While the list is open the toolkit leaves the keyboard where it is.
layers:open()
wb.journal()
layers:close()
assert(#wb.journal("message") > 0)

-- A host that is busy is asked again until it takes the choice.
wb.fail("HandleToolbarComboMessage", 0, 3)
layers:pick("Doors")
assert(wb.var("CLAYER") == "Doors")
