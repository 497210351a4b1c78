// Core value types: GUID text formats, dates and time spans, frame numbers, rates and timecodes, ranges, points and colors.
#include "Math/Color.h"
#include "Math/IntPoint.h"
#include "Math/IntRect.h"
#include "Math/Range.h"
#include "Math/Vector2D.h"
#include "Misc/DateTime.h"
#include "Misc/EngineVersionComparison.h"
#include "Misc/FrameRate.h"
#include "Misc/Guid.h"
#include "Misc/Timecode.h"
#include "Misc/Timespan.h"

#include <gtest/gtest.h>

#include <ctime>

namespace
{
	const FGuid SampleGuid(0x01234567, 0x89ABCDEF, 0xFEDCBA98, 0x76543210);

	FDateTime SampleDateTime()
	{
		return FDateTime(2024, 3, 9, 14, 5, 7, 42);
	}
}

TEST(CoreValueTypeTests, GuidFormatsMatchTheEngineLayouts)
{
	EXPECT_STREQ(*SampleGuid.ToString(), TEXT("0123456789ABCDEFFEDCBA9876543210"));
	EXPECT_STREQ(*SampleGuid.ToString(EGuidFormats::DigitsWithHyphens), TEXT("01234567-89AB-CDEF-FEDC-BA9876543210"));
	EXPECT_STREQ(*FGuid().ToString(EGuidFormats::DigitsWithHyphens), TEXT("00000000-0000-0000-0000-000000000000"));
}

TEST(CoreValueTypeTests, GuidParsesOnlyWellFormedDigits)
{
	const FGuid AllOnes(0xFFFFFFFF, 0xFFFFFFFF, 0xFFFFFFFF, 0xFFFFFFFF);
	for (const FGuid& Guid : { SampleGuid, AllOnes, FGuid::NewGuid() })
	{
		FGuid Parsed;
		EXPECT_TRUE(FGuid::ParseExact(Guid.ToString(), EGuidFormats::Digits, Parsed));
		EXPECT_EQ(Parsed, Guid);
	}

	const TCHAR* const Malformed[] = {
		TEXT(""),
		TEXT("0123456789ABCDEFFEDCBA987654321"),
		TEXT("0123456789ABCDEFFEDCBA98765432100"),
		TEXT("0123456789ABCDEFFEDCBA987654321G"),
		TEXT(" 0123456789ABCDEFFEDCBA987654321"),
	};
	for (const TCHAR* Text : Malformed)
	{
		FGuid Parsed(1, 2, 3, 4);
		EXPECT_FALSE(FGuid::ParseExact(Text, EGuidFormats::Digits, Parsed)) << "accepted: " << FString(Text).Len();
		EXPECT_EQ(Parsed, FGuid(1, 2, 3, 4));
	}

	FGuid Parsed;
	EXPECT_FALSE(FGuid::ParseExact(SampleGuid.ToString(EGuidFormats::DigitsWithHyphens), EGuidFormats::Digits, Parsed));
	EXPECT_TRUE(FGuid::ParseExact(TEXT("0123456789abcdefFEDCBA9876543210"), EGuidFormats::Digits, Parsed)) << "hexadecimal digits of either case";
	EXPECT_EQ(Parsed, SampleGuid);
}

TEST(CoreValueTypeTests, GuidIdentity)
{
	const FGuid First = FGuid::NewGuid();
	const FGuid Second = FGuid::NewGuid();
	EXPECT_TRUE(First.IsValid());
	EXPECT_NE(First, Second);
	EXPECT_FALSE(FGuid().IsValid());

	FGuid Invalidated = First;
	Invalidated.Invalidate();
	EXPECT_FALSE(Invalidated.IsValid());

	EXPECT_TRUE(FGuid(1, 0, 0, 0) < FGuid(2, 0, 0, 0));
	EXPECT_TRUE(FGuid(1, 2, 3, 4) < FGuid(1, 2, 3, 5));
	EXPECT_FALSE(FGuid(1, 2, 3, 5) < FGuid(1, 2, 3, 4));
	EXPECT_EQ(GetTypeHash(FGuid(SampleGuid.A, SampleGuid.B, SampleGuid.C, SampleGuid.D)), GetTypeHash(SampleGuid));

	FString Exported;
	EXPECT_TRUE(SampleGuid.ExportTextItem(Exported, FGuid(), nullptr, 0, nullptr));
	EXPECT_STREQ(*Exported, TEXT("0123456789ABCDEFFEDCBA9876543210"));

	const FString ImportText = Exported + TEXT(",Next");
	const TCHAR* Buffer = *ImportText;
	FGuid Imported;
	EXPECT_TRUE(Imported.ImportTextItem(Buffer, 0, nullptr, nullptr));
	EXPECT_EQ(Imported, SampleGuid);
	EXPECT_STREQ(Buffer, TEXT(",Next"));
}

