#include "MoviePipelineDeprecatedSetting.h"

#include "UObject/UnrealType.h"

UDEPRECATED_MoviePipelineStandInLegacySetting::UDEPRECATED_MoviePipelineStandInLegacySetting() = default;

STANDIN_IMPLEMENT_CLASS(UDEPRECATED_MoviePipelineStandInLegacySetting, CLASS_Deprecated, "MovieRenderPipelineCore")
{
}
