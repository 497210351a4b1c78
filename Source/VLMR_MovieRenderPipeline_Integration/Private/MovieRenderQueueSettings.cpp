#include "MovieRenderQueueSettings.h"

#include "MoviePipelinePrimaryConfig.h"
#include "MoviePipelineSetting.h"
#include "MovieRenderQueueHandles.h"
#include "UObject/StrongObjectPtr.h"
#include "UObject/UObjectHash.h"
#include "VLMRScriptArguments.h"
#include "VLMRScriptResults.h"

namespace VLMR
{
	TArray<UObject*> EnumerateClasses()
	{
		TArray<UObject*> Classes;
		GetObjectsOfClass(UClass::StaticClass(), Classes, true, RF_ClassDefaultObject, UE::GetAsyncLoadingInternalFlagsExclusion());
		return Classes;
	}

	static bool IsConcreteSettingClass(const UClass* Class)
	{
		return Class->IsChildOf(UMoviePipelineSetting::StaticClass()) && !Class->HasAnyClassFlags(CLASS_Abstract);
	}

	UClass* ResolveSettingClass(const FString& Name)
	{
		const FString Prefixed = Name.StartsWith(TEXT("U"), ESearchCase::IgnoreCase) ? Name : TEXT("U") + Name;
		const FString Unprefixed = Prefixed.RightChop(1);

		// Both passes walk the same enumeration: nothing changes the classes in between.
		TArray<UClass*> Candidates;
		for (UObject* Object : EnumerateClasses())
		{
			UClass* Class = static_cast<UClass*>(Object);
			if (IsConcreteSettingClass(Class))
			{
				Candidates.Add(Class);
			}
		}
		for (UClass* Class : Candidates)
		{
			const FString ClassName = Class->GetName();
			if (ClassName.Equals(Prefixed, ESearchCase::IgnoreCase) || ClassName.Equals(Unprefixed, ESearchCase::IgnoreCase))
			{
				return Class;
			}
		}
		// Deprecated classes stay findable by name although listings hide them.
		for (UClass* Class : Candidates)
		{
			if (Class->GetName().Contains(Unprefixed, ESearchCase::IgnoreCase))
			{
				return Class;
			}
		}
		return nullptr;
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