TEST(CoreValueTypeTests, DateTimeFormatsAFixedDate)
{
	const FDateTime DateTime = SampleDateTime();
	EXPECT_EQ(DateTime.GetTicks(), 638455899070420000);
	EXPECT_EQ(FDateTime(1970, 1, 1).GetTicks(), 621355968000000000);

	EXPECT_STREQ(*DateTime.ToIso8601(), TEXT("2024-03-09T14:05:07.042Z"));
	EXPECT_STREQ(*DateTime.ToString(), TEXT("2024.03.09-14.05.07"));
	EXPECT_STREQ(*DateTime.ToString(TEXT("%Y/%m/%d %h:%M:%S.%s %A %a %D %y %% %q")), TEXT("2024/03/09 02:05:07.042 PM pm 069 24 % q"));
	EXPECT_STREQ(*FDateTime(987, 1, 2, 0, 30).ToString(TEXT("%Y %h %a")), TEXT("0987 12 am"));

	EXPECT_EQ(DateTime.GetHour(), 14);
	EXPECT_EQ(DateTime.GetHour12(), 2);
	EXPECT_EQ(DateTime.GetMinute(), 5);
	EXPECT_EQ(DateTime.GetSecond(), 7);
	EXPECT_EQ(DateTime.GetMillisecond(), 42);
}

TEST(CoreValueTypeTests, DateTimeCalendarRules)
{
	EXPECT_TRUE(FDateTime::Validate(2024, 2, 29, 0, 0, 0, 0)) << "a leap year";
	EXPECT_TRUE(FDateTime::Validate(2000, 2, 29, 0, 0, 0, 0)) << "a leap century";
	EXPECT_FALSE(FDateTime::Validate(1900, 2, 29, 0, 0, 0, 0)) << "a century that is no leap year";
	EXPECT_FALSE(FDateTime::Validate(2023, 2, 29, 0, 0, 0, 0));
	EXPECT_FALSE(FDateTime::Validate(2024, 1, 1, 24, 0, 0, 0));
	EXPECT_FALSE(FDateTime::Validate(10000, 1, 1, 0, 0, 0, 0));

	EXPECT_STREQ(*FDateTime(2024, 12, 31).ToString(TEXT("%D")), TEXT("366"));
	EXPECT_EQ((FDateTime(2024, 3, 1) - FDateTime(2024, 2, 28)).GetTicks(), 2 * ETimespan::TicksPerDay);
	EXPECT_EQ(FDateTime(2023, 12, 31, 23, 59, 59) + FTimespan::FromSeconds(1), FDateTime(2024, 1, 1));
	EXPECT_STREQ(*FDateTime(9999, 12, 31, 23, 59, 59, 999).ToIso8601(), TEXT("9999-12-31T23:59:59.999Z"));

	// Stand-in: invalid components log an error and give the minimum date instead of a fatal error.
	EXPECT_EQ(FDateTime(2023, 2, 30).GetTicks(), 0);
}

TEST(CoreValueTypeTests, DateTimeParsesItsOwnFormat)
{
	FDateTime Parsed;
	ASSERT_TRUE(FDateTime::Parse(TEXT("2024.03.09-14.05.07"), Parsed));
	EXPECT_EQ(Parsed, FDateTime(2024, 3, 9, 14, 5, 7));
	ASSERT_TRUE(FDateTime::Parse(TEXT("2024-03-09 14:05:07.042"), Parsed));
	EXPECT_EQ(Parsed, SampleDateTime());
	EXPECT_FALSE(FDateTime::Parse(TEXT("2024.03.09"), Parsed));
	EXPECT_FALSE(FDateTime::Parse(TEXT("2024.02.30-00.00.00"), Parsed));
}

