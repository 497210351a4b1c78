#include "Graph/MovieGraphConfig.h"

#include "Graph/MovieGraphEdge.h"
#include "Graph/Nodes/MovieGraphGlobalOutputSettingNode.h"
#include "Graph/Nodes/MovieGraphInputNode.h"
#include "Graph/Nodes/MovieGraphOutputNode.h"
#include "Graph/Nodes/MovieGraphSubgraphNode.h"
#include "Graph/Nodes/MovieGraphVariableNode.h"
#include "UObject/Stack.h"
#include "UObject/UnrealType.h"

// Stand-in choice: the script errors of the graph edits are worded here; the engine reports them the same way, on LogScript.
namespace UE::MovieGraph::Private
{
	void ReportScriptError(const FString& InMessage)
	{
		FFrame::KismetExecutionMessage(*InMessage, ELogVerbosity::Error);
	}

	// The base name if no member of the list has it, else "<base> 1", "<base> 2", ...
	template<class TMember>
	FString GetUniqueName(const TArray<TObjectPtr<TMember>>& InMembers, const FString& InBaseName)
	{
		auto IsTaken = [&InMembers](const FString& InCandidate)
		{
			return InMembers.ContainsByPredicate([&InCandidate](const TObjectPtr<TMember>& Member)
			{
				return Member && Member->GetMemberName().Equals(InCandidate, ESearchCase::IgnoreCase);
			});
		};
		FString Candidate = InBaseName;
		for (int32 Counter = 1; IsTaken(Candidate); ++Counter)
		{
			Candidate = FString::Printf(TEXT("%s %d"), *InBaseName, Counter);
		}
		return Candidate;
	}

	// A new member with its own GUID. Named rather than NAME_None: the graph's constructor adds members while the graph
	// itself is under construction, where the engine refuses unnamed objects.
	template<class TMember>
	TMember* NewMember(UMovieGraphConfig* InGraph, UClass* InClass = TMember::StaticClass())
	{
		TMember* Member = NewObject<TMember>(InGraph, InClass, MakeUniqueObjectName(InGraph, InClass), RF_Transactional);
		Member->SetGuid(FGuid::NewGuid());
		return Member;
	}

	// Takes an input or output out of the graph: the edges of its pin first, then the pin with the member.
	template<class TMember>
	bool RemoveInterfaceMember(TArray<TObjectPtr<TMember>>& InOutMembers, TMember* InMember, UMovieGraphPin* InMemberPin, UMovieGraphNode* InInterfaceNode)
	{
		if (!InOutMembers.Contains(InMember))
		{
			return false;
		}
		if (InMemberPin)
		{
			InMemberPin->BreakAllEdges();
		}
		InOutMembers.Remove(InMember);
		InInterfaceNode->UpdatePins();
		return true;
	}

	template<class TMember>
	bool HasMemberNamed(const TArray<TObjectPtr<TMember>>& InMembers, const FString& InName)
	{
		return InMembers.ContainsByPredicate([&InName](const TObjectPtr<TMember>& Member)
		{
			return Member && Member->GetMemberName().Equals(InName, ESearchCase::IgnoreCase);
		});
	}

	template<class TMember>
	TArray<TMember*> ToMemberList(const TArray<TObjectPtr<TMember>>& InMembers)
	{
		TArray<TMember*> Result;
		Result.Reserve(InMembers.Num());
		for (const TObjectPtr<TMember>& Member : InMembers)
		{
			Result.Add(Member);
		}
		return Result;
	}

	bool BreakEdgesOfPins(const TArray<UMovieGraphPin*>& InPins)
	{
		bool bChanged = false;
		for (UMovieGraphPin* Pin : InPins)
		{
			bChanged |= Pin && Pin->BreakAllEdges();
		}
		return bChanged;
	}

