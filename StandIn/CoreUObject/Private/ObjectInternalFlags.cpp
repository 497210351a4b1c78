#include "UObject/Object.h"

#include "UObject/UObjectArray.h"

bool UObject::IsRooted() const
{
	const FUObjectItem* Item = GUObjectArray.ObjectToObjectItem(this);
	return Item && Item->IsRootSet();
}

void UObject::AddToRoot()
{
	if (FUObjectItem* Item = GUObjectArray.ObjectToObjectItem(this))
	{
		Item->SetRootSet();
	}
}

void UObject::RemoveFromRoot()
{
	if (FUObjectItem* Item = GUObjectArray.ObjectToObjectItem(this))
	{
		Item->ClearRootSet();
	}
}

void UObject::MarkAsGarbage()
{
	// Stand-in choice: the engine asserts that a rooted object is not marked; here the request is refused with an ensure.
	if (!ensureMsgf(!IsRooted(), TEXT("Cannot mark rooted object %s as garbage"), *GetFullName()))
	{
		return;
	}
	if (FUObjectItem* Item = GUObjectArray.ObjectToObjectItem(this))
	{
		SetFlags(RF_MirroredGarbage);
		Item->SetGarbage();
	}
}

void UObject::ClearGarbage()
{
	if (FUObjectItem* Item = GUObjectArray.ObjectToObjectItem(this))
	{
		ClearFlags(RF_MirroredGarbage);
		Item->ClearGarbage();
	}
}

bool UObject::IsValidLowLevel() const
{
	return ClassPrivate != nullptr && GUObjectArray.IsValid(this);
}

bool UObject::IsUnreachable() const
{
	const FUObjectItem* Item = GUObjectArray.ObjectToObjectItem(this);
	return Item && Item->IsUnreachable();
}

bool UObject::HasAnyInternalFlags(EInternalObjectFlags FlagsToCheck) const
{
	const FUObjectItem* Item = GUObjectArray.ObjectToObjectItem(this);
	return Item && Item->HasAnyFlags(FlagsToCheck);
}

bool UObject::ConditionalBeginDestroy()
{
	if (HasAnyFlags(RF_BeginDestroyed))
	{
		return false;
	}
	SetFlags(RF_BeginDestroyed);
	BeginDestroy();
	return true;
}

bool IsValid(const UObject* Test)
{
	return Test && !Test->HasAnyInternalFlags(EInternalObjectFlags::Garbage);
}
