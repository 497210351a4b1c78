// FFieldClass, FField and FFieldVariant: the identity, owner, names and metadata of properties.

#include "UObject/Field.h"
#include "UObject/Class.h"
#include "UObject/Package.h"
#include "UObject/UnrealType.h"

IMPLEMENT_FIELD(FField)

/*-----------------------------------------------------------------------------
	FFieldClass.
-----------------------------------------------------------------------------*/

namespace
{
	// "FIntProperty" -> "IntProperty"
	FName FieldClassName(const TCHAR* InCPPName)
	{
		return FName(InCPPName[0] == TCHAR('F') ? InCPPName + 1 : InCPPName);
	}

	const FString& GetEmptyFieldMetaDataValue()
	{
		static const FString Empty;
		return Empty;
	}
}

FFieldClass::FFieldClass(const TCHAR* InCPPName, uint64 InId, uint64 InCastFlags, FFieldClass* InSuperClass, FConstructFunction InConstructFn)
	: Name(FieldClassName(InCPPName))
	, Id(InId)
	, CastFlags(InCastFlags)
	, SuperClass(InSuperClass)
	, ConstructFn(InConstructFn)
{
	GetAllFieldClasses().Add(this);
}

bool FFieldClass::IsChildOf(const FFieldClass* InClass) const
{
	if (!InClass)
	{
		return false;
	}
	if (InClass->GetId() != 0)
	{
		return (CastFlags & InClass->GetId()) != 0;
	}
	for (const FFieldClass* Class = this; Class; Class = Class->GetSuperClass())
	{
		if (Class == InClass)
		{
			return true;
		}
	}
	return false;
}

FField* FFieldClass::Construct(const FFieldVariant& InOwner, const FName& InName, EObjectFlags InFlags) const
{
	return ConstructFn ? ConstructFn(InOwner, InName, InFlags) : nullptr;
}

TArray<FFieldClass*>& FFieldClass::GetAllFieldClasses()
{
	static TArray<FFieldClass*> AllFieldClasses;
	return AllFieldClasses;
}

FFieldClass* FFieldClass::FindFieldClass(FName InName)
{
	for (FFieldClass* FieldClass : GetAllFieldClasses())
	{
		if (FieldClass->GetFName() == InName)
		{
			return FieldClass;
		}
	}
	return nullptr;
}

/*-----------------------------------------------------------------------------
	FFieldVariant.
-----------------------------------------------------------------------------*/

FFieldVariant FFieldVariant::GetOwnerVariant() const
{
	if (bIsUObject)
	{
		UObject* Object = ToUObject();
		return Object ? FFieldVariant(Object->GetOuter()) : FFieldVariant();
	}
	FField* Field = ToField();
	return Field ? Field->GetOwnerVariant() : FFieldVariant();
}

FName FFieldVariant::GetFName() const
{
	if (!Container)
	{
		return FName();
	}
	return bIsUObject ? ToUObject()->GetFName() : ToField()->GetFName();
}

FString FFieldVariant::GetName() const
{
	return GetFName().ToString();
}

FString FFieldVariant::GetPathName() const
{
	if (!Container)
	{
		return FString(TEXT("None"));
	}
	return bIsUObject ? ToUObject()->GetPathName() : ToField()->GetPathName();
}

FString FFieldVariant::GetFullName() const
{
	if (!Container)
	{
		return FString(TEXT("None"));
	}
	return bIsUObject ? ToUObject()->GetFullName() : ToField()->GetFullName();
}

bool FFieldVariant::IsA(const UClass* InClass) const
{
	return bIsUObject && Container && ToUObject()->IsA(InClass);
}

bool FFieldVariant::IsA(const FFieldClass* InClass) const
{
	return !bIsUObject && Container && ToField()->IsA(InClass);
}

/*-----------------------------------------------------------------------------
	FField.
-----------------------------------------------------------------------------*/

FField::FField(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags)
	: Owner(InOwner)
	, NamePrivate(InName)
	, FlagsPrivate(InObjectFlags)
{
	SetClass(StaticClass());
}

FField::~FField() = default;

UObject* FField::GetOwnerUObject() const
{
	FFieldVariant TempOwner = Owner;
	while (TempOwner.IsValid() && !TempOwner.IsUObject())
	{
		TempOwner = TempOwner.GetOwnerVariant();
	}
	return TempOwner.ToUObject();
}

