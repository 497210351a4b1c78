// The pin-label alias rule: a setting node's single unlabelled branch pin answers to any branch name, natively and
// through graph:connect, graph:disconnect and graph:insert_after.
#include "MovieRenderGraphTestFixture.h"
#include "MovieRenderGraphTestScriptEnvironment.h"

#if WITH_DEV_AUTOMATION_TESTS

#include "Graph/MovieGraphConfig.h"
#include "Graph/MovieGraphPin.h"
#include "Graph/Nodes/MovieGraphGlobalOutputSettingNode.h"
#include "MovieRenderGraphNodes.h"

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVLMRMRGPinLabelAliasTest, "Velmire.MovieRenderGraph.PinLabelAlias", VLMR::MovieRenderGraphTests::TestFlags)

namespace
{
	const char* const ConnectAliasScript = R"lua(
local graph = mrq_open_graph(graph_path)
assert(graph, "open transient graph")

assert(graph:connect(setting_id, "Globals", "output", "Globals") == true, "connect with the Globals alias")
local evaluated = graph:evaluate()
assert(evaluated.ok == true, "evaluation ok")
assert(evaluated.output.is_cdo == false, "setting reaches the Globals branch")
assert(evaluated.output.resolution.width == 640, "evaluated width")
assert(graph:disconnect(setting_id, "Globals", "output", "Globals") == true, "disconnect with the alias")
assert(graph:connect(setting_id, "", "output", "Globals") == true, "connect with the engine label (empty)")

local inserted = graph:insert_after(setting_id, "GlobalGameOverrides", "Globals")
if inserted.supported == false then
	assert(inserted.ok == false, "insert_after unsupported below 5.8")
else
	assert(type(inserted.id) == "string", "inserted node id")
	assert(graph:evaluate().output.resolution.width == 640, "setting still upstream after insert_after")
	assert(graph:remove_node(inserted.id) == true, "inserted node removed")
end

assert(graph:connect(setting_id, "", "output", "NoSuchBranch") == false, "unknown Output pin still refused")
)lua";
}

// The pins the engine gives a setting node and the Output node.
static void CheckEnginePins(FAutomationTestBase& Test, const UMovieGraphNode& Setting, const UMovieGraphNode& Output)
{
	const TArray<UMovieGraphPin*>& Pins = Setting.GetOutputPins();
	if (Test.TestEqual(TEXT("setting node has one output pin"), Pins.Num(), 1))
	{
		Test.TestTrue(TEXT("setting output pin is a branch"), Pins[0]->Properties.bIsBranch);
		Test.TestTrue(TEXT("setting output pin is unlabelled"), Pins[0]->Properties.Label.IsNone());
	}
	Test.TestNull(TEXT("engine has no 'Globals' output pin on the setting node"), Setting.GetOutputPin(UMovieGraphNode::GlobalsPinName));
	Test.TestNotNull(TEXT("Output node has the Globals input pin"), Output.GetInputPin(UMovieGraphNode::GlobalsPinName));
}

// Wires and unwires the setting with the labels the alias rule resolves.
static void CheckResolvedLabelsWire(FAutomationTestBase& Test, UMovieGraphConfig& Graph, UMovieGraphNode* Setting, UMovieGraphNode* Output)
{
	using namespace VLMR;
	const FName FromLabel = ResolvePinLabel(Setting, TEXT("Globals"), EPinSide::Output).Label;
	const FName ToLabel = ResolvePinLabel(Output, TEXT("Globals"), EPinSide::Input).Label;
	Test.TestTrue(TEXT("AddLabeledEdge with the resolved labels wires the setting"),
		MovieRenderGraphTests::AddEdgeAndConfirm(Graph, Setting, FromLabel, Output, ToLabel));
	Test.TestTrue(TEXT("RemoveLabeledEdge with the resolved labels unwires it"), Graph.RemoveLabeledEdge(Setting, FromLabel, Output, ToLabel));
}

static void CheckAliasRule(FAutomationTestBase& Test, const UMovieGraphNode* Setting, const UMovieGraphNode* Output)
{
	using namespace VLMR;
	const FResolvedPinLabel Aliased = ResolvePinLabel(Setting, TEXT("Globals"), EPinSide::Output);
	Test.TestTrue(TEXT("'Globals' on the setting node maps to NAME_None"), Aliased.Label.IsNone());
	Test.TestTrue(TEXT("alias reported"), Aliased.bAliased);

	const FResolvedPinLabel Empty = ResolvePinLabel(Setting, FString(), EPinSide::Output);
	Test.TestTrue(TEXT("'' on the setting node is NAME_None without alias"), Empty.Label.IsNone());
	Test.TestFalse(TEXT("no alias for an empty request"), Empty.bAliased);

	const FResolvedPinLabel Exact = ResolvePinLabel(Output, TEXT("Globals"), EPinSide::Input);
	Test.TestEqual(TEXT("'Globals' on the Output node stays exact"), Exact.Label, UMovieGraphNode::GlobalsPinName);
	Test.TestFalse(TEXT("exact match is not an alias"), Exact.bAliased);

	const FResolvedPinLabel Unknown = ResolvePinLabel(Output, TEXT("NoSuchPin"), EPinSide::Input);
	Test.TestEqual(TEXT("unknown label on a node with labelled pins is passed through"), Unknown.Label, FName(TEXT("NoSuchPin")));
	Test.TestFalse(TEXT("pass-through is not an alias"), Unknown.bAliased);
}

bool FVLMRMRGPinLabelAliasTest::RunTest(const FString& Parameters)
{
	using namespace VLMR::MovieRenderGraphTests;
	FGraphFixture Fixture;
	if (!BuildGraphFixture(*this, 640, 360, false, Fixture))
	{
		return false;
	}
	UMovieGraphNode* Setting = Fixture.SettingNode.Get();
	UMovieGraphNode* Output = Fixture.Graph->GetOutputNode();
	CheckEnginePins(*this, *Setting, *Output);
	CheckAliasRule(*this, Setting, Output);
	CheckResolvedLabelsWire(*this, *Fixture.Graph, Setting, Output);

	FScriptEnvironment Script;
	Script.SetGlobal("graph_path", Fixture.GetGraphPath());
	Script.SetGlobal("setting_id", Fixture.GetSettingNodeId());
	Script.Run(*this, TEXT("graph:connect alias"), ConnectAliasScript);
	return !HasAnyErrors();
}

#endif
