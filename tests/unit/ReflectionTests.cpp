// Classes, structs, enums and properties as reflection describes them; object construction, names and paths.

#include "ReflectionTestTypes.h"

#include "Misc/ITransaction.h"
#include "Templates/Casts.h"
#include "UObject/EnumProperty.h"
#include "UObject/Package.h"
#include "UObject/StructOnScope.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

#include <gtest/gtest.h>

namespace
{
	TArray<FString> PropertyNames(const UStruct* Struct, EFieldIteratorFlags::SuperClassFlags SuperFlags, EFieldIteratorFlags::DeprecatedPropertyFlags DeprecatedFlags)
	{
		TArray<FString> Names;
		for (TFieldIterator<FProperty> It(Struct, SuperFlags, DeprecatedFlags); It; ++It)
		{
			Names.Add(It->GetName());
		}
		return Names;
	}

	FString CPPTypeOf(const UStruct* Struct, const TCHAR* PropertyName)
	{
		FProperty* Property = Struct->FindPropertyByName(FName(PropertyName));
		if (!Property)
		{
			return TEXT("<missing>");
		}
		FString Extended;
		return Property->GetCPPType(&Extended) + Extended;
	}

	class FRecordingTransaction : public ITransaction
	{
	public:
		bool SaveObject(UObject* Object) override
		{
			Saved.Add(Object);
			return true;
		}

		TArray<UObject*> Saved;
	};
}

TEST(ReflectionTests, NativeClassesLiveInScriptPackages)
{
	UClass* ObjectClass = UObject::StaticClass();
	EXPECT_EQ(ObjectClass->GetPathName(), TEXT("/Script/CoreUObject.Object"));
	EXPECT_EQ(ObjectClass->GetFullName(), TEXT("Class /Script/CoreUObject.Object"));
	EXPECT_EQ(ObjectClass->GetPrefixCPPName(), TEXT("UObject"));
	EXPECT_EQ(ObjectClass->GetClass(), UClass::StaticClass());
	EXPECT_EQ(UClass::StaticClass()->GetClass(), UClass::StaticClass());
	EXPECT_EQ(ObjectClass->GetSuperClass(), nullptr);
	EXPECT_EQ(ObjectClass->GetOuter()->GetClass(), UPackage::StaticClass());
	EXPECT_EQ(UPackage::StaticClass()->GetPathName(), TEXT("/Script/CoreUObject.Package"));

	UClass* TestClass = UReflectionTestObject::StaticClass();
	EXPECT_EQ(TestClass->GetPathName(), TEXT("/Script/ReflectionTests.ReflectionTestObject"));
	EXPECT_EQ(TestClass->GetName(), TEXT("ReflectionTestObject"));
	EXPECT_EQ(TestClass->GetSuperClass(), UObject::StaticClass());
	EXPECT_TRUE(TestClass->HasAllClassFlags(CLASS_Native | CLASS_Constructed));
	EXPECT_EQ(StaticFindObject(UClass::StaticClass(), nullptr, TEXT("/Script/ReflectionTests.ReflectionTestObject")), TestClass);

	EXPECT_EQ(FReflectionTestEntry::StaticStruct()->GetPathName(), TEXT("/Script/ReflectionTests.ReflectionTestEntry"));
	EXPECT_EQ(FReflectionTestEntry::StaticStruct()->GetStructCPPName(), TEXT("FReflectionTestEntry"));
	EXPECT_EQ(TBaseStructure<FIntPoint>::Get()->GetPathName(), TEXT("/Script/CoreUObject.IntPoint"));
	EXPECT_EQ(TBaseStructure<FFrameRate>::Get()->GetPathName(), TEXT("/Script/CoreUObject.FrameRate"));
	EXPECT_EQ(StaticStruct<FIntPoint>(), TBaseStructure<FIntPoint>::Get());
	EXPECT_EQ(StaticEnum<EReflectionTestMode>()->GetPathName(), TEXT("/Script/ReflectionTests.EReflectionTestMode"));
}

TEST(ReflectionTests, ClassFlagsHierarchyAndCasts)
{
	UPackage* Package = CreatePackage(TEXT("/Game/ReflectionTests/Casts"));
	UReflectionTestDerived* Derived = NewObject<UReflectionTestDerived>(Package);
	UObject* AsObject = Derived;

	EXPECT_TRUE(UReflectionTestDerived::StaticClass()->IsChildOf(UReflectionTestObject::StaticClass()));
	EXPECT_TRUE(UReflectionTestDerived::StaticClass()->IsChildOf<UObject>());
	EXPECT_FALSE(UReflectionTestObject::StaticClass()->IsChildOf(UReflectionTestDerived::StaticClass()));
	EXPECT_TRUE(AsObject->IsA<UReflectionTestObject>());
	EXPECT_FALSE(AsObject->IsA<UReflectionTestFunctions>());
	EXPECT_EQ(Cast<UReflectionTestObject>(AsObject), Derived);
	EXPECT_EQ(Cast<UReflectionTestFunctions>(AsObject), nullptr);
	EXPECT_EQ(Cast<UReflectionTestObject>(static_cast<UObject*>(nullptr)), nullptr);
	EXPECT_EQ(ExactCast<UReflectionTestObject>(AsObject), nullptr);
	EXPECT_EQ(ExactCast<UReflectionTestDerived>(AsObject), Derived);
	EXPECT_EQ(CastChecked<UReflectionTestObject>(static_cast<UObject*>(nullptr), ECastCheckedType::NullAllowed), nullptr);
	EXPECT_EQ(Cast<UClass>(UObject::StaticClass()), UObject::StaticClass());
	EXPECT_EQ(Cast<UScriptStruct>(UObject::StaticClass()), nullptr);

	EXPECT_TRUE(UReflectionTestAbstract::StaticClass()->HasAnyClassFlags(CLASS_Abstract));
	EXPECT_FALSE(UReflectionTestDerived::StaticClass()->HasAnyClassFlags(CLASS_Abstract));
	EXPECT_TRUE(UReflectionTestDeprecated::StaticClass()->HasAnyClassFlags(CLASS_Deprecated));
	EXPECT_EQ(UReflectionTestDeprecated::StaticClass()->GetPrefixCPPName(), TEXT("UDEPRECATED_ReflectionTestDeprecated"));
	EXPECT_TRUE(UClass::StaticClass()->HasAnyCastFlag(CASTCLASS_UClass));
	EXPECT_TRUE(UClass::StaticClass()->HasAnyCastFlag(CASTCLASS_UStruct));
	EXPECT_FALSE(UEnum::StaticClass()->HasAnyCastFlag(CASTCLASS_UStruct));
}

