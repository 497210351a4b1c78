// FInstancedPropertyBag: a value of a UPropertyBag layout; changing the layout keeps the values of the properties that stay.

#include "StructUtils/PropertyBag.h"
#include "PropertyBagValueAccess.h"
#include "PropertyTextParsing.h"
#include "UObject/GCObject.h"
#include "UObject/StandInTypeBuilder.h"

STANDIN_IMPLEMENT_STRUCT(FInstancedPropertyBag, "CoreUObject")
{
}

namespace UE::StructUtils::Private
{
	bool CanCreatePropertyForDesc(const FPropertyBagPropertyDesc& Desc);
}

namespace
{
	using namespace UE::StructUtils::Private;
	using namespace UE::CoreUObject::StandIn::PropertyText;

	// Stand-in choice: a property name may hold any character an object name may, and no space.
	EPropertyBagAlterationResult ValidatePropertyName(const FName Name)
	{
		if (Name.IsNone())
		{
			return EPropertyBagAlterationResult::PropertyNameEmpty;
		}
		const FString NameString = Name.ToString();
		for (const TCHAR Character : NameString)
		{
			if (FCString::Strchr(TEXT(" \"',/.:|&!~@#()[]{}=;^%$`\t\r\n"), Character))
			{
				return EPropertyBagAlterationResult::PropertyNameInvalidCharacters;
			}
		}
		return EPropertyBagAlterationResult::Success;
	}

	uint8* AllocateBagValue(const UPropertyBag* BagStruct)
	{
		uint8* Memory = static_cast<uint8*>(FMemory::Malloc(BagStruct->GetStructureSize(), BagStruct->GetMinAlignment()));
		BagStruct->InitializeStruct(Memory);
		return Memory;
	}

	// Reads "Name=" and checks it is the expected field.
	bool ReadExpectedField(const TCHAR*& Buffer, const TCHAR* ExpectedName)
	{
		FString FieldName;
		int32 ArrayIndex = 0;
		SkipWhitespace(Buffer);
		if (!ReadFieldAssignment(Buffer, FieldName, ArrayIndex) || FieldName != ExpectedName)
		{
			return false;
		}
		SkipWhitespace(Buffer);
		return true;
	}

	bool ReadExpectedCharacter(const TCHAR*& Buffer, TCHAR Expected)
	{
		SkipWhitespace(Buffer);
		if (*Buffer != Expected)
		{
			return false;
		}
		++Buffer;
		SkipWhitespace(Buffer);
		return true;
	}

	// "(<desc>,<desc>)", each desc in its struct text form.
	const TCHAR* ImportDescs(const TCHAR* Buffer, TArray<FPropertyBagPropertyDesc>& OutDescs, int32 PortFlags, UObject* Parent, FOutputDevice* ErrorText)
	{
		if (!ReadExpectedCharacter(Buffer, TCHAR('(')))
		{
			return nullptr;
		}
		while (*Buffer != TCHAR(')'))
		{
			FPropertyBagPropertyDesc& Desc = OutDescs.AddDefaulted_GetRef();
			Buffer = FPropertyBagPropertyDesc::StaticStruct()->ImportText(Buffer, &Desc, Parent, PortFlags, ErrorText, FString(TEXT("FPropertyBagPropertyDesc")));
			if (!Buffer || !CanCreatePropertyForDesc(Desc) || !SkipListSeparator(Buffer))
			{
				return nullptr;
			}
		}
		return Buffer + 1;
	}
}

FInstancedPropertyBag::FInstancedPropertyBag(const FInstancedPropertyBag& Other)
{
	*this = Other;
}

FInstancedPropertyBag::FInstancedPropertyBag(FInstancedPropertyBag&& Other)
	: BagStruct(Other.BagStruct)
	, Memory(Other.Memory)
{
	Other.BagStruct = nullptr;
	Other.Memory = nullptr;
}

FInstancedPropertyBag& FInstancedPropertyBag::operator=(const FInstancedPropertyBag& Other)
{
	if (this != &Other)
	{
		InitializeFromBagStruct(Other.BagStruct);
		if (BagStruct)
		{
			BagStruct->CopyScriptStruct(Memory, Other.Memory);
		}
	}
	return *this;
}

