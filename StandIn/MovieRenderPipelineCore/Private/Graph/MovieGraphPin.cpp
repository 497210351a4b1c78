#include "Graph/MovieGraphPin.h"

#include "Graph/MovieGraphConfig.h"
#include "Graph/MovieGraphEdge.h"
#include "Graph/MovieGraphNode.h"
#include "MovieRenderPipelineCoreModule.h"
#include "UObject/UnrealType.h"

namespace UE::MovieGraph::Private
{
	bool IsFloatingPointType(const EMovieGraphValueType InType)
	{
		return InType == EMovieGraphValueType::Float || InType == EMovieGraphValueType::Double;
	}

	// The branch names a connection would feed: the Output-node pin itself, or every branch reachable downstream.
	TArray<FString> GetBranchesFedBy(const UMovieGraphPin* InInputPin)
	{
		UMovieGraphNode* DownstreamNode = InInputPin->Node;
		UMovieGraphConfig* Graph = DownstreamNode ? DownstreamNode->GetGraph() : nullptr;
		if (!Graph)
		{
			return {};
		}
		if (DownstreamNode == Graph->GetOutputNode())
		{
			return { InInputPin->Properties.Label.ToString() };
		}
		return Graph->GetDownstreamBranchNames(DownstreamNode, InInputPin);
	}

	// The branch names a connection would come from: the Input-node pin itself, or every branch reachable upstream.
	TArray<FString> GetBranchesFeeding(const UMovieGraphPin* InOutputPin)
	{
		UMovieGraphNode* UpstreamNode = InOutputPin->Node;
		UMovieGraphConfig* Graph = UpstreamNode ? UpstreamNode->GetGraph() : nullptr;
		if (!Graph)
		{
			return {};
		}
		if (UpstreamNode == Graph->GetInputNode())
		{
			return { InOutputPin->Properties.Label.ToString() };
		}
		return Graph->GetUpstreamBranchNames(UpstreamNode, InOutputPin);
	}

	bool ContainsOtherThanGlobals(const TArray<FString>& InBranchNames)
	{
		for (const FString& BranchName : InBranchNames)
		{
			if (!BranchName.Equals(UMovieGraphNode::GlobalsPinNameString, ESearchCase::CaseSensitive))
			{
				return true;
			}
		}
		return false;
	}

	FString GetNodeDisplayName(const UMovieGraphNode* InNode)
	{
		return InNode->GetClass()->GetName();
	}
}

UMovieGraphPin::UMovieGraphPin() = default;

bool UMovieGraphPin::AddEdgeTo(UMovieGraphPin* InOtherPin)
{
	if (!InOtherPin || InOtherPin == this)
	{
		return false;
	}
	for (const TObjectPtr<UMovieGraphEdge>& Edge : Edges)
	{
		if (Edge && Edge->GetOtherPin(this) == InOtherPin)
		{
			return false;
		}
	}
	const bool bThisIsOutput = IsOutputPin();
	if (bThisIsOutput == InOtherPin->IsOutputPin() || IsInputPin() == InOtherPin->IsInputPin())
	{
		UE_LOG(LogMovieRenderPipeline, Error, TEXT("Cannot connect two pins of the same direction."));
		return false;
	}

	Modify();
	InOtherPin->Modify();
	UMovieGraphEdge* NewEdge = NewObject<UMovieGraphEdge>(this, NAME_None, RF_Transactional);
	NewEdge->InputPin = bThisIsOutput ? this : InOtherPin;
	NewEdge->OutputPin = bThisIsOutput ? InOtherPin : this;
	Edges.Add(NewEdge);
	InOtherPin->Edges.Add(NewEdge);
	return true;
}

bool UMovieGraphPin::BreakEdgeTo(UMovieGraphPin* InOtherPin)
{
	if (!InOtherPin)
	{
		return false;
	}
	for (int32 EdgeIndex = 0; EdgeIndex < Edges.Num(); ++EdgeIndex)
	{
		UMovieGraphEdge* Edge = Edges[EdgeIndex];
		if (Edge && Edge->GetOtherPin(this) == InOtherPin)
		{
			Modify();
			InOtherPin->Modify();
			Edges.RemoveAt(EdgeIndex);
			InOtherPin->Edges.Remove(Edge);
			return true;
		}
	}
	return false;
}

bool UMovieGraphPin::BreakAllEdges()
{
	bool bChanged = false;
	while (Edges.Num() > 0)
	{
		UMovieGraphEdge* Edge = Edges.Last();
		UMovieGraphPin* OtherPin = Edge ? Edge->GetOtherPin(this) : nullptr;
		if (OtherPin && BreakEdgeTo(OtherPin))
		{
			bChanged = true;
			continue;
		}
		Modify();
		Edges.Pop();
		bChanged = true;
	}
	return bChanged;
}

