// Object, class and property flags with the engine's values, and the stand-in's reflection declaration macros.
#pragma once

#include "CoreMinimal.h"
#include "Containers/EnumAsByte.h"
#include "Misc/EngineVersionComparison.h"

#include <type_traits>

// Reflection markup is read by the engine's header tool; the stand-in registers reflection in code instead.
#define UCLASS(...)
#define USTRUCT(...)
#define UENUM(...)
#define UPROPERTY(...)
#define UFUNCTION(...)
#define UMETA(...)
#define UPARAM(...)
#define UINTERFACE(...)
#define GENERATED_BODY(...)
#define GENERATED_UCLASS_BODY(...)
#define GENERATED_USTRUCT_BODY(...)

#define PURE_VIRTUAL(func, ...) { checkf(false, TEXT("Pure virtual not implemented (%s)"), TEXT(#func)); __VA_ARGS__ }

enum EObjectFlags : uint32
{
	RF_NoFlags = 0x00000000,
	RF_Public = 0x00000001,
	RF_Standalone = 0x00000002,
	RF_MarkAsNative = 0x00000004,
	RF_Transactional = 0x00000008,
	RF_ClassDefaultObject = 0x00000010,
	RF_ArchetypeObject = 0x00000020,
	RF_Transient = 0x00000040,
	RF_MarkAsRootSet = 0x00000080,
	RF_TagGarbageTemp = 0x00000100,
	RF_NeedInitialization = 0x00000200,
	RF_NeedLoad = 0x00000400,
	RF_NeedPostLoad = 0x00001000,
	RF_NeedPostLoadSubobjects = 0x00002000,
	RF_NewerVersionExists = 0x00004000,
	RF_BeginDestroyed = 0x00008000,
	RF_FinishDestroyed = 0x00010000,
	RF_BeingRegenerated = 0x00020000,
	RF_DefaultSubObject = 0x00040000,
	RF_WasLoaded = 0x00080000,
	RF_TextExportTransient = 0x00100000,
	RF_LoadCompleted = 0x00200000,
	RF_InheritableComponentTemplate = 0x00400000,
	RF_DuplicateTransient = 0x00800000,
	RF_StrongRefOnFrame = 0x01000000,
	RF_NonPIEDuplicateTransient = 0x02000000,
	RF_ImmutableDefaultObject = 0x04000000,
	RF_WillBeLoaded = 0x08000000,
	RF_HasExternalPackage = 0x10000000,
	RF_MigratingAsset = 0x20000000,
	RF_MirroredGarbage = 0x40000000,
	RF_AllocatedInSharedPage = 0x80000000,
};
FORCEINLINE constexpr EObjectFlags operator|(EObjectFlags A, EObjectFlags B) { return EObjectFlags(uint32(A) | uint32(B)); }
FORCEINLINE constexpr EObjectFlags operator&(EObjectFlags A, EObjectFlags B) { return EObjectFlags(uint32(A) & uint32(B)); }
FORCEINLINE constexpr EObjectFlags operator~(EObjectFlags A) { return EObjectFlags(~uint32(A)); }
FORCEINLINE EObjectFlags& operator|=(EObjectFlags& A, EObjectFlags B) { return A = A | B; }
FORCEINLINE EObjectFlags& operator&=(EObjectFlags& A, EObjectFlags B) { return A = A & B; }

#define RF_AllFlags EObjectFlags(0xffffffff)
// Flags kept when an object is saved and loaded.
#define RF_Load ((EObjectFlags)(RF_Public | RF_Standalone | RF_Transactional | RF_ClassDefaultObject | RF_ArchetypeObject | RF_DefaultSubObject | RF_TextExportTransient | RF_InheritableComponentTemplate | RF_DuplicateTransient | RF_NonPIEDuplicateTransient))
// Subobjects inherit these flags from their outer.
#define RF_PropagateToSubObjects ((EObjectFlags)(RF_Public | RF_ArchetypeObject | RF_Transactional | RF_Transient))
#define GARBAGE_COLLECTION_KEEPFLAGS (GIsEditor ? RF_Standalone : RF_NoFlags)

enum class EInternalObjectFlags : int32
{
	None = 0,
	ReachabilityFlag0 = 1 << 14,
	ReachabilityFlag1 = 1 << 15,
	ReachabilityFlag2 = 1 << 16,
	Garbage = 1 << 21,
	AsyncLoadingPhase1 = 1 << 22,
	Native = 1 << 25,
	Async = 1 << 26,
	AsyncLoadingPhase2 = 1 << 27,
	Unreachable = 1 << 28,
	RefCounted = 1 << 29,
	RootSet = 1 << 30,
	PendingConstruction = int32(1u << 31),
};
FORCEINLINE constexpr EInternalObjectFlags operator|(EInternalObjectFlags A, EInternalObjectFlags B) { return EInternalObjectFlags(int32(A) | int32(B)); }
FORCEINLINE constexpr EInternalObjectFlags operator&(EInternalObjectFlags A, EInternalObjectFlags B) { return EInternalObjectFlags(int32(A) & int32(B)); }
FORCEINLINE constexpr EInternalObjectFlags operator~(EInternalObjectFlags A) { return EInternalObjectFlags(~int32(A)); }
#define EInternalObjectFlags_AllFlags (EInternalObjectFlags::ReachabilityFlag0 | EInternalObjectFlags::ReachabilityFlag1 | EInternalObjectFlags::ReachabilityFlag2 | EInternalObjectFlags::Garbage | EInternalObjectFlags::AsyncLoadingPhase1 | EInternalObjectFlags::Native | EInternalObjectFlags::Async | EInternalObjectFlags::AsyncLoadingPhase2 | EInternalObjectFlags::Unreachable | EInternalObjectFlags::RefCounted | EInternalObjectFlags::RootSet | EInternalObjectFlags::PendingConstruction)
FORCEINLINE EInternalObjectFlags& operator|=(EInternalObjectFlags& A, EInternalObjectFlags B) { return A = A | B; }
FORCEINLINE EInternalObjectFlags& operator&=(EInternalObjectFlags& A, EInternalObjectFlags B) { return A = A & B; }

