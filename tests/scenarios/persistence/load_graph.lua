-- Second process: opens the graph the first process saved and finds every member, node, tag and edge again.

local graph = mrq_open_graph("Graphs/Handoff")
check.truthy(graph, "opened")
local info = graph:info()
check.eq(info.variables, {
	{ name = "Look", category = "Grading", description = "" },
	{ name = "Takes", category = "", description = "" },
}, "user variables")
check.eq(info.global_variable_count, 4, "the four globals, once each")
check.eq(info.inputs, {
	{ name = "Globals", description = "", is_branch = true },
	{ name = "Plates", description = "", is_branch = true },
}, "inputs")
check.eq(info.outputs, {
	{ name = "Globals", description = "", is_branch = true },
	{ name = "Beauty", description = "", is_branch = true },
}, "outputs")

check.eq(info.node_count, 2, "two nodes")
local output_settings, overrides = info.nodes[1], info.nodes[2]
check.eq(output_settings.class, "MovieGraphGlobalOutputSettingNode", "first node's class")
check.eq(output_settings.script_tags, { "output" }, "first node's tag")
check.eq(overrides.script_tags, { output_settings.id }, "node ids are kept")
check.eq(overrides.disabled, true, "disabled flag kept")
check.eq({ overrides.inputs[1].edge_count, overrides.outputs[1].edge_count, output_settings.outputs[1].edge_count },
	{ 1, 1, 1 }, "edges kept")

-- The loaded edges are real: each comes off once, and no more.
check.eq(graph:disconnect("input", "Globals", overrides.id, ""), true, "Input edge")
check.eq(graph:disconnect(overrides.id, "", output_settings.id, ""), true, "middle edge")
check.eq(graph:disconnect(output_settings.id, "", "output", "Globals"), true, "Output edge")
check.eq(graph:disconnect(output_settings.id, "", "output", "Globals"), false, "already gone")
check.summary()
