// graph:set_node_property writes a value and its override flag as exactly one undoable editor transaction.
#include "MovieRenderGraphTestFixture.h"
#include "MovieRenderGraphTestScriptEnvironment.h"

#if WITH_DEV_AUTOMATION_TESTS

#include "Editor.h"
#include "Editor/EditorEngine.h"
#include "Graph/Nodes/MovieGraphGlobalOutputSettingNode.h"

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVLMRMRGNodePropertyUndoRedoTest, "Velmire.MovieRenderGraph.NodePropertyUndoRedo", VLMR::MovieRenderGraphTests::TestFlags)

namespace
{
	const char* const SetNodePropertyScript = R"lua(
graph = mrq_open_graph(graph_path)
assert(graph, "open transient graph")

local unknown = graph:set_node_property(node_id, "NoSuchProperty", "1")
assert(type(unknown) == "table" and unknown.ok == false, "unknown property refused")
local malformed = graph:set_node_property(node_id, "OutputResolution", "not-a-struct")
assert(type(malformed) == "table" and malformed.ok == false, "bad export text refused")

assert(graph:set_node_property(node_id, "OutputDirectory", '(Path="C:/VelmireMRGTest/Out")') == true, "set OutputDirectory")
assert(graph:get_node_property(node_id, "bOverride_OutputDirectory") == "True", "override flag flipped")
assert(graph:set_node_property(node_id, "ZeroPadFrameNumbers", 6) == true, "set number")
assert(graph:get_node_property(node_id, "ZeroPadFrameNumbers") == "6", "number readback")
)lua";

	const TCHAR* const WrittenDirectory = TEXT("C:/VelmireMRGTest/Out");

	// The values the script changes, as they were before it ran.
	struct FOriginalValues
	{
		FString OutputDirectory;
		bool bOverrideOutputDirectory = false;
		int32 ZeroPadFrameNumbers = 0;
		bool bOverrideZeroPadFrameNumbers = false;
	};

	FOriginalValues ReadValues(const UMovieGraphGlobalOutputSettingNode& Node)
	{
		return { Node.OutputDirectory.Path, static_cast<bool>(Node.bOverride_OutputDirectory), Node.ZeroPadFrameNumbers,
			static_cast<bool>(Node.bOverride_ZeroPadFrameNumbers) };
	}
}

// The note of a precondition this test cannot run under, or null when the editor's undo buffer is free to use.
static const TCHAR* FindMissingPrecondition()
{
	if (!GEditor || !GEditor->CanTransact())
	{
		return TEXT("Not exercised: requires the editor transaction buffer");
	}
	if (GEditor->IsTransactionActive())
	{
		return TEXT("Not exercised: a transaction is already active");
	}
	return nullptr;
}

// Two undos take the script's two writes back, newest first; two redos apply them again.
static void CheckUndoRedo(FAutomationTestBase& Test, const UMovieGraphGlobalOutputSettingNode& Node, const FOriginalValues& Original)
{
	GEditor->UndoTransaction();
	Test.TestEqual(TEXT("undo #1 restores ZeroPadFrameNumbers override"), static_cast<bool>(Node.bOverride_ZeroPadFrameNumbers), Original.bOverrideZeroPadFrameNumbers);
	Test.TestEqual(TEXT("undo #1 restores ZeroPadFrameNumbers"), Node.ZeroPadFrameNumbers, Original.ZeroPadFrameNumbers);
	GEditor->UndoTransaction();
	Test.TestEqual(TEXT("undo #2 restores OutputDirectory"), Node.OutputDirectory.Path, Original.OutputDirectory);
	Test.TestEqual(TEXT("undo #2 restores bOverride_OutputDirectory"), static_cast<bool>(Node.bOverride_OutputDirectory), Original.bOverrideOutputDirectory);
	GEditor->RedoTransaction();
	Test.TestEqual(TEXT("redo re-applies OutputDirectory"), Node.OutputDirectory.Path, WrittenDirectory);
	Test.TestTrue(TEXT("redo re-applies override"), static_cast<bool>(Node.bOverride_OutputDirectory));
	GEditor->RedoTransaction();
	Test.TestEqual(TEXT("redo #2 re-applies ZeroPadFrameNumbers"), Node.ZeroPadFrameNumbers, 6);
}

bool FVLMRMRGNodePropertyUndoRedoTest::RunTest(const FString& Parameters)
{
	using namespace VLMR::MovieRenderGraphTests;
	if (const TCHAR* Note = FindMissingPrecondition())
	{
		AddInfo(Note);
		return true;
	}
	FGraphFixture Fixture;
	if (!BuildGraphFixture(*this, 640, 360, true, Fixture))
	{
		return false;
	}
	const UMovieGraphGlobalOutputSettingNode& Node = *Fixture.SettingNode;
	const FOriginalValues Original = ReadValues(Node);
	TestFalse(TEXT("bOverride_OutputDirectory starts off"), Original.bOverrideOutputDirectory);

	FScriptEnvironment Script;
	Script.SetGlobal("graph_path", Fixture.GetGraphPath());
	Script.SetGlobal("node_id", Fixture.GetSettingNodeId());
	if (!Script.Run(*this, TEXT("set_node_property"), SetNodePropertyScript))
	{
		return false;
	}
	TestEqual(TEXT("OutputDirectory written"), Node.OutputDirectory.Path, WrittenDirectory);
	TestTrue(TEXT("bOverride_OutputDirectory on"), static_cast<bool>(Node.bOverride_OutputDirectory));
	TestEqual(TEXT("ZeroPadFrameNumbers written"), Node.ZeroPadFrameNumbers, 6);
	TestTrue(TEXT("bOverride_ZeroPadFrameNumbers on"), static_cast<bool>(Node.bOverride_ZeroPadFrameNumbers));
	CheckUndoRedo(*this, Node, Original);
	return !HasAnyErrors();
}

#endif