enum EPropertyFlags : uint64
{
	CPF_None = 0,
	CPF_Edit = 0x0000000000000001,
	CPF_ConstParm = 0x0000000000000002,
	CPF_BlueprintVisible = 0x0000000000000004,
	CPF_ExportObject = 0x0000000000000008,
	CPF_BlueprintReadOnly = 0x0000000000000010,
	CPF_Net = 0x0000000000000020,
	CPF_EditFixedSize = 0x0000000000000040,
	CPF_Parm = 0x0000000000000080,
	CPF_OutParm = 0x0000000000000100,
	CPF_ZeroConstructor = 0x0000000000000200,
	CPF_ReturnParm = 0x0000000000000400,
	CPF_DisableEditOnTemplate = 0x0000000000000800,
	CPF_NonNullable = 0x0000000000001000,
	CPF_Transient = 0x0000000000002000,
	CPF_Config = 0x0000000000004000,
	CPF_RequiredParm = 0x0000000000008000,
	CPF_DisableEditOnInstance = 0x0000000000010000,
	CPF_EditConst = 0x0000000000020000,
	CPF_GlobalConfig = 0x0000000000040000,
	CPF_InstancedReference = 0x0000000000080000,
	CPF_DuplicateTransient = 0x0000000000200000,
	CPF_SaveGame = 0x0000000001000000,
	CPF_NoClear = 0x0000000002000000,
	CPF_ReferenceParm = 0x0000000008000000,
	CPF_BlueprintAssignable = 0x0000000010000000,
	CPF_Deprecated = 0x0000000020000000,
	CPF_IsPlainOldData = 0x0000000040000000,
	CPF_RepSkip = 0x0000000080000000,
	CPF_RepNotify = 0x0000000100000000,
	CPF_Interp = 0x0000000200000000,
	CPF_NonTransactional = 0x0000000400000000,
	CPF_EditorOnly = 0x0000000800000000,
	CPF_NoDestructor = 0x0000001000000000,
	CPF_AutoWeak = 0x0000004000000000,
	CPF_ContainsInstancedReference = 0x0000008000000000,
	CPF_AssetRegistrySearchable = 0x0000010000000000,
	CPF_SimpleDisplay = 0x0000020000000000,
	CPF_AdvancedDisplay = 0x0000040000000000,
	CPF_Protected = 0x0000080000000000,
	CPF_BlueprintCallable = 0x0000100000000000,
	CPF_BlueprintAuthorityOnly = 0x0000200000000000,
	CPF_TextExportTransient = 0x0000400000000000,
	CPF_NonPIEDuplicateTransient = 0x0000800000000000,
	CPF_ExposeOnSpawn = 0x0001000000000000,
	CPF_PersistentInstance = 0x0002000000000000,
	CPF_UObjectWrapper = 0x0004000000000000,
	CPF_HasGetValueTypeHash = 0x0008000000000000,
	CPF_NativeAccessSpecifierPublic = 0x0010000000000000,
	CPF_NativeAccessSpecifierProtected = 0x0020000000000000,
	CPF_NativeAccessSpecifierPrivate = 0x0040000000000000,
	CPF_SkipSerialization = 0x0080000000000000,
	CPF_TObjectPtr = 0x0100000000000000,
	CPF_ExperimentalOverridableLogic = 0x0200000000000000,
	CPF_ExperimentalAlwaysOverriden = 0x0400000000000000,
	CPF_ExperimentalNeverOverriden = 0x0800000000000000,
	CPF_AllowSelfReference = 0x1000000000000000,
};
FORCEINLINE constexpr EPropertyFlags operator|(EPropertyFlags A, EPropertyFlags B) { return EPropertyFlags(uint64(A) | uint64(B)); }
FORCEINLINE constexpr EPropertyFlags operator&(EPropertyFlags A, EPropertyFlags B) { return EPropertyFlags(uint64(A) & uint64(B)); }
FORCEINLINE constexpr EPropertyFlags operator~(EPropertyFlags A) { return EPropertyFlags(~uint64(A)); }
FORCEINLINE EPropertyFlags& operator|=(EPropertyFlags& A, EPropertyFlags B) { return A = A | B; }
FORCEINLINE EPropertyFlags& operator&=(EPropertyFlags& A, EPropertyFlags B) { return A = A & B; }

