// The config handle: the settings of a Movie Render Queue preset asset, and its save.
#include "LuaSessionData.h"
#include "MoviePipelinePrimaryConfig.h"
#include "MovieRenderQueueHandles.h"
#include "MovieRenderQueueSettings.h"
#include "UObject/StrongObjectPtr.h"
#include "VLMRAssetRoutines.h"
#include "VLMRScriptArguments.h"
#include "VLMRScriptResults.h"

namespace VLMR
{
	using FWeakConfig = TWeakObjectPtr<UMoviePipelinePrimaryConfig>;
	using FHeldConfig = TStrongObjectPtr<UMoviePipelinePrimaryConfig>;

	static FHeldConfig ResolveConfig(const FWeakConfig& Config, FLuaSessionData& Session, const TCHAR* Label)
	{
		return ResolveOrReport(Config, Session, Label, TEXT("config"));
	}

	// A setting edit's targets, checked in this order: the config, then the class.
	template<class TEdit>
	static sol::object EditConfigSettings(sol::state_view Lua, const FWeakConfig& WeakConfig, FLuaSessionData& Session, const TCHAR* Label,
		const FString& ClassName, TEdit&& Edit)
	{
		const FHeldConfig Config = ResolveConfig(WeakConfig, Session, Label);
		const TStrongObjectPtr<UClass> Class(Config ? ResolveSettingClassOrReport(ClassName, Session, Label) : nullptr);
		if (!Class)
		{
			return Nil(Lua);
		}
		return Edit(*Config, *Class);
	}

	static sol::object ConfigListSettings(sol::state_view Lua, const FWeakConfig& WeakConfig, FLuaSessionData& Session)
	{
		const FHeldConfig Config = ResolveConfig(WeakConfig, Session, TEXT("config:list_settings"));
		return Config ? sol::object(MakeSettingRows(Lua, ReadSettingRows(*Config, true))) : Nil(Lua);
	}

	static sol::object ConfigInfo(sol::state_view Lua, const FWeakConfig& WeakConfig, FLuaSessionData& Session)
	{
		const FHeldConfig Config = ResolveConfig(WeakConfig, Session, TEXT("config:info"));
		if (!Config)
		{
			return Nil(Lua);
		}
		const FString Path = Config->GetPathName();
		const FString DisplayName = Config->DisplayName;
		const int32 SettingCount = Config->GetUserSettings().Num();
		const TArray<FSettingRow> Rows = ReadSettingRows(*Config, false);

		sol::table Info = Lua.create_table();
		Info["path"] = ToUtf8(Path);
		Info["display_name"] = ToUtf8(DisplayName);
		Info["setting_count"] = SettingCount;
		Info["settings"] = MakeSettingRows(Lua, Rows);
		return Info;
	}

	static void AddConfigMethods(sol::table& Handle, const FWeakConfig& Config, FLuaSessionData* S)
	{
		using FConfig = UMoviePipelinePrimaryConfig;
		Handle.set_function("find_or_add_setting", [Config, S](sol::this_state L, sol::object, const FScriptText& ClassName) {
			const TCHAR* Label = TEXT("config:find_or_add_setting");
			return EditConfigSettings(L, Config, *S, Label, ClassName.Value,
				[&](FConfig& Target, UClass& Class) { return FindOrAddSetting(L, *S, Label, Target, Class, true); });
		});
		Handle.set_function("remove_setting", [Config, S](sol::this_state L, sol::object, const FScriptText& ClassName) {
			const TCHAR* Label = TEXT("config:remove_setting");
			return EditConfigSettings(L, Config, *S, Label, ClassName.Value,
				[&](FConfig& Target, UClass& Class) { return RemoveSetting(L, *S, Label, Target, Class, true, TEXT("")); });
		});
		Handle.set_function("list_settings", [Config, S](sol::this_state L, sol::object) { return ConfigListSettings(L, Config, *S); });
		Handle.set_function("info", [Config, S](sol::this_state L, sol::object) { return ConfigInfo(L, Config, *S); });
		Handle.set_function("save", [Config, S](sol::object) { return SaveAsset(Config.Get(), *S, TEXT("config:save")); });
	}
}

sol::table BuildConfigHandle(sol::state_view& Lua, TWeakObjectPtr<UMoviePipelinePrimaryConfig> Config, FLuaSessionData& Session)
{
	using namespace VLMR;
	const UMoviePipelinePrimaryConfig* Resolved = Config.Get();
	sol::table Handle = CreateHandleTable(Lua, "path", Resolved ? TOptional<FString>(Resolved->GetPathName()) : TOptional<FString>());
	AddConfigMethods(Handle, Config, &Session);
	return Handle;
}
