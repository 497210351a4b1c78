// FTimespan: a signed time interval in ticks of 100 nanoseconds.
#pragma once

#include "CoreTypes.h"
#include "Containers/UnrealString.h"
#include "Templates/TypeHash.h"

namespace ETimespan
{
	inline constexpr int64 MaxTicks = 9223372036854775807;
	inline constexpr int64 MinTicks = -9223372036854775807 - 1;
	inline constexpr int64 NanosecondsPerTick = 100;
	inline constexpr int64 TicksPerDay = 864000000000;
	inline constexpr int64 TicksPerHour = 36000000000;
	inline constexpr int64 TicksPerMicrosecond = 10;
	inline constexpr int64 TicksPerMillisecond = 10000;
	inline constexpr int64 TicksPerMinute = 600000000;
	inline constexpr int64 TicksPerSecond = 10000000;
	inline constexpr int64 TicksPerWeek = 6048000000000;
	inline constexpr int64 TicksPerYear = 365 * TicksPerDay;
}

struct FTimespan
{
public:
	FTimespan()
		: Ticks(0)
	{
	}

	FTimespan(int64 InTicks)
		: Ticks(InTicks)
	{
	}

public:
	FTimespan operator+(const FTimespan& Other) const { return FTimespan(Ticks + Other.Ticks); }
	FTimespan& operator+=(const FTimespan& Other) { Ticks += Other.Ticks; return *this; }
	FTimespan operator-(const FTimespan& Other) const { return FTimespan(Ticks - Other.Ticks); }
	FTimespan& operator-=(const FTimespan& Other) { Ticks -= Other.Ticks; return *this; }

	bool operator==(const FTimespan& Other) const { return Ticks == Other.Ticks; }
	bool operator!=(const FTimespan& Other) const { return Ticks != Other.Ticks; }
	bool operator>(const FTimespan& Other) const { return Ticks > Other.Ticks; }
	bool operator>=(const FTimespan& Other) const { return Ticks >= Other.Ticks; }
	bool operator<(const FTimespan& Other) const { return Ticks < Other.Ticks; }
	bool operator<=(const FTimespan& Other) const { return Ticks <= Other.Ticks; }

public:
	int64 GetTicks() const { return Ticks; }
	double GetTotalSeconds() const { return (double)Ticks / ETimespan::TicksPerSecond; }

public:
	static FTimespan FromHours(double Hours) { return FTimespan(ClampTicks(Hours * ETimespan::TicksPerHour + 0.5)); }
	static FTimespan FromSeconds(double Seconds) { return FTimespan(ClampTicks(Seconds * ETimespan::TicksPerSecond + 0.5)); }

	friend uint32 GetTypeHash(const FTimespan& Timespan)
	{
		return GetTypeHash(Timespan.Ticks);
	}

private:
	/** Rounds a floating-point tick count down and keeps it inside the representable range. */
	CORE_API static int64 ClampTicks(double InTicks);

	int64 Ticks;
};
