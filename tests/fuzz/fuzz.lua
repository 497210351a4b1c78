-- The project's fuzzer. It calls every mrq_/mrg_ global and every method of every handle they return, found at run
-- time, with hostile arguments and re-entrant metamethods, between editor actions (garbage collection, undo, ticks,
-- renders, saves, unloads, locked packages, a removed queue subsystem). It fails on a Lua error that is not an
-- argument error and on a log entry of more than one line; a crash or sanitizer report ends the process itself.
--
--   FUZZ_SEED=7 FUZZ_CALLS=5000 build/default/bin/vlmr run tests/fuzz/fuzz.lua
--
-- FUZZ_SEED (1), FUZZ_CALLS (5000, 0 = no limit), FUZZ_SECONDS (0 = no limit), FUZZ_HISTORY (calls shown with a
-- failure, 25), FUZZ_FULL_REPORTS (failures shown with their history, 8), FUZZ_TRACE (1: each call on stdout),
-- FUZZ_STOP_ON_FAILURE (0), FUZZ_LUA_GC ("explicit" or "auto").
--
-- The same seed on the same build makes the same calls, so a failure's seed and call number (FUZZ_SEED=s
-- FUZZ_CALLS=n) replay it. That holds for Lua's collector only when it runs at chosen points: the runtime's
-- allocations differ slightly between processes (its string hash seed is random), so the automatic collector would
-- run finalizers at other calls in a replay. With FUZZ_LUA_GC=explicit (the default) it runs only as a full
-- collection at seeded points, metamethods called inside binding calls included; with FUZZ_LUA_GC=auto it runs on
-- its own with a short pause, so that finalizers also run at the allocations inside a binding, and a replay may
-- diverge after the first finalizer.

local LIBRARY_DIR = (debug.getinfo(1, "S").source:match("^@(.*[/\\])") or "./") .. "lib/"

local function load_library(name, ...)
	return assert(loadfile(LIBRARY_DIR .. name .. ".lua"))(...)
end

local trace = load_library("trace")
local values = load_library("values", trace)
local targets = load_library("targets")
local actions = load_library("actions", trace, values)
local steps = load_library("steps", trace, values, targets, actions)

local function integer_setting(name, default)
	local text = os.getenv(name)
	if text == nil or text == "" then
		return default
	end
	local value = math.tointeger(tonumber(text))
	if not value or value < 0 then
		error(string.format("%s must be a non-negative integer, got %q", name, text), 0)
	end
	return value
end

local settings = {
	seed = integer_setting("FUZZ_SEED", 1),
	calls = integer_setting("FUZZ_CALLS", 5000),
	seconds = integer_setting("FUZZ_SECONDS", 0),
	history = math.max(1, integer_setting("FUZZ_HISTORY", 25)),
	full_reports = integer_setting("FUZZ_FULL_REPORTS", 8),
	trace = integer_setting("FUZZ_TRACE", 1) ~= 0,
	stop_on_failure = integer_setting("FUZZ_STOP_ON_FAILURE", 0) ~= 0,
	gc_stress = os.getenv("VLMR_GC_STRESS") == "1",
	lua_gc = os.getenv("FUZZ_LUA_GC") or "explicit",
}
if settings.lua_gc ~= "explicit" and settings.lua_gc ~= "auto" then
	error(string.format("FUZZ_LUA_GC must be \"explicit\" or \"auto\", got %q", settings.lua_gc), 0)
end

local function new_context()
	local bare_userdata = assert(io.open("/dev/null"))
	debug.setmetatable(bare_userdata, nil)
	return {
		call = 0, pending_steps = {}, handles = {}, recent_handles = {}, handle_count = 0,
		harvested = {}, harvested_set = {},
		ring = trace.new_ring(settings.history), failures = {}, failure_by_signature = {}, pending_failures = {},
		stats = {}, corpus = {}, callback_depth = 0, subsystem_removal_allowed = false,
		bare_userdata = bare_userdata, spare_userdata = { assert(io.open("/dev/null")), assert(io.open("/dev/null")) },
	}
end

local fz = new_context()

-- Removing the queue subsystem is for good in a session: it is allowed from a seeded call on, and the run ends
-- soon after it, since little is left to reach without the queue.
local SUBSYSTEM_REMOVAL_EARLIEST, SUBSYSTEM_REMOVAL_LATEST = 2000, 40000
local CALLS_AFTER_SUBSYSTEM_REMOVAL = 500

local function note_subsystem_removal()
	fz.subsystem_removed_at = fz.subsystem_removed_at or fz.call
end

-- Lua's own "bad argument #1 to 'f'" and sol2's "... (bad argument into '...')".
local function is_argument_error(message)
	return type(message) == "string" and message:find("bad argument", 1, true) ~= nil
end

