// FString: the engine's dynamic string of TCHARs.
#pragma once

#include "CoreTypes.h"
#include "Containers/Array.h"
#include "Containers/ContainersFwd.h"
#include "Containers/StringView.h"
#include "Misc/CString.h"
#include "Misc/Char.h"
#include "Templates/TypeHash.h"
#include "Templates/UnrealTemplate.h"

#include <type_traits>

/** Whether a value may be passed to a C variadic formatter (Printf, UE_LOG, checkf). */
template <typename T>
struct TIsValidVariadicFunctionArg
{
	enum
	{
		Value = std::is_arithmetic_v<T> || std::is_pointer_v<T> || std::is_enum_v<T> || std::is_null_pointer_v<T>
	};
};

class FString;
struct FStringFormatArg;
const TCHAR* GetData(const FString& String);
TCHAR* GetData(FString& String);
int32 GetNum(const FString& String);

/** The named values of FString::Format (include Misc/StringFormatArg.h to fill them). */
using FStringFormatNamedArguments = TMap<FString, FStringFormatArg>;

/**
 * A string of TCHARs stored in a TArray with a terminating zero; an empty string allocates nothing.
 * Equality and ordering operators ignore case, as in the engine.
 */
class FString
{
public:
	using AllocatorType = FDefaultAllocator;
	using ElementType = TCHAR;
	using ElementType_Deprecated = TCHAR;

	FString() = default;
	FString(const FString&) = default;
	FString(FString&&) = default;
	FString& operator=(const FString&) = default;
	FString& operator=(FString&&) = default;

	CORE_API FString(const FString& Other, int32 ExtraSlack);
	CORE_API FString(const TCHAR* Str);
	/** Widens each byte: ANSI strings are not decoded as UTF-8, as in the engine. */
	CORE_API FString(const ANSICHAR* Str);
	/** Decodes UTF-8. */
	CORE_API FString(const UTF8CHAR* Str);
	CORE_API FString(int32 InCount, const TCHAR* InSrc);
	CORE_API FString(int32 InCount, const ANSICHAR* InSrc);
	CORE_API explicit FString(FStringView View);
	FString(TYPE_OF_NULLPTR) = delete;

	CORE_API FString& operator=(const TCHAR* Str);
	CORE_API FString& operator=(FStringView View);

	/** The characters, terminated; TEXT("") when the string is empty. */
	FORCEINLINE const TCHAR* operator*() const { return Data.Num() ? Data.GetData() : TEXT(""); }

	FORCEINLINE TCHAR& operator[](int32 Index)
	{
		checkf(IsValidIndex(Index), TEXT("String index out of bounds: Index %i from a string with a length of %i"), Index, Len());
		return Data.GetData()[Index];
	}

	FORCEINLINE const TCHAR& operator[](int32 Index) const
	{
		checkf(IsValidIndex(Index), TEXT("String index out of bounds: Index %i from a string with a length of %i"), Index, Len());
		return Data.GetData()[Index];
	}

	FORCEINLINE TArray<TCHAR>& GetCharArray() { return Data; }
	FORCEINLINE const TArray<TCHAR>& GetCharArray() const { return Data; }
	FORCEINLINE int32 Len() const { return Data.Num() ? Data.Num() - 1 : 0; }
	FORCEINLINE bool IsEmpty() const { return Data.Num() <= 1; }
	FORCEINLINE bool IsValidIndex(int32 Index) const { return Index >= 0 && Index < Len(); }
	FORCEINLINE SIZE_T GetAllocatedSize() const { return Data.GetAllocatedSize(); }

	CORE_API void Empty(int32 Slack = 0);
	CORE_API void Reset(int32 NewReservedSize = 0);
	CORE_API void Shrink();
	CORE_API void Reserve(int32 CharacterCount);

	// Appending

	CORE_API FString& AppendChar(TCHAR InChar);
	CORE_API FString& AppendChars(const TCHAR* Str, int32 Count);
	CORE_API FString& AppendChars(const ANSICHAR* Str, int32 Count);
	FString& Append(const TCHAR* Text, int32 Count) { return AppendChars(Text, Count); }
	CORE_API FString& Append(const TCHAR* Text);
	FString& Append(const FString& Text) { return AppendChars(Text.Data.GetData(), Text.Len()); }
	FString& Append(FStringView Text) { return AppendChars(Text.GetData(), Text.Len()); }
	FString& Append(const ANSICHAR* Text) { return AppendChars(Text, TCString<ANSICHAR>::Strlen(Text)); }

