// TMap: a hashed map whose pairs are kept in insertion order.
#pragma once

#include "CoreTypes.h"
#include "Containers/Array.h"
#include "Containers/Set.h"
#include "Templates/Tuple.h"

#include <cstddef>
#include <initializer_list>

template <typename KeyType, typename ValueType, bool bInAllowDuplicateKeys>
struct TDefaultMapKeyFuncs
{
	typedef KeyType KeyInitTypeStorage;
	typedef typename TCallTraits<KeyType>::ParamType KeyInitType;
	typedef const TPair<KeyType, ValueType>& ElementInitType;
	enum { bAllowDuplicateKeys = bInAllowDuplicateKeys };

	static FORCEINLINE KeyInitType GetSetKey(ElementInitType Element) { return Element.Key; }
	static FORCEINLINE bool Matches(KeyInitType A, KeyInitType B) { return A == B; }
	static FORCEINLINE uint32 GetKeyHash(KeyInitType Key) { return GetTypeHash(Key); }
};

template <typename KeyType, typename ValueType, bool bInAllowDuplicateKeys>
struct TDefaultMapHashableKeyFuncs : TDefaultMapKeyFuncs<KeyType, ValueType, bInAllowDuplicateKeys>
{
};

/** The type-erased view of every TMap: FScriptArray of the pairs, then the hash index. */
struct FScriptMap
{
	FScriptArray Pairs;
	FScriptArray HashBuckets;
	FScriptArray HashNext;

	FORCEINLINE int32 Num() const { return Pairs.Num(); }
	/** Call after editing Pairs directly; the typed map rebuilds its index on its next lookup. */
	CORE_API void InvalidateIndex();
};

/**
 * Iteration follows insertion order. Stand-in choice: removing a pair closes the gap (later pairs keep their
 * order), where the engine would leave a hole for the next insertion.
 */
template <typename InKeyType, typename InValueType, typename SetAllocator, typename KeyFuncs>
class TMap
{
public:
	typedef InKeyType KeyType;
	typedef InValueType ValueType;
	typedef TPair<KeyType, ValueType> ElementType;
	typedef typename KeyFuncs::KeyInitType KeyConstPointerType;
	typedef typename KeyFuncs::KeyInitType KeyInitType;
	typedef TSet<ElementType, KeyFuncs, SetAllocator> ElementSetType;

	class TIterator
	{
	public:
		explicit TIterator(TMap& InMap) : Map(InMap), Index(0) {}
		TIterator& operator++() { ++Index; return *this; }
		explicit operator bool() const { return Map.Pairs.Elements.IsValidIndex(Index); }
		ElementType& operator*() const { return Map.Pairs.Elements[Index]; }
		ElementType* operator->() const { return &Map.Pairs.Elements[Index]; }
		const KeyType& Key() const { return Map.Pairs.Elements[Index].Key; }
		ValueType& Value() const { return Map.Pairs.Elements[Index].Value; }
		FSetElementId GetId() const { return FSetElementId::FromInteger(Index); }

		/** Removes the current pair; the next increment moves to the pair that followed it. */
		void RemoveCurrent()
		{
			Map.Pairs.RemoveByIndex(Index);
			--Index;
		}

	private:
		TMap& Map;
		int32 Index;
	};

	class TConstIterator
	{
	public:
		explicit TConstIterator(const TMap& InMap) : Map(InMap), Index(0) {}
		TConstIterator& operator++() { ++Index; return *this; }
		explicit operator bool() const { return Map.Pairs.Elements.IsValidIndex(Index); }
		const ElementType& operator*() const { return Map.Pairs.Elements[Index]; }
		const ElementType* operator->() const { return &Map.Pairs.Elements[Index]; }
		const KeyType& Key() const { return Map.Pairs.Elements[Index].Key; }
		const ValueType& Value() const { return Map.Pairs.Elements[Index].Value; }
		FSetElementId GetId() const { return FSetElementId::FromInteger(Index); }

	private:
		const TMap& Map;
		int32 Index;
	};

	TMap() = default;
	TMap(const TMap&) = default;
	TMap(TMap&&) = default;
	TMap& operator=(const TMap&) = default;
	TMap& operator=(TMap&&) = default;

	TMap(std::initializer_list<ElementType> InitList)
	{
		for (const ElementType& Pair : InitList)
		{
			Add(Pair.Key, Pair.Value);
		}
	}

