// UScriptStruct: native struct operations and the "(Field=Value,...)" text form.

#include "UObject/Class.h"
#include "UObject/UnrealType.h"
#include "PropertyTextParsing.h"

STANDIN_IMPLEMENT_CLASS(UScriptStruct, CLASS_MatchedSerializers, "CoreUObject")
{
}

using namespace UE::CoreUObject::StandIn::PropertyText;

void UScriptStruct::SetCppStructOps(const FStandInCppStructOps& InOps)
{
	CppStructOps = InOps;
	PropertiesSize = InOps.Size;
	MinAlignment = int16(InOps.Alignment);
	StructFlags |= STRUCT_Native;
	if (InOps.Identical)
	{
		StructFlags |= STRUCT_IdenticalNative;
	}
	if (InOps.ExportTextItem)
	{
		StructFlags |= STRUCT_ExportTextItemNative;
	}
	if (InOps.ImportTextItem)
	{
		StructFlags |= STRUCT_ImportTextItemNative;
	}
	if (InOps.AddStructReferencedObjects)
	{
		StructFlags |= STRUCT_AddStructReferencedObjects;
	}
	if (InOps.bIsAtomic)
	{
		StructFlags |= STRUCT_Atomic | STRUCT_Immutable;
	}
}

void UScriptStruct::InitializeStruct(void* Dest, int32 ArrayDim) const
{
	if (!CppStructOps.Construct)
	{
		Super::InitializeStruct(Dest, ArrayDim);
		return;
	}
	for (int32 Index = 0; Index < ArrayDim; ++Index)
	{
		CppStructOps.Construct(static_cast<uint8*>(Dest) + Index * PropertiesSize);
	}
}

void UScriptStruct::DestroyStruct(void* Dest, int32 ArrayDim) const
{
	if (!CppStructOps.Destruct)
	{
		Super::DestroyStruct(Dest, ArrayDim);
		return;
	}
	for (int32 Index = 0; Index < ArrayDim; ++Index)
	{
		CppStructOps.Destruct(static_cast<uint8*>(Dest) + Index * PropertiesSize);
	}
}

void UScriptStruct::CopyScriptStruct(void* Dest, const void* Src, int32 ArrayDim) const
{
	for (int32 Index = 0; Index < ArrayDim; ++Index)
	{
		uint8* DestElement = static_cast<uint8*>(Dest) + Index * PropertiesSize;
		const uint8* SrcElement = static_cast<const uint8*>(Src) + Index * PropertiesSize;
		if (CppStructOps.Copy)
		{
			CppStructOps.Copy(DestElement, SrcElement);
			continue;
		}
		for (FProperty* Property = PropertyLink; Property; Property = Property->PropertyLinkNext)
		{
			Property->CopyCompleteValue_InContainer(DestElement, SrcElement);
		}
	}
}

bool UScriptStruct::CompareScriptStruct(const void* A, const void* B, uint32 PortFlags) const
{
	if (!B)
	{
		return false;
	}
	if (CppStructOps.Identical)
	{
		return CppStructOps.Identical(A, B);
	}
	for (FProperty* Property = PropertyLink; Property; Property = Property->PropertyLinkNext)
	{
		for (int32 Index = 0; Index < Property->ArrayDim; ++Index)
		{
			if (!Property->Identical_InContainer(A, B, Index, PortFlags))
			{
				return false;
			}
		}
	}
	return true;
}

uint32 UScriptStruct::GetStructTypeHash(const void* Src) const
{
	if (CppStructOps.GetTypeHash)
	{
		return CppStructOps.GetTypeHash(Src);
	}
	uint32 Hash = 0;
	for (FProperty* Property = PropertyLink; Property; Property = Property->PropertyLinkNext)
	{
		Hash = HashCombine(Hash, Property->GetValueTypeHash(Property->ContainerPtrToValuePtr<void>(Src)));
	}
	return Hash;
}

FString UScriptStruct::GetStructCPPName(uint32 CPPExportFlags) const
{
	return FString(GetPrefixCPP()) + GetName();
}