	// Labels of the interface-node pins reachable from the node, following branch edges in one direction.
	TArray<FString> CollectBranchNames(const UMovieGraphConfig* InGraph, UMovieGraphNode* InFromNode, const UMovieGraphPin* InFromPin, const bool bDownstream, const bool bStopAtSubgraph)
	{
		TArray<FString> BranchNames;
		const UMovieGraphNode* EndNode = bDownstream ? InGraph->GetOutputNode() : InGraph->GetInputNode();
		TArray<const UMovieGraphPin*> PinsToFollow;
		auto AddBranchPinsOf = [&PinsToFollow, bDownstream](const UMovieGraphNode* InNode)
		{
			for (const UMovieGraphPin* Pin : bDownstream ? InNode->GetOutputPins() : InNode->GetInputPins())
			{
				if (Pin && Pin->Properties.bIsBranch)
				{
					PinsToFollow.Add(Pin);
				}
			}
		};
		const bool bStartsOnOwnSide = InFromPin && InFromPin->Node == InFromNode && (bDownstream ? InFromPin->IsOutputPin() : InFromPin->IsInputPin());
		if (bStartsOnOwnSide)
		{
			PinsToFollow.Add(InFromPin);
		}
		else if (InFromNode)
		{
			AddBranchPinsOf(InFromNode);
		}

		TSet<const UMovieGraphNode*> Visited;
		while (PinsToFollow.Num() > 0)
		{
			const UMovieGraphPin* Pin = PinsToFollow.Pop();
			for (const UMovieGraphPin* ConnectedPin : Pin->GetAllConnectedPins())
			{
				const UMovieGraphNode* ConnectedNode = ConnectedPin ? ConnectedPin->Node.Get() : nullptr;
				if (!ConnectedNode)
				{
					continue;
				}
				const bool bIsSubgraph = ConnectedNode->IsA<UMovieGraphSubgraphNode>();
				if (ConnectedNode == EndNode || (bStopAtSubgraph && bIsSubgraph))
				{
					BranchNames.AddUnique(ConnectedPin->Properties.Label.ToString());
					continue;
				}
				if (!Visited.Contains(ConnectedNode))
				{
					Visited.Add(ConnectedNode);
					AddBranchPinsOf(ConnectedNode);
				}
			}
		}
		return BranchNames;
	}

	bool IsOutputDirectoryOverride(const UMovieGraphNode* InNode)
	{
		const UMovieGraphGlobalOutputSettingNode* OutputSettingNode = Cast<UMovieGraphGlobalOutputSettingNode>(InNode);
#if UE_VERSION_OLDER_THAN(5, 8, 0)
		return OutputSettingNode && OutputSettingNode->bOverride_OutputDirectory;
#else
		return OutputSettingNode && OutputSettingNode->bOverride_OutputDirectory && !OutputSettingNode->IsDisabled();
#endif
	}

	// Walks the chain feeding the input pin upstream, through subgraphs' Globals branches, for the first override.
	bool FindOutputDirectoryUpstream(const UMovieGraphConfig* InGraph, const UMovieGraphPin* InFromInputPin, TSet<const UMovieGraphConfig*>& InOutVisitedGraphs, FString& OutDirectory)
	{
		const UMovieGraphPin* ConnectedPin = InFromInputPin ? InFromInputPin->GetFirstConnectedPin(true) : nullptr;
		while (ConnectedPin && ConnectedPin->Node && ConnectedPin->Node != InGraph->GetInputNode())
		{
			const UMovieGraphNode* Node = ConnectedPin->Node;
			if (IsOutputDirectoryOverride(Node))
			{
				OutDirectory = CastChecked<UMovieGraphGlobalOutputSettingNode>(Node)->OutputDirectory.Path;
				return true;
			}
			const UMovieGraphPin* NextInputPin = Node->GetFirstConnectedInputPin();
			if (const UMovieGraphSubgraphNode* SubgraphNode = Cast<UMovieGraphSubgraphNode>(Node))
			{
				const UMovieGraphConfig* Subgraph = SubgraphNode->GetSubgraphAsset();
				if (Subgraph && !InOutVisitedGraphs.Contains(Subgraph))
				{
					InOutVisitedGraphs.Add(Subgraph);
					const UMovieGraphNode* SubgraphOutput = Subgraph->GetOutputNode();
					if (SubgraphOutput && FindOutputDirectoryUpstream(Subgraph, SubgraphOutput->GetInputPin(UMovieGraphNode::GlobalsPinName), InOutVisitedGraphs, OutDirectory))
					{
						return true;
					}
				}
				NextInputPin = Node->GetInputPin(UMovieGraphNode::GlobalsPinName);
			}
			ConnectedPin = NextInputPin ? NextInputPin->GetFirstConnectedPin(true) : nullptr;
		}
		return false;
	}
}

