-- What the fuzzer does between binding calls, as an artist's editor would: garbage collection, undo and redo, ticks,
-- renders started and cancelled, saves and loads, assets unloaded or deleted, packages locked, the queue subsystem
-- removed; and the script code that metamethods and finalizers run in the middle of a binding call.
local trace, values = ...

local actions = {}

local PIE_EXECUTOR = "/Script/MovieRenderPipelineEditor.MoviePipelinePIEExecutor"
local QUEUE_ASSETS = { "Fz/Q1", "Fz/Q2", "/Temp/Fz/Q3", "/Game/Locked/Q" }
local CONFIG_ASSETS = { "/Game/Fz/Cfg1", "/Game/Fz/Cfg2", "/Game/Fz/Cfg3" }
local GRAPH_ASSETS = { "/Game/Fz/Graph1", "/Game/Fz/Graph2" }
-- The sample project's sequences are unloaded (they load again) but never deleted, and its map, the editor's world,
-- is left alone: without them a run could not make jobs any more.
local DELETABLE_PACKAGES = { "/Game/Fz/Cfg1", "/Game/Fz/Cfg2", "/Game/Fz/Graph1", "/Game/Fz/Q1", "/Game/Fz/Seq1" }
local UNLOADABLE_PACKAGES = { "/Game/Fz/Cfg1", "/Game/Fz/Cfg2", "/Game/Fz/Graph1", "/Game/Fz/Q1", "/Game/Fz/Seq1",
	"/Game/Cinematics/Intro", "/Game/Seq/Shot010" }
local EDITABLE_PREFIXES = { "/Game/Fz", "/Game/", "/Temp/" }

local pick = values.pick
local arg = values.arg

local function quoted(text)
	return arg(text, trace.quote(text))
end

local function literal(value)
	return arg(value, tostring(value))
end

-- A step is one traced call: `checked` steps call the bindings and are held to their rules; editor steps may raise.
-- `arguments` are { value, text } pairs with their count `n`.
function actions.call_step(target, fn, arguments, checked)
	local list = {}
	for index = 1, arguments.n do
		list[index] = arguments[index].value
	end
	return {
		target = target, checked = checked, arguments = arguments,
		text = target .. "(" .. trace.arguments(arguments) .. ")",
		run = function() return fn(table.unpack(list, 1, arguments.n)) end,
	}
end

local function editor_step(name, ...)
	if not editor[name] then
		return nil
	end
	return actions.call_step("editor." .. name, editor[name], table.pack(...), false)
end

local function binding_step(name, ...)
	local fn = _G[name]
	if not fn then
		return nil
	end
	return actions.call_step(name, fn, table.pack(...), true)
end

local function plain_step(target, text, run)
	return { target = target, text = text, run = run, checked = false }
end

