---@meta

---Lists the Lua bindings, or the functions of one binding, in the session log
---@param binding? string
function help(binding) end

---Add a render job to the queue for a Level Sequence (does NOT clear existing jobs) — returns job handle
---@param sequence_path any
---@return vlmr.job|nil # job handle or nil
function mrq_add_job(sequence_path) end

---Allocate a render job (clears queue first) — returns handle with find_or_add_setting, set_map, etc.
---@param sequence_path any
---@return vlmr.job|nil # job handle or nil
function mrq_allocate_job(sequence_path) end

---Duplicate a job by 1-based index — returns new job handle
---@param index any
---@return vlmr.job|nil # job handle or nil
function mrq_duplicate_job(index) end

---Move a job from one 1-based index to another
---@param index any
---@param new_index any
---@return true|nil # true or nil
function mrq_set_job_index(index, new_index) end

---Delete a job from the render queue by 1-based index
---@param index any
---@return true|nil # true or nil
function mrq_delete_job(index) end

---Remove all jobs from the render queue
---@return true|nil # true or nil
function mrq_delete_all_jobs() end

---List available MRQ setting classes with optional name filter
---@param filter? any
---@return table[] # table[]
function mrq_list_settings(filter) end

---Render a single job allocated via mrq_allocate_job
---@param job any
---@return true|nil # true or nil
function mrq_render_job(job) end

---Render the full queue using the editor local executor
---@return true|nil # true or nil
function mrq_render_queue() end

---Check if a render is currently in progress
---@return boolean # bool
function mrq_is_rendering() end

---Get detailed render progress — executor, per-job, and per-shot status
---@return table # table
function mrq_render_progress() end

---Cancel the current render — cancel_all=true cancels all remaining jobs
---@param cancel_all? any
---@return true|nil # true or nil
function mrq_cancel_render(cancel_all) end

---Get info about the current render queue and its jobs
---@return table # table
function mrq_get_queue() end

---Get a handle for an existing queue job by 1-based index
---@param index any
---@return vlmr.job|nil # job handle or nil
function mrq_get_job(index) end

---Open a MoviePipelinePrimaryConfig preset asset for setting CRUD and save
---@param asset_path any
---@return vlmr.config|nil # config handle or nil
function mrq_open_config(asset_path) end

---Open a MovieGraphConfig preset asset for node/member/edge CRUD and save
---@param asset_path any
---@return vlmr.graph|nil # graph handle or nil
function mrq_open_graph(asset_path) end

---Save the current render queue as a reusable asset
---@param asset_path any
---@return true|nil # true or nil
function mrq_save_queue(asset_path) end

---Load a saved queue asset and replace the current queue
---@param asset_path any
---@return true|nil # true or nil
function mrq_load_queue(asset_path) end

---Capability probe: plugin/engine availability and which MRG features this engine version exposes
---@return vlmr.mrg_support_result # {ok, available, plugin_enabled, engine_version, reason, features}
function mrg_support() end

---List the project's named resolution profiles (UMovieGraphProjectSettings::DefaultNamedResolutions) plus the default profile name
---@return vlmr.mrg_named_resolutions_result # {items={{profile,width,height,description}}, count, default_profile}
function mrg_named_resolutions() end

---Resolve a profile name ("1080p (FHD)") or {width=,height=} into a named resolution; unknown names return valid=false instead of throwing
---@param profile_or_size any
---@return vlmr.mrg_named_resolution_result|vlmr.mrg_named_resolution_ok_false # {profile,width,height,valid} or {ok=false,error}
function mrg_named_resolution(profile_or_size) end

---Resolve MRG {tokens} in a format string. opts: graph=asset_path, job=queue_index, shot_index, root_frame, shot_frame, version, zero_pad, frame_offset, file_name_override, ensure_absolute, as_path (default true)
---@param format_string any
---@param opts? any
---@return vlmr.mrg_resolve_format_result # {resolved, arguments, metadata, warning?}
function mrg_resolve_format(format_string, opts) end

---UMovieGraphBlueprintLibrary::ResolveVersionNumber — explicit version on the output node or next/highest version found in the output directory (needs opts.graph); -1 when unresolved
---@param opts any
---@return vlmr.mrg_resolve_version_result # {version, ok}
function mrg_resolve_version(opts) end

---Live Movie Render Graph pipeline progress (state, frames, segments, work metrics, timecodes, camera) through the active executor; active=false when idle or when the pipeline is legacy (use mrq_render_progress)
---@return table # table
function mrg_pipeline_status() end

---Graceful UMoviePipelineBase::RequestShutdown on the active pipeline (flushes completed work); opts.error=true marks it an error stop. Refuses when nothing is rendering
---@param opts? any
---@return true|vlmr.mrg_request_shutdown_ok_false # true or {ok=false,error}
function mrg_request_shutdown(opts) end

