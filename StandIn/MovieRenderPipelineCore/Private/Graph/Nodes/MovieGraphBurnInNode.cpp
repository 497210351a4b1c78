#include "Graph/Nodes/MovieGraphBurnInNode.h"

#include "Graph/MovieGraphStandInNodeReflection.h"
#include "UObject/UnrealType.h"

UMovieGraphBurnInNode::UMovieGraphBurnInNode() = default;

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMovieGraphBurnInNode, CLASS_None, "MovieRenderPipelineCore")
{
	constexpr EPropertyFlags EditableFlags = CPF_Edit | CPF_BlueprintVisible;
	STANDIN_OVERRIDEABLE_PROPERTY(bCompositeOntoFinalImage, EditableFlags);
}
