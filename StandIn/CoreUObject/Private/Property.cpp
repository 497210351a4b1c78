// FProperty: value operations and the text export/import entry points shared by every property kind.

#include "UObject/UnrealType.h"
#include "PropertyTextParsing.h"

DEFINE_LOG_CATEGORY(LogProperty);

IMPLEMENT_FIELD(FProperty)

FProperty::FProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags)
	: FField(InOwner, InName, InObjectFlags)
{
	SetClass(StaticClass());
}

FProperty::FProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags, int32 InOffset, EPropertyFlags InFlags)
	: FField(InOwner, InName, InObjectFlags)
	, PropertyFlags(InFlags)
	, Offset_Internal(InOffset)
{
	SetClass(StaticClass());
}

FString FProperty::GetCPPMacroType(FString& ExtendedTypeText) const
{
	ExtendedTypeText.Reset();
	return GetClass()->GetName().ToUpper().Replace(TEXT("PROPERTY"), TEXT(""), ESearchCase::CaseSensitive);
}

bool FProperty::SameType(const FProperty* Other) const
{
	return Other && GetClass() == Other->GetClass();
}

bool FProperty::ShouldPort(uint32 PortFlags) const
{
	if (GetSize() <= 0)
	{
		return false;
	}
	if (HasAnyPropertyFlags(CPF_Deprecated) && !(PortFlags & (PPF_ParsingDefaultProperties | PPF_UseDeprecatedProperties)))
	{
		return false;
	}
	if (HasAnyPropertyFlags(CPF_Transient) && !(PortFlags & (PPF_ParsingDefaultProperties | PPF_IncludeTransient)))
	{
		return false;
	}
	// Copying treats DuplicateTransient and TextExportTransient as transient.
	if ((PortFlags & PPF_Copy) && HasAnyPropertyFlags(CPF_DuplicateTransient | CPF_TextExportTransient) && !(PortFlags & (PPF_ParsingDefaultProperties | PPF_IncludeTransient)))
	{
		return false;
	}
	if (!(PortFlags & PPF_DuplicateForPIE) && HasAnyPropertyFlags(CPF_NonPIEDuplicateTransient))
	{
		return false;
	}
	return true;
}

/*-----------------------------------------------------------------------------
	Text export and import.
-----------------------------------------------------------------------------*/

void FProperty::ExportTextItem_Direct(FString& ValueStr, const void* PropertyValue, const void* DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const
{
	ExportText_Internal(ValueStr, PropertyValue, EPropertyPointerType::Direct, DefaultValue, Parent, PortFlags, ExportRootScope);
}

void FProperty::ExportTextItem_InContainer(FString& ValueStr, const void* Container, const void* DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const
{
	ExportText_Internal(ValueStr, Container, EPropertyPointerType::Container, DefaultValue, Parent, PortFlags, ExportRootScope);
}

bool FProperty::ExportText_Direct(FString& ValueStr, const void* Data, const void* Delta, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const
{
	if (Data == Delta || !Identical(Data, Delta, PortFlags))
	{
		ExportText_Internal(ValueStr, Data, EPropertyPointerType::Direct, Delta, Parent, PortFlags, ExportRootScope);
		return true;
	}
	return false;
}

bool FProperty::ExportText_InContainer(int32 Index, FString& ValueStr, const void* Data, const void* Delta, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const
{
	return ExportText_Direct(ValueStr, ContainerPtrToValuePtr<void>(Data, Index), Delta ? ContainerPtrToValuePtr<void>(Delta, Index) : nullptr,
		Parent, PortFlags, ExportRootScope);
}

const TCHAR* FProperty::ImportText_Direct(const TCHAR* Buffer, void* PropertyPtr, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const
{
	if (!Buffer || !PropertyPtr)
	{
		return nullptr;
	}
	return ImportText_Internal(Buffer, PropertyPtr, EPropertyPointerType::Direct, OwnerObject, PortFlags | PPF_UseDeprecatedProperties, ErrorText);
}

const TCHAR* FProperty::ImportText_InContainer(const TCHAR* Buffer, void* Container, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const
{
	if (!Buffer || !Container)
	{
		return nullptr;
	}
	return ImportText_Internal(Buffer, Container, EPropertyPointerType::Container, OwnerObject, PortFlags | PPF_UseDeprecatedProperties, ErrorText);
}

/*-----------------------------------------------------------------------------
	Values.
-----------------------------------------------------------------------------*/

bool FProperty::Identical_InContainer(const void* A, const void* B, int32 ArrayIndex, uint32 PortFlags) const
{
	return Identical(ContainerPtrToValuePtr<void>(A, ArrayIndex), B ? ContainerPtrToValuePtr<void>(B, ArrayIndex) : nullptr, PortFlags);
}

void FProperty::CopySingleValue(void* Dest, void const* Src) const
{
	if (Dest != Src)
	{
		CopyValuesInternal(Dest, Src, 1);
	}
}

void FProperty::CopyCompleteValue(void* Dest, void const* Src) const
{
	if (Dest != Src)
	{
		CopyValuesInternal(Dest, Src, ArrayDim);
	}
}

void FProperty::CopyCompleteValue_InContainer(void* Dest, void const* Src) const
{
	CopyCompleteValue(ContainerPtrToValuePtr<void>(Dest), ContainerPtrToValuePtr<void>(Src));
}

void FProperty::ClearValue(void* Data) const
{
	ClearValueInternal(Data);
}

void FProperty::ClearValue_InContainer(void* Data, int32 ArrayIndex) const
{
	ClearValueInternal(ContainerPtrToValuePtr<void>(Data, ArrayIndex));
}

void FProperty::DestroyValue(void* Dest) const
{
	if (!HasAnyPropertyFlags(CPF_NoDestructor))
	{
		DestroyValueInternal(Dest);
	}
}

void FProperty::DestroyValue_InContainer(void* Dest) const
{
	DestroyValue(ContainerPtrToValuePtr<void>(Dest));
}

void FProperty::InitializeValue(void* Dest) const
{
	if (HasAnyPropertyFlags(CPF_ZeroConstructor))
	{
		FMemory::Memzero(Dest, size_t(GetSize()));
	}
	else
	{
		InitializeValueInternal(Dest);
	}
}

void FProperty::InitializeValue_InContainer(void* Dest) const
{
	InitializeValue(ContainerPtrToValuePtr<void>(Dest));
}

uint32 FProperty::GetValueTypeHash(const void* Src) const
{
	return GetValueTypeHashInternal(Src);
}

void* FProperty::AllocateAndInitializeValue() const
{
	void* Memory = FMemory::Malloc(size_t(FMath::Max(1, GetSize())), uint32(GetMinAlignment()));
	InitializeValue(Memory);
	return Memory;
}

void FProperty::DestroyAndFreeValue(void* InMemory) const
{
	if (InMemory)
	{
		DestroyValue(InMemory);
		FMemory::Free(InMemory);
	}
}

void FProperty::ClearValueInternal(void* Data) const
{
	DestroyValueInternal(Data);
	InitializeValueInternal(Data);
}

void FProperty::DestroyValueInternal(void* Dest) const
{
}

void FProperty::InitializeValueInternal(void* Dest) const
{
	FMemory::Memzero(Dest, size_t(GetSize()));
}

uint32 FProperty::GetValueTypeHashInternal(const void* Src) const
{
	checkf(false, TEXT("%s has no value hash"), *GetFullName());
	return 0;
}