TEST(ReflectionTests, AbstractClassesRefuseNewObjectButHaveDefaultObjects)
{
	EXPECT_EQ(NewObject<UReflectionTestAbstract>(), nullptr);
	UObject* DefaultObject = UReflectionTestAbstract::StaticClass()->GetDefaultObject();
	ASSERT_NE(DefaultObject, nullptr);
	EXPECT_EQ(DefaultObject->GetName(), TEXT("Default__ReflectionTestAbstract"));
}

TEST(ReflectionTests, ClassDefaultObjects)
{
	UReflectionTestDerived* DefaultObject = UReflectionTestDerived::StaticClass()->GetDefaultObject<UReflectionTestDerived>();
	ASSERT_NE(DefaultObject, nullptr);
	EXPECT_EQ(DefaultObject, UReflectionTestDerived::StaticClass()->GetDefaultObject());
	EXPECT_EQ(DefaultObject->GetName(), TEXT("Default__ReflectionTestDerived"));
	EXPECT_EQ(DefaultObject->GetPathName(), TEXT("/Script/ReflectionTests.Default__ReflectionTestDerived"));
	EXPECT_EQ(DefaultObject->GetOuter(), UReflectionTestDerived::StaticClass()->GetOuter());
	EXPECT_TRUE(DefaultObject->HasAllFlags(RF_ClassDefaultObject | RF_Public | RF_ArchetypeObject));
	EXPECT_TRUE(DefaultObject->IsTemplate());
	EXPECT_EQ(DefaultObject->DerivedValue, 5);
	EXPECT_NE(UReflectionTestObject::StaticClass()->GetDefaultObject(false), nullptr) << "the super class's default object is made first";

	ASSERT_NE(DefaultObject->Component, nullptr);
	EXPECT_TRUE(DefaultObject->Component->HasAllFlags(RF_DefaultSubObject | RF_ArchetypeObject | RF_Public));
	EXPECT_TRUE(DefaultObject->Component->IsTemplate());
}

TEST(ReflectionTests, DefaultSubobjectsAreCreatedInTheConstructor)
{
	UPackage* Package = CreatePackage(TEXT("/Game/ReflectionTests/Subobjects"));
	UReflectionTestDerived* Owner = NewObject<UReflectionTestDerived>(Package, TEXT("Owner"), RF_Public | RF_Transactional);
	ASSERT_NE(Owner->Component, nullptr);
	EXPECT_EQ(Owner->Component->GetOuter(), Owner);
	EXPECT_EQ(Owner->Component->GetName(), TEXT("Component"));
	EXPECT_EQ(Owner->Component->GetPathName(), TEXT("/Game/ReflectionTests/Subobjects.Owner:Component"));
	EXPECT_TRUE(Owner->Component->HasAllFlags(RF_DefaultSubObject | RF_Public | RF_Transactional));
	EXPECT_FALSE(Owner->Component->HasAnyFlags(RF_ArchetypeObject | RF_Transient));
	EXPECT_TRUE(Owner->Component->IsDefaultSubobject());
	EXPECT_EQ(Owner->Component->Value, 7);
	EXPECT_EQ(FindObject<UReflectionTestComponent>(Owner, TEXT("Component")), Owner->Component);

	UReflectionTestDerived* TransientOwner = NewObject<UReflectionTestDerived>(Package, NAME_None, RF_Transient);
	EXPECT_TRUE(TransientOwner->Component->HasAnyFlags(RF_Transient));

	EXPECT_EQ(Owner->CreateDefaultSubobject<UReflectionTestComponent>(TEXT("Late")), nullptr) << "only a constructor may create default subobjects";
}

