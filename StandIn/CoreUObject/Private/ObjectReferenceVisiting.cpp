#include "ObjectReferenceVisiting.h"

#include "UObject/Class.h"
#include "UObject/Object.h"
#include "UObject/UnrealType.h"

namespace UE::CoreUObject::StandIn::Private
{
	void VisitStructReferences(const UStruct* Struct, void* Memory, TFunctionRef<void(UObject*& Reference)> Visitor)
	{
		for (FProperty* Property = Struct ? Struct->RefLink : nullptr; Property; Property = Property->NextRef)
		{
			for (int32 ArrayIndex = 0; ArrayIndex < Property->ArrayDim; ++ArrayIndex)
			{
				Property->VisitObjectReferences(Property->ContainerPtrToValuePtr<void>(Memory, ArrayIndex), Visitor);
			}
		}
	}

	void VisitObjectPropertyReferences(UObject* Object, TFunctionRef<void(UObject*& Reference)> Visitor)
	{
		VisitStructReferences(Object->GetClass(), Object, Visitor);
	}
}
