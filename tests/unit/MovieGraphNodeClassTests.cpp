#include "PersistenceTestSupport.h"

#include "Graph/MovieGraphConfig.h"
#include "Graph/Nodes/MovieGraphApplyCVarPresetNode.h"
#include "Graph/Nodes/MovieGraphAudioOutputNode.h"
#include "Graph/Nodes/MovieGraphBranchNode.h"
#include "Graph/Nodes/MovieGraphBurnInNode.h"
#include "Graph/Nodes/MovieGraphCameraNode.h"
#include "Graph/Nodes/MovieGraphCollectionNode.h"
#include "Graph/Nodes/MovieGraphCommandLineEncoderNode.h"
#include "Graph/Nodes/MovieGraphDebugNode.h"
#include "Graph/Nodes/MovieGraphDeferredPassNode.h"
#include "Graph/Nodes/MovieGraphExecuteScriptNode.h"
#include "Graph/Nodes/MovieGraphFileOutputNode.h"
#include "Graph/Nodes/MovieGraphGlobalGameOverrides.h"
#include "Graph/Nodes/MovieGraphGlobalOutputSettingNode.h"
#include "Graph/Nodes/MovieGraphImagePassBaseNode.h"
#include "Graph/Nodes/MovieGraphModifierNode.h"
#include "Graph/Nodes/MovieGraphPathTracerPassNode.h"
#include "Graph/Nodes/MovieGraphRemoveRenderSettingNode.h"
#include "Graph/Nodes/MovieGraphRenderLayerNode.h"
#include "Graph/Nodes/MovieGraphRenderPassNode.h"
#include "Graph/Nodes/MovieGraphRerouteNode.h"
#include "Graph/Nodes/MovieGraphSamplingMethodNode.h"
#include "Graph/Nodes/MovieGraphSelectNode.h"
#include "Graph/Nodes/MovieGraphSetCVarValueNode.h"
#include "Graph/Nodes/MovieGraphSetMetadataAttributesNode.h"
#include "Graph/Nodes/MovieGraphSetStartEndConsoleCommandsNode.h"
#include "Graph/Nodes/MovieGraphSubgraphNode.h"
#include "Graph/Nodes/MovieGraphUIRendererNode.h"
#include "Graph/Nodes/MovieGraphVideoOutputNode.h"
#include "Graph/Nodes/MovieGraphWarmUpSettingNode.h"
#include "Misc/PackageName.h"
#include "MovieGraphImageSequenceOutputNode.h"
#include "UObject/GarbageCollection.h"
#include "UObject/Package.h"
#include "UObject/SavePackage.h"
#include "UObject/StrongObjectPtr.h"
#include "UObject/UnrealType.h"

#include <gtest/gtest.h>

namespace
{
	TArray<UClass*> ConcreteSettingNodeClasses()
	{
		return {
			UMovieGraphGlobalOutputSettingNode::StaticClass(), UMovieGraphGlobalGameOverridesNode::StaticClass(),
			UMovieGraphRenderLayerNode::StaticClass(), UMovieGraphCameraSettingNode::StaticClass(),
			UMovieGraphSamplingMethodNode::StaticClass(), UMovieGraphWarmUpSettingNode::StaticClass(),
			UMovieGraphSetCVarValueNode::StaticClass(), UMovieGraphApplyCVarPresetNode::StaticClass(),
			UMovieGraphSetStartEndConsoleCommandsNode::StaticClass(), UMovieGraphDebugSettingNode::StaticClass(),
			UMovieGraphExecuteScriptNode::StaticClass(), UMovieGraphCommandLineEncoderNode::StaticClass(),
			UMovieGraphCollectionNode::StaticClass(), UMovieGraphModifierNode::StaticClass(),
			UMovieGraphSetMetadataAttributesNode::StaticClass(), UMovieGraphBurnInNode::StaticClass(),
			UMovieGraphUIRendererNode::StaticClass(), UMovieGraphDeferredRenderPassNode::StaticClass(),
			UMovieGraphPathTracerRenderPassNode::StaticClass(), UMovieGraphAudioOutputNode::StaticClass(),
			UMovieGraphImageSequenceOutputNode_BMP::StaticClass(), UMovieGraphImageSequenceOutputNode_JPG::StaticClass(),
			UMovieGraphImageSequenceOutputNode_PNG::StaticClass(), UMovieGraphImageSequenceOutputNode_EXR::StaticClass(),
			UMovieGraphImageSequenceOutputNode_MultiLayerEXR::StaticClass()
		};
	}

