// The automation framework: log capture during a test, expected messages, assertion texts and the test runner's output.
#include "CoreGlobals.h"
#include "Misc/AutomationTest.h"
#include "Templates/SharedPointer.h"

#include <gtest/gtest.h>

namespace
{
	constexpr EAutomationTestFlags SelfTestFlags = EAutomationTestFlags::EditorContext | EAutomationTestFlags::EngineFilter;

	/** Keeps every line written to it. */
	class FLineCollector : public FOutputDevice
	{
	public:
		virtual void Serialize(const TCHAR* V, ELogVerbosity::Type Verbosity, const FName& Category) override
		{
			Lines.Add(V);
		}

		FString Joined() const
		{
			return FString::Join(Lines, TEXT("\n"));
		}

		TArray<FString> Lines;
	};

	/** Runs the tests under Prefix and returns the runner's output, one line per row. */
	FString RunTestsAndCollectOutput(const TCHAR* Prefix, int32* OutNumFailed = nullptr)
	{
		FLineCollector Output;
		const int32 NumFailed = FAutomationTestFramework::Get().RunTests(Prefix, Output);
		if (OutNumFailed)
		{
			*OutNumFailed = NumFailed;
		}
		return Output.Joined();
	}

	/** Runs one test by its registered name and returns its recorded messages, one per row, prefixed by their type. */
	FString RunTestAndCollectEvents(const TCHAR* TestName, bool& bOutPassed)
	{
		FAutomationTestFramework& Framework = FAutomationTestFramework::Get();
		Framework.StartTestByName(TestName, 0);
		FAutomationTestExecutionInfo ExecutionInfo;
		bOutPassed = Framework.StopTest(ExecutionInfo);

		TArray<FString> Lines;
		for (const FAutomationExecutionEntry& Entry : ExecutionInfo.GetEntries())
		{
			const TCHAR* Type = Entry.Event.Type == EAutomationEventType::Error ? TEXT("E") : (Entry.Event.Type == EAutomationEventType::Warning ? TEXT("W") : TEXT("I"));
			Lines.Add(FString::Printf(TEXT("%s %s"), Type, *Entry.Event.Message));
		}
		return FString::Join(Lines, TEXT("\n"));
	}
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FCoreSelfTestExpectedErrorLogged, "CoreSelfTest.Expected.Logged", SelfTestFlags)
bool FCoreSelfTestExpectedErrorLogged::RunTest(const FString& Parameters)
{
	AddExpectedError(TEXT("one or more render layer node\\(s\\) must be present"));
	UE_LOG(LogTemp, Error, TEXT("Graph evaluation: one or more render layer node(s) must be present"));
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FCoreSelfTestExpectedErrorMissing, "CoreSelfTest.Expected.Missing", SelfTestFlags)
bool FCoreSelfTestExpectedErrorMissing::RunTest(const FString& Parameters)
{
	AddExpectedError(TEXT("never logged"));
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FCoreSelfTestUnexpectedLog, "CoreSelfTest.Unexpected", SelfTestFlags)
bool FCoreSelfTestUnexpectedLog::RunTest(const FString& Parameters)
{
	UE_LOG(LogTemp, Warning, TEXT("Careful"));
	UE_LOG(LogTemp, Display, TEXT("Not recorded"));
	UE_LOG(LogTemp, Error, TEXT("Something broke"));
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FCoreSelfTestUnexpectedWarningOnly, "CoreSelfTest.WarningOnly", SelfTestFlags)
bool FCoreSelfTestUnexpectedWarningOnly::RunTest(const FString& Parameters)
{
	UE_LOG(LogTemp, Warning, TEXT("Careful"));
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FCoreSelfTestEnsureCaptured, "CoreSelfTest.Ensure", SelfTestFlags)
bool FCoreSelfTestEnsureCaptured::RunTest(const FString& Parameters)
{
	const bool bNeverTrue = Parameters.Len() > 1000;
	AddExpectedErrorPlain(TEXT("checked by the automation framework"));
	ensureAlwaysMsgf(bNeverTrue, TEXT("checked by the automation framework"));
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FCoreSelfTestOccurrences, "CoreSelfTest.Occurrences", SelfTestFlags)
bool FCoreSelfTestOccurrences::RunTest(const FString& Parameters)
{
	AddExpectedError(TEXT("exactly three"), EAutomationExpectedErrorFlags::Contains, 3);
	AddExpectedError(TEXT("too few"), EAutomationExpectedErrorFlags::Contains, 3);
	AddExpectedError(TEXT("too many"), EAutomationExpectedErrorFlags::Contains, 1);
	AddExpectedError(TEXT("at least once"), EAutomationExpectedErrorFlags::Contains, 0);
	AddExpectedError(TEXT("missing at least once"), EAutomationExpectedErrorFlags::Contains, 0);
	AddExpectedError(TEXT("ignored"), EAutomationExpectedErrorFlags::Contains, -1);
	AddExpectedError(TEXT("exactly three"), EAutomationExpectedErrorFlags::Contains, 1);

	for (int32 Index = 0; Index < 3; ++Index)
	{
		UE_LOG(LogTemp, Error, TEXT("exactly three %d"), Index);
	}
	UE_LOG(LogTemp, Error, TEXT("too few 1"));
	UE_LOG(LogTemp, Warning, TEXT("too few 2"));
	UE_LOG(LogTemp, Error, TEXT("too many 1"));
	UE_LOG(LogTemp, Error, TEXT("too many 2"));
	UE_LOG(LogTemp, Error, TEXT("at least once 1"));
	UE_LOG(LogTemp, Error, TEXT("at least once 2"));
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FCoreSelfTestMatching, "CoreSelfTest.Matching", SelfTestFlags)
bool FCoreSelfTestMatching::RunTest(const FString& Parameters)
{
	AddExpectedError(TEXT("value [0-9]+ out of range"));
	UE_LOG(LogTemp, Error, TEXT("Value 42 OUT OF RANGE"));

	AddExpectedErrorPlain(TEXT("plain [0-9]+"));
	UE_LOG(LogTemp, Error, TEXT("plain 7"));
	UE_LOG(LogTemp, Error, TEXT("literal plain [0-9]+ text"));

	AddExpectedError(TEXT("exact line"), EAutomationExpectedErrorFlags::Exact);
	UE_LOG(LogTemp, Error, TEXT("not the exact line"));
	UE_LOG(LogTemp, Error, TEXT("exact line"));

	AddExpectedErrorPlain(TEXT("Exact Plain"), EAutomationExpectedErrorFlags::Exact);
	UE_LOG(LogTemp, Error, TEXT("exact plain"));

	AddExpectedError(TEXT("^LogTemp: category prefix$"));
	UE_LOG(LogTemp, Error, TEXT("category prefix"));

	AddExpectedError(TEXT("([unclosed"));
	UE_LOG(LogTemp, Error, TEXT("([unclosed"));

	AddExpectedMessage(TEXT("progress \\d+%"), ELogVerbosity::Display);
	UE_LOG(LogTemp, Display, TEXT("progress 50%%"));

	AddExpectedError(TEXT("handled"));
	AddError(TEXT("handled by the test itself"));
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FCoreSelfTestInvalidPattern, "CoreSelfTest.InvalidPattern", SelfTestFlags)
bool FCoreSelfTestInvalidPattern::RunTest(const FString& Parameters)
{
	AddExpectedError(TEXT("([unclosed"));
	AddExpectedErrorPlain(TEXT("[unclosed"), EAutomationExpectedErrorFlags::Contains, -1);
	UE_LOG(LogTemp, Error, TEXT("([unclosed"));
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FCoreSelfTestAssertionTexts, "CoreSelfTest.Assertions", SelfTestFlags)
bool FCoreSelfTestAssertionTexts::RunTest(const FString& Parameters)
{
	int32 Value = 1;
	TestTrue(TEXT("flag"), false);
	TestFalse(TEXT("flag"), true);
	TestEqual(TEXT("count"), 2, 3);
	TestEqual(TEXT("big"), (int64)5, (int64)6);
	TestEqual(TEXT("ratio"), 1.5, 1.0);
	TestEqual(TEXT("name"), FString(TEXT("abd")), TEXT("abc"));
	TestEqualSensitive(TEXT("case"), TEXT("ABC"), TEXT("abc"));
	TestNotEqual(TEXT("other"), TEXT("same"), TEXT("SAME"));
	TestEqual(TEXT("absent"), (const TCHAR*)nullptr, TEXT("text"));
	TestNull(TEXT("pointer"), &Value);
	TestNotNull(TEXT("missing"), (int32*)nullptr);
	TestValid(TEXT("shared"), TSharedPtr<int32>());
	TestEqual(TEXT("enum"), EGuidFormats::DigitsWithHyphens, EGuidFormats::Digits);
	TestEqual(TEXT("fname"), FName(TEXT("Alpha")), FName(TEXT("Beta")));
	TestLessThan(TEXT("lower"), 5, 3);
	TestNotEqual(TEXT("close"), 1.0, 1.00001);

	const bool bPassingChecksHold = TestEqual(TEXT("insensitive"), TEXT("ABC"), TEXT("abc"))
		&& TestEqual(TEXT("near"), 1.00001, 1.0)
		&& TestEqual(TEXT("float"), 0.5f, 0.50001f)
		&& TestTrue(FString(TEXT("string what")), true)
		&& TestNotNull(TEXT("present"), &Value)
		&& TestInvalid(TEXT("empty"), TSharedPtr<int32>())
		&& TestEqual(TEXT("same count"), 4, 4);
	if (!bPassingChecksHold)
	{
		AddError(TEXT("a passing check reported a failure"));
	}
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FCoreSelfTestEarlyExit, "CoreSelfTest.EarlyExit", SelfTestFlags)
bool FCoreSelfTestEarlyExit::RunTest(const FString& Parameters)
{
	TestEqual(TEXT("tint"), FColor(1, 2, 3), FColor(1, 2, 4));
	TestGreaterEqual(TEXT("at least"), 4, 5);
	UTEST_EQUAL(TEXT("answer"), 41, 42);
	AddError(TEXT("not reached"));
	return true;
}

