#include "Graph/MovieGraphProjectSettings.h"

#include "UObject/UnrealType.h"

UMovieGraphProjectSettings::UMovieGraphProjectSettings()
{
	CategoryName = FName(TEXT("Plugins"));
	DefaultNamedResolutions.Add(FMovieGraphNamedResolution(TEXT("720p (HD)"), FIntPoint(1280, 720), TEXT("High definition")));
	DefaultNamedResolutions.Add(FMovieGraphNamedResolution(TEXT("1080p (FHD)"), FIntPoint(1920, 1080), TEXT("Full high definition")));
	DefaultNamedResolutions.Add(FMovieGraphNamedResolution(TEXT("1440p (QHD)"), FIntPoint(2560, 1440), TEXT("Quad high definition")));
	DefaultNamedResolutions.Add(FMovieGraphNamedResolution(TEXT("2160p (4K UHD)"), FIntPoint(3840, 2160), TEXT("Ultra high definition (4k)")));
}

const FMovieGraphNamedResolution* UMovieGraphProjectSettings::FindNamedResolutionForOption(const FName& InOption) const
{
	return DefaultNamedResolutions.FindByPredicate([&InOption](const FMovieGraphNamedResolution& Entry)
	{
		return Entry.ProfileName == InOption;
	});
}

STANDIN_IMPLEMENT_CLASS(UMovieGraphProjectSettings, CLASS_Config | CLASS_DefaultConfig, "MovieRenderPipelineCore")
{
	STANDIN_PROPERTY(DefaultNamedResolutions, CPF_Config | CPF_Edit);
}
