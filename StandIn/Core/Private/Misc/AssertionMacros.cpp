#include "Misc/AssertionMacros.h"

#include "CoreGlobals.h"
#include "Misc/OutputDeviceRedirector.h"
#include "Misc/VarargsFormatter.h"

#include <atomic>
#include <cstdarg>
#include <cstdlib>

namespace
{
	std::atomic<int32>& EnsureFailureCount()
	{
		static std::atomic<int32> Count{0};
		return Count;
	}

	/** "<Prefix><Expr> [File:<File>] [Line: <Line>]", then the message on its own line when there is one. */
	FString DescribeFailure(const TCHAR* Prefix, const ANSICHAR* Expr, const ANSICHAR* File, int32 Line, const FString& Message)
	{
		FString Description = FString::Printf(TEXT("%s%hs [File:%hs] [Line: %i]"), Prefix, Expr, File, Line);
		if (!Message.IsEmpty())
		{
			Description += TEXT("\n");
			Description += Message;
		}
		return Description;
	}

	[[noreturn]] void AbortAfterFailure(const FString& Description)
	{
		FOutputDeviceRedirector::Get()->Serialize(*Description, ELogVerbosity::Error, FName(TEXT("LogOutputDevice")));
		FOutputDeviceRedirector::Get()->Flush();
		std::abort();
	}
}

void FDebug::CheckVerifyFailedImpl(const ANSICHAR* Expr, const ANSICHAR* File, int32 Line, const TCHAR* Format, ...)
{
	va_list Args;
	va_start(Args, Format);
	const FString Message = UE::Core::Private::FormatVarArgs(Format, Args);
	va_end(Args);
	AbortAfterFailure(DescribeFailure(TEXT("Assertion failed: "), Expr, File, Line, Message));
}

void FDebug::AssertFailed(const ANSICHAR* Expr, const ANSICHAR* File, int32 Line, const TCHAR* Format, ...)
{
	va_list Args;
	va_start(Args, Format);
	const FString Message = UE::Core::Private::FormatVarArgs(Format, Args);
	va_end(Args);
	AbortAfterFailure(DescribeFailure(TEXT("Assertion failed: "), Expr, File, Line, Message));
}

bool FDebug::OptionallyLogFormattedEnsureMessageReturningFalse(bool bLog, const ANSICHAR* Expr, const ANSICHAR* File, int32 Line, const TCHAR* Format, ...)
{
	++EnsureFailureCount();
	if (bLog)
	{
		va_list Args;
		va_start(Args, Format);
		const FString Message = UE::Core::Private::FormatVarArgs(Format, Args);
		va_end(Args);
		const FString Description = DescribeFailure(TEXT("Ensure condition failed: "), Expr, File, Line, Message);
		FOutputDeviceRedirector::Get()->Serialize(*Description, ELogVerbosity::Error, FName(TEXT("LogOutputDevice")));
	}
	return false;
}

void FDebug::LowLevelFatalErrorHandler(const ANSICHAR* File, int32 Line, const TCHAR* Format, ...)
{
	va_list Args;
	va_start(Args, Format);
	const FString Message = UE::Core::Private::FormatVarArgs(Format, Args);
	va_end(Args);
	AbortAfterFailure(FString::Printf(TEXT("Fatal error: [File:%hs] [Line: %i]\n%s"), File, Line, *Message));
}

int32 FDebug::GetNumEnsureFailures()
{
	return EnsureFailureCount().load();
}
