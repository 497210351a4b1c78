#include "MovieRenderQueueAccess.h"

#include "Editor.h"
#include "Engine/Engine.h"
#include "Engine/World.h"
#include "LuaSessionData.h"
#include "MoviePipelineBase.h"
#include "MoviePipelineExecutor.h"
#include "MoviePipelineLinearExecutor.h"
#include "MoviePipelineQueue.h"
#include "MoviePipelineQueueSubsystem.h"
#include "Templates/Casts.h"
#include "UObject/UnrealType.h"
#include "VLMRScriptArguments.h"
#include "VLMRScriptResults.h"

namespace VLMR
{
	static const char* const JobIdentityKey = "__vlmr_mrq_job_identity";

	struct FQueueFailureTexts
	{
		const TCHAR* NoSubsystem;
		const TCHAR* NoQueue;
	};

	static const FQueueFailureTexts& GetFailureTexts(EQueueWording Wording)
	{
		static const FQueueFailureTexts Editing = { TEXT("subsystem not available"), TEXT("no queue") };
		static const FQueueFailureTexts Reading = { TEXT("Movie Pipeline subsystem not available"), TEXT("no queue available") };
		return Wording == EQueueWording::Editing ? Editing : Reading;
	}

	UMoviePipelineQueueSubsystem* GetQueueSubsystem()
	{
		return GEditor ? GEditor->GetEditorSubsystem<UMoviePipelineQueueSubsystem>() : nullptr;
	}

	TStrongObjectPtr<UMoviePipelineQueueSubsystem> GetSubsystemOrReport(FLuaSessionData& Session, const TCHAR* Label, EQueueWording Wording)
	{
		TStrongObjectPtr<UMoviePipelineQueueSubsystem> Subsystem(GetQueueSubsystem());
		if (!Subsystem)
		{
			LogLine(Session, ELineKind::Fail, Label, GetFailureTexts(Wording).NoSubsystem);
		}
		return Subsystem;
	}

	TStrongObjectPtr<UMoviePipelineQueueSubsystem> GetIdleSubsystem(FLuaSessionData& Session, const TCHAR* Label)
	{
		TStrongObjectPtr<UMoviePipelineQueueSubsystem> Subsystem = GetSubsystemOrReport(Session, Label, EQueueWording::Reading);
		if (Subsystem && IsRenderInProgress(Subsystem.Get()))
		{
			LogLine(Session, ELineKind::Fail, Label, TEXT("a render is already in progress"));
			return nullptr;
		}
		return Subsystem;
	}

	TStrongObjectPtr<UMoviePipelineQueue> GetSubsystemQueueOrReport(UMoviePipelineQueueSubsystem& Subsystem, FLuaSessionData& Session,
		const TCHAR* Label, EQueueWording Wording)
	{
		TStrongObjectPtr<UMoviePipelineQueue> Queue(Subsystem.GetQueue());
		if (!Queue)
		{
			LogLine(Session, ELineKind::Fail, Label, GetFailureTexts(Wording).NoQueue);
		}
		return Queue;
	}

	TStrongObjectPtr<UMoviePipelineQueue> GetQueueOrReport(FLuaSessionData& Session, const TCHAR* Label, EQueueWording Wording)
	{
		const TStrongObjectPtr<UMoviePipelineQueueSubsystem> Subsystem = GetSubsystemOrReport(Session, Label, Wording);
		return Subsystem ? GetSubsystemQueueOrReport(*Subsystem, Session, Label, Wording) : nullptr;
	}

	bool IsRenderInProgress(const UMoviePipelineQueueSubsystem* Subsystem)
	{
		const UMoviePipelineExecutorBase* Executor = Subsystem ? Subsystem->GetActiveExecutor() : nullptr;
		return Executor && Executor->IsRendering();
	}

	UMoviePipelineBase* FindActivePipeline(UMoviePipelineExecutorBase* Executor)
	{
		UMoviePipelineLinearExecutorBase* LinearExecutor = Cast<UMoviePipelineLinearExecutorBase>(Executor);
		if (!LinearExecutor)
		{
			return nullptr;
		}
		// The engine keeps the active pipeline in a protected property.
		const FObjectProperty* Property = CastField<FObjectProperty>(LinearExecutor->GetClass()->FindPropertyByName(TEXT("ActiveMoviePipeline")));
		if (!Property)
		{
			return nullptr;
		}
		return Cast<UMoviePipelineBase>(Property->GetObjectPropertyValue_InContainer(LinearExecutor));
	}

	FActiveRender FindActiveRender()
	{
		FActiveRender Render;
		Render.Subsystem.Reset(GetQueueSubsystem());
		Render.Executor.Reset(Render.Subsystem ? Render.Subsystem->GetActiveExecutor() : nullptr);
		Render.Pipeline.Reset(FindActivePipeline(Render.Executor.Get()));
		return Render;
	}

