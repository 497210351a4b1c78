-- Graph assets: opening, members, nodes, node classes, connections through the pin-label alias rule, dead handles.

editor.create_graph("/Game/Graphs/Edit")

editor.clear_log()
check.eq(mrq_open_graph("Graphs/Nope"), nil, "missing graph")
local graph = mrq_open_graph("Graphs/Edit")
check.eq(graph.path, "/Game/Graphs/Edit.Edit", "handle path")
check.lines({
	"[FAIL] mrq_open_graph -> graph asset not found: /Game/Graphs/Nope",
	"[OK] mrq_open_graph -> /Game/Graphs/Edit",
}, "open lines")

-- A bare graph: the Globals input and output and the four global variables, nothing else.
editor.clear_log()
local bare = graph:info()
check.eq({ bare.node_count, bare.variable_count, bare.global_variable_count, bare.input_count, bare.output_count },
	{ 0, 0, 4, 1, 1 }, "bare graph counts")
check.eq(bare.variables, {}, "no user variable")
check.eq(bare.inputs, { { name = "Globals", description = "", is_branch = true } }, "Globals input")
check.eq(bare.outputs, { { name = "Globals", description = "", is_branch = true } }, "Globals output")
check.lines({}, "info logs nothing")

-- Member names are made unique within each kind; the category is stored as a display string.
check.eq(graph:add_variable(""), true, "unnamed variable")
check.eq(graph:add_variable("", nil), true, "second unnamed variable")
check.eq(graph:add_variable("Beauty", "Test1"), true, "named variable with a category")
check.eq(graph:add_input("Beauty"), true, "input")
check.eq(graph:add_input("Beauty"), true, "second input of the same name")
check.eq(graph:add_output("Beauty"), true, "output")
local members = graph:info()
check.eq(members.variables, {
	{ name = "Variable", category = "", description = "" },
	{ name = "Variable 1", category = "", description = "" },
	{ name = "Beauty", category = "Test 1", description = "" },
}, "variables")
check.eq(members.inputs[3].name, "Beauty 1", "inputs are unique among inputs only")
check.eq(members.outputs[2], { name = "Beauty", description = "", is_branch = true }, "outputs are branches")
check.eq({ members.variable_count, members.global_variable_count }, { 3, 4 }, "globals stay apart")