FInstancedPropertyBag& FInstancedPropertyBag::operator=(FInstancedPropertyBag&& Other)
{
	if (this != &Other)
	{
		FreeMemory();
		BagStruct = Other.BagStruct;
		Memory = Other.Memory;
		Other.BagStruct = nullptr;
		Other.Memory = nullptr;
	}
	return *this;
}

FInstancedPropertyBag::~FInstancedPropertyBag()
{
	FreeMemory();
}

void FInstancedPropertyBag::FreeMemory()
{
	if (Memory)
	{
		BagStruct->DestroyStruct(Memory);
		FMemory::Free(Memory);
	}
	Memory = nullptr;
	BagStruct = nullptr;
}

void FInstancedPropertyBag::Reset()
{
	FreeMemory();
}

int32 FInstancedPropertyBag::GetNumPropertiesInBag() const
{
	return BagStruct ? BagStruct->GetPropertyDescs().Num() : 0;
}

const FPropertyBagPropertyDesc* FInstancedPropertyBag::FindPropertyDescByID(const FGuid ID) const
{
	return BagStruct ? BagStruct->FindPropertyDescByID(ID) : nullptr;
}

const FPropertyBagPropertyDesc* FInstancedPropertyBag::FindPropertyDescByName(const FName Name) const
{
	return BagStruct ? BagStruct->FindPropertyDescByName(Name) : nullptr;
}

void FInstancedPropertyBag::InitializeFromBagStruct(const UPropertyBag* NewBagStruct)
{
	FreeMemory();
	if (NewBagStruct)
	{
		BagStruct = NewBagStruct;
		Memory = AllocateBagValue(NewBagStruct);
	}
}

void FInstancedPropertyBag::CopyMatchingValuesByID(const FInstancedPropertyBag& Other)
{
	if (!BagStruct || !Other.BagStruct)
	{
		return;
	}
	for (const FPropertyBagPropertyDesc& Desc : BagStruct->GetPropertyDescs())
	{
		const FPropertyBagPropertyDesc* OtherDesc = Other.BagStruct->FindPropertyDescByID(Desc.ID);
		if (OtherDesc && Desc.CompatibleType(*OtherDesc))
		{
			Desc.CachedProperty->CopyCompleteValue(Desc.CachedProperty->ContainerPtrToValuePtr<void>(Memory),
				OtherDesc->CachedProperty->ContainerPtrToValuePtr<void>(Other.Memory));
		}
	}
}

void FInstancedPropertyBag::AdoptLayout(const UPropertyBag* NewBagStruct)
{
	if (NewBagStruct == BagStruct)
	{
		return;
	}
	FInstancedPropertyBag Previous(MoveTemp(*this));
	InitializeFromBagStruct(NewBagStruct);
	CopyMatchingValuesByID(Previous);
}

EPropertyBagAlterationResult FInstancedPropertyBag::AddProperties(const TConstArrayView<FPropertyBagPropertyDesc> Descs, bool bOverwrite)
{
	TArray<FPropertyBagPropertyDesc> NewDescs;
	if (BagStruct)
	{
		NewDescs.Append(BagStruct->GetPropertyDescs().GetData(), BagStruct->GetPropertyDescs().Num());
	}
	for (const FPropertyBagPropertyDesc& Desc : Descs)
	{
		const EPropertyBagAlterationResult NameResult = ValidatePropertyName(Desc.Name);
		if (NameResult != EPropertyBagAlterationResult::Success)
		{
			return NameResult;
		}
		if (!CanCreatePropertyForDesc(Desc))
		{
			return EPropertyBagAlterationResult::InternalError;
		}
		FPropertyBagPropertyDesc* Existing = NewDescs.FindByPredicate([&Desc](const FPropertyBagPropertyDesc& Other) { return Other.Name == Desc.Name; });
		if (!Existing)
		{
			NewDescs.Add(Desc);
			continue;
		}
		if (!bOverwrite)
		{
			return EPropertyBagAlterationResult::TargetPropertyAlreadyExists;
		}
		// The replaced property keeps its ID, so a value of the same type carries over.
		const FGuid KeptID = Existing->ID;
		*Existing = Desc;
		Existing->ID = KeptID;
	}
	for (FPropertyBagPropertyDesc& Desc : NewDescs)
	{
		if (!Desc.ID.IsValid())
		{
			Desc.ID = FGuid::NewGuid();
		}
	}
	AdoptLayout(UPropertyBag::GetOrCreateFromDescs(NewDescs));
	return EPropertyBagAlterationResult::Success;
}

