#include "MoviePipelineExecutor.h"

#include "MoviePipelineQueue.h"
#include "UObject/UnrealType.h"

UMoviePipelineExecutorBase::UMoviePipelineExecutorBase()
	: StatusProgress(0.0f)
	, bAnyJobHadFatalError(false)
{
}

void UMoviePipelineExecutorBase::SetMoviePipelineClass(UClass* InPipelineClass)
{
	TargetPipelineClass = InPipelineClass;
}

void UMoviePipelineExecutorBase::OnExecutorFinishedImpl()
{
	OnExecutorFinishedDelegateNative.Broadcast(this, !bAnyJobHadFatalError);
}

// Stand-in choice: the error listeners are told (the one engine copy read broadcast the finished delegate here).
void UMoviePipelineExecutorBase::OnExecutorErroredImpl(UMoviePipeline* ErroredPipeline, bool bFatal, FText ErrorReason)
{
	if (bFatal)
	{
		bAnyJobHadFatalError = true;
	}
	OnExecutorErroredDelegateNative.Broadcast(this, ErroredPipeline, bFatal, ErrorReason);
}

VLMR_IMPLEMENT_CLASS(UMoviePipelineExecutorBase, CLASS_Abstract, "MovieRenderPipelineCore")
{
	VLMR_PROPERTY(UserData, CPF_BlueprintVisible);
	VLMR_PROPERTY(TargetPipelineClass, CPF_Transient);
	VLMR_FUNCTION(Execute, TEXT("InPipelineQueue"));
	VLMR_FUNCTION(IsRendering);
	VLMR_FUNCTION(SetStatusMessage, TEXT("InStatus"));
	VLMR_FUNCTION(GetStatusMessage);
	VLMR_FUNCTION(SetStatusProgress, TEXT("InProgress"));
	VLMR_FUNCTION(GetStatusProgress);
	VLMR_FUNCTION(SetMoviePipelineClass, TEXT("InPipelineClass"));
	VLMR_FUNCTION(CancelCurrentJob);
	VLMR_FUNCTION(CancelAllJobs);
	VLMR_FUNCTION(OnExecutorFinishedImpl);
}
