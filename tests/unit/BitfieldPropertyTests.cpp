#include "PersistenceTestSupport.h"

#include "Editor.h"
#include "Editor/StandInEditorStartup.h"
#include "Misc/PackageName.h"
#include "ScopedTransaction.h"
#include "UObject/GarbageCollection.h"
#include "UObject/Package.h"
#include "UObject/SavePackage.h"
#include "UObject/StandInTypeBuilder.h"
#include "UObject/StrongObjectPtr.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

#include <gtest/gtest.h>

class UBitfieldTestObject : public UObject
{
	STANDIN_CLASS_BODY(UBitfieldTestObject, UObject, )

public:
	uint8 bOverride_First : 1 = 0;
	uint8 bOverride_Second : 1 = 0;
	uint8 bOverride_Third : 1 = 0;
	int32 Number = 0;
	uint8 bOverride_Later : 1 = 0;
	bool bNative = false;
};

STANDIN_IMPLEMENT_CLASS(UBitfieldTestObject, CLASS_None, "VlmrUnitTests")
{
	STANDIN_BITFIELD_PROPERTY(bOverride_First, CPF_Edit);
	STANDIN_BITFIELD_PROPERTY(bOverride_Second, CPF_Edit)->SetMetaData(TEXT("InlineEditConditionToggle"), TEXT(""));
	STANDIN_BITFIELD_PROPERTY(bOverride_Third, CPF_Edit);
	STANDIN_PROPERTY(Number, CPF_Edit);
	STANDIN_BITFIELD_PROPERTY(bOverride_Later, CPF_Edit);
	STANDIN_PROPERTY(bNative, CPF_Edit);
}

namespace
{
	FBoolProperty* BoolPropertyOf(const TCHAR* Name)
	{
		return CastField<FBoolProperty>(UBitfieldTestObject::StaticClass()->FindPropertyByName(FName(Name)));
	}

	TStrongObjectPtr<UBitfieldTestObject> NewBitfieldObject()
	{
		return TStrongObjectPtr<UBitfieldTestObject>(NewObject<UBitfieldTestObject>());
	}
}

TEST(BitfieldPropertyTests, RegistrationFindsTheByteAndBitOfEachMember)
{
	const FBoolProperty* First = BoolPropertyOf(TEXT("bOverride_First"));
	const FBoolProperty* Second = BoolPropertyOf(TEXT("bOverride_Second"));
	const FBoolProperty* Third = BoolPropertyOf(TEXT("bOverride_Third"));
	const FBoolProperty* Later = BoolPropertyOf(TEXT("bOverride_Later"));
	const FBoolProperty* Native = BoolPropertyOf(TEXT("bNative"));
	ASSERT_TRUE(First && Second && Third && Later && Native);

	EXPECT_EQ(First->GetOffset_ForInternal(), Second->GetOffset_ForInternal());
	EXPECT_EQ(First->GetOffset_ForInternal(), Third->GetOffset_ForInternal());
	EXPECT_NE(First->GetOffset_ForInternal(), Later->GetOffset_ForInternal());
	EXPECT_EQ(First->GetFieldMask(), 0x01);
	EXPECT_EQ(Second->GetFieldMask(), 0x02);
	EXPECT_EQ(Third->GetByteMask(), 0x04);
	EXPECT_EQ(Later->GetFieldMask(), 0x01);
	EXPECT_FALSE(Second->IsNativeBool());
	EXPECT_EQ(Second->GetFieldSize(), 1);
	EXPECT_EQ(Second->GetElementSize(), 1);
	EXPECT_EQ(Second->GetCPPType(), TEXT("uint8"));
	EXPECT_TRUE(Second->HasAllPropertyFlags(CPF_Edit));
	EXPECT_TRUE(Second->HasMetaData(TEXT("InlineEditConditionToggle")));

	EXPECT_TRUE(Native->IsNativeBool());
	EXPECT_EQ(Native->GetFieldMask(), 0xFF);
	EXPECT_EQ(Native->GetCPPType(), TEXT("bool"));
}

TEST(BitfieldPropertyTests, ValuesReadAndWriteOnlyTheirOwnBit)
{
	TStrongObjectPtr<UBitfieldTestObject> Object = NewBitfieldObject();
	const FBoolProperty* Second = BoolPropertyOf(TEXT("bOverride_Second"));
	Object->bOverride_First = 1;
	Object->bOverride_Third = 1;

	EXPECT_FALSE(Second->GetPropertyValue_InContainer(Object.Get()));
	Second->SetPropertyValue_InContainer(Object.Get(), true);
	EXPECT_EQ(Object->bOverride_Second, 1);
	EXPECT_EQ(Object->bOverride_First, 1);
	EXPECT_EQ(Object->bOverride_Third, 1);
	EXPECT_TRUE(Second->GetPropertyValue_InContainer(Object.Get()));

	Second->SetPropertyValue_InContainer(Object.Get(), false);
	EXPECT_EQ(Object->bOverride_Second, 0);
	EXPECT_EQ(Object->bOverride_First, 1);
	EXPECT_EQ(Object->bOverride_Third, 1);

	Second->SetPropertyValue_InContainer(Object.Get(), true);
	Second->ClearValue_InContainer(Object.Get());
	EXPECT_EQ(Object->bOverride_Second, 0);
	EXPECT_EQ(Object->bOverride_Third, 1);
	Second->InitializeValue_InContainer(Object.Get());
	EXPECT_EQ(Object->bOverride_First, 1) << "initializing one bit leaves the byte's other bits";
	EXPECT_EQ(Second->GetValueTypeHash(Second->ContainerPtrToValuePtr<void>(Object.Get())), 0u);
}

