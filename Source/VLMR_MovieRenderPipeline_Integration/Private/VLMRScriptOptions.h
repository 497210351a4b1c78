// Option tables passed by scripts: fields read one by one, a field of the wrong Lua type counting as absent.
#pragma once

#include "CoreMinimal.h"
#include "Misc/Optional.h"
#include "VelmireLuaIncludes.h"

namespace VLMR
{
	// Reads the fields of a table, or of a userdata through its __index; anything else has no fields. A field whose read
	// raises a Lua error counts as absent, so that a hostile metatable never unwinds through the engine's frames.
	class FScriptOptions
	{
	public:
		explicit FScriptOptions(const sol::object& InOptions);

		bool IsTableLike() const { return bTableLike; }

		// An integer, or a float holding an integral value in the 64-bit range.
		TOptional<int64> GetInteger(const char* Key) const;
		TOptional<double> GetNumber(const char* Key) const;
		TOptional<bool> GetBool(const char* Key) const;
		// Lua truth: any value but nil and false; an unreadable field counts as nil.
		bool IsTruthy(const char* Key) const;
		// A string holding no NUL character.
		TOptional<FString> GetString(const char* Key) const;
		// The string-to-string pairs of a plain table field, other pairs skipped; the table's own entries, no metamethods.
		TMap<FString, FString> GetStringPairs(const char* Key) const;

	private:
		// Pushes the field's value (nil when unreadable) and returns its Lua type; the caller pops it. Table-like only.
		int32 PushField(const char* Key) const;

		sol::object Options;
		bool bTableLike = false;
	};

	// The integral value of the number at Index, when it has one in the 64-bit range.
	TOptional<int64> ReadIntegralNumber(lua_State* L, int32 Index);
}
