// Property value operations: typed accessors, the numeric API, copy/compare/clear/hash, value lifetimes, fields and wrappers.

#include "ReflectionTestTypes.h"

#include "Misc/Timecode.h"
#include "UObject/EnumProperty.h"
#include "UObject/Package.h"
#include "UObject/StructOnScope.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

#include <gtest/gtest.h>

namespace
{
	UReflectionTestObject* NewValueObject(const TCHAR* Name)
	{
		return NewObject<UReflectionTestObject>(CreatePackage(*(FString(TEXT("/Game/PropertyValueTests/")) + Name)), Name);
	}

	template<class T>
	T* PropertyOf(const TCHAR* Name)
	{
		return CastFieldChecked<T>(UReflectionTestObject::StaticClass()->FindPropertyByName(FName(Name)));
	}

	template<class TStruct>
	FString ExportStruct(const TStruct& Value)
	{
		FString Text;
		StaticStruct<TStruct>()->ExportText(Text, &Value, nullptr, nullptr, PPF_None, nullptr);
		return Text;
	}
}

TEST(PropertyValueTests, TypedAccessorsReadAndWriteMembers)
{
	UReflectionTestObject* Object = NewValueObject(TEXT("Accessors"));
	PropertyOf<FStrProperty>(TEXT("Text"))->SetPropertyValue_InContainer(Object, TEXT("set"));
	EXPECT_EQ(Object->Text, TEXT("set"));
	EXPECT_EQ(PropertyOf<FStrProperty>(TEXT("Text"))->GetPropertyValue_InContainer(Object), TEXT("set"));

	PropertyOf<FBoolProperty>(TEXT("bFlag"))->SetPropertyValue_InContainer(Object, true);
	EXPECT_TRUE(Object->bFlag);
	EXPECT_TRUE(PropertyOf<FBoolProperty>(TEXT("bFlag"))->GetPropertyValue_InContainer(Object));

	PropertyOf<FNameProperty>(TEXT("Name"))->SetPropertyValue_InContainer(Object, FName(TEXT("Named")));
	EXPECT_EQ(Object->Name, FName(TEXT("Named")));

	UReflectionTestObject* Target = NewValueObject(TEXT("AccessorTarget"));
	PropertyOf<FObjectProperty>(TEXT("Reference"))->SetObjectPropertyValue_InContainer(Object, Target);
	EXPECT_EQ(Object->Reference, Target);
	EXPECT_EQ(PropertyOf<FObjectProperty>(TEXT("RawReference"))->GetObjectPropertyValue_InContainer(Object), nullptr);
	PropertyOf<FWeakObjectProperty>(TEXT("Weak"))->SetObjectPropertyValue_InContainer(Object, Target);
	EXPECT_EQ(Object->Weak.Get(), Target);
	EXPECT_EQ(PropertyOf<FWeakObjectProperty>(TEXT("Weak"))->GetObjectPropertyValue_InContainer(Object), Target);
	PropertyOf<FSoftObjectProperty>(TEXT("Soft"))->SetObjectPropertyValue_InContainer(Object, Target);
	EXPECT_EQ(Object->Soft.ToSoftObjectPath().ToString(), TEXT("/Game/PropertyValueTests/AccessorTarget.AccessorTarget"));

	FString Copy;
	PropertyOf<FStrProperty>(TEXT("Text"))->GetValue_InContainer(Object, &Copy);
	EXPECT_EQ(Copy, TEXT("set"));
	const FString NewText(TEXT("via SetValue"));
	FProperty* TextProperty = PropertyOf<FProperty>(TEXT("Text"));
	TextProperty->SetValue_InContainer(Object, &NewText);
	EXPECT_EQ(Object->Text, TEXT("via SetValue"));
}

