-- Eye and target of the camera, a coordinate at a time.

wb.env("ENABLEDASHBOARD", "1")
wb.load()
wb.open("examples/house.json")
wb.type("DASHBOARDOLD\n")

local eye = wb.control("3DNavPointTriplet1")
local target = wb.control("3DNavPointTriplet2")
local function at(point, axis) return wb.db("viewports.current." .. point .. "." .. axis) end

assert(math.abs(tonumber(eye:text("x")) - at("eye", "x")) < 1e-4)

-- Tab commits one field and goes to the next.
local y = eye:text("y")
eye:put("12.5", "x")
eye:key("tab")
assert(at("eye", "x") == 12.5)
eye:key("escape")
assert(eye:text("y") == y)
eye:blur()

-- The picture keeps its angle: the field grows with the distance.
local width = wb.db("viewports.current.width")
target:enter(tostring(at("target", "z") - 100), "z")
assert(wb.db("viewports.current.width") > width)
target:blur()

-- Words are refused.
wb.journal()
eye:enter("high up", "z")
local balloons = wb.journal("balloon")
assert(#balloons == 1 and balloons[1].string == 1234)
eye:blur()

-- One undo takes one move back.
wb.undo()
assert(wb.db("viewports.current.width") == width)
