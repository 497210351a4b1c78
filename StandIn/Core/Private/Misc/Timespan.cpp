#include "Misc/Timespan.h"

#include <cmath>

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