TEST(CoreValueTypeTests, DateTimeClock)
{
	// Local time differs from UTC by the machine's offset, which is always within a day.
	const FTimespan Offset = FDateTime::Now() - FDateTime::UtcNow();
	EXPECT_LT(FMath::Abs(Offset.GetTotalSeconds()), 26.0 * 3600.0);

	const int64 NowSeconds = (int64)std::time(nullptr);
	const int64 UnixEpochTicks = FDateTime(1970, 1, 1).GetTicks();
	EXPECT_NEAR((double)((FDateTime::UtcNow().GetTicks() - UnixEpochTicks) / ETimespan::TicksPerSecond), (double)NowSeconds, 5.0);
	EXPECT_TRUE(FDateTime(2024, 1, 1, 11, 59).IsMorning());
	EXPECT_FALSE(FDateTime(2024, 1, 1, 12).IsMorning());
}

TEST(CoreValueTypeTests, TimespanFactoriesRoundAndSaturate)
{
	EXPECT_DOUBLE_EQ(FTimespan::FromSeconds(1.5).GetTotalSeconds(), 1.5);
	EXPECT_EQ(FTimespan::FromHours(-2.0).GetTicks(), -2 * ETimespan::TicksPerHour);
	EXPECT_EQ(FTimespan::FromSeconds(1.0 / 3.0).GetTicks(), 3333333) << "rounds to the nearest tick";
	EXPECT_EQ(FTimespan::FromSeconds(1e300).GetTicks(), ETimespan::MaxTicks) << "saturates";
	EXPECT_EQ(FTimespan::FromSeconds(-1e300).GetTicks(), ETimespan::MinTicks);
	EXPECT_EQ(FTimespan::FromSeconds(2.0) - FTimespan::FromSeconds(0.5), FTimespan::FromSeconds(1.5));
}

TEST(CoreValueTypeTests, FrameTimeKeepsSubFramesPositive)
{
	const FFrameTime Negative = FFrameTime::FromDecimal(-9.75);
	EXPECT_EQ(Negative.GetFrame().Value, -10);
	EXPECT_FLOAT_EQ(Negative.GetSubFrame(), 0.25f);
	EXPECT_DOUBLE_EQ(Negative.AsDecimal(), -9.75);

	const FFrameTime Time(FFrameNumber(10), 0.5f);
	EXPECT_EQ(Time.FloorToFrame().Value, 10);
	EXPECT_EQ(Time.RoundToFrame().Value, 11);
	EXPECT_EQ(FFrameTime(FFrameNumber(10), 0.49f).RoundToFrame().Value, 10);

	EXPECT_EQ(FFrameTime(FFrameNumber(1), 0.25f) - FFrameTime(FFrameNumber(0), 0.75f), FFrameTime(FFrameNumber(0), 0.5f));
	EXPECT_EQ(FFrameTime(FFrameNumber(1), 0.75f) + FFrameTime(FFrameNumber(0), 0.5f), FFrameTime(FFrameNumber(2), 0.25f));
	EXPECT_EQ(-FFrameTime(FFrameNumber(3), 0.25f), FFrameTime(FFrameNumber(-4), 0.75f));
	EXPECT_LT(FFrameTime(FFrameNumber(2), 0.1f), FFrameTime(FFrameNumber(2), 0.2f));
	EXPECT_FLOAT_EQ(FFrameTime(FFrameNumber(0), 1.5f).GetSubFrame(), FFrameTime::MaxSubframe) << "sub-frames stay below 1";

	EXPECT_EQ((FFrameNumber(7) * 1.5f).Value, 10);
	EXPECT_EQ((FFrameNumber(-7) / 2.0f).Value, -4);
	EXPECT_EQ((FFrameNumber(7) % FFrameNumber(0)).Value, 0) << "no division by zero";
}

