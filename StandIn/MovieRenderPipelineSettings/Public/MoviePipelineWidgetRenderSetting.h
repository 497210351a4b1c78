// UMoviePipelineWidgetRenderer: renders the viewport's UI widgets as a layer of the output.
#pragma once

#include "CoreMinimal.h"
#include "MoviePipelineRenderPass.h"

#define UE_API STANDIN_MINIMALAPI_FUNCTION(MOVIERENDERPIPELINESETTINGS_API)

UCLASS(MinimalAPI, Blueprintable)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINESETTINGS_API) UMoviePipelineWidgetRenderer : public UMoviePipelineRenderPass
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMoviePipelineWidgetRenderer, UMoviePipelineRenderPass, MOVIERENDERPIPELINESETTINGS_API)

public:
	UE_API UMoviePipelineWidgetRenderer();

#if WITH_EDITOR
	UE_API virtual FText GetDisplayText() const override;
#endif

	// Whether the widgets are drawn onto the final image instead of written as a separate layer.
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Widget Settings")
	bool bCompositeOntoFinalImage;
};

#undef UE_API
