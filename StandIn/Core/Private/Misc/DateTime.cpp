#include "Misc/DateTime.h"

#include "CoreGlobals.h"
#include "Logging/LogMacros.h"
#include "Math/UnrealMathUtility.h"
#include "Misc/Char.h"
#include "Misc/CString.h"

#include <ctime>

namespace
{
	const TCHAR* const ShortDayNames[] = { TEXT("Mon"), TEXT("Tue"), TEXT("Wed"), TEXT("Thu"), TEXT("Fri"), TEXT("Sat"), TEXT("Sun") };
	const TCHAR* const LongDayNames[] = { TEXT("Monday"), TEXT("Tuesday"), TEXT("Wednesday"), TEXT("Thursday"), TEXT("Friday"), TEXT("Saturday"), TEXT("Sunday") };
	const TCHAR* const ShortMonthNames[] = { TEXT("Jan"), TEXT("Feb"), TEXT("Mar"), TEXT("Apr"), TEXT("May"), TEXT("Jun"), TEXT("Jul"), TEXT("Aug"), TEXT("Sep"), TEXT("Oct"), TEXT("Nov"), TEXT("Dec") };
	const TCHAR* const LongMonthNames[] = { TEXT("January"), TEXT("February"), TEXT("March"), TEXT("April"), TEXT("May"), TEXT("June"), TEXT("July"), TEXT("August"), TEXT("September"), TEXT("October"), TEXT("November"), TEXT("December") };

	/** Days between 0001-01-01 and 1970-01-01. */
	constexpr int64 DaysToUnixEpoch = 719162;

	int64 FloorDivide(int64 Dividend, int64 Divisor)
	{
		const int64 Quotient = Dividend / Divisor;
		return (Dividend % Divisor != 0 && (Dividend < 0) != (Divisor < 0)) ? Quotient - 1 : Quotient;
	}

	/** Days since 0001-01-01 of a proleptic Gregorian date (era-based, valid for any year). */
	int64 DayNumberFromCivil(int64 Year, int64 Month, int64 Day)
	{
		Year -= Month <= 2 ? 1 : 0;
		const int64 Era = FloorDivide(Year, 400);
		const int64 YearOfEra = Year - Era * 400;
		const int64 DayOfYear = (153 * (Month > 2 ? Month - 3 : Month + 9) + 2) / 5 + Day - 1;
		const int64 DayOfEra = YearOfEra * 365 + YearOfEra / 4 - YearOfEra / 100 + DayOfYear;
		return Era * 146097 + DayOfEra - 719468 + DaysToUnixEpoch;
	}

	void CivilFromDayNumber(int64 DayNumber, int32& OutYear, int32& OutMonth, int32& OutDay)
	{
		const int64 DaysFromMarchFirstYearZero = DayNumber - DaysToUnixEpoch + 719468;
		const int64 Era = FloorDivide(DaysFromMarchFirstYearZero, 146097);
		const int64 DayOfEra = DaysFromMarchFirstYearZero - Era * 146097;
		const int64 YearOfEra = (DayOfEra - DayOfEra / 1460 + DayOfEra / 36524 - DayOfEra / 146096) / 365;
		const int64 DayOfYear = DayOfEra - (365 * YearOfEra + YearOfEra / 4 - YearOfEra / 100);
		const int64 MonthFromMarch = (5 * DayOfYear + 2) / 153;
		OutDay = (int32)(DayOfYear - (153 * MonthFromMarch + 2) / 5 + 1);
		OutMonth = (int32)(MonthFromMarch < 10 ? MonthFromMarch + 3 : MonthFromMarch - 9);
		OutYear = (int32)(YearOfEra + Era * 400 + (OutMonth <= 2 ? 1 : 0));
	}

	void AppendZeroPadded(FString& Out, int32 Value, int32 DigitCount)
	{
		Out += FString::Printf(TEXT("%0*d"), DigitCount, Value);
	}

