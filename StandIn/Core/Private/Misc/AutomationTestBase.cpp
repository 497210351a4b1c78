#include "Misc/AutomationTest.h"

#include "Logging/LogMacros.h"

DEFINE_LOG_CATEGORY_STATIC(LogAutomationTest, Warning, All);

bool FAutomationTestBase::bSuppressLogWarnings = false;
bool FAutomationTestBase::bSuppressLogErrors = false;
bool FAutomationTestBase::bElevateLogWarningsToErrors = false;

namespace
{
	/** "Any" for All, else the verbosity's name, as the unmet-expectation messages print it. */
	const TCHAR* GetExpectedVerbosityName(ELogVerbosity::Type Verbosity)
	{
		return Verbosity == ELogVerbosity::All ? TEXT("Any") : ToString(Verbosity);
	}

	/** How a captured line is recorded: "<Category>: <Message>", or just the message without a category. */
	FString FormatCapturedLine(const TCHAR* Message, const FName& Category)
	{
		return Category == NAME_None ? FString(Message) : FString::Printf(TEXT("%s: %s"), *Category.ToString(), Message);
	}
}

FAutomationTestBase::FAutomationTestBase(const FString& InName, const bool bInComplexTask)
	: bComplexTask(bInComplexTask)
	, TestName(InName)
{
	if (!FAutomationTestFramework::Get().RegisterAutomationTest(InName, this))
	{
		UE_LOG(LogAutomationTest, Warning, TEXT("Failed to register test with the name '%s'. Test with the same name is already registered and will not be overridden."), *InName);
	}
}

FAutomationTestBase::~FAutomationTestBase()
{
	FAutomationTestFramework::Get().UnregisterAutomationTest(TestName, this);
}

FString FAutomationTestBase::GetTestFullName() const
{
	const FAutomationTestFramework& Framework = FAutomationTestFramework::Get();
	if (Framework.GetCurrentTest() == this && !Framework.GetCurrentTestFullPath().IsEmpty())
	{
		return Framework.GetCurrentTestFullPath();
	}
	if (GetTestContext().IsEmpty())
	{
		return GetBeautifiedTestName();
	}
	return FString::Printf(TEXT("%s.%s"), *GetBeautifiedTestName(), *GetTestContext());
}

void FAutomationTestBase::ClearExecutionInfo()
{
	ExecutionInfo.Clear();
}

void FAutomationTestBase::AddError(const FString& InError, int32 StackOffset)
{
	if (!IsExpectedMessage(InError, ELogVerbosity::Warning))
	{
		ExecutionInfo.AddEvent(FAutomationEvent(EAutomationEventType::Error, InError), StackOffset + 1);
	}
}

bool FAutomationTestBase::AddErrorIfFalse(bool bCondition, const FString& InError, int32 StackOffset)
{
	if (!bCondition)
	{
		AddError(InError, StackOffset + 1);
	}
	return bCondition;
}

void FAutomationTestBase::AddWarning(const FString& InWarning, int32 StackOffset)
{
	if (!IsExpectedMessage(InWarning, ELogVerbosity::Warning))
	{
		ExecutionInfo.AddEvent(FAutomationEvent(EAutomationEventType::Warning, InWarning), StackOffset + 1);
	}
}

void FAutomationTestBase::AddInfo(const FString& InLogItem, int32 StackOffset, bool bCaptureStack)
{
	if (!IsExpectedMessage(InLogItem, ELogVerbosity::Display))
	{
		ExecutionInfo.AddEvent(FAutomationEvent(EAutomationEventType::Info, InLogItem), StackOffset + 1, bCaptureStack);
	}
}

void FAutomationTestBase::AddEvent(const FAutomationEvent& InEvent, int32 StackOffset, bool bCaptureStack)
{
	ELogVerbosity::Type Verbosity = ELogVerbosity::Display;
	if (InEvent.Type == EAutomationEventType::Error)
	{
		Verbosity = ELogVerbosity::Error;
	}
	else if (InEvent.Type == EAutomationEventType::Warning)
	{
		Verbosity = ELogVerbosity::Warning;
	}

	if (!IsExpectedMessage(InEvent.Message, Verbosity))
	{
		ExecutionInfo.AddEvent(InEvent, StackOffset + 1, bCaptureStack);
	}
}

void FAutomationTestBase::AddAnalyticsItem(const FString& InAnalyticsItem)
{
	ExecutionInfo.AnalyticsItems.Add(InAnalyticsItem);
}

bool FAutomationTestBase::HasAnyErrors() const
{
	return ExecutionInfo.GetErrorTotal() > 0;
}

