// Text export and import of every property kind, in the engine's exact text forms.

#include "ReflectionTestTypes.h"

#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

#include <gtest/gtest.h>

namespace
{
	// Standalone, as assets are, so that a collection during an object lookup (VLMR_GC_STRESS) keeps them.
	UReflectionTestObject* NewTestObject(const TCHAR* Name)
	{
		UPackage* Package = CreatePackage(*(FString(TEXT("/Game/PropertyTextTests/")) + Name));
		return NewObject<UReflectionTestObject>(Package, Name, RF_Public | RF_Standalone);
	}

	FProperty* PropertyOf(const TCHAR* Name)
	{
		FProperty* Property = UReflectionTestObject::StaticClass()->FindPropertyByName(FName(Name));
		check(Property);
		return Property;
	}

	// What ExportTextItem_InContainer writes for the property at top level (no PPF_Delimited).
	FString ExportTopLevel(UObject* Object, const TCHAR* PropertyName, int32 PortFlags = PPF_None)
	{
		FString Text;
		PropertyOf(PropertyName)->ExportTextItem_InContainer(Text, Object, nullptr, Object, PortFlags);
		return Text;
	}

	// Imports the whole text at top level; false when the import fails or leaves text unread.
	bool ImportTopLevel(UObject* Object, const TCHAR* PropertyName, const TCHAR* Text, int32 PortFlags = PPF_None)
	{
		const TCHAR* End = PropertyOf(PropertyName)->ImportText_InContainer(Text, Object, Object, PortFlags, nullptr);
		return End && *End == 0;
	}

	template<class TStruct>
	FString ExportStruct(const TStruct& Value, int32 PortFlags = PPF_None)
	{
		FString Text;
		StaticStruct<TStruct>()->ExportText(Text, &Value, nullptr, nullptr, PortFlags, nullptr);
		return Text;
	}

	template<class TStruct>
	const TCHAR* ImportStruct(const TCHAR* Text, TStruct& OutValue)
	{
		FStructProperty* Property = new FStructProperty(nullptr, FName(TEXT("Value")), RF_NoFlags, 0, CPF_None, StaticStruct<TStruct>());
		const TCHAR* Result = Property->ImportText_Direct(Text, &OutValue, nullptr, PPF_None, nullptr);
		delete Property;
		return Result;
	}
}

TEST(PropertyTextTests, ScalarsExportAsTheEngineWritesThem)
{
	UReflectionTestObject* Object = NewTestObject(TEXT("Scalars"));
	EXPECT_EQ(ExportTopLevel(Object, TEXT("bFlag")), TEXT("False"));
	Object->bFlag = true;
	EXPECT_EQ(ExportTopLevel(Object, TEXT("bFlag")), TEXT("True"));

	Object->IntValue = -42;
	Object->UInt64Value = 18446744073709551615ull;
	Object->ByteValue = 200;
	Object->FloatValue = 1.0f;
	Object->DoubleValue = 0.25;
	EXPECT_EQ(ExportTopLevel(Object, TEXT("IntValue")), TEXT("-42"));
	EXPECT_EQ(ExportTopLevel(Object, TEXT("UInt64Value")), TEXT("18446744073709551615"));
	EXPECT_EQ(ExportTopLevel(Object, TEXT("ByteValue")), TEXT("200"));
	EXPECT_EQ(ExportTopLevel(Object, TEXT("FloatValue")), TEXT("1.000000"));
	EXPECT_EQ(ExportTopLevel(Object, TEXT("DoubleValue")), TEXT("0.250000"));

	Object->Text = TEXT("C:/Out \"quoted\"");
	EXPECT_EQ(ExportTopLevel(Object, TEXT("Text")), TEXT("C:/Out \"quoted\"")) << "top-level strings are raw";
	EXPECT_EQ(ExportTopLevel(Object, TEXT("Name")), TEXT("None"));
	Object->Name = TEXT("Shot_010");
	EXPECT_EQ(ExportTopLevel(Object, TEXT("Name")), TEXT("Shot_010"));
}

