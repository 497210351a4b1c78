// UMoviePipelineConsoleVariableSetting: console variables set and console commands run around a render.
#pragma once

#include "CoreMinimal.h"
#include "MoviePipelineSetting.h"
#include "MovieRenderPipelineDataTypes.h"

#define UE_API STANDIN_MINIMALAPI_FUNCTION(MOVIERENDERPIPELINESETTINGS_API)

// Stand-in choice: ConsoleVariablePresets are left out (no ConsoleVariablesEditor plugin, no script interface properties).
UCLASS(MinimalAPI, Blueprintable)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINESETTINGS_API) UMoviePipelineConsoleVariableSetting : public UMoviePipelineSetting
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMoviePipelineConsoleVariableSetting, UMoviePipelineSetting, MOVIERENDERPIPELINESETTINGS_API)

public:
	UE_API UMoviePipelineConsoleVariableSetting();

#if WITH_EDITOR
	UE_API virtual FText GetDisplayText() const override;
#endif
	virtual bool IsValidOnShots() const override { return true; }
	virtual bool IsValidOnPrimary() const override { return true; }
	virtual int32 GetPriority() const override { return 1; }

	// Moves the overrides saved in the deprecated map into the list.
	UE_API virtual void PostLoad() override;

	// A copy of the overrides; they are changed through the functions below.
	UFUNCTION(BlueprintPure, Category = "Movie Render Pipeline")
	TArray<FMoviePipelineConsoleVariableEntry> GetConsoleVariables() const { return CVars; }

	// Removes the last override with that name, or all of them; true when one was removed.
	UFUNCTION(BlueprintCallable, Category = "Movie Render Pipeline")
	UE_API bool RemoveConsoleVariable(const FString& Name, const bool bRemoveAllInstances = false);

	// Updates the value of the last override with that name, or adds one.
	UFUNCTION(BlueprintCallable, Category = "Movie Render Pipeline")
	UE_API bool AddOrUpdateConsoleVariable(const FString& Name, const float Value);

	// Adds an override even when one with that name exists.
	UFUNCTION(BlueprintCallable, Category = "Movie Render Pipeline")
	UE_API bool AddConsoleVariable(const FString& Name, const float Value);

	// Enables or disables the last override with that name; false when there is none.
	UFUNCTION(BlueprintCallable, Category = "Movie Render Pipeline")
	UE_API bool UpdateConsoleVariableEnableState(const FString& Name, const bool bIsEnabled);

	// Deprecated in 5.2: the overrides before they could be disabled or repeated.
	UPROPERTY(meta = (DeprecatedProperty))
	TMap<FString, float> ConsoleVariables_DEPRECATED;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Game")
	TArray<FString> StartConsoleCommands;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Game")
	TArray<FString> EndConsoleCommands;

private:
	FMoviePipelineConsoleVariableEntry* FindLastEntry(const FString& Name);

	UPROPERTY(EditAnywhere, Category = "Game", meta = (DisplayName = "Console Variables", ScriptNoExport))
	TArray<FMoviePipelineConsoleVariableEntry> CVars;
};

#undef UE_API
