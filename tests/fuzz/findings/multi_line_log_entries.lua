-- Script text is written into log entries as it is: a line break in an argument makes one entry of two lines, the
-- second of which can pass for a result line of another call. Every call below logs such an entry today; the
-- queue report showed two of them, the fuzzer found the rest.
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
	for _, entry in ipairs(editor.log()) do
		if entry:find("[\r\n]") then
			print(string.format("%-26s logs: %s", call[1], (entry:gsub("\n", "<LF>"))))
		end
	end
end
