#include "Graph/MovieGraphConfig.h"

#include "Graph/MovieGraphEdge.h"
#include "Graph/Nodes/MovieGraphBranchNode.h"
#include "Graph/Nodes/MovieGraphRemoveRenderSettingNode.h"
#include "Graph/Nodes/MovieGraphRenderLayerNode.h"
#include "Graph/Nodes/MovieGraphRerouteNode.h"
#include "Graph/Nodes/MovieGraphSelectNode.h"
#include "Graph/Nodes/MovieGraphSubgraphNode.h"
#include "Graph/Nodes/MovieGraphVariableNode.h"
#include "MovieJobVariableAssignmentContainer.h"
#include "MoviePipelineQueue.h"
#include "MovieRenderPipelineCoreModule.h"
#include "UObject/Package.h"
#include "UObject/StrongObjectPtr.h"
#include "UObject/UnrealType.h"

namespace UE::MovieGraph::Private
{
	const TCHAR* const OverrideFlagPrefix = TEXT("bOverride_");
	const FName BranchTruePinName(TEXT("True"));
	const FName BranchFalsePinName(TEXT("False"));
	const FName BranchConditionPinName(TEXT("Condition"));
	const FName SelectedOptionPinName(TEXT("Selected Option"));

	// The upstream end of a connection, or null when the edge or the node behind it is gone.
	UMovieGraphPin* GetValidUpstreamPin(const UMovieGraphEdge* InEdge, const UMovieGraphPin* InDownstreamPin)
	{
		if (!InEdge || !InEdge->IsValid())
		{
			return nullptr;
		}
		UMovieGraphPin* UpstreamPin = InEdge->GetOtherPin(InDownstreamPin);
		return UpstreamPin && UpstreamPin->Node ? UpstreamPin : nullptr;
	}

	bool IsRerouteNode(const UMovieGraphNode* InNode)
	{
#if UE_VERSION_OLDER_THAN(5, 6, 0)
		return false;
#else
		return InNode->IsA<UMovieGraphRerouteNode>();
#endif
	}

	// Stand-in choice: an error and what explains it (a path, a chain or messages) are separated by a line break.
	FString JoinError(const TCHAR* InMessage, const TArray<FString>& InDetails, const TCHAR* InSeparator)
	{
		return FString(InMessage) + TEXT("\n") + FString::Join(InDetails, InSeparator);
	}

	void ResetOverrideFlags(UMovieGraphSettingNode* InNode)
	{
		for (TFieldIterator<FBoolProperty> It(InNode->GetClass()); It; ++It)
		{
			if (It->GetName().StartsWith(OverrideFlagPrefix, ESearchCase::CaseSensitive))
			{
				It->SetPropertyValue_InContainer(InNode, false);
			}
		}
	}

	// Stand-in choice: properties are not promoted to pins here (nodes have no property pins), so a value reaches a
	// flattened node only through its bOverride_ flag.
	void CopyOverriddenProperties(const UMovieGraphSettingNode* InSource, UMovieGraphSettingNode* InOutFlattened)
	{
		UClass* NodeClass = InSource->GetClass();
		for (TFieldIterator<FProperty> It(NodeClass); It; ++It)
		{
			const FBoolProperty* OverrideFlag = UMovieGraphConfig::FindOverridePropertyForRealProperty(NodeClass, *It);
			const bool bTakesValue = OverrideFlag && OverrideFlag->GetPropertyValue_InContainer(InSource) && !OverrideFlag->GetPropertyValue_InContainer(InOutFlattened);
			if (bTakesValue)
			{
				It->CopyCompleteValue_InContainer(InOutFlattened, InSource);
				OverrideFlag->SetPropertyValue_InContainer(InOutFlattened, true);
			}
		}
	}

	bool HasRenderLayerNode(const UMovieGraphEvaluatedConfig* InConfig)
	{
		for (const TPair<FName, FMovieGraphEvaluatedBranchConfig>& Branch : InConfig->BranchConfigMapping)
		{
			for (const TObjectPtr<UMovieGraphNode>& Node : Branch.Value.GetNodes())
			{
				if (Node && Node->IsA<UMovieGraphRenderLayerNode>())
				{
					return true;
				}
			}
		}
		return false;
	}

