// Object creation, lookup, loading and collection: the global functions of the object system.
#pragma once

#include "CoreMinimal.h"
#include "UObject/ObjectMacros.h"
#include "UObject/TopLevelAssetPath.h"
#include "Misc/EngineVersionComparison.h"

#include <type_traits>

class UObject;
class UClass;
class UPackage;
template<typename T> class TObjectPtr;
class UPackageMap;
class FArchive;
class FObjectInstancingGraph;
class FObjectInitializer;
struct FLinkerInstancingContext;
struct FPropertyChangedEvent;
struct FUObjectSerializeContext;

COREUOBJECT_API DECLARE_LOG_CATEGORY_EXTERN(LogUObjectGlobals, Log, All);
COREUOBJECT_API DECLARE_LOG_CATEGORY_EXTERN(LogObj, Log, All);

/*-----------------------------------------------------------------------------
	Packages and garbage collection (implemented with the object array and persistence).
-----------------------------------------------------------------------------*/

// The package "/Engine/Transient" that holds objects created without an outer; rooted.
COREUOBJECT_API UPackage* GetTransientPackage();
COREUOBJECT_API UObject* GetTransientPackageAsObject();
// Finds the package with that long name ("/Game/Dir/Asset"), creating it when missing.
COREUOBJECT_API UPackage* CreatePackage(const TCHAR* PackageName);
COREUOBJECT_API UPackage* FindPackage(UObject* InOuter, const TCHAR* PackageName);
COREUOBJECT_API UPackage* LoadPackage(UPackage* InOuter, const TCHAR* InLongPackageName, uint32 LoadFlags, FArchive* InReaderOverride = nullptr, const FLinkerInstancingContext* InstancingContext = nullptr);

COREUOBJECT_API void CollectGarbage(EObjectFlags KeepFlags = GARBAGE_COLLECTION_KEEPFLAGS, bool bPerformFullPurge = true);
COREUOBJECT_API bool TryCollectGarbage(EObjectFlags KeepFlags = GARBAGE_COLLECTION_KEEPFLAGS, bool bPerformFullPurge = true);
COREUOBJECT_API bool IsGarbageCollecting();

/*-----------------------------------------------------------------------------
	Finding objects.
-----------------------------------------------------------------------------*/

enum class EFindFirstObjectOptions : uint32
{
	None = 0,
	ExactClass = 1 << 1,
	NativeFirst = 1 << 2,
	EnsureIfAmbiguous = 1 << 3,
};
ENUM_CLASS_FLAGS(EFindFirstObjectOptions)

// Name may be a plain name inside InOuter, or (InOuter null) a full path: "/Game/A/B.B", "/Game/A/B.B:Sub".
COREUOBJECT_API UObject* StaticFindObject(UClass* Class, UObject* InOuter, const TCHAR* Name, bool ExactClass = false);
COREUOBJECT_API UObject* StaticFindObject(UClass* Class, FTopLevelAssetPath ObjectPath, bool ExactClass = false);
COREUOBJECT_API UObject* StaticFindObjectChecked(UClass* Class, UObject* InOuter, const TCHAR* Name, bool ExactClass = false);
COREUOBJECT_API UObject* StaticFindObjectSafe(UClass* Class, UObject* InOuter, const TCHAR* Name, bool ExactClass = false);
COREUOBJECT_API UObject* StaticFindObjectFast(UClass* Class, UObject* InOuter, FName InName, bool ExactClass = false, EObjectFlags ExclusiveFlags = RF_NoFlags, EInternalObjectFlags ExclusiveInternalFlags = EInternalObjectFlags::None);
// The first object of the class with that short name, in any package.
COREUOBJECT_API UObject* StaticFindFirstObject(UClass* Class, const TCHAR* Name, EFindFirstObjectOptions Options = EFindFirstObjectOptions::None, ELogVerbosity::Type AmbiguousMessageVerbosity = ELogVerbosity::NoLogging, const TCHAR* InCurrentOperation = nullptr);

template<class T>
inline T* FindObject(UObject* Outer, const TCHAR* Name, bool ExactClass = false)
{
	return (T*)StaticFindObject(T::StaticClass(), Outer, Name, ExactClass);
}

template<class T>
inline T* FindObject(FTopLevelAssetPath InPath, bool ExactClass = false)
{
	return (T*)StaticFindObject(T::StaticClass(), InPath, ExactClass);
}

template<class T>
inline T* FindObjectChecked(UObject* Outer, const TCHAR* Name, bool ExactClass = false)
{
	return (T*)StaticFindObjectChecked(T::StaticClass(), Outer, Name, ExactClass);
}

