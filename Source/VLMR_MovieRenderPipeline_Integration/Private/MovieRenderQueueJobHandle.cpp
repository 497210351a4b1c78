// The job handle: edits one job of the editor queue, its legacy configuration's settings and its presets.
#include "Graph/MovieGraphConfig.h"
#include "LuaSessionData.h"
#include "MoviePipelinePrimaryConfig.h"
#include "MoviePipelineQueue.h"
#include "MovieRenderQueueAccess.h"
#include "MovieRenderQueueHandles.h"
#include "MovieRenderQueueJobFields.h"
#include "MovieRenderQueueSettings.h"
#include "UObject/StrongObjectPtr.h"
#include "VLMRAssetRoutines.h"
#include "VLMRBindings.h"
#include "VLMRScriptArguments.h"
#include "VLMRScriptResults.h"
#include "VLMRSoftPathText.h"

namespace VLMR
{
	using FWeakJob = TWeakObjectPtr<UMoviePipelineExecutorJob>;
	using FHeldJob = TStrongObjectPtr<UMoviePipelineExecutorJob>;

	static FHeldJob ResolveJob(const FWeakJob& Job, FLuaSessionData& Session, const TCHAR* Label)
	{
		return ResolveOrReport(Job, Session, Label, TEXT("job"));
	}

	static TStrongObjectPtr<UMoviePipelinePrimaryConfig> ResolveJobConfiguration(UMoviePipelineExecutorJob& Job, FLuaSessionData& Session, const TCHAR* Label)
	{
		TStrongObjectPtr<UMoviePipelinePrimaryConfig> Config(Job.GetConfiguration());
		if (!Config)
		{
			LogLine(Session, ELineKind::Fail, Label, TEXT("job has no configuration"));
		}
		return Config;
	}

	// A setting edit's targets, checked in this order: the job, the class, then the job's configuration.
	struct FJobSettingTarget
	{
		FHeldJob Job;
		TStrongObjectPtr<UClass> Class;
		TStrongObjectPtr<UMoviePipelinePrimaryConfig> Config;
	};

	static bool ResolveJobSettingTarget(const FWeakJob& WeakJob, FLuaSessionData& Session, const TCHAR* Label, const FString& ClassName, FJobSettingTarget& OutTarget)
	{
		OutTarget.Job = ResolveJob(WeakJob, Session, Label);
		if (OutTarget.Job)
		{
			OutTarget.Class.Reset(ResolveSettingClassOrReport(ClassName, Session, Label));
		}
		if (OutTarget.Class)
		{
			OutTarget.Config = ResolveJobConfiguration(*OutTarget.Job, Session, Label);
		}
		return OutTarget.Config.IsValid();
	}

	static sol::object JobFindOrAddSetting(sol::state_view Lua, const FWeakJob& WeakJob, FLuaSessionData& Session, const FString& ClassName)
	{
		const TCHAR* Label = TEXT("find_or_add_setting");
		FJobSettingTarget Target;
		if (!ResolveJobSettingTarget(WeakJob, Session, Label, ClassName, Target))
		{
			return Nil(Lua);
		}
		return FindOrAddSetting(Lua, Session, Label, *Target.Config, *Target.Class, false);
	}

	static sol::object JobRemoveSetting(sol::state_view Lua, const FWeakJob& WeakJob, FLuaSessionData& Session, const FString& ClassName)
	{
		const TCHAR* Label = TEXT("remove_setting");
		FJobSettingTarget Target;
		if (!ResolveJobSettingTarget(WeakJob, Session, Label, ClassName, Target))
		{
			return Nil(Lua);
		}
		return RemoveSetting(Lua, Session, Label, *Target.Config, *Target.Class, false, TEXT("removed "));
	}

	static sol::object JobListSettings(sol::state_view Lua, const FWeakJob& WeakJob, FLuaSessionData& Session)
	{
		const TCHAR* Label = TEXT("list_settings");
		const FHeldJob Job = ResolveJob(WeakJob, Session, Label);
		const TStrongObjectPtr<UMoviePipelinePrimaryConfig> Config = Job ? ResolveJobConfiguration(*Job, Session, Label) : nullptr;
		if (!Config)
		{
			return Nil(Lua);
		}
		return MakeSettingRows(Lua, ReadSettingRows(*Config, true));
	}

	// A job setter: resolves the job, applies the edit and logs "[OK] <label> -> <text>"; nothing is returned on success.
	// An edit that refuses its argument returns no text, after its own failure line, and the setter returns nil.
	template<class TEdit>
	static sol::variadic_results EditJob(sol::state_view Lua, const FWeakJob& WeakJob, FLuaSessionData& Session, const TCHAR* Label, TEdit&& Edit)
	{
		const FHeldJob Job = ResolveJob(WeakJob, Session, Label);
		const TOptional<FString> Text = Job ? Edit(*Job) : TOptional<FString>();
		if (!Text.IsSet())
		{
			return NilValue(Lua);
		}
		LogLine(Session, ELineKind::Ok, Label, Text.GetValue());
		return NoValue();
	}

