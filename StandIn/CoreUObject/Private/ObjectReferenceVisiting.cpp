#include "ObjectReferenceVisiting.h"

#include "UObject/Class.h"
#include "UObject/GCObject.h"
#include "UObject/Object.h"
#include "UObject/UnrealType.h"

namespace UE::CoreUObject::StandIn::Private
{
	namespace
	{
		// Hands each reference a struct reports to a collector on to the visitor.
		class FVisitingReferenceCollector final : public FReferenceCollector
		{
		public:
			explicit FVisitingReferenceCollector(TFunctionRef<void(UObject*& Reference)> InVisitor) : Visitor(InVisitor) {}

		protected:
			void HandleObjectReference(UObject*& InObject, const UObject* InReferencingObject, const FProperty* InReferencingProperty) override
			{
				Visitor(InObject);
			}

		private:
			TFunctionRef<void(UObject*& Reference)> Visitor;
		};
	}

	void VisitNativeStructReferences(const UScriptStruct* Struct, void* Memory, TFunctionRef<void(UObject*& Reference)> Visitor)
	{
		if (Struct && Struct->GetCppStructOps().AddStructReferencedObjects)
		{
			FVisitingReferenceCollector Collector(Visitor);
			Struct->GetCppStructOps().AddStructReferencedObjects(Memory, Collector);
		}
	}

	void VisitStructReferences(const UStruct* Struct, void* Memory, TFunctionRef<void(UObject*& Reference)> Visitor)
	{
		for (FProperty* Property = Struct ? Struct->RefLink : nullptr; Property; Property = Property->NextRef)
		{
			for (int32 ArrayIndex = 0; ArrayIndex < Property->ArrayDim; ++ArrayIndex)
			{
				Property->VisitObjectReferences(Property->ContainerPtrToValuePtr<void>(Memory, ArrayIndex), Visitor);
			}
		}
		VisitNativeStructReferences(Cast<UScriptStruct>(Struct), Memory, Visitor);
	}

	void VisitObjectPropertyReferences(UObject* Object, TFunctionRef<void(UObject*& Reference)> Visitor)
	{
		VisitStructReferences(Object->GetClass(), Object, Visitor);
	}
}
