// The evaluated graph's functions reached through reflection: evaluated graphs and variable values.
#include <gtest/gtest.h>

#include "CoreMinimal.h"
#include "MovieRenderGraphReflectedCalls.h"
#include "UObject/Package.h"
#include "UObject/StrongObjectPtr.h"
#include "UObject/UnrealType.h"

// GetEvaluatedGraphs answers objects, and the variable lookup knows one name.
class UVLMRGraphCallsHolder : public UObject
{
	STANDIN_CLASS_BODY(UVLMRGraphCallsHolder, UObject, )
public:
	TArray<UObject*> GetEvaluatedGraphs() { return { this, nullptr, GetOuter() }; }

	bool GetVariableStringValueByName(const FString& InVariableName, const FString& InDefaultValue, FString& OutVariableValue)
	{
		OutVariableValue = InVariableName == TEXT("Take") ? FString(TEXT("7")) : InDefaultValue;
		return InVariableName == TEXT("Take");
	}
};

STANDIN_IMPLEMENT_CLASS(UVLMRGraphCallsHolder, CLASS_None, "VLMRModuleTests")
{
	STANDIN_FUNCTION(GetEvaluatedGraphs);
	STANDIN_FUNCTION(GetVariableStringValueByName, TEXT("InVariableName"), TEXT("InDefaultValue"), TEXT("OutVariableValue"));
}

// GetEvaluatedGraphs answers numbers, and the variable lookup's text parameters became names.
class UVLMRGraphCallsChanged : public UObject
{
	STANDIN_CLASS_BODY(UVLMRGraphCallsChanged, UObject, )
public:
	TArray<int32> GetEvaluatedGraphs() { return { 1, 2 }; }
	bool GetVariableStringValueByName(const FName& InVariableName, const FString& InDefaultValue, FString& OutVariableValue) { return true; }
};

STANDIN_IMPLEMENT_CLASS(UVLMRGraphCallsChanged, CLASS_None, "VLMRModuleTests")
{
	STANDIN_FUNCTION(GetEvaluatedGraphs);
	STANDIN_FUNCTION(GetVariableStringValueByName, TEXT("InVariableName"), TEXT("InDefaultValue"), TEXT("OutVariableValue"));
}

TEST(GraphReflectedCallTest, EvaluatedGraphsAreNamedByPathAndNullsSkipped)
{
	const TStrongObjectPtr<UVLMRGraphCallsHolder> Target(NewObject<UVLMRGraphCallsHolder>(GetTransientPackage(), TEXT("GraphCalls")));
	TArray<FString> Paths;
	FString Error;
	ASSERT_TRUE(VLMR::CallGetEvaluatedGraphs(Target.Get(), Paths, Error)) << TCHAR_TO_UTF8(*Error);
	EXPECT_EQ(Paths, TArray<FString>({ Target->GetPathName(), GetTransientPackage()->GetPathName() }));
}

TEST(GraphReflectedCallTest, VariableValuesComeBackWithTheirFoundFlag)
{
	const TStrongObjectPtr<UVLMRGraphCallsHolder> Target(NewObject<UVLMRGraphCallsHolder>());
	bool bFound = false;
	FString Value;
	FString Error;
	ASSERT_TRUE(VLMR::CallGetVariableStringValueByName(Target.Get(), TEXT("Take"), TEXT("0"), bFound, Value, Error));
	EXPECT_TRUE(bFound);
	EXPECT_EQ(Value, TEXT("7"));
	ASSERT_TRUE(VLMR::CallGetVariableStringValueByName(Target.Get(), TEXT("Other"), TEXT("0"), bFound, Value, Error));
	EXPECT_FALSE(bFound);
	EXPECT_EQ(Value, TEXT("0"));
}

TEST(GraphReflectedCallTest, ChangedContractsAreRefusedBeforeTheCall)
{
	const TStrongObjectPtr<UVLMRGraphCallsChanged> Target(NewObject<UVLMRGraphCallsChanged>());
	TArray<FString> Paths;
	FString Error;
	EXPECT_FALSE(VLMR::CallGetEvaluatedGraphs(Target.Get(), Paths, Error));
	EXPECT_EQ(Error, TEXT("MovieRenderGraph reflection contract changed: GetEvaluatedGraphs parameter 'ReturnValue' holds IntProperty, expected ObjectProperty or StructProperty"));
	EXPECT_TRUE(Paths.IsEmpty());

	bool bFound = false;
	FString Value = TEXT("untouched");
	EXPECT_FALSE(VLMR::CallGetVariableStringValueByName(Target.Get(), TEXT("Take"), TEXT("0"), bFound, Value, Error));
	EXPECT_EQ(Error, TEXT("MovieRenderGraph reflection contract changed: GetVariableStringValueByName parameter 'InVariableName' is NameProperty, expected StrProperty"));
	EXPECT_EQ(Value, TEXT("untouched"));
}