	TArray<FBoolProperty*> OverrideFlagsOf(UClass* InClass)
	{
		TArray<FBoolProperty*> Flags;
		for (TFieldIterator<FBoolProperty> It(InClass); It; ++It)
		{
			if (It->GetName().StartsWith(TEXT("bOverride_"), ESearchCase::CaseSensitive))
			{
				Flags.Add(*It);
			}
		}
		return Flags;
	}

	class MovieGraphNodeClassTest : public testing::Test
	{
	protected:
		void SetUp() override
		{
			Graph.Reset(NewObject<UMovieGraphConfig>(GetTransientPackage()));
		}

		void TearDown() override
		{
			Graph.Reset();
			CollectGarbage(RF_NoFlags);
		}

		TStrongObjectPtr<UMovieGraphConfig> Graph;
	};
}

TEST_F(MovieGraphNodeClassTest, EverySettingNodeIsCreatedWithOneUnlabelledBranchPinPerSide)
{
	for (UClass* Class : ConcreteSettingNodeClasses())
	{
		SCOPED_TRACE(TCHAR_TO_UTF8(*Class->GetName()));
		const UMovieGraphNode* Node = Graph->CreateNodeByClass(Class);
		ASSERT_NE(Node, nullptr);
		EXPECT_EQ(Node->GetClass(), Class);
		ASSERT_EQ(Node->GetInputPins().Num(), 1);
		ASSERT_EQ(Node->GetOutputPins().Num(), 1);
		for (const UMovieGraphPin* Pin : { Node->GetInputPins()[0], Node->GetOutputPins()[0] })
		{
			EXPECT_TRUE(Pin->Properties.Label.IsNone());
			EXPECT_TRUE(Pin->Properties.bIsBranch);
		}
	}
}

TEST_F(MovieGraphNodeClassTest, StructuralNodesGetTheirPins)
{
	const UMovieGraphNode* Branch = Graph->CreateNodeByClass(UMovieGraphBranchNode::StaticClass());
	ASSERT_NE(Branch, nullptr);
	ASSERT_EQ(Branch->GetInputPins().Num(), 3);
	EXPECT_TRUE(Branch->GetInputPin(TEXT("True"))->Properties.bIsBranch);
	EXPECT_TRUE(Branch->GetInputPin(TEXT("False"))->Properties.bIsBranch);
	EXPECT_EQ(Branch->GetInputPin(TEXT("Condition"))->Properties.Type, EMovieGraphValueType::Bool);
	EXPECT_FALSE(Branch->GetInputPin(TEXT("Condition"))->Properties.bIsBranch);
	ASSERT_EQ(Branch->GetOutputPins().Num(), 1);
	EXPECT_TRUE(Branch->GetOutputPins()[0]->Properties.bIsBranch);

	UMovieGraphSelectNode* Select = Cast<UMovieGraphSelectNode>(Graph->CreateNodeByClass(UMovieGraphSelectNode::StaticClass()));
	ASSERT_NE(Select, nullptr);
	Select->SelectOptions = { TEXT("Draft"), TEXT("Final") };
	Select->UpdatePins();
	ASSERT_EQ(Select->GetInputPins().Num(), 4);
	EXPECT_FALSE(Select->GetInputPin(TEXT("Draft"))->Properties.bIsBuiltIn);
	EXPECT_TRUE(Select->GetInputPin(TEXT("Default"), EMovieGraphPinQueryRequirement::BuiltIn)->Properties.bIsBranch);
	EXPECT_TRUE(Select->GetInputPin(TEXT("Draft"))->Properties.bIsBranch);
	EXPECT_TRUE(Select->GetInputPin(TEXT("Final"))->Properties.bIsBranch);
	EXPECT_EQ(Select->GetInputPin(TEXT("Selected Option"))->Properties.Type, EMovieGraphValueType::String);

	const UMovieGraphNode* Remove = Graph->CreateNodeByClass(UMovieGraphRemoveRenderSettingNode::StaticClass());
	ASSERT_NE(Remove, nullptr);
	EXPECT_EQ(Remove->GetInputPins().Num(), 1);
	EXPECT_EQ(Remove->GetOutputPins().Num(), 1);

#if !UE_VERSION_OLDER_THAN(5, 6, 0)
	const UMovieGraphNode* Reroute = Graph->CreateNodeByClass(UMovieGraphRerouteNode::StaticClass());
	ASSERT_NE(Reroute, nullptr);
	ASSERT_EQ(Reroute->GetInputPins().Num(), 1);
	ASSERT_EQ(Reroute->GetOutputPins().Num(), 1);
	EXPECT_TRUE(Reroute->GetInputPins()[0]->Properties.bIsWildcard);
	EXPECT_TRUE(Reroute->GetOutputPins()[0]->Properties.bIsWildcard);
#endif
}

