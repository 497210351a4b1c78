// NewObject and FObjectInitializer: subobject overrides, templates, lifetime and editing hooks, class and struct inheritance.

#include "ReflectionTestTypes.h"

#include "Misc/ITransaction.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

#include <gtest/gtest.h>

namespace
{
	UPackage* TestPackage(const TCHAR* Name)
	{
		return CreatePackage(*(FString(TEXT("/Game/ObjectConstructionTests/")) + Name));
	}

	class FCountingTransaction : public ITransaction
	{
	public:
		bool SaveObject(UObject* Object) override
		{
			++NumSaved;
			return true;
		}

		int32 NumSaved = 0;
	};
}

TEST(ObjectConstructionTests, InitializerConstructorsCreateTheirSubobjects)
{
	UReflectionTestWithInitializer* Object = NewObject<UReflectionTestWithInitializer>(TestPackage(TEXT("Initializer")), TEXT("Object"));
	ASSERT_NE(Object, nullptr);
	EXPECT_EQ(Object->ConstructedFrom, Object) << "the initializer's object is the one being built";
	ASSERT_NE(Object->Component, nullptr);
	EXPECT_EQ(Object->Component->GetClass(), UReflectionTestComponent::StaticClass());
	EXPECT_EQ(Object->Component->GetOuter(), Object);
	ASSERT_NE(Object->Optional, nullptr);
	EXPECT_TRUE(Object->Optional->HasAnyFlags(RF_DefaultSubObject));

	UReflectionTestInitializerOverrides* Overridden = NewObject<UReflectionTestInitializerOverrides>(TestPackage(TEXT("Overrides")), TEXT("Object"));
	ASSERT_NE(Overridden->Component, nullptr);
	EXPECT_EQ(Overridden->Component->GetClass(), UReflectionTestSpecialComponent::StaticClass());
	EXPECT_EQ(Overridden->Component->Value, 99);
	EXPECT_EQ(Overridden->Optional, nullptr) << "an optional subobject the subclass asked not to create";
	EXPECT_EQ(FindObject<UObject>(Overridden, TEXT("Optional")), nullptr);
}

TEST(ObjectConstructionTests, NewObjectUsesTheGivenClassAndFlags)
{
	UPackage* Package = TestPackage(TEXT("Classes"));
	UReflectionTestObject* Derived = NewObject<UReflectionTestObject>(Package, UReflectionTestDerived::StaticClass(), TEXT("Derived"), RF_Public | RF_Transactional);
	ASSERT_NE(Derived, nullptr);
	EXPECT_EQ(Derived->GetClass(), UReflectionTestDerived::StaticClass());
	EXPECT_EQ(Derived->GetFlags(), RF_Public | RF_Transactional);
	EXPECT_NE(static_cast<UReflectionTestDerived*>(Derived)->Component, nullptr);

	EXPECT_EQ(NewObject<UReflectionTestDerived>(Package, UReflectionTestObject::StaticClass()), nullptr) << "the class must be T or derive from it";
	EXPECT_EQ(NewObject<UReflectionTestObject>(Package, static_cast<UClass*>(nullptr)), nullptr);
	EXPECT_EQ(NewObject<UReflectionTestObject>()->GetOuter(), GetTransientPackage());
}

TEST(ObjectConstructionTests, PostInitPropertiesRunsOnceAfterTheTemplateIsCopied)
{
	UPackage* Package = TestPackage(TEXT("Templates"));
	UReflectionTestLifecycle* Plain = NewObject<UReflectionTestLifecycle>(Package, TEXT("Plain"));
	EXPECT_EQ(Plain->NumPostInitProperties, 1);
	EXPECT_EQ(Plain->ValueSeenByPostInitProperties, 0);

	Plain->Value = 7;
	UReflectionTestLifecycle* FromTemplate = NewObject<UReflectionTestLifecycle>(Package, TEXT("FromTemplate"), RF_NoFlags, Plain);
	EXPECT_EQ(FromTemplate->Value, 7);
	EXPECT_EQ(FromTemplate->ValueSeenByPostInitProperties, 7);
	EXPECT_EQ(FromTemplate->NumPostInitProperties, 1);
}

TEST(ObjectConstructionTests, ArchetypesAreTheClassDefaultObjects)
{
	UReflectionTestDerived* Object = NewObject<UReflectionTestDerived>(TestPackage(TEXT("Archetypes")));
	UObject* DerivedDefaults = UReflectionTestDerived::StaticClass()->GetDefaultObject();
	EXPECT_EQ(Object->GetArchetype(), DerivedDefaults);
	EXPECT_EQ(DerivedDefaults->GetArchetype(), UReflectionTestObject::StaticClass()->GetDefaultObject());
	EXPECT_EQ(UObject::StaticClass()->GetDefaultObject()->GetArchetype(), nullptr);
	EXPECT_FALSE(Object->IsTemplate());
	EXPECT_TRUE(DerivedDefaults->IsTemplate(RF_ClassDefaultObject));
}

