// TCString / FCString: operations on null-terminated strings; ESearchCase and ESearchDir.
#pragma once

#include "CoreTypes.h"
#include "Misc/Char.h"

#include <cwchar>
#include <cstring>

namespace ESearchCase
{
	enum Type
	{
		CaseSensitive,
		IgnoreCase,
	};
}

namespace ESearchDir
{
	enum Type
	{
		FromStart,
		FromEnd,
	};
}

template <typename T>
struct TCString
{
	typedef T CharType;

	static int32 Strlen(const CharType* String)
	{
		int32 Length = 0;
		if (String)
		{
			while (String[Length])
			{
				++Length;
			}
		}
		return Length;
	}

	static int32 Strnlen(const CharType* String, SIZE_T StringSize)
	{
		SIZE_T Length = 0;
		if (String)
		{
			while (Length < StringSize && String[Length])
			{
				++Length;
			}
		}
		return (int32)Length;
	}

	static int32 Strcmp(const CharType* String1, const CharType* String2)
	{
		return Strncmp(String1, String2, (SIZE_T)-1);
	}

	static int32 Strncmp(const CharType* String1, const CharType* String2, SIZE_T Count)
	{
		for (SIZE_T Index = 0; Index < Count; ++Index)
		{
			const uint32 C1 = TChar<CharType>::ToUnsigned(String1[Index]);
			const uint32 C2 = TChar<CharType>::ToUnsigned(String2[Index]);
			if (C1 != C2)
			{
				return C1 < C2 ? -1 : 1;
			}
			if (C1 == 0)
			{
				break;
			}
		}
		return 0;
	}

	/** Compares ignoring the case of ASCII letters. */
	static int32 Stricmp(const CharType* String1, const CharType* String2)
	{
		return Strnicmp(String1, String2, (SIZE_T)-1);
	}

	static int32 Strnicmp(const CharType* String1, const CharType* String2, SIZE_T Count)
	{
		for (SIZE_T Index = 0; Index < Count; ++Index)
		{
			const uint32 C1 = TChar<CharType>::ToUnsigned(TChar<CharType>::ToLower(String1[Index]));
			const uint32 C2 = TChar<CharType>::ToUnsigned(TChar<CharType>::ToLower(String2[Index]));
			if (C1 != C2)
			{
				return C1 < C2 ? -1 : 1;
			}
			if (C1 == 0)
			{
				break;
			}
		}
		return 0;
	}

	static const CharType* Strstr(const CharType* String, const CharType* Find)
	{
		return FindSubstring(String, Find, ESearchCase::CaseSensitive);
	}

	static CharType* Strstr(CharType* String, const CharType* Find)
	{
		return const_cast<CharType*>(FindSubstring(String, Find, ESearchCase::CaseSensitive));
	}

	static const CharType* Stristr(const CharType* String, const CharType* Find)
	{
		return FindSubstring(String, Find, ESearchCase::IgnoreCase);
	}

	static CharType* Stristr(CharType* String, const CharType* Find)
	{
		return const_cast<CharType*>(FindSubstring(String, Find, ESearchCase::IgnoreCase));
	}

	static const CharType* Strchr(const CharType* String, CharType Char)
	{
		for (; String && *String; ++String)
		{
			if (*String == Char)
			{
				return String;
			}
		}
		return Char == 0 && String ? String : nullptr;
	}

	static const CharType* Strrchr(const CharType* String, CharType Char)
	{
		const CharType* Last = nullptr;
		for (; String && *String; ++String)
		{
			if (*String == Char)
			{
				Last = String;
			}
		}
		return Last;
	}

	/** Copies at most MaxLen - 1 characters and always terminates the destination. */
	static CharType* Strncpy(CharType* Dest, const CharType* Src, int32 MaxLen)
	{
		if (MaxLen <= 0)
		{
			return Dest;
		}
		int32 Index = 0;
		for (; Index < MaxLen - 1 && Src && Src[Index]; ++Index)
		{
			Dest[Index] = Src[Index];
		}
		Dest[Index] = 0;
		return Dest;
	}

