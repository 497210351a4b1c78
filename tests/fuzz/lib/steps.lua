-- The binding calls the fuzzer makes: a global or a handle method with arguments that are new, or remembered from
-- a call that succeeded and changed a little; and pairs of calls that end an object and then use its handle at once.
local trace, values, targets, actions = ...

local steps = {}

local function maybe_in_coroutine(step)
	if math.random(40) == 1 then
		step.in_coroutine = true
		step.text = "in a coroutine: " .. step.text
	end
	return step
end

local function argument_values(arguments)
	local list = {}
	for index = 1, arguments.n do
		list[index] = arguments[index].value
	end
	return list
end

-- Argument lists that made a call succeed are kept per target and reused, often with one argument changed, so that
-- the fuzzer gets past the first check of a function without knowing its signature.
local CORPUS_SIZE = 8

function steps.succeeded(results)
	return results[1] and (results.n == 1 or (results[2] ~= nil and results[2] ~= false))
end

function steps.remember_arguments(fz, target, arguments)
	local corpus = fz.corpus[target]
	if not corpus then
		corpus = {}
		fz.corpus[target] = corpus
	end
	if #corpus < CORPUS_SIZE then
		corpus[#corpus + 1] = arguments
	else
		corpus[math.random(CORPUS_SIZE)] = arguments
	end
end

local function mutated(fz, arguments)
	local copy = table.move(arguments, 1, arguments.n, 1, { n = arguments.n })
	local roll = math.random(4)
	if roll == 3 and copy.n > 0 then
		local position = math.random(copy.n)
		copy[position] = math.random(2) == 1 and values.like(fz, copy[position]) or values.any(fz)
	elseif roll == 4 then
		copy.n = copy.n + 1
		copy[copy.n] = values.any(fz)
	end
	return copy
end

local function arguments_for(fz, target)
	local corpus = fz.corpus[target]
	if corpus and math.random(2) == 1 then
		return mutated(fz, values.pick(corpus))
	end
	return values.arguments(fz)
end

-- A render refuses most queue edits until it ends, so the calls that start one are picked less often.
local RARE_GLOBALS = { mrq_render_queue = true, mrq_render_job = true }

function steps.global_choices(globals)
	local choices = {}
	for index, global in ipairs(globals) do
		choices[index] = { RARE_GLOBALS[global.name] and 1 or 5, global }
	end
	return choices
end

local function global_step(global, arguments)
	return maybe_in_coroutine(actions.call_step(global.name, global.fn, arguments, true))
end

local function random_global_step(fz)
	local global = values.weighted_pick(fz.global_choices)[2]
	return global_step(global, arguments_for(fz, global.name))
end

-- Mostly the handle itself as self; sometimes another handle (of any kind) or any value.
local function method_self(fz, entry)
	local roll = math.random(10)
	if roll <= 7 then
		return values.arg(entry.table, entry.name)
	end
	if roll <= 9 then
		local other = targets.random_handle(fz)
		return values.arg(other.table, other.name)
	end
	return values.any(fz)
end

local function method_step(fz, entry, method, arguments)
	local fn = rawget(entry.table, method)
	local self = method_self(fz, entry)
	local list = argument_values(arguments)
	local text
	if self.value == entry.table then
		text = string.format("%s:%s(%s)", entry.name, method, trace.arguments(arguments))
	else
		local separator = arguments.n > 0 and ", " or ""
		text = string.format("%s.%s(%s%s%s)", entry.name, method, self.text, separator, trace.arguments(arguments))
	end
	return maybe_in_coroutine({
		target = entry.kind .. ":" .. method, checked = true, text = text, arguments = arguments,
		run = function() return fn(self.value, table.unpack(list, 1, arguments.n)) end,
	})
end

local function random_method_step(fz, entry)
	targets.touch_handle(fz, entry)
	local method = values.pick(entry.methods)
	return method_step(fz, entry, method, arguments_for(fz, entry.kind .. ":" .. method))
end

-- Calls whose names say that they end objects: the same words find the graph side's removals with no change here.
local DISRUPTING_WORDS = { "delete", "remove", "allocate", "load_queue" }

local function is_disrupting(name)
	for _, word in ipairs(DISRUPTING_WORDS) do
		if name:find(word, 1, true) then
			return true
		end
	end
	return false
end

-- The handle's own strings (a setting's class name, a preset's path...) are the likely arguments of the call that
-- ends its object.
local function own_strings_arguments(fz, entry)
	local fields = {}
	for key, field in next, entry.table do
		if type(key) == "string" and type(field) == "string" then
			fields[#fields + 1] = key
		end
	end
	table.sort(fields)
	if #fields == 0 or math.random(3) == 1 then
		return nil
	end
	local field = values.pick(fields)
	return table.pack(values.arg(rawget(entry.table, field), entry.name .. "." .. field))
end

local function disrupting_calls(fz)
	local calls = {}
	for _, global in ipairs(fz.globals) do
		if is_disrupting(global.name) then
			calls[#calls + 1] = { global = global }
		end
	end
	for _, entry in ipairs(fz.handles) do
		for _, method in ipairs(entry.methods) do
			if is_disrupting(method) then
				calls[#calls + 1] = { entry = entry, method = method }
			end
		end
	end
	return calls
end

local function disrupting_step(fz, victim)
	local calls = disrupting_calls(fz)
	if #calls == 0 or math.random(4) == 1 then
		return actions.disrupting_editor_step(fz, victim)
	end
	local call = values.pick(calls)
	local target = call.global and call.global.name or (call.entry.kind .. ":" .. call.method)
	local arguments = own_strings_arguments(fz, victim) or arguments_for(fz, target)
	if call.global then
		return global_step(call.global, arguments)
	end
	return method_step(fz, call.entry, call.method, arguments)
end

-- A call that may end the object of a handle, then at once a method of that handle: the object has then left its
-- queue, preset or package but is not collected yet, which is where a stale pointer is used.
local function disrupt_then_use(fz)
	local victim = targets.random_handle(fz)
	local first = disrupting_step(fz, victim)
	fz.pending_steps[#fz.pending_steps + 1] = random_method_step(fz, victim)
	return first
end

function steps.next(fz)
	if #fz.pending_steps > 0 then
		return table.remove(fz.pending_steps, 1)
	end
	local roll = math.random(100)
	if roll <= 3 then
		return actions.end_render_step()
	end
	if roll <= 15 then
		local step = actions.random_step(fz)
		if step then
			return step
		end
	end
	if #fz.handles > 0 then
		if roll <= 21 then
			return disrupt_then_use(fz)
		end
		if roll <= 65 then
			return random_method_step(fz, targets.random_handle(fz))
		end
	end
	return random_global_step(fz)
end

return steps
