// Converts a script's Lua value into a property value, by the rules of FStagedPropertyValue::Apply.
#pragma once

#include "CoreMinimal.h"
#include "VelmireLuaIncludes.h"

class FProperty;

namespace UE::VelmireAI::Private
{
	// Writes LuaValue into Value (the property's own memory). On failure OutError names the property by PropertyPath
	// ("Resolution.X", "Items[2]") and its C++ type, and Value may be partly written.
	bool ApplyLuaValueToProperty(const FProperty* Property, void* Value, const sol::object& LuaValue,
		const FString& PropertyPath, FString& OutError);
}