	FString& operator+=(const TCHAR* Str) { return Append(Str); }
	FString& operator+=(const ANSICHAR* Str) { return Append(Str); }
	FString& operator+=(const FString& Str) { return Append(Str); }
	FString& operator+=(FStringView Str) { return Append(Str); }
	FString& operator+=(TCHAR Char) { return AppendChar(Char); }
	FString& operator+=(ANSICHAR Char) { return AppendChar((TCHAR)(uint8)Char); }

	template <typename FmtType, typename... Types>
	FString& Appendf(const FmtType& Fmt, Types... Args)
	{
		return Append(Printf(Fmt, Args...));
	}

	/** Appends a path component with a '/' in between unless one is already there. */
	CORE_API void PathAppend(const TCHAR* Str, int32 StrLength);
	FString& operator/=(const TCHAR* Str) { PathAppend(Str, FCString::Strlen(Str)); return *this; }
	FString& operator/=(const FString& Str) { PathAppend(Str.Data.GetData(), Str.Len()); return *this; }
	FString& operator/=(FStringView Str) { PathAppend(Str.GetData(), Str.Len()); return *this; }

	CORE_API void InsertAt(int32 Index, TCHAR Character);
	CORE_API void InsertAt(int32 Index, const FString& Characters);
	CORE_API void RemoveAt(int32 Index, int32 Count = 1, EAllowShrinking AllowShrinking = EAllowShrinking::Default);
	void RemoveAt(int32 Index, int32 Count, bool bAllowShrinking) { RemoveAt(Index, Count, AllowShrinkingFromBool(bAllowShrinking)); }
	CORE_API bool RemoveFromStart(FStringView InPrefix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase);
	CORE_API bool RemoveFromEnd(FStringView InSuffix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase);
	bool RemoveFromStart(const TCHAR* InPrefix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) { return RemoveFromStart(FStringView(InPrefix), SearchCase); }
	bool RemoveFromEnd(const TCHAR* InSuffix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) { return RemoveFromEnd(FStringView(InSuffix), SearchCase); }
	bool RemoveFromStart(const FString& InPrefix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) { return RemoveFromStart(FStringView(InPrefix), SearchCase); }
	bool RemoveFromEnd(const FString& InSuffix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) { return RemoveFromEnd(FStringView(InSuffix), SearchCase); }

	// Substrings

	CORE_API FString Left(int32 Count) const;
	CORE_API FString LeftChop(int32 Count) const;
	CORE_API FString Right(int32 Count) const;
	CORE_API FString RightChop(int32 Count) const;
	CORE_API FString Mid(int32 Start, int32 Count = MAX_int32) const;
	CORE_API void LeftInline(int32 Count, EAllowShrinking AllowShrinking = EAllowShrinking::Default);
	CORE_API void LeftChopInline(int32 Count, EAllowShrinking AllowShrinking = EAllowShrinking::Default);
	CORE_API void RightInline(int32 Count, EAllowShrinking AllowShrinking = EAllowShrinking::Default);
	CORE_API void RightChopInline(int32 Count, EAllowShrinking AllowShrinking = EAllowShrinking::Default);
	CORE_API void MidInline(int32 Start, int32 Count = MAX_int32, EAllowShrinking AllowShrinking = EAllowShrinking::Default);

	// Searching

	/** Index of SubStr, or INDEX_NONE. StartPosition INDEX_NONE means the whole string. */
	CORE_API int32 Find(FStringView SubStr, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase, ESearchDir::Type SearchDir = ESearchDir::FromStart, int32 StartPosition = INDEX_NONE) const;
	int32 Find(const TCHAR* SubStr, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase, ESearchDir::Type SearchDir = ESearchDir::FromStart, int32 StartPosition = INDEX_NONE) const
	{
		return Find(FStringView(SubStr), SearchCase, SearchDir, StartPosition);
	}
	int32 Find(const FString& SubStr, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase, ESearchDir::Type SearchDir = ESearchDir::FromStart, int32 StartPosition = INDEX_NONE) const
	{
		return Find(FStringView(SubStr), SearchCase, SearchDir, StartPosition);
	}