TEST_F(MovieGraphNodeClassTest, SubgraphNodePinsFollowTheSubgraphMembers)
{
	TStrongObjectPtr<UMovieGraphConfig> Subgraph(NewObject<UMovieGraphConfig>(GetTransientPackage()));
	UMovieGraphInput* Input = Subgraph->AddInput(FText::FromString(TEXT("Shots")));
	UMovieGraphOutput* Output = Subgraph->AddOutput(FText::FromString(TEXT("Beauty")));
	ASSERT_NE(Input, nullptr);
	ASSERT_NE(Output, nullptr);

	UMovieGraphSubgraphNode* Node = Cast<UMovieGraphSubgraphNode>(Graph->CreateNodeByClass(UMovieGraphSubgraphNode::StaticClass()));
	ASSERT_NE(Node, nullptr);
	EXPECT_EQ(Node->GetSubgraphAsset(), nullptr);
	Node->SetSubGraphAsset(TSoftObjectPtr<UMovieGraphConfig>(Subgraph.Get()));
	EXPECT_EQ(Node->GetSubgraphAsset(), Subgraph.Get());

	const TArray<UMovieGraphInput*> Inputs = Subgraph->GetInputs();
	ASSERT_EQ(Node->GetInputPins().Num(), Inputs.Num());
	for (int32 Index = 0; Index < Inputs.Num(); ++Index)
	{
		EXPECT_EQ(Node->GetInputPins()[Index]->Properties.Label, FName(*Inputs[Index]->GetMemberName()));
		EXPECT_EQ(Node->GetInputPins()[Index]->Properties.bIsBranch, Inputs[Index]->bIsBranch);
	}
	EXPECT_NE(Node->GetInputPin(FName(*Input->GetMemberName())), nullptr);
	ASSERT_EQ(Node->GetOutputPins().Num(), Subgraph->GetOutputs().Num());
	EXPECT_NE(Node->GetOutputPin(FName(*Output->GetMemberName())), nullptr);

	Input->bIsBranch = false;
	ASSERT_TRUE(Subgraph->DeleteMember(Output));
	Node->UpdatePins();
	EXPECT_FALSE(Node->GetInputPin(FName(*Input->GetMemberName()))->Properties.bIsBranch);
	EXPECT_EQ(Node->GetOutputPins().Num(), Subgraph->GetOutputs().Num());
}

