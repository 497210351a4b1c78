#include "UObject/SavePackage.h"

#include "HAL/FileManager.h"
#include "ObjectReferenceVisiting.h"
#include "Misc/FileHelper.h"
#include "Misc/Paths.h"
#include "PackageFileFormat.h"
#include "PackagePaths.h"
#include "UObject/Class.h"
#include "UObject/Package.h"
#include "UObject/StandInGarbageCollectionStress.h"
#include "UObject/StrongObjectPtr.h"
#include "UObject/UObjectArray.h"
#include "UObject/UObjectHash.h"
#include "UObject/UnrealType.h"

#include <algorithm>

namespace UE::CoreUObject::StandIn::Private
{
	constexpr EObjectFlags SavedObjectFlags = RF_Public | RF_Standalone | RF_Transactional;

	bool IsExcludedFromSave(const UObject* Object, const UPackage* Package)
	{
		for (const UObject* Current = Object; Current && Current != Package; Current = Current->GetOuter())
		{
			if (Current->HasAnyFlags(RF_Transient) || Current->HasAnyInternalFlags(EInternalObjectFlags::Garbage))
			{
				return true;
			}
		}
		return false;
	}

	TArray<UObject*> GatherSaveCandidates(UPackage* Package)
	{
		TArray<UObject*> Candidates;
		GetObjectsWithPackage(Package, Candidates, true);
		Candidates.RemoveAll([Package](const UObject* Object) { return IsExcludedFromSave(Object, Package); });
		std::sort(Candidates.GetData(), Candidates.GetData() + Candidates.Num(), [](const UObject* A, const UObject* B)
		{
			return GetObjectCreationOrder(A) < GetObjectCreationOrder(B);
		});
		return Candidates;
	}

	// The asset, the objects with a top-level flag, and every candidate they reach through strong references or as outers.
	TSet<const UObject*> FindReachableCandidates(const TArray<UObject*>& Candidates, UObject* Asset, EObjectFlags TopLevelFlags)
	{
		const TSet<const UObject*> CandidateSet(TArray<const UObject*>(Candidates.GetData(), Candidates.Num()));
		TSet<const UObject*> Reached;
		TArray<UObject*> Pending;
		auto Reach = [&](UObject* Object)
		{
			if (Object && CandidateSet.Contains(Object) && !Reached.Contains(Object))
			{
				Reached.Add(Object);
				Pending.Add(Object);
			}
		};
		Reach(Asset);
		for (UObject* Candidate : Candidates)
		{
			if (TopLevelFlags != RF_NoFlags && Candidate->HasAnyFlags(TopLevelFlags))
			{
				Reach(Candidate);
			}
		}
		while (Pending.Num() > 0)
		{
			UObject* Object = Pending.Pop();
			Reach(Object->GetOuter());
			VisitObjectPropertyReferences(Object, [&Reach](UObject*& Reference) { Reach(Reference); });
		}
		return Reached;
	}

	// Stand-in choice: with neither an asset nor top-level flags, every object of the package is saved.
	TArray<UObject*> GatherObjectsToSave(UPackage* Package, UObject* Asset, EObjectFlags TopLevelFlags)
	{
		TArray<UObject*> Candidates = GatherSaveCandidates(Package);
		if (Asset || TopLevelFlags != RF_NoFlags)
		{
			const TSet<const UObject*> Reached = FindReachableCandidates(Candidates, Asset, TopLevelFlags);
			Candidates.RemoveAll([&Reached](const UObject* Object) { return !Reached.Contains(Object); });
		}
		return Candidates;
	}

	// Creation order, except that an outer always comes before the objects inside it.
	TArray<UObject*> OrderOutersFirst(const TArray<UObject*>& Objects, UPackage* Package)
	{
		TArray<UObject*> Ordered;
		TSet<const UObject*> Emitted;
		Emitted.Add(Package);
		TFunction<void(UObject*)> Emit = [&](UObject* Object)
		{
			if (Emitted.Contains(Object))
			{
				return;
			}
			Emit(Object->GetOuter());
			Emitted.Add(Object);
			Ordered.Add(Object);
		};
		for (UObject* Object : Objects)
		{
			Emit(Object);
		}
		return Ordered;
	}

	void ExportObjectProperties(UObject* Object, TArray<TPair<FString, FString>>& OutProperties)
	{
		for (FProperty* Property = Object->GetClass()->PropertyLink; Property; Property = Property->PropertyLinkNext)
		{
			if (!Property->ShouldPort(PPF_None))
			{
				continue;
			}
			// A struct is written against its own defaults, as arrays write their struct elements: a field left out is one
			// the struct's constructor gives back on load (a false bool whose default is true is written).
			void* StructDefaults = CastField<FStructProperty>(Property) ? Property->AllocateAndInitializeValue() : nullptr;
			for (int32 ArrayIndex = 0; ArrayIndex < Property->ArrayDim; ++ArrayIndex)
			{
				FString Value;
				Property->ExportTextItem_Direct(Value, Property->ContainerPtrToValuePtr<void>(Object, ArrayIndex), StructDefaults, Object, PPF_None);
				const FString Key = Property->ArrayDim > 1 ? FString::Printf(TEXT("%s[%d]"), *Property->GetName(), ArrayIndex) : Property->GetName();
				OutProperties.Emplace(Key, Value);
			}
			if (StructDefaults)
			{
				Property->DestroyAndFreeValue(StructDefaults);
			}
		}
	}

