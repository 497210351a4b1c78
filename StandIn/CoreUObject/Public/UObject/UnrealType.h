// FProperty and its subclasses: reflected members, their values, text export/import and reference visiting.
#pragma once

#include "CoreMinimal.h"
#include "UObject/ObjectMacros.h"
#include "UObject/Object.h"
#include "UObject/Class.h"
#include "UObject/Field.h"
#include "UObject/ObjectPtr.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/PropertyPortFlags.h"
#include "UObject/WeakObjectPtr.h"
#include "UObject/SoftObjectPtr.h"
#include "Templates/Casts.h"
#include "Misc/FeedbackContext.h"

#include <type_traits>

class FProperty;
class FStructProperty;

COREUOBJECT_API DECLARE_LOG_CATEGORY_EXTERN(LogProperty, Log, All);

// Whether a property pointer points at the value itself or at the container (object or struct) holding it.
enum class EPropertyPointerType
{
	Direct = 0,
	Container = 1,
};

// Flags of FProperty::GetCPPType.
enum EPropertyExportCPPFlags
{
	CPPF_None = 0x00000000,
	CPPF_OptionalValue = 0x00000001,
	CPPF_ArgumentOrReturnValue = 0x00000002,
	CPPF_Implementation = 0x00000004,
	CPPF_CustomTypeName = 0x00000008,
	CPPF_NoConst = 0x00000010,
	CPPF_NoRef = 0x00000020,
	CPPF_NoStaticArray = 0x00000040,
	CPPF_BlueprintCppBackend = 0x00000080,
	CPPF_NoTObjectPtr = 0x00000100,
};

class COREUOBJECT_API FProperty : public FField
{
	DECLARE_FIELD(FProperty, FField, CASTCLASS_FProperty)

public:
	int32 ArrayDim = 1;
	int32 ElementSize = 0;
	EPropertyFlags PropertyFlags = CPF_None;
	uint16 RepIndex = 0;
	FName RepNotifyFunc;

	// Next property in the owning struct's PropertyLink chain (own properties first, then the super struct's).
	FProperty* PropertyLinkNext = nullptr;
	// Next property in the owning struct's RefLink chain (properties holding object references).
	FProperty* NextRef = nullptr;
	FProperty* DestructorLinkNext = nullptr;
	FProperty* PostConstructLinkNext = nullptr;

	FProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags);
	FProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags, int32 InOffset, EPropertyFlags InFlags);

	// Layout
	int32 GetOffset_ForInternal() const { return Offset_Internal; }
	int32 GetOffset_ForUFunction() const { return Offset_Internal; }
	int32 GetOffset_ForGC() const { return Offset_Internal; }
	int32 GetOffset_ForDebug() const { return Offset_Internal; }
	int32 GetOffset_ReplaceWith_ContainerPtrToValuePtr() const { return Offset_Internal; }
	void SetOffset_Internal(int32 NewOffset) { Offset_Internal = NewOffset; }
	int32 GetSize() const { return ArrayDim * ElementSize; }
	int32 GetElementSize() const { return ElementSize; }
	void SetElementSize(int32 NewSize) { ElementSize = NewSize; }
	int32 GetArrayDim() const { return ArrayDim; }
	virtual int32 GetMinAlignment() const { return 1; }
	bool IsInContainer(int32 ContainerSize) const { return Offset_Internal + GetSize() <= ContainerSize; }

	template<typename ValueType = void>
	ValueType* ContainerPtrToValuePtr(void* ContainerPtr, int32 ArrayIndex = 0) const
	{
		check(ArrayIndex >= 0 && ArrayIndex < ArrayDim);
		return reinterpret_cast<ValueType*>(static_cast<uint8*>(ContainerPtr) + Offset_Internal + ElementSize * ArrayIndex);
	}
	template<typename ValueType = void>
	const ValueType* ContainerPtrToValuePtr(const void* ContainerPtr, int32 ArrayIndex = 0) const
	{
		check(ArrayIndex >= 0 && ArrayIndex < ArrayDim);
		return reinterpret_cast<const ValueType*>(static_cast<const uint8*>(ContainerPtr) + Offset_Internal + ElementSize * ArrayIndex);
	}
	template<typename ValueType = void>
	ValueType* ContainerPtrToValuePtrForDefaults(UStruct* ContainerClass, void* ContainerPtr, int32 ArrayIndex = 0) const
	{
		return ContainerPtrToValuePtr<ValueType>(ContainerPtr, ArrayIndex);
	}
	void* PointerToValuePtr(const void* ContainerOrValuePtr, EPropertyPointerType PointerType, int32 ArrayIndex = 0) const
	{
		return PointerType == EPropertyPointerType::Container
			? const_cast<void*>(ContainerPtrToValuePtr<void>(ContainerOrValuePtr, ArrayIndex))
			: static_cast<uint8*>(const_cast<void*>(ContainerOrValuePtr)) + ElementSize * ArrayIndex;
	}

	// Flags
	EPropertyFlags GetPropertyFlags() const { return PropertyFlags; }
	void SetPropertyFlags(EPropertyFlags NewFlags) { PropertyFlags |= NewFlags; }
	void ClearPropertyFlags(EPropertyFlags FlagsToClear) { PropertyFlags &= ~FlagsToClear; }
	bool HasAnyPropertyFlags(uint64 FlagsToCheck) const { return (PropertyFlags & FlagsToCheck) != 0; }
	bool HasAllPropertyFlags(uint64 FlagsToCheck) const { return (PropertyFlags & FlagsToCheck) == FlagsToCheck; }
	bool IsEditorOnlyProperty() const { return HasAnyPropertyFlags(CPF_EditorOnly); }
	FName GetID() const { return GetClass()->GetFName(); }
	FString GetNameCPP() const { return GetName(); }

	// C++ type: "int32", "FString", "TArray" (ExtendedTypeText "<int32>"), "TObjectPtr<UMoviePipelineSetting>", ...
	virtual FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const = 0;
	virtual FString GetCPPMacroType(FString& ExtendedTypeText) const;
	virtual FString GetCPPTypeForwardDeclaration() const { return FString(); }
	virtual bool PassCPPArgsByRef() const { return false; }
	virtual bool SameType(const FProperty* Other) const;

	// Text export: always writes the value.
	void ExportTextItem_Direct(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope = nullptr) const;
	void ExportTextItem_InContainer(FString& ValueStr, const void* Container, const void* DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope = nullptr) const;
	// Text export of a value that differs from Delta (with Delta null: from the type's zero value); false and nothing
	// written when they are identical.
	bool ExportText_Direct(FString& ValueStr, const void* Data, const void* Delta, UObject* Parent, int32 PortFlags, UObject* ExportRootScope = nullptr) const;
	bool ExportText_InContainer(int32 Index, FString& ValueStr, const void* Data, const void* Delta, UObject* Parent, int32 PortFlags, UObject* ExportRootScope = nullptr) const;
	// Text import: the position after the parsed value, or null (value unchanged) when the text is not a valid value.
	const TCHAR* ImportText_Direct(const TCHAR* Buffer, void* PropertyPtr, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText = (FOutputDevice*)GWarn) const;
	const TCHAR* ImportText_InContainer(const TCHAR* Buffer, void* Container, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText = (FOutputDevice*)GWarn) const;

	virtual void ExportText_Internal(FString& ValueStr, const void* PropertyValueOrContainer, EPropertyPointerType PointerType, const void* DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope = nullptr) const = 0;
	virtual const TCHAR* ImportText_Internal(const TCHAR* Buffer, void* ContainerOrPropertyPtr, EPropertyPointerType PointerType, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const = 0;

	// Transient and deprecated properties are not exported unless the port flags ask for them.
	bool ShouldPort(uint32 PortFlags = 0) const;

	// Values
	virtual bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const = 0;
	bool Identical_InContainer(const void* A, const void* B, int32 ArrayIndex = 0, uint32 PortFlags = 0) const;
	void CopySingleValue(void* Dest, void const* Src) const;
	void CopyCompleteValue(void* Dest, void const* Src) const;
	void CopyCompleteValue_InContainer(void* Dest, void const* Src) const;
	void CopySingleValueToScriptVM(void* Dest, void const* Src) const { CopySingleValue(Dest, Src); }
	void CopyCompleteValueToScriptVM(void* Dest, void const* Src) const { CopyCompleteValue(Dest, Src); }
	void CopySingleValueFromScriptVM(void* Dest, void const* Src) const { CopySingleValue(Dest, Src); }
	void CopyCompleteValueFromScriptVM(void* Dest, void const* Src) const { CopyCompleteValue(Dest, Src); }
	void ClearValue(void* Data) const;
	void ClearValue_InContainer(void* Data, int32 ArrayIndex = 0) const;
	void DestroyValue(void* Dest) const;
	void DestroyValue_InContainer(void* Dest) const;
	void InitializeValue(void* Dest) const;
	void InitializeValue_InContainer(void* Dest) const;
	uint32 GetValueTypeHash(const void* Src) const;
	// Copies of the complete value (all ArrayDim elements) or of one element, out of and into a container.
	void GetValue_InContainer(void const* InContainer, void* OutValue) const { CopyCompleteValue(OutValue, ContainerPtrToValuePtr<void>(InContainer)); }
	void SetValue_InContainer(void* OutContainer, const void* InValue) const { CopyCompleteValue(ContainerPtrToValuePtr<void>(OutContainer), InValue); }
	void GetSingleValue_InContainer(const void* InContainer, void* OutValue, int32 ArrayIndex) const { CopySingleValue(OutValue, ContainerPtrToValuePtr<void>(InContainer, ArrayIndex)); }
	void SetSingleValue_InContainer(void* OutContainer, const void* InValue, int32 ArrayIndex) const { CopySingleValue(ContainerPtrToValuePtr<void>(OutContainer, ArrayIndex), InValue); }
	// Native properties have no getter or setter functions here.
	bool HasGetter() const { return false; }
	bool HasSetter() const { return false; }
	bool HasSetterOrGetter() const { return false; }

	// Memory holding one initialized value (FMemory), and its release.
	void* AllocateAndInitializeValue() const;
	void DestroyAndFreeValue(void* InMemory) const;

	// Stand-in: calls Visitor on every strong object reference inside Value (object properties, and through arrays,
	// maps and structs). Garbage collection, DuplicateObject and the transaction buffer walk references with it.
	virtual void VisitObjectReferences(void* Value, TFunctionRef<void(UObject*& Reference)> Visitor) const {}
	// Whether the value can hold a strong object reference (the property belongs on the RefLink chain).
	virtual bool ContainsObjectReference() const { return false; }

	virtual void LinkInternal() {}

protected:
	virtual void CopyValuesInternal(void* Dest, void const* Src, int32 Count) const = 0;
	virtual void ClearValueInternal(void* Data) const;
	virtual void DestroyValueInternal(void* Dest) const;
	virtual void InitializeValueInternal(void* Dest) const;
	virtual uint32 GetValueTypeHashInternal(const void* Src) const;

private:
	friend class UStruct;

	int32 Offset_Internal = 0;
};

