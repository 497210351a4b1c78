// The stand-in's reflection registration: TStandInTypeBuilder adds properties and functions to a class or struct from
// the C++ types of its members (there is no header tool).
#pragma once

#include "UObject/UnrealType.h"
#include "UObject/WeakObjectPtrTemplates.h"
#include "UObject/SoftObjectPtr.h"
#include "Templates/SubclassOf.h"

#include <array>
#include <initializer_list>
#include <type_traits>
#include <utility>

class FEnumProperty;
class FReferenceCollector;
class FTextProperty;

namespace UE::CoreUObject::StandIn
{
	// Fields made by the builder carry these flags, as the engine's native properties do.
	inline constexpr EObjectFlags NativeFieldFlags = RF_Public | RF_MarkAsNative | RF_Transient;

	COREUOBJECT_API FProperty* NewTextProperty(FFieldVariant Owner, FName Name);
	COREUOBJECT_API FProperty* NewEnumProperty(FFieldVariant Owner, FName Name, UEnum* Enum, FNumericProperty* UnderlyingProperty);

	template<class T> struct TIsTArrayType { static constexpr bool Value = false; };
	template<class T, class... TRest> struct TIsTArrayType<TArray<T, TRest...>> { static constexpr bool Value = true; using ElementType = T; };

	template<class T> struct TIsTMapType { static constexpr bool Value = false; };
	template<class K, class V, class... TRest> struct TIsTMapType<TMap<K, V, TRest...>> { static constexpr bool Value = true; using KeyType = K; using ValueType = V; };

	template<class T> struct TIsTSubclassOfType { static constexpr bool Value = false; };
	template<class T> struct TIsTSubclassOfType<TSubclassOf<T>> { static constexpr bool Value = true; using ClassType = T; };

	template<class T> struct TIsTWeakObjectPtrType { static constexpr bool Value = false; };
	template<class T, class... TRest> struct TIsTWeakObjectPtrType<TWeakObjectPtr<T, TRest...>> { static constexpr bool Value = true; using ObjectType = T; };

	template<class T> struct TIsTSoftObjectPtrType { static constexpr bool Value = false; };
	template<class T> struct TIsTSoftObjectPtrType<TSoftObjectPtr<T>> { static constexpr bool Value = true; using ObjectType = T; };

	template<class T> struct TIsTSoftClassPtrType { static constexpr bool Value = false; };
	template<class T> struct TIsTSoftClassPtrType<TSoftClassPtr<T>> { static constexpr bool Value = true; using ClassType = T; };

	template<class T> inline constexpr bool TIsObjectPointer_V = std::is_pointer_v<T> && std::is_base_of_v<UObject, std::remove_cv_t<std::remove_pointer_t<T>>>;

	template<class T> struct TAlwaysFalse { static constexpr bool Value = false; };

	// A new property for a member or parameter of C++ type T, with the flags the type implies added to Flags.
	template<class T>
	FProperty* NewPropertyForType(FFieldVariant Owner, FName Name, EPropertyFlags& Flags);

	template<class TObject>
	FProperty* NewObjectReferenceProperty(FFieldVariant Owner, FName Name, EPropertyFlags& Flags, bool bIsObjectPtr)
	{
		if (bIsObjectPtr)
		{
			Flags |= CPF_TObjectPtrWrapper;
		}
		if constexpr (std::is_base_of_v<UClass, TObject>)
		{
			FClassProperty* Property = new FClassProperty(Owner, Name, NativeFieldFlags);
			Property->PropertyClass = UClass::StaticClass();
			Property->MetaClass = UObject::StaticClass();
			return Property;
		}
		else
		{
			FObjectProperty* Property = new FObjectProperty(Owner, Name, NativeFieldFlags);
			Property->PropertyClass = TObject::StaticClass();
			return Property;
		}
	}

