// FAutomationExpectedMessage matching, the execution record of a test, and the log-capture settings of a test.
#include "CoreGlobals.h"
#include "Misc/AutomationTest.h"

#include <gtest/gtest.h>

namespace
{
	bool MatchesOnce(const TCHAR* Pattern, const TCHAR* Message, EAutomationExpectedMessageFlags::MatchType CompareType = EAutomationExpectedMessageFlags::Contains, bool bIsRegex = true)
	{
		FAutomationExpectedMessage Expected(Pattern, ELogVerbosity::Warning, CompareType, 1, bIsRegex);
		const bool bMatches = Expected.Matches(Message);
		EXPECT_EQ(Expected.ActualNumberOfOccurrences, bMatches ? 1 : 0);
		return bMatches;
	}

	/** Captures every category but LogTemp and turns warnings into errors. */
	class FCoreSelfTestCaptureSettings : public FAutomationTestBase
	{
	public:
		FCoreSelfTestCaptureSettings()
			: FAutomationTestBase(TEXT("FCoreSelfTestCaptureSettings"), false)
		{
		}

		virtual EAutomationTestFlags GetTestFlags() const override { return EAutomationTestFlags::EditorContext | EAutomationTestFlags::EngineFilter; }
		virtual uint32 GetRequiredDeviceNum() const override { return 1; }
		virtual FString GetBeautifiedTestName() const override { return TEXT("CoreSelfTest.CaptureSettings"); }
		virtual bool ShouldCaptureLogCategory(const FName& Category) const override { return Category != FName(TEXT("LogTemp")); }
		virtual bool ElevateLogWarningsToErrors() override { return true; }

	protected:
		virtual void GetTests(TArray<FString>& OutBeautifiedNames, TArray<FString>& OutTestCommands) const override
		{
			OutBeautifiedNames.Add(GetBeautifiedTestName());
			OutTestCommands.Add(FString());
		}

		virtual bool RunTest(const FString& Parameters) override
		{
			UE_LOG(LogTemp, Error, TEXT("ignored category"));
			UE_LOG(LogCore, Warning, TEXT("elevated warning"));
			PushContext(TEXT("Inner step"));
			AddInfo(TEXT("inside the step"));
			PopContext();
			AddInfo(TEXT("after the step"));
			return true;
		}
	};

	FCoreSelfTestCaptureSettings CaptureSettingsInstance;
}

TEST(AutomationExpectedMessageTests, RegularExpressionsMatchCaseInsensitively)
{
	EXPECT_TRUE(MatchesOnce(TEXT("render layer node\\(s\\)"), TEXT("one or more render layer node(s) must be present")));
	EXPECT_TRUE(MatchesOnce(TEXT("VALUE \\d+"), TEXT("value 42")));
	EXPECT_TRUE(MatchesOnce(TEXT("^Failed to .* asset '[^']+'$"), TEXT("failed to load asset '/Game/Seq'")));
	EXPECT_TRUE(MatchesOnce(TEXT("(?:queue|job) (empty|missing)"), TEXT("the job missing")));
	EXPECT_TRUE(MatchesOnce(TEXT("a{2,3}b"), TEXT("xaaab")));
	EXPECT_TRUE(MatchesOnce(TEXT("colou?r"), TEXT("Color")));
	EXPECT_TRUE(MatchesOnce(TEXT("\\bword\\b"), TEXT("a word here")));
	EXPECT_TRUE(MatchesOnce(TEXT("(ab)\\1"), TEXT("abab")));
	EXPECT_TRUE(MatchesOnce(TEXT("[-a-c_]+x"), TEXT("--b_x")));
	EXPECT_TRUE(MatchesOnce(TEXT("\\x41\\u0042"), TEXT("ab")));
	EXPECT_TRUE(MatchesOnce(TEXT(""), TEXT("anything"))) << "an empty pattern is contained everywhere";
	EXPECT_FALSE(MatchesOnce(TEXT("value \\d+"), TEXT("value x")));
	EXPECT_FALSE(MatchesOnce(TEXT("^start"), TEXT("not the start")));
}

