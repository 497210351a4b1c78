// The module object and its registration with the VelmireAI host: descriptor, bindings and documentation.
#include "CoreMinimal.h"
#include "Modules/ModuleInterface.h"
#include "Modules/ModuleManager.h"
#include "VelmireExtensionRegistrar.h"
#include "VLMRBindings.h"
#include "VLMRClassLookupCache.h"

namespace VLMR
{
	const TCHAR* const ExtensionId = TEXT("velmire.movierenderpipeline");
	const TCHAR* const QueueBindingName = TEXT("MovieRenderQueue");
	const TCHAR* const GraphBindingName = TEXT("MovieRenderGraph");

	static const TArray<FLuaFunctionDoc> MovieRenderQueueDocs = {
		{ TEXT("mrq_add_job(sequence_path)"), TEXT("Add a render job to the queue for a Level Sequence (does NOT clear existing jobs) \u2014 returns job handle"), TEXT("job handle or nil") },
		{ TEXT("mrq_allocate_job(sequence_path)"), TEXT("Allocate a render job (clears queue first) \u2014 returns handle with find_or_add_setting, set_map, etc."), TEXT("job handle or nil") },
		{ TEXT("mrq_duplicate_job(index)"), TEXT("Duplicate a job by 1-based index \u2014 returns new job handle"), TEXT("job handle or nil") },
		{ TEXT("mrq_set_job_index(index, new_index)"), TEXT("Move a job from one 1-based index to another"), TEXT("true or nil") },
		{ TEXT("mrq_delete_job(index)"), TEXT("Delete a job from the render queue by 1-based index"), TEXT("true or nil") },
		{ TEXT("mrq_delete_all_jobs()"), TEXT("Remove all jobs from the render queue"), TEXT("true or nil") },
		{ TEXT("mrq_list_settings(filter?)"), TEXT("List available MRQ setting classes with optional name filter"), TEXT("table[]") },
		{ TEXT("mrq_render_job(job)"), TEXT("Render a single job allocated via mrq_allocate_job"), TEXT("true or nil") },
		{ TEXT("mrq_render_queue()"), TEXT("Render the full queue using the editor local executor"), TEXT("true or nil") },
		{ TEXT("mrq_is_rendering()"), TEXT("Check if a render is currently in progress"), TEXT("bool") },
		{ TEXT("mrq_render_progress()"), TEXT("Get detailed render progress \u2014 executor, per-job, and per-shot status"), TEXT("table") },
		{ TEXT("mrq_cancel_render(cancel_all?)"), TEXT("Cancel the current render \u2014 cancel_all=true cancels all remaining jobs"), TEXT("true or nil") },
		{ TEXT("mrq_get_queue()"), TEXT("Get info about the current render queue and its jobs"), TEXT("table") },
		{ TEXT("mrq_get_job(index)"), TEXT("Get a handle for an existing queue job by 1-based index"), TEXT("job handle or nil") },
		{ TEXT("mrq_open_config(asset_path)"), TEXT("Open a MoviePipelinePrimaryConfig preset asset for setting CRUD and save"), TEXT("config handle or nil") },
		{ TEXT("mrq_open_graph(asset_path)"), TEXT("Open a MovieGraphConfig preset asset for node/member/edge CRUD and save"), TEXT("graph handle or nil") },
		{ TEXT("mrq_save_queue(asset_path)"), TEXT("Save the current render queue as a reusable asset"), TEXT("true or nil") },
		{ TEXT("mrq_load_queue(asset_path)"), TEXT("Load a saved queue asset and replace the current queue"), TEXT("true or nil") },
		{ TEXT("graph:evaluate / output_settings / resolution / output_directory / branches / nodes_for_branch / nodes_for_tag / get_node_property / set_node_property / get_variable / set_variable / remove_node / insert_before / insert_after"),
			TEXT("Movie Render Graph methods on the mrq_open_graph handle \u2014 see help(\"MovieRenderGraph\")"), TEXT("table") },
		{ TEXT("job:output_directory() / job:evaluate(shot_index?)"),
			TEXT("Resolve a job's output directory and evaluate its graph preset with the job's variable assignments \u2014 see help(\"MovieRenderGraph\")"), TEXT("table") },
	};

