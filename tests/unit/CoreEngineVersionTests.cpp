// The engine version comparisons every version gate is written with.
#include "CoreTypes.h"
#include "Misc/EngineVersionComparison.h"

#include <gtest/gtest.h>

namespace
{
	constexpr int32 Major = ENGINE_MAJOR_VERSION;
	constexpr int32 Minor = ENGINE_MINOR_VERSION;
	constexpr int32 Patch = ENGINE_PATCH_VERSION;
}

TEST(CoreEngineVersionTests, ThisVersionIsNeitherNewerNorOlderThanItself)
{
	EXPECT_FALSE(UE_VERSION_NEWER_THAN(Major, Minor, Patch));
	EXPECT_FALSE(UE_VERSION_OLDER_THAN(Major, Minor, Patch));
}

TEST(CoreEngineVersionTests, TheMostSignificantDifferingPartDecides)
{
	EXPECT_TRUE(UE_VERSION_NEWER_THAN(Major, Minor, Patch - 1));
	EXPECT_TRUE(UE_VERSION_NEWER_THAN(Major, Minor - 1, Patch + 100));
	EXPECT_TRUE(UE_VERSION_NEWER_THAN(Major - 1, Minor + 100, Patch + 100));
	EXPECT_FALSE(UE_VERSION_NEWER_THAN(Major, Minor + 1, 0));

	EXPECT_TRUE(UE_VERSION_OLDER_THAN(Major, Minor, Patch + 1));
	EXPECT_TRUE(UE_VERSION_OLDER_THAN(Major, Minor + 1, 0));
	EXPECT_TRUE(UE_VERSION_OLDER_THAN(Major + 1, 0, 0));
	EXPECT_FALSE(UE_VERSION_OLDER_THAN(Major, Minor - 1, Patch + 100));
}

TEST(CoreEngineVersionTests, GatesSpellingAMinorVersionIncludeEveryPatchOfIt)
{
	// "5.N and later" is written !UE_VERSION_OLDER_THAN(5, N, 0), so patch releases of 5.N pass the gate.
	EXPECT_FALSE(UE_VERSION_OLDER_THAN(Major, Minor, 0));
	EXPECT_TRUE(UE_VERSION_OLDER_THAN(Major, Minor + 1, 0));
}
