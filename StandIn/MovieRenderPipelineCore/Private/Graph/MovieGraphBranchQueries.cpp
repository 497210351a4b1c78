#include "Graph/MovieGraphConfig.h"

#if !UE_VERSION_OLDER_THAN(5, 6, 0)
#include "Graph/MovieGraphEdge.h"
#include "Graph/Nodes/MovieGraphRerouteNode.h"

namespace UE::MovieGraph::Private
{
	bool MatchesClass(const UMovieGraphNode* InNode, const UClass* InClass, const bool bExactMatch)
	{
		return bExactMatch ? InNode->GetClass() == InClass : InNode->IsA(InClass);
	}

	// Depth first from the pin upstream, nearest the Output first; reroutes are passed through, the Input node ends a
	// path, subgraphs are not entered.
	void CollectUpstreamNodes(const UMovieGraphConfig* InGraph, const UMovieGraphPin* InInputPin, const UClass* InClass, const bool bExactMatch, TSet<const UMovieGraphNode*>& InOutVisited, TArray<UMovieGraphNode*>& OutNodes)
	{
		for (UMovieGraphPin* UpstreamPin : InInputPin->GetAllConnectedPins())
		{
			UMovieGraphNode* Node = UpstreamPin ? UpstreamPin->Node.Get() : nullptr;
			if (!Node || Node == InGraph->GetInputNode() || InOutVisited.Contains(Node))
			{
				continue;
			}
			InOutVisited.Add(Node);
			if (!Node->IsA<UMovieGraphRerouteNode>() && MatchesClass(Node, InClass, bExactMatch))
			{
				OutNodes.Add(Node);
			}
			for (const UMovieGraphPin* Pin : Node->GetInputPins())
			{
				CollectUpstreamNodes(InGraph, Pin, InClass, bExactMatch, InOutVisited, OutNodes);
			}
		}
	}

	bool HasScriptTag(const UMovieGraphNode* InNode, const FString& InTag)
	{
		return InNode->ScriptTags.ContainsByPredicate([&InTag](const FString& Tag) { return Tag.Equals(InTag, ESearchCase::CaseSensitive); });
	}
}

TArray<UMovieGraphNode*> UMovieGraphConfig::GetNodesForBranch(UClass* InClass, const FName& InBranchName, bool bExactMatch) const
{
	TArray<UMovieGraphNode*> Nodes;
	const UMovieGraphPin* BranchPin = OutputNode && InClass ? OutputNode->GetInputPin(InBranchName) : nullptr;
	if (BranchPin)
	{
		TSet<const UMovieGraphNode*> Visited = { OutputNode.Get() };
		UE::MovieGraph::Private::CollectUpstreamNodes(this, BranchPin, InClass, bExactMatch, Visited, Nodes);
	}
	return Nodes;
}

UMovieGraphNode* UMovieGraphConfig::GetNodeForBranch(UClass* InClass, const FName& InBranchName, bool bExactMatch) const
{
	const TArray<UMovieGraphNode*> Nodes = GetNodesForBranch(InClass, InBranchName, bExactMatch);
	return Nodes.Num() > 0 ? Nodes[0] : nullptr;
}

TArray<UMovieGraphNode*> UMovieGraphConfig::GetNodesForTag(const FString& ScriptTag, UClass* OptionalClassFilter, const FName OptionalBranchFilter, bool bExactMatch) const
{
	UClass* ClassFilter = OptionalClassFilter ? OptionalClassFilter : UMovieGraphNode::StaticClass();
	const TArray<UMovieGraphNode*> Candidates = OptionalBranchFilter.IsNone() ? TArray<UMovieGraphNode*>(AllNodes) : GetNodesForBranch(ClassFilter, OptionalBranchFilter, bExactMatch);
	TArray<UMovieGraphNode*> Tagged;
	for (UMovieGraphNode* Node : Candidates)
	{
		if (Node && UE::MovieGraph::Private::HasScriptTag(Node, ScriptTag) && (!OptionalClassFilter || UE::MovieGraph::Private::MatchesClass(Node, OptionalClassFilter, bExactMatch)))
		{
			Tagged.Add(Node);
		}
	}
	return Tagged;
}

UMovieGraphNode* UMovieGraphConfig::GetNodeForTag(const FString& ScriptTag, UClass* OptionalClassFilter, const FName OptionalBranchFilter, bool bExactMatch) const
{
	const TArray<UMovieGraphNode*> Nodes = GetNodesForTag(ScriptTag, OptionalClassFilter, OptionalBranchFilter, bExactMatch);
	return Nodes.Num() > 0 ? Nodes[0] : nullptr;
}
#endif
