// The instanced property bag: a struct value whose properties are chosen at run time.
#pragma once

#include "CoreMinimal.h"
#include "Misc/EngineVersionComparison.h"
#include "Misc/Guid.h"
#include "Templates/ValueOrError.h"
#include "StructUtils/StructView.h"
#include "UObject/Class.h"
#include "UObject/ObjectMacros.h"
#include "UObject/ObjectPtr.h"
#include "UObject/SoftObjectPath.h"
#include "UObject/UnrealType.h"

#include <initializer_list>

class FReferenceCollector;
class FOutputDevice;

// Property bag property type, loosely based on Blueprint pin types.
UENUM()
enum class EPropertyBagPropertyType : uint8
{
	None UMETA(Hidden),
	Bool,
	Byte,
	Int32,
	Int64,
	Float,
	Double,
	Name,
	String,
	Text,
	Enum,
	Struct,
	Object,
	SoftObject,
	Class,
	SoftClass,
#if !UE_VERSION_OLDER_THAN(5, 8, 0)
	Int8,
	Int16,
	UInt16,
#endif
	UInt32,
	UInt64,

	Count UMETA(Hidden)
};

// Property bag property container type.
UENUM()
enum class EPropertyBagContainerType : uint8
{
	None,
	Array,
	Set,
	// Stand-in choice: map containers appear with 5.8.
#if !UE_VERSION_OLDER_THAN(5, 8, 0)
	Map,
#endif

	Count UMETA(Hidden)
};

// Getter and setter result code.
UENUM()
enum class EPropertyBagResult : uint8
{
	Success,
	TypeMismatch,
	OutOfBounds,
	PropertyNotFound,
	DuplicatedValue,
};

// Property bag alteration result code.
UENUM()
enum class EPropertyBagAlterationResult : uint8
{
	Success,
	NoOperation = Success,
	InternalError,
	PropertyNameEmpty,
	PropertyNameInvalidCharacters,
	SourcePropertyNotFound,
	TargetPropertyNotFound,
	TargetPropertyAlreadyExists,
};

// The containers a property is nested in, outermost first ({ Array } is a TArray of the value type).
USTRUCT()
struct COREUOBJECT_API FPropertyBagContainerTypes
{
	STANDIN_STRUCT_BODY(FPropertyBagContainerTypes, COREUOBJECT_API)

public:
	static constexpr int32 MaxNestedTypes = 2;

	FPropertyBagContainerTypes() = default;
	explicit FPropertyBagContainerTypes(EPropertyBagContainerType ContainerType);
	FPropertyBagContainerTypes(const std::initializer_list<EPropertyBagContainerType>& InTypes);

	bool Add(const EPropertyBagContainerType PropertyBagContainerType);
	void Reset() { NumContainers = 0; }
	bool IsEmpty() const { return NumContainers == 0; }
	uint32 Num() const { return NumContainers; }
	bool CanAdd() const { return NumContainers < MaxNestedTypes; }
	EPropertyBagContainerType GetFirstContainerType() const { return NumContainers > 0 ? Types[0] : EPropertyBagContainerType::None; }
	EPropertyBagContainerType operator[](int32 Index) const { check(Index >= 0 && Index < int32(NumContainers)); return Types[Index]; }
	// The containers inside the outermost one.
	EPropertyBagContainerType PopHead();

	bool operator==(const FPropertyBagContainerTypes& Other) const;
	bool operator!=(const FPropertyBagContainerTypes& Other) const { return !(*this == Other); }
	friend COREUOBJECT_API uint32 GetTypeHash(const FPropertyBagContainerTypes& Types);

	// "(Array)", "()" when not in a container.
	bool ExportTextItem(FString& ValueStr, const FPropertyBagContainerTypes& DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const;
	bool ImportTextItem(const TCHAR*& Buffer, int32 PortFlags, UObject* Parent, FOutputDevice* ErrorText);

private:
	EPropertyBagContainerType Types[MaxNestedTypes] = { EPropertyBagContainerType::None, EPropertyBagContainerType::None };
	uint8 NumContainers = 0;
};

// Describes a property in the property bag.
USTRUCT()
struct COREUOBJECT_API FPropertyBagPropertyDesc
{
	STANDIN_STRUCT_BODY(FPropertyBagPropertyDesc, COREUOBJECT_API)

public:
	FPropertyBagPropertyDesc() = default;
	FPropertyBagPropertyDesc(const FName InName, const FProperty* InSourceProperty);
	FPropertyBagPropertyDesc(const FName InName, const EPropertyBagPropertyType InValueType, const UObject* InValueTypeObject = nullptr);
	FPropertyBagPropertyDesc(const FName InName, const EPropertyBagContainerType InContainerType, const EPropertyBagPropertyType InValueType, const UObject* InValueTypeObject = nullptr);
	FPropertyBagPropertyDesc(const FName InName, const FPropertyBagContainerTypes& InNestedContainers, const EPropertyBagPropertyType InValueType, const UObject* InValueTypeObject = nullptr);

