#include "VelLuaProperty.h"

#include "LuaValueToProperty.h"
#include "PropertyValueCopy.h"
#include "PropertyValueText.h"
#include "UObject/UnrealType.h"

namespace VelLuaProperty
{
	using namespace UE::VelmireAI::Private;

	FStagedPropertyValue::FStagedPropertyValue(FProperty* InProperty, const void* InCurrentValue)
		: Property(InProperty)
		, Storage(AllocatePropertyValue(InProperty, InCurrentValue))
	{
	}

	FStagedPropertyValue::~FStagedPropertyValue()
	{
		FreePropertyValue(Property, Storage);
	}

	bool FStagedPropertyValue::ImportText(const FString& ExportText, UObject* Owner, FString& OutError, int32 PortFlags)
	{
		if (!Property)
		{
			OutError = TEXT("no property");
			return false;
		}
		// Parsed into a scratch copy first, so that a failure leaves the staged value as it was.
		FPropertyValueCopy Scratch(Property, Storage);
		if (!ImportPropertyText(Property, Scratch.Get(), ExportText, Owner, PortFlags, Property->GetName(), OutError))
		{
			return false;
		}
		Property->CopyCompleteValue(Storage, Scratch.Get());
		return true;
	}

	bool FStagedPropertyValue::Apply(const sol::object& Value, FString& OutError)
	{
		if (!Property)
		{
			OutError = TEXT("no property");
			return false;
		}
		FPropertyValueCopy Scratch(Property, Storage);
		if (!ApplyLuaValueToProperty(Property, Scratch.Get(), Value, Property->GetName(), OutError))
		{
			return false;
		}
		Property->CopyCompleteValue(Storage, Scratch.Get());
		return true;
	}

	bool FStagedPropertyValue::IsIdentical(const void* OtherValue) const
	{
		return Property && OtherValue && Property->Identical(Storage, OtherValue, PPF_None);
	}

	void FStagedPropertyValue::Commit(void* TargetValue) const
	{
		if (Property && TargetValue)
		{
			Property->CopyCompleteValue(TargetValue, Storage);
		}
	}
}
