#include "ObjectPathText.h"

namespace UE::CoreUObject::Private
{
	namespace
	{
		bool IsPathTokenCharacter(TCHAR Character)
		{
			return FChar::IsAlnum(Character) || Character == TEXT('_') || Character == TEXT('-') || Character == TEXT('+')
				|| Character == TEXT('.') || Character == TEXT('/') || Character == TEXT(':');
		}

		TCHAR UnescapedCharacter(TCHAR Escaped)
		{
			switch (Escaped)
			{
			case TEXT('n'): return TEXT('\n');
			case TEXT('r'): return TEXT('\r');
			case TEXT('t'): return TEXT('\t');
			default: return Escaped;
			}
		}

		const TCHAR* ReadQuotedString(const TCHAR* Buffer, FString& OutToken)
		{
			++Buffer;
			while (*Buffer && *Buffer != TEXT('"'))
			{
				if (*Buffer == TEXT('\\') && Buffer[1])
				{
					++Buffer;
					OutToken.AppendChar(UnescapedCharacter(*Buffer));
				}
				else
				{
					OutToken.AppendChar(*Buffer);
				}
				++Buffer;
			}
			return *Buffer == TEXT('"') ? Buffer + 1 : nullptr;
		}
	}

	const TCHAR* ReadPathToken(const TCHAR* Buffer, FString& OutToken)
	{
		OutToken.Reset();
		if (!Buffer)
		{
			return nullptr;
		}
		if (*Buffer == TEXT('"'))
		{
			return ReadQuotedString(Buffer, OutToken);
		}
		while (*Buffer && IsPathTokenCharacter(*Buffer))
		{
			OutToken.AppendChar(*Buffer);
			++Buffer;
		}
		return Buffer;
	}

	const TCHAR* ReadObjectPathText(const TCHAR* Buffer, FString& OutPath)
	{
		if (Buffer && Buffer[0] == TEXT('(') && Buffer[1] == TEXT(')'))
		{
			// An empty struct, as blueprint defaults write a null path.
			OutPath.Reset();
			return Buffer + 2;
		}
		FString Token;
		const TCHAR* Cursor = ReadPathToken(Buffer, Token);
		if (!Cursor)
		{
			return nullptr;
		}
		if (*Cursor == TEXT('\''))
		{
			// "Class'/Game/A.B'": the class is skipped, the quoted part is the path.
			Cursor = ReadPathToken(Cursor + 1, Token);
			if (!Cursor || *Cursor != TEXT('\''))
			{
				return nullptr;
			}
			++Cursor;
		}
		else if (Token.IsEmpty())
		{
			return nullptr;
		}
		OutPath = Token == TEXT("None") ? FString() : Token;
		return Cursor;
	}

	// Stand-in choice: a path the token reader would cut short (a space, a comma, a quote...) is written quoted even
	// when the text is not delimited. The engine writes it as it is, but it saves packages in binary; the stand-in saves
	// them as property text, and such a path must come back whole when the package is loaded.
	static bool IsReadableAsPathToken(const FString& Path)
	{
		for (TCHAR Character : Path)
		{
			if (!IsPathTokenCharacter(Character))
			{
				return false;
			}
		}
		return true;
	}

	void AppendPathText(FString& ValueStr, const FString& Path, bool bDelimited)
	{
		if (!bDelimited && IsReadableAsPathToken(Path))
		{
			ValueStr += Path;
			return;
		}
		ValueStr += TEXT("\"");
		for (TCHAR Character : Path.GetCharArray())
		{
			if (Character == 0)
			{
				break;
			}
			if (Character == TEXT('"') || Character == TEXT('\\'))
			{
				ValueStr.AppendChar(TEXT('\\'));
			}
			ValueStr.AppendChar(Character);
		}
		ValueStr += TEXT("\"");
	}
}
