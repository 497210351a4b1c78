// UMoviePipelineCommandLineEncoder: encodes the rendered frames into a movie with a command line tool.
#pragma once

#include "CoreMinimal.h"
#include "MoviePipelineSetting.h"

#define UE_API STANDIN_MINIMALAPI_FUNCTION(MOVIERENDERPIPELINECORE_API)

UENUM(BlueprintType)
enum class EMoviePipelineEncodeQuality : uint8
{
	Low = 0,
	Medium = 1,
	High = 2,
	Epic = 3,
};
STANDIN_DECLARE_ENUM(EMoviePipelineEncodeQuality, MOVIERENDERPIPELINECORE_API)

UCLASS(MinimalAPI, Blueprintable)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINECORE_API) UMoviePipelineCommandLineEncoder : public UMoviePipelineSetting
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMoviePipelineCommandLineEncoder, UMoviePipelineSetting, MOVIERENDERPIPELINECORE_API)

public:
	UE_API UMoviePipelineCommandLineEncoder();

#if WITH_EDITOR
	UE_API virtual FText GetDisplayText() const override;
	UE_API virtual FText GetCategoryText() const override;
	virtual bool CanBeDisabled() const override { return true; }
#endif
	virtual bool IsValidOnShots() const override { return false; }
	virtual bool IsValidOnPrimary() const override { return true; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Command Line Encoder")
	FString FileNameFormatOverride;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Command Line Encoder")
	EMoviePipelineEncodeQuality Quality;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Command Line Encoder")
	FString AdditionalCommandLineArgs;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Command Line Encoder")
	bool bDeleteSourceFiles;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Command Line Encoder")
	bool bSkipEncodeOnRenderCanceled;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Command Line Encoder")
	bool bWriteEachFrameDuration;
};

#undef UE_API
