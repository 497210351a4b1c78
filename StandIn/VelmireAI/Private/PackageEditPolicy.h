// Which packages Lua sessions may change or save.
#pragma once

#include "CoreMinimal.h"

namespace UE::VelmireAI::Private
{
	// Empty when sessions may edit the package of that long name, else the reason they may not.
	FString FindReasonPackageIsNotEditable(const FString& PackageName);

	// Makes every package under the prefix read-only for this process's sessions (or editable again). A hook for the
	// host's test drivers, exported but kept out of the public headers so that no extension can reach it.
	VELMIREAI_API void SetPackagePrefixReadOnly(const FString& Prefix, bool bReadOnly);
}
