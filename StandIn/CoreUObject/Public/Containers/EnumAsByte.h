// TEnumAsByte<TEnum>: a value of an enum stored in one byte.
#pragma once

#include "CoreTypes.h"
#include "Templates/TypeHash.h"

// Stand-in choice: lives in CoreUObject's include folder because the stand-in Core does not provide it (the engine has it in Core).
template<class TEnum>
class TEnumAsByte
{
public:
	using EnumType = TEnum;

	TEnumAsByte() = default;
	TEnumAsByte(const TEnumAsByte&) = default;
	TEnumAsByte& operator=(const TEnumAsByte&) = default;
	FORCEINLINE TEnumAsByte(TEnum InValue) : Value(static_cast<uint8>(InValue)) {}
	explicit FORCEINLINE TEnumAsByte(int32 InValue) : Value(static_cast<uint8>(InValue)) {}
	explicit FORCEINLINE TEnumAsByte(uint8 InValue) : Value(InValue) {}

	FORCEINLINE TEnumAsByte& operator=(TEnum InValue) { Value = static_cast<uint8>(InValue); return *this; }
	FORCEINLINE bool operator==(TEnum InValue) const { return static_cast<TEnum>(Value) == InValue; }
	FORCEINLINE bool operator==(TEnumAsByte InValue) const { return Value == InValue.Value; }
	FORCEINLINE operator TEnum() const { return static_cast<TEnum>(Value); }
	FORCEINLINE TEnum GetValue() const { return static_cast<TEnum>(Value); }
	FORCEINLINE uint8 GetIntValue() const { return Value; }

	friend FORCEINLINE uint32 GetTypeHash(const TEnumAsByte& Enum) { return GetTypeHash(Enum.Value); }

private:
	uint8 Value = 0;
};

template<class T> struct TIsTEnumAsByte { static constexpr bool Value = false; };
template<class T> struct TIsTEnumAsByte<TEnumAsByte<T>> { static constexpr bool Value = true; };