#define CPF_NativeAccessSpecifiers (CPF_NativeAccessSpecifierPublic | CPF_NativeAccessSpecifierProtected | CPF_NativeAccessSpecifierPrivate)
#define CPF_ParmFlags (CPF_Parm | CPF_OutParm | CPF_ReturnParm | CPF_RequiredParm | CPF_ReferenceParm | CPF_ConstParm)
#define CPF_PropagateToArrayInner (CPF_ExportObject | CPF_PersistentInstance | CPF_InstancedReference | CPF_ContainsInstancedReference | CPF_Config | CPF_EditConst | CPF_Deprecated | CPF_EditorOnly | CPF_AutoWeak | CPF_UObjectWrapper)
#define CPF_PropagateToMapValue (CPF_ExportObject | CPF_PersistentInstance | CPF_InstancedReference | CPF_ContainsInstancedReference | CPF_Config | CPF_EditConst | CPF_Deprecated | CPF_EditorOnly | CPF_AutoWeak | CPF_UObjectWrapper | CPF_Edit)
#define CPF_PropagateToMapKey (CPF_ExportObject | CPF_PersistentInstance | CPF_InstancedReference | CPF_ContainsInstancedReference | CPF_Config | CPF_EditConst | CPF_Deprecated | CPF_EditorOnly | CPF_AutoWeak | CPF_UObjectWrapper | CPF_Edit)
#define CPF_ComputedFlags (CPF_IsPlainOldData | CPF_NoDestructor | CPF_ZeroConstructor | CPF_HasGetValueTypeHash)
#define CPF_TObjectPtrWrapper (CPF_UObjectWrapper | CPF_TObjectPtr)
#define CPF_AllFlags ((EPropertyFlags)0xFFFFFFFFFFFFFFFF)

enum EClassFlags : uint32
{
	CLASS_None = 0x00000000u,
	CLASS_Abstract = 0x00000001u,
	CLASS_DefaultConfig = 0x00000002u,
	CLASS_Config = 0x00000004u,
	CLASS_Transient = 0x00000008u,
	CLASS_Optional = 0x00000010u,
	CLASS_MatchedSerializers = 0x00000020u,
	CLASS_ProjectUserConfig = 0x00000040u,
	CLASS_Native = 0x00000080u,
	CLASS_NotPlaceable = 0x00000200u,
	CLASS_PerObjectConfig = 0x00000400u,
	CLASS_ReplicationDataIsSetUp = 0x00000800u,
	CLASS_EditInlineNew = 0x00001000u,
	CLASS_CollapseCategories = 0x00002000u,
	CLASS_Interface = 0x00004000u,
	CLASS_Const = 0x00010000u,
	CLASS_NeedsDeferredDependencyLoading = 0x00020000u,
	CLASS_CompiledFromBlueprint = 0x00040000u,
	CLASS_MinimalAPI = 0x00080000u,
	CLASS_RequiredAPI = 0x00100000u,
	CLASS_DefaultToInstanced = 0x00200000u,
	CLASS_TokenStreamAssembled = 0x00400000u,
	CLASS_HasInstancedReference = 0x00800000u,
	CLASS_Hidden = 0x01000000u,
	CLASS_Deprecated = 0x02000000u,
	CLASS_HideDropDown = 0x04000000u,
	CLASS_GlobalUserConfig = 0x08000000u,
	CLASS_Intrinsic = 0x10000000u,
	CLASS_Constructed = 0x20000000u,
	CLASS_ConfigDoNotCheckDefaults = 0x40000000u,
	CLASS_NewerVersionExists = 0x80000000u,
};
FORCEINLINE constexpr EClassFlags operator|(EClassFlags A, EClassFlags B) { return EClassFlags(uint32(A) | uint32(B)); }
FORCEINLINE constexpr EClassFlags operator&(EClassFlags A, EClassFlags B) { return EClassFlags(uint32(A) & uint32(B)); }
FORCEINLINE constexpr EClassFlags operator~(EClassFlags A) { return EClassFlags(~uint32(A)); }
FORCEINLINE EClassFlags& operator|=(EClassFlags& A, EClassFlags B) { return A = A | B; }
FORCEINLINE EClassFlags& operator&=(EClassFlags& A, EClassFlags B) { return A = A & B; }

// Flags a subclass inherits from its super class.
#define CLASS_Inherit ((EClassFlags)(CLASS_Transient | CLASS_Optional | CLASS_DefaultConfig | CLASS_Config | CLASS_PerObjectConfig | CLASS_ConfigDoNotCheckDefaults | CLASS_NotPlaceable | CLASS_Const | CLASS_HasInstancedReference | CLASS_Deprecated | CLASS_DefaultToInstanced | CLASS_GlobalUserConfig | CLASS_ProjectUserConfig | CLASS_NeedsDeferredDependencyLoading))

