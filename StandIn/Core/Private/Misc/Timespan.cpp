#include "Misc/Timespan.h"

#include <cmath>

namespace
{
	void AppendZeroPadded(FString& Out, int64 Value, int32 DigitCount)
	{
		Out += FString::Printf(TEXT("%0*lld"), DigitCount, (long long)Value);
	}

	/** Reads an unsigned decimal number of at most MaxDigits digits; advances Cursor past it. */
	bool ReadNumber(const FString& Text, int32& Cursor, int32 MaxDigits, int64& OutValue, int32& OutDigitCount)
	{
		OutValue = 0;
		OutDigitCount = 0;
		while (Cursor < Text.Len() && Text[Cursor] >= TEXT('0') && Text[Cursor] <= TEXT('9') && OutDigitCount < MaxDigits)
		{
			OutValue = OutValue * 10 + (Text[Cursor] - TEXT('0'));
			++OutDigitCount;
			++Cursor;
		}
		return OutDigitCount > 0;
	}

	bool ReadSeparator(const FString& Text, int32& Cursor, TCHAR Separator)
	{
		if (Cursor < Text.Len() && Text[Cursor] == Separator)
		{
			++Cursor;
			return true;
		}
		return false;
	}
}

void FTimespan::Assign(int32 Days, int32 Hours, int32 Minutes, int32 Seconds, int32 FractionNano)
{
	// Whole seconds fit an int64 for any int32 inputs; the tick count may not, so it saturates.
	const int64 TotalSeconds = 60 * 60 * 24 * int64(Days) + 60 * 60 * int64(Hours) + 60 * int64(Minutes) + int64(Seconds);
	const int64 MaxSeconds = ETimespan::MaxTicks / ETimespan::TicksPerSecond - 1;
	if (TotalSeconds > MaxSeconds || TotalSeconds < -MaxSeconds)
	{
		Ticks = TotalSeconds > 0 ? ETimespan::MaxTicks : ETimespan::MinTicks;
		return;
	}
	Ticks = TotalSeconds * ETimespan::TicksPerSecond + int64(FractionNano) / ETimespan::NanosecondsPerTick;
}

int64 FTimespan::ClampTicks(double InTicks)
{
	if (std::isnan(InTicks))
	{
		return 0;
	}
	const double Floored = std::floor(InTicks);
	if (Floored >= 9223372036854775807.0)
	{
		return ETimespan::MaxTicks;
	}
	if (Floored <= -9223372036854775808.0)
	{
		return ETimespan::MinTicks;
	}
	return (int64)Floored;
}

FString FTimespan::ToString() const
{
	return GetDays() == 0 ? ToString(TEXT("%h:%m:%s.%f")) : ToString(TEXT("%d.%h:%m:%s.%f"));
}

FString FTimespan::ToString(const TCHAR* Format) const
{
	FString Result;
	if (Format == nullptr)
	{
		return Result;
	}

	Result.AppendChar(Ticks < 0 ? TEXT('-') : TEXT('+'));
	const FTimespan Duration = GetDuration();

	for (const TCHAR* Char = Format; *Char != 0; ++Char)
	{
		if (*Char != TEXT('%') || Char[1] == 0)
		{
			Result.AppendChar(*Char);
			continue;
		}

		++Char;
		switch (*Char)
		{
		case TEXT('d'): Result += FString::Printf(TEXT("%d"), Duration.GetDays()); break;
		case TEXT('D'): AppendZeroPadded(Result, Duration.GetDays(), 8); break;
		case TEXT('h'): AppendZeroPadded(Result, Duration.GetHours(), 2); break;
		case TEXT('m'): AppendZeroPadded(Result, Duration.GetMinutes(), 2); break;
		case TEXT('s'): AppendZeroPadded(Result, Duration.GetSeconds(), 2); break;
		case TEXT('f'): AppendZeroPadded(Result, Duration.GetFractionMilli(), 3); break;
		case TEXT('u'): AppendZeroPadded(Result, Duration.GetFractionMicro(), 6); break;
		case TEXT('n'): AppendZeroPadded(Result, Duration.GetFractionNano(), 9); break;
		default: Result.AppendChar(*Char);
		}
	}

	return Result;
}

bool FTimespan::Parse(const FString& TimespanString, FTimespan& OutTimespan)
{
	int32 Cursor = 0;
	bool bIsNegative = false;
	if (ReadSeparator(TimespanString, Cursor, TEXT('-')))
	{
		bIsNegative = true;
	}
	else
	{
		ReadSeparator(TimespanString, Cursor, TEXT('+'));
	}

	int64 Days = 0;
	int64 First = 0;
	int32 DigitCount = 0;
	if (!ReadNumber(TimespanString, Cursor, 8, First, DigitCount))
	{
		return false;
	}

	int64 Hours = First;
	if (ReadSeparator(TimespanString, Cursor, TEXT('.')))
	{
		Days = First;
		if (!ReadNumber(TimespanString, Cursor, 2, Hours, DigitCount))
		{
			return false;
		}
	}

	int64 Minutes = 0;
	int64 Seconds = 0;
	int64 Milliseconds = 0;
	if (!ReadSeparator(TimespanString, Cursor, TEXT(':')) || !ReadNumber(TimespanString, Cursor, 2, Minutes, DigitCount)
		|| !ReadSeparator(TimespanString, Cursor, TEXT(':')) || !ReadNumber(TimespanString, Cursor, 2, Seconds, DigitCount))
	{
		return false;
	}
	if (ReadSeparator(TimespanString, Cursor, TEXT('.')))
	{
		if (!ReadNumber(TimespanString, Cursor, 3, Milliseconds, DigitCount) || DigitCount != 3)
		{
			return false;
		}
	}

	if (Cursor != TimespanString.Len() || Hours > 23 || Minutes > 59 || Seconds > 59 || Days > 10675199)
	{
		return false;
	}

	const int64 TotalTicks = Days * ETimespan::TicksPerDay + Hours * ETimespan::TicksPerHour + Minutes * ETimespan::TicksPerMinute
		+ Seconds * ETimespan::TicksPerSecond + Milliseconds * ETimespan::TicksPerMillisecond;
	OutTimespan = FTimespan(bIsNegative ? -TotalTicks : TotalTicks);
	return true;
}