TEST(CoreValueTypeTests, FrameRateConversions)
{
	EXPECT_EQ(FFrameRate(), FFrameRate(60000, 1));
	const FFrameRate Film(24, 1);
	const FFrameRate Ntsc(30000, 1001);

	EXPECT_DOUBLE_EQ(Ntsc.AsDecimal(), 30000.0 / 1001.0);
	EXPECT_DOUBLE_EQ(Ntsc.AsInterval(), 1001.0 / 30000.0);
	EXPECT_DOUBLE_EQ(Film.AsSeconds(FFrameTime(48)), 2.0);
	EXPECT_DOUBLE_EQ(Film.AsSeconds(FFrameTime(FFrameNumber(1), 0.5f)), 1.5 / 24.0);
	EXPECT_DOUBLE_EQ(FFrameNumber(30000) / Ntsc, 1001.0);

	EXPECT_EQ(Film.AsFrameTime(1.25), FFrameTime(30));
	const FFrameTime HalfFrame = Film.AsFrameTime(1.0 / 48.0);
	EXPECT_EQ(HalfFrame.GetFrame().Value, 0);
	EXPECT_FLOAT_EQ(HalfFrame.GetSubFrame(), 0.5f);
	EXPECT_EQ((2.0 * Film).GetFrame().Value, 48);

	EXPECT_EQ(FFrameRate::TransformTime(FFrameTime(1), Film, FFrameRate()), FFrameTime(2500));
	EXPECT_EQ(FFrameRate::TransformTime(FFrameTime(FFrameNumber(100), 0.5f), Film, FFrameRate(48, 1)), FFrameTime(201));
	const FFrameTime Quarter = FFrameRate::TransformTime(FFrameTime(1), FFrameRate(48, 1), Film);
	EXPECT_EQ(Quarter.GetFrame().Value, 0);
	EXPECT_FLOAT_EQ(Quarter.GetSubFrame(), 0.5f);
	EXPECT_EQ(FFrameRate::TransformTime(FFrameTime(-3), FFrameRate(2, 1), FFrameRate(1, 1)), FFrameTime(FFrameNumber(-2), 0.5f));
	EXPECT_EQ(FFrameRate::TransformTime(FFrameTime(MAX_int32), FFrameRate(1, 1), FFrameRate(60000, 1)).GetFrame().Value, MAX_int32) << "saturates";

	EXPECT_EQ(Film * FFrameRate(2, 1), FFrameRate(48, 1));

	const FFrameRate Invalid(24, 0);
	EXPECT_FALSE(Invalid.IsValid());
	EXPECT_EQ(Invalid.AsFrameTime(1.0), FFrameTime());
	EXPECT_EQ(FFrameRate::TransformTime(FFrameTime(5), FFrameRate(0, 1), Film), FFrameTime());
}

TEST(CoreValueTypeTests, TimecodeText)
{
	const FFrameRate Film(24, 1);
	EXPECT_STREQ(*FTimecode::FromFrameNumber(FFrameNumber(1234), Film).ToString(), TEXT("00:00:51:10"));
	EXPECT_STREQ(*FTimecode::FromFrameNumber(FFrameNumber(1234), Film).ToString(true), TEXT("+ 00:00:51:10"));
	EXPECT_STREQ(*FTimecode::FromFrameNumber(FFrameNumber(-30), FFrameRate(30, 1)).ToString(), TEXT("- 00:00:01:00"));
	EXPECT_STREQ(*FTimecode::FromFrameNumber(FFrameNumber(-1), Film).ToString(true), TEXT("- 00:00:00:01"));
	EXPECT_STREQ(*FTimecode(1, 2, 3, 4, false).ToString(), TEXT("01:02:03:04"));
	EXPECT_STREQ(*FTimecode(123, 2, 3, 4, false).ToString(), TEXT("123:02:03:04"));
	EXPECT_STREQ(*FTimecode(1, 2, 3, 4, true).ToString(), TEXT("01:02:03;04"));

#if !UE_VERSION_OLDER_THAN(5, 5, 0)
	EXPECT_STREQ(*FTimecode(1, 2, 3, 4, 0.5f, false).ToString(false, true), TEXT("01:02:03:04.50"));
	EXPECT_STREQ(*FTimecode(1, 2, 3, 4, 0.5f, false).ToString(), TEXT("01:02:03:04"));
	EXPECT_STREQ(*FTimecode(0, 0, 0, 1, 0.999f, true).ToString(true, true), TEXT("+ 00:00:00;01.99"));
	const FTimecode FromFrameTime = FTimecode::FromFrameTime(FFrameTime(FFrameNumber(25), 0.25f), Film);
	EXPECT_STREQ(*FromFrameTime.ToString(false, true), TEXT("00:00:01:01.25"));
#endif
}

