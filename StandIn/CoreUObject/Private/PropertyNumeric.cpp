// Numeric properties: integers, floating point and bytes (optionally holding an enum).

#include "UObject/UnrealType.h"
#include "PropertyTextParsing.h"

using namespace UE::CoreUObject::StandIn::PropertyText;

IMPLEMENT_FIELD(FNumericProperty)
IMPLEMENT_FIELD(FInt8Property)
IMPLEMENT_FIELD(FInt16Property)
IMPLEMENT_FIELD(FIntProperty)
IMPLEMENT_FIELD(FInt64Property)
IMPLEMENT_FIELD(FUInt16Property)
IMPLEMENT_FIELD(FUInt32Property)
IMPLEMENT_FIELD(FUInt64Property)
IMPLEMENT_FIELD(FFloatProperty)
IMPLEMENT_FIELD(FDoubleProperty)
IMPLEMENT_FIELD(FByteProperty)

FNumericProperty::FNumericProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags)
	: FProperty(InOwner, InName, InObjectFlags)
{
	SetClass(StaticClass());
}

FInt8Property::FInt8Property(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags) : Super(InOwner, InName, InObjectFlags) { SetClass(StaticClass()); }
FInt16Property::FInt16Property(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags) : Super(InOwner, InName, InObjectFlags) { SetClass(StaticClass()); }
FIntProperty::FIntProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags) : Super(InOwner, InName, InObjectFlags) { SetClass(StaticClass()); }
FInt64Property::FInt64Property(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags) : Super(InOwner, InName, InObjectFlags) { SetClass(StaticClass()); }
FUInt16Property::FUInt16Property(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags) : Super(InOwner, InName, InObjectFlags) { SetClass(StaticClass()); }
FUInt32Property::FUInt32Property(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags) : Super(InOwner, InName, InObjectFlags) { SetClass(StaticClass()); }
FUInt64Property::FUInt64Property(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags) : Super(InOwner, InName, InObjectFlags) { SetClass(StaticClass()); }
FFloatProperty::FFloatProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags) : Super(InOwner, InName, InObjectFlags) { SetClass(StaticClass()); }
FDoubleProperty::FDoubleProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags) : Super(InOwner, InName, InObjectFlags) { SetClass(StaticClass()); }
FByteProperty::FByteProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags) : Super(InOwner, InName, InObjectFlags) { SetClass(StaticClass()); }

/*-----------------------------------------------------------------------------
	FNumericProperty.
-----------------------------------------------------------------------------*/

void FNumericProperty::SetIntPropertyValue(void* Data, uint64 Value) const
{
	checkf(false, TEXT("SetIntPropertyValue is not supported by %s"), *GetFullName());
}

void FNumericProperty::SetIntPropertyValue(void* Data, int64 Value) const
{
	checkf(false, TEXT("SetIntPropertyValue is not supported by %s"), *GetFullName());
}

void FNumericProperty::SetFloatingPointPropertyValue(void* Data, double Value) const
{
	checkf(false, TEXT("SetFloatingPointPropertyValue is not supported by %s"), *GetFullName());
}

void FNumericProperty::SetNumericPropertyValueFromString(void* Data, TCHAR const* Value) const
{
	const TCHAR* Cursor = Value;
	if (IsFloatingPoint())
	{
		double Parsed = 0.0;
		SetFloatingPointPropertyValue(Data, ParseFloatingPoint(Cursor, Parsed) ? Parsed : 0.0);
	}
	else if (*Cursor == TCHAR('-'))
	{
		int64 Parsed = 0;
		SetIntPropertyValue(Data, ParseSignedInteger(Cursor, Parsed) ? Parsed : int64(0));
	}
	else
	{
		uint64 Parsed = 0;
		SetIntPropertyValue(Data, ParseUnsignedInteger(Cursor, Parsed) ? Parsed : uint64(0));
	}
}

int64 FNumericProperty::GetSignedIntPropertyValue(void const* Data) const
{
	checkf(false, TEXT("GetSignedIntPropertyValue is not supported by %s"), *GetFullName());
	return 0;
}

uint64 FNumericProperty::GetUnsignedIntPropertyValue(void const* Data) const
{
	checkf(false, TEXT("GetUnsignedIntPropertyValue is not supported by %s"), *GetFullName());
	return 0;
}

double FNumericProperty::GetFloatingPointPropertyValue(void const* Data) const
{
	checkf(false, TEXT("GetFloatingPointPropertyValue is not supported by %s"), *GetFullName());
	return 0.0;
}

FString FNumericProperty::GetNumericPropertyValueToString(void const* Data) const
{
	checkf(false, TEXT("GetNumericPropertyValueToString is not supported by %s"), *GetFullName());
	return FString();
}

bool FNumericProperty::CanHoldDoubleValueInternal(double Value) const
{
	return false;
}

bool FNumericProperty::CanHoldSignedValueInternal(int64 Value) const
{
	return false;
}