TEST(MovieGraphNodeClasses, AbstractAndDeprecatedClassesSayso)
{
	for (UClass* Class : { UMovieGraphFileOutputNode::StaticClass(), UMovieGraphRenderPassNode::StaticClass(),
		UMovieGraphImageSequenceOutputNode::StaticClass(), UMovieGraphImagePassBaseNode::StaticClass(), UMovieGraphVideoOutputNode::StaticClass() })
	{
		EXPECT_TRUE(Class->HasAnyClassFlags(CLASS_Abstract)) << TCHAR_TO_UTF8(*Class->GetName());
	}
	for (UClass* Class : ConcreteSettingNodeClasses())
	{
		EXPECT_FALSE(Class->HasAnyClassFlags(CLASS_Abstract | CLASS_Deprecated)) << TCHAR_TO_UTF8(*Class->GetName());
	}
	UClass* Deprecated = UDEPRECATED_MovieGraphOutputSettingNode::StaticClass();
	EXPECT_TRUE(Deprecated->HasAnyClassFlags(CLASS_Deprecated));
	EXPECT_TRUE(Deprecated->IsChildOf(UMovieGraphGlobalOutputSettingNode::StaticClass()));
	EXPECT_EQ(FString(Deprecated->GetPrefixCPP()), TEXT("UDEPRECATED_"));
}

TEST(MovieGraphNodeClasses, DefaultsAndBranchRestrictions)
{
	const UMovieGraphGlobalOutputSettingNode* Output = GetDefault<UMovieGraphGlobalOutputSettingNode>();
	EXPECT_EQ(Output->OutputDirectory.Path, TEXT("{project_dir}/Saved/MovieRenders/"));
	EXPECT_EQ(LexToString(Output->OutputResolution), TEXT("1080p (FHD) [1920, 1080]"));
	EXPECT_EQ(Output->OutputFrameRate, FFrameRate(24, 1));
	EXPECT_EQ(Output->ZeroPadFrameNumbers, 4);
	EXPECT_TRUE(Output->VersioningSettings.bAutoVersioning);
	EXPECT_EQ(Output->VersioningSettings.VersionNumber, 1);
	EXPECT_EQ(Output->GetBranchRestriction(), EMovieGraphBranchRestriction::Globals);
	EXPECT_EQ(GetDefault<UMovieGraphGlobalGameOverridesNode>()->GetBranchRestriction(), EMovieGraphBranchRestriction::Globals);
	EXPECT_EQ(GetDefault<UMovieGraphImageSequenceOutputNode_MultiLayerEXR>()->GetBranchRestriction(), EMovieGraphBranchRestriction::Globals);
	EXPECT_EQ(GetDefault<UMovieGraphImageSequenceOutputNode_MultiLayerEXR>()->FileNameFormat, TEXT("{sequence_name}.{frame_number}"));
	EXPECT_EQ(GetDefault<UMovieGraphImageSequenceOutputNode_PNG>()->FileNameFormat, TEXT("{sequence_name}.{layer_name}.{frame_number}"));
	EXPECT_EQ(GetDefault<UMovieGraphRenderLayerNode>()->GetRenderLayerName(), TEXT("beauty"));
	EXPECT_EQ(GetDefault<UMovieGraphDeferredRenderPassNode>()->GetRendererSubName(), TEXT("beauty"));
	EXPECT_FALSE(FMovieGraphNamedResolution(NAME_None, FIntPoint(1920, 1080), FString()).IsValid());
	EXPECT_FALSE(FMovieGraphNamedResolution(TEXT("Odd"), FIntPoint(0, 1080), FString()).IsValid());
}

