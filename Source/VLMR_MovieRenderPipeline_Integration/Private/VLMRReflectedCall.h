// Engine functions found by name through reflection and called with their parameters checked first.
#pragma once

#include "CoreMinimal.h"
#include "UObject/StructOnScope.h"

class FFieldClass;
class FProperty;
class UFunction;
class UObject;

namespace VLMR
{
	// One parameter a reflected function must have: its name and the property class it must be (or derive from).
	struct FParameterRequirement
	{
		FName Name;
		FFieldClass* ExpectedClass = nullptr;
	};

	// Finds a function by name on the target's class and checks its parameters; null with OutError on any mismatch.
	UFunction* FindCheckedFunction(UObject* Target, FName FunctionName, TConstArrayView<FParameterRequirement> Requirements,
		const TCHAR* OwnerLabel, FString& OutError);

	// Checks every requirement in order and stops at the first failure.
	bool ValidateContract(const UFunction* Function, TConstArrayView<FParameterRequirement> Requirements,
		const TCHAR* OwnerLabel, FString& OutError);

	// One parameter of a bound function by exact name, checked to be of the given property type.
	FProperty* FindTypedParameter(const UFunction* Function, FName ParameterName, FFieldClass* ExpectedClass,
		const TCHAR* KindLabel, FString& OutError);

	// A reflected function's parameter block: filled by name, invoked on a target, read back by name, freed with the call.
	class FReflectedCall
	{
	public:
		explicit FReflectedCall(UFunction* InFunction);

		bool SetString(FName ParameterName, const FString& Value, FString& OutError);
		bool GetString(FName ParameterName, FString& OutValue, FString& OutError) const;
		bool GetBool(FName ParameterName, bool& bOutValue, FString& OutError) const;
		void Invoke(UObject* Target);
		uint8* GetParameterMemory() { return Parameters.GetStructMemory(); }

	private:
		FString* FindStringValue(FName ParameterName, FString& OutError) const;

		UFunction* Function = nullptr;
		FStructOnScope Parameters;
	};
}