TEST(CoreValueTypeTests, TimecodeDropFrame)
{
	const FFrameRate Ntsc(30000, 1001);
	const FFrameRate DoubleNtsc(60000, 1001);

	EXPECT_TRUE(FTimecode::IsDropFormatTimecodeSupported(Ntsc));
	EXPECT_TRUE(FTimecode::IsDropFormatTimecodeSupported(DoubleNtsc));
	EXPECT_FALSE(FTimecode::IsDropFormatTimecodeSupported(FFrameRate(24000, 1001)));
	EXPECT_FALSE(FTimecode::IsDropFormatTimecodeSupported(FFrameRate(30, 1)));

	// Drop-frame numbering skips ;00 and ;01 at every minute except each tenth.
	EXPECT_STREQ(*FTimecode::FromFrameNumber(FFrameNumber(1799), Ntsc, true).ToString(), TEXT("00:00:59;29"));
	EXPECT_STREQ(*FTimecode::FromFrameNumber(FFrameNumber(1800), Ntsc, true).ToString(), TEXT("00:01:00;02"));
	EXPECT_STREQ(*FTimecode::FromFrameNumber(FFrameNumber(17982), Ntsc, true).ToString(), TEXT("00:10:00;00"));
	EXPECT_STREQ(*FTimecode::FromFrameNumber(FFrameNumber(107892), Ntsc, true).ToString(), TEXT("01:00:00;00"));
	EXPECT_STREQ(*FTimecode::FromFrameNumber(FFrameNumber(1800), Ntsc, false).ToString(), TEXT("00:01:00:00"));
	EXPECT_STREQ(*FTimecode::FromFrameNumber(FFrameNumber(3600), DoubleNtsc, true).ToString(), TEXT("00:01:00;04"));
	EXPECT_STREQ(*FTimecode::FromFrameNumber(FFrameNumber(-1800), Ntsc, true).ToString(), TEXT("- 00:01:00;02"));

	// The engine's default generates drop-frame timecode where the rate supports it.
	EXPECT_TRUE(FTimecode::FromFrameNumber(FFrameNumber(1800), Ntsc).bDropFrameFormat);
	EXPECT_FALSE(FTimecode::FromFrameNumber(FFrameNumber(1800), FFrameRate(30, 1)).bDropFrameFormat);

	for (int32 Frame : { 0, 1, 1799, 1800, 1801, 17981, 17982, 17983, 107891, 107892, 1000000 })
	{
		EXPECT_EQ(FTimecode::FromFrameNumber(FFrameNumber(Frame), Ntsc, true).ToFrameNumber(Ntsc).Value, Frame);
		EXPECT_EQ(FTimecode::FromFrameNumber(FFrameNumber(Frame), DoubleNtsc, true).ToFrameNumber(DoubleNtsc).Value, Frame);
		EXPECT_EQ(FTimecode::FromFrameNumber(FFrameNumber(Frame), FFrameRate(25, 1), false).ToFrameNumber(FFrameRate(25, 1)).Value, Frame);
	}

	EXPECT_EQ(FTimecode(0, 0, 0, 48, false).ToFrameNumber(FFrameRate(24, 1)).Value, 48) << "overflowing frames carry into seconds";
	EXPECT_EQ(FTimecode(1.5, FFrameRate(24, 1), false, false), FTimecode(0, 0, 1, 12, false));
	EXPECT_EQ(FTimecode(86401.0, FFrameRate(24, 1), false, true), FTimecode(0, 0, 1, 0, false)) << "rollover wraps at 24 hours";

	EXPECT_EQ(FTimecode::FromFrameNumber(FFrameNumber(100), FFrameRate(24, 0)), FTimecode()) << "an invalid rate gives zero";
	EXPECT_EQ(FTimecode(1, 0, 0, 0, false).ToFrameNumber(FFrameRate(0, 1)).Value, 0);
}

