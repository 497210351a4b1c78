#include "VLMRScriptArguments.h"

#include "Containers/StringConv.h"

namespace VLMR
{
	FString ToFString(const char* Utf8, int32 Length)
	{
		const FUTF8ToTCHAR Converted(Utf8, Length);
		return FString(Converted.Length(), Converted.Get());
	}

	FString ToFString(const std::string& Utf8)
	{
		return ToFString(Utf8.data(), static_cast<int32>(Utf8.size()));
	}

	std::string ToUtf8(const FString& Text)
	{
		const FTCHARToUTF8 Converted(*Text, Text.Len());
		return std::string(reinterpret_cast<const char*>(Converted.Get()), Converted.Length());
	}

	const char* FindTextArgumentProblem(lua_State* L, int32 Index)
	{
		size_t Length = 0;
		const char* Data = lua_tolstring(L, Index, &Length);
		if (Length > static_cast<size_t>(MAX_int32))
		{
			return "string is too long";
		}
		if (memchr(Data, '\0', Length) != nullptr)
		{
			return "string holds a NUL character";
		}
		return nullptr;
	}

	bool ReadTextAt(lua_State* L, int32 Index, FString& OutText, FString& OutProblem)
	{
		const char* Problem = FindTextArgumentProblem(L, Index);
		size_t Length = 0;
		const char* Data = lua_tolstring(L, Index, &Length);
		OutText = Problem ? FString() : ToFString(Data, static_cast<int32>(Length));
		OutProblem = Problem ? FString(UTF8_TO_TCHAR(Problem)) : FString();
		return Problem == nullptr;
	}

	bool ReadTextValue(const sol::object& Value, FString& OutText, FString& OutProblem)
	{
		lua_State* L = Value.lua_state();
		Value.push(L);
		const bool bRead = ReadTextAt(L, -1, OutText, OutProblem);
		lua_pop(L, 1);
		return bRead;
	}

	FScriptText sol_lua_get(sol::types<FScriptText>, lua_State* L, int Index, sol::stack::record& Tracking)
	{
		Tracking.use(1);
		size_t Length = 0;
		const char* Data = lua_tolstring(L, Index, &Length);
		return FScriptText{ ToFString(Data, static_cast<int32>(Length)) };
	}
}
