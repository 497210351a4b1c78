// UStruct: a type with reflected properties; owns its properties and links them for iteration and reference walking.

#include "UObject/Class.h"
#include "UObject/UnrealType.h"
#include "UObject/TopLevelAssetPath.h"

STANDIN_IMPLEMENT_CLASS(UStruct, CLASS_MatchedSerializers, "CoreUObject")
{
}

UStruct::~UStruct()
{
	FField* Field = ChildProperties;
	while (Field)
	{
		FField* Next = Field->Next;
		delete Field;
		Field = Next;
	}
	ChildProperties = nullptr;
	PropertyLink = nullptr;
	RefLink = nullptr;
}

bool UStruct::IsChildOf(const UStruct* SomeBase) const
{
	if (!SomeBase)
	{
		return false;
	}
	for (const UStruct* Struct = this; Struct; Struct = Struct->GetSuperStruct())
	{
		if (Struct == SomeBase)
		{
			return true;
		}
	}
	return false;
}

FProperty* UStruct::FindPropertyByName(FName InName) const
{
	if (InName.IsNone())
	{
		return nullptr;
	}
	for (const UStruct* Struct = this; Struct; Struct = Struct->GetSuperStruct())
	{
		for (FField* Field = Struct->ChildProperties; Field; Field = Field->Next)
		{
			if (Field->GetFName() == InName)
			{
				return CastField<FProperty>(Field);
			}
		}
	}
	return nullptr;
}

FTopLevelAssetPath UStruct::GetStructPathName() const
{
	return FTopLevelAssetPath(GetOuter() ? GetOuter()->GetFName() : FName(), GetFName());
}

void UStruct::AddCppProperty(FProperty* Property)
{
	check(Property);
	Property->Next = nullptr;
	if (LastOwnProperty)
	{
		LastOwnProperty->Next = Property;
	}
	else
	{
		ChildProperties = Property;
	}
	LastOwnProperty = Property;
}

void UStruct::Link()
{
	PropertyLink = nullptr;
	RefLink = nullptr;
	FProperty** LinkTail = &PropertyLink;
	FProperty** RefTail = &RefLink;
	for (const UStruct* Struct = this; Struct; Struct = Struct->GetSuperStruct())
	{
		for (FField* Field = Struct->ChildProperties; Field; Field = Field->Next)
		{
			FProperty* Property = CastField<FProperty>(Field);
			if (!Property)
			{
				continue;
			}
			Property->LinkInternal();
			*LinkTail = Property;
			LinkTail = &Property->PropertyLinkNext;
			if (Property->ContainsObjectReference())
			{
				*RefTail = Property;
				RefTail = &Property->NextRef;
			}
		}
	}
	*LinkTail = nullptr;
	*RefTail = nullptr;
}

void UStruct::InitializeStruct(void* Dest, int32 ArrayDim) const
{
	uint8* Data = static_cast<uint8*>(Dest);
	FMemory::Memzero(Data, size_t(ArrayDim) * size_t(PropertiesSize));
	for (int32 Index = 0; Index < ArrayDim; ++Index)
	{
		for (FProperty* Property = PropertyLink; Property; Property = Property->PropertyLinkNext)
		{
			Property->InitializeValue_InContainer(Data + Index * PropertiesSize);
		}
	}
}

void UStruct::DestroyStruct(void* Dest, int32 ArrayDim) const
{
	uint8* Data = static_cast<uint8*>(Dest);
	for (int32 Index = 0; Index < ArrayDim; ++Index)
	{
		for (FProperty* Property = PropertyLink; Property; Property = Property->PropertyLinkNext)
		{
			Property->DestroyValue_InContainer(Data + Index * PropertiesSize);
		}
	}
}
