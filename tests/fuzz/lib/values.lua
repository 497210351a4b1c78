-- Argument values of every Lua type, each with the text that shows it in the trace.
-- Every choice is drawn from math.random, seeded once, so a seed always gives the same values.
local trace = ...

local values = {}

local function arg(value, text)
	return { value = value, text = text }
end

local function pick(list)
	return list[math.random(#list)]
end

-- One of the { weight, ... } entries, chosen by weight.
function values.weighted_pick(choices)
	local total = 0
	for _, choice in ipairs(choices) do
		total = total + choice[1]
	end
	local roll = math.random(total)
	for _, choice in ipairs(choices) do
		roll = roll - choice[1]
		if roll <= 0 then
			return choice
		end
	end
end

-- Chooses one of { weight, function } by weight and calls it.
function values.weighted(choices, ...)
	return values.weighted_pick(choices)[2](...)
end

-- Paths, class names, property names and values likely to reach real objects of the sample project.
values.REALISTIC_STRINGS = {
	"Cinematics/Intro", "/Game/Cinematics/Intro", "/Game/Cinematics/Intro.Intro", "Seq/Shot010", "/Game/Seq/Shot010",
	"Maps/Main", "/Game/Maps/Main", "/Game/Maps/Main.Main",
	"Fz/Cfg1", "/Game/Fz/Cfg1", "/Game/Fz/Cfg1.Cfg1", "Fz/Cfg2", "Fz/Q1", "/Game/Fz/Q1", "Fz/Q2", "Fz/Graph1", "/Game/Fz/Graph1",
	"Fz/Seq1", "/Temp/Fz/Q3", "/Engine/Transient", "/Script/MovieRenderPipelineEditor.MoviePipelinePIEExecutor",
	"Output", "ConsoleVariable", "consolevariable", "PNG", "EXR", "GameOverride", "AntiAliasing", "BurnIn", "Camera",
	"UMoviePipelineOutputSetting", "MoviePipelineImageSequenceOutput_PNG", "Setting", "DeferredPass",
	"FileNameFormat", "OutputDirectory", "OutputResolution", "ZeroPadFrameNumbers", "FrameNumberOffset",
	"HandleFrameCount", "bUseCustomPlaybackRange", "CustomStartFrame", "CustomEndFrame", "GameModeOverride",
	"SpatialSampleCount", "TemporalSampleCount", "bOverrideExistingOutput", "OutputFrameRate",
	"{sequence_name}.{frame_number}", "{shot_name}/{frame_number_shot}", "(X=64,Y=32)", "(Numerator=24,Denominator=1)",
	"(Path=\"{project_dir}/Saved/MovieRenders/Fz\")", "1", "0", "2", "-1", "true", "false", "r.ScreenPercentage",
	"input", "output", "INPUT", "Globals", "GlobalGameOverrides", "MovieGraphGlobalOutputSettingNode", "NoSuchBranch",
	"Velmire_NoSuchProfile", "720p (HD)", "1080p (FHD)", "{version}", "v{version}",
}

-- Texts that break naive string handling: empty, huge, NUL-holding, invalid UTF-8, control characters, line breaks.
local function hostile_string()
	return pick({
		function() return arg("", "\"\"") end,
		function() return arg(string.rep("x", 2000), "string.rep(\"x\", 2000)") end,
		function() return arg("/Game/" .. string.rep("a", 1100), "\"/Game/\" .. string.rep(\"a\", 1100)") end,
		function() return arg("Fz/" .. string.rep("Q", 300), "\"Fz/\" .. string.rep(\"Q\", 300)") end,
		function() return arg(string.rep("{frame_number}", 8), "string.rep(\"{frame_number}\", 8)") end,
		function() return arg(string.rep("\xff", 1500), "string.rep(\"\\255\", 1500)") end,
		function()
			local text = pick({ "Cinematics/Intro\0/dropped", "\0", "a\0b", "Fz/Q1\0", "Output\0PNG" })
			return arg(text, trace.quote(text))
		end,
		function()
			local text = pick({ "\xff\xfe\xfd", "\xc3\x28", "\xed\xa0\x80", "\xf4\x90\x80\x80", "Intro\xe2\x82",
				"\xc0\xaf", "ÄÖÜ—漢字🎬" })
			return arg(text, trace.quote(text))
		end,
		function()
			local text = pick({ "line1\nline2", "x\r\n[OK] mrq_save_queue -> forged", "\r", "\n", "tab\there",
				"\1\2\27[31m", "\127", "a\vb\fc" })
			return arg(text, trace.quote(text))
		end,
		function()
			local text = pick({ "%s%d%n%p%%", "{", "}", "{{}}", "None", "   ", "/", "/Game/", "/Game//Double",
				"../../Fz", "Fz/../../Fz/Q1", "/Game/Fz/Cfg1.Cfg1:Sub", "/Script/NoSuch.Class", ".", "..",
				"Fz/Q1.", "/Game/Locked/Q", "/Temp/", "C:\\Windows", "*", "?" })
			return arg(text, trace.quote(text))
		end,
	})()
end

-- Property values are set from text, so numbers at the edges of their types come as text too.
local function numeric_string()
	local text = pick({ "2147483647", "-2147483648", "2147483648", "-2147483647", "4294967297", "-100000", "100000",
		"1e309", "nan", "inf", "-inf", "0x10", "1.5", "-0", " 1", "1 ", "9223372036854775808", "-1", "0", "65535" })
	return arg(text, trace.quote(text))
end

local function realistic_string(fz)
	local pool = (#fz.harvested > 0 and math.random(3) == 1) and fz.harvested or values.REALISTIC_STRINGS
	local text = pick(pool)
	return arg(text, trace.quote(text))
end

local EDGE_INTEGERS = {
	{ 0, "0" }, { -1, "-1" }, { 2147483647, "2147483647" }, { 2147483648, "2147483648" }, { -2147483648, "-2147483648" },
	{ -2147483649, "-2147483649" }, { 4294967297, "4294967297" }, { 4294967298, "4294967298" },
	{ 9007199254740993, "9007199254740993" }, { math.maxinteger, "math.maxinteger" }, { math.mininteger, "math.mininteger" },
}

local function integer()
	if math.random(2) == 1 then
		local value = math.random(1, 4)
		return arg(value, tostring(value))
	end
	if math.random(4) == 1 then
		local value = math.random(-20, 20)
		return arg(value, tostring(value))
	end
	local edge = pick(EDGE_INTEGERS)
	return arg(edge[1], edge[2])
end

local EDGE_FLOATS = {
	{ 0 / 0, "0/0" }, { 1 / 0, "1/0" }, { -1 / 0, "-1/0" }, { 1.5, "1.5" }, { -0.0, "-0.0" }, { 2.0, "2.0" },
	{ 0.5, "0.5" }, { 1e308, "1e308" }, { -1e308, "-1e308" }, { 2147483648.0, "2147483648.0" },
	{ 4294967297.0, "4294967297.0" }, { 5e-324, "5e-324" }, { 2 ^ 63, "2^63" },
}

local function float()
	local edge = pick(EDGE_FLOATS)
	return arg(edge[1], edge[2])
end

local function boolean()
	local value = math.random(2) == 1
	return arg(value, tostring(value))
end

local function handle_entry(fz)
	if #fz.handles == 0 then
		return nil
	end
	return pick(fz.handles)
end

local function handle(fz)
	local entry = handle_entry(fz)
	if not entry then
		return arg({}, "{}")
	end
	return arg(entry.table, entry.name)
end

local function job_identity(fz)
	local entry = handle_entry(fz)
	local identity = entry and rawget(entry.table, "__vlmr_mrq_job_identity")
	if type(identity) == "string" and math.random(4) > 1 then
		return identity, entry.name .. ".__vlmr_mrq_job_identity"
	end
	local text = pick({ "", "0", "0x0", "nil", string.rep("0", 300) })
	return text, trace.quote(text)
end

-- Tables shaped like handles without being one: copies of a handle, bare identities, arrays.
local function handle_shaped(fz)
	return pick({
		function()
			local identity, text = job_identity(fz)
			return arg({ __vlmr_mrq_job_identity = identity }, "{ __vlmr_mrq_job_identity = " .. text .. " }")
		end,
		function()
			local entry = handle_entry(fz)
			if not entry then
				return arg({}, "{}")
			end
			local copy = {}
			for key, field in next, entry.table do
				copy[key] = field
			end
			return arg(copy, "copy(" .. entry.name .. ")")
		end,
		function()
			local entry = handle_entry(fz)
			local base = entry and entry.table or {}
			local base_text = entry and entry.name or "{}"
			return arg(setmetatable({}, { __index = base }), "setmetatable({}, { __index = " .. base_text .. " })")
		end,
		function() return arg({ __vlmr_mrq_job_identity = 7 }, "{ __vlmr_mrq_job_identity = 7 }") end,
		function() return arg({ 1, 2, 3 }, "{ 1, 2, 3 }") end,
		function() return arg({}, "{}") end,
		function()
			return arg({ path = "/Game/Fz/Cfg1.Cfg1", _name = "MoviePipelineOutputSetting" },
				"{ path = \"/Game/Fz/Cfg1.Cfg1\", _name = \"MoviePipelineOutputSetting\" }")
		end,
	})()
end

local function callable_or_thread(fz)
	return pick({
		function() return arg(function() end, "function() end") end,
		function() return arg(print, "print") end,
		function() return arg(coroutine.create(function() end), "coroutine.create(function() end)") end,
		function()
			local dead = coroutine.create(function() end)
			coroutine.resume(dead)
			return arg(dead, "<dead coroutine>")
		end,
		function() return arg(io.stdout, "io.stdout") end,
		function() return arg(fz.bare_userdata, "<userdata without metatable>") end,
	})()
end

local function reentrant(fz)
	local value, text = fz.reentrant_value()
	return arg(value, text)
end

-- Option tables as the graph calls read them: known keys with values of every kind, sometimes behind a metatable
-- whose __index runs script code.
local OPTION_KEYS = { "job", "shot_index", "overscan", "aspect_ratio", "graph", "root_frame", "shot_frame", "zero_pad",
	"frame_offset", "version", "next", "as_path", "ensure_absolute", "file_name_override", "format_overrides", "width", "height" }

local function option_table(fz)
	local options, texts = {}, {}
	for _ = 1, math.random(1, 4) do
		local key = pick(OPTION_KEYS)
		local value = values.weighted({ { 4, integer }, { 2, float }, { 2, realistic_string }, { 1, hostile_string },
			{ 1, boolean }, { 1, reentrant } }, fz)
		options[key] = value.value
		texts[#texts + 1] = key .. " = " .. value.text
	end
	local text = "{ " .. table.concat(texts, ", ") .. " }"
	if math.random(4) == 1 then
		local hook = reentrant(fz)
		return arg(setmetatable(options, { __index = function() return hook.value end }),
			"setmetatable(" .. text .. ", { __index = function() return " .. hook.text .. " end })")
	end
	return arg(options, text)
end

local GENERATORS = {
	{ 34, realistic_string },
	{ 12, hostile_string },
	{ 6, numeric_string },
	{ 16, integer },
	{ 4, float },
	{ 6, boolean },
	{ 4, function() return arg(nil, "nil") end },
	{ 12, handle },
	{ 5, handle_shaped },
	{ 4, reentrant },
	{ 3, callable_or_thread },
	{ 5, option_table },
}

function values.any(fz)
	return values.weighted(GENERATORS, fz)
end

-- A value of the same kind as the given one: the likely way past a conversion that the original got through.
local GENERATORS_LIKE = {
	string = { { 3, realistic_string }, { 2, hostile_string }, { 1, numeric_string } },
	number = { { 3, integer }, { 1, float } },
	boolean = { { 1, boolean } },
	table = { { 2, handle }, { 2, handle_shaped }, { 2, reentrant }, { 2, option_table } },
	userdata = { { 1, reentrant }, { 1, callable_or_thread } },
}

function values.like(fz, original)
	local generators = GENERATORS_LIKE[type(original.value)]
	if not generators then
		return values.any(fz)
	end
	return values.weighted(generators, fz)
end

-- Mostly one or two arguments, sometimes none or many; `n` keeps trailing nils.
function values.arguments(fz)
	local count = values.weighted({ { 2, function() return 0 end }, { 5, function() return 1 end },
		{ 5, function() return 2 end }, { 3, function() return 3 end }, { 1, function() return 5 end } })
	local arguments = { n = count }
	for index = 1, count do
		arguments[index] = values.any(fz)
	end
	return arguments
end

values.arg = arg
values.pick = pick
return values
