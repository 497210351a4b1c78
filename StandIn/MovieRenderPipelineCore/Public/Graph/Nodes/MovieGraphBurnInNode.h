// UMovieGraphBurnInNode: renders a widget burn-in, on its own or over a layer's image.
#pragma once

#include "CoreMinimal.h"
#include "Graph/Nodes/MovieGraphRenderPassNode.h"

#define UE_API STANDIN_MINIMALAPI_FUNCTION(MOVIERENDERPIPELINECORE_API)

// Stand-in choice: derives from the render pass node directly; the widget renderer base is not modelled.

UCLASS(MinimalAPI)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINECORE_API) UMovieGraphBurnInNode : public UMovieGraphRenderPassNode
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMovieGraphBurnInNode, UMovieGraphRenderPassNode, MOVIERENDERPIPELINECORE_API)

public:
	UE_API UMovieGraphBurnInNode();

	virtual FString GetRendererName() const override { return TEXT("BurnIn"); }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Overrides, meta = (InlineEditConditionToggle))
	uint8 bOverride_bCompositeOntoFinalImage : 1 = 0;

	// Stand-in choice: composited onto the layer by default.
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Burn In", meta = (EditCondition = "bOverride_bCompositeOntoFinalImage"))
	bool bCompositeOntoFinalImage = true;
};

#undef UE_API
