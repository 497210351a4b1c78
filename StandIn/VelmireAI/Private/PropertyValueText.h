// Export-text import into a property value, with the parser's complaint captured as the reason of a failure.
#pragma once

#include "CoreMinimal.h"

class FProperty;
class UObject;

namespace UE::VelmireAI::Private
{
	// The property's full C++ type as the engine spells it: "int32", "FIntPoint", "TArray<FString>".
	FString DescribePropertyType(const FProperty* Property);

	// Imports the whole text into Value (the property's own memory); on failure Value may be partly written.
	bool ImportPropertyText(const FProperty* Property, void* Value, const FString& Text, UObject* Owner, int32 PortFlags,
		const FString& PropertyPath, FString& OutError);
}
