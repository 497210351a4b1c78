// UMoviePipelineSetting: the base of every Movie Render Queue setting a configuration holds.
#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "UObject/WeakObjectPtrTemplates.h"

#define UE_API STANDIN_MINIMALAPI_FUNCTION(MOVIERENDERPIPELINECORE_API)

class UMoviePipeline;
class UMoviePipelineExecutorJob;
struct FMoviePipelineFormatArgs;

enum class EMoviePipelineValidationState : uint8
{
	Valid = 0,
	Warnings = 1,
	Errors = 2
};

UCLASS(MinimalAPI, BlueprintType, Abstract)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINECORE_API) UMoviePipelineSetting : public UObject
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMoviePipelineSetting, UObject, MOVIERENDERPIPELINECORE_API)

public:
	UE_API UMoviePipelineSetting();

	// Validates the setting and caches the result for GetValidationState().
	void ValidateState() { ValidateStateImpl(); }

#if WITH_EDITOR
	UE_API virtual void PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent) override;

	UE_API virtual FText GetDisplayText() const;
	UE_API virtual FText GetCategoryText() const;
	virtual FText GetFooterText(UMoviePipelineExecutorJob* InJob) const { return FText(); }
	// Whether the editor UI lets the user disable the setting; SetIsEnabled does not consult it.
	virtual bool CanBeDisabled() const { return true; }
#endif

	virtual bool IsValidOnShots() const PURE_VIRTUAL(UMoviePipelineSetting::IsValidOnShots, return false;);
	virtual bool IsValidOnPrimary() const PURE_VIRTUAL(UMoviePipelineSetting::IsValidOnPrimary, return false;);

	// True for settings that must take part in a render even when only added transiently.
	virtual bool IgnoreTransientFilters() const { return false; }
	// Higher priority settings are set up after lower priority ones.
	virtual int32 GetPriority() const { return 0; }
	// Whether only one setting of this class may be active in a pipeline.
	virtual bool IsSolo() const { return true; }

	virtual EMoviePipelineValidationState GetValidationState() const { return ValidationState; }
	UE_API virtual void ValidateStateImpl();
	virtual TArray<FText> GetValidationResults() const { return ValidationResults; }

	// Adds the file name tokens ({name} -> value) this setting provides.
	virtual void GetFormatArguments(FMoviePipelineFormatArgs& InOutFormatArgs) const {}

	// Called by the pipeline that is about to render with this setting.
	UE_API void OnMoviePipelineInitialized(UMoviePipeline* InPipeline);
	// The pipeline rendering with this setting; null outside a render.
	UE_API UMoviePipeline* GetPipeline() const;

	UFUNCTION(BlueprintPure, Category = "Movie Render Pipeline")
	virtual bool IsEnabled() const { return bEnabled; }
	UFUNCTION(BlueprintCallable, Category = "Movie Render Pipeline")
	virtual void SetIsEnabled(bool bInEnabled) { bEnabled = bInEnabled; }

protected:
	// Prepares the setting for the render of InPipeline.
	virtual void SetupForPipelineImpl(UMoviePipeline* InPipeline) {}

	UPROPERTY()
	bool bEnabled;

	EMoviePipelineValidationState ValidationState;
	TArray<FText> ValidationResults;

private:
	TWeakObjectPtr<UMoviePipeline> CachedPipeline;
};

#undef UE_API