UMovieGraphConfig::UMovieGraphConfig()
{
	InputNode = CreateDefaultSubobject<UMovieGraphInputNode>(TEXT("DefaultInputNode"));
	OutputNode = CreateDefaultSubobject<UMovieGraphOutputNode>(TEXT("DefaultOutputNode"));
	if (HasAnyFlags(RF_ClassDefaultObject | RF_NeedLoad | RF_WasLoaded))
	{
		return;
	}
	AddDefaultMembers();
	InputNode->UpdatePins();
	OutputNode->UpdatePins();
#if WITH_EDITOR
	OutputNode->SetNodePosX(UE_VERSION_OLDER_THAN(5, 7, 0) ? 300 : 900);
#endif
}

void UMovieGraphConfig::PostLoad()
{
	Super::PostLoad();
	AddDefaultMembers();
}

void UMovieGraphConfig::AddDefaultMembers()
{
	using namespace UE::MovieGraph::Private;
	// Made through AddInput/AddOutput, then named directly: "Globals" is a name no rename may give.
	if (!HasMemberNamed(Inputs, UMovieGraphNode::GlobalsPinNameString))
	{
		AddInput()->Name = UMovieGraphNode::GlobalsPinNameString;
		InputNode->UpdatePins();
	}
	if (!HasMemberNamed(Outputs, UMovieGraphNode::GlobalsPinNameString))
	{
		AddOutput()->Name = UMovieGraphNode::GlobalsPinNameString;
		OutputNode->UpdatePins();
	}
	AddGlobalVariableIfMissing(UMovieGraphGlobalVariable_CameraName::StaticClass());
	AddGlobalVariableIfMissing(UMovieGraphGlobalVariable_FrameNumber::StaticClass());
	AddGlobalVariableIfMissing(UMovieGraphGlobalVariable_SequenceName::StaticClass());
	AddGlobalVariableIfMissing(UMovieGraphGlobalVariable_ShotName::StaticClass());
}

void UMovieGraphConfig::AddGlobalVariableIfMissing(UClass* InGlobalClass)
{
	const bool bExists = GlobalVariables.ContainsByPredicate([InGlobalClass](const TObjectPtr<UMovieGraphGlobalVariable>& Variable)
	{
		return Variable && Variable->GetClass() == InGlobalClass;
	});
	if (!bExists)
	{
		GlobalVariables.Add(UE::MovieGraph::Private::NewMember<UMovieGraphGlobalVariable>(this, InGlobalClass));
	}
}

bool UMovieGraphConfig::AddLabeledEdge(UMovieGraphNode* FromNode, const FName& FromPinLabel, UMovieGraphNode* ToNode, const FName& ToPinLabel)
{
	using namespace UE::MovieGraph::Private;
	if (!FromNode || !ToNode)
	{
		ReportScriptError(TEXT("AddLabeledEdge: Invalid FromNode or ToNode."));
		return false;
	}
	UMovieGraphPin* FromPin = FromNode->GetOutputPin(FromPinLabel);
	UMovieGraphPin* ToPin = ToNode->GetInputPin(ToPinLabel);
	if (!FromPin || !ToPin)
	{
		ReportScriptError(FString::Printf(TEXT("AddLabeledEdge: Could not find the pin '%s' on the upstream node or the pin '%s' on the downstream node."), *FromPinLabel.ToString(), *ToPinLabel.ToString()));
		return false;
	}
	const FPinConnectionResponse Response = FromPin->CanCreateConnection_PinConnectionResponse(ToPin);
	if (Response.Response == CONNECT_RESPONSE_DISALLOW)
	{
		ReportScriptError(FString::Printf(TEXT("AddLabeledEdge: The connection cannot be made: %s"), *Response.Message.ToString()));
		return false;
	}

	bool bReplacedConnection = false;
	if (!ToPin->AllowsMultipleConnections() && ToPin->EdgeCount() > 0)
	{
		bReplacedConnection = ToPin->BreakAllEdges();
	}
	FromPin->AddEdgeTo(ToPin);
	return bReplacedConnection;
}

