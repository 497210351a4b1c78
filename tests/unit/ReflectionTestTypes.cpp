// Reflection registration of the reflection test types.

#include "ReflectionTestTypes.h"
#include "UObject/UnrealType.h"

VLMR_IMPLEMENT_ENUM(EReflectionTestMode, "ReflectionTests", First, Second, Third)
VLMR_IMPLEMENT_ENUM(EReflectionTestLegacy, "ReflectionTests", RTL_None, RTL_Low, RTL_High)

VLMR_IMPLEMENT_STRUCT(FReflectionTestPath, "ReflectionTests")
{
	VLMR_PROPERTY(Path, CPF_Edit);
}

VLMR_IMPLEMENT_STRUCT(FReflectionTestEntry, "ReflectionTests")
{
	VLMR_PROPERTY(Name, CPF_Edit);
	VLMR_PROPERTY(Value, CPF_Edit);
	VLMR_PROPERTY(bIsEnabled, CPF_Edit);
}

VLMR_IMPLEMENT_STRUCT(FReflectionTestOuter, "ReflectionTests")
{
	VLMR_PROPERTY(A, CPF_Edit);
	VLMR_PROPERTY(Dir, CPF_Edit);
}

VLMR_IMPLEMENT_STRUCT(FReflectionTestNested, "ReflectionTests")
{
	VLMR_PROPERTY(Inner, CPF_Edit);
	VLMR_PROPERTY(Entries, CPF_Edit);
	VLMR_PROPERTY(Reference, CPF_Edit);
}

VLMR_IMPLEMENT_STRUCT(FReflectionTestPortable, "ReflectionTests")
{
	VLMR_PROPERTY(Kept, CPF_Edit);
	VLMR_PROPERTY(Skipped, CPF_Edit | CPF_Transient);
	VLMR_PROPERTY(Old, CPF_Deprecated);
}

VLMR_IMPLEMENT_CLASS(UReflectionTestObject, CLASS_None, "ReflectionTests")
{
	VLMR_PROPERTY(bFlag, CPF_Edit);
	VLMR_PROPERTY(Int8Value, CPF_Edit);
	VLMR_PROPERTY(Int16Value, CPF_Edit);
	VLMR_PROPERTY(IntValue, CPF_Edit);
	VLMR_PROPERTY(Int64Value, CPF_Edit);
	VLMR_PROPERTY(ByteValue, CPF_Edit);
	VLMR_PROPERTY(UInt16Value, CPF_Edit);
	VLMR_PROPERTY(UInt32Value, CPF_Edit);
	VLMR_PROPERTY(UInt64Value, CPF_Edit);
	VLMR_PROPERTY(FloatValue, CPF_Edit);
	VLMR_PROPERTY(DoubleValue, CPF_Edit);
	VLMR_PROPERTY(Text, CPF_Edit);
	VLMR_PROPERTY(Name, CPF_Edit);
	VLMR_PROPERTY(DisplayText, CPF_Edit);
	VLMR_PROPERTY(Mode, CPF_Edit);
	VLMR_PROPERTY(Legacy, CPF_Edit);
	VLMR_PROPERTY(Reference, CPF_Edit);
	VLMR_PROPERTY(RawReference, CPF_Edit);
	VLMR_PROPERTY(Weak, CPF_Edit);
	VLMR_PROPERTY(Soft, CPF_Edit);
	VLMR_PROPERTY(ClassReference, CPF_Edit);
	VLMR_PROPERTY(SoftClass, CPF_Edit);
	VLMR_PROPERTY(SoftPath, CPF_Edit);
	VLMR_PROPERTY(Resolution, CPF_Edit);
	VLMR_PROPERTY(FrameRate, CPF_Edit);
	VLMR_PROPERTY(Nested, CPF_Edit);
	VLMR_PROPERTY(Numbers, CPF_Edit);
	VLMR_PROPERTY(Strings, CPF_Edit);
	VLMR_PROPERTY(Entries, CPF_Edit);
	VLMR_PROPERTY(Children, CPF_Edit | CPF_InstancedReference);
	VLMR_PROPERTY(Variables, CPF_Edit);
	VLMR_PROPERTY(NamedObjects, CPF_Edit);
	VLMR_PROPERTY(TransientValue, CPF_Transient);
	VLMR_PROPERTY(DeprecatedValue, CPF_Deprecated);
}

VLMR_IMPLEMENT_CLASS(UReflectionTestComponent, CLASS_None, "ReflectionTests")
{
	VLMR_PROPERTY(Value, CPF_Edit);
}

UReflectionTestDerived::UReflectionTestDerived()
{
	Component = CreateDefaultSubobject<UReflectionTestComponent>(TEXT("Component"));
}