TEST(PropertyTextTests, EnumsExportShortNamesAndInvalidValues)
{
	UReflectionTestObject* Object = NewTestObject(TEXT("Enums"));
	Object->Mode = EReflectionTestMode::Second;
	Object->Legacy = RTL_High;
	EXPECT_EQ(ExportTopLevel(Object, TEXT("Mode")), TEXT("Second"));
	EXPECT_EQ(ExportTopLevel(Object, TEXT("Legacy")), TEXT("RTL_High"));

	Object->Mode = static_cast<EReflectionTestMode>(3);
	EXPECT_EQ(ExportTopLevel(Object, TEXT("Mode")), TEXT("(INVALID)")) << "the _MAX entry";
	EXPECT_EQ(ExportTopLevel(Object, TEXT("Mode"), PPF_Copy), TEXT("EReflectionTestMode_MAX"));
	Object->Mode = static_cast<EReflectionTestMode>(17);
	EXPECT_EQ(ExportTopLevel(Object, TEXT("Mode")), TEXT("(INVALID)"));
	Object->Legacy = static_cast<EReflectionTestLegacy>(9);
	EXPECT_EQ(ExportTopLevel(Object, TEXT("Legacy")), TEXT("(INVALID)"));

	EXPECT_TRUE(ImportTopLevel(Object, TEXT("Mode"), TEXT("Third")));
	EXPECT_EQ(Object->Mode, EReflectionTestMode::Third);
	EXPECT_TRUE(ImportTopLevel(Object, TEXT("Mode"), TEXT("EReflectionTestMode::First")));
	EXPECT_EQ(Object->Mode, EReflectionTestMode::First);
	EXPECT_TRUE(ImportTopLevel(Object, TEXT("Mode"), TEXT("1")));
	EXPECT_EQ(Object->Mode, EReflectionTestMode::Second);
	EXPECT_TRUE(ImportTopLevel(Object, TEXT("Legacy"), TEXT("RTL_Low")));
	EXPECT_EQ(Object->Legacy, RTL_Low);

	EXPECT_FALSE(ImportTopLevel(Object, TEXT("Mode"), TEXT("Fourth")));
	EXPECT_FALSE(ImportTopLevel(Object, TEXT("Mode"), TEXT("7")));
	EXPECT_FALSE(ImportTopLevel(Object, TEXT("Legacy"), TEXT("")));
	EXPECT_EQ(Object->Mode, EReflectionTestMode::Second) << "a failed import leaves the value";
	EXPECT_EQ(Object->Legacy, RTL_Low);
}

TEST(PropertyTextTests, BoolImportAcceptsTheEngineSpellings)
{
	UReflectionTestObject* Object = NewTestObject(TEXT("Bools"));
	const TCHAR* TrueSpellings[] = { TEXT("True"), TEXT("true"), TEXT("1"), TEXT("Yes") };
	for (const TCHAR* Spelling : TrueSpellings)
	{
		Object->bFlag = false;
		EXPECT_TRUE(ImportTopLevel(Object, TEXT("bFlag"), Spelling)) << Spelling;
		EXPECT_TRUE(Object->bFlag) << Spelling;
	}
	const TCHAR* FalseSpellings[] = { TEXT("False"), TEXT("FALSE"), TEXT("0"), TEXT("No") };
	for (const TCHAR* Spelling : FalseSpellings)
	{
		Object->bFlag = true;
		EXPECT_TRUE(ImportTopLevel(Object, TEXT("bFlag"), Spelling)) << Spelling;
		EXPECT_FALSE(Object->bFlag) << Spelling;
	}
	Object->bFlag = true;
	EXPECT_FALSE(ImportTopLevel(Object, TEXT("bFlag"), TEXT("Maybe")));
	EXPECT_FALSE(ImportTopLevel(Object, TEXT("bFlag"), TEXT("")));
	EXPECT_TRUE(Object->bFlag);
}

