#include "VLMRClassLookup.h"

#include "UObject/Class.h"
#include "UObject/UObjectHash.h"

namespace VLMR
{
	TArray<UObject*> EnumerateClasses()
	{
		TArray<UObject*> Classes;
		GetObjectsOfClass(UClass::StaticClass(), Classes, true, RF_ClassDefaultObject, UE::GetAsyncLoadingInternalFlagsExclusion());
		return Classes;
	}

	TArray<UClass*> CollectClassesDerivedFrom(const UClass* BaseClass, EClassFlags ExcludedFlags)
	{
		TArray<UClass*> Candidates;
		for (UObject* Object : EnumerateClasses())
		{
			UClass* Class = static_cast<UClass*>(Object);
			if (Class->IsChildOf(BaseClass) && !Class->HasAnyClassFlags(ExcludedFlags))
			{
				Candidates.Add(Class);
			}
		}
		return Candidates;
	}

	UClass* ResolveClassByScriptName(const FString& Name, const UClass* BaseClass, EClassFlags ExcludedFlags)
	{
		const FString Prefixed = Name.StartsWith(TEXT("U"), ESearchCase::IgnoreCase) ? Name : TEXT("U") + Name;
		const FString Unprefixed = Prefixed.RightChop(1);

		// Both passes walk the same enumeration: nothing changes the classes in between.
		const TArray<UClass*> Candidates = CollectClassesDerivedFrom(BaseClass, ExcludedFlags);
		for (UClass* Class : Candidates)
		{
			const FString ClassName = Class->GetName();
			if (ClassName.Equals(Prefixed, ESearchCase::IgnoreCase) || ClassName.Equals(Unprefixed, ESearchCase::IgnoreCase))
			{
				return Class;
			}
		}
		for (UClass* Class : Candidates)
		{
			if (Class->GetName().Contains(Unprefixed, ESearchCase::IgnoreCase))
			{
				return Class;
			}
		}
		return nullptr;
	}
}