/** Keeps its log out of its results. */
class FCoreSelfTestQuiet : public FAutomationTestBase
{
public:
	FCoreSelfTestQuiet()
		: FAutomationTestBase(TEXT("FCoreSelfTestQuiet"), false)
	{
	}

	virtual EAutomationTestFlags GetTestFlags() const override { return SelfTestFlags; }
	virtual uint32 GetRequiredDeviceNum() const override { return 1; }
	virtual FString GetBeautifiedTestName() const override { return TEXT("CoreSelfTest.Quiet"); }
	virtual bool SuppressLogs() override { return true; }

protected:
	virtual void GetTests(TArray<FString>& OutBeautifiedNames, TArray<FString>& OutTestCommands) const override
	{
		OutBeautifiedNames.Add(GetBeautifiedTestName());
		OutTestCommands.Add(FString());
	}

	virtual bool RunTest(const FString& Parameters) override
	{
		UE_LOG(LogTemp, Error, TEXT("not captured"));
		return true;
	}
};

namespace
{
	FCoreSelfTestQuiet QuietInstance;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FCoreSelfTestRunnerPassing, "CoreSelfTest.Runner.Passing", SelfTestFlags)
bool FCoreSelfTestRunnerPassing::RunTest(const FString& Parameters)
{
	AddInfo(TEXT("note"));
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FCoreSelfTestRunnerFailing, "CoreSelfTest.Runner.Failing", SelfTestFlags)
bool FCoreSelfTestRunnerFailing::RunTest(const FString& Parameters)
{
	TestTrue(TEXT("always"), false);
	AddWarning(TEXT("heads up"));
	return true;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FCoreSelfTestRunnerReturnsFalse, "CoreSelfTest.Runner.ReturnsFalse", SelfTestFlags)
