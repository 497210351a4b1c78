// Reflected-property helpers the host offers to extensions: lookup by a script's name, text import, and staged writes.
#pragma once

#include "CoreMinimal.h"
#include "VelmireLuaIncludes.h"

class FProperty;
class UStruct;
class UObject;

namespace VelLuaProperty
{
	// The property of the struct whose name matches exactly, else ignoring case; null when none.
	VELMIREAI_API FProperty* FindPropertyByName(UStruct* Struct, const FString& Name);

	// Parses export text into the property held in ContainerMemory; on failure the value is unchanged and OutError says why.
	VELMIREAI_API bool SetPropertyValueFromStringSafe(FProperty* Property, void* ContainerMemory, UObject* Owner,
		const FString& ExportText, FString& OutError);

	// A private copy of a property's value: filled, compared and only then committed to the target.
	class VELMIREAI_API FStagedPropertyValue
	{
	public:
		FStagedPropertyValue(FProperty* InProperty, const void* InCurrentValue);
		~FStagedPropertyValue();

		FStagedPropertyValue(const FStagedPropertyValue&) = delete;
		FStagedPropertyValue& operator=(const FStagedPropertyValue&) = delete;

		bool ImportText(const FString& ExportText, UObject* Owner, FString& OutError, int32 PortFlags = 0);
		// Takes a Lua string (export text), number, boolean or table (struct fields by name, array elements by position).
		bool Apply(const sol::object& Value, FString& OutError);
		bool IsIdentical(const void* OtherValue) const;
		void Commit(void* TargetValue) const;

		const void* GetValue() const { return Storage; }
		FProperty* GetProperty() const { return Property; }

	private:
		FProperty* Property = nullptr;
		void* Storage = nullptr;
	};
}
