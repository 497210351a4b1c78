#include "UObject/UObjectGlobals.h"

#include "Misc/PackageName.h"
#include "ObjectFindInternal.h"
#include "PackagePaths.h"
#include "UObject/Class.h"
#include "UObject/GCObject.h"
#include "UObject/Package.h"
#include "UObject/StandInGarbageCollectionStress.h"
#include "UObject/StandInPackageFile.h"
#include "UObject/StrongObjectPtr.h"
#include "UObject/UObjectArray.h"
#include "UObject/UnrealType.h"

DEFINE_LOG_CATEGORY_STATIC(LogLinker, Log, All);
DEFINE_LOG_CATEGORY_STATIC(LogStreaming, Log, All);

namespace UE::CoreUObject::StandIn::Private
{
	namespace
	{
		TArray<const UPackage*>& GetPackagesBeingLoaded()
		{
			static TArray<const UPackage*> PackagesBeingLoaded;
			return PackagesBeingLoaded;
		}

		bool IsBeingLoaded(const UPackage* Package)
		{
			return GetPackagesBeingLoaded().Contains(Package);
		}

		bool ShouldWarn(uint32 LoadFlags)
		{
			return !(LoadFlags & (LOAD_NoWarn | LOAD_Quiet));
		}

		// "Name" or "Name[Index]".
		bool ParsePropertyKey(const FString& Key, FString& OutName, int32& OutIndex)
		{
			OutIndex = 0;
			int32 BracketIndex = INDEX_NONE;
			if (!Key.FindChar(TEXT('['), BracketIndex))
			{
				OutName = Key;
				return !OutName.IsEmpty();
			}
			if (!Key.EndsWith(TEXT("]"), ESearchCase::CaseSensitive) || BracketIndex == 0)
			{
				return false;
			}
			const FString IndexText = Key.Mid(BracketIndex + 1, Key.Len() - BracketIndex - 2);
			if (IndexText.IsEmpty() || !IndexText.IsNumeric() || IndexText.Contains(TEXT(".")) || IndexText.Contains(TEXT("-")))
			{
				return false;
			}
			OutName = Key.Left(BracketIndex);
			OutIndex = FCString::Atoi(*IndexText);
			return true;
		}

		/** Builds the objects of one package from its file data; keeps them alive while it works. */
		class FPackageLoader final : public FGCObject
		{
		public:
			FPackageLoader(UPackage* InPackage, const FSavedPackageData& InData)
				: Package(InPackage)
				, Data(InData)
			{
			}

			void Load()
			{
				GetPackagesBeingLoaded().Add(Package);
				CreateObjects();
				for (int32 Index = 0; Index < LoadedObjects.Num(); ++Index)
				{
					ImportProperties(LoadedObjects[Index], Data.Objects[LoadedEntryIndices[Index]]);
				}
				FinishLoading();
				GetPackagesBeingLoaded().RemoveSingle(Package);
			}

			virtual void AddReferencedObjects(::FReferenceCollector& Collector) override
			{
				const bool bWasAllowed = Collector.IsEliminatingReferencesAllowed();
				Collector.AllowEliminatingReferences(false);
				Collector.AddReferencedObject(Package);
				Collector.AddReferencedObjects(LoadedObjects);
				Collector.AllowEliminatingReferences(bWasAllowed);
			}

			virtual FString GetReferencerName() const override
			{
				return TEXT("FPackageLoader");
			}

		private:
			void CreateObjects()
			{
				for (int32 EntryIndex = 0; EntryIndex < Data.Objects.Num(); ++EntryIndex)
				{
					const FSavedObjectEntry& Entry = Data.Objects[EntryIndex];
					UObject* Outer = Entry.OuterPath.IsEmpty() ? Package : ObjectsByPath.FindRef(Entry.OuterPath);
					if (!Outer)
					{
						UE_LOG(LogLinker, Error, TEXT("Unable to load %s in %s because its outer (%s) was not loaded"), *Entry.Name.ToString(), *Package->GetName(), *Entry.OuterPath);
						continue;
					}
					if (UObject* Object = CreateObject(Entry, Outer))
					{
						ObjectsByPath.Add(AppendPathWithinPackage(Entry.OuterPath, Entry.Name), Object);
						LoadedObjects.Add(Object);
						LoadedEntryIndices.Add(EntryIndex);
					}
				}
			}

