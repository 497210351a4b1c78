// UMovieGraphProjectSettings: the project's Movie Render Graph settings, among them the named output resolutions that
// output settings choose by profile name.
#pragma once

#include "CoreMinimal.h"
#include "Engine/DeveloperSettings.h"
#include "Graph/MovieGraphNamedResolution.h"

UCLASS(BlueprintType, config = MovieRenderPipeline, DefaultConfig, meta = (DisplayName = "Movie Graph Settings"))
class MOVIERENDERPIPELINECORE_API UMovieGraphProjectSettings : public UDeveloperSettings
{
	STANDIN_CLASS_BODY(UMovieGraphProjectSettings, UDeveloperSettings, MOVIERENDERPIPELINECORE_API)

public:
	UMovieGraphProjectSettings();

	// The entry whose profile name is exactly InOption, or null.
	const FMovieGraphNamedResolution* FindNamedResolutionForOption(const FName& InOption) const;

	UPROPERTY(Config, EditAnywhere, Category = "Movie Graph")
	TArray<FMovieGraphNamedResolution> DefaultNamedResolutions;
};
