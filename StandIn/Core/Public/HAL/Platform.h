// Platform types and compiler macros of the Linux build.
#pragma once

#include <cstddef>
#include <cstdint>

#define PLATFORM_LINUX 1
#define PLATFORM_WINDOWS 0
#define PLATFORM_MAC 0
#define PLATFORM_UNIX 1
#define PLATFORM_DESKTOP 1
#define PLATFORM_64BITS 1
#define PLATFORM_LITTLE_ENDIAN 1
#define PLATFORM_TCHAR_IS_4_BYTES 1
#define PLATFORM_WCHAR_IS_4_BYTES 1

#ifndef WITH_EDITOR
#define WITH_EDITOR 1
#endif
#ifndef WITH_EDITORONLY_DATA
#define WITH_EDITORONLY_DATA 1
#endif
#ifndef WITH_ENGINE
#define WITH_ENGINE 1
#endif
#ifndef UE_BUILD_SHIPPING
#define UE_BUILD_SHIPPING 0
#endif
#ifndef UE_BUILD_DEBUG
#define UE_BUILD_DEBUG 0
#endif
#ifndef UE_BUILD_DEVELOPMENT
#define UE_BUILD_DEVELOPMENT 1
#endif
#ifndef UE_BUILD_TEST
#define UE_BUILD_TEST 0
#endif
#ifndef DO_CHECK
#define DO_CHECK 1
#endif
#ifndef DO_GUARD_SLOW
#define DO_GUARD_SLOW 0
#endif
#ifndef DO_ENSURE
#define DO_ENSURE 1
#endif
#ifndef NO_LOGGING
#define NO_LOGGING 0
#endif

typedef std::uint8_t uint8;
typedef std::uint16_t uint16;
typedef std::uint32_t uint32;
typedef std::uint64_t uint64;
typedef std::int8_t int8;
typedef std::int16_t int16;
typedef std::int32_t int32;
typedef std::int64_t int64;

typedef char ANSICHAR;
typedef wchar_t WIDECHAR;
typedef char8_t UTF8CHAR;
typedef char16_t UTF16CHAR;
typedef char32_t UTF32CHAR;
// Stand-in choice: TCHAR is the host's 32-bit wchar_t, because the host interface takes const wchar_t*.
typedef wchar_t TCHAR;

typedef std::size_t SIZE_T;
typedef std::ptrdiff_t SSIZE_T;
typedef std::intptr_t PTRINT;
typedef std::uintptr_t UPTRINT;
typedef decltype(nullptr) TYPE_OF_NULLPTR;

#define TEXT_PASTE(x) L ## x
#define TEXT(x) TEXT_PASTE(x)
#define UTF8TEXT_PASTE(x) u8 ## x
#define UTF8TEXT(x) UTF8TEXT_PASTE(x)

#define FORCEINLINE inline __attribute__((always_inline))
#define FORCENOINLINE __attribute__((noinline))
#define UE_NODISCARD [[nodiscard]]
#define UE_NODISCARD_CTOR [[nodiscard]]
#define UE_NORETURN [[noreturn]]
#define UE_DEPRECATED(Version, Message) [[deprecated(Message)]]
#define UE_LIFETIMEBOUND
#define UE_ASSUME(x)
#define LIKELY(x) __builtin_expect(!!(x), 1)
#define UNLIKELY(x) __builtin_expect(!!(x), 0)
#define CONSTEXPR constexpr
#define ABSTRACT
#define RESTRICT __restrict
#define FUNCTION_NON_NULL_RETURN_START
#define FUNCTION_NON_NULL_RETURN_END

#define DLLEXPORT __attribute__((visibility("default")))
#define DLLIMPORT __attribute__((visibility("default")))

#define INDEX_NONE (-1)

#define UE_ARRAY_COUNT(Array) (sizeof(Array) / sizeof((Array)[0]))
#define ARRAY_COUNT(Array) UE_ARRAY_COUNT(Array)

#define PREPROCESSOR_JOIN_INNER(A, B) A##B
#define PREPROCESSOR_JOIN(A, B) PREPROCESSOR_JOIN_INNER(A, B)
#define PREPROCESSOR_TO_STRING_INNER(x) #x
#define PREPROCESSOR_TO_STRING(x) PREPROCESSOR_TO_STRING_INNER(x)

enum EForceInit
{
	ForceInit,
	ForceInitToZero
};

enum ENoInit
{
	NoInit
};

enum EInPlace
{
	InPlace
};