	static const TArray<FLuaFunctionDoc> MovieRenderGraphDocs = {
		{ TEXT("mrg_support()"), TEXT("Capability probe: plugin/engine availability and which MRG features this engine version exposes"), TEXT("{ok, available, plugin_enabled, engine_version, reason, features}") },
		{ TEXT("mrg_named_resolutions()"), TEXT("List the project's named resolution profiles (UMovieGraphProjectSettings::DefaultNamedResolutions) plus the default profile name"), TEXT("{items={{profile,width,height,description}}, count, default_profile}") },
		{ TEXT("mrg_named_resolution(profile_or_size)"), TEXT("Resolve a profile name (\"1080p (FHD)\") or {width=,height=} into a named resolution; unknown names return valid=false instead of throwing"), TEXT("{profile,width,height,valid} or {ok=false,error}") },
		{ TEXT("mrg_resolve_format(format_string, opts?)"), TEXT("Resolve MRG {tokens} in a format string. opts: graph=asset_path, job=queue_index, shot_index, root_frame, shot_frame, version, zero_pad, frame_offset, file_name_override, ensure_absolute, as_path (default true)"), TEXT("{resolved, arguments, metadata, warning?}") },
		{ TEXT("mrg_resolve_version(opts)"), TEXT("UMovieGraphBlueprintLibrary::ResolveVersionNumber \u2014 explicit version on the output node or next/highest version found in the output directory (needs opts.graph); -1 when unresolved"), TEXT("{version, ok}") },
		{ TEXT("mrg_pipeline_status()"), TEXT("Live Movie Render Graph pipeline progress (state, frames, segments, work metrics, timecodes, camera) through the active executor; active=false when idle or when the pipeline is legacy (use mrq_render_progress)"), TEXT("table") },
		{ TEXT("mrg_request_shutdown(opts?)"), TEXT("Graceful UMoviePipelineBase::RequestShutdown on the active pipeline (flushes completed work); opts.error=true marks it an error stop. Refuses when nothing is rendering"), TEXT("true or {ok=false,error}") },
		{ TEXT("graph:evaluate(opts?)"), TEXT("CreateFlattenedGraph with a queue job (opts.job=index) or a transient job; returns branches, Globals output settings, resolution (5.6+), variables and evaluated graphs. opts: job, shot_index, overscan (0..1), aspect_ratio"), TEXT("{branches, output, variables, variables_source, evaluated_graphs, file_outputs} or {ok=false,error}") },
		{ TEXT("graph:output_settings(opts?)"), TEXT("Convenience: the output table of graph:evaluate (Globals-branch UMovieGraphGlobalOutputSettingNode)"), TEXT("table") },
		{ TEXT("graph:resolution(opts?)"), TEXT("Desired / overscanned / backbuffer resolution and overscan crop rectangle (UE 5.6+; unsupported error on 5.5)"), TEXT("{desired,overscanned,backbuffer,crop_rect} or {ok=false,error}") },
		{ TEXT("graph:output_directory()"), TEXT("UMovieGraphConfig::GetOutputDirectory without evaluation (walks Globals branch and subgraphs)"), TEXT("string") },
		{ TEXT("graph:branches()"), TEXT("Branch names on the Output node (Globals plus render layers)"), TEXT("{string...}") },
		{ TEXT("graph:nodes_for_branch(branch, class?, exact?)"), TEXT("Nodes upstream of a branch (UMovieGraphConfig::GetNodesForBranch, 5.6+); class defaults to MovieGraphSettingNode"), TEXT("{node_info...} or {ok=false,error}") },
		{ TEXT("graph:nodes_for_tag(tag, class?, branch?)"), TEXT("Nodes carrying a case-sensitive script tag (UMovieGraphConfig::GetNodesForTag, 5.6+)"), TEXT("{node_info...} or {ok=false,error}") },
		{ TEXT("graph:get_node_property(node_id, name)"), TEXT("Reflected export-text read of a node property (e.g. OutputResolution, OutputDirectory, OutputFrameRate)"), TEXT("string or nil") },
		{ TEXT("graph:set_node_property(node_id, name, value)"), TEXT("Validate-then-write a node property from a string (export text), number, bool or table; flips the matching bOverride_* flag; one transaction"), TEXT("true or {ok=false,error}") },
		{ TEXT("graph:get_variable(name)"), TEXT("Variable metadata and serialized default value"), TEXT("{name,category,description,is_global,type,container_type,value} or nil") },
		{ TEXT("graph:set_variable(name, value)"), TEXT("Set a user variable's default value (validated against its type; global variables and unknown names are refused)"), TEXT("true or {ok=false,error}") },
		{ TEXT("graph:remove_node(node_id)"), TEXT("UMovieGraphConfig::RemoveNode (disconnects edges) in one transaction"), TEXT("true or {ok=false,error}") },
		{ TEXT("graph:insert_before(node_id, class, pin?)"), TEXT("Create a node upstream of node_id on the given input pin (UE 5.8+)"), TEXT("node_info or {ok=false,error}") },
		{ TEXT("graph:insert_after(node_id, class, pin?)"), TEXT("Create a node downstream of node_id on the given output pin (UE 5.8+). Setting nodes have one unlabelled branch pin per side: omit pin (or pass \"\"), a name such as \"Globals\" maps onto that single pin; named pins only exist on the Input/Output nodes"), TEXT("node_info or {ok=false,error}") },
		{ TEXT("job:output_directory()"), TEXT("Resolve the job's output directory (UMoviePipelineEditorBlueprintLibrary::TryResolveOutputDirectoryFromJob on 5.8, ResolveOutputDirectoryFromJob before)"), TEXT("{path, error?}") },
		{ TEXT("job:evaluate(shot_index?)"), TEXT("graph:evaluate using the job's graph preset and the job's own variable assignments"), TEXT("table or {ok=false,error}") },
	};

