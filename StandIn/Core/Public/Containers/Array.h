// TArray: the engine's dynamic array, laid out exactly like FScriptArray.
#pragma once

#include "CoreTypes.h"
#include "Containers/ContainersFwd.h"
#include "Containers/ContainerAllocationPolicies.h"
#include "Containers/ScriptArray.h"
#include "HAL/UnrealMemory.h"
#include "Math/NumericLimits.h"
#include "Templates/MemoryOps.h"
#include "Templates/UnrealTemplate.h"
#include "Templates/TypeHash.h"
#include "Traits/IsContiguousContainer.h"
#include "Containers/ArrayView.h"

#include <algorithm>
#include <cstddef>
#include <initializer_list>
#include <new>
#include <type_traits>

/** Range-for iterator that fails a check when the array changes size during the loop, as the engine's does. */
template <typename ElementType>
class TCheckedPointerIterator
{
public:
	TCheckedPointerIterator(const int32& InNum, ElementType* InPtr) : Ptr(InPtr), CurrentNum(InNum), InitialNum(InNum) {}

	FORCEINLINE ElementType& operator*() const { return *Ptr; }
	FORCEINLINE ElementType* operator->() const { return Ptr; }
	FORCEINLINE TCheckedPointerIterator& operator++() { ++Ptr; return *this; }
	FORCEINLINE TCheckedPointerIterator& operator--() { --Ptr; return *this; }

	FORCEINLINE bool operator!=(const TCheckedPointerIterator& Rhs) const
	{
		checkf(CurrentNum == InitialNum, TEXT("Array has changed during ranged-for iteration!"));
		return Ptr != Rhs.Ptr;
	}
	FORCEINLINE bool operator==(const TCheckedPointerIterator& Rhs) const { return !(*this != Rhs); }

private:
	ElementType* Ptr;
	const int32& CurrentNum;
	int32 InitialNum;
};

/** Index-based iterator of an indexed container, with RemoveCurrent. */
template <typename ContainerType, typename ElementType, typename SizeType>
class TIndexedContainerIterator
{
public:
	TIndexedContainerIterator(ContainerType& InContainer, SizeType StartIndex = 0) : Container(InContainer), Index(StartIndex) {}

	TIndexedContainerIterator& operator++() { ++Index; return *this; }
	TIndexedContainerIterator operator++(int) { TIndexedContainerIterator Tmp(*this); ++Index; return Tmp; }
	TIndexedContainerIterator& operator--() { --Index; return *this; }

	ElementType& operator*() const { return Container[Index]; }
	ElementType* operator->() const { return &Container[Index]; }
	explicit operator bool() const { return Container.IsValidIndex(Index); }

	SizeType GetIndex() const { return Index; }
	void Reset() { Index = 0; }
	void SetToEnd() { Index = Container.Num(); }

	void RemoveCurrent()
	{
		Container.RemoveAt(Index);
		Index--;
	}

	void RemoveCurrentSwap()
	{
		Container.RemoveAtSwap(Index);
		Index--;
	}

	bool operator==(const TIndexedContainerIterator& Rhs) const { return &Container == &Rhs.Container && Index == Rhs.Index; }
	bool operator!=(const TIndexedContainerIterator& Rhs) const { return !(*this == Rhs); }

private:
	ContainerType& Container;
	SizeType Index;
};

template <typename InElementType, typename InAllocatorType>
class TArray
{
	template <typename OtherElementType, typename OtherAllocatorType>
	friend class TArray;

public:
	typedef int32 SizeType;
	typedef InElementType ElementType;
	typedef InAllocatorType AllocatorType;
	typedef TIndexedContainerIterator<TArray, ElementType, SizeType> TIterator;
	typedef TIndexedContainerIterator<const TArray, const ElementType, SizeType> TConstIterator;
	typedef TCheckedPointerIterator<ElementType> RangedForIteratorType;
	typedef TCheckedPointerIterator<const ElementType> RangedForConstIteratorType;

	TArray() = default;

	TArray(const ElementType* Ptr, SizeType Count)
	{
		check(Count >= 0 && (Ptr != nullptr || Count == 0));
		CopyToEmpty(Ptr, Count, 0);
	}

	TArray(std::initializer_list<ElementType> InitList)
	{
		CopyToEmpty(InitList.begin(), (SizeType)InitList.size(), 0);
	}

