#include "MoviePipelineCommandLineEncoder.h"

#include "UObject/Class.h"
#include "UObject/UnrealType.h"

STANDIN_IMPLEMENT_ENUM(EMoviePipelineEncodeQuality, "MovieRenderPipelineCore", Low, Medium, High, Epic)

UMoviePipelineCommandLineEncoder::UMoviePipelineCommandLineEncoder()
	: Quality(EMoviePipelineEncodeQuality::Epic)
	, bDeleteSourceFiles(false)
	, bSkipEncodeOnRenderCanceled(true)
	, bWriteEachFrameDuration(true)
{
}

#if WITH_EDITOR
FText UMoviePipelineCommandLineEncoder::GetDisplayText() const
{
	return NSLOCTEXT("MovieRenderPipeline", "CommandLineEncode_DisplayText", "Command Line Encoder");
}

FText UMoviePipelineCommandLineEncoder::GetCategoryText() const
{
	return NSLOCTEXT("MovieRenderPipeline", "ExportsCategoryName_Text", "Exports");
}
#endif

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMoviePipelineCommandLineEncoder, CLASS_None, "MovieRenderPipelineCore")
{
	constexpr EPropertyFlags EditableFlags = CPF_Edit | CPF_BlueprintVisible;
	STANDIN_PROPERTY(FileNameFormatOverride, EditableFlags);
	STANDIN_PROPERTY(Quality, EditableFlags);
	STANDIN_PROPERTY(AdditionalCommandLineArgs, EditableFlags);
	STANDIN_PROPERTY(bDeleteSourceFiles, EditableFlags);
	STANDIN_PROPERTY(bSkipEncodeOnRenderCanceled, EditableFlags);
	STANDIN_PROPERTY(bWriteEachFrameDuration, EditableFlags);
}
