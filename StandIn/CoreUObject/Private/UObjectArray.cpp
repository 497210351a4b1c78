#include "UObject/UObjectArray.h"

#include "UObject/Class.h"
#include "UObject/Object.h"
#include "UObject/UObjectHash.h"

#include <unordered_map>

FUObjectArray GUObjectArray;

namespace UE::CoreUObject::StandIn::Private
{
	constexpr int32 ChunkSize = 64 * 1024;
	constexpr int32 MaxChunks = 2048;

	struct FObjectLinks
	{
		int32 Prev = INDEX_NONE;
		int32 Next = INDEX_NONE;
	};

	// What the hash remembers about an object, so it can be unhashed even after its name, outer or class changed.
	struct FObjectRecord
	{
		uint64 CreationOrder = 0;
		UObject* HashedOuter = nullptr;
		FName HashedName;
		const UClass* HashedClass = nullptr;
		bool bHashed = false;
		FObjectLinks NameLinks;
		FObjectLinks OuterLinks;
		FObjectLinks ClassLinks;
		FObjectLinks AllLinks;
	};

	struct FSlotChunk
	{
		FUObjectItem Items[ChunkSize];
		FObjectRecord Records[ChunkSize];
	};

	struct FObjectList
	{
		int32 First = INDEX_NONE;
		int32 Last = INDEX_NONE;
	};

	struct FNameKey
	{
		const UObject* Outer = nullptr;
		FName Name;

		bool operator==(const FNameKey& Other) const { return Outer == Other.Outer && Name == Other.Name; }
	};

	struct FNameKeyHasher
	{
		size_t operator()(const FNameKey& Key) const
		{
			return size_t(HashCombine(GetTypeHash(Key.Name), uint32(reinterpret_cast<UPTRINT>(Key.Outer) >> 4)));
		}
	};

	using FLinksMember = FObjectLinks FObjectRecord::*;

	// The array's state lives on the heap for the whole process: objects may be released during static destruction.
	struct FObjectArrayState
	{
		FSlotChunk* Chunks[MaxChunks] = {};
		int32 NumSlots = 0;
		TArray<int32> FreeIndices;
		int32 NextSerialNumber = 1;
		uint64 NextCreationOrder = 1;
		std::unordered_map<FNameKey, FObjectList, FNameKeyHasher> NameLists;
		std::unordered_map<const UObject*, FObjectList> OuterLists;
		std::unordered_map<const UClass*, FObjectList> ClassLists;
		FObjectList AllObjects;
		// Bumped whenever a class enters or leaves the hash (any class, and native classes only).
		uint64 RegisteredClassesVersion = 0;
		uint64 RegisteredNativeClassesVersion = 0;
	};

	FObjectArrayState& GetState()
	{
		static FObjectArrayState* State = new FObjectArrayState();
		return *State;
	}

	FSlotChunk* FindChunk(int32 Index)
	{
		if (Index < 0 || Index >= GetState().NumSlots)
		{
			return nullptr;
		}
		return GetState().Chunks[Index / ChunkSize];
	}

	FUObjectItem& ItemAt(int32 Index)
	{
		return GetState().Chunks[Index / ChunkSize]->Items[Index % ChunkSize];
	}

	FObjectRecord& RecordAt(int32 Index)
	{
		return GetState().Chunks[Index / ChunkSize]->Records[Index % ChunkSize];
	}

	int32 TakeNewSlot()
	{
		FObjectArrayState& State = GetState();
		if (State.FreeIndices.Num() > 0)
		{
			return State.FreeIndices.Pop();
		}
		const int32 Index = State.NumSlots;
		const int32 ChunkIndex = Index / ChunkSize;
		checkf(ChunkIndex < MaxChunks, TEXT("Maximum number of UObjects (%d) exceeded"), MaxChunks * ChunkSize);
		if (!State.Chunks[ChunkIndex])
		{
			State.Chunks[ChunkIndex] = new FSlotChunk();
		}
		++State.NumSlots;
		return Index;
	}

	int32 NextSerialNumber()
	{
		FObjectArrayState& State = GetState();
		const int32 Serial = State.NextSerialNumber;
		State.NextSerialNumber = State.NextSerialNumber == MAX_int32 ? 1 : State.NextSerialNumber + 1;
		return Serial;
	}

