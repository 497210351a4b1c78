#include "Graph/Nodes/MovieGraphSubgraphNode.h"

#include "Graph/MovieGraphConfig.h"
#include "Graph/MovieGraphMemberPins.h"
#include "UObject/UnrealType.h"

UMovieGraphSubgraphNode::UMovieGraphSubgraphNode() = default;

TArray<FMovieGraphPinProperties> UMovieGraphSubgraphNode::GetInputPinProperties() const
{
	const UMovieGraphConfig* Subgraph = GetSubgraphAsset();
	return Subgraph ? UE::MovieGraph::Private::MakeMemberPinProperties(Subgraph->GetInputs()) : TArray<FMovieGraphPinProperties>();
}

TArray<FMovieGraphPinProperties> UMovieGraphSubgraphNode::GetOutputPinProperties() const
{
	const UMovieGraphConfig* Subgraph = GetSubgraphAsset();
	return Subgraph ? UE::MovieGraph::Private::MakeMemberPinProperties(Subgraph->GetOutputs()) : TArray<FMovieGraphPinProperties>();
}

void UMovieGraphSubgraphNode::SetSubGraphAsset(const TSoftObjectPtr<UMovieGraphConfig>& InSubgraphAsset)
{
	SubgraphAsset = InSubgraphAsset;
	UpdatePins();
}

UMovieGraphConfig* UMovieGraphSubgraphNode::GetSubgraphAsset() const
{
	return SubgraphAsset.LoadSynchronous();
}

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMovieGraphSubgraphNode, CLASS_None, "MovieRenderPipelineCore")
{
	STANDIN_PROPERTY(SubgraphAsset, CPF_Edit);
	STANDIN_FUNCTION(SetSubGraphAsset, TEXT("InSubgraphAsset"));
	STANDIN_FUNCTION(GetSubgraphAsset);
}
