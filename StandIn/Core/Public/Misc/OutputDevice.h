// FOutputDevice: a destination for log lines.
#pragma once

#include "CoreTypes.h"
#include "Containers/UnrealString.h"
#include "Logging/LogVerbosity.h"
#include "UObject/NameTypes.h"

/** How a log line's time prefix is written. */
namespace ELogTimes
{
	// Stand-in choice: only the formats the stand-in writes are modelled: none, UTC and local time.
	enum Type
	{
		/** No time prefix. */
		None,
		/** "[YYYY.MM.DD-HH.MM.SS:mmm][frame]" in UTC. */
		UTC,
		/** "[YYYY.MM.DD-HH.MM.SS:mmm][frame]" in local time. */
		Local,
	};
}

class FOutputDevice
{
public:
	FOutputDevice() = default;
	FOutputDevice(const FOutputDevice&) = default;
	FOutputDevice& operator=(const FOutputDevice&) = default;
	virtual ~FOutputDevice() = default;

	virtual void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category) = 0;
	virtual void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category, const double Time)
	{
		Serialize(V, Verbosity, Category);
	}

	virtual void Flush() {}
	virtual void TearDown() {}
	virtual bool CanBeUsedOnAnyThread() const { return false; }
	virtual bool CanBeUsedOnMultipleThreads() const { return false; }
	virtual bool CanBeUsedOnPanicThread() const { return false; }
	virtual bool IsMemoryOnly() const { return false; }

	void SetSuppressEventTag(bool bInSuppressEventTag) { bSuppressEventTag = bInSuppressEventTag; }
	bool GetSuppressEventTag() const { return bSuppressEventTag; }
	void SetAutoEmitLineTerminator(bool bInAutoEmitLineTerminator) { bAutoEmitLineTerminator = bInAutoEmitLineTerminator; }
	bool GetAutoEmitLineTerminator() const { return bAutoEmitLineTerminator; }

	CORE_API void Log(ELogVerbosity::Type Verbosity, const TCHAR* S);
	CORE_API void Log(const FName& Category, ELogVerbosity::Type Verbosity, const TCHAR* Str);
	CORE_API void Log(const TCHAR* S);
	CORE_API void Log(const FString& S);
	CORE_API void Log(const FName& Category, ELogVerbosity::Type Verbosity, const FString& S);

	/** Formats and logs at Log verbosity with no category. */
	template <typename FmtType, typename... Types>
	void Logf(const FmtType& Fmt, Types... Args)
	{
		Log(FString::Printf(Fmt, Args...));
	}

	template <typename FmtType, typename... Types>
	void Logf(ELogVerbosity::Type Verbosity, const FmtType& Fmt, Types... Args)
	{
		Log(Verbosity, *FString::Printf(Fmt, Args...));
	}

	template <typename FmtType, typename... Types>
	void CategorizedLogf(const FName& Category, ELogVerbosity::Type Verbosity, const FmtType& Fmt, Types... Args)
	{
		Log(Category, Verbosity, FString::Printf(Fmt, Args...));
	}

protected:
	bool bSuppressEventTag = false;
	bool bAutoEmitLineTerminator = true;
};

struct FOutputDeviceHelper
{
	/**
	 * "<Category>: <Verbosity>: <Message>", with the verbosity left out for Log lines and the category for NAME_None,
	 * after the date, time and frame prefix that LogTime asks for.
	 * Stand-in choice: LogTime defaults to ELogTimes::None, and the prefix is taken from the clock when the line is formatted.
	 */
	CORE_API static FString FormatLogLine(ELogVerbosity::Type Verbosity, const FName& Category, const TCHAR* Message = nullptr, ELogTimes::Type LogTime = ELogTimes::None);
};
