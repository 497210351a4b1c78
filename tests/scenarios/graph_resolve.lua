-- The mrg_* globals: this build's capability table, named resolutions, file-name format and version resolution.

-- Each engine build reports its own table: what 5.5, 5.6, 5.7 and 5.8 offer differs.
local minor = tonumber(editor.engine_version():match("^5%.(%d+)"))
local support = mrg_support()
check.eq({ support.ok, support.available, support.plugin_enabled, support.engine_version, support.reason },
	{ true, true, true, editor.engine_version(), "" }, "probe")
check.eq(support.features, {
	resolution_queries = minor >= 6, node_search = minor >= 6, playback_range_bound = minor >= 6, format_arguments = true,
	evaluated_variables = minor >= 7, insert_nodes = minor >= 8, output_directory_reason = minor >= 8,
	adapt_resolution = minor >= 6, small_int_variables = minor >= 8,
}, "features of this engine")

-- Named resolutions: the project's profiles, a profile by name, a custom size.
editor.clear_log()
local named = mrg_named_resolutions()
check.eq({ named.count, named.default_profile, named.custom_profile }, { 4, "1080p (FHD)", "Custom" }, "profiles")
check.eq(named.items[4], { profile = "2160p (4K UHD)", width = 3840, height = 2160, description = "Ultra high definition (4k)", valid = true }, "4K profile")
check.eq(mrg_named_resolution("1080p (FHD)"), { profile = "1080p (FHD)", width = 1920, height = 1080, description = "Full high definition", valid = true }, "by name")
check.eq(mrg_named_resolution({ width = 1280, height = 720.0 }), { profile = "Custom", width = 1280, height = 720, description = "", valid = true }, "by size")
check.eq(mrg_named_resolution("8K"), { profile = "8K", valid = false, width = 0, height = 0,
	error = "unknown resolution profile '8K' (see mrg_named_resolutions)" }, "unknown profile")
check.eq(mrg_named_resolution({ width = 0, height = 720 }).error, "width and height must be > 0", "zero width")
check.eq(mrg_named_resolution({ width = 1280 }).error, "size table needs width and height", "missing height")
check.eq(mrg_named_resolution({ width = 2 ^ 40, height = 720 }).error, "size table needs width and height", "width beyond the engine's integers")
check.eq(mrg_named_resolution(42).error, "argument must be a profile name string or {width=,height=}", "a number")
check.lines({
	"[WARN] mrg_named_resolution -> unknown profile '8K'",
	"[FAIL] mrg_named_resolution -> width and height must be > 0",
	"[FAIL] mrg_named_resolution -> size table needs width and height",
	"[FAIL] mrg_named_resolution -> size table needs width and height",
	"[FAIL] mrg_named_resolution -> argument must be a profile name string or {width=,height=}",
}, "named resolution lines")

-- Format resolution without a graph: tokens, padding (negative numbers keep their width), overrides win.
editor.clear_log()
local plain = mrg_resolve_format("{sequence_name}.{frame_number}.{frame_number_shot}", { as_path = false, root_frame = -3, shot_frame = 12, zero_pad = 4 })
check.eq({ plain.ok, plain.resolved, plain.evaluated }, { true, ".-0003.0012", false }, "padding")
check.eq(plain.arguments.frame_number, "-0003", "the merged arguments")
check.eq(mrg_resolve_format("{frame_number}", { as_path = false, root_frame = 12, frame_offset = 5 }).resolved, "17", "offset, no padding")
check.eq(mrg_resolve_format("{version}_{nope}", { as_path = false, version = 7 }).resolved, "v007_{nope}", "version token; unknown tokens stay")
check.eq(mrg_resolve_format("{version}", { as_path = false, version = 7, format_overrides = { version = "final", [1] = "skipped" } }).resolved,
	"final", "overrides win")
check.lines({
	"[OK] mrg_resolve_format -> .-0003.0012",
	"[OK] mrg_resolve_format -> 17",
	"[OK] mrg_resolve_format -> v007_{nope}",
	"[OK] mrg_resolve_format -> final",
}, "format lines")

-- As a path: absolute under the project, the extension from the overrides.
local project = mrg_resolve_format("{project_dir}", { as_path = false }).resolved
check.matches(project, "^/.*/$", "the project folder")
check.eq(mrg_resolve_format("out/{frame_number}", { root_frame = 2, zero_pad = 3, format_overrides = { ext = "png" } }).resolved,
	project .. "out/002.png", "relative paths become absolute, with the extension")

-- With a graph: flattened, so its output settings contribute their tokens.
editor.create_graph("/Game/Graphs/Names")
check.eq(mrg_resolve_format("{output_resolution}", { graph = "Graphs/Nope", as_path = false }).error,
	"graph asset not found: /Game/Graphs/Nope", "missing graph")
local with_graph = mrg_resolve_format("{output_resolution}", { graph = "Graphs/Names", as_path = false })
check.eq({ with_graph.resolved, with_graph.evaluated }, { "1920_1080", true }, "evaluated graph")
check.eq(mrg_resolve_format("x", { job = 3 }).error, "job index 3 out of range (1-0)", "job lookup")

-- Versions: the highest v### folder beside the {version} component, or the next one; nothing without a graph.
editor.clear_log()
check.eq(mrg_resolve_version({}), { ok = false, version = -1, next = false, evaluated = false,
	error = "opts.graph (or a graph-mode opts.job) is required so the Output Setting node can be evaluated" }, "no graph")
local graph = mrq_open_graph("Graphs/Names")
local png = graph:add_node("ImageSequenceOutputNode_PNG")
graph:connect(png.id, "", "output", "Globals")
local versioned = { graph = "Graphs/Names", file_name_override = "{version}/{frame_number}" }
check.eq(mrg_resolve_version(versioned).version, -1, "no version folder yet")
check.eq(mrg_resolve_version({ graph = "Graphs/Names", file_name_override = "{version}/{frame_number}", next = true }).version, 0, "the next of none is 0")
local renders = project .. "Saved/MovieRenders/"
os.execute(string.format("mkdir -p '%sv001' '%sv003'", renders, renders))
local highest = mrg_resolve_version(versioned)
check.eq({ highest.ok, highest.version, highest.evaluated }, { true, 3, true }, "highest existing version")
check.eq(mrg_resolve_version({ graph = "Graphs/Names", file_name_override = "{version}/{frame_number}", next = true }).version, 4, "next version")
local lines = editor.log()
check.eq(lines[1], "[FAIL] mrg_resolve_version -> opts.graph (or a graph-mode opts.job) is required so the Output Setting node can be evaluated", "no-graph line")
check.eq(lines[#lines], "[OK] mrg_resolve_version -> 4", "version line")

check.summary()