TEST(CoreValueTypeTests, FrameNumberRangeAsAPlaybackRange)
{
	const TRange<FFrameNumber> Playback(FFrameNumber(0), FFrameNumber(120));
	EXPECT_TRUE(Playback.GetLowerBound().IsInclusive());
	EXPECT_TRUE(Playback.GetUpperBound().IsExclusive());
	EXPECT_TRUE(Playback.HasLowerBound());
	EXPECT_TRUE(Playback.HasUpperBound());
	EXPECT_EQ(Playback.GetLowerBoundValue().Value, 0);
	EXPECT_EQ(Playback.GetUpperBoundValue().Value, 120);
	EXPECT_EQ(Playback.Size<FFrameNumber>().Value, 120);
	EXPECT_TRUE(Playback.Contains(FFrameNumber(0)));
	EXPECT_TRUE(Playback.Contains(FFrameNumber(119)));
	EXPECT_FALSE(Playback.Contains(FFrameNumber(120)));
	EXPECT_FALSE(Playback.Contains(FFrameNumber(-1)));

	EXPECT_TRUE(Playback.Overlaps(TRange<FFrameNumber>(FFrameNumber(119), FFrameNumber(200))));
	EXPECT_FALSE(Playback.Overlaps(TRange<FFrameNumber>(FFrameNumber(120), FFrameNumber(200))));
	EXPECT_TRUE(Playback.Adjoins(TRange<FFrameNumber>(FFrameNumber(120), FFrameNumber(200))));
	EXPECT_TRUE(Playback.Overlaps(TRange<FFrameNumber>::Inclusive(FFrameNumber(-5), FFrameNumber(0))));
	EXPECT_FALSE(Playback.Overlaps(TRange<FFrameNumber>(FFrameNumber(-5), FFrameNumber(0))));

	const TRange<FFrameNumber> Overlap = TRange<FFrameNumber>::Intersection(Playback, TRange<FFrameNumber>(FFrameNumber(100), FFrameNumber(200)));
	EXPECT_EQ(Overlap, TRange<FFrameNumber>(FFrameNumber(100), FFrameNumber(120)));
	EXPECT_TRUE(TRange<FFrameNumber>::Intersection(Playback, TRange<FFrameNumber>(FFrameNumber(300), FFrameNumber(400))).IsEmpty());
	EXPECT_EQ(TRange<FFrameNumber>::Hull(Playback, TRange<FFrameNumber>(FFrameNumber(300), FFrameNumber(400))), TRange<FFrameNumber>(FFrameNumber(0), FFrameNumber(400)));
	EXPECT_TRUE(Playback.Contains(TRange<FFrameNumber>(FFrameNumber(10), FFrameNumber(120))));
	EXPECT_FALSE(Playback.Contains(TRange<FFrameNumber>::Inclusive(FFrameNumber(10), FFrameNumber(120))));

	const TRange<double> Seconds = Playback / FFrameRate(24, 1);
	EXPECT_DOUBLE_EQ(Seconds.GetLowerBoundValue(), 0.0);
	EXPECT_DOUBLE_EQ(Seconds.GetUpperBoundValue(), 5.0);
	EXPECT_TRUE(Seconds.GetUpperBound().IsExclusive());
	const TRange<double> InclusiveSeconds = TRange<FFrameNumber>::Inclusive(FFrameNumber(0), FFrameNumber(23)) / FFrameRate(24, 1);
	EXPECT_DOUBLE_EQ(InclusiveSeconds.GetUpperBoundValue(), 1.0) << "an inclusive last frame ends one frame later";
}