TEST(AutomationExpectedMessageTests, ExactComparisonNeedsTheWholeLine)
{
	EXPECT_TRUE(MatchesOnce(TEXT("exact line"), TEXT("EXACT LINE"), EAutomationExpectedMessageFlags::Exact));
	EXPECT_FALSE(MatchesOnce(TEXT("exact line"), TEXT("an exact line"), EAutomationExpectedMessageFlags::Exact));
	EXPECT_TRUE(MatchesOnce(TEXT("line \\d"), TEXT("line 7"), EAutomationExpectedMessageFlags::Exact));
	EXPECT_FALSE(MatchesOnce(TEXT("line \\d"), TEXT("line 78"), EAutomationExpectedMessageFlags::Exact));

	EXPECT_TRUE(MatchesOnce(TEXT("Plain [text]"), TEXT("some plain [TEXT] here"), EAutomationExpectedMessageFlags::Contains, false));
	EXPECT_FALSE(MatchesOnce(TEXT("plain [0-9]"), TEXT("plain 5"), EAutomationExpectedMessageFlags::Contains, false));
	EXPECT_TRUE(MatchesOnce(TEXT("Plain (x)"), TEXT("plain (X)"), EAutomationExpectedMessageFlags::Exact, false));
	EXPECT_FALSE(MatchesOnce(TEXT("plain (x)"), TEXT("plain (x)!"), EAutomationExpectedMessageFlags::Exact, false));

	FAutomationExpectedMessage Counted(TEXT("tick"), ELogVerbosity::Warning, EAutomationExpectedMessageFlags::Contains, 2);
	Counted.Matches(TEXT("tick 1"));
	Counted.Matches(TEXT("tock"));
	Counted.Matches(TEXT("tick 2"));
	EXPECT_EQ(Counted.ActualNumberOfOccurrences, 2);
	EXPECT_TRUE(Counted.IsRegex());
	EXPECT_FALSE(Counted.IsExactCompareType());
	EXPECT_STREQ(EAutomationExpectedErrorFlags::ToString(EAutomationExpectedErrorFlags::Exact), TEXT("Exact"));
}

TEST(AutomationExpectedMessageTests, CaseFoldingCoversAllOfUnicode)
{
	EXPECT_TRUE(MatchesOnce(TEXT("straße"), TEXT("STRASSE"))) << "full case folding: one letter against two";
	EXPECT_TRUE(MatchesOnce(TEXT("ς"), TEXT("Σ")));
	EXPECT_TRUE(MatchesOnce(TEXT("Ärger"), TEXT("ärger"), EAutomationExpectedMessageFlags::Exact));
	EXPECT_TRUE(MatchesOnce(TEXT("[a-z]+x"), TEXT("ABCX"))) << "ranges fold too";
	EXPECT_FALSE(MatchesOnce(TEXT("straße"), TEXT("STRASE")));
}

TEST(AutomationExpectedMessageTests, IcuSyntaxBeyondEcmaScript)
{
	EXPECT_TRUE(MatchesOnce(TEXT("(?<word>b)\\k<word>"), TEXT("xbb"))) << "named groups and their back-references";
	EXPECT_TRUE(MatchesOnce(TEXT("frame [[:digit:]]{3}"), TEXT("frame 042")));
	EXPECT_TRUE(MatchesOnce(TEXT("^\\p{L}+ \\d$"), TEXT("Kamera 2")));
	EXPECT_TRUE(MatchesOnce(TEXT("a]"), TEXT("a]"))) << "a lone closing bracket is a literal";
	EXPECT_FALSE(MatchesOnce(TEXT("\\1(a)"), TEXT("a"))) << "a back-reference to a group not yet matched fails";
}

TEST(AutomationExpectedMessageTests, InvalidPatternsMatchNothing)
{
	const TCHAR* const Invalid[] = {
		TEXT("("), TEXT("(a"), TEXT("a)"), TEXT("["), TEXT("[]"), TEXT("[z-a]"), TEXT("*a"), TEXT("a**"), TEXT("a{"), TEXT("a{3,2}"),
		TEXT("}"), TEXT("\\"), TEXT("(?<a"), TEXT("\\x{110000}"),
	};

	for (const TCHAR* Pattern : Invalid)
	{
		EXPECT_FALSE(MatchesOnce(Pattern, Pattern)) << "pattern of length " << FString(Pattern).Len();
		EXPECT_FALSE(MatchesOnce(Pattern, TEXT("a aa ab 0 z [a] {}"), EAutomationExpectedMessageFlags::Exact));
	}

	FAutomationExpectedMessage Refused(TEXT("("), ELogVerbosity::Warning, EAutomationExpectedMessageFlags::Contains);
	EXPECT_TRUE(Refused.IsRegex()) << "a refused pattern is still a regular expression, one that matches nothing";
	EXPECT_TRUE(MatchesOnce(TEXT("("), TEXT("a (b"), EAutomationExpectedMessageFlags::Contains, false)) << "as plain text it is contained";
}

TEST(AutomationExpectedMessageTests, HostilePatternsEndWithoutAMatch)
{
	const FString Exponential = FString::ChrN(40, TEXT('a')) + TEXT("!");
	EXPECT_FALSE(MatchesOnce(TEXT("(a+)+b"), *Exponential)) << "the search gives up after its step limit";
	EXPECT_TRUE(MatchesOnce(TEXT("(a+)+b"), TEXT("aaab")));

	const FString LongLine = FString::ChrN(200000, TEXT('a')) + TEXT("c");
	EXPECT_FALSE(MatchesOnce(TEXT("(?:a|b)*c"), *LongLine)) << "the search gives up when its backtracking memory is spent";
	EXPECT_TRUE(MatchesOnce(TEXT("(?:a|b)*c"), *(FString::ChrN(1000, TEXT('a')) + TEXT("c"))));

	const FString DeeplyNested = FString::ChrN(100000, TEXT('(')) + TEXT("a") + FString::ChrN(100000, TEXT(')'));
	EXPECT_FALSE(MatchesOnce(*DeeplyNested, TEXT("b")));
}

