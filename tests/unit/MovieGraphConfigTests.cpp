#include "PersistenceTestSupport.h"

#include "Graph/MovieGraphConfig.h"
#include "Graph/MovieGraphEdge.h"
#include "Graph/MovieGraphNode.h"
#include "Graph/MovieGraphPin.h"
#include "Graph/Nodes/MovieGraphGlobalOutputSettingNode.h"
#include "Graph/Nodes/MovieGraphInputNode.h"
#include "Graph/Nodes/MovieGraphOutputNode.h"
#include "Graph/Nodes/MovieGraphVariableNode.h"
#include "Misc/EngineVersionComparison.h"
#include "UObject/GarbageCollection.h"
#include "UObject/Package.h"
#include "UObject/StrongObjectPtr.h"
#include "UObject/UObjectGlobals.h"

#include <gtest/gtest.h>

// Setting nodes restricted to one kind of branch, to see the connection rules apply.
class UMovieGraphTestGlobalsNode : public UMovieGraphSettingNode
{
	STANDIN_CLASS_BODY(UMovieGraphTestGlobalsNode, UMovieGraphSettingNode, )

public:
	virtual EMovieGraphBranchRestriction GetBranchRestriction() const override { return EMovieGraphBranchRestriction::Globals; }
};

STANDIN_IMPLEMENT_CLASS(UMovieGraphTestGlobalsNode, CLASS_None, "MovieGraphTests")
{
}

class UMovieGraphTestRenderLayerNode : public UMovieGraphSettingNode
{
	STANDIN_CLASS_BODY(UMovieGraphTestRenderLayerNode, UMovieGraphSettingNode, )

public:
	virtual EMovieGraphBranchRestriction GetBranchRestriction() const override { return EMovieGraphBranchRestriction::RenderLayer; }
};

STANDIN_IMPLEMENT_CLASS(UMovieGraphTestRenderLayerNode, CLASS_None, "MovieGraphTests")
{
}

namespace
{
	class MovieGraphConfigTest : public testing::Test
	{
	protected:
		void TearDown() override
		{
			Graph.Reset();
			CollectGarbage(RF_NoFlags);
		}

		template<class TNode>
		TNode* AddNode()
		{
			return Cast<TNode>(Graph->CreateNodeByClass(TNode::StaticClass()));
		}

		static TArray<FString> MemberNames(const auto& Members)
		{
			TArray<FString> Names;
			for (const UMovieGraphMember* Member : Members)
			{
				Names.Add(Member->GetMemberName());
			}
			return Names;
		}

		static TArray<FString> PinLabels(const TArray<UMovieGraphPin*>& Pins)
		{
			TArray<FString> Labels;
			for (const UMovieGraphPin* Pin : Pins)
			{
				Labels.Add(Pin->Properties.Label.ToString());
			}
			return Labels;
		}

		FString ConnectionMessage(UMovieGraphPin* From, UMovieGraphPin* To) const
		{
			const FPinConnectionResponse Response = From->CanCreateConnection_PinConnectionResponse(To);
			return Response.Response == CONNECT_RESPONSE_DISALLOW ? Response.Message.ToString() : FString(TEXT("allowed"));
		}

		UMovieGraphPin* OutputGlobalsPin() const { return Graph->GetOutputNode()->GetInputPin(UMovieGraphNode::GlobalsPinName); }

		TStrongObjectPtr<UMovieGraphConfig> Graph{ NewObject<UMovieGraphConfig>() };
	};
}