bool FCoreSelfTestRunnerReturnsFalse::RunTest(const FString& Parameters)
{
	return false;
}

IMPLEMENT_SIMPLE_AUTOMATION_TEST(FCoreSelfTestDisabled, "CoreSelfTest.Runner.Disabled", SelfTestFlags | EAutomationTestFlags::Disabled)
bool FCoreSelfTestDisabled::RunTest(const FString& Parameters)
{
	return false;
}

IMPLEMENT_COMPLEX_AUTOMATION_TEST(FCoreSelfTestComplex, "CoreSelfTest.Complex", EAutomationTestFlags::EditorContext | EAutomationTestFlags::SmokeFilter)
void FCoreSelfTestComplex::GetTests(TArray<FString>& OutBeautifiedNames, TArray<FString>& OutTestCommands) const
{
	OutBeautifiedNames.Add(TEXT("Beta"));
	OutTestCommands.Add(TEXT("beta-param"));
	OutBeautifiedNames.Add(TEXT("Alpha"));
	OutTestCommands.Add(TEXT("alpha-param"));
}

bool FCoreSelfTestComplex::RunTest(const FString& Parameters)
{
	AddInfo(FString::Printf(TEXT("%s as %s"), *Parameters, *GetTestFullName()));
	return true;
}

/** A hand-written test class registered by a static instance, as modules write them without the macro. */
class FCoreSelfTestHandWritten : public FAutomationTestBase
{
public:
	FCoreSelfTestHandWritten(const FString& InName)
		: FAutomationTestBase(InName, false)
	{
	}

