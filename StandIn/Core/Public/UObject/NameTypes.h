// FName: case-insensitive, interned names.
#pragma once

#include "CoreTypes.h"
#include "Containers/UnrealString.h"
#include "Containers/StringView.h"
#include "UObject/UnrealNames.h"

enum EFindName
{
	/** Only find an existing name; the result is NAME_None when it was never registered. */
	FNAME_Find,
	/** Find the name, registering it when new. */
	FNAME_Add,
	FNAME_Replace_Not_Safe_For_Threading,
};

#define NAME_NO_NUMBER_INTERNAL 0
#define NAME_EXTERNAL_TO_INTERNAL(x) (x + 1)
#define NAME_INTERNAL_TO_EXTERNAL(x) (x - 1)
#define NAME_SIZE 1024

/**
 * An interned name. Two names are equal when their strings are equal ignoring case; the displayed spelling is the
 * first one registered in the process. Stand-in choice: no separate number part; a number passed to a
 * constructor becomes a "_<Number-1>" suffix of the string.
 */
class FName
{
public:
	FORCEINLINE constexpr FName() = default;
	FORCEINLINE FName(EName Name) : Index((int32)Name) {}
	CORE_API FName(const TCHAR* Name, EFindName FindType = FNAME_Add);
	CORE_API FName(const ANSICHAR* Name, EFindName FindType = FNAME_Add);
	CORE_API FName(const UTF8CHAR* Name, EFindName FindType = FNAME_Add);
	CORE_API FName(int32 Len, const TCHAR* Name, EFindName FindType = FNAME_Add);
	CORE_API explicit FName(FStringView Name, EFindName FindType = FNAME_Add);
	CORE_API FName(const FString& Name, EFindName FindType = FNAME_Add);
	CORE_API FName(const TCHAR* Name, int32 InNumber, EFindName FindType = FNAME_Add);
	CORE_API FName(FName Other, int32 InNumber);
	FName(TYPE_OF_NULLPTR) = delete;

	CORE_API FString ToString() const;
	CORE_API void ToString(FString& Out) const;
	CORE_API void AppendString(FString& Out) const;
	FString GetPlainNameString() const { return ToString(); }

	FORCEINLINE bool IsNone() const { return Index == 0; }
	CORE_API bool IsValid() const;
	FORCEINLINE int32 GetNumber() const { return NAME_NO_NUMBER_INTERNAL; }

	/** Index shared by every spelling of the name; equal names have equal indices. */
	FORCEINLINE int32 GetComparisonIndex() const { return Index; }
	FORCEINLINE int32 GetDisplayIndex() const { return Index; }

	FORCEINLINE bool operator==(FName Other) const { return Index == Other.Index; }
	FORCEINLINE bool operator!=(FName Other) const { return Index != Other.Index; }
	FORCEINLINE bool operator==(EName Other) const { return Index == (int32)Other; }
	FORCEINLINE bool operator!=(EName Other) const { return Index != (int32)Other; }
	/** Case-insensitive comparison with a string. */
	CORE_API bool operator==(const TCHAR* Other) const;
	bool operator!=(const TCHAR* Other) const { return !(*this == Other); }
	CORE_API bool operator==(const ANSICHAR* Other) const;
	bool operator!=(const ANSICHAR* Other) const { return !(*this == Other); }

	FORCEINLINE bool IsEqual(FName Other) const { return *this == Other; }

	/** Orders by string, ignoring case: <0, 0 or >0. */
	CORE_API int32 Compare(const FName& Other) const;
	FORCEINLINE bool LexicalLess(const FName& Other) const { return Compare(Other) < 0; }
	/** A fast, stable order that is not alphabetical. */
	FORCEINLINE bool FastLess(const FName& Other) const { return Index < Other.Index; }

	/** The readable form of a name: "bEnabled" (bool) -> "Enabled", "MoviePipelineOutputSetting" -> "Movie Pipeline Output Setting". */
	CORE_API static FString NameToDisplayString(const FString& InDisplayName, const bool bIsBool);

	friend FORCEINLINE uint32 GetTypeHash(FName Name) { return (uint32)Name.Index; }

private:
	int32 Index = 0;
};

static_assert(sizeof(FName) == 4, "FName is a name-table index");

FORCEINLINE bool operator==(EName Lhs, FName Rhs) { return Rhs == Lhs; }
FORCEINLINE bool operator!=(EName Lhs, FName Rhs) { return Rhs != Lhs; }

struct FNameLexicalLess
{
	bool operator()(const FName& A, const FName& B) const { return A.LexicalLess(B); }
};

struct FNameFastLess
{
	bool operator()(const FName& A, const FName& B) const { return A.FastLess(B); }
};

FORCEINLINE FString LexToString(const FName& Name) { return Name.ToString(); }
FORCEINLINE void LexFromString(FName& Name, const TCHAR* Str) { Name = FName(Str); }
