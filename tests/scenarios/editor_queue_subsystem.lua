-- editor.set_queue_subsystem_available: false deactivates the queue subsystem as a deactivated plugin's is, true
-- activates it again with the jobs its queue had.

local first = mrq_add_job("Cinematics/Intro")
first:set_job_name("Opening")
first:set_comment("keep me")
first:find_or_add_setting("PNG")
mrq_add_job("Seq/Shot010")
local before = mrq_get_queue()
check.eq(before.count, 2, "two jobs before")

editor.set_queue_subsystem_available(true)
check.eq(mrq_get_queue(), before, "true while it is there changes nothing")

editor.set_queue_subsystem_available(false)
check.eq(mrq_get_queue(), nil, "no queue while the subsystem is away")
editor.set_queue_subsystem_available(false)

editor.set_queue_subsystem_available(true)
check.eq(mrq_get_queue(), before, "the same jobs, in order, with their names, comments and settings")
check.eq(mrq_get_job(1):info().job_name, "Opening", "handles to the restored jobs work")
check.eq(type(mrq_add_job("Seq/Shot010")), "table", "the restored queue takes new jobs")
check.eq(mrq_get_queue().count, 3, "three jobs")

-- Taken away and brought back again: the third job comes back too; an empty queue comes back empty.
editor.set_queue_subsystem_available(false)
editor.set_queue_subsystem_available(true)
check.eq(mrq_get_queue().count, 3, "three jobs after a second round")
mrq_delete_all_jobs()
editor.set_queue_subsystem_available(false)
editor.set_queue_subsystem_available(true)
check.eq(mrq_get_queue().count, 0, "an empty queue stays empty")

-- A person cannot take the subsystem away in the middle of a render.
editor.set_rendering(true)
check.raises(function() editor.set_queue_subsystem_available(false) end,
	"^editor.set_queue_subsystem_available: a render is in progress$", "refused while rendering")
check.eq(mrq_get_queue().is_rendering, true, "the render goes on")
editor.set_rendering(false)
check.raises(function() editor.set_queue_subsystem_available(1) end, "boolean expected", "flag as a number")

check.summary()
