// UMoviePipelinePrimaryConfig: the configuration a job renders with; it always holds an output setting.
#pragma once

#include "CoreMinimal.h"
#include "Misc/FrameRate.h"
#include "MoviePipelineConfigBase.h"
#include "MoviePipelineShotConfig.h"

#define UE_API STANDIN_MINIMALAPI_FUNCTION(MOVIERENDERPIPELINECORE_API)

class ULevelSequence;
class UMoviePipelineOutputSetting;

UCLASS(MinimalAPI, Blueprintable)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINECORE_API) UMoviePipelinePrimaryConfig : public UMoviePipelineConfigBase
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMoviePipelinePrimaryConfig, UMoviePipelineConfigBase, MOVIERENDERPIPELINECORE_API)

public:
	UE_API UMoviePipelinePrimaryConfig();

	// Settings of every known class this configuration lacks, made by InitializeTransientSettings.
	UFUNCTION(BlueprintPure, Category = "Movie Render Pipeline")
	UE_API TArray<UMoviePipelineSetting*> GetTransientSettings() const;

	// The user settings (enabled ones unless asked), then the transient settings that are included.
	UFUNCTION(BlueprintPure, Category = "Movie Render Pipeline")
	UE_API TArray<UMoviePipelineSetting*> GetAllSettings(const bool bIncludeDisabledSettings = false, const bool bIncludeTransientSettings = false) const;

	// The settings array, then the output setting.
	UE_API virtual TArray<UMoviePipelineSetting*> GetUserSettings() const override;

	UFUNCTION(BlueprintCallable, Category = "Movie Render Pipeline")
	UE_API void InitializeTransientSettings();

	// The output setting's custom rate when it asks for one, else the sequence's display rate.
	UFUNCTION(BlueprintPure, Category = "Movie Render Pipeline")
	UE_API FFrameRate GetEffectiveFrameRate(const ULevelSequence* InSequence) const;

	UE_API virtual void CopyFrom(UMoviePipelineConfigBase* InConfig) override;
	UE_API virtual bool CanSettingBeAdded(const UMoviePipelineSetting* InSetting) const override;

protected:
	UE_API virtual void OnSettingAdded(UMoviePipelineSetting* InSetting) override;
	UE_API virtual void OnSettingRemoved(UMoviePipelineSetting* InSetting) override;

public:
	UPROPERTY(Instanced)
	TMap<FString, TObjectPtr<UMoviePipelineShotConfig>> PerShotConfigMapping;

private:
	UMoviePipelineSetting* NewTransientSetting(UClass* InClass);

	UPROPERTY(Transient)
	TArray<TObjectPtr<UMoviePipelineSetting>> TransientSettings;

	UPROPERTY(Instanced)
	TObjectPtr<UMoviePipelineOutputSetting> OutputSetting;
};

#undef UE_API