	static bool CheckStorableSoftPath(FLuaSessionData& Session, const TCHAR* Label, const FString& Path)
	{
		const bool bStorable = IsStorableSoftPath(Path);
		if (!bStorable)
		{
			LogLine(Session, ELineKind::Fail, Label, UnstorableSoftPathMessage(Path));
		}
		return bStorable;
	}

	// A setter whose text becomes a soft path: refused when it cannot be an engine name or a stored path.
	template<class TEdit>
	static sol::variadic_results EditJobPath(sol::state_view Lua, const FWeakJob& WeakJob, FLuaSessionData& Session, const TCHAR* Label, const FString& Path, TEdit&& Edit)
	{
		return EditJob(Lua, WeakJob, Session, Label, [&](UMoviePipelineExecutorJob& Job) -> TOptional<FString> {
			if (!CheckEngineNameLength(Session, Label, Path) || !CheckStorableSoftPath(Session, Label, Path))
			{
				return {};
			}
			Edit(Job, Path);
			return Path;
		});
	}

	// Points the job at a preset asset named by the script: "/Game/" rule, typed load, then the job's own setter.
	template<class TAsset, class TAssign>
	static sol::object AssignJobPreset(sol::state_view Lua, const FWeakJob& WeakJob, FLuaSessionData& Session, const TCHAR* Label,
		const TCHAR* What, const FString& AssetPath, TAssign&& Assign)
	{
		const FString Path = PrefixGameRoot(AssetPath);
		const FHeldJob Job = ResolveJob(WeakJob, Session, Label);
		if (!Job || !CheckEngineNameLength(Session, Label, Path))
		{
			return Nil(Lua);
		}
		const TStrongObjectPtr<TAsset> Preset(LoadTypedAssetOrReport<TAsset>(Session, Label, What, Path));
		if (!Preset)
		{
			return Nil(Lua);
		}
		Assign(*Job, Preset.Get());
		LogLine(Session, ELineKind::Ok, Label, Path);
		return sol::make_object(Lua, true);
	}

	// The job's info fields, read before any Lua value is made.
	struct FJobInfo
	{
		FJobFields Fields;
		int32 ConfigSettingCount = 0;
		FString PresetOrigin;
		FString GraphPreset;
	};

	static FJobInfo ReadJobInfo(UMoviePipelineExecutorJob& Job)
	{
		FJobInfo Info;
		Info.Fields = ReadJobFields(Job);
		const UMoviePipelinePrimaryConfig* Config = Job.GetConfiguration();
		Info.ConfigSettingCount = Config ? Config->GetUserSettings().Num() : 0;
		// Each of these may load its preset, so each path is taken as soon as it is found.
		const UMoviePipelinePrimaryConfig* PresetOrigin = Job.GetPresetOrigin();
		Info.PresetOrigin = PresetOrigin ? PresetOrigin->GetPathName() : FString();
		const UMovieGraphConfig* GraphPreset = Job.GetGraphPreset();
		Info.GraphPreset = GraphPreset ? GraphPreset->GetPathName() : FString();
		return Info;
	}

	static sol::object JobInfo(sol::state_view Lua, const FWeakJob& WeakJob, FLuaSessionData& Session)
	{
		const FHeldJob Job = ResolveJob(WeakJob, Session, TEXT("info"));
		if (!Job)
		{
			return Nil(Lua);
		}
		const FJobInfo Info = ReadJobInfo(*Job);
		sol::table Table = Lua.create_table();
		WriteJobFields(Table, Info.Fields);
		Table["config_setting_count"] = Info.ConfigSettingCount;
		Table["preset_origin"] = ToUtf8(Info.PresetOrigin);
		Table["graph_preset"] = ToUtf8(Info.GraphPreset);
		return Table;
	}

	static void SetSequencePath(UMoviePipelineExecutorJob& Job, const FString& Path)
	{
		FSoftObjectPath Sequence;
		Sequence.SetPath(Path);
		Job.SetSequence(Sequence);
	}

