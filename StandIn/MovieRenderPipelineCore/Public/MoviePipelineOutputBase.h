// UMoviePipelineOutputBase: the base of settings that write what a render produced (image sequences, videos, audio).
#pragma once

#include "CoreMinimal.h"
#include "MoviePipelineSetting.h"

struct FMoviePipelineMergerOutputFrame;

UCLASS(MinimalAPI, Blueprintable, Abstract)
class MOVIERENDERPIPELINECORE_API UMoviePipelineOutputBase : public UMoviePipelineSetting
{
	STANDIN_CLASS_BODY(UMoviePipelineOutputBase, UMoviePipelineSetting, MOVIERENDERPIPELINECORE_API)

public:
	UMoviePipelineOutputBase();

	virtual bool IsValidOnShots() const override { return false; }
	virtual bool IsValidOnPrimary() const override { return true; }
#if WITH_EDITOR
	virtual FText GetCategoryText() const override;
#endif

	// Called by the pipeline once for every output frame it produced.
	void OnReceiveImageData(FMoviePipelineMergerOutputFrame* InMergedOutputFrame) { OnReceiveImageDataImpl(InMergedOutputFrame); }

protected:
	virtual void OnReceiveImageDataImpl(FMoviePipelineMergerOutputFrame* InMergedOutputFrame) {}
};
