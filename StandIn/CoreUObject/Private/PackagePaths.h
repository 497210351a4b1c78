// Paths of objects relative to their package, as stored in package files.
#pragma once

#include "CoreMinimal.h"

class UObject;
class UPackage;

namespace UE::CoreUObject::StandIn::Private
{
	/** The path of a name inside an outer given by its path within the package: "" + B = "B", "B" + C = "B:C", "B:C" + D = "B:C.D". */
	FString AppendPathWithinPackage(const FString& OuterPath, FName Name);
	/** The path of an object inside its package ("Asset", "Asset:Sub", "Asset:Sub.Deeper"); empty for the package itself. */
	FString GetPathWithinPackage(const UObject* Object, const UPackage* Package);
}
