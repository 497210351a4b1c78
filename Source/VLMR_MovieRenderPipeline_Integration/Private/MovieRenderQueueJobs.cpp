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
#include "VLMRLuaStackTable.h"
#include "VLMRScriptArguments.h"
#include "VLMRScriptResults.h"

namespace VLMR
{
	using FHeldJob = TStrongObjectPtr<UMoviePipelineExecutorJob>;

	// Adds one job for a sequence; with bClearQueue the queue is emptied only after every check passed.
	static sol::object AddJobForSequence(sol::state_view Lua, FLuaSessionData& Session, const TCHAR* Label, const FString& SequencePath, bool bClearQueue)
	{
		const FString Path = PrefixGameRoot(SequencePath);
		TStrongObjectPtr<UMoviePipelineQueueSubsystem> Subsystem;
		TStrongObjectPtr<ULevelSequence> Sequence;
		if (!ResolveQueueEditAsset(Session, Label, TEXT("sequence"), Path, Subsystem, Sequence))
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

	// The editor queue and the job at a 1-based index, both held for the call.
	struct FIndexedJob
	{
		TStrongObjectPtr<UMoviePipelineQueue> Queue;
		FHeldJob Job;
	};

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

	// The queue and the job at the index, only that job held; false after the call's failure line (a null entry counts as
	// out of range).
	static bool FindJobAtIndex(FLuaSessionData& Session, const TCHAR* Label, EQueueWording Wording, int64 Index, FIndexedJob& OutJob)
	{
		OutJob.Queue = GetQueueOrReport(Session, Label, Wording);
		if (!OutJob.Queue)
		{
			return false;
		}
		const TArray<UMoviePipelineExecutorJob*> Jobs = OutJob.Queue->GetJobs();
		if (!CheckJobIndex(Session, Label, TEXT(""), Index, Jobs.Num()))
		{
			return false;
		}
		OutJob.Job.Reset(Jobs[Index - 1]);
		if (!OutJob.Job)
		{
			ReportJobIndexOutOfRange(Session, Label, TEXT(""), Index, Jobs.Num());
		}
		return OutJob.Job.IsValid();
	}

	sol::object DuplicateJob(sol::state_view Lua, FLuaSessionData& Session, int64 Index)
	{
		const TCHAR* Label = TEXT("mrq_duplicate_job");
		FIndexedJob Target;
		if (!FindJobAtIndex(Session, Label, EQueueWording::Editing, Index, Target))
		{
			return Nil(Lua);
		}
		const FHeldJob Copy(Target.Queue->DuplicateJob(Target.Job.Get()));
		if (!Copy)
		{
			LogLine(Session, ELineKind::Fail, Label, TEXT("duplication failed"));
			return Nil(Lua);
		}
		const FString Text = FString::Printf(TEXT("duplicated, queue now has %d jobs"), Target.Queue->GetJobs().Num());
		sol::table Handle = BuildJobHandle(Lua, Copy.Get(), Session);
		LogLine(Session, ELineKind::Ok, LabelWithIndex(Label, Index), Text);
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
		FIndexedJob Target;
		if (!FindJobAtIndex(Session, Label, EQueueWording::Editing, Index, Target))
		{
			return Nil(Lua);
		}
		Target.Queue->DeleteJob(Target.Job.Get());
		LogLine(Session, ELineKind::Ok, LabelWithIndex(Label, Index));
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
			Row.Settings = ReadSettingRows(*Config, false);
		}
		return Row;
	}

	static void WriteQueueJobRow(FLuaStackTable& Jobs, const FQueueJobRow& Row)
	{
		FLuaStackTable Table(Jobs.GetState(), 0, JobFieldCount + 2);
		Table.SetInteger("index", Row.Index);
		WriteJobFields(Table, Row.Fields);
		if (Row.bHasConfiguration)
		{
			FLuaStackTable Settings(Jobs.GetState(), Row.Settings.Num(), 0);
			WriteSettingRows(Settings, Row.Settings);
			Table.SetTable("settings", Settings);
		}
		Jobs.SetTable(Row.Index, Table);
	}

	sol::object GetQueue(sol::state_view Lua, FLuaSessionData& Session)
	{
		const TCHAR* Label = TEXT("mrq_get_queue");
		const TStrongObjectPtr<UMoviePipelineQueue> Queue = GetQueueOrReport(Session, Label, EQueueWording::Reading);
		if (!Queue)
		{
			return Nil(Lua);
		}
		const TArray<FQueueJobRow> Rows = ReadJobRows(*Queue, &ReadQueueJobRow);
		const int32 Count = Queue->GetJobs().Num();
		const bool bRendering = IsRenderInProgress(GetQueueSubsystem());

		FLuaStackTable Result(Lua.lua_state(), 0, 3);
		FLuaStackTable Jobs(Lua.lua_state(), Rows.Num(), 0);
		for (const FQueueJobRow& Row : Rows)
		{
			WriteQueueJobRow(Jobs, Row);
		}
		Result.SetTable("jobs", Jobs);
		Result.SetInteger("count", Count);
		Result.SetBool("is_rendering", bRendering);
		LogLine(Session, ELineKind::Ok, Label, FString::Printf(TEXT("%d jobs"), Count));
		return Result.Release();
	}

	sol::object GetJob(sol::state_view Lua, FLuaSessionData& Session, int64 Index)
	{
		const TCHAR* Label = TEXT("mrq_get_job");
		FIndexedJob Target;
		if (!FindJobAtIndex(Session, Label, EQueueWording::Reading, Index, Target))
		{
			return Nil(Lua);
		}
		sol::table Handle = BuildJobHandle(Lua, Target.Job.Get(), Session);
		LogLine(Session, ELineKind::Ok, LabelWithIndex(Label, Index));
		return Handle;
	}
}
