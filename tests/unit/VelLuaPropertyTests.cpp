#include "VelLuaProperty.h"

#include "Math/IntPoint.h"
#include "UObject/Class.h"
#include "UObject/UnrealType.h"

#include <gtest/gtest.h>

#include <string>

UENUM()
enum class EVelTestMode : uint8
{
	First,
	Second,
	Third = 5,
};
STANDIN_DECLARE_ENUM(EVelTestMode, )
STANDIN_IMPLEMENT_ENUM(EVelTestMode, "VelmireAITests", First, Second, Third)

USTRUCT()
struct FVelTestInner
{
	STANDIN_STRUCT_BODY(FVelTestInner, )

public:
	int32 Count = 0;
	FString Label;
};

STANDIN_IMPLEMENT_STRUCT(FVelTestInner, "VelmireAITests")
{
	STANDIN_PROPERTY(Count, CPF_Edit);
	STANDIN_PROPERTY(Label, CPF_Edit);
}

USTRUCT()
struct FVelTestValues
{
	STANDIN_STRUCT_BODY(FVelTestValues, )

public:
	int8 Tiny = 0;
	uint8 Byte = 0;
	int32 Count = 0;
	uint32 Unsigned = 0;
	int64 Big = 0;
	float Ratio = 0.0f;
	double Precise = 0.0;
	bool bEnabled = false;
	FString Name;
	FIntPoint Size = FIntPoint(0, 0);
	TArray<int32> Numbers;
	TArray<FVelTestInner> Items;
	EVelTestMode Mode = EVelTestMode::First;
	FVelTestInner Inner;
};

STANDIN_IMPLEMENT_STRUCT(FVelTestValues, "VelmireAITests")
{
	STANDIN_PROPERTY(Tiny, CPF_Edit);
	STANDIN_PROPERTY(Byte, CPF_Edit);
	STANDIN_PROPERTY(Count, CPF_Edit);
	STANDIN_PROPERTY(Unsigned, CPF_Edit);
	STANDIN_PROPERTY(Big, CPF_Edit);
	STANDIN_PROPERTY(Ratio, CPF_Edit);
	STANDIN_PROPERTY(Precise, CPF_Edit);
	STANDIN_PROPERTY(bEnabled, CPF_Edit);
	STANDIN_PROPERTY(Name, CPF_Edit);
	STANDIN_PROPERTY(Size, CPF_Edit);
	STANDIN_PROPERTY(Numbers, CPF_Edit);
	STANDIN_PROPERTY(Items, CPF_Edit);
	STANDIN_PROPERTY(Mode, CPF_Edit);
	STANDIN_PROPERTY(Inner, CPF_Edit);
}

namespace
{
	FProperty* FindTestProperty(const TCHAR* Name)
	{
		FProperty* Property = VelLuaProperty::FindPropertyByName(FVelTestValues::StaticStruct(), Name);
		EXPECT_NE(Property, nullptr) << TCHAR_TO_UTF8(Name);
		return Property;
	}

	// Applies the Lua expression's value to one property of Values and commits it; false with the reason on a refusal.
	bool ApplyLua(FVelTestValues& Values, const TCHAR* PropertyName, const char* LuaExpression, FString& OutError)
	{
		sol::state Lua;
		Lua.open_libraries(sol::lib::base, sol::lib::math);
		const sol::object LuaValue = Lua.safe_script(std::string("return ") + LuaExpression).get<sol::object>();
		FProperty* Property = FindTestProperty(PropertyName);
		void* Target = Property->ContainerPtrToValuePtr<void>(&Values);
		VelLuaProperty::FStagedPropertyValue Staged(Property, Target);
		if (!Staged.Apply(LuaValue, OutError))
		{
			return false;
		}
		Staged.Commit(Target);
		return true;
	}

	// The refusal's reason; the values must not change.
	FString RefusalOf(FVelTestValues& Values, const TCHAR* PropertyName, const char* LuaExpression)
	{
		const FVelTestValues Before = Values;
		FString Error;
		EXPECT_FALSE(ApplyLua(Values, PropertyName, LuaExpression, Error)) << LuaExpression;
		EXPECT_TRUE(FVelTestValues::StaticStruct()->CompareScriptStruct(&Before, &Values, 0)) << LuaExpression;
		return Error;
	}

	void ExpectApplied(FVelTestValues& Values, const TCHAR* PropertyName, const char* LuaExpression)
	{
		FString Error;
		EXPECT_TRUE(ApplyLua(Values, PropertyName, LuaExpression, Error)) << LuaExpression << ": " << TCHAR_TO_UTF8(*Error);
	}
}

