-- Graph renders: the pipeline status tick by tick, the files the graph writes, a graceful shutdown, the graph key of
-- the progress tables, and the status and shutdown of a legacy render.

editor.set_default_local_executor("/Script/MovieRenderPipelineEditor.MoviePipelinePIEExecutor")
mrq_delete_all_jobs()

-- Nothing rendering: an inactive status, and nothing to stop.
editor.clear_log()
check.eq(mrg_pipeline_status(), { active = false, ok = true, note = "no active executor" }, "idle status")
check.eq(mrg_request_shutdown(), { ok = false, error = "no render is in progress" }, "idle shutdown")
check.lines({
	"[OK] mrg_pipeline_status -> inactive (no active executor)",
	"[FAIL] mrg_request_shutdown -> no render is in progress",
}, "idle lines")

-- A render without a pipeline yet, as while play-in-editor starts.
editor.set_rendering(true)
editor.clear_log()
check.eq(mrg_pipeline_status(), { active = false, ok = true, is_rendering = true,
	note = "executor is rendering but has no active pipeline yet (PIE starting)" }, "starting status")
check.eq(mrg_request_shutdown({ error = true }), { ok = false,
	error = "executor has no active pipeline yet (PIE still starting); retry or use mrq_cancel_render" }, "starting shutdown")
editor.set_rendering(false)
editor.set_queue_subsystem_available(false)
check.eq(mrg_pipeline_status(), { active = false, ok = true, note = "Movie Pipeline subsystem not available" }, "no subsystem status")
check.eq(mrg_request_shutdown(), { ok = false, error = "Movie Pipeline subsystem not available" }, "no subsystem shutdown")
editor.set_queue_subsystem_available(true)
check.lines({
	"[OK] mrg_pipeline_status -> inactive (executor is rendering but has no active pipeline yet (PIE starting))",
	"[FAIL] mrg_request_shutdown -> executor has no active pipeline yet (PIE still starting); retry or use mrq_cancel_render",
	"[OK] mrg_pipeline_status -> inactive (Movie Pipeline subsystem not available)",
	"[FAIL] mrg_request_shutdown -> Movie Pipeline subsystem not available",
}, "missing link lines")

-- A short sequence of two shots and a graph that warms up, takes three temporal samples per frame and writes PNGs of
-- one render layer.
editor.create_level_sequence("/Game/Scenario/Short", { display_rate = 24, start_frame = 0, end_frame = 4, shots = {
	{ name = "sh010", camera = "Cam_A", start = 0, ["end"] = 2 },
	{ name = "sh020", camera = "Cam_B", start = 2, ["end"] = 4 },
} })
editor.create_graph("/Game/Scenario/RenderGraph")
local graph = mrq_open_graph("Scenario/RenderGraph")
graph:add_output("Beauty")
local settings = graph:add_node("GlobalOutputSetting")
local warm_up = graph:add_node("WarmUpSetting")
local sampling = graph:add_node("SamplingMethod")
local layer = graph:add_node("RenderLayer")
local pass = graph:add_node("DeferredRenderPass")
local png = graph:add_node("ImageSequenceOutputNode_PNG")
for _, link in ipairs({ { settings.id, warm_up.id }, { warm_up.id, sampling.id }, { sampling.id, "output", "Globals" },
	{ layer.id, pass.id }, { pass.id, png.id }, { png.id, "output", "Beauty" } }) do
	check.eq(graph:connect(link[1], "", link[2], link[3] or ""), true, "wired " .. (link[3] or "setting"))
end
local function set_output_directory(folder)
	check.eq(graph:set_node_property(settings.id, "OutputDirectory", '(Path="{project_dir}/Saved/MovieRenders/' .. folder .. '")'),
		true, "output directory " .. folder)
end
set_output_directory("GraphRender")
graph:set_node_property(warm_up.id, "NumWarmUpFrames", 2)
graph:set_node_property(sampling.id, "TemporalSampleCount", 3)
graph:set_node_property(png.id, "FileNameFormat", "{sequence_name}.{layer_name}.{frame_number}")
check.eq(graph:save(), true, "graph saved")

local job = mrq_add_job("Scenario/Short")
check.eq(job:set_graph("Scenario/RenderGraph"), true, "the job renders with the graph")
local legacy_job = mrq_add_job("Seq/Shot010")

