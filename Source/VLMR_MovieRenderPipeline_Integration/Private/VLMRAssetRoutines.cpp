#include "VLMRAssetRoutines.h"

#include "AssetRegistry/AssetRegistryModule.h"
#include "LuaSessionData.h"
#include "Misc/PackageName.h"
#include "UObject/Package.h"
#include "UObject/SavePackage.h"
#include "UObject/StrongObjectPtr.h"
#include "UObject/UObjectGlobals.h"
#include "VLMRScriptResults.h"

namespace VLMR
{
	bool SaveAsset(UObject* InAsset, FLuaSessionData& Session, const FString& Label)
	{
		// Saving may collect garbage: the asset and its package are held until the save has returned.
		const TStrongObjectPtr<UObject> Asset(InAsset);
		if (!Asset)
		{
			ReportNoLongerValid(Session, Label, TEXT("asset"));
			return false;
		}

		const TStrongObjectPtr<UPackage> Package(Asset->GetPackage());
		if (!Package)
		{
			LogLine(Session, ELineKind::Fail, Label, TEXT("asset has no package"));
			return false;
		}

		// The session reports its own refusal.
		if (!Session.EnsurePackageEditable(Package.Get(), *Label, true))
		{
			return false;
		}

		Package->MarkPackageDirty();
		FAssetRegistryModule::AssetCreated(Asset.Get());

		const FString PackageName = Package->GetName();
		if (!SavePackageFile(Package.Get(), Asset.Get()))
		{
			LogLine(Session, ELineKind::Fail, Label, FString::Printf(TEXT("save failed for '%s'"), *PackageName));
			return false;
		}

		LogLine(Session, ELineKind::Ok, Label, FString::Printf(TEXT("saved '%s'"), *PackageName));
		return true;
	}

	bool SavePackageFile(UPackage* Package, UObject* Asset)
	{
		const FString Filename = FPackageName::LongPackageNameToFilename(Package->GetName(), FPackageName::GetAssetPackageExtension());
		FSavePackageArgs SaveArgs;
		SaveArgs.TargetPlatform = nullptr;
		SaveArgs.TopLevelFlags = RF_Standalone;
		SaveArgs.SaveFlags = SAVE_None;
		SaveArgs.bForceByteSwapping = false;
		SaveArgs.bWarnOfLongFilename = true;
		SaveArgs.bSlowTask = true;
		SaveArgs.Error = GError;
		return UPackage::Save(Package, Asset, *Filename, SaveArgs).IsSuccessful();
	}

	FString NormalizeAssetPath(const FString& Path)
	{
		return Path.IsEmpty() ? Path : PrefixGameRoot(Path);
	}

	FString PrefixGameRoot(const FString& Path)
	{
		return Path.StartsWith(TEXT("/"), ESearchCase::IgnoreCase) ? Path : TEXT("/Game/") + Path;
	}

	FString ToObjectPath(const FString& Path)
	{
		const FString Normalized = NormalizeAssetPath(Path);
		int32 LastSlash = INDEX_NONE;
		Normalized.FindLastChar(TEXT('/'), LastSlash);
		const FString LastSegment = Normalized.Mid(LastSlash + 1);
		if (LastSegment.Contains(TEXT(".")))
		{
			return Normalized;
		}
		return FString::Printf(TEXT("%s.%s"), *Normalized, *LastSegment);
	}

	UObject* LoadTypedAsset(UClass* Class, const FString& Path)
	{
		const FString Normalized = NormalizeAssetPath(Path);
		if (Normalized.IsEmpty())
		{
			return nullptr;
		}

		if (UObject* Found = StaticLoadObject(Class, nullptr, *Normalized, nullptr, LOAD_None, nullptr, true))
		{
			return Found;
		}
		const FString ObjectPath = ToObjectPath(Normalized);
		return StaticLoadObject(Class, nullptr, *ObjectPath, nullptr, LOAD_None, nullptr, true);
	}

	void ReportAssetNotFound(FLuaSessionData& Session, const FString& Label, const TCHAR* What, const FString& Path)
	{
		LogLine(Session, ELineKind::Fail, Label, FString::Printf(TEXT("%s not found: %s"), What, *Path));
	}
}
