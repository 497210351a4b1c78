// Stand-in: the contents of a saved package file, readable without loading the package (for the asset registry).
#pragma once

#include "CoreMinimal.h"
#include "UObject/ObjectMacros.h"

namespace UE::CoreUObject::StandIn
{
	/** One object saved in a package file. */
	struct FSavedObjectEntry
	{
		FName Name;
		/** Path of the outer inside the package: empty for the package itself, else "Asset" or "Asset:Sub.Deeper". */
		FString OuterPath;
		/** Path of the object's class: "/Script/Module.ClassName". */
		FString ClassPath;
		/** The object flags kept in the file (RF_Public, RF_Standalone, RF_Transactional). */
		EObjectFlags Flags = RF_NoFlags;
		/** Property name ("Name" or "Name[Index]" for static arrays) and value as export text, in declaration order. */
		TArray<TPair<FString, FString>> Properties;
	};

	/** What a package file holds. */
	struct FSavedPackageData
	{
		FString PackageName;
		uint32 PackageFlags = 0;
		/** Outers before their inners. */
		TArray<FSavedObjectEntry> Objects;
	};

	/** Reads a package file written by UPackage::Save; false (with OutError) when it is missing or malformed. */
	COREUOBJECT_API bool ReadSavedPackageFile(const FString& Filename, FSavedPackageData& OutData, FString* OutError = nullptr);
}
