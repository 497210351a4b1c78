// The "MovieRenderQueue" binding: the mrq_* globals over the editor's queue, presets and saved queues.
#include "MovieRenderQueueBinding.h"

#include "AssetRegistry/AssetRegistryModule.h"
#include "Editor.h"
#include "Engine/Engine.h"
#include "Engine/World.h"
#include "LevelSequence.h"
#include "LuaSessionData.h"
#include "Misc/PackageName.h"
#include "MoviePipelineExecutor.h"
#include "MoviePipelinePrimaryConfig.h"
#include "MoviePipelineQueue.h"
#include "MoviePipelineQueueSubsystem.h"
#include "MoviePipelineSetting.h"
#include "Graph/MovieGraphConfig.h"
#include "UObject/Package.h"
#include "UObject/UObjectHash.h"
#include "VLMRBindings.h"
#include "VLMRScriptSupport.h"

namespace VLMR
{
	UMoviePipelineQueueSubsystem* GetQueueSubsystem()
	{
		return GEditor ? GEditor->GetEditorSubsystem<UMoviePipelineQueueSubsystem>() : nullptr;
	}

	bool IsRenderInProgress(const UMoviePipelineQueueSubsystem* Subsystem)
	{
		const UMoviePipelineExecutorBase* Executor = Subsystem ? Subsystem->GetActiveExecutor() : nullptr;
		return Executor && Executor->IsRendering();
	}

	UWorld* FindCurrentEditorWorld()
	{
		if (GEditor)
		{
			for (const FWorldContext& Context : GEditor->GetWorldContexts())
			{
				if (Context.WorldType == EWorldType::Editor && Context.World())
				{
					return Context.World();
				}
			}
		}
		if (GEngine)
		{
			for (const FWorldContext& Context : GEngine->GetWorldContexts())
			{
				if (Context.World())
				{
					return Context.World();
				}
			}
		}
		return nullptr;
	}

	FString ToAssetPathString(const FSoftObjectPath& Path)
	{
		return Path.IsNull() ? FString() : Path.GetAssetPath().ToString();
	}

	FString MakeJobIdentity(const UMoviePipelineExecutorJob* Job)
	{
		return Job ? FString::Printf(TEXT("%p"), Job) : FString();
	}

	UMoviePipelineExecutorJob* FindJobByIdentity(const UMoviePipelineQueue* Queue, const sol::object& Value)
	{
		if (!Queue || (Value.get_type() != sol::type::table && Value.get_type() != sol::type::userdata))
		{
			return nullptr;
		}
		const sol::object Identity = Value.as<sol::table>()["__vlmr_mrq_job_identity"];
		if (Identity.get_type() != sol::type::string)
		{
			return nullptr;
		}
		const FString Wanted = ToFString(Identity.as<std::string>());
		for (UMoviePipelineExecutorJob* Job : Queue->GetJobs())
		{
			if (Job && MakeJobIdentity(Job).Equals(Wanted, ESearchCase::IgnoreCase))
			{
				return Job;
			}
		}
		return nullptr;
	}

	TArray<UObject*> EnumerateClasses()
	{
		TArray<UObject*> Classes;
		GetObjectsOfClass(UClass::StaticClass(), Classes, true, RF_ClassDefaultObject, UE::GetAsyncLoadingInternalFlagsExclusion());
		return Classes;
	}

	bool IsValidJobIndex(int32 Index, int32 JobCount)
	{
		return Index >= 1 && Index <= JobCount;
	}

	sol::object Nil(sol::state_view Lua)
	{
		return sol::make_object(Lua, sol::lua_nil);
	}

	static FString NormalizedArgument(const std::string& Utf8Path)
	{
		return PrefixGameRoot(ToFString(Utf8Path));
	}