	FDateTime DateTimeFromUnixClock(const timespec& Clock, bool bLocalTime)
	{
		tm Calendar = {};
		const time_t Seconds = Clock.tv_sec;
		if (bLocalTime ? localtime_r(&Seconds, &Calendar) == nullptr : gmtime_r(&Seconds, &Calendar) == nullptr)
		{
			return FDateTime();
		}
		const int32 Millisecond = (int32)(Clock.tv_nsec / 1000000);
		return FDateTime(Calendar.tm_year + 1900, Calendar.tm_mon + 1, Calendar.tm_mday, Calendar.tm_hour, Calendar.tm_min, FMath::Min(Calendar.tm_sec, 59), Millisecond);
	}

	/** Reads an optionally signed decimal integer; fails when no digit follows. */
	bool ReadInteger(const TCHAR*& Cursor, int32 MaxDigits, int32& OutValue, int32* OutDigitCount = nullptr)
	{
		int32 DigitCount = 0;
		int64 Value = 0;
		while (FChar::IsDigit(*Cursor) && DigitCount < MaxDigits)
		{
			Value = Value * 10 + (*Cursor - TEXT('0'));
			++Cursor;
			++DigitCount;
		}
		if (OutDigitCount)
		{
			*OutDigitCount = DigitCount;
		}
		OutValue = (int32)Value;
		return DigitCount > 0;
	}

	bool ReadChar(const TCHAR*& Cursor, TCHAR Expected)
	{
		if (*Cursor != Expected)
		{
			return false;
		}
		++Cursor;
		return true;
	}

	/** Reads ".fff…" (any number of digits) as milliseconds, rounding digits beyond the third. */
	bool ReadFractionAsMilliseconds(const TCHAR*& Cursor, int32& OutMillisecond)
	{
		int64 Fraction = 0;
		int32 DigitCount = 0;
		while (FChar::IsDigit(*Cursor))
		{
			if (DigitCount < 18)
			{
				Fraction = Fraction * 10 + (*Cursor - TEXT('0'));
				++DigitCount;
			}
			++Cursor;
		}
		if (DigitCount == 0)
		{
			return false;
		}
		for (; DigitCount < 3; ++DigitCount)
		{
			Fraction *= 10;
		}
		int64 Divisor = 1;
		for (; DigitCount > 3; --DigitCount)
		{
			Divisor *= 10;
		}
		OutMillisecond = (int32)FMath::Min<int64>((Fraction + Divisor / 2) / Divisor, 999);
		return true;
	}

	/** Reads "Z", "+hh", "+hh:mm" or "+hhmm" (or '-'); nothing at all means UTC. */
	bool ReadTimeZoneOffsetMinutes(const TCHAR*& Cursor, int32& OutOffsetMinutes)
	{
		OutOffsetMinutes = 0;
		if (*Cursor == 0 || ReadChar(Cursor, TEXT('Z')))
		{
			return true;
		}
		const TCHAR Sign = *Cursor;
		if (Sign != TEXT('+') && Sign != TEXT('-'))
		{
			return false;
		}
		++Cursor;

		int32 Hours = 0;
		int32 Minutes = 0;
		int32 DigitCount = 0;
		if (!ReadInteger(Cursor, 4, Hours, &DigitCount))
		{
			return false;
		}
		if (DigitCount == 4)
		{
			Minutes = Hours % 100;
			Hours /= 100;
		}
		else if (DigitCount != 2 || (ReadChar(Cursor, TEXT(':')) && !ReadInteger(Cursor, 2, Minutes)))
		{
			return false;
		}
		OutOffsetMinutes = (Sign == TEXT('-') ? -1 : 1) * (Hours * 60 + Minutes);
		return true;
	}
}