FPinConnectionResponse UMovieGraphPin::CanCreateConnection_PinConnectionResponse(const UMovieGraphPin* InOtherPin) const
{
	if (!InOtherPin)
	{
		return FPinConnectionResponse(CONNECT_RESPONSE_DISALLOW, TEXT("InOtherPin is invalid!"));
	}
	if (Node == InOtherPin->Node)
	{
		return FPinConnectionResponse(CONNECT_RESPONSE_DISALLOW, TEXT("No Circular Connections!"));
	}
	if (!IsTypeCompatibleWith(InOtherPin))
	{
		return FPinConnectionResponse(CONNECT_RESPONSE_DISALLOW, TEXT("Pin types don't match!"));
	}
	if (!IsPinDirectionCompatibleWith(InOtherPin))
	{
		return FPinConnectionResponse(CONNECT_RESPONSE_DISALLOW, TEXT("Directions are not compatible!"));
	}
	if (Properties.bIsBranch && InOtherPin->Properties.bIsBranch)
	{
		FText BranchError;
		if (!IsConnectionToBranchAllowed(InOtherPin, BranchError))
		{
			return FPinConnectionResponse(CONNECT_RESPONSE_DISALLOW, BranchError);
		}
	}

	const bool bThisIsInput = IsInputPin();
	const UMovieGraphPin* InputSide = bThisIsInput ? this : InOtherPin;
	if (InputSide->IsConnected() && !InputSide->AllowsMultipleConnections())
	{
		return FPinConnectionResponse(bThisIsInput ? CONNECT_RESPONSE_BREAK_OTHERS_A : CONNECT_RESPONSE_BREAK_OTHERS_B, TEXT("Replace existing input connections"));
	}
	return FPinConnectionResponse(CONNECT_RESPONSE_MAKE, TEXT("Connect nodes"));
}

bool UMovieGraphPin::CanCreateConnection(const UMovieGraphPin* InOtherPin) const
{
	return CanCreateConnection_PinConnectionResponse(InOtherPin).Response != CONNECT_RESPONSE_DISALLOW;
}

bool UMovieGraphPin::IsConnected() const
{
	for (const TObjectPtr<UMovieGraphEdge>& Edge : Edges)
	{
		if (Edge && Edge->IsValid())
		{
			return true;
		}
	}
	return false;
}

bool UMovieGraphPin::IsInputPin() const
{
	return Node && Node->GetInputPins().Contains(this);
}

bool UMovieGraphPin::IsOutputPin() const
{
	return Node && Node->GetOutputPins().Contains(this);
}

int32 UMovieGraphPin::EdgeCount() const
{
	return Edges.Num();
}

bool UMovieGraphPin::AllowsMultipleConnections() const
{
	return IsOutputPin() || Properties.bAllowMultipleConnections;
}

UMovieGraphPin* UMovieGraphPin::GetFirstConnectedPin(const bool bFollowRerouteConnections) const
{
	for (const TObjectPtr<UMovieGraphEdge>& Edge : Edges)
	{
		if (Edge && Edge->IsValid())
		{
			return Edge->GetOtherPin(this, bFollowRerouteConnections);
		}
	}
	return nullptr;
}

TArray<UMovieGraphPin*> UMovieGraphPin::GetAllConnectedPins() const
{
	TArray<UMovieGraphPin*> ConnectedPins;
	for (const TObjectPtr<UMovieGraphEdge>& Edge : Edges)
	{
		if (!Edge || !Edge->IsValid())
		{
			UE_LOG(LogMovieRenderPipeline, Warning, TEXT("Skipping an invalid edge of pin %s."), *Properties.Label.ToString());
			continue;
		}
		ConnectedPins.Add(Edge->GetOtherPin(this));
	}
	return ConnectedPins;
}

TArray<UMovieGraphNode*> UMovieGraphPin::GetConnectedNodes() const
{
	TArray<UMovieGraphNode*> ConnectedNodes;
	for (const UMovieGraphPin* ConnectedPin : GetAllConnectedPins())
	{
		if (ConnectedPin && ConnectedPin->Node)
		{
			ConnectedNodes.AddUnique(ConnectedPin->Node);
		}
	}
	return ConnectedNodes;
}

