#include "PersistenceTestSupport.h"
#include "PersistenceTestTypes.h"

#include "Editor.h"
#include "Editor/StandInEditorStartup.h"
#include "Misc/PackageName.h"
#include "ScopedTransaction.h"
#include "StructUtils/PropertyBag.h"
#include "UObject/GarbageCollection.h"
#include "UObject/Package.h"
#include "UObject/SavePackage.h"
#include "UObject/StandInTypeBuilder.h"
#include "UObject/StrongObjectPtr.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/WeakObjectPtrTemplates.h"

#include <gtest/gtest.h>

#include <cstdlib>

enum class EPropertyBagTestColor : uint8
{
	Red,
	Green,
	Blue,
};

STANDIN_IMPLEMENT_ENUM(EPropertyBagTestColor, "VlmrUnitTests", Red, Green, Blue)

class UPropertyBagTestHolder : public UObject
{
	STANDIN_CLASS_BODY(UPropertyBagTestHolder, UObject, )

public:
	FInstancedPropertyBag Value;
};

STANDIN_IMPLEMENT_CLASS(UPropertyBagTestHolder, CLASS_None, "VlmrUnitTests")
{
	STANDIN_PROPERTY(Value, CPF_Edit);
}

namespace
{
	const char* const BagSecondProcessProjectVariable = "VLMR_PROPERTY_BAG_SECOND_PROCESS_PROJECT";

	// One value of each type the bag holds, set with the typed setters.
	void FillEveryType(FInstancedPropertyBag& Bag, UObject* ObjectValue)
	{
		const TArray<FPropertyBagPropertyDesc> Descs = {
			FPropertyBagPropertyDesc(TEXT("Flag"), EPropertyBagPropertyType::Bool),
			FPropertyBagPropertyDesc(TEXT("Small"), EPropertyBagPropertyType::Byte),
			FPropertyBagPropertyDesc(TEXT("Count"), EPropertyBagPropertyType::Int32),
			FPropertyBagPropertyDesc(TEXT("Big"), EPropertyBagPropertyType::Int64),
			FPropertyBagPropertyDesc(TEXT("Unsigned"), EPropertyBagPropertyType::UInt32),
			FPropertyBagPropertyDesc(TEXT("Ratio"), EPropertyBagPropertyType::Float),
			FPropertyBagPropertyDesc(TEXT("Precise"), EPropertyBagPropertyType::Double),
			FPropertyBagPropertyDesc(TEXT("Id"), EPropertyBagPropertyType::Name),
			FPropertyBagPropertyDesc(TEXT("Label"), EPropertyBagPropertyType::String),
			FPropertyBagPropertyDesc(TEXT("Caption"), EPropertyBagPropertyType::Text),
			FPropertyBagPropertyDesc(TEXT("Color"), EPropertyBagPropertyType::Enum, StaticEnum<EPropertyBagTestColor>()),
			FPropertyBagPropertyDesc(TEXT("Record"), EPropertyBagPropertyType::Struct, FPersistenceTestStruct::StaticStruct()),
			FPropertyBagPropertyDesc(TEXT("Target"), EPropertyBagPropertyType::Object, UPersistenceTestObject::StaticClass()),
			FPropertyBagPropertyDesc(TEXT("Kind"), EPropertyBagPropertyType::Class, UObject::StaticClass()),
			FPropertyBagPropertyDesc(TEXT("Numbers"), EPropertyBagContainerType::Array, EPropertyBagPropertyType::Int32),
		};
		Bag.AddProperties(Descs);
		FPersistenceTestStruct Record;
		Record.Value = 12;
		Bag.SetValueBool(TEXT("Flag"), true);
		Bag.SetValueByte(TEXT("Small"), 200);
		Bag.SetValueInt32(TEXT("Count"), -42);
		Bag.SetValueInt64(TEXT("Big"), 5000000000);
		Bag.SetValueUInt32(TEXT("Unsigned"), 4000000000u);
		Bag.SetValueFloat(TEXT("Ratio"), 0.5f);
		Bag.SetValueDouble(TEXT("Precise"), -2.25);
		Bag.SetValueName(TEXT("Id"), FName(TEXT("Shot_010")));
		Bag.SetValueString(TEXT("Label"), TEXT("Say \"hi\""));
		Bag.SetValueText(TEXT("Caption"), FText::FromString(TEXT("Shown")));
		Bag.SetValueEnum(TEXT("Color"), EPropertyBagTestColor::Blue);
		Bag.SetValueStruct(TEXT("Record"), Record);
		Bag.SetValueObject(TEXT("Target"), ObjectValue);
		Bag.SetValueClass(TEXT("Kind"), UPersistenceTestObject::StaticClass());
		FPropertyBagArrayRef Numbers = Bag.GetMutableArrayRef(TEXT("Numbers")).GetValue();
		Numbers.AddValues(3);
		for (int32 Index = 0; Index < 3; ++Index)
		{
			Numbers.SetValueInt32(Index, (Index + 1) * 10);
		}
	}

