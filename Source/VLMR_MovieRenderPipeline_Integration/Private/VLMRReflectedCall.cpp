#include "VLMRReflectedCall.h"

#include "UObject/Class.h"
#include "UObject/Object.h"
#include "UObject/UnrealType.h"

namespace VLMR
{
	static FString ContractError(const TCHAR* OwnerLabel, const FString& Detail)
	{
		return FString::Printf(TEXT("%s reflection contract changed: %s"), OwnerLabel ? OwnerLabel : TEXT("Engine"), *Detail);
	}

	UFunction* FindCheckedFunction(UObject* Target, FName FunctionName, TConstArrayView<FParameterRequirement> Requirements,
		const TCHAR* OwnerLabel, FString& OutError)
	{
		UFunction* Function = Target ? Target->FindFunction(FunctionName) : nullptr;
		if (!Function)
		{
			const FString TargetName = Target ? Target->GetPathName() : FString(TEXT("<null object>"));
			OutError = ContractError(OwnerLabel, FString::Printf(TEXT("%s was not found on %s"), *FunctionName.ToString(), *TargetName));
			return nullptr;
		}
		return ValidateContract(Function, Requirements, OwnerLabel, OutError) ? Function : nullptr;
	}

	static bool CheckRequirement(const UFunction* Function, const FParameterRequirement& Requirement, FString& OutDetail)
	{
		if (!Function)
		{
			OutDetail = TEXT("function is null");
			return false;
		}

		const FProperty* Property = Function->FindPropertyByName(Requirement.Name);
		if (!Property)
		{
			OutDetail = FString::Printf(TEXT("%s has no parameter '%s'"), *Function->GetName(), *Requirement.Name.ToString());
			return false;
		}

		if (Requirement.ExpectedClass && !Property->GetClass()->IsChildOf(Requirement.ExpectedClass))
		{
			OutDetail = FString::Printf(TEXT("%s parameter '%s' is %s, expected %s"), *Function->GetName(), *Requirement.Name.ToString(),
				*Property->GetClass()->GetName(), *Requirement.ExpectedClass->GetName());
			return false;
		}
		return true;
	}

	bool ValidateContract(const UFunction* Function, TConstArrayView<FParameterRequirement> Requirements,
		const TCHAR* OwnerLabel, FString& OutError)
	{
		for (const FParameterRequirement& Requirement : Requirements)
		{
			FString Detail;
			if (!CheckRequirement(Function, Requirement, Detail))
			{
				OutError = ContractError(OwnerLabel, Detail);
				return false;
			}
		}
		return true;
	}

	FProperty* FindTypedParameter(const UFunction* Function, FName ParameterName, FFieldClass* ExpectedClass,
		const TCHAR* KindLabel, FString& OutError)
	{
		if (!Function)
		{
			OutError = ContractError(nullptr, TEXT("no function bound"));
			return nullptr;
		}

		FProperty* Property = Function->FindPropertyByName(ParameterName);
		if (!Property || !Property->GetClass()->IsChildOf(ExpectedClass))
		{
			OutError = ContractError(nullptr, FString::Printf(TEXT("%s has no %s parameter '%s'"),
				*Function->GetName(), KindLabel, *ParameterName.ToString()));
			return nullptr;
		}
		return Property;
	}

	FReflectedCall::FReflectedCall(UFunction* InFunction)
		: Function(InFunction)
		, Parameters(InFunction)
	{
	}

	FString* FReflectedCall::FindStringValue(FName ParameterName, FString& OutError) const
	{
		FProperty* Property = FindTypedParameter(Function, ParameterName, FStrProperty::StaticClass(), TEXT("string"), OutError);
		return Property ? Property->ContainerPtrToValuePtr<FString>(const_cast<uint8*>(Parameters.GetStructMemory())) : nullptr;
	}

	bool FReflectedCall::SetString(FName ParameterName, const FString& Value, FString& OutError)
	{
		FString* Parameter = FindStringValue(ParameterName, OutError);
		if (Parameter)
		{
			*Parameter = Value;
		}
		return Parameter != nullptr;
	}

	bool FReflectedCall::GetString(FName ParameterName, FString& OutValue, FString& OutError) const
	{
		const FString* Parameter = FindStringValue(ParameterName, OutError);
		if (Parameter)
		{
			OutValue = *Parameter;
		}
		return Parameter != nullptr;
	}

	bool FReflectedCall::GetBool(FName ParameterName, bool& bOutValue, FString& OutError) const
	{
		FProperty* Property = FindTypedParameter(Function, ParameterName, FBoolProperty::StaticClass(), TEXT("bool"), OutError);
		if (!Property)
		{
			return false;
		}
		bOutValue = CastFieldChecked<FBoolProperty>(Property)->GetPropertyValue_InContainer(Parameters.GetStructMemory());
		return true;
	}

	void FReflectedCall::Invoke(UObject* Target)
	{
		if (Function && Target)
		{
			Target->ProcessEvent(Function, Parameters.GetStructMemory());
		}
	}
}
