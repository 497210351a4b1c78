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

	FTimespan(int32 Hours, int32 Minutes, int32 Seconds)
	{
		Assign(0, Hours, Minutes, Seconds, 0);
	}

	FTimespan(int32 Days, int32 Hours, int32 Minutes, int32 Seconds)
	{
		Assign(Days, Hours, Minutes, Seconds, 0);
	}

	FTimespan(int32 Days, int32 Hours, int32 Minutes, int32 Seconds, int32 FractionNano)
	{
		Assign(Days, Hours, Minutes, Seconds, FractionNano);
	}

public:
	FTimespan operator+(const FTimespan& Other) const { return FTimespan(Ticks + Other.Ticks); }
	FTimespan& operator+=(const FTimespan& Other) { Ticks += Other.Ticks; return *this; }
	FTimespan operator-() const { return FTimespan(-Ticks); }
	FTimespan operator-(const FTimespan& Other) const { return FTimespan(Ticks - Other.Ticks); }
	FTimespan& operator-=(const FTimespan& Other) { Ticks -= Other.Ticks; return *this; }
	FTimespan operator*(double Scalar) const { return FTimespan(ClampTicks((double)Ticks * Scalar)); }
	FTimespan& operator*=(double Scalar) { Ticks = ClampTicks((double)Ticks * Scalar); return *this; }
	FTimespan operator/(double Scalar) const { return FTimespan(ClampTicks((double)Ticks / Scalar)); }
	FTimespan& operator/=(double Scalar) { Ticks = ClampTicks((double)Ticks / Scalar); return *this; }
	/** Stand-in choice: a zero divisor gives zero where the engine divides by zero. */
	FTimespan operator%(const FTimespan& Other) const { return Other.Ticks == 0 ? FTimespan() : FTimespan(Ticks % Other.Ticks); }

	bool operator==(const FTimespan& Other) const { return Ticks == Other.Ticks; }
	bool operator!=(const FTimespan& Other) const { return Ticks != Other.Ticks; }
	bool operator>(const FTimespan& Other) const { return Ticks > Other.Ticks; }
	bool operator>=(const FTimespan& Other) const { return Ticks >= Other.Ticks; }
	bool operator<(const FTimespan& Other) const { return Ticks < Other.Ticks; }
	bool operator<=(const FTimespan& Other) const { return Ticks <= Other.Ticks; }

public:
	int32 GetDays() const { return (int32)(Ticks / ETimespan::TicksPerDay); }
	FTimespan GetDuration() const { return FTimespan(Ticks >= 0 ? Ticks : (Ticks == ETimespan::MinTicks ? ETimespan::MaxTicks : -Ticks)); }
	int32 GetFractionMicro() const { return (int32)((Ticks % ETimespan::TicksPerSecond) / ETimespan::TicksPerMicrosecond); }
	int32 GetFractionMilli() const { return (int32)((Ticks % ETimespan::TicksPerSecond) / ETimespan::TicksPerMillisecond); }
	int32 GetFractionNano() const { return (int32)((Ticks % ETimespan::TicksPerSecond) * ETimespan::NanosecondsPerTick); }
	int32 GetFractionTicks() const { return (int32)(Ticks % ETimespan::TicksPerSecond); }
	int32 GetHours() const { return (int32)((Ticks / ETimespan::TicksPerHour) % 24); }
	int32 GetMinutes() const { return (int32)((Ticks / ETimespan::TicksPerMinute) % 60); }
	int32 GetSeconds() const { return (int32)((Ticks / ETimespan::TicksPerSecond) % 60); }
	int64 GetTicks() const { return Ticks; }

	double GetTotalDays() const { return (double)Ticks / ETimespan::TicksPerDay; }
	double GetTotalHours() const { return (double)Ticks / ETimespan::TicksPerHour; }
	double GetTotalMicroseconds() const { return (double)Ticks / ETimespan::TicksPerMicrosecond; }
	double GetTotalMilliseconds() const { return (double)Ticks / ETimespan::TicksPerMillisecond; }
	double GetTotalMinutes() const { return (double)Ticks / ETimespan::TicksPerMinute; }
	double GetTotalSeconds() const { return (double)Ticks / ETimespan::TicksPerSecond; }

	bool IsZero() const { return Ticks == 0; }

	/** "p[d.]hh:mm:ss.fff", the sign always shown and the days only when not zero. */
	CORE_API FString ToString() const;

	/** Codes: %d days, %D zero-padded days, %h %m %s zero-padded hours/minutes/seconds, %f milliseconds, %u microseconds, %n nanoseconds. */
	CORE_API FString ToString(const TCHAR* Format) const;

public:
	static FTimespan FromDays(double Days) { return FTimespan(ClampTicks(Days * ETimespan::TicksPerDay + 0.5)); }
	static FTimespan FromHours(double Hours) { return FTimespan(ClampTicks(Hours * ETimespan::TicksPerHour + 0.5)); }
	static FTimespan FromMicroseconds(double Microseconds) { return FTimespan(ClampTicks(Microseconds * ETimespan::TicksPerMicrosecond + 0.5)); }
	static FTimespan FromMilliseconds(double Milliseconds) { return FTimespan(ClampTicks(Milliseconds * ETimespan::TicksPerMillisecond + 0.5)); }
	static FTimespan FromMinutes(double Minutes) { return FTimespan(ClampTicks(Minutes * ETimespan::TicksPerMinute + 0.5)); }
	static FTimespan FromSeconds(double Seconds) { return FTimespan(ClampTicks(Seconds * ETimespan::TicksPerSecond + 0.5)); }

	static FTimespan MaxValue() { return FTimespan(ETimespan::MaxTicks); }
	static FTimespan MinValue() { return FTimespan(ETimespan::MinTicks); }
	static FTimespan Zero() { return FTimespan(0); }

	static double Ratio(FTimespan Dividend, FTimespan Divisor) { return (double)Dividend.Ticks / (double)Divisor.Ticks; }

	/** Parses the ToString() format ("[+|-][d.]hh:mm:ss.fff"). */
	CORE_API static bool Parse(const FString& TimespanString, FTimespan& OutTimespan);

	friend uint32 GetTypeHash(const FTimespan& Timespan)
	{
		return GetTypeHash(Timespan.Ticks);
	}

private:
	CORE_API void Assign(int32 Days, int32 Hours, int32 Minutes, int32 Seconds, int32 FractionNano);

	/** Rounds a floating-point tick count down and keeps it inside the representable range. */
	CORE_API static int64 ClampTicks(double InTicks);

	int64 Ticks;
};

inline FTimespan operator*(double Scalar, const FTimespan& Timespan)
{
	return Timespan.operator*(Scalar);
}