	TArray<TStrongObjectPtr<UMoviePipelineExecutorJob>> GetHeldJobs(const UMoviePipelineQueue& Queue)
	{
		const TArray<UMoviePipelineExecutorJob*> Jobs = Queue.GetJobs();
		TArray<TStrongObjectPtr<UMoviePipelineExecutorJob>> Held;
		Held.Reserve(Jobs.Num());
		for (UMoviePipelineExecutorJob* Job : Jobs)
		{
			Held.Emplace(Job);
		}
		return Held;
	}

	void ReportJobIndexOutOfRange(FLuaSessionData& Session, const TCHAR* Label, const TCHAR* What, int64 Index, int32 Count)
	{
		LogLine(Session, ELineKind::Fail, Label, DescribeJobIndexOutOfRange(What, Index, Count));
	}

	FString DescribeJobIndexOutOfRange(const TCHAR* What, int64 Index, int32 Count)
	{
		return FString::Printf(TEXT("%sindex %lld out of range (1-%d)"), What, static_cast<long long>(Index), Count);
	}

	bool CheckJobIndex(FLuaSessionData& Session, const TCHAR* Label, const TCHAR* What, int64 Index, int32 Count)
	{
		const bool bInRange = Index >= 1 && Index <= Count;
		if (!bInRange)
		{
			ReportJobIndexOutOfRange(Session, Label, What, Index, Count);
		}
		return bInRange;
	}

	FString LabelWithIndex(const TCHAR* Label, int64 Index)
	{
		return FString::Printf(TEXT("%s(%lld)"), Label, static_cast<long long>(Index));
	}

	UWorld* FindCurrentEditorWorld()
	{
		if (GEditor)
		{
			for (const FWorldContext& Context : GEditor->GetWorldContexts())
			{
				if (Context.WorldType == EWorldType::Editor && Context.World())
				{
					return Context.World();
				}
			}
		}
		if (GEngine)
		{
			for (const FWorldContext& Context : GEngine->GetWorldContexts())
			{
				if (Context.World())
				{
					return Context.World();
				}
			}
		}
		return nullptr;
	}

	FString ToAssetPathString(const FSoftObjectPath& Path)
	{
		FString Text;
		if (!Path.IsNull())
		{
			// Room for a usual asset path up front, rather than a reallocation for each part appended.
			Text.Reserve(128);
			Path.GetAssetPath().AppendString(Text);
		}
		return Text;
	}

	FString MakeJobIdentity(const UMoviePipelineExecutorJob* Job)
	{
		return Job ? FString::Printf(TEXT("%p"), Job) : FString();
	}

	// Reads the identity field of the userdata at index 1; run protected, since a userdata's metatable may refuse.
	static int ReadUserdataIdentity(lua_State* L)
	{
		lua_getfield(L, 1, JobIdentityKey);
		return 1;
	}

	// Pushes the identity field of the value at Index: raw for a table, protected for a userdata; false when unreadable.
	static bool PushIdentityField(lua_State* L, int32 Index)
	{
		switch (lua_type(L, Index))
		{
		case LUA_TTABLE:
			lua_pushstring(L, JobIdentityKey);
			lua_rawget(L, Index);
			return true;
		case LUA_TUSERDATA:
			lua_pushcfunction(L, &ReadUserdataIdentity);
			lua_pushvalue(L, Index);
			return lua_pcall(L, 1, 1, 0) == LUA_OK;
		default:
			return false;
		}
	}

	TOptional<FString> ReadJobIdentity(const sol::object& Value)
	{
		lua_State* L = Value.lua_state();
		if (!L)
		{
			return {};
		}
		const int32 Top = lua_gettop(L);
		Value.push(L);
		TOptional<FString> Identity;
		if (PushIdentityField(L, lua_gettop(L)) && lua_type(L, -1) == LUA_TSTRING)
		{
			size_t Length = 0;
			const char* Text = lua_tolstring(L, -1, &Length);
			Identity = ToFString(Text, static_cast<int32>(FMath::Min<size_t>(Length, MAX_int32)));
		}
		lua_settop(L, Top);
		return Identity;
	}

	UMoviePipelineExecutorJob* FindJobByIdentity(const UMoviePipelineQueue& Queue, const FString& Identity)
	{
		for (UMoviePipelineExecutorJob* Job : Queue.GetJobs())
		{
			if (Job && MakeJobIdentity(Job).Equals(Identity, ESearchCase::IgnoreCase))
			{
				return Job;
			}
		}
		return nullptr;
	}
}
