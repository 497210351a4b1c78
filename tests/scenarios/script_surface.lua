-- The script surface of a fresh session: exactly these globals come from the Movie Render Pipeline extension, every
-- handle table carries exactly these methods and data fields, and the documentation records name nothing else.

-- Names the graph side adds when it lands. While a name is listed here it must be absent; the change that installs it
-- removes it from this list.
local PENDING = {}

local GLOBALS = {
	"mrq_add_job", "mrq_allocate_job", "mrq_duplicate_job", "mrq_set_job_index", "mrq_render_job", "mrq_render_queue",
	"mrq_is_rendering", "mrq_render_progress", "mrq_cancel_render", "mrq_delete_job", "mrq_delete_all_jobs",
	"mrq_list_settings", "mrq_get_queue", "mrq_get_job", "mrq_open_config", "mrq_open_graph", "mrq_save_queue",
	"mrq_load_queue",
	"mrg_support", "mrg_named_resolutions", "mrg_named_resolution", "mrg_resolve_format", "mrg_resolve_version",
	"mrg_pipeline_status", "mrg_request_shutdown",
}

local HANDLES = {
	job = {
		fields = { "sequence", "__vlmr_mrq_job_identity" },
		methods = { "find_or_add_setting", "remove_setting", "list_settings", "set_map", "set_author", "set_job_name",
			"set_comment", "set_enabled", "set_consumed", "is_consumed", "set_sequence", "set_config", "set_graph", "info",
			"output_directory", "evaluate" },
	},
	config = {
		fields = { "path" },
		methods = { "find_or_add_setting", "remove_setting", "list_settings", "info", "save" },
	},
	setting = {
		fields = { "_name" },
		methods = { "info", "set_enabled", "get", "set", "list_properties", "add_or_update_console_variable",
			"remove_console_variable", "set_console_variable_enabled", "list_console_variables" },
	},
	graph = {
		fields = { "path" },
		methods = { "info", "add_variable", "add_input", "add_output", "delete_member", "add_node", "set_node_disabled",
			"connect", "disconnect", "save", "evaluate", "output_settings", "resolution", "output_directory", "branches",
			"nodes_for_branch", "nodes_for_tag", "get_node_property", "set_node_property", "get_variable", "set_variable",
			"remove_node", "insert_before", "insert_after" },
	},
}

-- What a session holds without any extension: Lua's standard library (sol2 also opens the base library as `base`),
-- the host's help, and vlmr's editor table with this scenario's check library.
local NOT_FROM_EXTENSIONS = {}
for _, name in ipairs({ "_G", "_VERSION", "assert", "collectgarbage", "coroutine", "debug", "dofile", "error",
	"getmetatable", "io", "ipairs", "load", "loadfile", "math", "next", "os", "package", "pairs", "pcall", "print",
	"rawequal", "rawget", "rawlen", "rawset", "require", "select", "setmetatable", "string", "table", "tonumber",
	"tostring", "type", "utf8", "warn", "xpcall", "base", "help", "editor", "check" }) do
	NOT_FROM_EXTENSIONS[name] = true
end

local function set_of(names)
	local set = {}
	for _, name in ipairs(names) do
		set[name] = true
	end
	return set
end

local pending = set_of(PENDING)

local function qualified(owner, name)
	return owner and (owner .. ":" .. name) or name
end

-- Every expected name is present unless pending, and absent while pending; nothing present is unexpected.
local function check_names(owner, expected, present)
	local expected_set = set_of(expected)
	for _, name in ipairs(expected) do
		local key = qualified(owner, name)
		if pending[key] then
			check.falsy(present[name], key .. " is installed: remove it from the pending list")
		else
			check.truthy(present[name], key .. " is installed")
		end
	end
	for name in pairs(present) do
		check.truthy(expected_set[name], qualified(owner, name) .. " is one of the expected names")
	end
end