/*-----------------------------------------------------------------------------
	Typed property templates.
-----------------------------------------------------------------------------*/

// Value access shared by every property whose value is a C++ type.
template<typename InTCppType>
class TPropertyTypeFundamentals
{
public:
	using TCppType = InTCppType;
	enum
	{
		CPPSize = sizeof(TCppType),
		CPPAlignment = alignof(TCppType)
	};

	static FORCEINLINE const TCppType* GetPropertyValuePtr(const void* A) { return static_cast<const TCppType*>(A); }
	static FORCEINLINE TCppType* GetPropertyValuePtr(void* A) { return static_cast<TCppType*>(A); }
	static FORCEINLINE const TCppType& GetPropertyValue(const void* A) { return *GetPropertyValuePtr(A); }
	static FORCEINLINE TCppType GetDefaultPropertyValue() { return TCppType(); }
	static FORCEINLINE TCppType GetOptionalPropertyValue(const void* B) { return B ? GetPropertyValue(B) : GetDefaultPropertyValue(); }
	static FORCEINLINE void SetPropertyValue(void* A, const TCppType& Value) { *GetPropertyValuePtr(A) = Value; }
	static FORCEINLINE TCppType* InitializePropertyValue(void* A) { return new (A) TCppType(); }
	static FORCEINLINE void DestroyPropertyValue(void* A) { GetPropertyValuePtr(A)->~TCppType(); }
};

template<typename InTCppType, class TInPropertyBaseClass>
class TProperty : public TInPropertyBaseClass, public TPropertyTypeFundamentals<InTCppType>
{
public:
	using TCppType = InTCppType;
	using Super = TInPropertyBaseClass;
	using TTypeFundamentals = TPropertyTypeFundamentals<InTCppType>;
	using TTypeFundamentals::GetPropertyValue;
	using TTypeFundamentals::GetPropertyValuePtr;
	using TTypeFundamentals::SetPropertyValue;
	using TTypeFundamentals::GetDefaultPropertyValue;

	TProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags)
		: Super(InOwner, InName, InObjectFlags)
	{
		this->SetElementSize(sizeof(TCppType));
	}

	int32 GetMinAlignment() const override { return alignof(TCppType); }

	const TCppType* GetPropertyValuePtr_InContainer(const void* A, int32 ArrayIndex = 0) const
	{
		return GetPropertyValuePtr(this->template ContainerPtrToValuePtr<void>(A, ArrayIndex));
	}
	TCppType* GetPropertyValuePtr_InContainer(void* A, int32 ArrayIndex = 0) const
	{
		return GetPropertyValuePtr(this->template ContainerPtrToValuePtr<void>(A, ArrayIndex));
	}
	const TCppType& GetPropertyValue_InContainer(const void* A, int32 ArrayIndex = 0) const
	{
		return *GetPropertyValuePtr_InContainer(A, ArrayIndex);
	}
	void SetPropertyValue_InContainer(void* A, const TCppType& Value, int32 ArrayIndex = 0) const
	{
		*GetPropertyValuePtr_InContainer(A, ArrayIndex) = Value;
	}
	using TInPropertyBaseClass::GetValue_InContainer;
	using TInPropertyBaseClass::SetValue_InContainer;
	void GetValue_InContainer(const void* A, TCppType* OutValue) const { *OutValue = GetPropertyValue_InContainer(A); }
	void SetValue_InContainer(void* A, const TCppType& Value) const { SetPropertyValue_InContainer(A, Value); }

