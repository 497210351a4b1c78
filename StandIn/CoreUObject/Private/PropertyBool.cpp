// FBoolProperty: native bools and bitfield bits; "True"/"False" text, import also accepts 1/0 and Yes/No.

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

void FBoolProperty::SetBoolSize(const uint32 InSize, const bool bIsNativeBool, const uint32 InBitMask)
{
	checkf(InSize > 0 && InSize <= 8, TEXT("%s: a bool cannot be %u bytes"), *GetName(), InSize);
	FieldSize = uint8(InSize);
	SetElementSize(int32(InSize));
	ByteOffset = 0;
	if (bIsNativeBool)
	{
		ByteMask = 1;
		FieldMask = 0xFF;
		PropertyFlags |= CPF_ZeroConstructor;
		return;
	}
	checkf(InBitMask != 0, TEXT("%s: a bitfield bool needs its bit"), *GetName());
	while (((InBitMask >> (8 * ByteOffset)) & 0xFF) == 0)
	{
		++ByteOffset;
	}
	ByteMask = uint8(InBitMask >> (8 * ByteOffset));
	FieldMask = ByteMask;
	// Zeroing the whole storage unit would clear the neighbouring bits; initialization clears this bit only.
	PropertyFlags &= ~CPF_ZeroConstructor;
}

FString FBoolProperty::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	if (IsNativeBool())
	{
		return TEXT("bool");
	}
	switch (FieldSize)
	{
	case 2: return TEXT("uint16");
	case 4: return TEXT("uint32");
	case 8: return TEXT("uint64");
	default: return TEXT("uint8");
	}
}

bool FBoolProperty::Identical(const void* A, const void* B, uint32 PortFlags) const
{
	return GetPropertyValue(A) == (B ? GetPropertyValue(B) : false);
}

void FBoolProperty::CopyValuesInternal(void* Dest, void const* Src, int32 Count) const
{
	for (int32 Index = 0; Index < Count; ++Index)
	{
		SetPropertyValue(static_cast<uint8*>(Dest) + Index * ElementSize, GetPropertyValue(static_cast<const uint8*>(Src) + Index * ElementSize));
	}
}

void FBoolProperty::ClearValueInternal(void* Data) const
{
	SetPropertyValue(Data, false);
}

void FBoolProperty::InitializeValueInternal(void* Dest) const
{
	for (int32 Index = 0; Index < ArrayDim; ++Index)
	{
		SetPropertyValue(static_cast<uint8*>(Dest) + Index * ElementSize, false);
	}
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
