-- First process: builds a graph with members, tagged and disabled nodes and edges, and saves it.

editor.create_graph("/Game/Graphs/Handoff")
local graph = mrq_open_graph("Graphs/Handoff")
graph:add_variable("Look", "Grading")
graph:add_input("Plates")
graph:add_output("Beauty")
editor.add_typed_variable("/Game/Graphs/Handoff", "Takes", "Int32", "Array")

local output_settings = graph:add_node("MovieGraphGlobalOutputSettingNode", "output")
-- The second node's tag carries the first node's id, so that the loading process can check ids survived.
local overrides = graph:add_node("MovieGraphGlobalGameOverridesNode", output_settings.id)
graph:set_node_disabled(overrides.id, true)
check.eq(graph:connect("input", "Globals", overrides.id, "Globals"), true, "Input into the overrides")
check.eq(graph:connect(overrides.id, "Globals", output_settings.id, "Globals"), true, "overrides into the output settings")
check.eq(graph:connect(output_settings.id, "Globals", "output", "Globals"), true, "output settings into the Output node")

check.eq(graph:save(), true, "saved for the next process")
check.summary()