TEST(ReflectionTests, PathNamesFollowTheEngineForm)
{
	UPackage* Package = CreatePackage(TEXT("/Game/ReflectionTests/Paths/Asset"));
	UReflectionTestObject* Asset = NewObject<UReflectionTestObject>(Package, TEXT("Asset"), RF_Public | RF_Standalone);
	UReflectionTestObject* Inner = NewObject<UReflectionTestObject>(Asset, TEXT("Inner"));
	UReflectionTestObject* Deeper = NewObject<UReflectionTestObject>(Inner, TEXT("Deeper"));

	EXPECT_EQ(Package->GetPathName(), TEXT("/Game/ReflectionTests/Paths/Asset"));
	EXPECT_EQ(Asset->GetPathName(), TEXT("/Game/ReflectionTests/Paths/Asset.Asset"));
	EXPECT_EQ(Inner->GetPathName(), TEXT("/Game/ReflectionTests/Paths/Asset.Asset:Inner"));
	EXPECT_EQ(Deeper->GetPathName(), TEXT("/Game/ReflectionTests/Paths/Asset.Asset:Inner.Deeper"));
	EXPECT_EQ(Deeper->GetPathName(Asset), TEXT("Inner.Deeper"));
	EXPECT_EQ(Deeper->GetPathName(Package), TEXT("Asset:Inner.Deeper"));
	EXPECT_EQ(Deeper->GetFullName(), TEXT("ReflectionTestObject /Game/ReflectionTests/Paths/Asset.Asset:Inner.Deeper"));
	EXPECT_EQ(GetPathNameSafe(nullptr), TEXT("None"));

	EXPECT_EQ(Deeper->GetPackage(), Package);
	EXPECT_EQ(Deeper->GetOutermostObject(), Asset);
	EXPECT_EQ(Deeper->GetTypedOuter<UPackage>(), Package);
	EXPECT_EQ(Deeper->GetTypedOuter<UReflectionTestObject>(), Inner);
	EXPECT_TRUE(Deeper->IsIn(Asset));
	EXPECT_FALSE(Asset->IsIn(Deeper));
	EXPECT_TRUE(Asset->IsAsset());
	EXPECT_FALSE(Inner->IsAsset());
}

TEST(ReflectionTests, UniqueNamesUseThePerClassCounter)
{
	UPackage* Package = CreatePackage(TEXT("/Game/ReflectionTests/Names"));
	UClass* Class = UReflectionTestComponent::StaticClass();
	const int32 Next = Class->ClassUnique;
	UReflectionTestComponent* First = NewObject<UReflectionTestComponent>(Package);
	EXPECT_EQ(First->GetName(), FString::Printf(TEXT("ReflectionTestComponent_%d"), Next));

	// A name that is already taken in the outer is skipped.
	UReflectionTestComponent* Taken = NewObject<UReflectionTestComponent>(Package, FName(FString::Printf(TEXT("ReflectionTestComponent_%d"), Next + 1)));
	UReflectionTestComponent* Second = NewObject<UReflectionTestComponent>(Package);
	EXPECT_EQ(Taken->GetName(), FString::Printf(TEXT("ReflectionTestComponent_%d"), Next + 1));
	EXPECT_EQ(Second->GetName(), FString::Printf(TEXT("ReflectionTestComponent_%d"), Next + 2));

	// Another outer continues the same counter, and a numbered base name loses its number.
	UReflectionTestComponent* Elsewhere = NewObject<UReflectionTestComponent>(CreatePackage(TEXT("/Game/ReflectionTests/OtherNames")));
	EXPECT_EQ(Elsewhere->GetName(), FString::Printf(TEXT("ReflectionTestComponent_%d"), Next + 3));
	EXPECT_EQ(MakeUniqueObjectName(Package, Class, FName(TEXT("Job_12"))).ToString(), FString::Printf(TEXT("Job_%d"), Next + 4));
}

TEST(ReflectionTests, CreatingAnExistingNameReplacesTheObjectInPlace)
{
	UPackage* Package = CreatePackage(TEXT("/Game/ReflectionTests/Replace"));
	UReflectionTestObject* Original = NewObject<UReflectionTestObject>(Package, TEXT("Thing"));
	Original->IntValue = 42;
	const int32 OriginalIndex = Original->GetUniqueID();

	UReflectionTestObject* Replacement = NewObject<UReflectionTestObject>(Package, TEXT("Thing"));
	EXPECT_EQ(Replacement, Original);
	EXPECT_EQ(Replacement->GetUniqueID(), OriginalIndex);
	EXPECT_EQ(Replacement->IntValue, 0);
	EXPECT_EQ(FindObject<UReflectionTestObject>(Package, TEXT("Thing")), Replacement);

	EXPECT_EQ(NewObject<UReflectionTestComponent>(Package, TEXT("Thing")), nullptr) << "an object of another class keeps its name";
	EXPECT_EQ(FindObject<UObject>(Package, TEXT("Thing")), Original);
	EXPECT_EQ(NewObject<UReflectionTestObject>(nullptr, TEXT("NoOuter")), nullptr) << "only packages live without an outer";
}

