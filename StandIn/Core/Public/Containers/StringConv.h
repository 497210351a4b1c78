// Conversions between TCHAR, UTF-8 and ANSI strings, and the engine's temporary-conversion macros.
#pragma once

#include "CoreTypes.h"
#include "Containers/Array.h"
#include "Misc/CString.h"

#include <type_traits>

namespace UE::Core::Private
{
	/** Encodes UTF-32 TCHARs as UTF-8; invalid code points become '?'. Appends a terminating zero. */
	CORE_API void ConvertTCHARToUTF8(const TCHAR* Source, int32 SourceLen, TArray<UTF8CHAR>& Out);
	/** Decodes UTF-8; invalid sequences become '?'. Appends a terminating zero. */
	CORE_API void ConvertUTF8ToTCHAR(const UTF8CHAR* Source, int32 SourceLen, TArray<TCHAR>& Out);
	/** Narrows to 7-bit ANSI; other characters become '?'. Appends a terminating zero. */
	CORE_API void ConvertTCHARToANSI(const TCHAR* Source, int32 SourceLen, TArray<ANSICHAR>& Out);
	/** Widens each byte. Appends a terminating zero. */
	CORE_API void ConvertANSIToTCHAR(const ANSICHAR* Source, int32 SourceLen, TArray<TCHAR>& Out);

	template <typename ToType, typename FromType>
	void ConvertString(const FromType* Source, int32 SourceLen, TArray<ToType>& Out)
	{
		if constexpr (std::is_same_v<FromType, ToType>)
		{
			Out.Append(Source, SourceLen);
			Out.Add(0);
		}
		else if constexpr (std::is_same_v<FromType, TCHAR> && std::is_same_v<ToType, UTF8CHAR>)
		{
			ConvertTCHARToUTF8(Source, SourceLen, Out);
		}
		else if constexpr (std::is_same_v<FromType, UTF8CHAR> && std::is_same_v<ToType, TCHAR>)
		{
			ConvertUTF8ToTCHAR(Source, SourceLen, Out);
		}
		else if constexpr (std::is_same_v<FromType, TCHAR> && std::is_same_v<ToType, ANSICHAR>)
		{
			ConvertTCHARToANSI(Source, SourceLen, Out);
		}
		else if constexpr (std::is_same_v<FromType, ANSICHAR> && std::is_same_v<ToType, TCHAR>)
		{
			ConvertANSIToTCHAR(Source, SourceLen, Out);
		}
		else if constexpr (std::is_same_v<FromType, ANSICHAR> && std::is_same_v<ToType, UTF8CHAR>)
		{
			TArray<TCHAR> Wide;
			ConvertANSIToTCHAR(Source, SourceLen, Wide);
			ConvertTCHARToUTF8(Wide.GetData(), Wide.Num() - 1, Out);
		}
		else if constexpr (std::is_same_v<FromType, UTF8CHAR> && std::is_same_v<ToType, ANSICHAR>)
		{
			TArray<TCHAR> Wide;
			ConvertUTF8ToTCHAR(Source, SourceLen, Wide);
			ConvertTCHARToANSI(Wide.GetData(), Wide.Num() - 1, Out);
		}
		else
		{
			static_assert(sizeof(ToType) == 0, "Unsupported string conversion");
		}
	}
}

/** A converted copy of a string, alive as long as this object (the engine's TStringConversion). */
template <typename FromType, typename ToType>
class TStringConversion
{
public:
	typedef FromType FromCharType;
	typedef ToType ToCharType;

	explicit TStringConversion(const FromType* Source)
	{
		Convert(Source, Source ? TCString<FromType>::Strlen(Source) : 0);
	}

	TStringConversion(const FromType* Source, int32 SourceLen)
	{
		Convert(Source, Source ? SourceLen : 0);
	}

	template <typename OtherFromType>
		requires(std::is_same_v<FromType, UTF8CHAR> && std::is_same_v<OtherFromType, ANSICHAR>)
	explicit TStringConversion(const OtherFromType* Source)
	{
		Convert((const FromType*)Source, Source ? TCString<ANSICHAR>::Strlen(Source) : 0);
	}

	template <typename OtherFromType>
		requires(std::is_same_v<FromType, UTF8CHAR> && std::is_same_v<OtherFromType, ANSICHAR>)
	TStringConversion(const OtherFromType* Source, int32 SourceLen)
	{
		Convert((const FromType*)Source, Source ? SourceLen : 0);
	}

	TStringConversion(const TStringConversion&) = delete;
	TStringConversion& operator=(const TStringConversion&) = delete;
	TStringConversion(TStringConversion&&) = default;

	/** The converted, terminated characters. */
	FORCEINLINE const ToType* Get() const { return Buffer.GetData(); }
	/** Number of converted characters, without the terminator. */
	FORCEINLINE int32 Length() const { return Buffer.Num() - 1; }

private:
	void Convert(const FromType* Source, int32 SourceLen)
	{
		if (SourceLen < 0)
		{
			SourceLen = 0;
		}
		UE::Core::Private::ConvertString<ToType, FromType>(Source, SourceLen, Buffer);
	}

	TArray<ToType> Buffer;
};

typedef TStringConversion<TCHAR, UTF8CHAR> FTCHARToUTF8;
typedef TStringConversion<UTF8CHAR, TCHAR> FUTF8ToTCHAR;
typedef TStringConversion<TCHAR, ANSICHAR> FTCHARToANSI;
typedef TStringConversion<ANSICHAR, TCHAR> FANSIToTCHAR;
typedef TStringConversion<TCHAR, WIDECHAR> FTCHARToWChar;
typedef TStringConversion<WIDECHAR, TCHAR> FWCharToTCHAR;

#define TCHAR_TO_ANSI(str) (ANSICHAR*)FTCHARToANSI((const TCHAR*)str).Get()
#define ANSI_TO_TCHAR(str) (TCHAR*)FANSIToTCHAR((const ANSICHAR*)str).Get()
#define TCHAR_TO_UTF8(str) (ANSICHAR*)FTCHARToUTF8((const TCHAR*)str).Get()
#define UTF8_TO_TCHAR(str) (TCHAR*)FUTF8ToTCHAR((const ANSICHAR*)str).Get()
#define TCHAR_TO_WCHAR(str) str
#define WCHAR_TO_TCHAR(str) str

template <typename ToType, typename FromType>
FORCEINLINE TStringConversion<std::remove_cv_t<FromType>, ToType> StringCast(const FromType* Str)
{
	return TStringConversion<std::remove_cv_t<FromType>, ToType>(Str);
}

template <typename ToType, typename FromType>
FORCEINLINE TStringConversion<std::remove_cv_t<FromType>, ToType> StringCast(const FromType* Str, int32 Len)
{
	return TStringConversion<std::remove_cv_t<FromType>, ToType>(Str, Len);
}
