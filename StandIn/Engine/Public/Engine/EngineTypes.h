// Engine-wide value types: world types and the path structures edited in settings.
#pragma once

#include "CoreMinimal.h"
#include "Containers/EnumAsByte.h"
#include "UObject/Class.h"
#include "UObject/ObjectMacros.h"

namespace EWorldType
{
	enum Type
	{
		None = 0,
		Game = 1,
		Editor = 2,
		PIE = 3,
		EditorPreview = 4,
		GamePreview = 5,
		GameRPC = 6,
		Inactive = 7,
	};
}

// A directory chosen in a details panel; exported as (Path="C:/Out").
struct FDirectoryPath
{
	STANDIN_STRUCT_BODY(FDirectoryPath, ENGINE_API)

	FString Path;
};

// A file chosen in a details panel; exported as (FilePath="C:/In/File.txt").
struct FFilePath
{
	STANDIN_STRUCT_BODY(FFilePath, ENGINE_API)

	FString FilePath;
};