bool FNumericProperty::CanHoldUnsignedValueInternal(uint64 Value) const
{
	return false;
}

void FNumericProperty::ExportText_Internal(FString& ValueStr, const void* PropertyValueOrContainer, EPropertyPointerType PointerType, const void* DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const
{
	ValueStr += GetNumericPropertyValueToString(PointerToValuePtr(PropertyValueOrContainer, PointerType));
}

// Stand-in choice: an integer that does not fit the property's type is refused (the engine wraps it silently).
const TCHAR* FNumericProperty::ImportText_Internal(const TCHAR* Buffer, void* ContainerOrPropertyPtr, EPropertyPointerType PointerType, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const
{
	void* Data = PointerToValuePtr(ContainerOrPropertyPtr, PointerType);
	const TCHAR* Cursor = Buffer;
	if (IsFloatingPoint())
	{
		double Value = 0.0;
		if (!ParseFloatingPoint(Cursor, Value))
		{
			return nullptr;
		}
		SetFloatingPointPropertyValue(Data, Value);
		return Cursor;
	}

	int64 SignedValue = 0;
	uint64 UnsignedValue = 0;
	const bool bNegative = *Cursor == TCHAR('-');
	const bool bParsed = bNegative ? ParseSignedInteger(Cursor, SignedValue) : ParseUnsignedInteger(Cursor, UnsignedValue);
	if (!bParsed)
	{
		LogImportError(ErrorText, FString::Printf(TEXT("%s: '%s' is not an integer"), *GetName(), Buffer));
		return nullptr;
	}
	if (bNegative ? !CanHoldValue(SignedValue) : !CanHoldValue(UnsignedValue))
	{
		LogImportError(ErrorText, FString::Printf(TEXT("%s: %s is out of the range of %s"), *GetName(), *FString(int32(Cursor - Buffer), Buffer), *GetCPPType()));
		return nullptr;
	}
	if (bNegative)
	{
		SetIntPropertyValue(Data, SignedValue);
	}
	else
	{
		SetIntPropertyValue(Data, UnsignedValue);
	}
	return Cursor;
}

/*-----------------------------------------------------------------------------
	FByteProperty.
-----------------------------------------------------------------------------*/

FString FByteProperty::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	if (!Enum)
	{
		return TEXT("uint8");
	}
	const bool bEnumClassForm = Enum->GetCppForm() == UEnum::ECppForm::EnumClass;
	const bool bRawParam = (CPPExportFlags & CPPF_ArgumentOrReturnValue) && (HasAnyPropertyFlags(CPF_ReturnParm) || !HasAnyPropertyFlags(CPF_OutParm));
	const FString EnumName = Enum->CppType().IsEmpty() ? Enum->GetName() : Enum->CppType();
	if (bEnumClassForm || bRawParam)
	{
		return EnumName;
	}
	return FString::Printf(TEXT("TEnumAsByte<%s>"), *EnumName);
}

bool FByteProperty::SameType(const FProperty* Other) const
{
	return Super::SameType(Other) && static_cast<const FByteProperty*>(Other)->Enum == Enum;
}

void FByteProperty::ExportText_Internal(FString& ValueStr, const void* PropertyValueOrContainer, EPropertyPointerType PointerType, const void* DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const
{
	if (Enum && !(PortFlags & PPF_ConsoleVariable))
	{
		ExportEnumValue(ValueStr, Enum, GetPropertyValue(PointerToValuePtr(PropertyValueOrContainer, PointerType)), PortFlags);
		return;
	}
	Super::ExportText_Internal(ValueStr, PropertyValueOrContainer, PointerType, DefaultValue, Parent, PortFlags, ExportRootScope);
}

const TCHAR* FByteProperty::ImportText_Internal(const TCHAR* Buffer, void* ContainerOrPropertyPtr, EPropertyPointerType PointerType, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const
{
	void* Data = PointerToValuePtr(ContainerOrPropertyPtr, PointerType);
	if (Enum && !(PortFlags & PPF_ConsoleVariable))
	{
		int64 Value = 0;
		const TCHAR* Result = ImportEnumValue(Buffer, Enum, Value);
		if (!Result || !CanHoldValue(Value))
		{
			LogImportError(ErrorText, FString::Printf(TEXT("%s: Invalid enum value %s"), *GetName(), Buffer));
			return nullptr;
		}
		SetPropertyValue(Data, uint8(Value));
		return Result;
	}

	// A byte without an enum also accepts True and False, as exported by a bool it replaced.
	FString Token;
	if (const TCHAR* AfterToken = ReadToken(Buffer, Token))
	{
		if (Token == TEXT("True"))
		{
			SetPropertyValue(Data, 1);
			return AfterToken;
		}
		if (Token == TEXT("False"))
		{
			SetPropertyValue(Data, 0);
			return AfterToken;
		}
	}
	return Super::ImportText_Internal(Buffer, ContainerOrPropertyPtr, PointerType, OwnerObject, PortFlags, ErrorText);
}