TEST(ReflectionTests, RenameMovesTheObjectInTheHash)
{
	UPackage* Package = CreatePackage(TEXT("/Game/ReflectionTests/Rename"));
	UPackage* OtherPackage = CreatePackage(TEXT("/Game/ReflectionTests/RenameTarget"));
	UReflectionTestObject* Object = NewObject<UReflectionTestObject>(Package, TEXT("Before"));
	UReflectionTestObject* Blocker = NewObject<UReflectionTestObject>(Package, TEXT("Blocker"));

	EXPECT_TRUE(Object->Rename(TEXT("After")));
	EXPECT_EQ(Object->GetName(), TEXT("After"));
	EXPECT_EQ(FindObject<UObject>(Package, TEXT("Before")), nullptr);
	EXPECT_EQ(FindObject<UObject>(Package, TEXT("After")), Object);

	EXPECT_FALSE(Object->Rename(TEXT("Blocker"), nullptr, REN_Test));
	EXPECT_FALSE(Object->Rename(TEXT("Blocker")));
	EXPECT_EQ(FindObject<UObject>(Package, TEXT("Blocker")), Blocker);

	EXPECT_TRUE(Object->Rename(nullptr, OtherPackage));
	EXPECT_EQ(Object->GetOuter(), OtherPackage);
	EXPECT_TRUE(Object->GetName().StartsWith(TEXT("ReflectionTestObject_"), ESearchCase::CaseSensitive));
	EXPECT_EQ(FindObject<UObject>(OtherPackage, *Object->GetName()), Object);
}

TEST(ReflectionTests, FieldIterationOrderWithSuperAndDeprecatedFields)
{
	const TArray<FString> OwnOnly = PropertyNames(UReflectionTestDerived::StaticClass(), EFieldIteratorFlags::ExcludeSuper, EFieldIteratorFlags::IncludeDeprecated);
	EXPECT_EQ(OwnOnly, TArray<FString>({ TEXT("DerivedValue"), TEXT("Component") }));

	const TArray<FString> All = PropertyNames(UReflectionTestDerived::StaticClass(), EFieldIteratorFlags::IncludeSuper, EFieldIteratorFlags::IncludeDeprecated);
	ASSERT_EQ(All.Num(), 36);
	EXPECT_EQ(All[0], TEXT("DerivedValue"));
	EXPECT_EQ(All[1], TEXT("Component"));
	EXPECT_EQ(All[2], TEXT("bFlag"));
	EXPECT_EQ(All[3], TEXT("Int8Value"));
	EXPECT_EQ(All.Last(1), TEXT("TransientValue"));
	EXPECT_EQ(All.Last(), TEXT("DeprecatedValue"));

	const TArray<FString> WithoutDeprecated = PropertyNames(UReflectionTestDerived::StaticClass(), EFieldIteratorFlags::IncludeSuper, EFieldIteratorFlags::ExcludeDeprecated);
	EXPECT_EQ(WithoutDeprecated.Num(), 35);
	EXPECT_FALSE(WithoutDeprecated.Contains(TEXT("DeprecatedValue")));

	// PropertyLink walks the same order as the iterator.
	int32 Index = 0;
	for (FProperty* Property = UReflectionTestDerived::StaticClass()->PropertyLink; Property; Property = Property->PropertyLinkNext, ++Index)
	{
		ASSERT_LT(Index, All.Num());
		EXPECT_EQ(Property->GetName(), All[Index]);
	}
	EXPECT_EQ(Index, All.Num());

	int32 NumEnumProperties = 0;
	for (TFieldIterator<FEnumProperty> It(UReflectionTestObject::StaticClass()); It; ++It)
	{
		++NumEnumProperties;
		EXPECT_EQ(It->GetName(), TEXT("Mode"));
	}
	EXPECT_EQ(NumEnumProperties, 1);
}

TEST(ReflectionTests, FindPropertyByNameIgnoresCaseAndSearchesSuperClasses)
{
	UClass* Class = UReflectionTestDerived::StaticClass();
	FProperty* IntProperty = Class->FindPropertyByName(TEXT("IntValue"));
	ASSERT_NE(IntProperty, nullptr);
	EXPECT_EQ(IntProperty->GetOwnerStruct(), UReflectionTestObject::StaticClass());
	EXPECT_EQ(Class->FindPropertyByName(TEXT("intvalue")), IntProperty);
	EXPECT_NE(Class->FindPropertyByName(TEXT("DerivedValue")), nullptr);
	EXPECT_EQ(UReflectionTestObject::StaticClass()->FindPropertyByName(TEXT("DerivedValue")), nullptr);
	EXPECT_EQ(Class->FindPropertyByName(TEXT("NoSuchProperty")), nullptr);
	EXPECT_EQ(Class->FindPropertyByName(NAME_None), nullptr);

	EXPECT_EQ(IntProperty->GetPathName(), TEXT("/Script/ReflectionTests.ReflectionTestObject:IntValue"));
	EXPECT_EQ(IntProperty->GetFullName(), TEXT("IntProperty /Script/ReflectionTests.ReflectionTestObject:IntValue"));
	EXPECT_EQ(IntProperty->GetClass()->GetName(), TEXT("IntProperty"));
	EXPECT_EQ(IntProperty->GetOffset_ForInternal(), int32(offsetof(UReflectionTestObject, IntValue)));
	EXPECT_EQ(IntProperty->ElementSize, 4);
	EXPECT_TRUE(IntProperty->HasAllPropertyFlags(CPF_Edit | CPF_IsPlainOldData | CPF_ZeroConstructor | CPF_HasGetValueTypeHash));
	EXPECT_TRUE(Class->FindPropertyByName(TEXT("TransientValue"))->HasAnyPropertyFlags(CPF_Transient));

	EXPECT_EQ(FindFProperty<FIntProperty>(Class, TEXT("IntValue")), IntProperty);
	EXPECT_EQ(FindFProperty<FStrProperty>(Class, TEXT("IntValue")), nullptr);
	EXPECT_NE(FindUField<UFunction>(UReflectionTestFunctions::StaticClass(), TEXT("Add")), nullptr);
	EXPECT_EQ(FindUField<UFunction>(UReflectionTestFunctions::StaticClass(), TEXT("Subtract")), nullptr);
}

