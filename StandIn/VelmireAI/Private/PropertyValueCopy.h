// A value of one property held in its own memory, initialised and destroyed the property's way.
#pragma once

#include "CoreMinimal.h"

class FProperty;

namespace UE::VelmireAI::Private
{
	// Allocates storage for the property's complete value and copies Source into it (the type's default when null).
	void* AllocatePropertyValue(const FProperty* Property, const void* Source);
	void FreePropertyValue(const FProperty* Property, void* Value);

	class FPropertyValueCopy
	{
	public:
		FPropertyValueCopy(const FProperty* InProperty, const void* Source)
			: Property(InProperty)
			, Value(AllocatePropertyValue(InProperty, Source))
		{
		}
		~FPropertyValueCopy() { FreePropertyValue(Property, Value); }

		FPropertyValueCopy(const FPropertyValueCopy&) = delete;
		FPropertyValueCopy& operator=(const FPropertyValueCopy&) = delete;

		void* Get() const { return Value; }

	private:
		const FProperty* Property;
		void* Value;
	};
}