	UMoviePipelineQueueSubsystem* GetIdleSubsystem(FLuaSessionData& Session, const TCHAR* Label)
	{
		UMoviePipelineQueueSubsystem* Subsystem = GetQueueSubsystem();
		if (!Subsystem)
		{
			LogLine(Session, ELineKind::Fail, Label, TEXT("Movie Pipeline subsystem not available"));
			return nullptr;
		}
		if (IsRenderInProgress(Subsystem))
		{
			LogLine(Session, ELineKind::Fail, Label, TEXT("a render is already in progress"));
			return nullptr;
		}
		return Subsystem;
	}

	// Adds one job for a sequence; with bClearQueue the queue is emptied only after every check passed.
	static sol::object AddJobForSequence(sol::state_view Lua, FLuaSessionData& Session, const TCHAR* Label, const std::string& SequencePath, bool bClearQueue)
	{
		UMoviePipelineQueueSubsystem* Subsystem = GetIdleSubsystem(Session, Label);
		if (!Subsystem)
		{
			return Nil(Lua);
		}
		const FString Path = NormalizedArgument(SequencePath);
		ULevelSequence* Sequence = LoadTypedAssetOrReport<ULevelSequence>(Session, Label, TEXT("sequence"), Path);
		if (!Sequence)
		{
			return Nil(Lua);
		}
		UMoviePipelineQueue* Queue = Subsystem->GetQueue();
		if (!Queue)
		{
			LogLine(Session, ELineKind::Fail, Label, TEXT("no queue available"));
			return Nil(Lua);
		}
		UWorld* World = FindCurrentEditorWorld();
		if (!World)
		{
			LogLine(Session, ELineKind::Fail, Label, TEXT("no current world available for job map"));
			return Nil(Lua);
		}

		if (bClearQueue)
		{
			Queue->DeleteAllJobs();
		}
		UMoviePipelineExecutorJob* Job = Queue->AllocateNewJob(UMoviePipelineExecutorJob::StaticClass());
		if (!Job)
		{
			LogLine(Session, ELineKind::Fail, Label, TEXT("failed to allocate job"));
			return Nil(Lua);
		}
		Job->SetSequence(FSoftObjectPath(Sequence));
		Job->Map = FSoftObjectPath(World);
		Job->JobName = Job->Sequence.GetAssetName();

		sol::table Handle = BuildJobHandle(Lua, Job, Session);
		const FString Text = bClearQueue
			? FString::Printf(TEXT("job created for %s (queue cleared, 1 job)"), *Path)
			: FString::Printf(TEXT("job added for %s (queue now has %d jobs)"), *Path, Queue->GetJobs().Num());
		LogLine(Session, ELineKind::Ok, Label, Text);
		return Handle;
	}

	// The two groups of queue functions word the same failures differently; both wordings are kept.
	struct FQueueFailureTexts
	{
		const TCHAR* NoSubsystem;
		const TCHAR* NoQueue;
	};
	static const FQueueFailureTexts EditingFailures = { TEXT("subsystem not available"), TEXT("no queue") };
	static const FQueueFailureTexts ReadingFailures = { TEXT("Movie Pipeline subsystem not available"), TEXT("no queue available") };

	// The editor queue, or null after the call's failure line.
	static UMoviePipelineQueue* GetQueueOrReport(FLuaSessionData& Session, const TCHAR* Label, const FQueueFailureTexts& Failures)
	{
		UMoviePipelineQueueSubsystem* Subsystem = GetQueueSubsystem();
		if (!Subsystem)
		{
			LogLine(Session, ELineKind::Fail, Label, Failures.NoSubsystem);
			return nullptr;
		}
		UMoviePipelineQueue* Queue = Subsystem->GetQueue();
		if (!Queue)
		{
			LogLine(Session, ELineKind::Fail, Label, Failures.NoQueue);
		}
		return Queue;
	}

	static void LogIndexOutOfRange(FLuaSessionData& Session, const TCHAR* Label, const TCHAR* What, int32 Index, int32 Count)
	{
		LogLine(Session, ELineKind::Fail, Label, FString::Printf(TEXT("%sindex %d out of range (1-%d)"), What, Index, Count));
	}

