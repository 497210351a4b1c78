// Reflected types: UField, UStruct, UScriptStruct, UClass, UEnum and UFunction.
#pragma once

#include "CoreMinimal.h"
#include "UObject/ObjectMacros.h"
#include "UObject/Object.h"

class FProperty;
class FField;
class UStruct;
class FOutputDevice;
class FReferenceCollector;
struct FTopLevelAssetPath;
struct FFrameRate;
struct FTimecode;

COREUOBJECT_API DECLARE_LOG_CATEGORY_EXTERN(LogClass, Log, All);

class COREUOBJECT_API UField : public UObject
{
	STANDIN_CLASS_BODY(UField, UObject, COREUOBJECT_API)

public:
	UField* Next = nullptr;

	UClass* GetOwnerClass() const;
	UStruct* GetOwnerStruct() const;

#if WITH_EDITOR
	// The DisplayName metadata when set, else the name made readable ("MoviePipelineOutputSetting" -> "Movie Pipeline Output Setting").
	FText GetDisplayNameText() const;
	FText GetToolTipText(bool bShortTooltip = false) const;
	const FString& GetMetaData(const TCHAR* Key) const;
	const FString& GetMetaData(const FName& Key) const;
	bool HasMetaData(const TCHAR* Key) const;
	bool HasMetaData(const FName& Key) const;
	void SetMetaData(const TCHAR* Key, const TCHAR* InValue);
	void SetMetaData(const FName& Key, const TCHAR* InValue);
	void RemoveMetaData(const TCHAR* Key);
	bool GetBoolMetaData(const TCHAR* Key) const;
	int32 GetIntMetaData(const TCHAR* Key) const;
	const FString* FindMetaData(const TCHAR* Key) const;
	const FString* FindMetaData(const FName& Key) const;
#endif

private:
	TMap<FName, FString> MetaData;
};

// A structure with reflected properties: the base of classes, script structs and functions.
class COREUOBJECT_API UStruct : public UField
{
	STANDIN_CLASS_BODY(UStruct, UField, COREUOBJECT_API)

public:
	virtual ~UStruct();

	UStruct* GetSuperStruct() const { return SuperStruct; }
	UStruct* GetInheritanceSuper() const { return SuperStruct; }
	void SetSuperStruct(UStruct* NewSuperStruct) { SuperStruct = NewSuperStruct; }
	bool IsChildOf(const UStruct* SomeBase) const;
	template<class T> bool IsChildOf() const { return IsChildOf(T::StaticClass()); }

	// Exact name match (FName, so case-insensitive), own properties first, then the super struct's.
	FProperty* FindPropertyByName(FName InName) const;
	int32 GetPropertiesSize() const { return PropertiesSize; }
	void SetPropertiesSize(int32 NewSize) { PropertiesSize = NewSize; }
	int32 GetMinAlignment() const { return MinAlignment; }
	void SetMinAlignment(int32 NewAlignment) { MinAlignment = int16(NewAlignment); }
	int32 GetStructureSize() const { return PropertiesSize; }
	// "/Script/CoreUObject.IntPoint" for a native struct.
	FTopLevelAssetPath GetStructPathName() const;
	virtual const TCHAR* GetPrefixCPP() const { return TEXT("F"); }

	virtual void InitializeStruct(void* Dest, int32 ArrayDim = 1) const;
	virtual void DestroyStruct(void* Dest, int32 ArrayDim = 1) const;

	// Properties declared by this struct itself, linked through FField::Next, in declaration order.
	FField* ChildProperties = nullptr;
	// Functions of a class, linked through UField::Next.
	UField* Children = nullptr;
	// All properties including inherited ones, linked through FProperty::PropertyLinkNext (own first, then super's).
	FProperty* PropertyLink = nullptr;
	// Properties that hold object references, for the garbage collector.
	FProperty* RefLink = nullptr;