TEST(VelLuaProperty, FindsPropertiesByExactNameThenIgnoringCase)
{
	UScriptStruct* Struct = FVelTestValues::StaticStruct();
	FProperty* Count = VelLuaProperty::FindPropertyByName(Struct, TEXT("Count"));
	ASSERT_NE(Count, nullptr);
	EXPECT_EQ(VelLuaProperty::FindPropertyByName(Struct, TEXT("count")), Count);
	EXPECT_EQ(VelLuaProperty::FindPropertyByName(Struct, TEXT("BENABLED")), VelLuaProperty::FindPropertyByName(Struct, TEXT("bEnabled")));
	EXPECT_EQ(VelLuaProperty::FindPropertyByName(Struct, TEXT("Missing")), nullptr);
	EXPECT_EQ(VelLuaProperty::FindPropertyByName(Struct, TEXT("")), nullptr);
	EXPECT_EQ(VelLuaProperty::FindPropertyByName(nullptr, TEXT("Count")), nullptr);
}

TEST(VelLuaProperty, SetFromStringParsesExportTextAndLeavesTheValueOnFailure)
{
	FVelTestValues Values;
	Values.Count = 5;
	FString Error;
	EXPECT_TRUE(VelLuaProperty::SetPropertyValueFromStringSafe(FindTestProperty(TEXT("Count")), &Values, nullptr, TEXT("42"), Error));
	EXPECT_EQ(Values.Count, 42);
	EXPECT_TRUE(VelLuaProperty::SetPropertyValueFromStringSafe(FindTestProperty(TEXT("Size")), &Values, nullptr, TEXT("(X=1280,Y=720)"), Error));
	EXPECT_EQ(Values.Size, FIntPoint(1280, 720));
	EXPECT_TRUE(VelLuaProperty::SetPropertyValueFromStringSafe(FindTestProperty(TEXT("Numbers")), &Values, nullptr, TEXT("(1,2,3)"), Error));
	EXPECT_EQ(Values.Numbers, TArray<int32>({ 1, 2, 3 }));
	EXPECT_TRUE(VelLuaProperty::SetPropertyValueFromStringSafe(FindTestProperty(TEXT("Mode")), &Values, nullptr, TEXT("Second"), Error));
	EXPECT_EQ(Values.Mode, EVelTestMode::Second);

	EXPECT_FALSE(VelLuaProperty::SetPropertyValueFromStringSafe(FindTestProperty(TEXT("Count")), &Values, nullptr, TEXT("forty"), Error));
	EXPECT_TRUE(Error.StartsWith(TEXT("cannot set Count (int32) from 'forty'"))) << TCHAR_TO_UTF8(*Error);
	EXPECT_FALSE(VelLuaProperty::SetPropertyValueFromStringSafe(FindTestProperty(TEXT("Count")), &Values, nullptr, TEXT("12abc"), Error));
	EXPECT_TRUE(Error.StartsWith(TEXT("cannot set Count (int32) from '12abc'"))) << TCHAR_TO_UTF8(*Error);
	EXPECT_FALSE(VelLuaProperty::SetPropertyValueFromStringSafe(FindTestProperty(TEXT("Size")), &Values, nullptr, TEXT("(X=1,Y=oops)"), Error));
	EXPECT_EQ(Values.Count, 42);
	EXPECT_EQ(Values.Size, FIntPoint(1280, 720));

	EXPECT_FALSE(VelLuaProperty::SetPropertyValueFromStringSafe(nullptr, &Values, nullptr, TEXT("1"), Error));
	EXPECT_STREQ(*Error, TEXT("no property"));
}

TEST(VelLuaProperty, NumbersIntoIntegersMustBeWholeAndInRange)
{
	FVelTestValues Values;
	ExpectApplied(Values, TEXT("Tiny"), "-128");
	EXPECT_EQ(Values.Tiny, -128);
	ExpectApplied(Values, TEXT("Byte"), "255");
	EXPECT_EQ(Values.Byte, 255);
	ExpectApplied(Values, TEXT("Count"), "2.0");
	EXPECT_EQ(Values.Count, 2);
	ExpectApplied(Values, TEXT("Unsigned"), "4294967295");
	EXPECT_EQ(Values.Unsigned, 4294967295u);
	ExpectApplied(Values, TEXT("Big"), "math.maxinteger");
	EXPECT_EQ(Values.Big, TNumericLimits<int64>::Max());

	EXPECT_STREQ(*RefusalOf(Values, TEXT("Tiny"), "128"), TEXT("cannot set Tiny (int8) from 128: out of range -128..127"));
	EXPECT_STREQ(*RefusalOf(Values, TEXT("Byte"), "256"), TEXT("cannot set Byte (uint8) from 256: out of range 0..255"));
	EXPECT_STREQ(*RefusalOf(Values, TEXT("Byte"), "-1"), TEXT("cannot set Byte (uint8) from -1: out of range 0..255"));
	EXPECT_STREQ(*RefusalOf(Values, TEXT("Unsigned"), "4294967296"), TEXT("cannot set Unsigned (uint32) from 4294967296: out of range 0..4294967295"));
	EXPECT_STREQ(*RefusalOf(Values, TEXT("Count"), "2.5"), TEXT("cannot set Count (int32) from 2.5: not a whole number"));
	EXPECT_STREQ(*RefusalOf(Values, TEXT("Count"), "math.huge"), TEXT("cannot set Count (int32) from inf: not a whole number"));
	EXPECT_STREQ(*RefusalOf(Values, TEXT("Big"), "2^63"),
		TEXT("cannot set Big (int64) from 9.2233720368548e+18: out of range -9223372036854775808..9223372036854775807"));
}

