// UMoviePipelineOutputSetting: where and how a render writes its files; every primary configuration has one.
#pragma once

#include "CoreMinimal.h"
#include "Engine/EngineTypes.h"
#include "Math/IntPoint.h"
#include "Misc/FrameRate.h"
#include "MoviePipelineSetting.h"
#include "UObject/ObjectPtr.h"

#define UE_API STANDIN_MINIMALAPI_FUNCTION(MOVIERENDERPIPELINECORE_API)

class USoundSubmix;

UCLASS(MinimalAPI, Blueprintable)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINECORE_API) UMoviePipelineOutputSetting : public UMoviePipelineSetting
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMoviePipelineOutputSetting, UMoviePipelineSetting, MOVIERENDERPIPELINECORE_API)

public:
	UE_API UMoviePipelineOutputSetting();

#if WITH_EDITOR
	UE_API virtual FText GetDisplayText() const override;
	virtual bool CanBeDisabled() const override { return false; }
#endif
	virtual bool IsValidOnShots() const override { return false; }
	virtual bool IsValidOnPrimary() const override { return true; }

	// A directory saved empty comes back as the default one.
	UE_API virtual void PostLoad() override;

	// project_dir, output_resolution ("<width>_<height>"), output_width and output_height.
	UE_API virtual void GetFormatArguments(FMoviePipelineFormatArgs& InOutFormatArgs) const override;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "File Output")
	FDirectoryPath OutputDirectory;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "File Output")
	FString FileNameFormat;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "File Output")
	FIntPoint OutputResolution;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "File Output")
	bool bUseCustomFrameRate;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, meta = (EditCondition = bUseCustomFrameRate), Category = "File Output")
	FFrameRate OutputFrameRate;

	// Interleaves renders between machines: offset of this render within OutputFrameStep.
	int32 DEBUG_OutputFrameStepOffset;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "File Output")
	bool bOverrideExistingOutput;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, meta = (UIMin = 0, ClampMin = 0), Category = "Frames")
	int32 HandleFrameCount;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, meta = (UIMin = "1", ClampMin = "1"), Category = "Frames")
	int32 OutputFrameStep;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Frames")
	bool bUseCustomPlaybackRange;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, meta = (EditCondition = bUseCustomPlaybackRange), Category = "Frames")
	int32 CustomStartFrame;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, meta = (EditCondition = bUseCustomPlaybackRange), Category = "Frames")
	int32 CustomEndFrame;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, meta = (EditCondition = "!bAutoVersion", UIMin = 1, UIMax = 10, ClampMin = 1), Category = "Versioning")
	int32 VersionNumber;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Versioning")
	bool bAutoVersion;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Audio")
	TArray<TObjectPtr<USoundSubmix>> AdditionalSubmixOutputs;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, meta = (UIMin = "1", UIMax = "5", ClampMin = "1"), AdvancedDisplay, Category = "File Output")
	int32 ZeroPadFrameNumbers;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, AdvancedDisplay, Category = "File Output")
	int32 FrameNumberOffset;

	UPROPERTY(BlueprintReadWrite, Category = "File Output")
	bool bFlushDiskWritesPerShot;
};

#undef UE_API