	template<class T>
	FProperty* NewPropertyForType(FFieldVariant Owner, FName Name, EPropertyFlags& Flags)
	{
		if constexpr (std::is_same_v<T, bool>) { return new FBoolProperty(Owner, Name, NativeFieldFlags); }
		else if constexpr (std::is_same_v<T, int8>) { return new FInt8Property(Owner, Name, NativeFieldFlags); }
		else if constexpr (std::is_same_v<T, int16>) { return new FInt16Property(Owner, Name, NativeFieldFlags); }
		else if constexpr (std::is_same_v<T, int32>) { return new FIntProperty(Owner, Name, NativeFieldFlags); }
		else if constexpr (std::is_same_v<T, int64>) { return new FInt64Property(Owner, Name, NativeFieldFlags); }
		else if constexpr (std::is_same_v<T, uint8>) { return new FByteProperty(Owner, Name, NativeFieldFlags); }
		else if constexpr (std::is_same_v<T, uint16>) { return new FUInt16Property(Owner, Name, NativeFieldFlags); }
		else if constexpr (std::is_same_v<T, uint32>) { return new FUInt32Property(Owner, Name, NativeFieldFlags); }
		else if constexpr (std::is_same_v<T, uint64>) { return new FUInt64Property(Owner, Name, NativeFieldFlags); }
		else if constexpr (std::is_same_v<T, float>) { return new FFloatProperty(Owner, Name, NativeFieldFlags); }
		else if constexpr (std::is_same_v<T, double>) { return new FDoubleProperty(Owner, Name, NativeFieldFlags); }
		else if constexpr (std::is_same_v<T, FString>) { return new FStrProperty(Owner, Name, NativeFieldFlags); }
		else if constexpr (std::is_same_v<T, FName>) { return new FNameProperty(Owner, Name, NativeFieldFlags); }
		else if constexpr (std::is_same_v<T, FText>) { return NewTextProperty(Owner, Name); }
		else if constexpr (std::is_enum_v<T>)
		{
			EPropertyFlags UnderlyingFlags = CPF_None;
			FProperty* Underlying = NewPropertyForType<std::underlying_type_t<T>>(nullptr, FName(TEXT("UnderlyingType")), UnderlyingFlags);
			return NewEnumProperty(Owner, Name, StaticEnum<T>(), static_cast<FNumericProperty*>(Underlying));
		}
		else if constexpr (TIsTEnumAsByte<T>::Value)
		{
			FByteProperty* Property = new FByteProperty(Owner, Name, NativeFieldFlags);
			Property->Enum = StaticEnum<typename T::EnumType>();
			return Property;
		}
		else if constexpr (TIsTObjectPtr<T>::Value)
		{
			return NewObjectReferenceProperty<typename T::ElementType>(Owner, Name, Flags, true);
		}
		else if constexpr (TIsObjectPointer_V<T>)
		{
			return NewObjectReferenceProperty<std::remove_cv_t<std::remove_pointer_t<T>>>(Owner, Name, Flags, false);
		}
		else if constexpr (TIsTSubclassOfType<T>::Value)
		{
			Flags |= CPF_UObjectWrapper;
			FClassProperty* Property = new FClassProperty(Owner, Name, NativeFieldFlags);
			Property->PropertyClass = UClass::StaticClass();
			Property->MetaClass = TIsTSubclassOfType<T>::ClassType::StaticClass();
			return Property;
		}
		else if constexpr (TIsTWeakObjectPtrType<T>::Value)
		{
			Flags |= CPF_UObjectWrapper;
			FWeakObjectProperty* Property = new FWeakObjectProperty(Owner, Name, NativeFieldFlags);
			Property->PropertyClass = TIsTWeakObjectPtrType<T>::ObjectType::StaticClass();
			return Property;
		}
		else if constexpr (TIsTSoftObjectPtrType<T>::Value)
		{
			Flags |= CPF_UObjectWrapper;
			FSoftObjectProperty* Property = new FSoftObjectProperty(Owner, Name, NativeFieldFlags);
			Property->PropertyClass = TIsTSoftObjectPtrType<T>::ObjectType::StaticClass();
			return Property;
		}
		else if constexpr (TIsTSoftClassPtrType<T>::Value)
		{
			Flags |= CPF_UObjectWrapper;
			FSoftClassProperty* Property = new FSoftClassProperty(Owner, Name, NativeFieldFlags);
			Property->PropertyClass = UClass::StaticClass();
			Property->MetaClass = TIsTSoftClassPtrType<T>::ClassType::StaticClass();
			return Property;
		}
		else if constexpr (TIsTArrayType<T>::Value)
		{
			FArrayProperty* Property = new FArrayProperty(Owner, Name, NativeFieldFlags);
			EPropertyFlags InnerFlags = Flags & CPF_PropagateToArrayInner;
			FProperty* Inner = NewPropertyForType<typename TIsTArrayType<T>::ElementType>(Property, Name, InnerFlags);
			Inner->PropertyFlags |= InnerFlags;
			Property->AddCppProperty(Inner);
			return Property;
		}
		else if constexpr (TIsTMapType<T>::Value)
		{
			FMapProperty* Property = new FMapProperty(Owner, Name, NativeFieldFlags);
			EPropertyFlags KeyFlags = Flags & CPF_PropagateToMapKey;
			FProperty* Key = NewPropertyForType<typename TIsTMapType<T>::KeyType>(Property, FName(Name.ToString() + TEXT("_Key")), KeyFlags);
			Key->PropertyFlags |= KeyFlags;
			Property->AddCppProperty(Key);
			EPropertyFlags ValueFlags = Flags & CPF_PropagateToMapValue;
			FProperty* Value = NewPropertyForType<typename TIsTMapType<T>::ValueType>(Property, Name, ValueFlags);
			Value->PropertyFlags |= ValueFlags;
			Property->AddCppProperty(Value);
			return Property;
		}
		else if constexpr (CStandInReflectedStruct<T>)
		{
			FStructProperty* Property = new FStructProperty(Owner, Name, NativeFieldFlags);
			Property->Struct = StaticStruct<T>();
			Property->SetElementSize(int32(sizeof(T)));
			if (Property->Struct->GetCppStructOps().GetTypeHash)
			{
				Property->PropertyFlags |= CPF_HasGetValueTypeHash;
			}
			return Property;
		}
		else
		{
			static_assert(TAlwaysFalse<T>::Value, "This C++ type has no property kind in the stand-in");
			return nullptr;
		}
	}

