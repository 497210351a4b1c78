// How every queue function reaches the editor's queue: the subsystem, the queue, the render in progress, job indexes
// and the identity by which a job handle finds its job again.
#pragma once

#include "CoreMinimal.h"
#include "Misc/Optional.h"
#include "UObject/StrongObjectPtr.h"
#include "VelmireLuaIncludes.h"
#include "VLMRAssetRoutines.h"
#include "VLMRScriptResults.h"

class FLuaSessionData;
class UMoviePipelineBase;
class UMoviePipelineExecutorBase;
class UMoviePipelineExecutorJob;
class UMoviePipelineQueue;
class UMoviePipelineQueueSubsystem;
class UWorld;
struct FSoftObjectPath;

namespace VLMR
{
	// The two groups of queue functions word the same failures differently; both wordings are kept.
	enum class EQueueWording : uint8
	{
		// The index-based editing functions: "subsystem not available", "no queue".
		Editing,
		// Adding, reading, saving and rendering: "Movie Pipeline subsystem not available", "no queue available".
		Reading,
	};

	// The editor's queue subsystem, or null when the editor or the subsystem is absent.
	UMoviePipelineQueueSubsystem* GetQueueSubsystem();

	// The queue subsystem, held for the call; else the call's "subsystem not available" line.
	TStrongObjectPtr<UMoviePipelineQueueSubsystem> GetSubsystemOrReport(FLuaSessionData& Session, const TCHAR* Label, EQueueWording Wording);

	// The queue subsystem when it exists and nothing is rendering; else the call's failure line.
	TStrongObjectPtr<UMoviePipelineQueueSubsystem> GetIdleSubsystem(FLuaSessionData& Session, const TCHAR* Label);

	// The subsystem's current queue, held for the call; else the call's "no queue" line.
	TStrongObjectPtr<UMoviePipelineQueue> GetSubsystemQueueOrReport(UMoviePipelineQueueSubsystem& Subsystem, FLuaSessionData& Session,
		const TCHAR* Label, EQueueWording Wording);

	// The editor queue, held for the call; else the call's failure line in the given wording.
	TStrongObjectPtr<UMoviePipelineQueue> GetQueueOrReport(FLuaSessionData& Session, const TCHAR* Label, EQueueWording Wording);

	// The subsystem has an active executor and that executor is rendering.
	bool IsRenderInProgress(const UMoviePipelineQueueSubsystem* Subsystem);

	// The pipeline an executor is running: read by reflection from a linear executor's "ActiveMoviePipeline".
	UMoviePipelineBase* FindActivePipeline(UMoviePipelineExecutorBase* Executor);

	// The render the editor runs: the queue subsystem, its active executor and that executor's pipeline, each held for
	// the call; a missing link leaves it and every later one empty.
	struct FActiveRender
	{
		TStrongObjectPtr<UMoviePipelineQueueSubsystem> Subsystem;
		TStrongObjectPtr<UMoviePipelineExecutorBase> Executor;
		TStrongObjectPtr<UMoviePipelineBase> Pipeline;
	};

	FActiveRender FindActiveRender();

	// The queue's jobs, each held for the call, in queue order; null entries stay null.
	TArray<TStrongObjectPtr<UMoviePipelineExecutorJob>> GetHeldJobs(const UMoviePipelineQueue& Queue);

	// Logs "[FAIL] <label> -> <what>index <n> out of range (1-<count>)" with the index as the script passed it.
	void ReportJobIndexOutOfRange(FLuaSessionData& Session, const TCHAR* Label, const TCHAR* What, int64 Index, int32 Count);

	// "<what>index <index> out of range (1-<count>)".
	FString DescribeJobIndexOutOfRange(const TCHAR* What, int64 Index, int32 Count);

	// One row per non-null job of the queue, made by the reader from the job and its 1-based position while every job
	// is held, so that a reader may load (and a load collect) safely.
	template<class TReader>
	auto ReadJobRows(const UMoviePipelineQueue& Queue, TReader&& Reader)
	{
		const TArray<TStrongObjectPtr<UMoviePipelineExecutorJob>> Jobs = GetHeldJobs(Queue);
		TArray<decltype(Reader(*Jobs[0], 0))> Rows;
		Rows.Reserve(Jobs.Num());
		for (int32 Position = 0; Position < Jobs.Num(); ++Position)
		{
			if (Jobs[Position])
			{
				Rows.Add(Reader(*Jobs[Position], Position + 1));
			}
		}
		return Rows;
	}

	// A Lua array of the rows at their own indexes (a null job leaves its index empty).
	template<class TRow, class TMaker>
	sol::table MakeIndexedTable(sol::state_view Lua, const TArray<TRow>& Rows, TMaker&& Maker)
	{
		sol::table Table = Lua.create_table(Rows.Num(), 0);
		for (const TRow& Row : Rows)
		{
			Table[Row.Index] = Maker(Lua, Row);
		}
		return Table;
	}

	// The first checks of a call that changes the queue from a script-named asset: the path as an engine name, an idle
	// subsystem, then the asset itself; false after the call's failure line.
	template<class TAsset>
	bool ResolveQueueEditAsset(FLuaSessionData& Session, const TCHAR* Label, const TCHAR* What, const FString& Path,
		TStrongObjectPtr<UMoviePipelineQueueSubsystem>& OutSubsystem, TStrongObjectPtr<TAsset>& OutAsset)
	{
		if (!CheckEngineNameLength(Session, Label, Path))
		{
			return false;
		}
		OutSubsystem = GetIdleSubsystem(Session, Label);
		if (OutSubsystem)
		{
			OutAsset.Reset(LoadTypedAssetOrReport<TAsset>(Session, Label, What, Path));
		}
		return OutAsset.IsValid();
	}

	// "<label>(<index>)": the label of a success line that names the index the script passed.
	FString LabelWithIndex(const TCHAR* Label, int64 Index);

	// True when the 1-based index lies in 1..Count; else the out-of-range line.
	bool CheckJobIndex(FLuaSessionData& Session, const TCHAR* Label, const TCHAR* What, int64 Index, int32 Count);

	// The first editor world of the editor's world contexts, else the first world of any engine context.
	UWorld* FindCurrentEditorWorld();

	// A soft path as an asset path string, "" when unset.
	FString ToAssetPathString(const FSoftObjectPath& Path);

	// The job's address printed with "%p": the identity a job handle carries.
	FString MakeJobIdentity(const UMoviePipelineExecutorJob* Job);

	// The "__vlmr_mrq_job_identity" text of a script value: a table's own field, or a userdata's field when it can be
	// read; unset when the value carries no such text.
	TOptional<FString> ReadJobIdentity(const sol::object& Value);

	// The queue's job whose identity matches, ignoring case, or null.
	UMoviePipelineExecutorJob* FindJobByIdentity(const UMoviePipelineQueue& Queue, const FString& Identity);
}
