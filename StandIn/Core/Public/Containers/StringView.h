// TStringView / FStringView: a non-owning view of characters.
#pragma once

#include "CoreTypes.h"
#include "Containers/ContainersFwd.h"
#include "Misc/CString.h"

#include <concepts>

namespace UE::Core::Private
{
	/** Finds GetData / GetNum of a range through argument-dependent lookup. */
	template <typename RangeType>
	auto RangeGetData(const RangeType& Range) -> decltype(GetData(Range))
	{
		return GetData(Range);
	}

	template <typename RangeType>
	auto RangeGetNum(const RangeType& Range) -> decltype(GetNum(Range))
	{
		return GetNum(Range);
	}
}

template <typename CharType>
class TStringView
{
public:
	typedef CharType ElementType;
	typedef int32 SizeType;

	constexpr TStringView() = default;

	constexpr TStringView(const CharType* InData) : DataPtr(InData), Size(InData ? TCString<CharType>::Strlen(InData) : 0) {}

	constexpr TStringView(const CharType* InData, SizeType InSize) : DataPtr(InData), Size(InSize) {}

	/** Views any contiguous range of characters, such as FString (found through GetData/GetNum). */
	template <typename RangeType>
		requires(!std::is_pointer_v<std::decay_t<RangeType>> && !std::is_array_v<std::remove_reference_t<RangeType>> && !std::is_same_v<std::decay_t<RangeType>, TStringView> && requires(const RangeType& Range) {
			{ UE::Core::Private::RangeGetData(Range) } -> std::convertible_to<const CharType*>;
			{ UE::Core::Private::RangeGetNum(Range) } -> std::convertible_to<int32>;
		})
	TStringView(const RangeType& Range) : DataPtr(UE::Core::Private::RangeGetData(Range)), Size((SizeType)UE::Core::Private::RangeGetNum(Range))
	{
	}

	FORCEINLINE const CharType* GetData() const { return DataPtr; }
	FORCEINLINE SizeType Len() const { return Size; }
	FORCEINLINE bool IsEmpty() const { return Size == 0; }
	FORCEINLINE bool IsValidIndex(SizeType Index) const { return Index >= 0 && Index < Size; }

	const CharType& operator[](SizeType Index) const
	{
		checkf(IsValidIndex(Index), TEXT("Index (%d) out of bounds for a string view of length %d"), (int)Index, (int)Size);
		return DataPtr[Index];
	}

	TStringView Left(SizeType CharCount) const { return TStringView(DataPtr, Clamp(CharCount, 0, Size)); }
	TStringView LeftChop(SizeType CharCount) const { return TStringView(DataPtr, Clamp(Size - CharCount, 0, Size)); }
	TStringView Right(SizeType CharCount) const
	{
		const SizeType Count = Clamp(CharCount, 0, Size);
		return TStringView(DataPtr + Size - Count, Count);
	}
	TStringView RightChop(SizeType CharCount) const
	{
		const SizeType Count = Clamp(Size - CharCount, 0, Size);
		return TStringView(DataPtr + Size - Count, Count);
	}
	TStringView Mid(SizeType Position, SizeType CharCount = 0x7fffffff) const
	{
		const SizeType Start = Clamp(Position, 0, Size);
		const int64 End = (int64)Start + (CharCount < 0 ? 0 : CharCount);
		return TStringView(DataPtr + Start, (SizeType)(End > Size ? Size - Start : End - Start));
	}

	void LeftInline(SizeType CharCount) { *this = Left(CharCount); }
	void LeftChopInline(SizeType CharCount) { *this = LeftChop(CharCount); }
	void RightInline(SizeType CharCount) { *this = Right(CharCount); }
	void RightChopInline(SizeType CharCount) { *this = RightChop(CharCount); }
	void MidInline(SizeType Position, SizeType CharCount = 0x7fffffff) { *this = Mid(Position, CharCount); }
	void RemovePrefix(SizeType CharCount) { RightChopInline(CharCount); }
	void RemoveSuffix(SizeType CharCount) { LeftChopInline(CharCount); }

	TStringView TrimStart() const
	{
		SizeType Start = 0;
		while (Start < Size && TChar<CharType>::IsWhitespace(DataPtr[Start]))
		{
			++Start;
		}
		return RightChop(Start);
	}

	TStringView TrimEnd() const
	{
		SizeType NewSize = Size;
		while (NewSize > 0 && TChar<CharType>::IsWhitespace(DataPtr[NewSize - 1]))
		{
			--NewSize;
		}
		return Left(NewSize);
	}

	TStringView TrimStartAndEnd() const { return TrimStart().TrimEnd(); }

	bool Equals(TStringView Other, ESearchCase::Type SearchCase = ESearchCase::CaseSensitive) const
	{
		return Size == Other.Size && CompareChars(DataPtr, Other.DataPtr, Size, SearchCase) == 0;
	}