	void ReportMissingRenderLayerOnce(const UMovieGraphEvaluatedConfig* InConfig)
	{
		static bool bHasReported = false;
		if (!bHasReported && !HasRenderLayerNode(InConfig))
		{
			bHasReported = true;
			UE_LOG(LogMovieRenderPipeline, Error, TEXT("For render jobs to succeed, one or more render layer node(s) must be present."));
		}
	}
}

class UMovieGraphConfig::FFlattener
{
public:
	FFlattener(UMovieGraphConfig* InRootGraph, const FMovieGraphTraversalContext& InTraversalContext)
		: RootGraph(InRootGraph)
		, TraversalContext(InTraversalContext)
	{
	}

	UMovieGraphEvaluatedConfig* Flatten(FString& OutError)
	{
		EvaluatedConfig.Reset(NewObject<UMovieGraphEvaluatedConfig>(GetTransientPackage()));
		// Stand-in choice: the root graph counts as evaluated even when no branch reaches one of its nodes.
		RecordEvaluatedGraph(RootGraph);
		if (!FlattenOwnBranches() || !FillNamedBranchesFromGlobals())
		{
			OutError = Error;
			return nullptr;
		}
		PostFlattenNodes();
		if (!ValidateNodes())
		{
			OutError = Error;
			return nullptr;
		}
#if !UE_VERSION_OLDER_THAN(5, 7, 0)
		StoreEvaluatedGraphsAndVariables();
#endif
		UE::MovieGraph::Private::ReportMissingRenderLayerOnce(EvaluatedConfig.Get());
		return EvaluatedConfig.Get();
	}

private:
	// A subgraph entered through one of its Output-node pins, and how long the node path was on entry.
	struct FSubgraphFrame
	{
		UMovieGraphSubgraphNode* SubgraphNode = nullptr;
		UMovieGraphConfig* Graph = nullptr;
		int32 NodePathLength = 0;
	};

	bool FlattenOwnBranches()
	{
		for (const UMovieGraphPin* OutputPin : RootGraph->GetOutputNode()->GetInputPins())
		{
			if (OutputPin && OutputPin->Properties.bIsBranch)
			{
				EvaluatedConfig->BranchConfigMapping.FindOrAdd(OutputPin->Properties.Label);
				if (!WalkBranch(OutputPin->Properties.Label, OutputPin))
				{
					return false;
				}
			}
		}
		return true;
	}

	// Globals nodes fill in what a named branch left unset: values already taken are kept.
	bool FillNamedBranchesFromGlobals()
	{
		const UMovieGraphPin* GlobalsPin = RootGraph->GetOutputNode()->GetInputPin(UMovieGraphNode::GlobalsPinName);
		for (const FName& BranchName : EvaluatedConfig->GetBranchNames())
		{
			if (GlobalsPin && BranchName != UMovieGraphNode::GlobalsPinName && !WalkBranch(BranchName, GlobalsPin))
			{
				return false;
			}
		}
		return true;
	}

	bool WalkBranch(const FName& InBranchName, const UMovieGraphPin* InOutputNodePin)
	{
		BranchConfig = &EvaluatedConfig->BranchConfigMapping.FindChecked(InBranchName);
		NodePath.Reset();
		SubgraphFrames.Reset();
		RemovedClasses.Reset();
		for (const TObjectPtr<UMovieGraphEdge>& Edge : InOutputNodePin->Edges)
		{
			UMovieGraphPin* UpstreamPin = UE::MovieGraph::Private::GetValidUpstreamPin(Edge, InOutputNodePin);
			if (!UpstreamPin)
			{
				Error = FString::Printf(TEXT("Found an invalid node in branch [%s]. Aborting graph evaluation."), *InBranchName.ToString());
				return false;
			}
			if (!VisitNode(UpstreamPin))
			{
				return false;
			}
		}
		return true;
	}

	bool FollowInputPin(const UMovieGraphPin* InInputPin)
	{
		for (const TObjectPtr<UMovieGraphEdge>& Edge : InInputPin->Edges)
		{
			UMovieGraphPin* UpstreamPin = UE::MovieGraph::Private::GetValidUpstreamPin(Edge, InInputPin);
			if (!UpstreamPin)
			{
				Error = TEXT("Found an invalid connection, likely from an invalid node. Aborting graph evaluation.");
				return false;
			}
			if (!VisitNode(UpstreamPin))
			{
				return false;
			}
		}
		return true;
	}

