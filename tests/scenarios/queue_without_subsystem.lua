-- Without the queue subsystem every queue function fails with its own line; the two groups word it differently.

editor.create_config("/Game/Presets/Still")
editor.set_queue_subsystem_available(false)

editor.clear_log()
check.eq(mrq_add_job("Cinematics/Intro"), nil, "add")
check.eq(mrq_allocate_job("Cinematics/Intro"), nil, "allocate")
check.eq(mrq_get_queue(), nil, "get_queue")
check.eq(mrq_get_job(1), nil, "get_job")
check.eq(mrq_duplicate_job(1), nil, "duplicate")
check.eq(mrq_set_job_index(1, 1), nil, "set_job_index")
check.eq(mrq_delete_job(1), nil, "delete")
check.eq(mrq_delete_all_jobs(), nil, "delete_all")
check.eq(mrq_save_queue("Queues/X"), nil, "save")
check.eq(mrq_load_queue("Queues/X"), nil, "load")
check.lines({
	"[FAIL] mrq_add_job -> Movie Pipeline subsystem not available",
	"[FAIL] mrq_allocate_job -> Movie Pipeline subsystem not available",
	"[FAIL] mrq_get_queue -> Movie Pipeline subsystem not available",
	"[FAIL] mrq_get_job -> Movie Pipeline subsystem not available",
	"[FAIL] mrq_duplicate_job -> subsystem not available",
	"[FAIL] mrq_set_job_index -> subsystem not available",
	"[FAIL] mrq_delete_job -> subsystem not available",
	"[FAIL] mrq_delete_all_jobs -> subsystem not available",
	"[FAIL] mrq_save_queue -> Movie Pipeline subsystem not available",
	"[FAIL] mrq_load_queue -> Movie Pipeline subsystem not available",
}, "subsystem lines")

-- Presets and the class list do not need the queue.
check.eq(mrq_open_config("Presets/Still").path, "/Game/Presets/Still.Still", "presets still open")
check.truthy(#mrq_list_settings() > 0, "classes still listed")
check.summary()
