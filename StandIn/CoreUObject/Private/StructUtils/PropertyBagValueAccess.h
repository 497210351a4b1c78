// Reading and writing one property bag value (a bag property, or an element of a bag array) through its desc.
#pragma once

#include "StructUtils/PropertyBag.h"

namespace UE::StructUtils::Private
{
	// Numeric values convert between bool, the integer kinds, float and double.
	TValueOrError<int64, EPropertyBagResult> GetValueAsInt64(const FPropertyBagPropertyDesc& Desc, const void* Address);
	TValueOrError<uint64, EPropertyBagResult> GetValueAsUInt64(const FPropertyBagPropertyDesc& Desc, const void* Address);
	TValueOrError<double, EPropertyBagResult> GetValueAsDouble(const FPropertyBagPropertyDesc& Desc, const void* Address);
	EPropertyBagResult SetValueFromInt64(const FPropertyBagPropertyDesc& Desc, void* Address, const int64 InValue);
	EPropertyBagResult SetValueFromUInt64(const FPropertyBagPropertyDesc& Desc, void* Address, const uint64 InValue);
	EPropertyBagResult SetValueFromDouble(const FPropertyBagPropertyDesc& Desc, void* Address, const double InValue);

	template<typename T>
	TValueOrError<T, EPropertyBagResult> GetNumericValue(const FPropertyBagPropertyDesc& Desc, const void* Address)
	{
		if (Desc.IsNumericFloatType())
		{
			TValueOrError<double, EPropertyBagResult> Value = GetValueAsDouble(Desc, Address);
			return Value.HasValue() ? TValueOrError<T, EPropertyBagResult>(MakeValue(T(Value.GetValue()))) : MakeError(Value.GetError());
		}
		if (Desc.IsUnsignedNumericType())
		{
			TValueOrError<uint64, EPropertyBagResult> Value = GetValueAsUInt64(Desc, Address);
			return Value.HasValue() ? TValueOrError<T, EPropertyBagResult>(MakeValue(T(Value.GetValue()))) : MakeError(Value.GetError());
		}
		TValueOrError<int64, EPropertyBagResult> Value = GetValueAsInt64(Desc, Address);
		return Value.HasValue() ? TValueOrError<T, EPropertyBagResult>(MakeValue(T(Value.GetValue()))) : MakeError(Value.GetError());
	}

	template<typename T>
	EPropertyBagResult SetNumericValue(const FPropertyBagPropertyDesc& Desc, void* Address, const T InValue)
	{
		if constexpr (std::is_floating_point_v<T>)
		{
			return SetValueFromDouble(Desc, Address, double(InValue));
		}
		else if constexpr (std::is_unsigned_v<T>)
		{
			return SetValueFromUInt64(Desc, Address, uint64(InValue));
		}
		else
		{
			return SetValueFromInt64(Desc, Address, int64(InValue));
		}
	}

	TValueOrError<FName, EPropertyBagResult> GetValueName(const FPropertyBagPropertyDesc& Desc, const void* Address);
	TValueOrError<FString, EPropertyBagResult> GetValueString(const FPropertyBagPropertyDesc& Desc, const void* Address);
	TValueOrError<FText, EPropertyBagResult> GetValueText(const FPropertyBagPropertyDesc& Desc, const void* Address);
	TValueOrError<uint8, EPropertyBagResult> GetValueEnum(const FPropertyBagPropertyDesc& Desc, const void* Address, const UEnum* RequestedEnum);
	TValueOrError<FStructView, EPropertyBagResult> GetValueStruct(const FPropertyBagPropertyDesc& Desc, void* Address, const UScriptStruct* RequestedStruct);
	TValueOrError<UObject*, EPropertyBagResult> GetValueObject(const FPropertyBagPropertyDesc& Desc, const void* Address, const UClass* RequestedClass);
	TValueOrError<FSoftObjectPath, EPropertyBagResult> GetValueSoftPath(const FPropertyBagPropertyDesc& Desc, const void* Address);
	TValueOrError<FString, EPropertyBagResult> GetValueSerializedString(const FPropertyBagPropertyDesc& Desc, const void* Address);

	EPropertyBagResult SetValueName(const FPropertyBagPropertyDesc& Desc, void* Address, const FName InValue);
	EPropertyBagResult SetValueString(const FPropertyBagPropertyDesc& Desc, void* Address, const FString& InValue);
	EPropertyBagResult SetValueText(const FPropertyBagPropertyDesc& Desc, void* Address, const FText& InValue);
	EPropertyBagResult SetValueEnum(const FPropertyBagPropertyDesc& Desc, void* Address, const uint8 InValue, const UEnum* Enum);
	EPropertyBagResult SetValueStruct(const FPropertyBagPropertyDesc& Desc, void* Address, FConstStructView InValue);
	EPropertyBagResult SetValueObject(const FPropertyBagPropertyDesc& Desc, void* Address, UObject* InValue);
	EPropertyBagResult SetValueSoftPath(const FPropertyBagPropertyDesc& Desc, void* Address, const FSoftObjectPath& InValue);
	EPropertyBagResult SetValueSerializedString(const FPropertyBagPropertyDesc& Desc, void* Address, const FString& InValue);
}