	template <typename OtherElementType, typename OtherAllocator>
	explicit TArray(const TArray<OtherElementType, OtherAllocator>& Other)
	{
		CopyToEmpty(Other.GetData(), Other.Num(), 0);
	}

	template <typename OtherElementType>
	explicit TArray(const TArrayView<OtherElementType>& Other)
	{
		CopyToEmpty(Other.GetData(), Other.Num(), 0);
	}

	TArray(const TArray& Other)
	{
		CopyToEmpty(Other.GetData(), Other.Num(), 0);
	}

	TArray(const TArray& Other, SizeType ExtraSlack)
	{
		CopyToEmpty(Other.GetData(), Other.Num(), ExtraSlack);
	}

	TArray(TArray&& Other)
	{
		StealFrom(Other);
	}

	template <typename OtherAllocator>
	TArray(TArray<ElementType, OtherAllocator>&& Other)
	{
		StealFrom(Other);
	}

	~TArray()
	{
		static_assert(offsetof(TArray, Data) == 0 && offsetof(TArray, ArrayNum) == sizeof(void*) && offsetof(TArray, ArrayMax) == sizeof(void*) + sizeof(int32),
			"TArray must have FScriptArray's layout");
		DestructItems(GetData(), ArrayNum);
		FMemory::Free(Data);
	}

	TArray& operator=(std::initializer_list<ElementType> InitList)
	{
		TArray Copy(InitList);
		*this = MoveTemp(Copy);
		return *this;
	}

	TArray& operator=(const TArray& Other)
	{
		if (this != &Other)
		{
			DestructItems(GetData(), ArrayNum);
			ArrayNum = 0;
			CopyToEmpty(Other.GetData(), Other.Num(), 0);
		}
		return *this;
	}

	template <typename OtherAllocator>
	TArray& operator=(const TArray<ElementType, OtherAllocator>& Other)
	{
		DestructItems(GetData(), ArrayNum);
		ArrayNum = 0;
		CopyToEmpty(Other.GetData(), Other.Num(), 0);
		return *this;
	}

	TArray& operator=(TArray&& Other)
	{
		if (this != &Other)
		{
			DestructItems(GetData(), ArrayNum);
			FMemory::Free(Data);
			Data = nullptr;
			ArrayNum = 0;
			ArrayMax = 0;
			StealFrom(Other);
		}
		return *this;
	}

	FORCEINLINE ElementType* GetData() { return Data; }
	FORCEINLINE const ElementType* GetData() const { return Data; }
	FORCEINLINE static constexpr uint32 GetTypeSize() { return sizeof(ElementType); }
	FORCEINLINE SIZE_T GetAllocatedSize() const { return (SIZE_T)ArrayMax * sizeof(ElementType); }
	FORCEINLINE SizeType GetSlack() const { return ArrayMax - ArrayNum; }
	FORCEINLINE SizeType Num() const { return ArrayNum; }
	FORCEINLINE SizeType Max() const { return ArrayMax; }
	FORCEINLINE bool IsEmpty() const { return ArrayNum == 0; }
	FORCEINLINE bool IsValidIndex(SizeType Index) const { return Index >= 0 && Index < ArrayNum; }

	FORCEINLINE void CheckInvariants() const
	{
		checkSlow((ArrayNum >= 0) & (ArrayMax >= ArrayNum));
	}

	FORCEINLINE void RangeCheck(SizeType Index) const
	{
		checkf((Index >= 0) & (Index < ArrayNum), TEXT("Array index out of bounds: %lld into an array of size %lld"), (long long)Index, (long long)ArrayNum);
	}

	FORCEINLINE void RangeCheck(SizeType Index, SizeType Count) const
	{
		checkf((Count >= 0) & (Index >= 0) & (Index + Count <= ArrayNum), TEXT("Array range out of bounds: index %lld and length %lld on an array of size %lld"), (long long)Index, (long long)Count, (long long)ArrayNum);
	}

	FORCEINLINE ElementType& operator[](SizeType Index)
	{
		RangeCheck(Index);
		return Data[Index];
	}

	FORCEINLINE const ElementType& operator[](SizeType Index) const
	{
		RangeCheck(Index);
		return Data[Index];
	}

	ElementType& Last(SizeType IndexFromTheEnd = 0)
	{
		RangeCheck(ArrayNum - IndexFromTheEnd - 1);
		return Data[ArrayNum - IndexFromTheEnd - 1];
	}

