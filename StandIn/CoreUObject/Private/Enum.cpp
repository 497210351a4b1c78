// UEnum: enumerator names and values, their short and full forms, the "_MAX" entry and display names.

#include "UObject/Class.h"
#include "UObject/UnrealType.h"

STANDIN_IMPLEMENT_CLASS(UEnum, CLASS_None, "CoreUObject")
{
}

bool UEnum::SetEnums(TArray<TPair<FName, int64>>& InNames, ECppForm InCppForm, EEnumFlags InFlags, bool bAddMaxKeyIfMissing)
{
	Names = InNames;
	CppForm = InCppForm;
	EnumFlags = InFlags;
	if (bAddMaxKeyIfMissing && !ContainsExistingMax())
	{
		const FName MaxEnumItem(GenerateFullEnumName(*(GenerateMaxEnumName())));
		const int64 MaxEnumItemValue = Names.Num() > 0 ? GetMaxEnumValue() + 1 : 0;
		if (GetIndexByName(MaxEnumItem) == INDEX_NONE)
		{
			Names.Emplace(MaxEnumItem, MaxEnumItemValue);
		}
	}
	return true;
}

// The engine's GenerateEnumPrefix + "_MAX": the longest common prefix of the names up to its last '_', else the enum's name.
FString UEnum::GenerateMaxEnumName() const
{
	FString Prefix;
	if (Names.Num() > 0)
	{
		Prefix = Names[0].Key.ToString();
		for (int32 NameIndex = 1; NameIndex < Names.Num(); ++NameIndex)
		{
			const FString EnumItemName = Names[NameIndex].Key.ToString();
			int32 PrefixIndex = 0;
			while (PrefixIndex < Prefix.Len() && PrefixIndex < EnumItemName.Len() && Prefix[PrefixIndex] == EnumItemName[PrefixIndex])
			{
				++PrefixIndex;
			}
			Prefix = Prefix.Left(PrefixIndex);
		}
		const int32 UnderscoreIndex = Prefix.Find(TEXT("_"), ESearchCase::CaseSensitive, ESearchDir::FromEnd);
		Prefix = UnderscoreIndex > 0 ? Prefix.Left(UnderscoreIndex) : FString();
	}
	if (Prefix.IsEmpty())
	{
		Prefix = GetName();
	}
	return Prefix + TEXT("_MAX");
}

bool UEnum::ContainsExistingMax() const
{
	const FString MaxName = GenerateFullEnumName(*GenerateMaxEnumName());
	for (const TPair<FName, int64>& Name : Names)
	{
		if (Name.Key.ToString().Equals(MaxName, ESearchCase::CaseSensitive))
		{
			return true;
		}
	}
	return false;
}

FString UEnum::GenerateFullEnumName(const TCHAR* InEnumName) const
{
	if (CppForm == ECppForm::Regular)
	{
		return FString(InEnumName);
	}
	return GetName() + TEXT("::") + InEnumName;
}

FName UEnum::GetNameByIndex(int32 Index) const
{
	return Names.IsValidIndex(Index) ? Names[Index].Key : FName();
}

FName UEnum::GetNameByValue(int64 InValue) const
{
	return GetNameByIndex(GetIndexByValue(InValue));
}

FString UEnum::GetNameStringByIndex(int32 InIndex) const
{
	if (!Names.IsValidIndex(InIndex))
	{
		return FString();
	}
	const FString EnumEntryName = Names[InIndex].Key.ToString();
	if (CppForm == ECppForm::Regular)
	{
		return EnumEntryName;
	}
	const int32 ScopeIndex = EnumEntryName.Find(TEXT("::"), ESearchCase::CaseSensitive);
	return ScopeIndex != INDEX_NONE ? EnumEntryName.Mid(ScopeIndex + 2) : EnumEntryName;
}

FString UEnum::GetNameStringByValue(int64 InValue) const
{
	return GetNameStringByIndex(GetIndexByValue(InValue));
}

FString UEnum::GetValueOrBitfieldAsString(int64 InValue) const
{
	if (!HasAnyEnumFlags(EEnumFlags::Flags) || GetIndexByValue(InValue) != INDEX_NONE)
	{
		return GetNameStringByValue(InValue);
	}
	FString Result;
	for (int32 Index = 0; Index < Names.Num(); ++Index)
	{
		const int64 Value = Names[Index].Value;
		if (Value != 0 && (InValue & Value) == Value && Value != GetMaxEnumValue())
		{
			Result += Result.IsEmpty() ? TEXT("") : TEXT(" | ");
			Result += GetNameStringByIndex(Index);
		}
	}
	return Result;
}

int64 UEnum::GetValueByIndex(int32 Index) const
{
	return Names.IsValidIndex(Index) ? Names[Index].Value : INDEX_NONE;
}