	virtual EAutomationTestFlags GetTestFlags() const override { return SelfTestFlags; }
	virtual uint32 GetRequiredDeviceNum() const override { return 1; }
	virtual FString GetBeautifiedTestName() const override { return TEXT("CoreSelfTest.HandWritten"); }

	int32 NumRuns = 0;
	bool bExpectAndLogError = false;

protected:
	virtual void GetTests(TArray<FString>& OutBeautifiedNames, TArray<FString>& OutTestCommands) const override
	{
		OutBeautifiedNames.Add(GetBeautifiedTestName());
		OutTestCommands.Add(FString());
	}

	virtual bool RunTest(const FString& Parameters) override
	{
		++NumRuns;
		if (bExpectAndLogError)
		{
			AddExpectedError(TEXT("announced error"));
			UE_LOG(LogTemp, Error, TEXT("announced error"));
		}
		return true;
	}
};

namespace
{
	FCoreSelfTestHandWritten HandWrittenInstance(TEXT("FCoreSelfTestHandWritten"));
}

TEST(AutomationFrameworkTests, ExpectedErrorIsAbsorbed)
{
	int32 NumFailed = -1;
	EXPECT_STREQ(*RunTestsAndCollectOutput(TEXT("CoreSelfTest.Expected.Logged"), &NumFailed), TEXT("[PASS] CoreSelfTest.Expected.Logged\n1 passed, 0 failed"));
	EXPECT_EQ(NumFailed, 0);
}

TEST(AutomationFrameworkTests, MissingExpectedErrorFailsNamingThePattern)
{
	int32 NumFailed = -1;
	EXPECT_STREQ(*RunTestsAndCollectOutput(TEXT("CoreSelfTest.Expected.Missing"), &NumFailed),
		TEXT("[FAIL] CoreSelfTest.Expected.Missing\n")
		TEXT("  error: Expected ('Warning') level log message or higher matching 'never logged' to occur 1 times with Contains match type, but it was found 0 time(s).\n")
		TEXT("0 passed, 1 failed"));
	EXPECT_EQ(NumFailed, 1);
}

