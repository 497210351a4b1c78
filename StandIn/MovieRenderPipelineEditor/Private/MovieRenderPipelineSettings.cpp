#include "MovieRenderPipelineSettings.h"

#include "Graph/MovieGraphConfig.h"
#include "MoviePipelineDeferredPasses.h"
#include "MoviePipelineImageSequenceOutput.h"
#include "MoviePipelineQueue.h"
#include "UObject/UnrealType.h"

// The executors and the pipeline are named by path, so the settings need not link the classes they name.
UMovieRenderPipelineProjectSettings::UMovieRenderPipelineProjectSettings()
	: DefaultLocalExecutor(TEXT("/Script/MovieRenderPipelineEditor.MoviePipelinePIEExecutor"))
	, DefaultRemoteExecutor(TEXT("/Script/MovieRenderPipelineEditor.MoviePipelineNewProcessExecutor"))
	, DefaultExecutorJob(UMoviePipelineExecutorJob::StaticClass())
	, DefaultPipeline(TEXT("/Script/MovieRenderPipelineCore.MoviePipeline"))
{
	PresetSaveDir.Path = TEXT("/Game/Cinematics/MoviePipeline/Presets/");
	DefaultClasses.Add(FSoftClassPath(UMoviePipelineImageSequenceOutput_JPG::StaticClass()));
	DefaultClasses.Add(FSoftClassPath(UMoviePipelineDeferredPassBase::StaticClass()));
}

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMovieRenderPipelineProjectSettings, CLASS_Config | CLASS_DefaultConfig, "MovieRenderPipelineEditor")
{
	constexpr EPropertyFlags ConfigFlags = CPF_Config | CPF_Edit;
	STANDIN_PROPERTY(PresetSaveDir, ConfigFlags)->SetMetaData(TEXT("ContentDir"), TEXT(""));
	STANDIN_PROPERTY(LastPresetOrigin, ConfigFlags);
	STANDIN_PROPERTY(DefaultLocalExecutor, ConfigFlags | CPF_BlueprintVisible)->SetMetaData(TEXT("MetaClass"), TEXT("/Script/MovieRenderPipelineCore.MoviePipelineExecutorBase"));
	STANDIN_PROPERTY(DefaultRemoteExecutor, ConfigFlags | CPF_BlueprintVisible)->SetMetaData(TEXT("MetaClass"), TEXT("/Script/MovieRenderPipelineCore.MoviePipelineExecutorBase"));
	STANDIN_PROPERTY(DefaultExecutorJob, ConfigFlags | CPF_BlueprintVisible)->SetMetaData(TEXT("MetaClass"), TEXT("/Script/MovieRenderPipelineCore.MoviePipelineExecutorJob"));
	STANDIN_PROPERTY(DefaultPipeline, ConfigFlags | CPF_BlueprintVisible)->SetMetaData(TEXT("MetaClass"), TEXT("/Script/MovieRenderPipelineCore.MoviePipelineBase"));
	FProperty* DefaultClassesProperty = STANDIN_PROPERTY(DefaultClasses, ConfigFlags | CPF_BlueprintVisible);
	DefaultClassesProperty->SetMetaData(TEXT("DisplayName"), TEXT("Default Job Settings Classes"));
	DefaultClassesProperty->SetMetaData(TEXT("MetaClass"), TEXT("/Script/MovieRenderPipelineCore.MoviePipelineSetting"));
	STANDIN_PROPERTY(DefaultGraph, ConfigFlags | CPF_BlueprintVisible);
}
