// UMoviePipelineBurnInSetting: draws a widget with shot and frame information over the rendered frames.
#pragma once

#include "CoreMinimal.h"
#include "MoviePipelineRenderPass.h"
#include "UObject/SoftObjectPath.h"

#define UE_API STANDIN_MINIMALAPI_FUNCTION(MOVIERENDERPIPELINESETTINGS_API)

UCLASS(MinimalAPI, Blueprintable)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINESETTINGS_API) UMoviePipelineBurnInSetting : public UMoviePipelineRenderPass
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMoviePipelineBurnInSetting, UMoviePipelineRenderPass, MOVIERENDERPIPELINESETTINGS_API)

public:
	UE_API UMoviePipelineBurnInSetting();

#if WITH_EDITOR
	UE_API virtual FText GetDisplayText() const override;
#endif

	// The widget a new burn-in setting draws.
	static FString DefaultBurnInWidgetAsset;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, meta = (MetaClass = "/Script/MovieRenderPipelineSettings.MoviePipelineBurnInWidget"), Category = "Widget Settings")
	FSoftClassPath BurnInClass;

	// Whether the burn-in is drawn onto the final image instead of written as a separate layer.
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Widget Settings")
	bool bCompositeOntoFinalImage;
};

#undef UE_API
