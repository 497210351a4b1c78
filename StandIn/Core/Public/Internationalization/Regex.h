// FRegexPattern / FRegexMatcher: ICU regular expressions over FString.
#pragma once

#include "CoreTypes.h"
#include "Containers/UnrealString.h"
#include "Templates/SharedPointer.h"

enum class ERegexPatternFlags
{
	None = 0,
	CaseInsensitive = (1 << 0),
};

class FRegexPatternImplementation;
class FRegexMatcherImplementation;

/** A compiled regular expression in ICU syntax; a pattern ICU refuses compiles to one that matches nothing. */
class FRegexPattern
{
	friend class FRegexMatcher;

public:
	CORE_API explicit FRegexPattern(const FString& SourceString, ERegexPatternFlags Flags = ERegexPatternFlags::None);

protected:
	TSharedRef<FRegexPatternImplementation> Implementation;
};

/**
 * Finds the matches of a pattern in one input, one after the other.
 * Stand-in choice: every search is bounded in steps and in backtracking memory; a search that exceeds either bound
 * ends the matcher, which then finds nothing more.
 */
class FRegexMatcher
{
public:
	CORE_API FRegexMatcher(const FRegexPattern& SourcePattern, const FString& Input);

	/** Finds the next match after the previous one; false once there is none. */
	CORE_API bool FindNext();

protected:
	FRegexPattern Pattern;
	TSharedRef<FRegexMatcherImplementation> Implementation;
};
