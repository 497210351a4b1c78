// FStrProperty and FNameProperty: raw text at top level, quoted with escapes inside structs, arrays and maps.

#include "UObject/UnrealType.h"
#include "PropertyTextParsing.h"

using namespace UE::CoreUObject::StandIn::PropertyText;

IMPLEMENT_FIELD(FStrProperty)
IMPLEMENT_FIELD(FNameProperty)

FStrProperty::FStrProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags)
	: Super(InOwner, InName, InObjectFlags)
{
	SetClass(StaticClass());
	PropertyFlags |= CPF_ZeroConstructor | CPF_HasGetValueTypeHash;
}

void FStrProperty::ExportText_Internal(FString& ValueStr, const void* PropertyValueOrContainer, EPropertyPointerType PointerType, const void* DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const
{
	const FString& StringValue = GetPropertyValue(PointerToValuePtr(PropertyValueOrContainer, PointerType));
	if (!(PortFlags & PPF_Delimited))
	{
		ValueStr += StringValue;
	}
	else
	{
		ValueStr += QuoteString(StringValue);
	}
}

const TCHAR* FStrProperty::ImportText_Internal(const TCHAR* Buffer, void* ContainerOrPropertyPtr, EPropertyPointerType PointerType, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const
{
	FString ImportedText;
	if (!(PortFlags & PPF_Delimited))
	{
		ImportedText = Buffer;
		Buffer += FCString::Strlen(Buffer);
	}
	else
	{
		if (*Buffer != TCHAR('"'))
		{
			LogImportError(ErrorText, FString::Printf(TEXT("Missing opening '\"' in string property value: %s"), Buffer));
			return nullptr;
		}
		const TCHAR* Start = Buffer;
		Buffer = ReadToken(Buffer, ImportedText);
		if (!Buffer)
		{
			LogImportError(ErrorText, FString::Printf(TEXT("Missing terminating '\"' in string property value: %s"), Start));
			return nullptr;
		}
	}
	SetPropertyValue(PointerToValuePtr(ContainerOrPropertyPtr, PointerType), ImportedText);
	return Buffer;
}

FNameProperty::FNameProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags)
	: Super(InOwner, InName, InObjectFlags)
{
	SetClass(StaticClass());
	PropertyFlags |= CPF_IsPlainOldData | CPF_NoDestructor | CPF_ZeroConstructor | CPF_HasGetValueTypeHash;
}

void FNameProperty::ExportText_Internal(FString& ValueStr, const void* PropertyValueOrContainer, EPropertyPointerType PointerType, const void* DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const
{
	const FName Value = GetPropertyValue(PointerToValuePtr(PropertyValueOrContainer, PointerType));
	if (!(PortFlags & PPF_Delimited))
	{
		ValueStr += Value.ToString();
	}
	else if (!Value.IsNone())
	{
		ValueStr += QuoteString(Value.ToString());
	}
	else
	{
		ValueStr += TEXT("\"\"");
	}
}

const TCHAR* FNameProperty::ImportText_Internal(const TCHAR* Buffer, void* ContainerOrPropertyPtr, EPropertyPointerType PointerType, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const
{
	FName ImportedName;
	if (!(PortFlags & PPF_Delimited))
	{
		ImportedName = FName(Buffer);
		Buffer += FCString::Strlen(Buffer);
	}
	else
	{
		FString Token;
		Buffer = ReadToken(Buffer, Token, true);
		if (!Buffer)
		{
			return nullptr;
		}
		ImportedName = FName(*Token);
	}
	SetPropertyValue(PointerToValuePtr(ContainerOrPropertyPtr, PointerType), ImportedName);
	return Buffer;
}
