// UMoviePipelineImageSequenceOutput_EXR: writes the frames as 16-bit OpenEXR files, optionally all passes in one file.
#pragma once

#include "CoreMinimal.h"
#include "MoviePipelineImageSequenceOutput.h"

#define UE_API STANDIN_MINIMALAPI_FUNCTION(MOVIERENDERPIPELINERENDERPASSES_API)

UENUM(BlueprintType)
enum class EEXRCompressionFormat : uint8
{
	// No compression.
	None,
	// Lossless; good for grainy images.
	PIZ,
	// Lossless; good for images with little noise.
	ZIP,
	// Lossy DCT compression of the color channels, in blocks of 32 scanlines.
	DWAA,
	// As DWAA in blocks of 256 scanlines.
	DWAB,
};
STANDIN_DECLARE_ENUM(EEXRCompressionFormat, MOVIERENDERPIPELINERENDERPASSES_API)

UCLASS(MinimalAPI)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINERENDERPASSES_API) UMoviePipelineImageSequenceOutput_EXR : public UMoviePipelineImageSequenceOutputBase
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMoviePipelineImageSequenceOutput_EXR, UMoviePipelineImageSequenceOutputBase, MOVIERENDERPIPELINERENDERPASSES_API)

public:
	UE_API UMoviePipelineImageSequenceOutput_EXR();

#if WITH_EDITOR
	UE_API virtual FText GetDisplayText() const override;
#endif

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "EXR")
	EEXRCompressionFormat Compression;

	// Writes every render pass of a frame into one multi-layer file.
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "EXR")
	bool bMultilayer;

protected:
	virtual bool IsAlphaAllowed() const override { return true; }
};

#undef UE_API