template<class T>
inline T* FindObjectSafe(UObject* Outer, const TCHAR* Name, bool ExactClass = false)
{
	return (T*)StaticFindObjectSafe(T::StaticClass(), Outer, Name, ExactClass);
}

template<class T>
inline T* FindObjectFast(UObject* Outer, FName Name, bool ExactClass = false, EObjectFlags ExclusiveFlags = RF_NoFlags)
{
	return (T*)StaticFindObjectFast(T::StaticClass(), Outer, Name, ExactClass, ExclusiveFlags);
}

template<class T>
inline T* FindFirstObject(const TCHAR* Name, EFindFirstObjectOptions Options = EFindFirstObjectOptions::None, ELogVerbosity::Type AmbiguousMessageVerbosity = ELogVerbosity::NoLogging, const TCHAR* InCurrentOperation = nullptr)
{
	return (T*)StaticFindFirstObject(T::StaticClass(), Name, Options, AmbiguousMessageVerbosity, InCurrentOperation);
}

/*-----------------------------------------------------------------------------
	Loading objects. 5.7 takes string views where 5.5 and 5.6 take TCHAR pointers.
-----------------------------------------------------------------------------*/

#if !UE_VERSION_OLDER_THAN(5, 7, 0)
// Finds the object, else loads its package and finds it; null (with a warning unless LOAD_NoWarn/LOAD_Quiet) on failure.
COREUOBJECT_API UObject* StaticLoadObject(UClass* Class, UObject* InOuter, FStringView Name, FStringView Filename = {}, uint32 LoadFlags = LOAD_None, UPackageMap* Sandbox = nullptr, bool bAllowObjectReconciliation = true, const FLinkerInstancingContext* InstancingContext = nullptr);
COREUOBJECT_API UClass* StaticLoadClass(UClass* BaseClass, UObject* InOuter, FStringView Name, FStringView Filename = {}, uint32 LoadFlags = LOAD_None, UPackageMap* Sandbox = nullptr);

template<class T>
inline T* LoadObject(UObject* Outer, FStringView Name, FStringView Filename = {}, uint32 LoadFlags = LOAD_None, UPackageMap* Sandbox = nullptr, const FLinkerInstancingContext* InstancingContext = nullptr)
{
	return (T*)StaticLoadObject(T::StaticClass(), Outer, Name, Filename, LoadFlags, Sandbox, true, InstancingContext);
}

template<class T>
inline UClass* LoadClass(UObject* Outer, FStringView Name, FStringView Filename = {}, uint32 LoadFlags = LOAD_None, UPackageMap* Sandbox = nullptr)
{
	return StaticLoadClass(T::StaticClass(), Outer, Name, Filename, LoadFlags, Sandbox);
}
#else
// Finds the object, else loads its package and finds it; null (with a warning unless LOAD_NoWarn/LOAD_Quiet) on failure.
COREUOBJECT_API UObject* StaticLoadObject(UClass* Class, UObject* InOuter, const TCHAR* Name, const TCHAR* Filename = nullptr, uint32 LoadFlags = LOAD_None, UPackageMap* Sandbox = nullptr, bool bAllowObjectReconciliation = true, const FLinkerInstancingContext* InstancingContext = nullptr);
COREUOBJECT_API UClass* StaticLoadClass(UClass* BaseClass, UObject* InOuter, const TCHAR* Name, const TCHAR* Filename = nullptr, uint32 LoadFlags = LOAD_None, UPackageMap* Sandbox = nullptr);

template<class T>
inline T* LoadObject(UObject* Outer, const TCHAR* Name, const TCHAR* Filename = nullptr, uint32 LoadFlags = LOAD_None, UPackageMap* Sandbox = nullptr, const FLinkerInstancingContext* InstancingContext = nullptr)
{
	return (T*)StaticLoadObject(T::StaticClass(), Outer, Name, Filename, LoadFlags, Sandbox, true, InstancingContext);
}

template<class T>
inline UClass* LoadClass(UObject* Outer, const TCHAR* Name, const TCHAR* Filename = nullptr, uint32 LoadFlags = LOAD_None, UPackageMap* Sandbox = nullptr)
{
	return StaticLoadClass(T::StaticClass(), Outer, Name, Filename, LoadFlags, Sandbox);
}
#endif

/*-----------------------------------------------------------------------------
	Duplicating objects.
-----------------------------------------------------------------------------*/

namespace EDuplicateMode
{
	enum Type
	{
		Normal,
		World,
		PIE
	};
}