	// The node owning the pin, reached from downstream through that output pin.
	bool VisitNode(const UMovieGraphPin* InReachedOutputPin)
	{
		UMovieGraphNode* Node = InReachedOutputPin->Node;
		if (Node == GetCurrentGraph()->GetInputNode())
		{
			return LeaveSubgraphThroughInput(InReachedOutputPin->Properties.Label);
		}
		if (NodePath.Contains(Node))
		{
			ReportCycle(Node);
			return false;
		}
		// Stand-in choice: a node counts as visited while the walk upstream of it is under way, so two paths that meet
		// upstream are no cycle.
		NodePath.Push(Node);
		RecordEvaluatedGraph(GetCurrentGraph());
		UMovieGraphSubgraphNode* SubgraphNode = Cast<UMovieGraphSubgraphNode>(Node);
		const bool bSucceeded = SubgraphNode && !SubgraphNode->IsDisabled()
			? EnterSubgraph(SubgraphNode, InReachedOutputPin->Properties.Label)
			: VisitGraphNode(Node);
		NodePath.Pop();
		return bSucceeded;
	}

	bool VisitGraphNode(UMovieGraphNode* InNode)
	{
		ContributeSettings(InNode);
		const bool bRemovesClass = PushRemovedClass(InNode);
		bool bSucceeded = true;
		for (const UMovieGraphPin* Pin : GetPinsToFollow(InNode))
		{
			bSucceeded = bSucceeded && FollowInputPin(Pin);
		}
		if (bRemovesClass)
		{
			RemovedClasses.Pop();
		}
		return bSucceeded;
	}

	bool EnterSubgraph(UMovieGraphSubgraphNode* InSubgraphNode, const FName& InOutputLabel)
	{
		UMovieGraphConfig* Subgraph = InSubgraphNode->GetSubgraphAsset();
		if (!Subgraph)
		{
			return true;
		}
		HeldGraphs.Emplace(Subgraph);
		if (IsGraphBeingWalked(Subgraph))
		{
			ReportCircularSubgraph(Subgraph);
			return false;
		}
		const UMovieGraphPin* SubgraphOutputPin = Subgraph->GetOutputNode() ? Subgraph->GetOutputNode()->GetInputPin(InOutputLabel) : nullptr;
		if (!SubgraphOutputPin)
		{
			return true;
		}
		SubgraphFrames.Push({ InSubgraphNode, Subgraph, NodePath.Num() });
		RecordEvaluatedGraph(Subgraph);
		const bool bSucceeded = FollowInputPin(SubgraphOutputPin);
		SubgraphFrames.Pop();
		return bSucceeded;
	}

	// From a subgraph's Input node back to the parent graph, at the subgraph node's input pin of the same label. The
	// subgraph's part of the node path is set aside meanwhile, so that a second use of the subgraph upstream is no cycle.
	bool LeaveSubgraphThroughInput(const FName& InInputLabel)
	{
		if (SubgraphFrames.IsEmpty())
		{
			return true;
		}
		const FSubgraphFrame Frame = SubgraphFrames.Pop();
		TArray<UMovieGraphNode*> SubgraphPath(NodePath.GetData() + Frame.NodePathLength, NodePath.Num() - Frame.NodePathLength);
		NodePath.SetNum(Frame.NodePathLength);
		const UMovieGraphPin* ParentPin = Frame.SubgraphNode->GetInputPin(InInputLabel);
		const bool bSucceeded = !ParentPin || FollowInputPin(ParentPin);
		NodePath.Append(SubgraphPath);
		SubgraphFrames.Push(Frame);
		return bSucceeded;
	}

	TArray<const UMovieGraphPin*> GetPinsToFollow(const UMovieGraphNode* InNode) const
	{
		if (UE::MovieGraph::Private::IsRerouteNode(InNode))
		{
			return TArray<const UMovieGraphPin*>(InNode->GetInputPins());
		}
		if (InNode->IsDisabled())
		{
			return GetFirstConnectedBranchPin(InNode);
		}
		if (const UMovieGraphBranchNode* BranchNode = Cast<UMovieGraphBranchNode>(InNode))
		{
			return GetBranchNodePinsToFollow(BranchNode);
		}
		if (const UMovieGraphSelectNode* SelectNode = Cast<UMovieGraphSelectNode>(InNode))
		{
			return GetSelectNodePinsToFollow(SelectNode);
		}
		TArray<const UMovieGraphPin*> BranchPins;
		for (const UMovieGraphPin* Pin : InNode->GetInputPins())
		{
			if (Pin && Pin->Properties.bIsBranch)
			{
				BranchPins.Add(Pin);
			}
		}
		return BranchPins;
	}

