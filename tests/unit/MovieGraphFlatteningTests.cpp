#include "PersistenceTestSupport.h"
#include "MovieRenderTestSupport.h"

#include "Graph/MovieGraphConfig.h"
#include "Graph/MovieGraphEdge.h"
#include "Graph/MovieGraphStandInNodeReflection.h"
#include "Graph/Nodes/MovieGraphBranchNode.h"
#include "Graph/Nodes/MovieGraphRemoveRenderSettingNode.h"
#include "Graph/Nodes/MovieGraphRenderLayerNode.h"
#include "Graph/Nodes/MovieGraphRerouteNode.h"
#include "Graph/Nodes/MovieGraphSelectNode.h"
#include "Graph/Nodes/MovieGraphSubgraphNode.h"
#include "Graph/Nodes/MovieGraphVariableNode.h"
#include "Misc/EngineVersionComparison.h"
#include "MovieJobVariableAssignmentContainer.h"
#include "MoviePipelineQueue.h"
#include "UObject/GarbageCollection.h"
#include "UObject/Package.h"
#include "UObject/StructOnScope.h"
#include "UObject/StrongObjectPtr.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

#include <gtest/gtest.h>
#include <unistd.h>

// A setting node with two overrideable properties, one that reports a validation error, and a count of PostFlatten calls.
class UMovieGraphFlattenTestNode : public UMovieGraphSettingNode
{
	STANDIN_CLASS_BODY(UMovieGraphFlattenTestNode, UMovieGraphSettingNode, )

public:
	virtual void PostFlatten() override { ++PostFlattenCalls; }

	virtual bool GetNodeValidationErrors(const FName& InBranchName, const UMovieGraphEvaluatedConfig* InEvaluatedConfig, TArray<FText>& OutValidationErrors) const override
	{
		if (ValidationMessage.IsEmpty())
		{
			return false;
		}
		OutValidationErrors.Add(FText::FromString(InBranchName.ToString() + TEXT(": ") + ValidationMessage));
		return true;
	}

	uint8 bOverride_Quality : 1 = 0;
	uint8 bOverride_Label : 1 = 0;
	uint8 bOverride_ValidationMessage : 1 = 0;
	int32 Quality = 3;
	FString Label = TEXT("default");
	FString ValidationMessage;
	int32 PostFlattenCalls = 0;
};

STANDIN_IMPLEMENT_CLASS(UMovieGraphFlattenTestNode, CLASS_None, "MovieGraphFlatteningTests")
{
	STANDIN_OVERRIDEABLE_PROPERTY(Quality, CPF_Edit);
	STANDIN_OVERRIDEABLE_PROPERTY(Label, CPF_Edit);
	STANDIN_OVERRIDEABLE_PROPERTY(ValidationMessage, CPF_Edit);
	STANDIN_PROPERTY(PostFlattenCalls, CPF_None);
}

// A subclass named per instance: flattening keeps one node per exact class and instance name.
class UMovieGraphFlattenNamedTestNode : public UMovieGraphFlattenTestNode
{
	STANDIN_CLASS_BODY(UMovieGraphFlattenNamedTestNode, UMovieGraphFlattenTestNode, )

public:
	virtual FString GetNodeInstanceName() const override { return InstanceName; }

	FString InstanceName;
};

STANDIN_IMPLEMENT_CLASS(UMovieGraphFlattenNamedTestNode, CLASS_None, "MovieGraphFlatteningTests")
{
	STANDIN_PROPERTY(InstanceName, CPF_Edit);
}

namespace
{
	const FName Globals(TEXT("Globals"));
	const FName Layer(TEXT("Layer"));

	class MovieGraphFlatteningTest : public testing::Test
	{
	protected:
		void TearDown() override
		{
			Evaluated.Reset();
			Graph.Reset();
			Subgraph.Reset();
			Job.Reset();
			CollectGarbage(RF_NoFlags);
		}

		template<class TNode>
		static TNode* AddNode(UMovieGraphConfig* InGraph)
		{
			return Cast<TNode>(InGraph->CreateNodeByClass(TNode::StaticClass()));
		}