FDateTime::FDateTime(int32 Year, int32 Month, int32 Day, int32 Hour, int32 Minute, int32 Second, int32 Millisecond)
	: Ticks(0)
{
	if (!Validate(Year, Month, Day, Hour, Minute, Second, Millisecond))
	{
		UE_LOG(LogCore, Error, TEXT("Invalid Date values. Y:%d, M:%d, D:%d, H:%d, M:%d, S:%d, Ms:%d"), Year, Month, Day, Hour, Minute, Second, Millisecond);
		return;
	}

	Ticks = DayNumberFromCivil(Year, Month, Day) * ETimespan::TicksPerDay
		+ Hour * ETimespan::TicksPerHour
		+ Minute * ETimespan::TicksPerMinute
		+ Second * ETimespan::TicksPerSecond
		+ Millisecond * ETimespan::TicksPerMillisecond;
}

void FDateTime::GetDate(int32& OutYear, int32& OutMonth, int32& OutDay) const
{
	CivilFromDayNumber(FloorDivide(Ticks, ETimespan::TicksPerDay), OutYear, OutMonth, OutDay);
}

int32 FDateTime::GetDay() const
{
	int32 Year, Month, Day;
	GetDate(Year, Month, Day);
	return Day;
}

EDayOfWeek FDateTime::GetDayOfWeek() const
{
	// January 1, 0001 was a Monday.
	const int64 DayNumber = FloorDivide(Ticks, ETimespan::TicksPerDay);
	return static_cast<EDayOfWeek>(DayNumber - FloorDivide(DayNumber, 7) * 7);
}

int32 FDateTime::GetDayOfYear() const
{
	int32 Year, Month, Day;
	GetDate(Year, Month, Day);
	return (int32)(DayNumberFromCivil(Year, Month, Day) - DayNumberFromCivil(Year, 1, 1) + 1);
}

int32 FDateTime::GetHour12() const
{
	const int32 Hour = GetHour();
	if (Hour < 1)
	{
		return 12;
	}
	return Hour > 12 ? Hour - 12 : Hour;
}

int32 FDateTime::GetMonth() const
{
	int32 Year, Month, Day;
	GetDate(Year, Month, Day);
	return Month;
}

int32 FDateTime::GetYear() const
{
	int32 Year, Month, Day;
	GetDate(Year, Month, Day);
	return Year;
}

FString FDateTime::ToHttpDate() const
{
	return FString::Printf(TEXT("%s, %02d %s %d %02d:%02d:%02d GMT"), ShortDayNames[(int32)GetDayOfWeek()], GetDay(),
		ShortMonthNames[GetMonth() - 1], GetYear(), GetHour(), GetMinute(), GetSecond());
}

FString FDateTime::ToIso8601() const
{
	return ToString(TEXT("%Y-%m-%dT%H:%M:%S.%sZ"));
}

FString FDateTime::ToString() const
{
	return ToString(TEXT("%Y.%m.%d-%H.%M.%S"));
}

FString FDateTime::ToString(const TCHAR* Format) const
{
	FString Result;
	if (Format == nullptr)
	{
		return Result;
	}

	int32 Year, Month, Day;
	GetDate(Year, Month, Day);

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
		case TEXT('a'): Result += IsMorning() ? TEXT("am") : TEXT("pm"); break;
		case TEXT('A'): Result += IsMorning() ? TEXT("AM") : TEXT("PM"); break;
		case TEXT('D'): AppendZeroPadded(Result, GetDayOfYear(), 3); break;
		case TEXT('d'): AppendZeroPadded(Result, Day, 2); break;
		case TEXT('m'): AppendZeroPadded(Result, Month, 2); break;
		case TEXT('y'): AppendZeroPadded(Result, Year % 100, 2); break;
		case TEXT('Y'): AppendZeroPadded(Result, Year, 4); break;
		case TEXT('h'): AppendZeroPadded(Result, GetHour12(), 2); break;
		case TEXT('H'): AppendZeroPadded(Result, GetHour(), 2); break;
		case TEXT('M'): AppendZeroPadded(Result, GetMinute(), 2); break;
		case TEXT('S'): AppendZeroPadded(Result, GetSecond(), 2); break;
		case TEXT('s'): AppendZeroPadded(Result, GetMillisecond(), 3); break;
		default: Result.AppendChar(*Char);
		}
	}

	return Result;
}

