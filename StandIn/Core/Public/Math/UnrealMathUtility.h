// FMath: scalar math helpers.
#pragma once

#include "CoreTypes.h"
#include "Math/NumericLimits.h"

#include <cmath>
#include <type_traits>

#define UE_PI (3.1415926535897932f)
#define UE_DOUBLE_PI (3.141592653589793238462643383279502884197169399)
#define UE_SMALL_NUMBER (1.e-8f)
#define UE_KINDA_SMALL_NUMBER (1.e-4f)
#define UE_BIG_NUMBER (3.4e+38f)
#define UE_DOUBLE_SMALL_NUMBER (1.e-8)
#define UE_DOUBLE_KINDA_SMALL_NUMBER (1.e-4)
#define UE_DOUBLE_BIG_NUMBER (3.4e+38)
#define UE_EULERS_NUMBER (2.71828182845904523536f)
#define UE_INV_PI (0.31830988618f)
#define UE_HALF_PI (1.57079632679f)
#define UE_TWO_PI (6.28318530717f)
#define UE_DELTA (0.00001f)

#define PI UE_PI
#define SMALL_NUMBER UE_SMALL_NUMBER
#define KINDA_SMALL_NUMBER UE_KINDA_SMALL_NUMBER
#define BIG_NUMBER UE_BIG_NUMBER

struct FMath
{
	template <class T>
	static constexpr FORCEINLINE T Min(const T A, const T B) { return (A <= B) ? A : B; }
	template <class T>
	static constexpr FORCEINLINE T Max(const T A, const T B) { return (B <= A) ? A : B; }
	template <class T>
	static constexpr FORCEINLINE T Min3(const T A, const T B, const T C) { return Min(Min(A, B), C); }
	template <class T>
	static constexpr FORCEINLINE T Max3(const T A, const T B, const T C) { return Max(Max(A, B), C); }
	template <class T>
	static constexpr FORCEINLINE T Clamp(const T X, const T MinValue, const T MaxValue) { return (X < MinValue) ? MinValue : (X < MaxValue) ? X : MaxValue; }
	template <class T>
	static constexpr FORCEINLINE T Abs(const T A) { return (A < (T)0) ? -A : A; }
	template <class T>
	static constexpr FORCEINLINE T Sign(const T A) { return (A > (T)0) ? (T)1 : ((A < (T)0) ? (T)-1 : (T)0); }
	template <class T>
	static constexpr FORCEINLINE T Square(const T A) { return A * A; }
	template <class T>
	static constexpr FORCEINLINE T Cube(const T A) { return A * A * A; }
	template <class T, class U>
	static constexpr FORCEINLINE T Lerp(const T& A, const T& B, const U& Alpha) { return (T)(A + Alpha * (B - A)); }

	template <class T>
	static constexpr FORCEINLINE T DivideAndRoundUp(T Dividend, T Divisor) { return (Dividend + Divisor - 1) / Divisor; }
	template <class T>
	static constexpr FORCEINLINE T DivideAndRoundDown(T Dividend, T Divisor) { return Dividend / Divisor; }
	template <typename T>
	static constexpr FORCEINLINE bool IsPowerOfTwo(T Value) { return ((Value & (Value - 1)) == (T)0); }

	static FORCEINLINE int32 TruncToInt32(float F) { return (int32)F; }
	static FORCEINLINE int32 TruncToInt32(double F) { return (int32)F; }
	static FORCEINLINE int64 TruncToInt64(double F) { return (int64)F; }
	static FORCEINLINE int32 TruncToInt(float F) { return TruncToInt32(F); }
	static FORCEINLINE int64 TruncToInt(double F) { return TruncToInt64(F); }
	static FORCEINLINE float TruncToFloat(float F) { return std::trunc(F); }
	static FORCEINLINE double TruncToDouble(double F) { return std::trunc(F); }

	static FORCEINLINE int32 FloorToInt32(float F) { return (int32)std::floor(F); }
	static FORCEINLINE int32 FloorToInt32(double F) { return (int32)std::floor(F); }
	static FORCEINLINE int64 FloorToInt64(double F) { return (int64)std::floor(F); }
	static FORCEINLINE int32 FloorToInt(float F) { return FloorToInt32(F); }
	static FORCEINLINE int64 FloorToInt(double F) { return FloorToInt64(F); }
	static FORCEINLINE float FloorToFloat(float F) { return std::floor(F); }
	static FORCEINLINE double FloorToDouble(double F) { return std::floor(F); }

