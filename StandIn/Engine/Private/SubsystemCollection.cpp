#include "Subsystems/SubsystemCollection.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UObjectHash.h"
#include "Templates/UnrealTemplate.h"

namespace
{
	// The collections between Initialize and Deinitialize: the ones external activation and deactivation reach.
	TArray<FSubsystemCollectionBase*>& GetInitializedCollections()
	{
		static TArray<FSubsystemCollectionBase*> Collections;
		return Collections;
	}

	// Stand-in choice: a deactivated class stays out of collections initialized later, until it is activated again.
	TArray<UClass*>& GetDeactivatedClasses()
	{
		static TArray<UClass*> Classes;
		return Classes;
	}
}

FSubsystemCollectionBase::FSubsystemCollectionBase(UClass* InBaseType)
	: BaseType(InBaseType)
{
}

FSubsystemCollectionBase::~FSubsystemCollectionBase()
{
	GetInitializedCollections().Remove(this);
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
	GetInitializedCollections().Add(this);
	TArray<UClass*> SubsystemClasses;
	GetDerivedClasses(BaseType, SubsystemClasses, true);
	for (UClass* SubsystemClass : SubsystemClasses)
	{
		if (!GetDeactivatedClasses().Contains(SubsystemClass))
		{
			AddAndInitializeSubsystem(SubsystemClass);
		}
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
	GetInitializedCollections().Remove(this);
}

void FSubsystemCollectionBase::ActivateExternalSubsystem(UClass* SubsystemClass)
{
	if (SubsystemClass)
	{
		GetDeactivatedClasses().Remove(SubsystemClass);
		ForEachCollectionOfBaseTypeOf(SubsystemClass, [SubsystemClass](FSubsystemCollectionBase& Collection)
		{
			Collection.AddAndInitializeSubsystem(SubsystemClass);
		});
	}
}

void FSubsystemCollectionBase::DeactivateExternalSubsystem(UClass* SubsystemClass)
{
	if (SubsystemClass)
	{
		GetDeactivatedClasses().AddUnique(SubsystemClass);
		ForEachCollectionOfBaseTypeOf(SubsystemClass, [SubsystemClass](FSubsystemCollectionBase& Collection)
		{
			Collection.RemoveAndDeinitializeSubsystem(Collection.FindSubsystemOfExactClass(SubsystemClass));
		});
	}
}

void FSubsystemCollectionBase::ForEachCollectionOfBaseTypeOf(UClass* SubsystemClass, TFunctionRef<void(FSubsystemCollectionBase&)> Visit)
{
	// A copy: initializing or deinitializing a subsystem may start or stop collections.
	const TArray<FSubsystemCollectionBase*> Collections = GetInitializedCollections();
	for (FSubsystemCollectionBase* Collection : Collections)
	{
		if (GetInitializedCollections().Contains(Collection) && SubsystemClass->IsChildOf(Collection->BaseType))
		{
			Visit(*Collection);
		}
	}
}

void FSubsystemCollectionBase::RemoveAndDeinitializeSubsystem(USubsystem* Subsystem)
{
	if (Subsystem)
	{
		Subsystem->Deinitialize();
		Subsystem->InternalOwningSubsystem = nullptr;
		Subsystems.Remove(Subsystem);
	}
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
