-- Renders whose output setting holds extreme values: they finish in the usual number of ticks, name their frames
-- without overflow, and refuse paths the platform cannot hold instead of building and logging them every frame.
editor.set_default_local_executor("/Script/MovieRenderPipelineEditor.MoviePipelinePIEExecutor")

-- A job of Shot010 rendering its 10 frames at 2 fps as PNG files into Saved/<folder>.
local function add_job(folder)
	local job = mrq_add_job("Seq/Shot010")
	job:find_or_add_setting("PNG")
	local output = job:find_or_add_setting("Output")
	output:set("OutputDirectory", '(Path="{project_dir}/Saved/' .. folder .. '")')
	output:set("bUseCustomFrameRate", "True")
	output:set("OutputFrameRate", "(Numerator=2,Denominator=1)")
	return job, output
end

-- Renders the queue; returns the ticks it took and the files left in Saved/<folder>.
local function render(folder)
	check.eq(mrq_render_queue(), true, folder .. ": render starts")
	local ticks = editor.run_until_idle(1000)
	check.eq(mrq_is_rendering(), false, folder .. ": render finished")
	mrq_delete_all_jobs()
	return ticks, editor.list_files("Saved/" .. folder)
end

-- The largest offset: frame numbers count on past the 32-bit range.
local _, offset = add_job("Offset")
offset:set("FrameNumberOffset", "2147483647")
local ticks, files = render("Offset")
check.eq(ticks, 12, "offset: one tick per frame")
check.eq(#files, 10, "offset: every frame written")
check.eq(files[1], "Shot010.2147483647.png", "offset: first frame")
check.eq(files[10], "Shot010.2147483656.png", "offset: last frame")

-- The largest padding with negative frames: the path would exceed the platform's limit, so no frame is written.
local _, padded = add_job("Padded")
padded:set("ZeroPadFrameNumbers", "2147483647")
padded:set("FrameNumberOffset", "-100000")
ticks, files = render("Padded")
check.eq(ticks, 12, "padding: the render goes on")
check.eq(files, {}, "padding: over-long paths are not written")

-- Negative padding is clamped to one digit, so that many frame number tokens make a short name.
local _, repeated = add_job("Repeated")
repeated:set("ZeroPadFrameNumbers", "-2147483647")
repeated:set("FileNameFormat", string.rep("{frame_number}", 30))
ticks, files = render("Repeated")
check.eq(ticks, 12, "repeated tokens: one tick per frame")
check.eq(#files, 10, "repeated tokens: every frame written")
check.eq(files[1], string.rep("0", 30) .. ".png", "repeated tokens: one digit each")

-- Three hundred tokens: a file name too long to write, refused every frame without slowing the render.
local _, many = add_job("Many")
many:set("ZeroPadFrameNumbers", "-2147483647")
many:set("FileNameFormat", string.rep("{frame_number}", 300))
local started = os.clock()
ticks, files = render("Many")
check.eq(ticks, 12, "many tokens: one tick per frame")
check.eq(files, {}, "many tokens: nothing written")
check.truthy(os.clock() - started < 5, "many tokens: the render takes no time")

check.summary()
