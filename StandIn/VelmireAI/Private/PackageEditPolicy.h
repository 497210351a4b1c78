// Which packages Lua sessions may change or save.
#pragma once

#include "CoreMinimal.h"

namespace UE::VelmireAI::Private
{
	// Empty when sessions may edit the package of that long name, else the reason they may not.
	FString FindReasonPackageIsNotEditable(const FString& PackageName);

	void SetPackagePrefixReadOnly(const FString& Prefix, bool bReadOnly);
}