	bool Contains(FStringView SubStr, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase, ESearchDir::Type SearchDir = ESearchDir::FromStart) const
	{
		return Find(SubStr, SearchCase, SearchDir) != INDEX_NONE;
	}
	bool Contains(const TCHAR* SubStr, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase, ESearchDir::Type SearchDir = ESearchDir::FromStart) const
	{
		return Find(FStringView(SubStr), SearchCase, SearchDir) != INDEX_NONE;
	}
	bool Contains(const FString& SubStr, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase, ESearchDir::Type SearchDir = ESearchDir::FromStart) const
	{
		return Find(FStringView(SubStr), SearchCase, SearchDir) != INDEX_NONE;
	}

	CORE_API bool FindChar(TCHAR InChar, int32& Index) const;
	CORE_API bool FindLastChar(TCHAR InChar, int32& Index) const;

	template <typename PredicateType>
	int32 FindLastCharByPredicate(PredicateType Pred, int32 Count) const
	{
		check(Count >= 0 && Count <= Len());
		for (int32 Index = Count - 1; Index >= 0; --Index)
		{
			if (Pred(Data.GetData()[Index]))
			{
				return Index;
			}
		}
		return INDEX_NONE;
	}

	template <typename PredicateType>
	int32 FindLastCharByPredicate(PredicateType Pred) const
	{
		return FindLastCharByPredicate(Pred, Len());
	}

