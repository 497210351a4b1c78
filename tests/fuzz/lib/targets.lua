-- What the fuzzer calls, found at run time: the mrq_/mrg_ globals, and every handle the calls return with its
-- methods. Results are read with next/rawget only, so that no metamethod runs while they are looked at.
local targets = {}

local HANDLE_POOL_SIZE = 48
local HARVEST_POOL_SIZE = 200
local HARVEST_MAX_LENGTH = 200
local HARVEST_DEPTH = 3

local function sorted_keys(map, accept)
	local keys = {}
	for key, value in next, map do
		if type(key) == "string" and accept(key, value) then
			keys[#keys + 1] = key
		end
	end
	table.sort(keys)
	return keys
end

function targets.binding_globals()
	local names = sorted_keys(_G, function(name, value)
		return type(value) == "function" and (name:sub(1, 4) == "mrq_" or name:sub(1, 4) == "mrg_")
	end)
	local globals = {}
	for index, name in ipairs(names) do
		globals[index] = { name = name, fn = _G[name] }
	end
	return globals
end

local function method_names(handle)
	return sorted_keys(handle, function(_, value) return type(value) == "function" end)
end

local function is_handle(value)
	return type(value) == "table" and getmetatable(value) == nil and #method_names(value) > 0
end

local function handle_kind(handle, methods)
	if rawget(handle, "__vlmr_mrq_job_identity") ~= nil then
		return "job"
	end
	if rawget(handle, "_name") ~= nil then
		return "setting"
	end
	for _, name in ipairs(methods) do
		if name == "connect" or name == "add_node" then
			return "graph"
		end
	end
	if rawget(handle, "path") ~= nil then
		return "config"
	end
	return "handle"
end

-- A new handle takes a free slot, or replaces a random one once the pool is full (so dead handles stay around).
local function register_handle(fz, handle)
	for _, entry in ipairs(fz.handles) do
		if entry.table == handle then
			return entry
		end
	end
	fz.handle_count = fz.handle_count + 1
	local methods = method_names(handle)
	local entry = { table = handle, methods = methods, name = "h" .. fz.handle_count }
	entry.kind = handle_kind(handle, methods)
	if #fz.handles < HANDLE_POOL_SIZE then
		fz.handles[#fz.handles + 1] = entry
	else
		fz.handles[math.random(HANDLE_POOL_SIZE)] = entry
	end
	return entry
end

-- Addresses differ between processes (a job's identity is one), so they never join the pool.
local function is_address(text)
	return text:find("^0?x?%x+$") ~= nil and #text >= 8
end

-- Whether a string joins the pool depends on what was seen before, so the slot is drawn for every string: the random
-- sequence then stays the same even when a string's novelty does not. The set of strings ever seen only grows: a key
-- removed from a Lua table leaves a hole whose reuse depends on the process's random string hash seed, which would
-- make allocations, and with them the timing of finalizers, differ between two runs of one seed.
local function harvest_string(fz, text)
	local slot = math.random(HARVEST_POOL_SIZE)
	if #text == 0 or #text > HARVEST_MAX_LENGTH or fz.harvested_set[text] or is_address(text) then
		return
	end
	fz.harvested_set[text] = true
	if #fz.harvested < HARVEST_POOL_SIZE then
		fz.harvested[#fz.harvested + 1] = text
	else
		fz.harvested[slot] = text
	end
end

-- Strings of a result (node ids, property names, profile names...) become arguments of later calls; handles in it
-- join the pool. Keys are visited in sorted order so that the pool does not depend on Lua's hash seed.
local function harvest(fz, value, depth, found)
	if type(value) == "string" then
		harvest_string(fz, value)
		return
	end
	if type(value) ~= "table" or depth > HARVEST_DEPTH then
		return
	end
	if is_handle(value) then
		local entry = register_handle(fz, value)
		targets.touch_handle(fz, entry)
		found[#found + 1] = entry
	end
	local integer_keys, string_keys = {}, {}
	for key in next, value do
		if math.type(key) == "integer" then
			integer_keys[#integer_keys + 1] = key
		elseif type(key) == "string" then
			string_keys[#string_keys + 1] = key
		end
	end
	table.sort(integer_keys)
	table.sort(string_keys)
	for _, key in ipairs(integer_keys) do
		harvest(fz, rawget(value, key), depth + 1, found)
	end
	for _, key in ipairs(string_keys) do
		harvest(fz, rawget(value, key), depth + 1, found)
	end
end

-- The handles found in a call's results, after their strings and handles have been taken in.
function targets.take_results(fz, results, first, last)
	local found = {}
	for index = first, last do
		harvest(fz, results[index], 1, found)
	end
	return found
end

local RECENT_SIZE = 6

-- Half the time one of the handles used or made last: a call right after the one that deleted its object reaches
-- the object before the next garbage collection, when it has left the queue or its preset but still exists.
function targets.random_handle(fz)
	if #fz.recent_handles > 0 and math.random(2) == 1 then
		return fz.recent_handles[math.random(#fz.recent_handles)]
	end
	return fz.handles[math.random(#fz.handles)]
end

function targets.touch_handle(fz, entry)
	local recent = fz.recent_handles
	for index = #recent, 1, -1 do
		if recent[index] == entry then
			table.remove(recent, index)
		end
	end
	table.insert(recent, 1, entry)
	recent[RECENT_SIZE + 1] = nil
end

return targets