TEST(AutomationFrameworkTests, UnexpectedErrorFailsAndWarningsAreRecorded)
{
	bool bPassed = true;
	EXPECT_STREQ(*RunTestAndCollectEvents(TEXT("FCoreSelfTestUnexpectedLog"), bPassed), TEXT("W LogTemp: Careful\nE LogTemp: Something broke"));
	EXPECT_FALSE(bPassed);

	EXPECT_STREQ(*RunTestAndCollectEvents(TEXT("FCoreSelfTestUnexpectedWarningOnly"), bPassed), TEXT("W LogTemp: Careful"));
	EXPECT_TRUE(bPassed) << "a warning does not fail a test";

	EXPECT_STREQ(*RunTestAndCollectEvents(TEXT("FCoreSelfTestEnsureCaptured"), bPassed), TEXT(""));
	EXPECT_TRUE(bPassed) << "an expected ensure failure is absorbed";
}

TEST(AutomationFrameworkTests, OccurrencesAreCounted)
{
	bool bPassed = true;
	EXPECT_STREQ(*RunTestAndCollectEvents(TEXT("FCoreSelfTestOccurrences"), bPassed),
		TEXT("E Expected ('Warning') level log message or higher matching 'too few' to occur 3 times with Contains match type, but it was found 2 time(s).\n")
		TEXT("E Expected ('Warning') level log message or higher matching 'too many' to occur 1 times with Contains match type, but it was found 2 time(s).\n")
		TEXT("I Suppressed expected ('Warning') level log message or higher matching 'at least once' 2 times.\n")
		TEXT("E Expected suppressed ('Warning') level log message or higher matching 'missing at least once' did not occur."));
	EXPECT_FALSE(bPassed);
}

TEST(AutomationFrameworkTests, RegexAndPlainMatching)
{
	// As in the engine, unmet expectations are only reported for a test that has not already failed.
	bool bPassed = true;
	EXPECT_STREQ(*RunTestAndCollectEvents(TEXT("FCoreSelfTestMatching"), bPassed),
		TEXT("E LogTemp: plain 7\n")
		TEXT("E LogTemp: not the exact line\n")
		TEXT("E LogTemp: ([unclosed"));
	EXPECT_FALSE(bPassed);

	EXPECT_STREQ(*RunTestAndCollectEvents(TEXT("FCoreSelfTestInvalidPattern"), bPassed),
		TEXT("E Expected ('Warning') level log message or higher matching '([unclosed' to occur 1 times with Contains match type, but it was found 0 time(s)."));
	EXPECT_FALSE(bPassed) << "an invalid regular expression matches nothing";
}

TEST(AutomationFrameworkTests, AssertionTexts)
{
	bool bPassed = true;
	EXPECT_STREQ(*RunTestAndCollectEvents(TEXT("FCoreSelfTestAssertionTexts"), bPassed),
		TEXT("E Expected 'flag' to be true.\n")
		TEXT("E Expected 'flag' to be false.\n")
		TEXT("E Expected 'count' to be 3, but it was 2.\n")
		TEXT("E Expected 'big' to be 6, but it was 5.\n")
		TEXT("E Expected 'ratio' to be 1.000000, but it was 1.500000 and outside tolerance 0.000100.\n")
		TEXT("E Expected 'name' to be \"abc\", but it was \"abd\".\n")
		TEXT("E Expected 'case' to be \"abc\", but it was \"ABC\".\n")
		TEXT("E Expected 'other' to differ from \"SAME\", but it was \"same\".\n")
		TEXT("E Expected 'absent' to be \"text\", but it was nullptr.\n")
		TEXT("E Expected 'pointer' to be null.\n")
		TEXT("E Expected 'missing' to be not null.\n")
		TEXT("E shared: The value is not valid (.IsValid() returned false).\n")
		TEXT("E enum: The two values are not equal.\n")
		TEXT("E Expected 'fname' to be Beta, but it was Alpha.\n")
		TEXT("E Expected 'lower' to be less than 3, but it was 5.\n")
		TEXT("E Expected 'close' to be unequal to 1.000010, but it was 1.000000 and within tolerance 0.000100."));
	EXPECT_FALSE(bPassed);
}