			UObject* CreateObject(const FSavedObjectEntry& Entry, UObject* Outer)
			{
				UClass* Class = FindClass(Entry.ClassPath);
				if (!Class)
				{
					UE_LOG(LogLinker, Error, TEXT("Unable to load %s with outer %s because its class (%s) does not exist"), *Entry.Name.ToString(), *Outer->GetPathName(), *Entry.ClassPath);
					return nullptr;
				}
				// Default subobjects made by the outer's constructor are loaded into, not made again.
				if (UObject* Existing = UE::CoreUObject::StandIn::FindObjectFast(Outer, Entry.Name))
				{
					if (Existing->GetClass() == Class && IsValid(Existing))
					{
						Existing->SetFlags(Entry.Flags);
						return Existing;
					}
					UE_LOG(LogLinker, Error, TEXT("Unable to load %s with outer %s: an object of class %s already has that name"), *Entry.Name.ToString(), *Outer->GetPathName(), *Existing->GetClass()->GetName());
					return nullptr;
				}
				return NewObject<UObject>(Outer, Class, Entry.Name, Entry.Flags | RF_WasLoaded);
			}

			UClass* FindClass(const FString& ClassPath)
			{
				UObject* Found = FindObjectByPath(UClass::StaticClass(), nullptr, ClassPath, false);
				if (!Found && !FPackageName::IsScriptPackage(ClassPath) && HasObjectPart(ClassPath))
				{
					Found = StaticLoadClass(UObject::StaticClass(), nullptr, *ClassPath, nullptr, LOAD_NoWarn);
				}
				return Found ? static_cast<UClass*>(Found) : nullptr;
			}

			void ImportProperties(UObject* Object, const FSavedObjectEntry& Entry)
			{
				UClass* Class = Object->GetClass();
				for (const TPair<FString, FString>& Saved : Entry.Properties)
				{
					FString PropertyName;
					int32 ArrayIndex = 0;
					FProperty* Property = nullptr;
					if (ParsePropertyKey(Saved.Key, PropertyName, ArrayIndex))
					{
						Property = Class->FindPropertyByName(FName(*PropertyName));
					}
					if (!Property || ArrayIndex >= Property->ArrayDim)
					{
						UE_LOG(LogLinker, Warning, TEXT("Property %s of %s is not in class %s; its saved value is ignored"), *Saved.Key, *Object->GetPathName(), *Class->GetName());
						continue;
					}
					void* Value = Property->ContainerPtrToValuePtr<void>(Object, ArrayIndex);
					if (!Property->ImportText_Direct(*Saved.Value, Value, Object, PPF_None))
					{
						UE_LOG(LogLinker, Warning, TEXT("Cannot import the saved value of %s.%s: %s"), *Object->GetPathName(), *Saved.Key, *Saved.Value);
					}
				}
			}

			void FinishLoading()
			{
				for (UObject* Object : LoadedObjects)
				{
					Object->SetFlags(RF_WasLoaded | RF_LoadCompleted);
				}
				for (UObject* Object : LoadedObjects)
				{
					Object->PostLoad();
				}
				Package->MarkAsFullyLoaded();
				Package->SetDirtyFlag(false);
			}

			UPackage* Package;
			const FSavedPackageData& Data;
			TMap<FString, UObject*> ObjectsByPath;
			TArray<UObject*> LoadedObjects;
			TArray<int32> LoadedEntryIndices;
		};

		// The long package name from a package name, an object path or a file name; empty when there is none.
		FString ResolvePackageNameToLoad(UPackage* InOuter, const TCHAR* InLongPackageName)
		{
			FString Name = InLongPackageName ? FString(InLongPackageName) : FString();
			Name.TrimStartAndEndInline();
			if (Name.IsEmpty())
			{
				return InOuter ? InOuter->GetName() : FString();
			}
			if (!FPackageName::IsValidLongPackageName(FPackageName::ObjectPathToPackageName(Name), true, static_cast<FPackageName::EErrorCode*>(nullptr)))
			{
				FString FromFilename;
				if (FPackageName::TryConvertFilenameToLongPackageName(Name, FromFilename))
				{
					return FromFilename;
				}
			}
			return FPackageName::ObjectPathToPackageName(Name);
		}

		UPackage* LoadPackageFromFile(UPackage* InOuter, const FString& PackageName, const FString& Filename)
		{
			FSavedPackageData Data;
			FString Error;
			if (!ReadSavedPackageFile(Filename, Data, &Error))
			{
				UE_LOG(LogLinker, Error, TEXT("Failed to load '%s': %s"), *Filename, *Error);
				return nullptr;
			}
			UPackage* Package = InOuter ? InOuter : CreatePackage(*PackageName);
			if (!Package)
			{
				return nullptr;
			}
			Package->SetPackageFlagsTo(Data.PackageFlags & ~uint32(PKG_TransientFlags));
			Package->SetLoadedFilename(Filename);
			FPackageLoader Loader(Package, Data);
			Loader.Load();
			return Package;
		}

