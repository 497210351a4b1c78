#include "Internationalization/Regex.h"

#include "Templates/UniquePtr.h"

#include <unicode/regex.h>
#include <unicode/unistr.h>

namespace
{
	/** Engine steps a search may take; one step is a few thousand operations of ICU's matching engine. */
	constexpr int32 SearchTimeLimitSteps = 100;

	/** Bytes of backtracking state a search may hold; a log line needs a small fraction of it. */
	constexpr int32 SearchStackLimitBytes = 1 << 20;

	icu::UnicodeString ToIcuString(const FString& String)
	{
		static_assert(sizeof(TCHAR) == sizeof(UChar32), "TCHAR holds UTF-32 code points");
		// Code units that are no code point (lone surrogates, values past U+10FFFF) become U+FFFD.
		return icu::UnicodeString::fromUTF32(reinterpret_cast<const UChar32*>(*String), String.Len());
	}

	uint32_t ToIcuFlags(ERegexPatternFlags Flags)
	{
		return (static_cast<int32>(Flags) & static_cast<int32>(ERegexPatternFlags::CaseInsensitive)) != 0 ? UREGEX_CASE_INSENSITIVE : 0;
	}
}

class FRegexPatternImplementation
{
public:
	FRegexPatternImplementation(const FString& SourceString, ERegexPatternFlags Flags)
	{
		UErrorCode Status = U_ZERO_ERROR;
		UParseError ParseError;
		Compiled.Reset(icu::RegexPattern::compile(ToIcuString(SourceString), ToIcuFlags(Flags), ParseError, Status));
		if (U_FAILURE(Status))
		{
			Compiled.Reset();
		}
	}

	/** Null when ICU refused the pattern. */
	const icu::RegexPattern* GetCompiled() const { return Compiled.Get(); }

private:
	TUniquePtr<icu::RegexPattern> Compiled;
};

class FRegexMatcherImplementation
{
public:
	FRegexMatcherImplementation(const FRegexPatternImplementation& Pattern, const FString& InInput)
		: Input(ToIcuString(InInput))
	{
		if (const icu::RegexPattern* Compiled = Pattern.GetCompiled())
		{
			UErrorCode Status = U_ZERO_ERROR;
			Matcher.Reset(Compiled->matcher(Input, Status));
			if (Matcher)
			{
				Matcher->setTimeLimit(SearchTimeLimitSteps, Status);
				Matcher->setStackLimit(SearchStackLimitBytes, Status);
			}
			if (U_FAILURE(Status))
			{
				Matcher.Reset();
			}
		}
	}

	bool FindNext()
	{
		if (!Matcher)
		{
			return false;
		}
		UErrorCode Status = U_ZERO_ERROR;
		const bool bFound = Matcher->find(Status);
		if (U_FAILURE(Status))
		{
			Matcher.Reset();
			return false;
		}
		return bFound;
	}

private:
	/** The matcher reads this string in place, so it lives as long as the matcher. */
	icu::UnicodeString Input;
	TUniquePtr<icu::RegexMatcher> Matcher;
};

FRegexPattern::FRegexPattern(const FString& SourceString, ERegexPatternFlags Flags)
	: Implementation(MakeShared<FRegexPatternImplementation>(SourceString, Flags))
{
}

FRegexMatcher::FRegexMatcher(const FRegexPattern& SourcePattern, const FString& Input)
	: Pattern(SourcePattern)
	, Implementation(MakeShared<FRegexMatcherImplementation>(*Pattern.Implementation, Input))
{
}

bool FRegexMatcher::FindNext()
{
	return Implementation->FindNext();
}
