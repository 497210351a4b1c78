// UEngine: the engine object, owner of the world contexts and the engine subsystems; GEngine.
#pragma once

#include "CoreMinimal.h"
#include "Containers/IndirectArray.h"
#include "UObject/ObjectMacros.h"
#include "UObject/Object.h"
#include "Engine/EngineTypes.h"
#include "Subsystems/EngineSubsystem.h"
#include "Subsystems/SubsystemCollection.h"

class UWorld;
class FReferenceCollector;
class IEngineLoop;

// A world the engine knows about, with what kind of world it is.
struct ENGINE_API FWorldContext
{
	FWorldContext();

	UWorld* World() const { return ThisCurrentWorld; }
	void SetCurrentWorld(UWorld* InWorld);
	void AddReferencedObjects(FReferenceCollector& Collector, const UObject* ReferencingObject);

	TEnumAsByte<EWorldType::Type> WorldType;
	// Unique name of the context: "Context_<N>".
	FName ContextHandle;
	int32 PIEInstance;
	FString PIEPrefix;

private:
	UWorld* ThisCurrentWorld;
};

class ENGINE_API UEngine : public UObject
{
	STANDIN_CLASS_BODY(UEngine, UObject, ENGINE_API)

public:
	UEngine();

	// Creates the engine subsystems.
	virtual void Init(IEngineLoop* InEngineLoop);
	// Deinitializes the engine subsystems and forgets every world context.
	virtual void PreExit();
	virtual void Tick(float DeltaSeconds, bool bIdleMode) PURE_VIRTUAL(UEngine::Tick, );

	const TIndirectArray<FWorldContext>& GetWorldContexts() const { return WorldList; }
	FWorldContext& CreateNewWorldContext(EWorldType::Type WorldType);
	void DestroyWorldContext(UWorld* InWorld);
	FWorldContext* GetWorldContextFromWorld(const UWorld* InWorld);
	const FWorldContext* GetWorldContextFromWorld(const UWorld* InWorld) const;
	FWorldContext* GetWorldContextFromHandle(const FName WorldContextHandle);

	template <typename TSubsystemClass>
	TSubsystemClass* GetEngineSubsystem() const
	{
		return EngineSubsystemCollection.GetSubsystem<TSubsystemClass>(TSubsystemClass::StaticClass());
	}
	UEngineSubsystem* GetEngineSubsystemBase(TSubclassOf<UEngineSubsystem> SubsystemClass) const;

	static void AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector);

protected:
	TIndirectArray<FWorldContext> WorldList;
	int32 NextWorldContextHandle = 0;

private:
	FSubsystemCollection<UEngineSubsystem> EngineSubsystemCollection;
};

// The running engine; the editor engine while the editor runs, null before it starts and after it stops.
extern ENGINE_API UEngine* GEngine;
