// Allocator policies and the slack rules every engine container grows and shrinks by.
#pragma once

#include "CoreTypes.h"
#include "HAL/UnrealMemory.h"

/** Whether a shrinking operation may release unused memory. */
enum class EAllowShrinking : uint8
{
	No,
	Yes,
	Default = Yes
};

inline EAllowShrinking AllowShrinkingFromBool(bool bAllowShrinking)
{
	return bAllowShrinking ? EAllowShrinking::Yes : EAllowShrinking::No;
}

/** Capacity to allocate when NumElements no longer fit into NumAllocatedElements: 4 at first, then 3/8 more plus 16. */
inline int32 DefaultCalculateSlackGrow(int32 NumElements, int32 NumAllocatedElements, SIZE_T BytesPerElement, bool bAllowQuantize, uint32 Alignment = DEFAULT_ALIGNMENT)
{
	const int64 FirstGrow = 4;
	const int64 ConstantGrow = 16;
	int64 Grow = FirstGrow;
	if (NumAllocatedElements > 0)
	{
		Grow = (int64)NumElements + 3 * (int64)NumElements / 8 + ConstantGrow;
	}
	else if ((int64)NumElements > Grow)
	{
		Grow = NumElements;
	}
	if (Grow > 0x7fffffff)
	{
		Grow = NumElements;
	}
	return (int32)Grow;
}

/** Capacity to keep after removing elements: shrinks to fit only when much of the allocation is unused. */
inline int32 DefaultCalculateSlackShrink(int32 NumElements, int32 NumAllocatedElements, SIZE_T BytesPerElement, bool bAllowQuantize, uint32 Alignment = DEFAULT_ALIGNMENT)
{
	const int64 SlackElements = (int64)NumAllocatedElements - NumElements;
	const bool bTooManySlackBytes = SlackElements * (int64)BytesPerElement >= 16384;
	const bool bTooManySlackElements = 3 * (int64)NumElements < 2 * (int64)NumAllocatedElements;
	if ((bTooManySlackBytes || bTooManySlackElements) && (SlackElements > 64 || NumElements == 0))
	{
		return NumElements;
	}
	return NumAllocatedElements;
}

inline int32 DefaultCalculateSlackReserve(int32 NumElements, SIZE_T BytesPerElement, bool bAllowQuantize, uint32 Alignment = DEFAULT_ALIGNMENT)
{
	return NumElements;
}

/** The engine's allocator policies. Stand-in choice: every policy keeps its elements on the heap, so that every TArray has FScriptArray's layout. */
template <int IndexSize>
class TSizedHeapAllocator
{
public:
	using SizeType = int32;
	enum { NeedsElementType = false };
	enum { RequireRangeCheck = true };
};

template <int IndexSize>
class TSizedDefaultAllocator : public TSizedHeapAllocator<IndexSize>
{
};

using FHeapAllocator = TSizedHeapAllocator<32>;
using FDefaultAllocator = TSizedDefaultAllocator<32>;
using FDefaultAllocator64 = TSizedDefaultAllocator<64>;

template <uint32 NumInlineElements, typename SecondaryAllocator = FDefaultAllocator>
class TInlineAllocator : public FDefaultAllocator
{
};

template <uint32 NumInlineElements>
class TFixedAllocator : public FDefaultAllocator
{
};

class FDefaultSetAllocator
{
};

class FDefaultBitArrayAllocator
{
};

class FDefaultSparseArrayAllocator
{
};

template <uint32 NumInlineElements>
class TInlineSetAllocator : public FDefaultSetAllocator
{
};
