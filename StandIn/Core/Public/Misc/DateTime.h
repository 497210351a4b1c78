// FDateTime: a date and time in ticks of 100 nanoseconds since midnight, January 1, 0001 (proleptic Gregorian calendar).
#pragma once

#include "CoreTypes.h"
#include "Containers/UnrealString.h"
#include "Misc/Timespan.h"
#include "Templates/TypeHash.h"

enum class EDayOfWeek
{
	Monday = 0,
	Tuesday,
	Wednesday,
	Thursday,
	Friday,
	Saturday,
	Sunday
};

enum class EMonthOfYear
{
	January = 1,
	February,
	March,
	April,
	May,
	June,
	July,
	August,
	September,
	October,
	November,
	December
};

struct FDateTime
{
public:
	FDateTime()
		: Ticks(0)
	{
	}

	FDateTime(int64 InTicks)
		: Ticks(InTicks)
	{
	}

	/** Stand-in choice: invalid components log an error and give MinValue() where the engine raises a fatal error. */
	CORE_API FDateTime(int32 Year, int32 Month, int32 Day, int32 Hour = 0, int32 Minute = 0, int32 Second = 0, int32 Millisecond = 0);

public:
	FDateTime operator+(const FTimespan& Other) const { return FDateTime(Ticks + Other.GetTicks()); }
	FDateTime& operator+=(const FTimespan& Other) { Ticks += Other.GetTicks(); return *this; }
	FTimespan operator-(const FDateTime& Other) const { return FTimespan(Ticks - Other.Ticks); }
	FDateTime operator-(const FTimespan& Other) const { return FDateTime(Ticks - Other.GetTicks()); }
	FDateTime& operator-=(const FTimespan& Other) { Ticks -= Other.GetTicks(); return *this; }

	bool operator==(const FDateTime& Other) const { return Ticks == Other.Ticks; }
	bool operator!=(const FDateTime& Other) const { return Ticks != Other.Ticks; }
	bool operator>(const FDateTime& Other) const { return Ticks > Other.Ticks; }
	bool operator>=(const FDateTime& Other) const { return Ticks >= Other.Ticks; }
	bool operator<(const FDateTime& Other) const { return Ticks < Other.Ticks; }
	bool operator<=(const FDateTime& Other) const { return Ticks <= Other.Ticks; }

public:
	/** The date part (midnight of this day). */
	FDateTime GetDate() const { return FDateTime(Ticks - (Ticks % ETimespan::TicksPerDay)); }

	CORE_API void GetDate(int32& OutYear, int32& OutMonth, int32& OutDay) const;
	CORE_API int32 GetDay() const;
	CORE_API EDayOfWeek GetDayOfWeek() const;
	CORE_API int32 GetDayOfYear() const;
	int32 GetHour() const { return (int32)((Ticks / ETimespan::TicksPerHour) % 24); }
	CORE_API int32 GetHour12() const;
	int32 GetMillisecond() const { return (int32)((Ticks / ETimespan::TicksPerMillisecond) % 1000); }
	int32 GetMinute() const { return (int32)((Ticks / ETimespan::TicksPerMinute) % 60); }
	CORE_API int32 GetMonth() const;
	EMonthOfYear GetMonthOfYear() const { return static_cast<EMonthOfYear>(GetMonth()); }
	int32 GetSecond() const { return (int32)((Ticks / ETimespan::TicksPerSecond) % 60); }
	int64 GetTicks() const { return Ticks; }
	FTimespan GetTimeOfDay() const { return FTimespan(Ticks % ETimespan::TicksPerDay); }
	CORE_API int32 GetYear() const;

	double GetJulianDay() const { return 1721425.5 + (double)Ticks / ETimespan::TicksPerDay; }
	double GetModifiedJulianDay() const { return GetJulianDay() - 2400000.5; }

	bool IsAfternoon() const { return GetHour() >= 12; }
	bool IsMorning() const { return GetHour() < 12; }

	/** "Sun, 06 Nov 1994 08:49:37 GMT" (RFC 1123). */
	CORE_API FString ToHttpDate() const;

	/** "YYYY-MM-DDTHH:MM:SS.mmmZ". */
	CORE_API FString ToIso8601() const;

	/** "YYYY.MM.DD-HH.MM.SS". */
	CORE_API FString ToString() const;

	/**
	 * The engine's own format codes: %a am/pm, %A AM/PM, %d day 01-31, %D day of year 001-366, %m month 01-12,
	 * %y two-digit year, %Y four-digit year, %h 12-hour 01-12, %H 24-hour 00-23, %M minute, %S second, %s millisecond 000-999;
	 * '%' before any other character prints that character.
	 */
	CORE_API FString ToString(const TCHAR* Format) const;

	/**
	 * strftime-like codes: %a Sun, %A Sunday, %w weekday 0-6 (Sunday is 0), %y, %Y, %b Jan, %B January, %m, %d, %e day 1-31,
	 * %l 12-hour 1-12, %I 12-hour 01-12, %H, %M, %S, %p AM/PM, %P am/pm, %j day of year 001-366.
	 */
	CORE_API FString ToFormattedString(const TCHAR* Format) const;

	/** Whole seconds since 1970-01-01 00:00:00 (truncated toward zero). */
	CORE_API int64 ToUnixTimestamp() const;
	CORE_API double ToUnixTimestampDecimal() const;

public:
	CORE_API static int32 DaysInMonth(int32 Year, int32 Month);
	CORE_API static int32 DaysInYear(int32 Year);
	CORE_API static bool IsLeapYear(int32 Year);

	static FDateTime FromJulianDay(double JulianDay) { return FDateTime((int64)((JulianDay - 1721425.5) * ETimespan::TicksPerDay)); }
	CORE_API static FDateTime FromUnixTimestamp(int64 UnixTime);
	CORE_API static FDateTime FromUnixTimestampDecimal(double UnixTime);

	static FDateTime MaxValue() { return FDateTime(3652059 * ETimespan::TicksPerDay - 1); }
	static FDateTime MinValue() { return FDateTime(0); }

	/** Local time of this machine. */
	CORE_API static FDateTime Now();
	static FDateTime Today() { return Now().GetDate(); }
	CORE_API static FDateTime UtcNow();

	/** Parses the ToString() format, "YYYY.MM.DD-HH.MM.SS" with an optional ".mmm" (also with '-', ':' or ' ' separators). */
	CORE_API static bool Parse(const FString& DateTimeString, FDateTime& OutDateTime);

	/** Parses "YYYY-MM-DD", optionally followed by "THH:MM:SS", fractional seconds and "Z" or a "+hh:mm", "+hhmm" or "+hh" offset (converted to UTC). */
	CORE_API static bool ParseIso8601(const TCHAR* DateTimeString, FDateTime& OutDateTime);

	CORE_API static bool Validate(int32 Year, int32 Month, int32 Day, int32 Hour, int32 Minute, int32 Second, int32 Millisecond);

	friend uint32 GetTypeHash(const FDateTime& DateTime)
	{
		return GetTypeHash(DateTime.Ticks);
	}

private:
	int64 Ticks;
};
