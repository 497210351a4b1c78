-- Wrong argument types are Lua errors with the standard messages; the session goes on after each.

check.raises(function() help({}) end, "^.*host_lua_errors%.lua:3: bad argument #1 to 'help' %(string expected, got table%)$", "help with a table")
check.raises(function() editor.tick("soon") end, "host_lua_errors%.lua:%d+: bad argument #1 to 'tick' %(number expected, got string%)$", "tick with a string")
check.raises(function() editor.run_until_idle() end, "host_lua_errors%.lua:%d+: bad argument #1 to 'run_until_idle' %(number expected, got no value%)$", "run_until_idle without frames")
check.raises(function() editor.set_package_editable("/Game/Locked", "no") end, "host_lua_errors%.lua:%d+: bad argument #2 to 'set_package_editable' %(boolean expected, got string%)$", "editable flag as a string")
check.raises(function() editor.create_level_sequence("/Game/Seq/Bad", { start_frame = 1.5 }) end,
	"opts%.start_frame must be an integer", "a fractional start frame")

editor.clear_log()
help("NoSuchBinding")
check.eq(#editor.log(), 1, "the session still works after the errors")

if mrq_get_job then
	check.raises(function() mrq_get_job({}) end, "^stack index 1, expected number, received table: .*%(bad argument into '.*'%)$",
		"sol2's message for a bound closure")
	check.eq(pcall(mrq_get_job, 1), true, "the closure works after an argument error")
end

check.summary()
