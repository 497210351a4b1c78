#include "Misc/DateTime.h"

#include "CoreGlobals.h"
#include "Logging/LogMacros.h"
#include "Math/UnrealMathUtility.h"
#include "Misc/CString.h"

#include <ctime>

namespace
{
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

	bool IsLeapYear(int32 Year)
	{
		return (Year % 4) == 0 && ((Year % 100) != 0 || (Year % 400) == 0);
	}

	int32 DaysInMonth(int32 Year, int32 Month)
	{
		static constexpr int32 DaysPerMonth[] = { 0, 31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31 };
		if (Month < 1 || Month > 12)
		{
			return 0;
		}
		return (Month == 2 && IsLeapYear(Year)) ? 29 : DaysPerMonth[Month];
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

int32 FDateTime::GetHour12() const
{
	const int32 Hour = GetHour();
	if (Hour < 1)
	{
		return 12;
	}
	return Hour > 12 ? Hour - 12 : Hour;
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

	const int64 DayNumber = FloorDivide(Ticks, ETimespan::TicksPerDay);
	int32 Year, Month, Day;
	CivilFromDayNumber(DayNumber, Year, Month, Day);

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
		case TEXT('D'): AppendZeroPadded(Result, (int32)(DayNumber - DayNumberFromCivil(Year, 1, 1) + 1), 3); break;
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
