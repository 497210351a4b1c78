#include "MoviePipelineEXROutput.h"

#include "UObject/Class.h"
#include "UObject/UnrealType.h"

STANDIN_IMPLEMENT_ENUM(EEXRCompressionFormat, "MovieRenderPipelineRenderPasses", None, PIZ, ZIP, DWAA, DWAB)

UMoviePipelineImageSequenceOutput_EXR::UMoviePipelineImageSequenceOutput_EXR()
	: Compression(EEXRCompressionFormat::PIZ)
	, bMultilayer(true)
{
	OutputFormatExtension = TEXT("exr");
}

#if WITH_EDITOR
FText UMoviePipelineImageSequenceOutput_EXR::GetDisplayText() const
{
	return NSLOCTEXT("MovieRenderPipeline", "ImgSequenceEXRSettingDisplayName", ".exr Sequence [16bit]");
}
#endif

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMoviePipelineImageSequenceOutput_EXR, CLASS_None, "MovieRenderPipelineRenderPasses")
{
	STANDIN_PROPERTY(Compression, CPF_Edit | CPF_BlueprintVisible);
	STANDIN_PROPERTY(bMultilayer, CPF_Edit | CPF_BlueprintVisible);
}
