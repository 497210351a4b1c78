// FDateTime: a date and time in ticks of 100 nanoseconds since midnight, January 1, 0001 (proleptic Gregorian calendar).
#pragma once

#include "CoreTypes.h"
#include "Containers/UnrealString.h"
#include "Misc/Timespan.h"
#include "Templates/TypeHash.h"

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

	/** Stand-in choice: invalid components log an error and give tick 0 (the minimum date) where the engine raises a fatal error. */
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
	int32 GetHour() const { return (int32)((Ticks / ETimespan::TicksPerHour) % 24); }
	CORE_API int32 GetHour12() const;
	int32 GetMillisecond() const { return (int32)((Ticks / ETimespan::TicksPerMillisecond) % 1000); }
	int32 GetMinute() const { return (int32)((Ticks / ETimespan::TicksPerMinute) % 60); }
	int32 GetSecond() const { return (int32)((Ticks / ETimespan::TicksPerSecond) % 60); }
	int64 GetTicks() const { return Ticks; }

	bool IsMorning() const { return GetHour() < 12; }

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

public:
	/** Local time of this machine. */
	CORE_API static FDateTime Now();
	CORE_API static FDateTime UtcNow();

	/** Parses the ToString() format, "YYYY.MM.DD-HH.MM.SS" with an optional ".mmm" (also with '-', ':' or ' ' separators). */
	CORE_API static bool Parse(const FString& DateTimeString, FDateTime& OutDateTime);

	CORE_API static bool Validate(int32 Year, int32 Month, int32 Day, int32 Hour, int32 Minute, int32 Second, int32 Millisecond);

	friend uint32 GetTypeHash(const FDateTime& DateTime)
	{
		return GetTypeHash(DateTime.Ticks);
	}

private:
	int64 Ticks;
};