TEST(PropertyTextTests, NumbersImportWithRangeChecks)
{
	UReflectionTestObject* Object = NewTestObject(TEXT("Numbers"));
	EXPECT_TRUE(ImportTopLevel(Object, TEXT("IntValue"), TEXT("-12")));
	EXPECT_EQ(Object->IntValue, -12);
	EXPECT_TRUE(ImportTopLevel(Object, TEXT("IntValue"), TEXT("+5")));
	EXPECT_EQ(Object->IntValue, 5);
	EXPECT_TRUE(ImportTopLevel(Object, TEXT("IntValue"), TEXT("0x10")));
	EXPECT_EQ(Object->IntValue, 16);
	EXPECT_TRUE(ImportTopLevel(Object, TEXT("Int8Value"), TEXT("-128")));
	EXPECT_EQ(Object->Int8Value, -128);
	EXPECT_TRUE(ImportTopLevel(Object, TEXT("UInt64Value"), TEXT("18446744073709551615")));
	EXPECT_EQ(Object->UInt64Value, 18446744073709551615ull);
	EXPECT_TRUE(ImportTopLevel(Object, TEXT("Int64Value"), TEXT("-9223372036854775808")));
	EXPECT_EQ(Object->Int64Value, INT64_MIN);

	EXPECT_FALSE(ImportTopLevel(Object, TEXT("Int8Value"), TEXT("128")));
	EXPECT_FALSE(ImportTopLevel(Object, TEXT("ByteValue"), TEXT("256")));
	EXPECT_FALSE(ImportTopLevel(Object, TEXT("UInt32Value"), TEXT("-1")));
	EXPECT_FALSE(ImportTopLevel(Object, TEXT("Int64Value"), TEXT("9223372036854775808")));
	EXPECT_FALSE(ImportTopLevel(Object, TEXT("UInt64Value"), TEXT("18446744073709551616")));
	EXPECT_FALSE(ImportTopLevel(Object, TEXT("IntValue"), TEXT("twelve")));
	EXPECT_FALSE(ImportTopLevel(Object, TEXT("IntValue"), TEXT("")));
	EXPECT_EQ(Object->Int8Value, -128);
	EXPECT_EQ(Object->IntValue, 16);
	EXPECT_EQ(Object->UInt64Value, 18446744073709551615ull);

	EXPECT_TRUE(ImportTopLevel(Object, TEXT("FloatValue"), TEXT("1.5")));
	EXPECT_EQ(Object->FloatValue, 1.5f);
	EXPECT_TRUE(ImportTopLevel(Object, TEXT("FloatValue"), TEXT("2e3")));
	EXPECT_EQ(Object->FloatValue, 2000.0f);
	EXPECT_TRUE(ImportTopLevel(Object, TEXT("DoubleValue"), TEXT("-.5")));
	EXPECT_EQ(Object->DoubleValue, -0.5);
	EXPECT_TRUE(ImportTopLevel(Object, TEXT("FloatValue"), TEXT("0.25f")));
	EXPECT_EQ(Object->FloatValue, 0.25f);
	EXPECT_FALSE(ImportTopLevel(Object, TEXT("FloatValue"), TEXT(".")));
	EXPECT_EQ(Object->FloatValue, 0.25f);

	FNumericProperty* Int8Property = CastField<FNumericProperty>(PropertyOf(TEXT("Int8Value")));
	EXPECT_TRUE(Int8Property->IsInteger());
	EXPECT_FALSE(Int8Property->IsFloatingPoint());
	EXPECT_TRUE(Int8Property->CanHoldValue(127));
	EXPECT_FALSE(Int8Property->CanHoldValue(128));
	EXPECT_FALSE(Int8Property->CanHoldValue(0.5));
	EXPECT_TRUE(CastField<FNumericProperty>(PropertyOf(TEXT("FloatValue")))->CanHoldValue(0.5));
}

TEST(PropertyTextTests, StringsAreQuotedWithEscapesWhenDelimited)
{
	UReflectionTestObject* Object = NewTestObject(TEXT("Strings"));
	Object->Strings = { TEXT("plain"), TEXT("say \"hi\""), TEXT("back\\slash"), TEXT("two\nlines"), TEXT("") };
	EXPECT_EQ(ExportTopLevel(Object, TEXT("Strings")), TEXT("(\"plain\",\"say \\\"hi\\\"\",\"back\\\\slash\",\"two\\nlines\",\"\")"));

	const TArray<FString> Original = Object->Strings;
	const FString Exported = ExportTopLevel(Object, TEXT("Strings"));
	Object->Strings.Reset();
	EXPECT_TRUE(ImportTopLevel(Object, TEXT("Strings"), *Exported));
	EXPECT_EQ(Object->Strings, Original);

	EXPECT_TRUE(ImportTopLevel(Object, TEXT("Strings"), TEXT("(\"tab\\there\", \"\\x41\\u00e9\")")));
	EXPECT_EQ(Object->Strings, TArray<FString>({ TEXT("tab\there"), TEXT("A\u00e9") }));
	EXPECT_FALSE(ImportTopLevel(Object, TEXT("Strings"), TEXT("(unquoted)"))) << "strings inside arrays must be quoted";
	EXPECT_FALSE(ImportTopLevel(Object, TEXT("Strings"), TEXT("(\"unterminated)")));
	EXPECT_EQ(Object->Strings.Num(), 2);

	EXPECT_TRUE(ImportTopLevel(Object, TEXT("Text"), TEXT("raw \"text\", with (anything)")));
	EXPECT_EQ(Object->Text, TEXT("raw \"text\", with (anything)"));
}