	// Appends a property declared by this struct; the struct takes ownership.
	void AddCppProperty(FProperty* Property);
	void AddOwnProperty(FProperty* Property) { AddCppProperty(Property); }
	// Rebuilds PropertyLink/RefLink once every property is known.
	virtual void Link();
	void StaticLink(bool bRelinkExistingProperties = false) { Link(); }

protected:
	friend class FStandInTypeBuilderBase;

	UStruct* SuperStruct = nullptr;
	int32 PropertiesSize = 0;
	int16 MinAlignment = 1;
	FField* LastOwnProperty = nullptr;
};

// Native behaviour of a script struct: construction, destruction, copy, comparison and optional text I/O.
struct COREUOBJECT_API FStandInCppStructOps
{
	int32 Size = 0;
	int32 Alignment = 1;
	void (*Construct)(void* Dest) = nullptr;
	void (*Destruct)(void* Dest) = nullptr;
	void (*Copy)(void* Dest, const void* Src) = nullptr;
	// Null when the struct has no operator==; then fields are compared one by one.
	bool (*Identical)(const void* A, const void* B) = nullptr;
	// Native text export (FSoftObjectPath, FGuid, ...); null when fields are exported one by one.
	bool (*ExportTextItem)(FString& ValueStr, const void* Value, const void* Default, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) = nullptr;
	// Native text import; returns false when the text is not understood, leaving Buffer where it was.
	bool (*ImportTextItem)(const TCHAR*& Buffer, void* Value, int32 PortFlags, UObject* Parent, FOutputDevice* ErrorText) = nullptr;
	// Hash of a value, when the struct has GetTypeHash.
	uint32 (*GetTypeHash)(const void* Value) = nullptr;
	// Reports the object references the struct holds outside its reflected properties, when it has AddStructReferencedObjects.
	void (*AddStructReferencedObjects)(void* Value, FReferenceCollector& Collector) = nullptr;
	// Atomic structs export every field even when it equals the default.
	bool bIsAtomic = false;
};

class COREUOBJECT_API UScriptStruct : public UStruct
{
	STANDIN_CLASS_BODY(UScriptStruct, UStruct, COREUOBJECT_API)

public:
	EStructFlags StructFlags = STRUCT_NoFlags;

	const FStandInCppStructOps& GetCppStructOps() const { return CppStructOps; }
	void SetCppStructOps(const FStandInCppStructOps& InOps);
	bool HasAnyStructFlags(EStructFlags FlagsToCheck) const { return (StructFlags & FlagsToCheck) != 0; }

	void InitializeStruct(void* Dest, int32 ArrayDim = 1) const override;
	void DestroyStruct(void* Dest, int32 ArrayDim = 1) const override;
	void CopyScriptStruct(void* Dest, const void* Src, int32 ArrayDim = 1) const;
	// False when B is null: a struct never equals a missing default.
	bool CompareScriptStruct(const void* A, const void* B, uint32 PortFlags) const;
	uint32 GetStructTypeHash(const void* Src) const;
	// "FIntPoint": the C++ name with its prefix.
	FString GetStructCPPName(uint32 CPPExportFlags = 0) const;

	// "(Field=Value,...)": fields equal to Defaults are left out; "()" when nothing is left.
	void ExportText(FString& ValueStr, const void* Value, const void* Defaults, UObject* OwnerObject, int32 PortFlags, UObject* ExportRootScope, bool bAllowNativeOverride = true) const;
	// Returns the position after the text, or null (leaving Value untouched) when the text is not a value of this struct.
	const TCHAR* ImportText(const TCHAR* Buffer, void* Value, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText, const FString& StructName, bool bAllowNativeOverride = true) const;
	const TCHAR* ImportText(const TCHAR* Buffer, void* Value, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText, const TFunctionRef<FString()>& StructNameGetter, bool bAllowNativeOverride = true) const;

private:
	const TCHAR* ImportFieldsText(const TCHAR* Buffer, void* Value, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText, const FString& StructName) const;

