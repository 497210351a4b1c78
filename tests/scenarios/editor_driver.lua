-- The editor table: ticks, garbage collection, undo and redo, the session log, and level sequence assets.

check.matches(editor.engine_version(), "^5%.%d+%.%d+$", "engine version")

check.eq(editor.tick(), 1, "one tick by default")
check.eq(editor.tick(3), 3, "three ticks")
check.eq(editor.tick(-2), 0, "no negative ticks")
check.eq(editor.run_until_idle(5), 0, "no render in progress: no tick")
check.eq(editor.run_until_idle(0), 0, "zero frames")

editor.collect_garbage()
check.eq(editor.undo(), false, "nothing to undo in a fresh editor")
check.eq(editor.redo(), false, "nothing to redo in a fresh editor")

editor.clear_log()
check.eq(editor.log(), {}, "cleared log")
help("NoSuchBinding")
help("Another")
check.eq(editor.log(), { "help: no Lua binding named 'NoSuchBinding'", "help: no Lua binding named 'Another'" }, "log lines in order")
local snapshot = editor.log()
snapshot[1] = "changed"
check.eq(editor.log()[1], "help: no Lua binding named 'NoSuchBinding'", "editor.log() returns a copy")

check.eq(editor.create_level_sequence("/Game/Scenario/NewShot"), "/Game/Scenario/NewShot.NewShot", "new level sequence")
check.eq(editor.create_level_sequence("/Game/Scenario/Custom.Custom", { display_rate = 24, start_frame = 0, end_frame = 48 }),
	"/Game/Scenario/Custom.Custom", "object paths name the package too")
check.raises(function() editor.create_level_sequence("/Game/Scenario/NewShot") end, "already exists", "existing asset")
check.raises(function() editor.create_level_sequence("/Game/Bad//Name") end, "not a valid package name", "invalid package name")
check.raises(function() editor.create_level_sequence("/Game/Seq/Shot010") end, "already exists", "sample asset on disk")
check.raises(function() editor.create_level_sequence("/Game/Scenario/Name.Other") end, "not a valid package name", "object name differs")
check.raises(function() editor.create_level_sequence("/Game/Scenario/Backwards", { start_frame = 10, end_frame = 5 }) end,
	"the playback range ends before it starts", "inverted playback range")
check.eq(editor.create_level_sequence("/Game/Scenario/Backwards"), "/Game/Scenario/Backwards.Backwards", "a refused asset leaves its path free")
check.eq(editor.delete_asset("/Game/Seq/Shot010.Other"), false, "an object path naming another object deletes nothing")
check.eq(editor.delete_asset(""), false, "an empty path deletes nothing")

editor.collect_garbage()
check.eq(editor.unload_package("/Game/Scenario/NewShot"), true, "unloaded")
check.eq(editor.unload_package("/Game/Scenario/NewShot"), false, "no longer in memory")
check.eq(editor.delete_asset("/Game/Scenario/NewShot"), true, "deleted from disk")
check.eq(editor.delete_asset("/Game/Scenario/NewShot"), false, "nothing left to delete")
check.eq(editor.create_level_sequence("/Game/Scenario/NewShot"), "/Game/Scenario/NewShot.NewShot", "the path is free again")
check.eq(editor.delete_asset("/Game/Scenario/NeverMade"), false, "unknown asset")

editor.set_package_editable("/Game/Scenario", false)
editor.set_package_editable("/Game/Scenario", true)

check.summary()