// A deep copy: the object and every object inside it, with references among them remapped to the copies.
COREUOBJECT_API UObject* StaticDuplicateObject(UObject const* SourceObject, UObject* DestOuter, const FName DestName = NAME_None, EObjectFlags FlagMask = RF_AllFlags, UClass* DestClass = nullptr, EDuplicateMode::Type DuplicateMode = EDuplicateMode::Normal, EInternalObjectFlags InternalFlagsMask = EInternalObjectFlags_AllFlags);

template<class T>
T* DuplicateObject(T const* SourceObject, UObject* Outer, const FName Name = NAME_None)
{
	if (SourceObject != nullptr)
	{
		if (Outer == nullptr)
		{
			Outer = GetTransientPackageAsObject();
		}
		return (T*)StaticDuplicateObject(SourceObject, Outer, Name);
	}
	return nullptr;
}

template<class T>
T* DuplicateObject(const TObjectPtr<T>& SourceObject, UObject* Outer, const FName Name = NAME_None)
{
	return DuplicateObject<T>(SourceObject.Get(), Outer, Name);
}

/*-----------------------------------------------------------------------------
	Creating objects.
-----------------------------------------------------------------------------*/

enum class EUniqueObjectNameOptions
{
	None = 0,
	GloballyUnique = 1 << 1,
	UniversallyUnique = 1 << 2,
};
ENUM_CLASS_FLAGS(EUniqueObjectNameOptions)

// "<BaseName>_<N>" (BaseName defaults to the class name) with N from the class's counter, unused in Outer.
COREUOBJECT_API FName MakeUniqueObjectName(UObject* Outer, const UClass* Class, FName BaseName = NAME_None, EUniqueObjectNameOptions Options = EUniqueObjectNameOptions::None);

struct COREUOBJECT_API FStaticConstructObjectParameters
{
	const UClass* Class = nullptr;
	UObject* Outer = nullptr;
	FName Name;
	EObjectFlags SetFlags = RF_NoFlags;
	EInternalObjectFlags InternalSetFlags = EInternalObjectFlags::None;
	bool bCopyTransientsFromClassDefaults = false;
	bool bAssumeTemplateIsArchetype = false;
	// Properties are copied from it after construction (the class default object's values are the C++ defaults here).
	UObject* Template = nullptr;
	FObjectInstancingGraph* InstanceGraph = nullptr;
	UPackage* ExternalPackage = nullptr;

	explicit FStaticConstructObjectParameters(const UClass* InClass) : Class(InClass) {}
};

// Creates an object: null (with an error logged) for an abstract class, a missing outer or a name used by an object of another class.
COREUOBJECT_API UObject* StaticConstructObject_Internal(const FStaticConstructObjectParameters& Params);

// Passed to constructors that take one; it gives access to the object being built and its default subobjects.
class COREUOBJECT_API FObjectInitializer
{
public:
	FObjectInitializer();
	FObjectInitializer(UObject* InObj, UObject* InObjectArchetype, bool bInCopyTransientsFromClassDefaults, bool bInShouldInitializeProps);
	~FObjectInitializer();
	UE_NONCOPYABLE(FObjectInitializer)

	UObject* GetObj() const { return Obj; }
	UClass* GetClass() const;
	UObject* GetArchetype() const { return ObjectArchetype; }

	template<class TReturnType>
	TReturnType* CreateDefaultSubobject(UObject* Outer, FName SubobjectName, bool bTransient = false) const
	{
		return static_cast<TReturnType*>(CreateDefaultSubobject(Outer, SubobjectName, TReturnType::StaticClass(), TReturnType::StaticClass(), true, bTransient));
	}
	template<class TReturnType, class TClassToConstructByDefault>
	TReturnType* CreateDefaultSubobject(UObject* Outer, FName SubobjectName, bool bTransient = false) const
	{
		return static_cast<TReturnType*>(CreateDefaultSubobject(Outer, SubobjectName, TReturnType::StaticClass(), TClassToConstructByDefault::StaticClass(), true, bTransient));
	}
	template<class TReturnType>
	TReturnType* CreateOptionalDefaultSubobject(UObject* Outer, FName SubobjectName, bool bTransient = false) const
	{
		return static_cast<TReturnType*>(CreateDefaultSubobject(Outer, SubobjectName, TReturnType::StaticClass(), TReturnType::StaticClass(), false, bTransient));
	}
	template<class TReturnType>
	TReturnType* CreateEditorOnlyDefaultSubobject(UObject* Outer, FName SubobjectName, bool bTransient = false) const
	{
		return CreateDefaultSubobject<TReturnType>(Outer, SubobjectName, bTransient);
	}
	UObject* CreateDefaultSubobject(UObject* Outer, FName SubobjectFName, const UClass* ReturnType, const UClass* ClassToCreateByDefault, bool bIsRequired, bool bIsTransient) const;

