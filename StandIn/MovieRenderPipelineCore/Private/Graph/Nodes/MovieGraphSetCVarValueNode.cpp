#include "Graph/Nodes/MovieGraphSetCVarValueNode.h"

#include "Graph/MovieGraphStandInNodeReflection.h"
#include "UObject/UnrealType.h"

UMovieGraphSetCVarValueNode::UMovieGraphSetCVarValueNode() = default;

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMovieGraphSetCVarValueNode, CLASS_None, "MovieRenderPipelineCore")
{
	constexpr EPropertyFlags EditableFlags = CPF_Edit | CPF_BlueprintVisible;
	STANDIN_OVERRIDEABLE_PROPERTY(Name, EditableFlags);
	STANDIN_OVERRIDEABLE_PROPERTY(Value, EditableFlags);
}
