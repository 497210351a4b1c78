// UMoviePipelinePrimaryConfig: the configuration a job renders with; it always holds an output setting.
#pragma once

#include "CoreMinimal.h"
#include "Misc/FrameRate.h"
#include "MoviePipelineConfigBase.h"
#include "MoviePipelineShotConfig.h"

class ULevelSequence;
class UMoviePipelineOutputSetting;

UCLASS(MinimalAPI, Blueprintable)
class MOVIERENDERPIPELINECORE_API UMoviePipelinePrimaryConfig : public UMoviePipelineConfigBase
{
	STANDIN_CLASS_BODY(UMoviePipelinePrimaryConfig, UMoviePipelineConfigBase, MOVIERENDERPIPELINECORE_API)

public:
	UMoviePipelinePrimaryConfig();

	// Settings of every known class this configuration lacks, made by InitializeTransientSettings.
	UFUNCTION(BlueprintPure, Category = "Movie Render Pipeline")
	TArray<UMoviePipelineSetting*> GetTransientSettings() const;

	// The user settings (enabled ones unless asked), then the transient settings that are included.
	UFUNCTION(BlueprintPure, Category = "Movie Render Pipeline")
	TArray<UMoviePipelineSetting*> GetAllSettings(const bool bIncludeDisabledSettings = false, const bool bIncludeTransientSettings = false) const;

	// The settings array, then the output setting.
	virtual TArray<UMoviePipelineSetting*> GetUserSettings() const override;

	UFUNCTION(BlueprintCallable, Category = "Movie Render Pipeline")
	void InitializeTransientSettings();

	// The output setting's custom rate when it asks for one, else the sequence's display rate.
	UFUNCTION(BlueprintPure, Category = "Movie Render Pipeline")
	FFrameRate GetEffectiveFrameRate(const ULevelSequence* InSequence) const;

	virtual void CopyFrom(UMoviePipelineConfigBase* InConfig) override;
	virtual bool CanSettingBeAdded(const UMoviePipelineSetting* InSetting) const override;

protected:
	virtual void OnSettingAdded(UMoviePipelineSetting* InSetting) override;
	virtual void OnSettingRemoved(UMoviePipelineSetting* InSetting) override;

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
