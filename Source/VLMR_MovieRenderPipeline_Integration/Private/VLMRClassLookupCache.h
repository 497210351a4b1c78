// The classes a lookup walks, kept between calls until the engine's registered classes change.
#pragma once

#include "CoreMinimal.h"
#include "UObject/ObjectMacros.h"
#include "UObject/WeakObjectPtrTemplates.h"

class UClass;

namespace VLMR
{
	// A class a lookup may return, with the name lookups compare.
	struct FClassCandidate
	{
		TWeakObjectPtr<UClass> Class;
		FString Name;
	};

	// The children of a base class (itself included) that carry none of a set of class flags, in the engine's
	// enumeration order, per base class and flags. Every entry is dropped when the engine's version numbers of
	// registered classes (all, and native) change; classes are held weakly, so a stale one reads as null.
	class FClassLookupCache
	{
	public:
		const TArray<FClassCandidate>& GetCandidates(const UClass* BaseClass, EClassFlags ExcludedFlags);
		void Reset();

		// The cache the loaded module keeps between calls, else Fallback (which then lives only as long as the call).
		static FClassLookupCache& GetModuleCacheOr(FClassLookupCache& Fallback);
		static void SetModuleCache(FClassLookupCache* InModuleCache);

	private:
		// The base class is only compared, never followed: every entry is dropped once any class is unregistered.
		struct FKey
		{
			const UClass* BaseClass = nullptr;
			EClassFlags ExcludedFlags = CLASS_None;

			bool operator==(const FKey& Other) const { return BaseClass == Other.BaseClass && ExcludedFlags == Other.ExcludedFlags; }
			friend uint32 GetTypeHash(const FKey& Key) { return HashCombine(GetTypeHash(Key.BaseClass), GetTypeHash(uint32(Key.ExcludedFlags))); }
		};

		struct FEntry
		{
			TArray<FClassCandidate> Candidates;
			// A candidate was still being loaded and was left out: the entry is rebuilt on its next use.
			bool bHasClassesBeingLoaded = false;
		};

		static FEntry BuildEntry(const UClass* BaseClass, EClassFlags ExcludedFlags);
		void DropEntriesIfClassesChanged();

		TMap<FKey, FEntry> Entries;
		uint64 ClassesVersion = 0;
		uint64 NativeClassesVersion = 0;
	};
}