TEST_F(MovieGraphConfigTest, ANewGraphHoldsTheInterfaceNodesTheGlobalsMembersAndTheFourGlobalVariables)
{
	EXPECT_EQ(Graph->GetNodes().Num(), 0);
	EXPECT_EQ(Graph->GetInputNode()->GetName(), TEXT("DefaultInputNode"));
	EXPECT_EQ(Graph->GetOutputNode()->GetName(), TEXT("DefaultOutputNode"));
	EXPECT_EQ(MemberNames(Graph->GetInputs()), TArray<FString>({ TEXT("Globals") }));
	EXPECT_EQ(MemberNames(Graph->GetOutputs()), TArray<FString>({ TEXT("Globals") }));
	EXPECT_EQ(Graph->GetVariables(false).Num(), 0);
	EXPECT_EQ(MemberNames(Graph->GetVariables(true)), TArray<FString>({ TEXT("camera_name"), TEXT("frame_num"), TEXT("seq_name"), TEXT("shot_name") }));
	EXPECT_EQ(PinLabels(Graph->GetInputNode()->GetOutputPins()), TArray<FString>({ TEXT("Globals") }));
	EXPECT_EQ(PinLabels(Graph->GetOutputNode()->GetInputPins()), TArray<FString>({ TEXT("Globals") }));
	EXPECT_TRUE(OutputGlobalsPin()->Properties.bIsBranch);
	EXPECT_EQ(Graph->GetVariables(true)[1]->GetValueType(), EMovieGraphValueType::Int32);
	EXPECT_FALSE(Graph->GetVariables(true)[0]->IsEditable());
	EXPECT_EQ(Graph->GetBranchNames(), TArray<FName>({ FName(TEXT("Globals")) }));
}

TEST_F(MovieGraphConfigTest, ALoadedGraphGetsItsMissingDefaultMembersOnceFromPostLoad)
{
	TStrongObjectPtr<UMovieGraphConfig> Loaded(NewObject<UMovieGraphConfig>(GetTransientPackage(), NAME_None, RF_WasLoaded));
	EXPECT_EQ(Loaded->GetInputs().Num(), 0);
	Loaded->PostLoad();
	Loaded->PostLoad();
	EXPECT_EQ(MemberNames(Loaded->GetInputs()), TArray<FString>({ TEXT("Globals") }));
	EXPECT_EQ(Loaded->GetVariables(true).Num(), 4);
}

TEST_F(MovieGraphConfigTest, NewMembersTakeTheFirstFreeNameWithinTheirOwnKind)
{
	EXPECT_EQ(Graph->AddVariable()->GetMemberName(), TEXT("Variable"));
	EXPECT_EQ(Graph->AddVariable()->GetMemberName(), TEXT("Variable 1"));
	EXPECT_EQ(Graph->AddVariable(FName(TEXT("Variable 1")))->GetMemberName(), TEXT("Variable 1 1"));
	EXPECT_EQ(Graph->AddInput(FText::FromString(TEXT("Variable")))->GetMemberName(), TEXT("Variable"));
	EXPECT_EQ(Graph->AddInput()->GetMemberName(), TEXT("Input"));
	EXPECT_EQ(Graph->AddOutput(FText::FromString(TEXT("globals")))->GetMemberName(), TEXT("globals 1"));
	EXPECT_EQ(PinLabels(Graph->GetOutputNode()->GetInputPins()), TArray<FString>({ TEXT("Globals"), TEXT("globals 1") }));

	FText Error;
	EXPECT_FALSE(Graph->GetVariables()[0]->CanRename(FText::FromString(TEXT("variable 1")), Error));
	EXPECT_EQ(Error.ToString(), TEXT("A variable with this name already exists."));
	EXPECT_FALSE(Graph->GetInputs()[1]->SetMemberName(TEXT("Globals")));
	EXPECT_FALSE(Graph->GetVariables(true)[4]->SetMemberName(TEXT("Other")));
}

TEST_F(MovieGraphConfigTest, CategoriesAreDisplayStringsAndKeepTheirVariablesTogether)
{
	UMovieGraphVariable* First = Graph->AddVariable(FName(TEXT("A")));
	Graph->AddVariable(FName(TEXT("B")));
	UMovieGraphVariable* Third = Graph->AddVariable(FName(TEXT("C")));
	First->SetCategory(TEXT("Test1"));
	Third->SetCategory(TEXT("Test1"));
	EXPECT_EQ(First->GetCategory(), TEXT("Test 1"));
	EXPECT_EQ(MemberNames(Graph->GetVariables()), TArray<FString>({ TEXT("A"), TEXT("C"), TEXT("B") }));
}

