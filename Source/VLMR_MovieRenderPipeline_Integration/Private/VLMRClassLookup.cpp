#include "VLMRClassLookup.h"

#include "UObject/Class.h"
#include "VLMRClassLookupCache.h"

namespace VLMR
{
	// The first candidate, in order, whose name passes the test and whose class is still alive.
	template<typename TNameTest>
	static UClass* FindFirstCandidate(const TArray<FClassCandidate>& Candidates, TNameTest NameTest)
	{
		for (const FClassCandidate& Candidate : Candidates)
		{
			if (NameTest(Candidate.Name))
			{
				if (UClass* Class = Candidate.Class.Get(true))
				{
					return Class;
				}
			}
		}
		return nullptr;
	}

	TArray<UClass*> CollectClassesDerivedFrom(const UClass* BaseClass, EClassFlags ExcludedFlags)
	{
		FClassLookupCache CallCache;
		TArray<UClass*> Classes;
		for (const FClassCandidate& Candidate : FClassLookupCache::GetModuleCacheOr(CallCache).GetCandidates(BaseClass, ExcludedFlags))
		{
			if (UClass* Class = Candidate.Class.Get(true))
			{
				Classes.Add(Class);
			}
		}
		return Classes;
	}

	UClass* ResolveClassByScriptName(const FString& Name, const UClass* BaseClass, EClassFlags ExcludedFlags)
	{
		const FString Prefixed = Name.StartsWith(TEXT("U"), ESearchCase::IgnoreCase) ? Name : TEXT("U") + Name;
		const FString Unprefixed = Prefixed.RightChop(1);

		// Both passes walk the same candidates: nothing changes the classes in between.
		FClassLookupCache CallCache;
		const TArray<FClassCandidate>& Candidates = FClassLookupCache::GetModuleCacheOr(CallCache).GetCandidates(BaseClass, ExcludedFlags);
		UClass* Exact = FindFirstCandidate(Candidates, [&](const FString& ClassName)
		{
			return ClassName.Equals(Prefixed, ESearchCase::IgnoreCase) || ClassName.Equals(Unprefixed, ESearchCase::IgnoreCase);
		});
		return Exact ? Exact : FindFirstCandidate(Candidates, [&](const FString& ClassName)
		{
			return ClassName.Contains(Unprefixed, ESearchCase::IgnoreCase);
		});
	}
}
