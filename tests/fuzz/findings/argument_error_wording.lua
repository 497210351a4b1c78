-- A string or boolean argument of the wrong type raises an error that does not say "bad argument": sol2 3.3.0 leaves
-- out its "(bad argument into '...')" part when the conversion gives no reason of its own, so the message is only
-- "stack index 1, expected string, received number: ". A script (or the fuzzer) cannot tell it from a fault inside
-- the call. Integer parameters keep the full wording, as the last line shows.
local job = mrq_add_job("Cinematics/Intro")
editor.create_config("/Game/Fz/Cfg1")
local config = mrq_open_config("Fz/Cfg1")
local calls = {
	{ "mrq_add_job(5)", function() return mrq_add_job(5) end },
	{ "mrq_open_config({})", function() return mrq_open_config({}) end },
	{ "mrq_save_queue()", function() return mrq_save_queue() end },
	{ "job:set_author()", function() return job:set_author() end },
	{ "job:set_enabled(1)", function() return job:set_enabled(1) end },
	{ "config:find_or_add_setting(io.stdout)", function() return config:find_or_add_setting(io.stdout) end },
	{ "mrq_get_job(\"x\")", function() return mrq_get_job("x") end },
}
for _, call in ipairs(calls) do
	local ok, message = pcall(call[2])
	print(string.format("%-40s %s", call[1], ok and "returned" or string.format("%q", message)))
end