	// Where one bit of a bitfield member lives: the byte's offset in the owner and the bit inside that byte.
	struct FBitfieldBit
	{
		int32 ByteOffset = INDEX_NONE;
		uint8 BitMask = 0;
	};

	// Finds the bit that SetBit sets (SetBit(Owner) assigns 1 to the bitfield member) by setting it on zeroed scratch
	// memory the size of the owner and looking for the byte that changed, as the engine's generated code does.
	template<class TOwner, class TSetBit>
	FBitfieldBit FindBitfieldBit(TSetBit SetBit)
	{
		uint8* Scratch = static_cast<uint8*>(FMemory::Malloc(sizeof(TOwner), alignof(TOwner)));
		FMemory::Memzero(Scratch, sizeof(TOwner));
		SetBit(*reinterpret_cast<TOwner*>(Scratch));
		FBitfieldBit Result;
		for (int32 Offset = 0; Offset < int32(sizeof(TOwner)) && Result.ByteOffset == INDEX_NONE; ++Offset)
		{
			if (Scratch[Offset] != 0)
			{
				Result.ByteOffset = Offset;
				Result.BitMask = Scratch[Offset];
			}
		}
		FMemory::Free(Scratch);
		checkf(Result.ByteOffset != INDEX_NONE && FMath::IsPowerOfTwo(uint32(Result.BitMask)), TEXT("A bitfield bool must be one bit wide"));
		return Result;
	}

	// The C++ signature of a function registered with STANDIN_FUNCTION.
	template<class T> struct TFunctionSignature;

	template<class R, class C, class... A>
	struct TFunctionSignature<R (C::*)(A...)>
	{
		using ReturnType = R;
		using ClassType = C;
		using ArgTypes = std::tuple<A...>;
		static constexpr bool bIsStatic = false;
		static constexpr bool bIsConst = false;
	};

	template<class R, class C, class... A>
	struct TFunctionSignature<R (C::*)(A...) const> : TFunctionSignature<R (C::*)(A...)>
	{
		static constexpr bool bIsConst = true;
	};

	template<class R, class C, class... A>
	struct TFunctionSignature<R (C::*)(A...) noexcept> : TFunctionSignature<R (C::*)(A...)> {};

	template<class R, class C, class... A>
	struct TFunctionSignature<R (C::*)(A...) const noexcept> : TFunctionSignature<R (C::*)(A...) const> {};

	template<class R, class... A>
	struct TFunctionSignature<R (*)(A...)>
	{
		using ReturnType = R;
		using ClassType = void;
		using ArgTypes = std::tuple<A...>;
		static constexpr bool bIsStatic = true;
		static constexpr bool bIsConst = false;
	};

	template<class R, class... A>
	struct TFunctionSignature<R (*)(A...) noexcept> : TFunctionSignature<R (*)(A...)> {};

	// The parameter block of a function laid out as a C++ struct of its parameters (then "ReturnValue") would be.
	template<class... TParm>
	struct TParmsLayout
	{
		static constexpr int32 Num = int32(sizeof...(TParm));

		static constexpr int32 Alignment()
		{
			int32 Result = 1;
			((Result = Result > int32(alignof(TParm)) ? Result : int32(alignof(TParm))), ...);
			return Result;
		}