	void ExpectEveryType(const FInstancedPropertyBag& Bag, UObject* ObjectValue)
	{
		EXPECT_EQ(Bag.GetValueBool(TEXT("Flag")).GetValue(), true);
		EXPECT_EQ(Bag.GetValueByte(TEXT("Small")).GetValue(), 200);
		EXPECT_EQ(Bag.GetValueInt32(TEXT("Count")).GetValue(), -42);
		EXPECT_EQ(Bag.GetValueInt64(TEXT("Big")).GetValue(), 5000000000);
		EXPECT_EQ(Bag.GetValueUInt32(TEXT("Unsigned")).GetValue(), 4000000000u);
		EXPECT_EQ(Bag.GetValueFloat(TEXT("Ratio")).GetValue(), 0.5f);
		EXPECT_EQ(Bag.GetValueDouble(TEXT("Precise")).GetValue(), -2.25);
		EXPECT_EQ(Bag.GetValueName(TEXT("Id")).GetValue(), FName(TEXT("Shot_010")));
		EXPECT_EQ(Bag.GetValueString(TEXT("Label")).GetValue(), TEXT("Say \"hi\""));
		EXPECT_EQ(Bag.GetValueText(TEXT("Caption")).GetValue().ToString(), TEXT("Shown"));
		EXPECT_EQ(Bag.GetValueEnum<EPropertyBagTestColor>(TEXT("Color")).GetValue(), EPropertyBagTestColor::Blue);
		EXPECT_EQ(Bag.GetValueStruct<FPersistenceTestStruct>(TEXT("Record")).GetValue()->Value, 12);
		EXPECT_EQ(Bag.GetValueObject(TEXT("Target")).GetValue(), ObjectValue);
		EXPECT_EQ(Bag.GetValueClass(TEXT("Kind")).GetValue(), UPersistenceTestObject::StaticClass());
		EXPECT_EQ(Bag.GetValueSerializedString(TEXT("Numbers")).GetValue(), TEXT("(10,20,30)"));
	}

	UPersistenceTestObject* NewTarget(UObject* Outer, const TCHAR* Name)
	{
		UPersistenceTestObject* Target = NewObject<UPersistenceTestObject>(Outer, FName(Name));
		Target->Number = 77;
		return Target;
	}
}

TEST(PropertyBagTests, EveryValueTypeSetsGetsAndRoundTripsThroughItsSerializedString)
{
	TStrongObjectPtr<UPersistenceTestObject> Target(NewTarget(GetTransientPackage(), TEXT("BagTarget")));
	FInstancedPropertyBag Bag;
	FillEveryType(Bag, Target.Get());
	EXPECT_EQ(Bag.GetNumPropertiesInBag(), 15);
	ExpectEveryType(Bag, Target.Get());

	const TPair<const TCHAR*, const TCHAR*> Expected[] = {
		{ TEXT("Flag"), TEXT("True") },
		{ TEXT("Small"), TEXT("200") },
		{ TEXT("Count"), TEXT("-42") },
		{ TEXT("Big"), TEXT("5000000000") },
		{ TEXT("Unsigned"), TEXT("4000000000") },
		{ TEXT("Ratio"), TEXT("0.500000") },
		{ TEXT("Precise"), TEXT("-2.250000") },
		{ TEXT("Id"), TEXT("Shot_010") },
		{ TEXT("Label"), TEXT("Say \"hi\"") },
		{ TEXT("Color"), TEXT("Blue") },
		{ TEXT("Record"), TEXT("(Value=12)") },
		{ TEXT("Target"), TEXT("/Script/PersistenceTests.PersistenceTestObject'/Engine/Transient.BagTarget'") },
		{ TEXT("Kind"), TEXT("/Script/CoreUObject.Class'/Script/PersistenceTests.PersistenceTestObject'") },
	};
	for (const TPair<const TCHAR*, const TCHAR*>& Case : Expected)
	{
		EXPECT_STREQ(*Bag.GetValueSerializedString(Case.Key).GetValue(), Case.Value) << Case.Key;
	}

	FInstancedPropertyBag Reloaded;
	Reloaded.InitializeFromBagStruct(Bag.GetPropertyBagStruct());
	for (const FPropertyBagPropertyDesc& Desc : Bag.GetPropertyBagStruct()->GetPropertyDescs())
	{
		const FString Serialized = Bag.GetValueSerializedString(Desc.Name).GetValue();
		EXPECT_EQ(Reloaded.SetValueSerializedString(Desc.Name, Serialized), EPropertyBagResult::Success) << *Serialized;
	}
	ExpectEveryType(Reloaded, Target.Get());
	EXPECT_EQ(Reloaded, Bag);
}

