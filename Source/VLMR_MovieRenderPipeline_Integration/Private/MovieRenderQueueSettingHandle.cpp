// The setting handle: one setting object's enabled state, its reflected properties, and the console-variable list.
#include "LuaSessionData.h"
#include "MoviePipelineConsoleVariableSetting.h"
#include "MoviePipelineSetting.h"
#include "MovieRenderQueueHandles.h"
#include "MovieRenderQueueSettings.h"
#include "UObject/StrongObjectPtr.h"
#include "UObject/UnrealType.h"
#include "VelLuaProperty.h"
#include "VLMRScriptArguments.h"
#include "VLMRScriptResults.h"
#include "VLMRSoftPathText.h"

#include <cmath>
#include <limits>

namespace VLMR
{
	using FWeakSetting = TWeakObjectPtr<UMoviePipelineSetting>;
	using FHeldSetting = TStrongObjectPtr<UMoviePipelineSetting>;

	static FHeldSetting ResolveSetting(const FWeakSetting& Setting, FLuaSessionData& Session, const TCHAR* Label)
	{
		return ResolveOrReport(Setting, Session, Label, TEXT("setting"));
	}

	// A setting's text as `get` reads it: the engine's export of index 0, no port flags, no default to compare with.
	static FString ExportSettingValue(const FProperty* Property, UMoviePipelineSetting* Setting)
	{
		FString Value;
		Property->ExportText_InContainer(0, Value, Setting, nullptr, Setting, PPF_None);
		return Value;
	}

	static sol::object SettingInfo(sol::state_view Lua, const FWeakSetting& WeakSetting, FLuaSessionData& Session)
	{
		const FHeldSetting Setting = ResolveSetting(WeakSetting, Session, TEXT("setting:info"));
		if (!Setting)
		{
			return Nil(Lua);
		}
		const FString Name = Setting->GetClass()->GetName();
		const FString DisplayName = ClassDisplayName(Setting->GetClass());
		const bool bEnabled = Setting->IsEnabled();
		const bool bValidOnPrimary = Setting->IsValidOnPrimary();
		const bool bValidOnShots = Setting->IsValidOnShots();

		sol::table Info = Lua.create_table();
		Info["name"] = ToUtf8(Name);
		Info["display_name"] = ToUtf8(DisplayName);
		Info["is_enabled"] = bEnabled;
		Info["valid_on_primary"] = bValidOnPrimary;
		Info["valid_on_shots"] = bValidOnShots;
		return Info;
	}

	static sol::object SettingSetEnabled(sol::state_view Lua, const FWeakSetting& WeakSetting, FLuaSessionData& Session, bool bEnabled)
	{
		const FHeldSetting Setting = ResolveSetting(WeakSetting, Session, TEXT("setting:set_enabled"));
		if (!Setting)
		{
			return Nil(Lua);
		}
		Setting->Modify(true);
		Setting->SetIsEnabled(bEnabled);
		Setting->MarkPackageDirty();
		return sol::make_object(Lua, Setting->IsEnabled() == bEnabled);
	}

	static sol::object SettingGet(sol::state_view Lua, const FWeakSetting& WeakSetting, FLuaSessionData& Session, const FString& PropertyName)
	{
		const FHeldSetting Setting = ResolveSetting(WeakSetting, Session, TEXT("get"));
		// A name the engine cannot hold is as unknown as any other property: a quiet nil.
		const FProperty* Property = Setting && FitsEngineName(PropertyName) ? Setting->GetClass()->FindPropertyByName(FName(*PropertyName)) : nullptr;
		return Property ? sol::make_object(Lua, ToUtf8(ExportSettingValue(Property, Setting.Get()))) : Nil(Lua);
	}

	// Properties whose export text becomes an engine name when imported: names, and object references by path.
	static bool HoldsEngineName(const FProperty* Property)
	{
		return CastField<FNameProperty>(Property) || CastField<FObjectPropertyBase>(Property);
	}