	// Inserts keeping the list in creation order; new objects go to the end in O(1).
	void LinkInCreationOrder(FObjectList& List, int32 Index, FLinksMember Links)
	{
		const uint64 Order = RecordAt(Index).CreationOrder;
		int32 After = List.Last;
		while (After != INDEX_NONE && RecordAt(After).CreationOrder > Order)
		{
			After = (RecordAt(After).*Links).Prev;
		}
		FObjectLinks& NewLinks = RecordAt(Index).*Links;
		NewLinks.Prev = After;
		NewLinks.Next = After == INDEX_NONE ? List.First : (RecordAt(After).*Links).Next;
		if (NewLinks.Prev == INDEX_NONE)
		{
			List.First = Index;
		}
		else
		{
			(RecordAt(NewLinks.Prev).*Links).Next = Index;
		}
		if (NewLinks.Next == INDEX_NONE)
		{
			List.Last = Index;
		}
		else
		{
			(RecordAt(NewLinks.Next).*Links).Prev = Index;
		}
	}

	void Unlink(FObjectList& List, int32 Index, FLinksMember Links)
	{
		FObjectLinks& OldLinks = RecordAt(Index).*Links;
		if (OldLinks.Prev == INDEX_NONE)
		{
			List.First = OldLinks.Next;
		}
		else
		{
			(RecordAt(OldLinks.Prev).*Links).Next = OldLinks.Next;
		}
		if (OldLinks.Next == INDEX_NONE)
		{
			List.Last = OldLinks.Prev;
		}
		else
		{
			(RecordAt(OldLinks.Next).*Links).Prev = OldLinks.Prev;
		}
		OldLinks = FObjectLinks();
	}

	template<typename TMapType, typename TKey>
	void UnlinkFromMappedList(TMapType& Map, const TKey& Key, int32 Index, FLinksMember Links)
	{
		auto Found = Map.find(Key);
		if (Found == Map.end())
		{
			return;
		}
		Unlink(Found->second, Index, Links);
		if (Found->second.First == INDEX_NONE)
		{
			Map.erase(Found);
		}
	}

	// Visits a list in order; the visitor may not change the list.
	void WalkList(const FObjectList& List, FLinksMember Links, TFunctionRef<bool(UObject*)> Visitor)
	{
		for (int32 Index = List.First; Index != INDEX_NONE; Index = (RecordAt(Index).*Links).Next)
		{
			if (!Visitor(ItemAt(Index).Object))
			{
				return;
			}
		}
	}

	bool IsClassAcceptable(const UObject* Object, const UClass* Class, bool bExactClass)
	{
		if (!Class)
		{
			return true;
		}
		const UClass* ObjectClass = Object->GetClass();
		return ObjectClass && (ObjectClass == Class || (!bExactClass && ObjectClass->IsChildOf(Class)));
	}
}

using namespace UE::CoreUObject::StandIn::Private;

void FUObjectItem::AddRef()
{
	++RefCount;
	SetFlags(EInternalObjectFlags::RefCounted);
}

void FUObjectItem::ReleaseRef()
{
	checkf(RefCount > 0, TEXT("Releasing a strong reference that was never added"));
	if (--RefCount == 0)
	{
		ClearFlags(EInternalObjectFlags::RefCounted);
	}
}

void FUObjectArray::AllocateUObjectIndex(UObject* Object, EInternalObjectFlags InitialFlags, int32 AlreadyAllocatedIndex, int32 SerialNumber)
{
	check(Object);
	const int32 Index = AlreadyAllocatedIndex >= 0 ? AlreadyAllocatedIndex : TakeNewSlot();
	checkf(FindChunk(Index) != nullptr, TEXT("Object slot %d was never allocated"), Index);
	FUObjectItem& Item = ItemAt(Index);
	// An object replaced in place (same address) keeps its slot.
	checkf(Item.Object == nullptr || Item.Object == Object, TEXT("Object slot %d is already in use"), Index);
	if (AlreadyAllocatedIndex >= 0 && Item.Object == nullptr)
	{
		GetState().FreeIndices.RemoveSingle(Index);
	}
	Item.Object = Object;
	Item.Flags = int32(InitialFlags);
	Item.ClusterRootIndex = 0;
	Item.RefCount = 0;
	Item.SerialNumber = SerialNumber > 0 ? SerialNumber : NextSerialNumber();
	RecordAt(Index) = FObjectRecord();
	RecordAt(Index).CreationOrder = GetState().NextCreationOrder++;
	Object->InternalIndex = Index;
}