enum EFunctionFlags : uint32
{
	FUNC_None = 0x00000000,
	FUNC_Final = 0x00000001,
	FUNC_RequiredAPI = 0x00000002,
	FUNC_BlueprintAuthorityOnly = 0x00000004,
	FUNC_BlueprintCosmetic = 0x00000008,
	FUNC_Net = 0x00000040,
	FUNC_NetReliable = 0x00000080,
	FUNC_NetRequest = 0x00000100,
	FUNC_Exec = 0x00000200,
	FUNC_Native = 0x00000400,
	FUNC_Event = 0x00000800,
	FUNC_NetResponse = 0x00001000,
	FUNC_Static = 0x00002000,
	FUNC_NetMulticast = 0x00004000,
	FUNC_UbergraphFunction = 0x00008000,
	FUNC_MulticastDelegate = 0x00010000,
	FUNC_Public = 0x00020000,
	FUNC_Private = 0x00040000,
	FUNC_Protected = 0x00080000,
	FUNC_Delegate = 0x00100000,
	FUNC_NetServer = 0x00200000,
	FUNC_HasOutParms = 0x00400000,
	FUNC_HasDefaults = 0x00800000,
	FUNC_NetClient = 0x01000000,
	FUNC_DLLImport = 0x02000000,
	FUNC_BlueprintCallable = 0x04000000,
	FUNC_BlueprintEvent = 0x08000000,
	FUNC_BlueprintPure = 0x10000000,
	FUNC_EditorOnly = 0x20000000,
	FUNC_Const = 0x40000000,
	FUNC_NetValidate = 0x80000000,
	FUNC_AllFlags = 0xFFFFFFFF,
};
FORCEINLINE constexpr EFunctionFlags operator|(EFunctionFlags A, EFunctionFlags B) { return EFunctionFlags(uint32(A) | uint32(B)); }
FORCEINLINE constexpr EFunctionFlags operator&(EFunctionFlags A, EFunctionFlags B) { return EFunctionFlags(uint32(A) & uint32(B)); }
FORCEINLINE constexpr EFunctionFlags operator~(EFunctionFlags A) { return EFunctionFlags(~uint32(A)); }
FORCEINLINE EFunctionFlags& operator|=(EFunctionFlags& A, EFunctionFlags B) { return A = A | B; }
FORCEINLINE EFunctionFlags& operator&=(EFunctionFlags& A, EFunctionFlags B) { return A = A & B; }

enum EStructFlags : int32
{
	STRUCT_NoFlags = 0x00000000,
	STRUCT_Native = 0x00000001,
	STRUCT_IdenticalNative = 0x00000002,
	STRUCT_HasInstancedReference = 0x00000004,
	STRUCT_NoExport = 0x00000008,
	STRUCT_Atomic = 0x00000010,
	STRUCT_Immutable = 0x00000020,
	STRUCT_AddStructReferencedObjects = 0x00000040,
	STRUCT_RequiredAPI = 0x00000200,
	STRUCT_NetSerializeNative = 0x00000400,
	STRUCT_SerializeNative = 0x00000800,
	STRUCT_CopyNative = 0x00001000,
	STRUCT_IsPlainOldData = 0x00002000,
	STRUCT_NoDestructor = 0x00004000,
	STRUCT_ZeroConstructor = 0x00008000,
	STRUCT_ExportTextItemNative = 0x00010000,
	STRUCT_ImportTextItemNative = 0x00020000,
	STRUCT_PostSerializeNative = 0x00040000,
	STRUCT_SerializeFromMismatchedTag = 0x00080000,
	STRUCT_NetDeltaSerializeNative = 0x00100000,
	STRUCT_PostScriptConstruct = 0x00200000,
	STRUCT_NetSharedSerialization = 0x00400000,
	STRUCT_Trashed = 0x00800000,
	STRUCT_NewerVersionExists = 0x01000000,
	STRUCT_CanEditChange = 0x02000000,
};
FORCEINLINE constexpr EStructFlags operator|(EStructFlags A, EStructFlags B) { return EStructFlags(int32(A) | int32(B)); }
FORCEINLINE constexpr EStructFlags operator&(EStructFlags A, EStructFlags B) { return EStructFlags(int32(A) & int32(B)); }
FORCEINLINE EStructFlags& operator|=(EStructFlags& A, EStructFlags B) { return A = A | B; }

enum class EEnumFlags : uint8
{
	None,
	Flags = 0x00000001,
	NewerVersionExists = 0x00000002,
};
ENUM_CLASS_FLAGS(EEnumFlags)

// Flags of UObject::Rename.
typedef uint32 ERenameFlags;
#define REN_None (0x0000)
#define REN_ForceNoResetLoaders (0x0001)
#define REN_Test (0x0002)
#define REN_DoNotDirty (0x0004)
#define REN_DontCreateRedirectors (0x0010)
#define REN_NonTransactional (0x0020)
#define REN_ForceGlobalUnique (0x0040)
#define REN_SkipGeneratedClasses (0x0080)

// Prefix of the name of every class default object.
#define DEFAULT_OBJECT_PREFIX TEXT("Default__")

