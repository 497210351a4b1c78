#include "Engine/Engine.h"
#include "Engine/World.h"
#include "UObject/GCObject.h"
#include "UObject/UnrealType.h"

UEngine* GEngine = nullptr;

FWorldContext::FWorldContext()
	: WorldType(EWorldType::None)
	, PIEInstance(INDEX_NONE)
	, ThisCurrentWorld(nullptr)
{
}

void FWorldContext::SetCurrentWorld(UWorld* InWorld)
{
	ThisCurrentWorld = InWorld;
}

void FWorldContext::AddReferencedObjects(FReferenceCollector& Collector, const UObject* ReferencingObject)
{
	Collector.AddReferencedObject(ThisCurrentWorld, ReferencingObject);
}

UEngine::UEngine() = default;

STANDIN_IMPLEMENT_CLASS(UEngine, CLASS_Abstract | CLASS_Transient, "Engine")
{
}

void UEngine::Init(IEngineLoop* InEngineLoop)
{
	EngineSubsystemCollection.Initialize(this);
}

void UEngine::PreExit()
{
	EngineSubsystemCollection.Deinitialize();
	WorldList.Empty();
}

FWorldContext& UEngine::CreateNewWorldContext(EWorldType::Type WorldType)
{
	FWorldContext* NewWorldContext = new FWorldContext();
	NewWorldContext->WorldType = WorldType;
	NewWorldContext->ContextHandle = FName(*FString::Printf(TEXT("Context_%d"), NextWorldContextHandle++));
	WorldList.Add(NewWorldContext);
	return *NewWorldContext;
}

void UEngine::DestroyWorldContext(UWorld* InWorld)
{
	for (int32 Index = WorldList.Num() - 1; Index >= 0; --Index)
	{
		if (WorldList[Index].World() == InWorld)
		{
			WorldList.RemoveAt(Index);
		}
	}
}

FWorldContext* UEngine::GetWorldContextFromWorld(const UWorld* InWorld)
{
	return const_cast<FWorldContext*>(static_cast<const UEngine*>(this)->GetWorldContextFromWorld(InWorld));
}

const FWorldContext* UEngine::GetWorldContextFromWorld(const UWorld* InWorld) const
{
	for (const FWorldContext& Context : WorldList)
	{
		if (InWorld && Context.World() == InWorld)
		{
			return &Context;
		}
	}
	return nullptr;
}

FWorldContext* UEngine::GetWorldContextFromHandle(const FName WorldContextHandle)
{
	for (FWorldContext& Context : WorldList)
	{
		if (Context.ContextHandle == WorldContextHandle)
		{
			return &Context;
		}
	}
	return nullptr;
}

UEngineSubsystem* UEngine::GetEngineSubsystemBase(TSubclassOf<UEngineSubsystem> SubsystemClass) const
{
	return EngineSubsystemCollection.GetSubsystem<UEngineSubsystem>(SubsystemClass);
}

void UEngine::AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector)
{
	UEngine* This = static_cast<UEngine*>(InThis);
	for (FWorldContext& Context : This->WorldList)
	{
		Context.AddReferencedObjects(Collector, This);
	}
	Super::AddReferencedObjects(This, Collector);
}
