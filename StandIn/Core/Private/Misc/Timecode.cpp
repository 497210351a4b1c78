#include "Misc/Timecode.h"

#include <cmath>

namespace
{
	/** Nominal (integer) frames per second: 30 for 29.97, 60 for 59.94. */
	int32 GetNominalFramesPerSecond(const FFrameRate& InFrameRate)
	{
		if (!InFrameRate.IsValid())
		{
			return 0;
		}
		const double Ceiled = std::ceil((double)(float)InFrameRate.AsDecimal());
		return Ceiled >= double(MAX_int32) ? MAX_int32 : static_cast<int32>(Ceiled);
	}

	/** Drop-frame format skips two frame numbers per minute at 29.97 and four at 59.94. */
	int32 GetDroppedFramesPerMinute(int32 NominalFramesPerSecond)
	{
		return NominalFramesPerSecond <= 30 ? 2 : 4;
	}

	int32 ClampToInt32(int64 Value)
	{
		return static_cast<int32>(Value < MIN_int32 ? MIN_int32 : (Value > MAX_int32 ? MAX_int32 : Value));
	}

	int32 RoundSecondsToFrames(double Seconds, double FramesPerSecond)
	{
		const double Frames = std::round(Seconds * FramesPerSecond);
		if (std::isnan(Frames))
		{
			return 0;
		}
		return static_cast<int32>(FMath::Clamp(Frames, double(MIN_int32), double(MAX_int32)));
	}

	/** Splits a frame count at the nominal rate; components of a negative count are all negative or zero. */
	FTimecode SplitFrameCount(int64 FrameCount, int32 NominalFramesPerSecond, bool bDropFrame)
	{
		const int64 FramesPerMinute = int64(NominalFramesPerSecond) * 60;
		const int64 FramesPerHour = FramesPerMinute * 60;
		return FTimecode(
			ClampToInt32(FrameCount / FramesPerHour),
			ClampToInt32((FrameCount / FramesPerMinute) % 60),
			ClampToInt32((FrameCount / NominalFramesPerSecond) % 60),
			ClampToInt32(FrameCount % NominalFramesPerSecond),
			bDropFrame);
	}

	/** The frame count whose plain split shows the drop-frame timecode of FrameNumber (the skipped numbers added back). */
	int64 AddSkippedTimecodeNumbers(int64 FrameNumber, const FFrameRate& InFrameRate, int32 NominalFramesPerSecond)
	{
		const int64 Dropped = GetDroppedFramesPerMinute(NominalFramesPerSecond);
		const int64 RealFramesPerTenMinutes = (int64)std::floor(600.0 * InFrameRate.AsDecimal());
		const int64 RealFramesPerMinute = (int64)std::floor(60.0 * InFrameRate.AsDecimal());
		if (RealFramesPerTenMinutes <= 0 || RealFramesPerMinute <= 0)
		{
			return FrameNumber;
		}

		const int64 Magnitude = FrameNumber < 0 ? -FrameNumber : FrameNumber;
		const int64 TenMinuteBlocks = Magnitude / RealFramesPerTenMinutes;
		const int64 FrameInBlock = Magnitude % RealFramesPerTenMinutes;

		// Nine of every ten minutes skip their first numbers; the first minute of each block keeps them.
		int64 Skipped = 9 * Dropped * TenMinuteBlocks;
		if (FrameInBlock >= Dropped)
		{
			Skipped += Dropped * ((FrameInBlock - Dropped) / RealFramesPerMinute);
		}
		const int64 Shown = Magnitude + Skipped;
		return FrameNumber < 0 ? -Shown : Shown;
	}

	int64 AbsoluteValue(int32 Value)
	{
		return Value < 0 ? -int64(Value) : int64(Value);
	}
}