TEST(PropertyTextTests, NamesAreQuotedWhenDelimitedAndEmptyWhenNone)
{
	FNameProperty* Property = new FNameProperty(nullptr, FName(TEXT("Value")), RF_NoFlags);
	FName Value;
	FString Text;
	Property->ExportTextItem_Direct(Text, &Value, nullptr, nullptr, PPF_Delimited);
	EXPECT_EQ(Text, TEXT("\"\""));
	Value = TEXT("Shot_010");
	Text.Reset();
	Property->ExportTextItem_Direct(Text, &Value, nullptr, nullptr, PPF_Delimited);
	EXPECT_EQ(Text, TEXT("\"Shot_010\""));

	FName Imported;
	EXPECT_NE(Property->ImportText_Direct(TEXT("\"Quoted Name\""), &Imported, nullptr, PPF_Delimited, nullptr), nullptr);
	EXPECT_EQ(Imported.ToString(), TEXT("Quoted Name"));
	EXPECT_NE(Property->ImportText_Direct(TEXT("None"), &Imported, nullptr, PPF_None, nullptr), nullptr);
	EXPECT_TRUE(Imported.IsNone());
	delete Property;
}

TEST(PropertyTextTests, StructsExportFieldsThatDifferFromTheirZeroValue)
{
	EXPECT_EQ(ExportStruct(FIntPoint(1280, 720)), TEXT("(X=1280,Y=720)"));
	EXPECT_EQ(ExportStruct(FIntPoint(0, 5)), TEXT("(Y=5)"));
	EXPECT_EQ(ExportStruct(FIntPoint(0, 0)), TEXT("()"));
	EXPECT_EQ(ExportStruct(FFrameRate(30, 1)), TEXT("(Numerator=30,Denominator=1)"));
	EXPECT_EQ(ExportStruct(FReflectionTestPath{ TEXT("C:/Out") }), TEXT("(Path=\"C:/Out\")"));
	EXPECT_EQ(ExportStruct(FReflectionTestOuter()), TEXT("(Dir=(Path=\"x\"))")) << "struct-typed fields are always exported";
	EXPECT_EQ(ExportStruct(FIntRect(0, 0, 1920, 1080)), TEXT("(Min=(),Max=(X=1920,Y=1080))"));
	EXPECT_EQ(ExportStruct(FLinearColor(1.0f, 0.0f, 0.0f, 1.0f)), TEXT("(R=1.000000,G=0.000000,B=0.000000,A=1.000000)")) << "atomic structs export every field";
	EXPECT_EQ(ExportStruct(FColor(10, 20, 30, 255)), TEXT("(B=30,G=20,R=10,A=255)"));

	FGuid Guid(0x01234567, 0x89ABCDEF, 0xDEADBEEF, 0x00000001);
	EXPECT_EQ(ExportStruct(Guid), TEXT("0123456789ABCDEFDEADBEEF00000001")) << "FGuid exports natively";

	FReflectionTestPortable Portable;
	EXPECT_EQ(ExportStruct(Portable), TEXT("(Kept=1)")) << "transient and deprecated fields are not exported";
	EXPECT_EQ(ExportStruct(Portable, PPF_IncludeTransient), TEXT("(Kept=1,Skipped=2)"));
	EXPECT_EQ(ExportStruct(Portable, PPF_UseDeprecatedProperties), TEXT("(Kept=1,Old=3)"));
}

TEST(PropertyTextTests, ArraysOfStructsCompareElementsAgainstADefaultElement)
{
	FReflectionTestNested Nested;
	Nested.Entries.Add({ TEXT("r.X"), 1.0f, true });
	Nested.Entries.Add({ TEXT("r.Y"), 2.0f, false });
	Nested.Inner.Name = TEXT("inner");
	EXPECT_EQ(ExportStruct(Nested),
		TEXT("(Inner=(Name=\"inner\",bIsEnabled=True),Entries=((Name=\"r.X\",Value=1.000000),(Name=\"r.Y\",Value=2.000000,bIsEnabled=False)))"))
		<< "a struct field is compared against zero values, array elements against a default-constructed element";

	FReflectionTestNested Imported;
	ASSERT_NE(ImportStruct(*ExportStruct(Nested), Imported), nullptr);
	ASSERT_EQ(Imported.Entries.Num(), 2);
	EXPECT_EQ(Imported.Entries[0].Name, TEXT("r.X"));
	EXPECT_TRUE(Imported.Entries[0].bIsEnabled) << "an omitted field keeps the element's default";
	EXPECT_EQ(Imported.Entries[1].Value, 2.0f);
	EXPECT_FALSE(Imported.Entries[1].bIsEnabled);
	EXPECT_EQ(Imported.Inner.Name, TEXT("inner"));
}

