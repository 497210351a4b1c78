#include "MoviePipelineConfigBase.h"

#include "MoviePipelineStandInScriptMessage.h"
#include "Templates/Casts.h"
#include "UObject/Class.h"
#include "UObject/UnrealType.h"
#include "UObject/UObjectGlobals.h"

UMoviePipelineConfigBase::UMoviePipelineConfigBase()
	: DisplayName(TEXT("Unsaved Config"))
	, SettingsSerialNumber(0)
{
}

void UMoviePipelineConfigBase::PostRename(UObject* OldOuter, const FName OldName)
{
	Super::PostRename(OldOuter, OldName);
	DisplayName = GetName();
}

void UMoviePipelineConfigBase::PostDuplicate(bool bDuplicateForPIE)
{
	Super::PostDuplicate(bDuplicateForPIE);
	DisplayName = GetName();
}

void UMoviePipelineConfigBase::RemoveSetting(UMoviePipelineSetting* InSetting)
{
	// Stand-in choice: a null setting is ignored; the engine would hand it on to OnSettingRemoved.
	if (!InSetting)
	{
		return;
	}
	Settings.Remove(InSetting);
	OnSettingRemoved(InSetting);
	++SettingsSerialNumber;
}

void UMoviePipelineConfigBase::CopyFrom(UMoviePipelineConfigBase* InConfig)
{
	if (!InConfig || InConfig == this)
	{
		return;
	}

	ConfigOrigin = InConfig->ConfigOrigin;
	DisplayName = InConfig->DisplayName;
	Modify();

	Settings.Empty();
	for (UMoviePipelineSetting* SourceSetting : InConfig->Settings)
	{
		if (!SourceSetting)
		{
			continue;
		}
		// The same object name, so that an existing setting of that name is replaced rather than left beside the copy.
		UMoviePipelineSetting* NewSetting = Cast<UMoviePipelineSetting>(StaticDuplicateObject(SourceSetting, this, SourceSetting->GetFName()));
		if (!NewSetting)
		{
			continue;
		}
		NewSetting->ValidateState();
		Settings.Add(NewSetting);
		OnSettingAdded(NewSetting);
	}
	++SettingsSerialNumber;
}

bool UMoviePipelineConfigBase::MatchesSearch(const UMoviePipelineSetting* InSetting, const UClass* InClass, const bool bIncludeDisabledSettings, const bool bExactMatch) const
{
	if (!InSetting || !InClass || (!bIncludeDisabledSettings && !InSetting->IsEnabled()))
	{
		return false;
	}
	return bExactMatch ? InSetting->GetClass() == InClass : InSetting->GetClass()->IsChildOf(InClass);
}

TArray<UMoviePipelineSetting*> UMoviePipelineConfigBase::FindSettingsByClass(TSubclassOf<UMoviePipelineSetting> InClass, const bool bIncludeDisabledSettings, const bool bExactMatch) const
{
	TArray<UMoviePipelineSetting*> FoundSettings;
	for (UMoviePipelineSetting* Setting : GetUserSettings())
	{
		if (MatchesSearch(Setting, InClass.Get(), bIncludeDisabledSettings, bExactMatch))
		{
			FoundSettings.Add(Setting);
		}
	}
	return FoundSettings;
}

UMoviePipelineSetting* UMoviePipelineConfigBase::FindSettingByClass(TSubclassOf<UMoviePipelineSetting> InClass, const bool bIncludeDisabledSettings, const bool bExactMatch) const
{
	for (UMoviePipelineSetting* Setting : GetUserSettings())
	{
		if (MatchesSearch(Setting, InClass.Get(), bIncludeDisabledSettings, bExactMatch))
		{
			return Setting;
		}
	}
	return nullptr;
}

UMoviePipelineSetting* UMoviePipelineConfigBase::FindOrAddSettingByClass(TSubclassOf<UMoviePipelineSetting> InClass, const bool bIncludeDisabledSettings, const bool bExactMatch)
{
	if (UMoviePipelineSetting* Found = FindSettingByClass(InClass, bIncludeDisabledSettings, bExactMatch))
	{
		return Found;
	}
	// Stand-in choice: a missing class finds nothing and adds nothing; the engine would construct from a null class.
	if (!InClass.Get())
	{
		return nullptr;
	}

	Modify();
	// An abstract class cannot be instantiated: NewObject logs that and yields null.
	UMoviePipelineSetting* NewSetting = NewObject<UMoviePipelineSetting>(this, InClass.Get());
	if (!NewSetting)
	{
		return nullptr;
	}
	if (!CanSettingBeAdded(NewSetting))
	{
		UE::MoviePipeline::StandIn::ReportScriptExecutionMessage(FString::Printf(TEXT("Setting %s is not compatible with this Config Type and was not added."),
			*InClass->GetName()), ELogVerbosity::Error);
		return nullptr;
	}
	Settings.Add(NewSetting);
	OnSettingAdded(NewSetting);
	++SettingsSerialNumber;
	return NewSetting;
}

TArray<UMoviePipelineSetting*> UMoviePipelineConfigBase::GetUserSettings() const
{
	TArray<UMoviePipelineSetting*> UserSettings;
	for (UMoviePipelineSetting* Setting : Settings)
	{
		UserSettings.Add(Setting);
	}
	return UserSettings;
}

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMoviePipelineConfigBase, CLASS_Abstract, "MovieRenderPipelineCore")
{
	STANDIN_PROPERTY(DisplayName, CPF_None);
	STANDIN_PROPERTY(Settings, CPF_Edit | CPF_EditConst | CPF_ExportObject | CPF_InstancedReference | CPF_ContainsInstancedReference);
	STANDIN_PROPERTY(ConfigOrigin, CPF_None);
	STANDIN_FUNCTION(RemoveSetting, TEXT("InSetting"));
	STANDIN_FUNCTION(CopyFrom, TEXT("InConfig"));
	STANDIN_FUNCTION(FindSettingsByClass, TEXT("InClass"), TEXT("bIncludeDisabledSettings"), TEXT("bExactMatch"));
	STANDIN_FUNCTION(FindSettingByClass, TEXT("InClass"), TEXT("bIncludeDisabledSettings"), TEXT("bExactMatch"));
	STANDIN_FUNCTION(FindOrAddSettingByClass, TEXT("InClass"), TEXT("bIncludeDisabledSettings"), TEXT("bExactMatch"));
	STANDIN_FUNCTION(GetUserSettings);
	STANDIN_FUNCTION(GetConfigOrigin);
	STANDIN_FUNCTION(SetConfigOrigin, TEXT("InConfig"));
}
