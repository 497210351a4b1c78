#include "UObject/Package.h"

#include "Misc/PackageName.h"
#include "UObject/Class.h"
#include "UObject/UObjectArray.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UObjectHash.h"
#include "UObject/UnrealType.h"

DEFINE_LOG_CATEGORY_STATIC(LogPackage, Log, All);

STANDIN_IMPLEMENT_CLASS(UPackage, CLASS_None, "CoreUObject")
{
}

UPackage::FOnPackageDirtyStateChanged UPackage::PackageDirtyStateChangedEvent;
UPackage::FOnPackageMarkedDirty UPackage::PackageMarkedDirtyEvent;
UPackage::FOnPackageSaved UPackage::PackageSavedEvent;

UPackage::UPackage()
{
}

void UPackage::SetDirtyFlag(bool bInIsDirty)
{
	if (this == GetTransientPackage())
	{
		return;
	}
	const bool bWasDirty = bDirty;
	bDirty = bInIsDirty;
	if (bWasDirty != bInIsDirty)
	{
		PackageDirtyStateChangedEvent.Broadcast(this);
	}
}

bool UPackage::IsFullyLoaded() const
{
	// A package without a file (made in memory, or native) has nothing left to load.
	return bHasBeenFullyLoaded || HasAnyPackageFlags(PKG_CompiledIn) || !FPackageName::DoesPackageExist(GetName());
}

UObject* UPackage::FindAssetInPackage(EObjectFlags RequiredTopLevelFlags) const
{
	const FName ShortName = FPackageName::GetShortFName(GetFName());
	UObject* FirstAsset = nullptr;
	UObject* NamedAsset = nullptr;
	ForEachObjectWithOuterBreakable(this, [&](UObject* Object)
	{
		if (!Object->IsAsset() || (RequiredTopLevelFlags != RF_NoFlags && !Object->HasAnyFlags(RequiredTopLevelFlags)))
		{
			return true;
		}
		FirstAsset = FirstAsset ? FirstAsset : Object;
		if (Object->GetFName() == ShortName)
		{
			NamedAsset = Object;
			return false;
		}
		return true;
	}, false);
	return NamedAsset ? NamedAsset : FirstAsset;
}

bool UPackage::SavePackage(UPackage* InOuter, UObject* InAsset, const TCHAR* Filename, const FSavePackageArgs& SaveArgs)
{
	return Save(InOuter, InAsset, Filename, SaveArgs).IsSuccessful();
}

namespace UE::CoreUObject::StandIn::Private
{
	UPackage*& GetTransientPackageSlot()
	{
		static UPackage* TransientPackage = nullptr;
		return TransientPackage;
	}

	bool IsUsablePackage(UObject* Object)
	{
		return Object && Object->IsA(UPackage::StaticClass()) && !Object->HasAnyInternalFlags(EInternalObjectFlags::Garbage);
	}
}

using namespace UE::CoreUObject::StandIn::Private;

UPackage* GetTransientPackage()
{
	UPackage*& TransientPackage = GetTransientPackageSlot();
	if (!TransientPackage)
	{
		TransientPackage = NewObject<UPackage>(nullptr, FName(TEXT("/Engine/Transient")), RF_Transient);
		TransientPackage->AddToRoot();
	}
	return TransientPackage;
}

UObject* GetTransientPackageAsObject()
{
	return GetTransientPackage();
}

UPackage* CreatePackage(const TCHAR* PackageName)
{
	FString InName = PackageName ? PackageName : TEXT("");
	if (InName.Contains(TEXT("//"), ESearchCase::CaseSensitive))
	{
		// Stand-in choice: the engine stops with a fatal error here; bad input is refused instead.
		UE_LOG(LogPackage, Error, TEXT("Attempted to create a package with name containing double slashes. PackageName: %s"), *InName);
		return nullptr;
	}
	if (InName.EndsWith(TEXT("."), ESearchCase::CaseSensitive))
	{
		const FString Trimmed = InName.LeftChop(1);
		UE_LOG(LogPackage, Log, TEXT("Invalid Package Name entered - '%s' renamed to '%s'"), *InName, *Trimmed);
		InName = Trimmed;
	}
	if (InName.IsEmpty())
	{
		InName = MakeUniqueObjectName(nullptr, UPackage::StaticClass(), FName(TEXT("/Temp/Untitled"))).ToString();
	}
	if (InName == TEXT("None"))
	{
		UE_LOG(LogPackage, Error, TEXT("Attempted to create a package named 'None'"));
		return nullptr;
	}
	int32 DelimiterIndex = INDEX_NONE;
	if (InName.FindChar(TEXT('.'), DelimiterIndex) || InName.FindChar(TEXT(':'), DelimiterIndex))
	{
		// Stand-in choice: the engine would make a package nested in another; nested packages are not supported.
		UE_LOG(LogPackage, Error, TEXT("Attempted to create a package with an object path as its name: %s"), *InName);
		return nullptr;
	}

	const FName NewPackageName(*InName);
	UObject* Existing = UE::CoreUObject::StandIn::FindObjectFast(nullptr, NewPackageName, UPackage::StaticClass());
	if (IsUsablePackage(Existing))
	{
		return static_cast<UPackage*>(Existing);
	}
	if (FPackageName::IsShortPackageName(InName))
	{
		UE_LOG(LogPackage, Warning, TEXT("Attempted to create a package with a short package name: %s Outer: NullOuter"), *InName);
	}
	UPackage* Result = NewObject<UPackage>(nullptr, NewPackageName, RF_Public);
	if (Result)
	{
		Result->SetPackageFlags(PKG_NewlyCreated);
	}
	return Result;
}

UPackage* FindPackage(UObject* InOuter, const TCHAR* PackageName)
{
	if (!PackageName || !*PackageName)
	{
		return nullptr;
	}
	if (FString(PackageName) == TEXT("None"))
	{
		UE_LOG(LogPackage, Error, TEXT("Attempted to find a package named 'None' - InName: %s"), PackageName);
		return nullptr;
	}
	UObject* Found = StaticFindObject(UPackage::StaticClass(), InOuter, PackageName);
	return Found ? static_cast<UPackage*>(Found) : nullptr;
}