protected:
	void CopyValuesInternal(void* Dest, void const* Src, int32 Count) const override
	{
		for (int32 Index = 0; Index < Count; ++Index)
		{
			GetPropertyValuePtr(Dest)[Index] = GetPropertyValuePtr(Src)[Index];
		}
	}
	void ClearValueInternal(void* Data) const override { SetPropertyValue(Data, TCppType()); }
	void InitializeValueInternal(void* Dest) const override
	{
		for (int32 Index = 0; Index < this->ArrayDim; ++Index)
		{
			new (GetPropertyValuePtr(Dest) + Index) TCppType();
		}
	}
	void DestroyValueInternal(void* Dest) const override
	{
		for (int32 Index = 0; Index < this->ArrayDim; ++Index)
		{
			(GetPropertyValuePtr(Dest) + Index)->~TCppType();
		}
	}
};

// A typed property whose values compare with operator==.
template<typename InTCppType, class TInPropertyBaseClass>
class TProperty_WithEqualityAndSerializer : public TProperty<InTCppType, TInPropertyBaseClass>
{
public:
	using Super = TProperty<InTCppType, TInPropertyBaseClass>;
	using TCppType = InTCppType;

	TProperty_WithEqualityAndSerializer(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags)
		: Super(InOwner, InName, InObjectFlags)
	{
	}

	bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override
	{
		return Super::GetPropertyValue(A) == Super::GetOptionalPropertyValue(B);
	}
};

/*-----------------------------------------------------------------------------
	Numeric properties.
-----------------------------------------------------------------------------*/

class COREUOBJECT_API FNumericProperty : public FProperty
{
	DECLARE_FIELD(FNumericProperty, FProperty, CASTCLASS_FNumericProperty)

public:
	FNumericProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags);

	virtual bool IsFloatingPoint() const { return false; }
	virtual bool IsInteger() const { return true; }
	// The enum of a byte property that has one, else null.
	virtual UEnum* GetIntPropertyEnum() const { return nullptr; }
	bool IsEnum() const { return GetIntPropertyEnum() != nullptr; }

	template<typename T>
	bool CanHoldValue(T Value) const
	{
		if constexpr (std::is_floating_point_v<T>)
		{
			return CanHoldDoubleValueInternal(double(Value));
		}
		else if constexpr (std::is_signed_v<T>)
		{
			return CanHoldSignedValueInternal(int64(Value));
		}
		else
		{
			return CanHoldUnsignedValueInternal(uint64(Value));
		}
	}

	virtual void SetIntPropertyValue(void* Data, uint64 Value) const;
	virtual void SetIntPropertyValue(void* Data, int64 Value) const;
	virtual void SetFloatingPointPropertyValue(void* Data, double Value) const;
	// Parses Value as this property's numeric type and stores it (0 when it is not a number).
	virtual void SetNumericPropertyValueFromString(void* Data, TCHAR const* Value) const;
	virtual int64 GetSignedIntPropertyValue(void const* Data) const;
	virtual uint64 GetUnsignedIntPropertyValue(void const* Data) const;
	virtual double GetFloatingPointPropertyValue(void const* Data) const;
	virtual FString GetNumericPropertyValueToString(void const* Data) const;

	void SetIntPropertyValue_InContainer(void* Container, int64 Value, int32 ArrayIndex = 0) const { SetIntPropertyValue(ContainerPtrToValuePtr<void>(Container, ArrayIndex), Value); }
	void SetFloatingPointPropertyValue_InContainer(void* Container, double Value, int32 ArrayIndex = 0) const { SetFloatingPointPropertyValue(ContainerPtrToValuePtr<void>(Container, ArrayIndex), Value); }
	int64 GetSignedIntPropertyValue_InContainer(void const* Container, int32 ArrayIndex = 0) const { return GetSignedIntPropertyValue(ContainerPtrToValuePtr<void>(Container, ArrayIndex)); }
	uint64 GetUnsignedIntPropertyValue_InContainer(void const* Container, int32 ArrayIndex = 0) const { return GetUnsignedIntPropertyValue(ContainerPtrToValuePtr<void>(Container, ArrayIndex)); }
	double GetFloatingPointPropertyValue_InContainer(void const* Container, int32 ArrayIndex = 0) const { return GetFloatingPointPropertyValue(ContainerPtrToValuePtr<void>(Container, ArrayIndex)); }
	FString GetNumericPropertyValueToString_InContainer(void const* Container, int32 ArrayIndex = 0) const { return GetNumericPropertyValueToString(ContainerPtrToValuePtr<void>(Container, ArrayIndex)); }

	void ExportText_Internal(FString& ValueStr, const void* PropertyValueOrContainer, EPropertyPointerType PointerType, const void* DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope = nullptr) const override;
	const TCHAR* ImportText_Internal(const TCHAR* Buffer, void* ContainerOrPropertyPtr, EPropertyPointerType PointerType, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const override;

protected:
	virtual bool CanHoldDoubleValueInternal(double Value) const;
	virtual bool CanHoldSignedValueInternal(int64 Value) const;
	virtual bool CanHoldUnsignedValueInternal(uint64 Value) const;
};

template<typename InTCppType>
class TProperty_Numeric : public TProperty_WithEqualityAndSerializer<InTCppType, FNumericProperty>
{
public:
	using Super = TProperty_WithEqualityAndSerializer<InTCppType, FNumericProperty>;
	using TCppType = InTCppType;

	TProperty_Numeric(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags)
		: Super(InOwner, InName, InObjectFlags)
	{
		this->PropertyFlags |= CPF_IsPlainOldData | CPF_NoDestructor | CPF_ZeroConstructor | CPF_HasGetValueTypeHash;
	}

	bool IsFloatingPoint() const override { return std::is_floating_point_v<TCppType>; }
	bool IsInteger() const override { return std::is_integral_v<TCppType>; }

	void SetIntPropertyValue(void* Data, uint64 Value) const override
	{
		check(IsInteger());
		Super::SetPropertyValue(Data, TCppType(Value));
	}
	void SetIntPropertyValue(void* Data, int64 Value) const override
	{
		check(IsInteger());
		Super::SetPropertyValue(Data, TCppType(Value));
	}
	void SetFloatingPointPropertyValue(void* Data, double Value) const override
	{
		check(IsFloatingPoint());
		Super::SetPropertyValue(Data, TCppType(Value));
	}
	int64 GetSignedIntPropertyValue(void const* Data) const override
	{
		check(IsInteger());
		return int64(Super::GetPropertyValue(Data));
	}
	uint64 GetUnsignedIntPropertyValue(void const* Data) const override
	{
		check(IsInteger());
		return uint64(Super::GetPropertyValue(Data));
	}
	double GetFloatingPointPropertyValue(void const* Data) const override
	{
		check(IsFloatingPoint());
		return double(Super::GetPropertyValue(Data));
	}
	FString GetNumericPropertyValueToString(void const* Data) const override
	{
		return LexToString(Super::GetPropertyValue(Data));
	}

protected:
	uint32 GetValueTypeHashInternal(const void* Src) const override { return GetTypeHash(Super::GetPropertyValue(Src)); }
	bool CanHoldDoubleValueInternal(double Value) const override
	{
		if constexpr (std::is_floating_point_v<TCppType>)
		{
			return double(TCppType(Value)) == Value || Value != Value;
		}
		else
		{
			return Value >= double(TNumericLimits<TCppType>::Lowest()) && Value <= double(TNumericLimits<TCppType>::Max()) && double(TCppType(Value)) == Value;
		}
	}
	bool CanHoldSignedValueInternal(int64 Value) const override
	{
		if constexpr (std::is_floating_point_v<TCppType>)
		{
			return int64(TCppType(Value)) == Value;
		}
		else if constexpr (std::is_signed_v<TCppType>)
		{
			return Value >= int64(TNumericLimits<TCppType>::Lowest()) && Value <= int64(TNumericLimits<TCppType>::Max());
		}
		else
		{
			return Value >= 0 && uint64(Value) <= uint64(TNumericLimits<TCppType>::Max());
		}
	}
	bool CanHoldUnsignedValueInternal(uint64 Value) const override
	{
		if constexpr (std::is_floating_point_v<TCppType>)
		{
			return uint64(TCppType(Value)) == Value;
		}
		else
		{
			return Value <= uint64(TNumericLimits<TCppType>::Max());
		}
	}
};

