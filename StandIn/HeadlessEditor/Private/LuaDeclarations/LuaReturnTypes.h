// Reading a documentation record's returns text as a LuaLS type, with a class for every result table it describes.
#pragma once

#include "CoreMinimal.h"

namespace UE::Vlmr
{
	struct FLuaLSField
	{
		FString Name;
		bool bOptional = false;
		// "any" where the text names no type; "boolean" for "ok=false"; a class or an array for a nested table.
		FString Type;
	};

	// One result table: its documented keys in the order the text lists them.
	struct FLuaLSClass
	{
		FString Name;
		TArray<FLuaLSField> Fields;
	};

	struct FLuaLSReturn
	{
		// "vlmr.job|nil", "true|vlmr.graph_remove_node_ok_false", "string[]", "table", "any".
		FString Type;
		// Each class comes before the classes of the tables nested in it.
		TArray<FLuaLSClass> Classes;
		// What the text names by name and is declared elsewhere: "job handle" -> "job", "node_info" -> "node_info".
		TArray<FString> NamedKinds;
	};

	// The returns text of the function ResultName ("mrg_support", "graph_evaluate"): alternatives joined by " or ",
	// plain types ("bool", "string or nil"), handles ("job handle"), named results ("node_info") and table texts such as
	// "{items={{profile,width}}, count}", "{ok=false,error}", "{path, error?}" or "{string...}". A table alternative is
	// the class "vlmr.<ResultName>_result", or "vlmr.<ResultName>_<key>_<value>" when a key holds a true/false literal;
	// a table nested under a key is the class of its parent's name and the key; a table that cannot be read is "table";
	// any other text is "any".
	FLuaLSReturn ToLuaLSReturn(const FString& Returns, const FString& ResultName);

	// The LuaLS class of a handle kind or named result: "job" -> "vlmr.job".
	FString ToLuaLSClassName(const FString& Kind);
}
