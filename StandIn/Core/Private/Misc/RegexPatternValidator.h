// Decides whether a regular expression is safe to hand to std::wregex in a build without exceptions.
#pragma once

#include "CoreTypes.h"

namespace UE::Core::Private
{
	/**
	 * True if Pattern (Length characters) uses only the ECMAScript syntax that std::wregex compiles without error:
	 * literals, '.', anchors, \b \B, groups (capturing, (?:, (?=, (?!), alternation, greedy and lazy quantifiers
	 * (*, +, ?, {n}, {n,}, {n,m} up to 1000), the escapes \d \D \s \S \w \W \f \n \r \t \v \xHH \uHHHH, escaped punctuation,
	 * back-references \1 to \9 to closed groups, and bracket classes with literal or simple-range members.
	 * Anything else (including a literal '{', '}' or ']', empty or POSIX classes) is rejected, and so are patterns whose
	 * nested repetitions would build too large an automaton.
	 */
	bool IsSupportedRegexPattern(const TCHAR* Pattern, int32 Length);
}
