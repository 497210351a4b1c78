// The transactional reflected state of one object, held in a buffer laid out like the object itself.
#pragma once

#include "CoreMinimal.h"
#include "Templates/Function.h"

class FProperty;
class UClass;
class UObject;

class FObjectStateSnapshot
{
public:
	// Saves every property of Object's class except transient and non-transactional ones.
	explicit FObjectStateSnapshot(const UObject& Object);
	~FObjectStateSnapshot();

	FObjectStateSnapshot(const FObjectStateSnapshot&) = delete;
	FObjectStateSnapshot& operator=(const FObjectStateSnapshot&) = delete;

	// Writes the saved state into Object and keeps Object's previous state in its place.
	void ExchangeWith(UObject& Object);

	// Reaches every strong object reference held by the saved values.
	void VisitObjectReferences(TFunctionRef<void(UObject*& Reference)> Visitor);

private:
	uint8* AllocateValues() const;
	void FreeValues(uint8* Values) const;
	void CopyValues(uint8* DestContainer, const uint8* SourceContainer) const;

	const UClass* Class;
	TArray<const FProperty*> Properties;
	uint8* Data;
};