TEST(PropertyBagTests, UnparsableSerializedStringsAreRefusedAndKeepTheOldValue)
{
	FInstancedPropertyBag Bag;
	Bag.AddProperty(TEXT("Count"), EPropertyBagPropertyType::Int32);
	Bag.AddProperty(TEXT("Flag"), EPropertyBagPropertyType::Bool);
	Bag.AddProperty(TEXT("Color"), EPropertyBagPropertyType::Enum, StaticEnum<EPropertyBagTestColor>());
	Bag.AddProperty(TEXT("Record"), EPropertyBagPropertyType::Struct, FPersistenceTestStruct::StaticStruct());
	Bag.SetValueInt32(TEXT("Count"), 7);
	Bag.SetValueBool(TEXT("Flag"), true);
	Bag.SetValueEnum(TEXT("Color"), EPropertyBagTestColor::Green);
	Bag.SetValueSerializedString(TEXT("Record"), TEXT("(Value=3)"));

	EXPECT_EQ(Bag.SetValueSerializedString(TEXT("Count"), TEXT("seven")), EPropertyBagResult::TypeMismatch);
	EXPECT_EQ(Bag.SetValueSerializedString(TEXT("Count"), TEXT("12abc")), EPropertyBagResult::TypeMismatch);
	EXPECT_EQ(Bag.SetValueSerializedString(TEXT("Flag"), TEXT("Maybe")), EPropertyBagResult::TypeMismatch);
	EXPECT_EQ(Bag.SetValueSerializedString(TEXT("Color"), TEXT("Purple")), EPropertyBagResult::TypeMismatch);
	EXPECT_EQ(Bag.SetValueSerializedString(TEXT("Record"), TEXT("(Value=4,Missing=1)")), EPropertyBagResult::TypeMismatch);
	EXPECT_EQ(Bag.SetValueSerializedString(TEXT("Absent"), TEXT("1")), EPropertyBagResult::PropertyNotFound);

	EXPECT_EQ(Bag.GetValueInt32(TEXT("Count")).GetValue(), 7);
	EXPECT_TRUE(Bag.GetValueBool(TEXT("Flag")).GetValue());
	EXPECT_EQ(Bag.GetValueEnum<EPropertyBagTestColor>(TEXT("Color")).GetValue(), EPropertyBagTestColor::Green);
	EXPECT_EQ(Bag.GetValueStruct<FPersistenceTestStruct>(TEXT("Record")).GetValue()->Value, 3);

	EXPECT_EQ(Bag.SetValueSerializedString(TEXT("Count"), TEXT("12 ")), EPropertyBagResult::Success);
	EXPECT_EQ(Bag.GetValueInt32(TEXT("Count")).GetValue(), 12);
	EXPECT_EQ(Bag.SetValueSerializedString(TEXT("Color"), TEXT("Red")), EPropertyBagResult::Success);
	EXPECT_EQ(Bag.GetValueEnum<EPropertyBagTestColor>(TEXT("Color")).GetValue(), EPropertyBagTestColor::Red);
}

