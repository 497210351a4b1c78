#include "UObject/SoftObjectPath.h"

#include "Misc/PackageName.h"
#include "ObjectPathText.h"
#include "UObject/Class.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

STANDIN_IMPLEMENT_STRUCT(FSoftObjectPath, "CoreUObject")
{
}

STANDIN_IMPLEMENT_STRUCT(FSoftClassPath, "CoreUObject")
{
}

FString FSoftObjectPath::ToString() const
{
	FString Result;
	AppendString(Result);
	return Result;
}

void FSoftObjectPath::ToString(FString& OutString) const
{
	OutString.Reset();
	AppendString(OutString);
}

void FSoftObjectPath::AppendString(FString& OutString) const
{
	if (IsNull())
	{
		return;
	}
	AssetPath.AppendString(OutString);
	if (!SubPathString.IsEmpty())
	{
		OutString += TEXT(":");
		OutString += SubPathString;
	}
}

FString FSoftObjectPath::GetAssetName() const
{
	return AssetPath.GetAssetName().IsNone() ? FString() : AssetPath.GetAssetName().ToString();
}

void FSoftObjectPath::SetPath(FStringView Path)
{
	if (Path.IsEmpty() || Path.Equals(TEXT("None"), ESearchCase::CaseSensitive))
	{
		Reset();
		return;
	}
	FString PathString(Path);
	if (PathString[0] != TEXT('/') || PathString.EndsWith(TEXT("'"), ESearchCase::CaseSensitive))
	{
		PathString = FPackageName::ExportTextPathToObjectPath(PathString);
	}
	if (!ensureMsgf(!FPackageName::IsShortPackageName(PathString), TEXT("Cannot create SoftObjectPath with short package name '%s'! You must pass in fully qualified package names"), *PathString))
	{
		Reset();
		return;
	}

	// The first '.' ends the package name; the next ':' or '.' after it ends the asset name.
	int32 DotIndex = INDEX_NONE;
	if (!PathString.FindChar(TEXT('.'), DotIndex))
	{
		int32 ColonIndex = INDEX_NONE;
		if (PathString.FindChar(TEXT(':'), ColonIndex))
		{
			Reset();
			return;
		}
		AssetPath = FTopLevelAssetPath(FName(*PathString), FName());
		SubPathString.Reset();
		return;
	}
	const FString AfterDot = PathString.RightChop(DotIndex + 1);
	int32 SubObjectIndex = INDEX_NONE;
	for (int32 Index = 0; Index < AfterDot.Len(); ++Index)
	{
		if (AfterDot[Index] == TEXT(':') || AfterDot[Index] == TEXT('.'))
		{
			SubObjectIndex = Index;
			break;
		}
	}
	if (SubObjectIndex == INDEX_NONE)
	{
		AssetPath = FTopLevelAssetPath(PathString);
		SubPathString.Reset();
	}
	else
	{
		AssetPath = FTopLevelAssetPath(PathString.Left(DotIndex + 1 + SubObjectIndex));
		SubPathString = AfterDot.RightChop(SubObjectIndex + 1);
	}
	if (AssetPath.IsNull())
	{
		SubPathString.Reset();
	}
}

void FSoftObjectPath::SetPath(const ANSICHAR* Path)
{
	SetPath(FString(Path ? Path : ""));
}

void FSoftObjectPath::SetPath(const FTopLevelAssetPath& InAssetPath, const FString& InSubPathString)
{
	AssetPath = InAssetPath;
	SubPathString = AssetPath.IsNull() ? FString() : InSubPathString;
}

void FSoftObjectPath::SetPath(const UObject* InObject)
{
	if (InObject)
	{
		SetPath(InObject->GetPathName());
	}
	else
	{
		Reset();
	}
}

UObject* FSoftObjectPath::TryLoad(FUObjectSerializeContext* InLoadContext) const
{
	if (IsNull())
	{
		return nullptr;
	}
	if (UObject* Found = ResolveObject())
	{
		return Found;
	}
	return StaticLoadObject(UObject::StaticClass(), nullptr, *ToString());
}

UObject* FSoftObjectPath::ResolveObject() const
{
	if (IsNull())
	{
		return nullptr;
	}
	return StaticFindObject(UObject::StaticClass(), nullptr, *ToString());
}

bool FSoftObjectPath::LexicalLess(const FSoftObjectPath& Other) const
{
	const int32 AssetComparison = AssetPath.Compare(Other.AssetPath);
	return AssetComparison != 0 ? AssetComparison < 0 : SubPathString.Compare(Other.SubPathString, ESearchCase::IgnoreCase) < 0;
}

bool FSoftObjectPath::ExportTextItem(FString& ValueStr, FSoftObjectPath const& DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const
{
	if (IsNull())
	{
		ValueStr += TEXT("None");
	}
	else
	{
		UE::CoreUObject::Private::AppendPathText(ValueStr, ToString(), (PortFlags & PPF_Delimited) != 0);
	}
	return true;
}

bool FSoftObjectPath::ImportTextItem(const TCHAR*& Buffer, int32 PortFlags, UObject* Parent, FOutputDevice* ErrorText, FArchive* InSerializingArchive)
{
	FString ImportedPath;
	const TCHAR* NewBuffer = UE::CoreUObject::Private::ReadObjectPathText(Buffer, ImportedPath);
	if (!NewBuffer)
	{
		return false;
	}
	Buffer = NewBuffer;
	SetPath(ImportedPath);
	return true;
}

FSoftClassPath::FSoftClassPath(const UClass* InClass)
	: FSoftObjectPath(static_cast<const UObject*>(InClass))
{
}

UClass* FSoftClassPath::ResolveClass() const
{
	UObject* Found = ResolveObject();
	return Found && Found->IsA(UClass::StaticClass()) ? static_cast<UClass*>(Found) : nullptr;
}

UClass* FSoftClassPath::TryLoadAnyClass() const
{
	if (IsNull())
	{
		return nullptr;
	}
	if (UClass* Found = ResolveClass())
	{
		return Found;
	}
	return StaticLoadClass(UObject::StaticClass(), nullptr, *ToString());
}

UClass* FSoftClassPath::FilterClass(UClass* Class, UClass* RequiredBase)
{
	return Class && RequiredBase && Class->IsChildOf(RequiredBase) ? Class : nullptr;
}
