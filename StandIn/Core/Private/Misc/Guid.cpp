#include "Misc/Guid.h"

#include "Misc/Char.h"
#include "Misc/CString.h"

#include <chrono>
#include <random>
#include <sys/random.h>

namespace
{
	const TCHAR* const UpperHexDigits = TEXT("0123456789ABCDEF");
	const TCHAR* const LowerHexDigits = TEXT("0123456789abcdef");
	const TCHAR* const Base36Alphabet = TEXT("0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZ");
	const TCHAR* const ShortAlphabet = TEXT("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-_");

	constexpr int32 ShortLength = 22;
	constexpr int32 Base36Length = 25;

	void AppendHex(FString& Out, uint32 Value, int32 DigitCount, bool bLowerCase)
	{
		const TCHAR* const Digits = bLowerCase ? LowerHexDigits : UpperHexDigits;
		for (int32 Shift = (DigitCount - 1) * 4; Shift >= 0; Shift -= 4)
		{
			Out.AppendChar(Digits[(Value >> Shift) & 0xF]);
		}
	}

	/** "%08X-%04X-%04X-%04X-%04X%08X" of the components. */
	void AppendDigitsWithHyphens(FString& Out, const FGuid& Guid, bool bLowerCase)
	{
		AppendHex(Out, Guid.A, 8, bLowerCase);
		Out.AppendChar(TEXT('-'));
		AppendHex(Out, Guid.B >> 16, 4, bLowerCase);
		Out.AppendChar(TEXT('-'));
		AppendHex(Out, Guid.B & 0xFFFF, 4, bLowerCase);
		Out.AppendChar(TEXT('-'));
		AppendHex(Out, Guid.C >> 16, 4, bLowerCase);
		Out.AppendChar(TEXT('-'));
		AppendHex(Out, Guid.C & 0xFFFF, 4, bLowerCase);
		AppendHex(Out, Guid.D, 8, bLowerCase);
	}

	void AppendHexValuesInBraces(FString& Out, const FGuid& Guid)
	{
		Out += TEXT("{0x");
		AppendHex(Out, Guid.A, 8, false);
		Out += TEXT(",0x");
		AppendHex(Out, Guid.B >> 16, 4, false);
		Out += TEXT(",0x");
		AppendHex(Out, Guid.B & 0xFFFF, 4, false);
		Out += TEXT(",{");
		const uint32 LastComponents[] = { Guid.C, Guid.D };
		for (int32 ByteIndex = 0; ByteIndex < 8; ++ByteIndex)
		{
			const uint32 Component = LastComponents[ByteIndex / 4];
			Out += ByteIndex == 0 ? TEXT("0x") : TEXT(",0x");
			AppendHex(Out, (Component >> (24 - 8 * (ByteIndex % 4))) & 0xFF, 2, false);
		}
		Out += TEXT("}}");
	}

	/** The 16 bytes of the GUID, each component big-endian (the engine's network order). */
	void GetBigEndianBytes(const FGuid& Guid, uint8 OutBytes[16])
	{
		for (int32 Index = 0; Index < 16; ++Index)
		{
			OutBytes[Index] = uint8(Guid[Index / 4] >> (24 - 8 * (Index % 4)));
		}
	}

	FGuid FromBigEndianBytes(const uint8 Bytes[16])
	{
		FGuid Guid;
		for (int32 Index = 0; Index < 16; ++Index)
		{
			Guid[Index / 4] |= uint32(Bytes[Index]) << (24 - 8 * (Index % 4));
		}
		return Guid;
	}

	/** URL-safe base64 of the 16 bytes without the two padding characters. */
	void AppendShort(FString& Out, const FGuid& Guid)
	{
		uint8 Bytes[16];
		GetBigEndianBytes(Guid, Bytes);
		int32 BitBuffer = 0;
		int32 BitCount = 0;
		for (uint8 Byte : Bytes)
		{
			BitBuffer = ((BitBuffer << 8) | Byte) & 0xFFFF;
			BitCount += 8;
			while (BitCount >= 6)
			{
				BitCount -= 6;
				Out.AppendChar(ShortAlphabet[(BitBuffer >> BitCount) & 0x3F]);
			}
		}
		Out.AppendChar(ShortAlphabet[(BitBuffer << (6 - BitCount)) & 0x3F]);
	}