// Cast flags of field classes, used by CastField and FFieldClass::IsChildOf.
enum EClassCastFlags : uint64
{
	CASTCLASS_None = 0x0000000000000000,
	CASTCLASS_UField = 0x0000000000000001,
	CASTCLASS_FInt8Property = 0x0000000000000002,
	CASTCLASS_UEnum = 0x0000000000000004,
	CASTCLASS_UStruct = 0x0000000000000008,
	CASTCLASS_UScriptStruct = 0x0000000000000010,
	CASTCLASS_UClass = 0x0000000000000020,
	CASTCLASS_FByteProperty = 0x0000000000000040,
	CASTCLASS_FIntProperty = 0x0000000000000080,
	CASTCLASS_FFloatProperty = 0x0000000000000100,
	CASTCLASS_FUInt64Property = 0x0000000000000200,
	CASTCLASS_FClassProperty = 0x0000000000000400,
	CASTCLASS_FUInt32Property = 0x0000000000000800,
	CASTCLASS_FInterfaceProperty = 0x0000000000001000,
	CASTCLASS_FNameProperty = 0x0000000000002000,
	CASTCLASS_FStrProperty = 0x0000000000004000,
	CASTCLASS_FProperty = 0x0000000000008000,
	CASTCLASS_FObjectProperty = 0x0000000000010000,
	CASTCLASS_FBoolProperty = 0x0000000000020000,
	CASTCLASS_FUInt16Property = 0x0000000000040000,
	CASTCLASS_UFunction = 0x0000000000080000,
	CASTCLASS_FStructProperty = 0x0000000000100000,
	CASTCLASS_FArrayProperty = 0x0000000000200000,
	CASTCLASS_FInt64Property = 0x0000000000400000,
	CASTCLASS_FDelegateProperty = 0x0000000000800000,
	CASTCLASS_FNumericProperty = 0x0000000001000000,
	CASTCLASS_FMulticastDelegateProperty = 0x0000000002000000,
	CASTCLASS_FObjectPropertyBase = 0x0000000004000000,
	CASTCLASS_FWeakObjectProperty = 0x0000000008000000,
	CASTCLASS_FLazyObjectProperty = 0x0000000010000000,
	CASTCLASS_FSoftObjectProperty = 0x0000000020000000,
	CASTCLASS_FTextProperty = 0x0000000040000000,
	CASTCLASS_FInt16Property = 0x0000000080000000,
	CASTCLASS_FDoubleProperty = 0x0000000100000000,
	CASTCLASS_FSoftClassProperty = 0x0000000200000000,
	CASTCLASS_UPackage = 0x0000000400000000,
	CASTCLASS_ULevel = 0x0000000800000000,
	CASTCLASS_AActor = 0x0000001000000000,
	CASTCLASS_APlayerController = 0x0000002000000000,
	CASTCLASS_APawn = 0x0000004000000000,
	CASTCLASS_USceneComponent = 0x0000008000000000,
	CASTCLASS_UPrimitiveComponent = 0x0000010000000000,
	CASTCLASS_USkinnedMeshComponent = 0x0000020000000000,
	CASTCLASS_USkeletalMeshComponent = 0x0000040000000000,
	CASTCLASS_UBlueprint = 0x0000080000000000,
	CASTCLASS_UDelegateFunction = 0x0000100000000000,
	CASTCLASS_UStaticMeshComponent = 0x0000200000000000,
	CASTCLASS_FMapProperty = 0x0000400000000000,
	CASTCLASS_FSetProperty = 0x0000800000000000,
	CASTCLASS_FEnumProperty = 0x0001000000000000,
	CASTCLASS_USparseDelegateFunction = 0x0002000000000000,
	CASTCLASS_FMulticastInlineDelegateProperty = 0x0004000000000000,
	CASTCLASS_FMulticastSparseDelegateProperty = 0x0008000000000000,
	CASTCLASS_FFieldPathProperty = 0x0010000000000000,
	CASTCLASS_FObjectPtrProperty = 0x0020000000000000,
	CASTCLASS_FClassPtrProperty = 0x0040000000000000,
	CASTCLASS_FLargeWorldCoordinatesRealProperty = 0x0080000000000000,
	CASTCLASS_FOptionalProperty = 0x0100000000000000,
	CASTCLASS_FVerseValueProperty = 0x0200000000000000,
	CASTCLASS_FUtf8StrProperty = 0x0400000000000000,
	CASTCLASS_FAnsiStrProperty = 0x0800000000000000,
};
FORCEINLINE constexpr EClassCastFlags operator|(EClassCastFlags A, EClassCastFlags B) { return EClassCastFlags(uint64(A) | uint64(B)); }

enum ELoadFlags : uint32
{
	LOAD_None = 0x00000000,
	LOAD_Async = 0x00000001,
	LOAD_NoWarn = 0x00000002,
	LOAD_EditorOnly = 0x00000004,
	LOAD_ResolvingDeferredExports = 0x00000008,
	LOAD_Verify = 0x00000010,
	LOAD_NoVerify = 0x00000080,
	LOAD_IsVerifying = 0x00000100,
	LOAD_DisableDependencyPreloading = 0x00001000,
	LOAD_Quiet = 0x00002000,
	LOAD_FindIfFail = 0x00004000,
	LOAD_MemoryReader = 0x00008000,
	LOAD_NoRedirects = 0x00010000,
	LOAD_ForDiff = 0x00020000,
	LOAD_PackageForPIE = 0x00080000,
	LOAD_DeferDependencyLoads = 0x00100000,
	LOAD_ForFileDiff = 0x00200000,
	LOAD_DisableCompileOnLoad = 0x00400000,
	LOAD_DisableEngineVersionChecks = 0x00800000,
};

