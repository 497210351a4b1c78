// FTextProperty: texts written as NSLOCTEXT(...), INVTEXT(...) or their plain string.

#include "UObject/TextProperty.h"
#include "PropertyTextParsing.h"

using namespace UE::CoreUObject::StandIn::PropertyText;

IMPLEMENT_FIELD(FTextProperty)

namespace
{
	// Reads `"a", "b", ...)` after a macro's opening parenthesis: the quoted arguments.
	const TCHAR* ReadQuotedArguments(const TCHAR* Buffer, TArray<FString>& OutArguments)
	{
		for (;;)
		{
			SkipWhitespace(Buffer);
			FString Argument;
			int32 NumCharsRead = 0;
			if (!ParseQuotedString(Buffer, Argument, NumCharsRead))
			{
				return nullptr;
			}
			OutArguments.Add(MoveTemp(Argument));
			Buffer += NumCharsRead;
			SkipWhitespace(Buffer);
			if (*Buffer == TCHAR(')'))
			{
				return Buffer + 1;
			}
			if (*Buffer != TCHAR(','))
			{
				return nullptr;
			}
			++Buffer;
		}
	}

	bool ConsumeMacro(const TCHAR*& Buffer, const TCHAR* MacroName)
	{
		const int32 Length = FCString::Strlen(MacroName);
		if (FCString::Strncmp(Buffer, MacroName, Length) != 0)
		{
			return false;
		}
		const TCHAR* Cursor = Buffer + Length;
		SkipWhitespace(Cursor);
		if (*Cursor != TCHAR('('))
		{
			return false;
		}
		Buffer = Cursor + 1;
		return true;
	}

	// The engine's FTextStringHelper::ReadFromBuffer for the macro forms; null when Buffer does not start with one.
	const TCHAR* ReadTextMacro(const TCHAR* Buffer, FText& OutText, bool& bOutWasMacro)
	{
		bOutWasMacro = true;
		TArray<FString> Arguments;
		if (ConsumeMacro(Buffer, TEXT("NSLOCTEXT")))
		{
			Buffer = ReadQuotedArguments(Buffer, Arguments);
			if (!Buffer || Arguments.Num() != 3)
			{
				return nullptr;
			}
			OutText = FText::AsLocalizable_Advanced(*Arguments[0], *Arguments[1], *Arguments[2]);
			return Buffer;
		}
		if (ConsumeMacro(Buffer, TEXT("LOCTEXT")))
		{
			Buffer = ReadQuotedArguments(Buffer, Arguments);
			if (!Buffer || Arguments.Num() != 2)
			{
				return nullptr;
			}
			OutText = FText::AsLocalizable_Advanced(TEXT(""), *Arguments[0], *Arguments[1]);
			return Buffer;
		}
		if (ConsumeMacro(Buffer, TEXT("INVTEXT")))
		{
			Buffer = ReadQuotedArguments(Buffer, Arguments);
			if (!Buffer || Arguments.Num() != 1)
			{
				return nullptr;
			}
			OutText = FText::AsCultureInvariant(Arguments[0]);
			return Buffer;
		}
		bOutWasMacro = false;
		return nullptr;
	}
}

FTextProperty::FTextProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags)
	: Super(InOwner, InName, InObjectFlags)
{
	SetClass(StaticClass());
}

bool FTextProperty::Identical_Implementation(const FText& ValueA, const FText& ValueB, uint32 PortFlags)
{
	return ValueA.IsCultureInvariant() == ValueB.IsCultureInvariant() && ValueA.ToString().Equals(ValueB.ToString(), ESearchCase::CaseSensitive);
}

bool FTextProperty::Identical(const void* A, const void* B, uint32 PortFlags) const
{
	const FText& ValueA = GetPropertyValue(A);
	return Identical_Implementation(ValueA, B ? GetPropertyValue(B) : FText::GetEmpty(), PortFlags);
}

void FTextProperty::ExportText_Internal(FString& ValueStr, const void* PropertyValueOrContainer, EPropertyPointerType PointerType, const void* DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const
{
	const FText& Value = GetPropertyValue(PointerToValuePtr(PropertyValueOrContainer, PointerType));
	const TOptional<FString> Namespace = FTextInspector::GetNamespace(Value);
	const TOptional<FString> Key = FTextInspector::GetKey(Value);
	if (Value.IsCultureInvariant())
	{
		ValueStr += TEXT("INVTEXT(") + QuoteString(Value.ToString()) + TEXT(")");
	}
	else if (Namespace.IsSet() && Key.IsSet() && !Key.GetValue().IsEmpty())
	{
		ValueStr += TEXT("NSLOCTEXT(") + QuoteString(Namespace.GetValue()) + TEXT(", ") + QuoteString(Key.GetValue()) + TEXT(", ")
			+ QuoteString(Value.ToString()) + TEXT(")");
	}
	else if (PortFlags & PPF_Delimited)
	{
		ValueStr += QuoteString(Value.ToString());
	}
	else
	{
		ValueStr += Value.ToString();
	}
}

const TCHAR* FTextProperty::ImportText_Internal(const TCHAR* Buffer, void* ContainerOrPropertyPtr, EPropertyPointerType PointerType, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const
{
	FText ImportedText;
	bool bWasMacro = false;
	const TCHAR* Result = ReadTextMacro(Buffer, ImportedText, bWasMacro);
	if (!bWasMacro)
	{
		if (*Buffer == TCHAR('"') || (PortFlags & PPF_Delimited))
		{
			FString Value;
			int32 NumCharsRead = 0;
			if (!ParseQuotedString(Buffer, Value, NumCharsRead))
			{
				LogImportError(ErrorText, FString::Printf(TEXT("%s: Bad quoted string at: %s"), *GetName(), Buffer));
				return nullptr;
			}
			ImportedText = FText::FromString(Value);
			Result = Buffer + NumCharsRead;
		}
		else
		{
			ImportedText = FText::FromString(FString(Buffer));
			Result = Buffer + FCString::Strlen(Buffer);
		}
	}
	if (!Result)
	{
		LogImportError(ErrorText, FString::Printf(TEXT("%s: Bad text macro at: %s"), *GetName(), Buffer));
		return nullptr;
	}
	SetPropertyValue(PointerToValuePtr(ContainerOrPropertyPtr, PointerType), ImportedText);
	return Result;
}
