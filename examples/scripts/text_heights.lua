-- The lists of text heights: what the drawing has used, styles with a height of their own, precision.

wb.env("ENABLEDASHBOARD", "1")
wb.load()
wb.new("A")
wb.type("DASHBOARDOLD\n")

local heights = wb.control("TextHeightComboControl")
local second = wb.control("TextHeightComboControl", 2)
local function shown(list) return list:items()[(list:selected() or -1) + 1] end
local function all(list) return table.concat(list:items(), " ") end

assert(all(heights) == "2.5000" and shown(heights) == "2.5000")

-- A height from the command line joins the list; a choice in one list moves the other too.
wb.type("TEXTSIZE\n5\n")
assert(all(heights) == "2.5000 5.0000" and shown(second) == "5.0000")
heights:pick("2.5000")
assert(wb.var("TEXTSIZE") == 2.5)
assert(shown(second) == "2.5000")

-- A style with a height of its own shows alone, and its list stays shut.
wb.db("textstyles.Titles", {height = 7.0})
wb.set("TEXTSTYLE", "Titles")
assert(all(heights) == "7.0000" and all(second) == "7.0000")
heights:click()
assert(all(heights) == "7.0000" and heights:enabled())
wb.set("TEXTSTYLE", "Standard")
assert(all(heights):find("7.0000", 1, true), "it has joined the list")

-- Fewer decimals make heights look the same; they stay, and the first of them is selected.
wb.set("TEXTSIZE", 5.04)
wb.set("LUPREC", 0)
assert(shown(heights) == shown(second))
wb.set("LUPREC", 4)

-- Each document has its own heights, which die with it.
wb.new("B")
assert(all(heights) == "2.5000")
wb.close("B")
wb.activate("A")
assert(all(heights):find("5.0000", 1, true))
assert(#wb.audit() == 0)
wb.close("A")
assert(#heights:items() == 0 and #second:items() == 0)
assert(heights:selected() == nil)