	// Whether values of the two descs can be copied into each other (same type, type object and containers).
	bool CompatibleType(const FPropertyBagPropertyDesc& Other) const;
	bool IsNumericType() const;
	bool IsUnsignedNumericType() const;
	bool IsNumericFloatType() const;
	bool IsObjectType() const;
	bool IsClassType() const;

	// Pointer to object that defines the Enum, Struct, or Class.
	TObjectPtr<const UObject> ValueTypeObject = nullptr;
	// Unique ID for this property; values are matched by it when the layout of a bag changes.
	FGuid ID;
	FName Name;
	EPropertyBagPropertyType ValueType = EPropertyBagPropertyType::None;
	FPropertyBagContainerTypes ContainerTypes;
	// Set in UPropertyBag::GetOrCreateFromDescs.
	const FProperty* CachedProperty = nullptr;
};

// A script struct made at run time from property descs; bags with the same descs share one.
class COREUOBJECT_API UPropertyBag : public UScriptStruct
{
	STANDIN_CLASS_BODY(UPropertyBag, UScriptStruct, COREUOBJECT_API)

public:
	static const UPropertyBag* GetOrCreateFromDescs(const TConstArrayView<FPropertyBagPropertyDesc> PropertyDescs, const TCHAR* PrefixName = nullptr);

	TConstArrayView<FPropertyBagPropertyDesc> GetPropertyDescs() const { return PropertyDescs; }
	const FPropertyBagPropertyDesc* FindPropertyDescByID(const FGuid ID) const;
	const FPropertyBagPropertyDesc* FindPropertyDescByName(const FName Name) const;
	const FPropertyBagPropertyDesc* FindPropertyDescByProperty(const FProperty* Property) const;

private:
	void BuildLayout(const TConstArrayView<FPropertyBagPropertyDesc> InPropertyDescs);

	TArray<FPropertyBagPropertyDesc> PropertyDescs;
};

// A TArray property of a bag, read and written by element index.
class COREUOBJECT_API FPropertyBagArrayRef : public FScriptArrayHelper
{
public:
	FPropertyBagArrayRef(const FPropertyBagPropertyDesc& InDesc, const void* InArray);

	TValueOrError<bool, EPropertyBagResult> GetValueBool(const int32 Index) const;
	TValueOrError<uint8, EPropertyBagResult> GetValueByte(const int32 Index) const;
	TValueOrError<int32, EPropertyBagResult> GetValueInt32(const int32 Index) const;
	TValueOrError<int64, EPropertyBagResult> GetValueInt64(const int32 Index) const;
	TValueOrError<float, EPropertyBagResult> GetValueFloat(const int32 Index) const;
	TValueOrError<double, EPropertyBagResult> GetValueDouble(const int32 Index) const;
	TValueOrError<FName, EPropertyBagResult> GetValueName(const int32 Index) const;
	TValueOrError<FString, EPropertyBagResult> GetValueString(const int32 Index) const;
	TValueOrError<FText, EPropertyBagResult> GetValueText(const int32 Index) const;
	TValueOrError<UObject*, EPropertyBagResult> GetValueObject(const int32 Index, const UClass* RequestedClass = nullptr) const;
	TValueOrError<FStructView, EPropertyBagResult> GetValueStruct(const int32 Index, const UScriptStruct* RequestedStruct = nullptr) const;

	EPropertyBagResult SetValueBool(const int32 Index, const bool bInValue);
	EPropertyBagResult SetValueByte(const int32 Index, const uint8 InValue);
	EPropertyBagResult SetValueInt32(const int32 Index, const int32 InValue);
	EPropertyBagResult SetValueInt64(const int32 Index, const int64 InValue);
	EPropertyBagResult SetValueFloat(const int32 Index, const float InValue);
	EPropertyBagResult SetValueDouble(const int32 Index, const double InValue);
	EPropertyBagResult SetValueName(const int32 Index, const FName InValue);
	EPropertyBagResult SetValueString(const int32 Index, const FString& InValue);
	EPropertyBagResult SetValueText(const int32 Index, const FText& InValue);
	EPropertyBagResult SetValueObject(const int32 Index, UObject* InValue);
	EPropertyBagResult SetValueStruct(const int32 Index, FConstStructView InValue);

private:
	// The desc of one element: the array's value type, outside any container.
	FPropertyBagPropertyDesc ValueDesc;
};

// A struct value whose properties are added and removed at run time; copies are deep and independent.
USTRUCT()
struct COREUOBJECT_API FInstancedPropertyBag
{
	STANDIN_STRUCT_BODY(FInstancedPropertyBag, COREUOBJECT_API)

public:
	FInstancedPropertyBag() = default;
	FInstancedPropertyBag(const FInstancedPropertyBag& Other);
	FInstancedPropertyBag(FInstancedPropertyBag&& Other);
	FInstancedPropertyBag& operator=(const FInstancedPropertyBag& Other);
	FInstancedPropertyBag& operator=(FInstancedPropertyBag&& Other);
	~FInstancedPropertyBag();

