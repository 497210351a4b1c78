#include "MoviePipelineCommandLineEncoder.h"

#include "UObject/Class.h"
#include "UObject/UnrealType.h"

VLMR_IMPLEMENT_ENUM(EMoviePipelineEncodeQuality, "MovieRenderPipelineCore", Low, Medium, High, Epic)

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

VLMR_IMPLEMENT_CLASS(UMoviePipelineCommandLineEncoder, CLASS_None, "MovieRenderPipelineCore")
{
	constexpr EPropertyFlags EditableFlags = CPF_Edit | CPF_BlueprintVisible;
	VLMR_PROPERTY(FileNameFormatOverride, EditableFlags);
	VLMR_PROPERTY(Quality, EditableFlags);
	VLMR_PROPERTY(AdditionalCommandLineArgs, EditableFlags);
	VLMR_PROPERTY(bDeleteSourceFiles, EditableFlags);
	VLMR_PROPERTY(bSkipEncodeOnRenderCanceled, EditableFlags);
	VLMR_PROPERTY(bWriteEachFrameDuration, EditableFlags);
}
