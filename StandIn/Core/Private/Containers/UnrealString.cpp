#include "Containers/UnrealString.h"

#include "Containers/StringConv.h"
#include "Misc/VarargsFormatter.h"

#include <cstdarg>
#include <cstdio>

namespace
{
	bool CharsEqual(TCHAR A, TCHAR B, ESearchCase::Type SearchCase)
	{
		return SearchCase == ESearchCase::CaseSensitive ? A == B : FChar::ToLower(A) == FChar::ToLower(B);
	}

	int32 ClampToRange(int32 Value, int32 Min, int32 Max)
	{
		return Value < Min ? Min : (Value > Max ? Max : Value);
	}

	bool MatchesWildcardRecursive(const TCHAR* Target, int32 TargetLength, const TCHAR* Wildcard, int32 WildcardLength, ESearchCase::Type SearchCase)
	{
		int32 TargetIndex = 0;
		int32 WildcardIndex = 0;
		int32 StarIndex = INDEX_NONE;
		int32 StarTargetIndex = 0;
		while (TargetIndex < TargetLength)
		{
			if (WildcardIndex < WildcardLength && (Wildcard[WildcardIndex] == '?' || (Wildcard[WildcardIndex] != '*' && CharsEqual(Wildcard[WildcardIndex], Target[TargetIndex], SearchCase))))
			{
				++TargetIndex;
				++WildcardIndex;
			}
			else if (WildcardIndex < WildcardLength && Wildcard[WildcardIndex] == '*')
			{
				StarIndex = WildcardIndex++;
				StarTargetIndex = TargetIndex;
			}
			else if (StarIndex != INDEX_NONE)
			{
				WildcardIndex = StarIndex + 1;
				TargetIndex = ++StarTargetIndex;
			}
			else
			{
				return false;
			}
		}
		while (WildcardIndex < WildcardLength && Wildcard[WildcardIndex] == '*')
		{
			++WildcardIndex;
		}
		return WildcardIndex == WildcardLength;
	}
}

FString::FString(const FString& Other, int32 ExtraSlack)
{
	Data.Reserve(Other.Data.Num() + ExtraSlack);
	Data.Append(Other.Data);
}

FString::FString(const TCHAR* Str)
{
	if (Str && *Str)
	{
		AppendChars(Str, FCString::Strlen(Str));
	}
}

FString::FString(const ANSICHAR* Str)
{
	if (Str && *Str)
	{
		AppendChars(Str, FCStringAnsi::Strlen(Str));
	}
}

FString::FString(const UTF8CHAR* Str)
{
	if (Str && *Str)
	{
		int32 Length = 0;
		while (Str[Length])
		{
			++Length;
		}
		UE::Core::Private::ConvertUTF8ToTCHAR(Str, Length, Data);
		if (Data.Num() <= 1)
		{
			Data.Empty();
		}
	}
}

FString::FString(int32 InCount, const TCHAR* InSrc)
{
	if (InSrc && InCount > 0)
	{
		AppendChars(InSrc, FCString::Strnlen(InSrc, InCount));
	}
}

FString::FString(int32 InCount, const ANSICHAR* InSrc)
{
	if (InSrc && InCount > 0)
	{
		AppendChars(InSrc, FCStringAnsi::Strnlen(InSrc, InCount));
	}
}

FString::FString(FStringView View)
{
	AppendChars(View.GetData(), View.Len());
}

FString& FString::operator=(const TCHAR* Str)
{
	if (Str != Data.GetData())
	{
		FString Copy(Str);
		*this = MoveTemp(Copy);
	}
	return *this;
}

FString& FString::operator=(FStringView View)
{
	FString Copy(View);
	*this = MoveTemp(Copy);
	return *this;
}

void FString::Empty(int32 Slack)
{
	Data.Empty(Slack ? Slack + 1 : 0);
}

void FString::Reset(int32 NewReservedSize)
{
	Data.Reset(NewReservedSize ? NewReservedSize + 1 : 0);
}

