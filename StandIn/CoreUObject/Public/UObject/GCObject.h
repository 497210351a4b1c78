// FGCObject: a non-UObject that reports the objects it keeps alive; FReferenceCollector: what it reports them to.
#pragma once

#include "CoreMinimal.h"

#include <type_traits>

class UObject;
class FProperty;
class UScriptStruct;
template<typename T> class TObjectPtr;

template<typename T> struct TIsObjectPtrReference { static constexpr bool Value = false; };
template<typename T> struct TIsObjectPtrReference<TObjectPtr<T>> { static constexpr bool Value = true; };

/**
 * Receives object references during garbage collection. A reference given as a modifiable pointer may be set to null
 * when its object is marked as garbage, unless the collector has been told not to eliminate references.
 */
class COREUOBJECT_API FReferenceCollector
{
public:
	virtual ~FReferenceCollector() = default;

	template<class UObjectType>
	void AddReferencedObject(UObjectType*& Object, const UObject* ReferencingObject = nullptr, const FProperty* ReferencingProperty = nullptr)
	{
		HandleObjectReference(*reinterpret_cast<UObject**>(&Object), ReferencingObject, ReferencingProperty);
	}

	template<class UObjectType>
	void AddReferencedObject(const UObjectType*& Object, const UObject* ReferencingObject = nullptr, const FProperty* ReferencingProperty = nullptr)
	{
		HandleObjectReference(*reinterpret_cast<UObject**>(const_cast<UObjectType**>(&Object)), ReferencingObject, ReferencingProperty);
	}

	template<class UObjectType>
	void AddReferencedObject(TObjectPtr<UObjectType>& Object, const UObject* ReferencingObject = nullptr, const FProperty* ReferencingProperty = nullptr)
	{
		static_assert(sizeof(TObjectPtr<UObjectType>) == sizeof(UObject*), "TObjectPtr has the layout of a raw pointer");
		HandleObjectReference(*reinterpret_cast<UObject**>(&Object), ReferencingObject, ReferencingProperty);
	}

	template<class UObjectType>
	void AddReferencedObject(const TObjectPtr<UObjectType>& Object, const UObject* ReferencingObject = nullptr, const FProperty* ReferencingProperty = nullptr)
	{
		AddReferencedObject(const_cast<TObjectPtr<UObjectType>&>(Object), ReferencingObject, ReferencingProperty);
	}

	template<class UObjectType>
	void AddReferencedObjects(TArray<UObjectType*>& ObjectArray, const UObject* ReferencingObject = nullptr, const FProperty* ReferencingProperty = nullptr)
	{
		for (UObjectType*& Object : ObjectArray)
		{
			AddReferencedObject(Object, ReferencingObject, ReferencingProperty);
		}
	}

	template<class UObjectType>
	void AddReferencedObjects(TArray<const UObjectType*>& ObjectArray, const UObject* ReferencingObject = nullptr, const FProperty* ReferencingProperty = nullptr)
	{
		for (const UObjectType*& Object : ObjectArray)
		{
			AddReferencedObject(Object, ReferencingObject, ReferencingProperty);
		}
	}

	template<class UObjectType>
	void AddReferencedObjects(TArray<TObjectPtr<UObjectType>>& ObjectArray, const UObject* ReferencingObject = nullptr, const FProperty* ReferencingProperty = nullptr)
	{
		for (TObjectPtr<UObjectType>& Object : ObjectArray)
		{
			AddReferencedObject(Object, ReferencingObject, ReferencingProperty);
		}
	}

	/** Set elements are hashed by pointer, so they are kept alive but never set to null. */
	template<class UObjectType>
	void AddReferencedObjects(TSet<UObjectType*>& ObjectSet, const UObject* ReferencingObject = nullptr, const FProperty* ReferencingProperty = nullptr)
	{
		for (UObjectType* Object : ObjectSet)
		{
			AddKeyReference(Object, ReferencingObject, ReferencingProperty);
		}
	}

	template<class UObjectType>
	void AddReferencedObjects(TSet<TObjectPtr<UObjectType>>& ObjectSet, const UObject* ReferencingObject = nullptr, const FProperty* ReferencingProperty = nullptr)
	{
		for (const TObjectPtr<UObjectType>& Object : ObjectSet)
		{
			AddKeyReference(Object.Get(), ReferencingObject, ReferencingProperty);
		}
	}

