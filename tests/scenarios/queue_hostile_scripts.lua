-- Hostile scripts against the queue side: huge integers, values the engine cannot take, metamethods and finalizers
-- that call back into the bindings, objects collected in the middle of a call. None of it may crash, lose a job or
-- write a second log line; each refusal is the documented failure value or a Lua argument error.

local function fresh_queue(...)
	mrq_delete_all_jobs()
	for _, path in ipairs({ ... }) do
		mrq_add_job(path)
	end
	editor.clear_log()
end

-- Integers are range-checked as the 64-bit values the script passed, never narrowed first.
fresh_queue("Cinematics/Intro", "Seq/Shot010")
check.eq(mrq_get_job(4294967297), nil, "2^32+1 is not job 1")
check.eq(mrq_delete_job(4294967298), nil, "2^32+2 is not job 2")
check.eq(mrq_duplicate_job(-4294967295), nil, "a negative index that wraps onto 1")
check.eq(mrq_set_job_index(1, 4294967298), nil, "a target that wraps onto 2")
check.eq(mrq_set_job_index(math.mininteger, math.maxinteger), nil, "both out of range")
check.eq(mrq_get_job(math.mininteger), nil, "the smallest integer")
check.lines({
	"[FAIL] mrq_get_job -> index 4294967297 out of range (1-2)",
	"[FAIL] mrq_delete_job -> index 4294967298 out of range (1-2)",
	"[FAIL] mrq_duplicate_job -> index -4294967295 out of range (1-2)",
	"[FAIL] mrq_set_job_index -> target index 4294967298 out of range (1-2)",
	"[FAIL] mrq_set_job_index -> source index -9223372036854775808 out of range (1-2)",
	"[FAIL] mrq_get_job -> index -9223372036854775808 out of range (1-2)",
}, "out-of-range lines print the integer passed")
check.eq(mrq_get_queue().count, 2, "no job was deleted, moved or copied")
for _, bad in ipairs({ 1.5, 0 / 0, math.huge, -math.huge, 2 ^ 63, "1" }) do
	check.raises(function() mrq_get_job(bad) end, "bad argument", "index " .. tostring(bad) .. " is an argument error")
end

