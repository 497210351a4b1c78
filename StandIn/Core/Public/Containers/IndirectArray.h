// TIndirectArray: an array of heap-allocated elements that it owns, so elements keep their address as it grows.
#pragma once

#include "CoreTypes.h"
#include "Containers/Array.h"
#include "Misc/AssertionMacros.h"
#include "Templates/UnrealTemplate.h"

template <typename T, typename Allocator = FDefaultAllocator>
class TIndirectArray
{
public:
	using ElementType = T;

	template <typename TElement, typename TPointer>
	class TIterator
	{
	public:
		explicit TIterator(TPointer* InPointer) : Pointer(InPointer) {}
		TElement& operator*() const { return **Pointer; }
		TElement* operator->() const { return *Pointer; }
		TIterator& operator++() { ++Pointer; return *this; }
		bool operator==(const TIterator& Other) const { return Pointer == Other.Pointer; }
		bool operator!=(const TIterator& Other) const { return Pointer != Other.Pointer; }

	private:
		TPointer* Pointer;
	};
	using FIterator = TIterator<T, T* const>;
	using FConstIterator = TIterator<const T, T* const>;

	TIndirectArray() = default;
	TIndirectArray(const TIndirectArray& Other) { CopyElementsFrom(Other); }
	TIndirectArray(TIndirectArray&& Other) : Pointers(MoveTemp(Other.Pointers)) {}
	~TIndirectArray() { Empty(); }

	TIndirectArray& operator=(const TIndirectArray& Other)
	{
		if (this != &Other)
		{
			Empty(Other.Num());
			CopyElementsFrom(Other);
		}
		return *this;
	}

	TIndirectArray& operator=(TIndirectArray&& Other)
	{
		if (this != &Other)
		{
			Empty();
			Pointers = MoveTemp(Other.Pointers);
		}
		return *this;
	}

	int32 Num() const { return Pointers.Num(); }
	bool IsEmpty() const { return Pointers.Num() == 0; }
	bool IsValidIndex(int32 Index) const { return Pointers.IsValidIndex(Index); }
	T** GetData() { return Pointers.GetData(); }
	const T* const* GetData() const { return Pointers.GetData(); }

	T& operator[](int32 Index) { return *Pointers[Index]; }
	const T& operator[](int32 Index) const { return *Pointers[Index]; }
	T& Last(int32 IndexFromTheEnd = 0) { return *Pointers.Last(IndexFromTheEnd); }
	const T& Last(int32 IndexFromTheEnd = 0) const { return *Pointers.Last(IndexFromTheEnd); }

	// Takes ownership of Item; returns its index.
	int32 Add(T* Item) { return Pointers.Add(Item); }
	void Insert(T* Item, int32 Index) { Pointers.Insert(Item, Index); }

	void RemoveAt(int32 Index, int32 Count = 1)
	{
		check(Index >= 0 && Count >= 0 && Index + Count <= Num());
		DeleteElements(Index, Count);
		Pointers.RemoveAt(Index, Count);
	}

	void Empty(int32 Slack = 0)
	{
		DeleteElements(0, Num());
		Pointers.Empty(Slack);
	}

	void Reset()
	{
		DeleteElements(0, Num());
		Pointers.Reset();
	}

	void Reserve(int32 Number) { Pointers.Reserve(Number); }

	FIterator begin() { return FIterator(Pointers.GetData()); }
	FIterator end() { return FIterator(Pointers.GetData() + Pointers.Num()); }
	FConstIterator begin() const { return FConstIterator(Pointers.GetData()); }
	FConstIterator end() const { return FConstIterator(Pointers.GetData() + Pointers.Num()); }

private:
	void CopyElementsFrom(const TIndirectArray& Other)
	{
		Pointers.Reserve(Other.Num());
		for (const T& Element : Other)
		{
			Pointers.Add(new T(Element));
		}
	}

	void DeleteElements(int32 Index, int32 Count)
	{
		for (int32 ElementIndex = Index; ElementIndex < Index + Count; ++ElementIndex)
		{
			delete Pointers[ElementIndex];
		}
	}

	TArray<T*, Allocator> Pointers;
};