	FStandInCppStructOps CppStructOps;
};

class COREUOBJECT_API UFunction : public UStruct
{
	STANDIN_CLASS_BODY(UFunction, UStruct, COREUOBJECT_API)

public:
	// Reads the parameters from the block, calls the C++ function on Context and writes out parameters and the result.
	using FNativeThunk = void (*)(UObject* Context, void* Parms);

	EFunctionFlags FunctionFlags = FUNC_None;
	uint8 NumParms = 0;
	uint16 ParmsSize = 0;
	uint16 ReturnValueOffset = MAX_uint16;

	bool HasAnyFunctionFlags(EFunctionFlags FlagsToCheck) const { return (FunctionFlags & FlagsToCheck) != 0; }
	bool HasAllFunctionFlags(EFunctionFlags FlagsToCheck) const { return (FunctionFlags & FlagsToCheck) == FlagsToCheck; }
	EFunctionFlags GetFunctionFlags() const { return FunctionFlags; }
	FProperty* GetReturnProperty() const;
	void Invoke(UObject* Obj, void* Parms) const;
	void SetNativeFunc(FNativeThunk InFunc) { NativeThunk = InFunc; }
	FNativeThunk GetNativeFunc() const { return NativeThunk; }
	UClass* GetOuterUClass() const;

	void InitializeStruct(void* Dest, int32 ArrayDim = 1) const override;
	void DestroyStruct(void* Dest, int32 ArrayDim = 1) const override;
	void Link() override;

private:
	FNativeThunk NativeThunk = nullptr;
};

class COREUOBJECT_API UClass : public UStruct
{
	STANDIN_CLASS_BODY(UClass, UStruct, COREUOBJECT_API)

public:
	using FAddReferencedObjects = void (*)(UObject*, FReferenceCollector&);

	EClassFlags ClassFlags = CLASS_None;
	EClassCastFlags ClassCastFlags = CASTCLASS_None;
	UE::CoreUObject::StandIn::FConstructFunction ClassConstructor = nullptr;
	FAddReferencedObjects ClassAddReferencedObjects = nullptr;
	UClass* ClassWithin = nullptr;
	FName ClassConfigName;
	// Counter of the unique names made for objects of this class ("<Class>_<N>").
	int32 ClassUnique = 0;

	UClass* GetSuperClass() const { return static_cast<UClass*>(GetSuperStruct()); }
	bool HasAnyClassFlags(EClassFlags FlagsToCheck) const { return (ClassFlags & FlagsToCheck) != 0; }
	bool HasAllClassFlags(EClassFlags FlagsToCheck) const { return (ClassFlags & FlagsToCheck) == FlagsToCheck; }
	EClassFlags GetClassFlags() const { return ClassFlags; }
	bool HasAnyCastFlag(EClassCastFlags FlagToCheck) const { return (ClassCastFlags & FlagToCheck) != 0; }
	bool IsNative() const { return HasAnyClassFlags(CLASS_Native); }
	UClass* GetAuthoritativeClass() { return this; }
	const UClass* GetAuthoritativeClass() const { return this; }
	// "/Script/MovieRenderPipelineCore.MoviePipelineQueue"
	FTopLevelAssetPath GetClassPathName() const;

	// The class default object, created on first request with RF_ClassDefaultObject and the name "Default__<Name>".
	UObject* GetDefaultObject(bool bCreateIfNeeded = true) const;
	template<class T> T* GetDefaultObject() const { return static_cast<T*>(GetDefaultObject()); }
	FName GetDefaultObjectName() const;
	UObject* ClassDefaultObject = nullptr;

	UFunction* FindFunctionByName(FName InName, EIncludeSuperFlag::Type IncludeSuper = EIncludeSuperFlag::IncludeSuper) const;
	void AddFunctionToFunctionMap(UFunction* Function, FName FuncName);
	void RemoveFunctionFromFunctionMap(UFunction* Function);
	TMap<FName, UFunction*> FuncMap;

