#include "Misc/AutomationTest.h"

#include "Misc/RegexPatternValidator.h"

#include <regex>
#include <string>

namespace
{
	/** Case-insensitive ECMAScript search; a pattern std::regex would reject matches nothing. */
	bool RegexSearchIgnoreCase(const FString& Pattern, const FString& Text)
	{
		if (!UE::Core::Private::IsSupportedRegexPattern(*Pattern, Pattern.Len()))
		{
			return false;
		}
		const std::wregex Expression(std::wstring(*Pattern, Pattern.Len()), std::regex_constants::ECMAScript | std::regex_constants::icase);
		return std::regex_search(std::wstring(*Text, Text.Len()), Expression);
	}
}

bool FAutomationExpectedMessage::Matches(const FString& Message)
{
	bool bHasMatch = false;
	if (bIsRegex)
	{
		const FString Pattern = IsExactCompareType() ? FString::Printf(TEXT("^%s$"), *MessagePatternString) : MessagePatternString;
		bHasMatch = RegexSearchIgnoreCase(Pattern, Message);
	}
	else
	{
		bHasMatch = Message.Contains(MessagePatternString) && (!IsExactCompareType() || Message.Len() == MessagePatternString.Len());
	}

	ActualNumberOfOccurrences += bHasMatch ? 1 : 0;
	return bHasMatch;
}
