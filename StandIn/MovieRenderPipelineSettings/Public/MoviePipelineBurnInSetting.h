// UMoviePipelineBurnInSetting: draws a widget with shot and frame information over the rendered frames.
#pragma once

#include "CoreMinimal.h"
#include "MoviePipelineRenderPass.h"
#include "UObject/SoftObjectPath.h"

UCLASS(MinimalAPI, Blueprintable)
class MOVIERENDERPIPELINESETTINGS_API UMoviePipelineBurnInSetting : public UMoviePipelineRenderPass
{
	STANDIN_CLASS_BODY(UMoviePipelineBurnInSetting, UMoviePipelineRenderPass, MOVIERENDERPIPELINESETTINGS_API)

public:
	UMoviePipelineBurnInSetting();

#if WITH_EDITOR
	virtual FText GetDisplayText() const override;
#endif

	// The widget a new burn-in setting draws.
	static FString DefaultBurnInWidgetAsset;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, meta = (MetaClass = "/Script/MovieRenderPipelineSettings.MoviePipelineBurnInWidget"), Category = "Widget Settings")
	FSoftClassPath BurnInClass;

	// Whether the burn-in is drawn onto the final image instead of written as a separate layer.
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Widget Settings")
	bool bCompositeOntoFinalImage;
};