	static sol::object DuplicateJob(sol::state_view Lua, FLuaSessionData& Session, int32 Index)
	{
		const TCHAR* Label = TEXT("mrq_duplicate_job");
		UMoviePipelineQueue* Queue = GetQueueOrReport(Session, Label, EditingFailures);
		if (!Queue)
		{
			return Nil(Lua);
		}
		const TArray<UMoviePipelineExecutorJob*> Jobs = Queue->GetJobs();
		if (!IsValidJobIndex(Index, Jobs.Num()))
		{
			LogIndexOutOfRange(Session, Label, TEXT(""), Index, Jobs.Num());
			return Nil(Lua);
		}
		UMoviePipelineExecutorJob* Copy = Queue->DuplicateJob(Jobs[Index - 1]);
		if (!Copy)
		{
			LogLine(Session, ELineKind::Fail, Label, TEXT("duplication failed"));
			return Nil(Lua);
		}
		sol::table Handle = BuildJobHandle(Lua, Copy, Session);
		LogLine(Session, ELineKind::Ok, FString::Printf(TEXT("mrq_duplicate_job(%d)"), Index),
			FString::Printf(TEXT("duplicated, queue now has %d jobs"), Queue->GetJobs().Num()));
		return Handle;
	}

	static sol::object SetJobIndex(sol::state_view Lua, FLuaSessionData& Session, int32 From, int32 To)
	{
		const TCHAR* Label = TEXT("mrq_set_job_index");
		UMoviePipelineQueue* Queue = GetQueueOrReport(Session, Label, EditingFailures);
		if (!Queue)
		{
			return Nil(Lua);
		}
		const TArray<UMoviePipelineExecutorJob*> Jobs = Queue->GetJobs();
		if (!IsValidJobIndex(From, Jobs.Num()))
		{
			LogIndexOutOfRange(Session, Label, TEXT("source "), From, Jobs.Num());
			return Nil(Lua);
		}
		if (!IsValidJobIndex(To, Jobs.Num()))
		{
			LogIndexOutOfRange(Session, Label, TEXT("target "), To, Jobs.Num());
			return Nil(Lua);
		}
		Queue->SetJobIndex(Jobs[From - 1], To - 1);
		LogLine(Session, ELineKind::Ok, Label, FString::Printf(TEXT("moved job %d to %d"), From, To));
		return sol::make_object(Lua, true);
	}

	static sol::object DeleteJob(sol::state_view Lua, FLuaSessionData& Session, int32 Index)
	{
		const TCHAR* Label = TEXT("mrq_delete_job");
		UMoviePipelineQueue* Queue = GetQueueOrReport(Session, Label, EditingFailures);
		if (!Queue)
		{
			return Nil(Lua);
		}
		const TArray<UMoviePipelineExecutorJob*> Jobs = Queue->GetJobs();
		if (!IsValidJobIndex(Index, Jobs.Num()))
		{
			LogIndexOutOfRange(Session, Label, TEXT(""), Index, Jobs.Num());
			return Nil(Lua);
		}
		Queue->DeleteJob(Jobs[Index - 1]);
		Session.Log(FString::Printf(TEXT("[OK] mrq_delete_job(%d)"), Index));
		return sol::make_object(Lua, true);
	}

	static sol::object DeleteAllJobs(sol::state_view Lua, FLuaSessionData& Session)
	{
		const TCHAR* Label = TEXT("mrq_delete_all_jobs");
		UMoviePipelineQueue* Queue = GetQueueOrReport(Session, Label, EditingFailures);
		if (!Queue)
		{
			return Nil(Lua);
		}
		const int32 Removed = Queue->GetJobs().Num();
		Queue->DeleteAllJobs();
		LogLine(Session, ELineKind::Ok, Label, FString::Printf(TEXT("removed %d jobs"), Removed));
		return sol::make_object(Lua, true);
	}