TEST(PropertyValueTests, NumericPropertiesConvertThroughTheirInterface)
{
	UReflectionTestObject* Object = NewValueObject(TEXT("Numeric"));
	FNumericProperty* Int16 = PropertyOf<FNumericProperty>(TEXT("Int16Value"));
	Int16->SetIntPropertyValue_InContainer(Object, int64(-300));
	EXPECT_EQ(Object->Int16Value, -300);
	EXPECT_EQ(Int16->GetSignedIntPropertyValue_InContainer(Object), -300);
	EXPECT_EQ(Int16->GetNumericPropertyValueToString_InContainer(Object), TEXT("-300"));

	FNumericProperty* UInt32 = PropertyOf<FNumericProperty>(TEXT("UInt32Value"));
	UInt32->SetIntPropertyValue(&Object->UInt32Value, uint64(4000000000u));
	EXPECT_EQ(UInt32->GetUnsignedIntPropertyValue(&Object->UInt32Value), 4000000000ull);

	FNumericProperty* Double = PropertyOf<FNumericProperty>(TEXT("DoubleValue"));
	EXPECT_TRUE(Double->IsFloatingPoint());
	EXPECT_FALSE(Double->IsInteger());
	Double->SetFloatingPointPropertyValue_InContainer(Object, 2.75);
	EXPECT_EQ(Object->DoubleValue, 2.75);
	EXPECT_EQ(Double->GetFloatingPointPropertyValue_InContainer(Object), 2.75);
	EXPECT_EQ(Double->GetNumericPropertyValueToString_InContainer(Object), TEXT("2.750000"));

	Double->SetNumericPropertyValueFromString(&Object->DoubleValue, TEXT("-4.5"));
	EXPECT_EQ(Object->DoubleValue, -4.5);
	Int16->SetNumericPropertyValueFromString(&Object->Int16Value, TEXT("-12"));
	EXPECT_EQ(Object->Int16Value, -12);
	UInt32->SetNumericPropertyValueFromString(&Object->UInt32Value, TEXT("not a number"));
	EXPECT_EQ(Object->UInt32Value, 0u);

	EXPECT_EQ(PropertyOf<FNumericProperty>(TEXT("Legacy"))->GetIntPropertyEnum(), StaticEnum<EReflectionTestLegacy>());
	EXPECT_TRUE(PropertyOf<FNumericProperty>(TEXT("Legacy"))->IsEnum());
	EXPECT_EQ(PropertyOf<FNumericProperty>(TEXT("ByteValue"))->GetIntPropertyEnum(), nullptr);
	EXPECT_TRUE(PropertyOf<FNumericProperty>(TEXT("UInt64Value"))->CanHoldValue(uint64(18446744073709551615ull)));
	EXPECT_FALSE(PropertyOf<FNumericProperty>(TEXT("UInt64Value"))->CanHoldValue(int64(-1)));
}

TEST(PropertyValueTests, IdenticalComparesValuesAsTheEngineDoes)
{
	UReflectionTestObject* A = NewValueObject(TEXT("IdenticalA"));
	UReflectionTestObject* B = NewValueObject(TEXT("IdenticalB"));
	FProperty* Text = PropertyOf<FProperty>(TEXT("Text"));
	A->Text = TEXT("Path");
	B->Text = TEXT("PATH");
	EXPECT_TRUE(Text->Identical_InContainer(A, B)) << "FString comparison ignores case";
	B->Text = TEXT("Other");
	EXPECT_FALSE(Text->Identical_InContainer(A, B));

	FProperty* Variables = PropertyOf<FProperty>(TEXT("Variables"));
	A->Variables.Add(TEXT("x"), 1.0f);
	A->Variables.Add(TEXT("y"), 2.0f);
	B->Variables.Add(TEXT("y"), 2.0f);
	B->Variables.Add(TEXT("x"), 1.0f);
	EXPECT_TRUE(Variables->Identical_InContainer(A, B)) << "maps compare their pairs in any order";
	B->Variables.Add(TEXT("x"), 3.0f);
	EXPECT_FALSE(Variables->Identical_InContainer(A, B));

	FProperty* Numbers = PropertyOf<FProperty>(TEXT("Numbers"));
	A->Numbers = { 1, 2 };
	B->Numbers = { 2, 1 };
	EXPECT_FALSE(Numbers->Identical_InContainer(A, B)) << "arrays compare element by element";
	B->Numbers = { 1, 2 };
	EXPECT_TRUE(Numbers->Identical_InContainer(A, B));

	FProperty* Nested = PropertyOf<FProperty>(TEXT("Nested"));
	EXPECT_TRUE(Nested->Identical_InContainer(A, B));
	B->Nested.Inner.bIsEnabled = false;
	EXPECT_FALSE(Nested->Identical_InContainer(A, B));

	FProperty* Mode = PropertyOf<FProperty>(TEXT("Mode"));
	EXPECT_TRUE(Mode->Identical(&A->Mode, nullptr)) << "the first enumerator is the zero value";
	A->Mode = EReflectionTestMode::Third;
	EXPECT_FALSE(Mode->Identical(&A->Mode, nullptr));
}