TEST(BitfieldPropertyTests, TextIdenticalAndCopyUseOnlyTheBit)
{
	TStrongObjectPtr<UBitfieldTestObject> Object = NewBitfieldObject();
	TStrongObjectPtr<UBitfieldTestObject> Other = NewBitfieldObject();
	const FBoolProperty* Second = BoolPropertyOf(TEXT("bOverride_Second"));
	Object->bOverride_Second = 1;
	Other->bOverride_First = 1;

	FString Text;
	Second->ExportTextItem_InContainer(Text, Object.Get(), nullptr, Object.Get(), PPF_None);
	EXPECT_EQ(Text, TEXT("True"));
	Text.Reset();
	Second->ExportTextItem_InContainer(Text, Other.Get(), nullptr, Other.Get(), PPF_None);
	EXPECT_EQ(Text, TEXT("False"));

	EXPECT_FALSE(Second->Identical_InContainer(Object.Get(), Other.Get()));
	Other->bOverride_Second = 1;
	EXPECT_TRUE(Second->Identical_InContainer(Object.Get(), Other.Get())) << "bOverride_First differs but is another property";

	Object->bOverride_Third = 1;
	Other->bOverride_Second = 0;
	Second->CopyCompleteValue_InContainer(Object.Get(), Other.Get());
	EXPECT_EQ(Object->bOverride_Second, 0);
	EXPECT_EQ(Object->bOverride_Third, 1);
	EXPECT_EQ(Object->bOverride_First, 0);

	ASSERT_NE(Second->ImportText_InContainer(TEXT("True"), Object.Get(), Object.Get(), PPF_None), nullptr);
	EXPECT_EQ(Object->bOverride_Second, 1);
	EXPECT_EQ(Second->ImportText_InContainer(TEXT("Perhaps"), Object.Get(), Object.Get(), PPF_None, nullptr), nullptr);
	EXPECT_EQ(Object->bOverride_Second, 1);
	ASSERT_NE(Second->ImportText_InContainer(TEXT("False"), Object.Get(), Object.Get(), PPF_None), nullptr);
	EXPECT_EQ(Object->bOverride_Second, 0);
	EXPECT_EQ(Object->bOverride_Third, 1);
}

TEST(BitfieldPropertyTests, PackagesSaveAndLoadEachBit)
{
	FScopedTestProject Project;
	CollectGarbage(RF_NoFlags);
	{
		UPackage* Package = CreatePackage(TEXT("/Game/Bitfields/Flags"));
		UBitfieldTestObject* Asset = NewObject<UBitfieldTestObject>(Package, TEXT("Flags"), RF_Public | RF_Standalone);
		Asset->bOverride_Second = 1;
		Asset->bOverride_Later = 1;
		Asset->Number = 3;
		ASSERT_TRUE(SavePackageToItsFile(Package, Asset).IsSuccessful());
		Asset->ClearFlags(RF_Standalone);
	}
	CollectGarbage(RF_NoFlags);
	ASSERT_EQ(FindPackage(nullptr, TEXT("/Game/Bitfields/Flags")), nullptr);

	TStrongObjectPtr<UBitfieldTestObject> Loaded(LoadObject<UBitfieldTestObject>(nullptr, TEXT("/Game/Bitfields/Flags.Flags")));
	ASSERT_TRUE(Loaded.IsValid());
	EXPECT_EQ(Loaded->bOverride_First, 0);
	EXPECT_EQ(Loaded->bOverride_Second, 1);
	EXPECT_EQ(Loaded->bOverride_Third, 0);
	EXPECT_EQ(Loaded->bOverride_Later, 1);
	EXPECT_EQ(Loaded->Number, 3);
	Loaded->ClearFlags(RF_Standalone);
}

TEST(BitfieldPropertyTests, UndoAndRedoRestoreEachBit)
{
	UE::UnrealEd::StandIn::StartEditor(TEXT("/Temp/BitfieldTransactionMap"));
	{
		TStrongObjectPtr<UBitfieldTestObject> Object(NewObject<UBitfieldTestObject>(GetTransientPackage(), NAME_None, RF_Transactional));
		Object->bOverride_First = 1;
		{
			FScopedTransaction Transaction(FText::FromString(TEXT("Toggle overrides")));
			Object->Modify();
			Object->bOverride_First = 0;
			Object->bOverride_Third = 1;
		}

		ASSERT_TRUE(GEditor->UndoTransaction());
		EXPECT_EQ(Object->bOverride_First, 1);
		EXPECT_EQ(Object->bOverride_Second, 0);
		EXPECT_EQ(Object->bOverride_Third, 0);

		ASSERT_TRUE(GEditor->RedoTransaction());
		EXPECT_EQ(Object->bOverride_First, 0);
		EXPECT_EQ(Object->bOverride_Second, 0);
		EXPECT_EQ(Object->bOverride_Third, 1);
	}
	UE::UnrealEd::StandIn::StopEditor();
}