enum EPropertyPortFlags : uint32
{
	PPF_None = 0x00000000,
	PPF_Localized = 0x00000001,
	PPF_Delimited = 0x00000002,
	PPF_CheckReferences = 0x00000004,
	PPF_ExportsNotFullyQualified = 0x00000008,
	PPF_AttemptNonQualifiedSearch = 0x00000010,
	PPF_RestrictImportTypes = 0x00000020,
	PPF_SerializedAsImportText = 0x00000040,
	PPF_LocalizedOnly = 0x00000080,
	PPF_SubobjectsOnly = 0x00000100,
	PPF_DeepComparison = 0x00000200,
	PPF_DeepCompareInstances = 0x00000400,
	PPF_Copy = 0x00000800,
	PPF_Duplicate = 0x00001000,
	PPF_SimpleObjectText = 0x00002000,
	PPF_ParsingDefaultProperties = 0x00008000,
	PPF_IncludeTransient = 0x00020000,
	PPF_PropertyWindow = 0x00080000,
	PPF_NoInternalArcheType = 0x00100000,
	PPF_DebugDump = 0x00200000,
	PPF_DuplicateForPIE = 0x00400000,
	PPF_SeparateDeclare = 0x00800000,
	PPF_SeparateDefine = 0x01000000,
	PPF_BlueprintDebugView = 0x02000000,
	PPF_ConsoleVariable = 0x04000000,
	PPF_UseDeprecatedProperties = 0x08000000,
	PPF_ExportCpp = 0x10000000,
	PPF_ExternalEditor = 0x20000000,
	PPF_InstanceSubobjects = 0x40000000,
};

namespace EIncludeSuperFlag
{
	enum Type { ExcludeSuper, IncludeSuper };
}

enum class EGetByNameFlags
{
	None = 0,
	ErrorIfNotFound = 0x01,
	CaseSensitive = 0x02,
	CheckAuthoredName = 0x04,
};

namespace EFieldIteratorFlags
{
	enum SuperClassFlags { ExcludeSuper = 0, IncludeSuper };
	enum DeprecatedPropertyFlags { ExcludeDeprecated = 0, IncludeDeprecated };
	enum InterfaceClassFlags { ExcludeInterfaces = 0, IncludeInterfaces };
}

// Names of the packages that hold the native types of each stand-in module: "/Script/<Module>".
#define UE_STANDIN_SCRIPT_PACKAGE(ModuleName) TEXT("/Script/" ModuleName)

class UObject;
class UClass;
class UScriptStruct;
class UEnum;
class FReferenceCollector;
template<class TOwner> class TStandInTypeBuilder;

namespace UE::CoreUObject::StandIn
{
	using FConstructFunction = UObject* (*)(void* Memory);

	// What a native class declares about itself; the class object is made from it on first use.
	struct FNativeClassParams
	{
		const TCHAR* Name = nullptr;          // C++ name with its prefix: "UMoviePipelineQueue"
		const TCHAR* ModuleName = nullptr;    // owning module: the class lives in "/Script/<ModuleName>"
		UClass* (*SuperClass)() = nullptr;     // null only for UObject
		uint32 Size = 0;
		uint32 Alignment = 0;
		EClassFlags ClassFlags = CLASS_None;
		FConstructFunction Construct = nullptr;
		void (*RegisterReflection)(UClass*) = nullptr;
		void (*AddReferencedObjects)(UObject*, FReferenceCollector&) = nullptr;
	};

	// Creates the class object in OutClass before registering its reflection, so self-referencing classes work.
	COREUOBJECT_API void ConstructNativeClass(UClass*& OutClass, const FNativeClassParams& Params);

	// Forces a native class into existence at module load, as the engine registers every class of a loaded module.
	struct FNativeClassRegistrant
	{
		explicit FNativeClassRegistrant(UClass* (*StaticClassFunction)()) { StaticClassFunction(); }
	};

	template<class TClass> void RegisterClassReflection(UClass* Class);

	// An enum class (C++23's std::is_scoped_enum): not implicitly convertible to its underlying type.
	template<class TEnum>
	inline constexpr bool TIsScopedEnum_V = std::is_enum_v<TEnum> && !std::is_convertible_v<TEnum, std::underlying_type_t<TEnum>>;

	// Runs the C++ constructor of a native class: the FObjectInitializer one when the class declares it, else the default one.
	template<class TClass> UObject* ConstructNativeObject(void* Memory);
}

// Declares the reflection entry points of a native class; put it first in the class body.
#define STANDIN_CLASS_BODY(TClass, TSuperClass, TApi) \
public: \
	using ThisClass = TClass; \
	using Super = TSuperClass; \
	TApi static UClass* StaticClass(); \
	static UObject* StandInConstruct(void* Memory); \
	static void StandInRegisterReflection(TStandInTypeBuilder<TClass>& Builder); \
	template<class> friend void UE::CoreUObject::StandIn::RegisterClassReflection(UClass*); \
