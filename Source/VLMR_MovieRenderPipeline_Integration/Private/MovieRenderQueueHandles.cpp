// The job, config and setting handles of the queue binding, and the setting-class lookup they share.
#include "MovieRenderQueueBinding.h"

#include "Graph/MovieGraphConfig.h"
#include "LuaSessionData.h"
#include "MoviePipelineConsoleVariableSetting.h"
#include "MoviePipelinePrimaryConfig.h"
#include "MoviePipelineQueue.h"
#include "MoviePipelineSetting.h"
#include "UObject/UnrealType.h"
#include "VelLuaProperty.h"
#include "VLMRBindings.h"
#include "VLMRScriptSupport.h"

namespace VLMR
{
	static sol::variadic_results NoValue()
	{
		return sol::variadic_results();
	}

	static sol::variadic_results NilValue(sol::state_view Lua)
	{
		sol::variadic_results Results;
		Results.push_back(Nil(Lua));
		return Results;
	}

	static const TCHAR* BoolText(bool bValue)
	{
		return bValue ? TEXT("true") : TEXT("false");
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

	static FString ClassDisplayName(const UClass* Class)
	{
		return Class->GetDisplayNameText().ToString();
	}

	// A setting's text as `get` reads it: the engine's export of index 0, no port flags, no default to compare with.
	static FString ExportSettingValue(const FProperty* Property, const UMoviePipelineSetting* Setting)
	{
		FString Value;
		Property->ExportText_InContainer(0, Value, Setting, nullptr, const_cast<UMoviePipelineSetting*>(Setting), PPF_None);
		return Value;
	}

	// --- Job handle ---

	static UMoviePipelinePrimaryConfig* ResolveJobConfiguration(UMoviePipelineExecutorJob* Job, FLuaSessionData& Session, const TCHAR* Label)
	{
		UMoviePipelinePrimaryConfig* Config = Job->GetConfiguration();
		if (!Config)
		{
			LogLine(Session, ELineKind::Fail, Label, TEXT("job has no configuration"));
		}
		return Config;
	}

	static UClass* ResolveSettingClassOrReport(const std::string& ClassName, FLuaSessionData& Session, const FString& Label)
	{
		UClass* Class = ResolveSettingClass(ToFString(ClassName));
		if (!Class)
		{
			LogLine(Session, ELineKind::Fail, Label, FString::Printf(TEXT("class not found: %s"), *ToFString(ClassName)));
		}
		return Class;
	}

	// The job's configuration and the setting class, checked in that order: job, class, configuration.
	static UMoviePipelinePrimaryConfig* ResolveJobSettingTarget(const TWeakObjectPtr<UMoviePipelineExecutorJob>& WeakJob, FLuaSessionData& Session,
		const TCHAR* Label, const std::string& ClassName, UClass*& OutClass)
	{
		UMoviePipelineExecutorJob* Job = ResolveOrReport(WeakJob, Session, Label, TEXT("job"));
		OutClass = Job ? ResolveSettingClassOrReport(ClassName, Session, Label) : nullptr;
		return OutClass ? ResolveJobConfiguration(Job, Session, Label) : nullptr;
	}

	static sol::table MakeSettingRows(sol::state_view Lua, const UMoviePipelinePrimaryConfig* Config, bool bWithDisplayName)
	{
		sol::table Rows = Lua.create_table();
		for (const UMoviePipelineSetting* Setting : Config->GetUserSettings())
		{
			if (!Setting)
			{
				continue;
			}
			sol::table Row = Lua.create_table();
			Row["name"] = ToUtf8(Setting->GetClass()->GetName());
			if (bWithDisplayName)
			{
				Row["display_name"] = ToUtf8(ClassDisplayName(Setting->GetClass()));
			}
			Row["is_enabled"] = Setting->IsEnabled();
			Rows.add(Row);
		}
		return Rows;
	}

	static sol::object JobFindOrAddSetting(sol::state_view Lua, const TWeakObjectPtr<UMoviePipelineExecutorJob>& WeakJob, FLuaSessionData& Session, const std::string& ClassName)
	{
		const TCHAR* Label = TEXT("find_or_add_setting");
		UClass* Class = nullptr;
		UMoviePipelinePrimaryConfig* Config = ResolveJobSettingTarget(WeakJob, Session, Label, ClassName, Class);
		if (!Config)
		{
			return Nil(Lua);
		}
		UMoviePipelineSetting* Setting = Config->FindOrAddSettingByClass(Class, true);
		if (!Setting)
		{
			LogLine(Session, ELineKind::Fail, Label, FString::Printf(TEXT("could not create setting: %s"), *Class->GetName()));
			return Nil(Lua);
		}
		sol::table Handle = BuildSettingHandle(Lua, Setting, Session);
		LogLine(Session, ELineKind::Ok, Label, Class->GetName());
		return Handle;
	}

	static sol::object JobRemoveSetting(sol::state_view Lua, const TWeakObjectPtr<UMoviePipelineExecutorJob>& WeakJob, FLuaSessionData& Session, const std::string& ClassName)
	{
		const TCHAR* Label = TEXT("remove_setting");
		UClass* Class = nullptr;
		UMoviePipelinePrimaryConfig* Config = ResolveJobSettingTarget(WeakJob, Session, Label, ClassName, Class);
		if (!Config)
		{
			return Nil(Lua);
		}
		UMoviePipelineSetting* Setting = Config->FindSettingByClass(Class, true);
		if (!Setting)
		{
			LogLine(Session, ELineKind::Fail, Label, FString::Printf(TEXT("setting not found: %s"), *Class->GetName()));
			return Nil(Lua);
		}
		Config->RemoveSetting(Setting);
		LogLine(Session, ELineKind::Ok, Label, FString::Printf(TEXT("removed %s"), *Class->GetName()));
		return sol::make_object(Lua, true);
	}

	static sol::object JobListSettings(sol::state_view Lua, const TWeakObjectPtr<UMoviePipelineExecutorJob>& WeakJob, FLuaSessionData& Session)
	{
		const TCHAR* Label = TEXT("list_settings");
		UMoviePipelineExecutorJob* Job = ResolveOrReport(WeakJob, Session, Label, TEXT("job"));
		UMoviePipelinePrimaryConfig* Config = Job ? ResolveJobConfiguration(Job, Session, Label) : nullptr;
		if (!Config)
		{
			return Nil(Lua);
		}
		return MakeSettingRows(Lua, Config, true);
	}

	// A job setter: resolves the job, applies the edit and logs "[OK] <label> -> <text>"; nothing is returned on success.
	template<class TEdit>
	static sol::variadic_results EditJob(sol::state_view Lua, const TWeakObjectPtr<UMoviePipelineExecutorJob>& WeakJob, FLuaSessionData& Session, const TCHAR* Label, TEdit&& Edit)
	{
		UMoviePipelineExecutorJob* Job = ResolveOrReport(WeakJob, Session, Label, TEXT("job"));
		if (!Job)
		{
			return NilValue(Lua);
		}
		LogLine(Session, ELineKind::Ok, Label, Edit(*Job));
		return NoValue();
	}

	static sol::object JobSetConfig(sol::state_view Lua, const TWeakObjectPtr<UMoviePipelineExecutorJob>& WeakJob, FLuaSessionData& Session, const std::string& AssetPath)
	{
		const TCHAR* Label = TEXT("set_config");
		UMoviePipelineExecutorJob* Job = ResolveOrReport(WeakJob, Session, Label, TEXT("job"));
		if (!Job)
		{
			return Nil(Lua);
		}
		const FString Path = PrefixGameRoot(ToFString(AssetPath));
		UMoviePipelinePrimaryConfig* Preset = LoadTypedAssetOrReport<UMoviePipelinePrimaryConfig>(Session, Label, TEXT("config asset"), Path);
		if (!Preset)
		{
			return Nil(Lua);
		}
		Job->SetPresetOrigin(Preset);
		LogLine(Session, ELineKind::Ok, Label, Path);
		return sol::make_object(Lua, true);
	}

	static sol::object JobSetGraph(sol::state_view Lua, const TWeakObjectPtr<UMoviePipelineExecutorJob>& WeakJob, FLuaSessionData& Session, const std::string& AssetPath, bool bUpdateVariableAssignments)
	{
		const TCHAR* Label = TEXT("set_graph");
		UMoviePipelineExecutorJob* Job = ResolveOrReport(WeakJob, Session, Label, TEXT("job"));
		if (!Job)
		{
			return Nil(Lua);
		}
		const FString Path = PrefixGameRoot(ToFString(AssetPath));
		UMovieGraphConfig* Graph = LoadTypedAssetOrReport<UMovieGraphConfig>(Session, Label, TEXT("graph asset"), Path);
		if (!Graph)
		{
			return Nil(Lua);
		}
		Job->SetGraphPreset(Graph, bUpdateVariableAssignments);
		LogLine(Session, ELineKind::Ok, Label, Path);
		return sol::make_object(Lua, true);
	}

	static sol::object JobInfo(sol::state_view Lua, const TWeakObjectPtr<UMoviePipelineExecutorJob>& WeakJob, FLuaSessionData& Session)
	{
		UMoviePipelineExecutorJob* Job = ResolveOrReport(WeakJob, Session, TEXT("info"), TEXT("job"));
		if (!Job)
		{
			return Nil(Lua);
		}
		const UMoviePipelinePrimaryConfig* Config = Job->GetConfiguration();
		const UMoviePipelinePrimaryConfig* PresetOrigin = Job->GetPresetOrigin();
		const UMovieGraphConfig* GraphPreset = Job->GetGraphPreset();

		sol::table Info = Lua.create_table();
		Info["sequence"] = ToUtf8(ToAssetPathString(Job->Sequence));
		Info["map"] = ToUtf8(ToAssetPathString(Job->Map));
		Info["author"] = ToUtf8(Job->Author);
		Info["job_name"] = ToUtf8(Job->JobName);
		Info["comment"] = ToUtf8(Job->Comment);
		Info["is_enabled"] = Job->IsEnabled();
		Info["is_consumed"] = Job->IsConsumed();
		Info["user_data"] = ToUtf8(Job->UserData);
		Info["is_graph_config"] = GraphPreset != nullptr;
		Info["config_setting_count"] = Config ? Config->GetUserSettings().Num() : 0;
		Info["preset_origin"] = PresetOrigin ? ToUtf8(PresetOrigin->GetPathName()) : std::string();
		Info["graph_preset"] = GraphPreset ? ToUtf8(GraphPreset->GetPathName()) : std::string();
		return Info;
	}

	static void AddJobMethods(sol::table& Handle, const TWeakObjectPtr<UMoviePipelineExecutorJob>& Job, FLuaSessionData* S)
	{
		using FJob = UMoviePipelineExecutorJob;
		Handle.set_function("find_or_add_setting", [Job, S](sol::this_state L, sol::object, const std::string& ClassName) { return JobFindOrAddSetting(L, Job, *S, ClassName); });
		Handle.set_function("remove_setting", [Job, S](sol::this_state L, sol::object, const std::string& ClassName) { return JobRemoveSetting(L, Job, *S, ClassName); });
		Handle.set_function("list_settings", [Job, S](sol::this_state L, sol::object) { return JobListSettings(L, Job, *S); });
		Handle.set_function("set_map", [Job, S](sol::this_state L, sol::object, const std::string& Path) {
			return EditJob(L, Job, *S, TEXT("set_map"), [&Path](FJob& Target) { Target.Map.SetPath(ToFString(Path)); return ToFString(Path); });
		});
		Handle.set_function("set_author", [Job, S](sol::this_state L, sol::object, const std::string& Text) {
			return EditJob(L, Job, *S, TEXT("set_author"), [&Text](FJob& Target) { Target.Author = ToFString(Text); return Target.Author; });
		});
		Handle.set_function("set_job_name", [Job, S](sol::this_state L, sol::object, const std::string& Text) {
			return EditJob(L, Job, *S, TEXT("set_job_name"), [&Text](FJob& Target) { Target.JobName = ToFString(Text); return Target.JobName; });
		});
		Handle.set_function("set_comment", [Job, S](sol::this_state L, sol::object, const std::string& Text) {
			return EditJob(L, Job, *S, TEXT("set_comment"), [&Text](FJob& Target) { Target.Comment = ToFString(Text); return Target.Comment; });
		});
		Handle.set_function("set_enabled", [Job, S](sol::this_state L, sol::object, bool bEnabled) {
			return EditJob(L, Job, *S, TEXT("set_enabled"), [bEnabled](FJob& Target) { Target.SetIsEnabled(bEnabled); return FString(BoolText(bEnabled)); });
		});
		Handle.set_function("set_consumed", [Job, S](sol::this_state L, sol::object, bool bConsumed) {
			return EditJob(L, Job, *S, TEXT("set_consumed"), [bConsumed](FJob& Target) { Target.SetConsumed(bConsumed); return FString(BoolText(bConsumed)); });
		});
		Handle.set_function("is_consumed", [Job](sol::this_state L, sol::object) {
			const FJob* Target = Job.Get();
			return Target ? sol::make_object(L, Target->IsConsumed()) : Nil(L);
		});
		Handle.set_function("set_sequence", [Job, S](sol::this_state L, sol::object, const std::string& Path) {
			return EditJob(L, Job, *S, TEXT("set_sequence"), [&Path](FJob& Target) {
				const FString Normalized = PrefixGameRoot(ToFString(Path));
				FSoftObjectPath Sequence;
				Sequence.SetPath(Normalized);
				Target.SetSequence(Sequence);
				return Normalized;
			});
		});
		Handle.set_function("set_config", [Job, S](sol::this_state L, sol::object, const std::string& Path) { return JobSetConfig(L, Job, *S, Path); });
		Handle.set_function("set_graph", [Job, S](sol::this_state L, sol::object, const std::string& Path, sol::optional<bool> bUpdate) {
			return JobSetGraph(L, Job, *S, Path, bUpdate.value_or(true));
		});
		Handle.set_function("info", [Job, S](sol::this_state L, sol::object) { return JobInfo(L, Job, *S); });
	}

	// --- Config handle ---

	static sol::object ConfigFindOrAddSetting(sol::state_view Lua, const TWeakObjectPtr<UMoviePipelinePrimaryConfig>& WeakConfig, FLuaSessionData& Session, const std::string& ClassName)
	{
		const TCHAR* Label = TEXT("config:find_or_add_setting");
		UMoviePipelinePrimaryConfig* Config = ResolveOrReport(WeakConfig, Session, Label, TEXT("config"));
		UClass* Class = Config ? ResolveSettingClassOrReport(ClassName, Session, Label) : nullptr;
		if (!Class)
		{
			return Nil(Lua);
		}
		UMoviePipelineSetting* Setting = Config->FindOrAddSettingByClass(Class, true);
		if (!Setting)
		{
			LogLine(Session, ELineKind::Fail, Label, FString::Printf(TEXT("could not create setting: %s"), *Class->GetName()));
			return Nil(Lua);
		}
		Config->MarkPackageDirty();
		LogLine(Session, ELineKind::Ok, Label, Class->GetName());
		return BuildSettingHandle(Lua, Setting, Session);
	}

	static sol::object ConfigRemoveSetting(sol::state_view Lua, const TWeakObjectPtr<UMoviePipelinePrimaryConfig>& WeakConfig, FLuaSessionData& Session, const std::string& ClassName)
	{
		const TCHAR* Label = TEXT("config:remove_setting");
		UMoviePipelinePrimaryConfig* Config = ResolveOrReport(WeakConfig, Session, Label, TEXT("config"));
		UClass* Class = Config ? ResolveSettingClassOrReport(ClassName, Session, Label) : nullptr;
		if (!Class)
		{
			return Nil(Lua);
		}
		UMoviePipelineSetting* Setting = Config->FindSettingByClass(Class, true);
		if (!Setting)
		{
			LogLine(Session, ELineKind::Fail, Label, FString::Printf(TEXT("setting not found: %s"), *Class->GetName()));
			return Nil(Lua);
		}
		Config->RemoveSetting(Setting);
		Config->MarkPackageDirty();
		LogLine(Session, ELineKind::Ok, Label, Class->GetName());
		return sol::make_object(Lua, true);
	}

	static sol::object ConfigListSettings(sol::state_view Lua, const TWeakObjectPtr<UMoviePipelinePrimaryConfig>& WeakConfig, FLuaSessionData& Session)
	{
		UMoviePipelinePrimaryConfig* Config = ResolveOrReport(WeakConfig, Session, TEXT("config:list_settings"), TEXT("config"));
		return Config ? sol::object(MakeSettingRows(Lua, Config, true)) : Nil(Lua);
	}

	static sol::object ConfigInfo(sol::state_view Lua, const TWeakObjectPtr<UMoviePipelinePrimaryConfig>& WeakConfig, FLuaSessionData& Session)
	{
		UMoviePipelinePrimaryConfig* Config = ResolveOrReport(WeakConfig, Session, TEXT("config:info"), TEXT("config"));
		if (!Config)
		{
			return Nil(Lua);
		}
		sol::table Info = Lua.create_table();
		Info["path"] = ToUtf8(Config->GetPathName());
		Info["display_name"] = ToUtf8(Config->DisplayName);
		Info["setting_count"] = Config->GetUserSettings().Num();
		Info["settings"] = MakeSettingRows(Lua, Config, false);
		return Info;
	}

	// --- Setting handle ---

	static sol::object SettingInfo(sol::state_view Lua, const TWeakObjectPtr<UMoviePipelineSetting>& WeakSetting, FLuaSessionData& Session)
	{
		UMoviePipelineSetting* Setting = ResolveOrReport(WeakSetting, Session, TEXT("setting:info"), TEXT("setting"));
		if (!Setting)
		{
			return Nil(Lua);
		}
		sol::table Info = Lua.create_table();
		Info["name"] = ToUtf8(Setting->GetClass()->GetName());
		Info["display_name"] = ToUtf8(ClassDisplayName(Setting->GetClass()));
		Info["is_enabled"] = Setting->IsEnabled();
		Info["valid_on_primary"] = Setting->IsValidOnPrimary();
		Info["valid_on_shots"] = Setting->IsValidOnShots();
		return Info;
	}

	static sol::object SettingSetEnabled(sol::state_view Lua, const TWeakObjectPtr<UMoviePipelineSetting>& WeakSetting, FLuaSessionData& Session, bool bEnabled)
	{
		UMoviePipelineSetting* Setting = ResolveOrReport(WeakSetting, Session, TEXT("setting:set_enabled"), TEXT("setting"));
		if (!Setting)
		{
			return Nil(Lua);
		}
		Setting->Modify(true);
		Setting->SetIsEnabled(bEnabled);
		Setting->MarkPackageDirty();
		return sol::make_object(Lua, Setting->IsEnabled() == bEnabled);
	}

	static sol::object SettingGet(sol::state_view Lua, const TWeakObjectPtr<UMoviePipelineSetting>& WeakSetting, FLuaSessionData& Session, const std::string& PropertyName)
	{
		UMoviePipelineSetting* Setting = ResolveOrReport(WeakSetting, Session, TEXT("get"), TEXT("setting"));
		const FProperty* Property = Setting ? Setting->GetClass()->FindPropertyByName(FName(*ToFString(PropertyName))) : nullptr;
		return Property ? sol::make_object(Lua, ToUtf8(ExportSettingValue(Property, Setting))) : Nil(Lua);
	}

	static sol::variadic_results SettingSet(const TWeakObjectPtr<UMoviePipelineSetting>& WeakSetting, FLuaSessionData& Session, const std::string& PropertyName, const std::string& ValueText)
	{
		UMoviePipelineSetting* Setting = ResolveOrReport(WeakSetting, Session, TEXT("set"), TEXT("setting"));
		if (!Setting)
		{
			return NoValue();
		}
		const FString Name = ToFString(PropertyName);
		const FString Value = ToFString(ValueText);
		FProperty* Property = VelLuaProperty::FindPropertyByName(Setting->GetClass(), Name);
		if (!Property)
		{
			LogLine(Session, ELineKind::Fail, TEXT("set"), FString::Printf(TEXT("property '%s' not found"), *Name));
			return NoValue();
		}

		Setting->Modify(true);
		Setting->PreEditChange(Property);
		FString Error;
		const bool bWritten = VelLuaProperty::SetPropertyValueFromStringSafe(Property, Setting, Setting, Value, Error);
		// The setting re-validates after every attempt, also a failed one.
		FPropertyChangedEvent ChangedEvent(Property, bWritten ? EPropertyChangeType::ValueSet : EPropertyChangeType::Unspecified);
		Setting->PostEditChangeProperty(ChangedEvent);

		if (bWritten)
		{
			Session.Log(FString::Printf(TEXT("[OK] set %s = %s"), *Name, *Value));
		}
		else
		{
			LogLine(Session, ELineKind::Fail, TEXT("set"), FString::Printf(TEXT("failed to set '%s' = '%s' (%s)"), *Name, *Value, *Error));
		}
		return NoValue();
	}

	static sol::object SettingListProperties(sol::state_view Lua, const TWeakObjectPtr<UMoviePipelineSetting>& WeakSetting, FLuaSessionData& Session)
	{
		UMoviePipelineSetting* Setting = ResolveOrReport(WeakSetting, Session, TEXT("list_properties"), TEXT("setting"));
		if (!Setting)
		{
			return Nil(Lua);
		}
		sol::table Rows = Lua.create_table();
		for (TFieldIterator<FProperty> It(Setting->GetClass(), EFieldIteratorFlags::IncludeSuper, EFieldIteratorFlags::IncludeDeprecated); It; ++It)
		{
			const FProperty* Property = *It;
			if (Property->HasAnyPropertyFlags(CPF_Transient | CPF_Deprecated))
			{
				continue;
			}
			Rows.add(Lua.create_table_with(
				"name", ToUtf8(Property->GetName()),
				"type", ToUtf8(Property->GetCPPType()),
				"value", ToUtf8(ExportSettingValue(Property, Setting))));
		}
		return Rows;
	}

	// The console-variable setting behind a handle, or null after the method's one failure line.
	static UMoviePipelineConsoleVariableSetting* ResolveConsoleVariables(const TWeakObjectPtr<UMoviePipelineSetting>& WeakSetting, FLuaSessionData& Session, const TCHAR* Label)
	{
		UMoviePipelineConsoleVariableSetting* Setting = Cast<UMoviePipelineConsoleVariableSetting>(WeakSetting.Get());
		if (!Setting)
		{
			LogLine(Session, ELineKind::Fail, Label, TEXT("setting is not MoviePipelineConsoleVariableSetting"));
		}
		return Setting;
	}

	// A console-variable edit: Modify, the engine call, then the package is marked dirty; the engine's boolean is returned.
	template<class TEdit>
	static sol::object EditConsoleVariables(sol::state_view Lua, const TWeakObjectPtr<UMoviePipelineSetting>& WeakSetting, FLuaSessionData& Session, const TCHAR* Label, TEdit&& Edit)
	{
		UMoviePipelineConsoleVariableSetting* Setting = ResolveConsoleVariables(WeakSetting, Session, Label);
		if (!Setting)
		{
			return Nil(Lua);
		}
		Setting->Modify(true);
		const bool bResult = Edit(*Setting);
		Setting->MarkPackageDirty();
		return sol::make_object(Lua, bResult);
	}

	static sol::object ListConsoleVariables(sol::state_view Lua, const TWeakObjectPtr<UMoviePipelineSetting>& WeakSetting, FLuaSessionData& Session)
	{
		UMoviePipelineConsoleVariableSetting* Setting = ResolveConsoleVariables(WeakSetting, Session, TEXT("list_console_variables"));
		if (!Setting)
		{
			return Nil(Lua);
		}
		sol::table Rows = Lua.create_table();
		for (const FMoviePipelineConsoleVariableEntry& Entry : Setting->GetConsoleVariables())
		{
			Rows.add(Lua.create_table_with("name", ToUtf8(Entry.Name), "value", static_cast<double>(Entry.Value), "is_enabled", Entry.bIsEnabled));
		}
		return Rows;
	}

	static void AddSettingMethods(sol::table& Handle, const TWeakObjectPtr<UMoviePipelineSetting>& Setting, FLuaSessionData* S)
	{
		using FConsoleVariables = UMoviePipelineConsoleVariableSetting;
		Handle.set_function("info", [Setting, S](sol::this_state L, sol::object) { return SettingInfo(L, Setting, *S); });
		Handle.set_function("set_enabled", [Setting, S](sol::this_state L, sol::object, bool bEnabled) { return SettingSetEnabled(L, Setting, *S, bEnabled); });
		Handle.set_function("get", [Setting, S](sol::this_state L, sol::object, const std::string& Name) { return SettingGet(L, Setting, *S, Name); });
		Handle.set_function("set", [Setting, S](sol::object, const std::string& Name, const std::string& Value) { return SettingSet(Setting, *S, Name, Value); });
		Handle.set_function("list_properties", [Setting, S](sol::this_state L, sol::object) { return SettingListProperties(L, Setting, *S); });
		Handle.set_function("add_or_update_console_variable", [Setting, S](sol::this_state L, sol::object, const std::string& Name, double Value) {
			return EditConsoleVariables(L, Setting, *S, TEXT("add_or_update_console_variable"),
				[&](FConsoleVariables& Target) { return Target.AddOrUpdateConsoleVariable(ToFString(Name), static_cast<float>(Value)); });
		});
		Handle.set_function("remove_console_variable", [Setting, S](sol::this_state L, sol::object, const std::string& Name, sol::optional<bool> bRemoveAll) {
			return EditConsoleVariables(L, Setting, *S, TEXT("remove_console_variable"),
				[&](FConsoleVariables& Target) { return Target.RemoveConsoleVariable(ToFString(Name), bRemoveAll.value_or(false)); });
		});
		Handle.set_function("set_console_variable_enabled", [Setting, S](sol::this_state L, sol::object, const std::string& Name, bool bEnabled) {
			return EditConsoleVariables(L, Setting, *S, TEXT("set_console_variable_enabled"),
				[&](FConsoleVariables& Target) { return Target.UpdateConsoleVariableEnableState(ToFString(Name), bEnabled); });
		});
		Handle.set_function("list_console_variables", [Setting, S](sol::this_state L, sol::object) { return ListConsoleVariables(L, Setting, *S); });
	}
}

sol::table BuildJobHandle(sol::state_view& Lua, UMoviePipelineExecutorJob* Job, FLuaSessionData& Session)
{
	using namespace VLMR;
	sol::table Handle = Lua.create_table();
	TWeakObjectPtr<UMoviePipelineExecutorJob> WeakJob(Job);
	Handle["sequence"] = ToUtf8(Job ? ToAssetPathString(Job->Sequence) : FString());
	Handle["__vlmr_mrq_job_identity"] = ToUtf8(MakeJobIdentity(Job));
	AddJobMethods(Handle, WeakJob, &Session);
	VLMRMovieRenderGraph::ExtendJobHandle(Lua, Handle, WeakJob, Session);
	return Handle;
}

sol::table BuildConfigHandle(sol::state_view& Lua, TWeakObjectPtr<UMoviePipelinePrimaryConfig> Config, FLuaSessionData& Session)
{
	using namespace VLMR;
	sol::table Handle = Lua.create_table();
	if (const UMoviePipelinePrimaryConfig* Resolved = Config.Get())
	{
		Handle["path"] = ToUtf8(Resolved->GetPathName());
	}
	FLuaSessionData* S = &Session;
	Handle.set_function("find_or_add_setting", [Config, S](sol::this_state L, sol::object, const std::string& ClassName) { return ConfigFindOrAddSetting(L, Config, *S, ClassName); });
	Handle.set_function("remove_setting", [Config, S](sol::this_state L, sol::object, const std::string& ClassName) { return ConfigRemoveSetting(L, Config, *S, ClassName); });
	Handle.set_function("list_settings", [Config, S](sol::this_state L, sol::object) { return ConfigListSettings(L, Config, *S); });
	Handle.set_function("info", [Config, S](sol::this_state L, sol::object) { return ConfigInfo(L, Config, *S); });
	Handle.set_function("save", [Config, S](sol::object) { return SaveAsset(Config.Get(), *S, TEXT("config:save")); });
	return Handle;
}

sol::table BuildGraphHandle(sol::state_view& Lua, TWeakObjectPtr<UMovieGraphConfig> Graph, FLuaSessionData& Session)
{
	sol::table Handle = Lua.create_table();
	if (const UMovieGraphConfig* Resolved = Graph.Get())
	{
		Handle["path"] = VLMR::ToUtf8(Resolved->GetPathName());
	}
	VLMRMovieRenderGraph::ExtendGraphHandle(Lua, Handle, Graph, Session);
	return Handle;
}

sol::table BuildSettingHandle(sol::state_view& Lua, TWeakObjectPtr<UMoviePipelineSetting> Setting, FLuaSessionData& Session)
{
	sol::table Handle = Lua.create_table();
	if (const UMoviePipelineSetting* Resolved = Setting.Get())
	{
		Handle["_name"] = VLMR::ToUtf8(Resolved->GetClass()->GetName());
	}
	VLMR::AddSettingMethods(Handle, Setting, &Session);
	return Handle;
}