bool UMovieGraphConfig::RemoveLabeledEdge(UMovieGraphNode* FromNode, const FName& FromPinName, UMovieGraphNode* ToNode, const FName& ToPinName)
{
	using namespace UE::MovieGraph::Private;
	if (!FromNode || !ToNode)
	{
		ReportScriptError(TEXT("RemoveLabeledEdge: Invalid FromNode or ToNode."));
		return false;
	}
	UMovieGraphPin* FromPin = FromNode->GetOutputPin(FromPinName);
	UMovieGraphPin* ToPin = ToNode->GetInputPin(ToPinName);
	if (!FromPin || !ToPin)
	{
		ReportScriptError(FString::Printf(TEXT("RemoveLabeledEdge: Could not find the pin '%s' on the upstream node or the pin '%s' on the downstream node."), *FromPinName.ToString(), *ToPinName.ToString()));
		return false;
	}
	return FromPin->BreakEdgeTo(ToPin);
}

bool UMovieGraphConfig::RemoveAllInboundEdges(UMovieGraphNode* InNode)
{
	if (!InNode)
	{
		UE::MovieGraph::Private::ReportScriptError(TEXT("RemoveAllInboundEdges: Invalid node."));
		return false;
	}
	return UE::MovieGraph::Private::BreakEdgesOfPins(InNode->GetInputPins());
}

bool UMovieGraphConfig::RemoveAllOutboundEdges(UMovieGraphNode* InNode)
{
	if (!InNode)
	{
		UE::MovieGraph::Private::ReportScriptError(TEXT("RemoveAllOutboundEdges: Invalid node."));
		return false;
	}
	return UE::MovieGraph::Private::BreakEdgesOfPins(InNode->GetOutputPins());
}

bool UMovieGraphConfig::RemoveInboundEdges(UMovieGraphNode* InNode, const FName& InPinName)
{
	if (!InNode)
	{
		UE::MovieGraph::Private::ReportScriptError(TEXT("RemoveInboundEdges: Invalid node."));
		return false;
	}
	UMovieGraphPin* Pin = InNode->GetInputPin(InPinName);
	return Pin && Pin->BreakAllEdges();
}

bool UMovieGraphConfig::RemoveOutboundEdges(UMovieGraphNode* InNode, const FName& InPinName)
{
	if (!InNode)
	{
		UE::MovieGraph::Private::ReportScriptError(TEXT("RemoveOutboundEdges: Invalid node."));
		return false;
	}
	UMovieGraphPin* Pin = InNode->GetOutputPin(InPinName);
	return Pin && Pin->BreakAllEdges();
}

void UMovieGraphConfig::AddNode(UMovieGraphNode* InNode)
{
	if (!InNode)
	{
		UE::MovieGraph::Private::ReportScriptError(TEXT("AddNode: Invalid node."));
		return;
	}
#if !UE_VERSION_OLDER_THAN(5, 7, 0)
	if (!InNode->CanBeAddedByUser())
	{
		UE::MovieGraph::Private::ReportScriptError(FString::Printf(TEXT("AddNode: A node of class %s cannot be added to a graph."), *InNode->GetClass()->GetName()));
		return;
	}
#endif
	Modify();
	InNode->SetFlags(RF_Transactional);
	if (InNode->GetOuter() != this)
	{
		InNode->Rename(nullptr, this);
	}
	AllNodes.Add(InNode);
}

