// UMovieRenderPipelineProjectSettings: the project-wide Movie Render Pipeline choices (executors, defaults, presets).
#pragma once

#include "CoreMinimal.h"
#include "Engine/DeveloperSettings.h"
#include "Engine/EngineTypes.h"
#include "MoviePipelinePrimaryConfig.h"
#include "UObject/SoftObjectPath.h"
#include "UObject/SoftObjectPtr.h"

#define UE_API STANDIN_MINIMALAPI_FUNCTION(MOVIERENDERPIPELINEEDITOR_API)

class UMovieGraphConfig;

UCLASS(MinimalAPI, BlueprintType, Config = Editor, defaultconfig)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINEEDITOR_API) UMovieRenderPipelineProjectSettings : public UDeveloperSettings
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMovieRenderPipelineProjectSettings, UDeveloperSettings, MOVIERENDERPIPELINEEDITOR_API)

public:
	UE_API UMovieRenderPipelineProjectSettings();

	// Where the editor saves presets by default.
	UPROPERTY(Config, EditAnywhere, Category = "Movie Render Pipeline", meta = (ContentDir))
	FDirectoryPath PresetSaveDir;

	// The last preset the user chose in the editor.
	UPROPERTY(Config, EditAnywhere, Category = "Movie Render Pipeline")
	TSoftObjectPtr<UMoviePipelinePrimaryConfig> LastPresetOrigin;

	// The executor a local render uses.
	UPROPERTY(Config, EditAnywhere, BlueprintReadWrite, Category = "Movie Render Pipeline", meta = (MetaClass = "/Script/MovieRenderPipelineCore.MoviePipelineExecutorBase"))
	FSoftClassPath DefaultLocalExecutor;

	// The executor a remote render uses.
	UPROPERTY(Config, EditAnywhere, BlueprintReadWrite, Category = "Movie Render Pipeline", meta = (MetaClass = "/Script/MovieRenderPipelineCore.MoviePipelineExecutorBase"))
	FSoftClassPath DefaultRemoteExecutor;

	// The job class the editor creates for a new job.
	UPROPERTY(Config, EditAnywhere, BlueprintReadWrite, Category = "Movie Render Pipeline", meta = (MetaClass = "/Script/MovieRenderPipelineCore.MoviePipelineExecutorJob"))
	FSoftClassPath DefaultExecutorJob;

	// The pipeline class that renders a job.
	UPROPERTY(Config, EditAnywhere, BlueprintReadWrite, Category = "Movie Render Pipeline", meta = (MetaClass = "/Script/MovieRenderPipelineCore.MoviePipelineBase"))
	FSoftClassPath DefaultPipeline;

	// Settings the editor adds to the configuration of a new job.
	UPROPERTY(Config, EditAnywhere, BlueprintReadWrite, Category = "Movie Render Pipeline", meta = (DisplayName = "Default Job Settings Classes", MetaClass = "/Script/MovieRenderPipelineCore.MoviePipelineSetting"))
	TArray<FSoftClassPath> DefaultClasses;

	// The graph the editor gives a new job that renders with a graph.
	UPROPERTY(Config, EditAnywhere, BlueprintReadWrite, Category = "Movie Render Graph")
	TSoftObjectPtr<UMovieGraphConfig> DefaultGraph;
};

#undef UE_API