TEST(PropertyBagTests, NumericKindsConvertAndOtherKindsReportTypeMismatch)
{
	TStrongObjectPtr<UObject> Plain(NewObject<UObject>());
	FInstancedPropertyBag Bag;
	Bag.AddProperty(TEXT("Count"), EPropertyBagPropertyType::Int32);
	Bag.AddProperty(TEXT("Flag"), EPropertyBagPropertyType::Bool);
	Bag.AddProperty(TEXT("Ratio"), EPropertyBagPropertyType::Double);
	Bag.AddProperty(TEXT("Label"), EPropertyBagPropertyType::String);
	Bag.AddProperty(TEXT("Color"), EPropertyBagPropertyType::Enum, StaticEnum<EPropertyBagTestColor>());
	Bag.AddProperty(TEXT("Target"), EPropertyBagPropertyType::Object, UPersistenceTestObject::StaticClass());

	EXPECT_EQ(Bag.SetValueFloat(TEXT("Count"), 3.75f), EPropertyBagResult::Success);
	EXPECT_EQ(Bag.GetValueInt32(TEXT("Count")).GetValue(), 3);
	EXPECT_EQ(Bag.GetValueDouble(TEXT("Count")).GetValue(), 3.0);
	EXPECT_TRUE(Bag.GetValueBool(TEXT("Count")).GetValue());
	EXPECT_EQ(Bag.SetValueInt64(TEXT("Flag"), 9), EPropertyBagResult::Success);
	EXPECT_EQ(Bag.GetValueInt32(TEXT("Flag")).GetValue(), 1);
	EXPECT_EQ(Bag.SetValueInt32(TEXT("Ratio"), -5), EPropertyBagResult::Success);
	EXPECT_EQ(Bag.GetValueFloat(TEXT("Ratio")).GetValue(), -5.0f);

	EXPECT_EQ(Bag.GetValueString(TEXT("Count")).GetError(), EPropertyBagResult::TypeMismatch);
	EXPECT_EQ(Bag.GetValueName(TEXT("Label")).GetError(), EPropertyBagResult::TypeMismatch);
	EXPECT_EQ(Bag.GetValueInt32(TEXT("Label")).GetError(), EPropertyBagResult::TypeMismatch);
	EXPECT_EQ(Bag.SetValueInt32(TEXT("Color"), 1), EPropertyBagResult::TypeMismatch);
	EXPECT_EQ(Bag.GetValueEnum(TEXT("Color"), StaticEnum<EPropertyBagContainerType>()).GetError(), EPropertyBagResult::TypeMismatch);
	EXPECT_EQ(Bag.SetValueObject(TEXT("Target"), Plain.Get()), EPropertyBagResult::TypeMismatch) << "not a UPersistenceTestObject";
	EXPECT_EQ(Bag.GetValueClass(TEXT("Target")).GetError(), EPropertyBagResult::TypeMismatch);
	EXPECT_EQ(Bag.GetValueStruct(TEXT("Label")).GetError(), EPropertyBagResult::TypeMismatch);
	EXPECT_EQ(Bag.GetValueInt32(TEXT("Absent")).GetError(), EPropertyBagResult::PropertyNotFound);
	EXPECT_EQ(Bag.SetValueString(TEXT("Absent"), TEXT("x")), EPropertyBagResult::PropertyNotFound);
}