	// Makes the named default subobject of the object being built use another class.
	template<class T>
	const FObjectInitializer& SetDefaultSubobjectClass(FName SubobjectName) const { return SetDefaultSubobjectClass(SubobjectName, T::StaticClass()); }
	const FObjectInitializer& SetDefaultSubobjectClass(FName SubobjectName, UClass* Class) const;
	// Makes the named optional default subobject of the object being built not be created.
	const FObjectInitializer& DoNotCreateDefaultSubobject(FName SubobjectName) const;

	// The initializer of the object whose constructor is running.
	static FObjectInitializer& Get();
	static void AssertIfInConstructor(UObject* Outer, const TCHAR* ErrorMessage);

private:
	UObject* Obj = nullptr;
	UObject* ObjectArchetype = nullptr;
	mutable TMap<FName, UClass*> SubobjectClassOverrides;
	mutable TArray<FName> SubobjectsNotToCreate;
};

namespace UE::CoreUObject::StandIn
{
	// StaticConstructObject_Internal for NewObject<T>: refuses (null, error logged) a class that is not T or derived from T.
	COREUOBJECT_API UObject* ConstructObjectOfClass(const UClass* RequiredBase, const FStaticConstructObjectParameters& Params);

	template<class TClass>
	UObject* ConstructNativeObject(void* Memory)
	{
		if constexpr (std::is_constructible_v<TClass, const FObjectInitializer&>)
		{
			return new (Memory) TClass(FObjectInitializer::Get());
		}
		else
		{
			return new (Memory) TClass();
		}
	}
}

template<class T>
T* NewObject(UObject* Outer, const UClass* Class, FName Name = NAME_None, EObjectFlags Flags = RF_NoFlags, UObject* Template = nullptr, bool bCopyTransientsFromClassDefaults = false, FObjectInstancingGraph* InInstanceGraph = nullptr, UPackage* InExternalPackage = nullptr)
{
	if (Name == NAME_None)
	{
		FObjectInitializer::AssertIfInConstructor(Outer, TEXT("NewObject with empty name can't be used to create default subobjects (inside of UObject derived class constructor) as it produces inconsistent object names. Use ObjectInitializer.CreateDefaultSubobject<> instead."));
	}

	FStaticConstructObjectParameters Params(Class);
	Params.Outer = Outer;
	Params.Name = Name;
	Params.SetFlags = Flags;
	Params.Template = Template;
	Params.bCopyTransientsFromClassDefaults = bCopyTransientsFromClassDefaults;
	Params.InstanceGraph = InInstanceGraph;
	Params.ExternalPackage = InExternalPackage;
	return static_cast<T*>(UE::CoreUObject::StandIn::ConstructObjectOfClass(T::StaticClass(), Params));
}

template<class T>
T* NewObject(UObject* Outer = GetTransientPackageAsObject())
{
	return NewObject<T>(Outer, T::StaticClass());
}

template<class T>
T* NewObject(UObject* Outer, FName Name, EObjectFlags Flags = RF_NoFlags, UObject* Template = nullptr, bool bCopyTransientsFromClassDefaults = false, FObjectInstancingGraph* InInstanceGraph = nullptr)
{
	return NewObject<T>(Outer, T::StaticClass(), Name, Flags, Template, bCopyTransientsFromClassDefaults, InInstanceGraph);
}

/*-----------------------------------------------------------------------------
	Global notifications.
-----------------------------------------------------------------------------*/

struct COREUOBJECT_API FCoreUObjectDelegates
{
	DECLARE_MULTICAST_DELEGATE_OneParam(FOnObjectModified, UObject*);
	DECLARE_MULTICAST_DELEGATE_TwoParams(FOnObjectPropertyChanged, UObject*, FPropertyChangedEvent&);

	// Broadcast by UObject::Modify for every object that is modified.
	static FOnObjectModified OnObjectModified;
	// Broadcast by UObject::PostEditChangeProperty.
	static FOnObjectPropertyChanged OnObjectPropertyChanged;

	static TMulticastDelegate<void()>& GetPreGarbageCollectDelegate();
	static TMulticastDelegate<void()>& GetPostGarbageCollect();
};