TEST(ReflectionTests, ScriptHelpersEditTypedContainersInPlace)
{
	UPackage* Package = CreatePackage(TEXT("/Game/ReflectionTests/Helpers"));
	UReflectionTestObject* Object = NewObject<UReflectionTestObject>(Package, TEXT("Helpers"));
	FArrayProperty* StringsProperty = CastField<FArrayProperty>(Object->GetClass()->FindPropertyByName(TEXT("Strings")));
	FScriptArrayHelper_InContainer Strings(StringsProperty, Object);
	for (int32 Index = 0; Index < 40; ++Index)
	{
		const int32 NewIndex = Strings.AddValue();
		*reinterpret_cast<FString*>(Strings.GetRawPtr(NewIndex)) = FString::Printf(TEXT("Item %d"), Index);
	}
	Strings.InsertValues(1, 2);
	Strings.RemoveValues(5, 30);
	ASSERT_EQ(Object->Strings.Num(), 12);
	EXPECT_EQ(Object->Strings[0], TEXT("Item 0"));
	EXPECT_EQ(Object->Strings[1], TEXT("")) << "inserted values are default-constructed";
	EXPECT_EQ(Object->Strings[3], TEXT("Item 1"));
	EXPECT_EQ(Object->Strings[5], TEXT("Item 33"));
	Strings.SwapValues(0, 11);
	EXPECT_EQ(Object->Strings[0], TEXT("Item 39"));
	Strings.Resize(1);
	EXPECT_EQ(Object->Strings, TArray<FString>({ TEXT("Item 39") }));

	FMapProperty* VariablesProperty = CastField<FMapProperty>(Object->GetClass()->FindPropertyByName(TEXT("Variables")));
	FScriptMapHelper_InContainer Variables(VariablesProperty, Object);
	const FString Key(TEXT("r.Key"));
	const float Value = 4.5f;
	Variables.AddPair(&Key, &Value);
	*reinterpret_cast<float*>(Variables.FindOrAdd(&Key)) = 5.5f;
	const FString OtherKey(TEXT("r.Other"));
	Variables.AddPair(&OtherKey, &Value);
	EXPECT_EQ(Object->Variables.Num(), 2);
	EXPECT_EQ(Object->Variables.FindRef(TEXT("r.Key")), 5.5f) << "the typed map sees the pairs edited through its script view";
	EXPECT_TRUE(Variables.RemovePair(&Key));
	EXPECT_FALSE(Variables.RemovePair(&Key));
	EXPECT_EQ(Object->Variables.Find(TEXT("r.Key")), nullptr);
	EXPECT_EQ(Object->Variables.FindRef(TEXT("r.Other")), 4.5f);
}

TEST(ReflectionTests, PropertyKindsAndCastField)
{
	UClass* Class = UReflectionTestObject::StaticClass();
	auto ClassNameOf = [Class](const TCHAR* Name) { return Class->FindPropertyByName(FName(Name))->GetClass()->GetName(); };
	EXPECT_EQ(ClassNameOf(TEXT("bFlag")), TEXT("BoolProperty"));
	EXPECT_EQ(ClassNameOf(TEXT("Int8Value")), TEXT("Int8Property"));
	EXPECT_EQ(ClassNameOf(TEXT("ByteValue")), TEXT("ByteProperty"));
	EXPECT_EQ(ClassNameOf(TEXT("UInt64Value")), TEXT("UInt64Property"));
	EXPECT_EQ(ClassNameOf(TEXT("DoubleValue")), TEXT("DoubleProperty"));
	EXPECT_EQ(ClassNameOf(TEXT("Text")), TEXT("StrProperty"));
	EXPECT_EQ(ClassNameOf(TEXT("Name")), TEXT("NameProperty"));
	EXPECT_EQ(ClassNameOf(TEXT("DisplayText")), TEXT("TextProperty"));
	EXPECT_EQ(ClassNameOf(TEXT("Mode")), TEXT("EnumProperty"));
	EXPECT_EQ(ClassNameOf(TEXT("Legacy")), TEXT("ByteProperty"));
	EXPECT_EQ(ClassNameOf(TEXT("Reference")), TEXT("ObjectProperty"));
	EXPECT_EQ(ClassNameOf(TEXT("RawReference")), TEXT("ObjectProperty"));
	EXPECT_EQ(ClassNameOf(TEXT("Weak")), TEXT("WeakObjectProperty"));
	EXPECT_EQ(ClassNameOf(TEXT("Soft")), TEXT("SoftObjectProperty"));
	EXPECT_EQ(ClassNameOf(TEXT("ClassReference")), TEXT("ClassProperty"));
	EXPECT_EQ(ClassNameOf(TEXT("SoftClass")), TEXT("SoftClassProperty"));
	EXPECT_EQ(ClassNameOf(TEXT("SoftPath")), TEXT("StructProperty"));
	EXPECT_EQ(ClassNameOf(TEXT("Numbers")), TEXT("ArrayProperty"));
	EXPECT_EQ(ClassNameOf(TEXT("Variables")), TEXT("MapProperty"));

	FProperty* ClassReference = Class->FindPropertyByName(TEXT("ClassReference"));
	EXPECT_NE(CastField<FObjectPropertyBase>(ClassReference), nullptr);
	EXPECT_NE(CastField<FObjectProperty>(ClassReference), nullptr);
	EXPECT_EQ(ExactCastField<FObjectProperty>(ClassReference), nullptr);
	EXPECT_EQ(CastField<FNumericProperty>(ClassReference), nullptr);
	EXPECT_EQ(CastField<FStructProperty>(Class->FindPropertyByName(TEXT("SoftPath")))->Struct, FSoftObjectPath::StaticStruct());
	EXPECT_TRUE(FIntProperty::StaticClass()->IsChildOf(FNumericProperty::StaticClass()));
	EXPECT_FALSE(FNumericProperty::StaticClass()->IsChildOf(FIntProperty::StaticClass()));

	FEnumProperty* Mode = CastField<FEnumProperty>(Class->FindPropertyByName(TEXT("Mode")));
	ASSERT_NE(Mode, nullptr);
	EXPECT_EQ(Mode->GetEnum(), StaticEnum<EReflectionTestMode>());
	EXPECT_EQ(Mode->GetUnderlyingProperty()->GetClass()->GetName(), TEXT("ByteProperty"));
	EXPECT_EQ(CastField<FByteProperty>(Class->FindPropertyByName(TEXT("Legacy")))->Enum, StaticEnum<EReflectionTestLegacy>());

	FArrayProperty* Children = CastField<FArrayProperty>(Class->FindPropertyByName(TEXT("Children")));
	EXPECT_EQ(CastField<FObjectProperty>(Children->Inner)->PropertyClass, UReflectionTestObject::StaticClass());
	EXPECT_TRUE(Children->Inner->HasAnyPropertyFlags(CPF_InstancedReference)) << "array inners take the propagated flags";
	FMapProperty* Variables = CastField<FMapProperty>(Class->FindPropertyByName(TEXT("Variables")));
	EXPECT_EQ(Variables->KeyProp->GetName(), TEXT("Variables_Key"));
	EXPECT_EQ(Variables->ValueProp->GetName(), TEXT("Variables"));
	EXPECT_EQ(CastField<FClassProperty>(ClassReference)->MetaClass, UObject::StaticClass());
}