bool FAutomationTestBase::HasMetExpectedMessages(ELogVerbosity::Type VerbosityType)
{
	bool bHasMetAllExpectedMessages = true;
	for (const FAutomationExpectedMessage& ExpectedMessage : ExpectedMessages)
	{
		if (!LogCategoryMatchesSeverityInclusive(ExpectedMessage.Verbosity, VerbosityType))
		{
			continue;
		}

		const TCHAR* VerbosityName = GetExpectedVerbosityName(ExpectedMessage.Verbosity);
		if (ExpectedMessage.ExpectedNumberOfOccurrences > 0 && ExpectedMessage.ExpectedNumberOfOccurrences != ExpectedMessage.ActualNumberOfOccurrences)
		{
			bHasMetAllExpectedMessages = false;
			ExecutionInfo.AddEvent(FAutomationEvent(EAutomationEventType::Error,
				FString::Printf(TEXT("Expected ('%s') level log message or higher matching '%s' to occur %d times with %s match type, but it was found %d time(s)."),
					VerbosityName, *ExpectedMessage.MessagePatternString, ExpectedMessage.ExpectedNumberOfOccurrences,
					EAutomationExpectedMessageFlags::ToString(ExpectedMessage.CompareType), ExpectedMessage.ActualNumberOfOccurrences),
				ExecutionInfo.GetContext()));
		}
		else if (ExpectedMessage.ExpectedNumberOfOccurrences == 0)
		{
			if (ExpectedMessage.ActualNumberOfOccurrences == 0)
			{
				bHasMetAllExpectedMessages = false;
				ExecutionInfo.AddEvent(FAutomationEvent(EAutomationEventType::Error,
					FString::Printf(TEXT("Expected suppressed ('%s') level log message or higher matching '%s' did not occur."), VerbosityName, *ExpectedMessage.MessagePatternString),
					ExecutionInfo.GetContext()));
			}
			else
			{
				ExecutionInfo.AddEvent(FAutomationEvent(EAutomationEventType::Info,
					FString::Printf(TEXT("Suppressed expected ('%s') level log message or higher matching '%s' %d times."), VerbosityName, *ExpectedMessage.MessagePatternString, ExpectedMessage.ActualNumberOfOccurrences),
					ExecutionInfo.GetContext()));
			}
		}
	}
	return bHasMetAllExpectedMessages;
}

bool FAutomationTestBase::HasMetExpectedErrors()
{
	return HasMetExpectedMessages(ELogVerbosity::Warning);
}

bool FAutomationTestBase::GetLastExecutionSuccessState()
{
	return ExecutionInfo.bSuccessful;
}

void FAutomationTestBase::GetExecutionInfo(FAutomationTestExecutionInfo& OutInfo) const
{
	OutInfo = ExecutionInfo;
}

void FAutomationTestBase::GenerateTestNames(TArray<FAutomationTestInfo>& TestInfo) const
{
	TArray<FString> BeautifiedNames;
	TArray<FString> ParameterNames;
	GetTests(BeautifiedNames, ParameterNames);

	const FString BeautifiedTestName = GetBeautifiedTestName();
	const int32 NumVariants = FMath::Min(BeautifiedNames.Num(), ParameterNames.Num());
	for (int32 ParameterIndex = 0; ParameterIndex < NumVariants; ++ParameterIndex)
	{
		FString CompleteBeautifiedName = BeautifiedTestName;
		FString CompleteTestName = TestName;
		if (!ParameterNames[ParameterIndex].IsEmpty())
		{
			CompleteBeautifiedName = FString::Printf(TEXT("%s.%s"), *BeautifiedTestName, *BeautifiedNames[ParameterIndex]);
			CompleteTestName = FString::Printf(TEXT("%s %s"), *TestName, *ParameterNames[ParameterIndex]);
		}

		TestInfo.Add(FAutomationTestInfo(CompleteBeautifiedName, CompleteBeautifiedName, CompleteTestName, GetTestFlags(), GetRequiredDeviceNum(),
			ParameterNames[ParameterIndex], GetTestSourceFileName(CompleteTestName), GetTestSourceFileLine(CompleteTestName)));
	}
}

bool FAutomationTestBase::LogCategoryMatchesSeverityInclusive(ELogVerbosity::Type Actual, ELogVerbosity::Type MaximumVerbosity)
{
	return Actual == ELogVerbosity::All || MaximumVerbosity == ELogVerbosity::All || Actual <= MaximumVerbosity;
}

void FAutomationTestBase::AddExpectedMessage(FString ExpectedPatternString, ELogVerbosity::Type ExpectedVerbosity, EAutomationExpectedMessageFlags::MatchType CompareType, int32 Occurrences, bool IsRegex)
{
	const FAutomationExpectedMessage NewMessage(ExpectedPatternString, ExpectedVerbosity, CompareType, Occurrences, IsRegex);
	if (!ExpectedMessages.Contains(NewMessage))
	{
		ExpectedMessages.Add(NewMessage);
	}
}

void FAutomationTestBase::AddExpectedMessagePlain(FString ExpectedString, ELogVerbosity::Type ExpectedVerbosity, EAutomationExpectedMessageFlags::MatchType CompareType, int32 Occurrences)
{
	AddExpectedMessage(MoveTemp(ExpectedString), ExpectedVerbosity, CompareType, Occurrences, false);
}