---@class vlmr.job
---@field private __vlmr_mrq_job_identity string
---@field sequence string
local job = {}

---graph:evaluate using the job's graph preset and the job's own variable assignments
---@param shot_index? any
---@return table|vlmr.job_evaluate_ok_false # table or {ok=false,error}
function job:evaluate(shot_index) end

---@param ... any
---@return any
function job:find_or_add_setting(...) end

---@param ... any
---@return any
function job:info(...) end

---@param ... any
---@return any
function job:is_consumed(...) end

---@param ... any
---@return any
function job:list_settings(...) end

---Resolve the job's output directory (UMoviePipelineEditorBlueprintLibrary::TryResolveOutputDirectoryFromJob on 5.8, ResolveOutputDirectoryFromJob before)
---@return vlmr.job_output_directory_result # {path, error?}
function job:output_directory() end

---@param ... any
---@return any
function job:remove_setting(...) end

---@param ... any
---@return any
function job:set_author(...) end

---@param ... any
---@return any
function job:set_comment(...) end

---@param ... any
---@return any
function job:set_config(...) end

---@param ... any
---@return any
function job:set_consumed(...) end

---@param ... any
---@return any
function job:set_enabled(...) end

---@param ... any
---@return any
function job:set_graph(...) end

---@param ... any
---@return any
function job:set_job_name(...) end

---@param ... any
---@return any
function job:set_map(...) end

---@param ... any
---@return any
function job:set_sequence(...) end

---@class vlmr.config
---@field path string
local config = {}

---@param ... any
---@return any
function config:find_or_add_setting(...) end

---@param ... any
---@return any
function config:info(...) end

---@param ... any
---@return any
function config:list_settings(...) end

---@param ... any
---@return any
function config:remove_setting(...) end

---@param ... any
---@return any
function config:save(...) end

---@class vlmr.setting
---@field _name string
local setting = {}

---@param ... any
---@return any
function setting:add_or_update_console_variable(...) end

---@param ... any
---@return any
function setting:get(...) end

---@param ... any
---@return any
function setting:info(...) end

---@param ... any
---@return any
function setting:list_console_variables(...) end

---@param ... any
---@return any
function setting:list_properties(...) end

---@param ... any
---@return any
function setting:remove_console_variable(...) end

---@param ... any
---@return any
function setting:set(...) end

---@param ... any
---@return any
function setting:set_console_variable_enabled(...) end

---@param ... any
---@return any
function setting:set_enabled(...) end

---@class vlmr.graph
---@field path string
local graph = {}

---@param ... any
---@return any
function graph:add_input(...) end

---@param ... any
---@return any
function graph:add_node(...) end

---@param ... any
---@return any
function graph:add_output(...) end

---@param ... any
---@return any
function graph:add_variable(...) end

---Branch names on the Output node (Globals plus render layers)
---@return string[] # {string...}
function graph:branches() end

---@param ... any
---@return any
function graph:connect(...) end

---@param ... any
---@return any
function graph:delete_member(...) end

---@param ... any
---@return any
function graph:disconnect(...) end

---CreateFlattenedGraph with a queue job (opts.job=index) or a transient job; returns branches, Globals output settings, resolution (5.6+), variables and evaluated graphs. opts: job, shot_index, overscan (0..1), aspect_ratio
---@param opts? any
---@return vlmr.graph_evaluate_result|vlmr.graph_evaluate_ok_false # {branches, output, variables, variables_source, evaluated_graphs, file_outputs} or {ok=false,error}
function graph:evaluate(opts) end

---Reflected export-text read of a node property (e.g. OutputResolution, OutputDirectory, OutputFrameRate)
---@param node_id any
---@param name any
---@return string|nil # string or nil
function graph:get_node_property(node_id, name) end

---Variable metadata and serialized default value
---@param name any
---@return vlmr.graph_get_variable_result|nil # {name,category,description,is_global,type,container_type,value} or nil
function graph:get_variable(name) end

---@param ... any
---@return any
function graph:info(...) end

---Create a node downstream of node_id on the given output pin (UE 5.8+). Setting nodes have one unlabelled branch pin per side: omit pin (or pass ""), a name such as "Globals" maps onto that single pin; named pins only exist on the Input/Output nodes
---@param node_id any
---@param class any
---@param pin? any
---@return vlmr.node_info|vlmr.graph_insert_after_ok_false # node_info or {ok=false,error}
function graph:insert_after(node_id, class, pin) end

---Create a node upstream of node_id on the given input pin (UE 5.8+)
---@param node_id any
---@param class any
---@param pin? any
---@return vlmr.node_info|vlmr.graph_insert_before_ok_false # node_info or {ok=false,error}
function graph:insert_before(node_id, class, pin) end

