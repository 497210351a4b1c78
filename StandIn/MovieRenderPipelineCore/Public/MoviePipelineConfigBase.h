// UMoviePipelineConfigBase: an ordered collection of settings, the base of primary and shot configurations.
#pragma once

#include "CoreMinimal.h"
#include "MoviePipelineSetting.h"
#include "Templates/SubclassOf.h"
#include "UObject/ObjectPtr.h"
#include "UObject/SoftObjectPtr.h"

#define UE_API STANDIN_MINIMALAPI_FUNCTION(MOVIERENDERPIPELINECORE_API)

UCLASS(MinimalAPI, Abstract, BlueprintType)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINECORE_API) UMoviePipelineConfigBase : public UObject
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMoviePipelineConfigBase, UObject, MOVIERENDERPIPELINECORE_API)

public:
	UE_API UMoviePipelineConfigBase();

	UE_API virtual void PostRename(UObject* OldOuter, const FName OldName) override;
	UE_API virtual void PostDuplicate(bool bDuplicateForPIE) override;

	UFUNCTION(BlueprintCallable, Category = "Movie Render Pipeline")
	UE_API virtual void RemoveSetting(UMoviePipelineSetting* InSetting);

	// Replaces this configuration's settings with copies of InConfig's; null or this configuration do nothing.
	UFUNCTION(BlueprintCallable, Category = "Movie Render Pipeline")
	UE_API virtual void CopyFrom(UMoviePipelineConfigBase* InConfig);

	// Every user setting of InClass (or of a subclass unless bExactMatch); disabled ones only when asked.
	UFUNCTION(BlueprintCallable, Category = "Movie Render Pipeline")
	UE_API TArray<UMoviePipelineSetting*> FindSettingsByClass(TSubclassOf<UMoviePipelineSetting> InClass, const bool bIncludeDisabledSettings = false, const bool bExactMatch = false) const;

	UFUNCTION(BlueprintCallable, Category = "Movie Render Pipeline")
	UE_API UMoviePipelineSetting* FindSettingByClass(TSubclassOf<UMoviePipelineSetting> InClass, const bool bIncludeDisabledSettings = false, const bool bExactMatch = false) const;

	// The existing setting of that class, else a new one when this configuration type accepts it; null otherwise.
	UFUNCTION(BlueprintCallable, Category = "Movie Render Pipeline")
	UE_API UMoviePipelineSetting* FindOrAddSettingByClass(TSubclassOf<UMoviePipelineSetting> InClass, const bool bIncludeDisabledSettings = false, const bool bExactMatch = false);

	UFUNCTION(BlueprintPure, Category = "Movie Render Pipeline")
	UE_API virtual TArray<UMoviePipelineSetting*> GetUserSettings() const;

	UFUNCTION(BlueprintPure, Category = "Movie Render Pipeline")
	UMoviePipelineConfigBase* GetConfigOrigin() const { return ConfigOrigin.LoadSynchronous(); }
	UFUNCTION(BlueprintCallable, Category = "Movie Render Pipeline")
	void SetConfigOrigin(UMoviePipelineConfigBase* InConfig) { ConfigOrigin = InConfig; }

	template<typename SettingType>
	SettingType* FindSetting(const bool bIncludeDisabledSettings = false) const
	{
		return static_cast<SettingType*>(FindSettingByClass(SettingType::StaticClass(), bIncludeDisabledSettings));
	}

	template<typename SettingType>
	TArray<SettingType*> FindSettings(const bool bIncludeDisabledSettings = false) const
	{
		TArray<SettingType*> FoundSettings;
		for (UMoviePipelineSetting* Setting : FindSettingsByClass(SettingType::StaticClass(), bIncludeDisabledSettings))
		{
			FoundSettings.Add(static_cast<SettingType*>(Setting));
		}
		return FoundSettings;
	}

	// Changes whenever a setting is added or removed, so that views of the configuration know to refresh.
	int32 GetSettingsSerialNumber() const { return SettingsSerialNumber; }

	virtual bool CanSettingBeAdded(const UMoviePipelineSetting* InSetting) const PURE_VIRTUAL(UMoviePipelineConfigBase::CanSettingBeAdded, return false;);

protected:
	virtual void OnSettingAdded(UMoviePipelineSetting* InSetting) { InSetting->ValidateState(); }
	virtual void OnSettingRemoved(UMoviePipelineSetting* InSetting) {}

public:
	UPROPERTY()
	FString DisplayName;

protected:
	UPROPERTY(VisibleAnywhere, Instanced, Category = "Movie Pipeline")
	TArray<TObjectPtr<UMoviePipelineSetting>> Settings;

	UPROPERTY()
	TSoftObjectPtr<UMoviePipelineConfigBase> ConfigOrigin;

private:
	bool MatchesSearch(const UMoviePipelineSetting* InSetting, const UClass* InClass, const bool bIncludeDisabledSettings, const bool bExactMatch) const;

	int32 SettingsSerialNumber;
};

#undef UE_API
