#include "Graph/Nodes/MovieGraphUIRendererNode.h"

#include "Graph/MovieGraphStandInNodeReflection.h"
#include "UObject/UnrealType.h"

UMovieGraphUIRendererNode::UMovieGraphUIRendererNode() = default;

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMovieGraphUIRendererNode, CLASS_None, "MovieRenderPipelineCore")
{
	constexpr EPropertyFlags EditableFlags = CPF_Edit | CPF_BlueprintVisible;
	STANDIN_OVERRIDEABLE_PROPERTY(bCompositeOntoFinalImage, EditableFlags);
}
