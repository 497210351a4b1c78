#include "Misc/AutomationTest.h"

namespace
{
	TOptional<FRegexPattern> MakeMessageRegex(const FString& Pattern, EAutomationExpectedMessageFlags::MatchType CompareType)
	{
		const FString Anchored = CompareType == EAutomationExpectedMessageFlags::Exact ? FString::Printf(TEXT("^%s$"), *Pattern) : Pattern;
		return FRegexPattern(Anchored, ERegexPatternFlags::CaseInsensitive);
	}
}

FAutomationExpectedMessage::FAutomationExpectedMessage(const FString& InMessagePattern, ELogVerbosity::Type InVerbosity, EAutomationExpectedMessageFlags::MatchType InCompareType, int32 InExpectedNumberOfOccurrences, bool bInIsRegex)
	: MessagePatternString(InMessagePattern)
	, MessagePatternRegex(bInIsRegex ? MakeMessageRegex(InMessagePattern, InCompareType) : TOptional<FRegexPattern>())
	, CompareType(InCompareType)
	, ExpectedNumberOfOccurrences(InExpectedNumberOfOccurrences)
	, ActualNumberOfOccurrences(0)
	, Verbosity(InVerbosity)
{
}

bool FAutomationExpectedMessage::Matches(const FString& Message)
{
	bool bHasMatch = false;
	if (MessagePatternRegex.IsSet())
	{
		FRegexMatcher Matcher(MessagePatternRegex.GetValue(), Message);
		bHasMatch = Matcher.FindNext();
	}
	else
	{
		bHasMatch = Message.Contains(MessagePatternString) && (!IsExactCompareType() || Message.Len() == MessagePatternString.Len());
	}

	ActualNumberOfOccurrences += bHasMatch ? 1 : 0;
	return bHasMatch;
}
