-- Graph evaluation: the flattened graph's branches, output settings, resolutions, file outputs and variables; option
-- errors in their order; the branch and tag searches; the job handle's graph methods.

local features = mrg_support().features
editor.create_graph("/Game/Graphs/Eval")
local graph = mrq_open_graph("Graphs/Eval")
mrq_delete_all_jobs()

-- A bare graph: the Globals branch alone, engine defaults from the class default object, a transient job.
editor.clear_log()
local bare = graph:evaluate()
check.eq({ bare.ok, bare.branches, bare.branch_count, bare.job_is_transient, bare.variables, bare.file_outputs },
	{ true, { "Globals" }, 1, true, {}, {} }, "bare graph")
check.matches(bare.job, "^/Engine/Transient%.", "a transient job")
check.eq(bare.variables_source, features.evaluated_variables and "evaluated" or "graph_defaults", "variable source of this engine")
local output = bare.output
check.eq({ output.is_cdo, output.directory, output.directory_overridden, output.graph_output_directory },
	{ true, "{project_dir}/Saved/MovieRenders/", false, "" }, "directory defaults")
check.eq(output.resolution, { profile = "1080p (FHD)", width = 1920, height = 1080, description = "", valid = true }, "resolution")
check.eq(output.frame_rate, { numerator = 24, denominator = 1, overridden = false, default_used = true }, "frame rate")
check.eq(output.versioning, { auto = true, number = 1, overridden = false }, "versioning")
check.eq({ output.zero_pad, output.frame_offset, output.handle_frames, output.overwrite_existing, output.timecode_start },
	{ 4, 0, 0, true, "00:00:00:00" }, "frame numbering")
check.eq(output.custom_range.shape, features.playback_range_bound and "bound" or "frames", "playback range form")
check.eq(output.resolution_queries, features.resolution_queries, "resolution queries of this engine")
check.lines({ "[OK] graph:evaluate -> 1 branches" }, "one line; the engine's render-layer error stays in the engine log")

-- Resolutions: overscan scales each axis up (ceiling), the crop rectangle centres the desired size (floor).
if features.resolution_queries then
	local scaled = graph:evaluate({ overscan = 0.1 }).output
	check.eq({ scaled.desired, scaled.overscanned, scaled.backbuffer },
		{ { width = 1920, height = 1080 }, { width = 2112, height = 1188 }, { width = 2112, height = 1188 } }, "overscan 0.1")
	check.eq(scaled.crop_rect, { min_x = 96, min_y = 54, max_x = 2016, max_y = 1134, width = 1920, height = 1080 }, "crop 0.1")
	local odd = graph:evaluate({ overscan = 0.0005 }).output
	check.eq({ odd.overscanned, odd.crop_rect.min_x, odd.crop_rect.min_y }, { { width = 1921, height = 1081 }, 0, 0 }, "odd differences floor")
	local resolution = graph:resolution({ overscan = 0.25, aspect_ratio = 2 })
	check.eq({ resolution.ok, resolution.overscanned, resolution.resolution.profile, resolution.aspect_ratio },
		{ true, { width = 2400, height = 1350 }, "1080p (FHD)", 2.0 }, "graph:resolution")
	check.truthy(math.abs(resolution.overscan - 0.25) < 1e-6, "overscan echoed as a 32-bit float")
else
	check.eq(graph:resolution(), { ok = false, supported = false, min_version = "5.6",
		error = string.format("unsupported: resolution queries needs UE 5.6+ (this editor is %s)", editor.engine_version():match("^%d+%.%d+")) },
		"refused below 5.6")
end

-- Option errors, in the order job, overscan, aspect_ratio; keys of another type are ignored.
editor.clear_log()
check.eq(graph:evaluate({ job = 1 }).error, "job index 1 out of range (1-0)", "no job in the queue")
local job = mrq_add_job("Cinematics/Intro")
check.eq(graph:evaluate({ job = 0 }).error, "job index 0 out of range (1-1)", "index 0")
check.eq(graph:evaluate({ job = 2, overscan = 5, aspect_ratio = -1 }).error, "job index 2 out of range (1-1)", "job first")
check.eq(graph:evaluate({ overscan = 1.0001 }).error, "overscan must be between 0 and 1", "overscan above 1")
check.eq(graph:evaluate({ overscan = -0.1, aspect_ratio = -1 }).error, "overscan must be between 0 and 1", "overscan before aspect")
check.eq(graph:evaluate({ overscan = 0 / 0 }).error, "overscan must be between 0 and 1", "NaN overscan")
check.eq(graph:evaluate({ aspect_ratio = -1 }).error, "aspect_ratio must be >= 0", "negative aspect")
check.eq(graph:output_settings({ aspect_ratio = 0 / 0 }).error, "aspect_ratio must be >= 0", "NaN aspect")
check.lines({
	"[FAIL] graph:evaluate -> job index 1 out of range (1-0)",
	"[OK] mrq_add_job -> job added for /Game/Cinematics/Intro (queue now has 1 jobs)",
	"[FAIL] graph:evaluate -> job index 0 out of range (1-1)",
	"[FAIL] graph:evaluate -> job index 2 out of range (1-1)",
	"[FAIL] graph:evaluate -> overscan must be between 0 and 1",
	"[FAIL] graph:evaluate -> overscan must be between 0 and 1",
	"[FAIL] graph:evaluate -> overscan must be between 0 and 1",
	"[FAIL] graph:evaluate -> aspect_ratio must be >= 0",
	"[FAIL] graph:output_settings -> aspect_ratio must be >= 0",
}, "option failure lines")
check.eq(graph:evaluate({ overscan = 1, aspect_ratio = 0, shot_index = -5 }).ok, true, "bounds accepted, negative shot index")
check.eq(graph:evaluate({ job = "1", overscan = "lots" }).job_is_transient, true, "wrong types are absent keys")
local hostile = setmetatable({}, { __index = function() error("options refuse to be read") end })
check.eq(graph:evaluate(hostile).ok, true, "a refusing __index leaves every key absent")
check.eq(graph:evaluate(setmetatable({}, { __index = { overscan = 2 } })).error, "overscan must be between 0 and 1", "__index tables are read")

