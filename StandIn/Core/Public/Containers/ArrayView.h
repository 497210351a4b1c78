// TArrayView: a non-owning view of contiguous elements.
#pragma once

#include "CoreTypes.h"
#include "Containers/ContainersFwd.h"

#include <initializer_list>
#include <type_traits>

template <typename InElementType>
class TArrayView
{
public:
	typedef InElementType ElementType;
	typedef int32 SizeType;

	TArrayView() = default;

	TArrayView(ElementType* InData, SizeType InCount) : DataPtr(InData), ArrayNum(InCount)
	{
		check(InCount >= 0);
	}

	template <typename OtherElementType, typename AllocatorType, typename = std::enable_if_t<std::is_convertible_v<OtherElementType (*)[], ElementType (*)[]>>>
	TArrayView(TArray<OtherElementType, AllocatorType>& Other) : DataPtr(Other.GetData()), ArrayNum(Other.Num())
	{
	}

	template <typename OtherElementType, typename AllocatorType, typename = std::enable_if_t<std::is_convertible_v<const OtherElementType (*)[], ElementType (*)[]>>>
	TArrayView(const TArray<OtherElementType, AllocatorType>& Other) : DataPtr(Other.GetData()), ArrayNum(Other.Num())
	{
	}

	template <typename OtherElementType, typename = std::enable_if_t<std::is_convertible_v<OtherElementType (*)[], ElementType (*)[]>>>
	TArrayView(const TArrayView<OtherElementType>& Other) : DataPtr(Other.GetData()), ArrayNum(Other.Num())
	{
	}

	template <SIZE_T N>
	TArrayView(ElementType (&InArray)[N]) : DataPtr(InArray), ArrayNum((SizeType)N)
	{
	}

	TArrayView(std::initializer_list<std::remove_const_t<ElementType>> List) requires std::is_const_v<ElementType>
		: DataPtr(List.begin()), ArrayNum((SizeType)List.size())
	{
	}

	FORCEINLINE ElementType* GetData() const { return DataPtr; }
	FORCEINLINE SizeType Num() const { return ArrayNum; }
	FORCEINLINE bool IsEmpty() const { return ArrayNum == 0; }
	FORCEINLINE bool IsValidIndex(SizeType Index) const { return Index >= 0 && Index < ArrayNum; }
	FORCEINLINE static constexpr SIZE_T GetTypeSize() { return sizeof(ElementType); }

	FORCEINLINE ElementType& operator[](SizeType Index) const
	{
		checkf(IsValidIndex(Index), TEXT("Array index out of bounds: %lld into an array of size %lld"), (long long)Index, (long long)ArrayNum);
		return DataPtr[Index];
	}

	ElementType& Last(SizeType IndexFromTheEnd = 0) const
	{
		return (*this)[ArrayNum - IndexFromTheEnd - 1];
	}

	TArrayView Slice(SizeType Index, SizeType InNum) const
	{
		checkf(InNum >= 0 && Index >= 0 && Index + InNum <= ArrayNum, TEXT("Invalid slice of an array view"));
		return TArrayView(DataPtr + Index, InNum);
	}

	TArrayView Left(SizeType Count) const { return Slice(0, Count < 0 ? 0 : (Count > ArrayNum ? ArrayNum : Count)); }
	TArrayView Mid(SizeType Index, SizeType Count) const
	{
		Index = Index < 0 ? 0 : (Index > ArrayNum ? ArrayNum : Index);
		Count = Count < 0 ? 0 : (Count > ArrayNum - Index ? ArrayNum - Index : Count);
		return Slice(Index, Count);
	}

	template <typename KeyType>
	SizeType Find(const KeyType& Item) const
	{
		for (SizeType Index = 0; Index < ArrayNum; ++Index)
		{
			if (DataPtr[Index] == Item)
			{
				return Index;
			}
		}
		return INDEX_NONE;
	}

	template <typename KeyType>
	SizeType IndexOfByKey(const KeyType& Key) const { return Find(Key); }

	template <typename PredicateType>
	SizeType IndexOfByPredicate(PredicateType Pred) const
	{
		for (SizeType Index = 0; Index < ArrayNum; ++Index)
		{
			if (Pred(DataPtr[Index]))
			{
				return Index;
			}
		}
		return INDEX_NONE;
	}

	template <typename KeyType>
	bool Contains(const KeyType& Item) const { return Find(Item) != INDEX_NONE; }

	template <typename PredicateType>
	bool ContainsByPredicate(PredicateType Pred) const { return IndexOfByPredicate(Pred) != INDEX_NONE; }

	FORCEINLINE ElementType* begin() const { return DataPtr; }
	FORCEINLINE ElementType* end() const { return DataPtr + ArrayNum; }

private:
	ElementType* DataPtr = nullptr;
	SizeType ArrayNum = 0;
};

template <typename ElementType>
FORCEINLINE TArrayView<ElementType> MakeArrayView(ElementType* Pointer, int32 Size)
{
	return TArrayView<ElementType>(Pointer, Size);
}

template <typename ElementType, typename AllocatorType>
FORCEINLINE TArrayView<ElementType> MakeArrayView(TArray<ElementType, AllocatorType>& Other)
{
	return TArrayView<ElementType>(Other);
}

template <typename ElementType, typename AllocatorType>
FORCEINLINE TArrayView<const ElementType> MakeArrayView(const TArray<ElementType, AllocatorType>& Other)
{
	return TArrayView<const ElementType>(Other);
}

template <typename ElementType, SIZE_T N>
FORCEINLINE TArrayView<ElementType> MakeArrayView(ElementType (&Other)[N])
{
	return TArrayView<ElementType>(Other);
}

template <typename ElementType>
FORCEINLINE TArrayView<const ElementType> MakeArrayView(std::initializer_list<ElementType> List)
{
	return TArrayView<const ElementType>(List.begin(), (int32)List.size());
}
