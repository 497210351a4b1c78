#include "HandleDiscovery.h"

#include "ConfigAssets.h"
#include "Graph/MovieGraphConfig.h"
#include "MoviePipelinePrimaryConfig.h"
#include "VelmireLuaSession.h"

#include <string>

namespace UE::Vlmr
{
	namespace
	{
		const TCHAR* const DiscoveryPresetPath = TEXT("/Game/VlmrHandleDiscovery/Preset");
		const TCHAR* const DiscoveryGraphPath = TEXT("/Game/VlmrHandleDiscovery/Graph");
		// A setting node every engine version offers, added to the discovery graph for its node_info table.
		const char* const DiscoveryNodeClass = "GlobalOutputSetting";

		std::string ToUtf8(const FString& Text)
		{
			return std::string(TCHAR_TO_UTF8(*Text));
		}

		FString ToFString(const std::string& Text)
		{
			return FString(UTF8_TO_TCHAR(Text.c_str()));
		}

		bool IsFunction(const sol::object& Value)
		{
			return Value.get_type() == sol::type::function;
		}

		// What the function returned first; nil when it is no function or raised an error.
		template <typename... TArguments>
		sol::object CallForFirstResult(const sol::object& Function, TArguments&&... Arguments)
		{
			if (!IsFunction(Function))
			{
				return sol::object(sol::lua_nil);
			}
			sol::protected_function_result Result = Function.as<sol::protected_function>()(Forward<TArguments>(Arguments)...);
			return Result.valid() ? Result.get<sol::object>() : sol::object(sol::lua_nil);
		}

		sol::object CallMethod(const sol::object& Handle, const char* MethodName, const std::string& Argument)
		{
			if (Handle.get_type() != sol::type::table)
			{
				return sol::object(sol::lua_nil);
			}
			const sol::table Table = Handle.as<sol::table>();
			return CallForFirstResult(Table.raw_get<sol::object>(MethodName), Table, Argument);
		}

		void AddHandleType(lua_State* L, const TCHAR* Kind, const sol::object& Handle, TArray<FHandleType>& OutTypes)
		{
			if (Handle.get_type() != sol::type::table)
			{
				return;
			}
			FHandleType& Type = OutTypes.AddDefaulted_GetRef();
			Type.Kind = Kind;
			for (const auto& [Key, Value] : Handle.as<sol::table>())
			{
				if (Key.get_type() != sol::type::string)
				{
					continue;
				}
				const FString Name = ToFString(Key.as<std::string>());
				if (IsFunction(Value))
				{
					Type.Methods.Add(Name);
				}
				else
				{
					Type.Fields.Add({ Name, FString(UTF8_TO_TCHAR(lua_typename(L, int(Value.get_type())))) });
				}
			}
			Type.Methods.Sort();
			Type.Fields.Sort([](const FHandleField& A, const FHandleField& B) { return A.Name < B.Name; });
		}

		// The path of a new asset for a handle to open, or an empty text when it cannot be made.
		template <typename TAsset>
		std::string MakeAssetToOpen(TAsset* (*Create)(const FString&, FString&), const TCHAR* AssetPath)
		{
			FString Error;
			const TAsset* Asset = Create(AssetPath, Error);
			return Asset ? ToUtf8(Asset->GetPathName()) : std::string();
		}

		void DiscoverInSession(sol::state& Lua, TArray<FHandleType>& OutTypes)
		{
			const sol::object Job = CallForFirstResult(Lua["mrq_add_job"], "Cinematics/Intro");
			AddHandleType(Lua.lua_state(), TEXT("job"), Job, OutTypes);
			const std::string PresetPath = MakeAssetToOpen(&CreatePrimaryConfigAsset, DiscoveryPresetPath);
			if (!PresetPath.empty())
			{
				AddHandleType(Lua.lua_state(), TEXT("config"), CallForFirstResult(Lua["mrq_open_config"], PresetPath), OutTypes);
			}
			AddHandleType(Lua.lua_state(), TEXT("setting"), CallMethod(Job, "find_or_add_setting", "Output"), OutTypes);
			const sol::object OpenGraph = Lua["mrq_open_graph"];
			const std::string GraphPath = IsFunction(OpenGraph) ? MakeAssetToOpen(&CreateGraphConfigAsset, DiscoveryGraphPath) : std::string();
			if (!GraphPath.empty())
			{
				const sol::object Graph = CallForFirstResult(OpenGraph, GraphPath);
				AddHandleType(Lua.lua_state(), TEXT("graph"), Graph, OutTypes);
				AddHandleType(Lua.lua_state(), TEXT("node_info"), CallMethod(Graph, "add_node", DiscoveryNodeClass), OutTypes);
			}
		}
	}

	TArray<FHandleType> DiscoverHandleTypes()
	{
		TArray<FHandleType> Types;
		// The session's log lines are of no interest here.
		FVelmireLuaSession Session([](const FString&) {});
		DiscoverInSession(Session.GetState(), Types);
		return Types;
	}
}