EPropertyBagAlterationResult FInstancedPropertyBag::AddProperty(const FName InName, const EPropertyBagPropertyType InValueType, const UObject* InValueTypeObject, bool bOverwrite)
{
	const FPropertyBagPropertyDesc Desc(InName, InValueType, InValueTypeObject);
	return AddProperties(TConstArrayView<FPropertyBagPropertyDesc>(&Desc, 1), bOverwrite);
}

EPropertyBagAlterationResult FInstancedPropertyBag::AddContainerProperty(const FName InName, const EPropertyBagContainerType InContainerType, const EPropertyBagPropertyType InValueType, const UObject* InValueTypeObject, bool bOverwrite)
{
	return AddContainerProperty(InName, FPropertyBagContainerTypes(InContainerType), InValueType, InValueTypeObject, bOverwrite);
}

EPropertyBagAlterationResult FInstancedPropertyBag::AddContainerProperty(const FName InName, const FPropertyBagContainerTypes InContainerTypes, const EPropertyBagPropertyType InValueType, const UObject* InValueTypeObject, bool bOverwrite)
{
	const FPropertyBagPropertyDesc Desc(InName, InContainerTypes, InValueType, InValueTypeObject);
	return AddProperties(TConstArrayView<FPropertyBagPropertyDesc>(&Desc, 1), bOverwrite);
}

EPropertyBagAlterationResult FInstancedPropertyBag::RemovePropertyByName(const FName PropertyToRemove)
{
	return RemovePropertiesByName(TConstArrayView<FName>(&PropertyToRemove, 1));
}

EPropertyBagAlterationResult FInstancedPropertyBag::RemovePropertiesByName(const TConstArrayView<FName> PropertiesToRemove)
{
	if (!BagStruct)
	{
		return EPropertyBagAlterationResult::TargetPropertyNotFound;
	}
	TArray<FPropertyBagPropertyDesc> RemainingDescs;
	for (const FPropertyBagPropertyDesc& Desc : BagStruct->GetPropertyDescs())
	{
		if (!PropertiesToRemove.Contains(Desc.Name))
		{
			RemainingDescs.Add(Desc);
		}
	}
	if (RemainingDescs.Num() == BagStruct->GetPropertyDescs().Num())
	{
		return EPropertyBagAlterationResult::TargetPropertyNotFound;
	}
	AdoptLayout(UPropertyBag::GetOrCreateFromDescs(RemainingDescs));
	return EPropertyBagAlterationResult::Success;
}

const FPropertyBagPropertyDesc* FInstancedPropertyBag::FindDescAndAddress(const FName Name, uint8*& OutAddress) const
{
	const FPropertyBagPropertyDesc* Desc = FindPropertyDescByName(Name);
	OutAddress = Desc && Desc->CachedProperty ? Desc->CachedProperty->ContainerPtrToValuePtr<uint8>(Memory) : nullptr;
	return OutAddress ? Desc : nullptr;
}

#define PROPERTY_BAG_GETTER(Call) \
	{ \
		uint8* Address = nullptr; \
		const FPropertyBagPropertyDesc* Desc = FindDescAndAddress(Name, Address); \
		if (!Desc) \
		{ \
			return MakeError(EPropertyBagResult::PropertyNotFound); \
		} \
		return Call; \
	}

#define PROPERTY_BAG_SETTER(Call) \
	{ \
		uint8* Address = nullptr; \
		const FPropertyBagPropertyDesc* Desc = FindDescAndAddress(Name, Address); \
		return Desc ? Call : EPropertyBagResult::PropertyNotFound; \
	}

