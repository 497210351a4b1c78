// Objects that are not actors but want a Tick every frame: they register themselves on construction.
#pragma once

#include "CoreMinimal.h"
#include "Engine/EngineBaseTypes.h"
#include "Templates/Function.h"

class UWorld;

enum class ETickableTickType : uint8
{
	// Ticks when IsTickable() returns true.
	Conditional,
	// Ticks every frame.
	Always,
	// Never ticks.
	Never,
};

class ENGINE_API FTickableObjectBase
{
public:
	virtual ~FTickableObjectBase() = default;

	virtual void Tick(float DeltaTime) = 0;
	virtual ETickableTickType GetTickableTickType() const { return ETickableTickType::Conditional; }
	virtual bool IsTickable() const { return true; }
	virtual bool IsAllowedToTick() const { return true; }

	// The objects of one kind of tickable; registration may change while they tick.
	class ENGINE_API FTickableStatics
	{
	public:
		void Add(FTickableObjectBase* Object);
		void Remove(FTickableObjectBase* Object);
		bool Contains(const FTickableObjectBase* Object) const;
		// Calls Visitor for each object registered when the walk starts and still registered when reached.
		void ForEach(TFunctionRef<void(FTickableObjectBase&)> Visitor);

	private:
		TArray<FTickableObjectBase*> Objects;
		int32 WalkDepth = 0;
		bool bHasRemovedEntries = false;
	};

protected:
	// Whether the object wants a tick this frame, from its tick type.
	bool WantsTick() const;
};

class ENGINE_API FTickableGameObject : public FTickableObjectBase
{
public:
	// With ETickableTickType::Never the object is not registered.
	FTickableGameObject(ETickableTickType RegistrationType = ETickableTickType::Conditional);
	virtual ~FTickableGameObject();

	FTickableGameObject(const FTickableGameObject&) = delete;
	FTickableGameObject& operator=(const FTickableGameObject&) = delete;

	virtual bool IsTickableWhenPaused() const { return false; }
	// In the editor, objects tick outside game worlds only when this returns true.
	virtual bool IsTickableInEditor() const { return false; }
	// The world the object ticks with; null for objects that tick once per frame on their own.
	virtual UWorld* GetTickableGameObjectWorld() const { return nullptr; }

	// Ticks the registered objects that belong to World (null: those without a world).
	static void TickObjects(UWorld* World, ELevelTick LevelTickType, bool bIsPaused, float DeltaSeconds);

private:
	static FTickableStatics& GetStatics();
	bool ShouldTickNow(UWorld* World, bool bIsGameWorld, bool bIsPaused) const;
};