TEST(PropertyValueTests, CopyCompleteValueCopiesDeeply)
{
	UReflectionTestObject* Source = NewValueObject(TEXT("CopySource"));
	UReflectionTestObject* Target = NewValueObject(TEXT("CopyTarget"));
	Source->Strings = { TEXT("one"), TEXT("two") };
	Source->Variables.Add(TEXT("k"), 1.0f);
	Source->Nested.Entries.Add({ TEXT("e"), 2.0f, false });
	Source->Entries.Add({ TEXT("f"), 3.0f, true });
	Target->Strings = { TEXT("old") };

	for (TFieldIterator<FProperty> It(UReflectionTestObject::StaticClass()); It; ++It)
	{
		It->CopyCompleteValue_InContainer(Target, Source);
	}
	Source->Strings[0] = TEXT("changed");
	Source->Variables.Add(TEXT("k"), 9.0f);
	Source->Nested.Entries[0].Name = TEXT("changed");

	EXPECT_EQ(Target->Strings, TArray<FString>({ TEXT("one"), TEXT("two") }));
	EXPECT_EQ(Target->Variables.FindRef(TEXT("k")), 1.0f);
	EXPECT_EQ(Target->Variables.Num(), 1);
	ASSERT_EQ(Target->Nested.Entries.Num(), 1);
	EXPECT_EQ(Target->Nested.Entries[0].Name, TEXT("e"));
	EXPECT_FALSE(Target->Nested.Entries[0].bIsEnabled);
	EXPECT_EQ(Target->Entries[0].Value, 3.0f);
}

TEST(PropertyValueTests, ClearValueResetsToTheZeroOrDefaultValue)
{
	UReflectionTestObject* Object = NewValueObject(TEXT("Clear"));
	Object->Strings = { TEXT("a") };
	Object->Variables.Add(TEXT("k"), 1.0f);
	Object->Text = TEXT("text");
	Object->IntValue = 4;
	Object->Nested.Inner.bIsEnabled = false;
	Object->Nested.Inner.Name = TEXT("n");
	for (const TCHAR* Name : { TEXT("Strings"), TEXT("Variables"), TEXT("Text"), TEXT("IntValue"), TEXT("Nested") })
	{
		PropertyOf<FProperty>(Name)->ClearValue_InContainer(Object);
	}
	EXPECT_TRUE(Object->Strings.IsEmpty());
	EXPECT_TRUE(Object->Variables.IsEmpty());
	EXPECT_TRUE(Object->Text.IsEmpty());
	EXPECT_EQ(Object->IntValue, 0);
	EXPECT_TRUE(Object->Nested.Inner.bIsEnabled) << "a cleared struct is default-constructed";
	EXPECT_TRUE(Object->Nested.Inner.Name.IsEmpty());
}