	FSavedPackageData DescribePackage(UPackage* Package, const TArray<UObject*>& Objects)
	{
		FSavedPackageData Data;
		Data.PackageName = Package->GetName();
		Data.PackageFlags = Package->GetPackageFlags() & ~uint32(PKG_TransientFlags);
		for (UObject* Object : Objects)
		{
			FSavedObjectEntry& Entry = Data.Objects.AddDefaulted_GetRef();
			Entry.Name = Object->GetFName();
			Entry.OuterPath = Object->GetOuter() == Package ? FString() : GetPathWithinPackage(Object->GetOuter(), Package);
			Entry.ClassPath = Object->GetClass()->GetPathName();
			Entry.Flags = Object->GetMaskedFlags(SavedObjectFlags);
			ExportObjectProperties(Object, Entry.Properties);
		}
		return Data;
	}

	// Writes "<File>.tmp" then renames it over the file, so a failed save never damages the previous file.
	bool WriteFileAtomically(const FString& Filename, const std::string& Text, FString& OutError)
	{
		IFileManager& FileManager = IFileManager::Get();
		const FString Directory = FPaths::GetPath(Filename);
		if (!Directory.IsEmpty() && !FileManager.MakeDirectory(*Directory, true))
		{
			OutError = FString::Printf(TEXT("cannot create the directory '%s'"), *Directory);
			return false;
		}
		const FString TempFilename = Filename + TEXT(".tmp");
		if (FileManager.DirectoryExists(*TempFilename))
		{
			OutError = FString::Printf(TEXT("the temporary file '%s' is blocked by a directory"), *TempFilename);
			return false;
		}
		const TArrayView<const uint8> Bytes(reinterpret_cast<const uint8*>(Text.data()), int32(Text.size()));
		if (!FFileHelper::SaveArrayToFile(Bytes, *TempFilename))
		{
			OutError = FString::Printf(TEXT("cannot write the temporary file '%s'"), *TempFilename);
			FileManager.Delete(*TempFilename, false, true, true);
			return false;
		}
		if (!FileManager.Move(*Filename, *TempFilename, true, true, false, true))
		{
			OutError = FString::Printf(TEXT("cannot replace '%s' with the temporary file"), *Filename);
			FileManager.Delete(*TempFilename, false, true, true);
			return false;
		}
		return true;
	}

	FSavePackageResultStruct FailSave(const FSavePackageArgs& SaveArgs, const FString& PackageName, const FString& Reason)
	{
		FOutputDevice* ErrorDevice = SaveArgs.Error ? SaveArgs.Error : GError;
		if (ErrorDevice && !(SaveArgs.SaveFlags & SAVE_NoError))
		{
			ErrorDevice->Logf(ELogVerbosity::Error, TEXT("Error saving '%s': %s"), *PackageName, *Reason);
		}
		return ESavePackageResult::Error;
	}

	FString ValidateSaveRequest(UPackage* InOuter, UObject* InAsset, const TCHAR* Filename)
	{
		if (!InOuter || !IsValid(InOuter))
		{
			return TEXT("no package to save");
		}
		if (InAsset && (!IsValid(InAsset) || !InAsset->IsIn(InOuter)))
		{
			return FString::Printf(TEXT("the asset '%s' is not in the package"), *GetPathNameSafe(InAsset));
		}
		if (!Filename || !*Filename)
		{
			return TEXT("no file name");
		}
		return FString();
	}
}

using namespace UE::CoreUObject::StandIn;
using namespace UE::CoreUObject::StandIn::Private;

FSavePackageResultStruct UPackage::Save(UPackage* InOuter, UObject* InAsset, const TCHAR* Filename, const FSavePackageArgs& SaveArgs)
{
	// The caller's package and asset stay alive through a stress collection, as nothing collects them mid-save in the engine.
	const TStrongObjectPtr<UPackage> KeepPackage(InOuter);
	const TStrongObjectPtr<UObject> KeepAsset(InAsset);
	CollectGarbageForStress();

	const FString Problem = ValidateSaveRequest(InOuter, InAsset, Filename);
	if (!Problem.IsEmpty())
	{
		return FailSave(SaveArgs, InOuter ? InOuter->GetName() : FString(TEXT("None")), Problem);
	}

	InOuter->SetPackageFlags(PKG_IsSaving);
	const TArray<UObject*> Objects = OrderOutersFirst(GatherObjectsToSave(InOuter, InAsset, SaveArgs.TopLevelFlags), InOuter);
	for (UObject* Object : Objects)
	{
		Object->PreSave(SaveArgs.TargetPlatform);
	}
	const std::string Text = WritePackageFileText(DescribePackage(InOuter, Objects));
	InOuter->ClearPackageFlags(PKG_IsSaving);

	FString WriteError;
	const FString FilenameString(Filename);
	if (!WriteFileAtomically(FilenameString, Text, WriteError))
	{
		return FailSave(SaveArgs, InOuter->GetName(), WriteError);
	}

	InOuter->ClearPackageFlags(PKG_NewlyCreated);
	InOuter->SetLoadedFilename(FilenameString);
	InOuter->MarkAsFullyLoaded();
	if (!(SaveArgs.SaveFlags & SAVE_KeepDirty))
	{
		InOuter->SetDirtyFlag(false);
	}
	PackageSavedEvent.Broadcast(FilenameString, InOuter);
	return FSavePackageResultStruct(ESavePackageResult::Success, int64(Text.size()));
}
