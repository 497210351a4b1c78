-- Second process: loads the queue the first process saved and finds every value again.

check.eq(mrq_get_queue().count, 0, "a new editor starts with an empty queue")
check.eq(mrq_load_queue("Queues/Handoff"), true, "loaded")

local queue = mrq_get_queue()
check.eq(queue.count, 2, "two jobs")
local intro, shot = queue.jobs[1], queue.jobs[2]
check.eq(intro.sequence, "/Game/Cinematics/Intro.Intro", "sequence")
check.eq(intro.map, "/Game/Maps/Main.Main", "map")
check.eq(intro.author, "Ada", "author")
check.eq(intro.job_name, "Intro final", "job name")
check.eq(intro.comment, "grade \u{2014} v2", "comment")
check.eq(intro.is_enabled, true, "enabled")
check.eq(intro.is_consumed, false, "consumed is transient, and loading copies the jobs afresh")
check.eq(shot.is_enabled, false, "disabled job")
check.eq(shot.sequence, "/Game/Seq/Shot010.Shot010", "second sequence")
check.eq(intro.settings, {
	{ name = "MoviePipelineAntiAliasingSetting", is_enabled = true },
	{ name = "MoviePipelineConsoleVariableSetting", is_enabled = true },
	{ name = "MoviePipelineOutputSetting", is_enabled = true },
}, "settings in the configuration's order")

local job = mrq_get_job(1)
local aa = job:find_or_add_setting("AntiAliasing")
check.eq(aa:get("SpatialSampleCount"), "4", "property value")
check.eq(aa:get("AntiAliasingMethod"), "AAM_TemporalAA", "enum value")
local rows = job:find_or_add_setting("ConsoleVariable"):list_console_variables()
check.eq(#rows, 2, "console variables")
check.eq(rows[1].name, "r.ScreenPercentage", "first variable")
check.eq(string.format("%.9g", rows[1].value), "0.100000001", "float value survives")
check.eq(rows[2].is_enabled, false, "enable flag survives")

local preset = mrq_open_config("Presets/Handoff")
check.eq(preset:info().setting_count, 3, "the preset's settings")
check.eq(preset:find_or_add_setting("AntiAliasing"):get("TemporalSampleCount"), "3", "preset property value")
local preset_rows = preset:find_or_add_setting("ConsoleVariable"):list_console_variables()
check.eq(preset_rows[1].name, "r.MotionBlurQuality", "preset console variable")
check.eq(preset_rows[1].value, 4.0, "preset console variable value")
check.summary()
