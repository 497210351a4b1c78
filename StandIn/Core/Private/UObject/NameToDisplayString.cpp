#include "UObject/NameTypes.h"

namespace
{
	/** Short words kept lower case after a space, unless a lower-case letter follows them ("In" but not "Instance"). */
	const TCHAR* const LowerCaseWords[] = {
		TEXT("In"), TEXT("As"), TEXT("To"), TEXT("Or"), TEXT("At"), TEXT("On"), TEXT("If"), TEXT("Be"), TEXT("By"),
		TEXT("The"), TEXT("For"), TEXT("And"), TEXT("With"), TEXT("When"), TEXT("From"),
	};

	bool StartsWithLowerCaseWord(const FString& Name, int32 Position)
	{
		const int32 Remaining = Name.Len() - Position;
		for (const TCHAR* Word : LowerCaseWords)
		{
			const int32 WordLength = FCString::Strlen(Word);
			if (Remaining <= WordLength)
			{
				continue;
			}
			const TCHAR Following = Name[Position + WordLength];
			if (FChar::IsLower(Following))
			{
				continue;
			}
			if (FCString::Strncmp(*Name + Position, Word, WordLength) == 0)
			{
				return true;
			}
		}
		return false;
	}

	/** Tracks what came before the current character of a name being made readable. */
	struct FDisplayNameState
	{
		bool bInUpperCaseOrDigitRun = false;
		bool bAfterSpace = false;
		bool bAfterOpenParenthesis = false;
		bool bInNumber = false;
		bool bAfterMinusSign = false;
	};
}

FString FName::NameToDisplayString(const FString& InDisplayName, const bool bIsBool)
{
	FString Result;
	Result.Reserve(InDisplayName.Len() + 8);
	FDisplayNameState State;
	const int32 Length = InDisplayName.Len();
	for (int32 Position = 0; Position < Length; ++Position)
	{
		TCHAR Character = InDisplayName[Position];
		const bool bUpper = FChar::IsUpper(Character);
		const bool bLower = FChar::IsLower(Character);
		const bool bDigit = FChar::IsDigit(Character);

		// A boolean's leading 'b' is dropped when the next letter starts a word ("bEnabled" -> "Enabled").
		if (Position == 0 && bIsBool && Character == 'b' && Length > 1 && FChar::IsUpper(InDisplayName[1]))
		{
			continue;
		}

		// A word starts at an upper-case letter or digit that does not continue a run, a number or a parenthesis.
		const bool bStartsWord = (bUpper || (bDigit && !State.bAfterMinusSign)) && !State.bInUpperCaseOrDigitRun && !State.bAfterOpenParenthesis && !State.bInNumber;
		if (bStartsWord)
		{
			if (!State.bAfterSpace && !Result.IsEmpty())
			{
				Result.AppendChar(TEXT(' '));
				State.bAfterSpace = true;
			}
			State.bInUpperCaseOrDigitRun = true;
		}
		if (bLower)
		{
			State.bInUpperCaseOrDigitRun = false;
		}
		if (Character == '_')
		{
			Character = TEXT(' ');
			State.bInUpperCaseOrDigitRun = true;
		}

		if (Result.IsEmpty())
		{
			Character = FChar::ToUpper(Character);
		}
		else if (!bDigit && (State.bAfterSpace || State.bAfterOpenParenthesis))
		{
			Character = StartsWithLowerCaseWord(InDisplayName, Position) ? FChar::ToLower(Character) : FChar::ToUpper(Character);
		}

		State.bAfterSpace = Character == ' ';
		State.bAfterOpenParenthesis = Character == '(';
		State.bAfterMinusSign = Character == '-';
		State.bInNumber = bDigit || (State.bInNumber && (Character == '-' || Character == '.'));
		Result.AppendChar(Character);
	}
	return Result;
}