		UMovieGraphFlattenTestNode* AddSetting(const int32 InQuality, const TCHAR* InLabel = nullptr, UMovieGraphConfig* InGraph = nullptr)
		{
			UMovieGraphFlattenTestNode* Node = AddNode<UMovieGraphFlattenTestNode>(InGraph ? InGraph : Graph.Get());
			Node->bOverride_Quality = InQuality >= 0;
			Node->Quality = InQuality;
			Node->bOverride_Label = InLabel != nullptr;
			Node->Label = InLabel ? InLabel : TEXT("unused");
			return Node;
		}

		static void Chain(UMovieGraphConfig* InGraph, const FName& InBranch, const TArray<UMovieGraphNode*>& InNearestFirst)
		{
			UE::MovieRenderTest::ChainNodes(InGraph, InBranch, InNearestFirst);
		}
		UMovieGraphEvaluatedConfig* Flatten(FString& OutError)
		{
			FMovieGraphTraversalContext Context;
			Context.Job = Job.Get();
			Context.RootGraph = Graph.Get();
			Evaluated.Reset(Graph->CreateFlattenedGraph(Context, OutError));
			return Evaluated.Get();
		}

		UMovieGraphEvaluatedConfig* Flatten()
		{
			FString Error;
			UMovieGraphEvaluatedConfig* Result = Flatten(Error);
			EXPECT_EQ(Error, TEXT(""));
			return Result;
		}

		UMovieGraphFlattenTestNode* Flattened(const FName& InBranch, const bool bIncludeCDOs = false) const
		{
			return Cast<UMovieGraphFlattenTestNode>(Evaluated->GetSettingForBranch(UMovieGraphFlattenTestNode::StaticClass(), InBranch, bIncludeCDOs, true));
		}

		UMovieGraphVariableNode* AddVariableNode(UMovieGraphVariable* InVariable)
		{
			UMovieGraphVariableNode* Node = AddNode<UMovieGraphVariableNode>(InVariable->GetOwningGraph());
			Node->SetVariable(InVariable);
			return Node;
		}

		UMovieGraphVariable* AddVariable(const TCHAR* InName, const EMovieGraphValueType InType, const TCHAR* InValue, UMovieGraphConfig* InGraph = nullptr)
		{
			UMovieGraphVariable* Variable = (InGraph ? InGraph : Graph.Get())->AddVariable(FName(InName));
			Variable->SetValueType(InType);
			Variable->SetValueSerializedString(InValue);
			return Variable;
		}

		UMovieJobVariableAssignmentContainer* AssignForJob(UMovieGraphVariable* InVariable, const TCHAR* InValue, const bool bEnabled)
		{
			if (!Job)
			{
				Job.Reset(NewObject<UMoviePipelineExecutorJob>());
			}
			UMovieJobVariableAssignmentContainer* Assignments = Job->GetOrCreateJobVariableAssignmentsForGraph(InVariable->GetOwningGraph());
			Assignments->SetValueSerializedString(InVariable, InValue);
			Assignments->SetVariableAssignmentEnableState(InVariable, bEnabled);
			return Assignments;
		}

		// The evaluated config's reflected members and functions: the engine does not export them to other modules.
		template<class T>
		T& ReflectedMember(const TCHAR* InName) const
		{
			const FProperty* Property = UMovieGraphEvaluatedConfig::StaticClass()->FindPropertyByName(FName(InName));
			check(Property);
			return *Property->ContainerPtrToValuePtr<T>(Evaluated.Get());
		}

		TArray<UMovieGraphConfig*> EvaluatedGraphs() const
		{
			return TArray<UMovieGraphConfig*>(ReflectedMember<TArray<TObjectPtr<UMovieGraphConfig>>>(TEXT("EvaluatedGraphs")));
		}

		UMovieGraphValueContainer* FindVariableValue(const TCHAR* InName) const
		{
			for (UMovieGraphValueContainer* Value : ReflectedMember<TArray<TObjectPtr<UMovieGraphValueContainer>>>(TEXT("VariableValues")))
			{
				if (Value->GetPropertyName() == FName(InName))
				{
					return Value;
				}
			}
			return nullptr;
		}

