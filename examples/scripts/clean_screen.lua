-- A clean screen takes the dashboard off, and so does the close of the last document. Both bring it
-- back, unless it wasn't there before.

wb.env("ENABLEDASHBOARD", "1")
wb.load()
wb.open("examples/house.json")
wb.type("DASHBOARDOLD\n")

local layers = wb.panel("Layers")
assert(layers:visible())

wb.type("CLEANSCREENON\n")
assert(wb.var("CleanScreenState") == 1)
assert(not layers:visible())
wb.type("CLEANSCREENOFF\n")
assert(wb.var("CleanScreenState") == 0)
assert(layers:visible())

wb.close("house.json")
assert(not layers:visible())
wb.new("Next")
assert(layers:visible())

-- The second of two documents leaves it alone.
wb.new("Another")
wb.close("Next")
assert(layers:visible())
