-- Preset assets and setting handles: opening, listing classes, adding and removing settings, properties and
-- console variables, saving.

editor.create_config("/Game/Presets/Base")

editor.clear_log()
check.eq(mrq_open_config("Presets/Nope"), nil, "missing preset")
check.eq(mrq_open_config(""), nil, "empty path")
local config = mrq_open_config("Presets/Base")
check.eq(config.path, "/Game/Presets/Base.Base", "handle path")
local by_object_path = mrq_open_config("/Game/Presets/Base.Base")
check.eq(by_object_path.path, config.path, "a full object path is passed on unchanged")
check.lines({
	"[FAIL] mrq_open_config -> config asset not found: /Game/Presets/Nope",
	"[FAIL] mrq_open_config -> config asset not found: /Game/",
	"[OK] mrq_open_config -> /Game/Presets/Base",
	"[OK] mrq_open_config -> /Game/Presets/Base.Base",
}, "open lines")

-- Listing hides abstract and deprecated classes; the filter ignores case.
editor.clear_log()
local all = mrq_list_settings()
local listed = {}
for _, row in ipairs(all) do
	listed[row.name] = row.display_name
end
check.truthy(listed.MoviePipelineOutputSetting, "output setting listed")
check.truthy(listed.MoviePipelineConsoleVariableSetting, "console variables listed")
check.falsy(listed.MoviePipelineSetting, "abstract base hidden")
check.falsy(listed.MoviePipelineRenderPass, "abstract render pass hidden")
local filtered = mrq_list_settings("CONSOLEVARIABLE")
check.eq(#filtered, 1, "filter matches one class")
check.eq(filtered[1].name, "MoviePipelineConsoleVariableSetting", "filtered class")
check.eq(#mrq_list_settings(""), #all, "an empty filter is no filter")
check.lines({
	string.format("[OK] mrq_list_settings -> %d classes", #all),
	"[OK] mrq_list_settings -> 1 classes",
	string.format("[OK] mrq_list_settings -> %d classes", #all),
}, "list lines")

-- A deprecated class is never listed, yet it is found and added by name.
check.eq(#mrq_list_settings("StandInLegacy"), 0, "deprecated class not listed")
local legacy = config:find_or_add_setting("StandInLegacy")
check.matches(legacy and legacy._name, "StandInLegacySetting$", "deprecated class found by the substring pass")
check.eq(config:remove_setting("StandInLegacy"), true, "and removed again")

editor.clear_log()
local info = config:info()
check.eq(info.path, "/Game/Presets/Base.Base", "info path")
check.eq(info.setting_count, 1, "a new preset holds its output setting")
check.eq(info.settings, { { name = "MoviePipelineOutputSetting", is_enabled = true } }, "info rows")

local aa = config:find_or_add_setting("AntiAliasing")
check.eq(aa._name, "MoviePipelineAntiAliasingSetting", "substring pass")
check.eq(config:find_or_add_setting("NoSuchThing"), nil, "unknown class")
check.eq(config:remove_setting("MoviePipelineCameraSetting"), nil, "not in the preset")
check.lines({
	"[OK] config:find_or_add_setting -> MoviePipelineAntiAliasingSetting",
	"[FAIL] config:find_or_add_setting -> class not found: NoSuchThing",
	"[FAIL] config:remove_setting -> setting not found: MoviePipelineCameraSetting",
}, "config setting lines")

-- Properties: get is quiet on a miss, set reports in the log only.
editor.clear_log()
check.eq(aa:get("SpatialSampleCount"), "1", "default sample count")
check.eq(aa:get("NoSuchProperty"), nil, "quiet miss")
check.eq(select("#", aa:set("SpatialSampleCount", "8")), 0, "set returns nothing")
check.eq(aa:get("spatialsamplecount"), "8", "names ignore case")
check.eq(select("#", aa:set("NoSuchProperty", "1")), 0, "set of a missing property returns nothing")
aa:set("SpatialSampleCount", "many")
check.eq(aa:get("SpatialSampleCount"), "8", "a refused value leaves the old one")
aa:set("AntiAliasingMethod", "AAM_TemporalAA")
check.eq(aa:get("AntiAliasingMethod"), "AAM_TemporalAA", "enum by name")
check.eq(editor.log()[1], "[OK] set SpatialSampleCount = 8", "set line")
check.eq(editor.log()[2], "[FAIL] set -> property 'NoSuchProperty' not found", "missing property line")
check.matches(editor.log()[3], "^%[FAIL%] set %-> failed to set 'SpatialSampleCount' = 'many' %(.+%)$", "refused value line")

-- A soft path with a short package name is refused before the engine sees it; the old path stays.
local burn_in = config:find_or_add_setting("BurnIn")
local default_burn_in = burn_in:get("BurnInClass")
editor.clear_log()
burn_in:set("BurnInClass", "HeroBurnIn")
check.eq(editor.log()[1], "[FAIL] set -> failed to set 'BurnInClass' = 'HeroBurnIn' ('HeroBurnIn' is not a path the engine can store; a path starts at a mount point such as /Game/)", "short soft path")
check.eq(burn_in:get("BurnInClass"), default_burn_in, "the old path stays")
burn_in:set("BurnInClass", "/Game/Overlays/Hero.Hero_C")
check.eq(burn_in:get("BurnInClass"), "/Game/Overlays/Hero.Hero_C", "a full path is stored")

local properties = {}
for _, row in ipairs(aa:list_properties()) do
	properties[row.name] = row
end
check.eq(properties.SpatialSampleCount, { name = "SpatialSampleCount", type = "int32", value = "8" }, "property row")
check.eq(properties.AntiAliasingMethod.type, "TEnumAsByte<EAntiAliasingMethod>", "byte enum type")
check.eq(properties.bEnabled, { name = "bEnabled", type = "bool", value = "True" }, "inherited property")

-- Console variables: the value is narrowed to a 32-bit float.
local cvars = config:find_or_add_setting("MoviePipelineConsoleVariableSetting")
check.eq(cvars:add_or_update_console_variable("r.ScreenPercentage", 0.1), true, "added")
check.eq(cvars:add_or_update_console_variable("r.Tonemapper.Sharpen", 2), true, "second")
check.eq(cvars:set_console_variable_enabled("r.Tonemapper.Sharpen", false), true, "disabled")
check.eq(cvars:set_console_variable_enabled("r.Unknown", false), false, "unknown variable")
local rows = cvars:list_console_variables()
check.eq(#rows, 2, "two variables")
check.eq(rows[1].name, "r.ScreenPercentage", "first name")
check.truthy(rows[1].value ~= 0.1 and math.abs(rows[1].value - 0.1) < 1e-7, "the float's value, not the double's")
check.eq(string.format("%.9g", rows[1].value), "0.100000001", "nearest float to 0.1")
check.eq(rows[2].is_enabled, false, "enable flag")
check.eq(cvars:remove_console_variable("r.ScreenPercentage"), true, "removed")
check.eq(cvars:remove_console_variable("r.ScreenPercentage"), false, "nothing left to remove")

editor.clear_log()
check.eq(aa:add_or_update_console_variable("r.X", 1), nil, "not a console-variable setting")
check.eq(aa:remove_console_variable("r.X"), nil, "remove on another class")
check.eq(aa:set_console_variable_enabled("r.X", true), nil, "enable on another class")
check.eq(aa:list_console_variables(), nil, "list on another class")
check.lines({
	"[FAIL] add_or_update_console_variable -> setting is not MoviePipelineConsoleVariableSetting",
	"[FAIL] remove_console_variable -> setting is not MoviePipelineConsoleVariableSetting",
	"[FAIL] set_console_variable_enabled -> setting is not MoviePipelineConsoleVariableSetting",
	"[FAIL] list_console_variables -> setting is not MoviePipelineConsoleVariableSetting",
}, "console-variable refusals")

-- Saving goes through the host's package guard.
editor.clear_log()
check.eq(config:save(), true, "saved")
editor.set_package_editable("/Game/Presets", false)
check.eq(config:save(), false, "refused by the host")
editor.set_package_editable("/Game/Presets", true)
check.eq(editor.log()[1], "[OK] config:save -> saved '/Game/Presets/Base'", "save line")
check.eq(#editor.log(), 2, "the refusal is the host's one line")
check.matches(editor.log()[2], "^%[FAIL%] config:save %-> ", "host refusal line")

-- A deleted preset leaves handles that fail with their own lines.
editor.delete_asset("/Game/Presets/Base")
editor.clear_log()
check.eq(config:info(), nil, "info")
check.eq(config:list_settings(), nil, "list")
check.eq(config:find_or_add_setting("AntiAliasing"), nil, "find_or_add")
check.eq(config:remove_setting("AntiAliasing"), nil, "remove")
check.eq(config:save(), false, "save")
check.eq(aa:info(), nil, "setting info")
check.eq(aa:set_enabled(true), nil, "setting set_enabled")
check.eq(aa:get("SpatialSampleCount"), nil, "setting get")
check.eq(select("#", aa:set("SpatialSampleCount", "2")), 0, "setting set")
check.eq(aa:list_properties(), nil, "setting list_properties")
check.eq(cvars:list_console_variables(), nil, "console variables of a gone setting")
check.lines({
	"[FAIL] config:info -> config no longer valid",
	"[FAIL] config:list_settings -> config no longer valid",
	"[FAIL] config:find_or_add_setting -> config no longer valid",
	"[FAIL] config:remove_setting -> config no longer valid",
	"[FAIL] config:save -> asset no longer valid",
	"[FAIL] setting:info -> setting no longer valid",
	"[FAIL] setting:set_enabled -> setting no longer valid",
	"[FAIL] get -> setting no longer valid",
	"[FAIL] set -> setting no longer valid",
	"[FAIL] list_properties -> setting no longer valid",
	"[FAIL] list_console_variables -> setting is not MoviePipelineConsoleVariableSetting",
}, "dead handle lines")

check.summary()
