// Recursive-descent check of a regular expression against the ECMAScript subset std::wregex accepts.
#include "Misc/RegexPatternValidator.h"

namespace UE::Core::Private
{
	namespace
	{
		constexpr int32 MaxPatternLength = 1024;
		constexpr int32 MaxGroupDepth = 64;
		constexpr int32 MaxRepeatCount = 1000;

		// std::regex clones a repeated sub-expression once per repetition and gives up past 100000 automaton states;
		// this estimate (a few states per element, counted per repetition) stays well below that.
		constexpr int64 MaxEstimatedStates = 10000;

		bool IsAsciiDigit(TCHAR Char)
		{
			return Char >= TEXT('0') && Char <= TEXT('9');
		}

		bool IsAsciiHexDigit(TCHAR Char)
		{
			return IsAsciiDigit(Char) || (Char >= TEXT('a') && Char <= TEXT('f')) || (Char >= TEXT('A') && Char <= TEXT('F'));
		}

		bool IsAsciiPunctuation(TCHAR Char)
		{
			return (Char >= TEXT('!') && Char <= TEXT('/')) || (Char >= TEXT(':') && Char <= TEXT('@'))
				|| (Char >= TEXT('[') && Char <= TEXT('`')) || (Char >= TEXT('{') && Char <= TEXT('~'));
		}

		bool IsClassEscapeLetter(TCHAR Char)
		{
			return Char == TEXT('d') || Char == TEXT('D') || Char == TEXT('s') || Char == TEXT('S') || Char == TEXT('w') || Char == TEXT('W');
		}

		bool IsControlEscapeLetter(TCHAR Char)
		{
			return Char == TEXT('f') || Char == TEXT('n') || Char == TEXT('r') || Char == TEXT('t') || Char == TEXT('v');
		}

		TCHAR ToAsciiLower(TCHAR Char)
		{
			return (Char >= TEXT('A') && Char <= TEXT('Z')) ? TCHAR(Char - TEXT('A') + TEXT('a')) : Char;
		}

		/** One member of a bracket class: a single character (usable as a range end) or a class escape such as \d. */
		struct FClassMember
		{
			bool bIsSingleChar = false;
			TCHAR Char = 0;
		};

		class FRegexPatternValidator
		{
		public:
			FRegexPatternValidator(const TCHAR* InPattern, int32 InLength)
				: Pattern(InPattern)
				, Length(InLength)
			{
			}

			bool Validate()
			{
				if (Pattern == nullptr || Length < 0 || Length > MaxPatternLength)
				{
					return false;
				}
				int64 States = 0;
				return ParseDisjunction(0, States) && IsAtEnd() && States <= MaxEstimatedStates;
			}

		private:
			bool IsAtEnd() const { return Cursor >= Length; }
			TCHAR Peek(int32 Offset = 0) const { return Cursor + Offset < Length ? Pattern[Cursor + Offset] : TCHAR(0); }
			bool HasChars(int32 Count) const { return Cursor + Count <= Length; }

			bool ParseDisjunction(int32 Depth, int64& OutStates)
			{
				if (Depth > MaxGroupDepth)
				{
					return false;
				}
				OutStates = 0;
				while (true)
				{
					int64 AlternativeStates = 0;
					if (!ParseAlternative(Depth, AlternativeStates))
					{
						return false;
					}
					OutStates += AlternativeStates + 1;
					if (OutStates > MaxEstimatedStates)
					{
						return false;
					}
					if (Peek() != TEXT('|') || IsAtEnd())
					{
						return true;
					}
					++Cursor;
				}
			}

			bool ParseAlternative(int32 Depth, int64& OutStates)
			{
				OutStates = 0;
				while (!IsAtEnd() && Peek() != TEXT('|') && Peek() != TEXT(')'))
				{
					int64 TermStates = 0;
					if (!ParseTerm(Depth, TermStates))
					{
						return false;
					}
					OutStates += TermStates;
					if (OutStates > MaxEstimatedStates)
					{
						return false;
					}
				}
				return true;
			}

			bool ParseTerm(int32 Depth, int64& OutStates)
			{
				bool bIsQuantifiable = false;
				int64 AtomStates = 0;
				if (!ParseAtomOrAssertion(Depth, bIsQuantifiable, AtomStates))
				{
					return false;
				}
				if (!IsQuantifierStart())
				{
					OutStates = AtomStates;
					return true;
				}
				int32 MaxRepetitions = 0;
				if (!bIsQuantifiable || !ParseQuantifier(MaxRepetitions))
				{
					return false;
				}
				OutStates = (AtomStates + 2) * (int64(MaxRepetitions) + 1);
				return OutStates <= MaxEstimatedStates;
			}

