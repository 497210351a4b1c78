#include "Subsystems/SubsystemCollection.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UObjectHash.h"
#include "Templates/UnrealTemplate.h"

FSubsystemCollectionBase::FSubsystemCollectionBase(UClass* InBaseType)
	: BaseType(InBaseType)
{
}

USubsystem* FSubsystemCollectionBase::InitializeDependency(TSubclassOf<USubsystem> SubsystemClass)
{
	UClass* Class = SubsystemClass.Get();
	if (!ensureMsgf(Class, TEXT("Attempting to add invalid subsystem as dependency."))
		|| !ensureMsgf(bPopulating, TEXT("InitializeDependency() should only be called from System USubsystem::Initialization() implementations."))
		|| !ensureMsgf(Class->IsChildOf(BaseType), TEXT("ClassType (%s) must be a subclass of BaseType(%s)."), *Class->GetName(), *BaseType->GetName()))
	{
		return nullptr;
	}
	return AddAndInitializeSubsystem(Class);
}

void FSubsystemCollectionBase::Initialize(UObject* NewOuter)
{
	if (Outer || !NewOuter)
	{
		return;
	}
	Outer = NewOuter;
	TArray<UClass*> SubsystemClasses;
	GetDerivedClasses(BaseType, SubsystemClasses, true);
	for (UClass* SubsystemClass : SubsystemClasses)
	{
		AddAndInitializeSubsystem(SubsystemClass);
	}
}

void FSubsystemCollectionBase::Deinitialize()
{
	for (int32 Index = Subsystems.Num() - 1; Index >= 0; --Index)
	{
		if (USubsystem* Subsystem = Subsystems[Index])
		{
			Subsystem->Deinitialize();
			Subsystem->InternalOwningSubsystem = nullptr;
		}
	}
	Subsystems.Empty();
	Outer = nullptr;
}

USubsystem* FSubsystemCollectionBase::AddAndInitializeSubsystem(UClass* SubsystemClass)
{
	if (USubsystem* Existing = FindSubsystemOfExactClass(SubsystemClass))
	{
		return Existing;
	}
	if (!SubsystemClass || SubsystemClass->HasAnyClassFlags(CLASS_Abstract) || !SubsystemClass->IsChildOf(BaseType))
	{
		return nullptr;
	}
	const USubsystem* DefaultSubsystem = static_cast<const USubsystem*>(SubsystemClass->GetDefaultObject());
	if (!DefaultSubsystem || !DefaultSubsystem->ShouldCreateSubsystem(Outer))
	{
		return nullptr;
	}

	TGuardValue<bool> PopulatingGuard(bPopulating, true);
	USubsystem* Subsystem = static_cast<USubsystem*>(NewObject<UObject>(Outer, SubsystemClass));
	if (!Subsystem)
	{
		return nullptr;
	}
	// Listed before Initialize, so that subsystems depending on each other do not recurse forever.
	Subsystems.Add(Subsystem);
	Subsystem->InternalOwningSubsystem = this;
	Subsystem->Initialize(*this);
	return Subsystem;
}

USubsystem* FSubsystemCollectionBase::FindSubsystemOfExactClass(const UClass* SubsystemClass) const
{
	for (USubsystem* Subsystem : Subsystems)
	{
		if (Subsystem && Subsystem->GetClass() == SubsystemClass)
		{
			return Subsystem;
		}
	}
	return nullptr;
}

USubsystem* FSubsystemCollectionBase::GetSubsystemInternal(UClass* SubsystemClass) const
{
	if (!SubsystemClass)
	{
		return nullptr;
	}
	if (USubsystem* Subsystem = FindSubsystemOfExactClass(SubsystemClass))
	{
		return Subsystem;
	}
	for (USubsystem* Subsystem : Subsystems)
	{
		if (Subsystem && Subsystem->IsA(SubsystemClass))
		{
			return Subsystem;
		}
	}
	return nullptr;
}

void FSubsystemCollectionBase::AddReferencedObjects(FReferenceCollector& Collector)
{
	Collector.AddReferencedObjects(Subsystems);
}

FString FSubsystemCollectionBase::GetReferencerName() const
{
	return TEXT("FSubsystemCollectionBase");
}