	static void SettingSet(const FWeakSetting& WeakSetting, FLuaSessionData& Session, const FString& Name, const FString& Value)
	{
		const TCHAR* Label = TEXT("set");
		// Importing an object reference may load, and a load may collect: the setting is held until the end.
		const FHeldSetting Setting = ResolveSetting(WeakSetting, Session, Label);
		if (!Setting || !CheckEngineNameLength(Session, Label, Name))
		{
			return;
		}
		FProperty* Property = VelLuaProperty::FindPropertyByName(Setting->GetClass(), Name);
		if (!Property)
		{
			LogLine(Session, ELineKind::Fail, Label, FString::Printf(TEXT("property '%s' not found"), *Name));
			return;
		}
		if (HoldsEngineName(Property) && !CheckEngineNameLength(Session, Label, Value))
		{
			return;
		}
		if (ImportsAsSoftPath(*Property) && !IsStorableSoftPath(Value))
		{
			LogLine(Session, ELineKind::Fail, Label, FString::Printf(TEXT("failed to set '%s' = '%s' (%s)"), *Name, *Value, *UnstorableSoftPathMessage(Value)));
			return;
		}

		Setting->Modify(true);
		Setting->PreEditChange(Property);
		FString Error;
		const bool bWritten = VelLuaProperty::SetPropertyValueFromStringSafe(Property, Setting.Get(), Setting.Get(), Value, Error);
		// The setting re-validates after every attempt, also a failed one.
		FPropertyChangedEvent ChangedEvent(Property, bWritten ? EPropertyChangeType::ValueSet : EPropertyChangeType::Unspecified);
		Setting->PostEditChangeProperty(ChangedEvent);

		if (bWritten)
		{
			LogLine(Session, ELineKind::Ok, FString::Printf(TEXT("set %s = %s"), *Name, *Value));
		}
		else
		{
			LogLine(Session, ELineKind::Fail, Label, FString::Printf(TEXT("failed to set '%s' = '%s' (%s)"), *Name, *Value, *Error));
		}
	}

	struct FPropertyRow
	{
		FString Name;
		FString Type;
		FString Value;
	};

	static sol::object SettingListProperties(sol::state_view Lua, const FWeakSetting& WeakSetting, FLuaSessionData& Session)
	{
		const FHeldSetting Setting = ResolveSetting(WeakSetting, Session, TEXT("list_properties"));
		if (!Setting)
		{
			return Nil(Lua);
		}
		TArray<FPropertyRow> Rows;
		for (TFieldIterator<FProperty> It(Setting->GetClass(), EFieldIteratorFlags::IncludeSuper, EFieldIteratorFlags::IncludeDeprecated); It; ++It)
		{
			const FProperty* Property = *It;
			if (!Property->HasAnyPropertyFlags(CPF_Transient | CPF_Deprecated))
			{
				Rows.Add({ Property->GetName(), Property->GetCPPType(), ExportSettingValue(Property, Setting.Get()) });
			}
		}

		sol::table Table = Lua.create_table(Rows.Num(), 0);
		for (const FPropertyRow& Row : Rows)
		{
			Table.add(Lua.create_table_with("name", ToUtf8(Row.Name), "type", ToUtf8(Row.Type), "value", ToUtf8(Row.Value)));
		}
		return Table;
	}

	// The console-variable setting behind a handle, held for the call; else the method's one failure line.
	static TStrongObjectPtr<UMoviePipelineConsoleVariableSetting> ResolveConsoleVariables(const FWeakSetting& WeakSetting, FLuaSessionData& Session, const TCHAR* Label)
	{
		TStrongObjectPtr<UMoviePipelineConsoleVariableSetting> Setting(Cast<UMoviePipelineConsoleVariableSetting>(WeakSetting.Get()));
		if (!Setting)
		{
			LogLine(Session, ELineKind::Fail, Label, TEXT("setting is not MoviePipelineConsoleVariableSetting"));
		}
		return Setting;
	}

	// A console-variable edit: Modify, the engine call, then the package is marked dirty; the engine's boolean is returned.
	template<class TEdit>
	static sol::object EditConsoleVariables(sol::state_view Lua, const FWeakSetting& WeakSetting, FLuaSessionData& Session, const TCHAR* Label, TEdit&& Edit)
	{
		const TStrongObjectPtr<UMoviePipelineConsoleVariableSetting> Setting = ResolveConsoleVariables(WeakSetting, Session, Label);
		if (!Setting)
		{
			return Nil(Lua);
		}
		Setting->Modify(true);
		const bool bResult = Edit(*Setting);
		Setting->MarkPackageDirty();
		return sol::make_object(Lua, bResult);
	}