TEST(PropertyTextTests, StructImportFailuresLeaveTheValueUnchanged)
{
	FIntPoint Point(1, 2);
	EXPECT_NE(ImportStruct(TEXT("(X=1920,Y=1080)"), Point), nullptr);
	EXPECT_EQ(Point, FIntPoint(1920, 1080));
	EXPECT_NE(ImportStruct(TEXT("( Y = 5 )"), Point), nullptr);
	EXPECT_EQ(Point, FIntPoint(1920, 5)) << "fields that are not given keep their value";
	EXPECT_NE(ImportStruct(TEXT("(X=,Y=6)"), Point), nullptr);
	EXPECT_EQ(Point, FIntPoint(1920, 6)) << "an empty value leaves the field";

	EXPECT_EQ(ImportStruct(TEXT("(X=1,Z=2)"), Point), nullptr);
	EXPECT_EQ(ImportStruct(TEXT("(X=1,Y=2"), Point), nullptr);
	EXPECT_EQ(ImportStruct(TEXT("X=1"), Point), nullptr);
	EXPECT_EQ(ImportStruct(TEXT("(X=abc)"), Point), nullptr);
	EXPECT_EQ(ImportStruct(TEXT("(X=3000000000)"), Point), nullptr);
	EXPECT_EQ(Point, FIntPoint(1920, 6));

	FReflectionTestPath Path{ TEXT("keep") };
	EXPECT_EQ(ImportStruct(TEXT("(Path=C:/Out)"), Path), nullptr) << "delimited strings must be quoted";
	EXPECT_EQ(Path.Path, TEXT("keep"));
	EXPECT_NE(ImportStruct(TEXT("(Path=\"C:/Out\")"), Path), nullptr);
	EXPECT_EQ(Path.Path, TEXT("C:/Out"));

	FReflectionTestPortable Portable;
	EXPECT_NE(ImportStruct(TEXT("(Kept=5,Skipped=9,Old=9)"), Portable), nullptr);
	EXPECT_EQ(Portable.Kept, 5);
	EXPECT_EQ(Portable.Skipped, 2) << "transient fields are not imported";
	EXPECT_EQ(Portable.Old, 9) << "deprecated fields are still read";
}

TEST(PropertyTextTests, ArraysExportAndImport)
{
	UReflectionTestObject* Object = NewTestObject(TEXT("Arrays"));
	EXPECT_EQ(ExportTopLevel(Object, TEXT("Numbers")), TEXT("")) << "an empty array is empty text";
	Object->Numbers = { 1, 0, 3 };
	EXPECT_EQ(ExportTopLevel(Object, TEXT("Numbers")), TEXT("(1,0,3)"));

	EXPECT_TRUE(ImportTopLevel(Object, TEXT("Numbers"), TEXT("(4, 5 ,6)")));
	EXPECT_EQ(Object->Numbers, TArray<int32>({ 4, 5, 6 }));
	EXPECT_TRUE(ImportTopLevel(Object, TEXT("Numbers"), TEXT("(7,,9)")));
	EXPECT_EQ(Object->Numbers, TArray<int32>({ 7, 0, 9 }));
	EXPECT_TRUE(ImportTopLevel(Object, TEXT("Numbers"), TEXT("()")));
	EXPECT_TRUE(Object->Numbers.IsEmpty());
	Object->Numbers = { 1 };
	EXPECT_TRUE(ImportTopLevel(Object, TEXT("Numbers"), TEXT("")));
	EXPECT_TRUE(Object->Numbers.IsEmpty());

	Object->Numbers = { 1, 2 };
	EXPECT_FALSE(ImportTopLevel(Object, TEXT("Numbers"), TEXT("(1,x)")));
	EXPECT_FALSE(ImportTopLevel(Object, TEXT("Numbers"), TEXT("(1,2")));
	EXPECT_FALSE(ImportTopLevel(Object, TEXT("Numbers"), TEXT("1,2")));
	EXPECT_EQ(Object->Numbers, TArray<int32>({ 1, 2 }));

	Object->Entries.Add({ TEXT("r.A"), 0.5f, true });
	EXPECT_EQ(ExportTopLevel(Object, TEXT("Entries")), TEXT("((Name=\"r.A\",Value=0.500000))"));

	// An empty array inside a struct is left out.
	EXPECT_EQ(ExportStruct(FReflectionTestNested()), TEXT("(Inner=(bIsEnabled=True))"));
}