	static bool UsesGraphConfiguration(const UMoviePipelineExecutorJob* Job)
	{
		return Cast<UMovieGraphConfig>(Job->GetGraphPreset()) != nullptr;
	}

	static sol::table MakeQueueJobTable(sol::state_view Lua, const UMoviePipelineExecutorJob* Job, int32 Index)
	{
		sol::table Row = Lua.create_table();
		Row["index"] = Index;
		Row["sequence"] = ToUtf8(ToAssetPathString(Job->Sequence));
		Row["map"] = ToUtf8(ToAssetPathString(Job->Map));
		Row["author"] = ToUtf8(Job->Author);
		Row["job_name"] = ToUtf8(Job->JobName);
		Row["comment"] = ToUtf8(Job->Comment);
		Row["is_enabled"] = Job->IsEnabled();
		Row["is_consumed"] = Job->IsConsumed();
		Row["user_data"] = ToUtf8(Job->UserData);
		Row["is_graph_config"] = UsesGraphConfiguration(Job);
		if (const UMoviePipelinePrimaryConfig* Config = Job->GetConfiguration())
		{
			sol::table Settings = Lua.create_table();
			for (const UMoviePipelineSetting* Setting : Config->GetUserSettings())
			{
				if (Setting)
				{
					Settings.add(Lua.create_table_with("name", ToUtf8(Setting->GetClass()->GetName()), "is_enabled", Setting->IsEnabled()));
				}
			}
			Row["settings"] = Settings;
		}
		return Row;
	}

	static sol::object GetQueue(sol::state_view Lua, FLuaSessionData& Session)
	{
		const TCHAR* Label = TEXT("mrq_get_queue");
		UMoviePipelineQueue* Queue = GetQueueOrReport(Session, Label, ReadingFailures);
		if (!Queue)
		{
			return Nil(Lua);
		}
		const TArray<UMoviePipelineExecutorJob*> Jobs = Queue->GetJobs();
		sol::table JobTables = Lua.create_table(Jobs.Num(), 0);
		for (int32 Position = 0; Position < Jobs.Num(); ++Position)
		{
			if (Jobs[Position])
			{
				JobTables[Position + 1] = MakeQueueJobTable(Lua, Jobs[Position], Position + 1);
			}
		}
		sol::table Result = Lua.create_table();
		Result["jobs"] = JobTables;
		Result["count"] = Jobs.Num();
		Result["is_rendering"] = IsRenderInProgress(GetQueueSubsystem());
		LogLine(Session, ELineKind::Ok, Label, FString::Printf(TEXT("%d jobs"), Jobs.Num()));
		return Result;
	}

	static sol::object GetJob(sol::state_view Lua, FLuaSessionData& Session, int32 Index)
	{
		const TCHAR* Label = TEXT("mrq_get_job");
		UMoviePipelineQueue* Queue = GetQueueOrReport(Session, Label, ReadingFailures);
		if (!Queue)
		{
			return Nil(Lua);
		}
		const TArray<UMoviePipelineExecutorJob*> Jobs = Queue->GetJobs();
		if (!IsValidJobIndex(Index, Jobs.Num()) || !Jobs[Index - 1])
		{
			LogIndexOutOfRange(Session, Label, TEXT(""), Index, Jobs.Num());
			return Nil(Lua);
		}
		sol::table Handle = BuildJobHandle(Lua, Jobs[Index - 1], Session);
		Session.Log(FString::Printf(TEXT("[OK] mrq_get_job(%d)"), Index));
		return Handle;
	}

