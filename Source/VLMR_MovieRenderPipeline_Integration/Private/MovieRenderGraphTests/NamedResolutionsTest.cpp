// The project's named resolutions: the engine's profile functions natively, then mrg_named_resolutions and
// mrg_named_resolution.
#include "MovieRenderGraphTestFixture.h"
#include "MovieRenderGraphTestScriptEnvironment.h"

#if WITH_DEV_AUTOMATION_TESTS

#include "Graph/MovieGraphBlueprintLibrary.h"
#include "Graph/MovieGraphNamedResolution.h"
#include "Graph/MovieGraphProjectSettings.h"

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FVLMRMRGNamedResolutionsTest, "Velmire.MovieRenderGraph.NamedResolutions", VLMR::MovieRenderGraphTests::TestFlags)

namespace
{
	const char* const NamedResolutionsScript = R"lua(
local list = mrg_named_resolutions()
assert(type(list) == "table" and list.count > 0, "named resolutions listed")
local found = false
for _, item in ipairs(list.items) do
	found = found or item.profile == list.default_profile
end
assert(found, "default profile is part of the list")

assert(mrg_named_resolution("Velmire_NoSuchProfile").valid == false, "unknown profile is invalid")
local custom = mrg_named_resolution({ width = 320, height = 180 })
assert(custom.valid == true and custom.width == 320 and custom.height == 180, "custom size")
assert(mrg_named_resolution({ width = 0, height = 10 }).ok == false, "zero size refused")
)lua";
}

// Each profile is valid and comes back from the engine's profile lookup with its own size.
static void CheckProfilesRoundTrip(FAutomationTestBase& Test, const TArray<FMovieGraphNamedResolution>& Profiles)
{
	for (const FMovieGraphNamedResolution& Profile : Profiles)
	{
		const FString Name = Profile.ProfileName.ToString();
		Test.TestTrue(FString::Printf(TEXT("IsNamedResolutionValid(%s)"), *Name), UMovieGraphBlueprintLibrary::IsNamedResolutionValid(Profile.ProfileName));
		const FMovieGraphNamedResolution RoundTrip = UMovieGraphBlueprintLibrary::NamedResolutionFromProfile(Profile.ProfileName);
		Test.TestEqual(FString::Printf(TEXT("%s round-trips X"), *Name), RoundTrip.Resolution.X, Profile.Resolution.X);
		Test.TestEqual(FString::Printf(TEXT("%s round-trips Y"), *Name), RoundTrip.Resolution.Y, Profile.Resolution.Y);
	}
}

bool FVLMRMRGNamedResolutionsTest::RunTest(const FString& Parameters)
{
	const UMovieGraphProjectSettings* Settings = GetDefault<UMovieGraphProjectSettings>();
	if (!Settings)
	{
		AddError(TEXT("UMovieGraphProjectSettings CDO unavailable"));
		return false;
	}
	const TArray<FMovieGraphNamedResolution> Profiles = Settings->DefaultNamedResolutions;
	TestTrue(TEXT("project ships at least one named resolution"), Profiles.Num() > 0);
	CheckProfilesRoundTrip(*this, Profiles);
	TestFalse(TEXT("unknown profile reported invalid"), UMovieGraphBlueprintLibrary::IsNamedResolutionValid(FName(TEXT("Velmire_NoSuchProfile"))));

	const FMovieGraphNamedResolution Custom = UMovieGraphBlueprintLibrary::NamedResolutionFromSize(320, 180);
	TestEqual(TEXT("NamedResolutionFromSize profile"), Custom.ProfileName, FName(TEXT("Custom")));
	TestEqual(TEXT("NamedResolutionFromSize X"), Custom.Resolution.X, 320);
	TestEqual(TEXT("NamedResolutionFromSize Y"), Custom.Resolution.Y, 180);

	VLMR::MovieRenderGraphTests::FScriptEnvironment Script;
	Script.Run(*this, TEXT("mrg_named_resolutions"), NamedResolutionsScript);
	return !HasAnyErrors();
}

#endif
