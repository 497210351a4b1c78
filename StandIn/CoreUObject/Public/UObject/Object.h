// UObject: the base of every engine object.
#pragma once

#include "CoreMinimal.h"
#include "UObject/ObjectMacros.h"
#include "UObject/UObjectGlobals.h"

class UClass;
class UFunction;
class UPackage;
class UWorld;
class FProperty;
class FObjectInitializer;
struct FPropertyChangedEvent;
class FReferenceCollector;
class FOutputDevice;
class ITargetPlatform;

class COREUOBJECT_API UObject
{
	STANDIN_CLASS_BODY(UObject, UObject, COREUOBJECT_API)

public:
	// Name, outer, class and flags come from the object being constructed (NewObject sets them before the constructor runs).
	UObject();
	explicit UObject(const FObjectInitializer& ObjectInitializer);
	virtual ~UObject();

	UObject(const UObject&) = delete;
	UObject& operator=(const UObject&) = delete;

	// Identity
	FName GetFName() const { return NamePrivate; }
	FString GetName() const { return NamePrivate.ToString(); }
	void GetName(FString& ResultString) const { ResultString = NamePrivate.ToString(); }
	UClass* GetClass() const { return ClassPrivate; }
	UObject* GetOuter() const { return OuterPrivate; }
	UPackage* GetPackage() const;
	UPackage* GetOutermost() const { return GetPackage(); }
	// The top-level object below the package: the asset that owns this object.
	UObject* GetOutermostObject() const;
	virtual UWorld* GetWorld() const;
	// "/Game/Dir/Asset.Asset", "/Game/Dir/Asset.Asset:Sub.Inner" for subobjects, as the engine forms it.
	FString GetPathName(const UObject* StopOuter = nullptr) const;
	void GetPathName(const UObject* StopOuter, FString& ResultString) const;
	// "ClassName /Game/Dir/Asset.Asset"
	FString GetFullName(const UObject* StopOuter = nullptr) const;
	bool IsIn(const UObject* SomeOuter) const;
	bool IsInPackage(const UPackage* SomePackage) const;
	bool IsInOuter(const UObject* SomeOuter) const { return IsIn(SomeOuter); }
	virtual bool Rename(const TCHAR* NewName = nullptr, UObject* NewOuter = nullptr, ERenameFlags Flags = REN_None);

	template<class T> bool IsA() const { return IsA(T::StaticClass()); }
	bool IsA(const UClass* SomeBase) const;
	template<class T> T* GetTypedOuter() const { return static_cast<T*>(GetTypedOuter(T::StaticClass())); }
	UObject* GetTypedOuter(UClass* Target) const;
	template<class T> T* GetImplementingOuter() const { return GetTypedOuter<T>(); }

	// Flags
	EObjectFlags GetFlags() const { return ObjectFlags; }
	EObjectFlags GetMaskedFlags(EObjectFlags Mask = RF_AllFlags) const { return ObjectFlags & Mask; }
	void SetFlags(EObjectFlags NewFlags) { ObjectFlags |= NewFlags; }
	void ClearFlags(EObjectFlags FlagsToClear) { ObjectFlags &= ~FlagsToClear; }
	bool HasAnyFlags(EObjectFlags FlagsToCheck) const { return (ObjectFlags & FlagsToCheck) != 0; }
	bool HasAllFlags(EObjectFlags FlagsToCheck) const { return (ObjectFlags & FlagsToCheck) == FlagsToCheck; }
	bool IsTemplate(EObjectFlags TemplateTypes = RF_ArchetypeObject | RF_ClassDefaultObject) const;
	bool IsDefaultSubobject() const;
	// The object this one was constructed from: the class default object for a plain instance.
	UObject* GetArchetype() const;
	virtual bool IsAsset() const;
	virtual bool IsEditorOnly() const { return false; }
	virtual bool IsSupportedForNetworking() const { return false; }

	// Internal state kept in the global object array.
	int32 GetUniqueID() const { return InternalIndex; }
	bool IsRooted() const;
	void AddToRoot();
	void RemoveFromRoot();
	void MarkAsGarbage();
	void ClearGarbage();
	bool IsValidLowLevel() const;
	bool IsValidLowLevelFast(bool bRecursive = true) const { return IsValidLowLevel(); }
	bool IsUnreachable() const;
	bool HasAnyInternalFlags(EInternalObjectFlags FlagsToCheck) const;

	// Editing
	virtual bool Modify(bool bAlwaysMarkDirty = true);
	bool MarkPackageDirty() const;
	virtual void PreEditChange(FProperty* PropertyAboutToChange);
	virtual void PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent);
	void PostEditChange();
	virtual void PostEditUndo();
	virtual bool CanEditChange(const FProperty* InProperty) const;

	// Lifetime hooks
	virtual void PostInitProperties() {}
	virtual void PostLoad() {}
	virtual void PostDuplicate(bool bDuplicateForPIE) {}
	virtual void PostRename(UObject* OldOuter, const FName OldName) {}
	virtual void PreSave(const ITargetPlatform* TargetPlatform) {}
	virtual void BeginDestroy();
	virtual void FinishDestroy();
	virtual bool IsReadyForFinishDestroy() { return true; }
	bool ConditionalBeginDestroy();
	static void AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector) {}

	// Reflection
	UFunction* FindFunction(FName InName) const;
	UFunction* FindFunctionChecked(FName InName) const;
	virtual void ProcessEvent(UFunction* Function, void* Parms);

	template<class T> T* CreateDefaultSubobject(FName SubobjectName, bool bTransient = false)
	{
		return static_cast<T*>(CreateDefaultSubobject(SubobjectName, T::StaticClass(), T::StaticClass(), true, bTransient));
	}
	UObject* CreateDefaultSubobject(FName SubobjectFName, UClass* ReturnType, UClass* ClassToCreateByDefault, bool bIsRequired, bool bIsTransient);

	virtual FString GetDetailedInfoInternal() const { return TEXT("No_Detailed_Info_Specified"); }
	FString GetDetailedInfo() const { return GetDetailedInfoInternal(); }

private:
	friend class FUObjectArray;
	friend class FStandInObjectConstruction;
	friend class UClass;

	void InitializeFromConstructionContext();
	void MoveToNameAndOuter(FName NewName, UObject* NewOuter);

	EObjectFlags ObjectFlags;
	int32 InternalIndex;
	UClass* ClassPrivate;
	FName NamePrivate;
	UObject* OuterPrivate;
};

// True when the object exists and is not marked as garbage.
COREUOBJECT_API bool IsValid(const UObject* Test);

// The name, path name or full name of an object; "None" for null.
COREUOBJECT_API FString GetNameSafe(const UObject* Object);
COREUOBJECT_API FString GetPathNameSafe(const UObject* Object);
COREUOBJECT_API FString GetFullNameSafe(const UObject* Object);

// As in the engine, code that sees UObject also sees TObjectPtr and Cast.
#include "UObject/ObjectPtr.h"
#include "Templates/Casts.h"
