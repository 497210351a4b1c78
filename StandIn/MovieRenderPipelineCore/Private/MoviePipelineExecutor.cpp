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

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMoviePipelineExecutorBase, CLASS_Abstract, "MovieRenderPipelineCore")
{
	STANDIN_PROPERTY(UserData, CPF_BlueprintVisible);
	STANDIN_PROPERTY(TargetPipelineClass, CPF_Transient);
	STANDIN_FUNCTION(Execute, TEXT("InPipelineQueue"));
	STANDIN_FUNCTION(IsRendering);
	STANDIN_FUNCTION(SetStatusMessage, TEXT("InStatus"));
	STANDIN_FUNCTION(GetStatusMessage);
	STANDIN_FUNCTION(SetStatusProgress, TEXT("InProgress"));
	STANDIN_FUNCTION(GetStatusProgress);
	STANDIN_FUNCTION(SetMoviePipelineClass, TEXT("InPipelineClass"));
	STANDIN_FUNCTION(CancelCurrentJob);
	STANDIN_FUNCTION(CancelAllJobs);
	STANDIN_FUNCTION(OnExecutorFinishedImpl);
}
