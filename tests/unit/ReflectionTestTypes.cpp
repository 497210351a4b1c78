// Reflection registration of the reflection test types.

#include "ReflectionTestTypes.h"
#include "UObject/UnrealType.h"

STANDIN_IMPLEMENT_ENUM(EReflectionTestMode, "ReflectionTests", First, Second, Third)
STANDIN_IMPLEMENT_ENUM(EReflectionTestLegacy, "ReflectionTests", RTL_None, RTL_Low, RTL_High)

STANDIN_IMPLEMENT_STRUCT(FReflectionTestPath, "ReflectionTests")
{
	STANDIN_PROPERTY(Path, CPF_Edit);
}

STANDIN_IMPLEMENT_STRUCT(FReflectionTestEntry, "ReflectionTests")
{
	STANDIN_PROPERTY(Name, CPF_Edit);
	STANDIN_PROPERTY(Value, CPF_Edit);
	STANDIN_PROPERTY(bIsEnabled, CPF_Edit);
}

STANDIN_IMPLEMENT_STRUCT(FReflectionTestOuter, "ReflectionTests")
{
	STANDIN_PROPERTY(A, CPF_Edit);
	STANDIN_PROPERTY(Dir, CPF_Edit);
}

STANDIN_IMPLEMENT_STRUCT(FReflectionTestNested, "ReflectionTests")
{
	STANDIN_PROPERTY(Inner, CPF_Edit);
	STANDIN_PROPERTY(Entries, CPF_Edit);
	STANDIN_PROPERTY(Reference, CPF_Edit);
}

STANDIN_IMPLEMENT_STRUCT(FReflectionTestPortable, "ReflectionTests")
{
	STANDIN_PROPERTY(Kept, CPF_Edit);
	STANDIN_PROPERTY(Skipped, CPF_Edit | CPF_Transient);
	STANDIN_PROPERTY(Old, CPF_Deprecated);
}

STANDIN_IMPLEMENT_CLASS(UReflectionTestObject, CLASS_None, "ReflectionTests")
{
	STANDIN_PROPERTY(bFlag, CPF_Edit);
	STANDIN_PROPERTY(Int8Value, CPF_Edit);
	STANDIN_PROPERTY(Int16Value, CPF_Edit);
	STANDIN_PROPERTY(IntValue, CPF_Edit);
	STANDIN_PROPERTY(Int64Value, CPF_Edit);
	STANDIN_PROPERTY(ByteValue, CPF_Edit);
	STANDIN_PROPERTY(UInt16Value, CPF_Edit);
	STANDIN_PROPERTY(UInt32Value, CPF_Edit);
	STANDIN_PROPERTY(UInt64Value, CPF_Edit);
	STANDIN_PROPERTY(FloatValue, CPF_Edit);
	STANDIN_PROPERTY(DoubleValue, CPF_Edit);
	STANDIN_PROPERTY(Text, CPF_Edit);
	STANDIN_PROPERTY(Name, CPF_Edit);
	STANDIN_PROPERTY(DisplayText, CPF_Edit);
	STANDIN_PROPERTY(Mode, CPF_Edit);
	STANDIN_PROPERTY(Legacy, CPF_Edit);
	STANDIN_PROPERTY(Reference, CPF_Edit);
	STANDIN_PROPERTY(RawReference, CPF_Edit);
	STANDIN_PROPERTY(Weak, CPF_Edit);
	STANDIN_PROPERTY(Soft, CPF_Edit);
	STANDIN_PROPERTY(ClassReference, CPF_Edit);
	STANDIN_PROPERTY(SoftClass, CPF_Edit);
	STANDIN_PROPERTY(SoftPath, CPF_Edit);
	STANDIN_PROPERTY(Resolution, CPF_Edit);
	STANDIN_PROPERTY(FrameRate, CPF_Edit);
	STANDIN_PROPERTY(Nested, CPF_Edit);
	STANDIN_PROPERTY(Numbers, CPF_Edit);
	STANDIN_PROPERTY(Strings, CPF_Edit);
	STANDIN_PROPERTY(Entries, CPF_Edit);
	STANDIN_PROPERTY(Children, CPF_Edit | CPF_InstancedReference);
	STANDIN_PROPERTY(Variables, CPF_Edit);
	STANDIN_PROPERTY(NamedObjects, CPF_Edit);
	STANDIN_PROPERTY(TransientValue, CPF_Transient);
	STANDIN_PROPERTY(DeprecatedValue, CPF_Deprecated);
}

