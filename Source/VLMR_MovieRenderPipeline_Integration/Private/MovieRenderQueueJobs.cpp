// The job globals: adding, allocating, copying, moving, deleting and listing the jobs of the editor queue.
#include "Engine/World.h"
#include "LevelSequence.h"
#include "LuaSessionData.h"
#include "MoviePipelinePrimaryConfig.h"
#include "MoviePipelineQueue.h"
#include "MoviePipelineQueueSubsystem.h"
#include "MovieRenderQueueAccess.h"
#include "MovieRenderQueueGlobals.h"
#include "MovieRenderQueueHandles.h"
#include "MovieRenderQueueJobFields.h"
#include "MovieRenderQueueSettings.h"
#include "UObject/StrongObjectPtr.h"
#include "VLMRAssetRoutines.h"
#include "VLMRScriptArguments.h"
#include "VLMRScriptResults.h"

namespace VLMR
{
	using FHeldJob = TStrongObjectPtr<UMoviePipelineExecutorJob>;

	// Adds one job for a sequence; with bClearQueue the queue is emptied only after every check passed.
	static sol::object AddJobForSequence(sol::state_view Lua, FLuaSessionData& Session, const TCHAR* Label, const FString& SequencePath, bool bClearQueue)
	{
		const FString Path = PrefixGameRoot(SequencePath);
		if (!CheckEngineNameLength(Session, Label, Path))
		{
			return Nil(Lua);
		}
		const TStrongObjectPtr<UMoviePipelineQueueSubsystem> Subsystem = GetIdleSubsystem(Session, Label);
		if (!Subsystem)
		{
			return Nil(Lua);
		}
		const TStrongObjectPtr<ULevelSequence> Sequence(LoadTypedAssetOrReport<ULevelSequence>(Session, Label, TEXT("sequence"), Path));
		if (!Sequence)
		{
			return Nil(Lua);
		}
		const TStrongObjectPtr<UMoviePipelineQueue> Queue = GetSubsystemQueueOrReport(*Subsystem, Session, Label, EQueueWording::Reading);
		if (!Queue)
		{
			return Nil(Lua);
		}
		const TStrongObjectPtr<UWorld> World(FindCurrentEditorWorld());
		if (!World)
		{
			LogLine(Session, ELineKind::Fail, Label, TEXT("no current world available for job map"));
			return Nil(Lua);
		}

		if (bClearQueue)
		{
			Queue->DeleteAllJobs();
		}
		const FHeldJob Job(Queue->AllocateNewJob(UMoviePipelineExecutorJob::StaticClass()));
		if (!Job)
		{
			LogLine(Session, ELineKind::Fail, Label, TEXT("failed to allocate job"));
			return Nil(Lua);
		}
		Job->SetSequence(FSoftObjectPath(Sequence.Get()));
		Job->Map = FSoftObjectPath(World.Get());
		Job->JobName = Job->Sequence.GetAssetName();

		const FString Text = bClearQueue
			? FString::Printf(TEXT("job created for %s (queue cleared, 1 job)"), *Path)
			: FString::Printf(TEXT("job added for %s (queue now has %d jobs)"), *Path, Queue->GetJobs().Num());
		sol::table Handle = BuildJobHandle(Lua, Job.Get(), Session);
		LogLine(Session, ELineKind::Ok, Label, Text);
		return Handle;
	}

	sol::object AddJob(sol::state_view Lua, FLuaSessionData& Session, const FString& SequencePath)
	{
		return AddJobForSequence(Lua, Session, TEXT("mrq_add_job"), SequencePath, false);
	}

	sol::object AllocateJob(sol::state_view Lua, FLuaSessionData& Session, const FString& SequencePath)
	{
		return AddJobForSequence(Lua, Session, TEXT("mrq_allocate_job"), SequencePath, true);
	}

	// The editor queue with its jobs held, for a call that addresses jobs by index; null after the call's failure line.
	static TStrongObjectPtr<UMoviePipelineQueue> GetQueueWithJobs(FLuaSessionData& Session, const TCHAR* Label, EQueueWording Wording, TArray<FHeldJob>& OutJobs)
	{
		TStrongObjectPtr<UMoviePipelineQueue> Queue = GetQueueOrReport(Session, Label, Wording);
		if (Queue)
		{
			OutJobs = GetHeldJobs(*Queue);
		}
		return Queue;
	}

	sol::object DuplicateJob(sol::state_view Lua, FLuaSessionData& Session, int64 Index)
	{
		const TCHAR* Label = TEXT("mrq_duplicate_job");
		TArray<FHeldJob> Jobs;
		const TStrongObjectPtr<UMoviePipelineQueue> Queue = GetQueueWithJobs(Session, Label, EQueueWording::Editing, Jobs);
		if (!Queue || !CheckJobIndex(Session, Label, TEXT(""), Index, Jobs.Num()))
		{
			return Nil(Lua);
		}
		const FHeldJob Copy(Queue->DuplicateJob(Jobs[Index - 1].Get()));
		if (!Copy)
		{
			LogLine(Session, ELineKind::Fail, Label, TEXT("duplication failed"));
			return Nil(Lua);
		}
		const FString Text = FString::Printf(TEXT("duplicated, queue now has %d jobs"), Queue->GetJobs().Num());
		sol::table Handle = BuildJobHandle(Lua, Copy.Get(), Session);
		LogLine(Session, ELineKind::Ok, FString::Printf(TEXT("mrq_duplicate_job(%lld)"), static_cast<long long>(Index)), Text);
		return Handle;
	}

