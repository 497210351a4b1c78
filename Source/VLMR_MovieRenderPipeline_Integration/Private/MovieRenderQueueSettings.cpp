#include "MovieRenderQueueSettings.h"

#include "MoviePipelinePrimaryConfig.h"
#include "MoviePipelineSetting.h"
#include "MovieRenderQueueHandles.h"
#include "UObject/StrongObjectPtr.h"
#include "VLMRClassLookup.h"
#include "VLMRScriptArguments.h"
#include "VLMRScriptResults.h"

namespace VLMR
{
	// Deprecated setting classes stay findable by name although listings hide them.
	UClass* ResolveSettingClass(const FString& Name)
	{
		return ResolveClassByScriptName(Name, UMoviePipelineSetting::StaticClass(), CLASS_Abstract);
	}

	UClass* ResolveSettingClassOrReport(const FString& Name, FLuaSessionData& Session, const FString& Label)
	{
		UClass* Class = ResolveSettingClass(Name);
		if (!Class)
		{
			LogLine(Session, ELineKind::Fail, Label, FString::Printf(TEXT("class not found: %s"), *Name));
		}
		return Class;
	}

	FString ClassDisplayName(const UClass* Class)
	{
		return Class->GetDisplayNameText().ToString();
	}

	TArray<FSettingRow> ReadSettingRows(const UMoviePipelinePrimaryConfig& Config)
	{
		TArray<FSettingRow> Rows;
		for (const UMoviePipelineSetting* Setting : Config.GetUserSettings())
		{
			if (Setting)
			{
				Rows.Add({ Setting->GetClass()->GetName(), ClassDisplayName(Setting->GetClass()), Setting->IsEnabled() });
			}
		}
		return Rows;
	}

	sol::table MakeSettingRows(sol::state_view Lua, const TArray<FSettingRow>& Rows, bool bWithDisplayName)
	{
		sol::table Table = Lua.create_table(Rows.Num(), 0);
		for (const FSettingRow& Row : Rows)
		{
			sol::table Entry = Lua.create_table();
			Entry["name"] = ToUtf8(Row.Name);
			if (bWithDisplayName)
			{
				Entry["display_name"] = ToUtf8(Row.DisplayName);
			}
			Entry["is_enabled"] = Row.bIsEnabled;
			Table.add(Entry);
		}
		return Table;
	}

	sol::object FindOrAddSetting(sol::state_view Lua, FLuaSessionData& Session, const FString& Label,
		UMoviePipelinePrimaryConfig& Config, UClass& Class, bool bMarkDirty)
	{
		const TStrongObjectPtr<UMoviePipelineSetting> Setting(Config.FindOrAddSettingByClass(&Class, true));
		if (!Setting)
		{
			LogLine(Session, ELineKind::Fail, Label, FString::Printf(TEXT("could not create setting: %s"), *Class.GetName()));
			return Nil(Lua);
		}
		if (bMarkDirty)
		{
			Config.MarkPackageDirty();
		}
		LogLine(Session, ELineKind::Ok, Label, Class.GetName());
		return BuildSettingHandle(Lua, Setting.Get(), Session);
	}

	sol::object RemoveSetting(sol::state_view Lua, FLuaSessionData& Session, const FString& Label,
		UMoviePipelinePrimaryConfig& Config, UClass& Class, bool bMarkDirty, const TCHAR* SuccessPrefix)
	{
		UMoviePipelineSetting* Setting = Config.FindSettingByClass(&Class, true);
		if (!Setting)
		{
			LogLine(Session, ELineKind::Fail, Label, FString::Printf(TEXT("setting not found: %s"), *Class.GetName()));
			return Nil(Lua);
		}
		Config.RemoveSetting(Setting);
		if (bMarkDirty)
		{
			Config.MarkPackageDirty();
		}
		LogLine(Session, ELineKind::Ok, Label, SuccessPrefix + Class.GetName());
		return sol::make_object(Lua, true);
	}
}
