#include "Graph/Nodes/MovieGraphCommandLineEncoderNode.h"

#include "Graph/MovieGraphStandInNodeReflection.h"
#include "UObject/UnrealType.h"

UMovieGraphCommandLineEncoderNode::UMovieGraphCommandLineEncoderNode() = default;

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMovieGraphCommandLineEncoderNode, CLASS_None, "MovieRenderPipelineCore")
{
	constexpr EPropertyFlags EditableFlags = CPF_Edit | CPF_BlueprintVisible;
	STANDIN_OVERRIDEABLE_PROPERTY(FileNameFormat, EditableFlags);
	STANDIN_OVERRIDEABLE_PROPERTY(bDeleteSourceFiles, EditableFlags);
}