			bool IsQuantifierStart() const
			{
				const TCHAR Char = Peek();
				return !IsAtEnd() && (Char == TEXT('*') || Char == TEXT('+') || Char == TEXT('?') || Char == TEXT('{'));
			}

			bool ParseAtomOrAssertion(int32 Depth, bool& bOutIsQuantifiable, int64& OutStates)
			{
				const TCHAR Char = Peek();
				bOutIsQuantifiable = true;
				OutStates = 1;
				switch (Char)
				{
				case TEXT('^'):
				case TEXT('$'):
					++Cursor;
					bOutIsQuantifiable = false;
					return true;
				case TEXT('.'):
					++Cursor;
					return true;
				case TEXT('('):
					return ParseGroup(Depth, bOutIsQuantifiable, OutStates);
				case TEXT('['):
					return ParseBracketClass();
				case TEXT('\\'):
					return ParseAtomEscape(bOutIsQuantifiable);
				case TEXT('*'):
				case TEXT('+'):
				case TEXT('?'):
				case TEXT('{'):
				case TEXT('}'):
				case TEXT(']'):
				case TEXT(')'):
				case TEXT('|'):
					return false;
				default:
					++Cursor;
					return true;
				}
			}

			bool ParseGroup(int32 Depth, bool& bOutIsQuantifiable, int64& OutStates)
			{
				++Cursor;
				bool bIsCapturing = true;
				if (Peek() == TEXT('?'))
				{
					const TCHAR Kind = Peek(1);
					if (Kind != TEXT(':') && Kind != TEXT('=') && Kind != TEXT('!'))
					{
						return false;
					}
					bOutIsQuantifiable = Kind == TEXT(':');
					bIsCapturing = false;
					Cursor += 2;
				}

				int32 GroupNumber = 0;
				if (bIsCapturing)
				{
					GroupNumber = ++OpenedGroupCount;
				}
				int64 InnerStates = 0;
				if (!ParseDisjunction(Depth + 1, InnerStates) || Peek() != TEXT(')') || IsAtEnd())
				{
					return false;
				}
				++Cursor;
				OutStates = InnerStates + 2;
				if (bIsCapturing)
				{
					ClosedGroupMask |= (GroupNumber < 10) ? (1u << GroupNumber) : 0u;
				}
				return true;
			}

			bool ParseAtomEscape(bool& bOutIsQuantifiable)
			{
				if (!HasChars(2))
				{
					return false;
				}
				const TCHAR Escaped = Peek(1);
				Cursor += 2;

				if (Escaped == TEXT('b') || Escaped == TEXT('B'))
				{
					bOutIsQuantifiable = false;
					return true;
				}
				if (IsAsciiDigit(Escaped))
				{
					return IsBackReferenceToClosedGroup(Escaped);
				}
				return ParseCharacterEscape(Escaped);
			}

			bool IsBackReferenceToClosedGroup(TCHAR Digit) const
			{
				const int32 GroupNumber = Digit - TEXT('0');
				return GroupNumber >= 1 && !IsAsciiDigit(Peek()) && (ClosedGroupMask & (1u << GroupNumber)) != 0;
			}

			/** Escapes valid both outside and inside brackets, after the backslash and letter were consumed. */
			bool ParseCharacterEscape(TCHAR Escaped)
			{
				if (IsClassEscapeLetter(Escaped) || IsControlEscapeLetter(Escaped) || IsAsciiPunctuation(Escaped))
				{
					return true;
				}
				if (Escaped == TEXT('x'))
				{
					return ConsumeHexDigits(2);
				}
				if (Escaped == TEXT('u'))
				{
					return ConsumeHexDigits(4);
				}
				return false;
			}

			bool ConsumeHexDigits(int32 Count)
			{
				for (int32 Index = 0; Index < Count; ++Index)
				{
					if (!IsAsciiHexDigit(Peek()) || IsAtEnd())
					{
						return false;
					}
					++Cursor;
				}
				return true;
			}

			/** OutMaxRepetitions: how many copies std::regex makes (1 for *, + and ?). */
			bool ParseQuantifier(int32& OutMaxRepetitions)
			{
				const TCHAR Char = Peek();
				++Cursor;
				OutMaxRepetitions = 1;
				if (Char == TEXT('{') && !ParseBraceQuantifierBody(OutMaxRepetitions))
				{
					return false;
				}
				if (Peek() == TEXT('?') && !IsAtEnd())
				{
					++Cursor;
				}
				return !IsQuantifierStart();
			}

