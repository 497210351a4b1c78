#include "CapturedLogTestSupport.h"

#include "CoreMinimal.h"
#include "Misc/FeedbackContext.h"
#include "Misc/OutputDeviceRedirector.h"

#include <gtest/gtest.h>

DECLARE_LOG_CATEGORY_EXTERN(LogCoreLoggingExtern, Display, All);
DEFINE_LOG_CATEGORY(LogCoreLoggingExtern);
DEFINE_LOG_CATEGORY_STATIC(LogCoreLoggingTests, Log, All);
DEFINE_LOG_CATEGORY_STATIC(LogCoreLoggingQuiet, Warning, All);
DEFINE_LOG_CATEGORY_STATIC(LogCoreLoggingCompiledOut, Log, Warning);

namespace
{
	bool EnsureAtOneCallSite(bool bCondition)
	{
		return ensureMsgf(bCondition, TEXT("value was %d"), bCondition ? 1 : 0);
	}
}

TEST(CoreLogging, UELogFormatsAndRoutesThroughGLog)
{
	FCapturedLog Captured;
	EXPECT_TRUE(GLog->IsRedirectingTo(&Captured));
	UE_LOG(LogTemp, Warning, TEXT("hello %s %d"), TEXT("world"), 42);
	UE_LOG(LogCoreLoggingTests, Log, TEXT("plain"));
	UE_LOG(LogCoreLoggingTests, Display, TEXT("shown"));
	UE_LOG(LogCoreLoggingTests, Error, TEXT("%hs failed"), "render");
	UE_LOG(LogCoreLoggingTests, Verbose, TEXT("suppressed by default"));
	UE_LOG(LogCoreLoggingQuiet, Log, TEXT("below the category verbosity"));
	UE_LOG(LogCoreLoggingCompiledOut, Display, TEXT("compiled out"));
	EXPECT_EQ(Captured.Lines, (TArray<FString>{
		TEXT("LogTemp: Warning: hello world 42"),
		TEXT("LogCoreLoggingTests: plain"),
		TEXT("LogCoreLoggingTests: Display: shown"),
		TEXT("LogCoreLoggingTests: Error: render failed"),
	}));

	LogCoreLoggingTests.SetVerbosity(ELogVerbosity::VeryVerbose);
	UE_LOG(LogCoreLoggingTests, Verbose, TEXT("now visible"));
	LogCoreLoggingTests.SetVerbosity(ELogVerbosity::Log);
	EXPECT_EQ(Captured.Lines.Last(), TEXT("LogCoreLoggingTests: Verbose: now visible"));

	LogCoreLoggingCompiledOut.SetVerbosity(ELogVerbosity::All);
	EXPECT_EQ(LogCoreLoggingCompiledOut.GetVerbosity(), ELogVerbosity::Warning);

	GLog->RemoveOutputDevice(&Captured);
	UE_LOG(LogTemp, Warning, TEXT("not captured"));
	EXPECT_EQ(Captured.Lines.Num(), 5);
	GLog->AddOutputDevice(&Captured);
}

TEST(CoreLogging, OutputDevicesAndVerbosityNames)
{
	FCapturedLog Captured;
	GError->Log(TEXT("through GError"));
	GWarn->Log(ELogVerbosity::Warning, TEXT("through GWarn"));
	GLog->Logf(TEXT("number %d"), 3);
	GLog->CategorizedLogf(FName(TEXT("LogCustom")), ELogVerbosity::Display, TEXT("%s"), TEXT("categorized"));
	EXPECT_EQ(Captured.Lines, (TArray<FString>{
		TEXT("Error: through GError"),
		TEXT("Warning: through GWarn"),
		TEXT("number 3"),
		TEXT("LogCustom: Display: categorized"),
	}));

	EXPECT_STREQ(ToString(ELogVerbosity::VeryVerbose), TEXT("VeryVerbose"));
	EXPECT_STREQ(ToString(ELogVerbosity::Display), TEXT("Display"));
	EXPECT_EQ(ParseLogVerbosityFromString(TEXT("warning")), ELogVerbosity::Warning);
	EXPECT_EQ(ParseLogVerbosityFromString(TEXT("bogus")), ELogVerbosity::NoLogging);
	EXPECT_TRUE(GLog->ShouldPrintToConsole(ELogVerbosity::Display));
	EXPECT_FALSE(GLog->ShouldPrintToConsole(ELogVerbosity::Log));
	EXPECT_TRUE(GIsEditor);
	EXPECT_TRUE(IsInGameThread());
}