void FString::Shrink()
{
	Data.Shrink();
}

void FString::Reserve(int32 CharacterCount)
{
	if (CharacterCount > 0)
	{
		Data.Reserve(CharacterCount + 1);
	}
}

FString& FString::AppendChar(TCHAR InChar)
{
	if (InChar == 0)
	{
		return *this;
	}
	if (Data.Num() == 0)
	{
		Data.Add(InChar);
		Data.Add(0);
	}
	else
	{
		Data[Data.Num() - 1] = InChar;
		Data.Add(0);
	}
	return *this;
}

FString& FString::AppendChars(const TCHAR* Str, int32 Count)
{
	checkf(Count >= 0, TEXT("Invalid count %d passed to FString::AppendChars"), Count);
	if (!Str || Count <= 0)
	{
		return *this;
	}
	if (Data.Num() > 0 && Str >= Data.GetData() && Str < Data.GetData() + Data.Num())
	{
		FString Copy(Count, Str);
		return Append(Copy);
	}
	const int32 OldLen = Len();
	Data.SetNumUninitialized(OldLen + Count + 1, EAllowShrinking::No);
	FMemory::Memcpy(Data.GetData() + OldLen, Str, (SIZE_T)Count * sizeof(TCHAR));
	Data[OldLen + Count] = 0;
	return *this;
}

FString& FString::AppendChars(const ANSICHAR* Str, int32 Count)
{
	checkf(Count >= 0, TEXT("Invalid count %d passed to FString::AppendChars"), Count);
	if (!Str || Count <= 0)
	{
		return *this;
	}
	const int32 OldLen = Len();
	Data.SetNumUninitialized(OldLen + Count + 1, EAllowShrinking::No);
	for (int32 Index = 0; Index < Count; ++Index)
	{
		Data[OldLen + Index] = (TCHAR)(uint8)Str[Index];
	}
	Data[OldLen + Count] = 0;
	return *this;
}

FString& FString::Append(const TCHAR* Text)
{
	return AppendChars(Text, FCString::Strlen(Text));
}

void FString::PathAppend(const TCHAR* Str, int32 StrLength)
{
	const int32 CurrentLength = Len();
	const bool bEndsWithSeparator = CurrentLength > 0 && (Data[CurrentLength - 1] == '/' || Data[CurrentLength - 1] == '\\');
	if (StrLength <= 0 || !Str)
	{
		if (CurrentLength > 0 && !bEndsWithSeparator)
		{
			AppendChar(TEXT('/'));
		}
		return;
	}
	if (CurrentLength > 0 && !bEndsWithSeparator && Str[0] != '/')
	{
		AppendChar(TEXT('/'));
	}
	AppendChars(Str, StrLength);
}

void FString::InsertAt(int32 Index, TCHAR Character)
{
	if (Character == 0)
	{
		return;
	}
	if (IsEmpty())
	{
		checkf(Index == 0, TEXT("Invalid insert index %d into an empty string"), Index);
		AppendChar(Character);
		return;
	}
	checkf(Index >= 0 && Index <= Len(), TEXT("Invalid insert index %d into a string of length %d"), Index, Len());
	Data.Insert(Character, Index);
}

void FString::InsertAt(int32 Index, const FString& Characters)
{
	if (Characters.IsEmpty())
	{
		return;
	}
	if (IsEmpty())
	{
		checkf(Index == 0, TEXT("Invalid insert index %d into an empty string"), Index);
		*this = Characters;
		return;
	}
	checkf(Index >= 0 && Index <= Len(), TEXT("Invalid insert index %d into a string of length %d"), Index, Len());
	Data.Insert(Characters.Data.GetData(), Characters.Len(), Index);
}

