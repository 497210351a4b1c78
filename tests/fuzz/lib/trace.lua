-- Readable text for the fuzzer's values and calls, the trace it prints, and the ring of the last calls that a
-- failure report shows.
local trace = {}

local QUOTED_LIMIT = 120

-- Printable ASCII stays as it is; every other byte becomes \ddd, so that a quoted text is always one line.
local function escape_byte(byte)
	if byte == "\\" or byte == "\"" then
		return "\\" .. byte
	end
	return string.format("\\%03d", byte:byte())
end

function trace.quote(text)
	local shown = text
	if #text > QUOTED_LIMIT then
		shown = text:sub(1, QUOTED_LIMIT)
	end
	local quoted = "\"" .. shown:gsub("[\0-\31\"\\\127-\255]", escape_byte) .. "\""
	if #text > QUOTED_LIMIT then
		quoted = quoted .. string.format("--[[first %d of %d bytes]]", QUOTED_LIMIT, #text)
	end
	return quoted
end

function trace.arguments(arguments)
	local texts = {}
	for index = 1, arguments.n do
		texts[index] = arguments[index].text
	end
	return table.concat(texts, ", ")
end

-- The last `size` entries, oldest first.
function trace.new_ring(size)
	return { size = size, entries = {}, next = 1, count = 0 }
end

function trace.push(ring, entry)
	ring.entries[ring.next] = entry
	ring.next = ring.next % ring.size + 1
	ring.count = math.min(ring.count + 1, ring.size)
end

function trace.recent(ring)
	local recent = {}
	local first = ring.count < ring.size and 1 or ring.next
	for offset = 0, ring.count - 1 do
		recent[#recent + 1] = ring.entries[(first - 1 + offset) % ring.size + 1]
	end
	return recent
end

-- Report lines go to stderr: stdout carries the session log, which can be large.
function trace.report(line)
	io.stderr:write("fuzz: ", line, "\n")
end

return trace
