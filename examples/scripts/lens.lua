-- The lens of the camera: by the slider, by its fields, and what is refused.

wb.env("ENABLEDASHBOARD", "1")
wb.load()
wb.open("examples/house.json")
wb.type("DASHBOARDOLD\n")

local zoom = wb.control("3DNavZoomSliderControl")
local function lens() return wb.db("viewports.current.lens") end
local function balloon()
    local all = wb.journal("balloon")
    return #all > 0 and all[#all].string or nil
end

-- The end of a command lets it follow the view on idle ticks.
wb.begin("LINE")
wb.finish()
assert(zoom:enabled() and zoom:slider() == 350)

-- A drag changes the view at each step; the fields show the lens and its angle.
zoom:drag(400, 500)
assert(lens() == 50 and tonumber(zoom:text()) == 50)
zoom:release()
wb.undo()
assert(math.abs(lens() - 35) < 1e-9, "a drag is one step of undo")

-- Both fields take an entry.
zoom:enter("28")
assert(lens() == 28 and zoom:slider() == 280)
zoom:enter("90", "edit2")
assert(math.abs(lens() - 18) < 1e-9)
zoom:blur()
wb.journal()

-- What is refused leaves the view and gives the old text back.
local before = zoom:text()
for _, refused in ipairs { { "wide", 1246 }, { "0.5", 1247 }, { "200000", 1247 } } do
    local entry, string = table.unpack(refused)
    zoom:enter(entry)
    assert(balloon() == string, entry)
    assert(zoom:text() == before)
end
zoom:enter("")
assert(balloon() == nil and zoom:text() == before)

-- A locked viewport of a layout refuses entries.
zoom:blur()
wb.set("TILEMODE", 0)
wb.set("CVPORT", 2)
wb.set("PERSPECTIVE", 1)
wb.db("viewports.current.locked", true)
wb.idle()
wb.journal()
zoom:enter("35")
assert(balloon() == 1231)

-- In a parallel view there is nothing to set.
zoom:blur()
wb.set("PERSPECTIVE", 0)
assert(not zoom:enabled() and not zoom:enabled("edit2"))
wb.sent()