TEST(PropertyTextTests, MapsExportPairsAndImportThem)
{
	UReflectionTestObject* Object = NewTestObject(TEXT("Maps"));
	EXPECT_EQ(ExportTopLevel(Object, TEXT("Variables")), TEXT("()"));
	Object->Variables.Add(TEXT("r.A"), 1.0f);
	Object->Variables.Add(TEXT("r.B"), 2.5f);
	EXPECT_EQ(ExportTopLevel(Object, TEXT("Variables")), TEXT("((\"r.A\", 1.000000),(\"r.B\", 2.500000))"));

	EXPECT_TRUE(ImportTopLevel(Object, TEXT("Variables"), TEXT("((\"r.C\", 3.0),(\"r.D\",4),(\"r.C\", 9))")));
	ASSERT_EQ(Object->Variables.Num(), 2);
	EXPECT_EQ(Object->Variables.FindRef(TEXT("r.C")), 3.0f) << "a repeated key keeps its first value";
	EXPECT_EQ(Object->Variables.FindRef(TEXT("r.D")), 4.0f);
	EXPECT_EQ(Object->Variables.Find(TEXT("r.A")), nullptr);

	EXPECT_FALSE(ImportTopLevel(Object, TEXT("Variables"), TEXT("((\"r.E\" 5))")));
	EXPECT_FALSE(ImportTopLevel(Object, TEXT("Variables"), TEXT("")));
	EXPECT_EQ(Object->Variables.Num(), 2);
	EXPECT_TRUE(ImportTopLevel(Object, TEXT("Variables"), TEXT("()")));
	EXPECT_TRUE(Object->Variables.IsEmpty());
}

TEST(PropertyTextTests, ObjectReferencesUseClassAndPath)
{
	UReflectionTestObject* Object = NewTestObject(TEXT("References"));
	UReflectionTestObject* Child = NewObject<UReflectionTestObject>(Object, TEXT("Child"), RF_Standalone);
	EXPECT_EQ(ExportTopLevel(Object, TEXT("Reference")), TEXT("None"));
	Object->Reference = Child;
	Object->Children = { Child, nullptr };
	Object->ClassReference = UReflectionTestObject::StaticClass();
	EXPECT_EQ(ExportTopLevel(Object, TEXT("Reference")),
		TEXT("/Script/ReflectionTests.ReflectionTestObject'/Game/PropertyTextTests/References.References:Child'"));
	EXPECT_EQ(ExportTopLevel(Object, TEXT("Children")),
		TEXT("(/Script/ReflectionTests.ReflectionTestObject'\"/Game/PropertyTextTests/References.References:Child\"',None)"));
	EXPECT_EQ(ExportTopLevel(Object, TEXT("ClassReference")), TEXT("/Script/CoreUObject.Class'/Script/ReflectionTests.ReflectionTestObject'"));

	UReflectionTestObject* Target = NewTestObject(TEXT("ReferenceTarget"));
	EXPECT_TRUE(ImportTopLevel(Object, TEXT("Reference"), TEXT("/Script/ReflectionTests.ReflectionTestObject'/Game/PropertyTextTests/ReferenceTarget.ReferenceTarget'")));
	EXPECT_EQ(Object->Reference, Target);
	EXPECT_TRUE(ImportTopLevel(Object, TEXT("Reference"), TEXT("None")));
	EXPECT_EQ(Object->Reference, nullptr);
	EXPECT_TRUE(ImportTopLevel(Object, TEXT("Reference"), TEXT("/Game/PropertyTextTests/References.References:Child")));
	EXPECT_EQ(Object->Reference, Child);
	EXPECT_TRUE(ImportTopLevel(Object, TEXT("Children"), TEXT("(ReflectionTestObject'\"/Game/PropertyTextTests/ReferenceTarget.ReferenceTarget\"')")));
	EXPECT_EQ(Object->Children, TArray<TObjectPtr<UReflectionTestObject>>({ Target }));

	EXPECT_FALSE(ImportTopLevel(Object, TEXT("Reference"), TEXT("/Game/PropertyTextTests/Missing.Missing")));
	EXPECT_FALSE(ImportTopLevel(Object, TEXT("Reference"), *UReflectionTestFunctions::StaticClass()->GetDefaultObject()->GetPathName()))
		<< "an object of another class does not fit the property";
	EXPECT_EQ(Object->Reference, Child);

	EXPECT_TRUE(ImportTopLevel(Object, TEXT("ClassReference"), TEXT("/Script/ReflectionTests.ReflectionTestDerived")));
	EXPECT_EQ(Object->ClassReference.Get(), UReflectionTestDerived::StaticClass());
	EXPECT_FALSE(ImportTopLevel(Object, TEXT("ClassReference"), *Child->GetPathName())) << "an object that is not a class";
	EXPECT_EQ(Object->ClassReference.Get(), UReflectionTestDerived::StaticClass());
}

