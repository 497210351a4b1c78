// TSet: a hashed set stored as an ordered array of elements plus an int32 hash index.
#pragma once

#include "CoreTypes.h"
#include "Containers/Array.h"
#include "Containers/ContainersFwd.h"
#include "Containers/ScriptArray.h"
#include "Templates/TypeHash.h"
#include "Templates/UnrealTemplate.h"

#include <cstddef>
#include <initializer_list>

/** Identifies an element of a set by its index. */
class FSetElementId
{
public:
	FSetElementId() = default;
	FORCEINLINE bool IsValidId() const { return Index != INDEX_NONE; }
	FORCEINLINE int32 AsInteger() const { return Index; }
	FORCEINLINE static FSetElementId FromInteger(int32 Integer) { return FSetElementId(Integer); }
	FORCEINLINE bool operator==(const FSetElementId& Other) const { return Index == Other.Index; }
	FORCEINLINE bool operator!=(const FSetElementId& Other) const { return Index != Other.Index; }

private:
	explicit FSetElementId(int32 InIndex) : Index(InIndex) {}
	int32 Index = INDEX_NONE;
};

template <typename ElementType, bool bInAllowDuplicateKeys>
struct DefaultKeyFuncs
{
	typedef ElementType KeyType;
	typedef typename TCallTraits<ElementType>::ParamType KeyInitType;
	typedef typename TCallTraits<ElementType>::ParamType ElementInitType;
	enum { bAllowDuplicateKeys = bInAllowDuplicateKeys };

	static FORCEINLINE KeyInitType GetSetKey(ElementInitType Element) { return Element; }
	static FORCEINLINE bool Matches(KeyInitType A, KeyInitType B) { return A == B; }
	static FORCEINLINE uint32 GetKeyHash(KeyInitType Key) { return GetTypeHash(Key); }
};

/**
 * The type-erased view of every TSet and TMap: the elements in order, then the hash index (bucket heads and
 * per-element chain links). Reflection code edits Elements through FScriptArray and calls InvalidateIndex();
 * the typed container rebuilds its index on the next lookup.
 */
struct FScriptSet
{
	FScriptArray Elements;
	FScriptArray HashBuckets;
	FScriptArray HashNext;

	FORCEINLINE int32 Num() const { return Elements.Num(); }
	CORE_API void InvalidateIndex();
};

template <typename InElementType, typename KeyFuncs, typename Allocator>
class TSet
{
	template <typename, typename, typename, typename>
	friend class TMap;

public:
	typedef InElementType ElementType;
	typedef typename KeyFuncs::KeyInitType KeyInitType;
	typedef typename KeyFuncs::ElementInitType ElementInitType;
	typedef int32 SizeType;

	class TBaseIterator
	{
	public:
		explicit operator bool() const { return Set->Elements.IsValidIndex(Index); }
		FSetElementId GetId() const { return FSetElementId::FromInteger(Index); }
		int32 GetIndex() const { return Index; }

	protected:
		TBaseIterator(const TSet* InSet, int32 InIndex) : Set(InSet), Index(InIndex) {}
		const TSet* Set;
		int32 Index;
	};

	class TConstIterator : public TBaseIterator
	{
	public:
		explicit TConstIterator(const TSet& InSet) : TBaseIterator(&InSet, 0) {}
		TConstIterator& operator++() { ++this->Index; return *this; }
		const ElementType& operator*() const { return this->Set->Elements[this->Index]; }
		const ElementType* operator->() const { return &this->Set->Elements[this->Index]; }
	};

	class TIterator : public TBaseIterator
	{
	public:
		explicit TIterator(TSet& InSet) : TBaseIterator(&InSet, 0) {}
		TIterator& operator++() { ++this->Index; return *this; }
		ElementType& operator*() const { return MutableSet()->Elements[this->Index]; }
		ElementType* operator->() const { return &MutableSet()->Elements[this->Index]; }

		/** Removes the current element; the next increment moves to the element that followed it. */
		void RemoveCurrent()
		{
			MutableSet()->RemoveByIndex(this->Index);
			--this->Index;
		}

	private:
		TSet* MutableSet() const { return const_cast<TSet*>(this->Set); }
	};

	TSet() = default;
	~TSet()
	{
		static_assert(offsetof(TSet, Elements) == offsetof(FScriptSet, Elements) && offsetof(TSet, HashBuckets) == offsetof(FScriptSet, HashBuckets)
			&& offsetof(TSet, HashNext) == offsetof(FScriptSet, HashNext) && sizeof(TSet) == sizeof(FScriptSet), "TSet must have FScriptSet's layout");
	}
	TSet(const TSet&) = default;
	TSet(TSet&&) = default;
	TSet& operator=(const TSet&) = default;
	TSet& operator=(TSet&&) = default;