	unsigned __int128 ToUInt128(const FGuid& Guid)
	{
		return (unsigned __int128)Guid.A << 96 | (unsigned __int128)Guid.B << 64 | (unsigned __int128)Guid.C << 32 | (unsigned __int128)Guid.D;
	}

	void AppendBase36(FString& Out, const FGuid& Guid)
	{
		unsigned __int128 Value = ToUInt128(Guid);
		TCHAR Digits[Base36Length];
		for (int32 Index = Base36Length - 1; Index >= 0; --Index)
		{
			Digits[Index] = Base36Alphabet[(int32)(Value % 36)];
			Value /= 36;
		}
		Out.AppendChars(Digits, Base36Length);
	}

	int32 ShortCharValue(TCHAR Char)
	{
		for (int32 Index = 0; Index < 64; ++Index)
		{
			if (ShortAlphabet[Index] == Char)
			{
				return Index;
			}
		}
		return INDEX_NONE;
	}

	bool ParseShort(const FString& Text, FGuid& OutGuid)
	{
		if (Text.Len() != ShortLength)
		{
			return false;
		}
		uint8 Bytes[16] = {};
		int32 ByteCount = 0;
		int32 BitBuffer = 0;
		int32 BitCount = 0;
		for (int32 Index = 0; Index < ShortLength; ++Index)
		{
			const int32 Value = ShortCharValue(Text[Index]);
			if (Value == INDEX_NONE)
			{
				return false;
			}
			BitBuffer = ((BitBuffer << 6) | Value) & 0xFFFF;
			BitCount += 6;
			if (BitCount >= 8 && ByteCount < 16)
			{
				BitCount -= 8;
				Bytes[ByteCount++] = uint8(BitBuffer >> BitCount);
			}
		}
		OutGuid = FromBigEndianBytes(Bytes);
		return true;
	}

	bool ParseBase36(const FString& Text, FGuid& OutGuid)
	{
		if (Text.Len() != Base36Length)
		{
			return false;
		}
		unsigned __int128 Value = 0;
		for (int32 Index = 0; Index < Base36Length; ++Index)
		{
			const TCHAR Char = Text[Index];
			int32 Digit = 0;
			if (Char >= TEXT('0') && Char <= TEXT('9'))
			{
				Digit = Char - TEXT('0');
			}
			else if (Char >= TEXT('A') && Char <= TEXT('Z'))
			{
				Digit = Char - TEXT('A') + 10;
			}
			else
			{
				return false;
			}
			Value = Value * 36 + (unsigned __int128)Digit;
		}
		OutGuid = FGuid(uint32(Value >> 96), uint32(Value >> 64), uint32(Value >> 32), uint32(Value));
		return true;
	}

	bool HasCharsAt(const FString& Text, const TCHAR* Chars, const int32* Positions, int32 Count)
	{
		for (int32 Index = 0; Index < Count; ++Index)
		{
			if (Text[Positions[Index]] != Chars[Index])
			{
				return false;
			}
		}
		return true;
	}

	/** Appends Count characters of Text from Start to the normalized 32-digit string. */
	void AppendSpan(FString& Out, const FString& Text, int32 Start, int32 Count)
	{
		Out.AppendChars(*Text + Start, Count);
	}

