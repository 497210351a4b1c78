// FStructOnScope: an initialized instance of a reflected struct (or a function's parameter block) owned by the scope.
#pragma once

#include "CoreMinimal.h"
#include "UObject/Class.h"

class COREUOBJECT_API FStructOnScope
{
public:
	FStructOnScope() = default;
	explicit FStructOnScope(const UStruct* InScriptStruct);
	// Views memory owned by someone else: nothing is initialized or destroyed.
	FStructOnScope(const UStruct* InScriptStruct, uint8* InData);
	FStructOnScope(FStructOnScope&& InOther);
	FStructOnScope& operator=(FStructOnScope&& InOther);
	FStructOnScope(const FStructOnScope&) = delete;
	FStructOnScope& operator=(const FStructOnScope&) = delete;
	virtual ~FStructOnScope();

	uint8* GetStructMemory() { return SampleStructMemory; }
	const uint8* GetStructMemory() const { return SampleStructMemory; }
	const UStruct* GetStruct() const { return ScriptStruct; }
	UPackage* GetPackage() const { return Package; }
	void SetPackage(UPackage* InPackage) { Package = InPackage; }
	bool IsValid() const { return ScriptStruct != nullptr && SampleStructMemory != nullptr; }
	bool OwnsStructMemory() const { return bOwnsMemory; }
	// Destroys and frees the owned instance; the scope becomes invalid.
	virtual void Reset();
	// Makes a new initialized instance of InScriptStruct, destroying the previous one.
	void Initialize(const UStruct* InScriptStruct);

private:
	void Destroy();

	const UStruct* ScriptStruct = nullptr;
	uint8* SampleStructMemory = nullptr;
	UPackage* Package = nullptr;
	bool bOwnsMemory = false;
};
