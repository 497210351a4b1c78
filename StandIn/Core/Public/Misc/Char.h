// TChar / FChar: character classification and case conversion.
#pragma once

#include "CoreTypes.h"

#include <type_traits>

/** Character helpers. Case conversion and the letter/digit tests cover ASCII only, as in the engine's TChar. */
template <typename CharType>
struct TChar
{
	static constexpr uint32 ToUnsigned(CharType Char) { return (uint32)(std::make_unsigned_t<CharType>)Char; }

	static constexpr CharType ToUpper(CharType Char)
	{
		return (CharType)(ToUnsigned(Char) - ((ToUnsigned(Char) - 'a' < 26u) << 5));
	}

	static constexpr CharType ToLower(CharType Char)
	{
		return (CharType)(ToUnsigned(Char) + ((ToUnsigned(Char) - 'A' < 26u) << 5));
	}

	static constexpr bool IsUpper(CharType Char) { return ToUnsigned(Char) - 'A' < 26u; }
	static constexpr bool IsLower(CharType Char) { return ToUnsigned(Char) - 'a' < 26u; }
	static constexpr bool IsAlpha(CharType Char) { return IsUpper(Char) || IsLower(Char); }
	static constexpr bool IsDigit(CharType Char) { return ToUnsigned(Char) - '0' < 10u; }
	static constexpr bool IsAlnum(CharType Char) { return IsAlpha(Char) || IsDigit(Char); }
	static constexpr bool IsHexDigit(CharType Char) { return IsDigit(Char) || ToUnsigned(Char) - 'a' < 6u || ToUnsigned(Char) - 'A' < 6u; }
	static constexpr bool IsOctDigit(CharType Char) { return ToUnsigned(Char) - '0' < 8u; }
	static constexpr bool IsUnderscore(CharType Char) { return Char == (CharType)'_'; }
	static constexpr bool IsIdentifier(CharType Char) { return IsAlnum(Char) || IsUnderscore(Char); }
	static constexpr bool IsPrint(CharType Char) { return ToUnsigned(Char) >= 0x20 && ToUnsigned(Char) != 0x7f; }
	static constexpr bool IsGraph(CharType Char) { return IsPrint(Char) && ToUnsigned(Char) != ' '; }
	static constexpr bool IsPunct(CharType Char) { return IsGraph(Char) && ToUnsigned(Char) < 0x80 && !IsAlnum(Char); }

	static constexpr bool IsWhitespace(CharType Char)
	{
		const uint32 Code = ToUnsigned(Char);
		if (Code == ' ' || (Code >= 0x09 && Code <= 0x0d))
		{
			return true;
		}
		if constexpr (sizeof(CharType) > 1)
		{
			return Code == 0x85 || Code == 0xa0 || Code == 0x1680 || (Code >= 0x2000 && Code <= 0x200a) || Code == 0x2028
				|| Code == 0x2029 || Code == 0x202f || Code == 0x205f || Code == 0x3000;
		}
		return false;
	}

	static constexpr bool IsLinebreak(CharType Char)
	{
		const uint32 Code = ToUnsigned(Char);
		return (Code >= 0x0a && Code <= 0x0d) || Code == 0x85 || Code == 0x2028 || Code == 0x2029;
	}

	static constexpr int32 ConvertCharDigitToInt(CharType Char) { return (int32)ToUnsigned(Char) - '0'; }
};

typedef TChar<TCHAR> FChar;
typedef TChar<WIDECHAR> FCharWide;
typedef TChar<ANSICHAR> FCharAnsi;