---Nodes upstream of a branch (UMovieGraphConfig::GetNodesForBranch, 5.6+); class defaults to MovieGraphSettingNode
---@param branch any
---@param class? any
---@param exact? any
---@return vlmr.node_info[]|vlmr.graph_nodes_for_branch_ok_false # {node_info...} or {ok=false,error}
function graph:nodes_for_branch(branch, class, exact) end

---Nodes carrying a case-sensitive script tag (UMovieGraphConfig::GetNodesForTag, 5.6+)
---@param tag any
---@param class? any
---@param branch? any
---@return vlmr.node_info[]|vlmr.graph_nodes_for_tag_ok_false # {node_info...} or {ok=false,error}
function graph:nodes_for_tag(tag, class, branch) end

---UMovieGraphConfig::GetOutputDirectory without evaluation (walks Globals branch and subgraphs)
---@return string # string
function graph:output_directory() end

---Convenience: the output table of graph:evaluate (Globals-branch UMovieGraphGlobalOutputSettingNode)
---@param opts? any
---@return table # table
function graph:output_settings(opts) end

---UMovieGraphConfig::RemoveNode (disconnects edges) in one transaction
---@param node_id any
---@return true|vlmr.graph_remove_node_ok_false # true or {ok=false,error}
function graph:remove_node(node_id) end

---Desired / overscanned / backbuffer resolution and overscan crop rectangle (UE 5.6+; unsupported error on 5.5)
---@param opts? any
---@return vlmr.graph_resolution_result|vlmr.graph_resolution_ok_false # {desired,overscanned,backbuffer,crop_rect} or {ok=false,error}
function graph:resolution(opts) end

---@param ... any
---@return any
function graph:save(...) end

---@param ... any
---@return any
function graph:set_node_disabled(...) end

---Validate-then-write a node property from a string (export text), number, bool or table; flips the matching bOverride_* flag; one transaction
---@param node_id any
---@param name any
---@param value any
---@return true|vlmr.graph_set_node_property_ok_false # true or {ok=false,error}
function graph:set_node_property(node_id, name, value) end

---Set a user variable's default value (validated against its type; global variables and unknown names are refused)
---@param name any
---@param value any
---@return true|vlmr.graph_set_variable_ok_false # true or {ok=false,error}
function graph:set_variable(name, value) end

---@class vlmr.node_info
---@field class string
---@field disabled boolean
---@field id string
---@field input_pin_count number
---@field inputs table
---@field output_pin_count number
---@field outputs table
---@field script_tag_count number
---@field script_tags table

---@class vlmr.mrg_support_result
---@field ok any
---@field available any
---@field plugin_enabled any
---@field engine_version any
---@field reason any
---@field features any

---@class vlmr.mrg_named_resolutions_result
---@field items vlmr.mrg_named_resolutions_result_items[]
---@field count any
---@field default_profile any

---@class vlmr.mrg_named_resolutions_result_items
---@field profile any
---@field width any
---@field height any
---@field description any

---@class vlmr.mrg_named_resolution_result
---@field profile any
---@field width any
---@field height any
---@field valid any

---@class vlmr.mrg_named_resolution_ok_false
---@field ok boolean
---@field error any

---@class vlmr.mrg_resolve_format_result
---@field resolved any
---@field arguments any
---@field metadata any
---@field warning? any

---@class vlmr.mrg_resolve_version_result
---@field version any
---@field ok any

---@class vlmr.mrg_request_shutdown_ok_false
---@field ok boolean
---@field error any

---@class vlmr.graph_evaluate_result
---@field branches any
---@field output any
---@field variables any
---@field variables_source any
---@field evaluated_graphs any
---@field file_outputs any

---@class vlmr.graph_evaluate_ok_false
---@field ok boolean
---@field error any

---@class vlmr.graph_resolution_result
---@field desired any
---@field overscanned any
---@field backbuffer any
---@field crop_rect any

---@class vlmr.graph_resolution_ok_false
---@field ok boolean
---@field error any

---@class vlmr.graph_nodes_for_branch_ok_false
---@field ok boolean
---@field error any

---@class vlmr.graph_nodes_for_tag_ok_false
---@field ok boolean
---@field error any

---@class vlmr.graph_set_node_property_ok_false
---@field ok boolean
---@field error any

---@class vlmr.graph_get_variable_result
---@field name any
---@field category any
---@field description any
---@field is_global any
---@field type any
---@field container_type any
---@field value any

---@class vlmr.graph_set_variable_ok_false
---@field ok boolean
---@field error any

---@class vlmr.graph_remove_node_ok_false
---@field ok boolean
---@field error any

---@class vlmr.graph_insert_before_ok_false
---@field ok boolean
---@field error any

---@class vlmr.graph_insert_after_ok_false
---@field ok boolean
---@field error any

---@class vlmr.job_output_directory_result
---@field path any
---@field error? any

---@class vlmr.job_evaluate_ok_false
---@field ok boolean
---@field error any
