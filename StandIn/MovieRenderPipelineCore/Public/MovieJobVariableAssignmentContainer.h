// UMovieJobVariableAssignmentContainer: a job's (or shot's) values for the variables of one graph.
#pragma once

#include "CoreMinimal.h"
#include "StructUtils/PropertyBag.h"
#include "UObject/Object.h"
#include "UObject/SoftObjectPtr.h"

#define UE_API STANDIN_MINIMALAPI_FUNCTION(MOVIERENDERPIPELINECORE_API)

class UMovieGraphConfig;
class UMovieGraphVariable;

UCLASS(MinimalAPI, BlueprintType)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINECORE_API) UMovieJobVariableAssignmentContainer : public UObject
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMovieJobVariableAssignmentContainer, UObject, MOVIERENDERPIPELINECORE_API)

public:
	UE_API UMovieJobVariableAssignmentContainer();

	void SetGraphConfig(const TSoftObjectPtr<UMovieGraphConfig>& InGraphConfig) { GraphConfig = InGraphConfig; }
	TSoftObjectPtr<UMovieGraphConfig> GetGraphConfig() const { return GraphConfig; }

	// Sets the assignment's value from its serialized text, adding the assignment when the variable has none yet.
	UFUNCTION(BlueprintCallable, Category = "Value")
	UE_API bool SetValueSerializedString(const UMovieGraphVariable* InGraphVariable, const FString& NewValue);

	// The assignment's value as serialized text; empty when the variable has no assignment.
	UFUNCTION(BlueprintCallable, Category = "Value")
	UE_API FString GetValueSerializedString(const UMovieGraphVariable* InGraphVariable);

	// Enables or disables the variable's assignment, adding the assignment when the variable has none yet.
	UFUNCTION(BlueprintCallable, Category = "Graph")
	UE_API bool SetVariableAssignmentEnableState(const UMovieGraphVariable* InGraphVariable, bool bIsEnabled);

	// False, leaving bOutIsEnabled alone, when the variable has no assignment.
	UFUNCTION(BlueprintCallable, Category = "Graph")
	UE_API bool GetVariableAssignmentEnableState(const UMovieGraphVariable* InGraphVariable, bool& bOutIsEnabled);

private:
	// The assignment of the variable, added with the variable's type and current value when missing; NAME_None without a variable.
	FName FindOrAddAssignment(const UMovieGraphVariable* InGraphVariable);

	UPROPERTY()
	TSoftObjectPtr<UMovieGraphConfig> GraphConfig;

	// One property per assigned variable, named after it.
	UPROPERTY()
	FInstancedPropertyBag Value;

	UPROPERTY()
	TArray<FName> EnabledAssignments;
};

#undef UE_API