int32 UEnum::GetIndexByValue(int64 InValue) const
{
	for (int32 Index = 0; Index < Names.Num(); ++Index)
	{
		if (Names[Index].Value == InValue)
		{
			return Index;
		}
	}
	return INDEX_NONE;
}

int32 UEnum::GetIndexByName(const FName InName, EGetByNameFlags Flags) const
{
	return InName.IsNone() ? INDEX_NONE : GetIndexByNameString(InName.ToString(), Flags);
}

int32 UEnum::GetIndexByNameString(const FString& SearchString, EGetByNameFlags Flags) const
{
	const int32 DoubleColonPosition = SearchString.Find(TEXT("::"), ESearchCase::CaseSensitive);
	const FString ModifiedSearchString = DoubleColonPosition == INDEX_NONE
		? GenerateFullEnumName(*SearchString)
		: SearchString.RightChop(DoubleColonPosition + 2);
	const ESearchCase::Type SearchCase = EnumHasAnyFlags(Flags, EGetByNameFlags::CaseSensitive) ? ESearchCase::CaseSensitive : ESearchCase::IgnoreCase;
	for (int32 Index = 0; Index < Names.Num(); ++Index)
	{
		const FString NameString = Names[Index].Key.ToString();
		if (NameString.Equals(SearchString, SearchCase) || NameString.Equals(ModifiedSearchString, SearchCase))
		{
			return Index;
		}
	}
	if (EnumHasAnyFlags(Flags, EGetByNameFlags::ErrorIfNotFound) && !SearchString.IsEmpty())
	{
		UE_LOG(LogClass, Warning, TEXT("Enum Text %s for Enum %s not found!"), *SearchString, *GetName());
	}
	return INDEX_NONE;
}

int64 UEnum::GetValueByName(const FName InName, EGetByNameFlags Flags) const
{
	return GetValueByIndex(GetIndexByName(InName, Flags));
}

int64 UEnum::GetValueByNameString(const FString& SearchString, EGetByNameFlags Flags) const
{
	return GetValueByIndex(GetIndexByNameString(SearchString, Flags));
}

bool UEnum::IsValidEnumValue(int64 InValue) const
{
	if (GetIndexByValue(InValue) != INDEX_NONE)
	{
		return true;
	}
	if (!HasAnyEnumFlags(EEnumFlags::Flags))
	{
		return false;
	}
	int64 AllFlags = 0;
	for (const TPair<FName, int64>& Name : Names)
	{
		AllFlags |= Name.Value;
	}
	return (InValue & ~AllFlags) == 0;
}

bool UEnum::IsValidEnumName(FName InName) const
{
	return GetIndexByName(InName) != INDEX_NONE;
}

int64 UEnum::GetMaxEnumValue() const
{
	if (Names.Num() == 0)
	{
		return 0;
	}
	int64 MaxValue = Names[0].Value;
	for (const TPair<FName, int64>& Name : Names)
	{
		MaxValue = FMath::Max(MaxValue, Name.Value);
	}
	return MaxValue;
}

FText UEnum::GetDisplayNameTextByIndex(int32 InIndex) const
{
	const FString RawName = GetNameStringByIndex(InIndex);
	if (RawName.IsEmpty())
	{
		return FText::GetEmpty();
	}
#if WITH_EDITOR
	if (HasMetaData(TEXT("DisplayName"), InIndex))
	{
		return FText::FromString(GetMetaData(TEXT("DisplayName"), InIndex));
	}
#endif
	return FText::FromString(FName::NameToDisplayString(RawName, false));
}

FText UEnum::GetDisplayNameTextByValue(int64 InValue) const
{
	return GetDisplayNameTextByIndex(GetIndexByValue(InValue));
}

FText UEnum::GetToolTipTextByIndex(int32 InIndex) const
{
#if WITH_EDITOR
	if (HasMetaData(TEXT("ToolTip"), InIndex))
	{
		return FText::FromString(GetMetaData(TEXT("ToolTip"), InIndex));
	}
#endif
	return GetDisplayNameTextByIndex(InIndex);
}

#if WITH_EDITOR
FString UEnum::GetMetaDataKey(const TCHAR* Key, int32 NameIndex) const
{
	return NameIndex == INDEX_NONE ? FString(Key) : GetNameStringByIndex(NameIndex) + TEXT(".") + Key;
}

FString UEnum::GetMetaData(const TCHAR* Key, int32 NameIndex) const
{
	return UField::GetMetaData(FName(GetMetaDataKey(Key, NameIndex), FNAME_Find));
}

void UEnum::SetMetaData(const TCHAR* Key, const TCHAR* InValue, int32 NameIndex)
{
	UField::SetMetaData(FName(GetMetaDataKey(Key, NameIndex)), InValue);
}

bool UEnum::HasMetaData(const TCHAR* Key, int32 NameIndex) const
{
	return UField::HasMetaData(FName(GetMetaDataKey(Key, NameIndex), FNAME_Find));
}
#endif
