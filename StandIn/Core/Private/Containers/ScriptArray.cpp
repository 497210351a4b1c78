#include "Containers/ScriptArray.h"

#include "Containers/Map.h"
#include "Containers/Set.h"
#include "Math/NumericLimits.h"

#include <cstddef>

FScriptArray::FScriptArray(FScriptArray&& Other) : Data(Other.Data), ArrayNum(Other.ArrayNum), ArrayMax(Other.ArrayMax)
{
	Other.Data = nullptr;
	Other.ArrayNum = 0;
	Other.ArrayMax = 0;
}

FScriptArray& FScriptArray::operator=(FScriptArray&& Other)
{
	if (this != &Other)
	{
		FMemory::Free(Data);
		Data = Other.Data;
		ArrayNum = Other.ArrayNum;
		ArrayMax = Other.ArrayMax;
		Other.Data = nullptr;
		Other.ArrayNum = 0;
		Other.ArrayMax = 0;
	}
	return *this;
}

FScriptArray::~FScriptArray()
{
	static_assert(offsetof(FScriptArray, Data) == 0 && offsetof(FScriptArray, ArrayNum) == sizeof(void*) && offsetof(FScriptArray, ArrayMax) == sizeof(void*) + sizeof(int32),
		"Every TArray relies on this layout");
	FMemory::Free(Data);
}

void FScriptArray::ResizeTo(int32 NewMax, int32 NumBytesPerElement, uint32 AlignmentOfElement)
{
	if (NewMax != ArrayMax)
	{
		Data = FMemory::Realloc(Data, (SIZE_T)NewMax * (SIZE_T)NumBytesPerElement, ContainerAllocationAlignment(AlignmentOfElement));
		ArrayMax = NewMax;
	}
}

int32 FScriptArray::Add(int32 Count, int32 NumBytesPerElement, uint32 AlignmentOfElement)
{
	checkf(Count >= 0 && NumBytesPerElement > 0, TEXT("Invalid FScriptArray::Add of %d elements of %d bytes"), Count, NumBytesPerElement);
	const int32 OldNum = ArrayNum;
	const int64 NewNum = (int64)OldNum + Count;
	checkf(NewNum <= MAX_int32, TEXT("Array would exceed its maximum size"));
	if (NewNum > ArrayMax)
	{
		ResizeTo(DefaultCalculateSlackGrow((int32)NewNum, ArrayMax, NumBytesPerElement, false, AlignmentOfElement), NumBytesPerElement, AlignmentOfElement);
	}
	ArrayNum = (int32)NewNum;
	return OldNum;
}

int32 FScriptArray::AddZeroed(int32 Count, int32 NumBytesPerElement, uint32 AlignmentOfElement)
{
	const int32 Index = Add(Count, NumBytesPerElement, AlignmentOfElement);
	FMemory::Memzero((uint8*)Data + (SIZE_T)Index * NumBytesPerElement, (SIZE_T)Count * NumBytesPerElement);
	return Index;
}

void FScriptArray::Insert(int32 Index, int32 Count, int32 NumBytesPerElement, uint32 AlignmentOfElement)
{
	checkf(Index >= 0 && Index <= ArrayNum && Count >= 0, TEXT("Invalid FScriptArray::Insert of %d elements at %d into %d"), Count, Index, ArrayNum);
	const int32 OldNum = ArrayNum;
	Add(Count, NumBytesPerElement, AlignmentOfElement);
	uint8* Bytes = (uint8*)Data;
	FMemory::Memmove(Bytes + (SIZE_T)(Index + Count) * NumBytesPerElement, Bytes + (SIZE_T)Index * NumBytesPerElement, (SIZE_T)(OldNum - Index) * NumBytesPerElement);
}

void FScriptArray::InsertZeroed(int32 Index, int32 Count, int32 NumBytesPerElement, uint32 AlignmentOfElement)
{
	Insert(Index, Count, NumBytesPerElement, AlignmentOfElement);
	FMemory::Memzero((uint8*)Data + (SIZE_T)Index * NumBytesPerElement, (SIZE_T)Count * NumBytesPerElement);
}