TEST(MovieGraphNodeClasses, EveryOverrideablePropertyOfTheGlobalOutputNodeFindsItsOwnFlag)
{
	UClass* Class = UMovieGraphGlobalOutputSettingNode::StaticClass();
	int32 Overrideable = 0;
	for (TFieldIterator<FProperty> It(Class); It; ++It)
	{
		const FString EditCondition = It->HasMetaData(TEXT("EditCondition")) ? It->GetMetaData(TEXT("EditCondition")) : FString();
		if (!EditCondition.StartsWith(TEXT("bOverride_")))
		{
			continue;
		}
		++Overrideable;
		const FBoolProperty* Flag = UMovieGraphConfig::FindOverridePropertyForRealProperty(Class, *It);
		ASSERT_NE(Flag, nullptr) << TCHAR_TO_UTF8(*It->GetName());
		EXPECT_EQ(Flag->GetName(), EditCondition);
		EXPECT_TRUE(Flag->HasAllPropertyFlags(CPF_Edit | CPF_BlueprintVisible));
		EXPECT_TRUE(Flag->HasMetaData(TEXT("InlineEditConditionToggle")));
	}
#if UE_VERSION_OLDER_THAN(5, 6, 0)
	EXPECT_EQ(Overrideable, 13);
#else
	EXPECT_EQ(Overrideable, 16);
#endif
	EXPECT_EQ(OverrideFlagsOf(Class).Num(), Overrideable);
}

TEST_F(MovieGraphNodeClassTest, SettingOneOverrideFlagLeavesItsNeighboursAlone)
{
	UMovieGraphGlobalOutputSettingNode* Node = Cast<UMovieGraphGlobalOutputSettingNode>(Graph->CreateNodeByClass(UMovieGraphGlobalOutputSettingNode::StaticClass()));
	ASSERT_NE(Node, nullptr);
	const TArray<FBoolProperty*> Flags = OverrideFlagsOf(Node->GetClass());
	for (const FBoolProperty* Flag : Flags)
	{
		SCOPED_TRACE(TCHAR_TO_UTF8(*Flag->GetName()));
		Flag->SetPropertyValue_InContainer(Node, true);
		for (const FBoolProperty* Other : Flags)
		{
			EXPECT_EQ(Other->GetPropertyValue_InContainer(Node), Other == Flag) << TCHAR_TO_UTF8(*Other->GetName());
		}
		Flag->SetPropertyValue_InContainer(Node, false);
	}
	EXPECT_EQ(Node->OutputDirectory.Path, TEXT("{project_dir}/Saved/MovieRenders/"));
	EXPECT_EQ(Node->ZeroPadFrameNumbers, 4);
}

TEST(MovieGraphNodeClasses, VersionDependentProperties)
{
	UClass* Output = UMovieGraphGlobalOutputSettingNode::StaticClass();
	const FProperty* OldStart = Output->FindPropertyByName(TEXT("CustomPlaybackRangeStartFrame"));
	ASSERT_NE(OldStart, nullptr);
#if UE_VERSION_OLDER_THAN(5, 6, 0)
	EXPECT_EQ(Output->FindPropertyByName(TEXT("AdaptResolution")), nullptr);
	EXPECT_EQ(Output->FindPropertyByName(TEXT("CustomPlaybackRangeStart")), nullptr);
	EXPECT_FALSE(OldStart->HasAnyPropertyFlags(CPF_Deprecated));
#else
	EXPECT_NE(Output->FindPropertyByName(TEXT("AdaptResolution")), nullptr);
	EXPECT_NE(Output->FindPropertyByName(TEXT("CustomPlaybackRangeStart")), nullptr);
	EXPECT_TRUE(OldStart->HasAnyPropertyFlags(CPF_Deprecated));
	EXPECT_FALSE(OldStart->HasAnyPropertyFlags(CPF_Edit));
#endif
	const FProperty* Lumen = UMovieGraphGlobalGameOverridesNode::StaticClass()->FindPropertyByName(TEXT("bRebuildLumenSceneBetweenRenderLayers"));
	ASSERT_NE(Lumen, nullptr);
	const FProperty* LayerWarmUp = UMovieGraphRenderLayerNode::StaticClass()->FindPropertyByName(TEXT("LayerWarmUpFrames"));
#if UE_VERSION_OLDER_THAN(5, 8, 0)
	EXPECT_FALSE(Lumen->HasAnyPropertyFlags(CPF_Deprecated));
	EXPECT_EQ(LayerWarmUp, nullptr);
#else
	EXPECT_TRUE(Lumen->HasAnyPropertyFlags(CPF_Deprecated));
	EXPECT_NE(LayerWarmUp, nullptr);
#endif
}

