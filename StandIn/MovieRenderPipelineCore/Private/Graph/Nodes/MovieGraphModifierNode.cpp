#include "Graph/Nodes/MovieGraphModifierNode.h"

#include "UObject/UnrealType.h"

UMovieGraphModifierNode::UMovieGraphModifierNode() = default;

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMovieGraphModifierNode, CLASS_None, "MovieRenderPipelineCore")
{
	constexpr EPropertyFlags EditableFlags = CPF_Edit | CPF_BlueprintVisible;
	STANDIN_PROPERTY(Collections, EditableFlags);
}