local function job_handles(fz)
	local jobs = {}
	for _, entry in ipairs(fz.handles) do
		if entry.kind == "job" then
			jobs[#jobs + 1] = entry
		end
	end
	return jobs
end

local function handles_with_method(fz, method)
	local found = {}
	for _, entry in ipairs(fz.handles) do
		if type(rawget(entry.table, method)) == "function" then
			found[#found + 1] = entry
		end
	end
	return found
end

local function render_job_step(fz)
	local jobs = job_handles(fz)
	if #jobs == 0 then
		return binding_step("mrq_render_queue")
	end
	local entry = pick(jobs)
	return binding_step("mrq_render_job", arg(entry.table, entry.name))
end

local function cancel_render_step()
	return binding_step("mrq_cancel_render", literal(math.random(2) == 1))
end

local function save_handle_step(fz)
	local savable = handles_with_method(fz, "save")
	if #savable == 0 then
		return nil
	end
	local entry = pick(savable)
	local save = rawget(entry.table, "save")
	local step = actions.call_step(entry.kind .. ":save", save, table.pack(arg(entry.table, entry.name)), true)
	step.text = entry.name .. ":save()"
	return step
end

-- Graph edits with arguments shaped as an artist's script writes them, so that nodes get made and wired and later calls
-- find them: random arguments rarely name a node class, a node id and a pin at once.
local NODE_CLASSES = { "MovieGraphGlobalOutputSettingNode", "GlobalGameOverrides", "RenderLayer", "SubgraphNode",
	"MovieGraphVariableNode", "MovieGraphInputNode", "Reroute", "MultiLayerEXR", "Deferred", "MovieGraphSettingNode",
	"ImageSequenceOutputNode_PNG", "WarmUpSetting", "SamplingMethod" }
local PIN_LABELS = { "Globals", "", "Beauty", "NoSuchBranch", "None" }
local NODE_PROPERTIES = { "OutputDirectory", "OutputResolution", "ZeroPadFrameNumbers", "bOverride_ZeroPadFrameNumbers",
	"OutputFrameRate", "VersioningSettings", "CustomPlaybackRangeStart", "AdaptResolution", "LayerName", "FileNameFormat",
	"ScriptTags", "NumWarmUpFrames", "bEmulateMotionBlur", "TemporalSampleCount", "Nope" }

local function node_id(fz)
	local ids = {}
	for _, text in ipairs(fz.harvested) do
		if text:match("^%x%x%x%x%x%x%x%x%-") then
			ids[#ids + 1] = text
		end
	end
	if #ids == 0 or math.random(3) == 1 then
		return quoted(pick({ "input", "output", "INPUT" }))
	end
	return quoted(pick(ids))
end

local function graph_method_step(fz, method, ...)
	local graphs = handles_with_method(fz, method)
	if #graphs == 0 then
		return nil
	end
	local entry = pick(graphs)
	local arguments = table.pack(arg(entry.table, entry.name), ...)
	local step = actions.call_step(entry.kind .. ":" .. method, rawget(entry.table, method), arguments, true)
	step.text = entry.name .. ":" .. method .. "(" .. trace.arguments(table.pack(select(2, table.unpack(arguments, 1, arguments.n)))) .. ")"
	return step
end

local function graph_edit_step(fz)
	return values.weighted({
		{ 3, function() return graph_method_step(fz, "add_node", quoted(pick(NODE_CLASSES)), quoted(pick({ "farm", "" }))) end },
		{ 4, function() return graph_method_step(fz, "connect", node_id(fz), quoted(pick(PIN_LABELS)), node_id(fz), quoted(pick(PIN_LABELS))) end },
		{ 2, function() return graph_method_step(fz, "disconnect", node_id(fz), quoted(pick(PIN_LABELS)), node_id(fz), quoted(pick(PIN_LABELS))) end },
		{ 1, function() return graph_method_step(fz, "set_node_disabled", node_id(fz), literal(math.random(2) == 1)) end },
		{ 1, function() return graph_method_step(fz, "add_output", quoted(pick({ "Beauty", "Globals", "" }))) end },
		{ 1, function() return graph_method_step(fz, "delete_member", quoted(pick({ "Beauty", "Globals", "Variable", "Plates" }))) end },
		{ 3, function() return graph_method_step(fz, "set_node_property", node_id(fz), quoted(pick(NODE_PROPERTIES)), values.any(fz)) end },
		{ 1, function() return graph_method_step(fz, "get_node_property", node_id(fz), quoted(pick(NODE_PROPERTIES))) end },
		{ 2, function() return graph_method_step(fz, "set_variable", quoted(pick({ "Var", "Beauty", "Variable", "shot_name" })), values.any(fz)) end },
		{ 1, function() return graph_method_step(fz, "remove_node", node_id(fz)) end },
		{ 1, function() return graph_method_step(fz, pick({ "insert_before", "insert_after" }), node_id(fz), quoted(pick(NODE_CLASSES)), quoted(pick(PIN_LABELS))) end },
	})
end

local function create_graph_step(path)
	if not editor.create_graph then
		return nil
	end
	return editor_step("create_graph", quoted(path))
end

-- Every value type some engine version names, and one none does: the graph's variables reach every kind of value.
local VALUE_TYPES = { "Bool", "Byte", "Int32", "Int64", "Float", "Double", "Name", "String", "Text", "Enum", "Struct",
	"Object", "SoftObject", "Class", "SoftClass", "Int8", "Int16", "UInt16", "UInt32", "UInt64", "Nope" }

local function typed_variable_step()
	local graph, name, value_type = quoted(pick(GRAPH_ASSETS)), quoted(pick({ "Var", "Beauty", "" })), quoted(pick(VALUE_TYPES))
	if math.random(3) == 1 then
		return editor_step("add_typed_variable", graph, name, value_type, quoted(pick({ "Array", "Set", "Map" })))
	end
	return editor_step("add_typed_variable", graph, name, value_type)
end

local function create_sequence_step()
	local last_frame = math.random(1, 6)
	return editor_step("create_level_sequence", quoted("/Game/Fz/Seq1"),
		arg({ start_frame = 0, end_frame = last_frame }, string.format("{ start_frame = 0, end_frame = %d }", last_frame)))
end

local function set_editable_step()
	return editor_step("set_package_editable", quoted(pick(EDITABLE_PREFIXES)), literal(math.random(3) > 1))
end

local function subsystem_step(fz)
	local removes = fz.subsystem_removal_allowed and math.random(4) == 1
	local step = editor_step("set_queue_subsystem_available", literal(not removes))
	step.removes_subsystem = removes
	return step
end

local function executor_step()
	local class_path = values.weighted({ { 8, function() return PIE_EXECUTOR end }, { 1, function() return "" end },
		{ 1, function() return "/Script/NoSuch.Executor" end } })
	return editor_step("set_default_local_executor", quoted(class_path))
end

-- A graph that renders: one render layer whose deferred pass is written as PNG files, warm-up and temporal samples on
-- Globals; and a queue job that renders through it.
local RENDERABLE_GRAPH = [[
local graph = mrq_open_graph("Fz/Graph1")
if graph then
	graph:add_output("Beauty")
	local ids = {}
	for _, class in ipairs({ "GlobalOutputSetting", "WarmUpSetting", "SamplingMethod", "RenderLayer", "DeferredRenderPass", "ImageSequenceOutputNode_PNG" }) do
		ids[#ids + 1] = (graph:add_node(class) or {}).id
	end
	if #ids == 6 then
		graph:connect(ids[1], "", ids[2], "")
		graph:connect(ids[2], "", ids[3], "")
		graph:connect(ids[3], "", "output", "Globals")
		graph:connect(ids[4], "", ids[5], "")
		graph:connect(ids[5], "", ids[6], "")
		graph:connect(ids[6], "", "output", "Beauty")
		graph:set_node_property(ids[2], "NumWarmUpFrames", 1)
		graph:set_node_property(ids[3], "TemporalSampleCount", 2)
		graph:set_node_property(ids[1], "OutputDirectory", '(Path="{project_dir}/Saved/MovieRenders/Fz")')
	end
end
local job = mrq_add_job("Seq/Shot010")
if job then
	job:set_graph("Fz/Graph1")
	-- First in the queue, so that a render of the queue starts with it.
	local queue = mrq_get_queue()
	if queue and queue.count then
		mrq_set_job_index(queue.count, 1)
	end
end
]]

-- Wires the graph and queues its job, and now and then renders the queue it heads at once.
local function renderable_graph_step()
	local code = RENDERABLE_GRAPH .. (math.random(2) == 1 and "mrq_render_queue()\n" or "")
	local chunk = assert(load(code, "=renderable graph"))
	return plain_step("renderable graph", code, chunk)
end

-- Looks at, or asks to stop, the render that runs (graph or legacy), with an option table as scripts write it.
local function pipeline_step(fz)
	if math.random(2) == 1 then
		return binding_step("mrg_pipeline_status")
	end
	return binding_step("mrg_request_shutdown", values.weighted({
		{ 2, function() return arg(nil, "nil") end },
		{ 2, function()
			local flag = math.random(2) == 1
			return arg({ error = flag }, string.format("{ error = %s }", tostring(flag)))
		end },
		{ 1, function() return values.any(fz) end },
	}))
end

local function drop_finalizers_step(fz)
	local behaviours, texts = {}, {}
	for index = 1, math.random(1, 4) do
		behaviours[index] = fz.new_callback_behaviour()
		texts[index] = behaviours[index].text
	end
	return plain_step("finalizers", "drop tables whose __gc runs: " .. table.concat(texts, "; "), function()
		for _, behaviour in ipairs(behaviours) do
			setmetatable({}, { __gc = function() fz.run_callback(behaviour) end })
		end
	end)
end

-- Only full collections: how far a partial step gets depends on allocation sizes that differ between processes.
function actions.collect_lua_garbage_step()
	return plain_step("collectgarbage", "collectgarbage()", function() collectgarbage() end)
end

local ACTIONS = {
	{ 4, function() return actions.collect_lua_garbage_step() end },
	{ 4, function() return editor_step("collect_garbage") end },
	{ 3, function() return editor_step("undo") end },
	{ 2, function() return editor_step("redo") end },
	{ 6, function() return editor_step("tick", literal(math.random(1, 8))) end },
	{ 3, function() return editor_step("run_until_idle", literal(math.random(20, 400))) end },
	{ 1, function() return binding_step("mrq_render_queue") end },
	{ 1, render_job_step },
	{ 2, cancel_render_step },
	{ 3, pipeline_step },
	{ 2, renderable_graph_step },
	{ 1, function() return editor_step("set_rendering", literal(math.random(2) == 1)) end },
	{ 3, function() return binding_step("mrq_save_queue", quoted(pick(QUEUE_ASSETS))) end },
	{ 3, function() return binding_step("mrq_load_queue", quoted(pick(QUEUE_ASSETS))) end },
	{ 3, save_handle_step },
	{ 2, function() return editor_step("create_config", quoted(pick(CONFIG_ASSETS))) end },
	{ 2, function() return create_graph_step(pick(GRAPH_ASSETS)) end },
	{ 2, typed_variable_step },
	{ 6, graph_edit_step },
	{ 1, create_sequence_step },
	{ 3, function() return editor_step("unload_package", quoted(pick(UNLOADABLE_PACKAGES))) end },
	{ 2, function() return editor_step("delete_asset", quoted(pick(DELETABLE_PACKAGES))) end },
	{ 2, set_editable_step },
	{ 1, subsystem_step },
	{ 1, executor_step },
	{ 4, drop_finalizers_step },
}

-- Unloads or deletes the package of a handle's asset, or one of the run's own packages.
function actions.disrupting_editor_step(fz, victim)
	local path = rawget(victim.table, "path")
	local package = type(path) == "string" and path:match("^/Game/Fz/[^.]+") or pick(DELETABLE_PACKAGES)
	if math.random(2) == 1 then
		return editor_step("delete_asset", quoted(package))
	end
	return editor_step("unload_package", quoted(package))
end

-- One editor action; nil when the chosen one does not apply now (the caller then makes a binding call).
function actions.random_step(fz)
	return values.weighted(ACTIONS, fz)
end

-- Ends a render, if one runs, by cancelling it or by ticking it to its end.
function actions.end_render_step()
	if math.random(3) == 1 then
		return cancel_render_step()
	end
	return editor_step("run_until_idle", literal(3000))
end

-- The given steps without those that do not apply to this build.
local function present_steps(...)
	local steps = {}
	for index = 1, select("#", ...) do
		steps[#steps + 1] = select(index, ...)
	end
	return steps
end

-- The steps every run starts with: a render executor, presets and a graph to open, jobs in the queue.
function actions.setup_steps()
	return present_steps(
		editor_step("set_default_local_executor", quoted(PIE_EXECUTOR)),
		editor_step("create_config", quoted(CONFIG_ASSETS[1])),
		editor_step("create_config", quoted(CONFIG_ASSETS[2])),
		create_graph_step(GRAPH_ASSETS[1]),
		binding_step("mrq_add_job", quoted("Cinematics/Intro")),
		binding_step("mrq_add_job", quoted("Seq/Shot010")),
		binding_step("mrq_open_config", quoted("Fz/Cfg1")),
		binding_step("mrq_open_graph", quoted("Fz/Graph1")),
		renderable_graph_step(),
		binding_step("mrq_list_settings"))
end

-- The steps every run ends with, so that the process does not leave a render behind.
function actions.final_steps()
	return present_steps(binding_step("mrq_cancel_render", literal(true)), editor_step("run_until_idle", literal(2000)))
end

-- Script code that a metamethod or finalizer runs in the middle of a binding call: { weight, code, whether it calls
-- the bindings (and is held to their rules), whether it removes the queue subsystem }. It is chosen when the value is
-- made, never while the callback runs, so that the random sequence does not depend on when the Lua GC steps.
local CALLBACK_BEHAVIOURS = {
	{ 4, "mrq_delete_all_jobs()", true },
	{ 3, "mrq_render_queue()", true },
	{ 3, "mrq_cancel_render(true)", true },
	{ 2, "mrq_load_queue(\"Fz/Q1\")", true },
	{ 2, "mrq_open_config(\"Nope\")", true },
	{ 2, "mrq_get_queue()", true },
	{ 2, "mrq_add_job(\"Seq/Shot010\")", true },
	{ 4, "editor.collect_garbage()", false },
	{ 2, "collectgarbage()", false },
	{ 2, "editor.unload_package(\"/Game/Cinematics/Intro\")", false },
	{ 2, "editor.unload_package(\"/Game/Fz/Cfg1\")", false },
	{ 1, "editor.delete_asset(\"/Game/Fz/Cfg1\")", false },
	{ 2, "editor.tick(1)", false },
	{ 1, "editor.set_rendering(true)", false },
	{ 1, "editor.undo()", false },
	{ 2, "mrq_delete_all_jobs(); editor.collect_garbage()", true },
	{ 2, "mrq_delete_all_jobs(); mrq_open_config(\"Nope\")", true },
	{ 1, "mrq_render_queue(); editor.tick(1)", true },
	{ 2, "editor.set_queue_subsystem_available(false)", false, true },
}
for _, behaviour in ipairs(CALLBACK_BEHAVIOURS) do
	behaviour.run = assert(load(behaviour[2], "=callback", "t"))
end

function actions.new_callback_behaviour(fz)
	local chosen = values.weighted_pick(CALLBACK_BEHAVIOURS)
	return { text = chosen[2], run = chosen.run, checked = chosen[3], removes_subsystem = chosen[4] }
end

-- A value whose metamethods run a callback behaviour, with the text that shows it.
function actions.new_reentrant_value(fz)
	local behaviour = actions.new_callback_behaviour(fz)
	local jobs = job_handles(fz)
	local returned, returned_text = nil, "nil"
	if #jobs > 0 and math.random(3) > 1 then
		local entry = pick(jobs)
		returned, returned_text = rawget(entry.table, "__vlmr_mrq_job_identity"), entry.name .. ".__vlmr_mrq_job_identity"
	end
	local function callback()
		fz.run_callback(behaviour)
		return returned
	end
	local shape = math.random(5)
	if shape == 1 then
		local value = setmetatable({}, {
			__tostring = function() callback() return "reentrant" end,
			__len = function() callback() return 1 end,
		})
		return value, "setmetatable({}, { __tostring/__len = function() " .. behaviour.text .. " end })"
	end
	if shape == 2 and #fz.spare_userdata > 0 then
		local value = fz.spare_userdata[math.random(#fz.spare_userdata)]
		debug.setmetatable(value, { __index = callback })
		return value, "<userdata with __index = function() " .. behaviour.text .. "; return " .. returned_text .. " end>"
	end
	return setmetatable({}, { __index = callback }),
		"setmetatable({}, { __index = function() " .. behaviour.text .. "; return " .. returned_text .. " end })"
end

return actions