		UObject* LoadObjectByPath(UClass* Class, UObject* InOuter, const FString& RawName, uint32 LoadFlags)
		{
			const TStrongObjectPtr<UObject> KeepOuter(InOuter);
			CollectGarbageForStress();

			UClass* ObjectClass = Class ? Class : UObject::StaticClass();
			const FString Path = NormalizeObjectPathText(*RawName);
			const bool bNamesObject = InOuter != nullptr || HasObjectPart(Path) || ObjectClass->IsChildOf(UPackage::StaticClass());
			UObject* Result = nullptr;
			if (!Path.IsEmpty() && bNamesObject)
			{
				Result = FindObjectByPath(ObjectClass, InOuter, Path, false);
				if (!IsValid(Result))
				{
					const FString PackageName = InOuter ? InOuter->GetPackage()->GetName() : FPackageName::ObjectPathToPackageName(Path);
					if (!FPackageName::IsScriptPackage(PackageName))
					{
						LoadPackage(nullptr, *PackageName, LoadFlags | LOAD_NoWarn);
					}
					Result = FindObjectByPath(ObjectClass, InOuter, Path, false);
				}
			}
			if (!IsValid(Result))
			{
				if (ShouldWarn(LoadFlags))
				{
					UE_LOG(LogUObjectGlobals, Warning, TEXT("Failed to find object '%s %s'"), *ObjectClass->GetName(), *Path);
				}
				return nullptr;
			}
			return Result;
		}

		UClass* LoadClassByPath(UClass* BaseClass, UObject* InOuter, const FString& Name, uint32 LoadFlags)
		{
			UObject* Loaded = LoadObjectByPath(UClass::StaticClass(), InOuter, Name, LoadFlags);
			UClass* Class = Loaded ? static_cast<UClass*>(Loaded) : nullptr;
			if (Class && BaseClass && !Class->IsChildOf(BaseClass))
			{
				UE_LOG(LogUObjectGlobals, Error, TEXT("LoadClass: %s is not a child class of %s"), *Class->GetPathName(), *BaseClass->GetPathName());
				return nullptr;
			}
			return Class;
		}
	}
}

using namespace UE::CoreUObject::StandIn;
using namespace UE::CoreUObject::StandIn::Private;

UPackage* LoadPackage(UPackage* InOuter, const TCHAR* InLongPackageName, uint32 LoadFlags, FArchive* InReaderOverride, const FLinkerInstancingContext* InstancingContext)
{
	const TStrongObjectPtr<UPackage> KeepOuter(InOuter);
	CollectGarbageForStress();
	const FGarbageCollectionStressGuard StressGuard;

	const FString PackageName = ResolvePackageNameToLoad(InOuter, InLongPackageName);
	if (PackageName.IsEmpty() || FPackageName::IsScriptPackage(PackageName))
	{
		return PackageName.IsEmpty() ? nullptr : FindPackage(nullptr, *PackageName);
	}

	UPackage* Existing = InOuter ? InOuter : FindPackage(nullptr, *PackageName);
	if (Existing && (Existing->IsFullyLoaded() || IsBeingLoaded(Existing)))
	{
		return Existing;
	}

	FString Filename;
	if (!FPackageName::DoesPackageExist(PackageName, &Filename))
	{
		if (ShouldWarn(LoadFlags))
		{
			UE_LOG(LogStreaming, Warning, TEXT("LoadPackage: SkipPackage: %s - The package to load does not exist on disk or in the loader"), *PackageName);
		}
		return nullptr;
	}
	return LoadPackageFromFile(Existing, PackageName, Filename);
}

#if !UE_VERSION_OLDER_THAN(5, 7, 0)
UObject* StaticLoadObject(UClass* Class, UObject* InOuter, FStringView Name, FStringView Filename, uint32 LoadFlags, UPackageMap* Sandbox, bool bAllowObjectReconciliation, const FLinkerInstancingContext* InstancingContext)
{
	return LoadObjectByPath(Class, InOuter, FString(Name), LoadFlags);
}

UClass* StaticLoadClass(UClass* BaseClass, UObject* InOuter, FStringView Name, FStringView Filename, uint32 LoadFlags, UPackageMap* Sandbox)
{
	return LoadClassByPath(BaseClass, InOuter, FString(Name), LoadFlags);
}
#else
UObject* StaticLoadObject(UClass* Class, UObject* InOuter, const TCHAR* Name, const TCHAR* Filename, uint32 LoadFlags, UPackageMap* Sandbox, bool bAllowObjectReconciliation, const FLinkerInstancingContext* InstancingContext)
{
	return LoadObjectByPath(Class, InOuter, FString(Name ? Name : TEXT("")), LoadFlags);
}

UClass* StaticLoadClass(UClass* BaseClass, UObject* InOuter, const TCHAR* Name, const TCHAR* Filename, uint32 LoadFlags, UPackageMap* Sandbox)
{
	return LoadClassByPath(BaseClass, InOuter, FString(Name ? Name : TEXT("")), LoadFlags);
}
#endif
