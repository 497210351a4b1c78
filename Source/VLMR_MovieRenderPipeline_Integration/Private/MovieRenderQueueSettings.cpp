#include "MovieRenderQueueSettings.h"

#include "MoviePipelinePrimaryConfig.h"
#include "MoviePipelineSetting.h"
#include "MovieRenderQueueHandles.h"
#include "UObject/StrongObjectPtr.h"
#include "VLMRClassLookup.h"
#include "VLMRLuaStackTable.h"
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

	TArray<FSettingRow> ReadSettingRows(const UMoviePipelinePrimaryConfig& Config, bool bWithDisplayName)
	{
		TArray<FSettingRow> Rows;
		for (const UMoviePipelineSetting* Setting : Config.GetUserSettings())
		{
			if (Setting)
			{
				const UClass* Class = Setting->GetClass();
				Rows.Add({ Class->GetName(), bWithDisplayName ? TOptional<FString>(ClassDisplayName(Class)) : TOptional<FString>(), Setting->IsEnabled() });
			}
		}
		return Rows;
	}

	sol::table MakeSettingRows(sol::state_view Lua, const TArray<FSettingRow>& Rows)
	{
		FLuaStackTable Table(Lua.lua_state(), Rows.Num(), 0);
		WriteSettingRows(Table, Rows);
		return Table.Release();
	}

	void WriteSettingRows(FLuaStackTable& Table, const TArray<FSettingRow>& Rows)
	{
		for (int32 Index = 0; Index < Rows.Num(); ++Index)
		{
			const FSettingRow& Row = Rows[Index];
			FLuaStackTable Entry(Table.GetState(), 0, 3);
			Entry.SetText("name", Row.Name);
			if (Row.DisplayName.IsSet())
			{
				Entry.SetText("display_name", Row.DisplayName.GetValue());
			}
			Entry.SetBool("is_enabled", Row.bIsEnabled);
			Table.SetTable(Index + 1, Entry);
		}
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
