// How every script-facing call reports: result lines in the session log, failure tables, and the nil results.
#pragma once

#include "CoreMinimal.h"
#include "UObject/Class.h"
#include "UObject/StrongObjectPtr.h"
#include "UObject/WeakObjectPtrTemplates.h"
#include "VelmireLuaIncludes.h"

class FLuaSessionData;

namespace VLMR
{
	// The kinds of result line a call writes into the session log.
	enum class ELineKind : uint8
	{
		Ok,
		Fail,
		Warn,
		Info,
	};

	// Logs "[OK] <label> -> <text>" (or FAIL, WARN, INFO) as one line.
	void LogLine(FLuaSessionData& Session, ELineKind Kind, const FString& Label, const FString& Text);

	// Logs "[OK] <label>" (or FAIL, WARN, INFO): a result line with nothing after the label.
	void LogLine(FLuaSessionData& Session, ELineKind Kind, const FString& Label);

	// The line as the log holds it: carriage returns, line feeds and other control characters become escapes,
	// so that script text can never start a second line.
	FString EscapeControlCharacters(const FString& Line);

	// Logs "[FAIL] <label> -> <reason>" and returns {ok=false, error=<reason>}.
	sol::table Fail(sol::state_view Lua, FLuaSessionData& Session, const FString& Label, const FString& Reason);

	// Logs the refusal of a facility this engine version lacks and returns {ok=false, supported=false, min_version, error}.
	sol::table Unsupported(sol::state_view Lua, FLuaSessionData& Session, const FString& Label, const FString& Feature, const FString& MinVersion);

	// Logs "[FAIL] <label> -> <kind> no longer valid" for a handle whose object has gone.
	void ReportNoLongerValid(FLuaSessionData& Session, const FString& Label, const TCHAR* HandleKind);

	// The object a handle's weak pointer still resolves to, held for the rest of the call; else the
	// "no longer valid" line and an empty pointer.
	template<class T>
	TStrongObjectPtr<T> ResolveOrReport(const TWeakObjectPtr<T>& Object, FLuaSessionData& Session, const FString& Label, const TCHAR* HandleKind)
	{
		TStrongObjectPtr<T> Resolved(Object.Get());
		if (!Resolved)
		{
			ReportNoLongerValid(Session, Label, HandleKind);
		}
		return Resolved;
	}

	// Whether the text fits in an engine name (at most NAME_SIZE - 1 characters).
	bool FitsEngineName(const FString& Text);

	// "text too long for an engine name (<length> characters, at most 1023)".
	FString DescribeEngineNameTooLong(const FString& Text);

	// True when the text fits in an engine name; else "[FAIL] <label> -> text too long for an engine name (...)".
	bool CheckEngineNameLength(FLuaSessionData& Session, const FString& Label, const FString& Text);

	// The Lua nil of a result.
	sol::object Nil(sol::state_view Lua);

	// Results of the setters that return nothing on success and nil on failure.
	sol::variadic_results NoValue();
	sol::variadic_results NilValue(sol::state_view Lua);

	const TCHAR* BoolText(bool bValue);

	// The engine's name of an enum value ("ProducingFrames"), as results report it.
	template<class TEnum>
	FString EnumValueName(TEnum Value)
	{
		return StaticEnum<TEnum>()->GetNameStringByValue(static_cast<int64>(Value));
	}
}
