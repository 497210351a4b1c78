-- editor.log() holds exactly the lines the session logged, in order: the engine's own log output (a warning about a
-- missing object, the garbage collector's lines) and what the script prints never enter it.

editor.clear_log()
help("NoSuchBinding")
mrq_open_config("Surface/NoSuchPreset")
editor.collect_garbage()
print("printed by the script")
help("Another")

local lines = editor.log()
check.eq(#lines, 3, "three session lines")
check.eq(lines[1], "help: no Lua binding named 'NoSuchBinding'", "the host's line")
check.matches(lines[2], "^%[FAIL%] mrq_open_config %-> ", "the binding's line")
check.eq(lines[3], "help: no Lua binding named 'Another'", "the host's second line")
for index, line in ipairs(lines) do
	check.falsy(line:find("^Log%w+:"), "line " .. index .. " is no engine log line")
end

check.summary()