	bool IsValid() const { return BagStruct != nullptr; }
	void Reset();
	const UPropertyBag* GetPropertyBagStruct() const { return BagStruct; }
	int32 GetNumPropertiesInBag() const;
	const FPropertyBagPropertyDesc* FindPropertyDescByID(const FGuid ID) const;
	const FPropertyBagPropertyDesc* FindPropertyDescByName(const FName Name) const;
	FConstStructView GetValue() const { return FConstStructView(BagStruct, Memory); }
	FStructView GetMutableValue() { return FStructView(BagStruct, Memory); }

	// Makes the bag an instance of NewBagStruct with default values (or an empty bag for null).
	void InitializeFromBagStruct(const UPropertyBag* NewBagStruct);
	// Copies the values of the properties both bags have (same ID and compatible type) from Other.
	void CopyMatchingValuesByID(const FInstancedPropertyBag& Other);

	// Adds properties; one whose name is taken replaces the old one (the value survives when the type is the same).
	EPropertyBagAlterationResult AddProperties(const TConstArrayView<FPropertyBagPropertyDesc> Descs, bool bOverwrite = true);
	EPropertyBagAlterationResult AddProperty(const FName InName, const EPropertyBagPropertyType InValueType, const UObject* InValueTypeObject = nullptr, bool bOverwrite = true);
	EPropertyBagAlterationResult AddContainerProperty(const FName InName, const EPropertyBagContainerType InContainerType, const EPropertyBagPropertyType InValueType, const UObject* InValueTypeObject = nullptr, bool bOverwrite = true);
	EPropertyBagAlterationResult AddContainerProperty(const FName InName, const FPropertyBagContainerTypes InContainerTypes, const EPropertyBagPropertyType InValueType, const UObject* InValueTypeObject = nullptr, bool bOverwrite = true);
	EPropertyBagAlterationResult RemovePropertyByName(const FName PropertyToRemove);
	EPropertyBagAlterationResult RemovePropertiesByName(const TConstArrayView<FName> PropertiesToRemove);

	// Numeric getters and setters convert between the numeric kinds (bool, the integers, float and double).
	TValueOrError<bool, EPropertyBagResult> GetValueBool(const FName Name) const;
	TValueOrError<uint8, EPropertyBagResult> GetValueByte(const FName Name) const;
	TValueOrError<int32, EPropertyBagResult> GetValueInt32(const FName Name) const;
	TValueOrError<uint32, EPropertyBagResult> GetValueUInt32(const FName Name) const;
	TValueOrError<int64, EPropertyBagResult> GetValueInt64(const FName Name) const;
	TValueOrError<uint64, EPropertyBagResult> GetValueUInt64(const FName Name) const;
	TValueOrError<float, EPropertyBagResult> GetValueFloat(const FName Name) const;
	TValueOrError<double, EPropertyBagResult> GetValueDouble(const FName Name) const;
#if !UE_VERSION_OLDER_THAN(5, 8, 0)
	TValueOrError<int8, EPropertyBagResult> GetValueInt8(const FName Name) const;
	TValueOrError<int16, EPropertyBagResult> GetValueInt16(const FName Name) const;
	TValueOrError<uint16, EPropertyBagResult> GetValueUInt16(const FName Name) const;
#endif
	TValueOrError<FName, EPropertyBagResult> GetValueName(const FName Name) const;
	TValueOrError<FString, EPropertyBagResult> GetValueString(const FName Name) const;
	TValueOrError<FText, EPropertyBagResult> GetValueText(const FName Name) const;
	TValueOrError<uint8, EPropertyBagResult> GetValueEnum(const FName Name, const UEnum* RequestedEnum) const;
	TValueOrError<FStructView, EPropertyBagResult> GetValueStruct(const FName Name, const UScriptStruct* RequestedStruct = nullptr) const;
	TValueOrError<UObject*, EPropertyBagResult> GetValueObject(const FName Name, const UClass* RequestedClass = nullptr) const;
	TValueOrError<UClass*, EPropertyBagResult> GetValueClass(const FName Name) const;
	TValueOrError<FSoftObjectPath, EPropertyBagResult> GetValueSoftPath(const FName Name) const;
	// The property's text export of the value.
	TValueOrError<FString, EPropertyBagResult> GetValueSerializedString(const FName Name) const;

