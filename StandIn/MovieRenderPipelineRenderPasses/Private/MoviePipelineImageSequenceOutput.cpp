#include "MoviePipelineImageSequenceOutput.h"

#include "UObject/UnrealType.h"

UMoviePipelineImageSequenceOutputBase::UMoviePipelineImageSequenceOutputBase() = default;

UMoviePipelineImageSequenceOutput_BMP::UMoviePipelineImageSequenceOutput_BMP() = default;

UMoviePipelineImageSequenceOutput_PNG::UMoviePipelineImageSequenceOutput_PNG()
	: bWriteAlpha(true)
{
}

UMoviePipelineImageSequenceOutput_JPG::UMoviePipelineImageSequenceOutput_JPG() = default;

#if WITH_EDITOR
FText UMoviePipelineImageSequenceOutput_BMP::GetDisplayText() const
{
	return NSLOCTEXT("MovieRenderPipeline", "ImgSequenceBMPSettingDisplayName", ".bmp Sequence [8bit]");
}

FText UMoviePipelineImageSequenceOutput_PNG::GetDisplayText() const
{
	return NSLOCTEXT("MovieRenderPipeline", "ImgSequencePNGSettingDisplayName", ".png Sequence [8bit]");
}

FText UMoviePipelineImageSequenceOutput_JPG::GetDisplayText() const
{
	return NSLOCTEXT("MovieRenderPipeline", "ImgSequenceJPGSettingDisplayName", ".jpg Sequence [8bit]");
}
#endif

VLMR_IMPLEMENT_CLASS(UMoviePipelineImageSequenceOutputBase, CLASS_Abstract, "MovieRenderPipelineRenderPasses")
{
}

VLMR_IMPLEMENT_CLASS(UMoviePipelineImageSequenceOutput_BMP, CLASS_None, "MovieRenderPipelineRenderPasses")
{
}

VLMR_IMPLEMENT_CLASS(UMoviePipelineImageSequenceOutput_PNG, CLASS_None, "MovieRenderPipelineRenderPasses")
{
	VLMR_PROPERTY(bWriteAlpha, CPF_Edit | CPF_BlueprintVisible);
}

VLMR_IMPLEMENT_CLASS(UMoviePipelineImageSequenceOutput_JPG, CLASS_None, "MovieRenderPipelineRenderPasses")
{
}