	// A disabled node is transparent: the walk goes on along its first connected branch input only.
	static TArray<const UMovieGraphPin*> GetFirstConnectedBranchPin(const UMovieGraphNode* InNode)
	{
		for (const UMovieGraphPin* Pin : InNode->GetInputPins())
		{
			if (Pin && Pin->Properties.bIsBranch && Pin->IsConnected())
			{
				return { Pin };
			}
		}
		return {};
	}

	// True when the condition resolves to "true", else False; with no condition connected, neither.
	TArray<const UMovieGraphPin*> GetBranchNodePinsToFollow(const UMovieGraphBranchNode* InNode) const
	{
		const UMovieGraphPin* ConditionPin = InNode->GetInputPin(UE::MovieGraph::Private::BranchConditionPinName);
		if (!ConditionPin || !ConditionPin->IsConnected())
		{
			UE_LOG(LogMovieRenderPipeline, Warning, TEXT("Branch node %s has no Condition connected: neither of its branches is followed."), *InNode->GetName());
			return {};
		}
		FString Condition;
		ResolveDataPin(ConditionPin, SubgraphFrames.Num(), Condition);
		const bool bIsTrue = Condition.Equals(TEXT("true"), ESearchCase::IgnoreCase);
		const UMovieGraphPin* Followed = InNode->GetInputPin(bIsTrue ? UE::MovieGraph::Private::BranchTruePinName : UE::MovieGraph::Private::BranchFalsePinName);
		return Followed ? TArray<const UMovieGraphPin*>{ Followed } : TArray<const UMovieGraphPin*>();
	}

	// The connected option pins named by the selection (from the "Selected Option" pin, else the node's own), else Default.
	TArray<const UMovieGraphPin*> GetSelectNodePinsToFollow(const UMovieGraphSelectNode* InNode) const
	{
		FString SelectedOption;
		if (!ResolveDataPin(InNode->GetInputPin(UE::MovieGraph::Private::SelectedOptionPinName), SubgraphFrames.Num(), SelectedOption))
		{
			SelectedOption = InNode->SelectedOption;
		}
		TArray<const UMovieGraphPin*> OptionPins;
		for (const UMovieGraphPin* Pin : InNode->GetInputPins())
		{
			const bool bIsOption = Pin && Pin->Properties.bIsBranch && !Pin->Properties.bIsBuiltIn;
			if (bIsOption && Pin->IsConnected() && Pin->Properties.Label.ToString() == SelectedOption)
			{
				OptionPins.Add(Pin);
			}
		}
		if (OptionPins.IsEmpty())
		{
			if (const UMovieGraphPin* DefaultPin = InNode->GetInputPin(FName(TEXT("Default")), EMovieGraphPinQueryRequirement::BuiltIn))
			{
				OptionPins.Add(DefaultPin);
			}
		}
		return OptionPins;
	}

	// The serialized value reaching a data pin from a Variable node, through reroutes and out of subgraphs; InFrameCount
	// is the number of subgraphs entered around the pin's graph.
	bool ResolveDataPin(const UMovieGraphPin* InPin, const int32 InFrameCount, FString& OutValue) const
	{
		const UMovieGraphPin* UpstreamPin = InPin ? InPin->GetFirstConnectedPin(true) : nullptr;
		if (!UpstreamPin || !UpstreamPin->Node)
		{
			return false;
		}
		if (const UMovieGraphVariableNode* VariableNode = Cast<UMovieGraphVariableNode>(UpstreamPin->Node))
		{
			UMovieGraphVariable* Variable = VariableNode->GetVariable();
			OutValue = Variable ? ResolveVariableValue(Variable) : FString();
			return Variable != nullptr;
		}
		const bool bLeavesSubgraph = InFrameCount > 0 && UpstreamPin->Node == SubgraphFrames[InFrameCount - 1].Graph->GetInputNode();
		if (bLeavesSubgraph)
		{
			const UMovieGraphPin* ParentPin = SubgraphFrames[InFrameCount - 1].SubgraphNode->GetInputPin(UpstreamPin->Properties.Label);
			return ResolveDataPin(ParentPin, InFrameCount - 1, OutValue);
		}
		return false;
	}