		static constexpr std::array<int32, sizeof...(TParm) + 1> Compute()
		{
			std::array<int32, sizeof...(TParm) + 1> Result{};
			int32 Offset = 0;
			int32 Index = 0;
			((Offset = (Offset + int32(alignof(TParm)) - 1) / int32(alignof(TParm)) * int32(alignof(TParm)),
				Result[Index++] = Offset,
				Offset += int32(sizeof(TParm))), ...);
			const int32 Align = Alignment();
			Result[Index] = (Offset + Align - 1) / Align * Align;
			return Result;
		}

		// Offsets of each parameter, then the size of the block.
		static constexpr std::array<int32, sizeof...(TParm) + 1> Offsets = Compute();
	};

	template<class TSignature, class TTuple> struct TParmsLayoutFor;
	template<class TSignature, class... A>
	struct TParmsLayoutFor<TSignature, std::tuple<A...>>
	{
		using FReturn = std::remove_cvref_t<typename TSignature::ReturnType>;
		static constexpr bool bHasReturn = !std::is_void_v<typename TSignature::ReturnType>;
		using Type = std::conditional_t<bHasReturn,
			TParmsLayout<std::remove_cvref_t<A>..., std::conditional_t<bHasReturn, FReturn, int>>,
			TParmsLayout<std::remove_cvref_t<A>...>>;
	};

	// Reads the arguments from the parameter block, calls the function and writes the result back.
	template<auto Function>
	void NativeFunctionThunk(UObject* Context, void* Parms)
	{
		using FSignature = TFunctionSignature<decltype(Function)>;
		using FArgs = typename FSignature::ArgTypes;
		using FLayout = typename TParmsLayoutFor<FSignature, FArgs>::Type;
		uint8* Block = static_cast<uint8*>(Parms);

		[&]<size_t... I>(std::index_sequence<I...>)
		{
			auto Call = [&]() -> decltype(auto)
			{
				if constexpr (FSignature::bIsStatic)
				{
					return Function(static_cast<std::tuple_element_t<I, FArgs>>(
						*reinterpret_cast<std::remove_cvref_t<std::tuple_element_t<I, FArgs>>*>(Block + FLayout::Offsets[I]))...);
				}
				else
				{
					using FClass = typename FSignature::ClassType;
					return (static_cast<FClass*>(Context)->*Function)(static_cast<std::tuple_element_t<I, FArgs>>(
						*reinterpret_cast<std::remove_cvref_t<std::tuple_element_t<I, FArgs>>*>(Block + FLayout::Offsets[I]))...);
				}
			};

			if constexpr (std::is_void_v<typename FSignature::ReturnType>)
			{
				Call();
			}
			else
			{
				using FReturn = std::remove_cvref_t<typename FSignature::ReturnType>;
				*reinterpret_cast<FReturn*>(Block + FLayout::Offsets[std::tuple_size_v<FArgs>]) = Call();
			}
		}(std::make_index_sequence<std::tuple_size_v<FArgs>>());
	}
}

// The untyped half of the builder: owns the struct being registered and links what is added to it.
class COREUOBJECT_API FStandInTypeBuilderBase
{
public:
	explicit FStandInTypeBuilderBase(UStruct* InStruct) : Struct(InStruct) {}

	UStruct* GetStruct() const { return Struct; }
	// Adds struct flags (STRUCT_Atomic | STRUCT_Immutable for the engine's immutable structs).
	void AddStructFlags(EStructFlags Flags);
	void SetSuperStruct(UStruct* SuperStruct);
	void SetClassFlags(EClassFlags Flags);
	// Native text export/import of a struct whose C++ type has no ExportTextItem/ImportTextItem members.
	void SetNativeTextItem(decltype(FStandInCppStructOps::ExportTextItem) ExportTextItem, decltype(FStandInCppStructOps::ImportTextItem) ImportTextItem);

protected:
	FProperty* AddOwnProperty(FProperty* Property, size_t Offset, EPropertyFlags Flags);
	UFunction* CreateFunction(const TCHAR* Name, EFunctionFlags Flags, UFunction::FNativeThunk Thunk);
	void AddParameter(UFunction* Function, FProperty* Property, int32 Offset, EPropertyFlags Flags);
	void FinishFunction(UFunction* Function, int32 ParmsSize, int32 Alignment, int32 ReturnValueOffset);
	static void CheckParameterCount(const TCHAR* FunctionName, int32 Expected, int32 Given);

