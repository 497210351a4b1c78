// Flattening a fixture graph for a transient job, natively and through graph:evaluate and the resolution queries.
#include "MovieRenderGraphTestFixture.h"
#include "MovieRenderGraphTestScriptEnvironment.h"

#if WITH_DEV_AUTOMATION_TESTS

#include "Graph/MovieGraphBlueprintLibrary.h"
#include "Graph/MovieGraphConfig.h"
#include "Graph/MovieGraphTraversalContext.h"
#include "Graph/Nodes/MovieGraphGlobalOutputSettingNode.h"
#include "Math/IntRect.h"
#include "Misc/EngineVersionComparison.h"
#include "MoviePipelineQueue.h"
#include "UObject/Package.h"

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVLMRMRGEvaluateTransientGraphTest, "Velmire.MovieRenderGraph.EvaluateTransientGraph", VLMR::MovieRenderGraphTests::TestFlags)

namespace
{
	const char* const EvaluateScript = R"lua(
local function contains(list, value)
	for _, item in ipairs(list) do
		if item == value then
			return true
		end
	end
	return false
end

local graph = mrq_open_graph(graph_path)
assert(graph, "open transient graph")

local evaluated = graph:evaluate({ overscan = 0.1 })
assert(evaluated.ok == true, "evaluate ok")
assert(contains(evaluated.branches, "Globals"), "Globals branch evaluated")
assert(evaluated.output.resolution.width == 1280 and evaluated.output.resolution.height == 720, "resolution")
assert(evaluated.output.frame_rate.numerator == 30, "frame rate override")
assert(evaluated.job_is_transient == true, "transient job used")

local settings = graph:output_settings()
if mrg_support().features.resolution_queries then
	assert(settings.desired.width == 1280, "desired width")
else
	assert(settings.desired == nil, "no desired resolution without the resolution queries")
end

local resolution = graph:resolution({ overscan = 0.1 })
if resolution.supported == false then
	assert(resolution.ok == false, "5.5 reports unsupported")
else
	assert(resolution.overscanned.width > 1280, "overscanned")
	assert(resolution.crop_rect.width == 1280, "crop")
end

assert(#graph:branches() >= 1, "branches listed")
assert(type(graph:output_directory()) == "string", "output_directory string")
)lua";
}

// The engine's own resolution queries on the flattened graph, grown by an overscan of 0.1.
static void CheckResolutionQueries(FAutomationTestBase& Test, UMovieGraphEvaluatedConfig* Flattened)
{
#if !UE_VERSION_OLDER_THAN(5, 6, 0)
	const FIntPoint Desired = UMovieGraphBlueprintLibrary::GetDesiredOutputResolution(Flattened);
	Test.TestEqual(TEXT("GetDesiredOutputResolution X"), Desired.X, 1280);
	Test.TestEqual(TEXT("GetDesiredOutputResolution Y"), Desired.Y, 720);
	const FIntPoint Overscanned = UMovieGraphBlueprintLibrary::GetOverscannedResolution(Flattened, 0.1f);
	Test.TestTrue(TEXT("overscanned X > desired"), Overscanned.X > Desired.X);
	Test.TestTrue(TEXT("overscanned Y > desired"), Overscanned.Y > Desired.Y);
	const FIntRect Crop = UMovieGraphBlueprintLibrary::GetOverscanCropRectangle(Flattened, 0.1f);
	Test.TestEqual(TEXT("crop width == desired"), Crop.Width(), Desired.X);
	Test.TestEqual(TEXT("crop height == desired"), Crop.Height(), Desired.Y);
#endif
}

// The Globals branch's output settings: an evaluated copy carrying the fixture's overrides.
static void CheckGlobalOutputSetting(FAutomationTestBase& Test, const UMovieGraphEvaluatedConfig& Flattened)
{
	const TStrongObjectPtr<UMovieGraphGlobalOutputSettingNode> Setting(
		Flattened.GetSettingForBranch<UMovieGraphGlobalOutputSettingNode>(UMovieGraphNode::GlobalsPinName));
	if (!Setting)
	{
		Test.AddError(TEXT("no output setting on Globals"));
		return;
	}
	Test.TestFalse(TEXT("evaluated setting is an instance, not the CDO"), Setting->HasAnyFlags(RF_ClassDefaultObject));
	Test.TestEqual(TEXT("evaluated resolution X"), Setting->OutputResolution.Resolution.X, 1280);

	const FFrameRate DefaultRate(24000, 1001);
	Test.TestEqual(TEXT("GetEffectiveFrameRate honours override"), UMovieGraphBlueprintLibrary::GetEffectiveFrameRate(Setting.Get(), DefaultRate), FFrameRate(30, 1));
	UMovieGraphGlobalOutputSettingNode* Defaults = GetMutableDefault<UMovieGraphGlobalOutputSettingNode>();
	Test.TestEqual(TEXT("GetEffectiveFrameRate falls back to default"), UMovieGraphBlueprintLibrary::GetEffectiveFrameRate(Defaults, DefaultRate), DefaultRate);
}

bool FVLMRMRGEvaluateTransientGraphTest::RunTest(const FString& Parameters)
{
	using namespace VLMR::MovieRenderGraphTests;
	FGraphFixture Fixture;
	if (!BuildGraphFixture(*this, 1280, 720, true, Fixture))
	{
		return false;
	}

	const TStrongObjectPtr<UMoviePipelineQueue> Queue(NewObject<UMoviePipelineQueue>(GetTransientPackage()));
	const TStrongObjectPtr<UMoviePipelineExecutorJob> Job(Queue->AllocateNewJob(UMoviePipelineExecutorJob::StaticClass()));
	if (!Job)
	{
		AddError(TEXT("AllocateNewJob failed"));
		return false;
	}
	FMovieGraphTraversalContext Traversal;
	Traversal.Job = Job.Get();
	Traversal.RootGraph = Fixture.Graph.Get();
	FString FlattenError;
	const TStrongObjectPtr<UMovieGraphEvaluatedConfig> Flattened(Fixture.Graph->CreateFlattenedGraph(Traversal, FlattenError));
	if (!Flattened)
	{
		AddError(FString::Printf(TEXT("CreateFlattenedGraph failed: %s"), *FlattenError));
		return false;
	}
	TestTrue(TEXT("Globals branch evaluated"), Flattened->GetBranchNames().Contains(UMovieGraphNode::GlobalsPinName));
	CheckGlobalOutputSetting(*this, *Flattened);
	CheckResolutionQueries(*this, Flattened.Get());

	FScriptEnvironment Script;
	Script.SetGlobal("graph_path", Fixture.GetGraphPath());
	Script.Run(*this, TEXT("graph:evaluate"), EvaluateScript);
	return !HasAnyErrors();
}

#endif