class COREUOBJECT_API FInt8Property : public TProperty_Numeric<int8>
{
	DECLARE_FIELD(FInt8Property, TProperty_Numeric<int8>, CASTCLASS_FInt8Property)
public:
	FInt8Property(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags);
	FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override { return TEXT("int8"); }
};

class COREUOBJECT_API FInt16Property : public TProperty_Numeric<int16>
{
	DECLARE_FIELD(FInt16Property, TProperty_Numeric<int16>, CASTCLASS_FInt16Property)
public:
	FInt16Property(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags);
	FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override { return TEXT("int16"); }
};

class COREUOBJECT_API FIntProperty : public TProperty_Numeric<int32>
{
	DECLARE_FIELD(FIntProperty, TProperty_Numeric<int32>, CASTCLASS_FIntProperty)
public:
	FIntProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags);
	FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override { return TEXT("int32"); }
};

class COREUOBJECT_API FInt64Property : public TProperty_Numeric<int64>
{
	DECLARE_FIELD(FInt64Property, TProperty_Numeric<int64>, CASTCLASS_FInt64Property)
public:
	FInt64Property(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags);
	FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override { return TEXT("int64"); }
};

class COREUOBJECT_API FUInt16Property : public TProperty_Numeric<uint16>
{
	DECLARE_FIELD(FUInt16Property, TProperty_Numeric<uint16>, CASTCLASS_FUInt16Property)
public:
	FUInt16Property(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags);
	FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override { return TEXT("uint16"); }
};

class COREUOBJECT_API FUInt32Property : public TProperty_Numeric<uint32>
{
	DECLARE_FIELD(FUInt32Property, TProperty_Numeric<uint32>, CASTCLASS_FUInt32Property)
public:
	FUInt32Property(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags);
	FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override { return TEXT("uint32"); }
};

class COREUOBJECT_API FUInt64Property : public TProperty_Numeric<uint64>
{
	DECLARE_FIELD(FUInt64Property, TProperty_Numeric<uint64>, CASTCLASS_FUInt64Property)
public:
	FUInt64Property(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags);
	FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override { return TEXT("uint64"); }
};

class COREUOBJECT_API FFloatProperty : public TProperty_Numeric<float>
{
	DECLARE_FIELD(FFloatProperty, TProperty_Numeric<float>, CASTCLASS_FFloatProperty)
public:
	FFloatProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags);
	FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override { return TEXT("float"); }
};

class COREUOBJECT_API FDoubleProperty : public TProperty_Numeric<double>
{
	DECLARE_FIELD(FDoubleProperty, TProperty_Numeric<double>, CASTCLASS_FDoubleProperty)
public:
	FDoubleProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags);
	FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override { return TEXT("double"); }
};

// A uint8, optionally holding a value of a (non enum class) enum: TEnumAsByte<EType>.
class COREUOBJECT_API FByteProperty : public TProperty_Numeric<uint8>
{
	DECLARE_FIELD(FByteProperty, TProperty_Numeric<uint8>, CASTCLASS_FByteProperty)
public:
	UEnum* Enum = nullptr;

	FByteProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags);

	UEnum* GetIntPropertyEnum() const override { return Enum; }
	// "uint8", "TEnumAsByte<EAntiAliasingMethod>", or the enum's name for an enum class.
	FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
	bool SameType(const FProperty* Other) const override;
	void ExportText_Internal(FString& ValueStr, const void* PropertyValueOrContainer, EPropertyPointerType PointerType, const void* DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope = nullptr) const override;
	const TCHAR* ImportText_Internal(const TCHAR* Buffer, void* ContainerOrPropertyPtr, EPropertyPointerType PointerType, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const override;
};

/*-----------------------------------------------------------------------------
	Bool, string and name properties.
-----------------------------------------------------------------------------*/

// A native bool member, or one bit of a bitfield ("uint8 bOverride_X : 1"): the value is the bits of FieldMask in the
// byte at ByteOffset (all of them for a native bool), and writing true stores ByteMask there.
class COREUOBJECT_API FBoolProperty : public FProperty
{
	DECLARE_FIELD(FBoolProperty, FProperty, CASTCLASS_FBoolProperty)
public:
	FBoolProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags);

	bool GetPropertyValue(void const* A) const { return (*(static_cast<const uint8*>(A) + ByteOffset) & FieldMask) != 0; }
	void SetPropertyValue(void* A, bool Value) const
	{
		uint8* Byte = static_cast<uint8*>(A) + ByteOffset;
		*Byte = uint8((*Byte & ~FieldMask) | (Value ? ByteMask : 0));
	}
	bool GetPropertyValue_InContainer(void const* A, int32 ArrayIndex = 0) const { return GetPropertyValue(ContainerPtrToValuePtr<void>(A, ArrayIndex)); }
	void SetPropertyValue_InContainer(void* A, bool Value, int32 ArrayIndex = 0) const { SetPropertyValue(ContainerPtrToValuePtr<void>(A, ArrayIndex), Value); }
	static bool GetDefaultPropertyValue() { return false; }
	bool IsNativeBool() const { return FieldMask == 0xFF; }
	uint8 GetFieldMask() const { return FieldMask; }
	uint8 GetByteMask() const { return ByteMask; }
	uint8 GetFieldSize() const { return FieldSize; }
	uint8 GetByteOffset() const { return ByteOffset; }
	// InSize is the size of the C++ member (bool, or the bitfield's storage type); InBitMask the bit inside it.
	void SetBoolSize(const uint32 InSize, const bool bIsNativeBool = false, const uint32 InBitMask = 0);

	int32 GetMinAlignment() const override { return FieldSize; }
	// "bool" for a native bool, "uint8" (the storage type) for a bitfield.
	FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
	bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override;
	void ExportText_Internal(FString& ValueStr, const void* PropertyValueOrContainer, EPropertyPointerType PointerType, const void* DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope = nullptr) const override;
	const TCHAR* ImportText_Internal(const TCHAR* Buffer, void* ContainerOrPropertyPtr, EPropertyPointerType PointerType, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const override;

protected:
	void CopyValuesInternal(void* Dest, void const* Src, int32 Count) const override;
	void ClearValueInternal(void* Data) const override;
	void InitializeValueInternal(void* Dest) const override;
	uint32 GetValueTypeHashInternal(const void* Src) const override { return GetPropertyValue(Src) ? 1u : 0u; }

private:
	uint8 FieldSize = sizeof(bool);
	uint8 ByteOffset = 0;
	uint8 ByteMask = 1;
	uint8 FieldMask = 0xFF;
};

