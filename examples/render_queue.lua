-- Render the sample project's sequences to PNG files and list where the frames went.
-- Run it with: vlmr run --project <sample project> examples/render_queue.lua

local output_dir = "Saved/MovieRenders/RenderQueueExample"

local function queue_for_png(sequence_path, allocate)
	local job = allocate and mrq_allocate_job(sequence_path) or mrq_add_job(sequence_path)
	job:find_or_add_setting("ImageSequenceOutput_PNG")
	local output = job:find_or_add_setting("MoviePipelineOutputSetting")
	output:set("OutputDirectory", '(Path="{project_dir}/' .. output_dir .. '")')
	output:set("FileNameFormat", "{sequence_name}.{shot_name}.{frame_number}")
	return job
end

-- The first job clears the queue; the second one is added after it.
queue_for_png("Cinematics/Intro", true)
queue_for_png("Seq/Shot010", false)

if not mrq_render_queue() then
	error("the render did not start")
end

-- A render advances one frame per editor tick; vlmr run would also wait for it after the script.
local ticks = editor.run_until_idle(100000)
print(string.format("rendered in %d editor ticks", ticks))

local files = editor.list_files(output_dir)
print(string.format("%d frames in <project>/%s:", #files, output_dir))
for index, file in ipairs(files) do
	if index > 10 then
		print(string.format("  ... and %d more", #files - 10))
		break
	end
	print("  " .. file)
end