	// The job's enabled assignment for the variable, else the variable's own value (globals updated first).
	FString ResolveVariableValue(UMovieGraphVariable* InVariable) const
	{
		if (UMovieGraphGlobalVariable* GlobalVariable = Cast<UMovieGraphGlobalVariable>(InVariable))
		{
			GlobalVariable->UpdateValue(&TraversalContext, nullptr);
		}
		bool bIsAssignmentEnabled = false;
		UMovieJobVariableAssignmentContainer* Assignments = FindJobAssignments(InVariable->GetOwningGraph());
		if (Assignments && Assignments->GetVariableAssignmentEnableState(InVariable, bIsAssignmentEnabled) && bIsAssignmentEnabled)
		{
			return Assignments->GetValueSerializedString(InVariable);
		}
		return InVariable->GetValueSerializedString();
	}

	UMovieJobVariableAssignmentContainer* FindJobAssignments(const UMovieGraphConfig* InGraph) const
	{
		UMoviePipelineExecutorJob* Job = TraversalContext.Job;
		if (!Job || !InGraph)
		{
			return nullptr;
		}
		for (UMovieJobVariableAssignmentContainer* Assignments : Job->GetGraphVariableAssignments(false))
		{
			if (Assignments && Assignments->GetGraphConfig().Get() == InGraph)
			{
				return Assignments;
			}
		}
		return nullptr;
	}

	void ContributeSettings(UMovieGraphNode* InNode)
	{
		UMovieGraphSettingNode* SettingNode = Cast<UMovieGraphSettingNode>(InNode);
		if (SettingNode && !SettingNode->IsDisabled() && !RemovedClasses.Contains(SettingNode->GetClass()))
		{
			UE::MovieGraph::Private::CopyOverriddenProperties(SettingNode, FindOrAddFlattenedNode(SettingNode));
		}
	}

	// The branch's flattened node of exactly the source's class and instance name, made with no override set.
	UMovieGraphSettingNode* FindOrAddFlattenedNode(const UMovieGraphSettingNode* InSource)
	{
		const FString InstanceName = InSource->GetNodeInstanceName();
		if (UMovieGraphNode* Existing = BranchConfig->GetNodeByClassExactMatch(InSource->GetClass(), InstanceName))
		{
			return static_cast<UMovieGraphSettingNode*>(Existing);
		}
		UMovieGraphSettingNode* Flattened = NewObject<UMovieGraphSettingNode>(EvaluatedConfig.Get(), InSource->GetClass());
		UE::MovieGraph::Private::ResetOverrideFlags(Flattened);
		Flattened->UpdateDynamicProperties();
		BranchConfig->NamedNodes.FindOrAdd(InstanceName).NodeInstances.Add(Flattened);
		return Flattened;
	}

	// An enabled Remove Render Setting node hides its class from every node upstream of it on the branch.
	bool PushRemovedClass(const UMovieGraphNode* InNode)
	{
		const UMovieGraphRemoveRenderSettingNode* RemoveNode = Cast<UMovieGraphRemoveRenderSettingNode>(InNode);
		if (!RemoveNode || RemoveNode->IsDisabled() || !RemoveNode->NodeType)
		{
			return false;
		}
		RemovedClasses.Push(RemoveNode->NodeType.Get());
		return true;
	}

	UMovieGraphConfig* GetCurrentGraph() const
	{
		return SubgraphFrames.IsEmpty() ? RootGraph : SubgraphFrames.Last().Graph;
	}

	bool IsGraphBeingWalked(const UMovieGraphConfig* InGraph) const
	{
		return InGraph == RootGraph || SubgraphFrames.ContainsByPredicate([InGraph](const FSubgraphFrame& Frame) { return Frame.Graph == InGraph; });
	}

	void RecordEvaluatedGraph(UMovieGraphConfig* InGraph)
	{
		EvaluatedGraphs.AddUnique(InGraph);
	}

	void ReportCycle(const UMovieGraphNode* InRepeatedNode)
	{
		TArray<FString> NodeNames;
		for (const UMovieGraphNode* Node : NodePath)
		{
			NodeNames.Add(Node->GetName());
		}
		NodeNames.Add(InRepeatedNode->GetName());
		Error = UE::MovieGraph::Private::JoinError(TEXT("Node connection cycle found during traversal."), NodeNames, TEXT(" -> "));
	}

