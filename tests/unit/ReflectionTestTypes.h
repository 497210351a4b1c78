// Reflected classes, structs and enums used by the reflection, property text and function call tests.
#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "UObject/Class.h"
#include "UObject/ObjectPtr.h"
#include "UObject/SoftObjectPath.h"
#include "UObject/SoftObjectPtr.h"
#include "UObject/WeakObjectPtr.h"
#include "Templates/SubclassOf.h"
#include "Misc/FrameRate.h"

enum class EReflectionTestMode : uint8
{
	First,
	Second,
	Third,
};
STANDIN_DECLARE_ENUM(EReflectionTestMode, )

enum EReflectionTestLegacy
{
	RTL_None,
	RTL_Low,
	RTL_High,
};
STANDIN_DECLARE_ENUM(EReflectionTestLegacy, )

// Like the engine's FDirectoryPath: one string field.
struct FReflectionTestPath
{
	STANDIN_STRUCT_BODY(FReflectionTestPath, )

public:
	FString Path;
};

// Like a console variable entry: a default-constructed element is (Name="", Value=0, bIsEnabled=True).
struct FReflectionTestEntry
{
	STANDIN_STRUCT_BODY(FReflectionTestEntry, )

public:
	FString Name;
	float Value = 0.0f;
	bool bIsEnabled = true;
};

// A scalar with a zero default and a struct field with a non-zero default.
struct FReflectionTestOuter
{
	STANDIN_STRUCT_BODY(FReflectionTestOuter, )

public:
	int32 A = 0;
	FReflectionTestPath Dir{ TEXT("x") };
};

// A struct holding a nested struct and an array of structs.
struct FReflectionTestNested
{
	STANDIN_STRUCT_BODY(FReflectionTestNested, )

public:
	FReflectionTestEntry Inner;
	TArray<FReflectionTestEntry> Entries;
	TObjectPtr<UObject> Reference;
};

// Transient and deprecated fields next to a plain one.
struct FReflectionTestPortable
{
	STANDIN_STRUCT_BODY(FReflectionTestPortable, )

public:
	int32 Kept = 1;
	int32 Skipped = 2;
	int32 Old = 3;
};

class UReflectionTestObject : public UObject
{
	STANDIN_CLASS_BODY(UReflectionTestObject, UObject, )

public:
	bool bFlag = false;
	int8 Int8Value = 0;
	int16 Int16Value = 0;
	int32 IntValue = 0;
	int64 Int64Value = 0;
	uint8 ByteValue = 0;
	uint16 UInt16Value = 0;
	uint32 UInt32Value = 0;
	uint64 UInt64Value = 0;
	float FloatValue = 0.0f;
	double DoubleValue = 0.0;
	FString Text;
	FName Name;
	FText DisplayText;
	EReflectionTestMode Mode = EReflectionTestMode::First;
	TEnumAsByte<EReflectionTestLegacy> Legacy = RTL_None;
	TObjectPtr<UReflectionTestObject> Reference;
	UObject* RawReference = nullptr;
	TWeakObjectPtr<UObject> Weak;
	TSoftObjectPtr<UObject> Soft;
	TSubclassOf<UObject> ClassReference;
	TSoftClassPtr<UObject> SoftClass;
	FSoftObjectPath SoftPath;
	FIntPoint Resolution = FIntPoint(0, 0);
	FFrameRate FrameRate;
	FReflectionTestNested Nested;
	TArray<int32> Numbers;
	TArray<FString> Strings;
	TArray<FReflectionTestEntry> Entries;
	TArray<TObjectPtr<UReflectionTestObject>> Children;
	TMap<FString, float> Variables;
	TMap<FName, TObjectPtr<UObject>> NamedObjects;
	int32 TransientValue = 0;
	int32 DeprecatedValue = 0;
};

class UReflectionTestComponent : public UObject
{
	STANDIN_CLASS_BODY(UReflectionTestComponent, UObject, )

public:
	int32 Value = 7;
};

