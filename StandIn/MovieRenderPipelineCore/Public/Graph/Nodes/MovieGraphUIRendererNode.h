// UMovieGraphUIRendererNode: renders the viewport's widgets (UMG) as an image.
#pragma once

#include "CoreMinimal.h"
#include "Graph/Nodes/MovieGraphRenderPassNode.h"

#define UE_API STANDIN_MINIMALAPI_FUNCTION(MOVIERENDERPIPELINECORE_API)

// Stand-in choice: derives from the render pass node directly; the widget renderer base is not modelled.

UCLASS(MinimalAPI)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINECORE_API) UMovieGraphUIRendererNode : public UMovieGraphRenderPassNode
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMovieGraphUIRendererNode, UMovieGraphRenderPassNode, MOVIERENDERPIPELINECORE_API)

public:
	UE_API UMovieGraphUIRendererNode();

	virtual FString GetRendererName() const override { return TEXT("UI"); }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Overrides, meta = (InlineEditConditionToggle))
	uint8 bOverride_bCompositeOntoFinalImage : 1 = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "UI Renderer", meta = (EditCondition = "bOverride_bCompositeOntoFinalImage"))
	bool bCompositeOntoFinalImage = true;
};

#undef UE_API
