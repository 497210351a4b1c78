// UMovieGraphPathTracerRenderPassNode: a render pass drawn by the path tracer.
#pragma once

#include "CoreMinimal.h"
#include "Graph/Nodes/MovieGraphImagePassBaseNode.h"

#define UE_API STANDIN_MINIMALAPI_FUNCTION(MOVIERENDERPIPELINERENDERPASSES_API)

UCLASS(MinimalAPI)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINERENDERPASSES_API) UMovieGraphPathTracerRenderPassNode : public UMovieGraphImagePassBaseNode
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMovieGraphPathTracerRenderPassNode, UMovieGraphImagePassBaseNode, MOVIERENDERPIPELINERENDERPASSES_API)

public:
	UE_API UMovieGraphPathTracerRenderPassNode();

	// Stand-in choice: the renderer is named "PathTracer" in file names.
	virtual FString GetRendererName() const override { return TEXT("PathTracer"); }
	virtual int32 GetNumSpatialSamples() const override { return SpatialSampleCount; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Overrides, meta = (InlineEditConditionToggle))
	uint8 bOverride_SpatialSampleCount : 1 = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Overrides, meta = (InlineEditConditionToggle))
	uint8 bOverride_bDenoiser : 1 = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Sampling", meta = (EditCondition = "bOverride_SpatialSampleCount", UIMin = 1, ClampMin = 1))
	int32 SpatialSampleCount = 1;

	// Stand-in choice: denoised by default.
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Path Tracer", meta = (EditCondition = "bOverride_bDenoiser"))
	bool bDenoiser = true;
};

#undef UE_API