TEST(PropertyTextTests, DefaultSubobjectReferencesExportByNameFromTheirOwner)
{
	UPackage* Package = CreatePackage(TEXT("/Game/PropertyTextTests/Subobjects"));
	UReflectionTestDerived* Owner = NewObject<UReflectionTestDerived>(Package, TEXT("Owner"), RF_Standalone);
	FProperty* Component = UReflectionTestDerived::StaticClass()->FindPropertyByName(TEXT("Component"));
	FString Text;
	Component->ExportTextItem_InContainer(Text, Owner, nullptr, Owner, PPF_None);
	EXPECT_EQ(Text, TEXT("Component"));
	Text.Reset();
	Component->ExportTextItem_InContainer(Text, Owner, nullptr, nullptr, PPF_None);
	EXPECT_EQ(Text, TEXT("/Script/ReflectionTests.ReflectionTestComponent'/Game/PropertyTextTests/Subobjects.Owner:Component'"));

	UReflectionTestComponent* Original = Owner->Component;
	Owner->Component = nullptr;
	EXPECT_NE(Component->ImportText_InContainer(TEXT("Component"), Owner, Owner, PPF_None, nullptr), nullptr);
	EXPECT_EQ(Owner->Component, Original) << "a bare name is looked up inside the owner";
}

TEST(PropertyTextTests, SoftReferencesExportTheirPath)
{
	UReflectionTestObject* Object = NewTestObject(TEXT("Soft"));
	EXPECT_EQ(ExportTopLevel(Object, TEXT("SoftPath")), TEXT("None"));
	EXPECT_EQ(ExportTopLevel(Object, TEXT("Soft")), TEXT("None"));
	Object->SoftPath = FSoftObjectPath(TEXT("/Game/Dir/Seq.Seq"));
	Object->Soft = TSoftObjectPtr<UObject>(FSoftObjectPath(TEXT("/Game/Dir/Other.Other")));
	EXPECT_EQ(ExportTopLevel(Object, TEXT("SoftPath")), TEXT("/Game/Dir/Seq.Seq"));
	EXPECT_EQ(ExportTopLevel(Object, TEXT("Soft")), TEXT("/Game/Dir/Other.Other"));

	EXPECT_TRUE(ImportTopLevel(Object, TEXT("Soft"), TEXT("/Game/Dir/Third.Third")));
	EXPECT_EQ(Object->Soft.ToSoftObjectPath().ToString(), TEXT("/Game/Dir/Third.Third"));
	EXPECT_TRUE(ImportTopLevel(Object, TEXT("SoftPath"), TEXT("None")));
	EXPECT_TRUE(Object->SoftPath.IsNull());
}

TEST(PropertyTextTests, TextsExportTheirLocalizationForm)
{
	UReflectionTestObject* Object = NewTestObject(TEXT("Texts"));
	Object->DisplayText = FText::FromString(TEXT("Plain"));
	EXPECT_EQ(ExportTopLevel(Object, TEXT("DisplayText")), TEXT("Plain"));
	Object->DisplayText = FText::AsCultureInvariant(TEXT("Invariant"));
	EXPECT_EQ(ExportTopLevel(Object, TEXT("DisplayText")), TEXT("INVTEXT(\"Invariant\")"));
	Object->DisplayText = NSLOCTEXT("Tests", "Greeting", "Hello");
	EXPECT_EQ(ExportTopLevel(Object, TEXT("DisplayText")), TEXT("NSLOCTEXT(\"Tests\", \"Greeting\", \"Hello\")"));

	Object->DisplayText = FText::GetEmpty();
	EXPECT_TRUE(ImportTopLevel(Object, TEXT("DisplayText"), TEXT("NSLOCTEXT(\"Tests\", \"Greeting\", \"Hello\")")));
	EXPECT_EQ(Object->DisplayText.ToString(), TEXT("Hello"));
	EXPECT_EQ(FTextInspector::GetKey(Object->DisplayText).Get(FString()), TEXT("Greeting"));
	EXPECT_TRUE(ImportTopLevel(Object, TEXT("DisplayText"), TEXT("INVTEXT(\"Inv\")")));
	EXPECT_TRUE(Object->DisplayText.IsCultureInvariant());
	EXPECT_TRUE(ImportTopLevel(Object, TEXT("DisplayText"), TEXT("Just text")));
	EXPECT_EQ(Object->DisplayText.ToString(), TEXT("Just text"));
	EXPECT_FALSE(ImportTopLevel(Object, TEXT("DisplayText"), TEXT("NSLOCTEXT(\"Tests\", \"Greeting\")")));
	EXPECT_EQ(Object->DisplayText.ToString(), TEXT("Just text"));
}

