#include "VLMRScriptResults.h"

#include "LuaSessionData.h"
#include "Runtime/Launch/Resources/Version.h"
#include "UObject/NameTypes.h"
#include "VLMRScriptArguments.h"

namespace VLMR
{
	static const TCHAR* LinePrefix(ELineKind Kind)
	{
		switch (Kind)
		{
		case ELineKind::Ok: return TEXT("[OK]");
		case ELineKind::Fail: return TEXT("[FAIL]");
		case ELineKind::Warn: return TEXT("[WARN]");
		case ELineKind::Info: return TEXT("[INFO]");
		}
		return TEXT("[FAIL]");
	}

	static void AppendEscape(FString& Out, TCHAR Character)
	{
		switch (Character)
		{
		case TEXT('\n'): Out += TEXT("\\n"); break;
		case TEXT('\r'): Out += TEXT("\\r"); break;
		case TEXT('\t'): Out += TEXT("\\t"); break;
		default: Out += FString::Printf(TEXT("\\x%02X"), static_cast<uint32>(Character)); break;
		}
	}

	static bool IsControlCharacter(TCHAR Character)
	{
		return Character < 0x20 || Character == 0x7F || Character == 0x2028 || Character == 0x2029;
	}

	FString EscapeControlCharacters(const FString& Line)
	{
		FString Escaped;
		Escaped.Reserve(Line.Len());
		for (const TCHAR Character : Line)
		{
			if (IsControlCharacter(Character))
			{
				AppendEscape(Escaped, Character);
			}
			else
			{
				Escaped.AppendChar(Character);
			}
		}
		return Escaped;
	}

	void LogLine(FLuaSessionData& Session, ELineKind Kind, const FString& Label, const FString& Text)
	{
		Session.Log(EscapeControlCharacters(FString::Printf(TEXT("%s %s -> %s"), LinePrefix(Kind), *Label, *Text)));
	}

	void LogLine(FLuaSessionData& Session, ELineKind Kind, const FString& Label)
	{
		Session.Log(EscapeControlCharacters(FString::Printf(TEXT("%s %s"), LinePrefix(Kind), *Label)));
	}

	// The one shape of every failure result: one failure line, then a table with ok=false and the reason.
	static sol::table LogFailure(sol::state_view Lua, FLuaSessionData& Session, const FString& Label, const FString& Reason)
	{
		LogLine(Session, ELineKind::Fail, Label, Reason);
		sol::table Result = Lua.create_table();
		Result["ok"] = false;
		Result["error"] = ToUtf8(Reason);
		return Result;
	}

	sol::table Fail(sol::state_view Lua, FLuaSessionData& Session, const FString& Label, const FString& Reason)
	{
		return LogFailure(Lua, Session, Label, Reason);
	}

	sol::table Unsupported(sol::state_view Lua, FLuaSessionData& Session, const FString& Label, const FString& Feature, const FString& MinVersion)
	{
		const FString Reason = FString::Printf(TEXT("unsupported: %s needs UE %s+ (this editor is %d.%d)"),
			*Feature, *MinVersion, ENGINE_MAJOR_VERSION, ENGINE_MINOR_VERSION);
		sol::table Result = LogFailure(Lua, Session, Label, Reason);
		Result["supported"] = false;
		Result["min_version"] = ToUtf8(MinVersion);
		return Result;
	}

	void ReportNoLongerValid(FLuaSessionData& Session, const FString& Label, const TCHAR* HandleKind)
	{
		LogLine(Session, ELineKind::Fail, Label, FString::Printf(TEXT("%s no longer valid"), HandleKind));
	}

	bool FitsEngineName(const FString& Text)
	{
		return Text.Len() < NAME_SIZE;
	}

	bool CheckEngineNameLength(FLuaSessionData& Session, const FString& Label, const FString& Text)
	{
		if (FitsEngineName(Text))
		{
			return true;
		}
		LogLine(Session, ELineKind::Fail, Label, DescribeEngineNameTooLong(Text));
		return false;
	}

	FString DescribeEngineNameTooLong(const FString& Text)
	{
		return FString::Printf(TEXT("text too long for an engine name (%d characters, at most %d)"), Text.Len(), NAME_SIZE - 1);
	}

	sol::object Nil(sol::state_view Lua)
	{
		return sol::make_object(Lua, sol::lua_nil);
	}

	sol::variadic_results NoValue()
	{
		return sol::variadic_results();
	}

	sol::variadic_results NilValue(sol::state_view Lua)
	{
		sol::variadic_results Results;
		Results.push_back(Nil(Lua));
		return Results;
	}

	const TCHAR* BoolText(bool bValue)
	{
		return bValue ? TEXT("true") : TEXT("false");
	}
}