TEST(PropertyBagTests, LayoutChangesKeepTheValuesOfPropertiesThatStay)
{
	FInstancedPropertyBag Bag;
	EXPECT_FALSE(Bag.IsValid());
	EXPECT_EQ(Bag.AddProperty(NAME_None, EPropertyBagPropertyType::Int32), EPropertyBagAlterationResult::PropertyNameEmpty);
	EXPECT_EQ(Bag.AddProperty(TEXT("Two Words"), EPropertyBagPropertyType::Int32), EPropertyBagAlterationResult::PropertyNameInvalidCharacters);
	EXPECT_EQ(Bag.AddProperty(TEXT("Color"), EPropertyBagPropertyType::Enum), EPropertyBagAlterationResult::InternalError) << "an enum needs its UEnum";
	EXPECT_FALSE(Bag.IsValid());

	EXPECT_EQ(Bag.AddProperty(TEXT("Count"), EPropertyBagPropertyType::Int32), EPropertyBagAlterationResult::Success);
	Bag.SetValueInt32(TEXT("Count"), 5);
	EXPECT_EQ(Bag.AddProperty(TEXT("Label"), EPropertyBagPropertyType::String), EPropertyBagAlterationResult::Success);
	Bag.SetValueString(TEXT("Label"), TEXT("kept"));
	EXPECT_EQ(Bag.GetValueInt32(TEXT("Count")).GetValue(), 5);

	EXPECT_EQ(Bag.AddProperty(TEXT("Count"), EPropertyBagPropertyType::Int32, nullptr, false), EPropertyBagAlterationResult::TargetPropertyAlreadyExists);
	EXPECT_EQ(Bag.AddProperty(TEXT("Count"), EPropertyBagPropertyType::Int32), EPropertyBagAlterationResult::Success);
	EXPECT_EQ(Bag.GetValueInt32(TEXT("Count")).GetValue(), 5) << "same type: the value carries over";
	EXPECT_EQ(Bag.AddProperty(TEXT("Count"), EPropertyBagPropertyType::Name), EPropertyBagAlterationResult::Success);
	EXPECT_EQ(Bag.GetValueName(TEXT("Count")).GetValue(), NAME_None);

	EXPECT_EQ(Bag.RemovePropertyByName(TEXT("Count")), EPropertyBagAlterationResult::Success);
	EXPECT_EQ(Bag.RemovePropertyByName(TEXT("Count")), EPropertyBagAlterationResult::TargetPropertyNotFound);
	EXPECT_EQ(Bag.GetNumPropertiesInBag(), 1);
	EXPECT_EQ(Bag.FindPropertyDescByName(TEXT("Count")), nullptr);
	EXPECT_EQ(Bag.GetValueString(TEXT("Label")).GetValue(), TEXT("kept"));

	FInstancedPropertyBag Copy = Bag;
	EXPECT_EQ(Copy.GetPropertyBagStruct(), Bag.GetPropertyBagStruct()) << "bags of one layout share their struct";
	Bag.Reset();
	EXPECT_FALSE(Bag.IsValid());
	EXPECT_EQ(Bag.GetNumPropertiesInBag(), 0);
}

TEST(PropertyBagTests, ArraysAreEditedThroughArrayRefs)
{
	FInstancedPropertyBag Bag;
	EXPECT_EQ(Bag.AddContainerProperty(TEXT("Names"), EPropertyBagContainerType::Array, EPropertyBagPropertyType::String), EPropertyBagAlterationResult::Success);
	Bag.AddProperty(TEXT("Single"), EPropertyBagPropertyType::String);
	const FPropertyBagPropertyDesc* Desc = Bag.FindPropertyDescByName(TEXT("Names"));
	ASSERT_NE(Desc, nullptr);
	EXPECT_EQ(Desc->ContainerTypes.GetFirstContainerType(), EPropertyBagContainerType::Array);
	EXPECT_EQ(Desc->ValueType, EPropertyBagPropertyType::String);

	TValueOrError<FPropertyBagArrayRef, EPropertyBagResult> Names = Bag.GetMutableArrayRef(TEXT("Names"));
	ASSERT_TRUE(Names.HasValue());
	Names.GetValue().AddValues(2);
	EXPECT_EQ(Names.GetValue().SetValueString(0, TEXT("a")), EPropertyBagResult::Success);
	EXPECT_EQ(Names.GetValue().SetValueString(1, TEXT("b")), EPropertyBagResult::Success);
	EXPECT_EQ(Names.GetValue().SetValueString(2, TEXT("c")), EPropertyBagResult::OutOfBounds);
	EXPECT_EQ(Names.GetValue().SetValueInt32(0, 1), EPropertyBagResult::TypeMismatch);
	EXPECT_EQ(Names.GetValue().GetValueString(-1).GetError(), EPropertyBagResult::OutOfBounds);

	TValueOrError<const FPropertyBagArrayRef, EPropertyBagResult> ReadOnly = Bag.GetArrayRef(TEXT("Names"));
	ASSERT_TRUE(ReadOnly.HasValue());
	EXPECT_EQ(ReadOnly.GetValue().Num(), 2);
	EXPECT_EQ(ReadOnly.GetValue().GetValueString(1).GetValue(), TEXT("b"));
	EXPECT_STREQ(*Bag.GetValueSerializedString(TEXT("Names")).GetValue(), TEXT("(\"a\",\"b\")"));
	EXPECT_EQ(Bag.GetArrayRef(TEXT("Single")).GetError(), EPropertyBagResult::TypeMismatch);
	EXPECT_EQ(Bag.GetArrayRef(TEXT("Absent")).GetError(), EPropertyBagResult::PropertyNotFound);
	EXPECT_EQ(Bag.GetValueString(TEXT("Names")).GetError(), EPropertyBagResult::TypeMismatch);

	EXPECT_EQ(Bag.SetValueSerializedString(TEXT("Names"), TEXT("(\"x\",\"y\",\"z\")")), EPropertyBagResult::Success);
	EXPECT_EQ(Bag.GetArrayRef(TEXT("Names")).GetValue().Num(), 3);
	EXPECT_EQ(Bag.GetArrayRef(TEXT("Names")).GetValue().GetValueString(2).GetValue(), TEXT("z"));
}