typedef TProperty_WithEqualityAndSerializer<FString, FProperty> FStrProperty_Super;

class COREUOBJECT_API FStrProperty : public FStrProperty_Super
{
	DECLARE_FIELD(FStrProperty, FStrProperty_Super, CASTCLASS_FStrProperty)
public:
	FStrProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags);

	FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override { return TEXT("FString"); }
	bool PassCPPArgsByRef() const override { return true; }
	// Top level: the raw text; delimited (inside structs, arrays and maps): quoted with escapes.
	void ExportText_Internal(FString& ValueStr, const void* PropertyValueOrContainer, EPropertyPointerType PointerType, const void* DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope = nullptr) const override;
	const TCHAR* ImportText_Internal(const TCHAR* Buffer, void* ContainerOrPropertyPtr, EPropertyPointerType PointerType, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const override;

protected:
	uint32 GetValueTypeHashInternal(const void* Src) const override { return GetTypeHash(GetPropertyValue(Src)); }
};

typedef TProperty_WithEqualityAndSerializer<FName, FProperty> FNameProperty_Super;

class COREUOBJECT_API FNameProperty : public FNameProperty_Super
{
	DECLARE_FIELD(FNameProperty, FNameProperty_Super, CASTCLASS_FNameProperty)
public:
	FNameProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags);

	FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override { return TEXT("FName"); }
	// Top level: "None" for NAME_None; delimited: quoted, and "" for NAME_None.
	void ExportText_Internal(FString& ValueStr, const void* PropertyValueOrContainer, EPropertyPointerType PointerType, const void* DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope = nullptr) const override;
	const TCHAR* ImportText_Internal(const TCHAR* Buffer, void* ContainerOrPropertyPtr, EPropertyPointerType PointerType, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const override;

protected:
	uint32 GetValueTypeHashInternal(const void* Src) const override { return GetTypeHash(GetPropertyValue(Src)); }
};

/*-----------------------------------------------------------------------------
	Object reference properties.
-----------------------------------------------------------------------------*/

class COREUOBJECT_API FObjectPropertyBase : public FProperty
{
	DECLARE_FIELD(FObjectPropertyBase, FProperty, CASTCLASS_FObjectPropertyBase)
public:
	UClass* PropertyClass = nullptr;

	FObjectPropertyBase(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags);

	void SetPropertyClass(UClass* NewPropertyClass) { PropertyClass = NewPropertyClass; }
	virtual UObject* GetObjectPropertyValue(const void* PropertyValueAddress) const = 0;
	virtual void SetObjectPropertyValue(void* PropertyValueAddress, UObject* Value) const = 0;
	UObject* GetObjectPropertyValue_InContainer(const void* ContainerAddress, int32 ArrayIndex = 0) const { return GetObjectPropertyValue(ContainerPtrToValuePtr<void>(ContainerAddress, ArrayIndex)); }
	void SetObjectPropertyValue_InContainer(void* ContainerAddress, UObject* Value, int32 ArrayIndex = 0) const { SetObjectPropertyValue(ContainerPtrToValuePtr<void>(ContainerAddress, ArrayIndex), Value); }
	virtual bool AllowCrossLevel() const { return false; }
	virtual FString GetCPPTypeCustom(FString* ExtendedTypeText, uint32 CPPExportFlags, const FString& InnerNativeTypeName) const = 0;
	FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
	FString GetCPPTypeForwardDeclaration() const override;
	bool SameType(const FProperty* Other) const override;

	// "<ClassPath>'<ObjectPath>'" (the path quoted when delimited); a default subobject of a non-default Parent by name.
	void ExportText_Internal(FString& ValueStr, const void* PropertyValueOrContainer, EPropertyPointerType PointerType, const void* DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope = nullptr) const override;
	// Accepts "None", "<Class>'<Path>'" and a bare path; finds the object in memory, else loads it.
	const TCHAR* ImportText_Internal(const TCHAR* Buffer, void* ContainerOrPropertyPtr, EPropertyPointerType PointerType, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const override;

	static FString GetExportPath(const UObject* Object, const UObject* Parent = nullptr, const UObject* ExportRootScope = nullptr, const uint32 PortFlags = PPF_None);
	static FString GetExportPath(const FString& ClassPathName, const FString& ObjectPathName) { return ClassPathName + TEXT("'") + ObjectPathName + TEXT("'"); }
	// Parses an object reference; false (OutResolvedValue null) when it names no object of RequiredMetaClass.
	static bool ParseObjectPropertyValue(const FProperty* Property, UObject* OwnerObject, UClass* RequiredMetaClass, uint32 PortFlags, const TCHAR*& Buffer, UObject*& OutResolvedValue);
	static UObject* FindImportedObject(const FProperty* Property, UObject* OwnerObject, UClass* ObjectClass, UClass* RequiredMetaClass, const TCHAR* Text, uint32 PortFlags = 0);

protected:
	// The class the imported object must be a child of (the meta class for class properties).
	virtual UClass* GetImportRequiredClass() const { return PropertyClass; }
	// Accepts an object for this property after parsing; class properties also check the meta class.
	virtual bool AcceptsImportedObject(UObject* Object, FOutputDevice* ErrorText) const { return true; }
};

template<typename InTCppType>
class TFObjectPropertyBase : public TProperty<InTCppType, FObjectPropertyBase>
{
public:
	using Super = TProperty<InTCppType, FObjectPropertyBase>;
	using TCppType = InTCppType;

	TFObjectPropertyBase(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags)
		: Super(InOwner, InName, InObjectFlags)
	{
	}

	bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override
	{
		UObject* ObjectA = A ? this->GetObjectPropertyValue(A) : nullptr;
		UObject* ObjectB = B ? this->GetObjectPropertyValue(B) : nullptr;
		return ObjectA == ObjectB;
	}
};

class COREUOBJECT_API FObjectProperty : public TFObjectPropertyBase<TObjectPtr<UObject>>
{
	DECLARE_FIELD(FObjectProperty, TFObjectPropertyBase<TObjectPtr<UObject>>, CASTCLASS_FObjectProperty)
public:
	FObjectProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags);

	UObject* GetObjectPropertyValue(const void* PropertyValueAddress) const override { return GetPropertyValue(PropertyValueAddress).Get(); }
	void SetObjectPropertyValue(void* PropertyValueAddress, UObject* Value) const override { SetPropertyValue(PropertyValueAddress, TObjectPtr<UObject>(Value)); }
	TObjectPtr<UObject> GetObjectPtrPropertyValue(const void* PropertyValueAddress) const { return GetPropertyValue(PropertyValueAddress); }
	// "TObjectPtr<UClassName>" for a TObjectPtr member, "UClassName*" for a raw pointer.
	FString GetCPPTypeCustom(FString* ExtendedTypeText, uint32 CPPExportFlags, const FString& InnerNativeTypeName) const override;
	FString GetCPPMacroType(FString& ExtendedTypeText) const override;
	void VisitObjectReferences(void* Value, TFunctionRef<void(UObject*& Reference)> Visitor) const override;
	bool ContainsObjectReference() const override { return true; }

protected:
	uint32 GetValueTypeHashInternal(const void* Src) const override { return GetTypeHash(GetPropertyValue(Src)); }
};

