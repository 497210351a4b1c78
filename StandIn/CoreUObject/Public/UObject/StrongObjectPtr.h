// TStrongObjectPtr<T>: keeps its object alive for as long as it holds it.
#pragma once

#include "CoreMinimal.h"

#include <type_traits>

class UObject;

namespace UE::CoreUObject::StandIn
{
	/** The object counts as a garbage collection root while it has strong references. */
	COREUOBJECT_API void AddStrongReference(const UObject* Object);
	COREUOBJECT_API void ReleaseStrongReference(const UObject* Object);
}

template<typename ObjectType>
class TStrongObjectPtr
{
	template<typename> friend class TStrongObjectPtr;

public:
	TStrongObjectPtr() = default;
	TStrongObjectPtr(TYPE_OF_NULLPTR) {}

	explicit TStrongObjectPtr(ObjectType* InObject)
	{
		Attach(InObject);
	}

	TStrongObjectPtr(const TStrongObjectPtr& Other)
	{
		Attach(Other.Object);
	}

	TStrongObjectPtr(TStrongObjectPtr&& Other)
		: Object(Other.Object)
	{
		Other.Object = nullptr;
	}

	template<typename OtherType> requires std::is_convertible_v<OtherType*, ObjectType*>
	TStrongObjectPtr(const TStrongObjectPtr<OtherType>& Other)
	{
		Attach(Other.Object);
	}

	~TStrongObjectPtr()
	{
		Detach();
	}

	TStrongObjectPtr& operator=(const TStrongObjectPtr& Other)
	{
		Reset(Other.Object);
		return *this;
	}

	TStrongObjectPtr& operator=(TStrongObjectPtr&& Other)
	{
		if (this != &Other)
		{
			Detach();
			Object = Other.Object;
			Other.Object = nullptr;
		}
		return *this;
	}

	template<typename OtherType> requires std::is_convertible_v<OtherType*, ObjectType*>
	TStrongObjectPtr& operator=(const TStrongObjectPtr<OtherType>& Other)
	{
		Reset(Other.Object);
		return *this;
	}

	ObjectType& operator*() const { return *Object; }
	ObjectType* operator->() const { return Object; }
	ObjectType* Get() const { return Object; }
	bool IsValid() const { return Object != nullptr; }
	explicit operator bool() const { return IsValid(); }

	void Reset(ObjectType* InNewObject = nullptr)
	{
		if (InNewObject != Object)
		{
			ObjectType* OldObject = Object;
			Attach(InNewObject);
			if (OldObject)
			{
				UE::CoreUObject::StandIn::ReleaseStrongReference(static_cast<const UObject*>(OldObject));
			}
		}
	}

	friend uint32 GetTypeHash(const TStrongObjectPtr& InStrongObjectPtr)
	{
		return GetTypeHash(static_cast<const void*>(InStrongObjectPtr.Object));
	}

	template<typename OtherType>
	bool operator==(const TStrongObjectPtr<OtherType>& Other) const { return Object == Other.Object; }
	template<typename OtherType>
	bool operator!=(const TStrongObjectPtr<OtherType>& Other) const { return Object != Other.Object; }
	bool operator==(TYPE_OF_NULLPTR) const { return Object == nullptr; }
	bool operator!=(TYPE_OF_NULLPTR) const { return Object != nullptr; }

private:
	void Attach(ObjectType* InObject)
	{
		Object = InObject;
		if (Object)
		{
			UE::CoreUObject::StandIn::AddStrongReference(static_cast<const UObject*>(Object));
		}
	}

	void Detach()
	{
		if (Object)
		{
			UE::CoreUObject::StandIn::ReleaseStrongReference(static_cast<const UObject*>(Object));
			Object = nullptr;
		}
	}

	ObjectType* Object = nullptr;
};

template<typename ObjectType>
TStrongObjectPtr<ObjectType> MakeStrongObjectPtr(ObjectType* Object)
{
	return TStrongObjectPtr<ObjectType>(Object);
}
