// Engine functions found by name and called through their parameter block, with their parameters checked first.
#include <gtest/gtest.h>

#include "CoreMinimal.h"
#include "UObject/Package.h"
#include "UObject/UnrealType.h"
#include "VLMRReflectedCall.h"

// Lacks every function the module calls by reflection.
class UVLMRContractEmpty : public UObject
{
	STANDIN_CLASS_BODY(UVLMRContractEmpty, UObject, )
};

STANDIN_IMPLEMENT_CLASS(UVLMRContractEmpty, CLASS_None, "VLMRModuleTests")
{
}

// Has the functions, with a ReturnValue of the wrong property class for GetEvaluatedGraphs.
class UVLMRContractHolder : public UObject
{
	STANDIN_CLASS_BODY(UVLMRContractHolder, UObject, )
public:
	int32 GetEvaluatedGraphs() { return 3; }

	bool GetVariableStringValueByName(const FString& InVariableName, const FString& InDefaultValue, FString& OutVariableValue)
	{
		if (InVariableName == TEXT("Known"))
		{
			OutVariableValue = TEXT("1.5");
			return true;
		}
		OutVariableValue = InDefaultValue;
		return false;
	}
};

STANDIN_IMPLEMENT_CLASS(UVLMRContractHolder, CLASS_None, "VLMRModuleTests")
{
	STANDIN_FUNCTION(GetEvaluatedGraphs);
	STANDIN_FUNCTION(GetVariableStringValueByName, TEXT("InVariableName"), TEXT("InDefaultValue"), TEXT("OutVariableValue"));
}

namespace
{
	const VLMR::FParameterRequirement EvaluatedGraphsContract[] = {
		{ FName(TEXT("ReturnValue")), FArrayProperty::StaticClass() },
	};

	const VLMR::FParameterRequirement VariableValueContract[] = {
		{ FName(TEXT("InVariableName")), FStrProperty::StaticClass() },
		{ FName(TEXT("InDefaultValue")), FStrProperty::StaticClass() },
		{ FName(TEXT("OutVariableValue")), FStrProperty::StaticClass() },
		{ FName(TEXT("ReturnValue")), FBoolProperty::StaticClass() },
	};
}

TEST(ReflectedCallTest, MissingFunctionNamesTheTargetPath)
{
	UVLMRContractEmpty* Target = NewObject<UVLMRContractEmpty>(GetTransientPackage(), TEXT("ContractEmpty"));
	FString Error;
	EXPECT_EQ(VLMR::FindCheckedFunction(Target, TEXT("GetEvaluatedGraphs"), EvaluatedGraphsContract, TEXT("MovieRenderGraph"), Error), nullptr);
	EXPECT_STREQ(*Error, *FString::Printf(TEXT("MovieRenderGraph reflection contract changed: GetEvaluatedGraphs was not found on %s"), *Target->GetPathName()));

	EXPECT_EQ(VLMR::FindCheckedFunction(nullptr, TEXT("GetEvaluatedGraphs"), EvaluatedGraphsContract, nullptr, Error), nullptr);
	EXPECT_STREQ(*Error, TEXT("Engine reflection contract changed: GetEvaluatedGraphs was not found on <null object>"));
}

TEST(ReflectedCallTest, WrongReturnPropertyClassNamesBothClasses)
{
	UVLMRContractHolder* Target = NewObject<UVLMRContractHolder>();
	FString Error;
	EXPECT_EQ(VLMR::FindCheckedFunction(Target, TEXT("GetEvaluatedGraphs"), EvaluatedGraphsContract, TEXT("MovieRenderGraph"), Error), nullptr);
	EXPECT_STREQ(*Error, TEXT("MovieRenderGraph reflection contract changed: GetEvaluatedGraphs parameter 'ReturnValue' is IntProperty, expected ArrayProperty"));
}

TEST(ReflectedCallTest, ContractStopsAtTheFirstMissingParameter)
{
	UVLMRContractHolder* Target = NewObject<UVLMRContractHolder>();
	const VLMR::FParameterRequirement Contract[] = {
		{ FName(TEXT("InVariableName")), FStrProperty::StaticClass() },
		{ FName(TEXT("InMissing")), FStrProperty::StaticClass() },
		{ FName(TEXT("AlsoMissing")), nullptr },
	};
	FString Error;
	EXPECT_EQ(VLMR::FindCheckedFunction(Target, TEXT("GetVariableStringValueByName"), Contract, TEXT("MovieRenderGraph"), Error), nullptr);
	EXPECT_STREQ(*Error, TEXT("MovieRenderGraph reflection contract changed: GetVariableStringValueByName has no parameter 'InMissing'"));

	EXPECT_FALSE(VLMR::ValidateContract(nullptr, Contract, TEXT("MovieRenderGraph"), Error));
	EXPECT_STREQ(*Error, TEXT("MovieRenderGraph reflection contract changed: function is null"));
}

TEST(ReflectedCallTest, TypedParameterLookupChecksTheKind)
{
	UVLMRContractHolder* Target = NewObject<UVLMRContractHolder>();
	UFunction* Function = Target->FindFunction(TEXT("GetVariableStringValueByName"));
	ASSERT_NE(Function, nullptr);
	FString Error;
	EXPECT_NE(VLMR::FindTypedParameter(Function, TEXT("ReturnValue"), FBoolProperty::StaticClass(), TEXT("bool"), Error), nullptr);
	EXPECT_EQ(VLMR::FindTypedParameter(Function, TEXT("InVariableName"), FBoolProperty::StaticClass(), TEXT("bool"), Error), nullptr);
	EXPECT_STREQ(*Error, TEXT("Engine reflection contract changed: GetVariableStringValueByName has no bool parameter 'InVariableName'"));
	EXPECT_EQ(VLMR::FindTypedParameter(nullptr, TEXT("ReturnValue"), FBoolProperty::StaticClass(), TEXT("bool"), Error), nullptr);
	EXPECT_STREQ(*Error, TEXT("Engine reflection contract changed: no function bound"));
}

TEST(ReflectedCallTest, ParameterBlockCarriesInputsAndOutputs)
{
	UVLMRContractHolder* Target = NewObject<UVLMRContractHolder>();
	FString Error;
	UFunction* Function = VLMR::FindCheckedFunction(Target, TEXT("GetVariableStringValueByName"), VariableValueContract, TEXT("MovieRenderGraph"), Error);
	ASSERT_NE(Function, nullptr) << TCHAR_TO_UTF8(*Error);

	for (const TCHAR* Name : { TEXT("Known"), TEXT("Unknown") })
	{
		VLMR::FReflectedCall Call(Function);
		ASSERT_TRUE(Call.SetString(TEXT("InVariableName"), Name, Error));
		ASSERT_TRUE(Call.SetString(TEXT("InDefaultValue"), TEXT("fallback"), Error));
		Call.Invoke(Target);
		bool bFound = false;
		FString Value;
		ASSERT_TRUE(Call.GetBool(TEXT("ReturnValue"), bFound, Error));
		ASSERT_TRUE(Call.GetString(TEXT("OutVariableValue"), Value, Error));
		const bool bKnown = FCString::Strcmp(Name, TEXT("Known")) == 0;
		EXPECT_EQ(bFound, bKnown);
		EXPECT_STREQ(*Value, bKnown ? TEXT("1.5") : TEXT("fallback"));
		EXPECT_FALSE(Call.SetString(TEXT("ReturnValue"), TEXT("x"), Error));
	}
}