		bool GetVariableString(const TCHAR* InName, FString& OutValue) const
		{
			UFunction* Function = Evaluated->FindFunction(TEXT("GetVariableStringValueByName"));
			check(Function);
			FStructOnScope Parms(Function);
			auto Parameter = [&Parms, Function]<class T>(const TCHAR* InParameter, T*) -> T& { return *Function->FindPropertyByName(FName(InParameter))->ContainerPtrToValuePtr<T>(Parms.GetStructMemory()); };
			Parameter(TEXT("InVariableName"), (FString*)nullptr) = InName;
			Parameter(TEXT("InDefaultValue"), (FString*)nullptr) = TEXT("none");
			Evaluated->ProcessEvent(Function, Parms.GetStructMemory());
			OutValue = Parameter(TEXT("OutVariableValue"), (FString*)nullptr);
			return Parameter(TEXT("ReturnValue"), (bool*)nullptr);
		}

		TStrongObjectPtr<UMovieGraphConfig> Graph{ NewObject<UMovieGraphConfig>(GetTransientPackage(), TEXT("RootGraph")) };
		TStrongObjectPtr<UMovieGraphConfig> Subgraph;
		TStrongObjectPtr<UMoviePipelineExecutorJob> Job;
		TStrongObjectPtr<UMovieGraphEvaluatedConfig> Evaluated;
	};
}

TEST_F(MovieGraphFlatteningTest, TheNodeNearestTheOutputWinsAndUnsetPropertiesKeepClassDefaults)
{
	UMovieGraphFlattenTestNode* Nearest = AddSetting(7);
	UMovieGraphFlattenTestNode* Upstream = AddSetting(1, TEXT("upstream"));
	Chain(Graph.Get(), Globals, { Nearest, Upstream });

	ASSERT_NE(Flatten(), nullptr);
	EXPECT_EQ(Evaluated->GetOuter(), GetTransientPackage());
	EXPECT_EQ(Evaluated->GetBranchNames(), TArray<FName>({ Globals }));
	UMovieGraphFlattenTestNode* Result = Flattened(Globals);
	ASSERT_NE(Result, nullptr);
	EXPECT_EQ(Result->GetOuter(), Evaluated.Get());
	EXPECT_EQ(Result->Quality, 7);
	EXPECT_EQ(Result->Label, TEXT("upstream"));
	EXPECT_TRUE(Result->bOverride_Quality && Result->bOverride_Label);
	EXPECT_FALSE(Result->bOverride_ValidationMessage);
	EXPECT_EQ(Result->PostFlattenCalls, 1);
	EXPECT_EQ(Evaluated->GetSettingsForBranch(UMovieGraphSettingNode::StaticClass(), Globals, true, false).Num(), 1);

	// Nothing overrides Label any more: the class default with its flag off.
	Upstream->bOverride_Label = false;
	ASSERT_NE(Flatten(), nullptr);
	EXPECT_EQ(Flattened(Globals)->Label, TEXT("default"));
	EXPECT_FALSE(Flattened(Globals)->bOverride_Label);

	// No node of the class: the class default object when asked for, nothing otherwise.
	EXPECT_EQ(Evaluated->GetSettingForBranch(UMovieGraphRenderLayerNode::StaticClass(), Globals), GetDefault<UMovieGraphRenderLayerNode>());
	EXPECT_TRUE(Evaluated->GetSettingsForBranch(UMovieGraphRenderLayerNode::StaticClass(), Globals, false).IsEmpty());
}

TEST_F(MovieGraphFlatteningTest, FlattenedNodesAreKeptPerExactClassAndInstanceName)
{
	UMovieGraphFlattenNamedTestNode* First = AddNode<UMovieGraphFlattenNamedTestNode>(Graph.Get());
	First->InstanceName = TEXT("A");
	First->bOverride_Quality = true;
	First->Quality = 10;
	UMovieGraphFlattenNamedTestNode* Second = AddNode<UMovieGraphFlattenNamedTestNode>(Graph.Get());
	Second->InstanceName = TEXT("B");
	Second->bOverride_Quality = true;
	Second->Quality = 20;
	Chain(Graph.Get(), Globals, { First, Second, AddSetting(30) });

	ASSERT_NE(Flatten(), nullptr);
	const TArray<UMovieGraphSettingNode*> All = Evaluated->GetSettingsForBranch(UMovieGraphFlattenTestNode::StaticClass(), Globals, true, false);
	EXPECT_EQ(All.Num(), 3);
	const TArray<UMovieGraphSettingNode*> Named = Evaluated->GetSettingsForBranch(UMovieGraphFlattenNamedTestNode::StaticClass(), Globals, true, true);
	ASSERT_EQ(Named.Num(), 2);
	TArray<int32> Qualities = { Cast<UMovieGraphFlattenTestNode>(Named[0])->Quality, Cast<UMovieGraphFlattenTestNode>(Named[1])->Quality };
	Qualities.Sort();
	EXPECT_EQ(Qualities, TArray<int32>({ 10, 20 }));
	EXPECT_EQ(Flattened(Globals)->Quality, 30);
}