	UStruct* Struct;
};

template<class TOwner>
class TStandInTypeBuilder : public FStandInTypeBuilderBase
{
public:
	using OwnerType = TOwner;

	explicit TStandInTypeBuilder(UStruct* InStruct) : FStandInTypeBuilderBase(InStruct) {}

	// A reflected member of type TMember at Offset; the property kind follows from the C++ type.
	template<class TMember>
	FProperty* AddProperty(const TCHAR* Name, size_t Offset, EPropertyFlags Flags)
	{
		EPropertyFlags AllFlags = Flags;
		FProperty* Property = UE::CoreUObject::StandIn::NewPropertyForType<std::remove_cv_t<TMember>>(GetStruct(), FName(Name), AllFlags);
		return AddOwnProperty(Property, Offset, AllFlags);
	}

	// A reflected one-bit bitfield member, found by FindBitfieldBit: a non-native FBoolProperty of one byte.
	FProperty* AddBitfieldProperty(const TCHAR* Name, UE::CoreUObject::StandIn::FBitfieldBit Bit, EPropertyFlags Flags)
	{
		FBoolProperty* Property = new FBoolProperty(GetStruct(), FName(Name), UE::CoreUObject::StandIn::NativeFieldFlags);
		Property->SetBoolSize(sizeof(uint8), false, Bit.BitMask);
		return AddOwnProperty(Property, size_t(Bit.ByteOffset), Flags);
	}

	// A reflected function callable through ProcessEvent: parameters in order (const T& and by-value are CPF_Parm,
	// non-const T& adds CPF_OutParm), then "ReturnValue" (CPF_Parm | CPF_OutParm | CPF_ReturnParm).
	template<auto Function>
	UFunction* AddFunction(const TCHAR* Name, std::initializer_list<const TCHAR*> ParamNames)
	{
		using namespace UE::CoreUObject::StandIn;
		using FSignature = TFunctionSignature<decltype(Function)>;
		using FArgs = typename FSignature::ArgTypes;
		using FLayout = typename TParmsLayoutFor<FSignature, FArgs>::Type;
		constexpr int32 NumArgs = int32(std::tuple_size_v<FArgs>);
		constexpr bool bHasReturn = !std::is_void_v<typename FSignature::ReturnType>;

		CheckParameterCount(Name, NumArgs, int32(ParamNames.size()));
		// Stand-in choice: registered functions are BlueprintCallable, as every function the engine exposes to scripts is.
		EFunctionFlags FunctionFlags = FUNC_Native | FUNC_Public | FUNC_BlueprintCallable;
		if constexpr (FSignature::bIsStatic)
		{
			FunctionFlags |= FUNC_Static;
		}
		if constexpr (FSignature::bIsConst)
		{
			FunctionFlags |= FUNC_Const;
		}
		UFunction* NewFunction = CreateFunction(Name, FunctionFlags, &NativeFunctionThunk<Function>);

		[&]<size_t... I>(std::index_sequence<I...>)
		{
			(AddParameterOfType<std::tuple_element_t<I, FArgs>>(NewFunction, ParamNames.begin()[I], FLayout::Offsets[I]), ...);
		}(std::make_index_sequence<NumArgs>());

		int32 ReturnValueOffset = MAX_uint16;
		if constexpr (bHasReturn)
		{
			using FReturn = std::remove_cvref_t<typename FSignature::ReturnType>;
			ReturnValueOffset = FLayout::Offsets[NumArgs];
			EPropertyFlags ReturnFlags = CPF_Parm | CPF_OutParm | CPF_ReturnParm;
			FProperty* ReturnProperty = NewPropertyForType<FReturn>(NewFunction, FName(TEXT("ReturnValue")), ReturnFlags);
			AddParameter(NewFunction, ReturnProperty, ReturnValueOffset, ReturnFlags);
		}
		FinishFunction(NewFunction, FLayout::Offsets[FLayout::Num], FLayout::Alignment(), ReturnValueOffset);
		return NewFunction;
	}

	// Makes the struct being registered derive from TSuper's struct (its properties then follow the struct's own).
	template<class TSuper>
	void SetSuperStruct() { FStandInTypeBuilderBase::SetSuperStruct(StaticStruct<TSuper>()); }
	using FStandInTypeBuilderBase::SetSuperStruct;

private:
	template<class TArg>
	void AddParameterOfType(UFunction* Function, const TCHAR* ParamName, int32 Offset)
	{
		constexpr bool bIsOut = std::is_lvalue_reference_v<TArg> && !std::is_const_v<std::remove_reference_t<TArg>>;
		EPropertyFlags Flags = bIsOut ? (CPF_Parm | CPF_OutParm) : CPF_Parm;
		FProperty* Property = UE::CoreUObject::StandIn::NewPropertyForType<std::remove_cvref_t<TArg>>(Function, FName(ParamName), Flags);
		AddParameter(Function, Property, Offset, Flags);
	}
};

