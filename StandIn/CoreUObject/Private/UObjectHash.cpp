#include "UObject/UObjectHash.h"

#include "UObject/Class.h"
#include "UObject/Object.h"
#include "UObject/Package.h"
#include "UObject/UObjectArray.h"

#include <algorithm>

namespace UE::CoreUObject::StandIn::Private
{
	bool PassesExclusion(const UObject* Object, EObjectFlags ExcludeFlags, EInternalObjectFlags ExclusionInternalFlags)
	{
		const FUObjectItem* Item = GUObjectArray.ObjectToObjectItem(Object);
		return Item && !Item->HasAnyFlags(ExclusionInternalFlags | EInternalObjectFlags::Unreachable) && !Object->HasAnyFlags(ExcludeFlags);
	}

	// Object lists of several classes merged into one creation order.
	void CollectObjectsOfClasses(TArrayView<const UClass* const> Classes, TArray<UObject*>& OutObjects, EObjectFlags ExcludeFlags, EInternalObjectFlags ExclusionInternalFlags)
	{
		const int32 StartNum = OutObjects.Num();
		for (const UClass* Class : Classes)
		{
			ForEachObjectOfExactClass(Class, [&](UObject* Object)
			{
				if (PassesExclusion(Object, ExcludeFlags, ExclusionInternalFlags))
				{
					OutObjects.Add(Object);
				}
				return true;
			});
		}
		if (Classes.Num() > 1)
		{
			std::sort(OutObjects.GetData() + StartNum, OutObjects.GetData() + OutObjects.Num(), [](const UObject* A, const UObject* B)
			{
				return GetObjectCreationOrder(A) < GetObjectCreationOrder(B);
			});
		}
	}

	// Classes that have objects and are ClassToLookFor or derive from it.
	TArray<const UClass*> GetClassesToSearch(const UClass* ClassToLookFor, bool bIncludeDerivedClasses)
	{
		TArray<const UClass*> Result;
		if (!bIncludeDerivedClasses)
		{
			Result.Add(ClassToLookFor);
			return Result;
		}
		TArray<const UClass*> ClassesWithObjects;
		GetClassesWithObjects(ClassesWithObjects);
		for (const UClass* Candidate : ClassesWithObjects)
		{
			if (Candidate->IsChildOf(ClassToLookFor))
			{
				Result.Add(Candidate);
			}
		}
		return Result;
	}

	void CollectObjectsOfClass(const UClass* ClassToLookFor, TArray<UObject*>& OutObjects, bool bIncludeDerivedClasses, EObjectFlags ExcludeFlags, EInternalObjectFlags ExclusionInternalFlags)
	{
		if (!ClassToLookFor)
		{
			return;
		}
		if (bIncludeDerivedClasses && ClassToLookFor == UObject::StaticClass())
		{
			ForEachHashedObject([&](UObject* Object)
			{
				if (PassesExclusion(Object, ExcludeFlags, ExclusionInternalFlags))
				{
					OutObjects.Add(Object);
				}
				return true;
			});
			return;
		}
		const TArray<const UClass*> Classes = GetClassesToSearch(ClassToLookFor, bIncludeDerivedClasses);
		CollectObjectsOfClasses(Classes, OutObjects, ExcludeFlags, ExclusionInternalFlags);
	}

	void CollectObjectsWithOuter(const UObject* Outer, TArray<UObject*>& Results, bool bIncludeNestedObjects, EObjectFlags ExclusionFlags, EInternalObjectFlags ExclusionInternalFlags)
	{
		if (!Outer)
		{
			return;
		}
		int32 RangeStart = Results.Num();
		auto AddInnersOf = [&](const UObject* InOuter)
		{
			ForEachDirectInner(InOuter, [&](UObject* Inner)
			{
				if (PassesExclusion(Inner, ExclusionFlags, ExclusionInternalFlags))
				{
					Results.Add(Inner);
				}
				return true;
			});
		};
		AddInnersOf(Outer);
		while (bIncludeNestedObjects && RangeStart != Results.Num())
		{
			const int32 RangeEnd = Results.Num();
			for (int32 Index = RangeStart; Index < RangeEnd; ++Index)
			{
				AddInnersOf(Results[Index]);
			}
			RangeStart = RangeEnd;
		}
	}
}

using namespace UE::CoreUObject::StandIn;
using namespace UE::CoreUObject::StandIn::Private;

UObject* StaticFindObjectFastInternal(const UClass* Class, const UObject* InOuter, FName InName, bool bExactClass, EObjectFlags ExcludeFlags, EInternalObjectFlags ExclusiveInternalFlags)
{
	UObject* Found = FindObjectFast(const_cast<UObject*>(InOuter), InName, const_cast<UClass*>(Class), bExactClass);
	return Found && PassesExclusion(Found, ExcludeFlags, ExclusiveInternalFlags) ? Found : nullptr;
}

void GetObjectsWithOuter(const UObject* Outer, TArray<UObject*>& Results, bool bIncludeNestedObjects, EObjectFlags ExclusionFlags, EInternalObjectFlags ExclusionInternalFlags)
{
	CollectObjectsWithOuter(Outer, Results, bIncludeNestedObjects, ExclusionFlags, ExclusionInternalFlags);
}

