#include "Editor/StandInEditorStartup.h"
#include "Editor.h"
#include "Editor/UnrealEdEngine.h"
#include "Engine/World.h"
#include "Misc/PackageName.h"
#include "UnrealEdGlobals.h"
#include "UObject/GarbageCollection.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

namespace UE::UnrealEd::Private
{
	UPackage* FindOrLoadMapPackage(const FString& PackageName)
	{
		if (!FPackageName::IsValidLongPackageName(PackageName))
		{
			return nullptr;
		}
		if (UPackage* Package = FindPackage(nullptr, *PackageName))
		{
			return Package;
		}
		if (FPackageName::DoesPackageExist(PackageName))
		{
			return LoadPackage(nullptr, *PackageName, LOAD_None);
		}
		return CreatePackage(*PackageName);
	}

	UWorld* OpenEditorWorld(const FString& PackageName)
	{
		UPackage* Package = FindOrLoadMapPackage(PackageName);
		UWorld* World = UWorld::FindWorldInPackage(Package);
		if (!World)
		{
			World = UWorld::CreateWorld(EWorldType::Editor, false, NAME_None, Package, false);
			if (World)
			{
				// A map's world is an asset of its package.
				World->SetFlags(RF_Public | RF_Standalone);
			}
		}
		if (World)
		{
			World->WorldType = EWorldType::Editor;
		}
		return World;
	}

	TArray<UWorld*> GetContextWorlds(const UEngine& Engine)
	{
		TArray<UWorld*> Worlds;
		for (const FWorldContext& Context : Engine.GetWorldContexts())
		{
			if (Context.World())
			{
				Worlds.AddUnique(Context.World());
			}
		}
		return Worlds;
	}
}

UEditorEngine* UE::UnrealEd::StandIn::StartEditor(const FString& EditorMapPackageName)
{
	if (GEditor)
	{
		return GEditor;
	}
	UUnrealEdEngine* Editor = NewObject<UUnrealEdEngine>(GetTransientPackage());
	Editor->AddToRoot();
	GEngine = Editor;
	GEditor = Editor;
	GUnrealEd = Editor;

	FWorldContext& EditorContext = Editor->CreateNewWorldContext(EWorldType::Editor);
	EditorContext.SetCurrentWorld(UE::UnrealEd::Private::OpenEditorWorld(EditorMapPackageName));
	Editor->Init(nullptr);
	return Editor;
}

void UE::UnrealEd::StandIn::StopEditor()
{
	UEditorEngine* Editor = GEditor;
	if (!Editor)
	{
		return;
	}
	const TArray<UWorld*> Worlds = UE::UnrealEd::Private::GetContextWorlds(*Editor);
	Editor->PreExit();
	for (UWorld* World : Worlds)
	{
		World->DestroyWorld(false);
	}
	Editor->RemoveFromRoot();
	if (GEngine == Editor)
	{
		GEngine = nullptr;
	}
	GEditor = nullptr;
	GUnrealEd = nullptr;
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
}