	void ReportCircularSubgraph(const UMovieGraphConfig* InRepeatedGraph)
	{
		TArray<FString> GraphNames = { RootGraph->GetName() };
		for (const FSubgraphFrame& Frame : SubgraphFrames)
		{
			GraphNames.Add(Frame.Graph->GetName());
		}
		GraphNames.Add(InRepeatedGraph->GetName());
		Error = UE::MovieGraph::Private::JoinError(TEXT("Circular subgraph reference found during traversal."), GraphNames, TEXT(" -> "));
	}

	void PostFlattenNodes()
	{
		for (TPair<FName, FMovieGraphEvaluatedBranchConfig>& Branch : EvaluatedConfig->BranchConfigMapping)
		{
			for (const TObjectPtr<UMovieGraphNode>& Node : Branch.Value.GetNodes())
			{
				if (UMovieGraphSettingNode* SettingNode = Cast<UMovieGraphSettingNode>(Node.Get()))
				{
					SettingNode->PostFlatten();
				}
			}
		}
	}

	bool ValidateNodes()
	{
		TArray<FText> ValidationErrors;
		for (const TPair<FName, FMovieGraphEvaluatedBranchConfig>& Branch : EvaluatedConfig->BranchConfigMapping)
		{
			for (const TObjectPtr<UMovieGraphNode>& Node : Branch.Value.GetNodes())
			{
				Node->GetNodeValidationErrors(Branch.Key, EvaluatedConfig.Get(), ValidationErrors);
			}
		}
		if (ValidationErrors.IsEmpty())
		{
			return true;
		}
		TArray<FString> Messages;
		for (const FText& ValidationError : ValidationErrors)
		{
			Messages.Add(ValidationError.ToString());
		}
		Error = UE::MovieGraph::Private::JoinError(TEXT("Found node validation errors while evaluating the graph."), Messages, TEXT("\n"));
		return false;
	}

#if !UE_VERSION_OLDER_THAN(5, 7, 0)
	void StoreEvaluatedGraphsAndVariables()
	{
		for (UMovieGraphConfig* Graph : EvaluatedGraphs)
		{
			EvaluatedConfig->EvaluatedGraphs.Add(Graph);
			for (UMovieGraphVariable* Variable : Graph->GetVariables(false))
			{
				StoreVariableValue(Variable);
			}
		}
	}

	void StoreVariableValue(UMovieGraphVariable* InVariable)
	{
		UMovieGraphValueContainer* Value = NewObject<UMovieGraphValueContainer>(EvaluatedConfig.Get());
		Value->SetPropertyName(FName(*InVariable->GetMemberName()));
		Value->SetValueType(InVariable->GetValueType(), const_cast<UObject*>(InVariable->GetValueTypeObject()));
		Value->SetValueContainerType(InVariable->GetValueContainerType());
		Value->SetValueSerializedString(ResolveVariableValue(InVariable));
		EvaluatedConfig->VariableValues.Add(Value);
		EvaluatedConfig->VariablesByName.FindOrAdd(InVariable->GetMemberName()).Add(Value);
	}
#endif

	UMovieGraphConfig* RootGraph;
	const FMovieGraphTraversalContext& TraversalContext;
	TStrongObjectPtr<UMovieGraphEvaluatedConfig> EvaluatedConfig;

	// The subgraphs loaded on the way, kept alive while the walk may collect garbage (a load may).
	TArray<TStrongObjectPtr<UMovieGraphConfig>> HeldGraphs;

	// Every graph the walk went through, parent-most first.
	TArray<UMovieGraphConfig*> EvaluatedGraphs;

	FMovieGraphEvaluatedBranchConfig* BranchConfig = nullptr;
	TArray<UMovieGraphNode*> NodePath;
	TArray<FSubgraphFrame> SubgraphFrames;
	TArray<const UClass*> RemovedClasses;
	FString Error;
};

UMovieGraphEvaluatedConfig* UMovieGraphConfig::CreateFlattenedGraph(const FMovieGraphTraversalContext& InContext, FString& OutError)
{
	OutError.Empty();
	return FFlattener(this, InContext).Flatten(OutError);
}