class COREUOBJECT_API FWeakObjectProperty : public TFObjectPropertyBase<FWeakObjectPtr>
{
	DECLARE_FIELD(FWeakObjectProperty, TFObjectPropertyBase<FWeakObjectPtr>, CASTCLASS_FWeakObjectProperty)
public:
	FWeakObjectProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags);

	UObject* GetObjectPropertyValue(const void* PropertyValueAddress) const override { return GetPropertyValue(PropertyValueAddress).Get(); }
	void SetObjectPropertyValue(void* PropertyValueAddress, UObject* Value) const override { *GetPropertyValuePtr(PropertyValueAddress) = Value; }
	// "TWeakObjectPtr<UClassName>"
	FString GetCPPTypeCustom(FString* ExtendedTypeText, uint32 CPPExportFlags, const FString& InnerNativeTypeName) const override;
	FString GetCPPMacroType(FString& ExtendedTypeText) const override;

protected:
	uint32 GetValueTypeHashInternal(const void* Src) const override { return GetTypeHash(GetPropertyValue(Src)); }
};

class COREUOBJECT_API FSoftObjectProperty : public TFObjectPropertyBase<FSoftObjectPtr>
{
	DECLARE_FIELD(FSoftObjectProperty, TFObjectPropertyBase<FSoftObjectPtr>, CASTCLASS_FSoftObjectProperty)
public:
	FSoftObjectProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags);

	// The object when it is in memory; never loads.
	UObject* GetObjectPropertyValue(const void* PropertyValueAddress) const override { return GetPropertyValue(PropertyValueAddress).Get(); }
	void SetObjectPropertyValue(void* PropertyValueAddress, UObject* Value) const override { *GetPropertyValuePtr(PropertyValueAddress) = FSoftObjectPtr(Value); }
	// "TSoftObjectPtr<UClassName>"
	FString GetCPPTypeCustom(FString* ExtendedTypeText, uint32 CPPExportFlags, const FString& InnerNativeTypeName) const override;
	FString GetCPPMacroType(FString& ExtendedTypeText) const override;
	// Compares the paths, so an unloaded reference is not equal to null.
	bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override;
	// The path as FSoftObjectPath exports it: "/Game/A/B.B", "None" for null, quoted when delimited.
	void ExportText_Internal(FString& ValueStr, const void* PropertyValueOrContainer, EPropertyPointerType PointerType, const void* DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope = nullptr) const override;
	const TCHAR* ImportText_Internal(const TCHAR* Buffer, void* ContainerOrPropertyPtr, EPropertyPointerType PointerType, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const override;

protected:
	uint32 GetValueTypeHashInternal(const void* Src) const override { return GetTypeHash(GetPropertyValue(Src).ToSoftObjectPath()); }
};

class COREUOBJECT_API FClassProperty : public FObjectProperty
{
	DECLARE_FIELD(FClassProperty, FObjectProperty, CASTCLASS_FClassProperty)
public:
	UClass* MetaClass = nullptr;

	FClassProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags);

	void SetMetaClass(UClass* NewMetaClass) { MetaClass = NewMetaClass; }
	// "TSubclassOf<UMetaClass>" for a TSubclassOf member, else "UClass*" (or "TObjectPtr<UClass>").
	FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
	bool SameType(const FProperty* Other) const override;

protected:
	UClass* GetImportRequiredClass() const override;
	bool AcceptsImportedObject(UObject* Object, FOutputDevice* ErrorText) const override;
};

class COREUOBJECT_API FSoftClassProperty : public FSoftObjectProperty
{
	DECLARE_FIELD(FSoftClassProperty, FSoftObjectProperty, CASTCLASS_FSoftClassProperty)
public:
	UClass* MetaClass = nullptr;

	FSoftClassProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags);

	void SetMetaClass(UClass* NewMetaClass) { MetaClass = NewMetaClass; }
	// "TSoftClassPtr<UMetaClass>"
	FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
	FString GetCPPMacroType(FString& ExtendedTypeText) const override;
	bool SameType(const FProperty* Other) const override;
};

/*-----------------------------------------------------------------------------
	Struct, array and map properties.
-----------------------------------------------------------------------------*/

class COREUOBJECT_API FStructProperty : public FProperty
{
	DECLARE_FIELD(FStructProperty, FProperty, CASTCLASS_FStructProperty)
public:
	UScriptStruct* Struct = nullptr;

	FStructProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags);
	FStructProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags, int32 InOffset, EPropertyFlags InFlags, UScriptStruct* InStruct);

	int32 GetMinAlignment() const override;
	// "F<StructName>"
	FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
	FString GetCPPMacroType(FString& ExtendedTypeText) const override;
	bool PassCPPArgsByRef() const override { return true; }
	bool SameType(const FProperty* Other) const override;
	bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override;
	void ExportText_Internal(FString& ValueStr, const void* PropertyValueOrContainer, EPropertyPointerType PointerType, const void* DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope = nullptr) const override;
	const TCHAR* ImportText_Internal(const TCHAR* Buffer, void* ContainerOrPropertyPtr, EPropertyPointerType PointerType, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const override;
	void VisitObjectReferences(void* Value, TFunctionRef<void(UObject*& Reference)> Visitor) const override;
	bool ContainsObjectReference() const override;

protected:
	void CopyValuesInternal(void* Dest, void const* Src, int32 Count) const override;
	void ClearValueInternal(void* Data) const override;
	void DestroyValueInternal(void* Dest) const override;
	void InitializeValueInternal(void* Dest) const override;
	uint32 GetValueTypeHashInternal(const void* Src) const override;
};

class COREUOBJECT_API FArrayProperty : public FProperty
{
	DECLARE_FIELD(FArrayProperty, FProperty, CASTCLASS_FArrayProperty)
public:
	// The element property; owned by the array property.
	FProperty* Inner = nullptr;

	FArrayProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags);
	~FArrayProperty() override;

	void AddCppProperty(FProperty* Property) override;
	void GetInnerFields(TArray<FField*>& OutFields) override;
	FField* GetInnerFieldByName(const FName& InName) override;
	int32 GetMinAlignment() const override { return alignof(FScriptArray); }
	// "TArray" with ExtendedTypeText "<int32>" (a space before a closing '>' of a template inner: "<TObjectPtr<UX> >").
	FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
	FString GetCPPMacroType(FString& ExtendedTypeText) const override;
	bool PassCPPArgsByRef() const override { return true; }
	bool SameType(const FProperty* Other) const override;
	bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override;
	// "(e1,e2)"; struct elements against a default-constructed element; an empty array writes nothing.
	void ExportText_Internal(FString& ValueStr, const void* PropertyValueOrContainer, EPropertyPointerType PointerType, const void* DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope = nullptr) const override;
	const TCHAR* ImportText_Internal(const TCHAR* Buffer, void* ContainerOrPropertyPtr, EPropertyPointerType PointerType, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const override;
	void VisitObjectReferences(void* Value, TFunctionRef<void(UObject*& Reference)> Visitor) const override;
	bool ContainsObjectReference() const override { return Inner && Inner->ContainsObjectReference(); }

	static void ExportTextInnerItem(FString& ValueStr, const FProperty* Inner, const void* PropertyValue, int32 NumElements, const void* DefaultValue, int32 DefaultSize, UObject* Parent, int32 PortFlags, UObject* ExportRootScope = nullptr);

protected:
	void CopyValuesInternal(void* Dest, void const* Src, int32 Count) const override;
	void ClearValueInternal(void* Data) const override;
	void DestroyValueInternal(void* Dest) const override;
	void InitializeValueInternal(void* Dest) const override;
	uint32 GetValueTypeHashInternal(const void* Src) const override;
};

