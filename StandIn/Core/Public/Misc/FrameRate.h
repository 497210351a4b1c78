// FFrameRate: a frame rate as a fraction of two integers (frames per second = Numerator / Denominator).
#pragma once

#include "CoreTypes.h"
#include "Math/NumericLimits.h"
#include "Math/Range.h"
#include "Math/RangeBound.h"
#include "Math/UnrealMathUtility.h"
#include "Misc/FrameNumber.h"
#include "Misc/FrameTime.h"
#include "Templates/TypeHash.h"

struct FFrameRate
{
	/** 60000 frames per second, the engine's default tick resolution. */
	FFrameRate()
		: Numerator(60000)
		, Denominator(1)
	{
	}

	FFrameRate(uint32 InNumerator, uint32 InDenominator)
		: Numerator(static_cast<int32>(InNumerator))
		, Denominator(static_cast<int32>(InDenominator))
	{
	}

	/** Number of frames (e.g. 60 for 60 fps, 30000 for 29.97 fps). */
	int32 Numerator;

	/** Per this many seconds (e.g. 1 for 60 fps, 1001 for 29.97 fps). */
	int32 Denominator;

	bool IsValid() const { return Denominator > 0; }

	/** Seconds per frame. */
	double AsInterval() const { return double(Denominator) / double(Numerator); }

	/** Frames per second. */
	double AsDecimal() const { return double(Numerator) / double(Denominator); }

	double AsSeconds(FFrameTime FrameTime) const
	{
		const int64 IntegerPart = int64(FrameTime.GetFrame().Value) * int64(Denominator);
		const double FloatPart = double(FrameTime.GetSubFrame()) * double(Denominator);
		return (double(IntegerPart) + FloatPart) / Numerator;
	}

	/**
	 * The frame time at the given number of seconds; the whole part is floored and the rest becomes the sub-frame.
	 * Stand-in choice: an invalid rate (Denominator <= 0) gives frame 0 rather than a division by zero.
	 */
	CORE_API FFrameTime AsFrameTime(double InTimeSeconds) const;

	/**
	 * Converts a time from one rate to another, keeping integer precision for the whole frames; saturates at the int32 range.
	 * Stand-in choice: a zero rate gives frame 0 rather than a division by zero.
	 */
	CORE_API static FFrameTime TransformTime(FFrameTime SourceTime, FFrameRate SourceRate, FFrameRate DestinationRate);

	/** The largest number of seconds a frame number can express at this rate. */
	double MaxSeconds() const { return double(MAX_int32) / AsDecimal(); }

	friend bool operator==(const FFrameRate& A, const FFrameRate& B) { return A.Numerator == B.Numerator && A.Denominator == B.Denominator; }
	friend bool operator!=(const FFrameRate& A, const FFrameRate& B) { return !(A == B); }

	friend FFrameRate operator*(FFrameRate A, FFrameRate B) { return FFrameRate(A.Numerator * B.Numerator, A.Denominator * B.Denominator); }
	friend FFrameRate operator/(FFrameRate A, FFrameRate B) { return FFrameRate(A.Numerator * B.Denominator, A.Denominator * B.Numerator); }

	friend double operator/(FFrameNumber Frame, FFrameRate Rate) { return Rate.AsSeconds(FFrameTime(Frame)); }
	friend double operator/(FFrameTime FrameTime, FFrameRate Rate) { return Rate.AsSeconds(FrameTime); }
	friend FFrameTime operator*(double TimeInSeconds, FFrameRate Rate) { return Rate.AsFrameTime(TimeInSeconds); }
	friend FFrameTime operator*(float TimeInSeconds, FFrameRate Rate) { return Rate.AsFrameTime(TimeInSeconds); }

	/** A frame range in seconds: inclusive lower, exclusive upper, whatever the inclusion of the frame bounds. */
	friend TRange<double> operator/(const TRange<FFrameNumber>& FrameRange, FFrameRate Rate)
	{
		const TRangeBound<FFrameNumber>& Lower = FrameRange.GetLowerBound();
		const TRangeBound<FFrameNumber>& Upper = FrameRange.GetUpperBound();

		const TRangeBound<double> LowerSeconds = Lower.IsOpen()
			? TRangeBound<double>::Open()
			: TRangeBound<double>::Inclusive(Rate.AsSeconds(Lower.IsInclusive() ? Lower.GetValue() : Lower.GetValue() + 1));
		const TRangeBound<double> UpperSeconds = Upper.IsOpen()
			? TRangeBound<double>::Open()
			: TRangeBound<double>::Exclusive(Rate.AsSeconds(Upper.IsInclusive() ? Upper.GetValue() + 1 : Upper.GetValue()));

		return TRange<double>(LowerSeconds, UpperSeconds);
	}

	friend uint32 GetTypeHash(const FFrameRate& Rate)
	{
		return HashCombine(GetTypeHash(Rate.Numerator), GetTypeHash(Rate.Denominator));
	}
};
