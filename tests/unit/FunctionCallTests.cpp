// Reflected functions: their parameter properties, parameter blocks and calls through ProcessEvent.

#include "ReflectionTestTypes.h"

#include "UObject/Package.h"
#include "UObject/StructOnScope.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

#include <gtest/gtest.h>

namespace
{
	struct FParameter
	{
		FString Name;
		FString CPPType;
		EPropertyFlags Flags;
		int32 Offset;
	};

	TArray<FParameter> ParametersOf(const UFunction* Function)
	{
		TArray<FParameter> Parameters;
		for (TFieldIterator<FProperty> It(Function); It; ++It)
		{
			FString Extended;
			const FString CPPType = It->GetCPPType(&Extended) + Extended;
			Parameters.Add({ It->GetName(), CPPType, It->PropertyFlags & CPF_ParmFlags, It->GetOffset_ForUFunction() });
		}
		return Parameters;
	}

	template<class T>
	T& ParameterValue(FStructOnScope& Parms, const UFunction* Function, const TCHAR* Name)
	{
		FProperty* Property = Function->FindPropertyByName(FName(Name));
		check(Property);
		return *Property->ContainerPtrToValuePtr<T>(Parms.GetStructMemory());
	}

	UReflectionTestFunctions* NewFunctionsObject(const TCHAR* Name)
	{
		return NewObject<UReflectionTestFunctions>(CreatePackage(*(FString(TEXT("/Game/FunctionCallTests/")) + Name)), Name);
	}
}

TEST(FunctionCallTests, FunctionsAreFoundByNameOnTheClassAndItsSubclasses)
{
	UReflectionTestFunctions* Object = NewFunctionsObject(TEXT("Lookup"));
	UFunction* Add = Object->FindFunction(TEXT("Add"));
	ASSERT_NE(Add, nullptr);
	EXPECT_EQ(Object->FindFunction(TEXT("add")), Add);
	EXPECT_EQ(Object->FindFunction(TEXT("Missing")), nullptr);
	EXPECT_EQ(Add->GetOuter(), UReflectionTestFunctions::StaticClass());
	EXPECT_EQ(Add->GetOuterUClass(), UReflectionTestFunctions::StaticClass());
	EXPECT_EQ(Add->GetPathName(), TEXT("/Script/ReflectionTests.ReflectionTestFunctions:Add"));
	EXPECT_EQ(UReflectionTestFunctions::StaticClass()->FindFunctionByName(TEXT("Add"), EIncludeSuperFlag::ExcludeSuper), Add);

	TArray<FString> FunctionNames;
	for (TFieldIterator<UFunction> It(UReflectionTestFunctions::StaticClass()); It; ++It)
	{
		FunctionNames.Add(It->GetName());
	}
	EXPECT_EQ(FunctionNames, TArray<FString>({ TEXT("Add"), TEXT("Split"), TEXT("FindChild"), TEXT("Describe"), TEXT("MakeSequence"), TEXT("SetMode"), TEXT("Scale") }));
}