TEST(AutomationFrameworkTests, RunnerPrintsOneLinePerTestThenCounts)
{
	int32 NumFailed = -1;
	EXPECT_STREQ(*RunTestsAndCollectOutput(TEXT("coreselftest.runner."), &NumFailed),
		TEXT("[FAIL] CoreSelfTest.Runner.Failing\n")
		TEXT("  error: Expected 'always' to be true.\n")
		TEXT("  warning: heads up\n")
		TEXT("[PASS] CoreSelfTest.Runner.Passing\n")
		TEXT("  info: note\n")
		TEXT("[FAIL] CoreSelfTest.Runner.ReturnsFalse\n")
		TEXT("1 passed, 2 failed"));
	EXPECT_EQ(NumFailed, 2);

	EXPECT_STREQ(*RunTestsAndCollectOutput(TEXT("NoSuchPrefix."), &NumFailed), TEXT("0 passed, 0 failed"));
	EXPECT_EQ(NumFailed, 0);

	EXPECT_STREQ(*RunTestsAndCollectOutput(TEXT("CoreSelfTest.Complex")),
		TEXT("[PASS] CoreSelfTest.Complex.Alpha\n")
		TEXT("  info: alpha-param as CoreSelfTest.Complex.Alpha\n")
		TEXT("[PASS] CoreSelfTest.Complex.Beta\n")
		TEXT("  info: beta-param as CoreSelfTest.Complex.Beta\n")
		TEXT("2 passed, 0 failed"));
}

TEST(AutomationFrameworkTests, RegistryListsTestsByName)
{
	FAutomationTestFramework& Framework = FAutomationTestFramework::Get();
	EXPECT_TRUE(Framework.ContainsTest(TEXT("FCoreSelfTestRunnerPassing")));
	EXPECT_TRUE(Framework.ContainsTest(TEXT("FCoreSelfTestHandWritten")));
	EXPECT_FALSE(Framework.ContainsTest(TEXT("CoreSelfTest.Runner.Passing"))) << "tests are registered under their class name";

	TArray<FAutomationTestInfo> Tests;
	Framework.GetValidTestNames(Tests);
	const FAutomationTestInfo* Passing = Tests.FindByPredicate([](const FAutomationTestInfo& Info) { return Info.GetFullTestPath() == TEXT("CoreSelfTest.Runner.Passing"); });
	ASSERT_NE(Passing, nullptr);
	EXPECT_STREQ(*Passing->GetTestName(), TEXT("FCoreSelfTestRunnerPassing"));
	EXPECT_EQ((uint32)Passing->GetTestFlags(), 0x02000001u);
	EXPECT_TRUE(Passing->GetSourceFile().EndsWith(TEXT("AutomationFrameworkTests.cpp")));
	EXPECT_FALSE(Tests.ContainsByPredicate([](const FAutomationTestInfo& Info) { return Info.GetFullTestPath() == TEXT("CoreSelfTest.Runner.Disabled"); }));
	EXPECT_TRUE(Tests.ContainsByPredicate([](const FAutomationTestInfo& Info) { return Info.GetTestName() == TEXT("FCoreSelfTestComplex alpha-param"); }));
	for (int32 Index = 1; Index < Tests.Num(); ++Index)
	{
		EXPECT_LE(Tests[Index - 1].GetFullTestPath().Compare(Tests[Index].GetFullTestPath(), ESearchCase::IgnoreCase), 0);
	}

	EXPECT_EQ((uint32)EAutomationTestFlags_ApplicationContextMask, 0x1Fu);
	EXPECT_EQ((uint32)EAutomationTestFlags_FilterMask, 0x3F000000u);
	EXPECT_EQ((uint32)FCoreSelfTestComplexAutomationTestInstance.GetTestFlags(), 0x00000001u) << "complex tests drop the smoke filter";
}

