// The printf-style formatter behind FString::Printf, UE_LOG and checkf.
#pragma once

#include "Containers/UnrealString.h"

#include <cstdarg>

namespace UE::Core::Private
{
	/**
	 * Appends Fmt formatted with Args, as the engine's formatter does on Windows: %s and %ls take const TCHAR*,
	 * %hs and %S take const char*, %c takes a TCHAR (%hc a char), %p prints 16 uppercase hex digits.
	 */
	void AppendFormattedVarArgs(FString& Out, const TCHAR* Fmt, va_list Args);

	FString FormatVarArgs(const TCHAR* Fmt, va_list Args);
}
