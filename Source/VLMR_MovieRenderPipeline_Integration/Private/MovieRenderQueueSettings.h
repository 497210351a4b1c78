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
	// A script's class name to a concrete setting class: the "U" prefix rule, an exact pass, then a substring pass.
	UClass* ResolveSettingClass(const FString& Name);

	// As ResolveSettingClass; a miss logs "[FAIL] <label> -> class not found: <name>".
	UClass* ResolveSettingClassOrReport(const FString& Name, FLuaSessionData& Session, const FString& Label);

	FString ClassDisplayName(const UClass* Class);

	// One listed setting of a configuration, read at one moment.
	struct FSettingRow
	{
		FString Name;
		FString DisplayName;
		bool bIsEnabled = false;
	};

	// The configuration's non-null user settings, in its order.
	TArray<FSettingRow> ReadSettingRows(const UMoviePipelinePrimaryConfig& Config);

	// {name, display_name?, is_enabled} rows.
	sol::table MakeSettingRows(sol::state_view Lua, const TArray<FSettingRow>& Rows, bool bWithDisplayName);

	// Finds the setting of the class (disabled ones included) or adds one, logs "[OK] <label> -> <class>" and returns its
	// handle; nil after "could not create setting" when the configuration refuses the class.
	sol::object FindOrAddSetting(sol::state_view Lua, FLuaSessionData& Session, const FString& Label,
		UMoviePipelinePrimaryConfig& Config, UClass& Class, bool bMarkDirty);

	// Removes the setting of the class (disabled ones included), logs "[OK] <label> -> <prefix><class>" and returns true;
	// nil after "setting not found" when the configuration has none.
	sol::object RemoveSetting(sol::state_view Lua, FLuaSessionData& Session, const FString& Label,
		UMoviePipelinePrimaryConfig& Config, UClass& Class, bool bMarkDirty, const TCHAR* SuccessPrefix);
}
