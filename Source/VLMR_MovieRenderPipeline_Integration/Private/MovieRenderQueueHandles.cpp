#include "MovieRenderQueueHandles.h"

#include "VLMRScriptArguments.h"

namespace VLMR
{
	sol::table CreateHandleTable(sol::state_view Lua, const char* FieldName, const TOptional<FString>& FieldValue)
	{
		// The field's text is converted before the table exists: making a Lua value may run script finalizers.
		const TOptional<std::string> Text = FieldValue.IsSet() ? TOptional<std::string>(ToUtf8(FieldValue.GetValue())) : TOptional<std::string>();
		sol::table Handle = Lua.create_table();
		if (Text.IsSet())
		{
			Handle[FieldName] = Text.GetValue();
		}
		return Handle;
	}
}