	static void AddJobMethods(sol::table& Handle, const FWeakJob& Job, FLuaSessionData* S)
	{
		using FJob = UMoviePipelineExecutorJob;
		Handle.set_function("find_or_add_setting", [Job, S](sol::this_state L, sol::object, const FScriptText& ClassName) { return JobFindOrAddSetting(L, Job, *S, ClassName.Value); });
		Handle.set_function("remove_setting", [Job, S](sol::this_state L, sol::object, const FScriptText& ClassName) { return JobRemoveSetting(L, Job, *S, ClassName.Value); });
		Handle.set_function("list_settings", [Job, S](sol::this_state L, sol::object) { return JobListSettings(L, Job, *S); });
		Handle.set_function("set_map", [Job, S](sol::this_state L, sol::object, const FScriptText& Path) {
			return EditJobPath(L, Job, *S, TEXT("set_map"), Path.Value, [](FJob& Target, const FString& Text) { Target.Map.SetPath(Text); });
		});
		Handle.set_function("set_author", [Job, S](sol::this_state L, sol::object, const FScriptText& Text) {
			return EditJob(L, Job, *S, TEXT("set_author"), [&Text](FJob& Target) { Target.Author = Text.Value; return Target.Author; });
		});
		Handle.set_function("set_job_name", [Job, S](sol::this_state L, sol::object, const FScriptText& Text) {
			return EditJob(L, Job, *S, TEXT("set_job_name"), [&Text](FJob& Target) { Target.JobName = Text.Value; return Target.JobName; });
		});
		Handle.set_function("set_comment", [Job, S](sol::this_state L, sol::object, const FScriptText& Text) {
			return EditJob(L, Job, *S, TEXT("set_comment"), [&Text](FJob& Target) { Target.Comment = Text.Value; return Target.Comment; });
		});
		Handle.set_function("set_enabled", [Job, S](sol::this_state L, sol::object, FScriptBool Enabled) {
			const bool bEnabled = Enabled.Value;
			return EditJob(L, Job, *S, TEXT("set_enabled"), [bEnabled](FJob& Target) { Target.SetIsEnabled(bEnabled); return FString(BoolText(bEnabled)); });
		});
		Handle.set_function("set_consumed", [Job, S](sol::this_state L, sol::object, FScriptBool Consumed) {
			const bool bConsumed = Consumed.Value;
			return EditJob(L, Job, *S, TEXT("set_consumed"), [bConsumed](FJob& Target) { Target.SetConsumed(bConsumed); return FString(BoolText(bConsumed)); });
		});
		// Called in tight loops: an optional is pushed directly, with no registry reference made for the result.
		Handle.set_function("is_consumed", [Job](sol::object) {
			const FJob* Target = Job.Get();
			return Target ? sol::optional<bool>(Target->IsConsumed()) : sol::optional<bool>();
		});
		Handle.set_function("set_sequence", [Job, S](sol::this_state L, sol::object, const FScriptText& Path) {
			return EditJobPath(L, Job, *S, TEXT("set_sequence"), PrefixGameRoot(Path.Value), &SetSequencePath);
		});
		Handle.set_function("set_config", [Job, S](sol::this_state L, sol::object, const FScriptText& Path) {
			return AssignJobPreset<UMoviePipelinePrimaryConfig>(L, Job, *S, TEXT("set_config"), TEXT("config asset"), Path.Value,
				[](FJob& Target, UMoviePipelinePrimaryConfig* Preset) { Target.SetPresetOrigin(Preset); });
		});
		Handle.set_function("set_graph", [Job, S](sol::this_state L, sol::object, const FScriptText& Path, const TOptionalArgument<bool>& bUpdate) {
			const bool bUpdateVariableAssignments = bUpdate.Get(true);
			return AssignJobPreset<UMovieGraphConfig>(L, Job, *S, TEXT("set_graph"), TEXT("graph asset"), Path.Value,
				[bUpdateVariableAssignments](FJob& Target, UMovieGraphConfig* Graph) { Target.SetGraphPreset(Graph, bUpdateVariableAssignments); });
		});
		Handle.set_function("info", [Job, S](sol::this_state L, sol::object) { return JobInfo(L, Job, *S); });
	}
}

sol::table BuildJobHandle(sol::state_view& Lua, UMoviePipelineExecutorJob* Job, FLuaSessionData& Session)
{
	using namespace VLMR;
	// Everything read from the job is read before the first Lua value is made.
	const std::string Sequence = ToUtf8(Job ? ToAssetPathString(Job->Sequence) : FString());
	const std::string Identity = ToUtf8(MakeJobIdentity(Job));
	const FWeakJob WeakJob(Job);

	sol::table Handle = Lua.create_table();
	Handle["sequence"] = Sequence;
	Handle["__vlmr_mrq_job_identity"] = Identity;
	AddJobMethods(Handle, WeakJob, &Session);
	VLMRMovieRenderGraph::ExtendJobHandle(Lua, Handle, WeakJob, Session);
	return Handle;
}