			/** After '{': "n}", "n,}" or "n,m}" with n <= m <= MaxRepeatCount. */
			bool ParseBraceQuantifierBody(int32& OutMaxRepetitions)
			{
				int32 Min = 0;
				if (!ParseRepeatCount(Min))
				{
					return false;
				}
				int32 Max = Min;
				if (Peek() == TEXT(',') && !IsAtEnd())
				{
					++Cursor;
					if (Peek() == TEXT('}'))
					{
						Max = Min + 1;
					}
					else if (!ParseRepeatCount(Max) || Max < Min)
					{
						return false;
					}
				}
				if (Peek() != TEXT('}') || IsAtEnd())
				{
					return false;
				}
				++Cursor;
				OutMaxRepetitions = Max;
				return true;
			}

			bool ParseRepeatCount(int32& OutCount)
			{
				if (!IsAsciiDigit(Peek()) || IsAtEnd())
				{
					return false;
				}
				OutCount = 0;
				while (IsAsciiDigit(Peek()) && !IsAtEnd())
				{
					OutCount = OutCount * 10 + (Peek() - TEXT('0'));
					++Cursor;
					if (OutCount > MaxRepeatCount)
					{
						return false;
					}
				}
				return true;
			}

			/** "[...]" or "[^...]" with at least one member; '-' is literal only first or last. */
			bool ParseBracketClass()
			{
				++Cursor;
				if (Peek() == TEXT('^'))
				{
					++Cursor;
				}
				if (IsAtEnd() || Peek() == TEXT(']'))
				{
					return false;
				}
				if (Peek() == TEXT('-'))
				{
					++Cursor;
				}
				while (!IsAtEnd() && Peek() != TEXT(']'))
				{
					if (Peek() == TEXT('-'))
					{
						if (Peek(1) != TEXT(']'))
						{
							return false;
						}
						++Cursor;
						continue;
					}
					if (!ParseClassMemberOrRange())
					{
						return false;
					}
				}
				if (IsAtEnd())
				{
					return false;
				}
				++Cursor;
				return true;
			}

			bool ParseClassMemberOrRange()
			{
				FClassMember First;
				if (!ParseClassMember(First))
				{
					return false;
				}
				if (Peek() != TEXT('-') || Peek(1) == TEXT(']') || !HasChars(2))
				{
					return true;
				}
				++Cursor;
				FClassMember Last;
				if (!First.bIsSingleChar || Peek() == TEXT('-') || !ParseClassMember(Last) || !Last.bIsSingleChar)
				{
					return false;
				}
				return First.Char <= Last.Char && ToAsciiLower(First.Char) <= ToAsciiLower(Last.Char);
			}

			bool ParseClassMember(FClassMember& OutMember)
			{
				const TCHAR Char = Peek();
				if (IsAtEnd() || Char == TEXT(']'))
				{
					return false;
				}
				if (Char == TEXT('['))
				{
					const TCHAR Next = Peek(1);
					if (Next == TEXT(':') || Next == TEXT('.') || Next == TEXT('='))
					{
						return false;
					}
				}
				if (Char != TEXT('\\'))
				{
					++Cursor;
					OutMember.bIsSingleChar = true;
					OutMember.Char = Char;
					return true;
				}
				return ParseClassEscape(OutMember);
			}

			bool ParseClassEscape(FClassMember& OutMember)
			{
				if (!HasChars(2))
				{
					return false;
				}
				const TCHAR Escaped = Peek(1);
				Cursor += 2;
				if (IsClassEscapeLetter(Escaped))
				{
					OutMember.bIsSingleChar = false;
					return true;
				}
				if (Escaped == TEXT('b') || IsAsciiPunctuation(Escaped))
				{
					OutMember.bIsSingleChar = true;
					OutMember.Char = Escaped == TEXT('b') ? TEXT('\b') : Escaped;
					return true;
				}
				// Control and hex escapes are accepted but not used as range ends, to avoid decoding them here.
				OutMember.bIsSingleChar = false;
				return !IsAsciiDigit(Escaped) && ParseCharacterEscape(Escaped);
			}

			const TCHAR* Pattern;
			int32 Length;
			int32 Cursor = 0;
			int32 OpenedGroupCount = 0;
			uint32 ClosedGroupMask = 0;
		};
	}

	bool IsSupportedRegexPattern(const TCHAR* Pattern, int32 Length)
	{
		return FRegexPatternValidator(Pattern, Length).Validate();
	}
}
