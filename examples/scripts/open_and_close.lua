-- The dashboard opens; panels go and come by their menus; other modules take all of it down.

wb.env("ENABLEDASHBOARD", "1")
wb.load()
wb.open("examples/house.json")
assert(wb.panel("Layers") == nil, "nothing is built before the dashboard is asked for")
wb.type("DASHBOARDOLD\n")

local layers, light = wb.panel("Layers"), wb.panel("Light")
assert(layers:visible() and light:visible())

-- The menu of a panel lists all panels; those on show are checked.
local function checked(panel, line)
    local lines, _, checks = panel:menu()
    for _, text in ipairs(lines) do
        if text == line then
            return checks[line] == true
        end
    end
    error("the menu has no line " .. line, 2)
end
assert(checked(layers, "Panels/Light"))

layers:menu("Panels/Light")
assert(not light:visible())
assert(not checked(layers, "Panels/Light"))
layers:menu("Panels/Light")
assert(light:visible())

light:menu("Hide")
assert(not light:visible())
layers:menu("Panels/Light")

-- Other modules are told when the panels go and come.
local heard = {}
local listener = setmetatable({}, {
    __index = function(_, event)
        return function() heard[#heard + 1] = event end
    end,
})
assert(wb.export("VxDaAddOrRemoveReactor", listener, 1) == 1)

local answer, before = wb.export("VxDaGetVisiblePanels")
assert(answer == 1 and before[1][1] == "Layers" and before[1][2] == "ZORQ")

assert(wb.notify(1) == 1)
assert(wb.panel("Layers") == nil)
local isThere, reason = pcall(layers.visible, layers)
assert(not isThere and reason:find('the panel "Layers" is gone', 1, true))

assert(wb.notify(2) == 1)
assert(layers:visible(), "a handle names the panel, so that it outlives a rebuild")
assert(table.concat(heard, " ") ==
    "panelsWillUnload panelsUnloaded panelsWillLoad panelsLoaded visibilityChanged")

-- The module goes, and comes back fresh.
wb.unload()
assert(not pcall(wb.notify, 3))
assert(not wb.tree():find("Dashboard", 1, true))
wb.load()
assert(wb.export("VxDaGetVisiblePanels") == 0)
wb.type("DASHBOARDOLD\n")
assert(wb.panel("Layers"):visible())
