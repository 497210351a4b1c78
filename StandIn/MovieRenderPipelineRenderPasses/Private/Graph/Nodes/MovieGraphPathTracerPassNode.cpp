#include "Graph/Nodes/MovieGraphPathTracerPassNode.h"

#include "Graph/MovieGraphStandInNodeReflection.h"
#include "UObject/UnrealType.h"

UMovieGraphPathTracerRenderPassNode::UMovieGraphPathTracerRenderPassNode() = default;

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMovieGraphPathTracerRenderPassNode, CLASS_None, "MovieRenderPipelineRenderPasses")
{
	constexpr EPropertyFlags EditableFlags = CPF_Edit | CPF_BlueprintVisible;
	STANDIN_OVERRIDEABLE_PROPERTY(SpatialSampleCount, EditableFlags)->SetMetaData(TEXT("ClampMin"), TEXT("1"));
	STANDIN_OVERRIDEABLE_PROPERTY(bDenoiser, EditableFlags);
}