TEST(PropertyBagTests, CopiesAreDeepAndCompareByValue)
{
	FInstancedPropertyBag Original;
	Original.AddProperty(TEXT("Label"), EPropertyBagPropertyType::String);
	Original.AddContainerProperty(TEXT("Numbers"), EPropertyBagContainerType::Array, EPropertyBagPropertyType::Int32);
	Original.SetValueString(TEXT("Label"), TEXT("original"));
	Original.SetValueSerializedString(TEXT("Numbers"), TEXT("(1,2)"));

	FInstancedPropertyBag Copy = Original;
	EXPECT_EQ(Copy, Original);
	Copy.SetValueString(TEXT("Label"), TEXT("changed"));
	Copy.GetMutableArrayRef(TEXT("Numbers")).GetValue().AddValue();
	EXPECT_FALSE(Copy == Original);
	EXPECT_EQ(Original.GetValueString(TEXT("Label")).GetValue(), TEXT("original"));
	EXPECT_STREQ(*Original.GetValueSerializedString(TEXT("Numbers")).GetValue(), TEXT("(1,2)"));

	FInstancedPropertyBag Moved = MoveTemp(Copy);
	EXPECT_FALSE(Copy.IsValid());
	EXPECT_EQ(Moved.GetValueString(TEXT("Label")).GetValue(), TEXT("changed"));

	Copy = Original;
	Copy.AddProperty(TEXT("Extra"), EPropertyBagPropertyType::Bool);
	EXPECT_FALSE(Copy == Original) << "another layout never equals";
}

TEST(PropertyBagTests, ObjectValuesOfABagMemberStayReferencedForTheCollector)
{
	TStrongObjectPtr<UPropertyBagTestHolder> Holder(NewObject<UPropertyBagTestHolder>());
	Holder->Value.AddProperty(TEXT("Target"), EPropertyBagPropertyType::Object, UPersistenceTestObject::StaticClass());
	Holder->Value.AddContainerProperty(TEXT("Targets"), EPropertyBagContainerType::Array, EPropertyBagPropertyType::Object, UPersistenceTestObject::StaticClass());
	TWeakObjectPtr<UPersistenceTestObject> Single = NewObject<UPersistenceTestObject>();
	TWeakObjectPtr<UPersistenceTestObject> InArray = NewObject<UPersistenceTestObject>();
	Holder->Value.SetValueObject(TEXT("Target"), Single.Get());
	FPropertyBagArrayRef Targets = Holder->Value.GetMutableArrayRef(TEXT("Targets")).GetValue();
	Targets.AddValue();
	Targets.SetValueObject(0, InArray.Get());

	CollectGarbage(RF_NoFlags);
	EXPECT_TRUE(Single.IsValid());
	EXPECT_TRUE(InArray.IsValid());
	EXPECT_EQ(Holder->Value.GetValueObject(TEXT("Target")).GetValue(), Single.Get());

	Holder->Value.Reset();
	CollectGarbage(RF_NoFlags);
	EXPECT_FALSE(Single.IsValid());
	EXPECT_FALSE(InArray.IsValid());
}

TEST(PropertyBagTests, UndoAndRedoRestoreTheBagOfAnObject)
{
	UE::UnrealEd::StandIn::StartEditor(TEXT("/Temp/PropertyBagTransactionMap"));
	{
		TStrongObjectPtr<UPropertyBagTestHolder> Holder(NewObject<UPropertyBagTestHolder>(GetTransientPackage(), NAME_None, RF_Transactional));
		Holder->Value.AddProperty(TEXT("Count"), EPropertyBagPropertyType::Int32);
		Holder->Value.SetValueInt32(TEXT("Count"), 1);
		{
			FScopedTransaction Transaction(FText::FromString(TEXT("Edit bag")));
			Holder->Modify();
			Holder->Value.SetValueInt32(TEXT("Count"), 2);
			Holder->Value.AddProperty(TEXT("Label"), EPropertyBagPropertyType::String);
		}

		ASSERT_TRUE(GEditor->UndoTransaction());
		EXPECT_EQ(Holder->Value.GetValueInt32(TEXT("Count")).GetValue(), 1);
		EXPECT_EQ(Holder->Value.FindPropertyDescByName(TEXT("Label")), nullptr);

		ASSERT_TRUE(GEditor->RedoTransaction());
		EXPECT_EQ(Holder->Value.GetValueInt32(TEXT("Count")).GetValue(), 2);
		EXPECT_NE(Holder->Value.FindPropertyDescByName(TEXT("Label")), nullptr);
	}
	UE::UnrealEd::StandIn::StopEditor();
}