	const ElementType& Last(SizeType IndexFromTheEnd = 0) const
	{
		RangeCheck(ArrayNum - IndexFromTheEnd - 1);
		return Data[ArrayNum - IndexFromTheEnd - 1];
	}

	ElementType& Top() { return Last(); }
	const ElementType& Top() const { return Last(); }

	ElementType Pop(EAllowShrinking AllowShrinking = EAllowShrinking::Default)
	{
		RangeCheck(0);
		ElementType Result = MoveTempIfPossible(Data[ArrayNum - 1]);
		RemoveAt(ArrayNum - 1, 1, AllowShrinking);
		return Result;
	}

	ElementType Pop(bool bAllowShrinking) { return Pop(AllowShrinkingFromBool(bAllowShrinking)); }

	void Push(const ElementType& Item) { Add(Item); }
	void Push(ElementType&& Item) { Add(MoveTempIfPossible(Item)); }

	// Adding

	SizeType AddUninitialized(SizeType Count = 1)
	{
		checkf(Count >= 0, TEXT("Invalid count %lld passed to AddUninitialized"), (long long)Count);
		const SizeType OldNum = ArrayNum;
		const int64 NewNum = (int64)OldNum + Count;
		checkf(NewNum <= MAX_int32, TEXT("Array would exceed its maximum size"));
		if (NewNum > ArrayMax)
		{
			ResizeTo(DefaultCalculateSlackGrow((int32)NewNum, ArrayMax, sizeof(ElementType), false, alignof(ElementType)));
		}
		ArrayNum = (SizeType)NewNum;
		return OldNum;
	}

	SizeType AddZeroed(SizeType Count = 1)
	{
		const SizeType Index = AddUninitialized(Count);
		FMemory::Memzero((void*)(Data + Index), (SIZE_T)Count * sizeof(ElementType));
		return Index;
	}

	SizeType AddDefaulted(SizeType Count = 1)
	{
		const SizeType Index = AddUninitialized(Count);
		DefaultConstructItems<ElementType>((void*)(Data + Index), Count);
		return Index;
	}

	ElementType& AddZeroed_GetRef()
	{
		const SizeType Index = AddZeroed();
		return Data[Index];
	}

	ElementType& AddDefaulted_GetRef()
	{
		const SizeType Index = AddDefaulted();
		return Data[Index];
	}

	template <typename... ArgsType>
	SizeType Emplace(ArgsType&&... Args)
	{
		if (ArrayNum == ArrayMax)
		{
			return EmplaceWhileGrowing(Forward<ArgsType>(Args)...);
		}
		const SizeType Index = AddUninitialized(1);
		new ((void*)(Data + Index)) ElementType(Forward<ArgsType>(Args)...);
		return Index;
	}

	template <typename... ArgsType>
	ElementType& Emplace_GetRef(ArgsType&&... Args)
	{
		const SizeType Index = Emplace(Forward<ArgsType>(Args)...);
		return Data[Index];
	}

	SizeType Add(const ElementType& Item) { return Emplace(Item); }
	SizeType Add(ElementType&& Item) { return Emplace(MoveTempIfPossible(Item)); }
	ElementType& Add_GetRef(const ElementType& Item) { return Emplace_GetRef(Item); }
	ElementType& Add_GetRef(ElementType&& Item) { return Emplace_GetRef(MoveTempIfPossible(Item)); }

	SizeType AddUnique(const ElementType& Item)
	{
		const SizeType Index = Find(Item);
		return Index != INDEX_NONE ? Index : Add(Item);
	}

	SizeType AddUnique(ElementType&& Item)
	{
		const SizeType Index = Find(Item);
		return Index != INDEX_NONE ? Index : Add(MoveTempIfPossible(Item));
	}

	template <typename OtherElementType, typename OtherAllocator>
	void Append(const TArray<OtherElementType, OtherAllocator>& Source)
	{
		if (Source.Num() == 0)
		{
			return;
		}
		if ((const void*)&Source == (const void*)this)
		{
			TArray Copy(*this);
			Append(Copy);
			return;
		}
		Reserve(ArrayNum + Source.Num());
		ConstructItems<ElementType>((void*)(Data + ArrayNum), Source.GetData(), Source.Num());
		ArrayNum += Source.Num();
	}

	template <typename OtherAllocator>
	void Append(TArray<ElementType, OtherAllocator>&& Source)
	{
		if ((const void*)&Source == (const void*)this || Source.Num() == 0)
		{
			return;
		}
		Reserve(ArrayNum + Source.Num());
		RelocateConstructItems<ElementType>((void*)(Data + ArrayNum), Source.GetData(), Source.Num());
		ArrayNum += Source.Num();
		Source.ArrayNum = 0;
	}

