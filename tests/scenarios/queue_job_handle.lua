-- The job handle: editing one job of the editor queue and the settings of its configuration.

local job = mrq_allocate_job("Cinematics/Intro")
local names = {}
for key, value in pairs(job) do
	if type(value) == "function" then
		names[#names + 1] = key
	end
end
table.sort(names)
check.eq(names, { "evaluate", "find_or_add_setting", "info", "is_consumed", "list_settings", "output_directory",
	"remove_setting", "set_author", "set_comment", "set_config", "set_consumed", "set_enabled", "set_graph", "set_job_name",
	"set_map", "set_sequence" },
	"job methods")

editor.clear_log()
check.eq(select("#", job:set_author("Grace")), 0, "setters return nothing")
job:set_job_name("Hero shot")
job:set_comment("needs review \u{2014} twice")
job:set_enabled(false)
job:set_consumed(true)
check.eq(job:is_consumed(), true, "consumed")
job:set_map("Maps/Main")
job:set_sequence("Seq/Shot1")
check.lines({
	"[OK] set_author -> Grace",
	"[OK] set_job_name -> Hero shot",
	"[OK] set_comment -> needs review \u{2014} twice",
	"[OK] set_enabled -> false",
	"[OK] set_consumed -> true",
	"[OK] set_map -> Maps/Main",
	"[OK] set_sequence -> /Game/Seq/Shot1",
}, "setter lines")

local info = job:info()
check.eq(info.author, "Grace", "author")
check.eq(info.job_name, "Hero shot", "job name")
check.eq(info.comment, "needs review \u{2014} twice", "comment keeps UTF-8")
check.eq(info.is_enabled, false, "disabled")
check.eq(info.is_consumed, true, "consumed")
check.eq(info.sequence, "/Game/Seq/Shot1", "an unchecked sequence path is stored as given")
check.eq(info.config_setting_count, 1, "one setting: the output setting")
check.eq(info.preset_origin, "", "no preset origin")
check.eq(info.graph_preset, "", "no graph preset")
check.eq(info.is_graph_config, false, "legacy config")
check.eq(job.sequence, "/Game/Cinematics/Intro.Intro", "the handle's snapshot is not refreshed")

-- Settings of the job's own configuration, looked up by any spelling of the class name.
editor.clear_log()
local cvars = job:find_or_add_setting("consolevariable")
check.eq(cvars._name, "MoviePipelineConsoleVariableSetting", "substring pass")
local same = job:find_or_add_setting("UMoviePipelineConsoleVariableSetting")
check.eq(same._name, cvars._name, "exact pass with the prefix")
same:set_enabled(false)
check.eq(job:find_or_add_setting("MoviePipelineConsoleVariableSetting"):info().is_enabled, false, "a disabled setting is found, not added again")
check.eq(#job:list_settings(), 2, "two settings")
check.eq(job:remove_setting("NoSuchSetting"), nil, "unknown class")
check.eq(job:remove_setting("MoviePipelineCameraSetting"), nil, "class not in the configuration")
check.eq(job:remove_setting("ConsoleVariable"), true, "removed")
check.eq(job:list_settings()[1].name, "MoviePipelineOutputSetting", "output setting remains")
check.matches(job:list_settings()[1].display_name, "%S", "display name")
check.lines({
	"[OK] find_or_add_setting -> MoviePipelineConsoleVariableSetting",
	"[OK] find_or_add_setting -> MoviePipelineConsoleVariableSetting",
	"[OK] find_or_add_setting -> MoviePipelineConsoleVariableSetting",
	"[FAIL] remove_setting -> class not found: NoSuchSetting",
	"[FAIL] remove_setting -> setting not found: MoviePipelineCameraSetting",
	"[OK] remove_setting -> removed MoviePipelineConsoleVariableSetting",
}, "setting lines")

-- Presets and graphs must exist.
editor.clear_log()
check.eq(job:set_config("Presets/Missing"), nil, "missing preset")
check.eq(job:set_graph("Graphs/Missing"), nil, "missing graph")
editor.create_config("/Game/Presets/Hero")
check.eq(job:set_config("Presets/Hero"), true, "preset applied")
check.eq(job:info().preset_origin, "/Game/Presets/Hero.Hero", "preset origin")
check.lines({
	"[FAIL] set_config -> config asset not found: /Game/Presets/Missing",
	"[FAIL] set_graph -> graph asset not found: /Game/Graphs/Missing",
	"[OK] set_config -> /Game/Presets/Hero",
}, "preset lines")

-- Every method of a deleted job's handle fails with its own line.
mrq_delete_all_jobs()
editor.collect_garbage()
editor.clear_log()
check.eq(job:find_or_add_setting("ConsoleVariable"), nil, "find_or_add_setting")
check.eq(job:remove_setting("ConsoleVariable"), nil, "remove_setting")
check.eq(job:list_settings(), nil, "list_settings")
check.eq(select("#", job:set_map("x")), 1, "a failed setter returns nil")
job:set_author("x")
job:set_job_name("x")
job:set_comment("x")
job:set_enabled(true)
job:set_consumed(false)
job:set_sequence("x")
check.eq(job:set_config("Presets/Hero"), nil, "set_config")
check.eq(job:set_graph("x"), nil, "set_graph")
check.eq(job:info(), nil, "info")
check.eq(job:is_consumed(), nil, "is_consumed")
check.lines({
	"[FAIL] find_or_add_setting -> job no longer valid",
	"[FAIL] remove_setting -> job no longer valid",
	"[FAIL] list_settings -> job no longer valid",
	"[FAIL] set_map -> job no longer valid",
	"[FAIL] set_author -> job no longer valid",
	"[FAIL] set_job_name -> job no longer valid",
	"[FAIL] set_comment -> job no longer valid",
	"[FAIL] set_enabled -> job no longer valid",
	"[FAIL] set_consumed -> job no longer valid",
	"[FAIL] set_sequence -> job no longer valid",
	"[FAIL] set_config -> job no longer valid",
	"[FAIL] set_graph -> job no longer valid",
	"[FAIL] info -> job no longer valid",
}, "dead job lines")

check.summary()
