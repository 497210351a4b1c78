#include "VelLuaProperty.h"

#include "PropertyValueCopy.h"
#include "PropertyValueText.h"
#include "UObject/UnrealType.h"

namespace VelLuaProperty
{
	FProperty* FindPropertyByName(UStruct* Struct, const FString& Name)
	{
		if (!Struct || Name.IsEmpty())
		{
			return nullptr;
		}
		for (TFieldIterator<FProperty> It(Struct); It; ++It)
		{
			if (It->GetName().Equals(Name, ESearchCase::CaseSensitive))
			{
				return *It;
			}
		}
		for (TFieldIterator<FProperty> It(Struct); It; ++It)
		{
			if (It->GetName().Equals(Name, ESearchCase::IgnoreCase))
			{
				return *It;
			}
		}
		return nullptr;
	}

	bool SetPropertyValueFromStringSafe(FProperty* Property, void* ContainerMemory, UObject* Owner,
		const FString& ExportText, FString& OutError)
	{
		if (!Property || !ContainerMemory)
		{
			OutError = Property ? TEXT("no memory holds the property") : TEXT("no property");
			return false;
		}
		void* Value = Property->ContainerPtrToValuePtr<void>(ContainerMemory);
		FStagedPropertyValue Staged(Property, Value);
		if (!Staged.ImportText(ExportText, Owner, OutError))
		{
			return false;
		}
		Staged.Commit(Value);
		return true;
	}
}
