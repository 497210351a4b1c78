// Finding objects by outer and by class.
#pragma once

#include "CoreMinimal.h"
#include "UObject/ObjectMacros.h"
#include "UObject/UObjectGlobals.h"

class UObject;
class UClass;
class UPackage;

/** The object of the class (or a derived one unless bExactClass) named InName directly inside InOuter. */
COREUOBJECT_API UObject* StaticFindObjectFastInternal(const UClass* Class, const UObject* InOuter, FName InName, bool bExactClass = false, EObjectFlags ExcludeFlags = RF_NoFlags, EInternalObjectFlags ExclusiveInternalFlags = EInternalObjectFlags::None);

/** Objects inside Outer in creation order; with nested objects, those inside them follow (breadth first). */
COREUOBJECT_API void GetObjectsWithOuter(const UObject* Outer, TArray<UObject*>& Results, bool bIncludeNestedObjects = true, EObjectFlags ExclusionFlags = RF_NoFlags, EInternalObjectFlags ExclusionInternalFlags = EInternalObjectFlags::None);
COREUOBJECT_API void ForEachObjectWithOuter(const UObject* Outer, TFunctionRef<void(UObject*)> Operation, bool bIncludeNestedObjects = true, EObjectFlags ExclusionFlags = RF_NoFlags, EInternalObjectFlags ExclusionInternalFlags = EInternalObjectFlags::None);
COREUOBJECT_API void ForEachObjectWithOuterBreakable(const UObject* Outer, TFunctionRef<bool(UObject*)> Operation, bool bIncludeNestedObjects = true, EObjectFlags ExclusionFlags = RF_NoFlags, EInternalObjectFlags ExclusionInternalFlags = EInternalObjectFlags::None);
/** The first object directly inside Outer matching the class and, unless None, the name. */
COREUOBJECT_API UObject* FindObjectWithOuter(const UObject* Outer, const UClass* ClassToLookFor = nullptr, FName NameToLookFor = NAME_None);
COREUOBJECT_API void GetObjectsWithPackage(const UPackage* Outer, TArray<UObject*>& Results, bool bIncludeNestedObjects = true, EObjectFlags ExclusionFlags = RF_NoFlags, EInternalObjectFlags ExclusionInternalFlags = EInternalObjectFlags::None);
COREUOBJECT_API void ForEachObjectWithPackage(const UPackage* Outer, TFunctionRef<bool(UObject*)> Operation, bool bIncludeNestedObjects = true, EObjectFlags ExclusionFlags = RF_NoFlags, EInternalObjectFlags ExclusionInternalFlags = EInternalObjectFlags::None);

/** Objects of the class (and derived classes) in creation order; class default objects are excluded by default. */
COREUOBJECT_API void GetObjectsOfClass(const UClass* ClassToLookFor, TArray<UObject*>& Results, bool bIncludeDerivedClasses = true, EObjectFlags ExcludeFlags = RF_ClassDefaultObject, EInternalObjectFlags ExclusionInternalFlags = EInternalObjectFlags::None);
COREUOBJECT_API void ForEachObjectOfClass(const UClass* ClassToLookFor, TFunctionRef<void(UObject*)> Operation, bool bIncludeDerivedClasses = true, EObjectFlags ExcludeFlags = RF_ClassDefaultObject, EInternalObjectFlags ExclusionInternalFlags = EInternalObjectFlags::None);
COREUOBJECT_API void ForEachObjectOfClasses(TArrayView<const UClass* const> ClassesToLookFor, TFunctionRef<void(UObject*)> Operation, EObjectFlags ExcludeFlags = RF_ClassDefaultObject, EInternalObjectFlags ExclusionInternalFlags = EInternalObjectFlags::None);

/** Classes whose super class is ClassToLookFor (and, recursively, theirs). */
COREUOBJECT_API void GetDerivedClasses(const UClass* ClassToLookFor, TArray<UClass*>& Results, bool bRecursive = true);

/**
 * A number that changes whenever a class, native or not (Blueprint classes included), is registered or unregistered;
 * store it and compare it later to invalidate a cache of classes.
 * Stand-in choice: declared in every version 5.5-5.8 and bumped on each class hashed or unhashed (the API reference
 * pages at hand list only the native counter below).
 */
COREUOBJECT_API uint64 GetRegisteredClassesVersionNumber();

/** A number that changes whenever a native class is registered or unregistered; compare it to invalidate a cache of native classes. */
COREUOBJECT_API uint64 GetRegisteredNativeClassesVersionNumber();

namespace UE
{
	/**
	 * The internal flags of objects that are still being loaded, which lookups made outside the loader skip.
	 * Stand-in choice: declared here, next to the lookups it is passed to (the engine's header was not established).
	 */
	COREUOBJECT_API EInternalObjectFlags GetAsyncLoadingInternalFlagsExclusion();
}
