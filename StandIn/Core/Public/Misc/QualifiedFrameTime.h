// FQualifiedFrameTime: a frame time together with the rate it is expressed in.
#pragma once

#include "CoreTypes.h"
#include "Misc/FrameRate.h"
#include "Misc/FrameTime.h"
#include "Misc/Timecode.h"

struct FQualifiedFrameTime
{
	/** Frame 0 at 24 fps. */
	FQualifiedFrameTime()
		: Time(0)
		, Rate(24, 1)
	{
	}

	FQualifiedFrameTime(const FFrameTime& InTime, const FFrameRate& InRate)
		: Time(InTime)
		, Rate(InRate)
	{
	}

	FQualifiedFrameTime(const FTimecode& InTimecode, const FFrameRate& InRate)
		: Time(InTimecode.ToFrameTime(InRate))
		, Rate(InRate)
	{
	}

	double AsSeconds() const { return Time / Rate; }

	FFrameTime ConvertTo(FFrameRate DesiredRate) const { return FFrameRate::TransformTime(Time, Rate, DesiredRate); }

	/** Drop-frame format when the rate supports it and the engine's default asks for it. */
	FTimecode ToTimecode() const { return FTimecode::FromFrameTime(Time, Rate); }

	FTimecode ToTimecode(bool bDropFrame) const { return FTimecode::FromFrameTime(Time, Rate, bDropFrame); }

	FFrameTime Time;
	FFrameRate Rate;
};
