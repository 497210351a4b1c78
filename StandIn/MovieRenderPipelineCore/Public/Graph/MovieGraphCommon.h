// Types shared by every part of a Movie Render Graph: the value and container types of members and pins, and the
// branches a node may be placed on.
#pragma once

#include "CoreMinimal.h"
#include "Misc/EngineVersionComparison.h"
#include "UObject/ObjectMacros.h"

// The type of a member's value or of a data pin; it mirrors the property bag's value types.
UENUM()
enum class EMovieGraphValueType : uint8
{
	None UMETA(Hidden),
	Bool,
	Byte,
	Int32,
	Int64,
	Float,
	Double,
	Name,
	String,
	Text,
	Enum,
	Struct,
	Object,
	SoftObject,
	Class,
	SoftClass,
#if UE_VERSION_OLDER_THAN(5, 8, 0)
	UInt32,
	UInt64,
#else
	Int8,
	Int16,
	UInt16,
	UInt32,
	UInt64,
#endif
	Count UMETA(Hidden)
};
STANDIN_DECLARE_ENUM(EMovieGraphValueType, MOVIERENDERPIPELINECORE_API)

// Whether a member holds one value or a container of values; it mirrors the property bag's container types.
UENUM()
enum class EMovieGraphContainerType : uint8
{
	None UMETA(Hidden),
	Array,
#if !UE_VERSION_OLDER_THAN(5, 8, 0)
	Set,
	Map,
#endif
	Count UMETA(Hidden)
};
STANDIN_DECLARE_ENUM(EMovieGraphContainerType, MOVIERENDERPIPELINECORE_API)

// The branches a node may sit on.
UENUM(BlueprintType)
enum class EMovieGraphBranchRestriction : uint8
{
	Any,
	Globals,
	RenderLayer
};
STANDIN_DECLARE_ENUM(EMovieGraphBranchRestriction, MOVIERENDERPIPELINECORE_API)
