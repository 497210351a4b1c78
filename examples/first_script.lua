-- A first script: put two shots in the render queue, configure them, and save the queue for later.
help("MovieRenderQueue")

-- Paths without a leading "/" are under /Game/.
local intro = mrq_allocate_job("Cinematics/Intro")
intro:set_author("Layout team")
intro:set_comment("first pass")

-- Settings are found by any part of their class name.
local aa = intro:find_or_add_setting("AntiAliasing")
aa:set("SpatialSampleCount", "8")
local cvars = intro:find_or_add_setting("ConsoleVariable")
cvars:add_or_update_console_variable("r.ScreenPercentage", 100)

local shot = mrq_add_job("Seq/Shot010")
shot:set_enabled(false)

-- Failures come back as values, with a [FAIL] line in the log.
if mrq_add_job("Seq/NoSuchShot") == nil then
	print("no such sequence, as expected")
end

local queue = mrq_get_queue()
for index, job in ipairs(queue.jobs) do
	print(string.format("%d. %s  enabled=%s  settings=%d", index, job.job_name, tostring(job.is_enabled), #job.settings))
end

mrq_save_queue("Queues/FirstScript")