TEST(PropertyTextTests, ExportTextSkipsValuesIdenticalToTheDelta)
{
	UReflectionTestObject* Object = NewTestObject(TEXT("Delta"));
	UReflectionTestObject* Defaults = NewTestObject(TEXT("DeltaDefaults"));
	FProperty* IntProperty = PropertyOf(TEXT("IntValue"));
	FString Text;
	EXPECT_FALSE(IntProperty->ExportText_InContainer(0, Text, Object, Defaults, Object, PPF_None));
	EXPECT_FALSE(IntProperty->ExportText_InContainer(0, Text, Object, nullptr, Object, PPF_None)) << "zero equals a missing delta";
	EXPECT_TRUE(Text.IsEmpty());
	Object->IntValue = 3;
	EXPECT_TRUE(IntProperty->ExportText_InContainer(0, Text, Object, Defaults, Object, PPF_None));
	EXPECT_EQ(Text, TEXT("3"));

	Text.Reset();
	FProperty* Resolution = PropertyOf(TEXT("Resolution"));
	EXPECT_TRUE(Resolution->ExportText_InContainer(0, Text, Object, nullptr, Object, PPF_None)) << "a struct never equals a missing delta";
	EXPECT_EQ(Text, TEXT("()"));
	Text.Reset();
	EXPECT_FALSE(Resolution->ExportText_InContainer(0, Text, Object, Defaults, Object, PPF_None));
}

TEST(PropertyTextTests, RoundTripsOfEveryKind)
{
	UReflectionTestObject* Source = NewTestObject(TEXT("RoundTripSource"));
	UReflectionTestObject* Target = NewTestObject(TEXT("RoundTripTarget"));
	Source->bFlag = true;
	Source->Int8Value = -7;
	Source->Int16Value = 300;
	Source->IntValue = 123456;
	Source->Int64Value = -9000000000;
	Source->ByteValue = 9;
	Source->UInt16Value = 65535;
	Source->UInt32Value = 4000000000u;
	Source->UInt64Value = 12345678901234ull;
	Source->FloatValue = 2.5f;
	Source->DoubleValue = -1.125;
	Source->Text = TEXT("Hello, \"World\"");
	Source->Name = TEXT("SomeName");
	Source->DisplayText = NSLOCTEXT("Tests", "Key", "Shown");
	Source->Mode = EReflectionTestMode::Third;
	Source->Legacy = RTL_Low;
	Source->Reference = Target;
	Source->RawReference = Target;
	Source->ClassReference = UReflectionTestDerived::StaticClass();
	Source->SoftPath = FSoftObjectPath(TEXT("/Game/A/B.B"));
	Source->Resolution = FIntPoint(1920, 1080);
	Source->FrameRate = FFrameRate(24000, 1001);
	Source->Nested.Entries.Add({ TEXT("r.Z"), -3.0f, false });
	Source->Numbers = { 3, 1, 2 };
	Source->Strings = { TEXT("a,b"), TEXT("(c)") };
	Source->Entries.Add({ TEXT("e"), 1.0f, true });
	Source->Children = { Target };
	Source->Variables.Add(TEXT("k"), 0.5f);
	Source->NamedObjects.Add(TEXT("Target"), Target);

	for (TFieldIterator<FProperty> It(UReflectionTestObject::StaticClass(), EFieldIteratorFlags::IncludeSuper, EFieldIteratorFlags::ExcludeDeprecated); It; ++It)
	{
		if (!It->ShouldPort(PPF_None))
		{
			continue;
		}
		FString Text;
		It->ExportTextItem_InContainer(Text, Source, nullptr, Source, PPF_None);
		const TCHAR* End = It->ImportText_InContainer(*Text, Target, Target, PPF_None, nullptr);
		ASSERT_NE(End, nullptr) << *It->GetName() << " from " << TCHAR_TO_UTF8(*Text);
		EXPECT_EQ(*End, 0) << *It->GetName();
		EXPECT_TRUE(It->Identical_InContainer(Source, Target)) << TCHAR_TO_UTF8(*It->GetName()) << " from " << TCHAR_TO_UTF8(*Text);
	}
}
