-- Assertions for scenario scripts, run first by `vlmr run lib/check.lua <scenario>.lua`.
-- Each failed check prints one "FAIL ..." line; check.summary() ends a scenario with "N passed, N failed" and raises
-- an error when a check failed, so that `vlmr run` exits 1.

local check = { passed = 0, failed = 0 }

local function describe(value)
	if type(value) == "string" then
		return string.format("%q", value)
	end
	if type(value) ~= "table" then
		return tostring(value)
	end
	local parts = {}
	for key, item in pairs(value) do
		parts[#parts + 1] = "[" .. describe(key) .. "]=" .. describe(item)
	end
	table.sort(parts)
	return "{" .. table.concat(parts, ", ") .. "}"
end

local function deep_equal(a, b)
	if type(a) ~= "table" or type(b) ~= "table" then
		return a == b and math.type(a) == math.type(b)
	end
	for key, item in pairs(a) do
		if not deep_equal(item, b[key]) then
			return false
		end
	end
	for key in pairs(b) do
		if a[key] == nil then
			return false
		end
	end
	return true
end

local function record(ok, what, detail)
	if ok then
		check.passed = check.passed + 1
	else
		check.failed = check.failed + 1
		print(string.format("FAIL %s: %s", what or "check", detail))
	end
	return ok
end

-- Equal values; tables compare by content, numbers also by subtype (1 is not 1.0).
function check.eq(actual, expected, what)
	return record(deep_equal(actual, expected), what,
		string.format("expected %s, got %s", describe(expected), describe(actual)))
end

function check.truthy(value, what)
	return record(value ~= nil and value ~= false, what, "expected a true value, got " .. describe(value))
end

function check.falsy(value, what)
	return record(value == nil or value == false, what, "expected nil or false, got " .. describe(value))
end

-- The text matches a Lua pattern.
function check.matches(text, pattern, what)
	return record(type(text) == "string" and text:find(pattern) ~= nil, what,
		string.format("expected text matching %q, got %s", pattern, describe(text)))
end

-- The call raises a Lua error whose message matches the pattern.
function check.raises(call, pattern, what)
	local ok, message = pcall(call)
	if ok then
		return record(false, what, "expected a Lua error, the call returned normally")
	end
	return check.matches(tostring(message), pattern, what)
end

-- The session log since the last editor.clear_log() is exactly these lines.
function check.lines(expected, what)
	local actual = editor.log()
	for index = 1, math.max(#actual, #expected) do
		if actual[index] ~= expected[index] then
			return record(false, what or "log lines", string.format("line %d: expected %s, got %s",
				index, describe(expected[index]), describe(actual[index])))
		end
	end
	return record(true, what)
end

function check.summary()
	print(string.format("%d passed, %d failed", check.passed, check.failed))
	if check.failed > 0 then
		error(string.format("%d of %d checks failed", check.failed, check.passed + check.failed), 0)
	end
end

_G.check = check