TEST(ReflectionTests, CPPTypesAreTheEngineSpellings)
{
	UClass* Class = UReflectionTestObject::StaticClass();
	EXPECT_EQ(CPPTypeOf(Class, TEXT("bFlag")), TEXT("bool"));
	EXPECT_EQ(CPPTypeOf(Class, TEXT("Int8Value")), TEXT("int8"));
	EXPECT_EQ(CPPTypeOf(Class, TEXT("IntValue")), TEXT("int32"));
	EXPECT_EQ(CPPTypeOf(Class, TEXT("UInt64Value")), TEXT("uint64"));
	EXPECT_EQ(CPPTypeOf(Class, TEXT("ByteValue")), TEXT("uint8"));
	EXPECT_EQ(CPPTypeOf(Class, TEXT("FloatValue")), TEXT("float"));
	EXPECT_EQ(CPPTypeOf(Class, TEXT("DoubleValue")), TEXT("double"));
	EXPECT_EQ(CPPTypeOf(Class, TEXT("Text")), TEXT("FString"));
	EXPECT_EQ(CPPTypeOf(Class, TEXT("Name")), TEXT("FName"));
	EXPECT_EQ(CPPTypeOf(Class, TEXT("DisplayText")), TEXT("FText"));
	EXPECT_EQ(CPPTypeOf(Class, TEXT("Mode")), TEXT("EReflectionTestMode"));
	EXPECT_EQ(CPPTypeOf(Class, TEXT("Legacy")), TEXT("TEnumAsByte<EReflectionTestLegacy>"));
	EXPECT_EQ(CPPTypeOf(Class, TEXT("Reference")), TEXT("TObjectPtr<UReflectionTestObject>"));
	EXPECT_EQ(CPPTypeOf(Class, TEXT("RawReference")), TEXT("UObject*"));
	EXPECT_EQ(CPPTypeOf(Class, TEXT("Weak")), TEXT("TWeakObjectPtr<UObject>"));
	EXPECT_EQ(CPPTypeOf(Class, TEXT("Soft")), TEXT("TSoftObjectPtr<UObject>"));
	EXPECT_EQ(CPPTypeOf(Class, TEXT("ClassReference")), TEXT("TSubclassOf<UObject>"));
	EXPECT_EQ(CPPTypeOf(Class, TEXT("SoftClass")), TEXT("TSoftClassPtr<UObject>"));
	EXPECT_EQ(CPPTypeOf(Class, TEXT("SoftPath")), TEXT("FSoftObjectPath"));
	EXPECT_EQ(CPPTypeOf(Class, TEXT("Resolution")), TEXT("FIntPoint"));
	EXPECT_EQ(CPPTypeOf(Class, TEXT("Nested")), TEXT("FReflectionTestNested"));
	EXPECT_EQ(CPPTypeOf(Class, TEXT("Numbers")), TEXT("TArray<int32>"));
	EXPECT_EQ(CPPTypeOf(Class, TEXT("Entries")), TEXT("TArray<FReflectionTestEntry>"));
	EXPECT_EQ(CPPTypeOf(Class, TEXT("Children")), TEXT("TArray<TObjectPtr<UReflectionTestObject> >"));
	EXPECT_EQ(CPPTypeOf(Class, TEXT("Variables")), TEXT("TMap<FString,float>"));
	EXPECT_EQ(CPPTypeOf(Class, TEXT("NamedObjects")), TEXT("TMap<FName,TObjectPtr<UObject> >"));

	FProperty* Reference = Class->FindPropertyByName(TEXT("Reference"));
	EXPECT_EQ(Reference->GetCPPType(nullptr, CPPF_NoTObjectPtr), TEXT("UReflectionTestObject*"));
	FString Extended;
	EXPECT_EQ(Class->FindPropertyByName(TEXT("Numbers"))->GetCPPType(&Extended), TEXT("TArray"));
	EXPECT_EQ(Extended, TEXT("<int32>"));
}