	/** Rounds half up: RoundToInt(-2.5) == -2. */
	static FORCEINLINE int32 RoundToInt32(float F) { return FloorToInt32(F + 0.5f); }
	static FORCEINLINE int32 RoundToInt32(double F) { return FloorToInt32(F + 0.5); }
	static FORCEINLINE int64 RoundToInt64(double F) { return FloorToInt64(F + 0.5); }
	static FORCEINLINE int32 RoundToInt(float F) { return RoundToInt32(F); }
	static FORCEINLINE int64 RoundToInt(double F) { return RoundToInt64(F); }
	static FORCEINLINE float RoundToFloat(float F) { return FloorToFloat(F + 0.5f); }
	static FORCEINLINE double RoundToDouble(double F) { return FloorToDouble(F + 0.5); }
	static FORCEINLINE double RoundHalfToEven(double F) { return std::nearbyint(F); }
	static FORCEINLINE double RoundHalfFromZero(double F) { return std::round(F); }
	static FORCEINLINE double RoundHalfToZero(double F) { return F < 0.0 ? std::floor(F + 0.5) == F + 0.5 ? F + 0.5 : std::round(F) : std::ceil(F - 0.5) == F - 0.5 ? F - 0.5 : std::round(F); }

	static FORCEINLINE int32 CeilToInt32(float F) { return (int32)std::ceil(F); }
	static FORCEINLINE int32 CeilToInt32(double F) { return (int32)std::ceil(F); }
	static FORCEINLINE int64 CeilToInt64(double F) { return (int64)std::ceil(F); }
	static FORCEINLINE int32 CeilToInt(float F) { return CeilToInt32(F); }
	static FORCEINLINE int64 CeilToInt(double F) { return CeilToInt64(F); }
	static FORCEINLINE float CeilToFloat(float F) { return std::ceil(F); }
	static FORCEINLINE double CeilToDouble(double F) { return std::ceil(F); }

	static FORCEINLINE float Frac(float Value) { return Value - FloorToFloat(Value); }
	static FORCEINLINE double Frac(double Value) { return Value - FloorToDouble(Value); }
	static FORCEINLINE float Fractional(float Value) { return Value - TruncToFloat(Value); }
	static FORCEINLINE double Fractional(double Value) { return Value - TruncToDouble(Value); }

	static FORCEINLINE float Sqrt(float Value) { return std::sqrt(Value); }
	static FORCEINLINE double Sqrt(double Value) { return std::sqrt(Value); }
	static FORCEINLINE float InvSqrt(float Value) { return 1.0f / std::sqrt(Value); }
	static FORCEINLINE double InvSqrt(double Value) { return 1.0 / std::sqrt(Value); }
	static FORCEINLINE float Pow(float A, float B) { return std::pow(A, B); }
	static FORCEINLINE double Pow(double A, double B) { return std::pow(A, B); }
	static FORCEINLINE float Exp(float Value) { return std::exp(Value); }
	static FORCEINLINE double Exp(double Value) { return std::exp(Value); }
	static FORCEINLINE float Exp2(float Value) { return std::exp2(Value); }
	static FORCEINLINE double Exp2(double Value) { return std::exp2(Value); }
	static FORCEINLINE float Loge(float Value) { return std::log(Value); }
	static FORCEINLINE double Loge(double Value) { return std::log(Value); }
	static FORCEINLINE float LogX(float Base, float Value) { return Loge(Value) / Loge(Base); }
	static FORCEINLINE double LogX(double Base, double Value) { return Loge(Value) / Loge(Base); }
	static FORCEINLINE float Log2(float Value) { return std::log2(Value); }
	static FORCEINLINE double Log2(double Value) { return std::log2(Value); }
	static FORCEINLINE float Sin(float Value) { return std::sin(Value); }
	static FORCEINLINE double Sin(double Value) { return std::sin(Value); }
	static FORCEINLINE float Cos(float Value) { return std::cos(Value); }
	static FORCEINLINE double Cos(double Value) { return std::cos(Value); }
	static FORCEINLINE float Tan(float Value) { return std::tan(Value); }
	static FORCEINLINE double Tan(double Value) { return std::tan(Value); }
	static FORCEINLINE float Atan2(float Y, float X) { return std::atan2(Y, X); }
	static FORCEINLINE double Atan2(double Y, double X) { return std::atan2(Y, X); }