TEST(PropertyValueTests, EveryKindOfValueLivesAndDiesInPropertyOwnedMemory)
{
	UReflectionTestObject* Source = NewValueObject(TEXT("Lifetimes"));
	Source->Strings = { TEXT("s") };
	Source->Entries.Add({ TEXT("e"), 1.0f, false });
	Source->Variables.Add(TEXT("v"), 1.0f);
	Source->DisplayText = FText::FromString(TEXT("text"));
	Source->Soft = TSoftObjectPtr<UObject>(FSoftObjectPath(TEXT("/Game/A.A")));
	Source->Nested.Entries.Add({ TEXT("n"), 2.0f, true });

	for (TFieldIterator<FProperty> It(UReflectionTestObject::StaticClass()); It; ++It)
	{
		void* Value = It->AllocateAndInitializeValue();
		EXPECT_TRUE(It->Identical(Value, It->ContainerPtrToValuePtr<void>(UReflectionTestObject::StaticClass()->GetDefaultObject())))
			<< TCHAR_TO_UTF8(*It->GetName()) << " starts as the default value";
		It->CopyCompleteValue(Value, It->ContainerPtrToValuePtr<void>(Source));
		EXPECT_TRUE(It->Identical(Value, It->ContainerPtrToValuePtr<void>(Source))) << TCHAR_TO_UTF8(*It->GetName());
		It->DestroyAndFreeValue(Value);
	}

	FStructProperty* Nested = PropertyOf<FStructProperty>(TEXT("Nested"));
	FStructOnScope Scope(Nested->Struct);
	EXPECT_TRUE(reinterpret_cast<FReflectionTestNested*>(Scope.GetStructMemory())->Inner.bIsEnabled) << "struct members get their C++ defaults";
}

TEST(PropertyValueTests, ValueHashesFollowIdentity)
{
	UReflectionTestObject* A = NewValueObject(TEXT("HashA"));
	UReflectionTestObject* B = NewValueObject(TEXT("HashB"));
	A->Text = TEXT("Same");
	B->Text = TEXT("SAME");
	A->Resolution = FIntPoint(3, 4);
	B->Resolution = FIntPoint(3, 4);
	A->Name = TEXT("NameA");
	B->Name = TEXT("namea");
	for (const TCHAR* Name : { TEXT("Text"), TEXT("Resolution"), TEXT("Name"), TEXT("IntValue"), TEXT("Mode") })
	{
		FProperty* Property = PropertyOf<FProperty>(Name);
		EXPECT_TRUE(Property->HasAnyPropertyFlags(CPF_HasGetValueTypeHash)) << TCHAR_TO_UTF8(Name);
		EXPECT_EQ(Property->GetValueTypeHash(Property->ContainerPtrToValuePtr<void>(A)), Property->GetValueTypeHash(Property->ContainerPtrToValuePtr<void>(B)))
			<< TCHAR_TO_UTF8(Name);
	}
	EXPECT_FALSE(PropertyOf<FProperty>(TEXT("DisplayText"))->HasAnyPropertyFlags(CPF_HasGetValueTypeHash));
	EXPECT_TRUE(PropertyOf<FMapProperty>(TEXT("Variables"))->KeyProp->HasAnyPropertyFlags(CPF_HasGetValueTypeHash));
}