TEST(ReflectionTests, EnumsKeepFullAndShortNamesAndTheMaxEntry)
{
	UEnum* Mode = StaticEnum<EReflectionTestMode>();
	EXPECT_EQ(Mode->GetName(), TEXT("EReflectionTestMode"));
	EXPECT_EQ(Mode->GetCppForm(), UEnum::ECppForm::EnumClass);
	ASSERT_EQ(Mode->NumEnums(), 4);
	EXPECT_EQ(Mode->GetNameByIndex(1).ToString(), TEXT("EReflectionTestMode::Second"));
	EXPECT_EQ(Mode->GetNameStringByIndex(1), TEXT("Second"));
	EXPECT_EQ(Mode->GetNameByIndex(3).ToString(), TEXT("EReflectionTestMode::EReflectionTestMode_MAX"));
	EXPECT_EQ(Mode->GetValueByIndex(3), 3);
	EXPECT_EQ(Mode->GetMaxEnumValue(), 3);
	EXPECT_EQ(Mode->GetValueByNameString(TEXT("Third")), 2);
	EXPECT_EQ(Mode->GetValueByNameString(TEXT("EReflectionTestMode::Third")), 2);
	EXPECT_EQ(Mode->GetValueByNameString(TEXT("third")), 2);
	EXPECT_EQ(Mode->GetValueByNameString(TEXT("Fourth")), INDEX_NONE);
	EXPECT_EQ(Mode->GetNameStringByValue(int64(EReflectionTestMode::First)), TEXT("First"));
	EXPECT_EQ(Mode->GetNameStringByValue(9), TEXT(""));
	EXPECT_TRUE(Mode->IsValidEnumValue(2));
	EXPECT_FALSE(Mode->IsValidEnumValue(4));
	EXPECT_EQ(Mode->GetDisplayNameTextByValue(1).ToString(), TEXT("Second"));

	UEnum* Legacy = StaticEnum<EReflectionTestLegacy>();
	EXPECT_EQ(Legacy->GetCppForm(), UEnum::ECppForm::Regular);
	ASSERT_EQ(Legacy->NumEnums(), 4);
	EXPECT_EQ(Legacy->GetNameByIndex(2).ToString(), TEXT("RTL_High"));
	EXPECT_EQ(Legacy->GetNameStringByIndex(3), TEXT("RTL_MAX"));
	EXPECT_EQ(Legacy->GetDisplayNameTextByIndex(1).ToString(), TEXT("RTL Low"));
}

TEST(ReflectionTests, DisplayNamesComeFromMetadataOrTheReadableName)
{
	UClass* Class = UReflectionTestObject::StaticClass();
	EXPECT_EQ(Class->GetDisplayNameText().ToString(), TEXT("Reflection Test Object"));
	FProperty* Flag = Class->FindPropertyByName(TEXT("bFlag"));
	EXPECT_EQ(Flag->GetDisplayNameText().ToString(), TEXT("Flag"));
	EXPECT_EQ(Class->FindPropertyByName(TEXT("IntValue"))->GetDisplayNameText().ToString(), TEXT("Int Value"));

	UClass* ComponentClass = UReflectionTestComponent::StaticClass();
	ComponentClass->SetMetaData(TEXT("DisplayName"), TEXT("Test Component"));
	EXPECT_EQ(ComponentClass->GetDisplayNameText().ToString(), TEXT("Test Component"));
	EXPECT_EQ(ComponentClass->GetMetaData(TEXT("DisplayName")), TEXT("Test Component"));
	EXPECT_TRUE(ComponentClass->HasMetaData(TEXT("DisplayName")));
	EXPECT_FALSE(ComponentClass->HasMetaData(TEXT("ToolTip")));
	EXPECT_EQ(ComponentClass->GetMetaData(TEXT("ToolTip")), TEXT(""));
	ComponentClass->RemoveMetaData(TEXT("DisplayName"));
	EXPECT_EQ(ComponentClass->GetDisplayNameText().ToString(), TEXT("Reflection Test Component"));
}

