// FEnumProperty: an enum member stored in its underlying numeric property; text is the enumerator's short name.

#include "UObject/EnumProperty.h"
#include "PropertyTextParsing.h"

using namespace UE::CoreUObject::StandIn::PropertyText;

IMPLEMENT_FIELD(FEnumProperty)

FEnumProperty::FEnumProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags)
	: FProperty(InOwner, InName, InObjectFlags)
{
	SetClass(StaticClass());
	PropertyFlags |= CPF_IsPlainOldData | CPF_NoDestructor | CPF_ZeroConstructor | CPF_HasGetValueTypeHash;
}

FEnumProperty::FEnumProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags, int32 InOffset, EPropertyFlags InFlags, UEnum* InEnum)
	: FProperty(InOwner, InName, InObjectFlags, InOffset, InFlags | CPF_IsPlainOldData | CPF_NoDestructor | CPF_ZeroConstructor | CPF_HasGetValueTypeHash)
	, Enum(InEnum)
{
	SetClass(StaticClass());
}

FEnumProperty::~FEnumProperty()
{
	delete UnderlyingProp;
}

void FEnumProperty::AddCppProperty(FProperty* Property)
{
	checkf(!UnderlyingProp, TEXT("%s already has an underlying property"), *GetFullName());
	FNumericProperty* Numeric = CastField<FNumericProperty>(Property);
	checkf(Numeric && Numeric->IsInteger(), TEXT("The underlying property of %s must be an integer property"), *GetFullName());
	UnderlyingProp = Numeric;
	UnderlyingProp->Owner = this;
	SetElementSize(UnderlyingProp->GetElementSize());
}

void FEnumProperty::GetInnerFields(TArray<FField*>& OutFields)
{
	if (UnderlyingProp)
	{
		OutFields.Add(UnderlyingProp);
	}
}

int32 FEnumProperty::GetMinAlignment() const
{
	return UnderlyingProp ? UnderlyingProp->GetMinAlignment() : 1;
}

FString FEnumProperty::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	if (!Enum)
	{
		return UnderlyingProp ? UnderlyingProp->GetCPPType(ExtendedTypeText, CPPExportFlags) : FString(TEXT("uint8"));
	}
	return Enum->CppType().IsEmpty() ? Enum->GetName() : Enum->CppType();
}

FString FEnumProperty::GetCPPMacroType(FString& ExtendedTypeText) const
{
	ExtendedTypeText = GetCPPType();
	return TEXT("ENUM");
}

bool FEnumProperty::SameType(const FProperty* Other) const
{
	return Super::SameType(Other) && static_cast<const FEnumProperty*>(Other)->Enum == Enum;
}

bool FEnumProperty::Identical(const void* A, const void* B, uint32 PortFlags) const
{
	if (!B)
	{
		return UnderlyingProp->GetSignedIntPropertyValue(A) == 0;
	}
	return FMemory::Memcmp(A, B, size_t(ElementSize)) == 0;
}

void FEnumProperty::ExportText_Internal(FString& ValueStr, const void* PropertyValueOrContainer, EPropertyPointerType PointerType, const void* DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const
{
	const void* Data = PointerToValuePtr(PropertyValueOrContainer, PointerType);
	if (!Enum || (PortFlags & PPF_ConsoleVariable))
	{
		UnderlyingProp->ExportTextItem_Direct(ValueStr, Data, DefaultValue, Parent, PortFlags, ExportRootScope);
		return;
	}
	ExportEnumValue(ValueStr, Enum, UnderlyingProp->GetSignedIntPropertyValue(Data), PortFlags);
}

const TCHAR* FEnumProperty::ImportText_Internal(const TCHAR* Buffer, void* ContainerOrPropertyPtr, EPropertyPointerType PointerType, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const
{
	void* Data = PointerToValuePtr(ContainerOrPropertyPtr, PointerType);
	if (!Enum || (PortFlags & PPF_ConsoleVariable))
	{
		return UnderlyingProp->ImportText_Direct(Buffer, Data, OwnerObject, PortFlags, ErrorText);
	}
	int64 Value = 0;
	const TCHAR* Result = ImportEnumValue(Buffer, Enum, Value);
	if (!Result || !UnderlyingProp->CanHoldValue(Value))
	{
		LogImportError(ErrorText, FString::Printf(TEXT("%s: Invalid enum value %s"), *GetName(), Buffer));
		return nullptr;
	}
	UnderlyingProp->SetIntPropertyValue(Data, Value);
	return Result;
}

void FEnumProperty::CopyValuesInternal(void* Dest, void const* Src, int32 Count) const
{
	FMemory::Memcpy(Dest, Src, size_t(Count) * size_t(ElementSize));
}

void FEnumProperty::ClearValueInternal(void* Data) const
{
	FMemory::Memzero(Data, size_t(ElementSize));
}

void FEnumProperty::InitializeValueInternal(void* Dest) const
{
	FMemory::Memzero(Dest, size_t(GetSize()));
}

uint32 FEnumProperty::GetValueTypeHashInternal(const void* Src) const
{
	return UnderlyingProp->GetValueTypeHash(Src);
}