TEST(AutomationExpectedMessageTests, ExpectedMessagesDeclaredByATest)
{
	FCoreSelfTestCaptureSettings& Test = CaptureSettingsInstance;
	Test.AddExpectedError(TEXT("zeta"));
	Test.AddExpectedMessage(TEXT("alpha"), ELogVerbosity::Display);
	Test.AddExpectedErrorPlain(TEXT("ZETA"), EAutomationExpectedErrorFlags::Exact, 4);
	Test.AddExpectedError(TEXT("ignored"), EAutomationExpectedErrorFlags::Contains, -1);

	TArray<FAutomationExpectedMessage> Visible;
	Test.GetExpectedMessages(Visible);
	ASSERT_EQ(Visible.Num(), 2) << "a pattern already declared is ignored, and so are ignored patterns unless asked for";
	EXPECT_STREQ(*Visible[0].MessagePatternString, TEXT("alpha"));
	EXPECT_EQ(Visible[0].Verbosity, ELogVerbosity::Display);
	EXPECT_STREQ(*Visible[1].MessagePatternString, TEXT("zeta"));
	EXPECT_EQ(Visible[1].Verbosity, ELogVerbosity::Warning);
	EXPECT_EQ(Visible[1].ExpectedNumberOfOccurrences, 1);

	TArray<FAutomationExpectedMessage> ErrorsOnly;
	Test.GetExpectedMessages(ErrorsOnly, true, ELogVerbosity::Warning);
	ASSERT_EQ(ErrorsOnly.Num(), 2);
	EXPECT_STREQ(*ErrorsOnly[0].MessagePatternString, TEXT("ignored"));
	EXPECT_STREQ(*ErrorsOnly[1].MessagePatternString, TEXT("zeta"));

	EXPECT_TRUE(FAutomationTestBase::LogCategoryMatchesSeverityInclusive(ELogVerbosity::Error, ELogVerbosity::Warning));
	EXPECT_FALSE(FAutomationTestBase::LogCategoryMatchesSeverityInclusive(ELogVerbosity::Display, ELogVerbosity::Warning));
	EXPECT_TRUE(FAutomationTestBase::LogCategoryMatchesSeverityInclusive(ELogVerbosity::Display, ELogVerbosity::All));

	FAutomationTestExecutionInfo Discarded;
	FAutomationTestFramework::Get().StartTestByName(TEXT("FCoreSelfTestCaptureSettings"), 0);
	FAutomationTestFramework::Get().StopTest(Discarded);
	TArray<FAutomationExpectedMessage> AfterRun;
	Test.GetExpectedMessages(AfterRun, true);
	EXPECT_EQ(AfterRun.Num(), 0);
}

TEST(AutomationExpectedMessageTests, CaptureFollowsTheTestsSettings)
{
	FAutomationTestFramework& Framework = FAutomationTestFramework::Get();
	Framework.StartTestByName(TEXT("FCoreSelfTestCaptureSettings"), 0, TEXT("CoreSelfTest.CaptureSettings"));
	EXPECT_TRUE(GIsAutomationTesting);
	EXPECT_EQ(Framework.GetCurrentTest(), &CaptureSettingsInstance);
	EXPECT_STREQ(*Framework.GetCurrentTestFullPath(), TEXT("CoreSelfTest.CaptureSettings"));

	FAutomationTestExecutionInfo ExecutionInfo;
	EXPECT_FALSE(Framework.StopTest(ExecutionInfo));
	EXPECT_FALSE(GIsAutomationTesting);
	EXPECT_FALSE(CaptureSettingsInstance.GetLastExecutionSuccessState());
	EXPECT_EQ(ExecutionInfo.GetErrorTotal(), 1);
	EXPECT_EQ(ExecutionInfo.GetWarningTotal(), 0);

	const TArray<FAutomationExecutionEntry>& Entries = ExecutionInfo.GetEntries();
	ASSERT_EQ(Entries.Num(), 3);
	EXPECT_EQ(Entries[0].Event.Type, EAutomationEventType::Error);
	EXPECT_STREQ(*Entries[0].Event.Message, TEXT("LogCore: elevated warning"));
	EXPECT_STREQ(*Entries[1].Event.Context, TEXT("Inner step"));
	EXPECT_STREQ(*Entries[1].ToString(), TEXT("inside the step [Inner step] "));
	EXPECT_STREQ(*Entries[2].ToString(), TEXT("after the step"));
	EXPECT_EQ(Entries[2].LineNumber, -1);
	EXPECT_GT(Entries[2].Timestamp.GetTicks(), FDateTime(2020, 1, 1).GetTicks());

	EXPECT_EQ(ExecutionInfo.RemoveAllEvents(EAutomationEventType::Info), 2);
	EXPECT_EQ(ExecutionInfo.GetEntries().Num(), 1);
	EXPECT_EQ(ExecutionInfo.RemoveAllEvents(EAutomationEventType::Error), 1);
	EXPECT_EQ(ExecutionInfo.GetErrorTotal(), 0);
}
