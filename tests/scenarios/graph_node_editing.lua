-- Node properties and variable values under undo, node removal and insertion: each real change is one undo step,
-- an unchanged or refused write leaves the history alone.

local features = mrg_support().features
editor.create_graph("/Game/Graphs/Props")
local graph = mrq_open_graph("Graphs/Props")
local settings = graph:add_node("GlobalOutputSetting")
local function read(name)
	return graph:get_node_property(settings.id, name)
end

-- Reads are the full export text, defaults included.
editor.clear_log()
check.eq({ read("OutputDirectory"), read("bOverwriteExistingOutput"), read("FrameNumberOffset"), read("bOverride_ZeroPadFrameNumbers") },
	{ "(Path=\"{project_dir}/Saved/MovieRenders/\")", "True", "0", "False" }, "export text")
check.eq(graph:get_node_property("nope", "ZeroPadFrameNumbers"), nil, "unknown node")
check.eq(graph:get_node_property(settings.id, "Nope"), nil, "unknown property")
check.lines({
	"[FAIL] graph:get_node_property -> node not found",
	"[FAIL] graph:get_node_property -> property not found: Nope",
}, "read failures")

-- A value equal to the default is still a change while its override flag is off; then it is unchanged.
editor.clear_log()
check.eq(graph:set_node_property(settings.id, "ZeroPadFrameNumbers", 4), true, "switches the flag on")
check.eq(graph:set_node_property(settings.id, "ZeroPadFrameNumbers", 4), true, "unchanged")
check.eq(graph:set_node_property(settings.id, "zeropadframenumbers", "6"), true, "export text, any case")
check.lines({
	"[OK] graph:set_node_property -> ZeroPadFrameNumbers = 4 (override on)",
	"[OK] graph:set_node_property -> ZeroPadFrameNumbers unchanged",
	"[OK] graph:set_node_property -> ZeroPadFrameNumbers = 6",
}, "write lines")

-- Undo takes each write back whole, value and flag together; the unchanged write left no step.
editor.undo()
check.eq({ read("ZeroPadFrameNumbers"), read("bOverride_ZeroPadFrameNumbers") }, { "4", "True" }, "undo the second write")
editor.undo()
check.eq({ read("ZeroPadFrameNumbers"), read("bOverride_ZeroPadFrameNumbers") }, { "4", "False" }, "undo the first write, flag included")
editor.redo()
check.eq({ read("ZeroPadFrameNumbers"), read("bOverride_ZeroPadFrameNumbers") }, { "4", "True" }, "redo")

