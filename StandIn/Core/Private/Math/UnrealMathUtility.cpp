#include "Math/UnrealMathUtility.h"

#include <atomic>
#include <cstdlib>
#include <cstring>

namespace
{
	std::atomic<int32>& SeededRandomState()
	{
		static std::atomic<int32> Seed{0};
		return Seed;
	}
}

int32 FMath::Rand()
{
	return std::rand();
}

void FMath::RandInit(int32 Seed)
{
	std::srand((unsigned)Seed);
}

float FMath::FRand()
{
	// RAND_MAX + 1 keeps the result below 1.
	return (float)((double)Rand() / ((double)RAND_MAX + 1.0));
}

int32 FMath::RandHelper(int32 A)
{
	return A > 0 ? Min(TruncToInt32(FRand() * (float)A), A - 1) : 0;
}

int32 FMath::RandRange(int32 Min, int32 Max)
{
	const int64 Range = (int64)Max - (int64)Min + 1;
	if (Range <= 1)
	{
		return Min;
	}
	const int64 Offset = (int64)((double)Rand() / ((double)RAND_MAX + 1.0) * (double)Range);
	return (int32)(Min + (Offset < Range ? Offset : Range - 1));
}

double FMath::FRandRange(double InMin, double InMax)
{
	return InMin + (InMax - InMin) * (double)FRand();
}

void FMath::SRandInit(int32 Seed)
{
	SeededRandomState() = Seed;
}

int32 FMath::GetRandSeed()
{
	return SeededRandomState();
}

float FMath::SRand()
{
	// A linear congruential step; its high bits become the mantissa of a float in [1, 2).
	const int32 NewSeed = (int32)((uint32)SeededRandomState().load() * 196314165u + 907633515u);
	SeededRandomState() = NewSeed;
	const uint32 Bits = 0x3F800000u | ((uint32)NewSeed >> 9);
	float Result;
	std::memcpy(&Result, &Bits, sizeof(Result));
	return Result - 1.0f;
}
