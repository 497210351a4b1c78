// TIntRect / FIntRect: an integer rectangle from Min (inclusive) to Max (exclusive).
#pragma once

#include "CoreTypes.h"
#include "Containers/UnrealString.h"
#include "Math/IntPoint.h"
#include "Templates/TypeHash.h"

namespace UE::Math
{

template<typename InIntType>
struct TIntRect
{
	using IntType = InIntType;
	using IntPointType = TIntPoint<IntType>;

	IntPointType Min;
	IntPointType Max;

	TIntRect() = default;

	TIntRect(IntType X0, IntType Y0, IntType X1, IntType Y1)
		: Min(X0, Y0)
		, Max(X1, Y1)
	{
	}

	TIntRect(IntPointType InMin, IntPointType InMax)
		: Min(InMin)
		, Max(InMax)
	{
	}

	explicit TIntRect(EForceInit)
	{
	}

	bool operator==(const TIntRect& Other) const { return Min == Other.Min && Max == Other.Max; }
	bool operator!=(const TIntRect& Other) const { return !(*this == Other); }

	TIntRect& operator*=(IntType Scale) { Min *= Scale; Max *= Scale; return *this; }
	TIntRect& operator+=(const IntPointType& Point) { Min += Point; Max += Point; return *this; }
	TIntRect& operator-=(const IntPointType& Point) { Min -= Point; Max -= Point; return *this; }
	TIntRect operator*(IntType Value) const { return TIntRect(Min * Value, Max * Value); }
	TIntRect operator/(IntType Value) const { return TIntRect(Min / Value, Max / Value); }
	TIntRect operator+(const IntPointType& Point) const { return TIntRect(Min + Point, Max + Point); }
	TIntRect operator-(const IntPointType& Point) const { return TIntRect(Min - Point, Max - Point); }

	IntType Width() const { return Max.X - Min.X; }
	IntType Height() const { return Max.Y - Min.Y; }
	IntPointType Size() const { return IntPointType(Width(), Height()); }
	IntType Area() const { return Width() * Height(); }

	/** True only when both the width and the height are zero. */
	bool IsEmpty() const { return Width() == 0 && Height() == 0; }

	IntPointType Center() const { return IntPointType((Min.X + Max.X) / 2, (Min.Y + Max.Y) / 2); }

	/** Min is inside, Max is outside. */
	bool Contains(IntPointType Point) const
	{
		return Point.X >= Min.X && Point.X < Max.X && Point.Y >= Min.Y && Point.Y < Max.Y;
	}

	bool Contains(const TIntRect& Other) const
	{
		return Min.X <= Other.Min.X && Max.X >= Other.Max.X && Min.Y <= Other.Min.Y && Max.Y >= Other.Max.Y;
	}

	bool Intersect(const TIntRect& Other) const
	{
		return Other.Min.X < Max.X && Other.Max.X > Min.X && Other.Min.Y < Max.Y && Other.Max.Y > Min.Y;
	}

	/** Shrinks this rectangle to its overlap with R; without overlap the result has zero size. */
	void Clip(const TIntRect& R)
	{
		Min = Min.ComponentMax(R.Min);
		Max = Max.ComponentMin(R.Max);
		Max = Max.ComponentMax(Min);
	}

	void Union(const TIntRect& R)
	{
		Min = Min.ComponentMin(R.Min);
		Max = Max.ComponentMax(R.Max);
	}

	void InflateRect(IntType Amount)
	{
		Min.X -= Amount;
		Min.Y -= Amount;
		Max.X += Amount;
		Max.Y += Amount;
	}

	TIntRect Inner(IntPointType Shrink) const { return TIntRect(Min + Shrink, Max - Shrink); }
	TIntRect Right(IntType InWidth) const { return TIntRect(Max.X - InWidth > Min.X ? Max.X - InWidth : Min.X, Min.Y, Max.X, Max.Y); }
	TIntRect Bottom(IntType InHeight) const { return TIntRect(Min.X, Max.Y - InHeight > Min.Y ? Max.Y - InHeight : Min.Y, Max.X, Max.Y); }

	/** "Min=(X=0 Y=0) Max=(X=1920 Y=1080)" */
	FString ToString() const
	{
		return FString::Printf(TEXT("Min=(%s) Max=(%s)"), *Min.ToString(), *Max.ToString());
	}

	friend uint32 GetTypeHash(const TIntRect& Rect)
	{
		return HashCombine(GetTypeHash(Rect.Min), GetTypeHash(Rect.Max));
	}
};

} // namespace UE::Math

using FIntRect = UE::Math::TIntRect<int32>;
using FInt32Rect = UE::Math::TIntRect<int32>;
using FInt64Rect = UE::Math::TIntRect<int64>;
using FUint32Rect = UE::Math::TIntRect<uint32>;