	const TArray<FLuaFunctionDoc>& GetMovieRenderQueueDocs()
	{
		return MovieRenderQueueDocs;
	}

	const TArray<FLuaFunctionDoc>& GetMovieRenderGraphDocs()
	{
		return MovieRenderGraphDocs;
	}

	static FVelmireExtensionDescriptor MakeExtensionDescriptor()
	{
		FVelmireExtensionDescriptor Descriptor;
		Descriptor.ExtensionId = ExtensionId;
		Descriptor.DisplayName = TEXT("Movie Render Queue");
		Descriptor.ModuleName = TEXT("VLMR_MovieRenderPipeline_Integration");
		Descriptor.Author = TEXT("Quensel Studio");
		Descriptor.Version = TEXT("0.2.0");
		Descriptor.Category = TEXT("integration");
		Descriptor.Description = TEXT("Configure cinematic renders \u2014 Movie Render Queue jobs, presets, anti-aliasing, output formats, and Movie Render Graph evaluation, resolution queries and pipeline control.");
		Descriptor.bRequiresRestart = false;
		Descriptor.Tags = { TEXT("lua"), TEXT("render"), TEXT("mrq"), TEXT("mrg") };
		Descriptor.bEnabledByDefault = true;
		return Descriptor;
	}
}

class FVLMRMovieRenderPipelineIntegrationModule : public IModuleInterface
{
public:
	virtual void StartupModule() override
	{
		VLMR::FClassLookupCache::SetModuleCache(&ClassLookupCache);
		FVelmireExtensionRegistrar& Registrar = FVelmireExtensionRegistrar::Get();
		Registrar.RegisterExtension(VLMR::MakeExtensionDescriptor());
		Registrar.RegisterLuaBinding(VLMR::ExtensionId, VLMR::QueueBindingName, VLMR::GetMovieRenderQueueDocs(),
			FVelmireLuaBindingInstaller::CreateStatic(&BindMovieRenderQueue));
		Registrar.RegisterLuaBinding(VLMR::ExtensionId, VLMR::GraphBindingName, VLMR::GetMovieRenderGraphDocs(),
			FVelmireLuaBindingInstaller::CreateStatic(&BindMovieRenderGraphGlobals));
	}

	virtual void ShutdownModule() override
	{
		FVelmireExtensionRegistrar::Get().UnregisterAllForExtension(VLMR::ExtensionId);
		VLMR::FClassLookupCache::SetModuleCache(nullptr);
		ClassLookupCache.Reset();
	}

private:
	// Lives and dies with the module, so nothing of it outlasts an unload.
	VLMR::FClassLookupCache ClassLookupCache;
};

IMPLEMENT_MODULE(FVLMRMovieRenderPipelineIntegrationModule, VLMR_MovieRenderPipeline_Integration)