	static sol::table ListSettings(sol::state_view Lua, FLuaSessionData& Session, const sol::optional<std::string>& Filter)
	{
		const FString FilterText = Filter ? ToFString(*Filter) : FString();
		UClass* SettingBase = UMoviePipelineSetting::StaticClass();
		sol::table Rows = Lua.create_table();
		int32 Count = 0;
		for (UObject* Object : EnumerateClasses())
		{
			UClass* Class = static_cast<UClass*>(Object);
			if (!Class->IsChildOf(SettingBase) || Class->HasAnyClassFlags(CLASS_Abstract | CLASS_Deprecated))
			{
				continue;
			}
			const FString Name = Class->GetName();
			if (!FilterText.IsEmpty() && !Name.Contains(FilterText, ESearchCase::IgnoreCase, ESearchDir::FromStart))
			{
				continue;
			}
			Rows[++Count] = Lua.create_table_with("name", ToUtf8(Name), "display_name", ToUtf8(Class->GetDisplayNameText().ToString()));
		}
		LogLine(Session, ELineKind::Ok, TEXT("mrq_list_settings"), FString::Printf(TEXT("%d classes"), Count));
		return Rows;
	}

	static sol::object OpenConfig(sol::state_view Lua, FLuaSessionData& Session, const std::string& AssetPath)
	{
		const TCHAR* Label = TEXT("mrq_open_config");
		const FString Path = NormalizedArgument(AssetPath);
		UMoviePipelinePrimaryConfig* Config = LoadTypedAssetOrReport<UMoviePipelinePrimaryConfig>(Session, Label, TEXT("config asset"), Path);
		if (!Config)
		{
			return Nil(Lua);
		}
		LogLine(Session, ELineKind::Ok, Label, Path);
		return BuildConfigHandle(Lua, Config, Session);
	}

	static UMoviePipelineQueue* CopyQueueIntoPackage(UMoviePipelineQueue* Queue, UPackage* Package, const FString& AssetName)
	{
		UMoviePipelineQueue* Copy = DuplicateObject<UMoviePipelineQueue>(Queue, Package, FName(*AssetName));
		if (Copy)
		{
			Copy->SetFlags(RF_Public | RF_Standalone | RF_Transactional);
			Copy->MarkPackageDirty();
			FAssetRegistryModule::AssetCreated(Copy);
		}
		return Copy;
	}

	static sol::object SaveQueue(sol::state_view Lua, FLuaSessionData& Session, const std::string& AssetPath)
	{
		const TCHAR* Label = TEXT("mrq_save_queue");
		UMoviePipelineQueue* Queue = GetQueueOrReport(Session, Label, ReadingFailures);
		if (!Queue)
		{
			return Nil(Lua);
		}
		const int32 JobCount = Queue->GetJobs().Num();
		if (JobCount == 0)
		{
			LogLine(Session, ELineKind::Fail, Label, TEXT("queue is empty, nothing to save"));
			return Nil(Lua);
		}

		const FString PackagePath = NormalizedArgument(AssetPath);
		const FString AssetName = FPackageName::GetLongPackageAssetName(PackagePath);
		const FString ObjectPath = PackagePath + TEXT(".") + AssetName;
		if (StaticLoadObject(UObject::StaticClass(), nullptr, *ObjectPath))
		{
			LogLine(Session, ELineKind::Warn, Label, FString::Printf(TEXT("overwriting existing asset at '%s'"), *PackagePath));
		}

		UPackage* Package = CreatePackage(*PackagePath);
		if (!Package)
		{
			LogLine(Session, ELineKind::Fail, Label, FString::Printf(TEXT("cannot create package '%s'"), *PackagePath));
			return Nil(Lua);
		}
		Package->MarkAsFullyLoaded();
		if (!Session.EnsurePackageEditable(Package, Label, true))
		{
			return sol::make_object(Lua, false);
		}

		UMoviePipelineQueue* Copy = CopyQueueIntoPackage(Queue, Package, AssetName);
		if (!Copy)
		{
			LogLine(Session, ELineKind::Fail, Label, TEXT("failed to duplicate queue"));
			return Nil(Lua);
		}

		if (!SavePackageFile(Package, Copy))
		{
			LogLine(Session, ELineKind::Fail, Label, FString::Printf(TEXT("save failed for '%s'"), *PackagePath));
			return Nil(Lua);
		}
		LogLine(Session, ELineKind::Ok, Label, FString::Printf(TEXT("saved %d jobs to '%s'"), JobCount, *PackagePath));
		return sol::make_object(Lua, true);
	}

