#include "Editor/EditorEngine.h"
#include "Containers/Ticker.h"
#include "Editor/TransBuffer.h"
#include "Engine/World.h"
#include "Tickable.h"
#include "TickableEditorObject.h"
#include "UObject/GarbageCollection.h"
#include "UObject/StandInGarbageCollectionStress.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

UEditorEngine* GEditor = nullptr;

namespace UE::UnrealEd::Private
{
	// Stand-in choice: the undo buffer's memory budget; the engine reads it from its configuration and the stand-in never trims.
	constexpr SIZE_T TransactionBufferMaxMemory = 16 * 1024 * 1024;
	// Stand-in choice: the editor collects garbage every this many ticks; the engine collects on a timer.
	constexpr int32 TicksBetweenGarbageCollections = 60;

	UWorld* FindEditorWorld(const TIndirectArray<FWorldContext>& WorldContexts)
	{
		for (const FWorldContext& Context : WorldContexts)
		{
			if (Context.WorldType == EWorldType::Editor && IsValid(Context.World()))
			{
				return Context.World();
			}
		}
		return nullptr;
	}

	bool HasEditorWorldContext(const TIndirectArray<FWorldContext>& WorldContexts)
	{
		for (const FWorldContext& Context : WorldContexts)
		{
			if (Context.WorldType == EWorldType::Editor)
			{
				return true;
			}
		}
		return false;
	}
}

UEditorEngine::UEditorEngine() = default;

STANDIN_IMPLEMENT_CLASS(UEditorEngine, CLASS_Transient, "UnrealEd")
{
	STANDIN_PROPERTY(Trans, CPF_None);
	STANDIN_PROPERTY(PlayWorld, CPF_None);
}

void UEditorEngine::Init(IEngineLoop* InEngineLoop)
{
	if (!Trans)
	{
		Trans = CreateTransBuffer();
	}
	if (!UE::UnrealEd::Private::HasEditorWorldContext(WorldList))
	{
		FWorldContext& EditorContext = CreateNewWorldContext(EWorldType::Editor);
		EditorContext.SetCurrentWorld(UWorld::CreateWorld(EWorldType::Editor, true));
	}
	Super::Init(InEngineLoop);
	EditorSubsystemCollection.Initialize(this);
}

void UEditorEngine::PreExit()
{
	EditorSubsystemCollection.Deinitialize();
	Super::PreExit();
	PlayWorld = nullptr;
}

UTransactor* UEditorEngine::CreateTransBuffer()
{
	UTransBuffer* TransBuffer = NewObject<UTransBuffer>();
	TransBuffer->Initialize(UE::UnrealEd::Private::TransactionBufferMaxMemory);
	return TransBuffer;
}

void UEditorEngine::Tick(float DeltaSeconds, bool bIdleMode)
{
	// Stand-in choice: the editor tick is the frame, so it advances GFrameCounter as the engine's main loop does.
	++GFrameCounter;
	UE::CoreUObject::StandIn::CollectGarbageForStress();
	// Stand-in choice: the editor tick also ticks the core ticker, which the engine's main loop ticks just before it.
	FTSTicker::GetCoreTicker().Tick(DeltaSeconds);
	TickWorlds(DeltaSeconds);
	FTickableGameObject::TickObjects(nullptr, LEVELTICK_All, false, DeltaSeconds);
	FTickableEditorObject::TickObjects(DeltaSeconds);
	CollectGarbagePeriodically();
}

void UEditorEngine::TickWorlds(float DeltaSeconds)
{
	if (UWorld* EditorWorld = UE::UnrealEd::Private::FindEditorWorld(WorldList))
	{
		EditorWorld->Tick(LEVELTICK_ViewportsOnly, DeltaSeconds);
	}
	if (UWorld* CurrentPlayWorld = PlayWorld.Get(); IsValid(CurrentPlayWorld))
	{
		CurrentPlayWorld->Tick(LEVELTICK_All, DeltaSeconds);
	}
}

void UEditorEngine::CollectGarbagePeriodically()
{
	if (++TicksSinceGarbageCollection >= UE::UnrealEd::Private::TicksBetweenGarbageCollections && !IsGarbageCollecting())
	{
		TicksSinceGarbageCollection = 0;
		CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	}
}

FWorldContext& UEditorEngine::GetEditorWorldContext(bool bEnsureIsGWorld)
{
	for (FWorldContext& Context : WorldList)
	{
		if (Context.WorldType == EWorldType::Editor)
		{
			return Context;
		}
	}
	ensureMsgf(false, TEXT("The editor has no editor world context"));
	return CreateNewWorldContext(EWorldType::Editor);
}

FWorldContext* UEditorEngine::GetPIEWorldContext(int32 WorldPIEInstance)
{
	for (FWorldContext& Context : WorldList)
	{
		if (Context.WorldType == EWorldType::PIE && Context.PIEInstance == WorldPIEInstance)
		{
			return &Context;
		}
	}
	return nullptr;
}

UEditorSubsystem* UEditorEngine::GetEditorSubsystemBase(TSubclassOf<UEditorSubsystem> SubsystemClass) const
{
	return EditorSubsystemCollection.GetSubsystem<UEditorSubsystem>(SubsystemClass);
}

int32 UEditorEngine::BeginTransaction(const TCHAR* TransactionContext, const FText& Description, UObject* PrimaryObject)
{
	if (!Trans)
	{
		return INDEX_NONE;
	}
	const int32 Index = Trans->Begin(TransactionContext, Description);
	Trans->SetPrimaryUndoObject(PrimaryObject);
	return Index;
}

int32 UEditorEngine::BeginTransaction(const FText& Description)
{
	return BeginTransaction(nullptr, Description, nullptr);
}

int32 UEditorEngine::EndTransaction()
{
	return Trans ? Trans->End() : 0;
}

void UEditorEngine::CancelTransaction(int32 Index)
{
	if (Trans)
	{
		Trans->Cancel(Index);
	}
}

void UEditorEngine::ResetTransaction(const FText& Reason)
{
	if (Trans)
	{
		Trans->Reset(Reason);
	}
}

bool UEditorEngine::UndoTransaction(bool bCanRedo)
{
	if (!Trans || IsGarbageCollecting())
	{
		return false;
	}
	return Trans->Undo(bCanRedo);
}

bool UEditorEngine::RedoTransaction()
{
	if (!Trans || IsGarbageCollecting())
	{
		return false;
	}
	return Trans->Redo();
}

bool UEditorEngine::IsTransactionActive() const
{
	return Trans && Trans->IsActive();
}

FText UEditorEngine::GetTransactionName() const
{
	return Trans ? Trans->GetUndoContext(false).Title : FText::GetEmpty();
}