-- Refusals change nothing and leave no undo step.
editor.clear_log()
check.eq(graph:set_node_property(settings.id, "ZeroPadFrameNumbers", nil).error, "cannot set ZeroPadFrameNumbers: value is nil", "nil value")
check.eq(graph:set_node_property(settings.id, "Nope", 1).error, "property not found on MovieGraphGlobalOutputSettingNode: Nope", "unknown property")
check.eq(graph:set_node_property("nope", "ZeroPadFrameNumbers", 1).error, "node not found: nope", "unknown node")
check.matches(graph:set_node_property(settings.id, "ZeroPadFrameNumbers", "many").error, "^cannot set ZeroPadFrameNumbers: ", "unparsable text")
check.eq(#editor.log(), 4, "one line per refusal")
editor.undo()
check.eq(read("bOverride_ZeroPadFrameNumbers"), "False", "undo still reaches the first write")
editor.redo()

-- Refused and unchanged writes leave a saved graph clean; a real change dirties it.
check.eq(graph:save(), true, "saved")
graph:set_node_property(settings.id, "ZeroPadFrameNumbers", nil)
graph:set_node_property(settings.id, "ZeroPadFrameNumbers", 4)
graph:set_variable("Nope", 1)
check.eq(editor.is_package_dirty("/Game/Graphs/Props"), false, "still clean")
graph:set_node_property(settings.id, "FrameNumberOffset", 10)
check.eq(editor.is_package_dirty("/Game/Graphs/Props"), true, "dirty after a change")

-- Variables: the coercion rules per value type.
editor.add_typed_variable("/Game/Graphs/Props", "Count", "Int32")
editor.add_typed_variable("/Game/Graphs/Props", "Scale", "Float")
editor.add_typed_variable("/Game/Graphs/Props", "Flag", "Bool")
editor.add_typed_variable("/Game/Graphs/Props", "Label", "String")
editor.add_typed_variable("/Game/Graphs/Props", "List", "Int32", "Array")
local function set(name, value)
	local result = graph:set_variable(name, value)
	return result == true and graph:get_variable(name).value or result.error
end
check.eq({ set("Count", 3), set("Count", 3.0), set("Count", 3 - 5e-9), set("Count", "-7") }, { "3", "3", "2", "-7" }, "integral numbers")
check.eq({ set("Count", 3.5), set("Count", 3.0001), set("Count", "x1") }, {
	"cannot set 'Count': variable type is Int32, got a non-integer number",
	"cannot set 'Count': variable type is Int32, got a non-integer number",
	"cannot set 'Count': variable type is Int32, string 'x1' is not numeric",
}, "integral refusals")
check.eq({ set("Scale", 2), set("Scale", 0.25), set("Scale", "1.5") }, { "2.000000", "0.250000", "1.500000" }, "floating numbers")
check.eq({ set("Flag", true), set("Flag", "FALSE"), set("Flag", "yes"), set("Flag", 1) }, {
	"True", "False", "cannot set 'Flag': variable type is Bool, string must be \"true\" or \"false\"",
	"cannot set 'Flag': variable type is Bool, got a number",
}, "booleans")
check.eq({ set("Label", "take 3"), set("Label", true), set("Label", {}) }, {
	"take 3", "cannot set 'Label': variable type is String, got a boolean",
	"cannot set 'Label': unsupported Lua value type for a String variable (use string, number or boolean)",
}, "strings")
check.eq(set("List", 1), "'List' is a container variable (Array); only scalar values are supported", "containers")
check.eq(set("shot_name", "x"), "'shot_name' is a global variable; its value is provided by the graph at render time", "globals")
check.eq(set("Nope", 1), "variable not found: Nope", "unknown variable")
local info = graph:get_variable("Count")
check.eq({ info.name, info.type, info.container_type, info.is_global, info.is_editable, info.type_object },
	{ "Count", "Int32", "None", false, true, nil }, "variable info")
check.eq(graph:get_variable("camera_name").is_global, true, "globals are readable")

-- The engine's rejection: the old value stays, and no undo step is left.
editor.clear_log()
check.eq(set("Count", "-4.5"), "engine rejected value '-4.5' for Int32 variable 'Count'", "rejected by the engine")
check.eq(graph:get_variable("Count").value, "-7", "old value kept")
editor.undo()
check.eq(graph:get_variable("Label").value, "", "undo reaches the previous real change")
editor.redo()
check.eq(set("Count", -7), "-7", "unchanged")
check.eq(editor.log()[#editor.log() - 0], "[OK] graph:set_variable -> Count unchanged", "unchanged line")

-- Removal: the Input and Output nodes are refused; undo brings a removed node back with its edges.
editor.clear_log()
check.eq(graph:remove_node("Output").error, "the Input and Output nodes cannot be removed", "Output")
check.eq(graph:remove_node("INPUT").error, "the Input and Output nodes cannot be removed", "Input")
check.eq(graph:connect(settings.id, "", "output", "Globals"), true, "wired")
check.eq(graph:remove_node(settings.id), true, "removed")
check.eq({ graph:info().node_count, graph:info().outputs[1].name }, { 0, "Globals" }, "gone")
editor.undo()
local restored = graph:info()
check.eq({ restored.node_count, restored.nodes[1].outputs[1].edge_count }, { 1, 1 }, "back with its edge")
check.eq(editor.log()[3], "[OK] graph:remove_node -> " .. settings.id, "removal line")

-- Insertion needs 5.8; before it, both methods refuse before looking at their arguments.
if features.insert_nodes then
	local before = graph:insert_before(settings.id, "GlobalGameOverrides", "Globals")
	check.eq(before.class, "MovieGraphGlobalGameOverridesNode", "inserted before")
	local after = graph:insert_after(settings.id, "GlobalGameOverrides")
	check.eq({ after.inputs[1].edge_count, after.outputs[1].edge_count }, { 1, 1 }, "inserted after keeps the branch wired")
	check.eq(graph:evaluate().branches, { "Globals" }, "the graph still evaluates")
else
	local refusal = graph:insert_after(42, {}, false)
	check.eq({ refusal.ok, refusal.supported, refusal.min_version }, { false, false, "5.8" }, "insert_after refused")
	check.eq(graph:insert_before().error, string.format("unsupported: UMovieGraphConfig::InsertBefore needs UE 5.8+ (this editor is %s)",
		editor.engine_version():match("^%d+%.%d+")), "insert_before refused")
end

-- Soft paths: a short package name never reaches the engine, which would ensure and store None instead.
editor.create_graph("/Game/Graphs/Paths")
local paths = mrq_open_graph("Graphs/Paths")
editor.add_typed_variable("/Game/Graphs/Paths", "Asset", "SoftObject")
editor.add_typed_variable("/Game/Graphs/Paths", "Kind", "SoftClass")
local function set_path(name, value)
	local result = paths:set_variable(name, value)
	return result == true and paths:get_variable(name).value or result.error
end
check.eq({ set_path("Asset", "/Game/Shots/Hero.Hero"), set_path("Asset", "Hero"), set_path("Kind", "Game.Hero"), set_path("Kind", "None") }, {
	"/Game/Shots/Hero.Hero",
	"cannot set 'Asset': 'Hero' is not a path the engine can store; a path starts at a mount point such as /Game/",
	"cannot set 'Kind': 'Game.Hero' is not a path the engine can store; a path starts at a mount point such as /Game/",
	"None",
}, "soft path variables")
check.eq(paths:get_variable("Asset").value, "/Game/Shots/Hero.Hero", "a refused path keeps the old one")
local overrides = paths:add_node("GlobalGameOverrides")
check.eq(paths:set_node_property(overrides.id, "SoftGameModeOverride", "HeroMode").error,
	"cannot set SoftGameModeOverride: 'HeroMode' is not a path the engine can store; a path starts at a mount point such as /Game/", "soft path property")
check.eq(paths:get_node_property(overrides.id, "bOverride_SoftGameModeOverride"), "False", "a refused soft path switches no flag")
check.eq(paths:set_node_property(overrides.id, "SoftGameModeOverride", "/Game/Modes/Hero.Hero_C"), true, "a full path is stored")

check.summary()
