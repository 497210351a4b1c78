// The host's per-session object: the session log and the guard for editing packages.
#pragma once

#include "CoreMinimal.h"

class UPackage;

class VELMIREAI_API FLuaSessionData
{
public:
	using FLogSink = TFunction<void(const FString&)>;

	FLuaSessionData();
	~FLuaSessionData();

	FLuaSessionData(const FLuaSessionData&) = delete;
	FLuaSessionData& operator=(const FLuaSessionData&) = delete;

	// Appends one complete line to the session log and hands it to the session's output.
	void Log(const FString& Line);

	// True when this session may change or save the package. A refusal is reported here, as one
	// "[FAIL] <label> -> ..." line naming the package and the reason.
	bool EnsurePackageEditable(UPackage* Package, const wchar_t* Label, bool bForWrite);

	const TArray<FString>& GetLogLines() const { return LogLines; }
	void ClearLog() { LogLines.Reset(); }
	void SetLogSink(FLogSink InSink) { LogSink = MoveTemp(InSink); }

private:
	TArray<FString> LogLines;
	FLogSink LogSink;
};
