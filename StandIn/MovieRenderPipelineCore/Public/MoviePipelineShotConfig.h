// UMoviePipelineShotConfig: settings that override the primary configuration for one shot.
#pragma once

#include "CoreMinimal.h"
#include "MoviePipelineConfigBase.h"

UCLASS(MinimalAPI, Blueprintable)
class MOVIERENDERPIPELINECORE_API UMoviePipelineShotConfig : public UMoviePipelineConfigBase
{
	STANDIN_CLASS_BODY(UMoviePipelineShotConfig, UMoviePipelineConfigBase, MOVIERENDERPIPELINECORE_API)

public:
	UMoviePipelineShotConfig();

	virtual bool CanSettingBeAdded(const UMoviePipelineSetting* InSetting) const override;
};
