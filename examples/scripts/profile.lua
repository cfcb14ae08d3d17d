-- The panels of a user come back with the profile; it is written only when the host saves it.

wb.env("ENABLEDASHBOARD", "1")
wb.load()
wb.open("examples/house.json")
wb.type("DASHBOARDOLD\n")

wb.panel("Light"):menu("Tool Palette Group/Furniture")
wb.panel("Sun"):menu("Hide")
assert(not wb.panel("Sun"):visible())

-- Names and visibility enter the tree only now.
wb.journal()
wb.save_profile()
local saved = {}
for _, record in ipairs(wb.journal("call")) do
    if record.name == "VxUt::SetAttributeValue" and record.args[2] == "ID" then
        saved[#saved + 1] = record.args[3]
    end
end
assert(#saved == 11, "each panel has a node, hidden ones too")

-- What was hidden stays hidden in a module that starts afresh.
wb.unload()
wb.load()
wb.type("DASHBOARDOLD\n")
assert(wb.panel("Light"):visible())
assert(wb.panel("Sun") == nil)
local _, _, checks = wb.panel("Light"):menu()
assert(checks["Tool Palette Group/Furniture"])
assert(not checks["Panels/Sun and sky"])

-- A profile without a saved dashboard shows the workspace's panels and all others.
wb.profile("Fresh")
assert(wb.var("CPROFILE") == "Fresh")
wb.notify(1)
wb.notify(2)
assert(wb.panel("Sun"):visible())
