#include "MoviePipelineConsoleVariableSetting.h"

#include "UObject/UnrealType.h"

UMoviePipelineConsoleVariableSetting::UMoviePipelineConsoleVariableSetting() = default;

#if WITH_EDITOR
FText UMoviePipelineConsoleVariableSetting::GetDisplayText() const
{
	return NSLOCTEXT("MovieRenderPipeline", "ConsoleVariableSettingDisplayName", "Console Variables");
}
#endif

void UMoviePipelineConsoleVariableSetting::PostLoad()
{
	Super::PostLoad();
	for (const TPair<FString, float>& DeprecatedEntry : ConsoleVariables_DEPRECATED)
	{
		AddOrUpdateConsoleVariable(DeprecatedEntry.Key, DeprecatedEntry.Value);
	}
	ConsoleVariables_DEPRECATED.Empty();
}

FMoviePipelineConsoleVariableEntry* UMoviePipelineConsoleVariableSetting::FindLastEntry(const FString& Name)
{
	for (int32 Index = CVars.Num() - 1; Index >= 0; --Index)
	{
		if (CVars[Index].Name.Equals(Name))
		{
			return &CVars[Index];
		}
	}
	return nullptr;
}

bool UMoviePipelineConsoleVariableSetting::RemoveConsoleVariable(const FString& Name, const bool bRemoveAllInstances)
{
	if (bRemoveAllInstances)
	{
		return CVars.RemoveAll([&Name](const FMoviePipelineConsoleVariableEntry& Entry) { return Entry.Name.Equals(Name); }) > 0;
	}
	const FMoviePipelineConsoleVariableEntry* LastEntry = FindLastEntry(Name);
	if (!LastEntry)
	{
		return false;
	}
	CVars.RemoveAt(int32(LastEntry - CVars.GetData()));
	return true;
}

bool UMoviePipelineConsoleVariableSetting::AddOrUpdateConsoleVariable(const FString& Name, const float Value)
{
	if (FMoviePipelineConsoleVariableEntry* LastEntry = FindLastEntry(Name))
	{
		LastEntry->Value = Value;
		return true;
	}
	return AddConsoleVariable(Name, Value);
}

bool UMoviePipelineConsoleVariableSetting::AddConsoleVariable(const FString& Name, const float Value)
{
	CVars.Add(FMoviePipelineConsoleVariableEntry(Name, Value));
	return true;
}

bool UMoviePipelineConsoleVariableSetting::UpdateConsoleVariableEnableState(const FString& Name, const bool bIsEnabled)
{
	FMoviePipelineConsoleVariableEntry* LastEntry = FindLastEntry(Name);
	if (!LastEntry)
	{
		return false;
	}
	LastEntry->bIsEnabled = bIsEnabled;
	return true;
}

STANDIN_IMPLEMENT_MINIMALAPI_CLASS(UMoviePipelineConsoleVariableSetting, CLASS_None, "MovieRenderPipelineSettings")
{
	STANDIN_PROPERTY(ConsoleVariables_DEPRECATED, CPF_Deprecated)->SetMetaData(TEXT("DeprecatedProperty"), TEXT(""));
	STANDIN_PROPERTY(StartConsoleCommands, CPF_Edit | CPF_BlueprintVisible);
	STANDIN_PROPERTY(EndConsoleCommands, CPF_Edit | CPF_BlueprintVisible);
	FProperty* CVarsProperty = STANDIN_PROPERTY(CVars, CPF_Edit);
	CVarsProperty->SetMetaData(TEXT("DisplayName"), TEXT("Console Variables"));
	CVarsProperty->SetMetaData(TEXT("ScriptNoExport"), TEXT(""));
	STANDIN_FUNCTION(GetConsoleVariables);
	STANDIN_FUNCTION(RemoveConsoleVariable, TEXT("Name"), TEXT("bRemoveAllInstances"));
	STANDIN_FUNCTION(AddOrUpdateConsoleVariable, TEXT("Name"), TEXT("Value"));
	STANDIN_FUNCTION(AddConsoleVariable, TEXT("Name"), TEXT("Value"));
	STANDIN_FUNCTION(UpdateConsoleVariableEnableState, TEXT("Name"), TEXT("bIsEnabled"));
}
