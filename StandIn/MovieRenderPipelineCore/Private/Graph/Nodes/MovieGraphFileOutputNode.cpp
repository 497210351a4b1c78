#include "Graph/Nodes/MovieGraphFileOutputNode.h"

#include "Graph/MovieGraphStandInNodeReflection.h"
#include "UObject/UnrealType.h"

UMovieGraphFileOutputNode::UMovieGraphFileOutputNode() = default;

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMovieGraphFileOutputNode, CLASS_Abstract, "MovieRenderPipelineCore")
{
	constexpr EPropertyFlags EditableFlags = CPF_Edit | CPF_BlueprintVisible;
	STANDIN_OVERRIDEABLE_PROPERTY(FileNameFormat, EditableFlags);
}