	void Append(const ElementType* Ptr, SizeType Count)
	{
		check(Count >= 0 && (Ptr != nullptr || Count == 0));
		if (Count == 0)
		{
			return;
		}
		if (PointsIntoStorage(Ptr))
		{
			TArray Copy(Ptr, Count);
			Append(MoveTemp(Copy));
			return;
		}
		Reserve(ArrayNum + Count);
		ConstructItems<ElementType>((void*)(Data + ArrayNum), Ptr, Count);
		ArrayNum += Count;
	}

	void Append(std::initializer_list<ElementType> InitList)
	{
		Append(InitList.begin(), (SizeType)InitList.size());
	}

	template <typename OtherElementType>
	void Append(const TArrayView<OtherElementType>& Source)
	{
		Append(Source.GetData(), Source.Num());
	}

	TArray& operator+=(const TArray& Other)
	{
		Append(Other);
		return *this;
	}

	TArray& operator+=(TArray&& Other)
	{
		Append(MoveTemp(Other));
		return *this;
	}

	TArray& operator+=(std::initializer_list<ElementType> InitList)
	{
		Append(InitList);
		return *this;
	}

	// Inserting

	SizeType InsertUninitialized(SizeType Index, SizeType Count = 1)
	{
		checkf(Index >= 0 && Index <= ArrayNum && Count >= 0, TEXT("Invalid insert of %lld elements at index %lld into an array of size %lld"), (long long)Count, (long long)Index, (long long)ArrayNum);
		const SizeType OldNum = ArrayNum;
		AddUninitialized(Count);
		FMemory::Memmove((void*)(Data + Index + Count), (const void*)(Data + Index), (SIZE_T)(OldNum - Index) * sizeof(ElementType));
		return Index;
	}

	void InsertZeroed(SizeType Index, SizeType Count = 1)
	{
		InsertUninitialized(Index, Count);
		FMemory::Memzero((void*)(Data + Index), (SIZE_T)Count * sizeof(ElementType));
	}

	void InsertDefaulted(SizeType Index, SizeType Count = 1)
	{
		InsertUninitialized(Index, Count);
		DefaultConstructItems<ElementType>((void*)(Data + Index), Count);
	}

	ElementType& InsertZeroed_GetRef(SizeType Index)
	{
		InsertZeroed(Index);
		return Data[Index];
	}

	ElementType& InsertDefaulted_GetRef(SizeType Index)
	{
		InsertDefaulted(Index);
		return Data[Index];
	}

	template <typename... ArgsType>
	void EmplaceAt(SizeType Index, ArgsType&&... Args)
	{
		ElementType Temp(Forward<ArgsType>(Args)...);
		InsertUninitialized(Index, 1);
		new ((void*)(Data + Index)) ElementType(MoveTemp(Temp));
	}

	template <typename... ArgsType>
	ElementType& EmplaceAt_GetRef(SizeType Index, ArgsType&&... Args)
	{
		EmplaceAt(Index, Forward<ArgsType>(Args)...);
		return Data[Index];
	}

	SizeType Insert(const ElementType& Item, SizeType Index)
	{
		EmplaceAt(Index, Item);
		return Index;
	}

	SizeType Insert(ElementType&& Item, SizeType Index)
	{
		EmplaceAt(Index, MoveTempIfPossible(Item));
		return Index;
	}

	ElementType& Insert_GetRef(const ElementType& Item, SizeType Index)
	{
		EmplaceAt(Index, Item);
		return Data[Index];
	}

	SizeType Insert(const ElementType* Ptr, SizeType Count, SizeType Index)
	{
		check(Count >= 0 && (Ptr != nullptr || Count == 0));
		if (PointsIntoStorage(Ptr))
		{
			TArray Copy(Ptr, Count);
			return Insert(Copy, Index);
		}
		InsertUninitialized(Index, Count);
		ConstructItems<ElementType>((void*)(Data + Index), Ptr, Count);
		return Index;
	}

	SizeType Insert(const TArray& Items, SizeType Index)
	{
		if (&Items == this)
		{
			TArray Copy(Items);
			return Insert(Copy.GetData(), Copy.Num(), Index);
		}
		return Insert(Items.GetData(), Items.Num(), Index);
	}