// Creates its "Component" default subobject in its constructor.
class UReflectionTestDerived : public UReflectionTestObject
{
	STANDIN_CLASS_BODY(UReflectionTestDerived, UReflectionTestObject, )

public:
	UReflectionTestDerived();

	int32 DerivedValue = 5;
	TObjectPtr<UReflectionTestComponent> Component;
};

class UReflectionTestAbstract : public UObject
{
	STANDIN_CLASS_BODY(UReflectionTestAbstract, UObject, )

public:
	virtual int32 GetKind() const PURE_VIRTUAL(UReflectionTestAbstract::GetKind, return 0;);
};

class UReflectionTestDeprecated : public UObject
{
	STANDIN_CLASS_BODY(UReflectionTestDeprecated, UObject, )
};

// Functions of every parameter shape, callable through ProcessEvent.
class UReflectionTestFunctions : public UObject
{
	STANDIN_CLASS_BODY(UReflectionTestFunctions, UObject, )

public:
	int32 Add(int32 A, int32 B) const { return A + B; }
	void Split(const FString& In, FString& OutLeft, FString& OutRight);
	bool FindChild(FName ChildName, UReflectionTestObject*& OutChild);
	static FString Describe(int32 Value) { return FString::Printf(TEXT("Value %d"), Value); }
	TArray<int32> MakeSequence(int32 Count) const;
	void SetMode(EReflectionTestMode InMode) { Mode = InMode; ++CallCount; }
	FIntPoint Scale(const FIntPoint& In, int32 Factor) const { return FIntPoint(In.X * Factor, In.Y * Factor); }

	EReflectionTestMode Mode = EReflectionTestMode::First;
	int32 CallCount = 0;
	TArray<TObjectPtr<UReflectionTestObject>> Children;
};

// A struct deriving from another reflected struct.
struct FReflectionTestDerivedEntry : public FReflectionTestEntry
{
	STANDIN_STRUCT_BODY(FReflectionTestDerivedEntry, )

public:
	int32 Priority = 0;
};

class UReflectionTestSpecialComponent : public UReflectionTestComponent
{
	STANDIN_CLASS_BODY(UReflectionTestSpecialComponent, UReflectionTestComponent, )

public:
	UReflectionTestSpecialComponent() { Value = 99; }
};

// Builds its subobjects through the FObjectInitializer its constructor receives.
class UReflectionTestWithInitializer : public UObject
{
	STANDIN_CLASS_BODY(UReflectionTestWithInitializer, UObject, )

public:
	explicit UReflectionTestWithInitializer(const FObjectInitializer& ObjectInitializer);

	TObjectPtr<UReflectionTestComponent> Component;
	TObjectPtr<UReflectionTestComponent> Optional;
	UObject* ConstructedFrom = nullptr;
};

// Replaces the class of "Component" and skips "Optional".
class UReflectionTestInitializerOverrides : public UReflectionTestWithInitializer
{
	STANDIN_CLASS_BODY(UReflectionTestInitializerOverrides, UReflectionTestWithInitializer, )

public:
	explicit UReflectionTestInitializerOverrides(const FObjectInitializer& ObjectInitializer);
};

// Records the lifetime and editing hooks the object system calls.
class UReflectionTestLifecycle : public UObject
{
	STANDIN_CLASS_BODY(UReflectionTestLifecycle, UObject, )

public:
	void PostInitProperties() override;
	void PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent) override;
	void PostRename(UObject* OldOuter, const FName OldName) override;
	void BeginDestroy() override;

	int32 Value = 0;
	int32 ValueSeenByPostInitProperties = -1;
	int32 NumPostInitProperties = 0;
	TArray<FName> ChangedProperties;
	FName NameBeforeRename;
	bool bBeginDestroyCalled = false;
};

class UReflectionTestDeprecatedChild : public UReflectionTestDeprecated
{
	STANDIN_CLASS_BODY(UReflectionTestDeprecatedChild, UReflectionTestDeprecated, )
};
