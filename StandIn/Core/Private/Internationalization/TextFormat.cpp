#include "Internationalization/Text.h"

#include "Internationalization/TextNumberFormat.h"
#include "Templates/Function.h"

namespace
{
	/** Finds the argument for a "{...}" name: an ordered index or a named argument; null when there is none. */
	using FArgumentLookup = TFunctionRef<const FFormatArgumentValue*(const FString& ArgumentName)>;

	/** Writes the pattern with each {Argument} replaced; unknown arguments stay as written, and '`' escapes the next character. */
	FString FormatPattern(const FString& Pattern, FArgumentLookup FindArgument)
	{
		FString Result;
		const int32 Length = Pattern.Len();
		for (int32 Position = 0; Position < Length; ++Position)
		{
			const TCHAR Character = Pattern[Position];
			if (Character == '`' && Position + 1 < Length)
			{
				Result.AppendChar(Pattern[++Position]);
				continue;
			}
			if (Character == '{')
			{
				int32 Close = Position + 1;
				while (Close < Length && Pattern[Close] != '}' && Pattern[Close] != '{')
				{
					++Close;
				}
				if (Close < Length && Pattern[Close] == '}')
				{
					const FString ArgumentName = Pattern.Mid(Position + 1, Close - Position - 1);
					if (const FFormatArgumentValue* Argument = FindArgument(ArgumentName))
					{
						Result += Argument->ToFormattedString();
						Position = Close;
						continue;
					}
				}
			}
			Result.AppendChar(Character);
		}
		return Result;
	}
}

FString FFormatArgumentValue::ToFormattedString() const
{
	const FNumberFormattingOptions& Options = FNumberFormattingOptions::DefaultWithGrouping();
	switch (Type)
	{
	case EFormatArgumentType::Int: return UE::Core::Private::FormatSignedNumber(IntValue, Options);
	case EFormatArgumentType::UInt: return UE::Core::Private::FormatUnsignedNumber(UIntValue, Options);
	case EFormatArgumentType::Float: return UE::Core::Private::FormatFloatingNumber(FloatValue, Options);
	case EFormatArgumentType::Double: return UE::Core::Private::FormatFloatingNumber(DoubleValue, Options);
	case EFormatArgumentType::Text: return TextValue.IsSet() ? TextValue.GetValue().ToString() : FString();
	case EFormatArgumentType::Gender: return FString();
	}
	return FString();
}

FTextFormat FTextFormat::FromString(const FString& InString)
{
	return FTextFormat(FText::FromString(InString));
}

FTextFormat FTextFormat::FromString(FString&& InString)
{
	return FTextFormat(FText::FromString(MoveTemp(InString)));
}

FText FText::Format(FTextFormat Fmt, TArray<FFormatArgumentValue>&& InArguments)
{
	const TArray<FFormatArgumentValue>& Arguments = InArguments;
	return Format(MoveTemp(Fmt), Arguments);
}

FText FText::Format(FTextFormat Fmt, const TArray<FFormatArgumentValue>& InArguments)
{
	auto FindOrdered = [&InArguments](const FString& ArgumentName) -> const FFormatArgumentValue*
	{
		if (ArgumentName.IsEmpty() || ArgumentName.Len() > 9)
		{
			return nullptr;
		}
		for (TCHAR Character : ArgumentName)
		{
			if (!FChar::IsDigit(Character))
			{
				return nullptr;
			}
		}
		const int32 Index = FCString::Atoi(*ArgumentName);
		return InArguments.IsValidIndex(Index) ? &InArguments[Index] : nullptr;
	};
	return CreateText(FormatPattern(Fmt.GetSourceText().ToString(), FindOrdered), ETextFlag::Transient);
}

FText FText::Format(FTextFormat Fmt, const TMap<FString, FFormatArgumentValue>& InArguments)
{
	auto FindNamed = [&InArguments](const FString& ArgumentName) -> const FFormatArgumentValue*
	{
		return InArguments.Find(ArgumentName);
	};
	return CreateText(FormatPattern(Fmt.GetSourceText().ToString(), FindNamed), ETextFlag::Transient);
}
