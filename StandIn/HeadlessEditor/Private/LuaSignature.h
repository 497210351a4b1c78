// Reading a documentation record's signature and returns text as Lua declarations.
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

	// The LuaLS type of a returns text: "job handle or nil" -> "vlmr.job|nil", "bool" -> "boolean", unknown -> "any".
	FString ToLuaLSReturnType(const FString& Returns);

	// The handle kinds a returns text names: "job handle or nil" -> { "job" }.
	TArray<FString> FindHandleKinds(const FString& Returns);

	// The LuaLS class of a handle kind: "job" -> "vlmr.job".
	FString ToLuaLSClassName(const FString& HandleKind);
}