TValueOrError<bool, EPropertyBagResult> FInstancedPropertyBag::GetValueBool(const FName Name) const PROPERTY_BAG_GETTER(GetNumericValue<bool>(*Desc, Address))
TValueOrError<uint8, EPropertyBagResult> FInstancedPropertyBag::GetValueByte(const FName Name) const PROPERTY_BAG_GETTER(GetNumericValue<uint8>(*Desc, Address))
TValueOrError<int32, EPropertyBagResult> FInstancedPropertyBag::GetValueInt32(const FName Name) const PROPERTY_BAG_GETTER(GetNumericValue<int32>(*Desc, Address))
TValueOrError<uint32, EPropertyBagResult> FInstancedPropertyBag::GetValueUInt32(const FName Name) const PROPERTY_BAG_GETTER(GetNumericValue<uint32>(*Desc, Address))
TValueOrError<int64, EPropertyBagResult> FInstancedPropertyBag::GetValueInt64(const FName Name) const PROPERTY_BAG_GETTER(GetNumericValue<int64>(*Desc, Address))
TValueOrError<uint64, EPropertyBagResult> FInstancedPropertyBag::GetValueUInt64(const FName Name) const PROPERTY_BAG_GETTER(GetNumericValue<uint64>(*Desc, Address))
TValueOrError<float, EPropertyBagResult> FInstancedPropertyBag::GetValueFloat(const FName Name) const PROPERTY_BAG_GETTER(GetNumericValue<float>(*Desc, Address))
TValueOrError<double, EPropertyBagResult> FInstancedPropertyBag::GetValueDouble(const FName Name) const PROPERTY_BAG_GETTER(GetNumericValue<double>(*Desc, Address))
#if !UE_VERSION_OLDER_THAN(5, 8, 0)
TValueOrError<int8, EPropertyBagResult> FInstancedPropertyBag::GetValueInt8(const FName Name) const PROPERTY_BAG_GETTER(GetNumericValue<int8>(*Desc, Address))
TValueOrError<int16, EPropertyBagResult> FInstancedPropertyBag::GetValueInt16(const FName Name) const PROPERTY_BAG_GETTER(GetNumericValue<int16>(*Desc, Address))
TValueOrError<uint16, EPropertyBagResult> FInstancedPropertyBag::GetValueUInt16(const FName Name) const PROPERTY_BAG_GETTER(GetNumericValue<uint16>(*Desc, Address))
#endif
TValueOrError<FName, EPropertyBagResult> FInstancedPropertyBag::GetValueName(const FName Name) const PROPERTY_BAG_GETTER(UE::StructUtils::Private::GetValueName(*Desc, Address))
TValueOrError<FString, EPropertyBagResult> FInstancedPropertyBag::GetValueString(const FName Name) const PROPERTY_BAG_GETTER(UE::StructUtils::Private::GetValueString(*Desc, Address))
TValueOrError<FText, EPropertyBagResult> FInstancedPropertyBag::GetValueText(const FName Name) const PROPERTY_BAG_GETTER(UE::StructUtils::Private::GetValueText(*Desc, Address))
TValueOrError<uint8, EPropertyBagResult> FInstancedPropertyBag::GetValueEnum(const FName Name, const UEnum* RequestedEnum) const PROPERTY_BAG_GETTER(UE::StructUtils::Private::GetValueEnum(*Desc, Address, RequestedEnum))
TValueOrError<FStructView, EPropertyBagResult> FInstancedPropertyBag::GetValueStruct(const FName Name, const UScriptStruct* RequestedStruct) const PROPERTY_BAG_GETTER(UE::StructUtils::Private::GetValueStruct(*Desc, Address, RequestedStruct))
TValueOrError<UObject*, EPropertyBagResult> FInstancedPropertyBag::GetValueObject(const FName Name, const UClass* RequestedClass) const PROPERTY_BAG_GETTER(UE::StructUtils::Private::GetValueObject(*Desc, Address, RequestedClass))
TValueOrError<FSoftObjectPath, EPropertyBagResult> FInstancedPropertyBag::GetValueSoftPath(const FName Name) const PROPERTY_BAG_GETTER(UE::StructUtils::Private::GetValueSoftPath(*Desc, Address))
TValueOrError<FString, EPropertyBagResult> FInstancedPropertyBag::GetValueSerializedString(const FName Name) const PROPERTY_BAG_GETTER(UE::StructUtils::Private::GetValueSerializedString(*Desc, Address))

TValueOrError<UClass*, EPropertyBagResult> FInstancedPropertyBag::GetValueClass(const FName Name) const
{
	const FPropertyBagPropertyDesc* Desc = FindPropertyDescByName(Name);
	if (Desc && !Desc->IsClassType())
	{
		return MakeError(EPropertyBagResult::TypeMismatch);
	}
	TValueOrError<UObject*, EPropertyBagResult> Result = GetValueObject(Name, UClass::StaticClass());
	if (!Result.HasValue())
	{
		return MakeError(Result.GetError());
	}
	return MakeValue(static_cast<UClass*>(Result.GetValue()));
}

