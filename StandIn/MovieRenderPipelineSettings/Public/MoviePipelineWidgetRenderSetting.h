// UMoviePipelineWidgetRenderer: renders the viewport's UI widgets as a layer of the output.
#pragma once

#include "CoreMinimal.h"
#include "MoviePipelineRenderPass.h"

UCLASS(MinimalAPI, Blueprintable)
class MOVIERENDERPIPELINESETTINGS_API UMoviePipelineWidgetRenderer : public UMoviePipelineRenderPass
{
	STANDIN_CLASS_BODY(UMoviePipelineWidgetRenderer, UMoviePipelineRenderPass, MOVIERENDERPIPELINESETTINGS_API)

public:
	UMoviePipelineWidgetRenderer();

#if WITH_EDITOR
	virtual FText GetDisplayText() const override;
#endif

	// Whether the widgets are drawn onto the final image instead of written as a separate layer.
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Widget Settings")
	bool bCompositeOntoFinalImage;
};