TEST_F(MovieGraphFlatteningTest, NamedBranchesTakeWhatTheyLeftUnsetFromGlobals)
{
	Graph->AddOutput(FText::FromString(TEXT("Layer")));
	Chain(Graph.Get(), Globals, { AddSetting(2, TEXT("globals")) });
	UMovieGraphRenderLayerNode* LayerNode = AddNode<UMovieGraphRenderLayerNode>(Graph.Get());
	Chain(Graph.Get(), Layer, { AddSetting(9), LayerNode });

	ASSERT_NE(Flatten(), nullptr);
	EXPECT_EQ(Evaluated->GetBranchNames(), TArray<FName>({ Globals, Layer }));
	EXPECT_EQ(Flattened(Layer)->Quality, 9);
	EXPECT_EQ(Flattened(Layer)->Label, TEXT("globals"));
	EXPECT_EQ(Flattened(Globals)->Quality, 2);
	EXPECT_NE(Evaluated->GetSettingForBranch(UMovieGraphRenderLayerNode::StaticClass(), Layer, false), nullptr);
	EXPECT_EQ(Evaluated->GetSettingForBranch(UMovieGraphRenderLayerNode::StaticClass(), Globals, false), nullptr);
}

TEST_F(MovieGraphFlatteningTest, DisabledNodesPassThroughAndRemoveRenderSettingHidesUpstreamNodesOfItsClass)
{
	UMovieGraphFlattenTestNode* Disabled = AddSetting(5);
	Disabled->SetDisabled(true);
	UMovieGraphRemoveRenderSettingNode* Remove = AddNode<UMovieGraphRemoveRenderSettingNode>(Graph.Get());
	Remove->NodeType = UMovieGraphFlattenTestNode::StaticClass();
	UMovieGraphFlattenTestNode* BelowRemove = AddSetting(4, TEXT("below"));
	Chain(Graph.Get(), Globals, { Disabled, Remove, BelowRemove });

	ASSERT_NE(Flatten(), nullptr);
	EXPECT_TRUE(Evaluated->GetSettingsForBranch(UMovieGraphFlattenTestNode::StaticClass(), Globals, false).IsEmpty());

	Disabled->SetDisabled(false);
	ASSERT_NE(Flatten(), nullptr);
	EXPECT_EQ(Flattened(Globals)->Quality, 5);
	EXPECT_EQ(Flattened(Globals)->Label, TEXT("default"));

	Disabled->SetDisabled(true);
	Remove->SetDisabled(true);
	ASSERT_NE(Flatten(), nullptr);
	EXPECT_EQ(Flattened(Globals)->Quality, 4);
	EXPECT_EQ(Flattened(Globals)->Label, TEXT("below"));
}

TEST_F(MovieGraphFlatteningTest, BranchNodesFollowTheirConditionAndJobAssignmentsOverrideIt)
{
	UMovieGraphBranchNode* Branch = AddNode<UMovieGraphBranchNode>(Graph.Get());
	Chain(Graph.Get(), Globals, { Branch });
	Graph->AddLabeledEdge(AddSetting(1), NAME_None, Branch, TEXT("True"));
	Graph->AddLabeledEdge(AddSetting(0), NAME_None, Branch, TEXT("False"));

	ASSERT_NE(Flatten(), nullptr);
	EXPECT_EQ(Flattened(Globals), nullptr);

	UMovieGraphVariable* UseFirst = AddVariable(TEXT("UseFirst"), EMovieGraphValueType::Bool, TEXT("True"));
	Graph->AddLabeledEdge(AddVariableNode(UseFirst), TEXT("UseFirst"), Branch, TEXT("Condition"));
	ASSERT_NE(Flatten(), nullptr);
	EXPECT_EQ(Flattened(Globals)->Quality, 1);

	UMovieJobVariableAssignmentContainer* Assignments = AssignForJob(UseFirst, TEXT("False"), false);
	ASSERT_NE(Flatten(), nullptr);
	EXPECT_EQ(Flattened(Globals)->Quality, 1);
	Assignments->SetVariableAssignmentEnableState(UseFirst, true);
	ASSERT_NE(Flatten(), nullptr);
	EXPECT_EQ(Flattened(Globals)->Quality, 0);
}