TEST(CoreValueTypeTests, RangeEmptinessAndOpenBounds)
{
	EXPECT_TRUE(TRange<int32>(5, 5).IsEmpty());
	EXPECT_TRUE(TRange<int32>(6, 5).IsEmpty());
	EXPECT_FALSE(TRange<int32>::Inclusive(5, 5).IsEmpty());
	EXPECT_TRUE(TRange<int32>::Inclusive(5, 5).IsDegenerate());
	EXPECT_TRUE(TRange<int32>(7).IsDegenerate());
	EXPECT_TRUE(TRange<int32>::Empty().IsEmpty());
	EXPECT_EQ(TRange<int32>(3, 3), TRange<int32>(8, 8)) << "empty ranges are equal";
	EXPECT_FALSE(TRange<int32>::Empty().Overlaps(TRange<int32>::All()));

	const TRange<int32> All = TRange<int32>::All();
	EXPECT_TRUE(All.Contains(MIN_int32));
	EXPECT_TRUE(All.Contains(MAX_int32));
	EXPECT_FALSE(All.HasLowerBound());
	EXPECT_TRUE(TRange<int32>().Contains(42)) << "the default range is unbounded";
	EXPECT_EQ(All.Size<int32>(), 0) << "stand-in: an open range has no size";
	EXPECT_TRUE(TRange<int32>::AtLeast(10).Contains(10));
	EXPECT_FALSE(TRange<int32>::GreaterThan(10).Contains(10));
	EXPECT_TRUE(TRange<int32>::AtMost(10).Contains(10));
	EXPECT_FALSE(TRange<int32>::LessThan(10).Contains(10));
	EXPECT_TRUE(TRange<int32>::Exclusive(1, 3).Contains(2));
	EXPECT_FALSE(TRange<int32>::Exclusive(1, 3).Contains(1));

	EXPECT_EQ(TRangeBound<int32>::MaxLower(TRangeBound<int32>::Inclusive(4), TRangeBound<int32>::Exclusive(4)), TRangeBound<int32>::Exclusive(4));
	EXPECT_EQ(TRangeBound<int32>::MinUpper(TRangeBound<int32>::Inclusive(4), TRangeBound<int32>::Exclusive(4)), TRangeBound<int32>::Exclusive(4));
	EXPECT_EQ(TRangeBound<int32>::MinLower(TRangeBound<int32>::Open(), TRangeBound<int32>::Inclusive(4)), TRangeBound<int32>::Open());
	EXPECT_EQ(TRangeBound<int32>::FlipInclusion(TRangeBound<int32>::Inclusive(4)), TRangeBound<int32>::Exclusive(4));
}

TEST(CoreValueTypeTests, IntPointRectAndVector2D)
{
	const FIntPoint Resolution(1920, 1080);
	EXPECT_STREQ(*Resolution.ToString(), TEXT("X=1920 Y=1080"));
	EXPECT_EQ(FIntPoint::ZeroValue, FIntPoint(0, 0));
	EXPECT_EQ(FIntPoint::NoneValue, FIntPoint(INDEX_NONE, INDEX_NONE));
	EXPECT_EQ(Resolution / 2, FIntPoint(960, 540));
	EXPECT_EQ(Resolution + FIntPoint(80, 20), FIntPoint(2000, 1100));
	EXPECT_EQ(Resolution * FIntPoint(2, 3), FIntPoint(3840, 3240));
	EXPECT_EQ(Resolution.GetMax(), 1920);
	EXPECT_EQ(GetTypeHash(FIntPoint(1920, 1080)), GetTypeHash(Resolution));
	EXPECT_NE(GetTypeHash(FIntPoint(1080, 1920)), GetTypeHash(Resolution));

	const FIntRect Rect(0, 0, 1920, 1080);
	EXPECT_EQ(Rect.Width(), 1920);
	EXPECT_EQ(Rect.Height(), 1080);
	EXPECT_EQ(Rect.Size(), Resolution);
	EXPECT_EQ(Rect.Area(), 1920 * 1080);
	EXPECT_FALSE(Rect.IsEmpty());
	EXPECT_TRUE(FIntRect(5, 5, 5, 5).IsEmpty());
	EXPECT_TRUE(FIntRect().IsEmpty());
	EXPECT_TRUE(Rect.Contains(FIntPoint(0, 0)));
	EXPECT_FALSE(Rect.Contains(FIntPoint(1920, 0)));
	EXPECT_EQ(FIntRect(FIntPoint(1, 2), FIntPoint(3, 4)), FIntRect(1, 2, 3, 4));
	EXPECT_STREQ(*FIntRect(1, 2, 3, 4).ToString(), TEXT("Min=(X=1 Y=2) Max=(X=3 Y=4)"));

	FIntRect Clipped(-10, -10, 100, 100);
	Clipped.Clip(FIntRect(0, 0, 50, 200));
	EXPECT_EQ(Clipped, FIntRect(0, 0, 50, 100));

	const FVector2D Vector(1.5, -2.0);
	EXPECT_STREQ(*Vector.ToString(), TEXT("X=1.500 Y=-2.000"));
	EXPECT_EQ(Vector * 2.0, FVector2D(3.0, -4.0));
	EXPECT_DOUBLE_EQ(FVector2D(3.0, 4.0).Size(), 5.0);
	EXPECT_DOUBLE_EQ(Vector | FVector2D(2.0, 1.0), 1.0);
	EXPECT_TRUE(FVector2D(3.0, 4.0).GetSafeNormal().Equals(FVector2D(0.6, 0.8)));
	EXPECT_EQ(FVector2D::ZeroVector.GetSafeNormal(), FVector2D::ZeroVector);
	EXPECT_EQ(FVector2D(Resolution), FVector2D(1920.0, 1080.0));
}

