// How every queue function reaches the editor's queue: the subsystem, the queue, the render in progress, job indexes
// and the identity by which a job handle finds its job again.
#pragma once

#include "CoreMinimal.h"
#include "Misc/Optional.h"
#include "UObject/StrongObjectPtr.h"
#include "VelmireLuaIncludes.h"

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

	// The queue's jobs, each held for the call, in queue order; null entries stay null.
	TArray<TStrongObjectPtr<UMoviePipelineExecutorJob>> GetHeldJobs(const UMoviePipelineQueue& Queue);

	// Logs "[FAIL] <label> -> <what>index <n> out of range (1-<count>)" with the index as the script passed it.
	void ReportJobIndexOutOfRange(FLuaSessionData& Session, const TCHAR* Label, const TCHAR* What, int64 Index, int32 Count);

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