TEST(AutomationFrameworkTests, ExpectationsAndCaptureEndWithTheTest)
{
	const int32 NumRunsBefore = HandWrittenInstance.NumRuns;
	HandWrittenInstance.bExpectAndLogError = true;
	bool bPassed = false;
	EXPECT_STREQ(*RunTestAndCollectEvents(TEXT("FCoreSelfTestHandWritten"), bPassed), TEXT(""));
	EXPECT_TRUE(bPassed);
	EXPECT_TRUE(HandWrittenInstance.GetLastExecutionSuccessState());

	TArray<FAutomationExpectedMessage> Remaining;
	HandWrittenInstance.GetExpectedMessages(Remaining, true);
	EXPECT_EQ(Remaining.Num(), 0) << "expected messages are cleared when the test stops";
	EXPECT_FALSE(GIsAutomationTesting);

	UE_LOG(LogTemp, Error, TEXT("logged after the test ended"));
	FAutomationTestExecutionInfo AfterRun;
	HandWrittenInstance.GetExecutionInfo(AfterRun);
	EXPECT_EQ(AfterRun.GetErrorTotal(), 0) << "nothing is captured outside a test";

	HandWrittenInstance.bExpectAndLogError = false;
	EXPECT_STREQ(*RunTestAndCollectEvents(TEXT("FCoreSelfTestHandWritten"), bPassed), TEXT(""));
	EXPECT_TRUE(bPassed) << "the first run's expectation does not carry over";
	EXPECT_EQ(HandWrittenInstance.NumRuns, NumRunsBefore + 2);
}

TEST(AutomationFrameworkTests, UnknownAndDuplicateTests)
{
	FAutomationTestFramework& Framework = FAutomationTestFramework::Get();
	Framework.StartTestByName(TEXT("FNoSuchAutomationTest"), 0);
	FAutomationTestExecutionInfo ExecutionInfo;
	EXPECT_FALSE(Framework.StopTest(ExecutionInfo));
	EXPECT_EQ(Framework.GetCurrentTest(), nullptr);

	{
		FCoreSelfTestHandWritten Duplicate(TEXT("FCoreSelfTestHandWritten"));
		TArray<FAutomationTestInfo> Tests;
		Framework.GetValidTestNames(Tests);
		const int32 NumHandWritten = Tests.FilterByPredicate([](const FAutomationTestInfo& Info) { return Info.GetTestName() == TEXT("FCoreSelfTestHandWritten"); }).Num();
		EXPECT_EQ(NumHandWritten, 1) << "a second test under a taken name is not registered";
	}
	EXPECT_TRUE(Framework.ContainsTest(TEXT("FCoreSelfTestHandWritten"))) << "destroying the rejected duplicate keeps the original";
}

TEST(AutomationFrameworkTests, EarlyExitAndSuppressedLogs)
{
	bool bPassed = true;
	EXPECT_STREQ(*RunTestAndCollectEvents(TEXT("FCoreSelfTestEarlyExit"), bPassed),
		TEXT("E Expected 'tint' to be (R=1,G=2,B=4,A=255), but it was (R=1,G=2,B=3,A=255).\n")
		TEXT("E Expected 'at least' to be greater than or equal to 5, but it was 4.\n")
		TEXT("E Expected 'answer' to be 42, but it was 41."));
	EXPECT_FALSE(bPassed);

	EXPECT_STREQ(*RunTestAndCollectEvents(TEXT("FCoreSelfTestQuiet"), bPassed), TEXT(""));
	EXPECT_TRUE(bPassed) << "a test that suppresses logs is not failed by them";
}