TEST_F(MovieGraphConfigTest, AddLabeledEdgeAnswersTrueOnlyWhenItReplacedAnExistingConnection)
{
	UMovieGraphNode* First = AddNode<UMovieGraphTestGlobalsNode>();
	UMovieGraphNode* Second = AddNode<UMovieGraphTestGlobalsNode>();
	EXPECT_FALSE(Graph->AddLabeledEdge(First, NAME_None, Graph->GetOutputNode(), UMovieGraphNode::GlobalsPinName));
	EXPECT_TRUE(OutputGlobalsPin()->GetAllConnectedPins().Contains(First->GetOutputPin(NAME_None)));
	EXPECT_TRUE(Graph->AddLabeledEdge(Second, NAME_None, Graph->GetOutputNode(), UMovieGraphNode::GlobalsPinName));
	EXPECT_EQ(OutputGlobalsPin()->GetAllConnectedPins(), TArray<UMovieGraphPin*>({ Second->GetOutputPin(NAME_None) }));
	EXPECT_EQ(First->GetOutputPin(NAME_None)->EdgeCount(), 0);

	// An output pin feeds many inputs; the edge's "input" end is the upstream output pin.
	EXPECT_FALSE(Graph->AddLabeledEdge(Graph->GetInputNode(), UMovieGraphNode::GlobalsPinName, First, NAME_None));
	EXPECT_FALSE(Graph->AddLabeledEdge(Graph->GetInputNode(), UMovieGraphNode::GlobalsPinName, Second, NAME_None));
	UMovieGraphPin* InputGlobals = Graph->GetInputNode()->GetOutputPin(UMovieGraphNode::GlobalsPinName);
	EXPECT_EQ(InputGlobals->EdgeCount(), 2);
	EXPECT_EQ(InputGlobals->Edges[0]->InputPin, InputGlobals);

	EXPECT_TRUE(Graph->RemoveLabeledEdge(Second, NAME_None, Graph->GetOutputNode(), UMovieGraphNode::GlobalsPinName));
	EXPECT_FALSE(Graph->RemoveLabeledEdge(Second, NAME_None, Graph->GetOutputNode(), UMovieGraphNode::GlobalsPinName));
}

TEST_F(MovieGraphConfigTest, RefusedEdgesAreScriptErrorsAndChangeNothing)
{
	UMovieGraphNode* Node = AddNode<UMovieGraphTestGlobalsNode>();
	FLogCapture Log;
	EXPECT_FALSE(Graph->AddLabeledEdge(Node, NAME_None, Node, NAME_None));
	EXPECT_TRUE(Log.Contains(TEXT("No Circular Connections!"), ELogVerbosity::Error));
	EXPECT_FALSE(Graph->AddLabeledEdge(Node, NAME_None, Graph->GetOutputNode(), FName(TEXT("NoSuchBranch"))));
	EXPECT_FALSE(Graph->AddLabeledEdge(nullptr, NAME_None, Node, NAME_None));
	EXPECT_EQ(Log.CountAtOrAbove(ELogVerbosity::Error), 3);
	EXPECT_EQ(Node->GetOutputPin(NAME_None)->EdgeCount(), 0);
}