	FORCEINLINE int32 Num() const { return Pairs.Num(); }
	FORCEINLINE bool IsEmpty() const { return Pairs.IsEmpty(); }
	void Empty(int32 ExpectedNumElements = 0) { Pairs.Empty(ExpectedNumElements); }
	void Reset() { Pairs.Reset(); }
	void Shrink() { Pairs.Shrink(); }
	void Compact() {}
	void CompactStable() {}
	void Reserve(int32 Number) { Pairs.Reserve(Number); }

	/** Sets the value of the key, replacing the value of an existing pair in place. */
	ValueType& Add(const KeyType& InKey, const ValueType& InValue) { return Emplace(InKey, InValue); }
	ValueType& Add(const KeyType& InKey, ValueType&& InValue) { return Emplace(InKey, MoveTempIfPossible(InValue)); }
	ValueType& Add(KeyType&& InKey, const ValueType& InValue) { return Emplace(MoveTempIfPossible(InKey), InValue); }
	ValueType& Add(KeyType&& InKey, ValueType&& InValue) { return Emplace(MoveTempIfPossible(InKey), MoveTempIfPossible(InValue)); }
	ValueType& Add(const KeyType& InKey) { return Emplace(InKey); }
	ValueType& Add(KeyType&& InKey) { return Emplace(MoveTempIfPossible(InKey)); }
	ValueType& Add(const ElementType& InPair) { return Emplace(InPair.Key, InPair.Value); }

	template <typename InitKeyType, typename InitValueType>
	ValueType& Emplace(InitKeyType&& InKey, InitValueType&& InValue)
	{
		const FSetElementId Id = Pairs.Emplace(ElementType(Forward<InitKeyType>(InKey), Forward<InitValueType>(InValue)));
		return Pairs[Id].Value;
	}

	template <typename InitKeyType>
	ValueType& Emplace(InitKeyType&& InKey)
	{
		const FSetElementId Id = Pairs.Emplace(ElementType(Forward<InitKeyType>(InKey), ValueType()));
		return Pairs[Id].Value;
	}

	ValueType& FindOrAdd(const KeyType& Key)
	{
		if (ValueType* Existing = Find(Key))
		{
			return *Existing;
		}
		return Pairs.Elements[Pairs.AddNewElement(ElementType(Key, ValueType()))].Value;
	}

	ValueType& FindOrAdd(KeyType&& Key)
	{
		if (ValueType* Existing = Find(Key))
		{
			return *Existing;
		}
		return Pairs.Elements[Pairs.AddNewElement(ElementType(MoveTempIfPossible(Key), ValueType()))].Value;
	}

	template <typename InitValueType>
	ValueType& FindOrAdd(const KeyType& Key, InitValueType&& Value)
	{
		if (ValueType* Existing = Find(Key))
		{
			return *Existing;
		}
		return Pairs.Elements[Pairs.AddNewElement(ElementType(Key, Forward<InitValueType>(Value)))].Value;
	}

	ValueType* Find(KeyConstPointerType Key)
	{
		ElementType* Pair = Pairs.Find(Key);
		return Pair ? &Pair->Value : nullptr;
	}

	const ValueType* Find(KeyConstPointerType Key) const
	{
		const ElementType* Pair = Pairs.Find(Key);
		return Pair ? &Pair->Value : nullptr;
	}

	ValueType FindRef(KeyConstPointerType Key) const
	{
		const ValueType* Value = Find(Key);
		return Value ? *Value : ValueType();
	}

	ValueType FindRef(KeyConstPointerType Key, ValueType DefaultValue) const
	{
		const ValueType* Value = Find(Key);
		return Value ? *Value : DefaultValue;
	}

	ValueType& FindChecked(KeyConstPointerType Key)
	{
		ValueType* Value = Find(Key);
		check(Value != nullptr);
		return *Value;
	}

	const ValueType& FindChecked(KeyConstPointerType Key) const
	{
		const ValueType* Value = Find(Key);
		check(Value != nullptr);
		return *Value;
	}

	const KeyType* FindKey(const ValueType& Value) const
	{
		for (const ElementType& Pair : Pairs.Elements)
		{
			if (Pair.Value == Value)
			{
				return &Pair.Key;
			}
		}
		return nullptr;
	}

	FORCEINLINE bool Contains(KeyConstPointerType Key) const { return Pairs.Contains(Key); }

	ValueType& operator[](KeyConstPointerType Key) { return FindChecked(Key); }
	const ValueType& operator[](KeyConstPointerType Key) const { return FindChecked(Key); }

	/** Removes the pair with the key; returns the number of pairs removed. */
	int32 Remove(KeyConstPointerType Key) { return Pairs.Remove(Key); }

