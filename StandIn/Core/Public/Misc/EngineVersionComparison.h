// Compile-time comparisons with the engine version of this build.
#pragma once

#include "Runtime/Launch/Resources/Version.h"

// Compares (Major, Minor, Patch) with the engine's version, most significant part first.
#define UE_GREATER_SORT(Value, ValueToBeGreaterThan, TieBreaker) \
	(((Value) > (ValueToBeGreaterThan)) || (((Value) == (ValueToBeGreaterThan)) && (TieBreaker)))

// True when this engine is strictly newer than MajorVersion.MinorVersion.PatchVersion.
#define UE_VERSION_NEWER_THAN(MajorVersion, MinorVersion, PatchVersion) \
	UE_GREATER_SORT(ENGINE_MAJOR_VERSION, MajorVersion, UE_GREATER_SORT(ENGINE_MINOR_VERSION, MinorVersion, UE_GREATER_SORT(ENGINE_PATCH_VERSION, PatchVersion, false)))

// True when this engine is strictly older than MajorVersion.MinorVersion.PatchVersion.
#define UE_VERSION_OLDER_THAN(MajorVersion, MinorVersion, PatchVersion) \
	UE_GREATER_SORT(MajorVersion, ENGINE_MAJOR_VERSION, UE_GREATER_SORT(MinorVersion, ENGINE_MINOR_VERSION, UE_GREATER_SORT(PatchVersion, ENGINE_PATCH_VERSION, false)))