// Stand-in choice: the restrictions of the two nodes being connected are checked, and the Globals branch is kept apart
// from the others; nodes further along either chain are not looked at.
bool UMovieGraphPin::IsConnectionToBranchAllowed(const UMovieGraphPin* OtherPin, FText& OutError) const
{
	using namespace UE::MovieGraph::Private;
	if (!OtherPin)
	{
		return false;
	}
	const UMovieGraphPin* OutputSide = IsOutputPin() ? this : OtherPin;
	const UMovieGraphPin* InputSide = IsOutputPin() ? OtherPin : this;
	const UMovieGraphNode* UpstreamNode = OutputSide->Node;
	const UMovieGraphNode* DownstreamNode = InputSide->Node;
	if (!UpstreamNode || !DownstreamNode)
	{
		return false;
	}

	const EMovieGraphBranchRestriction UpstreamRestriction = UpstreamNode->GetBranchRestriction();
	const EMovieGraphBranchRestriction DownstreamRestriction = DownstreamNode->GetBranchRestriction();
	if ((UpstreamRestriction == EMovieGraphBranchRestriction::Globals && DownstreamRestriction == EMovieGraphBranchRestriction::RenderLayer)
		|| (UpstreamRestriction == EMovieGraphBranchRestriction::RenderLayer && DownstreamRestriction == EMovieGraphBranchRestriction::Globals))
	{
		OutError = FText::FromString(TEXT("A Globals-only node cannot be connected to a RenderLayer-only node."));
		return false;
	}

	const TArray<FString> DownstreamBranches = GetBranchesFedBy(InputSide);
	const TArray<FString> UpstreamBranches = GetBranchesFeeding(OutputSide);
	const bool bFeedsGlobals = DownstreamBranches.Contains(UMovieGraphNode::GlobalsPinNameString);
	const bool bComesFromGlobals = UpstreamBranches.Contains(UMovieGraphNode::GlobalsPinNameString);
	if ((bComesFromGlobals && ContainsOtherThanGlobals(DownstreamBranches)) || (bFeedsGlobals && ContainsOtherThanGlobals(UpstreamBranches)))
	{
		OutError = FText::FromString(TEXT("The Globals branch can only be connected to the Globals branch."));
		return false;
	}

	for (const UMovieGraphNode* RestrictedNode : { UpstreamNode, DownstreamNode })
	{
		const EMovieGraphBranchRestriction Restriction = RestrictedNode->GetBranchRestriction();
		if (Restriction == EMovieGraphBranchRestriction::Globals && ContainsOtherThanGlobals(DownstreamBranches))
		{
			OutError = FText::FromString(FString::Printf(TEXT("The node '%s' can only be connected to the Globals branch."), *GetNodeDisplayName(RestrictedNode)));
			return false;
		}
		if (Restriction == EMovieGraphBranchRestriction::RenderLayer && bFeedsGlobals)
		{
			OutError = FText::FromString(FString::Printf(TEXT("The node '%s' can only be connected to a render layer branch."), *GetNodeDisplayName(RestrictedNode)));
			return false;
		}
	}
	return true;
}

bool UMovieGraphPin::IsPinDirectionCompatibleWith(const UMovieGraphPin* OtherPin) const
{
	return OtherPin && ((IsInputPin() && OtherPin->IsOutputPin()) || (IsOutputPin() && OtherPin->IsInputPin()));
}

bool UMovieGraphPin::IsTypeCompatibleWith(const UMovieGraphPin* InOtherPin) const
{
	using namespace UE::MovieGraph::Private;
	if (!InOtherPin)
	{
		return false;
	}
	const FMovieGraphPinProperties& Other = InOtherPin->Properties;
	if (Properties.bIsBranch && Other.bIsBranch)
	{
		return true;
	}
	if (Properties.bIsWildcard || Other.bIsWildcard)
	{
		return true;
	}
	if (Properties.bIsBranch != Other.bIsBranch)
	{
		return false;
	}
	const bool bSameType = Properties.Type == Other.Type || (IsFloatingPointType(Properties.Type) && IsFloatingPointType(Other.Type));
	return bSameType && Properties.TypeObject == Other.TypeObject;
}

STANDIN_IMPLEMENT_ENUM(EMovieGraphPinQueryRequirement, "MovieRenderPipelineCore", BuiltIn, Dynamic, BuiltInOrDynamic)

STANDIN_IMPLEMENT_STRUCT(FMovieGraphPinProperties, "MovieRenderPipelineCore")
{
	constexpr EPropertyFlags EditableFlags = CPF_Edit | CPF_BlueprintVisible;
	STANDIN_PROPERTY(Label, EditableFlags);
	STANDIN_PROPERTY(Type, EditableFlags);
	STANDIN_PROPERTY(TypeObject, EditableFlags);
	STANDIN_PROPERTY(bAllowMultipleConnections, EditableFlags);
	STANDIN_PROPERTY(bIsBranch, EditableFlags);
	STANDIN_PROPERTY(bIsWildcard, EditableFlags);
	STANDIN_PROPERTY(bIsBuiltIn, EditableFlags);
}

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMovieGraphPin, CLASS_None, "MovieRenderPipelineCore")
{
	STANDIN_PROPERTY(Node, CPF_BlueprintVisible | CPF_BlueprintReadOnly);
	STANDIN_PROPERTY(Properties, CPF_Edit | CPF_BlueprintVisible | CPF_BlueprintReadOnly);
	STANDIN_PROPERTY(Edges, CPF_BlueprintVisible | CPF_BlueprintReadOnly | CPF_TextExportTransient);
	STANDIN_FUNCTION(CanCreateConnection, TEXT("InOtherPin"));
	STANDIN_FUNCTION(IsConnected);
	STANDIN_FUNCTION(IsInputPin);
	STANDIN_FUNCTION(IsOutputPin);
	STANDIN_FUNCTION(EdgeCount);
	STANDIN_FUNCTION(AllowsMultipleConnections);
	STANDIN_FUNCTION(GetAllConnectedPins);
	STANDIN_FUNCTION(GetConnectedNodes);
}