	SizeType Insert(std::initializer_list<ElementType> InitList, SizeType Index)
	{
		return Insert(InitList.begin(), (SizeType)InitList.size(), Index);
	}

	// Removing

	void RemoveAt(SizeType Index, SizeType Count = 1, EAllowShrinking AllowShrinking = EAllowShrinking::Default)
	{
		if (Count == 0)
		{
			return;
		}
		RangeCheck(Index, Count);
		DestructItems(Data + Index, Count);
		FMemory::Memmove((void*)(Data + Index), (const void*)(Data + Index + Count), (SIZE_T)(ArrayNum - Index - Count) * sizeof(ElementType));
		ArrayNum -= Count;
		if (AllowShrinking == EAllowShrinking::Yes)
		{
			ShrinkIfTooMuchSlack();
		}
	}

	void RemoveAt(SizeType Index, SizeType Count, bool bAllowShrinking) { RemoveAt(Index, Count, AllowShrinkingFromBool(bAllowShrinking)); }

	void RemoveAtSwap(SizeType Index, SizeType Count = 1, EAllowShrinking AllowShrinking = EAllowShrinking::Default)
	{
		if (Count == 0)
		{
			return;
		}
		RangeCheck(Index, Count);
		DestructItems(Data + Index, Count);
		const SizeType NumElementsAfterHole = ArrayNum - (Index + Count);
		const SizeType NumElementsToMoveIntoHole = NumElementsAfterHole < Count ? NumElementsAfterHole : Count;
		FMemory::Memcpy((void*)(Data + Index), (const void*)(Data + ArrayNum - NumElementsToMoveIntoHole), (SIZE_T)NumElementsToMoveIntoHole * sizeof(ElementType));
		ArrayNum -= Count;
		if (AllowShrinking == EAllowShrinking::Yes)
		{
			ShrinkIfTooMuchSlack();
		}
	}

	void RemoveAtSwap(SizeType Index, SizeType Count, bool bAllowShrinking) { RemoveAtSwap(Index, Count, AllowShrinkingFromBool(bAllowShrinking)); }

	template <typename PredicateType>
	SizeType RemoveAll(const PredicateType& Predicate)
	{
		SizeType WriteIndex = 0;
		for (SizeType ReadIndex = 0; ReadIndex < ArrayNum; ++ReadIndex)
		{
			if (Predicate(Data[ReadIndex]))
			{
				DestructItem(Data + ReadIndex);
				continue;
			}
			if (WriteIndex != ReadIndex)
			{
				FMemory::Memcpy((void*)(Data + WriteIndex), (const void*)(Data + ReadIndex), sizeof(ElementType));
			}
			++WriteIndex;
		}
		const SizeType NumRemoved = ArrayNum - WriteIndex;
		ArrayNum = WriteIndex;
		return NumRemoved;
	}

	template <typename PredicateType>
	SizeType RemoveAllSwap(const PredicateType& Predicate, EAllowShrinking AllowShrinking = EAllowShrinking::Default)
	{
		const SizeType OriginalNum = ArrayNum;
		for (SizeType Index = 0; Index < ArrayNum;)
		{
			if (Predicate(Data[Index]))
			{
				RemoveAtSwap(Index, 1, EAllowShrinking::No);
			}
			else
			{
				++Index;
			}
		}
		if (AllowShrinking == EAllowShrinking::Yes)
		{
			ShrinkIfTooMuchSlack();
		}
		return OriginalNum - ArrayNum;
	}

	SizeType Remove(const ElementType& Item)
	{
		const ElementType ItemCopy(Item);
		return RemoveAll([&ItemCopy](const ElementType& Element) { return Element == ItemCopy; });
	}

	SizeType RemoveSingle(const ElementType& Item)
	{
		const SizeType Index = Find(Item);
		if (Index == INDEX_NONE)
		{
			return 0;
		}
		RemoveAt(Index, 1, EAllowShrinking::No);
		return 1;
	}

	SizeType RemoveSwap(const ElementType& Item, EAllowShrinking AllowShrinking = EAllowShrinking::Default)
	{
		const ElementType ItemCopy(Item);
		return RemoveAllSwap([&ItemCopy](const ElementType& Element) { return Element == ItemCopy; }, AllowShrinking);
	}

	SizeType RemoveSingleSwap(const ElementType& Item, EAllowShrinking AllowShrinking = EAllowShrinking::Default)
	{
		const SizeType Index = Find(Item);
		if (Index == INDEX_NONE)
		{
			return 0;
		}
		RemoveAtSwap(Index, 1, AllowShrinking);
		return 1;
	}