TEST(CoreValueTypeTests, ColorText)
{
	EXPECT_STREQ(*FColor(255, 128, 0).ToString(), TEXT("(R=255,G=128,B=0,A=255)"));
	EXPECT_STREQ(*FColor(255, 128, 0, 16).ToHex(), TEXT("FF800010"));
	EXPECT_STREQ(*FLinearColor(1.f, 0.5f, 0.f).ToString(), TEXT("(R=1.000000,G=0.500000,B=0.000000,A=1.000000)"));
	EXPECT_EQ(FLinearColor(1.f, 0.5f, 0.f).ToFColor(false), FColor(255, 127, 0));
	EXPECT_EQ(FLinearColor(1.f, 0.5f, 0.f).ToFColor(true), FColor(255, 188, 0));
	EXPECT_EQ(FLinearColor(2.f, -1.f, 0.f, 0.f).ToFColor(true), FColor(255, 0, 0, 0)) << "channels clamp to [0, 1]";
	EXPECT_TRUE(FLinearColor(FColor(255, 188, 0)).Equals(FLinearColor(1.f, 0.5029f, 0.f), 1.e-3f));
	EXPECT_EQ(FColor(0x80FF0010u), FColor(255, 0, 16, 128));
	EXPECT_EQ(FLinearColor::White, FLinearColor(1.f, 1.f, 1.f, 1.f));
	EXPECT_EQ(FColor::Transparent.A, 0);
}

TEST(CoreValueTypeTests, FrameTimeScalingAndText)
{
	EXPECT_EQ(FFrameTime(FFrameNumber(10), 0.5f) * 2.0, FFrameTime(21));
	EXPECT_EQ(FFrameTime(21) / 2.0, FFrameTime(FFrameNumber(10), 0.5f));
	EXPECT_EQ(FFrameTime::FromDecimal(1e20).GetFrame().Value, MAX_int32) << "saturates";
	EXPECT_STREQ(*LexToString(FFrameTime(FFrameNumber(10), 0.5f)), TEXT("Frame: 10 Subframe: 0.500000"));

	FFrameTime Accumulated(FFrameNumber(5), 0.75f);
	Accumulated += FFrameTime(FFrameNumber(1), 0.5f);
	EXPECT_EQ(Accumulated, FFrameTime(FFrameNumber(7), 0.25f));
	Accumulated -= FFrameTime(FFrameNumber(8), 0.5f);
	EXPECT_EQ(Accumulated, FFrameTime(FFrameNumber(-2), 0.75f));

	FFrameNumber Counter(3);
	EXPECT_EQ((Counter++).Value, 3);
	EXPECT_EQ((++Counter).Value, 5);
	EXPECT_EQ(TNumericLimits<FFrameNumber>::Max().Value, MAX_int32);
}

TEST(CoreValueTypeTests, WideIntegerPointsAndGuidHelpers)
{
	EXPECT_STREQ(*FInt64Point(5000000000, -1).ToString(), TEXT("X=5000000000 Y=-1"));
	EXPECT_EQ(FUintPoint::NoneValue, FUintPoint(MAX_uint32, MAX_uint32));
	EXPECT_EQ(FInt64Point(FIntPoint(3, 4)), FInt64Point(3, 4));
	EXPECT_EQ(FIntPoint(3, 4).SizeSquared(), 25);
	EXPECT_EQ(FIntPoint(3, 4).Size(), 5);

	EXPECT_EQ(SampleGuid[3], 0x76543210u);
	EXPECT_EQ(SampleGuid[7], SampleGuid.A) << "an out-of-range index gives A";
}
