-- help(): the registered bindings with their record counts, one binding's records, and unknown names.

editor.clear_log()
help("NoSuchBinding")
check.lines({ "help: no Lua binding named 'NoSuchBinding'" }, "unknown binding")

editor.clear_log()
help()
if mrq_add_job then
	check.lines({
		"help: 2 Lua bindings; help(\"<binding>\") lists a binding's functions",
		"MovieRenderQueue (20 functions)",
		"MovieRenderGraph (23 functions)",
	}, "bindings of the Movie Render Pipeline extension")

	editor.clear_log()
	help("MovieRenderQueue")
	local lines = editor.log()
	check.eq(#lines, 21, "heading and one line per record")
	check.eq(lines[1], "MovieRenderQueue (20 functions)", "heading")
	check.eq(lines[2], "mrq_add_job(sequence_path) \u{2014} Add a render job to the queue for a Level Sequence "
		.. "(does NOT clear existing jobs) \u{2014} returns job handle -> job handle or nil", "first record")
	check.eq(lines[11], "mrq_is_rendering() \u{2014} Check if a render is currently in progress -> bool", "a record without parameters")
else
	check.lines({ "help: 0 Lua bindings; help(\"<binding>\") lists a binding's functions" }, "no extension linked")
end

editor.clear_log()
help("movierenderqueue")
check.eq(#editor.log() > 0, true, "binding names match ignoring case")

check.summary()
