-- Set up a Movie Render Graph from the sample project's empty graph: global output settings on the Globals branch,
-- a variable, and a tagged node that later scripts can find; then look at the result and save it.
-- Run it with: vlmr run examples/graph_setup.lua
help("MovieRenderGraph")

local graph = mrq_open_graph("Graphs/ExampleGraph")
if not graph then
	error("the sample project has no Graphs/ExampleGraph")
end

-- Node classes are found by any part of their name; the returned table describes the new node.
local output = graph:add_node("GlobalOutputSetting")
-- A setting node has one unlabelled pin per side: naming the branch you mean ("Globals") is enough.
graph:connect("input", "Globals", output.id, "Globals")
graph:connect(output.id, "Globals", "output", "Globals")

-- Variables live in categories; the engine picks the final name ("Shot" here, "Shot 1" for a second one).
graph:add_variable("Shot", "Review")

-- A script tag marks a node for later scripts (graph:nodes_for_tag); the node stays out of the branch until connected.
local overrides = graph:add_node("GlobalGameOverrides", "farm")
graph:set_node_disabled(overrides.id, true)

local info = graph:info()
print(string.format("%s: %d nodes, %d variables, %d inputs, %d outputs", info.path, info.node_count, info.variable_count,
	info.input_count, info.output_count))
for _, node in ipairs(info.nodes) do
	print(string.format("  %s %s%s tags={%s}", node.id, node.class, node.disabled and " (disabled)" or "",
		table.concat(node.script_tags, ", ")))
end
for _, variable in ipairs(info.variables) do
	print(string.format("  variable %s in %s", variable.name, variable.category))
end

-- Edits only mark the package dirty; nothing is written until save().
if not graph:save() then
	error("the graph could not be saved")
end
