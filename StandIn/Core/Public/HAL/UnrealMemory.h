// FMemory: the engine's allocator entry points and memory helpers.
#pragma once

#include "CoreTypes.h"

#include <cstring>

enum
{
	DEFAULT_ALIGNMENT = 0,
	MIN_ALIGNMENT = 8
};

struct FMemory
{
	/** Allocates Count bytes aligned to Alignment (DEFAULT_ALIGNMENT = natural malloc alignment). */
	CORE_API static void* Malloc(SIZE_T Count, uint32 Alignment = DEFAULT_ALIGNMENT);
	/** Grows or shrinks a block from Malloc, keeping its contents; Count 0 frees it and returns nullptr. */
	CORE_API static void* Realloc(void* Original, SIZE_T Count, uint32 Alignment = DEFAULT_ALIGNMENT);
	CORE_API static void Free(void* Original);
	CORE_API static void* MallocZeroed(SIZE_T Count, uint32 Alignment = DEFAULT_ALIGNMENT);
	CORE_API static SIZE_T GetAllocSize(void* Original);

	static FORCEINLINE void* Memcpy(void* Dest, const void* Src, SIZE_T Count)
	{
		return Count ? std::memcpy(Dest, Src, Count) : Dest;
	}

	static FORCEINLINE void* Memmove(void* Dest, const void* Src, SIZE_T Count)
	{
		return Count ? std::memmove(Dest, Src, Count) : Dest;
	}

	static FORCEINLINE int32 Memcmp(const void* Buf1, const void* Buf2, SIZE_T Count)
	{
		return Count ? std::memcmp(Buf1, Buf2, Count) : 0;
	}

	static FORCEINLINE void* Memset(void* Dest, uint8 Char, SIZE_T Count)
	{
		return Count ? std::memset(Dest, Char, Count) : Dest;
	}

	static FORCEINLINE void* Memzero(void* Dest, SIZE_T Count)
	{
		return Memset(Dest, 0, Count);
	}

	template <typename T>
	static FORCEINLINE void Memzero(T& Src)
	{
		Memzero(&Src, sizeof(T));
	}

	template <typename T>
	static FORCEINLINE void Memcpy(T& Dest, const T& Src)
	{
		Memcpy(&Dest, &Src, sizeof(T));
	}
};
