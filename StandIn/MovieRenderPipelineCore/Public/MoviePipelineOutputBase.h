// UMoviePipelineOutputBase: the base of settings that write what a render produced (image sequences, videos, audio).
#pragma once

#include "CoreMinimal.h"
#include "MoviePipelineSetting.h"

#define UE_API STANDIN_MINIMALAPI_FUNCTION(MOVIERENDERPIPELINECORE_API)

struct FMoviePipelineMergerOutputFrame;

UCLASS(MinimalAPI, Blueprintable, Abstract)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINECORE_API) UMoviePipelineOutputBase : public UMoviePipelineSetting
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMoviePipelineOutputBase, UMoviePipelineSetting, MOVIERENDERPIPELINECORE_API)

public:
	UE_API UMoviePipelineOutputBase();

	virtual bool IsValidOnShots() const override { return false; }
	virtual bool IsValidOnPrimary() const override { return true; }
#if WITH_EDITOR
	UE_API virtual FText GetCategoryText() const override;
#endif

	// Called by the pipeline once for every output frame it produced.
	void OnReceiveImageData(FMoviePipelineMergerOutputFrame* InMergedOutputFrame) { OnReceiveImageDataImpl(InMergedOutputFrame); }

protected:
	virtual void OnReceiveImageDataImpl(FMoviePipelineMergerOutputFrame* InMergedOutputFrame) {}
};

#undef UE_API
