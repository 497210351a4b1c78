#include "VLMRClassLookupCache.h"

#include "UObject/Class.h"
#include "UObject/UObjectHash.h"

// The engine's counter of every registered class, Blueprint ones included, is declared by UObjectHash.h in the
// editors we know of, and a call prefers it to this template. An editor without it calls this one instead: a new
// number on every call, so that no entry outlives the lookup that built it and lookups stay right, only uncached.
template<typename... TArgs>
static uint64 GetRegisteredClassesVersionNumber(TArgs...)
{
	static uint64 CallCount = 0;
	return ++CallCount;
}

namespace VLMR
{
	static FClassLookupCache* ModuleCache = nullptr;

	FClassLookupCache& FClassLookupCache::GetModuleCacheOr(FClassLookupCache& Fallback)
	{
		return ModuleCache ? *ModuleCache : Fallback;
	}

	void FClassLookupCache::SetModuleCache(FClassLookupCache* InModuleCache)
	{
		ModuleCache = InModuleCache;
	}

	const TArray<FClassCandidate>& FClassLookupCache::GetCandidates(const UClass* BaseClass, EClassFlags ExcludedFlags)
	{
		DropEntriesIfClassesChanged();
		const FKey Key{ BaseClass, ExcludedFlags };
		FEntry* Entry = Entries.Find(Key);
		if (!Entry || Entry->bHasClassesBeingLoaded)
		{
			Entry = &Entries.Add(Key, BuildEntry(BaseClass, ExcludedFlags));
		}
		return Entry->Candidates;
	}

	void FClassLookupCache::Reset()
	{
		Entries.Empty();
	}

	void FClassLookupCache::DropEntriesIfClassesChanged()
	{
		const uint64 CurrentClassesVersion = GetRegisteredClassesVersionNumber();
		const uint64 CurrentNativeClassesVersion = GetRegisteredNativeClassesVersionNumber();
		if (CurrentClassesVersion != ClassesVersion || CurrentNativeClassesVersion != NativeClassesVersion)
		{
			Reset();
			ClassesVersion = CurrentClassesVersion;
			NativeClassesVersion = CurrentNativeClassesVersion;
		}
	}

	FClassLookupCache::FEntry FClassLookupCache::BuildEntry(const UClass* BaseClass, EClassFlags ExcludedFlags)
	{
		// Every class in memory, in the engine's enumeration order; those still being loaded are skipped, as the
		// engine's lookups outside the loader skip them, but they make the entry temporary.
		TArray<UObject*> Classes;
		GetObjectsOfClass(UClass::StaticClass(), Classes, true, RF_ClassDefaultObject);
		const EInternalObjectFlags LoadingFlags = UE::GetAsyncLoadingInternalFlagsExclusion();
		FEntry Entry;
		for (UObject* Object : Classes)
		{
			UClass* Class = static_cast<UClass*>(Object);
			if (!Class->IsChildOf(BaseClass) || Class->HasAnyClassFlags(ExcludedFlags))
			{
				continue;
			}
			if (Class->HasAnyInternalFlags(LoadingFlags))
			{
				Entry.bHasClassesBeingLoaded = true;
				continue;
			}
			Entry.Candidates.Add({ Class, Class->GetName() });
		}
		return Entry;
	}
}
