#include "MovieRenderQueueTestDriver.h"

#include "ConfigAssets.h"
#include "Editor.h"
#include "Graph/MovieGraphConfig.h"
#include "HAL/FileManager.h"
#include "Misc/Paths.h"
#include "MoviePipelinePrimaryConfig.h"
#include "MoviePipelineQueueSubsystem.h"
#include "MovieRenderPipelineSettings.h"
#include "Subsystems/SubsystemCollection.h"
#include "Templates/Casts.h"
#include "TestDriverExecutor.h"
#include "UObject/GarbageCollection.h"
#include "UObject/Package.h"
#include "UObject/StrongObjectPtr.h"

#include <new>

namespace UE::Vlmr
{
	namespace
	{
		const char* const DriverStateMetatable = "vlmr.MovieRenderQueueDriverState";

		struct FMovieRenderQueueDriverState
		{
			// The jobs of the queue whose subsystem was deactivated, kept in a queue of the transient package.
			TStrongObjectPtr<UMoviePipelineQueue> RemovedQueue;
		};

		FMovieRenderQueueDriverState& GetDriverState(lua_State* L)
		{
			void* State = luaL_testudata(L, lua_upvalueindex(2), DriverStateMetatable);
			if (!State)
			{
				luaL_error(L, "editor: the test driver's state was replaced");
			}
			return *static_cast<FMovieRenderQueueDriverState*>(State);
		}

		// Only lets go of the kept queue (Lua frees the memory), so that a script calling __gc itself leaves a usable state.
		int ReleaseDriverState(lua_State* L)
		{
			static_cast<FMovieRenderQueueDriverState*>(luaL_checkudata(L, 1, DriverStateMetatable))->RemovedQueue.Reset();
			return 0;
		}

		void PushFString(lua_State* L, const FString& Text)
		{
			const FTCHARToUTF8 Utf8(*Text);
			lua_pushlstring(L, reinterpret_cast<const char*>(Utf8.Get()), size_t(Utf8.Length()));
		}

		UMoviePipelineQueueSubsystem* GetQueueSubsystem()
		{
			return GEditor ? GEditor->GetEditorSubsystem<UMoviePipelineQueueSubsystem>() : nullptr;
		}

		template <typename TAsset>
		using TCreateAssetFunction = TAsset* (*)(const FString& AssetPath, FString& OutError);

		// Pushes the new asset's object path, or the reason it could not be made; true on success.
		template <typename TAsset>
		bool PushNewAsset(lua_State* L, const char* AssetPath, const TCHAR* FunctionName, TCreateAssetFunction<TAsset> Create)
		{
			FString Error;
			const TAsset* Asset = Create(FString(UTF8_TO_TCHAR(AssetPath)), Error);
			PushFString(L, Asset ? Asset->GetPathName() : FString::Printf(TEXT("%s: %s"), FunctionName, *Error));
			return Asset != nullptr;
		}

		template <typename TAsset>
		int CreateAssetFromLua(lua_State* L, const TCHAR* FunctionName, TCreateAssetFunction<TAsset> Create)
		{
			const char* AssetPath = luaL_checkstring(L, 1);
			if (!PushNewAsset<TAsset>(L, AssetPath, FunctionName, Create))
			{
				return lua_error(L);
			}
			return 1;
		}

		// The message of the failure, or an empty text when the render state is now as asked.
		FString SetRendering(bool bRendering)
		{
			UMoviePipelineQueueSubsystem* Subsystem = GetQueueSubsystem();
			if (!Subsystem)
			{
				return TEXT("editor.set_rendering: the Movie Pipeline queue subsystem is not available");
			}
			if (bRendering)
			{
				if (!Subsystem->IsRendering())
				{
					Subsystem->RenderQueueWithExecutorInstance(NewObject<UVlmrTestDriverExecutor>(Subsystem));
				}
				return FString();
			}
			if (UVlmrTestDriverExecutor* Executor = Cast<UVlmrTestDriverExecutor>(Subsystem->GetActiveExecutor()))
			{
				Executor->Finish();
				return FString();
			}
			return Subsystem->IsRendering() ? TEXT("editor.set_rendering: a render started by the engine is in progress") : FString();
		}

		// Copies the queue's jobs, origin and dirty state into the other queue.
		void CopyQueue(UMoviePipelineQueue& Target, UMoviePipelineQueue& Source)
		{
			Target.CopyFrom(&Source);
			Target.SetIsDirty(Source.IsDirty());
		}

		// The subsystem goes as it does when its plugin is deactivated, collected at once with its queue and jobs.
		void RemoveQueueSubsystem(FMovieRenderQueueDriverState& State, UMoviePipelineQueueSubsystem& Subsystem)
		{
			State.RemovedQueue.Reset(NewObject<UMoviePipelineQueue>(GetTransientPackage()));
			if (UMoviePipelineQueue* Queue = Subsystem.GetQueue())
			{
				CopyQueue(*State.RemovedQueue, *Queue);
			}
			FSubsystemCollectionBase::DeactivateExternalSubsystem(UMoviePipelineQueueSubsystem::StaticClass());
			CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
		}

