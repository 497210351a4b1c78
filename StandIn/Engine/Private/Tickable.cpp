#include "Tickable.h"
#include "Engine/World.h"

void FTickableObjectBase::FTickableStatics::Add(FTickableObjectBase* Object)
{
	if (Object && !Contains(Object))
	{
		Objects.Add(Object);
	}
}

void FTickableObjectBase::FTickableStatics::Remove(FTickableObjectBase* Object)
{
	const int32 Index = Objects.Find(Object);
	if (Index == INDEX_NONE)
	{
		return;
	}
	if (WalkDepth > 0)
	{
		// The walk in progress reads the array by index: leave a hole and compact when it ends.
		Objects[Index] = nullptr;
		bHasRemovedEntries = true;
	}
	else
	{
		Objects.RemoveAt(Index);
	}
}

bool FTickableObjectBase::FTickableStatics::Contains(const FTickableObjectBase* Object) const
{
	return Object && Objects.Contains(const_cast<FTickableObjectBase*>(Object));
}

void FTickableObjectBase::FTickableStatics::ForEach(TFunctionRef<void(FTickableObjectBase&)> Visitor)
{
	++WalkDepth;
	const int32 NumAtStart = Objects.Num();
	for (int32 Index = 0; Index < NumAtStart; ++Index)
	{
		if (FTickableObjectBase* Object = Objects[Index])
		{
			Visitor(*Object);
		}
	}
	--WalkDepth;
	if (WalkDepth == 0 && bHasRemovedEntries)
	{
		Objects.Remove(nullptr);
		bHasRemovedEntries = false;
	}
}

bool FTickableObjectBase::WantsTick() const
{
	switch (GetTickableTickType())
	{
	case ETickableTickType::Always:
		return true;
	case ETickableTickType::Never:
		return false;
	default:
		return IsTickable();
	}
}

FTickableGameObject::FTickableGameObject(ETickableTickType RegistrationType)
{
	if (RegistrationType != ETickableTickType::Never)
	{
		GetStatics().Add(this);
	}
}

FTickableGameObject::~FTickableGameObject()
{
	GetStatics().Remove(this);
}

FTickableObjectBase::FTickableStatics& FTickableGameObject::GetStatics()
{
	static FTickableStatics Statics;
	return Statics;
}

bool FTickableGameObject::ShouldTickNow(UWorld* World, bool bIsGameWorld, bool bIsPaused) const
{
	if (GetTickableGameObjectWorld() != World || !IsAllowedToTick() || !WantsTick())
	{
		return false;
	}
	if (GIsEditor && !bIsGameWorld && !IsTickableInEditor())
	{
		return false;
	}
	return !bIsPaused || IsTickableWhenPaused();
}

void FTickableGameObject::TickObjects(UWorld* World, ELevelTick LevelTickType, bool bIsPaused, float DeltaSeconds)
{
	const bool bIsGameWorld = LevelTickType == LEVELTICK_All || (World && World->IsGameWorld());
	GetStatics().ForEach([World, bIsGameWorld, bIsPaused, DeltaSeconds](FTickableObjectBase& Object)
	{
		FTickableGameObject& GameObject = static_cast<FTickableGameObject&>(Object);
		if (GameObject.ShouldTickNow(World, bIsGameWorld, bIsPaused))
		{
			GameObject.Tick(DeltaSeconds);
		}
	});
}
