// A setting class kept only so that old configurations still load: hidden from setting lists, found by name.
#pragma once

#include "CoreMinimal.h"
#include "MoviePipelineSetting.h"

// Stand-in choice: no concrete deprecated MRQ setting class was found in the engine's API pages; this one stands for one.
UCLASS(Deprecated)
class MOVIERENDERPIPELINECORE_API UDEPRECATED_MoviePipelineStandInLegacySetting : public UMoviePipelineSetting
{
	STANDIN_CLASS_BODY(UDEPRECATED_MoviePipelineStandInLegacySetting, UMoviePipelineSetting, MOVIERENDERPIPELINECORE_API)

public:
	UDEPRECATED_MoviePipelineStandInLegacySetting();

	virtual bool IsValidOnShots() const override { return true; }
	virtual bool IsValidOnPrimary() const override { return true; }
};
