#include "MoviePipelineShotConfig.h"

#include "UObject/UnrealType.h"

UMoviePipelineShotConfig::UMoviePipelineShotConfig() = default;

bool UMoviePipelineShotConfig::CanSettingBeAdded(const UMoviePipelineSetting* InSetting) const
{
	return InSetting && InSetting->IsValidOnShots();
}

VLMR_IMPLEMENT_CLASS(UMoviePipelineShotConfig, CLASS_None, "MovieRenderPipelineCore")
{
}