	/** Reduces any hexadecimal format to its 32 digits, checking every separator; false if the layout does not match. */
	bool NormalizeToDigits(const FString& Text, EGuidFormats Format, FString& OutDigits)
	{
		switch (Format)
		{
		case EGuidFormats::Digits:
		case EGuidFormats::DigitsLower:
			if (Text.Len() != 32)
			{
				return false;
			}
			OutDigits = Text;
			return true;

		case EGuidFormats::DigitsWithHyphens:
		case EGuidFormats::DigitsWithHyphensLower:
		{
			static constexpr int32 HyphenPositions[] = { 8, 13, 18, 23 };
			if (Text.Len() != 36 || !HasCharsAt(Text, TEXT("----"), HyphenPositions, 4))
			{
				return false;
			}
			AppendSpan(OutDigits, Text, 0, 8);
			AppendSpan(OutDigits, Text, 9, 4);
			AppendSpan(OutDigits, Text, 14, 4);
			AppendSpan(OutDigits, Text, 19, 4);
			AppendSpan(OutDigits, Text, 24, 12);
			return true;
		}

		case EGuidFormats::DigitsWithHyphensInBraces:
		case EGuidFormats::DigitsWithHyphensInParentheses:
		{
			static constexpr int32 Positions[] = { 0, 9, 14, 19, 24, 37 };
			const TCHAR* const Expected = Format == EGuidFormats::DigitsWithHyphensInBraces ? TEXT("{----}") : TEXT("(----)");
			if (Text.Len() != 38 || !HasCharsAt(Text, Expected, Positions, 6))
			{
				return false;
			}
			AppendSpan(OutDigits, Text, 1, 8);
			AppendSpan(OutDigits, Text, 10, 4);
			AppendSpan(OutDigits, Text, 15, 4);
			AppendSpan(OutDigits, Text, 20, 4);
			AppendSpan(OutDigits, Text, 25, 12);
			return true;
		}

		case EGuidFormats::HexValuesInBraces:
		{
			static constexpr int32 Positions[] = { 0, 1, 2, 11, 12, 13, 18, 19, 20, 25, 26, 27, 28, 31, 32, 33, 36, 37, 38, 41, 42, 43, 46, 47, 48, 51, 52, 53, 56, 57, 58, 61, 62, 63, 66, 67 };
			if (Text.Len() != 68 || !HasCharsAt(Text, TEXT("{0x,0x,0x,{0x,0x,0x,0x,0x,0x,0x,0x}}"), Positions, 36))
			{
				return false;
			}
			AppendSpan(OutDigits, Text, 3, 8);
			AppendSpan(OutDigits, Text, 14, 4);
			AppendSpan(OutDigits, Text, 21, 4);
			for (int32 Start = 29; Start <= 64; Start += 5)
			{
				AppendSpan(OutDigits, Text, Start, 2);
			}
			return true;
		}

		case EGuidFormats::UniqueObjectGuid:
		{
			static constexpr int32 HyphenPositions[] = { 8, 17, 26 };
			if (Text.Len() != 35 || !HasCharsAt(Text, TEXT("---"), HyphenPositions, 3))
			{
				return false;
			}
			AppendSpan(OutDigits, Text, 0, 8);
			AppendSpan(OutDigits, Text, 9, 8);
			AppendSpan(OutDigits, Text, 18, 8);
			AppendSpan(OutDigits, Text, 27, 8);
			return true;
		}

		default:
			return false;
		}
	}

	uint32 ParseHexComponent(const FString& Digits, int32 Start)
	{
		uint32 Value = 0;
		for (int32 Index = Start; Index < Start + 8; ++Index)
		{
			const TCHAR Char = Digits[Index];
			const uint32 Nibble = FChar::IsDigit(Char) ? uint32(Char - TEXT('0')) : uint32(FChar::ToUpper(Char) - TEXT('A') + 10);
			Value = (Value << 4) | Nibble;
		}
		return Value;
	}

	bool ParseHexFormat(const FString& Text, EGuidFormats Format, FGuid& OutGuid)
	{
		FString Digits;
		if (!NormalizeToDigits(Text, Format, Digits))
		{
			return false;
		}
		for (TCHAR Char : Digits)
		{
			if (!FChar::IsHexDigit(Char))
			{
				return false;
			}
		}
		OutGuid = FGuid(ParseHexComponent(Digits, 0), ParseHexComponent(Digits, 8), ParseHexComponent(Digits, 16), ParseHexComponent(Digits, 24));
		return true;
	}

	bool FillRandomBytes(void* Buffer, size_t Size)
	{
		return getrandom(Buffer, Size, 0) == (ssize_t)Size;
	}

	uint32 FallbackRandomComponent()
	{
		static thread_local std::mt19937 Generator((uint32)std::chrono::high_resolution_clock::now().time_since_epoch().count());
		return Generator();
	}
}

