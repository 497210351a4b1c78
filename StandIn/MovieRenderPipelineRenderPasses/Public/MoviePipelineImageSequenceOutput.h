// Outputs that write every rendered frame as an image file: the abstract base and its BMP, PNG and JPG formats.
#pragma once

#include "CoreMinimal.h"
#include "MoviePipelineOutputBase.h"

#define UE_API STANDIN_MINIMALAPI_FUNCTION(MOVIERENDERPIPELINERENDERPASSES_API)

UCLASS(MinimalAPI, Blueprintable, Abstract)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINERENDERPASSES_API) UMoviePipelineImageSequenceOutputBase : public UMoviePipelineOutputBase
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMoviePipelineImageSequenceOutputBase, UMoviePipelineOutputBase, MOVIERENDERPIPELINERENDERPASSES_API)

public:
	UE_API UMoviePipelineImageSequenceOutputBase();

protected:
	UE_API virtual void SetupForPipelineImpl(UMoviePipeline* InPipeline) override;

	// Writes one file for every render pass of the frame, named as the output setting says.
	UE_API virtual void OnReceiveImageDataImpl(FMoviePipelineMergerOutputFrame* InMergedOutputFrame) override;

	// Whether the format keeps the alpha channel of the frames.
	virtual bool IsAlphaAllowed() const { return false; }

	// Stand-in choice: the format is kept as its file extension ("png"); the engine keeps an EImageFormat.
	FString OutputFormatExtension;

private:
	// Whether this render already warned that the file names have no frame number, or that a file could not be written.
	bool bWarnedMissingFrameNumber;
	bool bReportedWriteFailure;
};

UCLASS(MinimalAPI)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINERENDERPASSES_API) UMoviePipelineImageSequenceOutput_BMP : public UMoviePipelineImageSequenceOutputBase
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMoviePipelineImageSequenceOutput_BMP, UMoviePipelineImageSequenceOutputBase, MOVIERENDERPIPELINERENDERPASSES_API)

public:
	UE_API UMoviePipelineImageSequenceOutput_BMP();

#if WITH_EDITOR
	UE_API virtual FText GetDisplayText() const override;
#endif
};

UCLASS(MinimalAPI)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINERENDERPASSES_API) UMoviePipelineImageSequenceOutput_PNG : public UMoviePipelineImageSequenceOutputBase
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMoviePipelineImageSequenceOutput_PNG, UMoviePipelineImageSequenceOutputBase, MOVIERENDERPIPELINERENDERPASSES_API)

public:
	UE_API UMoviePipelineImageSequenceOutput_PNG();

#if WITH_EDITOR
	UE_API virtual FText GetDisplayText() const override;
#endif

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "PNG")
	bool bWriteAlpha;

protected:
	virtual bool IsAlphaAllowed() const override { return bWriteAlpha; }
};

UCLASS(MinimalAPI)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINERENDERPASSES_API) UMoviePipelineImageSequenceOutput_JPG : public UMoviePipelineImageSequenceOutputBase
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMoviePipelineImageSequenceOutput_JPG, UMoviePipelineImageSequenceOutputBase, MOVIERENDERPIPELINERENDERPASSES_API)

public:
	UE_API UMoviePipelineImageSequenceOutput_JPG();

#if WITH_EDITOR
	UE_API virtual FText GetDisplayText() const override;
#endif
};

#undef UE_API