// Layout of the pairs of a TMap: { Key; Value; } with the value at ValueOffset.
struct FScriptMapLayout
{
	int32 ValueOffset = 0;
	int32 PairSize = 0;
	int32 PairAlignment = 1;
};

class COREUOBJECT_API FMapProperty : public FProperty
{
	DECLARE_FIELD(FMapProperty, FProperty, CASTCLASS_FMapProperty)
public:
	// Key and value properties; owned by the map property.
	FProperty* KeyProp = nullptr;
	FProperty* ValueProp = nullptr;
	FScriptMapLayout MapLayout;

	FMapProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags);
	~FMapProperty() override;

	FProperty* GetKeyProperty() const { return KeyProp; }
	FProperty* GetValueProperty() const { return ValueProp; }
	// The first property added is the key, the second the value.
	void AddCppProperty(FProperty* Property) override;
	void GetInnerFields(TArray<FField*>& OutFields) override;
	FField* GetInnerFieldByName(const FName& InName) override;
	void LinkInternal() override;
	int32 GetMinAlignment() const override { return alignof(FScriptMap); }
	// "TMap" with ExtendedTypeText "<FString,float>".
	FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
	FString GetCPPMacroType(FString& ExtendedTypeText) const override;
	bool PassCPPArgsByRef() const override { return true; }
	bool SameType(const FProperty* Other) const override;
	bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override;
	// "((Key, Value),(Key, Value))"; an empty map is "()".
	void ExportText_Internal(FString& ValueStr, const void* PropertyValueOrContainer, EPropertyPointerType PointerType, const void* DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope = nullptr) const override;
	const TCHAR* ImportText_Internal(const TCHAR* Buffer, void* ContainerOrPropertyPtr, EPropertyPointerType PointerType, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const override;
	void VisitObjectReferences(void* Value, TFunctionRef<void(UObject*& Reference)> Visitor) const override;
	bool ContainsObjectReference() const override;

protected:
	void CopyValuesInternal(void* Dest, void const* Src, int32 Count) const override;
	void ClearValueInternal(void* Data) const override;
	void DestroyValueInternal(void* Dest) const override;
	void InitializeValueInternal(void* Dest) const override;
};

/*-----------------------------------------------------------------------------
	Container helpers.
-----------------------------------------------------------------------------*/

// Edits any TArray through its FScriptArray view, constructing and destroying elements with the inner property.
class COREUOBJECT_API FScriptArrayHelper
{
public:
	FScriptArrayHelper(const FArrayProperty* InProperty, const void* InArray);
	static FScriptArrayHelper CreateHelperFormInnerProperty(const FProperty* InInnerProperty, const void* InArray);

	bool IsValidIndex(int32 Index) const { return Index >= 0 && Index < Num(); }
	int32 Num() const { return Array ? Array->Num() : 0; }
	int32 NumUnchecked() const { return Num(); }
	uint8* GetRawPtr(int32 Index = 0);
	const uint8* GetRawPtr(int32 Index = 0) const;
	uint8* GetElementPtr(int32 Index = 0) { return GetRawPtr(Index); }

	void EmptyValues(int32 Slack = 0);
	void EmptyAndAddValues(int32 Count);
	void EmptyAndAddUninitializedValues(int32 Count);
	bool ExpandForIndex(int32 Index);
	void Resize(int32 NewNum);
	int32 AddValue() { return AddValues(1); }
	int32 AddValues(int32 Count);
	int32 AddUninitializedValue() { return AddUninitializedValues(1); }
	int32 AddUninitializedValues(int32 Count);
	void InsertValues(int32 Index, int32 Count = 1);
	void RemoveValues(int32 Index, int32 Count = 1);
	void ClearValues(int32 Index, int32 Count = 1);
	void SwapValues(int32 A, int32 B);
	void MoveAssign(void* InOtherArray);

private:
	FScriptArrayHelper(const FProperty* InInnerProperty, const void* InArray, bool bFromInner);
	void ConstructItems(int32 Index, int32 Count);
	void DestructItems(int32 Index, int32 Count);

	const FProperty* InnerProperty;
	FScriptArray* Array;
	int32 ElementSize;
	uint32 ElementAlignment;
};

// Edits any TMap through its FScriptMap view (the pair array), rebuilding the map's index afterwards.
class COREUOBJECT_API FScriptMapHelper
{
public:
	FScriptMapHelper(const FMapProperty* InProperty, const void* InMap);

	int32 Num() const { return Map ? Map->Pairs.Num() : 0; }
	int32 GetMaxIndex() const { return Num(); }
	bool IsValidIndex(int32 Index) const { return Index >= 0 && Index < Num(); }
	uint8* GetPairPtr(int32 Index);
	uint8* GetPairPtrWithoutCheck(int32 Index) { return GetPairPtr(Index); }
	uint8* GetKeyPtr(int32 Index) { return GetPairPtr(Index); }
	uint8* GetValuePtr(int32 Index) { return GetPairPtr(Index) + MapLayout.ValueOffset; }

	void EmptyValues(int32 Slack = 0);
	// A new pair with default key and value; call Rehash() after editing keys.
	int32 AddDefaultValue_Invalid_NeedsRehash();
	int32 AddUninitializedValue();
	void AddPair(const void* KeyPtr, const void* ValuePtr);
	// The value of the key, added with a default value when missing.
	uint8* FindOrAdd(const void* KeyPtr);
	uint8* FindValueFromHash(const void* KeyPtr);
	uint8* FindMapPairPtrWithKey(const void* KeyPtr);
	int32 FindMapIndexWithKey(const void* KeyPtr, int32 IndexHint = 0) const;
	bool RemovePair(const void* KeyPtr);
	void RemoveAt(int32 Index, int32 Count = 1);
	void Rehash();

	FProperty* KeyProp;
	FProperty* ValueProp;

private:
	void DestructPairs(int32 Index, int32 Count);

	FScriptMap* Map;
	FScriptMapLayout MapLayout;
};

// The same helpers for a container property given the object or struct that holds it.
class FScriptArrayHelper_InContainer : public FScriptArrayHelper
{
public:
	FScriptArrayHelper_InContainer(const FArrayProperty* InProperty, const void* InContainer, int32 FixedArrayIndex = 0)
		: FScriptArrayHelper(InProperty, InProperty->ContainerPtrToValuePtr<void>(InContainer, FixedArrayIndex))
	{
	}
};

class FScriptMapHelper_InContainer : public FScriptMapHelper
{
public:
	FScriptMapHelper_InContainer(const FMapProperty* InProperty, const void* InContainer, int32 FixedArrayIndex = 0)
		: FScriptMapHelper(InProperty, InProperty->ContainerPtrToValuePtr<void>(InContainer, FixedArrayIndex))
	{
	}
};