STANDIN_IMPLEMENT_CLASS(UReflectionTestComponent, CLASS_None, "ReflectionTests")
{
	STANDIN_PROPERTY(Value, CPF_Edit);
}

UReflectionTestDerived::UReflectionTestDerived()
{
	Component = CreateDefaultSubobject<UReflectionTestComponent>(TEXT("Component"));
}

STANDIN_IMPLEMENT_CLASS(UReflectionTestDerived, CLASS_None, "ReflectionTests")
{
	STANDIN_PROPERTY(DerivedValue, CPF_Edit);
	STANDIN_PROPERTY(Component, CPF_Edit | CPF_InstancedReference);
}

STANDIN_IMPLEMENT_CLASS(UReflectionTestAbstract, CLASS_Abstract, "ReflectionTests")
{
}

STANDIN_IMPLEMENT_CLASS(UReflectionTestDeprecated, CLASS_Deprecated, "ReflectionTests")
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

STANDIN_IMPLEMENT_CLASS(UReflectionTestFunctions, CLASS_None, "ReflectionTests")
{
	STANDIN_PROPERTY(Mode, CPF_Edit);
	STANDIN_PROPERTY(Children, CPF_Edit);
	STANDIN_FUNCTION(Add, TEXT("A"), TEXT("B"));
	STANDIN_FUNCTION(Split, TEXT("In"), TEXT("OutLeft"), TEXT("OutRight"));
	STANDIN_FUNCTION(FindChild, TEXT("ChildName"), TEXT("OutChild"));
	STANDIN_FUNCTION(Describe, TEXT("Value"));
	STANDIN_FUNCTION(MakeSequence, TEXT("Count"));
	STANDIN_FUNCTION(SetMode, TEXT("InMode"));
	STANDIN_FUNCTION(Scale, TEXT("In"), TEXT("Factor"));
}

STANDIN_IMPLEMENT_STRUCT(FReflectionTestDerivedEntry, "ReflectionTests")
{
	Builder.SetSuperStruct<FReflectionTestEntry>();
	STANDIN_PROPERTY(Priority, CPF_Edit);
}

STANDIN_IMPLEMENT_CLASS(UReflectionTestSpecialComponent, CLASS_None, "ReflectionTests")
{
}

UReflectionTestWithInitializer::UReflectionTestWithInitializer(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
	Component = ObjectInitializer.CreateDefaultSubobject<UReflectionTestComponent>(this, TEXT("Component"));
	Optional = ObjectInitializer.CreateOptionalDefaultSubobject<UReflectionTestComponent>(this, TEXT("Optional"));
	ConstructedFrom = ObjectInitializer.GetObj();
}

STANDIN_IMPLEMENT_CLASS(UReflectionTestWithInitializer, CLASS_None, "ReflectionTests")
{
	STANDIN_PROPERTY(Component, CPF_Edit | CPF_InstancedReference);
	STANDIN_PROPERTY(Optional, CPF_Edit | CPF_InstancedReference);
}

UReflectionTestInitializerOverrides::UReflectionTestInitializerOverrides(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer.SetDefaultSubobjectClass<UReflectionTestSpecialComponent>(TEXT("Component")).DoNotCreateDefaultSubobject(TEXT("Optional")))
{
}

STANDIN_IMPLEMENT_CLASS(UReflectionTestInitializerOverrides, CLASS_None, "ReflectionTests")
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

STANDIN_IMPLEMENT_CLASS(UReflectionTestLifecycle, CLASS_None, "ReflectionTests")
{
	STANDIN_PROPERTY(Value, CPF_Edit);
}

STANDIN_IMPLEMENT_CLASS(UReflectionTestDeprecatedChild, CLASS_None, "ReflectionTests")
{
}
