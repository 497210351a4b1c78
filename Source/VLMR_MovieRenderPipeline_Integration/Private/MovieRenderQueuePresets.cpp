// The preset globals: listing the setting classes there are, and opening a preset asset.
#include "LuaSessionData.h"
#include "MoviePipelinePrimaryConfig.h"
#include "MoviePipelineSetting.h"
#include "MovieRenderQueueGlobals.h"
#include "MovieRenderQueueHandles.h"
#include "MovieRenderQueueSettings.h"
#include "UObject/StrongObjectPtr.h"
#include "VLMRAssetRoutines.h"
#include "VLMRScriptArguments.h"
#include "VLMRScriptResults.h"

namespace VLMR
{
	struct FSettingClassRow
	{
		FString Name;
		FString DisplayName;
	};

	static bool IsListedSettingClass(const UClass* Class)
	{
		return Class->IsChildOf(UMoviePipelineSetting::StaticClass()) && !Class->HasAnyClassFlags(CLASS_Abstract | CLASS_Deprecated);
	}

	static TArray<FSettingClassRow> ReadSettingClasses(const FString& Filter)
	{
		TArray<FSettingClassRow> Rows;
		for (UObject* Object : EnumerateClasses())
		{
			const UClass* Class = static_cast<const UClass*>(Object);
			if (!IsListedSettingClass(Class))
			{
				continue;
			}
			FString Name = Class->GetName();
			if (Filter.IsEmpty() || Name.Contains(Filter, ESearchCase::IgnoreCase, ESearchDir::FromStart))
			{
				Rows.Add({ MoveTemp(Name), ClassDisplayName(Class) });
			}
		}
		return Rows;
	}

	sol::table ListSettings(sol::state_view Lua, FLuaSessionData& Session, const FString& Filter)
	{
		const TArray<FSettingClassRow> Rows = ReadSettingClasses(Filter);
		sol::table Table = Lua.create_table(Rows.Num(), 0);
		for (const FSettingClassRow& Row : Rows)
		{
			Table.add(Lua.create_table_with("name", ToUtf8(Row.Name), "display_name", ToUtf8(Row.DisplayName)));
		}
		LogLine(Session, ELineKind::Ok, TEXT("mrq_list_settings"), FString::Printf(TEXT("%d classes"), Rows.Num()));
		return Table;
	}

	sol::object OpenConfig(sol::state_view Lua, FLuaSessionData& Session, const FString& AssetPath)
	{
		const TCHAR* Label = TEXT("mrq_open_config");
		const FString Path = PrefixGameRoot(AssetPath);
		if (!CheckEngineNameLength(Session, Label, Path))
		{
			return Nil(Lua);
		}
		const TStrongObjectPtr<UMoviePipelinePrimaryConfig> Config(LoadTypedAssetOrReport<UMoviePipelinePrimaryConfig>(Session, Label, TEXT("config asset"), Path));
		if (!Config)
		{
			return Nil(Lua);
		}
		LogLine(Session, ELineKind::Ok, Label, Path);
		return BuildConfigHandle(Lua, Config.Get(), Session);
	}
}
