#include "UObject/GarbageCollection.h"

#include "ObjectReferenceVisiting.h"
#include "HAL/UnrealMemory.h"
#include "UObject/Class.h"
#include "UObject/GCObject.h"
#include "UObject/Object.h"
#include "UObject/UObjectArray.h"
#include "UObject/UnrealType.h"

DEFINE_LOG_CATEGORY_STATIC(LogGarbage, Log, All);

namespace UE::CoreUObject::StandIn::Private
{
	bool& GetIsCollectingFlag()
	{
		static bool bIsCollecting = false;
		return bIsCollecting;
	}

	int32& GetCollectionCount()
	{
		static int32 CollectionCount = 0;
		return CollectionCount;
	}

	/** Marks what it is given and queues it for tracing; references to garbage are set to null when allowed. */
	class FGarbageCollectionMarker final : public ::FReferenceCollector
	{
	public:
		FGarbageCollectionMarker()
		{
			Reached.SetNumZeroed(GUObjectArray.GetObjectArrayNum());
		}

		void MarkRoot(UObject* Object)
		{
			MarkReachable(Object);
		}

		void MarkWithoutElimination(UObject* Object)
		{
			if (Object && GUObjectArray.IsValid(Object))
			{
				MarkReachable(Object);
			}
		}

		/** Objects created while marking (past the slots known at the start) count as reached. */
		bool IsReached(int32 Index) const { return !Reached.IsValidIndex(Index) || Reached[Index] != 0; }

		void TraceAll()
		{
			while (Pending.Num() > 0)
			{
				UObject* Object = Pending.Pop();
				TraceObject(Object);
			}
		}

	protected:
		virtual void HandleObjectReference(UObject*& InObject, const UObject* InReferencingObject, const FProperty* InReferencingProperty) override
		{
			if (!InObject)
			{
				return;
			}
			const FUObjectItem* Item = GUObjectArray.ObjectToObjectItem(InObject);
			if (!Item)
			{
				return;
			}
			if (Item->IsGarbage() && IsEliminatingReferencesAllowed())
			{
				InObject = nullptr;
				return;
			}
			MarkReachable(InObject);
		}

	private:
		void MarkReachable(UObject* Object)
		{
			const int32 Index = GUObjectArray.ObjectToIndex(Object);
			if (Reached.IsValidIndex(Index) && Reached[Index] == 0)
			{
				Reached[Index] = 1;
				Pending.Add(Object);
			}
		}

		void TraceObject(UObject* Object)
		{
			MarkWithoutElimination(Object->GetOuter());
			UClass* Class = Object->GetClass();
			MarkWithoutElimination(Class);
			if (!Class)
			{
				return;
			}
			VisitObjectPropertyReferences(Object, [this](UObject*& Reference)
			{
				HandleObjectReference(Reference, nullptr, nullptr);
			});
			if (Class->ClassAddReferencedObjects)
			{
				Class->ClassAddReferencedObjects(Object, *this);
			}
			if (Object->IsA(UClass::StaticClass()))
			{
				MarkWithoutElimination(static_cast<UClass*>(Object)->GetDefaultObject(false));
			}
		}

		TArray<uint8> Reached;
		TArray<UObject*> Pending;
	};

	bool IsRoot(const FUObjectItem& Item, EObjectFlags KeepFlags)
	{
		return Item.HasAnyFlags(EInternalObjectFlags::RootSet | EInternalObjectFlags::RefCounted | EInternalObjectFlags::Native | EInternalObjectFlags::PendingConstruction)
			|| Item.RefCount > 0
			|| (KeepFlags != RF_NoFlags && Item.Object->HasAnyFlags(KeepFlags));
	}

	void MarkRoots(FGarbageCollectionMarker& Marker, EObjectFlags KeepFlags)
	{
		const int32 NumSlots = GUObjectArray.GetObjectArrayNum();
		for (int32 Index = 0; Index < NumSlots; ++Index)
		{
			const FUObjectItem* Item = GUObjectArray.IndexToObject(Index);
			if (Item && Item->Object && IsRoot(*Item, KeepFlags))
			{
				Marker.MarkRoot(Item->Object);
			}
		}
		FGCObject::ForEachGCObject([&Marker](FGCObject& GCObject)
		{
			Marker.AllowEliminatingReferences(true);
			GCObject.AddReferencedObjects(Marker);
		});
		Marker.AllowEliminatingReferences(true);
	}

	TArray<UObject*> GatherUnreachableObjects(const FGarbageCollectionMarker& Marker)
	{
		TArray<UObject*> Unreachable;
		const int32 NumSlots = GUObjectArray.GetObjectArrayNum();
		for (int32 Index = 0; Index < NumSlots; ++Index)
		{
			FUObjectItem* Item = GUObjectArray.IndexToObject(Index);
			if (Item && Item->Object && !Marker.IsReached(Index))
			{
				Item->SetUnreachable();
				Unreachable.Add(Item->Object);
			}
		}
		return Unreachable;
	}

	void ConditionalFinishDestroy(UObject* Object)
	{
		if (!Object->HasAnyFlags(RF_FinishDestroyed))
		{
			Object->SetFlags(RF_FinishDestroyed);
			Object->FinishDestroy();
		}
	}

	void DestroyAndFree(UObject* Object)
	{
		GUObjectArray.FreeUObjectIndex(Object);
		Object->~UObject();
		FMemory::Free(Object);
	}

	void PurgeUnreachableObjects(const TArray<UObject*>& Unreachable)
	{
		for (UObject* Object : Unreachable)
		{
			Object->ConditionalBeginDestroy();
		}
		for (UObject* Object : Unreachable)
		{
			ConditionalFinishDestroy(Object);
		}
		for (UObject* Object : Unreachable)
		{
			DestroyAndFree(Object);
		}
	}

	void RunCollection(EObjectFlags KeepFlags)
	{
		FCoreUObjectDelegates::GetPreGarbageCollectDelegate().Broadcast();
		bool& bIsCollecting = GetIsCollectingFlag();
		bIsCollecting = true;
		{
			FGarbageCollectionMarker Marker;
			MarkRoots(Marker, KeepFlags);
			Marker.TraceAll();
			const TArray<UObject*> Unreachable = GatherUnreachableObjects(Marker);
			UE_LOG(LogGarbage, Log, TEXT("Collecting garbage: %d objects unreachable"), Unreachable.Num());
			PurgeUnreachableObjects(Unreachable);
		}
		++GetCollectionCount();
		bIsCollecting = false;
		FCoreUObjectDelegates::GetPostGarbageCollect().Broadcast();
	}
}

using namespace UE::CoreUObject::StandIn::Private;

void CollectGarbage(EObjectFlags KeepFlags, bool bPerformFullPurge)
{
	TryCollectGarbage(KeepFlags, bPerformFullPurge);
}

bool TryCollectGarbage(EObjectFlags KeepFlags, bool bPerformFullPurge)
{
	if (GetIsCollectingFlag())
	{
		return false;
	}
	RunCollection(KeepFlags);
	return true;
}

bool IsGarbageCollecting()
{
	return GetIsCollectingFlag();
}

int32 GetNumGarbageCollections()
{
	return GetCollectionCount();
}