	TSet(std::initializer_list<ElementType> InitList)
	{
		Append(InitList);
	}

	explicit TSet(const TArray<ElementType>& InArray)
	{
		Append(InArray);
	}

	FORCEINLINE int32 Num() const { return Elements.Num(); }
	FORCEINLINE bool IsEmpty() const { return Elements.IsEmpty(); }
	FORCEINLINE bool IsValidId(FSetElementId Id) const { return Elements.IsValidIndex(Id.AsInteger()); }
	FORCEINLINE int32 GetMaxIndex() const { return Elements.Num(); }

	void Empty(int32 ExpectedNumElements = 0)
	{
		Elements.Empty(ExpectedNumElements);
		HashBuckets.Empty();
		HashNext.Empty();
	}

	void Reset()
	{
		Elements.Reset();
		HashBuckets.Reset();
		HashNext.Reset();
	}

	void Shrink() { Elements.Shrink(); }
	void Compact() {}
	void CompactStable() {}
	void Reserve(int32 Number) { Elements.Reserve(Number); }

	FSetElementId Add(const ElementType& InElement, bool* bIsAlreadyInSetPtr = nullptr) { return Emplace(InElement, bIsAlreadyInSetPtr); }
	FSetElementId Add(ElementType&& InElement, bool* bIsAlreadyInSetPtr = nullptr) { return Emplace(MoveTempIfPossible(InElement), bIsAlreadyInSetPtr); }

	/** Adds the element; an element with an equal key is replaced in place. */
	template <typename ArgType>
	FSetElementId Emplace(ArgType&& Arg, bool* bIsAlreadyInSetPtr = nullptr)
	{
		ElementType Element(Forward<ArgType>(Arg));
		const int32 ExistingIndex = KeyFuncs::bAllowDuplicateKeys ? INDEX_NONE : FindIndexByKey(KeyFuncs::GetSetKey(Element));
		if (bIsAlreadyInSetPtr)
		{
			*bIsAlreadyInSetPtr = ExistingIndex != INDEX_NONE;
		}
		if (ExistingIndex != INDEX_NONE)
		{
			Elements[ExistingIndex] = MoveTemp(Element);
			return FSetElementId::FromInteger(ExistingIndex);
		}
		return FSetElementId::FromInteger(AddNewElement(MoveTemp(Element)));
	}

	template <typename RangeType>
	void Append(const RangeType& Range)
	{
		for (const ElementType& Element : Range)
		{
			Add(Element);
		}
	}

	void Append(std::initializer_list<ElementType> InitList)
	{
		for (const ElementType& Element : InitList)
		{
			Add(Element);
		}
	}

	FSetElementId FindId(KeyInitType Key) const { return FSetElementId::FromInteger(FindIndexByKey(Key)); }

	ElementType* Find(KeyInitType Key)
	{
		const int32 Index = FindIndexByKey(Key);
		return Index != INDEX_NONE ? &Elements[Index] : nullptr;
	}

	const ElementType* Find(KeyInitType Key) const
	{
		const int32 Index = FindIndexByKey(Key);
		return Index != INDEX_NONE ? &Elements[Index] : nullptr;
	}

	bool Contains(KeyInitType Key) const { return FindIndexByKey(Key) != INDEX_NONE; }

	ElementType& FindChecked(KeyInitType Key)
	{
		ElementType* Element = Find(Key);
		check(Element != nullptr);
		return *Element;
	}

	/** Removes every element with the key; returns how many were removed. */
	int32 Remove(KeyInitType Key)
	{
		int32 NumRemoved = 0;
		for (int32 Index = FindIndexByKey(Key); Index != INDEX_NONE; Index = KeyFuncs::bAllowDuplicateKeys ? FindIndexByKey(Key) : INDEX_NONE)
		{
			RemoveByIndex(Index);
			++NumRemoved;
		}
		return NumRemoved;
	}

	void Remove(FSetElementId ElementId)
	{
		checkf(IsValidId(ElementId), TEXT("Invalid set element id"));
		RemoveByIndex(ElementId.AsInteger());
	}

	ElementType& operator[](FSetElementId Id) { return Elements[Id.AsInteger()]; }
	const ElementType& operator[](FSetElementId Id) const { return Elements[Id.AsInteger()]; }

	ElementType& Get(FSetElementId Id) { return Elements[Id.AsInteger()]; }
	const ElementType& Get(FSetElementId Id) const { return Elements[Id.AsInteger()]; }

	TArray<ElementType> Array() const { return Elements; }