TEST(PropertyValueTests, FieldsKnowTheirOwnersPathsAndMetadata)
{
	UClass* Class = UReflectionTestObject::StaticClass();
	FArrayProperty* Numbers = PropertyOf<FArrayProperty>(TEXT("Numbers"));
	EXPECT_EQ(Numbers->GetOwnerClass(), Class);
	EXPECT_EQ(Numbers->GetOwnerStruct(), Class);
	EXPECT_EQ(Numbers->GetOwner<UClass>(), Class);
	EXPECT_TRUE(Numbers->GetOwnerVariant().IsUObject());
	EXPECT_EQ(Numbers->Inner->GetOwner<FArrayProperty>(), Numbers);
	EXPECT_EQ(Numbers->Inner->GetOwnerClass(), Class);
	EXPECT_FALSE(Numbers->Inner->GetOwnerVariant().IsUObject());
	EXPECT_EQ(Numbers->Inner->GetPathName(), TEXT("/Script/ReflectionTests.ReflectionTestObject:Numbers.Numbers"));
	EXPECT_EQ(Numbers->Inner->GetOutermost(), Class->GetPackage());
	TArray<FField*> InnerFields;
	PropertyOf<FMapProperty>(TEXT("Variables"))->GetInnerFields(InnerFields);
	ASSERT_EQ(InnerFields.Num(), 2);
	EXPECT_EQ(InnerFields[0]->GetName(), TEXT("Variables_Key"));

	FProperty* IntValue = PropertyOf<FProperty>(TEXT("IntValue"));
	EXPECT_FALSE(IntValue->HasMetaData(TEXT("ClampMin")));
	IntValue->SetMetaData(TEXT("ClampMin"), TEXT("3"));
	IntValue->SetMetaData(TEXT("EditInline"), TEXT("true"));
	EXPECT_EQ(IntValue->GetMetaData(TEXT("ClampMin")), TEXT("3"));
	EXPECT_EQ(IntValue->GetIntMetaData(TEXT("ClampMin")), 3);
	EXPECT_TRUE(IntValue->GetBoolMetaData(TEXT("EditInline")));
	EXPECT_EQ(IntValue->GetToolTipText().ToString(), TEXT("Int Value")) << "without a tooltip, the display name";
	IntValue->SetMetaData(TEXT("ToolTip"), TEXT("How many"));
	EXPECT_EQ(IntValue->GetToolTipText().ToString(), TEXT("How many"));
	IntValue->RemoveMetaData(TEXT("ClampMin"));
	IntValue->RemoveMetaData(TEXT("EditInline"));
	IntValue->RemoveMetaData(TEXT("ToolTip"));
	EXPECT_EQ(IntValue->GetMetaDataMap(), nullptr);

	FFieldVariant Owner = IntValue->GetOwnerVariant();
	EXPECT_EQ(Owner.Get<UClass>(), Class);
	EXPECT_EQ(Owner.Get<UScriptStruct>(), nullptr);
	EXPECT_EQ(Owner.GetName(), TEXT("ReflectionTestObject"));
	EXPECT_EQ(FFieldVariant(Numbers->Inner).GetOwnerVariant(), FFieldVariant(Numbers));
}

TEST(PropertyValueTests, FieldClassesAreNamedAndConstructible)
{
	EXPECT_EQ(FArrayProperty::StaticClass()->GetName(), TEXT("ArrayProperty"));
	EXPECT_EQ(FFieldClass::FindFieldClass(FName(TEXT("MapProperty"))), FMapProperty::StaticClass());
	EXPECT_EQ(FMapProperty::StaticClass()->GetSuperClass(), FProperty::StaticClass());
	EXPECT_EQ(FIntProperty::StaticClass()->GetSuperClass(), FNumericProperty::StaticClass());
	EXPECT_TRUE(FClassProperty::StaticClass()->IsChildOf(FObjectPropertyBase::StaticClass()));
	EXPECT_EQ(FNumericProperty::StaticClass()->Construct(nullptr, FName(TEXT("Abstract"))), nullptr);

	FField* Made = FStrProperty::StaticClass()->Construct(nullptr, FName(TEXT("Made")));
	ASSERT_NE(Made, nullptr);
	EXPECT_EQ(Made->GetClass(), FStrProperty::StaticClass());
	EXPECT_EQ(Made->GetName(), TEXT("Made"));
	EXPECT_EQ(CastField<FStrProperty>(Made)->ElementSize, int32(sizeof(FString)));
	delete Made;
}

TEST(PropertyValueTests, StructOnScopeOwnsItsMemory)
{
	FStructOnScope Scope(FReflectionTestEntry::StaticStruct());
	reinterpret_cast<FReflectionTestEntry*>(Scope.GetStructMemory())->Name = TEXT("a long string that owns heap memory");
	FStructOnScope Moved(MoveTemp(Scope));
	EXPECT_FALSE(Scope.IsValid());
	ASSERT_TRUE(Moved.IsValid());
	EXPECT_EQ(reinterpret_cast<FReflectionTestEntry*>(Moved.GetStructMemory())->Name, TEXT("a long string that owns heap memory"));
	EXPECT_TRUE(Moved.OwnsStructMemory());

	Moved.Initialize(TBaseStructure<FIntPoint>::Get());
	EXPECT_EQ(Moved.GetStruct(), TBaseStructure<FIntPoint>::Get());
	EXPECT_EQ(*reinterpret_cast<FIntPoint*>(Moved.GetStructMemory()), FIntPoint(0, 0));
	Moved.Reset();
	EXPECT_FALSE(Moved.IsValid());

	FIntPoint External(5, 6);
	FStructOnScope View(TBaseStructure<FIntPoint>::Get(), reinterpret_cast<uint8*>(&External));
	EXPECT_FALSE(View.OwnsStructMemory());
	EXPECT_EQ(reinterpret_cast<FIntPoint*>(View.GetStructMemory())->Y, 6);
}