EPropertyBagResult FInstancedPropertyBag::SetValueBool(const FName Name, const bool bInValue) PROPERTY_BAG_SETTER(SetNumericValue(*Desc, Address, int64(bInValue)))
EPropertyBagResult FInstancedPropertyBag::SetValueByte(const FName Name, const uint8 InValue) PROPERTY_BAG_SETTER(SetNumericValue(*Desc, Address, int64(InValue)))
EPropertyBagResult FInstancedPropertyBag::SetValueInt32(const FName Name, const int32 InValue) PROPERTY_BAG_SETTER(SetNumericValue(*Desc, Address, InValue))
EPropertyBagResult FInstancedPropertyBag::SetValueUInt32(const FName Name, const uint32 InValue) PROPERTY_BAG_SETTER(SetNumericValue(*Desc, Address, InValue))
EPropertyBagResult FInstancedPropertyBag::SetValueInt64(const FName Name, const int64 InValue) PROPERTY_BAG_SETTER(SetNumericValue(*Desc, Address, InValue))
EPropertyBagResult FInstancedPropertyBag::SetValueUInt64(const FName Name, const uint64 InValue) PROPERTY_BAG_SETTER(SetNumericValue(*Desc, Address, InValue))
EPropertyBagResult FInstancedPropertyBag::SetValueFloat(const FName Name, const float InValue) PROPERTY_BAG_SETTER(SetNumericValue(*Desc, Address, InValue))
EPropertyBagResult FInstancedPropertyBag::SetValueDouble(const FName Name, const double InValue) PROPERTY_BAG_SETTER(SetNumericValue(*Desc, Address, InValue))
#if !UE_VERSION_OLDER_THAN(5, 8, 0)
EPropertyBagResult FInstancedPropertyBag::SetValueInt8(const FName Name, const int8 InValue) PROPERTY_BAG_SETTER(SetNumericValue(*Desc, Address, InValue))
EPropertyBagResult FInstancedPropertyBag::SetValueInt16(const FName Name, const int16 InValue) PROPERTY_BAG_SETTER(SetNumericValue(*Desc, Address, InValue))
EPropertyBagResult FInstancedPropertyBag::SetValueUInt16(const FName Name, const uint16 InValue) PROPERTY_BAG_SETTER(SetNumericValue(*Desc, Address, InValue))
#endif
EPropertyBagResult FInstancedPropertyBag::SetValueName(const FName Name, const FName InValue) PROPERTY_BAG_SETTER(UE::StructUtils::Private::SetValueName(*Desc, Address, InValue))
EPropertyBagResult FInstancedPropertyBag::SetValueString(const FName Name, const FString& InValue) PROPERTY_BAG_SETTER(UE::StructUtils::Private::SetValueString(*Desc, Address, InValue))
EPropertyBagResult FInstancedPropertyBag::SetValueText(const FName Name, const FText& InValue) PROPERTY_BAG_SETTER(UE::StructUtils::Private::SetValueText(*Desc, Address, InValue))
EPropertyBagResult FInstancedPropertyBag::SetValueEnum(const FName Name, const uint8 InValue, const UEnum* Enum) PROPERTY_BAG_SETTER(UE::StructUtils::Private::SetValueEnum(*Desc, Address, InValue, Enum))
EPropertyBagResult FInstancedPropertyBag::SetValueStruct(const FName Name, FConstStructView InValue) PROPERTY_BAG_SETTER(UE::StructUtils::Private::SetValueStruct(*Desc, Address, InValue))
EPropertyBagResult FInstancedPropertyBag::SetValueObject(const FName Name, UObject* InValue) PROPERTY_BAG_SETTER(UE::StructUtils::Private::SetValueObject(*Desc, Address, InValue))
EPropertyBagResult FInstancedPropertyBag::SetValueSoftPath(const FName Name, const FSoftObjectPath& InValue) PROPERTY_BAG_SETTER(UE::StructUtils::Private::SetValueSoftPath(*Desc, Address, InValue))
EPropertyBagResult FInstancedPropertyBag::SetValueSerializedString(const FName Name, const FString& InValue) PROPERTY_BAG_SETTER(UE::StructUtils::Private::SetValueSerializedString(*Desc, Address, InValue))

