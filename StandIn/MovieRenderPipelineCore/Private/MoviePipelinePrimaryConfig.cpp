#include "MoviePipelinePrimaryConfig.h"

#include "LevelSequence.h"
#include "MovieScene.h"
#include "MoviePipelineOutputSetting.h"
#include "Templates/Casts.h"
#include "UObject/Class.h"
#include "UObject/Package.h"
#include "UObject/UnrealType.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UObjectHash.h"

namespace UE::MoviePipeline
{
	static const TCHAR* const DefaultOutputSettingName = TEXT("DefaultOutputSetting");

	// Setting classes that can be instantiated: not abstract, not deprecated, not replaced by a newer version.
	static bool IsInstantiableSettingClass(const UClass* InClass)
	{
		return !InClass->HasAnyClassFlags(CLASS_Abstract | CLASS_Deprecated | CLASS_NewerVersionExists);
	}
}

UMoviePipelinePrimaryConfig::UMoviePipelinePrimaryConfig()
{
	OutputSetting = CreateDefaultSubobject<UMoviePipelineOutputSetting>(UE::MoviePipeline::DefaultOutputSettingName);
}

TArray<UMoviePipelineSetting*> UMoviePipelinePrimaryConfig::GetTransientSettings() const
{
	TArray<UMoviePipelineSetting*> Result;
	for (UMoviePipelineSetting* Setting : TransientSettings)
	{
		Result.Add(Setting);
	}
	return Result;
}

TArray<UMoviePipelineSetting*> UMoviePipelinePrimaryConfig::GetAllSettings(const bool bIncludeDisabledSettings, const bool bIncludeTransientSettings) const
{
	TArray<UMoviePipelineSetting*> Result;
	for (UMoviePipelineSetting* Setting : GetUserSettings())
	{
		if (Setting && (bIncludeDisabledSettings || Setting->IsEnabled()))
		{
			Result.Add(Setting);
		}
	}
	for (UMoviePipelineSetting* Setting : TransientSettings)
	{
		if (Setting && (bIncludeTransientSettings || Setting->IgnoreTransientFilters()) && (bIncludeDisabledSettings || Setting->IsEnabled()))
		{
			Result.Add(Setting);
		}
	}
	return Result;
}

TArray<UMoviePipelineSetting*> UMoviePipelinePrimaryConfig::GetUserSettings() const
{
	TArray<UMoviePipelineSetting*> UserSettings = Super::GetUserSettings();
	UserSettings.Add(OutputSetting);
	return UserSettings;
}

UMoviePipelineSetting* UMoviePipelinePrimaryConfig::NewTransientSetting(UClass* InClass)
{
	UMoviePipelineSetting* Setting = NewObject<UMoviePipelineSetting>(this, InClass, NAME_None, RF_Transient);
	return Setting && Setting->IsValidOnPrimary() ? Setting : nullptr;
}

void UMoviePipelinePrimaryConfig::InitializeTransientSettings()
{
	if (TransientSettings.Num() > 0)
	{
		return;
	}
	TArray<UClass*> SettingClasses;
	GetDerivedClasses(UMoviePipelineSetting::StaticClass(), SettingClasses, true);
	for (UClass* SettingClass : SettingClasses)
	{
		if (!UE::MoviePipeline::IsInstantiableSettingClass(SettingClass) || FindSettingByClass(SettingClass, true, true))
		{
			continue;
		}
		if (UMoviePipelineSetting* Setting = NewTransientSetting(SettingClass))
		{
			TransientSettings.Add(Setting);
		}
	}
}

FFrameRate UMoviePipelinePrimaryConfig::GetEffectiveFrameRate(const ULevelSequence* InSequence) const
{
	const UMoviePipelineOutputSetting* Output = FindSetting<UMoviePipelineOutputSetting>();
	if (Output && Output->bUseCustomFrameRate)
	{
		return Output->OutputFrameRate;
	}
	if (InSequence && InSequence->GetMovieScene())
	{
		return InSequence->GetMovieScene()->GetDisplayRate();
	}
	return FFrameRate();
}

void UMoviePipelinePrimaryConfig::CopyFrom(UMoviePipelineConfigBase* InConfig)
{
	Super::CopyFrom(InConfig);

	UMoviePipelinePrimaryConfig* SourceConfig = Cast<UMoviePipelinePrimaryConfig>(InConfig);
	if (!SourceConfig || SourceConfig == this || !SourceConfig->OutputSetting)
	{
		return;
	}
	// The current output setting moves out of the way so that the copy can take the default subobject's name.
	if (OutputSetting)
	{
		OutputSetting->Rename(nullptr, GetTransientPackage(), REN_DoNotDirty | REN_DontCreateRedirectors);
	}
	OutputSetting = Cast<UMoviePipelineOutputSetting>(StaticDuplicateObject(SourceConfig->OutputSetting, this, FName(UE::MoviePipeline::DefaultOutputSettingName)));
}

bool UMoviePipelinePrimaryConfig::CanSettingBeAdded(const UMoviePipelineSetting* InSetting) const
{
	return InSetting && InSetting->IsValidOnPrimary();
}

void UMoviePipelinePrimaryConfig::OnSettingAdded(UMoviePipelineSetting* InSetting)
{
	Super::OnSettingAdded(InSetting);
	TransientSettings.RemoveAll([InSetting](const TObjectPtr<UMoviePipelineSetting>& Transient)
	{
		return !Transient || Transient->GetClass() == InSetting->GetClass();
	});
}

void UMoviePipelinePrimaryConfig::OnSettingRemoved(UMoviePipelineSetting* InSetting)
{
	Super::OnSettingRemoved(InSetting);
	// Only a configuration whose transient settings were made gets the removed class back as a transient setting.
	if (TransientSettings.Num() == 0 || !UE::MoviePipeline::IsInstantiableSettingClass(InSetting->GetClass()))
	{
		return;
	}
	if (UMoviePipelineSetting* Setting = NewTransientSetting(InSetting->GetClass()))
	{
		TransientSettings.Add(Setting);
	}
}

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMoviePipelinePrimaryConfig, CLASS_None, "MovieRenderPipelineCore")
{
	STANDIN_PROPERTY(PerShotConfigMapping, CPF_ExportObject | CPF_InstancedReference | CPF_ContainsInstancedReference);
	STANDIN_PROPERTY(TransientSettings, CPF_Transient);
	STANDIN_PROPERTY(OutputSetting, CPF_ExportObject | CPF_InstancedReference);
	STANDIN_FUNCTION(GetTransientSettings);
	STANDIN_FUNCTION(GetAllSettings, TEXT("bIncludeDisabledSettings"), TEXT("bIncludeTransientSettings"));
	STANDIN_FUNCTION(InitializeTransientSettings);
	STANDIN_FUNCTION(GetEffectiveFrameRate, TEXT("InSequence"));
}