TEST_F(MovieGraphConfigTest, ConnectionRulesFollowTheEngineInOrder)
{
	UMovieGraphNode* Globals = AddNode<UMovieGraphTestGlobalsNode>();
	UMovieGraphNode* RenderLayer = AddNode<UMovieGraphTestRenderLayerNode>();
	UMovieGraphVariableNode* VariableNode = AddNode<UMovieGraphVariableNode>();
	VariableNode->SetVariable(Graph->AddVariable(FName(TEXT("Value"))));
	Graph->AddOutput(FText::FromString(TEXT("Beauty")));
	UMovieGraphPin* BeautyPin = Graph->GetOutputNode()->GetInputPin(FName(TEXT("Beauty")));

	EXPECT_EQ(ConnectionMessage(Globals->GetOutputPin(NAME_None), nullptr), TEXT("InOtherPin is invalid!"));
	EXPECT_EQ(ConnectionMessage(Globals->GetOutputPin(NAME_None), Globals->GetInputPin(NAME_None)), TEXT("No Circular Connections!"));
	EXPECT_EQ(ConnectionMessage(VariableNode->GetOutputPins()[0], Globals->GetInputPin(NAME_None)), TEXT("Pin types don't match!"));
	EXPECT_EQ(ConnectionMessage(Globals->GetInputPin(NAME_None), OutputGlobalsPin()), TEXT("Directions are not compatible!"));
	EXPECT_EQ(ConnectionMessage(Globals->GetOutputPin(NAME_None), RenderLayer->GetInputPin(NAME_None)), TEXT("A Globals-only node cannot be connected to a RenderLayer-only node."));
	EXPECT_NE(ConnectionMessage(Globals->GetOutputPin(NAME_None), BeautyPin), TEXT("allowed"));
	EXPECT_NE(ConnectionMessage(RenderLayer->GetOutputPin(NAME_None), OutputGlobalsPin()), TEXT("allowed"));
	EXPECT_EQ(ConnectionMessage(RenderLayer->GetOutputPin(NAME_None), BeautyPin), TEXT("allowed"));

	Graph->AddLabeledEdge(RenderLayer, NAME_None, Graph->GetOutputNode(), FName(TEXT("Beauty")));
	const FPinConnectionResponse Replace = Graph->GetInputNode()->GetOutputPin(UMovieGraphNode::GlobalsPinName)->CanCreateConnection_PinConnectionResponse(OutputGlobalsPin());
	EXPECT_EQ(Replace.Response, CONNECT_RESPONSE_MAKE);
	Graph->AddLabeledEdge(Graph->GetInputNode(), UMovieGraphNode::GlobalsPinName, Graph->GetOutputNode(), UMovieGraphNode::GlobalsPinName);
	const FPinConnectionResponse Second = Globals->GetOutputPin(NAME_None)->CanCreateConnection_PinConnectionResponse(OutputGlobalsPin());
	EXPECT_EQ(Second.Response, CONNECT_RESPONSE_BREAK_OTHERS_B);
	EXPECT_EQ(Second.Message.ToString(), TEXT("Replace existing input connections"));
}

TEST_F(MovieGraphConfigTest, DeleteMemberRefusesGlobalsAndTakesVariableNodesAndEdgesWithTheMember)
{
	FLogCapture Log;
	EXPECT_FALSE(Graph->DeleteMember(nullptr));
	EXPECT_FALSE(Graph->DeleteMember(Graph->GetInputs()[0]));
	EXPECT_FALSE(Graph->DeleteMember(Graph->GetVariables(true)[0]));
	EXPECT_EQ(Log.CountAtOrAbove(ELogVerbosity::Error), 2);
	EXPECT_EQ(Graph->GetInputs().Num(), 1);
	EXPECT_EQ(Graph->GetVariables(true).Num(), 4);

	UMovieGraphVariable* Variable = Graph->AddVariable();
	UMovieGraphVariableNode* Reader = AddNode<UMovieGraphVariableNode>();
	Reader->SetVariable(Variable);
	UMovieGraphNode* Unrelated = AddNode<UMovieGraphTestGlobalsNode>();
	EXPECT_TRUE(Graph->DeleteMember(Variable));
	ASSERT_EQ(Graph->GetNodes().Num(), 1);
	EXPECT_EQ(Graph->GetNodes()[0], Unrelated);
	EXPECT_FALSE(Graph->DeleteMember(Variable));

	UMovieGraphInput* Input = Graph->AddInput(FText::FromString(TEXT("Plates")));
	Graph->AddLabeledEdge(Graph->GetInputNode(), FName(TEXT("Plates")), Unrelated, NAME_None);
	EXPECT_EQ(Unrelated->GetInputPin(NAME_None)->EdgeCount(), 1);
	EXPECT_TRUE(Graph->DeleteMember(Input));
	EXPECT_EQ(Unrelated->GetInputPin(NAME_None)->EdgeCount(), 0);
	EXPECT_EQ(PinLabels(Graph->GetInputNode()->GetOutputPins()), TArray<FString>({ TEXT("Globals") }));
}