VLMR_IMPLEMENT_CLASS(UReflectionTestDerived, CLASS_None, "ReflectionTests")
{
	VLMR_PROPERTY(DerivedValue, CPF_Edit);
	VLMR_PROPERTY(Component, CPF_Edit | CPF_InstancedReference);
}

VLMR_IMPLEMENT_CLASS(UReflectionTestAbstract, CLASS_Abstract, "ReflectionTests")
{
}

VLMR_IMPLEMENT_CLASS(UReflectionTestDeprecated, CLASS_Deprecated, "ReflectionTests")
{
}

void UReflectionTestFunctions::Split(const FString& In, FString& OutLeft, FString& OutRight)
{
	if (!In.Split(TEXT(","), &OutLeft, &OutRight))
	{
		OutLeft = In;
		OutRight.Reset();
	}
}

bool UReflectionTestFunctions::FindChild(FName ChildName, UReflectionTestObject*& OutChild)
{
	for (UReflectionTestObject* Child : Children)
	{
		if (Child && Child->GetFName() == ChildName)
		{
			OutChild = Child;
			return true;
		}
	}
	OutChild = nullptr;
	return false;
}

TArray<int32> UReflectionTestFunctions::MakeSequence(int32 Count) const
{
	TArray<int32> Result;
	for (int32 Index = 0; Index < Count; ++Index)
	{
		Result.Add(Index * 10);
	}
	return Result;
}

VLMR_IMPLEMENT_CLASS(UReflectionTestFunctions, CLASS_None, "ReflectionTests")
{
	VLMR_PROPERTY(Mode, CPF_Edit);
	VLMR_PROPERTY(Children, CPF_Edit);
	VLMR_FUNCTION(Add, TEXT("A"), TEXT("B"));
	VLMR_FUNCTION(Split, TEXT("In"), TEXT("OutLeft"), TEXT("OutRight"));
	VLMR_FUNCTION(FindChild, TEXT("ChildName"), TEXT("OutChild"));
	VLMR_FUNCTION(Describe, TEXT("Value"));
	VLMR_FUNCTION(MakeSequence, TEXT("Count"));
	VLMR_FUNCTION(SetMode, TEXT("InMode"));
	VLMR_FUNCTION(Scale, TEXT("In"), TEXT("Factor"));
}

VLMR_IMPLEMENT_STRUCT(FReflectionTestDerivedEntry, "ReflectionTests")
{
	Builder.SetSuperStruct<FReflectionTestEntry>();
	VLMR_PROPERTY(Priority, CPF_Edit);
}

VLMR_IMPLEMENT_CLASS(UReflectionTestSpecialComponent, CLASS_None, "ReflectionTests")
{
}

UReflectionTestWithInitializer::UReflectionTestWithInitializer(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
	Component = ObjectInitializer.CreateDefaultSubobject<UReflectionTestComponent>(this, TEXT("Component"));
	Optional = ObjectInitializer.CreateOptionalDefaultSubobject<UReflectionTestComponent>(this, TEXT("Optional"));
	ConstructedFrom = ObjectInitializer.GetObj();
}

VLMR_IMPLEMENT_CLASS(UReflectionTestWithInitializer, CLASS_None, "ReflectionTests")
{
	VLMR_PROPERTY(Component, CPF_Edit | CPF_InstancedReference);
	VLMR_PROPERTY(Optional, CPF_Edit | CPF_InstancedReference);
}

UReflectionTestInitializerOverrides::UReflectionTestInitializerOverrides(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer.SetDefaultSubobjectClass<UReflectionTestSpecialComponent>(TEXT("Component")).DoNotCreateDefaultSubobject(TEXT("Optional")))
{
}

VLMR_IMPLEMENT_CLASS(UReflectionTestInitializerOverrides, CLASS_None, "ReflectionTests")
{
}

void UReflectionTestLifecycle::PostInitProperties()
{
	Super::PostInitProperties();
	ValueSeenByPostInitProperties = Value;
	++NumPostInitProperties;
}

void UReflectionTestLifecycle::PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent)
{
	ChangedProperties.Add(PropertyChangedEvent.GetPropertyName());
	Super::PostEditChangeProperty(PropertyChangedEvent);
}

void UReflectionTestLifecycle::PostRename(UObject* OldOuter, const FName OldName)
{
	NameBeforeRename = OldName;
}

void UReflectionTestLifecycle::BeginDestroy()
{
	bBeginDestroyCalled = true;
	Super::BeginDestroy();
}

VLMR_IMPLEMENT_CLASS(UReflectionTestLifecycle, CLASS_None, "ReflectionTests")
{
	VLMR_PROPERTY(Value, CPF_Edit);
}

VLMR_IMPLEMENT_CLASS(UReflectionTestDeprecatedChild, CLASS_None, "ReflectionTests")
{
}