UClass* FField::GetOwnerClass() const
{
	for (UObject* Object = GetOwnerUObject(); Object; Object = Object->GetOuter())
	{
		if (UClass* Class = Cast<UClass>(Object))
		{
			return Class;
		}
	}
	return nullptr;
}

UStruct* FField::GetOwnerStruct() const
{
	for (UObject* Object = GetOwnerUObject(); Object; Object = Object->GetOuter())
	{
		if (UStruct* Struct = Cast<UStruct>(Object))
		{
			return Struct;
		}
	}
	return nullptr;
}

UField* FField::GetOwnerUField() const
{
	return Cast<UField>(GetOwnerUObject());
}

UPackage* FField::GetOutermost() const
{
	UObject* OwnerObject = GetOwnerUObject();
	return OwnerObject ? OwnerObject->GetPackage() : nullptr;
}

FString FField::GetPathName(const UObject* StopOuter) const
{
	FString FieldPath = GetName();
	for (FFieldVariant TempOwner = Owner; TempOwner.IsValid(); TempOwner = TempOwner.GetOwnerVariant())
	{
		if (!TempOwner.IsUObject())
		{
			FieldPath = TempOwner.ToField()->GetName() + TEXT(".") + FieldPath;
			continue;
		}
		return TempOwner.ToUObject()->GetPathName(StopOuter) + TEXT(":") + FieldPath;
	}
	return FieldPath;
}

FString FField::GetFullName() const
{
	return GetClass()->GetName() + TEXT(" ") + GetPathName();
}

void FField::AddCppProperty(FProperty* Property)
{
	checkf(false, TEXT("%s cannot own inner properties"), *GetFullName());
}

#if WITH_EDITORONLY_DATA
const FString* FField::FindMetaData(const FName& Key) const
{
	return MetaDataMap.Find(Key);
}

const FString* FField::FindMetaData(const TCHAR* Key) const
{
	return FindMetaData(FName(Key, FNAME_Find));
}

const FString& FField::GetMetaData(const FName& Key) const
{
	const FString* Value = FindMetaData(Key);
	return Value ? *Value : GetEmptyFieldMetaDataValue();
}

const FString& FField::GetMetaData(const TCHAR* Key) const
{
	return GetMetaData(FName(Key, FNAME_Find));
}

void FField::SetMetaData(const FName& Key, const TCHAR* InValue)
{
	MetaDataMap.Add(Key, FString(InValue));
}

void FField::SetMetaData(const TCHAR* Key, const TCHAR* InValue)
{
	SetMetaData(FName(Key), InValue);
}

void FField::RemoveMetaData(const TCHAR* Key)
{
	MetaDataMap.Remove(FName(Key, FNAME_Find));
}

bool FField::GetBoolMetaData(const TCHAR* Key) const
{
	return GetMetaData(Key) == TEXT("true");
}

int32 FField::GetIntMetaData(const TCHAR* Key) const
{
	return FCString::Atoi(*GetMetaData(Key));
}

float FField::GetFloatMetaData(const TCHAR* Key) const
{
	return FCString::Atof(*GetMetaData(Key));
}
#endif

#if WITH_EDITOR
FText FField::GetDisplayNameText() const
{
	const FString& DisplayName = GetMetaData(TEXT("DisplayName"));
	if (!DisplayName.IsEmpty())
	{
		return FText::FromString(DisplayName);
	}
	return FText::FromString(FName::NameToDisplayString(GetName(), IsA<FBoolProperty>()));
}

FText FField::GetToolTipText(bool bShortTooltip) const
{
	if (bShortTooltip && HasMetaData(TEXT("ShortTooltip")))
	{
		return FText::FromString(GetMetaData(TEXT("ShortTooltip")));
	}
	const FString& ToolTip = GetMetaData(TEXT("ToolTip"));
	return ToolTip.IsEmpty() ? GetDisplayNameText() : FText::FromString(ToolTip);
}
#endif

FString GetNameSafe(const FField* Field)
{
	return Field ? Field->GetName() : FString(TEXT("None"));
}

FString GetFullNameSafe(const FField* Field)
{
	return Field ? Field->GetFullName() : FString(TEXT("None"));
}
