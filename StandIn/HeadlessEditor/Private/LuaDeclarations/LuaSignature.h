// Reading a documentation record's signature as a Lua call form.
#pragma once

#include "CoreMinimal.h"

namespace UE::Vlmr
{
	struct FLuaParameter
	{
		FString Name;
		bool bOptional = false;
	};

	// "mrq_list_settings(filter?)" or "graph:evaluate(opts?)".
	struct FLuaSignature
	{
		FString Owner;
		FString Name;
		TArray<FLuaParameter> Parameters;

		bool IsMethod() const { return !Owner.IsEmpty(); }
	};

	// False for text that is not one call form, such as "graph:evaluate / output_settings / resolution".
	bool ParseLuaSignature(const FString& Signature, FLuaSignature& OutSignature);

	// A Lua name: letters, digits and underscores, not starting with a digit.
	bool IsLuaIdentifier(const FString& Text);
}