FTimecode::FTimecode(double InSeconds, const FFrameRate& InFrameRate, bool InbDropFrame, bool InbRollover)
	: FTimecode()
{
	if (InbRollover && std::isfinite(InSeconds))
	{
		constexpr double SecondsPerDay = 60.0 * 60.0 * 24.0;
		InSeconds = std::fmod(InSeconds, SecondsPerDay);
	}

	const double FramesPerSecond = InbDropFrame ? InFrameRate.AsDecimal() : std::round(InFrameRate.AsDecimal());
	*this = FromFrameNumber(FFrameNumber(RoundSecondsToFrames(InSeconds, FramesPerSecond)), InFrameRate, InbDropFrame);
}

FFrameNumber FTimecode::ToFrameNumber(const FFrameRate& InFrameRate) const
{
	const int64 FramesPerSecond = GetNominalFramesPerSecond(InFrameRate);
	if (FramesPerSecond <= 0)
	{
		return FFrameNumber();
	}
	const int64 FramesPerMinute = FramesPerSecond * 60;
	const int64 FramesPerHour = FramesPerMinute * 60;

	// Carry overflowing units into the next larger one first.
	int64 SafeSeconds = int64(Seconds) + Frames / FramesPerSecond;
	const int64 SafeFrames = Frames % FramesPerSecond;
	int64 SafeMinutes = int64(Minutes) + SafeSeconds / 60;
	SafeSeconds %= 60;
	const int64 SafeHours = int64(Hours) + SafeMinutes / 60;
	SafeMinutes %= 60;

	int64 TotalFrames = SafeHours * FramesPerHour + SafeMinutes * FramesPerMinute + SafeSeconds * FramesPerSecond + SafeFrames;
	if (bDropFrameFormat)
	{
		const int64 TotalMinutes = SafeHours * 60 + SafeMinutes;
		TotalFrames -= GetDroppedFramesPerMinute((int32)FramesPerSecond) * (TotalMinutes - TotalMinutes / 10);
	}
	return FFrameNumber(ClampToInt32(TotalFrames));
}

FTimecode FTimecode::FromFrameNumber(const FFrameNumber& InFrameNumber, const FFrameRate& InFrameRate, bool InbDropFrame)
{
	const int32 NominalFramesPerSecond = GetNominalFramesPerSecond(InFrameRate);
	if (NominalFramesPerSecond <= 0)
	{
		return FTimecode();
	}

	const int64 FrameCount = InbDropFrame
		? AddSkippedTimecodeNumbers(InFrameNumber.Value, InFrameRate, NominalFramesPerSecond)
		: int64(InFrameNumber.Value);
	return SplitFrameCount(FrameCount, NominalFramesPerSecond, InbDropFrame);
}

bool FTimecode::UseDropFormatTimecodeByDefaultWhenSupported()
{
	// Stand-in choice: no console variables; timecode.UseDropFormatTimecodeByDefaultWhenSupported keeps its default of on.
	return true;
}

#if !UE_VERSION_OLDER_THAN(5, 5, 0)
FString FTimecode::ToString(bool bForceSignDisplay, bool bAlwaysDisplaySubframe) const
#else
FString FTimecode::ToString(bool bForceSignDisplay) const
#endif
{
	const bool bHasNegativeComponent = Hours < 0 || Minutes < 0 || Seconds < 0 || Frames < 0;
	const TCHAR* SignText = bHasNegativeComponent ? TEXT("- ") : (bForceSignDisplay ? TEXT("+ ") : TEXT(""));
	const TCHAR* FrameSeparator = bDropFrameFormat ? TEXT(";") : TEXT(":");

	FString Result = FString::Printf(TEXT("%s%02lld:%02lld:%02lld%s%02lld"), SignText, (long long)AbsoluteValue(Hours), (long long)AbsoluteValue(Minutes),
		(long long)AbsoluteValue(Seconds), FrameSeparator, (long long)AbsoluteValue(Frames));

#if !UE_VERSION_OLDER_THAN(5, 5, 0)
	if (bAlwaysDisplaySubframe)
	{
		const float Hundredths = std::isnan(Subframe) ? 0.f : FMath::Clamp(100.f * Subframe, 0.f, 99.f);
		Result += FString::Printf(TEXT(".%02d"), static_cast<int32>(Hundredths));
	}
#endif
	return Result;
}