bool UMovieGraphConfig::RemoveNode(UMovieGraphNode* InNode)
{
	if (!InNode)
	{
		UE::MovieGraph::Private::ReportScriptError(TEXT("RemoveNode: Invalid node."));
		return false;
	}
	Modify();
	RemoveAllInboundEdges(InNode);
	RemoveAllOutboundEdges(InNode);
	return AllNodes.Remove(InNode) > 0;
}

bool UMovieGraphConfig::RemoveNodes(TArray<UMovieGraphNode*> InNodes)
{
	bool bRemovedAny = false;
	for (UMovieGraphNode* Node : InNodes)
	{
		bRemovedAny |= RemoveNode(Node);
	}
	return bRemovedAny;
}

UMovieGraphVariable* UMovieGraphConfig::AddVariable(const FName InCustomBaseName)
{
	const FString BaseName = InCustomBaseName.IsNone() ? FString(TEXT("Variable")) : InCustomBaseName.ToString();
	UMovieGraphVariable* NewVariable = UE::MovieGraph::Private::NewMember<UMovieGraphVariable>(this);
	NewVariable->Name = UE::MovieGraph::Private::GetUniqueName(Variables, BaseName);
	Variables.Add(NewVariable);
	return NewVariable;
}

UMovieGraphInput* UMovieGraphConfig::AddInput(const FText& InBaseName)
{
	const FString BaseName = InBaseName.IsEmpty() ? FString(TEXT("Input")) : InBaseName.ToString();
	UMovieGraphInput* NewInput = UE::MovieGraph::Private::NewMember<UMovieGraphInput>(this);
	NewInput->Name = UE::MovieGraph::Private::GetUniqueName(Inputs, BaseName);
	Inputs.Add(NewInput);
	InputNode->UpdatePins();
	return NewInput;
}

UMovieGraphOutput* UMovieGraphConfig::AddOutput(const FText& InBaseName)
{
	const FString BaseName = InBaseName.IsEmpty() ? FString(TEXT("Output")) : InBaseName.ToString();
	UMovieGraphOutput* NewOutput = UE::MovieGraph::Private::NewMember<UMovieGraphOutput>(this);
	NewOutput->Name = UE::MovieGraph::Private::GetUniqueName(Outputs, BaseName);
	Outputs.Add(NewOutput);
	OutputNode->UpdatePins();
	return NewOutput;
}

UMovieGraphVariable* UMovieGraphConfig::GetVariableByGuid(const FGuid& InGuid) const
{
	for (UMovieGraphVariable* Variable : GetVariables(true))
	{
		if (Variable && Variable->GetGuid() == InGuid)
		{
			return Variable;
		}
	}
	return nullptr;
}

UMovieGraphVariable* UMovieGraphConfig::GetVariableByName(const FString& InVariableName) const
{
	for (UMovieGraphVariable* Variable : GetVariables(true))
	{
		if (Variable && Variable->GetMemberName().Equals(InVariableName, ESearchCase::IgnoreCase))
		{
			return Variable;
		}
	}
	return nullptr;
}

TArray<UMovieGraphVariable*> UMovieGraphConfig::GetVariables(const bool bIncludeGlobal) const
{
	TArray<UMovieGraphVariable*> Result = UE::MovieGraph::Private::ToMemberList(Variables);
	if (bIncludeGlobal)
	{
		for (const TObjectPtr<UMovieGraphGlobalVariable>& Global : GlobalVariables)
		{
			Result.Add(Global);
		}
	}
	return Result;
}

TArray<UMovieGraphInput*> UMovieGraphConfig::GetInputs() const
{
	return UE::MovieGraph::Private::ToMemberList(Inputs);
}

TArray<UMovieGraphOutput*> UMovieGraphConfig::GetOutputs() const
{
	return UE::MovieGraph::Private::ToMemberList(Outputs);
}