TEST(CoreLogging, EnsureLogsOncePerCallSiteAndContinues)
{
	FCapturedLog Captured;
	const int32 FailuresBefore = FDebug::GetNumEnsureFailures();
	EXPECT_TRUE(EnsureAtOneCallSite(true));
	EXPECT_FALSE(EnsureAtOneCallSite(false));
	EXPECT_FALSE(EnsureAtOneCallSite(false));
	ASSERT_EQ(Captured.Lines.Num(), 1);
	EXPECT_TRUE(Captured.Lines[0].StartsWith(TEXT("LogOutputDevice: Error: Ensure condition failed: bCondition [File:"), ESearchCase::CaseSensitive));
	EXPECT_TRUE(Captured.Lines[0].Contains(TEXT("CoreLoggingTests.cpp] [Line: "), ESearchCase::CaseSensitive));
	EXPECT_TRUE(Captured.Lines[0].EndsWith(TEXT("]\nvalue was 0"), ESearchCase::CaseSensitive));

	int32 EnsureLine = 0;
	for (int32 Attempt = 0; Attempt < 2; ++Attempt)
	{
		EnsureLine = __LINE__; EXPECT_FALSE(ensureAlways(Attempt < 0));
	}
	EXPECT_EQ(Captured.Lines.Num(), 3);
	const FString ExpectedLine = FString::Printf(TEXT("LogOutputDevice: Error: Ensure condition failed: Attempt < 0 [File:%hs] [Line: %d]"), __FILE__, EnsureLine);
	EXPECT_EQ(Captured.Lines[1], ExpectedLine);
	EXPECT_EQ(Captured.Lines[2], ExpectedLine);
	EXPECT_TRUE(ensure(1 + 1 == 2));
	EXPECT_EQ(FDebug::GetNumEnsureFailures() - FailuresBefore, 4);
}

TEST(CoreLogging, CheckAndFatalAbortWithTheEngineMessage)
{
	EXPECT_DEATH(check(1 + 1 == 3), "Assertion failed: 1 \\+ 1 == 3 \\[File:.*CoreLoggingTests.cpp\\] \\[Line: [0-9]+\\]");
	EXPECT_DEATH(checkf(false, TEXT("bad value %d"), 7), "Assertion failed: false .*\nbad value 7");
	EXPECT_DEATH(checkNoEntry(), "Assertion failed: Enclosing block should never be called");
	EXPECT_DEATH(UE_LOG(LogTemp, Fatal, TEXT("fatal %s"), TEXT("stop")), "LogTemp: Fatal: fatal stop");
	int32 Evaluations = 0;
	verify(++Evaluations == 1);
	checkSlow(++Evaluations == 100);
	EXPECT_EQ(Evaluations, 1);
}

namespace
{
	/** Logs again from inside Serialize, and removes itself after the first line. */
	class FReentrantDevice final : public FOutputDevice
	{
	public:
		virtual void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category) override
		{
			Received.Add(V);
			if (Received.Num() == 1)
			{
				GLog->RemoveOutputDevice(this);
				UE_LOG(LogCoreLoggingTests, Log, TEXT("nested %s"), V);
			}
		}

		TArray<FString> Received;
	};
}

TEST(CoreLogging, DevicesMayLogAndUnregisterWhileReceiving)
{
	FCapturedLog Captured;
	FReentrantDevice Reentrant;
	GLog->AddOutputDevice(&Reentrant);
	GLog->AddOutputDevice(&Reentrant);
	UE_LOG(LogCoreLoggingTests, Log, TEXT("outer"));
	UE_LOG(LogCoreLoggingTests, Log, TEXT("after"));
	EXPECT_EQ(Reentrant.Received, (TArray<FString>{ TEXT("outer") }));
	EXPECT_EQ(Captured.Lines, (TArray<FString>{ TEXT("LogCoreLoggingTests: outer"), TEXT("LogCoreLoggingTests: nested outer"), TEXT("LogCoreLoggingTests: after") }));
	EXPECT_FALSE(GLog->IsRedirectingTo(&Reentrant));

	UE_LOG(LogCoreLoggingExtern, Log, TEXT("below display"));
	UE_LOG(LogCoreLoggingExtern, Display, TEXT("at display"));
	UE_CLOG(false, LogCoreLoggingExtern, Error, TEXT("never"));
	UE_CLOG(true, LogCoreLoggingExtern, Error, TEXT("conditional %d"), 1);
	EXPECT_EQ(Captured.Lines.Last(1), TEXT("LogCoreLoggingExtern: Display: at display"));
	EXPECT_EQ(Captured.Lines.Last(), TEXT("LogCoreLoggingExtern: Error: conditional 1"));
	EXPECT_STREQ(*LogCoreLoggingExtern.GetCategoryName().ToString(), TEXT("LogCoreLoggingExtern"));
	EXPECT_TRUE(LogCoreLoggingExtern.IsSuppressed(ELogVerbosity::Log));
	EXPECT_FALSE(LogCoreLoggingExtern.IsSuppressed(ELogVerbosity::Warning));
	EXPECT_EQ(FOutputDeviceHelper::FormatLogLine(ELogVerbosity::Warning, NAME_None, TEXT("bare")), TEXT("Warning: bare"));
}
