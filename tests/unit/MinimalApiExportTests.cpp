// The export boundary of UCLASS(MinimalAPI) classes, read from the dynamic symbols of the stand-in's Movie Render
// Pipeline modules: what another module may link against, per engine version.
#include "CoreTypes.h"
#include "Misc/EngineVersionComparison.h"
#include "MoviePipelineQueue.h"

#include <gtest/gtest.h>

#include <dlfcn.h>

namespace
{
	bool IsExported(const char* InMangledName)
	{
		return dlsym(RTLD_DEFAULT, InMangledName) != nullptr;
	}

	// UMoviePipelineQueue::StaticClass(), ~UMoviePipelineQueue() and DeleteJob(UMoviePipelineExecutorJob*).
	constexpr const char* QueueStaticClass = "_ZN19UMoviePipelineQueue11StaticClassEv";
	constexpr const char* QueueDestructor = "_ZN19UMoviePipelineQueueD1Ev";
	constexpr const char* QueueDeleteJob = "_ZN19UMoviePipelineQueue9DeleteJobEP25UMoviePipelineExecutorJob";
	// The virtual table of UMoviePipelineQueue, and UMoviePipeline's private GatherActiveShots(), a stand-in helper.
	constexpr const char* QueueVirtualTable = "_ZTV19UMoviePipelineQueue";
	constexpr const char* PipelineGatherActiveShots = "_ZN14UMoviePipeline17GatherActiveShotsEv";
}

TEST(MinimalApiExports, StaticClassTheDestructorAndTheEnginesFunctionsAreExportedInEveryVersion)
{
	// Referencing the class keeps its module loaded in the test program.
	ASSERT_NE(UMoviePipelineQueue::StaticClass(), nullptr);
	EXPECT_TRUE(IsExported(QueueStaticClass));
	EXPECT_TRUE(IsExported(QueueDestructor));
	EXPECT_TRUE(IsExported(QueueDeleteJob));
}

TEST(MinimalApiExports, TheRestOfTheClassIsExportedOnlyBefore5_7)
{
	ASSERT_NE(UMoviePipelineQueue::StaticClass(), nullptr);
#if UE_VERSION_OLDER_THAN(5, 7, 0)
	EXPECT_TRUE(IsExported(QueueVirtualTable));
	EXPECT_TRUE(IsExported(PipelineGatherActiveShots));
#else
	EXPECT_FALSE(IsExported(QueueVirtualTable));
	EXPECT_FALSE(IsExported(PipelineGatherActiveShots));
#endif
}
