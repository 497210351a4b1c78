// FFrameNumber: a type-safe integer frame index, context-free until paired with an FFrameRate.
#pragma once

#include "CoreTypes.h"
#include "Math/NumericLimits.h"
#include "Math/UnrealMathUtility.h"

struct FFrameNumber
{
	constexpr FFrameNumber()
		: Value(0)
	{
	}

	/** Implicit construction from an integer. */
	constexpr FFrameNumber(int32 InValue)
		: Value(InValue)
	{
	}

	FFrameNumber& operator+=(FFrameNumber RHS) { Value += RHS.Value; return *this; }
	FFrameNumber& operator-=(FFrameNumber RHS) { Value -= RHS.Value; return *this; }
	/** Stand-in choice: a zero divisor gives 0 where the engine divides by zero. */
	FFrameNumber& operator%=(FFrameNumber RHS) { Value = RHS.Value == 0 ? 0 : Value % RHS.Value; return *this; }

	FFrameNumber& operator++() { ++Value; return *this; }
	FFrameNumber& operator--() { --Value; return *this; }
	FFrameNumber operator++(int32) { FFrameNumber Previous = *this; ++Value; return Previous; }
	FFrameNumber operator--(int32) { FFrameNumber Previous = *this; --Value; return Previous; }

	friend constexpr bool operator==(FFrameNumber A, FFrameNumber B) { return A.Value == B.Value; }
	friend constexpr bool operator!=(FFrameNumber A, FFrameNumber B) { return A.Value != B.Value; }
	friend constexpr bool operator<(FFrameNumber A, FFrameNumber B) { return A.Value < B.Value; }
	friend constexpr bool operator>(FFrameNumber A, FFrameNumber B) { return A.Value > B.Value; }
	friend constexpr bool operator<=(FFrameNumber A, FFrameNumber B) { return A.Value <= B.Value; }
	friend constexpr bool operator>=(FFrameNumber A, FFrameNumber B) { return A.Value >= B.Value; }

	friend constexpr FFrameNumber operator+(FFrameNumber A, FFrameNumber B) { return FFrameNumber(A.Value + B.Value); }
	friend constexpr FFrameNumber operator-(FFrameNumber A, FFrameNumber B) { return FFrameNumber(A.Value - B.Value); }
	friend constexpr FFrameNumber operator%(FFrameNumber A, FFrameNumber B) { return FFrameNumber(B.Value == 0 ? 0 : A.Value % B.Value); }
	friend constexpr FFrameNumber operator-(FFrameNumber A) { return FFrameNumber(-A.Value); }

	/** Scales and floors to a whole frame. */
	friend FFrameNumber operator*(FFrameNumber A, float Scalar)
	{
		return FFrameNumber(static_cast<int32>(FMath::Clamp(FMath::FloorToDouble(double(A.Value) * Scalar), double(MIN_int32), double(MAX_int32))));
	}

	friend FFrameNumber operator/(FFrameNumber A, float Scalar)
	{
		return FFrameNumber(static_cast<int32>(FMath::Clamp(FMath::FloorToDouble(double(A.Value) / Scalar), double(MIN_int32), double(MAX_int32))));
	}

	friend uint32 GetTypeHash(FFrameNumber A)
	{
		return (uint32)A.Value;
	}

	int32 Value;
};

template<>
struct TNumericLimits<FFrameNumber>
{
	static constexpr FFrameNumber Min() { return FFrameNumber(MIN_int32); }
	static constexpr FFrameNumber Max() { return FFrameNumber(MAX_int32); }
	static constexpr FFrameNumber Lowest() { return FFrameNumber(MIN_int32); }
};