	static sol::object LoadQueue(sol::state_view Lua, FLuaSessionData& Session, const std::string& AssetPath)
	{
		const TCHAR* Label = TEXT("mrq_load_queue");
		UMoviePipelineQueueSubsystem* Subsystem = GetIdleSubsystem(Session, Label);
		if (!Subsystem)
		{
			return Nil(Lua);
		}
		const FString Path = NormalizedArgument(AssetPath);
		UMoviePipelineQueue* Asset = LoadTypedAssetOrReport<UMoviePipelineQueue>(Session, Label, TEXT("queue asset"), Path);
		if (!Asset)
		{
			return Nil(Lua);
		}
		UMoviePipelineQueue* Queue = Subsystem->GetQueue();
		if (!Queue)
		{
			LogLine(Session, ELineKind::Fail, Label, TEXT("no current queue available"));
			return Nil(Lua);
		}
		if (!Queue->CopyFrom(Asset))
		{
			LogLine(Session, ELineKind::Fail, Label, TEXT("CopyFrom failed"));
			return Nil(Lua);
		}
		LogLine(Session, ELineKind::Ok, Label, FString::Printf(TEXT("loaded %d jobs from '%s'"), Queue->GetJobs().Num(), *Path));
		return sol::make_object(Lua, true);
	}
}

void BindMovieRenderQueue(sol::state& Lua, FLuaSessionData& Session)
{
	using namespace VLMR;
	FLuaSessionData* S = &Session;
	Lua.set_function("mrq_add_job", [S](sol::this_state L, const std::string& Path) { return AddJobForSequence(L, *S, TEXT("mrq_add_job"), Path, false); });
	Lua.set_function("mrq_allocate_job", [S](sol::this_state L, const std::string& Path) { return AddJobForSequence(L, *S, TEXT("mrq_allocate_job"), Path, true); });
	Lua.set_function("mrq_duplicate_job", [S](sol::this_state L, int32 Index) { return DuplicateJob(L, *S, Index); });
	Lua.set_function("mrq_set_job_index", [S](sol::this_state L, int32 From, int32 To) { return SetJobIndex(L, *S, From, To); });
	Lua.set_function("mrq_render_job", [S](sol::this_state L, sol::object Job) { return RenderJob(L, *S, Job); });
	Lua.set_function("mrq_render_queue", [S](sol::this_state L) { return RenderQueue(L, *S); });
	Lua.set_function("mrq_is_rendering", []() { return IsRendering(); });
	Lua.set_function("mrq_render_progress", [S](sol::this_state L) { return RenderProgress(L, *S); });
	Lua.set_function("mrq_cancel_render", [S](sol::this_state L, sol::optional<bool> bCancelAll) { return CancelRender(L, *S, bCancelAll.value_or(true)); });
	Lua.set_function("mrq_delete_job", [S](sol::this_state L, int32 Index) { return DeleteJob(L, *S, Index); });
	Lua.set_function("mrq_delete_all_jobs", [S](sol::this_state L) { return DeleteAllJobs(L, *S); });
	Lua.set_function("mrq_list_settings", [S](sol::this_state L, sol::optional<std::string> Filter) { return ListSettings(L, *S, Filter); });
	Lua.set_function("mrq_get_queue", [S](sol::this_state L) { return GetQueue(L, *S); });
	Lua.set_function("mrq_get_job", [S](sol::this_state L, int32 Index) { return GetJob(L, *S, Index); });
	Lua.set_function("mrq_open_config", [S](sol::this_state L, const std::string& Path) { return OpenConfig(L, *S, Path); });
	Lua.set_function("mrq_save_queue", [S](sol::this_state L, const std::string& Path) { return SaveQueue(L, *S, Path); });
	Lua.set_function("mrq_load_queue", [S](sol::this_state L, const std::string& Path) { return LoadQueue(L, *S, Path); });
}
