#include "Graph/MovieGraphFilenameResolveParams.h"

#include "Graph/MovieGraphConfig.h"
#include "MoviePipelineQueue.h"
#include "UObject/UnrealType.h"

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