	// "UMoviePipelineQueue" for a native class (its C++ name with the prefix).
	FString GetPrefixCPPName() const;
	const TCHAR* GetPrefixCPP() const override;

	static void AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector);
};

// An enumeration: names in declaration order, each with its value, as the engine keeps them.
class COREUOBJECT_API UEnum : public UField
{
	STANDIN_CLASS_BODY(UEnum, UField, COREUOBJECT_API)

public:
	enum class ECppForm : uint8 { Regular, Namespaced, EnumClass };

	// The number of names, including the trailing "_MAX" entry the engine adds.
	int32 NumEnums() const { return Names.Num(); }
	// "EMovieRenderPipelineState::ProducingFrames" for an enum class, "AAM_FXAA" for a regular enum.
	FName GetNameByIndex(int32 Index) const;
	FName GetNameByValue(int64 InValue) const;
	// The short name: "ProducingFrames" for "EMovieRenderPipelineState::ProducingFrames".
	FString GetNameStringByIndex(int32 InIndex) const;
	FString GetNameStringByValue(int64 InValue) const;
	FString GetAuthoredNameStringByIndex(int32 InIndex) const { return GetNameStringByIndex(InIndex); }
	FString GetAuthoredNameStringByValue(int64 InValue) const { return GetNameStringByValue(InValue); }
	// "A | B" for a value of a bitflags enum; the short name otherwise.
	FString GetValueOrBitfieldAsString(int64 InValue) const;
	int64 GetValueByIndex(int32 Index) const;
	int32 GetIndexByValue(int64 InValue) const;
	// Accepts the full ("EType::Value") and the short ("Value") name; INDEX_NONE when unknown.
	int32 GetIndexByName(const FName InName, EGetByNameFlags Flags = EGetByNameFlags::None) const;
	int32 GetIndexByNameString(const FString& SearchString, EGetByNameFlags Flags = EGetByNameFlags::None) const;
	int64 GetValueByName(const FName InName, EGetByNameFlags Flags = EGetByNameFlags::None) const;
	int64 GetValueByNameString(const FString& SearchString, EGetByNameFlags Flags = EGetByNameFlags::None) const;
	bool IsValidEnumValue(int64 InValue) const;
	bool IsValidEnumName(FName InName) const;
	// The largest value, which is the value of the trailing "_MAX" entry.
	int64 GetMaxEnumValue() const;
	bool ContainsExistingMax() const;
	FText GetDisplayNameTextByIndex(int32 InIndex) const;
	FText GetDisplayNameTextByValue(int64 InValue) const;
	FText GetToolTipTextByIndex(int32 InIndex) const;
	ECppForm GetCppForm() const { return CppForm; }
	const FString& CppType() const { return CppTypeName; }
	void SetCppType(const FString& InCppType) { CppTypeName = InCppType; }
	FString GenerateFullEnumName(const TCHAR* InEnumName) const;
	bool HasAnyEnumFlags(EEnumFlags InFlags) const { return EnumHasAnyFlags(EnumFlags, InFlags); }
	void SetEnumFlags(EEnumFlags FlagsToSet) { EnumFlags |= FlagsToSet; }

#if WITH_EDITOR
	// Metadata of one enumerator (NameIndex >= 0) or of the enum itself (INDEX_NONE).
	FString GetMetaData(const TCHAR* Key, int32 NameIndex = INDEX_NONE) const;
	void SetMetaData(const TCHAR* Key, const TCHAR* InValue, int32 NameIndex = INDEX_NONE);
	bool HasMetaData(const TCHAR* Key, int32 NameIndex = INDEX_NONE) const;
#endif

	virtual bool SetEnums(TArray<TPair<FName, int64>>& InNames, ECppForm InCppForm, EEnumFlags InFlags = EEnumFlags::None, bool bAddMaxKeyIfMissing = true);

private:
	FString GetMetaDataKey(const TCHAR* Key, int32 NameIndex) const;
	FString GenerateMaxEnumName() const;

