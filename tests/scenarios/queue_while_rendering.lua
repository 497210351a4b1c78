-- What the queue functions refuse while a render is in progress, and what they still do.

mrq_add_job("Cinematics/Intro")
mrq_add_job("Seq/Shot010")
mrq_save_queue("Queues/BeforeRender")
editor.set_rendering(true)

editor.clear_log()
check.eq(mrq_add_job("Seq/Shot010"), nil, "add refused")
check.eq(mrq_allocate_job("Seq/Shot010"), nil, "allocate refused")
check.eq(mrq_load_queue("Queues/BeforeRender"), nil, "load refused")
check.eq(mrq_get_queue().count, 2, "the queue is untouched")
check.eq(mrq_save_queue("Queues/DuringRender"), true, "saving only reads the queue")
check.eq(type(mrq_duplicate_job(1)), "table", "duplicate is not refused")
check.eq(mrq_set_job_index(3, 1), true, "move is not refused")
check.eq(mrq_delete_job(1), true, "delete is not refused")
check.eq(mrq_get_queue().is_rendering, true, "the queue table says so")
check.lines({
	"[FAIL] mrq_add_job -> a render is already in progress",
	"[FAIL] mrq_allocate_job -> a render is already in progress",
	"[FAIL] mrq_load_queue -> a render is already in progress",
	"[OK] mrq_get_queue -> 2 jobs",
	"[OK] mrq_save_queue -> saved 2 jobs to '/Game/Queues/DuringRender'",
	"[OK] mrq_duplicate_job(1) -> duplicated, queue now has 3 jobs",
	"[OK] mrq_set_job_index -> moved job 3 to 1",
	"[OK] mrq_delete_job(1)",
	"[OK] mrq_get_queue -> 2 jobs",
}, "lines while rendering")

editor.set_rendering(false)
check.eq(mrq_load_queue("Queues/BeforeRender"), true, "loading works once the render is over")
check.summary()
