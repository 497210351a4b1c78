// The walk over the strong object references of reflected values, shared by the garbage collector, FReferenceCollector and object duplication.
#pragma once

#include "CoreMinimal.h"

class UObject;
class UStruct;
class UScriptStruct;

namespace UE::CoreUObject::StandIn::Private
{
	/** Every strong object reference held by the reflected properties of a struct or class instance. */
	void VisitStructReferences(const UStruct* Struct, void* Memory, TFunctionRef<void(UObject*& Reference)> Visitor);

	/** The references a struct reports through its native AddStructReferencedObjects, if it has one. */
	void VisitNativeStructReferences(const UScriptStruct* Struct, void* Memory, TFunctionRef<void(UObject*& Reference)> Visitor);

	/** Every strong object reference held by the reflected properties of an object. */
	void VisitObjectPropertyReferences(UObject* Object, TFunctionRef<void(UObject*& Reference)> Visitor);
}
