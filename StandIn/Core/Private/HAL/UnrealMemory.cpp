#include "HAL/UnrealMemory.h"

#include <cstdlib>
#include <cstring>
#include <malloc.h>

namespace
{
	constexpr uint32 NaturalAlignment = 16;

	bool NeedsAlignedAllocation(uint32 Alignment)
	{
		return Alignment > NaturalAlignment;
	}

	void* AllocateAligned(SIZE_T Count, uint32 Alignment)
	{
		void* Result = nullptr;
		if (posix_memalign(&Result, Alignment, Count ? Count : 1) != 0)
		{
			return nullptr;
		}
		return Result;
	}
}

void* FMemory::Malloc(SIZE_T Count, uint32 Alignment)
{
	void* Result = NeedsAlignedAllocation(Alignment) ? AllocateAligned(Count, Alignment) : std::malloc(Count ? Count : 1);
	checkf(Result != nullptr, TEXT("Out of memory allocating %llu bytes"), (unsigned long long)Count);
	return Result;
}

void* FMemory::Realloc(void* Original, SIZE_T Count, uint32 Alignment)
{
	if (Count == 0)
	{
		Free(Original);
		return nullptr;
	}
	if (!Original)
	{
		return Malloc(Count, Alignment);
	}
	if (!NeedsAlignedAllocation(Alignment))
	{
		void* Result = std::realloc(Original, Count);
		checkf(Result != nullptr, TEXT("Out of memory reallocating %llu bytes"), (unsigned long long)Count);
		return Result;
	}
	void* Result = Malloc(Count, Alignment);
	const SIZE_T OldSize = malloc_usable_size(Original);
	std::memcpy(Result, Original, OldSize < Count ? OldSize : Count);
	std::free(Original);
	return Result;
}

void FMemory::Free(void* Original)
{
	std::free(Original);
}

void* FMemory::MallocZeroed(SIZE_T Count, uint32 Alignment)
{
	void* Result = Malloc(Count, Alignment);
	std::memset(Result, 0, Count);
	return Result;
}

SIZE_T FMemory::GetAllocSize(void* Original)
{
	return Original ? malloc_usable_size(Original) : 0;
}
