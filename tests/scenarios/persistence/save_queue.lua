-- First process: builds a queue with configuration settings and console variables, and saves it.

local intro = mrq_add_job("Cinematics/Intro")
intro:set_author("Ada")
intro:set_job_name("Intro final")
intro:set_comment("grade \u{2014} v2")
intro:set_consumed(true)
local aa = intro:find_or_add_setting("AntiAliasing")
aa:set("SpatialSampleCount", "4")
aa:set("AntiAliasingMethod", "AAM_TemporalAA")
local cvars = intro:find_or_add_setting("ConsoleVariable")
cvars:add_or_update_console_variable("r.ScreenPercentage", 0.1)
cvars:add_or_update_console_variable("r.Shadow.Quality", 3)
cvars:set_console_variable_enabled("r.Shadow.Quality", false)

local shot = mrq_add_job("Seq/Shot010")
shot:set_enabled(false)
shot:set_map("/Game/Maps/Main.Main")

check.eq(mrq_save_queue("Queues/Handoff"), true, "saved for the next process")

-- A preset saved with config:save() comes back too.
editor.create_config("/Game/Presets/Handoff")
local preset = mrq_open_config("Presets/Handoff")
preset:find_or_add_setting("AntiAliasing"):set("TemporalSampleCount", "3")
preset:find_or_add_setting("ConsoleVariable"):add_or_update_console_variable("r.MotionBlurQuality", 4)
check.eq(preset:save(), true, "preset saved")
check.summary()