	/** Keys are kept alive but never set to null (they are hashed); object values may be. */
	template<class KeyType, class ValueType>
	void AddReferencedObjects(TMap<KeyType, ValueType>& Map, const UObject* ReferencingObject = nullptr, const FProperty* ReferencingProperty = nullptr)
	{
		for (auto& Pair : Map)
		{
			AddMapEntryReference(Pair.Key, ReferencingObject, ReferencingProperty, true);
			AddMapEntryReference(Pair.Value, ReferencingObject, ReferencingProperty, false);
		}
	}

	/** Object references inside a struct value, found through its reflected properties. */
	void AddReferencedObjects(const UScriptStruct*& ScriptStruct, void* StructMemory, const UObject* ReferencingObject = nullptr, const FProperty* ReferencingProperty = nullptr);
	void AddPropertyReferences(const UScriptStruct* ScriptStruct, void* StructMemory, const UObject* ReferencingObject = nullptr);

	/** References from memory that does not move during the collection; kept alive like the others. */
	template<class UObjectType>
	void AddStableReference(UObjectType** Object)
	{
		AddReferencedObject(*Object);
	}

	template<class UObjectType>
	void AddStableReference(TObjectPtr<UObjectType>* Object)
	{
		AddReferencedObject(*Object);
	}

	template<class UObjectType>
	void AddStableReferenceArray(TArray<UObjectType*>* Objects)
	{
		AddReferencedObjects(*Objects);
	}

	template<class UObjectType>
	void AddStableReferenceArray(TArray<TObjectPtr<UObjectType>>* Objects)
	{
		AddReferencedObjects(*Objects);
	}

	virtual bool IsIgnoringArchetypeRef() const { return false; }
	virtual bool IsIgnoringTransient() const { return false; }

	/** While false, references to objects marked as garbage keep them alive instead of being set to null. */
	virtual void AllowEliminatingReferences(bool bAllow) { bEliminatingReferencesAllowed = bAllow; }
	bool IsEliminatingReferencesAllowed() const { return bEliminatingReferencesAllowed; }

	virtual void SetSerializedProperty(FProperty* Inproperty) {}
	virtual FProperty* GetSerializedProperty() const { return nullptr; }

protected:
	virtual void HandleObjectReference(UObject*& InObject, const UObject* InReferencingObject, const FProperty* InReferencingProperty) = 0;

private:
	void AddKeyReference(const UObject* Object, const UObject* ReferencingObject, const FProperty* ReferencingProperty);

	template<class EntryType>
	void AddMapEntryReference(EntryType& Entry, const UObject* ReferencingObject, const FProperty* ReferencingProperty, bool bIsKey)
	{
		if constexpr (std::is_pointer_v<std::remove_cv_t<EntryType>>)
		{
			if (bIsKey)
			{
				AddKeyReference(Entry, ReferencingObject, ReferencingProperty);
			}
			else
			{
				AddReferencedObject(Entry, ReferencingObject, ReferencingProperty);
			}
		}
		else if constexpr (TIsObjectPtrReference<std::remove_cv_t<EntryType>>::Value)
		{
			if (bIsKey)
			{
				AddKeyReference(Entry.Get(), ReferencingObject, ReferencingProperty);
			}
			else
			{
				AddReferencedObject(Entry, ReferencingObject, ReferencingProperty);
			}
		}
	}

	bool bEliminatingReferencesAllowed = true;
};

/** A C++ object that keeps UObjects alive: registers itself while it exists and reports its references at each collection. */
class COREUOBJECT_API FGCObject
{
public:
	FGCObject();
	FGCObject(const FGCObject& Other);
	FGCObject(FGCObject&& Other);
	FGCObject& operator=(const FGCObject& Other) { return *this; }
	FGCObject& operator=(FGCObject&& Other) { return *this; }
	virtual ~FGCObject();

	virtual void AddReferencedObjects(FReferenceCollector& Collector) = 0;
	virtual FString GetReferencerName() const = 0;
	virtual bool GetReferencerPropertyName(UObject* Object, FString& OutPropertyName) const { return false; }

	/** Stand-in: calls the visitor for each live FGCObject (used by the garbage collector). */
	static void ForEachGCObject(TFunctionRef<void(FGCObject&)> Visitor);

private:
	void RegisterGCObject();
	void UnregisterGCObject();

	int32 RegistryIndex = INDEX_NONE;
};
