// Arguments and results of saving a package.
#pragma once

#include "CoreMinimal.h"
#include "UObject/ObjectMacros.h"
#include "Misc/EngineVersionComparison.h"

class ITargetPlatform;
class FSavePackageContext;

/** Flags for saving packages, passed to UPackage::Save as a uint32 (the engine keeps them in ObjectMacros.h). */
enum ESaveFlags
{
	SAVE_None = 0x00000000,
	SAVE_NoError = 0x00000001,
	SAVE_FromAutosave = 0x00000002,
	SAVE_KeepDirty = 0x00000004,
	SAVE_KeepGUID = 0x00000008,
	SAVE_Async = 0x00000010,
	SAVE_Unversioned_Native = 0x00000020,
	SAVE_CutdownPackage = 0x00000040,
	SAVE_KeepEditorOnlyCookedPackages = 0x00000080,
	SAVE_Concurrent = 0x00000100,
	SAVE_DiffOnly = 0x00000200,
	SAVE_DiffCallstack = 0x00000400,
	SAVE_ComputeHash = 0x00000800,
	SAVE_CompareLinker = 0x00001000,
	SAVE_BulkDataByReference = 0x00002000,
	SAVE_Unversioned_Properties = 0x00004000,
	SAVE_Optional = 0x00008000,
	SAVE_AllowTimeout = 0x00010000,
	SAVE_RehydratePayloads = 0x00020000,
	SAVE_Unversioned = SAVE_Unversioned_Native | SAVE_Unversioned_Properties,
};

enum class ESavePackageResult
{
	Success,
	Error,
	Canceled,
	ContainsEditorOnlyData,
#if UE_VERSION_OLDER_THAN(5, 7, 0)
	ReferencedOnlyByEditorOnlyData,
#endif
	ReplaceCompletely,
	GenerateStub,
	MissingFile,
	ValidatorError,
	ValidatorSuppress,
	EmptyRealm,
	Timeout,
};

/** How a save went: implicitly made from an ESavePackageResult. */
struct FSavePackageResultStruct
{
	ESavePackageResult Result = ESavePackageResult::Error;
	int64 TotalFileSize = 0;
	uint32 SerializedPackageFlags = 0;

	FSavePackageResultStruct() = default;
	FSavePackageResultStruct(ESavePackageResult InResult) : Result(InResult) {}
	FSavePackageResultStruct(ESavePackageResult InResult, int64 InTotalFileSize) : Result(InResult), TotalFileSize(InTotalFileSize) {}

	bool IsSuccessful() const { return Result == ESavePackageResult::Success; }
	bool operator==(const FSavePackageResultStruct& Other) const { return Result == Other.Result; }
	bool operator!=(const FSavePackageResultStruct& Other) const { return Result != Other.Result; }
	bool operator==(ESavePackageResult Other) const { return Result == Other; }
	bool operator!=(ESavePackageResult Other) const { return Result != Other; }
};

/** Parameters of UPackage::Save, with the engine's fields and defaults. */
struct FSavePackageArgs
{
	const ITargetPlatform* TargetPlatform = nullptr;
	/** Objects not reachable from the asset are saved only if they carry one of these flags. */
	EObjectFlags TopLevelFlags = RF_NoFlags;
	uint32 SaveFlags = SAVE_None;
	bool bForceByteSwapping = false;
	bool bWarnOfLongFilename = true;
	bool bSlowTask = true;
	FDateTime FinalTimeStamp;
	FOutputDevice* Error = GError;
	FSavePackageContext* SavePackageContext = nullptr;

	const ITargetPlatform* GetTargetPlatform() const { return TargetPlatform; }
};
