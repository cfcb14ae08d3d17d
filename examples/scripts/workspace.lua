-- A workspace switch: the host raises its refresh flag and hands the workspace's panels over.

wb.env("ENABLEDASHBOARD", "1")
wb.load()
wb.open("examples/house.json")
wb.type("DASHBOARDOLD\n")

local function shown()
    local _, panels = wb.export("VxDaGetVisiblePanels")
    local ids = {}
    for _, panel in ipairs(panels) do
        ids[#ids + 1] = panel[1]
    end
    return table.concat(ids, " ")
end

local drafting = {
    { "Draw", "ZORQ" }, { "Layers", "ZORQ" }, { "Text", "ZORQ" }, { "HouseTools", "HOUSETOOLS" },
}

-- With the flag the panels follow the workspace, in its order.
wb.workspace("Drafting")
assert(wb.export("VxDaSetVisiblePanels", drafting) == 1)
assert(shown() == "Draw Layers Text HouseTools")
assert(wb.panel("HouseTools"):visible())
assert(not wb.panel("Light"):visible())

-- The dashboard has taken the flag down. Without it the call can only hide.
assert(wb.export("VxDaSetVisiblePanels", { { "Light", "ZORQ" } }) == 1)
assert(shown() == "")

-- With all panels gone the link to the help takes their place.
assert(wb.tree():find('"Learn about the dashboard"[^\n]*%)\n'))

wb.workspace("3D Modeling")
wb.export("VxDaSetVisiblePanels", { { "Light", "ZORQ" }, { "Layers", "ZORQ" } })
assert(shown() == "Light Layers")

assert(not pcall(wb.workspace, "Nowhere"))
