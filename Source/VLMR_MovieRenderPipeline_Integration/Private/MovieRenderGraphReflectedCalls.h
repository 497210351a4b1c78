// The evaluated graph's functions that other modules reach only through reflection, called with their contracts checked.
#pragma once

#include "CoreMinimal.h"

class UObject;

namespace VLMR
{
	// Whether the object's class has a function of this name.
	bool HasReflectedFunction(const UObject* Target, FName FunctionName);

	// GetVariableStringValueByName(name, default) on the target: its boolean result and its text; false with OutError when
	// the function is missing or its parameters are not what they were.
	bool CallGetVariableStringValueByName(UObject* Target, const FString& VariableName, const FString& DefaultValue,
		bool& bOutFound, FString& OutValue, FString& OutError);

	// GetEvaluatedGraphs() on the target, as the path names of the graphs; false with OutError on a contract failure.
	bool CallGetEvaluatedGraphs(UObject* Target, TArray<FString>& OutGraphPaths, FString& OutError);
}
