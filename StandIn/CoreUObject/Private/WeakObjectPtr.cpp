#include "UObject/WeakObjectPtr.h"

#include "UObject/Object.h"
#include "UObject/UObjectArray.h"

void FWeakObjectPtr::operator=(const UObject* Object)
{
	if (Object && GUObjectArray.IsValid(Object))
	{
		ObjectIndex = GUObjectArray.ObjectToIndex(Object);
		ObjectSerialNumber = GUObjectArray.GetSerialNumber(ObjectIndex);
	}
	else
	{
		Reset();
	}
}

UObject* FWeakObjectPtr::Get(bool bEvenIfGarbage) const
{
	if (ObjectSerialNumber == 0)
	{
		return nullptr;
	}
	const FUObjectItem* Item = GUObjectArray.IndexToObject(ObjectIndex);
	if (!Item || Item->SerialNumber != ObjectSerialNumber || !GUObjectArray.IsValid(Item, bEvenIfGarbage))
	{
		return nullptr;
	}
	return Item->Object;
}

UObject* FWeakObjectPtr::GetEvenIfUnreachable() const
{
	if (ObjectSerialNumber == 0)
	{
		return nullptr;
	}
	const FUObjectItem* Item = GUObjectArray.IndexToObject(ObjectIndex);
	return Item && Item->SerialNumber == ObjectSerialNumber ? Item->Object : nullptr;
}

bool FWeakObjectPtr::IsValid(bool bEvenIfGarbage, bool bThreadsafeTest) const
{
	return Get(bEvenIfGarbage) != nullptr;
}

bool FWeakObjectPtr::IsStale(bool bIncludingGarbage, bool bThreadsafeTest) const
{
	if (ObjectSerialNumber == 0)
	{
		return false;
	}
	const FUObjectItem* Item = GUObjectArray.IndexToObject(ObjectIndex);
	if (!Item || Item->SerialNumber != ObjectSerialNumber)
	{
		return true;
	}
	return !GUObjectArray.IsValid(Item, !bIncludingGarbage);
}