EPropertyBagResult FInstancedPropertyBag::SetValueClass(const FName Name, UClass* InValue)
{
	const FPropertyBagPropertyDesc* Desc = FindPropertyDescByName(Name);
	if (Desc && !Desc->IsClassType())
	{
		return EPropertyBagResult::TypeMismatch;
	}
	return SetValueObject(Name, InValue);
}

#undef PROPERTY_BAG_GETTER
#undef PROPERTY_BAG_SETTER

TValueOrError<FPropertyBagArrayRef, EPropertyBagResult> FInstancedPropertyBag::GetMutableArrayRef(const FName Name)
{
	uint8* Address = nullptr;
	const FPropertyBagPropertyDesc* Desc = FindDescAndAddress(Name, Address);
	if (!Desc)
	{
		return MakeError(EPropertyBagResult::PropertyNotFound);
	}
	if (Desc->ContainerTypes.GetFirstContainerType() != EPropertyBagContainerType::Array)
	{
		return MakeError(EPropertyBagResult::TypeMismatch);
	}
	return MakeValue(*Desc, Address);
}

TValueOrError<const FPropertyBagArrayRef, EPropertyBagResult> FInstancedPropertyBag::GetArrayRef(const FName Name) const
{
	TValueOrError<FPropertyBagArrayRef, EPropertyBagResult> Result = const_cast<FInstancedPropertyBag*>(this)->GetMutableArrayRef(Name);
	if (!Result.HasValue())
	{
		return MakeError(Result.GetError());
	}
	return MakeValue(Result.GetValue());
}

bool FInstancedPropertyBag::Identical(const FInstancedPropertyBag* Other, uint32 PortFlags) const
{
	if (!Other || BagStruct != Other->BagStruct)
	{
		return false;
	}
	return !BagStruct || BagStruct->CompareScriptStruct(Memory, Other->Memory, PortFlags);
}

void FInstancedPropertyBag::AddStructReferencedObjects(FReferenceCollector& Collector)
{
	if (BagStruct)
	{
		Collector.AddPropertyReferences(BagStruct, Memory);
	}
}

// Stand-in choice: bags are saved as text, their layout first (one struct text per desc) and then their values.
bool FInstancedPropertyBag::ExportTextItem(FString& ValueStr, const FInstancedPropertyBag& DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const
{
	if (!BagStruct)
	{
		ValueStr += TEXT("()");
		return true;
	}
	const FPropertyBagPropertyDesc DefaultDesc;
	ValueStr += TEXT("(Properties=(");
	for (int32 Index = 0; Index < BagStruct->GetPropertyDescs().Num(); ++Index)
	{
		ValueStr += Index > 0 ? TEXT(",") : TEXT("");
		FPropertyBagPropertyDesc::StaticStruct()->ExportText(ValueStr, &BagStruct->GetPropertyDescs()[Index], &DefaultDesc, Parent, PortFlags, ExportRootScope);
	}
	ValueStr += TEXT("),Values=");
	BagStruct->ExportText(ValueStr, Memory, nullptr, Parent, PortFlags, ExportRootScope);
	ValueStr += TEXT(")");
	return true;
}

bool FInstancedPropertyBag::ImportTextItem(const TCHAR*& Buffer, int32 PortFlags, UObject* Parent, FOutputDevice* ErrorText)
{
	const TCHAR* Cursor = Buffer;
	if (!ReadExpectedCharacter(Cursor, TCHAR('(')))
	{
		return false;
	}
	if (*Cursor == TCHAR(')'))
	{
		Reset();
		Buffer = Cursor + 1;
		return true;
	}
	TArray<FPropertyBagPropertyDesc> Descs;
	if (!ReadExpectedField(Cursor, TEXT("Properties")) || !(Cursor = ImportDescs(Cursor, Descs, PortFlags, Parent, ErrorText))
		|| !ReadExpectedCharacter(Cursor, TCHAR(',')) || !ReadExpectedField(Cursor, TEXT("Values")))
	{
		return false;
	}
	FInstancedPropertyBag Imported;
	Imported.InitializeFromBagStruct(UPropertyBag::GetOrCreateFromDescs(Descs));
	Cursor = Imported.BagStruct->ImportText(Cursor, Imported.Memory, Parent, PortFlags, ErrorText, FString(TEXT("FInstancedPropertyBag")));
	if (!Cursor || !ReadExpectedCharacter(Cursor, TCHAR(')')))
	{
		return false;
	}
	*this = MoveTemp(Imported);
	Buffer = Cursor;
	return true;
}