-- The names each frame will have, resolved before the render by the routine the pipeline names its files with.
local zero_pad = job:evaluate().output.zero_pad
local function expected_files(folder, frames)
	local names = {}
	for _, frame in ipairs(frames) do
		local resolved = mrg_resolve_format("{project_dir}/Saved/MovieRenders/" .. folder .. "/{sequence_name}.{layer_name}.{frame_number}",
			{ job = 1, root_frame = frame, zero_pad = zero_pad, format_overrides = { layer_name = "beauty", ext = "png" } }).resolved
		names[#names + 1] = resolved:match("[^/]+$")
	end
	return names
end
local function files_in(folder)
	local names = {}
	for _, file in ipairs(editor.list_files("Saved/MovieRenders/" .. folder)) do
		names[#names + 1] = file:match("[^/]+$")
	end
	table.sort(names)
	return names
end
local expected = expected_files("GraphRender", { 0, 1, 2, 3 })
check.eq(expected, { "Short.beauty.0000.png", "Short.beauty.0001.png", "Short.beauty.0002.png", "Short.beauty.0003.png" },
	"resolved names")

-- Appends a value to a list unless it repeats the last one.
local function append_changed(list, value)
	if list[#list] ~= value then
		list[#list + 1] = value
	end
end

-- The whole queue: the graph job first, tick by tick.
check.eq(mrq_render_queue(), true, "render started")
local states, first_shot_states, sub_samples, warm_ups = {}, {}, {}, {}
local frames_rising, first_shot_index, progress_matches = true, {}, true
local last_frame, seen_active, shared_graph_table = -1, nil, true
local executor_progress, executor_progress_rising = 0, true
local first_rendering
for _ = 1, 200 do
	editor.tick(1)
	local status = mrg_pipeline_status()
	if status.active then
		seen_active = seen_active or status
		append_changed(states, status.state)
		if status.frames.current < last_frame then
			frames_rising = false
		end
		last_frame = status.frames.current
		if status.segments.current == 0 and status.state == "ProducingFrames" then
			append_changed(first_shot_states, status.segments.state)
			first_shot_index[status.shot_index] = true
			local metrics = status.work_metrics
			if status.segments.state == "WarmingUp" then
				warm_ups[#warm_ups + 1] = metrics.warm_up_frame_index .. "/" .. metrics.total_warm_up_frames
			elseif status.segments.state == "Rendering" then
				first_rendering = first_rendering or status
				sub_samples[#sub_samples + 1] = metrics.sub_sample_index .. "/" .. metrics.total_sub_samples
			end
		end
		local progress = mrq_render_progress()
		local graph_status = progress.jobs[1].graph
		executor_progress_rising = executor_progress_rising and progress.progress + 1e-6 >= executor_progress
		executor_progress = progress.progress
		progress_matches = progress_matches and progress.jobs[1].pipeline_type == "graph" and progress.jobs[2].pipeline_type == "graph"
			and graph_status.state == status.state and graph_status.frames.current == status.frames.current
			and graph_status.work_metrics.sub_sample_index == status.work_metrics.sub_sample_index
		shared_graph_table = shared_graph_table and progress.jobs[2].graph ~= nil and progress.jobs[2].graph.state == graph_status.state
	elseif seen_active then
		break
	end
end
check.eq(states, { "ProducingFrames", "Finalize", "Export" }, "pipeline states in order")
check.eq(first_shot_states, { "Uninitialized", "WarmingUp", "Rendering" }, "the first shot starts on the tick after set-up, warms up, then renders")
check.eq(first_shot_index, { [1] = true }, "shot_index is 1 on the first shot")
check.eq(warm_ups, { "0/2", "1/2" }, "two warm-up frames")
-- The last sample of a shot's last frame ends the shot in the same tick, so the next status is already the next shot's.
check.eq(sub_samples, { "0/3", "1/3", "2/3", "0/3", "1/3" }, "three temporal samples for each of two frames")
check.truthy(frames_rising, "output frames never went back")
check.eq(last_frame, 4, "four frames output")
check.truthy(progress_matches, "every queued job carries the graph status")
check.truthy(shared_graph_table, "the same status for every job")
-- vlmr run draws its progress bar from the executor's progress, which rises through a graph job as through a legacy one.
check.truthy(executor_progress_rising, "the executor's progress never went back")
check.truthy(executor_progress > 0.3 and executor_progress <= 0.5, "the graph job is half of the queue's progress")

-- The first active status, key by key.
local first = seen_active
check.eq({ first.ok, first.is_rendering, first.pipeline_type, first.job_name, first.frames.total, first.segments.total,
	first.active_shots, first.sequence, first.shutdown_requested },
	{ true, true, "graph", "Short", 4, 2, 2, "/Game/Scenario/Short.Short", false }, "status of the graph render")
check.matches(first.initialization_time, "^%d%d%d%d%-%d%d%-%d%dT%d%d:%d%d:%d%d%.%d%d%dZ$", "initialization time in ISO 8601")
check.matches(first.job, "^/Engine/Transient%.", "the pipeline renders its own copy of the job")
check.eq({ first.shot.outer_name, first.shot.inner_name, first.shot.enabled }, { "sh010", "Cam_A", true }, "current shot")
check.eq({ first.segments.outer, first.segments.inner, first.work_metrics.segment_name ~= nil }, { "sh010", "Cam_A", true }, "segment name")
-- Before the first shot starts there is no camera; once it renders, its cine camera is the current one.
check.eq(first.camera, { focal_length = -1.0, focus_distance = -1.0, aperture = 0.0 }, "no camera before the first shot")
local camera = first_rendering.camera
check.eq({ camera.focal_length, camera.focus_distance }, { 35.0, 100000.0 }, "the shot camera's lens")
check.truthy(math.abs(camera.aperture - 2.8) < 1e-6, "the shot camera's aperture")
check.matches(camera.component, "%.Cam_A$", "the current cine camera is the first shot's")
check.matches(first.root_timecode, "^%d%d:%d%d:%d%d[:;]%d%d$", "root timecode")
check.eq(math.type(first.root_frame), "integer", "root frame")

-- The graph job wrote exactly the frames resolved beforehand, then the legacy job rendered.
editor.run_until_idle(5000)
check.eq(files_in("GraphRender"), expected, "files named as resolved")
check.eq(mrq_get_job(1):is_consumed(), true, "the graph job was rendered to the end")

-- A graceful shutdown in the middle of a frame: that frame is still written, no later one.
mrq_delete_all_jobs()
set_output_directory("GraphShutdown")
graph:set_node_property(warm_up.id, "NumWarmUpFrames", 0)
graph:save()
mrq_add_job("Scenario/Short"):set_graph("Scenario/RenderGraph")
check.eq(mrq_render_queue(), true, "second render started")
local requested
for _ = 1, 100 do
	editor.tick(1)
	local status = mrg_pipeline_status()
	if status.active and status.frames.current == 1 and status.work_metrics.sub_sample_index == 1 then
		editor.clear_log()
		check.eq(mrg_request_shutdown(), true, "shutdown requested")
		check.eq(mrg_request_shutdown({ error = true }), true, "asked twice in one frame")
		requested = mrg_pipeline_status()
		break
	end
end
check.truthy(requested, "the second frame was reached")
check.eq(requested.shutdown_requested, true, "the status shows the request")
check.matches(editor.log()[1], "^%[OK%] mrg_request_shutdown %-> requested %(error=false, pipeline=MovieGraphPipeline_%d+%)$", "request line")
check.eq(editor.log()[2], "[OK] mrg_request_shutdown -> already requested", "second request line")
editor.run_until_idle(2000)
check.eq(files_in("GraphShutdown"), expected_files("GraphShutdown", { 0, 1 }), "the frame in flight is written, no later one")

-- A legacy render: inactive for the graph status, yet it can be asked to stop, once.
mrq_delete_all_jobs()
mrq_add_job("Seq/Shot010")
mrq_render_queue()
editor.tick(3)
editor.clear_log()
check.eq(mrg_pipeline_status(), { active = false, ok = true, is_rendering = true, pipeline_type = "legacy",
	note = "active pipeline is a legacy UMoviePipeline" }, "legacy status")
local progress = mrq_render_progress()
check.eq({ progress.jobs[1].pipeline_type, progress.jobs[1].graph }, { "legacy", nil }, "no graph key for a legacy render")
check.eq(mrg_request_shutdown({ error = 0 }), true, "legacy shutdown")
check.eq(mrg_request_shutdown(), true, "second legacy shutdown")
check.eq(editor.log()[1], "[OK] mrg_pipeline_status -> inactive (active pipeline is a legacy UMoviePipeline)", "legacy status line")
check.matches(editor.log()[3], "^%[OK%] mrg_request_shutdown %-> requested %(error=true, pipeline=MoviePipeline_%d+%)$",
	"any true value asks for an error stop")
check.eq(editor.log()[4], "[OK] mrg_request_shutdown -> already requested", "only one request reaches the pipeline")
editor.run_until_idle(2000)
check.eq(mrq_is_rendering(), false, "the legacy render stopped")
check.eq(mrg_pipeline_status().note, "no active executor", "idle again")
check.summary()