TEST_F(MovieGraphNodeClassTest, GlobalOutputOverridesSurviveSaveAndLoad)
{
	FScopedTestProject Project;
	const TCHAR* PackageName = TEXT("/Game/Graphs/Overrides");
	{
		UPackage* Package = CreatePackage(PackageName);
		UMovieGraphConfig* Saved = NewObject<UMovieGraphConfig>(Package, TEXT("Overrides"), RF_Public | RF_Standalone);
		UMovieGraphGlobalOutputSettingNode* Node = Cast<UMovieGraphGlobalOutputSettingNode>(Saved->CreateNodeByClass(UMovieGraphGlobalOutputSettingNode::StaticClass()));
		ASSERT_NE(Node, nullptr);
		Node->bOverride_OutputDirectory = 1;
		Node->OutputDirectory.Path = TEXT("/tmp/renders");
		Node->bOverride_ZeroPadFrameNumbers = 1;
		Node->ZeroPadFrameNumbers = 6;
		Node->bOverride_VersioningSettings = 1;
		Node->VersioningSettings.bAutoVersioning = false;
		Node->VersioningSettings.VersionNumber = 3;
		Node->OutputResolution = FMovieGraphNamedResolution(TEXT("720p (HD)"), FIntPoint(1280, 720), TEXT("High definition"));

		FSavePackageArgs SaveArgs;
		SaveArgs.TopLevelFlags = RF_Public | RF_Standalone;
		const FString Filename = FPackageName::LongPackageNameToFilename(PackageName, FPackageName::GetAssetPackageExtension());
		ASSERT_TRUE(UPackage::Save(Package, Saved, *Filename, SaveArgs).IsSuccessful());
		Saved->ClearFlags(RF_Standalone);
	}
	CollectGarbage(RF_NoFlags);
	ASSERT_EQ(FindPackage(nullptr, PackageName), nullptr);

	TStrongObjectPtr<UMovieGraphConfig> Loaded(LoadObject<UMovieGraphConfig>(nullptr, TEXT("/Game/Graphs/Overrides.Overrides")));
	ASSERT_TRUE(Loaded.IsValid());
	const UMovieGraphGlobalOutputSettingNode* Node = nullptr;
	for (const UMovieGraphNode* Candidate : Loaded->GetNodes())
	{
		Node = Node ? Node : Cast<UMovieGraphGlobalOutputSettingNode>(Candidate);
	}
	ASSERT_NE(Node, nullptr);
	EXPECT_TRUE(Node->bOverride_OutputDirectory);
	EXPECT_EQ(Node->OutputDirectory.Path, TEXT("/tmp/renders"));
	EXPECT_TRUE(Node->bOverride_ZeroPadFrameNumbers);
	EXPECT_EQ(Node->ZeroPadFrameNumbers, 6);
	EXPECT_TRUE(Node->bOverride_VersioningSettings);
	EXPECT_EQ(Node->VersioningSettings.VersionNumber, 3);
	EXPECT_FALSE(Node->VersioningSettings.bAutoVersioning);
	EXPECT_FALSE(Node->bOverride_OutputResolution);
	EXPECT_FALSE(Node->bOverride_FrameNumberOffset);
	EXPECT_EQ(LexToString(Node->OutputResolution), TEXT("720p (HD) [1280, 720]"));
	EXPECT_EQ(Node->OutputResolution.Description, TEXT("High definition"));
	EXPECT_EQ(Node->GetInputPins().Num(), 1);
}