	/** Remainder of X / Y with the sign of X; 0 when Y is (nearly) zero. */
	static FORCEINLINE float Fmod(float X, float Y) { return std::fabs(Y) <= 1.e-8f ? 0.0f : std::fmod(X, Y); }
	static FORCEINLINE double Fmod(double X, double Y) { return std::fabs(Y) <= 1.e-8 ? 0.0 : std::fmod(X, Y); }

	static FORCEINLINE bool IsNaN(float A) { return std::isnan(A); }
	static FORCEINLINE bool IsNaN(double A) { return std::isnan(A); }
	static FORCEINLINE bool IsFinite(float A) { return std::isfinite(A); }
	static FORCEINLINE bool IsFinite(double A) { return std::isfinite(A); }

	static FORCEINLINE bool IsNearlyEqual(float A, float B, float ErrorTolerance = UE_SMALL_NUMBER) { return Abs<float>(A - B) <= ErrorTolerance; }
	static FORCEINLINE bool IsNearlyEqual(double A, double B, double ErrorTolerance = UE_DOUBLE_SMALL_NUMBER) { return Abs<double>(A - B) <= ErrorTolerance; }
	static FORCEINLINE bool IsNearlyZero(float Value, float ErrorTolerance = UE_SMALL_NUMBER) { return Abs<float>(Value) <= ErrorTolerance; }
	static FORCEINLINE bool IsNearlyZero(double Value, double ErrorTolerance = UE_DOUBLE_SMALL_NUMBER) { return Abs<double>(Value) <= ErrorTolerance; }

	template <typename T>
	static constexpr FORCEINLINE T GridSnap(T Location, T Grid) { return (Grid == T{}) ? Location : (FloorToDouble((Location + Grid / (T)2) / Grid) * Grid); }

	/** Maps Value from the input range to the output range, clamped to the output range. */
	static FORCEINLINE double GetRangePct(double MinValue, double MaxValue, double Value)
	{
		const double Divisor = MaxValue - MinValue;
		if (IsNearlyZero(Divisor))
		{
			return (Value >= MaxValue) ? 1.0 : 0.0;
		}
		return (Value - MinValue) / Divisor;
	}

	/** Maps Value from InputRange (X..Y) to OutputRange (X..Y), clamped to the output range. */
	template <class RangeType>
	static double GetMappedRangeValueClamped(const RangeType& InputRange, const RangeType& OutputRange, const double Value)
	{
		const double ClampedPct = Clamp<double>(GetRangePct(InputRange.X, InputRange.Y, Value), 0.0, 1.0);
		return Lerp<double, double>(OutputRange.X, OutputRange.Y, ClampedPct);
	}

	template <class RangeType>
	static double GetMappedRangeValueUnclamped(const RangeType& InputRange, const RangeType& OutputRange, const double Value)
	{
		return Lerp<double, double>(OutputRange.X, OutputRange.Y, GetRangePct(InputRange.X, InputRange.Y, Value));
	}

	/** A random integer in [0, RAND_MAX]. */
	CORE_API static int32 Rand();
	CORE_API static void RandInit(int32 Seed);
	/** A random number in [0, 1). */
	CORE_API static float FRand();
	/** A random integer in [Min, Max], both included. */
	CORE_API static int32 RandRange(int32 Min, int32 Max);
	CORE_API static double FRandRange(double InMin, double InMax);
	CORE_API static int32 RandHelper(int32 A);
	/** Seeds SRand's own sequence. */
	CORE_API static void SRandInit(int32 Seed);
	CORE_API static int32 GetRandSeed();
	/** The next number in [0, 1) of the seeded sequence. */
	CORE_API static float SRand();
};
