#include "Engine/World.h"
#include "Engine/Engine.h"
#include "Misc/PackageName.h"
#include "Tickable.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UObjectHash.h"
#include "UObject/UnrealType.h"

namespace UE::Engine::Private
{
	// Stand-in choice: new worlds without a package get "/Temp/Untitled_<N>", the first N not in memory or on disk.
	FString MakeUntitledWorldPackageName()
	{
		for (int32 Suffix = 1;; ++Suffix)
		{
			const FString Candidate = FString::Printf(TEXT("/Temp/Untitled_%d"), Suffix);
			if (!FindPackage(nullptr, *Candidate) && !FPackageName::DoesPackageExist(Candidate))
			{
				return Candidate;
			}
		}
	}
}

UWorld::UWorld() = default;

STANDIN_IMPLEMENT_CLASS(UWorld, CLASS_None, "Engine")
{
}

UWorld* UWorld::CreateWorld(const EWorldType::Type InWorldType, bool bInformEngineOfWorld, FName WorldName, UPackage* InWorldPackage, bool bAddToRoot)
{
	UPackage* WorldPackage = InWorldPackage ? InWorldPackage : CreatePackage(*UE::Engine::Private::MakeUntitledWorldPackageName());
	if (!WorldPackage)
	{
		return nullptr;
	}
	// Stand-in choice: an unnamed world takes its package's short name, as map assets are named.
	const FName NewWorldName = WorldName.IsNone() ? FName(*FPackageName::GetLongPackageAssetName(WorldPackage->GetName())) : WorldName;
	UWorld* NewWorld = NewObject<UWorld>(WorldPackage, NewWorldName);
	if (!NewWorld)
	{
		return nullptr;
	}
	NewWorld->SetFlags(RF_Transactional);
	NewWorld->WorldType = InWorldType;
	if (bAddToRoot)
	{
		NewWorld->AddToRoot();
	}
	return NewWorld;
}

UWorld* UWorld::FindWorldInPackage(UPackage* Package)
{
	if (!Package)
	{
		return nullptr;
	}
	TArray<UObject*> PackageObjects;
	GetObjectsWithOuter(Package, PackageObjects, false);
	for (UObject* Object : PackageObjects)
	{
		if (Object && Object->IsA(UWorld::StaticClass()) && IsValid(Object))
		{
			return static_cast<UWorld*>(Object);
		}
	}
	return nullptr;
}

void UWorld::DestroyWorld(bool bInformEngineOfWorld, UWorld* NewWorld)
{
	if (IsRooted())
	{
		RemoveFromRoot();
	}
	ClearFlags(RF_Standalone);
	MarkAsGarbage();
}

FString UWorld::GetMapName() const
{
	return FPackageName::GetLongPackageAssetName(GetPackage()->GetName());
}

bool UWorld::IsGameWorld() const
{
	return WorldType == EWorldType::Game || WorldType == EWorldType::PIE || WorldType == EWorldType::GamePreview || WorldType == EWorldType::GameRPC;
}

bool UWorld::IsEditorWorld() const
{
	return WorldType == EWorldType::Editor || WorldType == EWorldType::EditorPreview || WorldType == EWorldType::PIE;
}

void UWorld::Tick(ELevelTick TickType, float DeltaSeconds)
{
	DeltaTimeSeconds = DeltaSeconds;
	RealTimeSeconds += DeltaSeconds;
	TimeSeconds += DeltaSeconds;
	FTickableGameObject::TickObjects(this, TickType, false, DeltaSeconds);
}

void UWorld::PostLoad()
{
	Super::PostLoad();
	// As the engine does for a world loaded without a requested type: it persists in memory, inactive.
	WorldType = EWorldType::Inactive;
}