bool UMovieGraphConfig::DeleteMember(UMovieGraphMember* MemberToDelete)
{
	if (!MemberToDelete)
	{
		return false;
	}
	if (!MemberToDelete->IsDeletable())
	{
		UE::MovieGraph::Private::ReportScriptError(FString::Printf(TEXT("DeleteMember: The member '%s' cannot be deleted."), *MemberToDelete->GetMemberName()));
		return false;
	}
	if (UMovieGraphVariable* Variable = Cast<UMovieGraphVariable>(MemberToDelete))
	{
		if (Variables.Remove(Variable) == 0)
		{
			return false;
		}
		RemoveVariableNodesOf(Variable);
		return true;
	}
	using UE::MovieGraph::Private::RemoveInterfaceMember;
	if (UMovieGraphInput* Input = Cast<UMovieGraphInput>(MemberToDelete))
	{
		return RemoveInterfaceMember(Inputs, Input, InputNode->GetOutputPin(FName(*Input->GetMemberName())), InputNode);
	}
	if (UMovieGraphOutput* Output = Cast<UMovieGraphOutput>(MemberToDelete))
	{
		return RemoveInterfaceMember(Outputs, Output, OutputNode->GetInputPin(FName(*Output->GetMemberName())), OutputNode);
	}
	return false;
}

void UMovieGraphConfig::RemoveVariableNodesOf(const UMovieGraphVariable* InVariable)
{
	TArray<UMovieGraphNode*> NodesToRemove;
	for (const TObjectPtr<UMovieGraphNode>& Node : AllNodes)
	{
		const UMovieGraphVariableNode* VariableNode = Cast<UMovieGraphVariableNode>(Node);
		if (VariableNode && VariableNode->GetVariable() && VariableNode->GetVariable()->GetGuid() == InVariable->GetGuid())
		{
			NodesToRemove.Add(Node);
		}
	}
	RemoveNodes(NodesToRemove);
}

void UMovieGraphConfig::GroupVariablesByCategory()
{
	TArray<FString> CategoryOrder;
	for (const TObjectPtr<UMovieGraphVariable>& Variable : Variables)
	{
		if (Variable)
		{
			CategoryOrder.AddUnique(Variable->GetCategory());
		}
	}
	TArray<TObjectPtr<UMovieGraphVariable>> Grouped;
	for (const FString& Category : CategoryOrder)
	{
		for (const TObjectPtr<UMovieGraphVariable>& Variable : Variables)
		{
			if (Variable && Variable->GetCategory().Equals(Category, ESearchCase::CaseSensitive))
			{
				Grouped.Add(Variable);
			}
		}
	}
	Variables = MoveTemp(Grouped);
}

TArray<FName> UMovieGraphConfig::GetBranchNames() const
{
	TArray<FName> BranchNames;
	for (const TObjectPtr<UMovieGraphOutput>& Output : Outputs)
	{
		if (Output)
		{
			BranchNames.AddUnique(FName(*Output->GetMemberName()));
		}
	}
	return BranchNames;
}

void UMovieGraphConfig::GetOutputDirectory(FString& OutOutputDirectory) const
{
	OutOutputDirectory.Empty();
	const UMovieGraphPin* GlobalsPin = OutputNode ? OutputNode->GetInputPin(UMovieGraphNode::GlobalsPinName) : nullptr;
	if (!GlobalsPin || !GlobalsPin->IsConnected())
	{
		return;
	}
	TSet<const UMovieGraphConfig*> VisitedGraphs = { this };
	if (!UE::MovieGraph::Private::FindOutputDirectoryUpstream(this, GlobalsPin, VisitedGraphs, OutOutputDirectory))
	{
		OutOutputDirectory = GetDefault<UMovieGraphGlobalOutputSettingNode>()->OutputDirectory.Path;
	}
}

TArray<FString> UMovieGraphConfig::GetDownstreamBranchNames(UMovieGraphNode* FromNode, const UMovieGraphPin* FromPin, const bool bStopAtSubgraph) const
{
	return UE::MovieGraph::Private::CollectBranchNames(this, FromNode, FromPin, true, bStopAtSubgraph);
}