TEST(FunctionCallTests, ParametersAreLaidOutAsTheEngineDoes)
{
	UClass* Class = UReflectionTestFunctions::StaticClass();

	UFunction* Add = Class->FindFunctionByName(TEXT("Add"));
	const TArray<FParameter> AddParameters = ParametersOf(Add);
	ASSERT_EQ(AddParameters.Num(), 3);
	EXPECT_EQ(AddParameters[0].Name, TEXT("A"));
	EXPECT_EQ(AddParameters[0].Flags, CPF_Parm);
	EXPECT_EQ(AddParameters[0].Offset, 0);
	EXPECT_EQ(AddParameters[1].Name, TEXT("B"));
	EXPECT_EQ(AddParameters[1].Offset, 4);
	EXPECT_EQ(AddParameters[2].Name, TEXT("ReturnValue"));
	EXPECT_EQ(AddParameters[2].Flags, CPF_Parm | CPF_OutParm | CPF_ReturnParm);
	EXPECT_EQ(AddParameters[2].Offset, 8);
	EXPECT_EQ(Add->NumParms, 3);
	EXPECT_EQ(Add->ParmsSize, 12);
	EXPECT_EQ(Add->ReturnValueOffset, 8);
	EXPECT_EQ(Add->GetReturnProperty(), Add->FindPropertyByName(TEXT("ReturnValue")));
	EXPECT_TRUE(Add->HasAllFunctionFlags(FUNC_Native | FUNC_Public | FUNC_Const | FUNC_HasOutParms));
	EXPECT_FALSE(Add->HasAnyFunctionFlags(FUNC_Static));

	UFunction* Split = Class->FindFunctionByName(TEXT("Split"));
	const TArray<FParameter> SplitParameters = ParametersOf(Split);
	ASSERT_EQ(SplitParameters.Num(), 3);
	EXPECT_EQ(SplitParameters[0].Flags, CPF_Parm) << "const references are input parameters";
	EXPECT_EQ(SplitParameters[0].CPPType, TEXT("FString"));
	EXPECT_EQ(SplitParameters[1].Flags, CPF_Parm | CPF_OutParm);
	EXPECT_EQ(SplitParameters[2].Offset, int32(sizeof(FString) * 2));
	EXPECT_EQ(Split->GetReturnProperty(), nullptr);
	EXPECT_EQ(Split->ReturnValueOffset, MAX_uint16);
	EXPECT_TRUE(Split->HasAnyFunctionFlags(FUNC_HasOutParms));

	UFunction* FindChild = Class->FindFunctionByName(TEXT("FindChild"));
	const TArray<FParameter> FindParameters = ParametersOf(FindChild);
	ASSERT_EQ(FindParameters.Num(), 3);
	EXPECT_EQ(FindParameters[0].CPPType, TEXT("FName"));
	EXPECT_EQ(FindParameters[1].CPPType, TEXT("UReflectionTestObject*"));
	EXPECT_EQ(FindParameters[1].Offset, 8) << "an 8-byte aligned pointer after a 4-byte name";
	EXPECT_EQ(FindParameters[2].CPPType, TEXT("bool"));
	EXPECT_EQ(FindParameters[2].Offset, 16);
	EXPECT_EQ(FindChild->ParmsSize, 24);

	UFunction* Describe = Class->FindFunctionByName(TEXT("Describe"));
	EXPECT_TRUE(Describe->HasAnyFunctionFlags(FUNC_Static));
	EXPECT_FALSE(Describe->HasAnyFunctionFlags(FUNC_Const));
	EXPECT_EQ(ParametersOf(Class->FindFunctionByName(TEXT("MakeSequence"))).Last().CPPType, TEXT("TArray<int32>"));
	EXPECT_EQ(ParametersOf(Class->FindFunctionByName(TEXT("SetMode")))[0].CPPType, TEXT("EReflectionTestMode"));
	EXPECT_FALSE(Class->FindFunctionByName(TEXT("SetMode"))->HasAnyFunctionFlags(FUNC_HasOutParms));
}

TEST(FunctionCallTests, ProcessEventCallsThroughAParameterBlock)
{
	UReflectionTestFunctions* Object = NewFunctionsObject(TEXT("Calls"));

	UFunction* Add = Object->FindFunction(TEXT("Add"));
	FStructOnScope AddParms(Add);
	ParameterValue<int32>(AddParms, Add, TEXT("A")) = 40;
	ParameterValue<int32>(AddParms, Add, TEXT("B")) = 2;
	Object->ProcessEvent(Add, AddParms.GetStructMemory());
	EXPECT_EQ(ParameterValue<int32>(AddParms, Add, TEXT("ReturnValue")), 42);

	UFunction* Split = Object->FindFunction(TEXT("Split"));
	FStructOnScope SplitParms(Split);
	ParameterValue<FString>(SplitParms, Split, TEXT("In")) = TEXT("left,right");
	Object->ProcessEvent(Split, SplitParms.GetStructMemory());
	EXPECT_EQ(ParameterValue<FString>(SplitParms, Split, TEXT("OutLeft")), TEXT("left"));
	EXPECT_EQ(ParameterValue<FString>(SplitParms, Split, TEXT("OutRight")), TEXT("right"));
	EXPECT_EQ(ParameterValue<FString>(SplitParms, Split, TEXT("In")), TEXT("left,right")) << "inputs are passed by copy or const reference";

	UReflectionTestObject* Child = NewObject<UReflectionTestObject>(Object, TEXT("Wanted"));
	Object->Children.Add(Child);
	UFunction* FindChild = Object->FindFunction(TEXT("FindChild"));
	FStructOnScope FindParms(FindChild);
	ParameterValue<FName>(FindParms, FindChild, TEXT("ChildName")) = TEXT("Wanted");
	Object->ProcessEvent(FindChild, FindParms.GetStructMemory());
	EXPECT_TRUE(ParameterValue<bool>(FindParms, FindChild, TEXT("ReturnValue")));
	EXPECT_EQ(ParameterValue<UReflectionTestObject*>(FindParms, FindChild, TEXT("OutChild")), Child);

	UFunction* Describe = Object->FindFunction(TEXT("Describe"));
	FStructOnScope DescribeParms(Describe);
	ParameterValue<int32>(DescribeParms, Describe, TEXT("Value")) = 7;
	Object->ProcessEvent(Describe, DescribeParms.GetStructMemory());
	EXPECT_EQ(ParameterValue<FString>(DescribeParms, Describe, TEXT("ReturnValue")), TEXT("Value 7"));

	UFunction* MakeSequence = Object->FindFunction(TEXT("MakeSequence"));
	FStructOnScope SequenceParms(MakeSequence);
	ParameterValue<int32>(SequenceParms, MakeSequence, TEXT("Count")) = 3;
	Object->ProcessEvent(MakeSequence, SequenceParms.GetStructMemory());
	EXPECT_EQ(ParameterValue<TArray<int32>>(SequenceParms, MakeSequence, TEXT("ReturnValue")), TArray<int32>({ 0, 10, 20 }));

	UFunction* Scale = Object->FindFunction(TEXT("Scale"));
	FStructOnScope ScaleParms(Scale);
	ParameterValue<FIntPoint>(ScaleParms, Scale, TEXT("In")) = FIntPoint(3, 4);
	ParameterValue<int32>(ScaleParms, Scale, TEXT("Factor")) = 2;
	Object->ProcessEvent(Scale, ScaleParms.GetStructMemory());
	EXPECT_EQ(ParameterValue<FIntPoint>(ScaleParms, Scale, TEXT("ReturnValue")), FIntPoint(6, 8));
}