void FUObjectArray::FreeUObjectIndex(UObject* Object)
{
	if (!IsValid(Object))
	{
		return;
	}
	const int32 Index = Object->InternalIndex;
	UE::CoreUObject::StandIn::UnhashObject(Object);
	FUObjectItem& Item = ItemAt(Index);
	Item = FUObjectItem();
	RecordAt(Index) = FObjectRecord();
	GetState().FreeIndices.Add(Index);
	Object->InternalIndex = INDEX_NONE;
}

int32 FUObjectArray::ObjectToIndex(const UObject* Object) const
{
	return Object ? Object->InternalIndex : INDEX_NONE;
}

FUObjectItem* FUObjectArray::IndexToObject(int32 Index) const
{
	return FindChunk(Index) ? &ItemAt(Index) : nullptr;
}

FUObjectItem* FUObjectArray::IndexToObject(int32 Index, bool bEvenIfGarbage) const
{
	FUObjectItem* Item = IndexToObject(Index);
	return Item && Item->Object && (bEvenIfGarbage || !Item->IsGarbage()) ? Item : nullptr;
}

FUObjectItem* FUObjectArray::ObjectToObjectItem(const UObject* Object) const
{
	return IsValid(Object) ? &ItemAt(Object->InternalIndex) : nullptr;
}

int32 FUObjectArray::GetSerialNumber(int32 Index) const
{
	const FUObjectItem* Item = IndexToObject(Index);
	return Item ? Item->SerialNumber : 0;
}

int32 FUObjectArray::GetObjectArrayNum() const
{
	return GetState().NumSlots;
}

int32 FUObjectArray::GetObjectArrayNumMinusAvailable() const
{
	return GetState().NumSlots - GetState().FreeIndices.Num();
}

int32 FUObjectArray::GetObjectArrayCapacity() const
{
	return MaxChunks * ChunkSize;
}

bool FUObjectArray::IsValid(const UObject* Object) const
{
	if (!Object)
	{
		return false;
	}
	const FUObjectItem* Item = IndexToObject(Object->InternalIndex);
	return Item && Item->Object == Object;
}

bool FUObjectArray::IsValid(const FUObjectItem* ObjectItem, bool bEvenIfGarbage) const
{
	if (!ObjectItem || !ObjectItem->Object || ObjectItem->IsUnreachable())
	{
		return false;
	}
	return bEvenIfGarbage || !ObjectItem->IsGarbage();
}

bool FUObjectArray::IsValidIndex(const UObject* Object) const
{
	return Object && FindChunk(Object->InternalIndex) != nullptr;
}

namespace UE::CoreUObject::StandIn::Private
{
	// A class entering or leaving the hash changes the registered classes, as the engine's class hierarchy tables do.
	void NoteClassHashChange(const UObject* Object)
	{
		const UClass* ClassOfObject = Object->GetClass();
		if (!ClassOfObject || !ClassOfObject->HasAnyCastFlag(CASTCLASS_UClass))
		{
			return;
		}
		FObjectArrayState& State = GetState();
		++State.RegisteredClassesVersion;
		if (static_cast<const UClass*>(Object)->HasAnyClassFlags(CLASS_Native))
		{
			++State.RegisteredNativeClassesVersion;
		}
	}
}

namespace UE::CoreUObject::StandIn
{
	void HashObject(UObject* Object)
	{
		checkf(GUObjectArray.IsValid(Object), TEXT("Hashing an object that has no slot in the object array"));
		const int32 Index = GUObjectArray.ObjectToIndex(Object);
		FObjectRecord& Record = RecordAt(Index);
		if (Record.bHashed)
		{
			UnhashObject(Object);
		}
		FObjectArrayState& State = GetState();
		Record.bHashed = true;
		Record.HashedOuter = Object->GetOuter();
		Record.HashedName = Object->GetFName();
		Record.HashedClass = Object->GetClass();
		LinkInCreationOrder(State.NameLists[FNameKey{ Record.HashedOuter, Record.HashedName }], Index, &FObjectRecord::NameLinks);
		LinkInCreationOrder(State.OuterLists[Record.HashedOuter], Index, &FObjectRecord::OuterLinks);
		LinkInCreationOrder(State.ClassLists[Record.HashedClass], Index, &FObjectRecord::ClassLinks);
		LinkInCreationOrder(State.AllObjects, Index, &FObjectRecord::AllLinks);
		NoteClassHashChange(Object);
	}