void FString::RemoveAt(int32 Index, int32 Count, EAllowShrinking AllowShrinking)
{
	if (Count <= 0)
	{
		return;
	}
	checkf(Index >= 0 && Index + Count <= Len(), TEXT("Invalid removal of %d characters at %d from a string of length %d"), Count, Index, Len());
	Data.RemoveAt(Index, Count, AllowShrinking);
	if (Data.Num() == 1)
	{
		Data.Empty();
	}
}

bool FString::RemoveFromStart(FStringView InPrefix, ESearchCase::Type SearchCase)
{
	if (InPrefix.IsEmpty() || !StartsWith(InPrefix, SearchCase))
	{
		return false;
	}
	RemoveAt(0, InPrefix.Len());
	return true;
}

bool FString::RemoveFromEnd(FStringView InSuffix, ESearchCase::Type SearchCase)
{
	if (InSuffix.IsEmpty() || !EndsWith(InSuffix, SearchCase))
	{
		return false;
	}
	RemoveAt(Len() - InSuffix.Len(), InSuffix.Len());
	return true;
}

FString FString::Left(int32 Count) const
{
	return FString(ClampToRange(Count, 0, Len()), **this);
}

FString FString::LeftChop(int32 Count) const
{
	return FString(ClampToRange(Len() - Count, 0, Len()), **this);
}

FString FString::Right(int32 Count) const
{
	const int32 Length = Len();
	const int32 Kept = ClampToRange(Count, 0, Length);
	return FString(**this + Length - Kept);
}

FString FString::RightChop(int32 Count) const
{
	const int32 Length = Len();
	const int32 Start = ClampToRange(Count, 0, Length);
	return FString(**this + Start);
}

FString FString::Mid(int32 Start, int32 Count) const
{
	const int32 Length = Len();
	const int64 RequestedEnd = (int64)(Start < 0 ? 0 : Start) + (Count < 0 ? 0 : Count);
	const int32 ClampedStart = ClampToRange(Start, 0, Length);
	const int32 ClampedEnd = (int32)(RequestedEnd > Length ? Length : RequestedEnd);
	if (ClampedEnd <= ClampedStart)
	{
		return FString();
	}
	return FString(ClampedEnd - ClampedStart, **this + ClampedStart);
}

void FString::LeftInline(int32 Count, EAllowShrinking AllowShrinking)
{
	const int32 Length = Len();
	const int32 Kept = ClampToRange(Count, 0, Length);
	RemoveAt(Kept, Length - Kept, AllowShrinking);
}

void FString::LeftChopInline(int32 Count, EAllowShrinking AllowShrinking)
{
	LeftInline(Len() - Count, AllowShrinking);
}

void FString::RightInline(int32 Count, EAllowShrinking AllowShrinking)
{
	const int32 Length = Len();
	const int32 Kept = ClampToRange(Count, 0, Length);
	RemoveAt(0, Length - Kept, AllowShrinking);
}

void FString::RightChopInline(int32 Count, EAllowShrinking AllowShrinking)
{
	RemoveAt(0, ClampToRange(Count, 0, Len()), AllowShrinking);
}

void FString::MidInline(int32 Start, int32 Count, EAllowShrinking AllowShrinking)
{
	*this = Mid(Start, Count);
}

int32 FString::Find(FStringView SubStr, ESearchCase::Type SearchCase, ESearchDir::Type SearchDir, int32 StartPosition) const
{
	const int32 Length = Len();
	const int32 SubLength = SubStr.Len();
	if (SubLength == 0 || SubLength > Length)
	{
		return INDEX_NONE;
	}
	const TCHAR* Chars = **this;
	auto MatchesAt = [&](int32 Index)
	{
		for (int32 Offset = 0; Offset < SubLength; ++Offset)
		{
			if (!CharsEqual(Chars[Index + Offset], SubStr.GetData()[Offset], SearchCase))
			{
				return false;
			}
		}
		return true;
	};
	if (SearchDir == ESearchDir::FromStart)
	{
		const int32 First = StartPosition == INDEX_NONE ? 0 : ClampToRange(StartPosition, 0, Length);
		for (int32 Index = First; Index + SubLength <= Length; ++Index)
		{
			if (MatchesAt(Index))
			{
				return Index;
			}
		}
	}
	else
	{
		// From the end, StartPosition is where the match must end before.
		const int32 Limit = StartPosition == INDEX_NONE ? Length : ClampToRange(StartPosition, 0, Length);
		for (int32 Index = Limit - SubLength; Index >= 0; --Index)
		{
			if (MatchesAt(Index))
			{
				return Index;
			}
		}
	}
	return INDEX_NONE;
}