void UScriptStruct::ExportText(FString& ValueStr, const void* Value, const void* Defaults, UObject* OwnerObject, int32 PortFlags, UObject* ExportRootScope, bool bAllowNativeOverride) const
{
	if (bAllowNativeOverride && CppStructOps.ExportTextItem && CppStructOps.ExportTextItem(ValueStr, Value, Defaults, OwnerObject, PortFlags, ExportRootScope))
	{
		return;
	}
	if (PortFlags & PPF_ExportCpp)
	{
		return;
	}
	// Atomic structs are exported as a unit: comparing against the value itself makes every field appear.
	if (StructFlags & STRUCT_Atomic)
	{
		Defaults = Value;
	}

	int32 Count = 0;
	for (TFieldIterator<FProperty> It(this); It; ++It)
	{
		if (!It->ShouldPort(PortFlags))
		{
			continue;
		}
		for (int32 Index = 0; Index < It->ArrayDim; ++Index)
		{
			FString InnerValue;
			if (!It->ExportText_InContainer(Index, InnerValue, Value, Defaults, OwnerObject, PPF_Delimited | PortFlags, ExportRootScope))
			{
				continue;
			}
			++Count;
			ValueStr += Count == 1 ? TEXT("(") : TEXT(",");
			if (It->ArrayDim == 1)
			{
				ValueStr += FString::Printf(TEXT("%s="), *It->GetName());
			}
			else
			{
				ValueStr += FString::Printf(TEXT("%s[%i]="), *It->GetName(), Index);
			}
			ValueStr += InnerValue;
		}
	}
	ValueStr += Count > 0 ? TEXT(")") : TEXT("()");
}

const TCHAR* UScriptStruct::ImportText(const TCHAR* Buffer, void* Value, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText, const FString& StructName, bool bAllowNativeOverride) const
{
	if (!Buffer)
	{
		return nullptr;
	}
	if (bAllowNativeOverride && CppStructOps.ImportTextItem)
	{
		const TCHAR* NativeBuffer = Buffer;
		if (CppStructOps.ImportTextItem(NativeBuffer, Value, PortFlags, OwnerObject, ErrorText))
		{
			return NativeBuffer;
		}
	}
	return ImportFieldsText(Buffer, Value, OwnerObject, PortFlags, ErrorText, StructName);
}

const TCHAR* UScriptStruct::ImportText(const TCHAR* Buffer, void* Value, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText, const TFunctionRef<FString()>& StructNameGetter, bool bAllowNativeOverride) const
{
	return ImportText(Buffer, Value, OwnerObject, PortFlags, ErrorText, StructNameGetter(), bAllowNativeOverride);
}

// Stand-in choice: the engine skips unknown fields and fields whose value does not parse (with a warning); here either
// makes the whole import fail so that a typo never goes unnoticed, and the struct is left as it was.
const TCHAR* UScriptStruct::ImportFieldsText(const TCHAR* Buffer, void* Value, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText, const FString& StructName) const
{
	if (*Buffer != TCHAR('('))
	{
		LogImportError(ErrorText, FString::Printf(TEXT("ImportText (%s): Missing opening parenthesis: %s"), *StructName, Buffer));
		return nullptr;
	}
	++Buffer;

	FScratchStructValue Scratch(this, Value);
	SkipWhitespace(Buffer);
	while (*Buffer != TCHAR(')'))
	{
		FString FieldName;
		int32 ArrayIndex = 0;
		if (!ReadFieldAssignment(Buffer, FieldName, ArrayIndex))
		{
			LogImportError(ErrorText, FString::Printf(TEXT("ImportText (%s): Missing field name or '=' at: %s"), *StructName, Buffer));
			return nullptr;
		}
		FProperty* Property = FindPropertyByName(FName(*FieldName, FNAME_Find));
		if (!Property || ArrayIndex < 0 || ArrayIndex >= Property->ArrayDim)
		{
			LogImportError(ErrorText, FString::Printf(TEXT("ImportText (%s): Unknown field %s"), *StructName, *FieldName));
			return nullptr;
		}
		SkipWhitespace(Buffer);
		// "Field=" with no value leaves the field as it is; fields that may not be ported here are skipped.
		if (IsValueSpecified(Buffer))
		{
			if (Property->ShouldPort(PortFlags))
			{
				Buffer = Property->ImportText_Direct(Buffer, Property->ContainerPtrToValuePtr<void>(Scratch.Get(), ArrayIndex), OwnerObject, PortFlags | PPF_Delimited, ErrorText);
			}
			else
			{
				Buffer = SkipValueText(Buffer);
			}
			if (!Buffer)
			{
				LogImportError(ErrorText, FString::Printf(TEXT("ImportText (%s): Bad value for field %s"), *StructName, *FieldName));
				return nullptr;
			}
		}
		if (!SkipListSeparator(Buffer))
		{
			LogImportError(ErrorText, FString::Printf(TEXT("ImportText (%s): Missing closing parenthesis: %s"), *StructName, Buffer));
			return nullptr;
		}
	}
	Scratch.CommitTo(Value);
	return Buffer + 1;
}
