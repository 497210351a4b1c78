// FRegexPattern / FRegexMatcher: successive matches, case handling, refused patterns and bounded searches.
#include "Internationalization/Regex.h"
#include "Misc/Optional.h"

#include <gtest/gtest.h>

TEST(CoreRegexTests, FindNextWalksThroughSuccessiveMatches)
{
	FRegexMatcher Matcher(FRegexPattern(TEXT("\\d+")), TEXT("shot 1, take 22, frame 333"));
	EXPECT_TRUE(Matcher.FindNext());
	EXPECT_TRUE(Matcher.FindNext());
	EXPECT_TRUE(Matcher.FindNext());
	EXPECT_FALSE(Matcher.FindNext());
	EXPECT_FALSE(Matcher.FindNext()) << "an exhausted matcher stays exhausted";
}

TEST(CoreRegexTests, CaseMattersUnlessThePatternIgnoresIt)
{
	EXPECT_FALSE(FRegexMatcher(FRegexPattern(TEXT("render")), TEXT("RENDER")).FindNext());
	EXPECT_TRUE(FRegexMatcher(FRegexPattern(TEXT("render")), TEXT("render")).FindNext());
	EXPECT_TRUE(FRegexMatcher(FRegexPattern(TEXT("render"), ERegexPatternFlags::CaseInsensitive), TEXT("RENDER")).FindNext());
}

TEST(CoreRegexTests, MatcherKeepsItsPatternAlive)
{
	TOptional<FRegexMatcher> Matcher;
	{
		const FRegexPattern Pattern(TEXT("b+$"));
		Matcher.Emplace(Pattern, FString(TEXT("abbb")));
	}
	EXPECT_TRUE(Matcher->FindNext());
}

TEST(CoreRegexTests, RefusedPatternAndUnpairedInputFindNothing)
{
	EXPECT_FALSE(FRegexMatcher(FRegexPattern(TEXT("(unclosed")), TEXT("(unclosed")).FindNext());

	const TCHAR LoneSurrogate[] = { TEXT('a'), static_cast<TCHAR>(0xD800), TEXT('b'), 0 };
	EXPECT_TRUE(FRegexMatcher(FRegexPattern(TEXT("a\\x{FFFD}b")), LoneSurrogate).FindNext()) << "a code unit that is no code point reads as U+FFFD";
}

TEST(CoreRegexTests, SearchPastItsStepLimitEndsTheMatcher)
{
	FRegexMatcher Matcher(FRegexPattern(TEXT("(a+)+b|!")), FString::ChrN(40, TEXT('a')) + TEXT("!"));
	EXPECT_FALSE(Matcher.FindNext()) << "the exponential alternative is abandoned before the '!' is reached";
	EXPECT_FALSE(Matcher.FindNext());
}
