// FTimecode: hours, minutes, seconds and frames (SMPTE style), optionally in drop-frame format for NTSC rates.
#pragma once

#include "CoreTypes.h"
#include "Containers/UnrealString.h"
#include "Misc/FrameNumber.h"
#include "Misc/FrameRate.h"
#include "Misc/FrameTime.h"
#include "Misc/Timespan.h"
#include "Misc/EngineVersionComparison.h"

struct FTimecode
{
	FTimecode()
		: Hours(0)
		, Minutes(0)
		, Seconds(0)
		, Frames(0)
		, bDropFrameFormat(false)
	{
	}

	/** bDropFrame: skips the first frame numbers of every minute except every tenth, to follow a fractional NTSC rate. */
	explicit FTimecode(int32 InHours, int32 InMinutes, int32 InSeconds, int32 InFrames, bool InbDropFrame)
		: Hours(InHours)
		, Minutes(InMinutes)
		, Seconds(InSeconds)
		, Frames(InFrames)
		, bDropFrameFormat(InbDropFrame)
	{
	}

#if !UE_VERSION_OLDER_THAN(5, 5, 0)
	explicit FTimecode(int32 InHours, int32 InMinutes, int32 InSeconds, int32 InFrames, float InSubframe, bool InbDropFrame)
		: Hours(InHours)
		, Minutes(InMinutes)
		, Seconds(InSeconds)
		, Frames(InFrames)
		, Subframe(InSubframe)
		, bDropFrameFormat(InbDropFrame)
	{
	}
#endif

	/** bRollover: the hours wrap at 24. */
	CORE_API explicit FTimecode(double InSeconds, const FFrameRate& InFrameRate, bool InbDropFrame, bool InbRollover);

	explicit FTimecode(double InSeconds, const FFrameRate& InFrameRate, bool InbRollover)
		: FTimecode(InSeconds, InFrameRate, UseDropFormatTimecode(InFrameRate), InbRollover)
	{
	}

public:
	/** The frame number at the given rate, taking drop-frame format into account. */
	CORE_API FFrameNumber ToFrameNumber(const FFrameRate& InFrameRate) const;

	/** The frame number at the given rate, with the timecode's sub-frame. */
	FFrameTime ToFrameTime(const FFrameRate& InFrameRate) const
	{
#if !UE_VERSION_OLDER_THAN(5, 5, 0)
		return FFrameTime(ToFrameNumber(InFrameRate), Subframe);
#else
		return FFrameTime(ToFrameNumber(InFrameRate));
#endif
	}

	/** InbDropFrame is only meaningful for 29.97 and 59.94 fps; any rate can be shown without drop frames. */
	CORE_API static FTimecode FromFrameNumber(const FFrameNumber& InFrameNumber, const FFrameRate& InFrameRate, bool InbDropFrame);

	static FTimecode FromFrameNumber(const FFrameNumber& InFrameNumber, const FFrameRate& InFrameRate)
	{
		return FromFrameNumber(InFrameNumber, InFrameRate, UseDropFormatTimecode(InFrameRate));
	}

	/** Stand-in choice: two overloads in place of the engine's TOptional<bool> drop-frame parameter. */
	static FTimecode FromFrameTime(const FFrameTime& InFrameTime, const FFrameRate& InFrameRate, bool bDropFrame)
	{
		FTimecode Timecode = FromFrameNumber(InFrameTime.GetFrame(), InFrameRate, bDropFrame);
#if !UE_VERSION_OLDER_THAN(5, 5, 0)
		Timecode.Subframe = InFrameTime.GetSubFrame();
#endif
		return Timecode;
	}

	static FTimecode FromFrameTime(const FFrameTime& InFrameTime, const FFrameRate& InFrameRate)
	{
		return FromFrameTime(InFrameTime, InFrameRate, UseDropFormatTimecode(InFrameRate));
	}

	/** Drop-frame format exists only for 29.97 (30000/1001) and 59.94 (60000/1001) fps. */
	static bool IsDropFormatTimecodeSupported(const FFrameRate& InFrameRate)
	{
		return InFrameRate == FFrameRate(30000, 1001) || InFrameRate == FFrameRate(60000, 1001);
	}

	static bool UseDropFormatTimecode(const FFrameRate& InFrameRate)
	{
		return IsDropFormatTimecodeSupported(InFrameRate) && UseDropFormatTimecodeByDefaultWhenSupported();
	}

	/** The engine's console variable timecode.UseDropFormatTimecodeByDefaultWhenSupported, which defaults to on. */
	CORE_API static bool UseDropFormatTimecodeByDefaultWhenSupported();

#if !UE_VERSION_OLDER_THAN(5, 5, 0)
	/**
	 * "HH:MM:SS:FF", or "HH:MM:SS;FF" in drop-frame format; fields have at least two digits and "- " precedes a negative
	 * timecode ("+ " a positive one when bForceSignDisplay). bAlwaysDisplaySubframe appends ".ss" (hundredths of a frame).
	 */
	CORE_API FString ToString(bool bForceSignDisplay = false, bool bAlwaysDisplaySubframe = false) const;
#else
	CORE_API FString ToString(bool bForceSignDisplay = false) const;
#endif

public:
	int32 Hours;
	int32 Minutes;
	int32 Seconds;
	int32 Frames;

#if !UE_VERSION_OLDER_THAN(5, 5, 0)
	/** Fraction of a frame, in [0, 1). */
	float Subframe = 0.f;
#endif

	/** True for a drop-frame timecode, which accounts for fractional NTSC rates. */
	bool bDropFrameFormat;
};

inline bool operator==(const FTimecode& A, const FTimecode& B)
{
	return A.Hours == B.Hours && A.Minutes == B.Minutes && A.Seconds == B.Seconds && A.Frames == B.Frames;
}

inline bool operator!=(const FTimecode& A, const FTimecode& B)
{
	return !(A == B);
}

inline FString LexToString(const FTimecode& InTimecode)
{
	return InTimecode.ToString();
}
