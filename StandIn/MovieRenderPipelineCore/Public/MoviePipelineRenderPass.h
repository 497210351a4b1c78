// UMoviePipelineRenderPass: the base of settings that produce images (render passes, burn-ins, UI overlays).
#pragma once

#include "CoreMinimal.h"
#include "MoviePipelineSetting.h"

UCLASS(MinimalAPI, Blueprintable, Abstract)
class MOVIERENDERPIPELINECORE_API UMoviePipelineRenderPass : public UMoviePipelineSetting
{
	STANDIN_CLASS_BODY(UMoviePipelineRenderPass, UMoviePipelineSetting, MOVIERENDERPIPELINECORE_API)

public:
	UMoviePipelineRenderPass();

#if WITH_EDITOR
	virtual FText GetCategoryText() const override;
#endif
	virtual bool IsValidOnShots() const override { return true; }
	virtual bool IsValidOnPrimary() const override { return true; }
};