-- A wrong type for an optional argument is an argument error, not the default; nil and leaving it out are the default.
editor.clear_log()
check.raises(function() mrq_cancel_render(0) end, "expected boolean, received number: wrong type %(bad argument", "cancel_all as a number")
check.raises(function() mrq_list_settings(12345) end, "expected string, received number: not a string %(bad argument", "a number filter")
check.eq(#mrq_list_settings(nil), #mrq_list_settings(), "a nil filter is no filter")
check.eq(mrq_cancel_render(nil), nil, "a nil cancel_all is the default")
local job = mrq_get_job(1)
check.raises(function() job:set_graph("Graphs/None", "yes") end, "bad argument", "update flag as a string")
check.raises(function() job:set_enabled("false") end, "expected boolean, received string: wrong type %(bad argument", "set_enabled with a string")
local cvars = job:find_or_add_setting("ConsoleVariable")
check.raises(function() cvars:remove_console_variable("r.Foo", 1) end, "bad argument", "remove_all as a number")
check.eq(#editor.log(), 5, "argument errors log nothing")

-- A string holding a NUL is refused whole: the engine would act on the part before it.
fresh_queue()
check.raises(function() mrq_add_job("Cinematics/Intro\0/dropped") end, "string holds a NUL character %(bad argument", "NUL in a path")
check.raises(function() mrq_save_queue("Fz/Q\0/../elsewhere") end, "NUL", "NUL in a save path")
check.raises(function() job:set_author("a\0b") end, "NUL", "NUL in a text")
check.eq(mrq_get_queue().count, 0, "nothing was added")
check.eq(#editor.list_files("Content/Fz"), 0, "nothing was saved")

-- A job handle is a plain table: its identity is read raw, before any check, and a metamethod never runs.
fresh_queue("Cinematics/Intro")
local target = mrq_get_job(1)
local metamethod_calls = 0
local proxy = setmetatable({}, { __index = function()
	metamethod_calls = metamethod_calls + 1
	editor.set_queue_subsystem_available(false)
	mrq_render_queue()
	return target.__vlmr_mrq_job_identity
end })
editor.set_default_local_executor("/Script/MovieRenderPipelineEditor.MoviePipelinePIEExecutor")
editor.clear_log()
check.eq(mrq_render_job(proxy), nil, "a proxy table is not a handle")
check.eq(mrq_render_job(io.stdout), nil, "a userdata without the field is not a handle")
local locked = debug.getmetatable(io.stdout)
debug.setmetatable(io.stdout, nil)
check.eq(mrq_render_job(io.stdout), nil, "a userdata that cannot be indexed is not a handle")
debug.setmetatable(io.stdout, locked)
-- A copied table with the identity is the job; rendering one job needs UE 5.6, so older builds refuse only then.
local renders_one_job = tonumber(editor.engine_version():match("^5%.(%d+)")) >= 6
local copied = mrq_render_job(setmetatable({ __vlmr_mrq_job_identity = target.__vlmr_mrq_job_identity }, { __index = error }))
check.eq(copied == true, renders_one_job, "a copied table with the identity is found")
check.eq(metamethod_calls, 0, "the proxy's metamethod never ran")
check.lines({
	"[FAIL] mrq_render_job -> supplied job handle is not in the current editor queue",
	"[FAIL] mrq_render_job -> supplied job handle is not in the current editor queue",
	"[FAIL] mrq_render_job -> supplied job handle is not in the current editor queue",
	renders_one_job and "[OK] mrq_render_job -> render started with MoviePipelinePIEExecutor for job Intro"
		or "[FAIL] mrq_render_job -> unsupported: UMoviePipelineQueueSubsystem::RenderQueueInstanceWithExecutor needs UE 5.6+ (this editor is 5.5)",
}, "identity lines")
mrq_cancel_render()
editor.run_until_idle(1000)

-- Script text in a log line cannot start a new line.
fresh_queue("Cinematics/Intro")
mrq_get_job(1):set_author("x\n[OK] mrq_save_queue -> saved 1 jobs to '/Game/Forged'\r\t\27")
check.eq(mrq_open_config("a\n[OK] mrq_open_config -> /Game/Forged"), nil, "no such config")
check.lines({
	"[OK] mrq_get_job(1)",
	"[OK] set_author -> x\\n[OK] mrq_save_queue -> saved 1 jobs to '/Game/Forged'\\r\\t\\x1B",
	"[FAIL] mrq_open_config -> config asset not found: /Game/a\\n[OK] mrq_open_config -> /Game/Forged",
}, "control characters are escaped")
check.eq(mrq_get_job(1):info().author, "x\n[OK] mrq_save_queue -> saved 1 jobs to '/Game/Forged'\r\t\27", "the value itself is stored as given")

-- Text that cannot be an engine name is refused before any engine call, each with its function's failure value.
fresh_queue("Cinematics/Intro")
local long_tail = string.rep("x", 2000)
local long_path = "/Game/" .. long_tail
local long_job = mrq_get_job(1)
local setting = long_job:find_or_add_setting("Output")
editor.clear_log()
check.eq(select("#", long_job:set_sequence(long_path)), 1, "set_sequence fails with nil")
check.eq(long_job:set_map(long_path), nil, "set_map")
check.eq(long_job:set_config(long_tail), nil, "set_config")
check.eq(long_job:set_graph(long_tail), nil, "set_graph")
check.eq(mrq_add_job(long_tail), nil, "add_job")
check.eq(mrq_save_queue(long_path), nil, "save_queue")
check.eq(mrq_load_queue(long_tail), nil, "load_queue")
check.eq(mrq_open_config(long_path), nil, "open_config")
check.eq(select("#", setting:set(string.rep("p", 1024), "1")), 0, "set returns nothing")
check.eq(setting:get(string.rep("p", 1024)), nil, "get is the quiet nil of an unknown property")
local too_long = "text too long for an engine name (2006 characters, at most 1023)"
check.lines({
	"[FAIL] set_sequence -> " .. too_long,
	"[FAIL] set_map -> " .. too_long,
	"[FAIL] set_config -> " .. too_long,
	"[FAIL] set_graph -> " .. too_long,
	"[FAIL] mrq_add_job -> " .. too_long,
	"[FAIL] mrq_save_queue -> " .. too_long,
	"[FAIL] mrq_load_queue -> " .. too_long,
	"[FAIL] mrq_open_config -> " .. too_long,
	"[FAIL] set -> text too long for an engine name (1024 characters, at most 1023)",
}, "long names")
local game_override = long_job:find_or_add_setting("GameOverride")
editor.clear_log()
game_override:set("GameModeOverride", long_path)
game_override:set("GameModeOverride", "/Game/" .. string.rep("z", 1017))
setting:set("FileNameFormat", long_tail)
local set_lines = editor.log()
check.eq(#set_lines, 3, "one line each")
check.eq(set_lines[1], "[FAIL] set -> text too long for an engine name (2006 characters, at most 1023)", "an object path too long for a name")
check.matches(set_lines[2], "^%[FAIL%] set %-> failed to set 'GameModeOverride' = '/Game/z+' %(", "1023 characters reach the import")
check.eq(set_lines[3], "[OK] set FileNameFormat = " .. long_tail, "a long plain text is no name")
check.eq(mrq_get_job(1):info().sequence, "/Game/Cinematics/Intro.Intro", "the sequence is unchanged")
local longest = "/Game/" .. string.rep("y", 1017)
long_job:set_sequence(longest)
check.eq(mrq_get_job(1):info().sequence, longest, "1023 characters still fit")

-- A map path the engine would meet with an ensure (a short package name, an object part with no mount point) is refused.
editor.clear_log()
check.eq(long_job:set_map("?"), nil, "a short package name")
check.eq(long_job:set_map("Fz/../../Fz/Q1"), nil, "an object part without a mount point")
check.eq(select("#", long_job:set_map("Maps/Main")), 0, "a relative path with a folder is stored as given")
check.eq(select("#", long_job:set_map("/Game/Fz/../Q1")), 0, "a path from a mount point is stored as given")
check.lines({
	"[FAIL] set_map -> '?' is not a path the engine can store; a path starts at a mount point such as /Game/",
	"[FAIL] set_map -> 'Fz/../../Fz/Q1' is not a path the engine can store; a path starts at a mount point such as /Game/",
	"[OK] set_map -> Maps/Main",
	"[OK] set_map -> /Game/Fz/../Q1",
}, "map paths")

-- A save path that is no package name cannot reach a file outside the project's content.
fresh_queue("Cinematics/Intro")
check.eq(mrq_save_queue("Fz/../../../Outside"), nil, "a path that climbs out")
check.lines({ "[FAIL] mrq_save_queue -> cannot create package '/Game/Fz/../../../Outside'" }, "refused package name")

-- Loading the editor's own queue leaves its jobs as they are.
fresh_queue("Cinematics/Intro", "Seq/Shot010")
local own_queue = "/Engine/Transient.UnrealEdEngine_0:MoviePipelineQueueSubsystem_0.EditorMoviePipelineQueue"
check.eq(mrq_load_queue(own_queue), true, "loading the queue onto itself")
check.lines({ "[OK] mrq_load_queue -> loaded 2 jobs from '" .. own_queue .. "'" }, "nothing copied")
check.eq(mrq_get_queue().count, 2, "no job lost")

-- A call keeps the objects it resolved until it returns, even when a load in the middle collects garbage.
editor.create_config("/Game/Fz/CfgA")
fresh_queue("Cinematics/Intro")
local orphan = mrq_get_job(1)
orphan:set_config("Fz/CfgA")
editor.unload_package("/Game/Fz/CfgA")
mrq_delete_job(1)
check.eq(orphan:info().preset_origin, "/Game/Fz/CfgA.CfgA", "info loads the preset while it holds the deleted job")
check.eq(orphan:set_config("Fz/CfgA"), true, "a deleted job not yet collected is still the job")
check.eq(select("#", orphan:set_sequence("/Game/Seq/Shot010.Shot010")), 0, "its sequence loads while the call holds it")
editor.collect_garbage()
editor.clear_log()
check.eq(orphan:set_config("Fz/CfgA"), nil, "a collected job")
check.eq(orphan:info(), nil, "info of a collected job")
check.lines({ "[FAIL] set_config -> job no longer valid", "[FAIL] info -> job no longer valid" }, "no longer valid")

local preset = mrq_open_config("Fz/CfgA")
local override = preset:find_or_add_setting("GameOverride")
preset:remove_setting("GameOverride")
editor.clear_log()
override:set("GameModeOverride", "/Game/Nothing/Here")
check.matches(editor.log()[1], "^%[FAIL%] set %-> failed to set 'GameModeOverride' = '/Game/Nothing/Here' %(", "a removed setting is still edited safely")

-- A Lua finalizer may run inside any call that makes a Lua value; it may empty the queue and collect garbage.
fresh_queue()
for _ = 1, 30 do
	mrq_add_job("Cinematics/Intro")
end
local finalizer_ran = false
collectgarbage("incremental", 0, 1000, 0)
for _ = 1, 200 do
	setmetatable({}, { __gc = function()
		if not finalizer_ran then
			finalizer_ran = true
			mrq_delete_all_jobs()
			editor.collect_garbage()
		end
	end })
	local queue = mrq_get_queue()
	check.eq(type(queue.jobs), "table", "the listing is whole")
	if finalizer_ran then
		break
	end
end
collectgarbage("generational")
check.eq(finalizer_ran, true, "the finalizer ran inside a call")
check.eq(mrq_get_queue().count, 0, "the finalizer emptied the queue")

check.summary()