bool FString::FindChar(TCHAR InChar, int32& Index) const
{
	Index = Data.Num() ? Data.Find(InChar) : INDEX_NONE;
	if (Index == Len())
	{
		Index = INDEX_NONE;
	}
	return Index != INDEX_NONE;
}

bool FString::FindLastChar(TCHAR InChar, int32& Index) const
{
	Index = INDEX_NONE;
	for (int32 Position = Len() - 1; Position >= 0; --Position)
	{
		if (Data[Position] == InChar)
		{
			Index = Position;
			break;
		}
	}
	return Index != INDEX_NONE;
}

bool FString::StartsWith(FStringView InPrefix, ESearchCase::Type SearchCase) const
{
	return FStringView(*this).StartsWith(InPrefix, SearchCase);
}

bool FString::EndsWith(FStringView InSuffix, ESearchCase::Type SearchCase) const
{
	return FStringView(*this).EndsWith(InSuffix, SearchCase);
}

bool FString::MatchesWildcard(FStringView Wildcard, ESearchCase::Type SearchCase) const
{
	return MatchesWildcardRecursive(**this, Len(), Wildcard.GetData(), Wildcard.Len(), SearchCase);
}

bool FString::Equals(const FString& Other, ESearchCase::Type SearchCase) const
{
	return Len() == Other.Len() && Compare(Other, SearchCase) == 0;
}

int32 FString::Compare(const FString& Other, ESearchCase::Type SearchCase) const
{
	return SearchCase == ESearchCase::CaseSensitive ? FCString::Strcmp(**this, *Other) : FCString::Stricmp(**this, *Other);
}

bool FString::Split(const FString& InS, FString* LeftS, FString* RightS, ESearchCase::Type SearchCase, ESearchDir::Type SearchDir) const
{
	const int32 Position = Find(InS, SearchCase, SearchDir);
	if (Position == INDEX_NONE)
	{
		return false;
	}
	const FString LeftPart = Left(Position);
	const FString RightPart = Mid(Position + InS.Len());
	if (LeftS)
	{
		*LeftS = LeftPart;
	}
	if (RightS)
	{
		*RightS = RightPart;
	}
	return true;
}

FString FString::ToUpper() const&
{
	FString Result(*this);
	Result.ToUpperInline();
	return Result;
}

FString FString::ToUpper() &&
{
	ToUpperInline();
	return MoveTemp(*this);
}

void FString::ToUpperInline()
{
	for (int32 Index = 0; Index < Len(); ++Index)
	{
		Data[Index] = FChar::ToUpper(Data[Index]);
	}
}

FString FString::ToLower() const&
{
	FString Result(*this);
	Result.ToLowerInline();
	return Result;
}

FString FString::ToLower() &&
{
	ToLowerInline();
	return MoveTemp(*this);
}

void FString::ToLowerInline()
{
	for (int32 Index = 0; Index < Len(); ++Index)
	{
		Data[Index] = FChar::ToLower(Data[Index]);
	}
}

FString FString::LeftPad(int32 ChCount) const
{
	const int32 Pad = ChCount - Len();
	return Pad > 0 ? ChrN(Pad, TEXT(' ')) + *this : *this;
}

FString FString::RightPad(int32 ChCount) const
{
	const int32 Pad = ChCount - Len();
	return Pad > 0 ? *this + ChrN(Pad, TEXT(' ')) : *this;
}

