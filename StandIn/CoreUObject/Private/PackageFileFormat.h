// Conversion of saved package data to and from the text of a package file.
#pragma once

#include "CoreMinimal.h"
#include "UObject/StandInPackageFile.h"

#include <string>

namespace UE::CoreUObject::StandIn::Private
{
	/** The file text (UTF-8 JSON). */
	std::string WritePackageFileText(const FSavedPackageData& Data);
	/** Parses file text; false with a reason when it is not a package file of a known version. */
	bool ParsePackageFileText(const std::string& Text, FSavedPackageData& OutData, FString& OutError);
}