private:

// The exports of a class the engine declares UCLASS(MinimalAPI, ...). Up to 5.6 the engine puts the module's API macro
// on the class, exporting all of it; from 5.7 the class itself is not exported and each function the engine exports
// carries the API macro (the UE_API of the engine's headers). A header declares such classes as the engine's 5.7
// headers do, and the class's source file implements it with STANDIN_IMPLEMENT_MINIMALAPI_CLASS:
//	#define UE_API STANDIN_MINIMALAPI_FUNCTION(MOVIERENDERPIPELINECORE_API)
//	UCLASS(MinimalAPI, BlueprintType)
//	class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINECORE_API) UMoviePipelineQueue : public UObject
//	{
//		STANDIN_MINIMALAPI_CLASS_BODY(UMoviePipelineQueue, UObject, MOVIERENDERPIPELINECORE_API)
//	public:
//		UE_API void DeleteJob(UMoviePipelineExecutorJob* InJob);
//	};
//	#undef UE_API
// A function the engine does not export gets no UE_API, so that calling it from another module fails to link from 5.7
// on, as it does in the engine. Virtual functions keep UE_API wherever they are declared: a subclass in another module
// fills its virtual table with them.
#if UE_VERSION_OLDER_THAN(5, 7, 0)
	#define STANDIN_MINIMALAPI_CLASS(TApi) TApi
	#define STANDIN_MINIMALAPI_FUNCTION(TApi)
#else
	#define STANDIN_MINIMALAPI_CLASS(TApi)
	#define STANDIN_MINIMALAPI_FUNCTION(TApi) TApi
#endif

