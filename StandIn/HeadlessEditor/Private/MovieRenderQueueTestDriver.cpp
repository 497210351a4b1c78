#include "MovieRenderQueueTestDriver.h"

#include "ConfigAssets.h"
#include "Editor.h"
#include "HAL/FileManager.h"
#include "Misc/Paths.h"
#include "MoviePipelinePrimaryConfig.h"
#include "MoviePipelineQueueSubsystem.h"
#include "MovieRenderPipelineSettings.h"
#include "Templates/Casts.h"
#include "TestDriverExecutor.h"
#include "UObject/GarbageCollection.h"

namespace UE::Vlmr
{
	namespace
	{
		void PushFString(lua_State* L, const FString& Text)
		{
			const FTCHARToUTF8 Utf8(*Text);
			lua_pushlstring(L, reinterpret_cast<const char*>(Utf8.Get()), size_t(Utf8.Length()));
		}

		UMoviePipelineQueueSubsystem* GetQueueSubsystem()
		{
			return GEditor ? GEditor->GetEditorSubsystem<UMoviePipelineQueueSubsystem>() : nullptr;
		}

		// Pushes the new asset's object path, or the reason it could not be made; true on success.
		bool PushNewConfig(lua_State* L, const char* AssetPath)
		{
			FString Error;
			const UMoviePipelinePrimaryConfig* Config = CreatePrimaryConfigAsset(FString(UTF8_TO_TCHAR(AssetPath)), Error);
			PushFString(L, Config ? Config->GetPathName() : TEXT("editor.create_config: ") + Error);
			return Config != nullptr;
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

		// Stand-in choice: without DeactivateExternalSubsystem, the subsystem is marked garbage and leaves at the next collection.
		FString SetQueueSubsystemAvailable(bool bAvailable)
		{
			UMoviePipelineQueueSubsystem* Subsystem = GetQueueSubsystem();
			if (bAvailable)
			{
				return Subsystem ? FString() : TEXT("editor.set_queue_subsystem_available: a removed subsystem cannot be brought back in this session");
			}
			if (Subsystem)
			{
				Subsystem->MarkAsGarbage();
				CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
			}
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

	int LuaCreateConfig(lua_State* L)
	{
		const char* AssetPath = luaL_checkstring(L, 1);
		if (!PushNewConfig(L, AssetPath))
		{
			return lua_error(L);
		}
		return 1;
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
		bool bFailed = false;
		{
			const FString Failure = SetQueueSubsystemAvailable(bAvailable);
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