for _, key in ipairs(PENDING) do
	local owner, name = key:match("^(%w+):([%w_]+)$")
	local expected = owner and HANDLES[owner].methods or GLOBALS
	check.truthy(set_of(expected)[name or key], key .. " is pending and expected")
end

-- Globals.
local extension_globals = {}
for name in pairs(_G) do
	if type(name) == "string" and (name:find("^mrq_") or name:find("^mrg_")) then
		extension_globals[name] = true
	elseif type(name) ~= "string" or not (NOT_FROM_EXTENSIONS[name] or name:find("^sol%.")) then
		check.truthy(false, "global " .. tostring(name) .. " comes from no expected source")
	end
end
check_names(nil, GLOBALS, extension_globals)

-- Handles, from every call that returns one.
local function check_handle(kind, handle, source)
	if not check.eq(type(handle), "table", kind .. " handle from " .. source) then
		return
	end
	local methods, fields = {}, {}
	for key, value in pairs(handle) do
		if type(value) == "function" then
			methods[key] = true
		else
			check.eq(type(value), "string", source .. ": " .. kind .. "." .. tostring(key) .. " is text")
			fields[key] = true
		end
	end
	check_names(kind, HANDLES[kind].methods, methods)
	check.eq(fields, set_of(HANDLES[kind].fields), source .. ": data fields of a " .. kind .. " handle")
end

local job = mrq_add_job("Cinematics/Intro")
check_handle("job", job, "mrq_add_job")
check_handle("job", mrq_get_job(1), "mrq_get_job")
check_handle("job", mrq_duplicate_job(1), "mrq_duplicate_job")
check_handle("setting", job:find_or_add_setting("Output"), "job:find_or_add_setting")
local config = mrq_open_config(editor.create_config("/Game/Surface/Preset"))
check_handle("config", config, "mrq_open_config")
check_handle("setting", config:find_or_add_setting("Output"), "config:find_or_add_setting")
check_handle("job", mrq_allocate_job("Seq/Shot010"), "mrq_allocate_job")
if mrq_open_graph and not pending["mrq_open_graph"] then
	check_handle("graph", mrq_open_graph(editor.create_graph("/Game/Surface/Graph")), "mrq_open_graph")
end

-- The documentation records (as help prints them) name only expected functions and methods, and every global is
-- documented.
local function signature_of(record_line)
	local dash = record_line:find(" \u{2014} ", 1, true) or #record_line + 1
	local arrow = record_line:find(" -> ", 1, true) or #record_line + 1
	return record_line:sub(1, math.min(dash, arrow) - 1)
end

-- "mrq_get_job(index)" names mrq_get_job; "graph:evaluate / output_settings" names graph:evaluate and
-- graph:output_settings; "job:output_directory() / job:evaluate(shot_index?)" names both methods.
local function add_documented_names(signature, into)
	local owner
	for part in (signature .. " / "):gmatch("(.-) / ") do
		local part_owner, method = part:match("^(%w+):([%w_]+)")
		owner = part_owner or owner
		local name = method or part:match("^([%w_]+)")
		if name then
			into[qualified(owner, name)] = true
		end
	end
end

local function documented_names()
	editor.clear_log()
	help()
	local bindings = {}
	for _, line in ipairs(editor.log()) do
		bindings[#bindings + 1] = line:match("^(%w+) %(%d+ functions?%)$")
	end
	local names = {}
	for _, binding in ipairs(bindings) do
		editor.clear_log()
		help(binding)
		local lines = editor.log()
		for index = 2, #lines do
			add_documented_names(signature_of(lines[index]), names)
		end
	end
	return names
end

local documented = documented_names()
for name in pairs(extension_globals) do
	check.truthy(documented[name], name .. " is documented")
end
for key in pairs(documented) do
	local owner, name = key:match("^(%w+):([%w_]+)$")
	local expected = owner and (HANDLES[owner] and HANDLES[owner].methods or {}) or GLOBALS
	check.truthy(set_of(expected)[name or key], key .. " is documented and expected")
end

check.summary()