void ForEachObjectWithOuter(const UObject* Outer, TFunctionRef<void(UObject*)> Operation, bool bIncludeNestedObjects, EObjectFlags ExclusionFlags, EInternalObjectFlags ExclusionInternalFlags)
{
	TArray<UObject*> Objects;
	CollectObjectsWithOuter(Outer, Objects, bIncludeNestedObjects, ExclusionFlags, ExclusionInternalFlags);
	for (UObject* Object : Objects)
	{
		Operation(Object);
	}
}

void ForEachObjectWithOuterBreakable(const UObject* Outer, TFunctionRef<bool(UObject*)> Operation, bool bIncludeNestedObjects, EObjectFlags ExclusionFlags, EInternalObjectFlags ExclusionInternalFlags)
{
	TArray<UObject*> Objects;
	CollectObjectsWithOuter(Outer, Objects, bIncludeNestedObjects, ExclusionFlags, ExclusionInternalFlags);
	for (UObject* Object : Objects)
	{
		if (!Operation(Object))
		{
			return;
		}
	}
}

UObject* FindObjectWithOuter(const UObject* Outer, const UClass* ClassToLookFor, FName NameToLookFor)
{
	if (!Outer)
	{
		return nullptr;
	}
	if (!NameToLookFor.IsNone())
	{
		return StaticFindObjectFastInternal(ClassToLookFor, Outer, NameToLookFor);
	}
	UObject* Result = nullptr;
	ForEachDirectInner(Outer, [&](UObject* Inner)
	{
		if (PassesExclusion(Inner, RF_NoFlags, EInternalObjectFlags::None) && (!ClassToLookFor || Inner->IsA(ClassToLookFor)))
		{
			Result = Inner;
			return false;
		}
		return true;
	});
	return Result;
}

void GetObjectsWithPackage(const UPackage* Outer, TArray<UObject*>& Results, bool bIncludeNestedObjects, EObjectFlags ExclusionFlags, EInternalObjectFlags ExclusionInternalFlags)
{
	CollectObjectsWithOuter(Outer, Results, bIncludeNestedObjects, ExclusionFlags, ExclusionInternalFlags);
}

void ForEachObjectWithPackage(const UPackage* Outer, TFunctionRef<bool(UObject*)> Operation, bool bIncludeNestedObjects, EObjectFlags ExclusionFlags, EInternalObjectFlags ExclusionInternalFlags)
{
	ForEachObjectWithOuterBreakable(Outer, Operation, bIncludeNestedObjects, ExclusionFlags, ExclusionInternalFlags);
}

void GetObjectsOfClass(const UClass* ClassToLookFor, TArray<UObject*>& Results, bool bIncludeDerivedClasses, EObjectFlags ExcludeFlags, EInternalObjectFlags ExclusionInternalFlags)
{
	CollectObjectsOfClass(ClassToLookFor, Results, bIncludeDerivedClasses, ExcludeFlags, ExclusionInternalFlags);
}

void ForEachObjectOfClass(const UClass* ClassToLookFor, TFunctionRef<void(UObject*)> Operation, bool bIncludeDerivedClasses, EObjectFlags ExcludeFlags, EInternalObjectFlags ExclusionInternalFlags)
{
	TArray<UObject*> Objects;
	CollectObjectsOfClass(ClassToLookFor, Objects, bIncludeDerivedClasses, ExcludeFlags, ExclusionInternalFlags);
	for (UObject* Object : Objects)
	{
		Operation(Object);
	}
}

void ForEachObjectOfClasses(TArrayView<const UClass* const> ClassesToLookFor, TFunctionRef<void(UObject*)> Operation, EObjectFlags ExcludeFlags, EInternalObjectFlags ExclusionInternalFlags)
{
	TArray<UObject*> Objects;
	CollectObjectsOfClasses(ClassesToLookFor, Objects, ExcludeFlags, ExclusionInternalFlags);
	for (UObject* Object : Objects)
	{
		Operation(Object);
	}
}

void GetDerivedClasses(const UClass* ClassToLookFor, TArray<UClass*>& Results, bool bRecursive)
{
	if (!ClassToLookFor)
	{
		return;
	}
	TArray<UObject*> AllClasses;
	CollectObjectsOfClass(UClass::StaticClass(), AllClasses, true, RF_NoFlags, EInternalObjectFlags::None);
	for (UObject* Object : AllClasses)
	{
		UClass* Candidate = static_cast<UClass*>(Object);
		if (Candidate == ClassToLookFor)
		{
			continue;
		}
		const bool bMatches = bRecursive ? Candidate->IsChildOf(ClassToLookFor) : Candidate->GetSuperClass() == ClassToLookFor;
		if (bMatches)
		{
			Results.Add(Candidate);
		}
	}
}

EInternalObjectFlags UE::GetAsyncLoadingInternalFlagsExclusion()
{
	// Loading is synchronous on the game thread here; the flags of the engine's asynchronous loader are still excluded.
	return EInternalObjectFlags::AsyncLoadingPhase1 | EInternalObjectFlags::AsyncLoadingPhase2;
}
