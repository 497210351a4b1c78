// UMovieGraphDeferredRenderPassNode: a render pass drawn by the deferred renderer.
#pragma once

#include "CoreMinimal.h"
#include "Graph/Nodes/MovieGraphImagePassBaseNode.h"
#include "SceneUtils.h"

#define UE_API STANDIN_MINIMALAPI_FUNCTION(MOVIERENDERPIPELINERENDERPASSES_API)

UCLASS(MinimalAPI)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINERENDERPASSES_API) UMovieGraphDeferredRenderPassNode : public UMovieGraphImagePassBaseNode
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMovieGraphDeferredRenderPassNode, UMovieGraphImagePassBaseNode, MOVIERENDERPIPELINERENDERPASSES_API)

public:
	UE_API UMovieGraphDeferredRenderPassNode();

	// Stand-in choice: the renderer is named "Deferred" in file names.
	virtual FString GetRendererName() const override { return TEXT("Deferred"); }
	virtual int32 GetNumSpatialSamples() const override { return SpatialSampleCount; }
	virtual EAntiAliasingMethod GetAntiAliasingMethod() const override { return AntiAliasingMethod; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Overrides, meta = (InlineEditConditionToggle))
	uint8 bOverride_SpatialSampleCount : 1 = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Overrides, meta = (InlineEditConditionToggle))
	uint8 bOverride_AntiAliasingMethod : 1 = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Overrides, meta = (InlineEditConditionToggle))
	uint8 bOverride_bDisableToneCurve : 1 = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Overrides, meta = (InlineEditConditionToggle))
	uint8 bOverride_bAllowOCIO : 1 = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Sampling", meta = (EditCondition = "bOverride_SpatialSampleCount", UIMin = 1, ClampMin = 1))
	int32 SpatialSampleCount = 1;

	// Stand-in choice: temporal anti-aliasing by default.
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Sampling", meta = (EditCondition = "bOverride_AntiAliasingMethod"))
	TEnumAsByte<EAntiAliasingMethod> AntiAliasingMethod = EAntiAliasingMethod::AAM_TemporalAA;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Deferred Renderer Data", meta = (EditCondition = "bOverride_bDisableToneCurve"))
	bool bDisableToneCurve = false;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Deferred Renderer Data", meta = (EditCondition = "bOverride_bAllowOCIO"))
	bool bAllowOCIO = true;
};

#undef UE_API
