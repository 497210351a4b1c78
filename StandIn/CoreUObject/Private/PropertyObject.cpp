// Object reference properties: FObjectPropertyBase (reference text), FObjectProperty and FClassProperty.

#include "UObject/UnrealType.h"
#include "UObject/Package.h"
#include "PropertyTextParsing.h"

using namespace UE::CoreUObject::StandIn::PropertyText;

IMPLEMENT_FIELD(FObjectPropertyBase)
IMPLEMENT_FIELD(FObjectProperty)
IMPLEMENT_FIELD(FClassProperty)

/*-----------------------------------------------------------------------------
	FObjectPropertyBase.
-----------------------------------------------------------------------------*/

FObjectPropertyBase::FObjectPropertyBase(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags)
	: FProperty(InOwner, InName, InObjectFlags)
{
	SetClass(StaticClass());
}

FString FObjectPropertyBase::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	const UClass* Class = PropertyClass ? PropertyClass : UObject::StaticClass();
	return GetCPPTypeCustom(ExtendedTypeText, CPPExportFlags, FString::Printf(TEXT("%s%s"), Class->GetPrefixCPP(), *Class->GetName()));
}

FString FObjectPropertyBase::GetCPPTypeForwardDeclaration() const
{
	return PropertyClass ? FString::Printf(TEXT("class %s%s;"), PropertyClass->GetPrefixCPP(), *PropertyClass->GetName()) : FString();
}

bool FObjectPropertyBase::SameType(const FProperty* Other) const
{
	return Super::SameType(Other) && static_cast<const FObjectPropertyBase*>(Other)->PropertyClass == PropertyClass;
}

FString FObjectPropertyBase::GetExportPath(const UObject* Object, const UObject* Parent, const UObject* ExportRootScope, const uint32 PortFlags)
{
	bool bExportFullyQualified = true;
	const UObject* StopOuter = nullptr;
	if (PortFlags & PPF_ExportsNotFullyQualified)
	{
		StopOuter = (ExportRootScope || !Parent) ? ExportRootScope : Parent->GetOutermost();
		bExportFullyQualified = StopOuter && !Object->IsIn(StopOuter);
		if (bExportFullyQualified)
		{
			StopOuter = StopOuter->GetOuter();
			bExportFullyQualified = !StopOuter || !Object->IsIn(StopOuter);
		}
	}
	if (bExportFullyQualified)
	{
		StopOuter = (PortFlags & PPF_SimpleObjectText) && Parent ? Parent->GetOutermost() : nullptr;
	}
	else if (Parent && Object->IsIn(Parent))
	{
		StopOuter = Parent;
	}

	FString PathName = Object->GetPathName(StopOuter);
	// Paths inside structs, arrays and maps are quoted so that any character survives.
	if (PortFlags & PPF_Delimited)
	{
		PathName = FString::Printf(TEXT("\"%s\""), *PathName.ReplaceQuotesWithEscapedQuotes());
	}
	return GetExportPath(Object->GetClass()->GetPathName(), PathName);
}