TEST(PropertyBagTests, PackagesSaveTheLayoutAndValuesForAnotherProcess)
{
	FScopedTestProject Project;
	{
		UPackage* Package = CreatePackage(TEXT("/Game/Bags/Holder"));
		UPropertyBagTestHolder* Holder = NewObject<UPropertyBagTestHolder>(Package, TEXT("Holder"), RF_Public | RF_Standalone);
		FillEveryType(Holder->Value, NewTarget(Holder, TEXT("Target")));
		ASSERT_TRUE(SavePackageToItsFile(Package, Holder).IsSuccessful());
		Holder->ClearFlags(RF_Standalone);
	}
	CollectGarbage(RF_NoFlags);

	EXPECT_EQ(RunTestInSecondProcess("PropertyBagSecondProcess.LoadsWhatTheFirstProcessSaved", BagSecondProcessProjectVariable, Project.GetProjectDir()), 0);
}

TEST(PropertyBagSecondProcess, LoadsWhatTheFirstProcessSaved)
{
	const char* ProjectDir = std::getenv(BagSecondProcessProjectVariable);
	if (!ProjectDir)
	{
		GTEST_SKIP() << "Runs only in the process started by PropertyBagTests.PackagesSaveTheLayoutAndValuesForAnotherProcess";
	}
	FScopedTestProject Project{ FString(UTF8_TO_TCHAR(ProjectDir)) };

	TStrongObjectPtr<UPropertyBagTestHolder> Holder(LoadObject<UPropertyBagTestHolder>(nullptr, TEXT("/Game/Bags/Holder.Holder")));
	ASSERT_TRUE(Holder.IsValid());
	UPersistenceTestObject* Target = FindObject<UPersistenceTestObject>(Holder.Get(), TEXT("Target"));
	ASSERT_NE(Target, nullptr);
	EXPECT_EQ(Target->Number, 77);
	ASSERT_EQ(Holder->Value.GetNumPropertiesInBag(), 15);
	ExpectEveryType(Holder->Value, Target);
	EXPECT_EQ(Holder->Value.GetPropertyBagStruct()->FindPropertyDescByName(TEXT("Numbers"))->ContainerTypes.GetFirstContainerType(), EPropertyBagContainerType::Array);
}

TEST(PropertyBagTests, TypeNumbersFollowTheEngineVersion)
{
	EXPECT_EQ(uint8(EPropertyBagPropertyType::SoftClass), 15);
	EXPECT_EQ(uint8(EPropertyBagContainerType::Set), 2);
#if UE_VERSION_OLDER_THAN(5, 8, 0)
	EXPECT_EQ(uint8(EPropertyBagPropertyType::UInt32), 16);
	EXPECT_EQ(uint8(EPropertyBagPropertyType::UInt64), 17);
#else
	EXPECT_EQ(uint8(EPropertyBagPropertyType::Int8), 16);
	EXPECT_EQ(uint8(EPropertyBagPropertyType::UInt32), 19);
	EXPECT_EQ(uint8(EPropertyBagContainerType::Map), 3);

	FInstancedPropertyBag Bag;
	Bag.AddProperty(TEXT("Small"), EPropertyBagPropertyType::Int16);
	EXPECT_EQ(Bag.SetValueInt16(TEXT("Small"), -300), EPropertyBagResult::Success);
	EXPECT_EQ(Bag.GetValueInt32(TEXT("Small")).GetValue(), -300);
	EXPECT_STREQ(*Bag.GetValueSerializedString(TEXT("Small")).GetValue(), TEXT("-300"));
#endif
	EXPECT_STREQ(*StaticEnum<EPropertyBagPropertyType>()->GetNameStringByValue(int64(EPropertyBagPropertyType::UInt64)), TEXT("UInt64"));
}
