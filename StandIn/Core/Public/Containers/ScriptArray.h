// FScriptArray: a TArray seen without its element type, for reflection code.
#pragma once

#include "CoreTypes.h"
#include "Containers/ContainerAllocationPolicies.h"

/**
 * The type-erased view of every TArray<T>: TArray<T> has exactly this layout, so reflection code can add,
 * insert and remove elements of any array given the element size and alignment. Elements are relocated bitwise.
 */
class FScriptArray
{
public:
	FScriptArray() = default;
	CORE_API FScriptArray(FScriptArray&& Other);
	CORE_API FScriptArray& operator=(FScriptArray&& Other);
	FScriptArray(const FScriptArray&) = delete;
	FScriptArray& operator=(const FScriptArray&) = delete;
	CORE_API ~FScriptArray();

	FORCEINLINE void* GetData() { return Data; }
	FORCEINLINE const void* GetData() const { return Data; }
	FORCEINLINE bool IsValidIndex(int32 Index) const { return Index >= 0 && Index < ArrayNum; }
	FORCEINLINE bool IsEmpty() const { return ArrayNum == 0; }
	FORCEINLINE int32 Num() const { return ArrayNum; }
	FORCEINLINE int32 Max() const { return ArrayMax; }

	/** Adds Count uninitialised elements at the end; returns the old number of elements. */
	CORE_API int32 Add(int32 Count, int32 NumBytesPerElement, uint32 AlignmentOfElement);
	/** Adds Count zeroed elements at the end; returns the old number of elements. */
	CORE_API int32 AddZeroed(int32 Count, int32 NumBytesPerElement, uint32 AlignmentOfElement);
	/** Opens Count uninitialised elements at Index, moving the following elements up. */
	CORE_API void Insert(int32 Index, int32 Count, int32 NumBytesPerElement, uint32 AlignmentOfElement);
	CORE_API void InsertZeroed(int32 Index, int32 Count, int32 NumBytesPerElement, uint32 AlignmentOfElement);
	/** Removes Count elements at Index without destructing them (the caller destructs them first). */
	CORE_API void Remove(int32 Index, int32 Count, int32 NumBytesPerElement, uint32 AlignmentOfElement);
	/** Forgets every element (without destructing them) and keeps room for Slack elements. */
	CORE_API void Empty(int32 Slack, int32 NumBytesPerElement, uint32 AlignmentOfElement);
	CORE_API void Reset(int32 NewSize, int32 NumBytesPerElement, uint32 AlignmentOfElement);
	CORE_API void SetNumUninitialized(int32 NewNum, int32 NumBytesPerElement, uint32 AlignmentOfElement);
	CORE_API void Shrink(int32 NumBytesPerElement, uint32 AlignmentOfElement);
	CORE_API void SwapMemory(int32 A, int32 B, int32 NumBytesPerElement);
	/** Takes Other's elements; this array must hold no live elements. Other is left empty. */
	CORE_API void MoveAssign(FScriptArray& Other, int32 NumBytesPerElement, uint32 AlignmentOfElement);

	CORE_API void ResizeTo(int32 NewMax, int32 NumBytesPerElement, uint32 AlignmentOfElement);

protected:
	void* Data = nullptr;
	int32 ArrayNum = 0;
	int32 ArrayMax = 0;
};

/** The alignment FMemory is asked for by arrays of elements with the given alignment. */
FORCEINLINE uint32 ContainerAllocationAlignment(uint32 AlignmentOfElement)
{
	return AlignmentOfElement > 16 ? AlignmentOfElement : DEFAULT_ALIGNMENT;
}