/*-----------------------------------------------------------------------------
	Field iteration.
-----------------------------------------------------------------------------*/

// Walks the fields of a struct of type T: properties (own first, then the super struct's) or functions.
template<class T>
class TFieldIterator
{
public:
	TFieldIterator(const UStruct* InStruct,
		EFieldIteratorFlags::SuperClassFlags InSuperClassFlags = EFieldIteratorFlags::IncludeSuper,
		EFieldIteratorFlags::DeprecatedPropertyFlags InDeprecatedFieldFlags = EFieldIteratorFlags::IncludeDeprecated,
		EFieldIteratorFlags::InterfaceClassFlags InInterfaceFieldFlags = EFieldIteratorFlags::ExcludeInterfaces)
		: Struct(InStruct)
		, bIncludeSuper(InSuperClassFlags == EFieldIteratorFlags::IncludeSuper)
		, bIncludeDeprecated(InDeprecatedFieldFlags == EFieldIteratorFlags::IncludeDeprecated)
	{
		Field = FirstFieldOf(Struct);
		SkipToMatch();
	}

	explicit operator bool() const { return Field != nullptr; }
	bool operator!() const { return Field == nullptr; }
	bool operator==(const TFieldIterator& Other) const { return Field == Other.Field; }
	bool operator!=(const TFieldIterator& Other) const { return Field != Other.Field; }

	TFieldIterator& operator++()
	{
		Field = Field->Next;
		SkipToMatch();
		return *this;
	}

	T* operator*() const { return static_cast<T*>(Field); }
	T* operator->() const { return static_cast<T*>(Field); }
	const UStruct* GetStruct() const { return Struct; }

private:
	static constexpr bool bIsProperty = std::is_base_of_v<FField, T>;
	using FFieldType = std::conditional_t<bIsProperty, FField, UField>;

	static FFieldType* FirstFieldOf(const UStruct* InStruct)
	{
		if (!InStruct)
		{
			return nullptr;
		}
		if constexpr (bIsProperty)
		{
			return InStruct->ChildProperties;
		}
		else
		{
			return InStruct->Children;
		}
	}

	bool Matches(FFieldType* Candidate) const
	{
		if constexpr (bIsProperty)
		{
			if (!Candidate->template IsA<T>())
			{
				return false;
			}
			if (!bIncludeDeprecated && static_cast<FProperty*>(static_cast<FField*>(Candidate))->HasAnyPropertyFlags(CPF_Deprecated))
			{
				return false;
			}
			return true;
		}
		else
		{
			return static_cast<UObject*>(Candidate)->IsA(T::StaticClass());
		}
	}

	void SkipToMatch()
	{
		for (;;)
		{
			while (Field && !Matches(Field))
			{
				Field = Field->Next;
			}
			if (Field || !bIncludeSuper || !Struct)
			{
				return;
			}
			Struct = Struct->GetSuperStruct();
			if (!Struct)
			{
				return;
			}
			Field = FirstFieldOf(Struct);
		}
	}

	const UStruct* Struct;
	FFieldType* Field = nullptr;
	bool bIncludeSuper;
	bool bIncludeDeprecated;
};

// Range-for over TFieldIterator: for (FProperty* Property : TFieldRange<FProperty>(Struct)).
template<class T>
struct TFieldRange
{
	TFieldRange(const UStruct* InStruct,
		EFieldIteratorFlags::SuperClassFlags InSuperClassFlags = EFieldIteratorFlags::IncludeSuper,
		EFieldIteratorFlags::DeprecatedPropertyFlags InDeprecatedFieldFlags = EFieldIteratorFlags::IncludeDeprecated)
		: Begin(InStruct, InSuperClassFlags, InDeprecatedFieldFlags)
	{
	}

	struct FEndIterator {};
	struct FIterator
	{
		TFieldIterator<T> It;
		T* operator*() const { return *It; }
		FIterator& operator++() { ++It; return *this; }
		bool operator!=(FEndIterator) const { return (bool)It; }
	};

	FIterator begin() const { return FIterator{ Begin }; }
	FEndIterator end() const { return FEndIterator{}; }

	TFieldIterator<T> Begin;
};

// The property of type T named FieldName in Owner or its super structs (the name compares as an FName), else null.
template<class T>
T* FindFProperty(const UStruct* Owner, FName FieldName)
{
	if (!Owner || FieldName.IsNone())
	{
		return nullptr;
	}
	for (TFieldIterator<T> It(Owner); It; ++It)
	{
		if (It->GetFName() == FieldName)
		{
			return *It;
		}
	}
	return nullptr;
}

// The function (or other UField) of type T named FieldName in Owner or its super structs, else null.
template<class T>
T* FindUField(const UStruct* Owner, FName FieldName)
{
	if (!Owner || FieldName.IsNone())
	{
		return nullptr;
	}
	for (TFieldIterator<T> It(Owner); It; ++It)
	{
		if (It->GetFName() == FieldName)
		{
			return *It;
		}
	}
	return nullptr;
}

/*-----------------------------------------------------------------------------
	Property change notifications.
-----------------------------------------------------------------------------*/

namespace EPropertyChangeType
{
	typedef uint32 Type;

	inline constexpr Type Unspecified = 1 << 0;
	inline constexpr Type ArrayAdd = 1 << 1;
	inline constexpr Type ArrayRemove = 1 << 2;
	inline constexpr Type ArrayClear = 1 << 3;
	inline constexpr Type ValueSet = 1 << 4;
	inline constexpr Type Duplicate = 1 << 5;
	inline constexpr Type Interactive = 1 << 6;
	inline constexpr Type Redirected = 1 << 7;
	inline constexpr Type ArrayMove = 1 << 8;
	inline constexpr Type ToggleEditable = 1 << 9;
}

struct COREUOBJECT_API FPropertyChangedEvent
{
	FPropertyChangedEvent(FProperty* InProperty, EPropertyChangeType::Type InChangeType = EPropertyChangeType::Unspecified, TArrayView<const UObject* const> InTopLevelObjects = TArrayView<const UObject* const>());

	void SetActiveMemberProperty(FProperty* InActiveMemberProperty) { MemberProperty = InActiveMemberProperty; }
	FName GetPropertyName() const;
	FName GetMemberPropertyName() const;
	int32 GetNumObjectsBeingEdited() const { return TopLevelObjects.Num(); }
	const UObject* GetObjectBeingEdited(int32 Index) const { return TopLevelObjects.IsValidIndex(Index) ? TopLevelObjects[Index] : nullptr; }

	// The property that changed, and the top-level member of the edited object that contains it.
	FProperty* Property;
	FProperty* MemberProperty;
	EPropertyChangeType::Type ChangeType;
	int32 ObjectIteratorIndex = INDEX_NONE;

private:
	TArrayView<const UObject* const> TopLevelObjects;
};

// The same notification with the chain of properties from the edited object to the changed one.
struct COREUOBJECT_API FPropertyChangedChainEvent : public FPropertyChangedEvent
{
	FPropertyChangedChainEvent(const FPropertyChangedEvent& Src) : FPropertyChangedEvent(Src) {}
};

#include "UObject/EnumProperty.h"
#include "UObject/TextProperty.h"
#include "UObject/StandInTypeBuilder.h"
