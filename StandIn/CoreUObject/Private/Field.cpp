// UField: the base of reflected types, with its editor metadata and display names.

#include "UObject/Class.h"
#include "UObject/UnrealType.h"

DEFINE_LOG_CATEGORY(LogClass);

STANDIN_IMPLEMENT_CLASS(UField, CLASS_Abstract, "CoreUObject")
{
}

namespace
{
	const FString& GetEmptyMetaDataValue()
	{
		static const FString Empty;
		return Empty;
	}
}

UClass* UField::GetOwnerClass() const
{
	for (const UObject* It = this; It; It = It->GetOuter())
	{
		if (UClass* Class = Cast<UClass>(const_cast<UObject*>(It)))
		{
			return Class;
		}
	}
	return nullptr;
}

UStruct* UField::GetOwnerStruct() const
{
	for (const UObject* It = this; It; It = It->GetOuter())
	{
		if (UStruct* Struct = Cast<UStruct>(const_cast<UObject*>(It)))
		{
			return Struct;
		}
	}
	return nullptr;
}

#if WITH_EDITOR
const FString* UField::FindMetaData(const FName& Key) const
{
	return MetaData.Find(Key);
}

const FString* UField::FindMetaData(const TCHAR* Key) const
{
	return FindMetaData(FName(Key, FNAME_Find));
}

const FString& UField::GetMetaData(const FName& Key) const
{
	const FString* Value = FindMetaData(Key);
	return Value ? *Value : GetEmptyMetaDataValue();
}

const FString& UField::GetMetaData(const TCHAR* Key) const
{
	return GetMetaData(FName(Key, FNAME_Find));
}

bool UField::HasMetaData(const FName& Key) const
{
	return FindMetaData(Key) != nullptr;
}

bool UField::HasMetaData(const TCHAR* Key) const
{
	return FindMetaData(Key) != nullptr;
}

void UField::SetMetaData(const FName& Key, const TCHAR* InValue)
{
	MetaData.Add(Key, FString(InValue));
}

void UField::SetMetaData(const TCHAR* Key, const TCHAR* InValue)
{
	SetMetaData(FName(Key), InValue);
}

void UField::RemoveMetaData(const TCHAR* Key)
{
	MetaData.Remove(FName(Key, FNAME_Find));
}

bool UField::GetBoolMetaData(const TCHAR* Key) const
{
	return GetMetaData(Key) == TEXT("true");
}

int32 UField::GetIntMetaData(const TCHAR* Key) const
{
	return FCString::Atoi(*GetMetaData(Key));
}

FText UField::GetDisplayNameText() const
{
	const FString& DisplayName = GetMetaData(TEXT("DisplayName"));
	return FText::FromString(DisplayName.IsEmpty() ? FName::NameToDisplayString(GetName(), false) : DisplayName);
}

FText UField::GetToolTipText(bool bShortTooltip) const
{
	if (bShortTooltip && HasMetaData(TEXT("ShortTooltip")))
	{
		return FText::FromString(GetMetaData(TEXT("ShortTooltip")));
	}
	const FString& ToolTip = GetMetaData(TEXT("ToolTip"));
	return ToolTip.IsEmpty() ? GetDisplayNameText() : FText::FromString(ToolTip);
}
#endif
