// The subsystems of one owner: one instance of every non-abstract subclass of a base subsystem class.
#pragma once

#include "CoreMinimal.h"
#include "Templates/Function.h"
#include "Templates/SubclassOf.h"
#include "UObject/GCObject.h"
#include "Subsystems/Subsystem.h"

class ENGINE_API FSubsystemCollectionBase : public FGCObject
{
public:
	virtual ~FSubsystemCollectionBase();

	// Creates (if needed) and initializes a subsystem another one depends on; only during Initialize.
	USubsystem* InitializeDependency(TSubclassOf<USubsystem> SubsystemClass);
	template <typename TSubsystemClass>
	TSubsystemClass* InitializeDependency()
	{
		return static_cast<TSubsystemClass*>(InitializeDependency(TSubsystemClass::StaticClass()));
	}

	// Creates and initializes the subsystems for NewOuter, in class registration order.
	void Initialize(UObject* NewOuter);
	// Deinitializes the subsystems in reverse creation order and lets them go.
	void Deinitialize();
	bool IsInitialized() const { return Outer != nullptr; }
	UObject* GetOuter() const { return Outer; }

	// Registers the class again and adds an instance of it to every initialized collection of its base type; a plugin
	// calls it when it is activated.
	static void ActivateExternalSubsystem(UClass* SubsystemClass);
	// Unregisters the class and removes its instance from every initialized collection of its base type, deinitializing
	// it; the instance is then garbage collected unless something else keeps it. A plugin calls it when it is deactivated.
	static void DeactivateExternalSubsystem(UClass* SubsystemClass);

	void AddReferencedObjects(FReferenceCollector& Collector) override;
	FString GetReferencerName() const override;

protected:
	explicit FSubsystemCollectionBase(UClass* InBaseType);

	// The subsystem of exactly that class, else the first one derived from it.
	USubsystem* GetSubsystemInternal(UClass* SubsystemClass) const;

private:
	USubsystem* AddAndInitializeSubsystem(UClass* SubsystemClass);
	USubsystem* FindSubsystemOfExactClass(const UClass* SubsystemClass) const;
	void RemoveAndDeinitializeSubsystem(USubsystem* Subsystem);
	// Calls Visit for every initialized collection whose base type the class derives from.
	static void ForEachCollectionOfBaseTypeOf(UClass* SubsystemClass, TFunctionRef<void(FSubsystemCollectionBase&)> Visit);

	// In creation order.
	TArray<USubsystem*> Subsystems;
	UClass* BaseType;
	UObject* Outer = nullptr;
	bool bPopulating = false;
};

template <typename TBaseType>
class FSubsystemCollection : public FSubsystemCollectionBase
{
public:
	FSubsystemCollection() : FSubsystemCollectionBase(TBaseType::StaticClass()) {}

	template <typename TSubsystemClass>
	TSubsystemClass* GetSubsystem(const TSubclassOf<TSubsystemClass>& SubsystemClass) const
	{
		static_assert(std::is_base_of_v<TBaseType, TSubsystemClass>, "TSubsystemClass must be derived from TBaseType");
		return static_cast<TSubsystemClass*>(GetSubsystemInternal(SubsystemClass));
	}
};
