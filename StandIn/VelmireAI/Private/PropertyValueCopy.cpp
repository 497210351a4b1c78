#include "PropertyValueCopy.h"

#include "UObject/UnrealType.h"

namespace UE::VelmireAI::Private
{
	void* AllocatePropertyValue(const FProperty* Property, const void* Source)
	{
		if (!Property)
		{
			return nullptr;
		}
		void* Value = FMemory::Malloc(Property->GetSize(), Property->GetMinAlignment());
		Property->InitializeValue(Value);
		if (Source)
		{
			Property->CopyCompleteValue(Value, Source);
		}
		return Value;
	}

	void FreePropertyValue(const FProperty* Property, void* Value)
	{
		if (Property && Value)
		{
			Property->DestroyValue(Value);
			FMemory::Free(Value);
		}
	}
}
