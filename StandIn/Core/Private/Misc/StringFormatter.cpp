// FString::Format with named arguments, and the arguments it takes.
#include "Misc/StringFormatArg.h"

#include "Containers/Map.h"
#include "Misc/Char.h"

FStringFormatArg::FStringFormatArg(const int32 Value) : Type(Int), IntValue(Value) {}
FStringFormatArg::FStringFormatArg(const uint32 Value) : Type(UInt), UIntValue(Value) {}
FStringFormatArg::FStringFormatArg(const int64 Value) : Type(Int), IntValue(Value) {}
FStringFormatArg::FStringFormatArg(const uint64 Value) : Type(UInt), UIntValue(Value) {}
FStringFormatArg::FStringFormatArg(const float Value) : Type(Double), DoubleValue(Value) {}
FStringFormatArg::FStringFormatArg(const double Value) : Type(Double), DoubleValue(Value) {}
FStringFormatArg::FStringFormatArg(FString Value) : Type(String), IntValue(0), StringValue(MoveTemp(Value)) {}
FStringFormatArg::FStringFormatArg(FStringView Value) : Type(String), IntValue(0), StringValue(Value) {}
FStringFormatArg::FStringFormatArg(const ANSICHAR* Value) : Type(StringLiteralANSI), StringLiteralANSIValue(Value) {}
FStringFormatArg::FStringFormatArg(const WIDECHAR* Value) : Type(StringLiteralWIDE), StringLiteralWIDEValue(Value) {}
FStringFormatArg::FStringFormatArg(const UTF8CHAR* Value) : Type(StringLiteralUTF8), StringLiteralUTF8Value(Value) {}

namespace
{
	constexpr TCHAR EscapeChar = TEXT('`');

	void AppendArgument(const FStringFormatArg& InArgument, FString& InOutResult)
	{
		switch (InArgument.Type)
		{
		case FStringFormatArg::Int:
			InOutResult += LexToString(InArgument.IntValue);
			break;
		case FStringFormatArg::UInt:
			InOutResult += LexToString(InArgument.UIntValue);
			break;
		case FStringFormatArg::Double:
			InOutResult += LexToString(InArgument.DoubleValue);
			break;
		case FStringFormatArg::String:
			InOutResult += InArgument.StringValue;
			break;
		case FStringFormatArg::StringLiteralANSI:
			InOutResult += InArgument.StringLiteralANSIValue ? FString(InArgument.StringLiteralANSIValue) : FString();
			break;
		case FStringFormatArg::StringLiteralWIDE:
			InOutResult += InArgument.StringLiteralWIDEValue ? InArgument.StringLiteralWIDEValue : TEXT("");
			break;
		case FStringFormatArg::StringLiteralUTF8:
			InOutResult += InArgument.StringLiteralUTF8Value ? FString(InArgument.StringLiteralUTF8Value) : FString();
			break;
		}
	}

	const TCHAR* SkipWhitespace(const TCHAR* InCursor)
	{
		while (FChar::IsWhitespace(*InCursor))
		{
			++InCursor;
		}
		return InCursor;
	}

	// A "{Name}" token at InOpeningBrace (spaces allowed around the name): the end of the token and its name, or null.
	const TCHAR* ParseNamedToken(const TCHAR* InOpeningBrace, FStringView& OutName)
	{
		const TCHAR* NameStart = SkipWhitespace(InOpeningBrace + 1);
		const TCHAR* NameEnd = NameStart;
		while (FChar::IsIdentifier(*NameEnd))
		{
			++NameEnd;
		}
		const TCHAR* ClosingBrace = SkipWhitespace(NameEnd);
		if (NameEnd == NameStart || *ClosingBrace != TEXT('}'))
		{
			return nullptr;
		}
		OutName = FStringView(NameStart, int32(NameEnd - NameStart));
		return ClosingBrace + 1;
	}
}

FString FString::Format(const TCHAR* InFormatString, const FStringFormatNamedArguments& InNamedArguments)
{
	FString Result;
	const TCHAR* Cursor = InFormatString ? InFormatString : TEXT("");
	while (*Cursor)
	{
		// Stand-in choice: a backtick that escapes neither '{' nor '`' is kept as written.
		if (Cursor[0] == EscapeChar && (Cursor[1] == TEXT('{') || Cursor[1] == EscapeChar))
		{
			Result.AppendChar(Cursor[1]);
			Cursor += 2;
			continue;
		}
		FStringView Name;
		const TCHAR* TokenEnd = Cursor[0] == TEXT('{') ? ParseNamedToken(Cursor, Name) : nullptr;
		if (!TokenEnd)
		{
			Result.AppendChar(*Cursor++);
			continue;
		}
		if (const FStringFormatArg* Argument = InNamedArguments.Find(FString(Name)))
		{
			AppendArgument(*Argument, Result);
		}
		else
		{
			Result.AppendChars(Cursor, int32(TokenEnd - Cursor));
		}
		Cursor = TokenEnd;
	}
	return Result;
}
