// The settings of a configuration: setting classes named by scripts, the rows that list settings, and the
// find-or-add and remove edits that job and config handles share.
#pragma once

#include "CoreMinimal.h"
#include "VelmireLuaIncludes.h"

class FLuaSessionData;
class UClass;
class UMoviePipelinePrimaryConfig;

namespace VLMR
{
	class FLuaStackTable;

	// A script's class name to a concrete setting class: the "U" prefix rule, an exact pass, then a substring pass.
	UClass* ResolveSettingClass(const FString& Name);

	// As ResolveSettingClass; a miss logs "[FAIL] <label> -> class not found: <name>".
	UClass* ResolveSettingClassOrReport(const FString& Name, FLuaSessionData& Session, const FString& Label);

	FString ClassDisplayName(const UClass* Class);

	// One listed setting of a configuration, read at one moment; the display name only when the listing shows it.
	struct FSettingRow
	{
		FString Name;
		TOptional<FString> DisplayName;
		bool bIsEnabled = false;
	};

	// The configuration's non-null user settings, in its order.
	TArray<FSettingRow> ReadSettingRows(const UMoviePipelinePrimaryConfig& Config, bool bWithDisplayName);

	// {name, display_name (when read), is_enabled} rows, as a new table or at 1..n of an array table being built.
	sol::table MakeSettingRows(sol::state_view Lua, const TArray<FSettingRow>& Rows);
	void WriteSettingRows(FLuaStackTable& Table, const TArray<FSettingRow>& Rows);

	// Finds the setting of the class (disabled ones included) or adds one, logs "[OK] <label> -> <class>" and returns its
	// handle; nil after "could not create setting" when the configuration refuses the class.
	sol::object FindOrAddSetting(sol::state_view Lua, FLuaSessionData& Session, const FString& Label,
		UMoviePipelinePrimaryConfig& Config, UClass& Class, bool bMarkDirty);

	// Removes the setting of the class (disabled ones included), logs "[OK] <label> -> <prefix><class>" and returns true;
	// nil after "setting not found" when the configuration has none.
	sol::object RemoveSetting(sol::state_view Lua, FLuaSessionData& Session, const FString& Label,
		UMoviePipelinePrimaryConfig& Config, UClass& Class, bool bMarkDirty, const TCHAR* SuccessPrefix);
}
