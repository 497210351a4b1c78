#include "Graph/Nodes/MovieGraphBranchNode.h"

#include "UObject/UnrealType.h"

UMovieGraphBranchNode::UMovieGraphBranchNode() = default;

TArray<FMovieGraphPinProperties> UMovieGraphBranchNode::GetInputPinProperties() const
{
	return {
		FMovieGraphPinProperties::MakeBranchProperties(TEXT("True")),
		FMovieGraphPinProperties::MakeBranchProperties(TEXT("False")),
		FMovieGraphPinProperties(TEXT("Condition"), EMovieGraphValueType::Bool, nullptr, false)
	};
}

TArray<FMovieGraphPinProperties> UMovieGraphBranchNode::GetOutputPinProperties() const
{
	return { FMovieGraphPinProperties::MakeBranchProperties() };
}

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMovieGraphBranchNode, CLASS_None, "MovieRenderPipelineCore")
{
}
