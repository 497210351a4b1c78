-- The Movie Render Queue part of the editor table: preset assets, sequences with shots, a render in progress.

check.eq(editor.create_config("/Game/Presets/Nightly"), "/Game/Presets/Nightly.Nightly", "new preset asset")
check.eq(editor.create_config("/Game/Presets/Weekly.Weekly"), "/Game/Presets/Weekly.Weekly", "object path form")
check.raises(function() editor.create_config("/Game/Presets/Nightly") end, "editor.create_config: an asset already exists at '/Game/Presets/Nightly'", "existing preset")
check.raises(function() editor.create_config("/Game/Bad//Preset") end, "not a valid package name", "invalid package name")
editor.collect_garbage()
check.eq(editor.unload_package("/Game/Presets/Nightly"), true, "the preset was in memory")
check.raises(function() editor.create_config("/Game/Presets/Nightly") end, "already exists", "the saved preset is on disk")

check.eq(editor.create_graph("/Game/Drafts/Main"), "/Game/Drafts/Main.Main", "new graph asset")
check.raises(function() editor.create_graph("/Game/Drafts/Main") end, "^editor.create_graph: an asset already exists at '/Game/Drafts/Main'$", "existing graph")
check.raises(function() editor.create_graph("/Game/Presets/Weekly") end, "already exists", "a preset's path")
check.raises(function() editor.create_graph({}) end, "string expected", "path as a table")
check.eq(editor.list_files("Content/Drafts"), { "Main.uasset" }, "the graph is saved")

-- Typed variables: any value type this engine names, in a container or not; the engine picks the final name.
check.eq(editor.add_typed_variable("/Game/Drafts/Main", "Take", "Int32"), "Take", "Int32 variable")
check.eq(editor.add_typed_variable("/Game/Drafts/Main.Main", "Take", "Text", "Array"), "Take 1", "an array of texts")
check.raises(function() editor.add_typed_variable("/Game/Drafts/Main", "X", "None") end,
	"^editor.add_typed_variable: this engine has no value type None$", "the hidden None type")
check.raises(function() editor.add_typed_variable("/Game/Drafts/Main", "X", "Float", "Bag") end, "no container type Bag", "unknown container")
check.raises(function() editor.add_typed_variable("/Game/Drafts/Nope", "X", "Float") end, "no graph at /Game/Drafts/Nope", "missing graph")
check.eq(mrq_open_graph("Drafts/Main"):info().variable_count, 2, "two variables added")

local shots = {
	{ name = "sh010", camera = "CineCam_A", start = 0, ["end"] = 48 },
	{ name = "sh020", start = 48 },
}
check.eq(editor.create_level_sequence("/Game/Seq/Edit", { display_rate = { 30000, 1001 }, start_frame = 0, end_frame = 96, shots = shots }),
	"/Game/Seq/Edit.Edit", "sequence with shots and a fractional display rate")
check.raises(function() editor.create_level_sequence("/Game/Seq/Bad", { shots = 7 }) end,
	"opts.shots must be an array of shots", "shots not a table")
check.raises(function() editor.create_level_sequence("/Game/Seq/Bad", { shots = { "sh010" } }) end,
	"opts.shots%[1%] must be a table", "shot not a table")
check.raises(function() editor.create_level_sequence("/Game/Seq/Bad", { shots = { { start = 0 } } }) end,
	"opts.shots%[1%].name must be a string", "shot without a name")
check.raises(function() editor.create_level_sequence("/Game/Seq/Bad", { shots = { { name = "a", camera = 5, start = 0 } } }) end,
	"opts.shots%[1%].camera must be a string", "camera not a string")
check.raises(function() editor.create_level_sequence("/Game/Seq/Bad", { shots = { { name = "a" } } }) end,
	"opts.shots%[1%].start must be an integer", "shot without a start")
check.raises(function() editor.create_level_sequence("/Game/Seq/Bad", { shots = { { name = "a", start = 0 }, { name = "b", start = 9, ["end"] = 2 } } }) end,
	"opts.shots%[2%] must end after it starts", "shot ending before it starts")
check.raises(function() editor.create_level_sequence("/Game/Seq/Bad", { display_rate = { 24, 0 } }) end,
	"opts.display_rate must be a positive frame rate", "zero denominator")
check.raises(function() editor.create_level_sequence("/Game/Seq/Bad", { display_rate = { 24 } }) end,
	"opts.display_rate must be an integer or {numerator, denominator}", "rate without a denominator")
check.eq(editor.unload_package("/Game/Seq/Bad"), false, "nothing was made by the refused calls")

-- A render in progress, as the queue subsystem reports it.
check.eq(mrq_get_queue().is_rendering, false, "idle editor")
editor.set_rendering(true)
editor.set_rendering(true)
check.eq(mrq_get_queue().is_rendering, true, "render in progress")
editor.clear_log()
check.eq(mrq_add_job("/Game/Seq/Edit"), nil, "adding is refused while rendering")
check.lines({ "[FAIL] mrq_add_job -> a render is already in progress" }, "refusal line")
editor.set_rendering(false)
check.eq(mrq_get_queue().is_rendering, false, "render finished")
check.eq(type(mrq_add_job("/Game/Seq/Edit")), "table", "adding works again")
editor.set_rendering(false)
check.raises(function() editor.set_rendering("yes") end, "boolean expected", "flag as a string")

-- Without the queue subsystem every queue function fails, and a render cannot be put in progress.
editor.set_queue_subsystem_available(true)
editor.set_queue_subsystem_available(false)
editor.set_queue_subsystem_available(false)
editor.clear_log()
check.eq(mrq_get_queue(), nil, "no queue without the subsystem")
check.lines({ "[FAIL] mrq_get_queue -> Movie Pipeline subsystem not available" }, "subsystem missing line")
check.raises(function() editor.set_rendering(true) end, "the Movie Pipeline queue subsystem is not available", "no render without the subsystem")
editor.set_queue_subsystem_available(true)
check.eq(mrq_get_queue().count, 1, "the subsystem comes back with its queue")

check.summary()
