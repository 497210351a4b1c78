// The untyped part of TStandInTypeBuilder: adding properties and functions to the struct being registered.

#include "UObject/StandInTypeBuilder.h"
#include "UObject/EnumProperty.h"
#include "UObject/TextProperty.h"

namespace UE::CoreUObject::StandIn
{
	FProperty* NewTextProperty(FFieldVariant Owner, FName Name)
	{
		return new FTextProperty(Owner, Name, NativeFieldFlags);
	}

	FProperty* NewEnumProperty(FFieldVariant Owner, FName Name, UEnum* Enum, FNumericProperty* UnderlyingProperty)
	{
		FEnumProperty* Property = new FEnumProperty(Owner, Name, NativeFieldFlags);
		Property->SetEnum(Enum);
		Property->AddCppProperty(UnderlyingProperty);
		return Property;
	}
}

void FStandInTypeBuilderBase::AddStructFlags(EStructFlags Flags)
{
	UScriptStruct* ScriptStruct = Cast<UScriptStruct>(Struct);
	checkf(ScriptStruct, TEXT("Struct flags only apply to script structs (%s)"), *Struct->GetName());
	ScriptStruct->StructFlags |= Flags;
}

void FStandInTypeBuilderBase::SetSuperStruct(UStruct* SuperStruct)
{
	Struct->SetSuperStruct(SuperStruct);
}

void FStandInTypeBuilderBase::SetClassFlags(EClassFlags Flags)
{
	UClass* Class = Cast<UClass>(Struct);
	checkf(Class, TEXT("Class flags only apply to classes (%s)"), *Struct->GetName());
	Class->ClassFlags |= Flags;
}

void FStandInTypeBuilderBase::SetNativeTextItem(decltype(FStandInCppStructOps::ExportTextItem) ExportTextItem, decltype(FStandInCppStructOps::ImportTextItem) ImportTextItem)
{
	UScriptStruct* ScriptStruct = Cast<UScriptStruct>(Struct);
	checkf(ScriptStruct, TEXT("Native text applies to script structs only (%s)"), *Struct->GetName());
	FStandInCppStructOps Ops = ScriptStruct->GetCppStructOps();
	Ops.ExportTextItem = ExportTextItem;
	Ops.ImportTextItem = ImportTextItem;
	ScriptStruct->SetCppStructOps(Ops);
}

FProperty* FStandInTypeBuilderBase::AddOwnProperty(FProperty* Property, size_t Offset, EPropertyFlags Flags)
{
	Property->SetOffset_Internal(int32(Offset));
	Property->PropertyFlags |= Flags;
	Struct->AddCppProperty(Property);
	return Property;
}

UFunction* FStandInTypeBuilderBase::CreateFunction(const TCHAR* Name, EFunctionFlags Flags, UFunction::FNativeThunk Thunk)
{
	UClass* Class = Cast<UClass>(Struct);
	checkf(Class, TEXT("Functions can only be registered on classes (%s on %s)"), Name, *Struct->GetName());

	FStaticConstructObjectParameters Params(UFunction::StaticClass());
	Params.Outer = Class;
	Params.Name = FName(Name);
	Params.SetFlags = RF_Public | RF_Transient | RF_MarkAsNative;
	Params.InternalSetFlags = EInternalObjectFlags::RootSet | EInternalObjectFlags::Native;
	UFunction* Function = static_cast<UFunction*>(StaticConstructObject_Internal(Params));
	Function->FunctionFlags = Flags;
	Function->SetNativeFunc(Thunk);

	UField** Tail = &Class->Children;
	while (*Tail)
	{
		Tail = &(*Tail)->Next;
	}
	*Tail = Function;
	Class->AddFunctionToFunctionMap(Function, Function->GetFName());
	return Function;
}

void FStandInTypeBuilderBase::AddParameter(UFunction* Function, FProperty* Property, int32 Offset, EPropertyFlags Flags)
{
	Property->SetOffset_Internal(Offset);
	Property->PropertyFlags |= Flags;
	Function->AddCppProperty(Property);
}

void FStandInTypeBuilderBase::FinishFunction(UFunction* Function, int32 ParmsSize, int32 Alignment, int32 ReturnValueOffset)
{
	Function->SetPropertiesSize(ParmsSize);
	Function->SetMinAlignment(Alignment);
	Function->Link();
	check(Function->ReturnValueOffset == uint16(ReturnValueOffset));
}

void FStandInTypeBuilderBase::CheckParameterCount(const TCHAR* FunctionName, int32 Expected, int32 Given)
{
	checkf(Expected == Given, TEXT("STANDIN_FUNCTION(%s): %d parameter names given for %d parameters"), FunctionName, Given, Expected);
}
