#include "Graph/MovieGraphConfig.h"

#include "Graph/MovieGraphPin.h"
#include "MovieRenderPipelineCoreModule.h"

#if !UE_VERSION_OLDER_THAN(5, 8, 0)
namespace UE::MovieGraph::Private
{
	// Stand-in choice: the warning's wording.
	void WarnInsertionRefused(const TCHAR* InFunction, const FName& InPinLabel)
	{
		UE_LOG(LogMovieRenderPipeline, Warning, TEXT("%s: the target node, the node class or the pin '%s' is missing; nothing was inserted."), InFunction, *InPinLabel.ToString());
	}
}

UMovieGraphNode* UMovieGraphConfig::InsertBefore(UMovieGraphNode* InTargetNode, const TSubclassOf<UMovieGraphNode> InNodeClass, const FName& InTargetPinLabel)
{
	UMovieGraphPin* TargetPin = InTargetNode ? InTargetNode->GetInputPin(InTargetPinLabel) : nullptr;
	if (!TargetPin || !InNodeClass)
	{
		UE::MovieGraph::Private::WarnInsertionRefused(TEXT("InsertBefore"), InTargetPinLabel);
		return nullptr;
	}
	const TArray<UMovieGraphPin*> FormerlyFeeding = TargetPin->GetAllConnectedPins();
	UMovieGraphNode* NewNode = CreateNodeByClass(InNodeClass);
	if (!NewNode)
	{
		return nullptr;
	}
	TargetPin->BreakAllEdges();
	AddLabeledEdge(NewNode, NAME_None, InTargetNode, InTargetPinLabel);
	for (const UMovieGraphPin* UpstreamPin : FormerlyFeeding)
	{
		AddLabeledEdge(UpstreamPin->Node, UpstreamPin->Properties.Label, NewNode, NAME_None);
	}
	return NewNode;
}

UMovieGraphNode* UMovieGraphConfig::InsertAfter(UMovieGraphNode* InTargetNode, const TSubclassOf<UMovieGraphNode> InNodeClass, const FName& InTargetPinLabel)
{
	UMovieGraphPin* TargetPin = InTargetNode ? InTargetNode->GetOutputPin(InTargetPinLabel) : nullptr;
	if (!TargetPin || !InNodeClass)
	{
		UE::MovieGraph::Private::WarnInsertionRefused(TEXT("InsertAfter"), InTargetPinLabel);
		return nullptr;
	}
	UMovieGraphPin* FormerlyFed = TargetPin->GetFirstConnectedPin();
	UMovieGraphNode* NewNode = CreateNodeByClass(InNodeClass);
	if (!NewNode)
	{
		return nullptr;
	}
	if (FormerlyFed)
	{
		TargetPin->BreakEdgeTo(FormerlyFed);
	}
	AddLabeledEdge(InTargetNode, InTargetPinLabel, NewNode, NAME_None);
	if (FormerlyFed)
	{
		AddLabeledEdge(NewNode, NAME_None, FormerlyFed->Node, FormerlyFed->Properties.Label);
	}
	return NewNode;
}
#endif