void FAutomationTestBase::AddExpectedMessage(FString ExpectedPatternString, EAutomationExpectedMessageFlags::MatchType CompareType, int32 Occurrences, bool IsRegex)
{
	AddExpectedMessage(MoveTemp(ExpectedPatternString), ELogVerbosity::All, CompareType, Occurrences, IsRegex);
}

void FAutomationTestBase::AddExpectedMessagePlain(FString ExpectedString, EAutomationExpectedMessageFlags::MatchType CompareType, int32 Occurrences)
{
	AddExpectedMessagePlain(MoveTemp(ExpectedString), ELogVerbosity::All, CompareType, Occurrences);
}

void FAutomationTestBase::GetExpectedMessages(TArray<FAutomationExpectedMessage>& OutInfo, ELogVerbosity::Type Verbosity) const
{
	GetExpectedMessages(OutInfo, false, Verbosity);
}

void FAutomationTestBase::GetExpectedMessages(TArray<FAutomationExpectedMessage>& OutInfo, bool IncludeSuppressed, ELogVerbosity::Type Verbosity) const
{
	for (const FAutomationExpectedMessage& Message : ExpectedMessages)
	{
		const bool bIsIncluded = Message.ExpectedNumberOfOccurrences >= 0 || IncludeSuppressed;
		if (bIsIncluded && LogCategoryMatchesSeverityInclusive(Message.Verbosity, Verbosity))
		{
			OutInfo.Add(Message);
		}
	}
	OutInfo.Sort();
}

void FAutomationTestBase::AddExpectedError(FString ExpectedPatternString, EAutomationExpectedErrorFlags::MatchType CompareType, int32 Occurrences, bool IsRegex)
{
	// Warning is inclusive, so both warnings and errors are matched.
	AddExpectedMessage(MoveTemp(ExpectedPatternString), ELogVerbosity::Warning, CompareType, Occurrences, IsRegex);
}

void FAutomationTestBase::AddExpectedErrorPlain(FString ExpectedString, EAutomationExpectedErrorFlags::MatchType CompareType, int32 Occurrences)
{
	AddExpectedMessagePlain(MoveTemp(ExpectedString), ELogVerbosity::Warning, CompareType, Occurrences);
}

bool FAutomationTestBase::IsExpectedMessage(const FString& Message, const ELogVerbosity::Type& Verbosity)
{
	for (FAutomationExpectedMessage& ExpectedMessage : ExpectedMessages)
	{
		// Expectations of Warning or more severe see only warnings and errors; milder ones see every line.
		const ELogVerbosity::Type AdjustedMessageVerbosity = ExpectedMessage.Verbosity <= ELogVerbosity::Warning ? ELogVerbosity::Warning : ELogVerbosity::VeryVerbose;
		if (LogCategoryMatchesSeverityInclusive(Verbosity, AdjustedMessageVerbosity) && ExpectedMessage.Matches(Message))
		{
			return true;
		}
	}
	return false;
}

void FAutomationTestBase::HandleCapturedLogLine(const TCHAR* Message, ELogVerbosity::Type Verbosity, const FName& Category)
{
	ELogVerbosity::Type EffectiveVerbosity = (ELogVerbosity::Type)(Verbosity & ELogVerbosity::VerbosityMask);
	if (EffectiveVerbosity == ELogVerbosity::NoLogging || SuppressLogs() || !ShouldCaptureLogCategory(Category))
	{
		return;
	}

	// Stand-in choice: a line matches an expectation by its text alone or prefixed with its category, and counts once.
	const FString FormattedLine = FormatCapturedLine(Message, Category);
	if (IsExpectedMessage(FString(Message), EffectiveVerbosity) || (Category != NAME_None && IsExpectedMessage(FormattedLine, EffectiveVerbosity)))
	{
		return;
	}

	if (EffectiveVerbosity == ELogVerbosity::Warning)
	{
		if (SuppressLogWarnings())
		{
			return;
		}
		EffectiveVerbosity = ElevateLogWarningsToErrors() ? ELogVerbosity::Error : ELogVerbosity::Warning;
	}

	// Stand-in choice: only errors and warnings are recorded; the engine also records Display lines as infos.
	if (EffectiveVerbosity <= ELogVerbosity::Error && !SuppressLogErrors())
	{
		ExecutionInfo.AddEvent(FAutomationEvent(EAutomationEventType::Error, FormattedLine));
	}
	else if (EffectiveVerbosity == ELogVerbosity::Warning)
	{
		ExecutionInfo.AddEvent(FAutomationEvent(EAutomationEventType::Warning, FormattedLine));
	}
}

void FAutomationTestBase::InternalSetSuccessState(bool bSuccessful)
{
	ExecutionInfo.bSuccessful = bSuccessful;
}

FString FAutomationTestBase::GetStringValueToDisplay(const TCHAR* Value)
{
	return Value ? FString::Printf(TEXT("\"%s\""), Value) : FString(TEXT("nullptr"));
}
