#include "MovieGraphImageSequenceOutputNode.h"

#include "Graph/MovieGraphStandInNodeReflection.h"
#include "UObject/UnrealType.h"

UMovieGraphImageSequenceOutputNode::UMovieGraphImageSequenceOutputNode() = default;

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMovieGraphImageSequenceOutputNode, CLASS_Abstract, "MovieRenderPipelineRenderPasses")
{
}

UMovieGraphImageSequenceOutputNode_BMP::UMovieGraphImageSequenceOutputNode_BMP() = default;

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMovieGraphImageSequenceOutputNode_BMP, CLASS_None, "MovieRenderPipelineRenderPasses")
{
}

UMovieGraphImageSequenceOutputNode_JPG::UMovieGraphImageSequenceOutputNode_JPG() = default;

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMovieGraphImageSequenceOutputNode_JPG, CLASS_None, "MovieRenderPipelineRenderPasses")
{
}

UMovieGraphImageSequenceOutputNode_PNG::UMovieGraphImageSequenceOutputNode_PNG() = default;

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMovieGraphImageSequenceOutputNode_PNG, CLASS_None, "MovieRenderPipelineRenderPasses")
{
}

UMovieGraphImageSequenceOutputNode_EXR::UMovieGraphImageSequenceOutputNode_EXR() = default;

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMovieGraphImageSequenceOutputNode_EXR, CLASS_None, "MovieRenderPipelineRenderPasses")
{
	constexpr EPropertyFlags EditableFlags = CPF_Edit | CPF_BlueprintVisible;
	STANDIN_OVERRIDEABLE_PROPERTY(Compression, EditableFlags);
}

UMovieGraphImageSequenceOutputNode_MultiLayerEXR::UMovieGraphImageSequenceOutputNode_MultiLayerEXR()
{
	FileNameFormat = TEXT("{sequence_name}.{frame_number}");
}

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMovieGraphImageSequenceOutputNode_MultiLayerEXR, CLASS_None, "MovieRenderPipelineRenderPasses")
{
	constexpr EPropertyFlags EditableFlags = CPF_Edit | CPF_BlueprintVisible;
	STANDIN_OVERRIDEABLE_PROPERTY(bMultipart, EditableFlags);
}
