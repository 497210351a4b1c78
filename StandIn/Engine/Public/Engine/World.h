// UWorld: the world object of a map package. The stand-in world holds no levels or actors; it keeps time and ticks.
#pragma once

#include "CoreMinimal.h"
#include "UObject/ObjectMacros.h"
#include "UObject/Object.h"
#include "Engine/EngineTypes.h"
#include "Engine/EngineBaseTypes.h"

class UPackage;

class ENGINE_API UWorld : public UObject
{
	STANDIN_CLASS_BODY(UWorld, UObject, ENGINE_API)

public:
	UWorld();

	// Creates a world in InWorldPackage (a new "/Temp/Untitled_<N>" package when null), named after the package unless WorldName is given.
	static UWorld* CreateWorld(const EWorldType::Type InWorldType, bool bInformEngineOfWorld, FName WorldName = NAME_None,
		UPackage* InWorldPackage = nullptr, bool bAddToRoot = true);

	// The world object of a map package, or null.
	static UWorld* FindWorldInPackage(UPackage* Package);

	// Ends the world's life: it leaves the root set, loses RF_Standalone and is marked as garbage; contexts then no longer resolve it.
	void DestroyWorld(bool bInformEngineOfWorld, UWorld* NewWorld = nullptr);

	// The short name of the world's package: "/Game/Maps/Main" -> "Main".
	FString GetMapName() const;

	UWorld* GetWorld() const override { return const_cast<UWorld*>(this); }

	bool IsGameWorld() const;
	bool IsEditorWorld() const;
	bool IsPlayInEditor() const { return WorldType == EWorldType::PIE; }

	// Advances the world's time and ticks the tickable objects that belong to it.
	void Tick(ELevelTick TickType, float DeltaSeconds);

	double GetTimeSeconds() const { return TimeSeconds; }
	double GetRealTimeSeconds() const { return RealTimeSeconds; }
	float GetDeltaSeconds() const { return DeltaTimeSeconds; }

	void PostLoad() override;

	TEnumAsByte<EWorldType::Type> WorldType = EWorldType::None;

private:
	double TimeSeconds = 0.0;
	double RealTimeSeconds = 0.0;
	float DeltaTimeSeconds = 0.0f;
};
