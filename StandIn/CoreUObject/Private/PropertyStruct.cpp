// FStructProperty: a member of a reflected struct type.

#include "UObject/UnrealType.h"
#include "ObjectReferenceVisiting.h"
#include "PropertyTextParsing.h"

using namespace UE::CoreUObject::StandIn::PropertyText;

IMPLEMENT_FIELD(FStructProperty)

namespace
{
	// Whether any property of the struct (or of its supers) can hold a strong reference; guards against self-nesting.
	bool StructContainsObjectReference(const UStruct* Struct)
	{
		static TArray<const UStruct*> StructsBeingVisited;
		if (!Struct || StructsBeingVisited.Contains(Struct))
		{
			return false;
		}
		StructsBeingVisited.Add(Struct);
		bool bContains = false;
		for (TFieldIterator<FProperty> It(Struct); It && !bContains; ++It)
		{
			bContains = It->ContainsObjectReference();
		}
		StructsBeingVisited.Pop();
		return bContains;
	}
}

FStructProperty::FStructProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags)
	: FProperty(InOwner, InName, InObjectFlags)
{
	SetClass(StaticClass());
}

FStructProperty::FStructProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags, int32 InOffset, EPropertyFlags InFlags, UScriptStruct* InStruct)
	: FProperty(InOwner, InName, InObjectFlags, InOffset, InFlags)
	, Struct(InStruct)
{
	SetClass(StaticClass());
	if (Struct)
	{
		SetElementSize(Struct->GetStructureSize());
	}
}

int32 FStructProperty::GetMinAlignment() const
{
	return Struct ? Struct->GetMinAlignment() : 1;
}

FString FStructProperty::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	return Struct ? Struct->GetStructCPPName(CPPExportFlags) : FString();
}

FString FStructProperty::GetCPPMacroType(FString& ExtendedTypeText) const
{
	ExtendedTypeText = GetCPPType();
	return TEXT("STRUCT");
}

bool FStructProperty::SameType(const FProperty* Other) const
{
	return Super::SameType(Other) && static_cast<const FStructProperty*>(Other)->Struct == Struct;
}

bool FStructProperty::Identical(const void* A, const void* B, uint32 PortFlags) const
{
	return Struct->CompareScriptStruct(A, B, PortFlags);
}

void FStructProperty::ExportText_Internal(FString& ValueStr, const void* PropertyValueOrContainer, EPropertyPointerType PointerType, const void* DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const
{
	Struct->ExportText(ValueStr, PointerToValuePtr(PropertyValueOrContainer, PointerType), DefaultValue, Parent, PortFlags, ExportRootScope, true);
}

const TCHAR* FStructProperty::ImportText_Internal(const TCHAR* Buffer, void* ContainerOrPropertyPtr, EPropertyPointerType PointerType, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const
{
	void* Data = PointerToValuePtr(ContainerOrPropertyPtr, PointerType);
	FScratchStructValue Scratch(Struct, Data);
	const TCHAR* Result = Struct->ImportText(Buffer, Scratch.Get(), OwnerObject, PortFlags, ErrorText, GetName(), true);
	if (Result)
	{
		Scratch.CommitTo(Data);
	}
	return Result;
}

void FStructProperty::VisitObjectReferences(void* Value, TFunctionRef<void(UObject*& Reference)> Visitor) const
{
	for (int32 Index = 0; Index < ArrayDim; ++Index)
	{
		uint8* Element = static_cast<uint8*>(Value) + Index * ElementSize;
		for (FProperty* Property = Struct->RefLink; Property; Property = Property->NextRef)
		{
			Property->VisitObjectReferences(Property->ContainerPtrToValuePtr<void>(Element), Visitor);
		}
		UE::CoreUObject::StandIn::Private::VisitNativeStructReferences(Struct, Element, Visitor);
	}
}

bool FStructProperty::ContainsObjectReference() const
{
	return (Struct && Struct->GetCppStructOps().AddStructReferencedObjects) || StructContainsObjectReference(Struct);
}

void FStructProperty::CopyValuesInternal(void* Dest, void const* Src, int32 Count) const
{
	Struct->CopyScriptStruct(Dest, Src, Count);
}

void FStructProperty::ClearValueInternal(void* Data) const
{
	Struct->DestroyStruct(Data);
	Struct->InitializeStruct(Data);
}

void FStructProperty::DestroyValueInternal(void* Dest) const
{
	Struct->DestroyStruct(Dest, ArrayDim);
}

void FStructProperty::InitializeValueInternal(void* Dest) const
{
	Struct->InitializeStruct(Dest, ArrayDim);
}

uint32 FStructProperty::GetValueTypeHashInternal(const void* Src) const
{
	return Struct->GetStructTypeHash(Src);
}