TEST(FunctionCallTests, ProcessEventAcceptsAHandWrittenParameterStruct)
{
	UReflectionTestFunctions* Object = NewFunctionsObject(TEXT("HandWritten"));
	struct FSplitParms
	{
		FString In;
		FString OutLeft;
		FString OutRight;
	};
	FSplitParms Parms{ TEXT("a,b"), FString(), FString() };
	Object->ProcessEvent(Object->FindFunction(TEXT("Split")), &Parms);
	EXPECT_EQ(Parms.OutLeft, TEXT("a"));
	EXPECT_EQ(Parms.OutRight, TEXT("b"));

	struct FSetModeParms
	{
		EReflectionTestMode InMode;
	};
	FSetModeParms ModeParms{ EReflectionTestMode::Third };
	Object->ProcessEvent(Object->FindFunction(TEXT("SetMode")), &ModeParms);
	EXPECT_EQ(Object->Mode, EReflectionTestMode::Third);
	EXPECT_EQ(Object->CallCount, 1);
}

TEST(FunctionCallTests, ParametersImportFromTextBeforeTheCall)
{
	UReflectionTestFunctions* Object = NewFunctionsObject(TEXT("FromText"));
	UFunction* SetMode = Object->FindFunction(TEXT("SetMode"));
	FStructOnScope Parms(SetMode);
	FProperty* InMode = SetMode->FindPropertyByName(TEXT("InMode"));
	ASSERT_NE(InMode->ImportText_InContainer(TEXT("Second"), Parms.GetStructMemory(), Object, PPF_None, nullptr), nullptr);
	Object->ProcessEvent(SetMode, Parms.GetStructMemory());
	EXPECT_EQ(Object->Mode, EReflectionTestMode::Second);

	UFunction* Scale = Object->FindFunction(TEXT("Scale"));
	FStructOnScope ScaleParms(Scale);
	ASSERT_NE(Scale->FindPropertyByName(TEXT("In"))->ImportText_InContainer(TEXT("(X=5,Y=6)"), ScaleParms.GetStructMemory(), Object, PPF_None, nullptr), nullptr);
	ParameterValue<int32>(ScaleParms, Scale, TEXT("Factor")) = 10;
	Object->ProcessEvent(Scale, ScaleParms.GetStructMemory());
	FString Result;
	Scale->GetReturnProperty()->ExportTextItem_InContainer(Result, ScaleParms.GetStructMemory(), nullptr, nullptr, PPF_None);
	EXPECT_EQ(Result, TEXT("(X=50,Y=60)"));
}

TEST(FunctionCallTests, ProcessEventRefusesMismatchedCalls)
{
	UReflectionTestFunctions* Object = NewFunctionsObject(TEXT("Mismatched"));
	UReflectionTestObject* Other = NewObject<UReflectionTestObject>(Object->GetPackage(), TEXT("Other"));
	UFunction* SetMode = Object->FindFunction(TEXT("SetMode"));
	FStructOnScope Parms(SetMode);

	Other->ProcessEvent(SetMode, Parms.GetStructMemory());
	Object->ProcessEvent(SetMode, nullptr);
	Object->ProcessEvent(nullptr, Parms.GetStructMemory());
	EXPECT_EQ(Object->CallCount, 0);

	Object->ProcessEvent(SetMode, Parms.GetStructMemory());
	EXPECT_EQ(Object->CallCount, 1);
}