	template <typename PredicateType>
	void Sort(const PredicateType& Predicate)
	{
		Elements.Sort(Predicate);
		InvalidateIndex();
	}

	template <typename PredicateType>
	void StableSort(const PredicateType& Predicate)
	{
		Elements.StableSort(Predicate);
		InvalidateIndex();
	}

	bool Includes(const TSet& Other) const
	{
		for (const ElementType& Element : Other.Elements)
		{
			if (!Contains(KeyFuncs::GetSetKey(Element)))
			{
				return false;
			}
		}
		return true;
	}

	TSet Union(const TSet& Other) const
	{
		TSet Result(*this);
		Result.Append(Other);
		return Result;
	}

	TSet Intersect(const TSet& Other) const
	{
		TSet Result;
		for (const ElementType& Element : Elements)
		{
			if (Other.Contains(KeyFuncs::GetSetKey(Element)))
			{
				Result.Add(Element);
			}
		}
		return Result;
	}

	TSet Difference(const TSet& Other) const
	{
		TSet Result;
		for (const ElementType& Element : Elements)
		{
			if (!Other.Contains(KeyFuncs::GetSetKey(Element)))
			{
				Result.Add(Element);
			}
		}
		return Result;
	}

	TIterator CreateIterator() { return TIterator(*this); }
	TConstIterator CreateConstIterator() const { return TConstIterator(*this); }

	FORCEINLINE auto begin() { return Elements.begin(); }
	FORCEINLINE auto begin() const { return Elements.begin(); }
	FORCEINLINE auto end() { return Elements.end(); }
	FORCEINLINE auto end() const { return Elements.end(); }

	/** Forgets the hash index; the next lookup rebuilds it from the elements. */
	void InvalidateIndex() const
	{
		HashBuckets.Empty();
		HashNext.Empty();
	}

private:
	bool IsIndexValid() const
	{
		return HashNext.Num() == Elements.Num() && (Elements.Num() == 0 || HashBuckets.Num() > 0);
	}

	static int32 DesiredBucketCount(int32 NumElements)
	{
		int32 Count = 8;
		while (Count < NumElements)
		{
			Count *= 2;
		}
		return Count;
	}

	void RebuildIndex() const
	{
		HashBuckets.Reset();
		HashNext.Reset();
		if (Elements.Num() == 0)
		{
			return;
		}
		HashBuckets.Init(INDEX_NONE, DesiredBucketCount(Elements.Num()));
		HashNext.SetNumUninitialized(Elements.Num());
		// Linking from the back keeps the first of any equal keys at the head of its chain.
		for (int32 Index = Elements.Num() - 1; Index >= 0; --Index)
		{
			LinkElement(Index);
		}
	}

	void LinkElement(int32 Index) const
	{
		const uint32 Hash = KeyFuncs::GetKeyHash(KeyFuncs::GetSetKey(Elements[Index]));
		int32& Head = HashBuckets[(int32)(Hash & (uint32)(HashBuckets.Num() - 1))];
		HashNext[Index] = Head;
		Head = Index;
	}

	int32 FindIndexByKey(KeyInitType Key) const
	{
		if (!IsIndexValid())
		{
			RebuildIndex();
		}
		if (HashBuckets.Num() == 0)
		{
			return INDEX_NONE;
		}
		const uint32 Hash = KeyFuncs::GetKeyHash(Key);
		for (int32 Index = HashBuckets[(int32)(Hash & (uint32)(HashBuckets.Num() - 1))]; Index != INDEX_NONE; Index = HashNext[Index])
		{
			if (KeyFuncs::Matches(KeyFuncs::GetSetKey(Elements[Index]), Key))
			{
				return Index;
			}
		}
		return INDEX_NONE;
	}

	int32 AddNewElement(ElementType&& Element)
	{
		const bool bIndexWasValid = IsIndexValid();
		const int32 Index = Elements.Emplace(MoveTemp(Element));
		if (!bIndexWasValid || HashBuckets.Num() < Elements.Num())
		{
			RebuildIndex();
		}
		else
		{
			HashNext.Add(INDEX_NONE);
			LinkElement(Index);
		}
		return Index;
	}

	void RemoveByIndex(int32 Index)
	{
		Elements.RemoveAt(Index);
		InvalidateIndex();
	}

	TArray<ElementType> Elements;
	mutable TArray<int32> HashBuckets;
	mutable TArray<int32> HashNext;
};

template <typename ElementType, typename KeyFuncs, typename Allocator>
FORCEINLINE int32 GetNum(const TSet<ElementType, KeyFuncs, Allocator>& Set)
{
	return Set.Num();
}