void FScriptArray::Remove(int32 Index, int32 Count, int32 NumBytesPerElement, uint32 AlignmentOfElement)
{
	if (Count == 0)
	{
		return;
	}
	checkf(Count > 0 && Index >= 0 && Index + Count <= ArrayNum, TEXT("Invalid FScriptArray::Remove of %d elements at %d from %d"), Count, Index, ArrayNum);
	uint8* Bytes = (uint8*)Data;
	FMemory::Memmove(Bytes + (SIZE_T)Index * NumBytesPerElement, Bytes + (SIZE_T)(Index + Count) * NumBytesPerElement, (SIZE_T)(ArrayNum - Index - Count) * NumBytesPerElement);
	ArrayNum -= Count;
	const int32 NewMax = DefaultCalculateSlackShrink(ArrayNum, ArrayMax, NumBytesPerElement, false, AlignmentOfElement);
	ResizeTo(NewMax, NumBytesPerElement, AlignmentOfElement);
}

void FScriptArray::Empty(int32 Slack, int32 NumBytesPerElement, uint32 AlignmentOfElement)
{
	checkf(Slack >= 0, TEXT("Invalid slack %d"), Slack);
	ArrayNum = 0;
	ResizeTo(Slack, NumBytesPerElement, AlignmentOfElement);
}

void FScriptArray::Reset(int32 NewSize, int32 NumBytesPerElement, uint32 AlignmentOfElement)
{
	if (NewSize <= ArrayMax)
	{
		ArrayNum = 0;
	}
	else
	{
		Empty(NewSize, NumBytesPerElement, AlignmentOfElement);
	}
}

void FScriptArray::SetNumUninitialized(int32 NewNum, int32 NumBytesPerElement, uint32 AlignmentOfElement)
{
	checkf(NewNum >= 0, TEXT("Invalid new size %d"), NewNum);
	if (NewNum > ArrayNum)
	{
		Add(NewNum - ArrayNum, NumBytesPerElement, AlignmentOfElement);
	}
	else if (NewNum < ArrayNum)
	{
		Remove(NewNum, ArrayNum - NewNum, NumBytesPerElement, AlignmentOfElement);
	}
}

void FScriptArray::Shrink(int32 NumBytesPerElement, uint32 AlignmentOfElement)
{
	ResizeTo(ArrayNum, NumBytesPerElement, AlignmentOfElement);
}

void FScriptArray::SwapMemory(int32 A, int32 B, int32 NumBytesPerElement)
{
	checkf(IsValidIndex(A) && IsValidIndex(B), TEXT("Invalid FScriptArray::SwapMemory of %d and %d in %d"), A, B, ArrayNum);
	if (A == B)
	{
		return;
	}
	uint8* First = (uint8*)Data + (SIZE_T)A * NumBytesPerElement;
	uint8* Second = (uint8*)Data + (SIZE_T)B * NumBytesPerElement;
	for (int32 Byte = 0; Byte < NumBytesPerElement; ++Byte)
	{
		const uint8 Temp = First[Byte];
		First[Byte] = Second[Byte];
		Second[Byte] = Temp;
	}
}

void FScriptArray::MoveAssign(FScriptArray& Other, int32 NumBytesPerElement, uint32 AlignmentOfElement)
{
	if (this == &Other)
	{
		return;
	}
	FMemory::Free(Data);
	Data = Other.Data;
	ArrayNum = Other.ArrayNum;
	ArrayMax = Other.ArrayMax;
	Other.Data = nullptr;
	Other.ArrayNum = 0;
	Other.ArrayMax = 0;
}

void FScriptSet::InvalidateIndex()
{
	HashBuckets.Empty(0, sizeof(int32), alignof(int32));
	HashNext.Empty(0, sizeof(int32), alignof(int32));
}

void FScriptMap::InvalidateIndex()
{
	HashBuckets.Empty(0, sizeof(int32), alignof(int32));
	HashNext.Empty(0, sizeof(int32), alignof(int32));
}
