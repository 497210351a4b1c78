// TIntPoint / FIntPoint: a two-dimensional integer point.
#pragma once

#include "CoreTypes.h"
#include "Containers/UnrealString.h"
#include "Templates/TypeHash.h"

#include <cmath>
#include <type_traits>

namespace UE::Math
{

template<typename InIntType>
struct TIntPoint
{
	using IntType = InIntType;
	static_assert(std::is_integral_v<IntType>, "An integer type is required.");

	IntType X = 0;
	IntType Y = 0;

	/** (0, 0) */
	static CORE_API const TIntPoint ZeroValue;

	/** (INDEX_NONE, INDEX_NONE) */
	static CORE_API const TIntPoint NoneValue;

	TIntPoint() = default;

	constexpr TIntPoint(IntType InX, IntType InY)
		: X(InX)
		, Y(InY)
	{
	}

	explicit TIntPoint(IntType InXY)
		: X(InXY)
		, Y(InXY)
	{
	}

	explicit TIntPoint(EForceInit)
	{
	}

	/** Converts from another integer type. */
	template<typename OtherIntType>
	explicit TIntPoint(TIntPoint<OtherIntType> Other)
		: X(static_cast<IntType>(Other.X))
		, Y(static_cast<IntType>(Other.Y))
	{
	}

	const IntType& operator()(int32 PointIndex) const { return PointIndex == 0 ? X : Y; }
	IntType& operator()(int32 PointIndex) { return PointIndex == 0 ? X : Y; }
	IntType& operator[](int32 Index) { return Index == 0 ? X : Y; }
	IntType operator[](int32 Index) const { return Index == 0 ? X : Y; }

	bool operator==(const TIntPoint& Other) const { return X == Other.X && Y == Other.Y; }
	bool operator!=(const TIntPoint& Other) const { return !(*this == Other); }

	TIntPoint& operator*=(IntType Scale) { X *= Scale; Y *= Scale; return *this; }
	TIntPoint& operator/=(IntType Divisor) { X /= Divisor; Y /= Divisor; return *this; }
	TIntPoint& operator+=(const TIntPoint& Other) { X += Other.X; Y += Other.Y; return *this; }
	TIntPoint& operator-=(const TIntPoint& Other) { X -= Other.X; Y -= Other.Y; return *this; }
	TIntPoint& operator*=(const TIntPoint& Other) { X *= Other.X; Y *= Other.Y; return *this; }
	TIntPoint& operator/=(const TIntPoint& Other) { X /= Other.X; Y /= Other.Y; return *this; }

	TIntPoint operator*(IntType Scale) const { return TIntPoint(*this) *= Scale; }
	TIntPoint operator/(IntType Divisor) const { return TIntPoint(*this) /= Divisor; }
	TIntPoint operator+(const TIntPoint& Other) const { return TIntPoint(*this) += Other; }
	TIntPoint operator-(const TIntPoint& Other) const { return TIntPoint(*this) -= Other; }
	TIntPoint operator*(const TIntPoint& Other) const { return TIntPoint(*this) *= Other; }
	TIntPoint operator/(const TIntPoint& Other) const { return TIntPoint(*this) /= Other; }

	TIntPoint ComponentMin(const TIntPoint& Other) const { return TIntPoint(X < Other.X ? X : Other.X, Y < Other.Y ? Y : Other.Y); }
	TIntPoint ComponentMax(const TIntPoint& Other) const { return TIntPoint(X > Other.X ? X : Other.X, Y > Other.Y ? Y : Other.Y); }

	IntType GetMax() const { return X > Y ? X : Y; }
	IntType GetMin() const { return X < Y ? X : Y; }

	IntType Size() const { return static_cast<IntType>(std::sqrt(double(X) * double(X) + double(Y) * double(Y))); }
	IntType SizeSquared() const { return X * X + Y * Y; }

	/** "X=1 Y=2" */
	FString ToString() const
	{
		return FString::Printf(TEXT("X=%lld Y=%lld"), (long long)X, (long long)Y);
	}

	friend uint32 GetTypeHash(const TIntPoint& InPoint)
	{
		return HashCombineFast(GetTypeHash(InPoint.X), GetTypeHash(InPoint.Y));
	}
};

template<> CORE_API const TIntPoint<int32> TIntPoint<int32>::ZeroValue;
template<> CORE_API const TIntPoint<int32> TIntPoint<int32>::NoneValue;
template<> CORE_API const TIntPoint<int64> TIntPoint<int64>::ZeroValue;
template<> CORE_API const TIntPoint<int64> TIntPoint<int64>::NoneValue;
template<> CORE_API const TIntPoint<uint32> TIntPoint<uint32>::ZeroValue;
template<> CORE_API const TIntPoint<uint32> TIntPoint<uint32>::NoneValue;

} // namespace UE::Math

using FIntPoint = UE::Math::TIntPoint<int32>;
using FInt32Point = UE::Math::TIntPoint<int32>;
using FInt64Point = UE::Math::TIntPoint<int64>;
using FUint32Point = UE::Math::TIntPoint<uint32>;
using FUintPoint = UE::Math::TIntPoint<uint32>;