	static const CharType* Spc(int32 NumSpaces);
	static const CharType* Tab(int32 NumTabs);

	static int32 Atoi(const CharType* String) { return (int32)Strtoi64(String, nullptr, 10); }
	static int64 Atoi64(const CharType* String) { return Strtoi64(String, nullptr, 10); }
	static float Atof(const CharType* String) { return (float)Atod(String); }
	static double Atod(const CharType* String);
	static int32 Strtoi(const CharType* Start, CharType** End, int32 Base) { return (int32)Strtoi64(Start, End, Base); }
	static int64 Strtoi64(const CharType* Start, CharType** End, int32 Base);
	static uint64 Strtoui64(const CharType* Start, CharType** End, int32 Base);

	/** "True", "Yes", "On" (any case) are true; otherwise the number's non-zeroness. */
	static bool ToBool(const CharType* String)
	{
		if (!String)
		{
			return false;
		}
		const CharType True[] = { 't', 'r', 'u', 'e', 0 };
		const CharType Yes[] = { 'y', 'e', 's', 0 };
		const CharType On[] = { 'o', 'n', 0 };
		if (Stricmp(String, True) == 0 || Stricmp(String, Yes) == 0 || Stricmp(String, On) == 0)
		{
			return true;
		}
		return Atoi(String) != 0;
	}

	/** Optional sign, then digits with at most one '.'; no exponent. */
	static bool IsNumeric(const CharType* String)
	{
		if (!String)
		{
			return false;
		}
		if (*String == '-' || *String == '+')
		{
			++String;
		}
		bool bHasDot = false;
		for (; *String; ++String)
		{
			if (*String == '.')
			{
				if (bHasDot)
				{
					return false;
				}
				bHasDot = true;
			}
			else if (!TChar<CharType>::IsDigit(*String))
			{
				return false;
			}
		}
		return true;
	}

	static bool IsPureAnsi(const CharType* String)
	{
		for (; String && *String; ++String)
		{
			if (TChar<CharType>::ToUnsigned(*String) > 0x7f)
			{
				return false;
			}
		}
		return true;
	}

	static CharType* Strupr(CharType* Dest, SIZE_T DestCount)
	{
		for (SIZE_T Index = 0; Index < DestCount && Dest[Index]; ++Index)
		{
			Dest[Index] = TChar<CharType>::ToUpper(Dest[Index]);
		}
		return Dest;
	}

private:
	static const CharType* FindSubstring(const CharType* String, const CharType* Find, ESearchCase::Type SearchCase)
	{
		if (!String || !Find)
		{
			return nullptr;
		}
		const int32 FindLength = Strlen(Find);
		if (FindLength == 0)
		{
			return String;
		}
		for (; *String; ++String)
		{
			const int32 Compared = SearchCase == ESearchCase::CaseSensitive ? Strncmp(String, Find, FindLength) : Strnicmp(String, Find, FindLength);
			if (Compared == 0)
			{
				return String;
			}
		}
		return nullptr;
	}
};

typedef TCString<TCHAR> FCString;
typedef TCString<ANSICHAR> FCStringAnsi;
typedef TCString<WIDECHAR> FCStringWide;

template <>
CORE_API const TCHAR* TCString<TCHAR>::Spc(int32 NumSpaces);
template <>
CORE_API const TCHAR* TCString<TCHAR>::Tab(int32 NumTabs);
template <>
CORE_API double TCString<TCHAR>::Atod(const TCHAR* String);
template <>
CORE_API int64 TCString<TCHAR>::Strtoi64(const TCHAR* Start, TCHAR** End, int32 Base);
template <>
CORE_API uint64 TCString<TCHAR>::Strtoui64(const TCHAR* Start, TCHAR** End, int32 Base);
template <>
CORE_API double TCString<ANSICHAR>::Atod(const ANSICHAR* String);
template <>
CORE_API int64 TCString<ANSICHAR>::Strtoi64(const ANSICHAR* Start, ANSICHAR** End, int32 Base);
template <>
CORE_API uint64 TCString<ANSICHAR>::Strtoui64(const ANSICHAR* Start, ANSICHAR** End, int32 Base);