TEST(PropertyValueTests, ObjectPointerWrappers)
{
	UReflectionTestObject* Raw = NewValueObject(TEXT("Wrappers"));
	TObjectPtr<UReflectionTestObject> Pointer = Raw;
	TObjectPtr<UObject> Base = Pointer;
	EXPECT_EQ(Pointer.Get(), Raw);
	EXPECT_TRUE(Pointer == Raw);
	EXPECT_TRUE(Base == Pointer);
	EXPECT_TRUE(Pointer);
	EXPECT_EQ(Pointer->GetName(), TEXT("Wrappers"));
	EXPECT_EQ(Pointer.GetName(), TEXT("Wrappers"));
	EXPECT_EQ(GetTypeHash(Pointer), GetTypeHash(Base));
	TObjectPtr<UReflectionTestObject> Null;
	EXPECT_TRUE(Null == nullptr);
	EXPECT_FALSE(Null);
	EXPECT_EQ(Null.GetName(), TEXT("None"));
	TArray<TObjectPtr<UReflectionTestObject>> Pointers = { Pointer, Null };
	EXPECT_EQ(ToRawPtrTArrayUnsafe(Pointers)[0], Raw);

	TSubclassOf<UReflectionTestObject> Subclass = UReflectionTestDerived::StaticClass();
	EXPECT_EQ(Subclass.Get(), UReflectionTestDerived::StaticClass());
	EXPECT_EQ(Subclass.GetDefaultObject(), UReflectionTestDerived::StaticClass()->GetDefaultObject());
	Subclass = UReflectionTestFunctions::StaticClass();
	EXPECT_EQ(Subclass.Get(), nullptr) << "a class outside the hierarchy reads as null";
	EXPECT_EQ(Subclass.GetDefaultObject(), nullptr);
}

TEST(PropertyValueTests, CoreValueStructuresTextForms)
{
	EXPECT_EQ(ExportStruct(FVector2D(0.0, 5.0)), TEXT("(X=0.000000,Y=5.000000)")) << "FVector2D is atomic";
	EXPECT_EQ(ExportStruct(FFrameNumber(24)), TEXT("(Value=24)"));
	EXPECT_EQ(ExportStruct(FTimecode(1, 2, 3, 4, true)), TEXT("(Hours=1,Minutes=2,Seconds=3,Frames=4,bDropFrameFormat=True)"));
	EXPECT_EQ(ExportStruct(FDateTime(2024, 1, 2, 3, 4, 5)), TEXT("2024.01.02-03.04.05"));

	FDateTime Parsed;
	const TCHAR* DateText = TEXT("2023.12.31-23.59.58");
	FStructProperty DateProperty(nullptr, FName(TEXT("Date")), RF_NoFlags, 0, CPF_None, TBaseStructure<FDateTime>::Get());
	ASSERT_NE(DateProperty.ImportText_Direct(DateText, &Parsed, nullptr, PPF_None, nullptr), nullptr);
	EXPECT_EQ(Parsed, FDateTime(2023, 12, 31, 23, 59, 58));

	FGuid Guid;
	FStructProperty GuidProperty(nullptr, FName(TEXT("Guid")), RF_NoFlags, 0, CPF_None, TBaseStructure<FGuid>::Get());
	ASSERT_NE(GuidProperty.ImportText_Direct(TEXT("0123456789ABCDEFDEADBEEF00000001"), &Guid, nullptr, PPF_None, nullptr), nullptr);
	EXPECT_EQ(Guid, FGuid(0x01234567, 0x89ABCDEF, 0xDEADBEEF, 0x00000001));
}