TArray<FString> UMovieGraphConfig::GetUpstreamBranchNames(UMovieGraphNode* FromNode, const UMovieGraphPin* FromPin, const bool bStopAtSubgraph) const
{
	return UE::MovieGraph::Private::CollectBranchNames(this, FromNode, FromPin, false, bStopAtSubgraph);
}

FBoolProperty* UMovieGraphConfig::FindOverridePropertyForRealProperty(UClass* InClass, const FProperty* InRealProperty)
{
	if (!InClass || !InRealProperty)
	{
		return nullptr;
	}
	const FString OverrideName = FString(TEXT("bOverride_")) + InRealProperty->GetName();
	for (TFieldIterator<FBoolProperty> It(InClass); It; ++It)
	{
		if (It->GetName().Equals(OverrideName, ESearchCase::CaseSensitive))
		{
			return *It;
		}
	}
	return nullptr;
}

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMovieGraphConfig, CLASS_None, "MovieRenderPipelineCore")
{
	STANDIN_PROPERTY(AllNodes, CPF_None);
	STANDIN_PROPERTY(InputNode, CPF_None);
	STANDIN_PROPERTY(OutputNode, CPF_None);
	STANDIN_PROPERTY(Variables, CPF_None);
	STANDIN_PROPERTY(GlobalVariables, CPF_None);
	STANDIN_PROPERTY(Inputs, CPF_None);
	STANDIN_PROPERTY(Outputs, CPF_None);
	STANDIN_FUNCTION(AddLabeledEdge, TEXT("FromNode"), TEXT("FromPinLabel"), TEXT("ToNode"), TEXT("ToPinLabel"));
	STANDIN_FUNCTION(RemoveLabeledEdge, TEXT("FromNode"), TEXT("FromPinName"), TEXT("ToNode"), TEXT("ToPinName"));
	STANDIN_FUNCTION(RemoveNode, TEXT("InNode"));
	STANDIN_FUNCTION(GetInputNode);
	STANDIN_FUNCTION(GetOutputNode);
	STANDIN_FUNCTION(CreateNodeByClass, TEXT("InClass"));
	STANDIN_FUNCTION(AddVariable, TEXT("InCustomBaseName"));
	STANDIN_FUNCTION(AddInput, TEXT("InBaseName"));
	STANDIN_FUNCTION(AddOutput, TEXT("InBaseName"));
	STANDIN_FUNCTION(GetVariableByName, TEXT("InVariableName"));
	STANDIN_FUNCTION(GetVariables, TEXT("bIncludeGlobal"));
	STANDIN_FUNCTION(GetInputs);
	STANDIN_FUNCTION(GetOutputs);
	STANDIN_FUNCTION(DeleteMember, TEXT("MemberToDelete"));
	STANDIN_FUNCTION(GetBranchNames);
	STANDIN_FUNCTION(GetOutputDirectory, TEXT("OutOutputDirectory"));
	STANDIN_FUNCTION(CreateFlattenedGraph, TEXT("InContext"), TEXT("OutError"));
#if !UE_VERSION_OLDER_THAN(5, 6, 0)
	STANDIN_FUNCTION(GetNodesForBranch, TEXT("InClass"), TEXT("InBranchName"), TEXT("bExactMatch"));
	STANDIN_FUNCTION(GetNodeForBranch, TEXT("InClass"), TEXT("InBranchName"), TEXT("bExactMatch"));
	STANDIN_FUNCTION(GetNodesForTag, TEXT("ScriptTag"), TEXT("OptionalClassFilter"), TEXT("OptionalBranchFilter"), TEXT("bExactMatch"));
	STANDIN_FUNCTION(GetNodeForTag, TEXT("ScriptTag"), TEXT("OptionalClassFilter"), TEXT("OptionalBranchFilter"), TEXT("bExactMatch"));
#endif
}