// Defines the class object of a native class; the braces that follow are the body of its reflection registration:
//	STANDIN_IMPLEMENT_CLASS(UMoviePipelineQueue, CLASS_None, "MovieRenderPipelineCore")
//	{
//		STANDIN_PROPERTY(Jobs, CPF_Edit | CPF_InstancedReference);
//	}
#define STANDIN_IMPLEMENT_CLASS(TClass, TClassFlags, TModuleName) \
	UObject* TClass::StandInConstruct(void* Memory) { return UE::CoreUObject::StandIn::ConstructNativeObject<TClass>(Memory); } \
	UClass* TClass::StaticClass() \
	{ \
		static UClass* Class = nullptr; \
		if (!Class) \
		{ \
			UE::CoreUObject::StandIn::FNativeClassParams Params; \
			Params.Name = TEXT(#TClass); \
			Params.ModuleName = TEXT(TModuleName); \
			Params.SuperClass = STANDIN_SUPER_STATIC_CLASS(TClass); \
			Params.Size = sizeof(TClass); \
			Params.Alignment = alignof(TClass); \
			Params.ClassFlags = EClassFlags(TClassFlags); \
			Params.Construct = &TClass::StandInConstruct; \
			Params.RegisterReflection = &UE::CoreUObject::StandIn::RegisterClassReflection<TClass>; \
			Params.AddReferencedObjects = &TClass::AddReferencedObjects; \
			UE::CoreUObject::StandIn::ConstructNativeClass(Class, Params); \
		} \
		return Class; \
	} \
	static UE::CoreUObject::StandIn::FNativeClassRegistrant GStandInRegistrant_##TClass(&TClass::StaticClass); \
	void TClass::StandInRegisterReflection(TStandInTypeBuilder<TClass>& Builder)

// The body of a UCLASS(MinimalAPI) class: STANDIN_CLASS_BODY, which exports StaticClass, and the destructor declared out
// of line and exported, as the engine's generated body does. The class's virtual table has the class's visibility, so
// a subclass in another module must destroy its base through this exported destructor instead of an inline one.
#define STANDIN_MINIMALAPI_CLASS_BODY(TClass, TSuperClass, TApi) \
	STANDIN_CLASS_BODY(TClass, TSuperClass, TApi) \
public: \
	TApi virtual ~TClass(); \
private:

// Defines the class object and the destructor of a class declared with STANDIN_MINIMALAPI_CLASS_BODY; braces follow as
// for STANDIN_IMPLEMENT_CLASS.
#define STANDIN_IMPLEMENT_MINIMALAPI_CLASS(TClass, TClassFlags, TModuleName) \
	TClass::~TClass() = default; \
	STANDIN_IMPLEMENT_CLASS(TClass, TClassFlags, TModuleName)

#define STANDIN_SUPER_STATIC_CLASS(TClass) \
	(std::is_same_v<TClass, TClass::Super> ? nullptr : &TClass::Super::StaticClass)

// Declares the reflection entry points of a native struct; put it first in the struct body.
#define STANDIN_STRUCT_BODY(TStruct, TApi) \
public: \
	TApi static UScriptStruct* StaticStruct(); \
	static void StandInRegisterReflection(TStandInTypeBuilder<TStruct>& Builder);

// Defines the struct object of a native struct declared with STANDIN_STRUCT_BODY; braces follow as for classes.
#define STANDIN_IMPLEMENT_STRUCT(TStruct, TModuleName) \
	UScriptStruct* TStruct::StaticStruct() \
	{ \
		static UScriptStruct* Struct = nullptr; \
		if (!Struct) \
		{ \
			UE::CoreUObject::StandIn::ConstructNativeStruct<TStruct>(Struct, TEXT(#TStruct), TEXT(TModuleName), \
				&TStruct::StandInRegisterReflection); \
		} \
		return Struct; \
	} \
	static UE::CoreUObject::StandIn::FNativeStructRegistrant GStandInRegistrant_##TStruct(&TStruct::StaticStruct); \
	void TStruct::StandInRegisterReflection(TStandInTypeBuilder<TStruct>& Builder)

// Reflection of a struct that lives in a module below CoreUObject (FIntPoint, FGuid, ...), reached through
// TBaseStructure<T>::Get(); braces follow as for classes.
#define STANDIN_IMPLEMENT_BASE_STRUCTURE(TStruct, TModuleName) \
	static void StandInRegisterBaseStructure_##TStruct(TStandInTypeBuilder<TStruct>& Builder); \
	UScriptStruct* TBaseStructure<TStruct>::Get() \
	{ \
		static UScriptStruct* Struct = nullptr; \
		if (!Struct) \
		{ \
			UE::CoreUObject::StandIn::ConstructNativeStruct<TStruct>(Struct, TEXT(#TStruct), TEXT(TModuleName), \
				&StandInRegisterBaseStructure_##TStruct); \
		} \
		return Struct; \
	} \
	static UE::CoreUObject::StandIn::FNativeStructRegistrant GStandInRegistrant_##TStruct(&TBaseStructure<TStruct>::Get); \
	static void StandInRegisterBaseStructure_##TStruct(TStandInTypeBuilder<TStruct>& Builder)

// Inside a registration body: one reflected property of the class or struct being registered.
//	STANDIN_PROPERTY(OutputResolution, CPF_Edit)->SetMetaData(TEXT("DisplayName"), TEXT("Output Resolution"));
#define STANDIN_PROPERTY(Member, TPropertyFlags) \
	Builder.template AddProperty<decltype(std::declval<typename std::decay_t<decltype(Builder)>::OwnerType&>().Member)>( \
		TEXT(#Member), offsetof(typename std::decay_t<decltype(Builder)>::OwnerType, Member), EPropertyFlags(TPropertyFlags))

// Inside a class or struct registration body: a reflected one-bit bitfield bool ("uint8 bOverride_X : 1;"), used like
// STANDIN_PROPERTY.
//	STANDIN_BITFIELD_PROPERTY(bOverride_OutputDirectory, CPF_Edit)->SetMetaData(TEXT("InlineEditConditionToggle"), TEXT(""));
#define STANDIN_BITFIELD_PROPERTY(Member, TPropertyFlags) \
	Builder.AddBitfieldProperty(TEXT(#Member), \
		UE::CoreUObject::StandIn::FindBitfieldBit<typename std::decay_t<decltype(Builder)>::OwnerType>( \
			[](auto& Owner) { Owner.Member = 1; }), \
		EPropertyFlags(TPropertyFlags))

// Inside a class registration body: a reflected member function, callable through ProcessEvent. The parameter names
// follow the function pointer, in order; a non-void result is the "ReturnValue" parameter.
//	STANDIN_FUNCTION(GetVariableStringValueByName, TEXT("InVariableName"), TEXT("InDefaultValue"), TEXT("OutVariableValue"));
#define STANDIN_FUNCTION(Function, ...) \
	Builder.template AddFunction<&std::decay_t<decltype(Builder)>::OwnerType::Function>(TEXT(#Function), { __VA_ARGS__ })

// Declares the UEnum of an enum type: StaticEnum<TEnum>(), exported by the owning module.
#define STANDIN_DECLARE_ENUM(TEnum, TApi) template<> TApi UEnum* StaticEnum<TEnum>();

// Defines the UEnum of an enum type from its enumerator names, in declaration order:
//	STANDIN_IMPLEMENT_ENUM(EMovieRenderPipelineState, "MovieRenderPipelineCore", Uninitialized, ProducingFrames, Finalize)
#define STANDIN_IMPLEMENT_ENUM(TEnum, TModuleName, ...) \
	template<> UEnum* StaticEnum<TEnum>() \
	{ \
		static UEnum* EnumObject = nullptr; \
		if (!EnumObject) \
		{ \
			using enum TEnum; \
			const TEnum Values[] = { __VA_ARGS__ }; \
			TArray<int64> IntValues; \
			for (TEnum Value : Values) { IntValues.Add(int64(Value)); } \
			EnumObject = UE::CoreUObject::StandIn::ConstructNativeEnum(TEXT(#TEnum), TEXT(TModuleName), TEXT(#__VA_ARGS__), \
				IntValues, UE::CoreUObject::StandIn::TIsScopedEnum_V<TEnum>); \
		} \
		return EnumObject; \
	} \
	static UE::CoreUObject::StandIn::FNativeEnumRegistrant GStandInRegistrant_##TEnum(&StaticEnum<TEnum>);

template<typename T> UEnum* StaticEnum();
template<typename T> struct TBaseStructure;