TEST_F(MovieGraphFlatteningTest, SelectNodesFollowTheOptionTheirSelectionNames)
{
	UMovieGraphSelectNode* Select = AddNode<UMovieGraphSelectNode>(Graph.Get());
	Select->SelectOptions = { TEXT("Draft"), TEXT("Final") };
	Select->UpdatePins();
	Chain(Graph.Get(), Globals, { Select });
	Graph->AddLabeledEdge(AddSetting(1), NAME_None, Select, TEXT("Draft"));
	Graph->AddLabeledEdge(AddSetting(9), NAME_None, Select, TEXT("Final"));
	UMovieGraphVariable* Quality = AddVariable(TEXT("Quality"), EMovieGraphValueType::String, TEXT("Final"));
	Graph->AddLabeledEdge(AddVariableNode(Quality), TEXT("Quality"), Select, TEXT("Selected Option"));

	ASSERT_NE(Flatten(), nullptr);
	EXPECT_EQ(Flattened(Globals)->Quality, 9);
	Quality->SetValueString(TEXT("Draft"));
	ASSERT_NE(Flatten(), nullptr);
	EXPECT_EQ(Flattened(Globals)->Quality, 1);
	Quality->SetValueString(TEXT("Other"));
	ASSERT_NE(Flatten(), nullptr);
	EXPECT_EQ(Flattened(Globals), nullptr);

	// An unmatched selection follows Default; without a selector the node's own selection is used.
	Graph->AddLabeledEdge(AddSetting(4), NAME_None, Select, TEXT("Default"));
	ASSERT_NE(Flatten(), nullptr);
	EXPECT_EQ(Flattened(Globals)->Quality, 4);
	Graph->RemoveInboundEdges(Select, TEXT("Selected Option"));
	Select->SelectedOption = TEXT("Final");
	ASSERT_NE(Flatten(), nullptr);
	EXPECT_EQ(Flattened(Globals)->Quality, 9);
}

#if !UE_VERSION_OLDER_THAN(5, 6, 0)
TEST_F(MovieGraphFlatteningTest, RerouteNodesArePassedThrough)
{
	UMovieGraphRerouteNode* Reroute = AddNode<UMovieGraphRerouteNode>(Graph.Get());
	Chain(Graph.Get(), Globals, { AddSetting(6), Reroute, AddSetting(2, TEXT("beyond")) });

	ASSERT_NE(Flatten(), nullptr);
	EXPECT_EQ(Flattened(Globals)->Quality, 6);
	EXPECT_EQ(Flattened(Globals)->Label, TEXT("beyond"));
	EXPECT_EQ(Evaluated->GetSettingsForBranch(UMovieGraphNode::StaticClass(), Globals, false).Num(), 1);
}
#endif

TEST_F(MovieGraphFlatteningTest, SubgraphsAreWalkedFromTheirOutputAndReturnThroughTheirInput)
{
	Subgraph.Reset(NewObject<UMovieGraphConfig>(GetTransientPackage(), TEXT("InnerGraph")));
	UMovieGraphFlattenTestNode* Inner = AddSetting(-1, TEXT("inner"), Subgraph.Get());
	Chain(Subgraph.Get(), Globals, { Inner });
	Subgraph->AddLabeledEdge(Subgraph->GetInputNode(), Globals, Inner, NAME_None);

	UMovieGraphSubgraphNode* SubgraphNode = AddNode<UMovieGraphSubgraphNode>(Graph.Get());
	SubgraphNode->SetSubGraphAsset(Subgraph.Get());
	Graph->AddLabeledEdge(SubgraphNode, Globals, Graph->GetOutputNode(), Globals);
	Graph->AddLabeledEdge(AddSetting(8, TEXT("parent")), NAME_None, SubgraphNode, Globals);

	ASSERT_NE(Flatten(), nullptr);
	EXPECT_EQ(Flattened(Globals)->Label, TEXT("inner"));
	EXPECT_EQ(Flattened(Globals)->Quality, 8);
#if !UE_VERSION_OLDER_THAN(5, 7, 0)
	EXPECT_EQ(EvaluatedGraphs(), TArray<UMovieGraphConfig*>({ Graph.Get(), Subgraph.Get() }));
#endif

	SubgraphNode->SetDisabled(true);
	ASSERT_NE(Flatten(), nullptr);
	EXPECT_EQ(Flattened(Globals)->Label, TEXT("parent"));
}