	sol::object SetJobIndex(sol::state_view Lua, FLuaSessionData& Session, int64 From, int64 To)
	{
		const TCHAR* Label = TEXT("mrq_set_job_index");
		TArray<FHeldJob> Jobs;
		const TStrongObjectPtr<UMoviePipelineQueue> Queue = GetQueueWithJobs(Session, Label, EQueueWording::Editing, Jobs);
		if (!Queue || !CheckJobIndex(Session, Label, TEXT("source "), From, Jobs.Num()) || !CheckJobIndex(Session, Label, TEXT("target "), To, Jobs.Num()))
		{
			return Nil(Lua);
		}
		Queue->SetJobIndex(Jobs[From - 1].Get(), static_cast<int32>(To - 1));
		LogLine(Session, ELineKind::Ok, Label, FString::Printf(TEXT("moved job %lld to %lld"), static_cast<long long>(From), static_cast<long long>(To)));
		return sol::make_object(Lua, true);
	}

	sol::object DeleteJob(sol::state_view Lua, FLuaSessionData& Session, int64 Index)
	{
		const TCHAR* Label = TEXT("mrq_delete_job");
		TArray<FHeldJob> Jobs;
		const TStrongObjectPtr<UMoviePipelineQueue> Queue = GetQueueWithJobs(Session, Label, EQueueWording::Editing, Jobs);
		if (!Queue || !CheckJobIndex(Session, Label, TEXT(""), Index, Jobs.Num()))
		{
			return Nil(Lua);
		}
		Queue->DeleteJob(Jobs[Index - 1].Get());
		LogLine(Session, ELineKind::Ok, FString::Printf(TEXT("mrq_delete_job(%lld)"), static_cast<long long>(Index)));
		return sol::make_object(Lua, true);
	}

	sol::object DeleteAllJobs(sol::state_view Lua, FLuaSessionData& Session)
	{
		const TCHAR* Label = TEXT("mrq_delete_all_jobs");
		const TStrongObjectPtr<UMoviePipelineQueue> Queue = GetQueueOrReport(Session, Label, EQueueWording::Editing);
		if (!Queue)
		{
			return Nil(Lua);
		}
		const int32 Removed = Queue->GetJobs().Num();
		Queue->DeleteAllJobs();
		LogLine(Session, ELineKind::Ok, Label, FString::Printf(TEXT("removed %d jobs"), Removed));
		return sol::make_object(Lua, true);
	}

	// One row of the queue listing, read before any Lua value is made.
	struct FQueueJobRow
	{
		int32 Index = 0;
		FJobFields Fields;
		bool bHasConfiguration = false;
		TArray<FSettingRow> Settings;
	};

	static FQueueJobRow ReadQueueJobRow(UMoviePipelineExecutorJob& Job, int32 Index)
	{
		FQueueJobRow Row;
		Row.Index = Index;
		Row.Fields = ReadJobFields(Job);
		if (const UMoviePipelinePrimaryConfig* Config = Job.GetConfiguration())
		{
			Row.bHasConfiguration = true;
			Row.Settings = ReadSettingRows(*Config);
		}
		return Row;
	}

	static sol::table MakeQueueJobTable(sol::state_view Lua, const FQueueJobRow& Row)
	{
		sol::table Table = Lua.create_table();
		Table["index"] = Row.Index;
		WriteJobFields(Table, Row.Fields);
		if (Row.bHasConfiguration)
		{
			Table["settings"] = MakeSettingRows(Lua, Row.Settings, false);
		}
		return Table;
	}

	sol::object GetQueue(sol::state_view Lua, FLuaSessionData& Session)
	{
		const TCHAR* Label = TEXT("mrq_get_queue");
		const TStrongObjectPtr<UMoviePipelineQueue> Queue = GetQueueOrReport(Session, Label, EQueueWording::Reading);
		if (!Queue)
		{
			return Nil(Lua);
		}
		// Reading a job may load its graph preset, and a load may collect: every job is held while the rows are read.
		const TArray<FHeldJob> Jobs = GetHeldJobs(*Queue);
		TArray<FQueueJobRow> Rows;
		for (int32 Position = 0; Position < Jobs.Num(); ++Position)
		{
			if (Jobs[Position])
			{
				Rows.Add(ReadQueueJobRow(*Jobs[Position], Position + 1));
			}
		}
		const bool bRendering = IsRenderInProgress(GetQueueSubsystem());

		sol::table JobTables = Lua.create_table(Jobs.Num(), 0);
		for (const FQueueJobRow& Row : Rows)
		{
			JobTables[Row.Index] = MakeQueueJobTable(Lua, Row);
		}
		sol::table Result = Lua.create_table();
		Result["jobs"] = JobTables;
		Result["count"] = Jobs.Num();
		Result["is_rendering"] = bRendering;
		LogLine(Session, ELineKind::Ok, Label, FString::Printf(TEXT("%d jobs"), Jobs.Num()));
		return Result;
	}

	sol::object GetJob(sol::state_view Lua, FLuaSessionData& Session, int64 Index)
	{
		const TCHAR* Label = TEXT("mrq_get_job");
		TArray<FHeldJob> Jobs;
		const TStrongObjectPtr<UMoviePipelineQueue> Queue = GetQueueWithJobs(Session, Label, EQueueWording::Reading, Jobs);
		if (!Queue || !CheckJobIndex(Session, Label, TEXT(""), Index, Jobs.Num()))
		{
			return Nil(Lua);
		}
		// A null entry is reported as out of range, like an index past the end.
		if (!Jobs[Index - 1])
		{
			ReportJobIndexOutOfRange(Session, Label, TEXT(""), Index, Jobs.Num());
			return Nil(Lua);
		}
		sol::table Handle = BuildJobHandle(Lua, Jobs[Index - 1].Get(), Session);
		LogLine(Session, ELineKind::Ok, FString::Printf(TEXT("mrq_get_job(%lld)"), static_cast<long long>(Index)));
		return Handle;
	}
}
