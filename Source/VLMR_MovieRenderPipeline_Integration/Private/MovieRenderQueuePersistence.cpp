// Saving the editor queue as a queue asset, and replacing the editor queue's jobs with those of a saved one.
#include "AssetRegistry/AssetRegistryModule.h"
#include "LuaSessionData.h"
#include "Misc/PackageName.h"
#include "MoviePipelineQueue.h"
#include "MoviePipelineQueueSubsystem.h"
#include "MovieRenderQueueAccess.h"
#include "MovieRenderQueueGlobals.h"
#include "UObject/Package.h"
#include "UObject/StrongObjectPtr.h"
#include "UObject/UObjectGlobals.h"
#include "VLMRAssetRoutines.h"
#include "VLMRScriptArguments.h"
#include "VLMRScriptResults.h"

namespace VLMR
{
	static UMoviePipelineQueue* CopyQueueIntoPackage(UMoviePipelineQueue& Queue, UPackage& Package, const FString& AssetName)
	{
		UMoviePipelineQueue* Copy = DuplicateObject<UMoviePipelineQueue>(&Queue, &Package, FName(*AssetName));
		if (Copy)
		{
			Copy->SetFlags(RF_Public | RF_Standalone | RF_Transactional);
			Copy->MarkPackageDirty();
			FAssetRegistryModule::AssetCreated(Copy);
		}
		return Copy;
	}

	static bool HasAssetAt(const FString& ObjectPath)
	{
		return StaticLoadObject(UObject::StaticClass(), nullptr, *ObjectPath) != nullptr;
	}

	sol::object SaveQueue(sol::state_view Lua, FLuaSessionData& Session, const FString& AssetPath)
	{
		const TCHAR* Label = TEXT("mrq_save_queue");
		const FString PackagePath = PrefixGameRoot(AssetPath);
		if (!CheckEngineNameLength(Session, Label, PackagePath))
		{
			return Nil(Lua);
		}
		const TStrongObjectPtr<UMoviePipelineQueue> Queue = GetQueueOrReport(Session, Label, EQueueWording::Reading);
		if (!Queue)
		{
			return Nil(Lua);
		}
		const int32 JobCount = Queue->GetJobs().Num();
		if (JobCount == 0)
		{
			LogLine(Session, ELineKind::Fail, Label, TEXT("queue is empty, nothing to save"));
			return Nil(Lua);
		}

		const FString AssetName = FPackageName::GetLongPackageAssetName(PackagePath);
		if (HasAssetAt(PackagePath + TEXT(".") + AssetName))
		{
			LogLine(Session, ELineKind::Warn, Label, FString::Printf(TEXT("overwriting existing asset at '%s'"), *PackagePath));
		}

		// A name that is no package name (a "..", a dot, a character files cannot hold) could write outside the project.
		const TStrongObjectPtr<UPackage> Package(FPackageName::IsValidLongPackageName(PackagePath) ? CreatePackage(*PackagePath) : nullptr);
		if (!Package)
		{
			LogLine(Session, ELineKind::Fail, Label, FString::Printf(TEXT("cannot create package '%s'"), *PackagePath));
			return Nil(Lua);
		}
		Package->MarkAsFullyLoaded();
		if (!Session.EnsurePackageEditable(Package.Get(), Label, true))
		{
			return sol::make_object(Lua, false);
		}

		const TStrongObjectPtr<UMoviePipelineQueue> Copy(CopyQueueIntoPackage(*Queue, *Package, AssetName));
		if (!Copy)
		{
			LogLine(Session, ELineKind::Fail, Label, TEXT("failed to duplicate queue"));
			return Nil(Lua);
		}
		if (!SavePackageFile(Package.Get(), Copy.Get()))
		{
			LogLine(Session, ELineKind::Fail, Label, FString::Printf(TEXT("save failed for '%s'"), *PackagePath));
			return Nil(Lua);
		}
		LogLine(Session, ELineKind::Ok, Label, FString::Printf(TEXT("saved %d jobs to '%s'"), JobCount, *PackagePath));
		return sol::make_object(Lua, true);
	}

	sol::object LoadQueue(sol::state_view Lua, FLuaSessionData& Session, const FString& AssetPath)
	{
		const TCHAR* Label = TEXT("mrq_load_queue");
		const FString Path = PrefixGameRoot(AssetPath);
		TStrongObjectPtr<UMoviePipelineQueueSubsystem> Subsystem;
		TStrongObjectPtr<UMoviePipelineQueue> Asset;
		if (!ResolveQueueEditAsset(Session, Label, TEXT("queue asset"), Path, Subsystem, Asset))
		{
			return Nil(Lua);
		}
		const TStrongObjectPtr<UMoviePipelineQueue> Queue(Subsystem->GetQueue());
		if (!Queue)
		{
			LogLine(Session, ELineKind::Fail, Label, TEXT("no current queue available"));
			return Nil(Lua);
		}
		// The editor's own queue named as the asset already holds its jobs: copying it onto itself would empty it.
		if (Asset.Get() != Queue.Get() && !Queue->CopyFrom(Asset.Get()))
		{
			LogLine(Session, ELineKind::Fail, Label, TEXT("CopyFrom failed"));
			return Nil(Lua);
		}
		LogLine(Session, ELineKind::Ok, Label, FString::Printf(TEXT("loaded %d jobs from '%s'"), Queue->GetJobs().Num(), *Path));
		return sol::make_object(Lua, true);
	}
}