void FObjectPropertyBase::ExportText_Internal(FString& ValueStr, const void* PropertyValueOrContainer, EPropertyPointerType PointerType, const void* DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const
{
	UObject* Object = GetObjectPropertyValue(PointerToValuePtr(PropertyValueOrContainer, PointerType));
	if (!Object)
	{
		ValueStr += TEXT("None");
	}
	else if (PortFlags & PPF_DebugDump)
	{
		ValueStr += Object->GetFullName();
	}
	else if (Parent && !Parent->HasAnyFlags(RF_ClassDefaultObject) && Object->IsDefaultSubobject())
	{
		// A default subobject is named relative to the object being exported.
		ValueStr += (PortFlags & PPF_Delimited) ? FString::Printf(TEXT("\"%s\""), *Object->GetName().ReplaceQuotesWithEscapedQuotes()) : Object->GetName();
	}
	else
	{
		ValueStr += GetExportPath(Object, Parent, ExportRootScope, PortFlags);
	}
}

// Stand-in choice: a reference that resolves to no object fails the import (the engine stores null and succeeds).
const TCHAR* FObjectPropertyBase::ImportText_Internal(const TCHAR* Buffer, void* ContainerOrPropertyPtr, EPropertyPointerType PointerType, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const
{
	UObject* Result = nullptr;
	if (!ParseObjectPropertyValue(this, OwnerObject, GetImportRequiredClass(), PortFlags, Buffer, Result) || !AcceptsImportedObject(Result, ErrorText))
	{
		return nullptr;
	}
	SetObjectPropertyValue(PointerToValuePtr(ContainerOrPropertyPtr, PointerType), Result);
	return Buffer;
}

bool FObjectPropertyBase::ParseObjectPropertyValue(const FProperty* Property, UObject* OwnerObject, UClass* RequiredMetaClass, uint32 PortFlags, const TCHAR*& Buffer, UObject*& OutResolvedValue)
{
	OutResolvedValue = nullptr;
	if (!RequiredMetaClass)
	{
		UE_LOG(LogProperty, Error, TEXT("ParseObjectPropertyValue Error: RequiredMetaClass is null, for property: %s "), *GetFullNameSafe(Property));
		return false;
	}

	const TCHAR* InBuffer = Buffer;
	FString Token;
	const TCHAR* Cursor = ReadToken(Buffer, Token, true);
	if (!Cursor || Cursor == Buffer)
	{
		return false;
	}
	if (Token == TEXT("None"))
	{
		Buffer = Cursor;
		return true;
	}

	// "Class'Path'": the class is not used for the lookup, only the path.
	SkipWhitespace(Cursor);
	if (*Cursor == TCHAR('\''))
	{
		Token.Reset();
		const TCHAR* PathStart = Cursor + 1;
		Cursor = ReadToken(PathStart, Token, true);
		if (!Cursor || Cursor == PathStart || *Cursor++ != TCHAR('\''))
		{
			return false;
		}
	}

	UObject* Found = FindImportedObject(Property, OwnerObject, RequiredMetaClass, RequiredMetaClass, *Token, PortFlags);
	if (!Found)
	{
		if (PortFlags & PPF_CheckReferences)
		{
			UE_LOG(LogProperty, Warning, TEXT("%s: unresolved reference to '%s'"), *GetFullNameSafe(Property), InBuffer);
		}
		return false;
	}
	if (!Found->GetClass()->IsChildOf(RequiredMetaClass))
	{
		if (PortFlags & PPF_CheckReferences)
		{
			UE_LOG(LogProperty, Error, TEXT("%s: bad cast in '%s'"), *GetFullNameSafe(Property), InBuffer);
		}
		return false;
	}
	OutResolvedValue = Found;
	Buffer = Cursor;
	return true;
}

UObject* FObjectPropertyBase::FindImportedObject(const FProperty* Property, UObject* OwnerObject, UClass* ObjectClass, UClass* RequiredMetaClass, const TCHAR* Text, uint32 PortFlags)
{
	// Names relative to the owner or one of its outers first: exported default subobjects are written by name.
	UObject* Result = nullptr;
	for (UObject* ScopedSearchRoot = OwnerObject; !Result && ScopedSearchRoot; ScopedSearchRoot = ScopedSearchRoot->GetOuter())
	{
		Result = StaticFindObjectSafe(ObjectClass, ScopedSearchRoot, Text);
	}
	if (!Result)
	{
		Result = StaticFindObjectSafe(ObjectClass, nullptr, Text);
	}
	if (!Result && !FCString::Strchr(Text, TCHAR('/')))
	{
		Result = StaticFindFirstObject(ObjectClass, Text);
	}
	if (!Result)
	{
		// A package name alone ("/Game/A/B") names its asset ("/Game/A/B.B").
		FString Path(Text);
		int32 LastSlash = INDEX_NONE;
		if (!Path.Contains(TEXT(".")) && Path.FindLastChar(TCHAR('/'), LastSlash))
		{
			Path += TEXT(".") + Path.RightChop(LastSlash + 1);
		}
		if (Path.Contains(TEXT(".")) && Path.StartsWith(TEXT("/")))
		{
			Result = StaticLoadObject(ObjectClass, nullptr, *Path, {}, LOAD_NoWarn | LOAD_FindIfFail);
		}
	}
	return Result && Result->IsA(RequiredMetaClass) ? Result : nullptr;
}

/*-----------------------------------------------------------------------------
	FObjectProperty.
-----------------------------------------------------------------------------*/

FObjectProperty::FObjectProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags)
	: Super(InOwner, InName, InObjectFlags)
{
	SetClass(StaticClass());
	PropertyFlags |= CPF_IsPlainOldData | CPF_NoDestructor | CPF_ZeroConstructor | CPF_HasGetValueTypeHash;
}

FString FObjectProperty::GetCPPTypeCustom(FString* ExtendedTypeText, uint32 CPPExportFlags, const FString& InnerNativeTypeName) const
{
	if (HasAnyPropertyFlags(CPF_TObjectPtr) && !(CPPExportFlags & CPPF_NoTObjectPtr))
	{
		return FString::Printf(TEXT("TObjectPtr<%s>"), *InnerNativeTypeName);
	}
	return FString::Printf(TEXT("%s*"), *InnerNativeTypeName);
}

FString FObjectProperty::GetCPPMacroType(FString& ExtendedTypeText) const
{
	const UClass* Class = PropertyClass ? PropertyClass : UObject::StaticClass();
	if (HasAnyPropertyFlags(CPF_TObjectPtr))
	{
		ExtendedTypeText = FString::Printf(TEXT("TObjectPtr<%s%s>"), Class->GetPrefixCPP(), *Class->GetName());
		return TEXT("OBJECTPTR");
	}
	ExtendedTypeText = FString::Printf(TEXT("%s%s"), Class->GetPrefixCPP(), *Class->GetName());
	return TEXT("OBJECT");
}

void FObjectProperty::VisitObjectReferences(void* Value, TFunctionRef<void(UObject*& Reference)> Visitor) const
{
	// TObjectPtr has the raw pointer's layout, so the reference is visited in place.
	UObject** References = static_cast<UObject**>(Value);
	for (int32 Index = 0; Index < ArrayDim; ++Index)
	{
		Visitor(References[Index]);
	}
}

/*-----------------------------------------------------------------------------
	FClassProperty.
-----------------------------------------------------------------------------*/

FClassProperty::FClassProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags)
	: FObjectProperty(InOwner, InName, InObjectFlags)
{
	SetClass(StaticClass());
}