bool FGuid::ExportTextItem(FString& ValueStr, FGuid const& DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const
{
	AppendString(ValueStr, EGuidFormats::Digits);
	return true;
}

bool FGuid::ImportTextItem(const TCHAR*& Buffer, int32 PortFlags, UObject* Parent, FOutputDevice* ErrorText)
{
	constexpr int32 DigitCount = 32;
	if (Buffer == nullptr || FCString::Strnlen(Buffer, DigitCount) < DigitCount)
	{
		return false;
	}
	if (!ParseExact(FString(DigitCount, Buffer), EGuidFormats::Digits, *this))
	{
		return false;
	}
	Buffer += DigitCount;
	return true;
}

void FGuid::AppendString(FString& Out, EGuidFormats Format) const
{
	switch (Format)
	{
	case EGuidFormats::DigitsWithHyphens:
		AppendDigitsWithHyphens(Out, *this, false);
		return;

	case EGuidFormats::DigitsWithHyphensLower:
		AppendDigitsWithHyphens(Out, *this, true);
		return;

	case EGuidFormats::DigitsWithHyphensInBraces:
		Out.AppendChar(TEXT('{'));
		AppendDigitsWithHyphens(Out, *this, false);
		Out.AppendChar(TEXT('}'));
		return;

	case EGuidFormats::DigitsWithHyphensInParentheses:
		Out.AppendChar(TEXT('('));
		AppendDigitsWithHyphens(Out, *this, false);
		Out.AppendChar(TEXT(')'));
		return;

	case EGuidFormats::HexValuesInBraces:
		AppendHexValuesInBraces(Out, *this);
		return;

	case EGuidFormats::UniqueObjectGuid:
		for (int32 Index = 0; Index < 4; ++Index)
		{
			if (Index > 0)
			{
				Out.AppendChar(TEXT('-'));
			}
			AppendHex(Out, (*this)[Index], 8, false);
		}
		return;

	case EGuidFormats::Short:
		AppendShort(Out, *this);
		return;

	case EGuidFormats::Base36Encoded:
		AppendBase36(Out, *this);
		return;

	case EGuidFormats::DigitsLower:
	case EGuidFormats::Digits:
	default:
		for (int32 Index = 0; Index < 4; ++Index)
		{
			AppendHex(Out, (*this)[Index], 8, Format == EGuidFormats::DigitsLower);
		}
		return;
	}
}

uint32 GetTypeHash(const FGuid& Guid)
{
	return HashCombine(HashCombine(Guid.A, Guid.B), HashCombine(Guid.C, Guid.D));
}

FGuid FGuid::NewGuid()
{
	FGuid Result;
	while (!Result.IsValid())
	{
		uint32 Components[4] = {};
		if (!FillRandomBytes(Components, sizeof(Components)))
		{
			for (uint32& Component : Components)
			{
				Component = FallbackRandomComponent();
			}
		}
		Result = FGuid(Components[0], Components[1], Components[2], Components[3]);
	}
	return Result;
}

FGuid FGuid::Combine(const FGuid& GuidA, const FGuid& GuidB)
{
	return FGuid(HashCombine(GuidA.A, GuidB.A), HashCombine(GuidA.B, GuidB.B), HashCombine(GuidA.C, GuidB.C), HashCombine(GuidA.D, GuidB.D));
}

bool FGuid::Parse(const FString& GuidString, FGuid& OutGuid)
{
	switch (GuidString.Len())
	{
	case 32: return ParseExact(GuidString, EGuidFormats::Digits, OutGuid);
	case 36: return ParseExact(GuidString, EGuidFormats::DigitsWithHyphens, OutGuid);
	case 38: return ParseExact(GuidString, GuidString[0] == TEXT('{') ? EGuidFormats::DigitsWithHyphensInBraces : EGuidFormats::DigitsWithHyphensInParentheses, OutGuid);
	case 68: return ParseExact(GuidString, EGuidFormats::HexValuesInBraces, OutGuid);
	case 35: return ParseExact(GuidString, EGuidFormats::UniqueObjectGuid, OutGuid);
	case ShortLength: return ParseExact(GuidString, EGuidFormats::Short, OutGuid);
	case Base36Length: return ParseExact(GuidString, EGuidFormats::Base36Encoded, OutGuid);
	default: return false;
	}
}

bool FGuid::Parse(const TCHAR* GuidString, FGuid& OutGuid)
{
	return GuidString != nullptr && Parse(FString(GuidString), OutGuid);
}

bool FGuid::ParseExact(const FString& GuidString, EGuidFormats Format, FGuid& OutGuid)
{
	switch (Format)
	{
	case EGuidFormats::Short: return ParseShort(GuidString, OutGuid);
	case EGuidFormats::Base36Encoded: return ParseBase36(GuidString, OutGuid);
	default: return ParseHexFormat(GuidString, Format, OutGuid);
	}
}

bool FGuid::ParseExact(const TCHAR* GuidString, EGuidFormats Format, FGuid& OutGuid)
{
	return GuidString != nullptr && ParseExact(FString(GuidString), Format, OutGuid);
}
