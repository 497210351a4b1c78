-- Render a sequence with the sample project's Movie Render Graph, watch the graph pipeline frame by frame, and list the
-- files it wrote.
-- Run it with: vlmr run examples/render_graph.lua

local output_dir = "Saved/MovieRenders/RenderGraphExample"

-- The example graph starts empty: output settings on Globals, and one render layer whose deferred pass is written as
-- a PNG sequence.
local graph = mrq_open_graph("Graphs/ExampleGraph")
if not graph then
	error("the sample project has no Graphs/ExampleGraph")
end
graph:add_output("Beauty")
local settings = graph:add_node("GlobalOutputSetting")
local layer = graph:add_node("RenderLayer")
local pass = graph:add_node("DeferredRenderPass")
local png = graph:add_node("ImageSequenceOutputNode_PNG")
graph:connect(settings.id, "Globals", "output", "Globals")
graph:connect(layer.id, "", pass.id, "")
graph:connect(pass.id, "", png.id, "")
graph:connect(png.id, "", "output", "Beauty")
graph:set_node_property(settings.id, "OutputDirectory", '(Path="{project_dir}/' .. output_dir .. '")')
if not graph:save() then
	error("the graph could not be saved")
end

-- A job renders through a graph once the graph is its preset.
mrq_delete_all_jobs()
local job = mrq_add_job("Seq/Shot010")
job:set_graph("Graphs/ExampleGraph")
if not mrq_render_queue() then
	error("the render did not start")
end

-- The graph pipeline reports its state, frames and current shot between editor ticks (one frame a tick here).
while mrq_is_rendering() do
	editor.tick(40)
	local status = mrg_pipeline_status()
	if status.active then
		print(string.format("%s: frame %d of %d, shot %d of %d (%s)", status.state, status.frames.current, status.frames.total,
			status.shot_index, status.active_shots, status.segments.state))
	end
end

local files = editor.list_files(output_dir)
print(string.format("%d frames in <project>/%s:", #files, output_dir))
for index, file in ipairs(files) do
	if index > 5 then
		print(string.format("  ... and %d more", #files - 5))
		break
	end
	print("  " .. file)
end
if #files == 0 then
	error("the graph wrote no files")
end