TEST(VelLuaProperty, NumbersIntoFloatsNarrowLikeAnAssignment)
{
	FVelTestValues Values;
	ExpectApplied(Values, TEXT("Ratio"), "0.1");
	EXPECT_EQ(Values.Ratio, 0.1f);
	ExpectApplied(Values, TEXT("Ratio"), "16777217");
	EXPECT_EQ(Values.Ratio, 16777216.0f);
	ExpectApplied(Values, TEXT("Precise"), "0.1");
	EXPECT_EQ(Values.Precise, 0.1);
	ExpectApplied(Values, TEXT("Precise"), "3");
	EXPECT_EQ(Values.Precise, 3.0);
}

TEST(VelLuaProperty, BooleansOnlyIntoBoolAndOtherTypesAreRefusedByName)
{
	FVelTestValues Values;
	ExpectApplied(Values, TEXT("bEnabled"), "true");
	EXPECT_TRUE(Values.bEnabled);
	EXPECT_STREQ(*RefusalOf(Values, TEXT("Count"), "true"), TEXT("cannot set Count (int32) from a boolean value"));
	EXPECT_STREQ(*RefusalOf(Values, TEXT("bEnabled"), "1"), TEXT("cannot set bEnabled (bool) from a number value"));
	EXPECT_STREQ(*RefusalOf(Values, TEXT("Name"), "12"), TEXT("cannot set Name (FString) from a number value"));
	EXPECT_STREQ(*RefusalOf(Values, TEXT("Count"), "nil"), TEXT("cannot set Count (int32) from a nil value"));
	EXPECT_STREQ(*RefusalOf(Values, TEXT("Count"), "print"), TEXT("cannot set Count (int32) from a function value"));
	EXPECT_STREQ(*RefusalOf(Values, TEXT("Count"), "{}"), TEXT("cannot set Count (int32) from a table value"));
}

TEST(VelLuaProperty, StringsAreExportTextAndEnumsTakeNamesOrValues)
{
	FVelTestValues Values;
	ExpectApplied(Values, TEXT("Count"), "'7'");
	EXPECT_EQ(Values.Count, 7);
	ExpectApplied(Values, TEXT("Name"), "'Shot \\u{2014} 010'");
	EXPECT_STREQ(*Values.Name, TEXT("Shot \u2014 010"));
	ExpectApplied(Values, TEXT("Size"), "'(X=3,Y=4)'");
	EXPECT_EQ(Values.Size, FIntPoint(3, 4));
	ExpectApplied(Values, TEXT("Mode"), "'Second'");
	EXPECT_EQ(Values.Mode, EVelTestMode::Second);
	ExpectApplied(Values, TEXT("Mode"), "5");
	EXPECT_EQ(Values.Mode, EVelTestMode::Third);
	EXPECT_STREQ(*RefusalOf(Values, TEXT("Mode"), "3"), TEXT("cannot set Mode (EVelTestMode) from 3: not a value of EVelTestMode"));
	EXPECT_TRUE(RefusalOf(Values, TEXT("Count"), "'seven'").StartsWith(TEXT("cannot set Count (int32) from 'seven'")));
}

