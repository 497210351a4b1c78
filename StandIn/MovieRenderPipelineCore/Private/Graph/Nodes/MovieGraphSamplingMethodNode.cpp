#include "Graph/Nodes/MovieGraphSamplingMethodNode.h"

#include "Graph/MovieGraphStandInNodeReflection.h"
#include "UObject/UnrealType.h"

UMovieGraphSamplingMethodNode::UMovieGraphSamplingMethodNode() = default;

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMovieGraphSamplingMethodNode, CLASS_None, "MovieRenderPipelineCore")
{
	constexpr EPropertyFlags EditableFlags = CPF_Edit | CPF_BlueprintVisible;
	STANDIN_OVERRIDEABLE_PROPERTY(TemporalSampleCount, EditableFlags)->SetMetaData(TEXT("ClampMin"), TEXT("1"));
}