namespace UE::CoreUObject::StandIn
{
	template<class TClass>
	void RegisterClassReflection(UClass* Class)
	{
		TStandInTypeBuilder<TClass> Builder(Class);
		TClass::StandInRegisterReflection(Builder);
	}

	// Native behaviour of a struct from its C++ type: construction, copy, operator==, ExportTextItem/ImportTextItem, GetTypeHash.
	template<class TStruct>
	FStandInCppStructOps MakeCppStructOps()
	{
		FStandInCppStructOps Ops;
		Ops.Size = int32(sizeof(TStruct));
		Ops.Alignment = int32(alignof(TStruct));
		Ops.Construct = [](void* Dest) { new (Dest) TStruct(); };
		Ops.Destruct = [](void* Dest) { static_cast<TStruct*>(Dest)->~TStruct(); };
		Ops.Copy = [](void* Dest, const void* Src) { *static_cast<TStruct*>(Dest) = *static_cast<const TStruct*>(Src); };
		if constexpr (requires(const TStruct& A, const TStruct& B) { { A == B } -> std::convertible_to<bool>; })
		{
			Ops.Identical = [](const void* A, const void* B) -> bool { return *static_cast<const TStruct*>(A) == *static_cast<const TStruct*>(B); };
		}
		if constexpr (requires(const TStruct& Value, FString& Str, const TStruct& Default, UObject* Parent, int32 PortFlags) {
			{ Value.ExportTextItem(Str, Default, Parent, PortFlags, Parent) } -> std::convertible_to<bool>; })
		{
			Ops.ExportTextItem = [](FString& ValueStr, const void* Value, const void* Default, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) -> bool
			{
				const TStruct& TypedValue = *static_cast<const TStruct*>(Value);
				return Default
					? TypedValue.ExportTextItem(ValueStr, *static_cast<const TStruct*>(Default), Parent, PortFlags, ExportRootScope)
					: TypedValue.ExportTextItem(ValueStr, TStruct(), Parent, PortFlags, ExportRootScope);
			};
		}
		if constexpr (requires(TStruct& Value, const TCHAR*& Buffer, int32 PortFlags, UObject* Parent, FOutputDevice* ErrorText) {
			{ Value.ImportTextItem(Buffer, PortFlags, Parent, ErrorText) } -> std::convertible_to<bool>; })
		{
			Ops.ImportTextItem = [](const TCHAR*& Buffer, void* Value, int32 PortFlags, UObject* Parent, FOutputDevice* ErrorText) -> bool
			{
				return static_cast<TStruct*>(Value)->ImportTextItem(Buffer, PortFlags, Parent, ErrorText);
			};
		}
		if constexpr (requires(TStruct& Value, FReferenceCollector& Collector) { Value.AddStructReferencedObjects(Collector); })
		{
			Ops.AddStructReferencedObjects = [](void* Value, FReferenceCollector& Collector) { static_cast<TStruct*>(Value)->AddStructReferencedObjects(Collector); };
		}
		if constexpr (requires(const TStruct& Value) { { GetTypeHash(Value) } -> std::convertible_to<uint32>; })
		{
			Ops.GetTypeHash = [](const void* Value) -> uint32 { return GetTypeHash(*static_cast<const TStruct*>(Value)); };
		}
		return Ops;
	}

	template<class TStruct>
	void RegisterStructReflection(UScriptStruct* Struct, void* RegisterFunction)
	{
		TStandInTypeBuilder<TStruct> Builder(Struct);
		reinterpret_cast<void (*)(TStandInTypeBuilder<TStruct>&)>(RegisterFunction)(Builder);
	}

	template<class TStruct>
	void ConstructNativeStruct(UScriptStruct*& OutStruct, const TCHAR* Name, const TCHAR* ModuleName,
		void (*RegisterReflection)(TStandInTypeBuilder<TStruct>&))
	{
		ConstructNativeScriptStruct(OutStruct, Name, ModuleName, MakeCppStructOps<TStruct>(),
			&RegisterStructReflection<TStruct>, reinterpret_cast<void*>(RegisterReflection));
	}
}
