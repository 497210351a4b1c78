// FBoolProperty: "True"/"False" text; import also accepts 1/0 and Yes/No.

#include "UObject/UnrealType.h"
#include "PropertyTextParsing.h"

using namespace UE::CoreUObject::StandIn::PropertyText;

IMPLEMENT_FIELD(FBoolProperty)

FBoolProperty::FBoolProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags)
	: FProperty(InOwner, InName, InObjectFlags)
{
	SetClass(StaticClass());
	SetElementSize(sizeof(bool));
	PropertyFlags |= CPF_IsPlainOldData | CPF_NoDestructor | CPF_ZeroConstructor | CPF_HasGetValueTypeHash;
}

bool FBoolProperty::Identical(const void* A, const void* B, uint32 PortFlags) const
{
	return GetPropertyValue(A) == (B ? GetPropertyValue(B) : false);
}

void FBoolProperty::CopyValuesInternal(void* Dest, void const* Src, int32 Count) const
{
	FMemory::Memcpy(Dest, Src, size_t(Count) * sizeof(bool));
}

void FBoolProperty::ExportText_Internal(FString& ValueStr, const void* PropertyValueOrContainer, EPropertyPointerType PointerType, const void* DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const
{
	ValueStr += GetPropertyValue(PointerToValuePtr(PropertyValueOrContainer, PointerType)) ? TEXT("True") : TEXT("False");
}

const TCHAR* FBoolProperty::ImportText_Internal(const TCHAR* Buffer, void* ContainerOrPropertyPtr, EPropertyPointerType PointerType, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const
{
	FString Token;
	const TCHAR* AfterToken = ReadToken(Buffer, Token);
	if (!AfterToken)
	{
		return nullptr;
	}
	void* Data = PointerToValuePtr(ContainerOrPropertyPtr, PointerType);
	if (Token == TEXT("1") || Token == TEXT("True") || Token == TEXT("Yes"))
	{
		SetPropertyValue(Data, true);
	}
	else if (Token == TEXT("0") || Token == TEXT("False") || Token == TEXT("No"))
	{
		SetPropertyValue(Data, false);
	}
	else
	{
		return nullptr;
	}
	return AfterToken;
}