	// Sizing

	void Empty(SizeType Slack = 0)
	{
		checkf(Slack >= 0, TEXT("Invalid slack %lld passed to Empty"), (long long)Slack);
		DestructItems(Data, ArrayNum);
		ArrayNum = 0;
		if (ArrayMax != Slack)
		{
			ResizeTo(Slack);
		}
	}

	void Reset(SizeType NewSize = 0)
	{
		if (NewSize <= ArrayMax)
		{
			DestructItems(Data, ArrayNum);
			ArrayNum = 0;
		}
		else
		{
			Empty(NewSize);
		}
	}

	void SetNum(SizeType NewNum, EAllowShrinking AllowShrinking = EAllowShrinking::Default)
	{
		checkf(NewNum >= 0, TEXT("Invalid new size %lld passed to SetNum"), (long long)NewNum);
		if (NewNum > ArrayNum)
		{
			AddDefaulted(NewNum - ArrayNum);
		}
		else if (NewNum < ArrayNum)
		{
			RemoveAt(NewNum, ArrayNum - NewNum, AllowShrinking);
		}
	}

	void SetNum(SizeType NewNum, bool bAllowShrinking) { SetNum(NewNum, AllowShrinkingFromBool(bAllowShrinking)); }

	void SetNumZeroed(SizeType NewNum, EAllowShrinking AllowShrinking = EAllowShrinking::Default)
	{
		checkf(NewNum >= 0, TEXT("Invalid new size %lld passed to SetNumZeroed"), (long long)NewNum);
		if (NewNum > ArrayNum)
		{
			AddZeroed(NewNum - ArrayNum);
		}
		else if (NewNum < ArrayNum)
		{
			RemoveAt(NewNum, ArrayNum - NewNum, AllowShrinking);
		}
	}

	void SetNumUninitialized(SizeType NewNum, EAllowShrinking AllowShrinking = EAllowShrinking::Default)
	{
		checkf(NewNum >= 0, TEXT("Invalid new size %lld passed to SetNumUninitialized"), (long long)NewNum);
		if (NewNum > ArrayNum)
		{
			AddUninitialized(NewNum - ArrayNum);
		}
		else if (NewNum < ArrayNum)
		{
			RemoveAt(NewNum, ArrayNum - NewNum, AllowShrinking);
		}
	}

	void Reserve(SizeType Number)
	{
		checkf(Number >= 0, TEXT("Invalid number %lld passed to Reserve"), (long long)Number);
		if (Number > ArrayMax)
		{
			ResizeTo(Number);
		}
	}

	void Shrink()
	{
		if (ArrayMax != ArrayNum)
		{
			ResizeTo(ArrayNum);
		}
	}

	void Init(const ElementType& Element, SizeType Number)
	{
		Empty(Number);
		for (SizeType Index = 0; Index < Number; ++Index)
		{
			new ((void*)(Data + Index)) ElementType(Element);
		}
		ArrayNum = Number;
	}

	// Searching

	SizeType Find(const ElementType& Item) const
	{
		for (SizeType Index = 0; Index < ArrayNum; ++Index)
		{
			if (Data[Index] == Item)
			{
				return Index;
			}
		}
		return INDEX_NONE;
	}

	bool Find(const ElementType& Item, SizeType& Index) const
	{
		Index = Find(Item);
		return Index != INDEX_NONE;
	}

	SizeType FindLast(const ElementType& Item) const
	{
		for (SizeType Index = ArrayNum - 1; Index >= 0; --Index)
		{
			if (Data[Index] == Item)
			{
				return Index;
			}
		}
		return INDEX_NONE;
	}

	bool FindLast(const ElementType& Item, SizeType& Index) const
	{
		Index = FindLast(Item);
		return Index != INDEX_NONE;
	}

	template <typename PredicateType>
	SizeType FindLastByPredicate(PredicateType Pred) const
	{
		for (SizeType Index = ArrayNum - 1; Index >= 0; --Index)
		{
			if (Pred(Data[Index]))
			{
				return Index;
			}
		}
		return INDEX_NONE;
	}

	template <typename KeyType>
	SizeType IndexOfByKey(const KeyType& Key) const
	{
		for (SizeType Index = 0; Index < ArrayNum; ++Index)
		{
			if (Data[Index] == Key)
			{
				return Index;
			}
		}
		return INDEX_NONE;
	}