bool FString::IsNumeric() const
{
	return !IsEmpty() && FCString::IsNumeric(**this);
}

void FString::TrimStartAndEndInline()
{
	TrimEndInline();
	TrimStartInline();
}

FString FString::TrimStartAndEnd() const&
{
	FString Result(*this);
	Result.TrimStartAndEndInline();
	return Result;
}

FString FString::TrimStartAndEnd() &&
{
	TrimStartAndEndInline();
	return MoveTemp(*this);
}

void FString::TrimStartInline()
{
	int32 Position = 0;
	while (Position < Len() && FChar::IsWhitespace(Data[Position]))
	{
		++Position;
	}
	RemoveAt(0, Position);
}

FString FString::TrimStart() const&
{
	FString Result(*this);
	Result.TrimStartInline();
	return Result;
}

FString FString::TrimStart() &&
{
	TrimStartInline();
	return MoveTemp(*this);
}

void FString::TrimEndInline()
{
	int32 End = Len();
	while (End > 0 && FChar::IsWhitespace(Data[End - 1]))
	{
		--End;
	}
	RemoveAt(End, Len() - End);
}

FString FString::TrimEnd() const&
{
	FString Result(*this);
	Result.TrimEndInline();
	return Result;
}

FString FString::TrimEnd() &&
{
	TrimEndInline();
	return MoveTemp(*this);
}

void FString::TrimCharInline(TCHAR CharacterToTrim, bool* bCharRemoved)
{
	bool bRemoved = false;
	if (Len() > 0 && Data[0] == CharacterToTrim)
	{
		RemoveAt(0);
		bRemoved = true;
	}
	if (Len() > 0 && Data[Len() - 1] == CharacterToTrim)
	{
		RemoveAt(Len() - 1);
		bRemoved = true;
	}
	if (bCharRemoved)
	{
		*bCharRemoved = bRemoved;
	}
}

void FString::TrimQuotesInline(bool* bQuotesRemoved)
{
	TrimCharInline(TEXT('"'), bQuotesRemoved);
}

FString FString::TrimQuotes(bool* bQuotesRemoved) const&
{
	FString Result(*this);
	Result.TrimQuotesInline(bQuotesRemoved);
	return Result;
}

FString FString::TrimQuotes(bool* bQuotesRemoved) &&
{
	TrimQuotesInline(bQuotesRemoved);
	return MoveTemp(*this);
}

int32 FString::ParseIntoArray(TArray<FString>& OutArray, const TCHAR* pchDelim, bool InCullEmpty) const
{
	const TCHAR* Delims[] = { pchDelim };
	return ParseIntoArray(OutArray, Delims, 1, InCullEmpty);
}

int32 FString::ParseIntoArray(TArray<FString>& OutArray, const TCHAR* const* DelimArray, int32 NumDelims, bool InCullEmpty) const
{
	OutArray.Reset();
	const TCHAR* Chars = **this;
	const int32 Length = Len();
	int32 TokenStart = 0;
	int32 Position = 0;
	auto AddToken = [&](int32 TokenEnd)
	{
		if (!InCullEmpty || TokenEnd > TokenStart)
		{
			OutArray.Emplace(TokenEnd - TokenStart, Chars + TokenStart);
		}
	};
	while (Position < Length)
	{
		int32 MatchedLength = 0;
		for (int32 DelimIndex = 0; DelimIndex < NumDelims; ++DelimIndex)
		{
			const TCHAR* Delim = DelimArray[DelimIndex];
			const int32 DelimLength = FCString::Strlen(Delim);
			if (DelimLength > 0 && DelimLength <= Length - Position && FCString::Strncmp(Chars + Position, Delim, DelimLength) == 0)
			{
				MatchedLength = DelimLength;
				break;
			}
		}
		if (MatchedLength > 0)
		{
			AddToken(Position);
			Position += MatchedLength;
			TokenStart = Position;
		}
		else
		{
			++Position;
		}
	}
	if (Length > 0)
	{
		AddToken(Length);
	}
	return OutArray.Num();
}