	TArray<TPair<FName, int64>> Names;
	ECppForm CppForm = ECppForm::Regular;
	EEnumFlags EnumFlags = EEnumFlags::None;
	FString CppTypeName;
};

namespace UE::CoreUObject::StandIn
{
	// Creates the struct object of a native struct; Name is the C++ name ("FIntPoint").
	COREUOBJECT_API void ConstructNativeScriptStruct(UScriptStruct*& OutStruct, const TCHAR* Name, const TCHAR* ModuleName,
		const FStandInCppStructOps& Ops, void (*RegisterReflection)(UScriptStruct*, void*), void* RegisterContext);

	// Creates the UEnum of a native enum from "A, B, C" and the values in the same order.
	COREUOBJECT_API UEnum* ConstructNativeEnum(const TCHAR* Name, const TCHAR* ModuleName, const TCHAR* CommaSeparatedNames,
		const TArray<int64>& Values, bool bIsEnumClass);

	struct FNativeStructRegistrant
	{
		explicit FNativeStructRegistrant(UScriptStruct* (*StaticStructFunction)()) { StaticStructFunction(); }
	};

	struct FNativeEnumRegistrant
	{
		explicit FNativeEnumRegistrant(UEnum* (*StaticEnumFunction)()) { StaticEnumFunction(); }
	};

	// Defined with the property machinery in UObject/UnrealType.h.
	template<class TStruct>
	void ConstructNativeStruct(UScriptStruct*& OutStruct, const TCHAR* Name, const TCHAR* ModuleName,
		void (*RegisterReflection)(TStandInTypeBuilder<TStruct>&));
}

// Reflection of the core structs that are declared below CoreUObject.
template<> struct TBaseStructure<FIntPoint> { COREUOBJECT_API static UScriptStruct* Get(); };
template<> struct TBaseStructure<FIntRect> { COREUOBJECT_API static UScriptStruct* Get(); };
template<> struct TBaseStructure<FVector2D> { COREUOBJECT_API static UScriptStruct* Get(); };
template<> struct TBaseStructure<FLinearColor> { COREUOBJECT_API static UScriptStruct* Get(); };
template<> struct TBaseStructure<FColor> { COREUOBJECT_API static UScriptStruct* Get(); };
template<> struct TBaseStructure<FGuid> { COREUOBJECT_API static UScriptStruct* Get(); };
template<> struct TBaseStructure<FFrameRate> { COREUOBJECT_API static UScriptStruct* Get(); };
template<> struct TBaseStructure<FFrameNumber> { COREUOBJECT_API static UScriptStruct* Get(); };
template<> struct TBaseStructure<FDateTime> { COREUOBJECT_API static UScriptStruct* Get(); };
template<> struct TBaseStructure<FTimespan> { COREUOBJECT_API static UScriptStruct* Get(); };
template<> struct TBaseStructure<FTimecode> { COREUOBJECT_API static UScriptStruct* Get(); };

// The struct of any reflected struct type: its own StaticStruct() or its TBaseStructure.
template<class T>
UScriptStruct* StaticStruct()
{
	if constexpr (requires { T::StaticStruct(); })
	{
		return T::StaticStruct();
	}
	else
	{
		return TBaseStructure<T>::Get();
	}
}

// Whether a C++ type has reflection as a struct.
template<class T>
concept CStandInReflectedStruct = requires { T::StaticStruct(); } || requires { TBaseStructure<T>::Get(); };

// The class default object of a class, read-only.
template<class T>
const T* GetDefault()
{
	return static_cast<const T*>(T::StaticClass()->GetDefaultObject());
}

template<class T>
T* GetMutableDefault()
{
	return static_cast<T*>(T::StaticClass()->GetDefaultObject());
}
