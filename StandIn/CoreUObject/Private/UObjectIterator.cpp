#include "UObject/UObjectIterator.h"

namespace UE::CoreUObject::StandIn
{
	FObjectIteratorSnapshot::FObjectIteratorSnapshot(const UClass* InClass, bool bIncludeDerivedClasses, EObjectFlags ExclusionFlags, EInternalObjectFlags InternalExclusionFlags)
	{
		TArray<UObject*> Found;
		GetObjectsOfClass(InClass, Found, bIncludeDerivedClasses, ExclusionFlags,
			InternalExclusionFlags | EInternalObjectFlags::Garbage | EInternalObjectFlags::PendingConstruction);
		Objects.Reserve(Found.Num());
		for (UObject* Object : Found)
		{
			Objects.Add(FWeakObjectPtr(Object));
		}
	}

	bool FObjectIteratorSnapshot::Advance()
	{
		Current = nullptr;
		while (++Index < Objects.Num())
		{
			Current = Objects[Index].Get();
			if (Current)
			{
				return true;
			}
		}
		Index = Objects.Num();
		return false;
	}
}