	template <typename PredicateType>
	SizeType IndexOfByPredicate(PredicateType Pred) const
	{
		for (SizeType Index = 0; Index < ArrayNum; ++Index)
		{
			if (Pred(Data[Index]))
			{
				return Index;
			}
		}
		return INDEX_NONE;
	}

	template <typename KeyType>
	const ElementType* FindByKey(const KeyType& Key) const
	{
		const SizeType Index = IndexOfByKey(Key);
		return Index != INDEX_NONE ? Data + Index : nullptr;
	}

	template <typename KeyType>
	ElementType* FindByKey(const KeyType& Key)
	{
		const SizeType Index = IndexOfByKey(Key);
		return Index != INDEX_NONE ? Data + Index : nullptr;
	}

	template <typename PredicateType>
	const ElementType* FindByPredicate(PredicateType Pred) const
	{
		const SizeType Index = IndexOfByPredicate(Pred);
		return Index != INDEX_NONE ? Data + Index : nullptr;
	}

	template <typename PredicateType>
	ElementType* FindByPredicate(PredicateType Pred)
	{
		const SizeType Index = IndexOfByPredicate(Pred);
		return Index != INDEX_NONE ? Data + Index : nullptr;
	}

	template <typename PredicateType>
	TArray FilterByPredicate(PredicateType Pred) const
	{
		TArray Result;
		for (SizeType Index = 0; Index < ArrayNum; ++Index)
		{
			if (Pred(Data[Index]))
			{
				Result.Add(Data[Index]);
			}
		}
		return Result;
	}

	template <typename ComparisonType>
	bool Contains(const ComparisonType& Item) const
	{
		for (SizeType Index = 0; Index < ArrayNum; ++Index)
		{
			if (Data[Index] == Item)
			{
				return true;
			}
		}
		return false;
	}

	template <typename PredicateType>
	bool ContainsByPredicate(PredicateType Pred) const
	{
		return IndexOfByPredicate(Pred) != INDEX_NONE;
	}

	// Ordering

	void Swap(SizeType FirstIndexToSwap, SizeType SecondIndexToSwap)
	{
		RangeCheck(FirstIndexToSwap);
		RangeCheck(SecondIndexToSwap);
		SwapMemory(FirstIndexToSwap, SecondIndexToSwap);
	}

	void SwapMemory(SizeType FirstIndexToSwap, SizeType SecondIndexToSwap)
	{
		if (FirstIndexToSwap != SecondIndexToSwap)
		{
			TTypeCompatibleBytes<ElementType> Temp;
			FMemory::Memcpy((void*)&Temp, (const void*)(Data + FirstIndexToSwap), sizeof(ElementType));
			FMemory::Memcpy((void*)(Data + FirstIndexToSwap), (const void*)(Data + SecondIndexToSwap), sizeof(ElementType));
			FMemory::Memcpy((void*)(Data + SecondIndexToSwap), (const void*)&Temp, sizeof(ElementType));
		}
	}

	/** Sorts with operator<; arrays of pointers are sorted by their pointees, as in the engine. */
	void Sort()
	{
		Sort(TLess<>());
	}

	template <typename PredicateType>
	void Sort(const PredicateType& Predicate)
	{
		if (ArrayNum > 1)
		{
			std::sort(Data, Data + ArrayNum, TDereferenceWrapper<ElementType, PredicateType>(Predicate));
		}
	}

	void StableSort()
	{
		StableSort(TLess<>());
	}

	template <typename PredicateType>
	void StableSort(const PredicateType& Predicate)
	{
		if (ArrayNum > 1)
		{
			std::stable_sort(Data, Data + ArrayNum, TDereferenceWrapper<ElementType, PredicateType>(Predicate));
		}
	}

	// Comparing and iterating

	bool operator==(const TArray& Other) const
	{
		return ArrayNum == Other.ArrayNum && CompareItems(Data, Other.Data, ArrayNum);
	}

	bool operator!=(const TArray& Other) const
	{
		return !(*this == Other);
	}

	TIterator CreateIterator() { return TIterator(*this); }
	TConstIterator CreateConstIterator() const { return TConstIterator(*this); }