TEST(VelLuaProperty, TablesFillStructFieldsByNameAndArraysByPosition)
{
	FVelTestValues Values;
	ExpectApplied(Values, TEXT("Size"), "{ X = 1920, Y = 1080 }");
	EXPECT_EQ(Values.Size, FIntPoint(1920, 1080));
	ExpectApplied(Values, TEXT("Size"), "{ y = 720 }");
	EXPECT_EQ(Values.Size, FIntPoint(1920, 720));
	ExpectApplied(Values, TEXT("Numbers"), "{ 5, 6, 7 }");
	EXPECT_EQ(Values.Numbers, TArray<int32>({ 5, 6, 7 }));
	ExpectApplied(Values, TEXT("Items"), "{ { Count = 1 }, { Count = 2, Label = 'b' } }");
	ASSERT_EQ(Values.Items.Num(), 2);
	EXPECT_EQ(Values.Items[0].Count, 1);
	EXPECT_STREQ(*Values.Items[0].Label, TEXT(""));
	EXPECT_EQ(Values.Items[1].Count, 2);
	EXPECT_STREQ(*Values.Items[1].Label, TEXT("b"));
	ExpectApplied(Values, TEXT("Inner"), "{ count = 3, label = 'inner' }");
	EXPECT_EQ(Values.Inner.Count, 3);
	EXPECT_STREQ(*Values.Inner.Label, TEXT("inner"));
	ExpectApplied(Values, TEXT("Numbers"), "{}");
	EXPECT_TRUE(Values.Numbers.IsEmpty());

	EXPECT_STREQ(*RefusalOf(Values, TEXT("Size"), "{ X = 1, Z = 2 }"), TEXT("cannot set Size (FIntPoint): no field 'Z'"));
	EXPECT_STREQ(*RefusalOf(Values, TEXT("Size"), "{ 1, 2 }"), TEXT("cannot set Size (FIntPoint) from a table whose keys are not all field names"));
	EXPECT_STREQ(*RefusalOf(Values, TEXT("Numbers"), "{ [1] = 5, [3] = 7 }"),
		TEXT("cannot set Numbers (TArray<int32>) from a table that is not a sequence (keys 1..n)"));
	EXPECT_STREQ(*RefusalOf(Values, TEXT("Numbers"), "{ first = 1 }"),
		TEXT("cannot set Numbers (TArray<int32>) from a table that is not a sequence (keys 1..n)"));
	EXPECT_STREQ(*RefusalOf(Values, TEXT("Items"), "{ { Count = 1 }, { Count = 1.5 } }"),
		TEXT("cannot set Items[2].Count (int32) from 1.5: not a whole number"));
	EXPECT_STREQ(*RefusalOf(Values, TEXT("Inner"), "{ Count = true }"), TEXT("cannot set Inner.Count (int32) from a boolean value"));
	EXPECT_STREQ(*RefusalOf(Values, TEXT("Numbers"), "{ 1, 'x' }"), TEXT("cannot set Numbers[2] (int32) from 'x': Numbers: 'x' is not an integer"));
}

TEST(VelLuaProperty, StagedValuesTouchNothingBeforeCommit)
{
	FVelTestValues Values;
	Values.Size = FIntPoint(1, 2);
	FProperty* SizeProperty = FindTestProperty(TEXT("Size"));
	void* Target = SizeProperty->ContainerPtrToValuePtr<void>(&Values);

	sol::state Lua;
	VelLuaProperty::FStagedPropertyValue Staged(SizeProperty, Target);
	EXPECT_TRUE(Staged.IsIdentical(Target));

	FString Error;
	ASSERT_TRUE(Staged.Apply(sol::make_object(Lua, Lua.create_table_with("X", 10)), Error));
	EXPECT_EQ(Values.Size, FIntPoint(1, 2));
	EXPECT_FALSE(Staged.IsIdentical(Target));
	EXPECT_EQ(*static_cast<const FIntPoint*>(Staged.GetValue()), FIntPoint(10, 2));

	EXPECT_FALSE(Staged.Apply(sol::make_object(Lua, Lua.create_table_with("Y", 20, "W", 1)), Error));
	EXPECT_EQ(*static_cast<const FIntPoint*>(Staged.GetValue()), FIntPoint(10, 2));
	EXPECT_FALSE(Staged.ImportText(TEXT("(X=oops)"), nullptr, Error));
	EXPECT_EQ(*static_cast<const FIntPoint*>(Staged.GetValue()), FIntPoint(10, 2));
	EXPECT_EQ(Values.Size, FIntPoint(1, 2));

	Staged.Commit(Target);
	EXPECT_EQ(Values.Size, FIntPoint(10, 2));
	EXPECT_TRUE(Staged.IsIdentical(Target));
	EXPECT_FALSE(Staged.IsIdentical(nullptr));
}

TEST(VelLuaProperty, StagedValuesOfNoPropertyRefuseEverything)
{
	VelLuaProperty::FStagedPropertyValue Staged(nullptr, nullptr);
	sol::state Lua;
	FString Error;
	EXPECT_FALSE(Staged.Apply(sol::make_object(Lua, 1), Error));
	EXPECT_STREQ(*Error, TEXT("no property"));
	EXPECT_FALSE(Staged.ImportText(TEXT("1"), nullptr, Error));
	EXPECT_FALSE(Staged.IsIdentical(&Error));
	Staged.Commit(nullptr);
}
