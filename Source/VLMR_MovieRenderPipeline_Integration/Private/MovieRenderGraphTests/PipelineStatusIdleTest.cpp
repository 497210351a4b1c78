// With nothing rendering, the pipeline status reports an idle editor and a shutdown request is refused.
#include "MovieRenderGraphTestFixture.h"
#include "MovieRenderGraphTestScriptEnvironment.h"

#if WITH_DEV_AUTOMATION_TESTS

#include "MovieRenderQueueAccess.h"

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVLMRMRGPipelineStatusIdleTest, "Velmire.MovieRenderGraph.PipelineStatusIdle", VLMR::MovieRenderGraphTests::TestFlags)

namespace
{
	const char* const IdleStatusScript = R"lua(
local status = mrg_pipeline_status()
assert(type(status) == "table" and status.active == false, "inactive when idle")
assert(type(status.note) == "string", "note present")

local shutdown = mrg_request_shutdown()
assert(type(shutdown) == "table" and shutdown.ok == false, "shutdown refused when idle")

local support = mrg_support()
assert(support.ok == true and support.available == true and type(support.features) == "table", "support probe")
)lua";
}

bool FVLMRMRGPipelineStatusIdleTest::RunTest(const FString& Parameters)
{
	if (VLMR::IsRenderInProgress(VLMR::GetQueueSubsystem()))
	{
		AddInfo(TEXT("Not exercised: a render is in progress; idle path cannot be asserted"));
		return true;
	}
	VLMR::MovieRenderGraphTests::FScriptEnvironment Script;
	Script.Run(*this, TEXT("idle status"), IdleStatusScript);
	return !HasAnyErrors();
}

#endif