-- Deletion picks a variable before an input before an output, by name in any case; globals are never found.
editor.clear_log()
check.eq(graph:delete_member("BEAUTY"), true, "the variable goes first")
check.eq(graph:info().variable_count, 2, "variable deleted")
check.eq(graph:delete_member("beauty"), true, "then the input")
check.eq(#graph:info().inputs, 2, "input deleted")
check.eq(graph:delete_member("Beauty"), true, "then the output")
check.eq(graph:delete_member("Beauty"), nil, "then nothing")
check.eq(graph:delete_member("shot_name"), nil, "global variables are not members a script can delete")
check.eq(graph:delete_member("globals"), false, "the engine refuses the Globals input")
check.eq(graph:info().input_count, 2, "Globals input kept")
check.lines({
	"[FAIL] graph:delete_member -> member not found: Beauty",
	"[FAIL] graph:delete_member -> member not found: shot_name",
}, "deletion lines")

-- Node classes: exact names with or without the prefix, then a substring; abstract and deprecated classes never.
editor.clear_log()
local output_settings = graph:add_node("MovieGraphGlobalOutputSettingNode")
check.eq(output_settings.class, "MovieGraphGlobalOutputSettingNode", "exact pass")
check.matches(output_settings.id, "^%x%x%x%x%x%x%x%x%-%x%x%x%x%-%x%x%x%x%-%x%x%x%x%-%x%x%x%x%x%x%x%x%x%x%x%x$", "GUID id")
check.eq(output_settings.id, output_settings.id:upper(), "upper-case id")
check.eq({ output_settings.inputs, output_settings.outputs }, {
	{ { label = "None", edge_count = 0, is_branch = true } },
	{ { label = "None", edge_count = 0, is_branch = true } },
}, "one unlabelled branch pin per side")
check.eq({ output_settings.input_pin_count, output_settings.output_pin_count, output_settings.script_tags, output_settings.script_tag_count, output_settings.disabled },
	{ 1, 1, {}, 0, false }, "no tag, enabled")
local overrides = graph:add_node("GlobalGameOverrides", "hero")
check.eq(overrides.class, "MovieGraphGlobalGameOverridesNode", "substring pass")
check.eq({ overrides.script_tags, overrides.script_tag_count }, { { "hero" }, 1 }, "tagged node")
check.eq(graph:add_node("uMovieGraphGlobalOutputSettingNode", "").script_tags, { "" }, "prefixed name; an empty tag is a tag")
check.eq(graph:add_node("MovieGraphSettingNode"), nil, "abstract class")
check.eq(graph:add_node("MovieGraphNode"), nil, "abstract base")
check.eq(graph:add_node("NoSuchNode"), nil, "unknown class")
check.lines({
	"[FAIL] graph:add_node -> class not found: MovieGraphSettingNode",
	"[FAIL] graph:add_node -> class not found: MovieGraphNode",
	"[FAIL] graph:add_node -> class not found: NoSuchNode",
}, "class lines")
check.eq(graph:info().node_count, 3, "three nodes added")

-- Node ids: the words input and output in any case, and GUIDs in any case.
editor.clear_log()
check.eq(graph:set_node_disabled(output_settings.id:lower(), true), true, "lower-case GUID")
check.eq(graph:info().nodes[1].disabled, true, "disabled")
check.eq(graph:set_node_disabled(output_settings.id, false), true, "re-enabled")
check.eq(graph:set_node_disabled("00000000-0000-0000-0000-000000000000", true), nil, "unknown id")
check.lines({ "[FAIL] graph:set_node_disabled -> node not found" }, "unknown node line")

-- The alias rule: a branch name addresses a setting node's single unlabelled pin, with one line saying so.
editor.clear_log()
check.eq(graph:connect(output_settings.id, "Globals", "Output", "Globals"), true, "aliased connection")
check.lines({
	"[INFO] graph:connect -> 'Globals'/'Globals' mapped onto the node's single unlabelled branch pin (setting nodes have no named pins)",
}, "alias line")
editor.clear_log()
check.eq(graph:disconnect(output_settings.id, "Globals", "OUTPUT", "Globals"), true, "aliased disconnection")
check.eq(graph:connect(output_settings.id, "", "output", "Globals"), true, "the empty label addresses the pin directly")
check.eq(graph:connect(output_settings.id, "Globals", "output", "NoSuchBranch"), false, "unknown Output-node label")
check.eq(graph:connect("INPUT", "Globals", overrides.id, "Globals"), true, "Input node's Globals pin into a setting node")
check.eq(graph:connect("input", "NoSuchBranch", overrides.id, ""), false, "unknown Input-node label")
check.eq(graph:disconnect(output_settings.id, "", "output", "NoSuchBranch"), false, "nothing to disconnect")
check.lines({
	"[INFO] graph:connect -> 'Globals'/'Globals' mapped onto the node's single unlabelled branch pin (setting nodes have no named pins)",
}, "only the aliased connect logs")

-- A node with more than one branch pin on a side is never aliased: its labels are matched as they are.
editor.clear_log()
local branch = graph:add_node("MovieGraphBranchNode")
check.eq({ branch.inputs[1].label, branch.inputs[2].label }, { "True", "False" }, "two labelled branch inputs")
check.eq(graph:connect(output_settings.id, "", branch.id, "Globals"), false, "no alias onto a node with two branch pins")
check.eq(graph:connect(output_settings.id, "", branch.id, "true"), true, "labels match in any case")
check.eq(graph:disconnect(output_settings.id, "", branch.id, "True"), true, "and come off again")
check.lines({}, "neither logs")

-- The Output node's Globals pin takes one edge: a second connection replaces the first.
check.eq(graph:connect(overrides.id, "", "output", "Globals"), true, "replacing connection")
local nodes = graph:info().nodes
check.eq(nodes[1].outputs[1].edge_count, 0, "the replaced edge is gone")
check.eq(nodes[2].outputs[1].edge_count, 1, "the new edge")
check.eq(nodes[2].inputs[1].edge_count, 1, "the Input node still feeds it")
check.eq(#nodes, 4, "the branch node is listed too")
check.eq(graph:connect(overrides.id, "", overrides.id, ""), false, "no connection to itself")
check.eq(graph:connect("nope", "", "output", "Globals"), nil, "unknown upstream node")
check.eq(graph:disconnect("output", "", "nope", ""), nil, "unknown downstream node")

-- Member names and pin labels become engine names: longer ones are refused before the engine sees them.
editor.clear_log()
local long_name = string.rep("a", 1100)
check.eq(graph:add_output(long_name), nil, "long output name")
check.eq(graph:add_input(long_name), nil, "long input name")
check.eq(graph:add_variable(long_name), nil, "long variable name")
check.eq(graph:connect(overrides.id, long_name, "output", "Globals"), nil, "long pin label")
check.lines({
	"[FAIL] graph:add_output -> text too long for an engine name (1100 characters, at most 1023)",
	"[FAIL] graph:add_input -> text too long for an engine name (1100 characters, at most 1023)",
	"[FAIL] graph:add_variable -> text too long for an engine name (1100 characters, at most 1023)",
	"[FAIL] graph:connect -> text too long for an engine name (1100 characters, at most 1023)",
}, "long name lines")
check.eq(graph:info().output_count, 1, "no output was added")

-- Wrong argument types are Lua errors naming the function.
check.raises(function() graph:connect(1, "", "output", "Globals") end, "bad argument", "number as node id")
check.raises(function() graph:set_node_disabled(overrides.id, "yes") end, "bad argument", "text as boolean")
check.raises(function() graph:add_node("MovieGraphGlobalOutputSettingNode", 7) end, "bad argument", "number as tag")
check.raises(function() graph:add_variable({}) end, "bad argument", "table as name")

-- A deleted graph leaves a handle whose methods fail with their own lines.
editor.delete_asset("/Game/Graphs/Edit")
editor.collect_garbage()
editor.clear_log()
check.eq(graph:info(), nil, "info")
check.eq(graph:add_variable("A"), nil, "add_variable")
check.eq(graph:add_input("A"), nil, "add_input")
check.eq(graph:add_output("A"), nil, "add_output")
check.eq(graph:delete_member("A"), nil, "delete_member")
check.eq(graph:add_node("NoSuchNode"), nil, "add_node is judged after the graph")
check.eq(graph:set_node_disabled("input", true), nil, "set_node_disabled")
check.eq(graph:connect("input", "Globals", "output", "Globals"), nil, "connect")
check.eq(graph:disconnect("input", "Globals", "output", "Globals"), nil, "disconnect")
check.eq(graph:save(), false, "save")
check.lines({
	"[FAIL] graph:info -> graph no longer valid",
	"[FAIL] graph:add_variable -> graph no longer valid",
	"[FAIL] graph:add_input -> graph no longer valid",
	"[FAIL] graph:add_output -> graph no longer valid",
	"[FAIL] graph:delete_member -> graph no longer valid",
	"[FAIL] graph:add_node -> graph no longer valid",
	"[FAIL] graph:set_node_disabled -> graph no longer valid",
	"[FAIL] graph:connect -> graph no longer valid",
	"[FAIL] graph:disconnect -> graph no longer valid",
	"[FAIL] graph:save -> asset no longer valid",
}, "dead handle lines")

check.summary()
