// UMoviePipelineSetting_BlueprintBase: the base of settings implemented in Blueprints, configured by properties.
#pragma once

#include "CoreMinimal.h"
#include "MoviePipelineSetting.h"

#define UE_API STANDIN_MINIMALAPI_FUNCTION(MOVIERENDERPIPELINECORE_API)

UCLASS(MinimalAPI, Blueprintable, Abstract)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINECORE_API) UMoviePipelineSetting_BlueprintBase : public UMoviePipelineSetting
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMoviePipelineSetting_BlueprintBase, UMoviePipelineSetting, MOVIERENDERPIPELINECORE_API)

public:
	UE_API UMoviePipelineSetting_BlueprintBase();

#if WITH_EDITOR
	virtual FText GetCategoryText() const override { return CategoryText; }
	virtual bool CanBeDisabled() const override { return bCanBeDisabled; }
#endif
	virtual bool IsValidOnShots() const override { return bIsValidOnShots; }
	virtual bool IsValidOnPrimary() const override { return bIsValidOnPrimary; }

protected:
	UPROPERTY(EditDefaultsOnly, BlueprintReadWrite, Category = "Movie Render Pipeline")
	FText CategoryText;

	UPROPERTY(EditDefaultsOnly, BlueprintReadWrite, Category = "Movie Render Pipeline")
	bool bIsValidOnPrimary;

	UPROPERTY(EditDefaultsOnly, BlueprintReadWrite, Category = "Movie Render Pipeline")
	bool bIsValidOnShots;

	UPROPERTY(EditDefaultsOnly, BlueprintReadWrite, Category = "Movie Render Pipeline")
	bool bCanBeDisabled;
};

#undef UE_API
