// USubsystem: an object whose lifetime follows its owner (engine, editor, ...), created for every non-abstract subclass.
#pragma once

#include "CoreMinimal.h"
#include "UObject/ObjectMacros.h"
#include "UObject/Object.h"

class FSubsystemCollectionBase;

class ENGINE_API USubsystem : public UObject
{
	STANDIN_CLASS_BODY(USubsystem, UObject, ENGINE_API)

public:
	USubsystem();

	// Asked of the class default object before an instance is created for Outer.
	virtual bool ShouldCreateSubsystem(UObject* Outer) const { return true; }
	virtual void Initialize(FSubsystemCollectionBase& Collection) {}
	virtual void Deinitialize() {}

private:
	friend class FSubsystemCollectionBase;
	FSubsystemCollectionBase* InternalOwningSubsystem = nullptr;
};

// A subsystem whose class may come from a module loaded later.
class ENGINE_API UDynamicSubsystem : public USubsystem
{
	STANDIN_CLASS_BODY(UDynamicSubsystem, USubsystem, ENGINE_API)

public:
	UDynamicSubsystem();
};