int32 FString::ParseIntoArrayWS(TArray<FString>& OutArray, const TCHAR* pchExtraDelim, bool InCullEmpty) const
{
	const TCHAR* Delims[] = { TEXT(" "), TEXT("\t"), TEXT("\r"), TEXT("\n"), TEXT("") };
	const int32 NumDelims = (pchExtraDelim && *pchExtraDelim) ? 5 : 4;
	Delims[4] = pchExtraDelim ? pchExtraDelim : TEXT("");
	return ParseIntoArray(OutArray, Delims, NumDelims, InCullEmpty);
}

int32 FString::ParseIntoArrayLines(TArray<FString>& OutArray, bool InCullEmpty) const
{
	const TCHAR* Delims[] = { TEXT("\r\n"), TEXT("\n"), TEXT("\r") };
	return ParseIntoArray(OutArray, Delims, 3, InCullEmpty);
}

FString FString::Replace(const TCHAR* From, const TCHAR* To, ESearchCase::Type SearchCase) const&
{
	FString Result(*this);
	Result.ReplaceInline(From, To, SearchCase);
	return Result;
}

FString FString::Replace(const TCHAR* From, const TCHAR* To, ESearchCase::Type SearchCase) &&
{
	ReplaceInline(From, To, SearchCase);
	return MoveTemp(*this);
}

int32 FString::ReplaceInline(const TCHAR* SearchText, const TCHAR* ReplacementText, ESearchCase::Type SearchCase)
{
	const int32 SearchLength = FCString::Strlen(SearchText);
	if (IsEmpty() || SearchLength == 0)
	{
		return 0;
	}
	const FString Replacement(ReplacementText);
	FString Result;
	int32 NumReplacements = 0;
	int32 Position = 0;
	while (true)
	{
		const int32 Found = Find(FStringView(SearchText, SearchLength), SearchCase, ESearchDir::FromStart, Position);
		if (Found == INDEX_NONE)
		{
			break;
		}
		Result.AppendChars(**this + Position, Found - Position);
		Result.Append(Replacement);
		Position = Found + SearchLength;
		++NumReplacements;
	}
	if (NumReplacements > 0)
	{
		Result.AppendChars(**this + Position, Len() - Position);
		*this = MoveTemp(Result);
	}
	return NumReplacements;
}

void FString::ReplaceCharInline(TCHAR SearchChar, TCHAR ReplacementChar, ESearchCase::Type SearchCase)
{
	for (int32 Index = 0; Index < Len(); ++Index)
	{
		if (CharsEqual(Data[Index], SearchChar, SearchCase))
		{
			Data[Index] = ReplacementChar;
		}
	}
}

FString FString::ReplaceQuotesWithEscapedQuotes() const&
{
	return Replace(TEXT("\""), TEXT("\\\""), ESearchCase::CaseSensitive);
}

namespace
{
	const TCHAR CharToEscapeSeqMap[][2][3] = {
		{ TEXT("\\"), TEXT("\\\\") },
		{ TEXT("\n"), TEXT("\\n") },
		{ TEXT("\r"), TEXT("\\r") },
		{ TEXT("\t"), TEXT("\\t") },
		{ TEXT("\'"), TEXT("\\'") },
		{ TEXT("\""), TEXT("\\\"") },
	};
}

FString FString::ReplaceCharWithEscapedChar(const TArray<TCHAR>* Chars) const&
{
	FString Result;
	for (int32 Index = 0; Index < Len(); ++Index)
	{
		const TCHAR Character = Data[Index];
		const TCHAR* Escape = nullptr;
		for (const auto& Entry : CharToEscapeSeqMap)
		{
			if (Entry[0][0] == Character && (!Chars || Chars->Contains(Character)))
			{
				Escape = Entry[1];
				break;
			}
		}
		if (Escape)
		{
			Result += Escape;
		}
		else
		{
			Result.AppendChar(Character);
		}
	}
	return Result;
}