	static sol::object ListConsoleVariables(sol::state_view Lua, const FWeakSetting& WeakSetting, FLuaSessionData& Session)
	{
		const TStrongObjectPtr<UMoviePipelineConsoleVariableSetting> Setting = ResolveConsoleVariables(WeakSetting, Session, TEXT("list_console_variables"));
		if (!Setting)
		{
			return Nil(Lua);
		}
		const TArray<FMoviePipelineConsoleVariableEntry> Entries = Setting->GetConsoleVariables();
		sol::table Rows = Lua.create_table(Entries.Num(), 0);
		for (const FMoviePipelineConsoleVariableEntry& Entry : Entries)
		{
			Rows.add(Lua.create_table_with("name", ToUtf8(Entry.Name), "value", static_cast<double>(Entry.Value), "is_enabled", Entry.bIsEnabled));
		}
		return Rows;
	}

	// The nearest 32-bit float; a finite value beyond the float range rounds to an infinity, as IEEE rounding does.
	static float NarrowToFloat(double Value)
	{
		if (std::isfinite(Value) && std::fabs(Value) > std::numeric_limits<float>::max())
		{
			return Value > 0.0 ? std::numeric_limits<float>::infinity() : -std::numeric_limits<float>::infinity();
		}
		return static_cast<float>(Value);
	}

	static void AddSettingMethods(sol::table& Handle, const FWeakSetting& Setting, FLuaSessionData* S)
	{
		using FConsoleVariables = UMoviePipelineConsoleVariableSetting;
		Handle.set_function("info", [Setting, S](sol::this_state L, sol::object) { return SettingInfo(L, Setting, *S); });
		Handle.set_function("set_enabled", [Setting, S](sol::this_state L, sol::object, FScriptBool Enabled) { return SettingSetEnabled(L, Setting, *S, Enabled.Value); });
		Handle.set_function("get", [Setting, S](sol::this_state L, sol::object, const FScriptText& Name) { return SettingGet(L, Setting, *S, Name.Value); });
		Handle.set_function("set", [Setting, S](sol::object, const FScriptText& Name, const FScriptText& Value) {
			SettingSet(Setting, *S, Name.Value, Value.Value);
			return NoValue();
		});
		Handle.set_function("list_properties", [Setting, S](sol::this_state L, sol::object) { return SettingListProperties(L, Setting, *S); });
		Handle.set_function("add_or_update_console_variable", [Setting, S](sol::this_state L, sol::object, const FScriptText& Name, double Value) {
			return EditConsoleVariables(L, Setting, *S, TEXT("add_or_update_console_variable"),
				[&](FConsoleVariables& Target) { return Target.AddOrUpdateConsoleVariable(Name.Value, NarrowToFloat(Value)); });
		});
		Handle.set_function("remove_console_variable", [Setting, S](sol::this_state L, sol::object, const FScriptText& Name, const TOptionalArgument<bool>& bRemoveAll) {
			return EditConsoleVariables(L, Setting, *S, TEXT("remove_console_variable"),
				[&](FConsoleVariables& Target) { return Target.RemoveConsoleVariable(Name.Value, bRemoveAll.Get(false)); });
		});
		Handle.set_function("set_console_variable_enabled", [Setting, S](sol::this_state L, sol::object, const FScriptText& Name, FScriptBool Enabled) {
			return EditConsoleVariables(L, Setting, *S, TEXT("set_console_variable_enabled"),
				[&](FConsoleVariables& Target) { return Target.UpdateConsoleVariableEnableState(Name.Value, Enabled.Value); });
		});
		Handle.set_function("list_console_variables", [Setting, S](sol::this_state L, sol::object) { return ListConsoleVariables(L, Setting, *S); });
	}
}

sol::table BuildSettingHandle(sol::state_view& Lua, TWeakObjectPtr<UMoviePipelineSetting> Setting, FLuaSessionData& Session)
{
	using namespace VLMR;
	const UMoviePipelineSetting* Resolved = Setting.Get();
	sol::table Handle = CreateHandleTable(Lua, "_name", Resolved ? TOptional<FString>(Resolved->GetClass()->GetName()) : TOptional<FString>());
	AddSettingMethods(Handle, Setting, &Session);
	return Handle;
}
