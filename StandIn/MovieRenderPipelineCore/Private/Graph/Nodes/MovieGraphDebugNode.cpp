#include "Graph/Nodes/MovieGraphDebugNode.h"

#include "Graph/MovieGraphStandInNodeReflection.h"
#include "UObject/UnrealType.h"

UMovieGraphDebugSettingNode::UMovieGraphDebugSettingNode() = default;

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMovieGraphDebugSettingNode, CLASS_None, "MovieRenderPipelineCore")
{
	constexpr EPropertyFlags EditableFlags = CPF_Edit | CPF_BlueprintVisible;
	STANDIN_OVERRIDEABLE_PROPERTY(bCaptureFramesWithRenderDoc, EditableFlags);
	STANDIN_OVERRIDEABLE_PROPERTY(bCaptureUnrealInsightsTrace, EditableFlags);
	STANDIN_OVERRIDEABLE_PROPERTY(UnrealInsightsTraceFileNameFormat, EditableFlags);
}