FString FString::ReplaceEscapedCharWithChar(const TArray<TCHAR>* Chars) const&
{
	FString Result;
	for (int32 Index = 0; Index < Len(); ++Index)
	{
		bool bReplaced = false;
		if (Data[Index] == '\\' && Index + 1 < Len())
		{
			for (const auto& Entry : CharToEscapeSeqMap)
			{
				if (Entry[1][1] == Data[Index + 1] && (!Chars || Chars->Contains(Entry[0][0])))
				{
					Result.AppendChar(Entry[0][0]);
					++Index;
					bReplaced = true;
					break;
				}
			}
		}
		if (!bReplaced)
		{
			Result.AppendChar(Data[Index]);
		}
	}
	return Result;
}

FString FString::Reverse() const&
{
	FString Result(*this);
	Result.ReverseString();
	return Result;
}

FString FString::Reverse() &&
{
	ReverseString();
	return MoveTemp(*this);
}

void FString::ReverseString()
{
	for (int32 Low = 0, High = Len() - 1; Low < High; ++Low, --High)
	{
		const TCHAR Temp = Data[Low];
		Data[Low] = Data[High];
		Data[High] = Temp;
	}
}

FString FString::Chr(TCHAR Ch)
{
	FString Result;
	Result.AppendChar(Ch);
	return Result;
}

FString FString::ChrN(int32 NumCharacters, TCHAR Char)
{
	FString Result;
	if (NumCharacters > 0 && Char != 0)
	{
		Result.Data.SetNumUninitialized(NumCharacters + 1);
		for (int32 Index = 0; Index < NumCharacters; ++Index)
		{
			Result.Data[Index] = Char;
		}
		Result.Data[NumCharacters] = 0;
	}
	return Result;
}

FString FString::FromInt(int32 Num)
{
	return Printf(TEXT("%d"), Num);
}

FString FString::SanitizeFloat(double InFloat, const int32 InMinFractionalDigits)
{
	// As the engine: format with %f, then drop trailing zeros down to the minimum number of fractional digits.
	if (InFloat == 0.0)
	{
		InFloat = 0.0;
	}
	FString TempString = Printf(TEXT("%f"), InFloat);
	if (!TempString.IsNumeric())
	{
		return TempString;
	}
	int32 DotIndex = INDEX_NONE;
	TempString.FindChar(TEXT('.'), DotIndex);
	if (DotIndex == INDEX_NONE)
	{
		return TempString;
	}
	int32 End = TempString.Len();
	while (End > DotIndex + 1 && TempString[End - 1] == '0')
	{
		--End;
	}
	if (End == DotIndex + 1)
	{
		--End;
	}
	TempString.LeftInline(End);
	const int32 MinFractionalDigits = InMinFractionalDigits < 0 ? 0 : InMinFractionalDigits;
	if (MinFractionalDigits > 0)
	{
		int32 ExistingFractional = 0;
		if (TempString.FindChar(TEXT('.'), DotIndex))
		{
			ExistingFractional = TempString.Len() - DotIndex - 1;
		}
		else
		{
			TempString.AppendChar(TEXT('.'));
		}
		for (int32 Digit = ExistingFractional; Digit < MinFractionalDigits; ++Digit)
		{
			TempString.AppendChar(TEXT('0'));
		}
	}
	return TempString;
}

FString FString::FormatAsNumber(int32 InNumber)
{
	FString Number = Printf(TEXT("%d"), InNumber);
	const int32 FirstDigit = InNumber < 0 ? 1 : 0;
	for (int32 Index = Number.Len() - 3; Index > FirstDigit; Index -= 3)
	{
		Number.InsertAt(Index, TEXT(','));
	}
	return Number;
}