TEST_F(MovieGraphFlatteningTest, CyclesAndCircularSubgraphsAbortWithTheirPath)
{
	UMovieGraphFlattenTestNode* First = AddSetting(1);
	UMovieGraphFlattenTestNode* Second = AddSetting(2);
	Chain(Graph.Get(), Globals, { First, Second });
	Graph->AddLabeledEdge(First, NAME_None, Second, NAME_None);
	FString Error;
	EXPECT_EQ(Flatten(Error), nullptr);
	EXPECT_EQ(Error, FString::Printf(TEXT("Node connection cycle found during traversal.\n%s -> %s -> %s"), *First->GetName(), *Second->GetName(), *First->GetName()));

	Graph->RemoveAllInboundEdges(Second);
	Subgraph.Reset(NewObject<UMovieGraphConfig>(GetTransientPackage(), TEXT("SelfGraph")));
	UMovieGraphSubgraphNode* Inner = AddNode<UMovieGraphSubgraphNode>(Subgraph.Get());
	Inner->SetSubGraphAsset(Subgraph.Get());
	Subgraph->AddLabeledEdge(Inner, Globals, Subgraph->GetOutputNode(), Globals);
	UMovieGraphSubgraphNode* Outer = AddNode<UMovieGraphSubgraphNode>(Graph.Get());
	Outer->SetSubGraphAsset(Subgraph.Get());
	Graph->AddLabeledEdge(Outer, Globals, Second, NAME_None);
	EXPECT_EQ(Flatten(Error), nullptr);
	EXPECT_EQ(Error, TEXT("Circular subgraph reference found during traversal.\nRootGraph -> SelfGraph -> SelfGraph"));
}

TEST_F(MovieGraphFlatteningTest, InvalidEdgesAbortWithTheEngineTexts)
{
	UMovieGraphFlattenTestNode* Nearest = AddSetting(1);
	UMovieGraphFlattenTestNode* Upstream = AddSetting(2);
	Chain(Graph.Get(), Globals, { Nearest, Upstream });
	FString Error;

	Nearest->GetInputPins()[0]->Edges[0]->InputPin = nullptr;
	EXPECT_EQ(Flatten(Error), nullptr);
	EXPECT_EQ(Error, TEXT("Found an invalid connection, likely from an invalid node. Aborting graph evaluation."));

	Graph->GetOutputNode()->GetInputPin(Globals)->Edges[0]->InputPin = nullptr;
	EXPECT_EQ(Flatten(Error), nullptr);
	EXPECT_EQ(Error, TEXT("Found an invalid node in branch [Globals]. Aborting graph evaluation."));
}

TEST_F(MovieGraphFlatteningTest, NodeValidationErrorsAbortWithEveryMessage)
{
	Graph->AddOutput(FText::FromString(TEXT("Layer")));
	UMovieGraphFlattenTestNode* Invalid = AddSetting(1);
	Invalid->bOverride_ValidationMessage = true;
	Invalid->ValidationMessage = TEXT("bad");
	Chain(Graph.Get(), Globals, { Invalid });

	FString Error;
	EXPECT_EQ(Flatten(Error), nullptr);
	EXPECT_EQ(Error, TEXT("Found node validation errors while evaluating the graph.\nGlobals: bad\nLayer: bad"));
}

