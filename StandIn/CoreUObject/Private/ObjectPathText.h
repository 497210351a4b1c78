// Reading and writing object paths inside exported property text.
#pragma once

#include "CoreMinimal.h"

namespace UE::CoreUObject::Private
{
	/**
	 * Reads one token as the engine's FPropertyHelpers::ReadToken does with dotted names: a quoted string (with
	 * backslash escapes) or a run of letters, digits and "_-+./:". Returns null when a quoted string is not closed.
	 */
	const TCHAR* ReadPathToken(const TCHAR* Buffer, FString& OutToken);

	/**
	 * Reads an object path as written in property text: "None", "()", "/Game/A.B", "\"/Game/A.B\"" or "Class'/Game/A.B'".
	 * Returns the position after it, or null when the text is not a path; "None" and "()" yield an empty path.
	 */
	const TCHAR* ReadObjectPathText(const TCHAR* Buffer, FString& OutPath);

	/** Appends the path, quoted with escapes when the text is delimited (inside a struct or container) or when the path is no single token. */
	void AppendPathText(FString& ValueStr, const FString& Path, bool bDelimited);
}