	FORCEINLINE RangedForIteratorType begin() { return RangedForIteratorType(ArrayNum, Data); }
	FORCEINLINE RangedForConstIteratorType begin() const { return RangedForConstIteratorType(ArrayNum, Data); }
	FORCEINLINE RangedForIteratorType end() { return RangedForIteratorType(ArrayNum, Data + ArrayNum); }
	FORCEINLINE RangedForConstIteratorType end() const { return RangedForConstIteratorType(ArrayNum, Data + ArrayNum); }

private:
	template <typename... ArgsType>
	SizeType EmplaceWhileGrowing(ArgsType&&... Args)
	{
		if constexpr (std::is_move_constructible_v<ElementType>)
		{
			// The arguments may refer to an element of this array, which the growth is about to move.
			ElementType Temp(Forward<ArgsType>(Args)...);
			const SizeType Index = AddUninitialized(1);
			new ((void*)(Data + Index)) ElementType(MoveTemp(Temp));
			return Index;
		}
		else
		{
			const SizeType Index = AddUninitialized(1);
			new ((void*)(Data + Index)) ElementType(Forward<ArgsType>(Args)...);
			return Index;
		}
	}

	bool PointsIntoStorage(const ElementType* Ptr) const
	{
		return Ptr != nullptr && Data != nullptr && Ptr >= Data && Ptr < Data + ArrayMax;
	}

	void ResizeTo(SizeType NewMax)
	{
		if (NewMax != ArrayMax)
		{
			Data = (ElementType*)FMemory::Realloc(Data, (SIZE_T)NewMax * sizeof(ElementType), ContainerAllocationAlignment(alignof(ElementType)));
			ArrayMax = NewMax;
		}
	}

	void ShrinkIfTooMuchSlack()
	{
		const SizeType NewMax = DefaultCalculateSlackShrink(ArrayNum, ArrayMax, sizeof(ElementType), false, alignof(ElementType));
		if (NewMax != ArrayMax)
		{
			ResizeTo(NewMax);
		}
	}

	template <typename OtherElementType>
	void CopyToEmpty(const OtherElementType* Source, SizeType Count, SizeType ExtraSlack)
	{
		check(ArrayNum == 0);
		if (Count + ExtraSlack > ArrayMax || (Count + ExtraSlack == 0 && ArrayMax > 0))
		{
			ResizeTo(Count + ExtraSlack);
		}
		if (Count > 0)
		{
			ConstructItems<ElementType>((void*)Data, Source, Count);
		}
		ArrayNum = Count;
	}

	template <typename OtherAllocator>
	void StealFrom(TArray<ElementType, OtherAllocator>& Other)
	{
		Data = Other.Data;
		ArrayNum = Other.ArrayNum;
		ArrayMax = Other.ArrayMax;
		Other.Data = nullptr;
		Other.ArrayNum = 0;
		Other.ArrayMax = 0;
	}

	ElementType* Data = nullptr;
	SizeType ArrayNum = 0;
	SizeType ArrayMax = 0;
};

template <typename InElementType, typename InAllocatorType>
struct TIsContiguousContainer<TArray<InElementType, InAllocatorType>>
{
	enum { Value = true };
};

template <typename T, typename AllocatorType>
FORCEINLINE T* GetData(TArray<T, AllocatorType>& Container) { return Container.GetData(); }
template <typename T, typename AllocatorType>
FORCEINLINE const T* GetData(const TArray<T, AllocatorType>& Container) { return Container.GetData(); }
template <typename T, typename AllocatorType>
FORCEINLINE int32 GetNum(const TArray<T, AllocatorType>& Container) { return Container.Num(); }

template <typename T>
FORCEINLINE const T* GetData(std::initializer_list<T> List) { return List.begin(); }
template <typename T>
FORCEINLINE int32 GetNum(std::initializer_list<T> List) { return (int32)List.size(); }

template <typename T, SIZE_T N>
FORCEINLINE T* GetData(T (&Container)[N]) { return Container; }
template <typename T, SIZE_T N>
FORCEINLINE int32 GetNum(T (&Container)[N]) { return (int32)N; }

static_assert(sizeof(TArray<int32>) == sizeof(FScriptArray), "TArray must have FScriptArray's layout");
static_assert(alignof(TArray<int32>) == alignof(FScriptArray), "TArray must have FScriptArray's layout");

template <typename InElementType, typename InAllocatorType>
inline uint32 GetTypeHash(const TArray<InElementType, InAllocatorType>& Array)
{
	uint32 Hash = 0;
	for (const InElementType& Element : Array)
	{
		Hash = HashCombine(Hash, GetTypeHash(Element));
	}
	return Hash;
}

