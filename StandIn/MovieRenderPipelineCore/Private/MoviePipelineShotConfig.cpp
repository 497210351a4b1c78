#include "MoviePipelineShotConfig.h"

#include "UObject/UnrealType.h"

UMoviePipelineShotConfig::UMoviePipelineShotConfig() = default;

bool UMoviePipelineShotConfig::CanSettingBeAdded(const UMoviePipelineSetting* InSetting) const
{
	return InSetting && InSetting->IsValidOnShots();
}

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMoviePipelineShotConfig, CLASS_None, "MovieRenderPipelineCore")
{
}
