-- A Lua finalizer that runs in the middle of a call which builds a table per engine object frees those objects
-- (the table allocations step Lua's collector; the finalizer unloads the preset or empties the queue, and both
-- collect garbage), and the call goes on reading them: heap-use-after-free. The queue report showed it for
-- mrq_get_queue; the fuzzer (FUZZ_LUA_GC=auto) found it in the other calls below (and in the making of job handles:
-- finalizer_frees_job_while_handle_is_made.lua).
-- Run with CALL set to one of the calls of the table, e.g. CALL=setting:list_properties; each crashes today. Where
-- the finalizer lands differs from run to run, so each round makes fresh objects and tries again.
local call = os.getenv("CALL") or "config:info"
local CLASSES = { "PNG", "EXR", "JPG", "BMP", "ConsoleVariable", "GameOverride", "AntiAliasing", "Camera", "Output" }

local function fresh_config(round)
	local path = "/Game/Fz/Cfg" .. round
	editor.create_config(path)
	local config = mrq_open_config(path)
	for _, class in ipairs(CLASSES) do
		config:find_or_add_setting(class)
	end
	return config, function() editor.unload_package(path) end
end

local function fresh_job()
	mrq_delete_all_jobs()
	local job = mrq_add_job("Cinematics/Intro")
	mrq_add_job("Seq/Shot010")
	for _, class in ipairs(CLASSES) do
		job:find_or_add_setting(class)
	end
	return job, function() mrq_delete_all_jobs(); editor.collect_garbage() end
end

-- Each makes fresh objects and returns the call and what the finalizer does.
local calls = {
	["config:info"] = function(round)
		local config, free = fresh_config(round)
		return function() config:info() end, free
	end,
	["config:list_settings"] = function(round)
		local config, free = fresh_config(round)
		return function() config:list_settings() end, free
	end,
	["setting:list_properties"] = function(round)
		local config, free = fresh_config(round)
		local output = config:find_or_add_setting("Output")
		return function() output:list_properties() end, free
	end,
	["job:list_settings"] = function()
		local job, free = fresh_job()
		return function() job:list_settings() end, free
	end,
	["job:info"] = function()
		local job, free = fresh_job()
		return function() job:info() end, free
	end,
	["mrq_get_queue"] = function()
		local _, free = fresh_job()
		return mrq_get_queue, free
	end,
	["mrq_render_progress"] = function()
		local _, free = fresh_job()
		return mrq_render_progress, free
	end,
}

collectgarbage("incremental", 0, 1000, 0)
local fired_rounds = 0
for round = 1, 100 do
	local target, free = calls[call](round)
	local inside, fired = false, false
	for _ = 1, 200 do
		setmetatable({}, { __gc = function()
			if inside and not fired then fired = true; free() end
		end })
		inside = true
		target()
		inside = false
		if fired then break end
	end
	fired_rounds = fired_rounds + (fired and 1 or 0)
end
print(string.format("%s: no crash; the finalizer ran inside the call in %d rounds", call, fired_rounds))
