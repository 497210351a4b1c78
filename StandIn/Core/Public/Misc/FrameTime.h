// FFrameTime: a frame number plus a sub-frame in [0, 1); sub-frames are always positive, even for negative frame numbers.
#pragma once

#include "CoreTypes.h"
#include "Containers/UnrealString.h"
#include "Math/NumericLimits.h"
#include "Math/UnrealMathUtility.h"
#include "Misc/FrameNumber.h"

#include <type_traits>

struct FFrameTime
{
	/** The largest float below 1. */
	static CORE_API const float MaxSubframe;

	FFrameTime()
		: FrameNumber(0)
		, SubFrame(0.f)
	{
	}

	/** Implicit construction from an int32 only, so that floating-point values never silently become frames. */
	template<typename T, typename = std::enable_if_t<std::is_same_v<T, int32>>>
	FFrameTime(T InFrameNumber)
		: FrameNumber(InFrameNumber)
		, SubFrame(0.f)
	{
	}

	FFrameTime(FFrameNumber InFrameNumber)
		: FrameNumber(InFrameNumber)
		, SubFrame(0.f)
	{
	}

	FFrameTime(FFrameNumber InFrameNumber, float InSubFrame)
		: FrameNumber(InFrameNumber)
		, SubFrame(ClampSubFrame(InSubFrame))
	{
	}

	FFrameTime& operator=(FFrameNumber InFrameNumber)
	{
		FrameNumber = InFrameNumber;
		SubFrame = 0.f;
		return *this;
	}

public:
	FFrameNumber GetFrame() const { return FrameNumber; }
	float GetSubFrame() const { return SubFrame; }

	/** The first frame number less than or equal to this time. */
	FFrameNumber FloorToFrame() const { return FrameNumber; }

	FFrameNumber RoundToFrame() const { return SubFrame < .5f ? FrameNumber : FrameNumber + 1; }

	/** Frame number plus sub-frame: -10 with sub-frame 0.25 gives -9.75. */
	double AsDecimal() const { return double(FrameNumber.Value) + SubFrame; }

	/** Floors the decimal to the frame number; the remainder becomes the (positive) sub-frame. */
	static FFrameTime FromDecimal(double InDecimalFrame)
	{
		const double Floored = FMath::FloorToDouble(InDecimalFrame);
		const int32 NewFrame = static_cast<int32>(FMath::Clamp(Floored, double(MIN_int32), double(MAX_int32)));
		return FFrameTime(NewFrame, static_cast<float>(InDecimalFrame - Floored));
	}

public:
	friend bool operator==(FFrameTime A, FFrameTime B) { return A.FrameNumber == B.FrameNumber && A.SubFrame == B.SubFrame; }
	friend bool operator!=(FFrameTime A, FFrameTime B) { return !(A == B); }
	friend bool operator>(FFrameTime A, FFrameTime B) { return A.FrameNumber > B.FrameNumber || (A.FrameNumber == B.FrameNumber && A.SubFrame > B.SubFrame); }
	friend bool operator>=(FFrameTime A, FFrameTime B) { return A.FrameNumber > B.FrameNumber || (A.FrameNumber == B.FrameNumber && A.SubFrame >= B.SubFrame); }
	friend bool operator<(FFrameTime A, FFrameTime B) { return A.FrameNumber < B.FrameNumber || (A.FrameNumber == B.FrameNumber && A.SubFrame < B.SubFrame); }
	friend bool operator<=(FFrameTime A, FFrameTime B) { return A.FrameNumber < B.FrameNumber || (A.FrameNumber == B.FrameNumber && A.SubFrame <= B.SubFrame); }

	friend FFrameTime operator+(FFrameTime A, FFrameTime B)
	{
		const float SubFrameSum = A.SubFrame + B.SubFrame;
		const float Carry = FMath::FloorToFloat(SubFrameSum);
		const int64 NewFrame = int64(A.FrameNumber.Value) + int64(B.FrameNumber.Value) + int64(Carry);
		return FFrameTime(static_cast<int32>(NewFrame), SubFrameSum - Carry);
	}

	/** The difference between frame -1.5 and 1.5 is 2, not 3, since sub-frames are always positive. */
	friend FFrameTime operator-(FFrameTime A, FFrameTime B)
	{
		const float SubFrameDifference = A.SubFrame - B.SubFrame;
		const float Borrow = FMath::FloorToFloat(SubFrameDifference);
		const int64 NewFrame = int64(A.FrameNumber.Value) - int64(B.FrameNumber.Value) + int64(Borrow);
		return FFrameTime(static_cast<int32>(NewFrame), SubFrameDifference - Borrow);
	}

	friend FFrameTime& operator+=(FFrameTime& LHS, FFrameTime RHS) { LHS = LHS + RHS; return LHS; }
	friend FFrameTime& operator-=(FFrameTime& LHS, FFrameTime RHS) { LHS = LHS - RHS; return LHS; }

	friend FFrameTime operator-(FFrameTime A)
	{
		return A.SubFrame == 0.f ? FFrameTime(-A.FrameNumber) : FFrameTime(-A.FrameNumber - 1, 1.f - A.SubFrame);
	}

	friend FFrameTime operator*(FFrameTime A, double Scalar) { return FromDecimal(A.AsDecimal() * Scalar); }
	friend FFrameTime operator*(double Scalar, FFrameTime A) { return FromDecimal(A.AsDecimal() * Scalar); }
	friend FFrameTime operator/(FFrameTime A, double Scalar) { return FromDecimal(A.AsDecimal() / Scalar); }

	FFrameNumber FrameNumber;

private:
	static float ClampSubFrame(float InSubFrame)
	{
		// Adding and removing 0.5 flushes tiny negative values to zero before clamping.
		return FMath::Clamp(InSubFrame + 0.5f - 0.5f, 0.f, MaxSubframe);
	}

	/** Must be 0.f <= SubFrame < 1.f */
	float SubFrame;
};

/** "Frame: %d Subframe: %f" */
inline FString LexToString(const FFrameTime InTime)
{
	return FString::Printf(TEXT("Frame: %d Subframe: %f"), InTime.GetFrame().Value, InTime.GetSubFrame());
}