	CORE_API bool StartsWith(FStringView InPrefix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const;
	CORE_API bool EndsWith(FStringView InSuffix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const;
	bool StartsWith(const TCHAR* InPrefix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const { return StartsWith(FStringView(InPrefix), SearchCase); }
	bool EndsWith(const TCHAR* InSuffix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const { return EndsWith(FStringView(InSuffix), SearchCase); }
	bool StartsWith(const FString& InPrefix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const { return StartsWith(FStringView(InPrefix), SearchCase); }
	bool EndsWith(const FString& InSuffix, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const { return EndsWith(FStringView(InSuffix), SearchCase); }

	/** Matches '*' (any run) and '?' (any character). */
	CORE_API bool MatchesWildcard(FStringView Wildcard, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const;
	bool MatchesWildcard(const TCHAR* Wildcard, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const { return MatchesWildcard(FStringView(Wildcard), SearchCase); }
	bool MatchesWildcard(const FString& Wildcard, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const { return MatchesWildcard(FStringView(Wildcard), SearchCase); }

	// Comparing

	CORE_API bool Equals(const FString& Other, ESearchCase::Type SearchCase = ESearchCase::CaseSensitive) const;
	CORE_API int32 Compare(const FString& Other, ESearchCase::Type SearchCase = ESearchCase::CaseSensitive) const;

	// Transforming

	CORE_API bool Split(const FString& InS, FString* LeftS, FString* RightS, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase, ESearchDir::Type SearchDir = ESearchDir::FromStart) const;
	CORE_API FString ToUpper() const&;
	CORE_API FString ToUpper() &&;
	CORE_API void ToUpperInline();
	CORE_API FString ToLower() const&;
	CORE_API FString ToLower() &&;
	CORE_API void ToLowerInline();
	CORE_API FString LeftPad(int32 ChCount) const;
	CORE_API FString RightPad(int32 ChCount) const;
	CORE_API bool IsNumeric() const;

	CORE_API void TrimStartAndEndInline();
	CORE_API FString TrimStartAndEnd() const&;
	CORE_API FString TrimStartAndEnd() &&;
	CORE_API void TrimStartInline();
	CORE_API FString TrimStart() const&;
	CORE_API FString TrimStart() &&;
	CORE_API void TrimEndInline();
	CORE_API FString TrimEnd() const&;
	CORE_API FString TrimEnd() &&;
	CORE_API void TrimCharInline(TCHAR CharacterToTrim, bool* bCharRemoved);
	/** Removes one pair of surrounding double quotes. */
	CORE_API void TrimQuotesInline(bool* bQuotesRemoved = nullptr);
	CORE_API FString TrimQuotes(bool* bQuotesRemoved = nullptr) const&;
	CORE_API FString TrimQuotes(bool* bQuotesRemoved = nullptr) &&;

	/** Splits at each delimiter; returns the number of elements. */
	CORE_API int32 ParseIntoArray(TArray<FString>& OutArray, const TCHAR* pchDelim, bool InCullEmpty = true) const;
	CORE_API int32 ParseIntoArray(TArray<FString>& OutArray, const TCHAR* const* DelimArray, int32 NumDelims, bool InCullEmpty = true) const;
	CORE_API int32 ParseIntoArrayWS(TArray<FString>& OutArray, const TCHAR* pchExtraDelim = nullptr, bool InCullEmpty = true) const;
	CORE_API int32 ParseIntoArrayLines(TArray<FString>& OutArray, bool InCullEmpty = true) const;

	CORE_API FString Replace(const TCHAR* From, const TCHAR* To, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) const&;
	CORE_API FString Replace(const TCHAR* From, const TCHAR* To, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase) &&;
	/** Replaces every occurrence in place; returns the number of replacements. */
	CORE_API int32 ReplaceInline(const TCHAR* SearchText, const TCHAR* ReplacementText, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase);
	CORE_API void ReplaceCharInline(TCHAR SearchChar, TCHAR ReplacementChar, ESearchCase::Type SearchCase = ESearchCase::IgnoreCase);
	CORE_API FString ReplaceQuotesWithEscapedQuotes() const&;
	CORE_API FString ReplaceCharWithEscapedChar(const TArray<TCHAR>* Chars = nullptr) const&;
	CORE_API FString ReplaceEscapedCharWithChar(const TArray<TCHAR>* Chars = nullptr) const&;

	CORE_API FString Reverse() const&;
	CORE_API FString Reverse() &&;
	CORE_API void ReverseString();

	// Building

	template <typename FmtType, typename... Types>
	static FString Printf(const FmtType& Fmt, Types... Args)
	{
		static_assert(std::is_convertible_v<const FmtType&, const TCHAR*>, "Formatting string must be a TCHAR array or pointer.");
		static_assert((TIsValidVariadicFunctionArg<Types>::Value && ...), "Invalid argument(s) passed to FString::Printf");
		return PrintfImpl((const TCHAR*)Fmt, Args...);
	}

	/**
	 * Replaces each {Name} of InFormatString with the argument of that name (names are letters, digits and '_', matched
	 * ignoring case, with optional spaces inside the braces). Tokens without an argument stay as written; "`{" writes
	 * "{" and "``" writes "`".
	 */
	CORE_API static FString Format(const TCHAR* InFormatString, const FStringFormatNamedArguments& InNamedArguments);

	CORE_API static FString Chr(TCHAR Ch);
	CORE_API static FString ChrN(int32 NumCharacters, TCHAR Char);
	CORE_API static FString FromInt(int32 Num);
	/** Decimal form with at least InMinFractionalDigits fractional digits: 24 -> "24.0", 0.5 -> "0.5". */
	CORE_API static FString SanitizeFloat(double InFloat, const int32 InMinFractionalDigits = 1);
	/** The integer with ',' thousands separators. */
	CORE_API static FString FormatAsNumber(int32 InNumber);

	template <typename RangeType>
	static FString Join(const RangeType& Range, const TCHAR* Separator)
	{
		FString Result;
		bool bFirst = true;
		for (const auto& Element : Range)
		{
			if (!bFirst)
			{
				Result += Separator;
			}
			Result += Element;
			bFirst = false;
		}
		return Result;
	}

	template <typename RangeType, typename ProjectionType>
	static FString JoinBy(const RangeType& Range, const TCHAR* Separator, ProjectionType Proj)
	{
		FString Result;
		bool bFirst = true;
		for (const auto& Element : Range)
		{
			if (!bFirst)
			{
				Result += Separator;
			}
			Result += Proj(Element);
			bFirst = false;
		}
		return Result;
	}

	CORE_API static FString PrintfImpl(const TCHAR* Fmt, ...);

	// Iterating

	FORCEINLINE TCHAR* begin() { return Data.GetData(); }
	FORCEINLINE const TCHAR* begin() const { return Data.GetData(); }
	FORCEINLINE TCHAR* end() { return Data.GetData() + Len(); }
	FORCEINLINE const TCHAR* end() const { return Data.GetData() + Len(); }

private:
	TArray<TCHAR> Data;
};

static_assert(sizeof(FString) == sizeof(FScriptArray), "FString must be a TArray<TCHAR>");

FORCEINLINE const TCHAR* GetData(const FString& String) { return String.GetCharArray().GetData(); }
FORCEINLINE TCHAR* GetData(FString& String) { return String.GetCharArray().GetData(); }
FORCEINLINE int32 GetNum(const FString& String) { return String.Len(); }

template <>
struct TIsContiguousContainer<FString>
{
	enum { Value = true };
};

/** Case-insensitive, as the engine's string hash. */
FORCEINLINE uint32 GetTypeHash(const FString& S)
{
	return GetTypeHash(FStringView(S));
}

CORE_API FString operator+(const FString& Lhs, const FString& Rhs);
CORE_API FString operator+(FString&& Lhs, const FString& Rhs);
CORE_API FString operator+(const FString& Lhs, const TCHAR* Rhs);
CORE_API FString operator+(FString&& Lhs, const TCHAR* Rhs);
CORE_API FString operator+(const TCHAR* Lhs, const FString& Rhs);
CORE_API FString operator+(const FString& Lhs, TCHAR Rhs);
CORE_API FString operator+(FString&& Lhs, TCHAR Rhs);
CORE_API FString operator+(const FString& Lhs, FStringView Rhs);
CORE_API FString operator+(FStringView Lhs, const FString& Rhs);

CORE_API FString operator/(const FString& Lhs, const FString& Rhs);
CORE_API FString operator/(const FString& Lhs, const TCHAR* Rhs);
CORE_API FString operator/(FString&& Lhs, const FString& Rhs);
CORE_API FString operator/(FString&& Lhs, const TCHAR* Rhs);
CORE_API FString operator/(const TCHAR* Lhs, const FString& Rhs);
CORE_API FString operator/(const FString& Lhs, FStringView Rhs);

FORCEINLINE bool operator==(const FString& Lhs, const FString& Rhs) { return Lhs.Equals(Rhs, ESearchCase::IgnoreCase); }
FORCEINLINE bool operator==(const FString& Lhs, const TCHAR* Rhs) { return FCString::Stricmp(*Lhs, Rhs ? Rhs : TEXT("")) == 0; }
FORCEINLINE bool operator==(const TCHAR* Lhs, const FString& Rhs) { return Rhs == Lhs; }
FORCEINLINE bool operator==(const FString& Lhs, FStringView Rhs) { return FStringView(Lhs).Equals(Rhs, ESearchCase::IgnoreCase); }
FORCEINLINE bool operator==(FStringView Lhs, const FString& Rhs) { return Rhs == Lhs; }
FORCEINLINE bool operator!=(const FString& Lhs, const FString& Rhs) { return !(Lhs == Rhs); }
FORCEINLINE bool operator!=(const FString& Lhs, const TCHAR* Rhs) { return !(Lhs == Rhs); }
FORCEINLINE bool operator!=(const TCHAR* Lhs, const FString& Rhs) { return !(Rhs == Lhs); }
FORCEINLINE bool operator!=(const FString& Lhs, FStringView Rhs) { return !(Lhs == Rhs); }
FORCEINLINE bool operator!=(FStringView Lhs, const FString& Rhs) { return !(Rhs == Lhs); }
FORCEINLINE bool operator<(const FString& Lhs, const FString& Rhs) { return Lhs.Compare(Rhs, ESearchCase::IgnoreCase) < 0; }
FORCEINLINE bool operator<=(const FString& Lhs, const FString& Rhs) { return Lhs.Compare(Rhs, ESearchCase::IgnoreCase) <= 0; }
FORCEINLINE bool operator>(const FString& Lhs, const FString& Rhs) { return Lhs.Compare(Rhs, ESearchCase::IgnoreCase) > 0; }
FORCEINLINE bool operator>=(const FString& Lhs, const FString& Rhs) { return Lhs.Compare(Rhs, ESearchCase::IgnoreCase) >= 0; }
FORCEINLINE bool operator<(const FString& Lhs, const TCHAR* Rhs) { return FCString::Stricmp(*Lhs, Rhs ? Rhs : TEXT("")) < 0; }
FORCEINLINE bool operator<(const TCHAR* Lhs, const FString& Rhs) { return FCString::Stricmp(Lhs ? Lhs : TEXT(""), *Rhs) < 0; }

// Lexical conversions, as the engine's Lex* helpers.

FORCEINLINE FString LexToString(const FString& Value) { return Value; }
FORCEINLINE FString LexToString(FString&& Value) { return MoveTemp(Value); }
FORCEINLINE FString LexToString(const TCHAR* Value) { return FString(Value); }
FORCEINLINE FString LexToString(bool Value) { return Value ? FString(TEXT("true")) : FString(TEXT("false")); }
FORCEINLINE FString LexToString(int8 Value) { return FString::Printf(TEXT("%i"), (int32)Value); }
FORCEINLINE FString LexToString(uint8 Value) { return FString::Printf(TEXT("%i"), (int32)Value); }
FORCEINLINE FString LexToString(int16 Value) { return FString::Printf(TEXT("%i"), (int32)Value); }
FORCEINLINE FString LexToString(uint16 Value) { return FString::Printf(TEXT("%i"), (int32)Value); }
FORCEINLINE FString LexToString(int32 Value) { return FString::Printf(TEXT("%i"), Value); }
FORCEINLINE FString LexToString(uint32 Value) { return FString::Printf(TEXT("%u"), Value); }
FORCEINLINE FString LexToString(int64 Value) { return FString::Printf(TEXT("%lld"), (long long)Value); }
FORCEINLINE FString LexToString(uint64 Value) { return FString::Printf(TEXT("%llu"), (unsigned long long)Value); }
FORCEINLINE FString LexToString(float Value) { return FString::Printf(TEXT("%f"), (double)Value); }
FORCEINLINE FString LexToString(double Value) { return FString::Printf(TEXT("%f"), Value); }
FORCEINLINE FString LexToString(TCHAR Value) { return FString::Chr(Value); }
FORCEINLINE FString LexToSanitizedString(float Value) { return FString::SanitizeFloat(Value); }
FORCEINLINE FString LexToSanitizedString(double Value) { return FString::SanitizeFloat(Value); }

FORCEINLINE void LexFromString(FString& OutValue, const TCHAR* Buffer) { OutValue = Buffer; }
FORCEINLINE void LexFromString(bool& OutValue, const TCHAR* Buffer) { OutValue = FCString::ToBool(Buffer); }
FORCEINLINE void LexFromString(int8& OutValue, const TCHAR* Buffer) { OutValue = (int8)FCString::Atoi(Buffer); }
FORCEINLINE void LexFromString(uint8& OutValue, const TCHAR* Buffer) { OutValue = (uint8)FCString::Atoi(Buffer); }
FORCEINLINE void LexFromString(int16& OutValue, const TCHAR* Buffer) { OutValue = (int16)FCString::Atoi(Buffer); }
FORCEINLINE void LexFromString(uint16& OutValue, const TCHAR* Buffer) { OutValue = (uint16)FCString::Atoi(Buffer); }
FORCEINLINE void LexFromString(int32& OutValue, const TCHAR* Buffer) { OutValue = FCString::Atoi(Buffer); }
FORCEINLINE void LexFromString(uint32& OutValue, const TCHAR* Buffer) { OutValue = (uint32)FCString::Strtoui64(Buffer, nullptr, 10); }
FORCEINLINE void LexFromString(int64& OutValue, const TCHAR* Buffer) { OutValue = FCString::Atoi64(Buffer); }
FORCEINLINE void LexFromString(uint64& OutValue, const TCHAR* Buffer) { OutValue = FCString::Strtoui64(Buffer, nullptr, 10); }
FORCEINLINE void LexFromString(float& OutValue, const TCHAR* Buffer) { OutValue = FCString::Atof(Buffer); }
FORCEINLINE void LexFromString(double& OutValue, const TCHAR* Buffer) { OutValue = FCString::Atod(Buffer); }

template <typename T>
FORCEINLINE void LexFromString(T& OutValue, const FString& Buffer)
{
	LexFromString(OutValue, *Buffer);
}

/** Parses numbers only when the whole buffer is numeric; other types always parse. */
template <typename T>
bool LexTryParseString(T& OutValue, const TCHAR* Buffer)
{
	if constexpr (std::is_arithmetic_v<T> && !std::is_same_v<T, bool>)
	{
		if (!FCString::IsNumeric(Buffer) || *Buffer == 0)
		{
			return false;
		}
		if constexpr (std::is_integral_v<T>)
		{
			if (FCString::Strchr(Buffer, TEXT('.')) != nullptr)
			{
				return false;
			}
		}
	}
	LexFromString(OutValue, Buffer);
	return true;
}

CORE_API int32 HexToBytes(const FString& HexString, uint8* OutBytes);
CORE_API FString BytesToHex(const uint8* In, int32 Count);
