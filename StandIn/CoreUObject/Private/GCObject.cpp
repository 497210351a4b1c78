#include "UObject/GCObject.h"

#include "ObjectReferenceVisiting.h"
#include "UObject/Class.h"

namespace UE::CoreUObject::StandIn::Private
{
	// Lives for the whole process: FGCObjects are often statics destroyed in any order at exit.
	TArray<FGCObject*>& GetGCObjectRegistry()
	{
		static TArray<FGCObject*>* Registry = new TArray<FGCObject*>();
		return *Registry;
	}
}

using namespace UE::CoreUObject::StandIn::Private;

void FReferenceCollector::AddKeyReference(const UObject* Object, const UObject* ReferencingObject, const FProperty* ReferencingProperty)
{
	UObject* Copy = const_cast<UObject*>(Object);
	const bool bWasAllowed = IsEliminatingReferencesAllowed();
	AllowEliminatingReferences(false);
	HandleObjectReference(Copy, ReferencingObject, ReferencingProperty);
	AllowEliminatingReferences(bWasAllowed);
}

void FReferenceCollector::AddReferencedObjects(const UScriptStruct*& ScriptStruct, void* StructMemory, const UObject* ReferencingObject, const FProperty* ReferencingProperty)
{
	AddReferencedObject(ScriptStruct, ReferencingObject, ReferencingProperty);
	AddPropertyReferences(ScriptStruct, StructMemory, ReferencingObject);
}

void FReferenceCollector::AddPropertyReferences(const UScriptStruct* ScriptStruct, void* StructMemory, const UObject* ReferencingObject)
{
	if (!ScriptStruct || !StructMemory)
	{
		return;
	}
	VisitStructReferences(ScriptStruct, StructMemory, [this, ReferencingObject](UObject*& Reference)
	{
		HandleObjectReference(Reference, ReferencingObject, nullptr);
	});
}

FGCObject::FGCObject()
{
	RegisterGCObject();
}

FGCObject::FGCObject(const FGCObject& Other)
{
	RegisterGCObject();
}

FGCObject::FGCObject(FGCObject&& Other)
{
	RegisterGCObject();
}

FGCObject::~FGCObject()
{
	UnregisterGCObject();
}

void FGCObject::ForEachGCObject(TFunctionRef<void(FGCObject&)> Visitor)
{
	// Referencers may be created while others report; those are visited at the next collection.
	const TArray<FGCObject*> Snapshot = GetGCObjectRegistry();
	for (FGCObject* GCObject : Snapshot)
	{
		if (GCObject->RegistryIndex != INDEX_NONE)
		{
			Visitor(*GCObject);
		}
	}
}

void FGCObject::RegisterGCObject()
{
	TArray<FGCObject*>& Registry = GetGCObjectRegistry();
	RegistryIndex = Registry.Add(this);
}

void FGCObject::UnregisterGCObject()
{
	TArray<FGCObject*>& Registry = GetGCObjectRegistry();
	if (!Registry.IsValidIndex(RegistryIndex) || Registry[RegistryIndex] != this)
	{
		return;
	}
	const int32 LastIndex = Registry.Num() - 1;
	if (RegistryIndex != LastIndex)
	{
		Registry[RegistryIndex] = Registry[LastIndex];
		Registry[RegistryIndex]->RegistryIndex = RegistryIndex;
	}
	Registry.RemoveAt(LastIndex);
	RegistryIndex = INDEX_NONE;
}
