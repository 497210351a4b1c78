// UMoviePipelineShotConfig: settings that override the primary configuration for one shot.
#pragma once

#include "CoreMinimal.h"
#include "MoviePipelineConfigBase.h"

#define UE_API STANDIN_MINIMALAPI_FUNCTION(MOVIERENDERPIPELINECORE_API)

UCLASS(MinimalAPI, Blueprintable)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINECORE_API) UMoviePipelineShotConfig : public UMoviePipelineConfigBase
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMoviePipelineShotConfig, UMoviePipelineConfigBase, MOVIERENDERPIPELINECORE_API)

public:
	UE_API UMoviePipelineShotConfig();

	UE_API virtual bool CanSettingBeAdded(const UMoviePipelineSetting* InSetting) const override;
};

#undef UE_API
