#include "Internationalization/Text.h"

#include "Internationalization/Internationalization.h"
#include "Internationalization/TextNumberFormat.h"

FText FText::CreateText(FString&& DisplayString, uint32 Flags, const TCHAR* Namespace, const TCHAR* Key)
{
	TSharedPtr<FTextData> NewData = MakeShared<FTextData>();
	NewData->DisplayString = MoveTemp(DisplayString);
	NewData->Flags = Flags;
	if (Namespace)
	{
		NewData->Namespace = FString(Namespace);
	}
	if (Key)
	{
		NewData->Key = FString(Key);
	}
	return FText(TSharedPtr<const FTextData>(NewData));
}

FText::FText() = default;

const FText& FText::GetEmpty()
{
	static const FText* Empty = new FText();
	return *Empty;
}

FText FText::FromString(const FString& String)
{
	return CreateText(FString(String), ETextFlag::InitializedFromString);
}

FText FText::FromString(FString&& String)
{
	return CreateText(MoveTemp(String), ETextFlag::InitializedFromString);
}

FText FText::FromStringView(FStringView InString)
{
	return CreateText(FString(InString), ETextFlag::InitializedFromString);
}

FText FText::FromName(const FName& Val)
{
	return CreateText(Val.ToString(), ETextFlag::InitializedFromString);
}

FText FText::AsCultureInvariant(const FString& String)
{
	return CreateText(FString(String), ETextFlag::CultureInvariant);
}

FText FText::AsCultureInvariant(FString&& String)
{
	return CreateText(MoveTemp(String), ETextFlag::CultureInvariant);
}

FText FText::AsCultureInvariant(FText Text)
{
	return CreateText(FString(Text.ToString()), ETextFlag::CultureInvariant);
}

FText FText::AsLocalizable_Advanced(const TCHAR* Namespace, const TCHAR* Key, const TCHAR* String)
{
	return CreateText(FString(String), 0, Namespace ? Namespace : TEXT(""), Key ? Key : TEXT(""));
}

namespace
{
	const FNumberFormattingOptions& OptionsOrDefault(const FNumberFormattingOptions* Options)
	{
		return Options ? *Options : FNumberFormattingOptions::DefaultWithGrouping();
	}
}

FText FText::AsNumber(double Val, const FNumberFormattingOptions* const Options)
{
	return CreateText(UE::Core::Private::FormatFloatingNumber(Val, OptionsOrDefault(Options)), ETextFlag::Transient);
}

FText FText::AsNumber(float Val, const FNumberFormattingOptions* const Options)
{
	return AsNumber((double)Val, Options);
}

FText FText::AsNumber(int8 Val, const FNumberFormattingOptions* const Options) { return AsNumber((int64)Val, Options); }
FText FText::AsNumber(int16 Val, const FNumberFormattingOptions* const Options) { return AsNumber((int64)Val, Options); }
FText FText::AsNumber(int32 Val, const FNumberFormattingOptions* const Options) { return AsNumber((int64)Val, Options); }

FText FText::AsNumber(int64 Val, const FNumberFormattingOptions* const Options)
{
	return CreateText(UE::Core::Private::FormatSignedNumber(Val, OptionsOrDefault(Options)), ETextFlag::Transient);
}

FText FText::AsNumber(uint8 Val, const FNumberFormattingOptions* const Options) { return AsNumber((uint64)Val, Options); }
FText FText::AsNumber(uint16 Val, const FNumberFormattingOptions* const Options) { return AsNumber((uint64)Val, Options); }
FText FText::AsNumber(uint32 Val, const FNumberFormattingOptions* const Options) { return AsNumber((uint64)Val, Options); }

FText FText::AsNumber(uint64 Val, const FNumberFormattingOptions* const Options)
{
	return CreateText(UE::Core::Private::FormatUnsignedNumber(Val, OptionsOrDefault(Options)), ETextFlag::Transient);
}

FText FText::AsPercent(double Val, const FNumberFormattingOptions* const Options)
{
	FNumberFormattingOptions PercentOptions = Options ? *Options : FNumberFormattingOptions::DefaultWithGrouping();
	if (!Options)
	{
		PercentOptions.MaximumFractionalDigits = 0;
	}
	return CreateText(UE::Core::Private::FormatFloatingNumber(Val * 100.0, PercentOptions) + TEXT("%"), ETextFlag::Transient);
}

const FString& FText::ToString() const
{
	static const FString* EmptyString = new FString();
	return Data ? Data->DisplayString : *EmptyString;
}

bool FText::IsEmpty() const
{
	return ToString().IsEmpty();
}

