-- Evaluate the sample project's graph for a queue job, as a render would see it: per branch, where the files go,
-- at which resolution, and the names the first frames will get.
-- Run it with: vlmr run examples/graph_evaluate.lua

-- A small graph: output settings on Globals, and a "Beauty" render layer written as PNG files.
local graph = mrq_open_graph("Graphs/ExampleGraph")
local settings = graph:add_node("GlobalOutputSetting")
graph:connect("input", "Globals", settings.id, "Globals")
graph:connect(settings.id, "Globals", "output", "Globals")
graph:add_output("Beauty")
local layer = graph:add_node("RenderLayer")
local png = graph:add_node("ImageSequenceOutputNode_PNG")
graph:connect(layer.id, "", png.id, "")
graph:connect(png.id, "", "output", "Beauty")

-- The job renders the intro sequence with this graph; evaluating for it lets its own variable values take part.
local job = mrq_allocate_job("Cinematics/Intro")
job:set_graph("Graphs/ExampleGraph")
local evaluation = graph:evaluate({ job = 1 })
if not evaluation.ok then
	error(evaluation.error)
end

local output = evaluation.output
print(string.format("resolution %s: %d x %d", output.resolution.profile, output.resolution.width, output.resolution.height))
print(string.format("frame rate %d/%d, frame numbers padded to %d digits", output.frame_rate.numerator,
	output.frame_rate.denominator, output.zero_pad))

local directory = job:output_directory()
print("files go to " .. (directory.ok and directory.path or ("(unresolved: " .. directory.error .. ")")))

for _, branch in ipairs(evaluation.branches) do
	print("branch " .. branch)
	for _, file_output in ipairs(evaluation.file_outputs) do
		if file_output.branch == branch then
			print("  " .. file_output.class)
			for frame = 0, 2 do
				local name = mrg_resolve_format(output.directory .. "/" .. file_output.file_name_format, {
					job = 1, root_frame = frame, zero_pad = output.zero_pad,
					format_overrides = { ext = "png", layer_name = branch },
				})
				print("    " .. name.resolved)
			end
		end
	end
end