	void UnhashObject(UObject* Object)
	{
		if (!GUObjectArray.IsValid(Object))
		{
			return;
		}
		const int32 Index = GUObjectArray.ObjectToIndex(Object);
		FObjectRecord& Record = RecordAt(Index);
		if (!Record.bHashed)
		{
			return;
		}
		FObjectArrayState& State = GetState();
		UnlinkFromMappedList(State.NameLists, FNameKey{ Record.HashedOuter, Record.HashedName }, Index, &FObjectRecord::NameLinks);
		UnlinkFromMappedList(State.OuterLists, static_cast<const UObject*>(Record.HashedOuter), Index, &FObjectRecord::OuterLinks);
		UnlinkFromMappedList(State.ClassLists, Record.HashedClass, Index, &FObjectRecord::ClassLinks);
		Unlink(State.AllObjects, Index, &FObjectRecord::AllLinks);
		Record.bHashed = false;
		Record.HashedOuter = nullptr;
		Record.HashedName = FName();
		Record.HashedClass = nullptr;
		NoteClassHashChange(Object);
	}

	void RehashObjectClass(UObject* Object)
	{
		if (IsObjectHashed(Object))
		{
			HashObject(Object);
		}
	}

	bool IsObjectHashed(const UObject* Object)
	{
		return GUObjectArray.IsValid(Object) && RecordAt(GUObjectArray.ObjectToIndex(Object)).bHashed;
	}

	UObject* FindObjectFast(UObject* Outer, FName Name, UClass* Class, bool bExactClass)
	{
		FObjectArrayState& State = GetState();
		const auto Found = State.NameLists.find(FNameKey{ Outer, Name });
		if (Found == State.NameLists.end())
		{
			return nullptr;
		}
		UObject* GarbageMatch = nullptr;
		for (int32 Index = Found->second.First; Index != INDEX_NONE; Index = RecordAt(Index).NameLinks.Next)
		{
			const FUObjectItem& Item = ItemAt(Index);
			if (Item.IsUnreachable() || !IsClassAcceptable(Item.Object, Class, bExactClass))
			{
				continue;
			}
			if (!Item.IsGarbage())
			{
				return Item.Object;
			}
			GarbageMatch = GarbageMatch ? GarbageMatch : Item.Object;
		}
		return GarbageMatch;
	}

	void ForEachDirectInner(const UObject* Outer, TFunctionRef<bool(UObject*)> Visitor)
	{
		const auto Found = GetState().OuterLists.find(Outer);
		if (Found != GetState().OuterLists.end())
		{
			WalkList(Found->second, &FObjectRecord::OuterLinks, Visitor);
		}
	}

	void ForEachObjectOfExactClass(const UClass* Class, TFunctionRef<bool(UObject*)> Visitor)
	{
		const auto Found = GetState().ClassLists.find(Class);
		if (Found != GetState().ClassLists.end())
		{
			WalkList(Found->second, &FObjectRecord::ClassLinks, Visitor);
		}
	}

	void ForEachHashedObject(TFunctionRef<bool(UObject*)> Visitor)
	{
		WalkList(GetState().AllObjects, &FObjectRecord::AllLinks, Visitor);
	}

	void GetClassesWithObjects(TArray<const UClass*>& OutClasses)
	{
		OutClasses.Reset();
		for (const auto& Entry : GetState().ClassLists)
		{
			if (Entry.first)
			{
				OutClasses.Add(Entry.first);
			}
		}
	}

	uint64 GetObjectCreationOrder(const UObject* Object)
	{
		return GUObjectArray.IsValid(Object) ? RecordAt(GUObjectArray.ObjectToIndex(Object)).CreationOrder : 0;
	}
}

uint64 GetRegisteredClassesVersionNumber()
{
	return UE::CoreUObject::StandIn::Private::GetState().RegisteredClassesVersion;
}

uint64 GetRegisteredNativeClassesVersionNumber()
{
	return UE::CoreUObject::StandIn::Private::GetState().RegisteredNativeClassesVersion;
}
