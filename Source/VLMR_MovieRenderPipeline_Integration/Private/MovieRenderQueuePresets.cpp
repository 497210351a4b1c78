// The preset globals: listing the setting classes there are, and opening a preset asset.
#include "Graph/MovieGraphConfig.h"
#include "LuaSessionData.h"
#include "MoviePipelinePrimaryConfig.h"
#include "MoviePipelineSetting.h"
#include "MovieRenderQueueGlobals.h"
#include "MovieRenderQueueHandles.h"
#include "MovieRenderQueueSettings.h"
#include "UObject/StrongObjectPtr.h"
#include "VLMRAssetRoutines.h"
#include "VLMRClassLookup.h"
#include "VLMRScriptArguments.h"
#include "VLMRScriptResults.h"

namespace VLMR
{
	struct FSettingClassRow
	{
		FString Name;
		FString DisplayName;
	};

	static TArray<FSettingClassRow> ReadSettingClasses(const FString& Filter)
	{
		TArray<FSettingClassRow> Rows;
		for (const UClass* Class : CollectClassesDerivedFrom(UMoviePipelineSetting::StaticClass(), CLASS_Abstract | CLASS_Deprecated))
		{
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

	// Loads a preset asset of type T by the script's path and builds its handle; a path too long for the engine or a
	// missing asset fails with one line and nil.
	template<class T, class TBuildHandle>
	static sol::object OpenPresetAsset(sol::state_view Lua, FLuaSessionData& Session, const TCHAR* Label, const TCHAR* AssetKind,
		const FString& AssetPath, TBuildHandle&& BuildHandle)
	{
		const FString Path = PrefixGameRoot(AssetPath);
		if (!CheckEngineNameLength(Session, Label, Path))
		{
			return Nil(Lua);
		}
		const TStrongObjectPtr<T> Asset(LoadTypedAssetOrReport<T>(Session, Label, AssetKind, Path));
		if (!Asset)
		{
			return Nil(Lua);
		}
		LogLine(Session, ELineKind::Ok, Label, Path);
		return BuildHandle(Lua, Asset.Get(), Session);
	}

	sol::object OpenConfig(sol::state_view Lua, FLuaSessionData& Session, const FString& AssetPath)
	{
		return OpenPresetAsset<UMoviePipelinePrimaryConfig>(Lua, Session, TEXT("mrq_open_config"), TEXT("config asset"), AssetPath, &BuildConfigHandle);
	}

	sol::object OpenGraph(sol::state_view Lua, FLuaSessionData& Session, const FString& AssetPath)
	{
		return OpenPresetAsset<UMovieGraphConfig>(Lua, Session, TEXT("mrq_open_graph"), TEXT("graph asset"), AssetPath, &BuildGraphHandle);
	}
}
