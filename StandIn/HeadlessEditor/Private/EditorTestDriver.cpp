#include "EditorTestDriver.h"

#include "Editor.h"
#include "EditorAssetOperations.h"
#include "UObject/Package.h"
#include "HostTestHooks.h"
#include "LevelSequence.h"
#include "LevelSequenceAssets.h"
#include "LuaSessionData.h"
#include "MovieRenderGraphTestDriver.h"
#include "MovieRenderQueueTestDriver.h"
#include "RenderWait.h"
#include "RunStop.h"
#include "Runtime/Launch/Resources/Version.h"
#include "SequenceShotOptions.h"
#include "UObject/GarbageCollection.h"

// The functions are plain Lua C functions: every argument is checked before any C++ object exists, so that a Lua
// argument error never jumps over a destructor; failures found later are raised after the C++ work has returned.
namespace UE::Vlmr
{
	namespace
	{
		FLuaSessionData& GetSession(lua_State* L)
		{
			return *static_cast<FLuaSessionData*>(lua_touserdata(L, lua_upvalueindex(1)));
		}

		FString ToFString(const char* Utf8)
		{
			return FString(UTF8_TO_TCHAR(Utf8));
		}

		void PushFString(lua_State* L, const FString& Text)
		{
			const FTCHARToUTF8 Utf8(*Text);
			lua_pushlstring(L, reinterpret_cast<const char*>(Utf8.Get()), size_t(Utf8.Length()));
		}

		int32 TickEditor(int32 TickCount)
		{
			int32 Ticks = 0;
			for (; Ticks < TickCount && !IsStopRequested(); ++Ticks)
			{
				GEditor->Tick(EditorTickSeconds, false);
			}
			return Ticks;
		}

		int LuaTick(lua_State* L)
		{
			const lua_Integer TickCount = luaL_optinteger(L, 1, 1);
			lua_pushinteger(L, TickEditor(int32(FMath::Clamp<lua_Integer>(TickCount, 0, MAX_int32))));
			return 1;
		}

		int LuaRunUntilIdle(lua_State* L)
		{
			const lua_Integer MaxFrames = luaL_checkinteger(L, 1);
			lua_pushinteger(L, TickUntilRenderIdle(int32(FMath::Clamp<lua_Integer>(MaxFrames, 0, MAX_int32)), []() {}));
			return 1;
		}

		int LuaCollectGarbage(lua_State* L)
		{
			CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
			return 0;
		}

		int LuaUndo(lua_State* L)
		{
			lua_pushboolean(L, GEditor->UndoTransaction());
			return 1;
		}

		int LuaRedo(lua_State* L)
		{
			lua_pushboolean(L, GEditor->RedoTransaction());
			return 1;
		}

		int LuaLog(lua_State* L)
		{
			const TArray<FString>& Lines = GetSession(L).GetLogLines();
			lua_createtable(L, Lines.Num(), 0);
			for (int32 Index = 0; Index < Lines.Num(); ++Index)
			{
				PushFString(L, Lines[Index]);
				lua_rawseti(L, -2, Index + 1);
			}
			return 1;
		}

		int LuaClearLog(lua_State* L)
		{
			GetSession(L).ClearLog();
			return 0;
		}

		// The options table as plain values, read before any C++ object is made.
		struct FRawSequenceOptions
		{
			bool bHasDisplayRate = false;
			lua_Integer DisplayRateNumerator = 0;
			lua_Integer DisplayRateDenominator = 1;
			bool bHasStartFrame = false;
			lua_Integer StartFrame = 0;
			bool bHasEndFrame = false;
			lua_Integer EndFrame = 0;
		};

		bool ReadIntegerField(lua_State* L, int OptionsIndex, const char* Field, lua_Integer& OutValue)
		{
			lua_getfield(L, OptionsIndex, Field);
			const bool bPresent = !lua_isnil(L, -1);
			if (bPresent)
			{
				if (!lua_isinteger(L, -1))
				{
					luaL_error(L, "editor.create_level_sequence: opts.%s must be an integer", Field);
				}
				OutValue = lua_tointeger(L, -1);
			}
			lua_pop(L, 1);
			return bPresent;
		}

		// opts.display_rate is either frames per second (an integer) or {numerator, denominator}.
		bool ReadDisplayRate(lua_State* L, int OptionsIndex, lua_Integer& OutNumerator, lua_Integer& OutDenominator)
		{
			lua_getfield(L, OptionsIndex, "display_rate");
			if (!lua_istable(L, -1))
			{
				lua_pop(L, 1);
				return ReadIntegerField(L, OptionsIndex, "display_rate", OutNumerator);
			}
			lua_rawgeti(L, -1, 1);
			lua_rawgeti(L, -2, 2);
			if (!lua_isinteger(L, -2) || !lua_isinteger(L, -1))
			{
				luaL_error(L, "editor.create_level_sequence: opts.display_rate must be an integer or {numerator, denominator}");
			}
			OutNumerator = lua_tointeger(L, -2);
			OutDenominator = lua_tointeger(L, -1);
			lua_pop(L, 3);
			return true;
		}