	bool RemoveAndCopyValue(KeyInitType Key, ValueType& OutRemovedValue)
	{
		const FSetElementId Id = Pairs.FindId(Key);
		if (!Id.IsValidId())
		{
			return false;
		}
		OutRemovedValue = MoveTemp(Pairs[Id].Value);
		Pairs.Remove(Id);
		return true;
	}

	ValueType FindAndRemoveChecked(KeyConstPointerType Key)
	{
		const FSetElementId Id = Pairs.FindId(Key);
		check(Id.IsValidId());
		ValueType Result = MoveTemp(Pairs[Id].Value);
		Pairs.Remove(Id);
		return Result;
	}

	int32 GetKeys(TArray<KeyType>& OutKeys) const
	{
		OutKeys.Reset();
		for (const ElementType& Pair : Pairs.Elements)
		{
			OutKeys.Add(Pair.Key);
		}
		return OutKeys.Num();
	}

	int32 GetKeys(TSet<KeyType>& OutKeys) const
	{
		OutKeys.Reset();
		for (const ElementType& Pair : Pairs.Elements)
		{
			OutKeys.Add(Pair.Key);
		}
		return OutKeys.Num();
	}

	void GenerateKeyArray(TArray<KeyType>& OutArray) const
	{
		OutArray.Empty(Pairs.Num());
		for (const ElementType& Pair : Pairs.Elements)
		{
			OutArray.Add(Pair.Key);
		}
	}

	void GenerateValueArray(TArray<ValueType>& OutArray) const
	{
		OutArray.Empty(Pairs.Num());
		for (const ElementType& Pair : Pairs.Elements)
		{
			OutArray.Add(Pair.Value);
		}
	}

	template <typename PredicateType>
	void KeySort(const PredicateType& Predicate)
	{
		Pairs.StableSort([&Predicate](const ElementType& A, const ElementType& B) { return Predicate(A.Key, B.Key); });
	}

	template <typename PredicateType>
	void KeyStableSort(const PredicateType& Predicate) { KeySort(Predicate); }

	template <typename PredicateType>
	void ValueSort(const PredicateType& Predicate)
	{
		Pairs.StableSort([&Predicate](const ElementType& A, const ElementType& B) { return Predicate(A.Value, B.Value); });
	}

	template <typename PredicateType>
	void ValueStableSort(const PredicateType& Predicate) { ValueSort(Predicate); }

	template <typename PredicateType>
	TMap FilterByPredicate(PredicateType Pred) const
	{
		TMap Result;
		for (const ElementType& Pair : Pairs.Elements)
		{
			if (Pred(Pair))
			{
				Result.Add(Pair.Key, Pair.Value);
			}
		}
		return Result;
	}

	void Append(const TMap& Other)
	{
		for (const ElementType& Pair : Other.Pairs.Elements)
		{
			Add(Pair.Key, Pair.Value);
		}
	}

	bool OrderIndependentCompareEqual(const TMap& Other) const
	{
		if (Num() != Other.Num())
		{
			return false;
		}
		for (const ElementType& Pair : Pairs.Elements)
		{
			const ValueType* OtherValue = Other.Find(Pair.Key);
			if (!OtherValue || !(*OtherValue == Pair.Value))
			{
				return false;
			}
		}
		return true;
	}

	TIterator CreateIterator() { return TIterator(*this); }
	TConstIterator CreateConstIterator() const { return TConstIterator(*this); }

	FORCEINLINE auto begin() { return Pairs.begin(); }
	FORCEINLINE auto begin() const { return Pairs.begin(); }
	FORCEINLINE auto end() { return Pairs.end(); }
	FORCEINLINE auto end() const { return Pairs.end(); }

private:
	ElementSetType Pairs;
};

template <typename KeyType, typename ValueType, typename SetAllocator, typename KeyFuncs>
FORCEINLINE int32 GetNum(const TMap<KeyType, ValueType, SetAllocator, KeyFuncs>& Map)
{
	return Map.Num();
}

static_assert(sizeof(TMap<int32, int32>) == sizeof(FScriptMap), "TMap must have FScriptMap's layout");
static_assert(offsetof(FScriptMap, Pairs) == offsetof(FScriptSet, Elements) && offsetof(FScriptMap, HashBuckets) == offsetof(FScriptSet, HashBuckets)
	&& offsetof(FScriptMap, HashNext) == offsetof(FScriptSet, HashNext), "TMap is a TSet of its pairs");
static_assert(sizeof(TSet<int32>) == sizeof(FScriptSet), "TSet must have FScriptSet's layout");
