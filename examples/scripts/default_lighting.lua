-- A tool of the dashboard sends a command: at once if the host is at rest, and otherwise as soon as
-- the running command, which it stops, is gone.

wb.env("ENABLEDASHBOARD", "1")
wb.load()
wb.open("examples/house.json")
wb.type("DASHBOARDOLD\n")
assert(wb.var("DEFAULTLIGHTING") == 0)
wb.sent()

-- At rest.
local tool = wb.item("ID_DefaultLighting")
tool:click()
assert(wb.var("DEFAULTLIGHTING") == 1)
local sent = wb.sent()
assert(#sent == 1)
assert(sent[1].way == "do_cmd")
assert(sent[1].text == "_defaultlighting\n1\n")
assert(sent[1].document == "house.json")

-- In a running command: it is told to stop, but has not stopped yet.
wb.type("LINE\n0,0\n")
tool:click()
sent = wb.sent()
assert(#sent == 1)
assert(sent[1].way == "cancel" and sent[1].text == "\3\3")
assert(wb.var("CMDNAMES") == "LINE")
assert(wb.var("DEFAULTLIGHTING") == 1)

-- The host comes round to its command line: the line is given up, then the tool has its turn.
wb.journal("command")
wb.idle()
assert(wb.var("CMDNAMES") == "")
assert(wb.var("DEFAULTLIGHTING") == 0)
local events = {}
for _, record in ipairs(wb.journal("command")) do
    if record.event then
        events[#events + 1] = record.text .. " " .. record.event
    end
end
assert(table.concat(events, ", ") ==
    "LINE cancelled, DEFAULTLIGHTING started, DEFAULTLIGHTING ended")

-- In paper space only the command word goes out, so that the host asks.
wb.set("TILEMODE", 0)
wb.sent()
tool:click()
sent = wb.sent()
assert(#sent == 1 and sent[1].text == "_defaultlighting")