TEST_F(MovieGraphConfigTest, NodesAreCreatedAddedAndRemovedAsTheEngineDoes)
{
	FLogCapture Log;
	EXPECT_EQ(Graph->CreateNodeByClass(nullptr), nullptr);
	EXPECT_TRUE(Log.Contains(TEXT("UMovieGraphConfig::CreateNodeByClass: Invalid PipelineGraphNodeClass. Please specify a valid class."), ELogVerbosity::Error));

	UMovieGraphNode* Node = AddNode<UMovieGraphTestGlobalsNode>();
	EXPECT_TRUE(Node->GetGuid().IsValid());
	EXPECT_TRUE(Node->HasAnyFlags(RF_Transactional));
	EXPECT_EQ(Node->GetOuter(), Graph.Get());

	// Only user-addable nodes join the node list from 5.7 on; the created object is returned either way.
	UMovieGraphNode* ExtraInput = Graph->CreateNodeByClass(UMovieGraphInputNode::StaticClass());
	ASSERT_NE(ExtraInput, nullptr);
	EXPECT_EQ(Graph->GetNodes().Contains(ExtraInput), UE_VERSION_OLDER_THAN(5, 7, 0));

	Graph->AddLabeledEdge(Graph->GetInputNode(), UMovieGraphNode::GlobalsPinName, Node, NAME_None);
	Graph->AddLabeledEdge(Node, NAME_None, Graph->GetOutputNode(), UMovieGraphNode::GlobalsPinName);
	EXPECT_TRUE(Graph->RemoveNode(Node));
	EXPECT_FALSE(OutputGlobalsPin()->IsConnected());
	EXPECT_EQ(Graph->GetInputNode()->GetOutputPin(UMovieGraphNode::GlobalsPinName)->EdgeCount(), 0);
	EXPECT_FALSE(Graph->RemoveNode(Node));
}

TEST_F(MovieGraphConfigTest, NewPinsLeaveExistingPinsAndTheirEdgesInPlace)
{
	UMovieGraphNode* Node = AddNode<UMovieGraphTestGlobalsNode>();
	Graph->AddLabeledEdge(Node, NAME_None, Graph->GetOutputNode(), UMovieGraphNode::GlobalsPinName);
	UMovieGraphPin* Before = OutputGlobalsPin();
	Graph->AddOutput(FText::FromString(TEXT("Beauty")));
	EXPECT_EQ(OutputGlobalsPin(), Before);
	EXPECT_TRUE(Before->IsConnected());
	EXPECT_EQ(Graph->GetBranchNames(), TArray<FName>({ FName(TEXT("Globals")), FName(TEXT("Beauty")) }));
}

TEST_F(MovieGraphConfigTest, OutputDirectoryIsTheFirstOverrideOnTheGlobalsChain)
{
	FString Directory = TEXT("stale");
	Graph->GetOutputDirectory(Directory);
	EXPECT_EQ(Directory, TEXT(""));

	UMovieGraphGlobalOutputSettingNode* Nearest = AddNode<UMovieGraphGlobalOutputSettingNode>();
	UMovieGraphGlobalOutputSettingNode* Upstream = AddNode<UMovieGraphGlobalOutputSettingNode>();
	Graph->AddLabeledEdge(Upstream, NAME_None, Nearest, NAME_None);
	Graph->AddLabeledEdge(Nearest, NAME_None, Graph->GetOutputNode(), UMovieGraphNode::GlobalsPinName);
	Graph->GetOutputDirectory(Directory);
	EXPECT_EQ(Directory, TEXT("{project_dir}/Saved/MovieRenders/"));

	Upstream->bOverride_OutputDirectory = true;
	Upstream->OutputDirectory.Path = TEXT("/upstream");
	Nearest->bOverride_OutputDirectory = true;
	Nearest->OutputDirectory.Path = TEXT("/nearest");
	Graph->GetOutputDirectory(Directory);
	EXPECT_EQ(Directory, TEXT("/nearest"));

	// 5.8 passes over a disabled node; earlier engines do not look at the flag.
	Nearest->SetDisabled(true);
	Graph->GetOutputDirectory(Directory);
	EXPECT_EQ(Directory, UE_VERSION_OLDER_THAN(5, 8, 0) ? TEXT("/nearest") : TEXT("/upstream"));
}

TEST_F(MovieGraphConfigTest, OverrideFlagsAreFoundByTheirNamingConvention)
{
	UClass* Class = UMovieGraphGlobalOutputSettingNode::StaticClass();
	const FProperty* Directory = Class->FindPropertyByName(FName(TEXT("OutputDirectory")));
	const FBoolProperty* Flag = UMovieGraphConfig::FindOverridePropertyForRealProperty(Class, Directory);
	ASSERT_NE(Flag, nullptr);
	EXPECT_EQ(Flag->GetName(), TEXT("bOverride_OutputDirectory"));
	EXPECT_EQ(UMovieGraphConfig::FindOverridePropertyForRealProperty(Class, Flag), nullptr);
}
