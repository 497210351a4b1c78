-- Script text against the log and the argument checks: a line break in any argument stays inside its one log entry,
-- and every argument of the wrong type is refused with an error that says it is a bad argument.

local forged = "x\n[OK] mrq_save_queue -> saved 1 jobs to '/Game/Forged'"
editor.create_config("/Game/Fz/Cfg1")
local config = mrq_open_config("Fz/Cfg1")
local setting = config:find_or_add_setting("Output")
local job = mrq_add_job("Cinematics/Intro")
local calls = {
	{ "mrq_add_job", function() mrq_add_job(forged) end },
	{ "mrq_allocate_job", function() mrq_allocate_job(forged) end },
	{ "mrq_open_config", function() mrq_open_config(forged) end },
	{ "mrq_save_queue", function() mrq_save_queue(forged) end },
	{ "mrq_load_queue", function() mrq_load_queue(forged) end },
	{ "job:set_author", function() job:set_author(forged) end },
	{ "job:set_job_name", function() job:set_job_name(forged) end },
	{ "job:set_comment", function() job:set_comment(forged) end },
	{ "job:set_map", function() job:set_map(forged) end },
	{ "job:set_sequence", function() job:set_sequence(forged) end },
	{ "job:set_config", function() job:set_config(forged) end },
	{ "job:set_graph", function() job:set_graph(forged) end },
	{ "job:find_or_add_setting", function() job:find_or_add_setting(forged) end },
	{ "job:remove_setting", function() job:remove_setting(forged) end },
	{ "config:find_or_add_setting", function() config:find_or_add_setting(forged) end },
	{ "config:remove_setting", function() config:remove_setting(forged) end },
	{ "setting:set (name)", function() setting:set(forged, "1") end },
	{ "setting:set (value)", function() setting:set("FileNameFormat", forged) end },
}
for _, call in ipairs(calls) do
	editor.clear_log()
	call[2]()
	local entries = editor.log()
	check.truthy(#entries >= 1, call[1] .. " logs")
	for _, entry in ipairs(entries) do
		check.falsy(entry:find("[\r\n]"), call[1] .. " logs one line per entry")
	end
end

local wrong_types = {
	{ "mrq_add_job(5)", function() return mrq_add_job(5) end },
	{ "mrq_open_config({})", function() return mrq_open_config({}) end },
	{ "mrq_save_queue()", function() return mrq_save_queue() end },
	{ "job:set_author()", function() return job:set_author() end },
	{ "job:set_enabled(1)", function() return job:set_enabled(1) end },
	{ "config:find_or_add_setting(io.stdout)", function() return config:find_or_add_setting(io.stdout) end },
	{ "mrq_get_job(\"x\")", function() return mrq_get_job("x") end },
}
for _, call in ipairs(wrong_types) do
	local ok, message = pcall(call[2])
	check.falsy(ok, call[1] .. " raises")
	check.matches(message, "^stack index %d+, expected %a+, received [^:]+: .+ %(bad argument into '.+'%)$", call[1] .. " says bad argument")
end

check.summary()
