#include "UObject/NameTypes.h"

#include "Containers/StringConv.h"
#include "UObject/NameTable.h"

namespace
{
	/** Stand-in choice: a name longer than the engine's limit fails an ensure and becomes NAME_None instead of aborting. */
	int32 IndexForName(FStringView Name, EFindName FindType)
	{
		if (Name.IsEmpty())
		{
			return (int32)EName::None;
		}
		if (!ensureMsgf(Name.Len() < NAME_SIZE, TEXT("FName's %d max length exceeded. Got %d characters."), NAME_SIZE - 1, Name.Len()))
		{
			return (int32)EName::None;
		}
		const int32 Index = UE::Core::Private::FindOrAddName(Name, FindType == FNAME_Find);
		return Index == INDEX_NONE ? (int32)EName::None : Index;
	}

	FString WithNumberSuffix(FStringView Name, int32 InNumber)
	{
		FString Result(Name);
		if (InNumber != NAME_NO_NUMBER_INTERNAL)
		{
			Result += FString::Printf(TEXT("_%d"), NAME_INTERNAL_TO_EXTERNAL(InNumber));
		}
		return Result;
	}
}

FName::FName(const TCHAR* Name, EFindName FindType) : Index(IndexForName(FStringView(Name), FindType))
{
}

FName::FName(const ANSICHAR* Name, EFindName FindType) : Index(IndexForName(FStringView(FString(Name)), FindType))
{
}

FName::FName(const UTF8CHAR* Name, EFindName FindType) : Index(IndexForName(FStringView(FString(Name)), FindType))
{
}

FName::FName(int32 Len, const TCHAR* Name, EFindName FindType) : Index(IndexForName(FStringView(Name, Name ? FCString::Strnlen(Name, Len < 0 ? 0 : Len) : 0), FindType))
{
}

FName::FName(FStringView Name, EFindName FindType) : Index(IndexForName(Name, FindType))
{
}

FName::FName(const FString& Name, EFindName FindType) : Index(IndexForName(FStringView(Name), FindType))
{
}

FName::FName(const TCHAR* Name, int32 InNumber, EFindName FindType) : Index(IndexForName(FStringView(WithNumberSuffix(FStringView(Name), InNumber)), FindType))
{
}

FName::FName(FName Other, int32 InNumber) : Index(IndexForName(FStringView(WithNumberSuffix(FStringView(Other.ToString()), InNumber)), FNAME_Add))
{
}

FString FName::ToString() const
{
	return UE::Core::Private::GetNameString(Index);
}

void FName::ToString(FString& Out) const
{
	Out = UE::Core::Private::GetNameString(Index);
}

void FName::AppendString(FString& Out) const
{
	Out += UE::Core::Private::GetNameString(Index);
}

bool FName::IsValid() const
{
	return UE::Core::Private::IsValidNameIndex(Index);
}

bool FName::operator==(const TCHAR* Other) const
{
	return FCString::Stricmp(*UE::Core::Private::GetNameString(Index), Other ? Other : TEXT("")) == 0
		|| (IsNone() && (!Other || !*Other));
}

bool FName::operator==(const ANSICHAR* Other) const
{
	return *this == *FString(Other);
}

int32 FName::Compare(const FName& Other) const
{
	if (Index == Other.Index)
	{
		return 0;
	}
	return FCString::Stricmp(*UE::Core::Private::GetNameString(Index), *UE::Core::Private::GetNameString(Other.Index));
}
