// File-name token resolution: the engine's ResolveFormatArguments natively, then mrg_resolve_format and
// mrg_resolve_version on a fixture graph.
#include "MovieRenderGraphTestFixture.h"
#include "MovieRenderGraphTestScriptEnvironment.h"

#if WITH_DEV_AUTOMATION_TESTS

#include "Graph/MovieGraphBlueprintLibrary.h"
#include "Graph/MovieGraphFilenameResolveParams.h"

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVLMRMRGResolveFormatTest, "Velmire.MovieRenderGraph.ResolveFormat", VLMR::MovieRenderGraphTests::TestFlags)

namespace
{
	const char* const ResolveFormatScript = R"lua(
local options = { root_frame = 12, zero_pad = 5 }
local resolved = mrg_resolve_format("{sequence_name}_{frame_number}", options)
assert(resolved.ok == true and type(resolved.resolved) == "string", "format resolved")
assert(resolved.arguments.frame_number == "00012", "frame_number padded to zero_pad")

options.as_path = false
assert(mrg_resolve_format("{sequence_name}_{frame_number}", options).ok == true, "as_path=false ok")

local with_graph = mrg_resolve_format("{sequence_name}_{frame_number}", { graph = graph_path })
assert(with_graph.ok == true and with_graph.evaluated == true, "graph evaluated for tokens")

assert(type(mrg_resolve_version({ graph = graph_path }).version) == "number", "version resolved to a number")
local refused = mrg_resolve_version({})
assert(refused.version == -1 and refused.ok == false, "no graph -> refused before the engine call")

local missing = mrg_resolve_format("{frame_number}", { graph = "/Game/_BindingTests/VLMR_NoSuchGraph" })
assert(missing.ok == false, "missing graph refused")
)lua";
}

// The engine resolves known tokens, padding the frame number to the requested width.
static void CheckEngineResolution(FAutomationTestBase& Test)
{
	FMovieGraphFilenameResolveParams Params;
	Params.RootFrameNumber = 7;
	Params.ZeroPadFrameNumberCount = 4;
	FMovieGraphResolveArgs Arguments;
	const FString Resolved = UMovieGraphBlueprintLibrary::ResolveFormatArguments(TEXT("{sequence_name}_{frame_number}_{unknown_token}"), Params, Arguments);
	Test.TestFalse(TEXT("resolved string returned"), Resolved.IsEmpty());
	const FString* FrameNumber = Arguments.FilenameArguments.Find(TEXT("frame_number"));
	if (Test.TestNotNull(TEXT("frame_number argument present"), FrameNumber))
	{
		Test.TestEqual(TEXT("frame number padded"), *FrameNumber, TEXT("0007"));
	}
	FMovieGraphResolveArgs FrameArguments;
	Test.TestEqual(TEXT("ResolveFormatArguments frame_number"), UMovieGraphBlueprintLibrary::ResolveFormatArguments(TEXT("{frame_number}"), Params, FrameArguments), TEXT("0007"));
}

bool FVLMRMRGResolveFormatTest::RunTest(const FString& Parameters)
{
	using namespace VLMR::MovieRenderGraphTests;
	// The script names a graph that does not exist, on purpose; the engine warns when it looks for it.
	AddExpectedMessage(TEXT("Failed to find object .*VLMR_NoSuchGraph"), ELogVerbosity::Warning, EAutomationExpectedMessageFlags::Contains, -1);
	FGraphFixture Fixture;
	if (!BuildGraphFixture(*this, 320, 180, true, Fixture))
	{
		return false;
	}
	CheckEngineResolution(*this);

	FScriptEnvironment Script;
	Script.SetGlobal("graph_path", Fixture.GetGraphPath());
	Script.Run(*this, TEXT("mrg_resolve_format"), ResolveFormatScript);
	return !HasAnyErrors();
}

#endif
