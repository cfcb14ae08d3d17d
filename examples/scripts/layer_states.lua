-- The layer state list: restoring, saving, and states that are gone.

wb.env("ENABLEDASHBOARD", "1")
wb.load()
local house = wb.open("examples/house.json")
wb.type("DASHBOARDOLD\n")

local states = wb.control("LayerStateComboControl")
local names = wb.db("states")
assert(#names > 1)

-- No state, a line, the saved states, a line, and the two dialogs.
local rows = states:items()
assert(rows[1] == "Unsaved Layer State" and rows[2] == "-")
for i, name in ipairs(names) do assert(rows[i + 2] == name) end
assert(rows[#rows - 2] == "-")
assert(rows[#rows - 1] == "Save Layer State..." and rows[#rows] == "Manage Layer States...")

-- A choice restores the state and sends the command that draws anew.
wb.sent()
states:pick(names[1])
local sent = wb.sent()
assert(#sent == 1 and sent[1].way == "do_cmd" and sent[1].flag == 1)
assert(sent[1].text == "_-layer\nstate\nrestore\n" .. names[1] .. "\n\n\n")
assert(states:selected() == 2)

-- A layer that was changed by hand is in no state; the end of a layer command shows it.
wb.type("-LAYER\nOFF\nTrees\n\n")
assert(states:selected() == 0)
wb.type("U\n")
assert(states:selected() == 2)

-- The options of the dialog are read from the profile.
local key = "Dialogs/VxLayerApps:LayerStatesManager/"
wb.registry(key .. "LayerNotFound", 0)
wb.registry(key .. "RestoreAsOverrides", 0)
wb.journal()
states:pick(names[2])
local flags
for _, call in ipairs(wb.journal("call")) do
    if call.name == "VxDbLayerStateManager::restoreLayerState" then flags = call.args[3] end
end
assert(flags == 0)
wb.sent()

-- The layers are saved as a new state; without an answer the dialog is cancelled.
wb.answer("dialog", {name = "As it stands"})
states:pick("Save Layer State...")
assert(wb.db('states["As it stands"].name') == "As it stands")
states:pick("Manage Layer States...")
assert(#states:items() == #names + 6)

-- A state that was deleted behind the list's back goes with its row, and nothing is selected.
wb.db('states["As it stands"]', nil)
states:pick("As it stands")
assert(#wb.sent() == 0)
assert(#states:items() == #names + 5)
assert(states:selected() == nil)
wb.type("-LAYER\n\n")
assert(states:selected() ~= nil)

-- Without a document the list is disabled; the next one brings it back.
wb.close(house)
assert(not states:enabled())
wb.new("B")
assert(states:enabled())
assert(#states:items() == 4)
wb.idle()
assert(#wb.audit() == 0)