FString FString::PrintfImpl(const TCHAR* Fmt, ...)
{
	va_list Args;
	va_start(Args, Fmt);
	FString Result = UE::Core::Private::FormatVarArgs(Fmt, Args);
	va_end(Args);
	return Result;
}

FString operator+(const FString& Lhs, const FString& Rhs)
{
	FString Result(Lhs, Rhs.Len());
	Result += Rhs;
	return Result;
}

FString operator+(FString&& Lhs, const FString& Rhs)
{
	Lhs += Rhs;
	return MoveTemp(Lhs);
}

FString operator+(const FString& Lhs, const TCHAR* Rhs)
{
	FString Result(Lhs, FCString::Strlen(Rhs));
	Result += Rhs;
	return Result;
}

FString operator+(FString&& Lhs, const TCHAR* Rhs)
{
	Lhs += Rhs;
	return MoveTemp(Lhs);
}

FString operator+(const TCHAR* Lhs, const FString& Rhs)
{
	FString Result(Lhs);
	Result += Rhs;
	return Result;
}

FString operator+(const FString& Lhs, TCHAR Rhs)
{
	FString Result(Lhs, 1);
	Result.AppendChar(Rhs);
	return Result;
}

FString operator+(FString&& Lhs, TCHAR Rhs)
{
	Lhs.AppendChar(Rhs);
	return MoveTemp(Lhs);
}

FString operator+(const FString& Lhs, FStringView Rhs)
{
	FString Result(Lhs, Rhs.Len());
	Result += Rhs;
	return Result;
}

FString operator+(FStringView Lhs, const FString& Rhs)
{
	FString Result(Lhs);
	Result += Rhs;
	return Result;
}

FString operator/(const FString& Lhs, const FString& Rhs)
{
	FString Result(Lhs, Rhs.Len() + 1);
	Result /= Rhs;
	return Result;
}

FString operator/(const FString& Lhs, const TCHAR* Rhs)
{
	FString Result(Lhs, FCString::Strlen(Rhs) + 1);
	Result /= Rhs;
	return Result;
}

FString operator/(FString&& Lhs, const FString& Rhs)
{
	Lhs /= Rhs;
	return MoveTemp(Lhs);
}

FString operator/(FString&& Lhs, const TCHAR* Rhs)
{
	Lhs /= Rhs;
	return MoveTemp(Lhs);
}

FString operator/(const TCHAR* Lhs, const FString& Rhs)
{
	FString Result(Lhs);
	Result /= Rhs;
	return Result;
}

FString operator/(const FString& Lhs, FStringView Rhs)
{
	FString Result(Lhs);
	Result /= Rhs;
	return Result;
}

int32 HexToBytes(const FString& HexString, uint8* OutBytes)
{
	auto HexValue = [](TCHAR Char) -> uint8
	{
		if (Char >= '0' && Char <= '9')
		{
			return (uint8)(Char - '0');
		}
		if (Char >= 'a' && Char <= 'f')
		{
			return (uint8)(Char - 'a' + 10);
		}
		if (Char >= 'A' && Char <= 'F')
		{
			return (uint8)(Char - 'A' + 10);
		}
		return 0;
	};
	const int32 Length = HexString.Len();
	int32 NumBytes = 0;
	int32 Index = 0;
	if (Length % 2 == 1)
	{
		OutBytes[NumBytes++] = HexValue(HexString[0]);
		Index = 1;
	}
	for (; Index + 1 < Length; Index += 2)
	{
		OutBytes[NumBytes++] = (uint8)((HexValue(HexString[Index]) << 4) | HexValue(HexString[Index + 1]));
	}
	return NumBytes;
}

FString BytesToHex(const uint8* In, int32 Count)
{
	FString Result;
	Result.Reserve(Count * 2);
	for (int32 Index = 0; Index < Count; ++Index)
	{
		Result += FString::Printf(TEXT("%02X"), In[Index]);
	}
	return Result;
}
