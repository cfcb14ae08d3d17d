-- Without its resource library the module says so once, and does nothing more.

wb.env("ENABLEDASHBOARD", "1")
wb.hide("VxDashboardRes.dll")
wb.load()

local boxes = wb.journal("box")
assert(#boxes == 1)
assert(boxes[1].text:find("FATAL ERROR: Unable to load file 'VxDashboardRes.dll'.", 1, true) == 1)
assert(boxes[1].text:find("\nPress OK to abort.", 1, true))

-- Its functions are there and answer as if nothing existed.
assert(wb.notify(0) == 0)
local answer, panels = wb.export("VxDaGetVisiblePanels")
assert(answer == 0 and #panels == 0)
assert(wb.export("VxDaSetVisiblePanels", {}) == 0)
assert(wb.export("VxDaGetToolPanelItems", "ID_3DWalk") == nil)
assert(wb.export("VxDaInvalidateDashboard") == 0)
assert(wb.export("VxDaGetCustomControl", "LayerLockTransparencySliderControl") == nil)

-- There is no command either.
wb.journal("command")
wb.type("DASHBOARDOLD\n")
local commands = wb.journal("command")
assert(commands[#commands].event == "unknown")

-- It unloads without fault, and with the library it is whole again.
wb.unload()
wb.unhide("VxDashboardRes.dll")
wb.load()
wb.type("DASHBOARDOLD\n")
assert(wb.panel("Layers"):visible())
assert(#wb.journal("box") == 0)
