#include "UObject/StrongObjectPtr.h"

#include "UObject/UObjectArray.h"

namespace UE::CoreUObject::StandIn
{
	void AddStrongReference(const UObject* Object)
	{
		if (FUObjectItem* Item = GUObjectArray.ObjectToObjectItem(Object))
		{
			Item->AddRef();
		}
	}

	void ReleaseStrongReference(const UObject* Object)
	{
		if (FUObjectItem* Item = GUObjectArray.ObjectToObjectItem(Object))
		{
			Item->ReleaseRef();
		}
	}
}
