-- The layer filter combos: their tree, its menu, and what it does to filters and layers.

wb.env("ENABLEDASHBOARD", "1")
wb.load()
wb.open("examples/house.json")
wb.type("DASHBOARDOLD\n")

local filters = wb.control("LayerFilterComboControl")
local second = wb.control("LayerFilterComboControl", 2)

local function isOpen() return (pcall(filters.tree, filters)) end
-- A filter in the tree, which is opened by a click if need be.
local function node(path)
    if not isOpen() then filters:click() end
    return filters:node(path)
end
local function boxText()
    local boxes = wb.journal("box")
    assert(#boxes == 1, "one box")
    return boxes[1].text
end

-- One entry, always selected; both combos show the same.
assert(#filters:items() == 1 and filters:selected() == 0)
assert(filters:items()[1] == "All" and second:items()[1] == "All")

-- A click opens the tree, a second one closes it.
filters:click()
assert(isOpen())
filters:click()
assert(not isOpen())

-- A click on a filter applies it by a command; its end brings it to both combos.
wb.sent()
node("All/Garden"):click()
local sent = wb.sent()
assert(#sent == 1 and sent[1].way == "line")
assert(sent[1].text == "'._-layer _filter _set Garden\n\n")
assert(wb.db("filters.current") == "Garden")
assert(filters:items()[1] == "Garden" and second:items()[1] == "Garden")
assert(not isOpen())

-- A new group stands below its parent, with its label edited.
node("All/Shell"):menu("New Group Filter")
assert(wb.db('filters["Group Filter1"].parent') == "Shell")
local function rename(old, new)
    wb.journal("box")
    node(old):rename(new)
end
rename("All/Shell/Group Filter1", "Upper Floor")
assert(wb.db('filters["Upper Floor"].kind') == "group")

-- What a filter can't be called, each with its reason; the tree keeps the old name.
local upper = "All/Shell/Upper Floor"
rename(upper, "   ")
assert(boxText() == "A layer filter needs a name.")
rename(upper, "garden")
assert(boxText() == "A layer filter of this name exists already.")
rename(upper, " Upper Floor ")
assert(boxText() == "A layer filter of this name exists already.")
rename(upper, "Upper|Floor")
assert(boxText():find("can't contain these characters: < > /", 1, true))
rename(upper, string.rep("x", 256))
assert(boxText():find("longer than 255", 1, true))
wb.set("EXTNAMES", 0)
rename(upper, string.rep("x", 32))
assert(boxText():find("longer than 31", 1, true))
wb.set("EXTNAMES", 1)
rename(upper, "UPPER FLOOR")
assert(#wb.journal("box") == 0)
assert(wb.db('filters["Upper Floor"].name') == "Upper Floor")

-- Layers of picked entities, added and put in the place of the others.
local function firstOn(layer)
    for _, number in ipairs(wb.db("entities")) do
        if wb.db("entities." .. number .. ".layer") == layer then return number end
    end
end
wb.answer("select", {firstOn("Walls"), firstOn("Doors")})
node(upper):menu("Select Layers/Add to Group")
assert(table.concat(wb.db('filters["Upper Floor"].layers'), ",") == "Walls,Doors")
wb.answer("select", {firstOn("Windows")})
node(upper):menu("Select Layers/Replace Group")
assert(table.concat(wb.db('filters["Upper Floor"].layers'), ",") == "Windows")

-- Off and on again; one undo takes one command back.
node(upper):menu("Visibility/Off")
assert(not wb.db("layers.Windows.on"))
wb.undo()
assert(wb.db("layers.Windows.on"))

-- Isolating freezes all others but the current layer.
node(upper):menu("Isolate Layers/All Viewports")
assert(wb.db("layers.Roof.frozen") and not wb.db("layers.Windows.frozen"))
assert(not wb.db("layers." .. wb.var("CLAYER") .. ".frozen"))
wb.undo()
assert(not wb.db("layers.Roof.frozen"))

-- The current layer isn't turned off without asking, and never frozen.
wb.set("CLAYER", "Walls")
wb.answer("box", "yes")
node("All/Shell"):menu("Visibility/Off")
assert(wb.db("layers.Walls.on") and not wb.db("layers.Roof.on"))
assert(boxText():find("keep it on", 1, true))
node("All/Shell"):menu("Visibility/On")
node("All/Shell"):menu("Visibility/Freeze")
assert(boxText() == "The current layer cannot be frozen.")
assert(wb.db("layers.Roof.frozen") and not wb.db("layers.Walls.frozen"))
node("All/Shell"):menu("Visibility/Thaw")

-- A property filter becomes a group of the layers that it shows.
node("All/Site"):menu("Convert to Group Filter")
assert(wb.db("filters.Site.kind") == "group")
assert(table.concat(wb.db("filters.Site.layers"), ",") == "Ground,Terrace,Trees,Survey")

-- The check below the tree turns the filter round; no selection is added then.
node("All/Site")
assert(filters:invert() == false)
filters:invert(true)
assert(isOpen(), "the keyboard stayed in the dropdown")
local lines, disabled = node("All/Site"):menu()
for i, line in ipairs(lines) do
    if line == "Select Layers" then assert(disabled[i]) end
end
filters:invert(false)

-- Deleting the filter in force makes the root the one in force.
node("All/Site"):click()
assert(filters:items()[1] == "Site")
node("All/Site"):menu("Delete")
assert(wb.db("filters.Site") == nil)
assert(filters:items()[1] == "All" and second:items()[1] == "All")
filters:blur()
assert(not isOpen())
assert(#wb.audit() == 0)