		FRawSequenceOptions ReadSequenceOptions(lua_State* L, int OptionsIndex)
		{
			FRawSequenceOptions Raw;
			if (lua_isnoneornil(L, OptionsIndex))
			{
				return Raw;
			}
			luaL_checktype(L, OptionsIndex, LUA_TTABLE);
			Raw.bHasDisplayRate = ReadDisplayRate(L, OptionsIndex, Raw.DisplayRateNumerator, Raw.DisplayRateDenominator);
			const bool bPositiveRate = Raw.DisplayRateNumerator > 0 && Raw.DisplayRateNumerator <= MAX_int32
				&& Raw.DisplayRateDenominator > 0 && Raw.DisplayRateDenominator <= MAX_int32;
			if (Raw.bHasDisplayRate && !bPositiveRate)
			{
				luaL_error(L, "editor.create_level_sequence: opts.display_rate must be a positive frame rate");
			}
			Raw.bHasStartFrame = ReadIntegerField(L, OptionsIndex, "start_frame", Raw.StartFrame);
			Raw.bHasEndFrame = ReadIntegerField(L, OptionsIndex, "end_frame", Raw.EndFrame);
			const bool bStartInRange = !Raw.bHasStartFrame || (Raw.StartFrame >= -1000000 && Raw.StartFrame <= 1000000);
			const bool bEndInRange = !Raw.bHasEndFrame || (Raw.EndFrame >= -1000000 && Raw.EndFrame <= 1000000);
			if (!bStartInRange || !bEndInRange)
			{
				luaL_error(L, "editor.create_level_sequence: opts.start_frame and opts.end_frame must lie within +-1000000");
			}
			CheckShotOptions(L, OptionsIndex);
			return Raw;
		}

		FLevelSequenceAssetOptions ToAssetOptions(lua_State* L, int OptionsIndex, const FRawSequenceOptions& Raw)
		{
			FLevelSequenceAssetOptions Options;
			Options.Shots = ReadShotOptions(L, OptionsIndex);
			if (Raw.bHasDisplayRate)
			{
				Options.DisplayRate = FFrameRate(uint32(Raw.DisplayRateNumerator), uint32(Raw.DisplayRateDenominator));
			}
			if (Raw.bHasStartFrame)
			{
				Options.StartFrame = int32(Raw.StartFrame);
			}
			if (Raw.bHasEndFrame)
			{
				Options.EndFrame = int32(Raw.EndFrame);
			}
			return Options;
		}

		// Pushes the new asset's object path, or the reason it could not be made; true on success.
		bool PushNewLevelSequence(lua_State* L, const char* AssetPath, int OptionsIndex, const FRawSequenceOptions& Raw)
		{
			FString Error;
			const ULevelSequence* Sequence = CreateLevelSequenceAsset(ToFString(AssetPath), ToAssetOptions(L, OptionsIndex, Raw), Error);
			PushFString(L, Sequence ? Sequence->GetPathName() : TEXT("editor.create_level_sequence: ") + Error);
			return Sequence != nullptr;
		}

		int LuaCreateLevelSequence(lua_State* L)
		{
			const char* AssetPath = luaL_checkstring(L, 1);
			const FRawSequenceOptions Raw = ReadSequenceOptions(L, 2);
			if (!PushNewLevelSequence(L, AssetPath, 2, Raw))
			{
				return lua_error(L);
			}
			return 1;
		}

		int LuaDeleteAsset(lua_State* L)
		{
			const char* AssetPath = luaL_checkstring(L, 1);
			lua_pushboolean(L, DeleteAsset(ToFString(AssetPath)));
			return 1;
		}

		int LuaUnloadPackage(lua_State* L)
		{
			const char* AssetPath = luaL_checkstring(L, 1);
			lua_pushboolean(L, UnloadPackage(ToFString(AssetPath)));
			return 1;
		}

		// editor.is_package_dirty(path): whether the package is loaded and has unsaved changes.
		int LuaIsPackageDirty(lua_State* L)
		{
			const char* PackagePath = luaL_checkstring(L, 1);
			const UPackage* Package = FindPackage(nullptr, *ToFString(PackagePath));
			lua_pushboolean(L, Package && Package->IsDirty());
			return 1;
		}

		int LuaSetPackageEditable(lua_State* L)
		{
			const char* Prefix = luaL_checkstring(L, 1);
			luaL_checktype(L, 2, LUA_TBOOLEAN);
			UE::VelmireAI::Private::SetPackagePrefixReadOnly(ToFString(Prefix), lua_toboolean(L, 2) == 0);
			return 0;
		}

		int LuaEngineVersion(lua_State* L)
		{
			lua_pushfstring(L, "%d.%d.%d", ENGINE_MAJOR_VERSION, ENGINE_MINOR_VERSION, ENGINE_PATCH_VERSION);
			return 1;
		}
	}

	void InstallEditorTestDriver(lua_State* L, FLuaSessionData& Session)
	{
		const luaL_Reg Functions[] = {
			{ "tick", &LuaTick },
			{ "run_until_idle", &LuaRunUntilIdle },
			{ "collect_garbage", &LuaCollectGarbage },
			{ "undo", &LuaUndo },
			{ "redo", &LuaRedo },
			{ "log", &LuaLog },
			{ "clear_log", &LuaClearLog },
			{ "create_level_sequence", &LuaCreateLevelSequence },
			{ "delete_asset", &LuaDeleteAsset },
			{ "unload_package", &LuaUnloadPackage },
			{ "is_package_dirty", &LuaIsPackageDirty },
			{ "set_package_editable", &LuaSetPackageEditable },
			{ "engine_version", &LuaEngineVersion },
			{ "create_config", &LuaCreateConfig },
			{ "create_graph", &LuaCreateGraph },
			{ "add_typed_variable", &LuaAddTypedVariable },
			{ "set_rendering", &LuaSetRendering },
			{ "set_queue_subsystem_available", &LuaSetQueueSubsystemAvailable },
			{ "set_default_local_executor", &LuaSetDefaultLocalExecutor },
			{ "list_files", &LuaListFiles },
			{ nullptr, nullptr },
		};
		lua_createtable(L, 0, UE_ARRAY_COUNT(Functions) - 1);
		lua_pushlightuserdata(L, &Session);
		PushMovieRenderQueueDriverState(L);
		luaL_setfuncs(L, Functions, 2);
		lua_setglobal(L, "editor");
	}
}
