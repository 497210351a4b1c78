// FMovieGraphNamedResolution: an output resolution with the name of the profile it comes from.
#pragma once

#include "CoreMinimal.h"
#include "Math/IntPoint.h"
#include "UObject/ObjectMacros.h"

USTRUCT(BlueprintType)
struct FMovieGraphNamedResolution
{
	STANDIN_STRUCT_BODY(FMovieGraphNamedResolution, MOVIERENDERPIPELINECORE_API)

public:
	FMovieGraphNamedResolution() = default;

	FMovieGraphNamedResolution(const FName& InResolutionProfileName, const FIntPoint InResolution, const FString& InDescription)
		: ProfileName(InResolutionProfileName)
		, Resolution(InResolution)
		, Description(InDescription)
	{
	}

	// A profile name and both dimensions above zero.
	bool IsValid() const
	{
		return !ProfileName.IsNone() && Resolution.X > 0 && Resolution.Y > 0;
	}

	inline static FName DefaultResolutionName = TEXT("1080p (FHD)");
	inline static FIntPoint DefaultResolution = FIntPoint(1920, 1080);
	inline static FName CustomEntryName = TEXT("Custom");

	UPROPERTY(config, EditAnywhere, BlueprintReadWrite, Category = "Resolution")
	FName ProfileName = DefaultResolutionName;

	UPROPERTY(config, EditAnywhere, BlueprintReadWrite, Category = "Resolution")
	FIntPoint Resolution = DefaultResolution;

	UPROPERTY(config, EditAnywhere, BlueprintReadWrite, Category = "Resolution")
	FString Description = FString();
};

// "<Profile> [<Width>, <Height>]".
inline FString LexToString(const FMovieGraphNamedResolution InResolution)
{
	return FString::Printf(TEXT("%s [%d, %d]"), *InResolution.ProfileName.ToString(), InResolution.Resolution.X, InResolution.Resolution.Y);
}