FString FClassProperty::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	const UClass* Class = MetaClass ? MetaClass : UObject::StaticClass();
	const FString InnerNativeTypeName = FString::Printf(TEXT("%s%s"), Class->GetPrefixCPP(), *Class->GetName());
	if (HasAnyPropertyFlags(CPF_TObjectPtr))
	{
		if (!(CPPExportFlags & CPPF_NoTObjectPtr))
		{
			return FString::Printf(TEXT("TObjectPtr<%s>"), *InnerNativeTypeName);
		}
	}
	else if (HasAnyPropertyFlags(CPF_UObjectWrapper))
	{
		return FString::Printf(TEXT("TSubclassOf<%s>"), *InnerNativeTypeName);
	}
	return TEXT("UClass*");
}

bool FClassProperty::SameType(const FProperty* Other) const
{
	return Super::SameType(Other) && static_cast<const FClassProperty*>(Other)->MetaClass == MetaClass;
}

UClass* FClassProperty::GetImportRequiredClass() const
{
	return PropertyClass ? PropertyClass : UClass::StaticClass();
}

bool FClassProperty::AcceptsImportedObject(UObject* Object, FOutputDevice* ErrorText) const
{
	UClass* AssignedClass = Cast<UClass>(Object);
	if (Object && (!AssignedClass || (MetaClass && !AssignedClass->IsChildOf(MetaClass))))
	{
		LogImportError(ErrorText, FString::Printf(TEXT("Invalid object '%s' specified for property '%s'"), *Object->GetFullName(), *GetName()));
		return false;
	}
	return true;
}