bool FText::IsEmptyOrWhitespace() const
{
	for (TCHAR Character : ToString())
	{
		if (!FChar::IsWhitespace(Character))
		{
			return false;
		}
	}
	return true;
}

bool FText::IsTransient() const
{
	return Data && (Data->Flags & ETextFlag::Transient) != 0;
}

bool FText::IsCultureInvariant() const
{
	return Data && (Data->Flags & ETextFlag::CultureInvariant) != 0;
}

bool FText::IsInitializedFromString() const
{
	return Data && (Data->Flags & ETextFlag::InitializedFromString) != 0;
}

bool FText::EqualTo(const FText& Other, const ETextComparisonLevel::Type ComparisonLevel) const
{
	return ToString().Equals(Other.ToString(), ESearchCase::CaseSensitive);
}

bool FText::EqualToCaseIgnored(const FText& Other) const
{
	return ToString().Equals(Other.ToString(), ESearchCase::IgnoreCase);
}

int32 FText::CompareTo(const FText& Other, const ETextComparisonLevel::Type ComparisonLevel) const
{
	return ToString().Compare(Other.ToString(), ESearchCase::CaseSensitive);
}

int32 FText::CompareToCaseIgnored(const FText& Other) const
{
	return ToString().Compare(Other.ToString(), ESearchCase::IgnoreCase);
}

bool FText::IdenticalTo(const FText& Other, const ETextIdenticalModeFlags CompareModeFlags) const
{
	if (Data == Other.Data)
	{
		return true;
	}
	if (Data && Other.Data && Data->Namespace.IsSet() && Data->Key.IsSet() && Other.Data->Namespace.IsSet() && Other.Data->Key.IsSet())
	{
		return Data->Namespace.GetValue().Equals(Other.Data->Namespace.GetValue()) && Data->Key.GetValue().Equals(Other.Data->Key.GetValue());
	}
	if (EnumHasAnyFlags(CompareModeFlags, ETextIdenticalModeFlags::LexicalCompareInvariants) && IsCultureInvariant() && Other.IsCultureInvariant())
	{
		return ToString().Equals(Other.ToString());
	}
	return false;
}

FText FText::ToLower() const
{
	return CreateText(ToString().ToLower(), ETextFlag::Transient);
}

FText FText::ToUpper() const
{
	return CreateText(ToString().ToUpper(), ETextFlag::Transient);
}

FText FText::TrimPreceding(const FText& InText)
{
	return CreateText(InText.ToString().TrimStart(), ETextFlag::Transient);
}

FText FText::TrimTrailing(const FText& InText)
{
	return CreateText(InText.ToString().TrimEnd(), ETextFlag::Transient);
}

FText FText::TrimPrecedingAndTrailing(const FText& InText)
{
	return CreateText(InText.ToString().TrimStartAndEnd(), ETextFlag::Transient);
}

FText FText::Join(const FText& Delimiter, const TArray<FText>& Args)
{
	FString Result;
	for (int32 Index = 0; Index < Args.Num(); ++Index)
	{
		if (Index > 0)
		{
			Result += Delimiter.ToString();
		}
		Result += Args[Index].ToString();
	}
	return CreateText(MoveTemp(Result), ETextFlag::Transient);
}

const FNumberFormattingOptions& FNumberFormattingOptions::DefaultWithGrouping()
{
	static const FNumberFormattingOptions* Options = new FNumberFormattingOptions();
	return *Options;
}

const FNumberFormattingOptions& FNumberFormattingOptions::DefaultNoGrouping()
{
	static const FNumberFormattingOptions* Options = new FNumberFormattingOptions(FNumberFormattingOptions().SetUseGrouping(false));
	return *Options;
}

FText FInternationalization::ForUseOnlyByLocMacroAndGraphNodeTextLiterals_CreateText(const TCHAR* InTextLiteral, const TCHAR* InNamespace, const TCHAR* InKey)
{
	return FText::AsLocalizable_Advanced(InNamespace, InKey, InTextLiteral);
}

TOptional<FString> FTextInspector::GetNamespace(const FText& Text)
{
	return Text.Data ? Text.Data->Namespace : TOptional<FString>();
}

TOptional<FString> FTextInspector::GetKey(const FText& Text)
{
	return Text.Data ? Text.Data->Key : TOptional<FString>();
}

const FString* FTextInspector::GetSourceString(const FText& Text)
{
	return &Text.ToString();
}

const FString& FTextInspector::GetDisplayString(const FText& Text)
{
	return Text.ToString();
}

uint32 FTextInspector::GetFlags(const FText& Text)
{
	return Text.Data ? Text.Data->Flags : 0;
}
