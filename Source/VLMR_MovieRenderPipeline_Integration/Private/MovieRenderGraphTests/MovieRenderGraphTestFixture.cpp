#include "MovieRenderGraphTestFixture.h"

#if WITH_DEV_AUTOMATION_TESTS

#include "Graph/MovieGraphBlueprintLibrary.h"
#include "Graph/MovieGraphConfig.h"
#include "Graph/MovieGraphPin.h"
#include "Graph/Nodes/MovieGraphGlobalOutputSettingNode.h"
#include "Misc/Guid.h"
#include "MovieRenderGraphNodes.h"
#include "UObject/Package.h"

namespace VLMR::MovieRenderGraphTests
{
	FString FGraphFixture::GetGraphPath() const
	{
		return Graph ? Graph->GetPathName() : FString();
	}

	FString FGraphFixture::GetSettingNodeId() const
	{
		return SettingNode ? MakeNodeId(*SettingNode) : FString();
	}

	bool AddEdgeAndConfirm(UMovieGraphConfig& Graph, UMovieGraphNode* FromNode, FName FromPinLabel, UMovieGraphNode* ToNode, FName ToPinLabel)
	{
		Graph.AddLabeledEdge(FromNode, FromPinLabel, ToNode, ToPinLabel);
		UMovieGraphPin* FromPin = FromNode ? FromNode->GetOutputPin(FromPinLabel) : nullptr;
		UMovieGraphPin* ToPin = ToNode ? ToNode->GetInputPin(ToPinLabel) : nullptr;
		return FromPin && ToPin && ToPin->GetAllConnectedPins().Contains(FromPin);
	}

	static void ApplyOutputOverrides(UMovieGraphGlobalOutputSettingNode& Node, int32 Width, int32 Height)
	{
		Node.bOverride_OutputResolution = true;
		Node.OutputResolution = UMovieGraphBlueprintLibrary::NamedResolutionFromSize(Width, Height);
		Node.bOverride_OutputFrameRate = true;
		Node.OutputFrameRate = FFrameRate(30, 1);
	}

	// Any number of times: only the session's first flattening of a graph without a render layer logs it.
	static void ExpectRenderLayerError(FAutomationTestBase& Test)
	{
		Test.AddExpectedError(TEXT("one or more render layer node\\(s\\) must be present"), EAutomationExpectedErrorFlags::Contains, -1);
	}

	bool BuildGraphFixture(FAutomationTestBase& Test, int32 Width, int32 Height, bool bWire, FGraphFixture& OutFixture)
	{
		ExpectRenderLayerError(Test);
		const FString PackageName = FString::Printf(TEXT("/Temp/VelmireMRGFixture_%s"), *FGuid::NewGuid().ToString());
		OutFixture.Package.Reset(CreatePackage(*PackageName));
		OutFixture.Package->SetFlags(RF_Transient);
		OutFixture.Graph.Reset(NewObject<UMovieGraphConfig>(OutFixture.Package.Get(), TEXT("Graph"), RF_Transactional));
		if (!OutFixture.Graph)
		{
			Test.AddError(TEXT("NewObject<UMovieGraphConfig> failed"));
			return false;
		}
		OutFixture.SettingNode.Reset(Cast<UMovieGraphGlobalOutputSettingNode>(
			OutFixture.Graph->CreateNodeByClass(UMovieGraphGlobalOutputSettingNode::StaticClass())));
		if (!OutFixture.SettingNode)
		{
			Test.AddError(TEXT("CreateNodeByClass(UMovieGraphGlobalOutputSettingNode) failed"));
			return false;
		}
		ApplyOutputOverrides(*OutFixture.SettingNode, Width, Height);
		if (bWire && !AddEdgeAndConfirm(*OutFixture.Graph, OutFixture.SettingNode.Get(), NAME_None, OutFixture.Graph->GetOutputNode(), UMovieGraphNode::GlobalsPinName))
		{
			Test.AddError(TEXT("AddLabeledEdge(setting.<unlabelled> -> output.Globals) failed"));
			return false;
		}
		return true;
	}

}

#endif