TEST(ReflectionTests, ModifyRecordsTransactionalObjectsAndDirtiesTheirPackage)
{
	UPackage* Package = CreatePackage(TEXT("/Game/ReflectionTests/Modify"));
	UReflectionTestObject* Transactional = NewObject<UReflectionTestObject>(Package, TEXT("Transactional"), RF_Transactional);
	UReflectionTestObject* Plain = NewObject<UReflectionTestObject>(Package, TEXT("Plain"));
	UReflectionTestObject* Transient = NewObject<UReflectionTestObject>(Package, TEXT("Transient"), RF_Transient | RF_Transactional);
	int32 NumModifiedBroadcasts = 0;
	const FDelegateHandle Handle = FCoreUObjectDelegates::OnObjectModified.AddLambda([&NumModifiedBroadcasts](UObject*) { ++NumModifiedBroadcasts; });

	FRecordingTransaction Transaction;
	GUndo = &Transaction;
	Package->SetDirtyFlag(false);
	EXPECT_TRUE(Transactional->Modify());
	EXPECT_TRUE(Package->IsDirty());
	EXPECT_FALSE(Plain->Modify());
	Package->SetDirtyFlag(false);
	EXPECT_TRUE(Transient->Modify());
	EXPECT_FALSE(Package->IsDirty()) << "transient objects are never saved, so they never dirty their package";
	EXPECT_FALSE(Plain->Modify(false));
	EXPECT_FALSE(Package->IsDirty());
	GUndo = nullptr;

	EXPECT_EQ(Transaction.Saved, TArray<UObject*>({ Transactional, Transient }));
	EXPECT_FALSE(Transactional->Modify()) << "without an open transaction nothing is recorded";
	EXPECT_TRUE(Package->IsDirty());
	EXPECT_EQ(NumModifiedBroadcasts, 5);
	FCoreUObjectDelegates::OnObjectModified.Remove(Handle);
}

TEST(ReflectionTests, StructsInitializeCopyAndCompareThroughReflection)
{
	UScriptStruct* Struct = FReflectionTestEntry::StaticStruct();
	EXPECT_EQ(Struct->GetStructureSize(), int32(sizeof(FReflectionTestEntry)));
	EXPECT_EQ(Struct->GetMinAlignment(), int32(alignof(FReflectionTestEntry)));

	FStructOnScope Scope(Struct);
	ASSERT_TRUE(Scope.IsValid());
	FReflectionTestEntry* Entry = reinterpret_cast<FReflectionTestEntry*>(Scope.GetStructMemory());
	EXPECT_TRUE(Entry->bIsEnabled) << "the C++ constructor's defaults";
	Entry->Name = TEXT("r.X");

	FReflectionTestEntry Copy;
	Struct->CopyScriptStruct(&Copy, Entry);
	EXPECT_EQ(Copy.Name, TEXT("r.X"));
	EXPECT_TRUE(Struct->CompareScriptStruct(&Copy, Entry, PPF_None));
	Copy.Value = 2.0f;
	EXPECT_FALSE(Struct->CompareScriptStruct(&Copy, Entry, PPF_None));
	EXPECT_FALSE(Struct->CompareScriptStruct(&Copy, nullptr, PPF_None));

	EXPECT_FALSE(FStructOnScope(nullptr).IsValid());
	EXPECT_TRUE(TBaseStructure<FLinearColor>::Get()->HasAnyStructFlags(STRUCT_Atomic));
	EXPECT_FALSE(TBaseStructure<FIntPoint>::Get()->HasAnyStructFlags(STRUCT_Atomic));
	EXPECT_EQ(PropertyNames(TBaseStructure<FColor>::Get(), EFieldIteratorFlags::IncludeSuper, EFieldIteratorFlags::IncludeDeprecated),
		TArray<FString>({ TEXT("B"), TEXT("G"), TEXT("R"), TEXT("A") }));
}

TEST(ReflectionTests, ReferenceLinksAndVisitorsReachOnlyStrongReferences)
{
	TArray<FString> RefLinkNames;
	for (FProperty* Property = UReflectionTestObject::StaticClass()->RefLink; Property; Property = Property->NextRef)
	{
		RefLinkNames.Add(Property->GetName());
	}
	EXPECT_EQ(RefLinkNames, TArray<FString>({ TEXT("Reference"), TEXT("RawReference"), TEXT("ClassReference"), TEXT("Nested"), TEXT("Children"), TEXT("NamedObjects") }));

	UPackage* Package = CreatePackage(TEXT("/Game/ReflectionTests/Visitor"));
	UReflectionTestObject* Holder = NewObject<UReflectionTestObject>(Package, TEXT("Holder"));
	UReflectionTestObject* Target = NewObject<UReflectionTestObject>(Package, TEXT("Target"));
	Holder->Reference = Target;
	Holder->Children.Add(Target);
	Holder->Children.Add(nullptr);
	Holder->Nested.Reference = Target;
	Holder->NamedObjects.Add(TEXT("Key"), Target);
	Holder->Weak = Target;
	Holder->Soft = Target;

	int32 NumVisited = 0;
	for (FProperty* Property = Holder->GetClass()->RefLink; Property; Property = Property->NextRef)
	{
		Property->VisitObjectReferences(Property->ContainerPtrToValuePtr<void>(Holder), [&NumVisited, Target](UObject*& Reference)
		{
			if (Reference == Target)
			{
				++NumVisited;
				Reference = nullptr;
			}
		});
	}
	EXPECT_EQ(NumVisited, 4);
	EXPECT_EQ(Holder->Reference, nullptr);
	EXPECT_EQ(Holder->Children[0], nullptr);
	EXPECT_EQ(Holder->Nested.Reference, nullptr);
	EXPECT_EQ(Holder->NamedObjects.FindRef(TEXT("Key")), nullptr);
	EXPECT_EQ(Holder->Weak.Get(), Target) << "weak references are not visited";
}
