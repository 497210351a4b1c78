// TVector2 / FVector2D: a two-dimensional vector of doubles.
#pragma once

#include "CoreTypes.h"
#include "Containers/UnrealString.h"
#include "Math/IntPoint.h"
#include "Templates/TypeHash.h"

#include <cmath>
#include <type_traits>

namespace UE::Math
{

template<typename T>
struct TVector2
{
	static_assert(std::is_floating_point_v<T>, "A floating-point type is required.");

	using FReal = T;

	T X = 0;
	T Y = 0;

	/** (0, 0) */
	static CORE_API const TVector2<T> ZeroVector;

	/** (1, 1) */
	static CORE_API const TVector2<T> UnitVector;

	TVector2() = default;

	constexpr TVector2(T InX, T InY)
		: X(InX)
		, Y(InY)
	{
	}

	explicit TVector2(T InF)
		: X(InF)
		, Y(InF)
	{
	}

	explicit TVector2(EForceInit)
	{
	}

	template<typename IntType>
	TVector2(TIntPoint<IntType> InPos)
		: X(static_cast<T>(InPos.X))
		, Y(static_cast<T>(InPos.Y))
	{
	}

	TVector2 operator+(const TVector2& V) const { return TVector2(X + V.X, Y + V.Y); }
	TVector2 operator-(const TVector2& V) const { return TVector2(X - V.X, Y - V.Y); }
	TVector2 operator*(const TVector2& V) const { return TVector2(X * V.X, Y * V.Y); }
	TVector2 operator/(const TVector2& V) const { return TVector2(X / V.X, Y / V.Y); }
	TVector2 operator+(T A) const { return TVector2(X + A, Y + A); }
	TVector2 operator-(T A) const { return TVector2(X - A, Y - A); }
	TVector2 operator*(T Scale) const { return TVector2(X * Scale, Y * Scale); }
	TVector2 operator/(T Scale) const { return TVector2(X / Scale, Y / Scale); }
	TVector2 operator-() const { return TVector2(-X, -Y); }

	/** Dot product. */
	T operator|(const TVector2& V) const { return X * V.X + Y * V.Y; }

	/** Cross product (the z component of the 3D cross product). */
	T operator^(const TVector2& V) const { return X * V.Y - Y * V.X; }

	TVector2& operator+=(const TVector2& V) { X += V.X; Y += V.Y; return *this; }
	TVector2& operator-=(const TVector2& V) { X -= V.X; Y -= V.Y; return *this; }
	TVector2& operator*=(T Scale) { X *= Scale; Y *= Scale; return *this; }
	TVector2& operator/=(T Scale) { X /= Scale; Y /= Scale; return *this; }
	TVector2& operator*=(const TVector2& V) { X *= V.X; Y *= V.Y; return *this; }
	TVector2& operator/=(const TVector2& V) { X /= V.X; Y /= V.Y; return *this; }

	bool operator==(const TVector2& V) const { return X == V.X && Y == V.Y; }
	bool operator!=(const TVector2& V) const { return !(*this == V); }

	T& operator[](int32 Index) { return Index == 0 ? X : Y; }
	T operator[](int32 Index) const { return Index == 0 ? X : Y; }

	bool Equals(const TVector2& V, T Tolerance = T(1.e-4)) const
	{
		return std::abs(X - V.X) <= Tolerance && std::abs(Y - V.Y) <= Tolerance;
	}

	static T DotProduct(const TVector2& A, const TVector2& B) { return A | B; }
	static T DistSquared(const TVector2& A, const TVector2& B) { return (B - A).SizeSquared(); }
	static T Distance(const TVector2& A, const TVector2& B) { return (B - A).Size(); }

	T GetMax() const { return X > Y ? X : Y; }
	T GetMin() const { return X < Y ? X : Y; }
	T Size() const { return std::sqrt(X * X + Y * Y); }
	T Length() const { return Size(); }
	T SizeSquared() const { return X * X + Y * Y; }

	bool IsNearlyZero(T Tolerance = T(1.e-4)) const { return std::abs(X) <= Tolerance && std::abs(Y) <= Tolerance; }
	bool IsZero() const { return X == 0 && Y == 0; }

	/** The unit vector in this direction, or (0, 0) when the vector is too short to normalize. */
	TVector2 GetSafeNormal(T Tolerance = T(1.e-8)) const
	{
		const T SquareSum = SizeSquared();
		if (SquareSum > Tolerance)
		{
			const T Scale = T(1) / std::sqrt(SquareSum);
			return TVector2(X * Scale, Y * Scale);
		}
		return TVector2(0, 0);
	}

	/** Rounds each component toward zero. */
	FIntPoint IntPoint() const { return FIntPoint(static_cast<int32>(X), static_cast<int32>(Y)); }

	/** "X=1.000 Y=2.000" */
	FString ToString() const
	{
		return FString::Printf(TEXT("X=%3.3f Y=%3.3f"), double(X), double(Y));
	}

	friend uint32 GetTypeHash(const TVector2& Vector)
	{
		return HashCombine(GetTypeHash(Vector.X), GetTypeHash(Vector.Y));
	}
};

template<typename T>
inline TVector2<T> operator*(T Scale, const TVector2<T>& V)
{
	return V * Scale;
}

template<> CORE_API const TVector2<double> TVector2<double>::ZeroVector;
template<> CORE_API const TVector2<double> TVector2<double>::UnitVector;
template<> CORE_API const TVector2<float> TVector2<float>::ZeroVector;
template<> CORE_API const TVector2<float> TVector2<float>::UnitVector;

} // namespace UE::Math

using FVector2D = UE::Math::TVector2<double>;
using FVector2f = UE::Math::TVector2<float>;
using FVector2d = UE::Math::TVector2<double>;
