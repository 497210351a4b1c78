// UMoviePipelineViewFamilySetting: the base of settings that describe the views a render draws.
#pragma once

#include "CoreMinimal.h"
#include "MoviePipelineSetting.h"

UCLASS(MinimalAPI, BlueprintType, Abstract)
class MOVIERENDERPIPELINECORE_API UMoviePipelineViewFamilySetting : public UMoviePipelineSetting
{
	STANDIN_CLASS_BODY(UMoviePipelineViewFamilySetting, UMoviePipelineSetting, MOVIERENDERPIPELINECORE_API)

public:
	UMoviePipelineViewFamilySetting();

	// Stand-in choice: valid on the primary configuration only, as the views belong to the whole render.
	virtual bool IsValidOnShots() const override { return false; }
	virtual bool IsValidOnPrimary() const override { return true; }
};
