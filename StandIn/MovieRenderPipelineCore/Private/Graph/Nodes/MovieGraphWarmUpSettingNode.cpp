#include "Graph/Nodes/MovieGraphWarmUpSettingNode.h"

#include "Graph/MovieGraphStandInNodeReflection.h"
#include "UObject/UnrealType.h"

UMovieGraphWarmUpSettingNode::UMovieGraphWarmUpSettingNode() = default;

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMovieGraphWarmUpSettingNode, CLASS_None, "MovieRenderPipelineCore")
{
	constexpr EPropertyFlags EditableFlags = CPF_Edit | CPF_BlueprintVisible;
	STANDIN_OVERRIDEABLE_PROPERTY(NumWarmUpFrames, EditableFlags)->SetMetaData(TEXT("ClampMin"), TEXT("0"));
	STANDIN_OVERRIDEABLE_PROPERTY(bEmulateMotionBlur, EditableFlags);
#if !UE_VERSION_OLDER_THAN(5, 8, 0)
	STANDIN_OVERRIDEABLE_PROPERTY(LayerWarmUpFrames, EditableFlags)->SetMetaData(TEXT("ClampMin"), TEXT("0"));
#endif
}