#if !UE_VERSION_OLDER_THAN(5, 7, 0)
TEST_F(MovieGraphFlatteningTest, VariablesResolveToTheJobAssignmentOrTheGraphDefaultParentMostFirst)
{
	UMovieGraphVariable* Shared = AddVariable(TEXT("Shared"), EMovieGraphValueType::Int32, TEXT("1"));
	AddVariable(TEXT("Plain"), EMovieGraphValueType::String, TEXT("graph"));
	Subgraph.Reset(NewObject<UMovieGraphConfig>(GetTransientPackage(), TEXT("InnerGraph")));
	AddVariable(TEXT("Shared"), EMovieGraphValueType::Int32, TEXT("2"), Subgraph.Get());
	UMovieGraphSubgraphNode* SubgraphNode = AddNode<UMovieGraphSubgraphNode>(Graph.Get());
	SubgraphNode->SetSubGraphAsset(Subgraph.Get());
	Graph->AddLabeledEdge(SubgraphNode, Globals, Graph->GetOutputNode(), Globals);
	AssignForJob(Shared, TEXT("5"), true);

	ASSERT_NE(Flatten(), nullptr);
	FString Value;
	EXPECT_TRUE(GetVariableString(TEXT("Shared"), Value));
	EXPECT_EQ(Value, TEXT("5"));
	EXPECT_TRUE(GetVariableString(TEXT("Plain"), Value));
	EXPECT_EQ(Value, TEXT("graph"));
	EXPECT_FALSE(GetVariableString(TEXT("shot_name"), Value));
	EXPECT_EQ(Value, TEXT("none"));
	UMovieGraphValueContainer* Container = FindVariableValue(TEXT("Shared"));
	ASSERT_NE(Container, nullptr);
	EXPECT_EQ(Container->GetOuter(), Evaluated.Get());
	EXPECT_EQ(Container->GetValueType(), EMovieGraphValueType::Int32);

	Job->GetOrCreateJobVariableAssignmentsForGraph(Graph.Get())->SetVariableAssignmentEnableState(Shared, false);
	ASSERT_NE(Flatten(), nullptr);
	EXPECT_TRUE(GetVariableString(TEXT("Shared"), Value));
	EXPECT_EQ(Value, TEXT("1"));
	CollectGarbage(RF_NoFlags);
	EXPECT_EQ(EvaluatedGraphs(), TArray<UMovieGraphConfig*>({ Graph.Get(), Subgraph.Get() }));
	Container = FindVariableValue(TEXT("Plain"));
	ASSERT_NE(Container, nullptr);
	EXPECT_EQ(Container->GetValueSerializedString(), TEXT("graph"));
}
#endif

TEST_F(MovieGraphFlatteningTest, JobAssignmentsAreAddedDisabledAndKeepTheirValue)
{
	UMovieGraphVariable* Variable = AddVariable(TEXT("Count"), EMovieGraphValueType::Int32, TEXT("4"));
	Job.Reset(NewObject<UMoviePipelineExecutorJob>());
	UMovieJobVariableAssignmentContainer* Assignments = Job->GetOrCreateJobVariableAssignmentsForGraph(Graph.Get());
	bool bEnabled = true;
	EXPECT_FALSE(Assignments->GetVariableAssignmentEnableState(Variable, bEnabled));
	EXPECT_TRUE(bEnabled);
	EXPECT_EQ(Assignments->GetValueSerializedString(Variable), TEXT(""));

	EXPECT_TRUE(Assignments->SetValueSerializedString(Variable, TEXT("12")));
	EXPECT_TRUE(Assignments->GetVariableAssignmentEnableState(Variable, bEnabled));
	EXPECT_FALSE(bEnabled);
	EXPECT_EQ(Assignments->GetValueSerializedString(Variable), TEXT("12"));
	EXPECT_FALSE(Assignments->SetValueSerializedString(Variable, TEXT("twelve")));
	EXPECT_EQ(Assignments->GetValueSerializedString(Variable), TEXT("12"));
	EXPECT_FALSE(Assignments->SetVariableAssignmentEnableState(nullptr, true));
}

