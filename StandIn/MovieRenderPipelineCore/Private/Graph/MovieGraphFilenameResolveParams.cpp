#include "Graph/MovieGraphFilenameResolveParams.h"

#include "Graph/MovieGraphConfig.h"
#include "Graph/MovieGraphPipeline.h"
#include "Graph/MovieGraphTraversalContext.h"
#include "Graph/Nodes/MovieGraphGlobalOutputSettingNode.h"
#include "MoviePipelineQueue.h"
#include "UObject/UnrealType.h"

FMovieGraphFilenameResolveParams FMovieGraphFilenameResolveParams::MakeResolveParams(const FMovieGraphRenderDataIdentifier& InRenderDataIdentifier,
	const UMovieGraphPipeline* InPipeline, const TObjectPtr<UMovieGraphEvaluatedConfig>& InEvaluatedConfig, const FMovieGraphTraversalContext& InTraversalContext,
	const TMap<FString, FString>& InAdditionalFormatArgs)
{
	const FMovieGraphTimeStepData& Time = InTraversalContext.Time;
	FMovieGraphFilenameResolveParams Params;
	Params.RenderDataIdentifier = InRenderDataIdentifier;
	Params.RootFrameNumber = Time.RootFrameNumber.Value;
	Params.ShotFrameNumber = Time.ShotFrameNumber.Value;
	Params.RootFrameNumberRel = Time.OutputFrameNumber;
	Params.ShotFrameNumberRel = Time.ShotOutputFrameNumber;
	Params.Version = InTraversalContext.Shot ? InTraversalContext.Shot->ShotInfo.VersionNumber : 0;
	Params.bEnsureAbsolutePath = true;
	Params.InitializationTime = InPipeline ? InPipeline->GetInitializationTime() : FDateTime(0);
	Params.FileNameFormatOverrides = InAdditionalFormatArgs;
	Params.Job = InTraversalContext.Job;
	Params.Shot = InTraversalContext.Shot;
	Params.EvaluatedConfig = InEvaluatedConfig;
	Params.DefaultFrameRate = Time.FrameRate;
	const UMovieGraphGlobalOutputSettingNode* OutputSettings = InEvaluatedConfig
		? InEvaluatedConfig->GetSettingForBranch<UMovieGraphGlobalOutputSettingNode>(UMovieGraphNode::GlobalsPinName)
		: GetDefault<UMovieGraphGlobalOutputSettingNode>();
	Params.ZeroPadFrameNumberCount = OutputSettings->ZeroPadFrameNumbers;
	Params.FrameNumberOffset = OutputSettings->FrameNumberOffset;
	return Params;
}

STANDIN_IMPLEMENT_STRUCT(FMovieGraphResolveArgs, "MovieRenderPipelineCore")
{
	STANDIN_PROPERTY(FilenameArguments, CPF_BlueprintVisible);
	STANDIN_PROPERTY(FileMetadata, CPF_BlueprintVisible);
}

STANDIN_IMPLEMENT_STRUCT(FMovieGraphFilenameResolveParams, "MovieRenderPipelineCore")
{
	STANDIN_PROPERTY(RenderDataIdentifier, CPF_BlueprintVisible);
	STANDIN_PROPERTY(RootFrameNumber, CPF_BlueprintVisible);
	STANDIN_PROPERTY(ShotFrameNumber, CPF_BlueprintVisible);
	STANDIN_PROPERTY(RootFrameNumberRel, CPF_BlueprintVisible);
	STANDIN_PROPERTY(ShotFrameNumberRel, CPF_BlueprintVisible);
	STANDIN_PROPERTY(FileMetadata, CPF_BlueprintVisible);
	STANDIN_PROPERTY(Version, CPF_BlueprintVisible);
	STANDIN_PROPERTY(bForceRelativeFrameNumbers, CPF_BlueprintVisible);
	STANDIN_PROPERTY(FileNameOverride, CPF_BlueprintVisible);
	STANDIN_PROPERTY(bEnsureAbsolutePath, CPF_BlueprintVisible);
	STANDIN_PROPERTY(InitializationTime, CPF_BlueprintVisible);
	STANDIN_PROPERTY(InitializationTimeOffset, CPF_BlueprintVisible);
	STANDIN_PROPERTY(ZeroPadFrameNumberCount, CPF_BlueprintVisible);
	STANDIN_PROPERTY(FileNameFormatOverrides, CPF_BlueprintVisible);
	STANDIN_PROPERTY(Job, CPF_BlueprintVisible);
	STANDIN_PROPERTY(Shot, CPF_BlueprintVisible);
	STANDIN_PROPERTY(EvaluatedConfig, CPF_BlueprintVisible);
	STANDIN_PROPERTY(FrameNumberOffset, CPF_BlueprintVisible);
	STANDIN_PROPERTY(DefaultFrameRate, CPF_BlueprintVisible);
}