FString FDateTime::ToFormattedString(const TCHAR* Format) const
{
	FString Result;
	if (Format == nullptr)
	{
		return Result;
	}

	const int32 DayOfWeek = (int32)GetDayOfWeek();
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
		case TEXT('a'): Result += ShortDayNames[DayOfWeek]; break;
		case TEXT('A'): Result += LongDayNames[DayOfWeek]; break;
		case TEXT('w'): Result += FString::Printf(TEXT("%d"), (DayOfWeek + 1) % 7); break;
		case TEXT('y'): AppendZeroPadded(Result, GetYear() % 100, 2); break;
		case TEXT('Y'): AppendZeroPadded(Result, GetYear(), 4); break;
		case TEXT('b'): Result += ShortMonthNames[GetMonth() - 1]; break;
		case TEXT('B'): Result += LongMonthNames[GetMonth() - 1]; break;
		case TEXT('m'): AppendZeroPadded(Result, GetMonth(), 2); break;
		case TEXT('d'): AppendZeroPadded(Result, GetDay(), 2); break;
		case TEXT('e'): Result += FString::Printf(TEXT("%d"), GetDay()); break;
		case TEXT('l'): Result += FString::Printf(TEXT("%d"), GetHour12()); break;
		case TEXT('I'): AppendZeroPadded(Result, GetHour12(), 2); break;
		case TEXT('H'): AppendZeroPadded(Result, GetHour(), 2); break;
		case TEXT('M'): AppendZeroPadded(Result, GetMinute(), 2); break;
		case TEXT('S'): AppendZeroPadded(Result, GetSecond(), 2); break;
		case TEXT('p'): Result += IsMorning() ? TEXT("AM") : TEXT("PM"); break;
		case TEXT('P'): Result += IsMorning() ? TEXT("am") : TEXT("pm"); break;
		case TEXT('j'): AppendZeroPadded(Result, GetDayOfYear(), 3); break;
		default: Result.AppendChar(*Char);
		}
	}

	return Result;
}

int64 FDateTime::ToUnixTimestamp() const
{
	return (Ticks - DaysToUnixEpoch * ETimespan::TicksPerDay) / ETimespan::TicksPerSecond;
}

double FDateTime::ToUnixTimestampDecimal() const
{
	return double(Ticks - DaysToUnixEpoch * ETimespan::TicksPerDay) / ETimespan::TicksPerSecond;
}

int32 FDateTime::DaysInMonth(int32 Year, int32 Month)
{
	static constexpr int32 DaysPerMonth[] = { 0, 31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31 };
	if (Month < 1 || Month > 12)
	{
		return 0;
	}
	return (Month == 2 && IsLeapYear(Year)) ? 29 : DaysPerMonth[Month];
}

int32 FDateTime::DaysInYear(int32 Year)
{
	return IsLeapYear(Year) ? 366 : 365;
}

bool FDateTime::IsLeapYear(int32 Year)
{
	return (Year % 4) == 0 && ((Year % 100) != 0 || (Year % 400) == 0);
}

FDateTime FDateTime::FromUnixTimestamp(int64 UnixTime)
{
	return FDateTime(DaysToUnixEpoch * ETimespan::TicksPerDay) + FTimespan::FromSeconds((double)UnixTime);
}

FDateTime FDateTime::FromUnixTimestampDecimal(double UnixTime)
{
	return FDateTime(DaysToUnixEpoch * ETimespan::TicksPerDay) + FTimespan::FromSeconds(UnixTime);
}

FDateTime FDateTime::Now()
{
	timespec Clock = {};
	clock_gettime(CLOCK_REALTIME, &Clock);
	return DateTimeFromUnixClock(Clock, true);
}

