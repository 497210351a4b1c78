// Weak and soft reference properties: FWeakObjectProperty, FSoftObjectProperty and FSoftClassProperty.

#include "UObject/UnrealType.h"
#include "PropertyTextParsing.h"

using namespace UE::CoreUObject::StandIn::PropertyText;

IMPLEMENT_FIELD(FWeakObjectProperty)
IMPLEMENT_FIELD(FSoftObjectProperty)
IMPLEMENT_FIELD(FSoftClassProperty)

/*-----------------------------------------------------------------------------
	FWeakObjectProperty.
-----------------------------------------------------------------------------*/

FWeakObjectProperty::FWeakObjectProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags)
	: Super(InOwner, InName, InObjectFlags)
{
	SetClass(StaticClass());
	PropertyFlags |= CPF_IsPlainOldData | CPF_NoDestructor | CPF_ZeroConstructor | CPF_HasGetValueTypeHash;
}

FString FWeakObjectProperty::GetCPPTypeCustom(FString* ExtendedTypeText, uint32 CPPExportFlags, const FString& InnerNativeTypeName) const
{
	return FString::Printf(TEXT("TWeakObjectPtr<%s>"), *InnerNativeTypeName);
}

FString FWeakObjectProperty::GetCPPMacroType(FString& ExtendedTypeText) const
{
	ExtendedTypeText = GetCPPType();
	return TEXT("WEAKOBJECT");
}

/*-----------------------------------------------------------------------------
	FSoftObjectProperty.
-----------------------------------------------------------------------------*/

FSoftObjectProperty::FSoftObjectProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags)
	: Super(InOwner, InName, InObjectFlags)
{
	SetClass(StaticClass());
	PropertyFlags |= CPF_HasGetValueTypeHash;
}

FString FSoftObjectProperty::GetCPPTypeCustom(FString* ExtendedTypeText, uint32 CPPExportFlags, const FString& InnerNativeTypeName) const
{
	return FString::Printf(TEXT("TSoftObjectPtr<%s>"), *InnerNativeTypeName);
}

FString FSoftObjectProperty::GetCPPMacroType(FString& ExtendedTypeText) const
{
	ExtendedTypeText = GetCPPType();
	return TEXT("SOFTOBJECT");
}

bool FSoftObjectProperty::Identical(const void* A, const void* B, uint32 PortFlags) const
{
	const FSoftObjectPtr& ValueA = GetPropertyValue(A);
	return B ? ValueA.GetUniqueID() == GetPropertyValue(B).GetUniqueID() : ValueA.IsNull();
}

void FSoftObjectProperty::ExportText_Internal(FString& ValueStr, const void* PropertyValueOrContainer, EPropertyPointerType PointerType, const void* DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const
{
	const FSoftObjectPath& Path = GetPropertyValue(PointerToValuePtr(PropertyValueOrContainer, PointerType)).GetUniqueID();
	Path.ExportTextItem(ValueStr, Path, Parent, PortFlags, ExportRootScope);
}

const TCHAR* FSoftObjectProperty::ImportText_Internal(const TCHAR* Buffer, void* ContainerOrPropertyPtr, EPropertyPointerType PointerType, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const
{
	FSoftObjectPath Path;
	const TCHAR* Cursor = Buffer;
	if (!Path.ImportTextItem(Cursor, PortFlags, OwnerObject, ErrorText))
	{
		return nullptr;
	}
	SetPropertyValue(PointerToValuePtr(ContainerOrPropertyPtr, PointerType), FSoftObjectPtr(Path));
	return Cursor;
}

/*-----------------------------------------------------------------------------
	FSoftClassProperty.
-----------------------------------------------------------------------------*/

FSoftClassProperty::FSoftClassProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags)
	: FSoftObjectProperty(InOwner, InName, InObjectFlags)
{
	SetClass(StaticClass());
}

FString FSoftClassProperty::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	const UClass* Class = MetaClass ? MetaClass : UObject::StaticClass();
	return FString::Printf(TEXT("TSoftClassPtr<%s%s>"), Class->GetPrefixCPP(), *Class->GetName());
}

FString FSoftClassProperty::GetCPPMacroType(FString& ExtendedTypeText) const
{
	ExtendedTypeText = GetCPPType();
	return TEXT("SOFTCLASS");
}

bool FSoftClassProperty::SameType(const FProperty* Other) const
{
	return Super::SameType(Other) && static_cast<const FSoftClassProperty*>(Other)->MetaClass == MetaClass;
}
