// The process-wide table of names behind FName.
#pragma once

#include "Containers/UnrealString.h"

namespace UE::Core::Private
{
	/** Looks the name up ignoring case, registering it (with this spelling) when new unless bFindOnly; INDEX_NONE when not found. */
	int32 FindOrAddName(FStringView Name, bool bFindOnly);
	/** The spelling first registered for the index. */
	const FString& GetNameString(int32 Index);
	bool IsValidNameIndex(int32 Index);
}
