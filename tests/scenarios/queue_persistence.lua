-- Saving the editor queue as an asset and loading a saved queue back into the editor queue.

editor.clear_log()
check.eq(mrq_save_queue("Queues/Empty"), nil, "an empty queue is not saved")
check.lines({ "[FAIL] mrq_save_queue -> queue is empty, nothing to save" }, "empty queue line")

local first = mrq_add_job("Cinematics/Intro")
first:set_comment("first")
mrq_add_job("Seq/Shot010"):set_enabled(false)

editor.clear_log()
check.eq(mrq_save_queue("Queues/Nightly"), true, "saved")
check.eq(mrq_save_queue("/Game/Queues/Nightly"), true, "saved again over the first")
check.lines({
	"[OK] mrq_save_queue -> saved 2 jobs to '/Game/Queues/Nightly'",
	"[WARN] mrq_save_queue -> overwriting existing asset at '/Game/Queues/Nightly'",
	"[OK] mrq_save_queue -> saved 2 jobs to '/Game/Queues/Nightly'",
}, "save lines")

-- The host's refusal is the only line, and the result is false.
editor.set_package_editable("/Game/Locked", false)
editor.clear_log()
check.eq(mrq_save_queue("Locked/Queue"), false, "refused")
check.eq(#editor.log(), 1, "one line")
check.matches(editor.log()[1], "^%[FAIL%] mrq_save_queue %-> ", "the host's line")
editor.set_package_editable("/Game/Locked", true)

-- The asset is a copy: later edits of the editor queue do not reach it.
first:set_comment("changed after saving")
mrq_delete_job(2)

editor.clear_log()
check.eq(mrq_load_queue("Queues/Missing"), nil, "missing queue")
editor.create_config("/Game/Presets/NotAQueue")
check.eq(mrq_load_queue("Presets/NotAQueue"), nil, "an asset of another class")
check.eq(mrq_load_queue("Queues/Nightly"), true, "loaded")
check.lines({
	"[FAIL] mrq_load_queue -> queue asset not found: /Game/Queues/Missing",
	"[FAIL] mrq_load_queue -> queue asset not found: /Game/Presets/NotAQueue",
	"[OK] mrq_load_queue -> loaded 2 jobs from '/Game/Queues/Nightly'",
}, "load lines")

local queue = mrq_get_queue()
check.eq(queue.count, 2, "two jobs back")
check.eq(queue.jobs[1].comment, "first", "the saved comment")
check.eq(queue.jobs[2].is_enabled, false, "the saved enabled flag")

-- Loading replaced the jobs the old handles pointed at.
editor.collect_garbage()
editor.clear_log()
check.eq(first:info(), nil, "old handle")
check.lines({ "[FAIL] info -> job no longer valid" }, "old handle line")

-- A map path is stored exactly as given; one with spaces, commas or brackets comes back whole from the saved file.
mrq_delete_all_jobs()
local odd_map = "Maps/Night shot, take (2)"
mrq_add_job("Seq/Shot010"):set_map(odd_map)
check.eq(mrq_save_queue("Queues/OddMap"), true, "saved with an odd map path")
editor.unload_package("/Game/Queues/OddMap")
check.eq(mrq_load_queue("Queues/OddMap"), true, "loaded from the file")
check.eq(mrq_get_job(1):info().map, odd_map, "the map path read back")

check.summary()