		FString RestoreQueueSubsystem(FMovieRenderQueueDriverState& State)
		{
			FSubsystemCollectionBase::ActivateExternalSubsystem(UMoviePipelineQueueSubsystem::StaticClass());
			UMoviePipelineQueueSubsystem* Subsystem = GetQueueSubsystem();
			UMoviePipelineQueue* Queue = Subsystem ? Subsystem->GetQueue() : nullptr;
			if (!Queue)
			{
				return TEXT("editor.set_queue_subsystem_available: the editor did not create the Movie Pipeline queue subsystem");
			}
			if (State.RemovedQueue)
			{
				CopyQueue(*Queue, *State.RemovedQueue);
				State.RemovedQueue.Reset();
			}
			return FString();
		}

		FString SetQueueSubsystemAvailable(FMovieRenderQueueDriverState& State, bool bAvailable)
		{
			UMoviePipelineQueueSubsystem* Subsystem = GetQueueSubsystem();
			if (bAvailable == (Subsystem != nullptr))
			{
				return FString();
			}
			if (bAvailable)
			{
				return RestoreQueueSubsystem(State);
			}
			if (Subsystem->IsRendering())
			{
				return TEXT("editor.set_queue_subsystem_available: a render is in progress");
			}
			RemoveQueueSubsystem(State, *Subsystem);
			return FString();
		}

		TArray<FString> ListFilesBelow(const FString& InDirectory)
		{
			FString Directory = FPaths::IsRelative(InDirectory) ? FPaths::Combine(FPaths::ProjectDir(), InDirectory) : InDirectory;
			FPaths::NormalizeDirectoryName(Directory);
			TArray<FString> Files;
			if (!Directory.IsEmpty() && FPaths::DirectoryExists(Directory))
			{
				IFileManager::Get().FindFilesRecursive(Files, *Directory, TEXT("*"), true, false);
			}
			for (FString& File : Files)
			{
				FPaths::NormalizeFilename(File);
				FPaths::MakePathRelativeTo(File, *(Directory + TEXT("/")));
			}
			Files.Sort();
			return Files;
		}

		void SetDefaultLocalExecutor(const char* ClassPath)
		{
			UMovieRenderPipelineProjectSettings* Settings = UMovieRenderPipelineProjectSettings::StaticClass()->GetDefaultObject<UMovieRenderPipelineProjectSettings>();
			Settings->DefaultLocalExecutor = FSoftClassPath(FString(UTF8_TO_TCHAR(ClassPath)));
		}
	}

	void PushMovieRenderQueueDriverState(lua_State* L)
	{
		new (lua_newuserdatauv(L, sizeof(FMovieRenderQueueDriverState), 0)) FMovieRenderQueueDriverState();
		if (luaL_newmetatable(L, DriverStateMetatable))
		{
			lua_pushcfunction(L, &ReleaseDriverState);
			lua_setfield(L, -2, "__gc");
		}
		lua_setmetatable(L, -2);
	}

	int LuaCreateConfig(lua_State* L)
	{
		return CreateAssetFromLua<UMoviePipelinePrimaryConfig>(L, TEXT("editor.create_config"), &CreatePrimaryConfigAsset);
	}

	int LuaCreateGraph(lua_State* L)
	{
		return CreateAssetFromLua<UMovieGraphConfig>(L, TEXT("editor.create_graph"), &CreateGraphConfigAsset);
	}

	int LuaSetRendering(lua_State* L)
	{
		luaL_checktype(L, 1, LUA_TBOOLEAN);
		const bool bRendering = lua_toboolean(L, 1) != 0;
		bool bFailed = false;
		{
			const FString Failure = SetRendering(bRendering);
			bFailed = !Failure.IsEmpty();
			if (bFailed)
			{
				PushFString(L, Failure);
			}
		}
		return bFailed ? lua_error(L) : 0;
	}

	int LuaSetQueueSubsystemAvailable(lua_State* L)
	{
		luaL_checktype(L, 1, LUA_TBOOLEAN);
		const bool bAvailable = lua_toboolean(L, 1) != 0;
		FMovieRenderQueueDriverState& State = GetDriverState(L);
		bool bFailed = false;
		{
			const FString Failure = SetQueueSubsystemAvailable(State, bAvailable);
			bFailed = !Failure.IsEmpty();
			if (bFailed)
			{
				PushFString(L, Failure);
			}
		}
		return bFailed ? lua_error(L) : 0;
	}

	int LuaListFiles(lua_State* L)
	{
		const char* Directory = luaL_checkstring(L, 1);
		const TArray<FString> Files = ListFilesBelow(FString(UTF8_TO_TCHAR(Directory)));
		lua_createtable(L, Files.Num(), 0);
		for (int32 Index = 0; Index < Files.Num(); ++Index)
		{
			PushFString(L, Files[Index]);
			lua_rawseti(L, -2, Index + 1);
		}
		return 1;
	}

	int LuaSetDefaultLocalExecutor(lua_State* L)
	{
		const char* ClassPath = luaL_checkstring(L, 1);
		SetDefaultLocalExecutor(ClassPath);
		return 0;
	}
}