-- A queue job as root job, and the job handle's own methods.
check.eq(job:evaluate().error, "job is not using a graph configuration (call job:set_graph first)", "job without a graph")
job:set_graph("Graphs/Eval")
local queued = graph:evaluate({ job = 1 })
check.eq({ queued.job_is_transient, queued.job == bare.job }, { false, false }, "the queue job is used")
editor.clear_log()
check.eq(job:evaluate(3).branches, { "Globals" }, "job:evaluate")
check.lines({ "[OK] job:evaluate" }, "job:evaluate line")
local directory = job:output_directory()
check.eq({ directory.ok, directory.error }, { true, nil }, "output directory resolved")
check.matches(directory.path, "^/.*/Saved/MovieRenders/$", "tokens resolved to an absolute folder")

-- Structure: branches, file outputs per branch, the raw output directory, variables with their defaults.
graph:add_output("Beauty")
graph:add_variable("Take")
local settings = graph:add_node("GlobalOutputSetting", "globals")
local png = graph:add_node("ImageSequenceOutputNode_PNG", "farm")
check.eq(graph:output_directory(), "", "nothing on the Globals branch yet")
check.eq(graph:connect(settings.id, "", "output", "Globals"), true, "output settings on Globals")
check.eq(graph:connect(png.id, "", "output", "Beauty"), true, "PNG output on Beauty")
check.eq(graph:output_directory(), "{project_dir}/Saved/MovieRenders/", "the node's default directory")
check.eq(graph:branches(), { "Globals", "Beauty" }, "branches")
local wired = graph:evaluate()
check.eq({ wired.branches, wired.output.is_cdo, wired.output.graph_output_directory },
	{ { "Globals", "Beauty" }, false, "{project_dir}/Saved/MovieRenders/" }, "the graph's own output node")
check.eq(wired.file_outputs, { { branch = "Beauty", class = "MovieGraphImageSequenceOutputNode_PNG",
	file_name_format = "{sequence_name}.{layer_name}.{frame_number}" } }, "file outputs")
check.eq(wired.variables, { Take = "0.000000" }, "a new variable holds a float 0")
if features.evaluated_variables then
	check.eq(wired.evaluated_graphs, { graph.path }, "the graphs that took part")
else
	check.eq(wired.evaluated_graphs, {}, "no evaluated graphs on this engine")
end

-- Searches by branch and by tag.
if features.node_search then
	editor.clear_log()
	check.eq(graph:nodes_for_branch("Nope").error, "branch not found: Nope", "unknown branch")
	check.eq(graph:nodes_for_branch("Globals", "NoSuchNode").error, "node class not found: NoSuchNode", "unknown class")
	check.eq(graph:nodes_for_tag("farm", "NoSuchNode").error, "node class not found: NoSuchNode", "unknown class for tags")
	local on_globals = graph:nodes_for_branch("Globals")
	check.eq({ #on_globals, on_globals[1].id }, { 1, settings.id }, "setting nodes on Globals")
	check.eq(#graph:nodes_for_branch("Beauty", "MovieGraphGlobalOutputSettingNode", true), 0, "exact class on Beauty")
	check.eq(graph:nodes_for_tag("farm")[1].id, png.id, "tag on any branch")
	check.eq(#graph:nodes_for_tag("FARM"), 0, "tags are case-sensitive")
	check.eq(#graph:nodes_for_tag("farm", nil, "Globals"), 0, "tag filtered by branch")
	check.eq(#editor.log(), 3, "one line per failure")
else
	check.eq(graph:nodes_for_branch("Globals").supported, false, "branch search refused")
	check.eq(graph:nodes_for_tag("farm").supported, false, "tag search refused")
end

-- A deleted graph fails every evaluating method with one line and a failure table.
editor.delete_asset("/Game/Graphs/Eval")
editor.collect_garbage()
editor.clear_log()
check.eq(graph:evaluate(), { ok = false, error = "graph no longer valid" }, "evaluate")
check.eq(graph:output_directory().ok, false, "output_directory")
check.eq(graph:branches().ok, false, "branches")
check.eq(job:evaluate().error, "job has no graph preset", "the job's graph is gone")
check.lines({
	"[FAIL] graph:evaluate -> graph no longer valid",
	"[FAIL] graph:output_directory -> graph no longer valid",
	"[FAIL] graph:branches -> graph no longer valid",
	"[FAIL] job:evaluate -> job has no graph preset",
}, "dead graph lines")

check.summary()
