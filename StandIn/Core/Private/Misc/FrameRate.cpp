#include "Misc/FrameRate.h"

#include <cmath>

namespace
{
	int32 ClampToFrameNumber(double Frame)
	{
		if (std::isnan(Frame))
		{
			return 0;
		}
		return static_cast<int32>(FMath::Clamp(Frame, double(MIN_int32), double(MAX_int32)));
	}

	/** Splits a decimal frame into a floored frame number and a sub-frame, carrying a sub-frame that rounds up to 1. */
	FFrameTime SplitDecimalFrame(double DecimalFrame)
	{
		const double Floored = std::floor(DecimalFrame);
		float SubFrame = static_cast<float>(DecimalFrame - Floored);
		int64 Frame = ClampToFrameNumber(Floored);
		if (SubFrame >= 1.f)
		{
			SubFrame = 0.f;
			Frame = ClampToFrameNumber(double(Frame) + 1.0);
		}
		return FFrameTime(FFrameNumber(static_cast<int32>(Frame)), FMath::Min(SubFrame, FFrameTime::MaxSubframe));
	}
}

FFrameTime FFrameRate::AsFrameTime(double InTimeSeconds) const
{
	if (!IsValid())
	{
		return FFrameTime();
	}
	return SplitDecimalFrame(InTimeSeconds * Numerator / Denominator);
}

FFrameTime FFrameRate::TransformTime(FFrameTime SourceTime, FFrameRate SourceRate, FFrameRate DestinationRate)
{
	if (SourceRate == DestinationRate)
	{
		return SourceTime;
	}

	// NewTime = SourceTime * (DestinationRate / SourceRate), whole frames in integers to keep their precision.
	const int64 NewNumerator = int64(DestinationRate.Numerator) * SourceRate.Denominator;
	const int64 NewDenominator = int64(DestinationRate.Denominator) * SourceRate.Numerator;
	if (NewDenominator == 0)
	{
		return FFrameTime();
	}

	const int64 SourceFrame = SourceTime.GetFrame().Value;
	// The product of a frame and two rate components can exceed 64 bits.
	const __int128 ScaledFrame = (__int128)SourceFrame * NewNumerator / NewDenominator;
	__int128 IntegerPart = ScaledFrame;
	const double IntegerRemainder = double(SourceFrame) * double(NewNumerator) / double(NewDenominator) - double(IntegerPart);
	const double FloatPart = double(SourceTime.GetSubFrame()) * double(NewNumerator) / double(NewDenominator) + IntegerRemainder;
	const double FloatPartFloored = std::floor(FloatPart);
	IntegerPart += (__int128)FloatPartFloored;

	float SubFrame = static_cast<float>(FloatPart - FloatPartFloored);
	SubFrame = FMath::Min(SubFrame, FFrameTime::MaxSubframe);
	const int32 ClampedFrame = static_cast<int32>(IntegerPart < MIN_int32 ? MIN_int32 : (IntegerPart > MAX_int32 ? MAX_int32 : IntegerPart));
	return FFrameTime(FFrameNumber(ClampedFrame), SubFrame);
}
