#include "Graph/Nodes/MovieGraphRemoveRenderSettingNode.h"

#include "UObject/UnrealType.h"

UMovieGraphRemoveRenderSettingNode::UMovieGraphRemoveRenderSettingNode() = default;

TArray<FMovieGraphPinProperties> UMovieGraphRemoveRenderSettingNode::GetInputPinProperties() const
{
	return { FMovieGraphPinProperties::MakeBranchProperties() };
}

TArray<FMovieGraphPinProperties> UMovieGraphRemoveRenderSettingNode::GetOutputPinProperties() const
{
	return { FMovieGraphPinProperties::MakeBranchProperties() };
}

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMovieGraphRemoveRenderSettingNode, CLASS_None, "MovieRenderPipelineCore")
{
	STANDIN_PROPERTY(NodeType, CPF_Edit | CPF_BlueprintVisible);
}
