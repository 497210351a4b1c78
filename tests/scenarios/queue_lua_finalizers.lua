-- Lua finalizers run inside calls: every table a call makes may step Lua's collector, and a finalizer may empty the
-- queue, unload a preset and collect garbage while the call is reading those objects or making a handle for one.
-- Each call below is tried with a finalizer landing in its middle; none may read a freed object.

local CLASSES = { "PNG", "EXR", "JPG", "BMP", "ConsoleVariable", "GameOverride", "AntiAliasing", "Camera", "Output" }

local configs_made = 0
local function fresh_config()
	configs_made = configs_made + 1
	local path = "/Game/Fz/Cfg" .. configs_made
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
local reading_calls = {
	["config:info"] = function()
		local config, free = fresh_config()
		return function() config:info() end, free
	end,
	["config:list_settings"] = function()
		local config, free = fresh_config()
		return function() config:list_settings() end, free
	end,
	["setting:list_properties"] = function()
		local config, free = fresh_config()
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

-- Reading calls: a finalizer frees what the call reads, mid-way. Where a finalizer lands differs from run to run, so
-- rounds go on until one has landed inside a call (or a bound is reached).
local function free_inside_reading_calls()
	local landed = 0
	for _, name in ipairs({ "config:info", "config:list_settings", "setting:list_properties", "job:list_settings", "job:info",
		"mrq_get_queue", "mrq_render_progress" }) do
		for _ = 1, 8 do
			local target, free = reading_calls[name]()
			local inside, fired = false, false
			for _ = 1, 100 do
				setmetatable({}, { __gc = function()
					if inside and not fired then fired = true; free() end
				end })
				inside = true
				target()
				inside = false
				if fired then break end
			end
			landed = landed + (fired and 1 or 0)
		end
	end
	return landed
end

local landed = 0
for _ = 1, 20 do
	landed = landed + free_inside_reading_calls()
	if landed > 0 then
		break
	end
end
check.truthy(landed > 0, "finalizers landed inside reading calls")

-- Calls that make a job handle: a finalizer frees the new job while its handle is being made.
local function add_job()
	mrq_add_job("Seq/Shot010")
end
local handle_calls = {
	{ function() end, function() return mrq_add_job("Seq/Shot010") end },
	{ function() end, function() return mrq_allocate_job("Seq/Shot010") end },
	{ add_job, function() return mrq_duplicate_job(1) end },
	{ add_job, function() return mrq_get_job(1) end },
}
local inside = false
local function free_all_jobs()
	if inside then
		inside = false
		mrq_delete_all_jobs()
		editor.collect_garbage()
	end
end
local freed_while_made = 0
for _ = 1, 50 do
	for _, entry in ipairs(handle_calls) do
		local prepare, call = entry[1], entry[2]
		for _ = 1, 100 do
			setmetatable({}, { __gc = free_all_jobs })
		end
		for _ = 1, 10 do
			mrq_delete_all_jobs()
			prepare()
			inside = true
			local handle = call()
			freed_while_made = freed_while_made + (inside and 0 or 1)
			inside = false
			check.eq(type(handle), "table", "a handle is made even when its job went meanwhile")
		end
	end
	if freed_while_made > 0 then
		break
	end
end
check.truthy(freed_while_made > 0, "finalizers freed jobs while handles were made")
collectgarbage("generational")

check.summary()
