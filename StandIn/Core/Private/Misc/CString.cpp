#include "Misc/CString.h"

#include <cerrno>
#include <cstdlib>
#include <cwchar>

namespace
{
	constexpr int32 MaxSpacesOrTabs = 255;

	template <typename CharType>
	const CharType* RepeatedCharacter(CharType Character, int32 Count)
	{
		static CharType SpaceBuffer[MaxSpacesOrTabs + 1];
		static CharType TabBuffer[MaxSpacesOrTabs + 1];
		CharType* Buffer = Character == ' ' ? SpaceBuffer : TabBuffer;
		if (Buffer[0] == 0)
		{
			for (int32 Index = 0; Index < MaxSpacesOrTabs; ++Index)
			{
				Buffer[Index] = Character;
			}
			Buffer[MaxSpacesOrTabs] = 0;
		}
		Count = Count < 0 ? 0 : (Count > MaxSpacesOrTabs ? MaxSpacesOrTabs : Count);
		return Buffer + MaxSpacesOrTabs - Count;
	}
}

template <>
const TCHAR* TCString<TCHAR>::Spc(int32 NumSpaces)
{
	return RepeatedCharacter<TCHAR>(' ', NumSpaces);
}

template <>
const TCHAR* TCString<TCHAR>::Tab(int32 NumTabs)
{
	return RepeatedCharacter<TCHAR>('\t', NumTabs);
}

template <>
double TCString<TCHAR>::Atod(const TCHAR* String)
{
	return String ? std::wcstod(String, nullptr) : 0.0;
}

template <>
int64 TCString<TCHAR>::Strtoi64(const TCHAR* Start, TCHAR** End, int32 Base)
{
	if (!Start)
	{
		return 0;
	}
	return std::wcstoll(Start, End, Base);
}

template <>
uint64 TCString<TCHAR>::Strtoui64(const TCHAR* Start, TCHAR** End, int32 Base)
{
	if (!Start)
	{
		return 0;
	}
	return std::wcstoull(Start, End, Base);
}

template <>
double TCString<ANSICHAR>::Atod(const ANSICHAR* String)
{
	return String ? std::strtod(String, nullptr) : 0.0;
}

template <>
int64 TCString<ANSICHAR>::Strtoi64(const ANSICHAR* Start, ANSICHAR** End, int32 Base)
{
	return Start ? std::strtoll(Start, End, Base) : 0;
}

template <>
uint64 TCString<ANSICHAR>::Strtoui64(const ANSICHAR* Start, ANSICHAR** End, int32 Base)
{
	return Start ? std::strtoull(Start, End, Base) : 0;
}
