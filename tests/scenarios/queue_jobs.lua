-- The editor queue: adding, allocating, duplicating, reordering, deleting, listing and fetching jobs.

editor.clear_log()
check.eq(mrq_get_queue(), { jobs = {}, count = 0, is_rendering = false }, "empty queue table")
check.eq(mrq_delete_all_jobs(), true, "deleting nothing succeeds")
check.eq(mrq_get_job(1), nil, "no job to get")
check.lines({
	"[OK] mrq_get_queue -> 0 jobs",
	"[OK] mrq_delete_all_jobs -> removed 0 jobs",
	"[FAIL] mrq_get_job -> index 1 out of range (1-0)",
}, "empty queue lines")

-- A relative path gets /Game/ in front, and every message prints that path.
editor.clear_log()
local intro = mrq_add_job("Cinematics/Intro")
check.eq(type(intro), "table", "job handle")
check.eq(intro.sequence, "/Game/Cinematics/Intro.Intro", "handle sequence")
check.matches(intro.__vlmr_mrq_job_identity, "^%x+$", "identity is an address")
local shot = mrq_add_job("/Game/Seq/Shot010")
check.eq(mrq_add_job("Cinematics/Missing"), nil, "missing sequence")
check.eq(mrq_add_job(""), nil, "empty path")
check.lines({
	"[OK] mrq_add_job -> job added for /Game/Cinematics/Intro (queue now has 1 jobs)",
	"[OK] mrq_add_job -> job added for /Game/Seq/Shot010 (queue now has 2 jobs)",
	"[FAIL] mrq_add_job -> sequence not found: /Game/Cinematics/Missing",
	"[FAIL] mrq_add_job -> sequence not found: /Game/",
}, "add job lines")

local queue = mrq_get_queue()
check.eq(queue.count, 2, "two jobs")
check.eq(queue.jobs[1].index, 1, "first index")
check.eq(queue.jobs[1].sequence, "/Game/Cinematics/Intro.Intro", "first sequence")
check.eq(queue.jobs[1].map, "/Game/Maps/Main.Main", "map is the editor world")
check.eq(queue.jobs[1].job_name, "Intro", "job name from the sequence asset name")
check.eq(queue.jobs[2].job_name, "Shot010", "second job name")
check.eq(queue.jobs[1].is_enabled, true, "enabled by default")
check.eq(queue.jobs[1].is_consumed, false, "not consumed")
check.eq(queue.jobs[1].is_graph_config, false, "legacy configuration")
check.eq(queue.jobs[1].settings, { { name = "MoviePipelineOutputSetting", is_enabled = true } }, "a new job's configuration")

-- Index checks never reach the engine.
editor.clear_log()
check.eq(mrq_get_job(0), nil, "index 0")
check.eq(mrq_get_job(3), nil, "index past the end")
check.eq(mrq_duplicate_job(5), nil, "duplicate out of range")
check.eq(mrq_set_job_index(7, 9), nil, "source checked first")
check.eq(mrq_set_job_index(1, 3), nil, "target out of range")
check.eq(mrq_delete_job(-1), nil, "negative index")
check.lines({
	"[FAIL] mrq_get_job -> index 0 out of range (1-2)",
	"[FAIL] mrq_get_job -> index 3 out of range (1-2)",
	"[FAIL] mrq_duplicate_job -> index 5 out of range (1-2)",
	"[FAIL] mrq_set_job_index -> source index 7 out of range (1-2)",
	"[FAIL] mrq_set_job_index -> target index 3 out of range (1-2)",
	"[FAIL] mrq_delete_job -> index -1 out of range (1-2)",
}, "range failures")

-- Wrong argument types are Lua errors, and the session goes on.
check.raises(function() mrq_get_job("first") end, "expected number", "string index")
check.raises(function() mrq_add_job({}) end, "expected string", "table path")

editor.clear_log()
local copy = mrq_duplicate_job(1)
check.eq(copy.sequence, "/Game/Cinematics/Intro.Intro", "copy keeps the sequence")
check.truthy(copy.__vlmr_mrq_job_identity ~= intro.__vlmr_mrq_job_identity, "copy is another job")
check.eq(mrq_set_job_index(1, 1), true, "moving a job onto itself")
check.eq(mrq_set_job_index(3, 1), true, "move the copy to the front")
check.eq(mrq_get_job(1).__vlmr_mrq_job_identity, copy.__vlmr_mrq_job_identity, "the copy is first now")
check.lines({
	"[OK] mrq_duplicate_job(1) -> duplicated, queue now has 3 jobs",
	"[OK] mrq_set_job_index -> moved job 1 to 1",
	"[OK] mrq_set_job_index -> moved job 3 to 1",
	"[OK] mrq_get_job(1)",
}, "duplicate and move lines")

-- Two handles of one job are distinct tables acting on the same job.
local again = mrq_get_job(2)
check.truthy(again ~= intro, "a new table per call")
again:set_author("Ada")
check.eq(intro:info().author, "Ada", "both handles reach the same job")

-- A deleted job's handle keeps its data but its methods fail.
editor.clear_log()
check.eq(mrq_delete_job(2), true, "delete")
editor.collect_garbage()
check.eq(intro.sequence, "/Game/Cinematics/Intro.Intro", "the handle keeps its snapshot")
check.eq(intro:info(), nil, "info of a deleted job")
check.eq(intro:is_consumed(), nil, "is_consumed of a deleted job")
check.lines({ "[OK] mrq_delete_job(2)", "[FAIL] info -> job no longer valid" }, "dead handle lines")

-- Allocation empties the queue only after every check passed.
editor.clear_log()
check.eq(mrq_allocate_job("Cinematics/Nope"), nil, "failed allocation")
check.eq(mrq_get_queue().count, 2, "queue untouched by the failed allocation")
local only = mrq_allocate_job("Seq/Shot010")
check.eq(mrq_get_queue().count, 1, "allocation leaves one job")
check.eq(only.sequence, "/Game/Seq/Shot010.Shot010", "allocated job")
check.lines({
	"[FAIL] mrq_allocate_job -> sequence not found: /Game/Cinematics/Nope",
	"[OK] mrq_get_queue -> 2 jobs",
	"[OK] mrq_allocate_job -> job created for /Game/Seq/Shot010 (queue cleared, 1 job)",
	"[OK] mrq_get_queue -> 1 jobs",
}, "allocation lines")

editor.clear_log()
check.eq(mrq_delete_all_jobs(), true, "delete all")
check.lines({ "[OK] mrq_delete_all_jobs -> removed 1 jobs" }, "delete all line")

check.summary()