FDateTime FDateTime::UtcNow()
{
	timespec Clock = {};
	clock_gettime(CLOCK_REALTIME, &Clock);
	return DateTimeFromUnixClock(Clock, false);
}

bool FDateTime::Parse(const FString& DateTimeString, FDateTime& OutDateTime)
{
	FString FixedString = DateTimeString.Replace(TEXT("-"), TEXT(" "));
	FixedString.ReplaceInline(TEXT(":"), TEXT(" "), ESearchCase::CaseSensitive);
	FixedString.ReplaceInline(TEXT("."), TEXT(" "), ESearchCase::CaseSensitive);

	TArray<FString> Tokens;
	FixedString.ParseIntoArray(Tokens, TEXT(" "), true);
	if (Tokens.Num() < 6 || Tokens.Num() > 7)
	{
		return false;
	}

	const int32 Year = FCString::Atoi(*Tokens[0]);
	const int32 Month = FCString::Atoi(*Tokens[1]);
	const int32 Day = FCString::Atoi(*Tokens[2]);
	const int32 Hour = FCString::Atoi(*Tokens[3]);
	const int32 Minute = FCString::Atoi(*Tokens[4]);
	const int32 Second = FCString::Atoi(*Tokens[5]);
	const int32 Millisecond = Tokens.Num() > 6 ? FCString::Atoi(*Tokens[6]) : 0;
	if (!Validate(Year, Month, Day, Hour, Minute, Second, Millisecond))
	{
		return false;
	}

	OutDateTime = FDateTime(Year, Month, Day, Hour, Minute, Second, Millisecond);
	return true;
}

bool FDateTime::ParseIso8601(const TCHAR* DateTimeString, FDateTime& OutDateTime)
{
	if (DateTimeString == nullptr)
	{
		return false;
	}

	const TCHAR* Cursor = DateTimeString;
	int32 Year = 0, Month = 0, Day = 0;
	if (!ReadInteger(Cursor, 4, Year) || !ReadChar(Cursor, TEXT('-')) || !ReadInteger(Cursor, 2, Month)
		|| !ReadChar(Cursor, TEXT('-')) || !ReadInteger(Cursor, 2, Day))
	{
		return false;
	}

	int32 Hour = 0, Minute = 0, Second = 0, Millisecond = 0, OffsetMinutes = 0;
	if (ReadChar(Cursor, TEXT('T')))
	{
		if (!ReadInteger(Cursor, 2, Hour) || !ReadChar(Cursor, TEXT(':')) || !ReadInteger(Cursor, 2, Minute)
			|| !ReadChar(Cursor, TEXT(':')) || !ReadInteger(Cursor, 2, Second))
		{
			return false;
		}
		if (ReadChar(Cursor, TEXT('.')) && !ReadFractionAsMilliseconds(Cursor, Millisecond))
		{
			return false;
		}
		if (!ReadTimeZoneOffsetMinutes(Cursor, OffsetMinutes))
		{
			return false;
		}
	}

	if (*Cursor != 0 || !Validate(Year, Month, Day, Hour, Minute, Second, Millisecond))
	{
		return false;
	}

	OutDateTime = FDateTime(Year, Month, Day, Hour, Minute, Second, Millisecond) - FTimespan::FromMinutes(OffsetMinutes);
	return true;
}

bool FDateTime::Validate(int32 Year, int32 Month, int32 Day, int32 Hour, int32 Minute, int32 Second, int32 Millisecond)
{
	return Year >= 1 && Year <= 9999
		&& Month >= 1 && Month <= 12
		&& Day >= 1 && Day <= DaysInMonth(Year, Month)
		&& Hour >= 0 && Hour <= 23
		&& Minute >= 0 && Minute <= 59
		&& Second >= 0 && Second <= 59
		&& Millisecond >= 0 && Millisecond <= 999;
}