	int32 Compare(TStringView Other, ESearchCase::Type SearchCase = ESearchCase::CaseSensitive) const
	{
		const SizeType MinSize = Size < Other.Size ? Size : Other.Size;
		const int32 Result = CompareChars(DataPtr, Other.DataPtr, MinSize, SearchCase);
		if (Result != 0)
		{
			return Result;
		}
		return Size < Other.Size ? -1 : (Size > Other.Size ? 1 : 0);
	}

	bool StartsWith(TStringView Prefix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const
	{
		return Prefix.Size <= Size && CompareChars(DataPtr, Prefix.DataPtr, Prefix.Size, SearchCase) == 0;
	}

	bool EndsWith(TStringView Suffix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const
	{
		return Suffix.Size <= Size && CompareChars(DataPtr + Size - Suffix.Size, Suffix.DataPtr, Suffix.Size, SearchCase) == 0;
	}

	SizeType Find(TStringView Search, SizeType StartPosition = 0, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const
	{
		for (SizeType Index = StartPosition < 0 ? 0 : StartPosition; Index + Search.Size <= Size; ++Index)
		{
			if (CompareChars(DataPtr + Index, Search.DataPtr, Search.Size, SearchCase) == 0)
			{
				return Index;
			}
		}
		return INDEX_NONE;
	}

	bool Contains(TStringView Search, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const
	{
		return Find(Search, 0, SearchCase) != INDEX_NONE;
	}

	bool FindChar(CharType InChar, SizeType& OutIndex) const
	{
		for (SizeType Index = 0; Index < Size; ++Index)
		{
			if (DataPtr[Index] == InChar)
			{
				OutIndex = Index;
				return true;
			}
		}
		OutIndex = INDEX_NONE;
		return false;
	}

	bool FindLastChar(CharType InChar, SizeType& OutIndex) const
	{
		for (SizeType Index = Size - 1; Index >= 0; --Index)
		{
			if (DataPtr[Index] == InChar)
			{
				OutIndex = Index;
				return true;
			}
		}
		OutIndex = INDEX_NONE;
		return false;
	}

	FORCEINLINE const CharType* begin() const { return DataPtr; }
	FORCEINLINE const CharType* end() const { return DataPtr + Size; }

	/** Equality of string views ignores case, as in the engine. */
	friend bool operator==(TStringView Lhs, TStringView Rhs) { return Lhs.Equals(Rhs, ESearchCase::IgnoreCase); }
	friend bool operator!=(TStringView Lhs, TStringView Rhs) { return !Lhs.Equals(Rhs, ESearchCase::IgnoreCase); }
	friend bool operator<(TStringView Lhs, TStringView Rhs) { return Lhs.Compare(Rhs, ESearchCase::IgnoreCase) < 0; }
	friend bool operator==(TStringView Lhs, const CharType* Rhs) { return Lhs.Equals(TStringView(Rhs), ESearchCase::IgnoreCase); }
	friend bool operator!=(TStringView Lhs, const CharType* Rhs) { return !(Lhs == Rhs); }

private:
	static constexpr SizeType Clamp(SizeType Value, SizeType Min, SizeType Max) { return Value < Min ? Min : (Value > Max ? Max : Value); }

	static int32 CompareChars(const CharType* A, const CharType* B, SizeType Count, ESearchCase::Type SearchCase)
	{
		if (Count <= 0)
		{
			return 0;
		}
		for (SizeType Index = 0; Index < Count; ++Index)
		{
			uint32 C1 = TChar<CharType>::ToUnsigned(A[Index]);
			uint32 C2 = TChar<CharType>::ToUnsigned(B[Index]);
			if (SearchCase == ESearchCase::IgnoreCase)
			{
				C1 = TChar<CharType>::ToUnsigned(TChar<CharType>::ToLower(A[Index]));
				C2 = TChar<CharType>::ToUnsigned(TChar<CharType>::ToLower(B[Index]));
			}
			if (C1 != C2)
			{
				return C1 < C2 ? -1 : 1;
			}
		}
		return 0;
	}

	const CharType* DataPtr = nullptr;
	SizeType Size = 0;
};

template <typename CharType>
FORCEINLINE const CharType* GetData(TStringView<CharType> View) { return View.GetData(); }
template <typename CharType>
FORCEINLINE int32 GetNum(TStringView<CharType> View) { return View.Len(); }

template <typename CharType>
FORCEINLINE uint32 GetTypeHash(TStringView<CharType> View)
{
	uint32 Hash = 2166136261u;
	for (CharType Char : View)
	{
		Hash = (Hash ^ TChar<CharType>::ToUnsigned(TChar<CharType>::ToLower(Char))) * 16777619u;
	}
	return Hash;
}

#define TEXTVIEW(String) FStringView(TEXT(String), (int32)(UE_ARRAY_COUNT(TEXT(String)) - 1))
#define ANSITEXTVIEW(String) FAnsiStringView(String, (int32)(UE_ARRAY_COUNT(String) - 1))