#if !UE_VERSION_OLDER_THAN(5, 6, 0)
TEST_F(MovieGraphFlatteningTest, BranchAndTagQueriesListNodesNearestTheOutputFirst)
{
	Graph->AddOutput(FText::FromString(TEXT("Layer")));
	UMovieGraphFlattenTestNode* Nearest = AddSetting(1);
	UMovieGraphRenderLayerNode* LayerNode = AddNode<UMovieGraphRenderLayerNode>(Graph.Get());
	UMovieGraphFlattenNamedTestNode* Far = AddNode<UMovieGraphFlattenNamedTestNode>(Graph.Get());
	Chain(Graph.Get(), Layer, { Nearest, AddNode<UMovieGraphRerouteNode>(Graph.Get()), LayerNode, Far });
	UMovieGraphFlattenTestNode* OnGlobals = AddSetting(2);
	Chain(Graph.Get(), Globals, { OnGlobals });
	Nearest->ScriptTags = { TEXT("hero") };
	Far->ScriptTags = { TEXT("hero") };
	OnGlobals->ScriptTags = { TEXT("hero"), TEXT("Hero") };

	EXPECT_EQ(Graph->GetNodesForBranch(UMovieGraphNode::StaticClass(), Layer), TArray<UMovieGraphNode*>({ Nearest, LayerNode, Far }));
	EXPECT_EQ(Graph->GetNodesForBranch(UMovieGraphFlattenTestNode::StaticClass(), Layer), TArray<UMovieGraphNode*>({ Nearest, Far }));
	EXPECT_EQ(Graph->GetNodesForBranch(UMovieGraphFlattenTestNode::StaticClass(), Layer, true), TArray<UMovieGraphNode*>({ Nearest }));
	EXPECT_EQ(Graph->GetNodeForBranch(UMovieGraphRenderLayerNode::StaticClass(), Layer), LayerNode);
	EXPECT_EQ(Graph->GetNodeForBranch(UMovieGraphRenderLayerNode::StaticClass(), Globals), nullptr);
	EXPECT_TRUE(Graph->GetNodesForBranch(UMovieGraphNode::StaticClass(), TEXT("Missing")).IsEmpty());

	EXPECT_EQ(Graph->GetNodesForTag(TEXT("hero")), TArray<UMovieGraphNode*>({ Nearest, Far, OnGlobals }));
	EXPECT_EQ(Graph->GetNodesForTag(TEXT("Hero")), TArray<UMovieGraphNode*>({ OnGlobals }));
	EXPECT_EQ(Graph->GetNodesForTag(TEXT("hero"), nullptr, Layer), TArray<UMovieGraphNode*>({ Nearest, Far }));
	EXPECT_EQ(Graph->GetNodesForTag(TEXT("hero"), UMovieGraphFlattenTestNode::StaticClass(), Layer, true), TArray<UMovieGraphNode*>({ Nearest }));
	EXPECT_EQ(Graph->GetNodeForTag(TEXT("hero"), UMovieGraphFlattenNamedTestNode::StaticClass()), Far);
	EXPECT_EQ(Graph->GetNodeForTag(TEXT("villain")), nullptr);
}
#endif

namespace
{
	// Exit code 0 when two flattenings without a render layer log the error exactly once and both succeed.
	int32 FlattenTwiceWithoutRenderLayer()
	{
		FLogCapture Captured;
		TStrongObjectPtr<UMovieGraphConfig> Graph(NewObject<UMovieGraphConfig>());
		bool bSucceeded = true;
		for (int32 Attempt = 0; Attempt < 2; ++Attempt)
		{
			FString Error = TEXT("stale");
			TStrongObjectPtr<UMovieGraphEvaluatedConfig> Evaluated(Graph->CreateFlattenedGraph(FMovieGraphTraversalContext(), Error));
			bSucceeded = bSucceeded && Evaluated && Error.IsEmpty();
		}
		const bool bReportedOnce = Captured.CountAtOrAbove(ELogVerbosity::Error) == 1
			&& Captured.Contains(TEXT("For render jobs to succeed, one or more render layer node(s) must be present."), ELogVerbosity::Error);
		return bSucceeded && bReportedOnce ? 0 : 1;
	}
}

// A fresh process, so that no earlier flattening has already reported the missing render layer.
TEST(MovieGraphFlatteningDeathTest, TheMissingRenderLayerErrorIsLoggedOncePerProcessWithoutFailing)
{
	GTEST_FLAG_SET(death_test_style, "threadsafe");
	EXPECT_EXIT(_exit(FlattenTwiceWithoutRenderLayer()), testing::ExitedWithCode(0), "");
}