	template<typename T>
	TValueOrError<T, EPropertyBagResult> GetValueEnum(const FName Name) const
	{
		TValueOrError<uint8, EPropertyBagResult> Result = GetValueEnum(Name, StaticEnum<T>());
		if (!Result.HasValue())
		{
			return MakeError(Result.GetError());
		}
		return MakeValue(T(Result.GetValue()));
	}

	template<typename T>
	TValueOrError<T*, EPropertyBagResult> GetValueStruct(const FName Name) const
	{
		TValueOrError<FStructView, EPropertyBagResult> Result = GetValueStruct(Name, ::StaticStruct<T>());
		if (!Result.HasValue())
		{
			return MakeError(Result.GetError());
		}
		return MakeValue(Result.GetValue().template GetPtr<T>());
	}

	template<typename T>
	TValueOrError<T*, EPropertyBagResult> GetValueObject(const FName Name) const
	{
		TValueOrError<UObject*, EPropertyBagResult> Result = GetValueObject(Name, T::StaticClass());
		if (!Result.HasValue())
		{
			return MakeError(Result.GetError());
		}
		return MakeValue(static_cast<T*>(Result.GetValue()));
	}

	EPropertyBagResult SetValueBool(const FName Name, const bool bInValue);
	EPropertyBagResult SetValueByte(const FName Name, const uint8 InValue);
	EPropertyBagResult SetValueInt32(const FName Name, const int32 InValue);
	EPropertyBagResult SetValueUInt32(const FName Name, const uint32 InValue);
	EPropertyBagResult SetValueInt64(const FName Name, const int64 InValue);
	EPropertyBagResult SetValueUInt64(const FName Name, const uint64 InValue);
	EPropertyBagResult SetValueFloat(const FName Name, const float InValue);
	EPropertyBagResult SetValueDouble(const FName Name, const double InValue);
#if !UE_VERSION_OLDER_THAN(5, 8, 0)
	EPropertyBagResult SetValueInt8(const FName Name, const int8 InValue);
	EPropertyBagResult SetValueInt16(const FName Name, const int16 InValue);
	EPropertyBagResult SetValueUInt16(const FName Name, const uint16 InValue);
#endif
	EPropertyBagResult SetValueName(const FName Name, const FName InValue);
	EPropertyBagResult SetValueString(const FName Name, const FString& InValue);
	EPropertyBagResult SetValueText(const FName Name, const FText& InValue);
	EPropertyBagResult SetValueEnum(const FName Name, const uint8 InValue, const UEnum* Enum);
	EPropertyBagResult SetValueStruct(const FName Name, FConstStructView InValue);
	EPropertyBagResult SetValueObject(const FName Name, UObject* InValue);
	EPropertyBagResult SetValueClass(const FName Name, UClass* InValue);
	EPropertyBagResult SetValueSoftPath(const FName Name, const FSoftObjectPath& InValue);
	// Sets the value from its text form; text the property cannot parse leaves the value as it was.
	EPropertyBagResult SetValueSerializedString(const FName Name, const FString& InValue);

	template<typename T>
	EPropertyBagResult SetValueEnum(const FName Name, const T InValue)
	{
		return SetValueEnum(Name, uint8(InValue), StaticEnum<T>());
	}

	template<typename T>
	EPropertyBagResult SetValueStruct(const FName Name, const T& InValue)
	{
		return SetValueStruct(Name, FConstStructView::Make(InValue));
	}

	TValueOrError<FPropertyBagArrayRef, EPropertyBagResult> GetMutableArrayRef(const FName Name);
	TValueOrError<const FPropertyBagArrayRef, EPropertyBagResult> GetArrayRef(const FName Name) const;

	bool Identical(const FInstancedPropertyBag* Other, uint32 PortFlags) const;
	bool operator==(const FInstancedPropertyBag& Other) const { return Identical(&Other, 0); }
	void AddStructReferencedObjects(FReferenceCollector& Collector);
	// "(Properties=(<desc>,...),Values=(<field>=<value>,...))"; "()" for an empty bag.
	bool ExportTextItem(FString& ValueStr, const FInstancedPropertyBag& DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const;
	bool ImportTextItem(const TCHAR*& Buffer, int32 PortFlags, UObject* Parent, FOutputDevice* ErrorText);

private:
	const FPropertyBagPropertyDesc* FindDescAndAddress(const FName Name, uint8*& OutAddress) const;
	void AdoptLayout(const UPropertyBag* NewBagStruct);
	void FreeMemory();

	const UPropertyBag* BagStruct = nullptr;
	uint8* Memory = nullptr;
};
