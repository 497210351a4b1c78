#include "UObject/SoftObjectPtr.h"

#include "UObject/Class.h"
#include "UObject/Object.h"

FSoftObjectPtr& FSoftObjectPtr::operator=(const UObject* Object)
{
	ObjectID = FSoftObjectPath(Object);
	WeakPtr = Object;
	return *this;
}

FSoftObjectPtr& FSoftObjectPtr::operator=(const FSoftObjectPath& ObjectPath)
{
	ObjectID = ObjectPath;
	WeakPtr.Reset();
	return *this;
}

UObject* FSoftObjectPtr::Get() const
{
	if (UObject* Object = WeakPtr.Get())
	{
		return Object;
	}
	if (ObjectID.IsNull())
	{
		return nullptr;
	}
	UObject* Resolved = ObjectID.ResolveObject();
	if (!::IsValid(Resolved))
	{
		return nullptr;
	}
	WeakPtr = Resolved;
	return Resolved;
}

UObject* FSoftObjectPtr::LoadSynchronous() const
{
	UObject* Object = Get();
	if (!Object && !IsNull())
	{
		ObjectID.TryLoad();
		Object = Get();
	}
	return Object;
}

namespace UE::CoreUObject::StandIn
{
	UObject* FilterObjectByClass(UObject* Object, const UClass* RequiredClass)
	{
		return Object && RequiredClass && Object->IsA(RequiredClass) ? Object : nullptr;
	}

	UClass* FilterClassByBase(UObject* Object, const UClass* RequiredBase)
	{
		if (!Object || !RequiredBase || !Object->IsA(UClass::StaticClass()))
		{
			return nullptr;
		}
		UClass* Class = static_cast<UClass*>(Object);
		return Class->IsChildOf(RequiredBase) ? Class : nullptr;
	}
}