TEST(ObjectConstructionTests, EditingHooksModifyAndNotify)
{
	UReflectionTestLifecycle* Object = NewObject<UReflectionTestLifecycle>(TestPackage(TEXT("Editing")), TEXT("Edited"), RF_Transactional);
	FProperty* ValueProperty = Object->GetClass()->FindPropertyByName(TEXT("Value"));
	TArray<FName> Broadcast;
	const FDelegateHandle Handle = FCoreUObjectDelegates::OnObjectPropertyChanged.AddLambda(
		[&Broadcast, Object](UObject* Changed, FPropertyChangedEvent& Event)
		{
			if (Changed == Object)
			{
				Broadcast.Add(Event.GetPropertyName());
			}
		});

	FCountingTransaction Transaction;
	GUndo = &Transaction;
	Object->PreEditChange(ValueProperty);
	GUndo = nullptr;
	EXPECT_EQ(Transaction.NumSaved, 1) << "PreEditChange modifies the object";

	Object->Value = 3;
	FPropertyChangedEvent Event(ValueProperty, EPropertyChangeType::ValueSet);
	EXPECT_EQ(Event.MemberProperty, ValueProperty);
	EXPECT_EQ(Event.GetMemberPropertyName(), FName(TEXT("Value")));
	Object->PostEditChangeProperty(Event);
	Object->PostEditChange();
	EXPECT_EQ(Object->ChangedProperties, TArray<FName>({ FName(TEXT("Value")), NAME_None }));
	EXPECT_EQ(Broadcast, Object->ChangedProperties);
	FCoreUObjectDelegates::OnObjectPropertyChanged.Remove(Handle);

	FIntProperty EditConst(nullptr, FName(TEXT("Locked")), RF_NoFlags);
	EditConst.SetPropertyFlags(CPF_EditConst);
	EXPECT_FALSE(Object->CanEditChange(&EditConst));
	EXPECT_TRUE(Object->CanEditChange(ValueProperty));
}

TEST(ObjectConstructionTests, RenameTellsTheObjectItsOldName)
{
	UReflectionTestLifecycle* Object = NewObject<UReflectionTestLifecycle>(TestPackage(TEXT("RenameHook")), TEXT("OldName"));
	ASSERT_TRUE(Object->Rename(TEXT("NewName"), nullptr, REN_DoNotDirty));
	EXPECT_EQ(Object->NameBeforeRename, FName(TEXT("OldName")));
	EXPECT_TRUE(Object->Rename(TEXT("OldName"), nullptr, REN_Test)) << "REN_Test only checks the name is free";
	EXPECT_EQ(Object->GetName(), TEXT("NewName"));
}

TEST(ObjectConstructionTests, SubclassesInheritTheInheritableClassFlags)
{
	UClass* Child = UReflectionTestDeprecatedChild::StaticClass();
	EXPECT_TRUE(Child->HasAnyClassFlags(CLASS_Deprecated));
	EXPECT_EQ(Child->GetPrefixCPPName(), TEXT("UDEPRECATED_ReflectionTestDeprecatedChild"));
	EXPECT_FALSE(UReflectionTestSpecialComponent::StaticClass()->HasAnyClassFlags(CLASS_Abstract | CLASS_Deprecated));
	EXPECT_EQ(UReflectionTestSpecialComponent::StaticClass()->ClassWithin, UObject::StaticClass());
	EXPECT_TRUE(UReflectionTestSpecialComponent::StaticClass()->IsChildOf(UReflectionTestComponent::StaticClass()));
}

TEST(ObjectConstructionTests, DerivedStructsListTheirOwnFieldsFirst)
{
	UScriptStruct* Derived = FReflectionTestDerivedEntry::StaticStruct();
	EXPECT_EQ(Derived->GetSuperStruct(), FReflectionTestEntry::StaticStruct());
	EXPECT_TRUE(Derived->IsChildOf(FReflectionTestEntry::StaticStruct()));
	EXPECT_NE(Derived->FindPropertyByName(TEXT("bIsEnabled")), nullptr);

	TArray<FString> Names;
	for (TFieldIterator<FProperty> It(Derived); It; ++It)
	{
		Names.Add(It->GetName());
	}
	EXPECT_EQ(Names, TArray<FString>({ TEXT("Priority"), TEXT("Name"), TEXT("Value"), TEXT("bIsEnabled") }));

	FReflectionTestDerivedEntry Entry;
	Entry.Priority = 2;
	Entry.Name = TEXT("a");
	FString Text;
	Derived->ExportText(Text, &Entry, nullptr, nullptr, PPF_None, nullptr);
	EXPECT_EQ(Text, TEXT("(Priority=2,Name=\"a\",bIsEnabled=True)"));

	FReflectionTestDerivedEntry Imported;
	ASSERT_NE(Derived->ImportText(TEXT("(Value=1.5,Priority=3)"), &Imported, nullptr, PPF_None, nullptr, Derived->GetName()), nullptr);
	EXPECT_EQ(Imported.Priority, 3);
	EXPECT_EQ(Imported.Value, 1.5f);
}

TEST(ObjectConstructionTests, ReplacingAnObjectKeepsItsStrongReferencesAndDestroysTheOldState)
{
	UPackage* Package = TestPackage(TEXT("ReplaceHooks"));
	UReflectionTestLifecycle* Original = NewObject<UReflectionTestLifecycle>(Package, TEXT("Replaced"));
	Original->AddToRoot();
	Original->Value = 5;
	UReflectionTestLifecycle* Replacement = NewObject<UReflectionTestLifecycle>(Package, TEXT("Replaced"));
	EXPECT_EQ(Replacement, Original);
	EXPECT_TRUE(Replacement->IsRooted()) << "the object keeps its place in the root set";
	EXPECT_EQ(Replacement->Value, 0);
	EXPECT_FALSE(Replacement->HasAnyFlags(RF_BeginDestroyed | RF_FinishDestroyed));
	EXPECT_EQ(Replacement->NumPostInitProperties, 1);
	Replacement->RemoveFromRoot();
}
