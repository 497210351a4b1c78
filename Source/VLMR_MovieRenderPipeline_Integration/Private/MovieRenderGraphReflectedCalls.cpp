#include "MovieRenderGraphReflectedCalls.h"

#include "UObject/Class.h"
#include "UObject/Object.h"
#include "UObject/UnrealType.h"
#include "VLMRReflectedCall.h"

namespace VLMR
{
	static const TCHAR* const GraphOwnerLabel = TEXT("MovieRenderGraph");

	bool HasReflectedFunction(const UObject* Target, FName FunctionName)
	{
		return Target && Target->FindFunction(FunctionName) != nullptr;
	}

	bool CallGetVariableStringValueByName(UObject* Target, const FString& VariableName, const FString& DefaultValue,
		bool& bOutFound, FString& OutValue, FString& OutError)
	{
		const FParameterRequirement Contract[] = {
			{ FName(TEXT("InVariableName")), FStrProperty::StaticClass() },
			{ FName(TEXT("InDefaultValue")), FStrProperty::StaticClass() },
			{ FName(TEXT("OutVariableValue")), FStrProperty::StaticClass() },
			{ FName(TEXT("ReturnValue")), FBoolProperty::StaticClass() },
		};
		UFunction* Function = FindCheckedFunction(Target, FName(TEXT("GetVariableStringValueByName")), Contract, GraphOwnerLabel, OutError);
		if (!Function)
		{
			return false;
		}
		FReflectedCall Call(Function);
		if (!Call.SetString(FName(TEXT("InVariableName")), VariableName, OutError) || !Call.SetString(FName(TEXT("InDefaultValue")), DefaultValue, OutError))
		{
			return false;
		}
		Call.Invoke(Target);
		return Call.GetBool(FName(TEXT("ReturnValue")), bOutFound, OutError) && Call.GetString(FName(TEXT("OutVariableValue")), OutValue, OutError);
	}

	// The array's inner property must hold objects (or structures, which carry no graph to name).
	static bool CheckEvaluatedGraphsInner(const UFunction* Function, FString& OutError)
	{
		const FArrayProperty* ReturnValue = CastField<FArrayProperty>(Function->FindPropertyByName(FName(TEXT("ReturnValue"))));
		const FProperty* Inner = ReturnValue ? ReturnValue->Inner : nullptr;
		if (Inner && (Inner->IsA<FObjectPropertyBase>() || Inner->IsA<FStructProperty>()))
		{
			return true;
		}
		const FString InnerClass = Inner ? Inner->GetClass()->GetName() : FString(TEXT("nothing"));
		OutError = FString::Printf(TEXT("%s reflection contract changed: %s parameter 'ReturnValue' holds %s, expected ObjectProperty or StructProperty"),
			GraphOwnerLabel, *Function->GetName(), *InnerClass);
		return false;
	}

	bool CallGetEvaluatedGraphs(UObject* Target, TArray<FString>& OutGraphPaths, FString& OutError)
	{
		const FParameterRequirement Contract[] = { { FName(TEXT("ReturnValue")), FArrayProperty::StaticClass() } };
		UFunction* Function = FindCheckedFunction(Target, FName(TEXT("GetEvaluatedGraphs")), Contract, GraphOwnerLabel, OutError);
		if (!Function || !CheckEvaluatedGraphsInner(Function, OutError))
		{
			return false;
		}
		FReflectedCall Call(Function);
		Call.Invoke(Target);
		const FArrayProperty* ReturnValue = CastFieldChecked<FArrayProperty>(Function->FindPropertyByName(FName(TEXT("ReturnValue"))));
		const FObjectPropertyBase* Inner = CastField<FObjectPropertyBase>(ReturnValue->Inner);
		FScriptArrayHelper Graphs(ReturnValue, ReturnValue->ContainerPtrToValuePtr<void>(Call.GetParameterMemory()));
		for (int32 Index = 0; Inner && Index < Graphs.Num(); ++Index)
		{
			if (const UObject* Graph = Inner->GetObjectPropertyValue(Graphs.GetRawPtr(Index)))
			{
				OutGraphPaths.Add(Graph->GetPathName());
			}
		}
		return true;
	}
}