-- Addresses, numbers and sol2's type names vary between occurrences of one fault.
local function normalize(message)
	local text = type(message) == "string" and message or ("<" .. type(message) .. " error object>")
	text = text:gsub("0x%x+", "0x?"):gsub("%d+", "N"):gsub("expected [^,]-, received [^:]-:", "expected T, received U:")
	return text:sub(1, 200)
end

local function rerun_command()
	return string.format("FUZZ_SEED=%d FUZZ_CALLS=%d%s%s build/default/bin/vlmr run tests/fuzz/fuzz.lua",
		settings.seed, fz.call, settings.lua_gc == "auto" and " FUZZ_LUA_GC=auto" or "",
		settings.gc_stress and " VLMR_GC_STRESS=1" or "")
end

local function report_history()
	trace.report("  the last calls:")
	for _, entry in ipairs(trace.recent(fz.ring)) do
		trace.report(string.format("    #%d %s%s%s", entry.call, entry.text, entry.callbacks or "", entry.result or ""))
	end
end

local function record_failure(kind, target, detail, signature)
	local known = fz.failure_by_signature[signature]
	if known then
		known.count = known.count + 1
		return
	end
	local failure = { kind = kind, target = target, detail = detail, signature = signature, call = fz.call, count = 1 }
	fz.failure_by_signature[signature] = failure
	fz.failures[#fz.failures + 1] = failure
	trace.report(string.format("FAILURE %d (seed %d, call %d): %s from %s: %s", #fz.failures, settings.seed, fz.call,
		kind, target, trace.quote(tostring(detail))))
	trace.report("  rerun: " .. rerun_command())
	if #fz.failures <= settings.full_reports then
		report_history()
	end
end

local function record_lua_error(kind, target, message)
	record_failure(kind, target, message, kind .. ": " .. normalize(message))
end

-- A callback's code is shown with the call it ran in, since a metamethod or finalizer may be what broke that call.
local function note_callback(behaviour)
	local entry = fz.current_entry
	if entry then
		entry.callbacks = (entry.callbacks or "") .. " {a callback ran inside: " .. behaviour.text .. "}"
	end
	if settings.trace then
		print(string.format("fuzz #%d   a callback runs inside it: %s", fz.call, behaviour.text))
	end
end

-- Metamethods and finalizers run their behaviour at most one level deep and never raise into the binding.
function fz.run_callback(behaviour)
	if fz.callback_depth > 0 or (behaviour.removes_subsystem and not fz.subsystem_removal_allowed) then
		return
	end
	note_callback(behaviour)
	fz.callback_depth = fz.callback_depth + 1
	local ok, message = pcall(behaviour.run)
	fz.callback_depth = fz.callback_depth - 1
	if ok and behaviour.removes_subsystem then
		note_subsystem_removal()
	end
	if not ok and behaviour.checked and not is_argument_error(message) then
		fz.pending_failures[#fz.pending_failures + 1] = { target = behaviour.text, message = message }
	end
end

function fz.new_callback_behaviour()
	return actions.new_callback_behaviour(fz)
end

function fz.reentrant_value()
	return actions.new_reentrant_value(fz)
end

-- With the explicit collector, garbage is collected at least every this many calls so that memory stays bounded.
local HOUSEKEEPING_PERIOD = 100

local function next_step()
	if settings.lua_gc == "explicit" and (fz.call + 1) % HOUSEKEEPING_PERIOD == 0 then
		return actions.collect_lua_garbage_step()
	end
	return steps.next(fz)
end

local function count_call(target, argument_error, success)
	local stats = fz.stats[target]
	if not stats then
		stats = { calls = 0, argument_errors = 0, successes = 0 }
		fz.stats[target] = stats
	end
	stats.calls = stats.calls + 1
	stats.argument_errors = stats.argument_errors + (argument_error and 1 or 0)
	stats.successes = stats.successes + (success and 1 or 0)
end

local function run_protected(step)
	if step.in_coroutine then
		return coroutine.resume(coroutine.create(step.run))
	end
	return pcall(step.run)
end

local function take_results(entry, results)
	local found = targets.take_results(fz, results, 2, results.n)
	if #found == 0 then
		return
	end
	local names = {}
	for index, handle in ipairs(found) do
		names[index] = handle.name .. " (" .. handle.kind .. ")"
	end
	entry.result = " -> " .. table.concat(names, ", ")
	if settings.trace then
		print(string.format("fuzz #%d%s", entry.call, entry.result))
	end
end

-- Every session log entry is one line; the log is emptied after each call so that it stays small.
local function check_log(step)
	for _, line in ipairs(editor.log()) do
		if line:find("[\r\n]") then
			record_failure("multi-line log entry", step.target, line, "multi-line log entry from " .. step.target)
		end
	end
	editor.clear_log()
end

local function check_callbacks()
	local pending = fz.pending_failures
	fz.pending_failures = {}
	for _, failure in ipairs(pending) do
		record_lua_error("Lua error in a metamethod or finalizer", failure.target, failure.message)
	end
end

local function perform(step)
	fz.call = fz.call + 1
	fz.subsystem_removal_allowed = fz.call >= fz.subsystem_removal_call
	local entry = { call = fz.call, text = step.text }
	fz.current_entry = entry
	trace.push(fz.ring, entry)
	if settings.trace then
		print(string.format("fuzz #%d %s", fz.call, step.text))
	end
	local results = table.pack(run_protected(step))
	local argument_error = not results[1] and is_argument_error(results[2])
	local success = steps.succeeded(results)
	count_call(step.target, argument_error, success)
	if success and step.checked and step.arguments then
		steps.remember_arguments(fz, step.target, step.arguments)
	end
	if results[1] and step.removes_subsystem then
		note_subsystem_removal()
	end
	if results[1] then
		take_results(entry, results)
	elseif step.checked and not argument_error then
		record_lua_error("Lua error", step.target, results[2])
	end
	check_callbacks()
	check_log(step)
end

local function out_of_budget(started)
	if settings.calls > 0 and fz.call >= settings.calls then
		return true
	end
	if fz.subsystem_removed_at and fz.call >= fz.subsystem_removed_at + CALLS_AFTER_SUBSYSTEM_REMOVAL then
		trace.report(string.format("the queue subsystem was removed at call %d; the run ends %d calls later",
			fz.subsystem_removed_at, CALLS_AFTER_SUBSYSTEM_REMOVAL))
		return true
	end
	return settings.seconds > 0 and os.difftime(os.time(), started) >= settings.seconds
end

local function report_discovery()
	local kinds, seen = {}, {}
	for _, entry in ipairs(fz.handles) do
		if not seen[entry.kind] then
			seen[entry.kind] = true
			kinds[#kinds + 1] = string.format("%s (%d methods)", entry.kind, #entry.methods)
		end
	end
	table.sort(kinds)
	trace.report(string.format("%d binding globals; handle kinds in the pool at the end: %s", #fz.globals,
		#kinds > 0 and table.concat(kinds, ", ") or "none"))
end

local function report_statistics(cpu_seconds)
	trace.report(string.format("seed %d%s: %d calls in %.1f s of CPU time (%.0f calls/s), %d distinct failures",
		settings.seed, settings.gc_stress and " under GC stress" or "", fz.call, cpu_seconds,
		fz.call / math.max(cpu_seconds, 1e-3), #fz.failures))
	local names = {}
	for name in next, fz.stats do
		names[#names + 1] = name
	end
	table.sort(names)
	local line = {}
	for _, name in ipairs(names) do
		local stats = fz.stats[name]
		line[#line + 1] = string.format("%s %d/%d/%d", name, stats.calls, stats.argument_errors, stats.successes)
		if #line == 5 then
			trace.report("  calls/argument errors/successes: " .. table.concat(line, ", "))
			line = {}
		end
	end
	if #line > 0 then
		trace.report("  calls/argument errors/successes: " .. table.concat(line, ", "))
	end
	report_discovery()
end

local function report_failures()
	for index, failure in ipairs(fz.failures) do
		trace.report(string.format("failure %d: first at call %d, %d times: %s", index, failure.call, failure.count,
			failure.signature))
	end
end

local function start_lua_collector()
	if settings.lua_gc == "explicit" then
		collectgarbage("stop")
	else
		collectgarbage("restart")
		collectgarbage("incremental", 150, 200)
	end
end

local function run()
	math.randomseed(settings.seed)
	start_lua_collector()
	fz.subsystem_removal_call = math.random(SUBSYSTEM_REMOVAL_EARLIEST, SUBSYSTEM_REMOVAL_LATEST)
	fz.globals = targets.binding_globals()
	assert(#fz.globals > 0, "no mrq_/mrg_ globals are installed")
	fz.global_choices = steps.global_choices(fz.globals)
	trace.report(string.format("seed %d, %s calls, %s seconds, Lua collector %s%s", settings.seed,
		settings.calls > 0 and tostring(settings.calls) or "unlimited",
		settings.seconds > 0 and tostring(settings.seconds) or "unlimited", settings.lua_gc,
		settings.gc_stress and ", GC stress" or ""))
	local started, cpu_started = os.time(), os.clock()
	for _, step in ipairs(actions.setup_steps()) do
		perform(step)
	end
	while not out_of_budget(started) and not (settings.stop_on_failure and #fz.failures > 0) do
		perform(next_step())
	end
	for _, step in ipairs(actions.final_steps()) do
		perform(step)
	end
	report_statistics(os.clock() - cpu_started)
	report_failures()
	if #fz.failures > 0 then
		error(string.format("fuzz: %d distinct failures with seed %d", #fz.failures, settings.seed), 0)
	end
end

run()
