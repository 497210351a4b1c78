// FField: the base of properties (UE5 properties are not UObjects), with its class descriptor FFieldClass.
#pragma once

#include "CoreMinimal.h"
#include "UObject/ObjectMacros.h"

class FField;
class FFieldVariant;
class UObject;
class UClass;
class UStruct;
class UField;
class UPackage;

// Describes one kind of field ("IntProperty", "ArrayProperty", ...): its name, identity bit and the cast flags of its ancestry.
class COREUOBJECT_API FFieldClass
{
public:
	using FConstructFunction = FField* (*)(const FFieldVariant&, const FName&, EObjectFlags);

	FFieldClass(const TCHAR* InCPPName, uint64 InId, uint64 InCastFlags, FFieldClass* InSuperClass, FConstructFunction InConstructFn);
	UE_NONCOPYABLE(FFieldClass)

	// The C++ name without its "F": "IntProperty".
	FString GetName() const { return Name.ToString(); }
	FName GetFName() const { return Name; }
	uint64 GetId() const { return Id; }
	uint64 GetCastFlags() const { return CastFlags; }
	bool HasAnyCastFlags(const uint64 InCastFlags) const { return (CastFlags & InCastFlags) != 0; }
	bool HasAllCastFlags(const uint64 InCastFlags) const { return (CastFlags & InCastFlags) == InCastFlags; }
	bool IsChildOf(const FFieldClass* InClass) const;
	FFieldClass* GetSuperClass() const { return SuperClass; }
	FString GetDescription() const { return GetName(); }
	// A new field of this class, or null for abstract field classes.
	FField* Construct(const FFieldVariant& InOwner, const FName& InName, EObjectFlags InFlags = RF_NoFlags) const;

	// Every field class, in registration order; and a lookup by name ("IntProperty").
	static TArray<FFieldClass*>& GetAllFieldClasses();
	static FFieldClass* FindFieldClass(FName InName);

private:
	FName Name;
	uint64 Id;
	uint64 CastFlags;
	FFieldClass* SuperClass;
	FConstructFunction ConstructFn;
};

// Owner of a field: either a UObject (a struct, class or function) or another field (an array's inner property).
class COREUOBJECT_API FFieldVariant
{
public:
	FFieldVariant() = default;
	FFieldVariant(const FField* InField) : Container(const_cast<FField*>(InField)), bIsUObject(false) {}
	FFieldVariant(const UObject* InObject) : Container(const_cast<UObject*>(InObject)), bIsUObject(true) {}
	FFieldVariant(TYPE_OF_NULLPTR) {}

	bool IsUObject() const { return bIsUObject; }
	bool IsValid() const { return Container != nullptr; }
	explicit operator bool() const { return IsValid(); }
	FField* ToField() const { return bIsUObject ? nullptr : static_cast<FField*>(Container); }
	UObject* ToUObject() const { return bIsUObject ? static_cast<UObject*>(Container) : nullptr; }
	void* GetRawPointer() const { return Container; }
	FFieldVariant GetOwnerVariant() const;
	FName GetFName() const;
	FString GetName() const;
	FString GetPathName() const;
	FString GetFullName() const;
	bool IsA(const UClass* InClass) const;
	bool IsA(const FFieldClass* InClass) const;
	template<class T> bool IsA() const { return IsA(T::StaticClass()); }
	template<class T> T* Get() const
	{
		if constexpr (std::is_base_of_v<FField, T>)
		{
			return IsA<T>() ? static_cast<T*>(ToField()) : nullptr;
		}
		else
		{
			return IsA<T>() ? static_cast<T*>(ToUObject()) : nullptr;
		}
	}

	bool operator==(const FFieldVariant& Other) const { return Container == Other.Container; }
	bool operator!=(const FFieldVariant& Other) const { return Container != Other.Container; }
	friend uint32 GetTypeHash(const FFieldVariant& InFieldVariant) { return GetTypeHash(InFieldVariant.Container); }

private:
	void* Container = nullptr;
	bool bIsUObject = false;
};

// Declares the static class and cast flags of a field type; put it first in the class body.
#define DECLARE_FIELD_API(TClass, TSuperClass, TStaticFlags, TRequiredAPI) \
public: \
	using Super = TSuperClass; \
	using ThisClass = TClass; \
	TRequiredAPI static FFieldClass* StaticClass(); \
	static FField* Construct(const FFieldVariant& InOwner, const FName& InName, EObjectFlags InObjectFlags); \
	static constexpr uint64 StaticClassCastFlagsPrivate() { return uint64(TStaticFlags); } \
	static constexpr uint64 StaticClassCastFlags() \
	{ \
		if constexpr (std::is_same_v<TClass, TSuperClass>) { return uint64(TStaticFlags); } \
		else { return uint64(TStaticFlags) | TSuperClass::StaticClassCastFlags(); } \
	}

#define DECLARE_FIELD(TClass, TSuperClass, TStaticFlags) DECLARE_FIELD_API(TClass, TSuperClass, TStaticFlags, )

namespace UE::CoreUObject::StandIn
{
	// A new field of type TField, or null for an abstract field type.
	template<class TField>
	FField* ConstructField(const FFieldVariant& InOwner, const FName& InName, EObjectFlags InObjectFlags)
	{
		if constexpr (std::is_abstract_v<TField>)
		{
			return nullptr;
		}
		else
		{
			return new TField(InOwner, InName, InObjectFlags);
		}
	}
}

// Defines the static class of a field type declared with DECLARE_FIELD; the FFieldClass lives in the owning module.
#define IMPLEMENT_FIELD(TClass) \
	FField* TClass::Construct(const FFieldVariant& InOwner, const FName& InName, EObjectFlags InObjectFlags) \
	{ \
		return UE::CoreUObject::StandIn::ConstructField<TClass>(InOwner, InName, InObjectFlags); \
	} \
	FFieldClass* TClass::StaticClass() \
	{ \
		static FFieldClass StaticFieldClass(TEXT(#TClass), TClass::StaticClassCastFlagsPrivate(), TClass::StaticClassCastFlags(), \
			std::is_same_v<TClass, TClass::Super> ? nullptr : TClass::Super::StaticClass(), &TClass::Construct); \
		return &StaticFieldClass; \
	}

class COREUOBJECT_API FField
{
	DECLARE_FIELD(FField, FField, CASTCLASS_None)

public:
	FField(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags);
	virtual ~FField();
	UE_NONCOPYABLE(FField)

	FFieldClass* GetClass() const { return ClassPrivate; }
	uint64 GetCastFlags() const { return ClassPrivate ? ClassPrivate->GetCastFlags() : 0; }
	bool HasAnyCastFlags(const uint64 InCastFlags) const { return (GetCastFlags() & InCastFlags) != 0; }
	bool HasAllCastFlags(const uint64 InCastFlags) const { return (GetCastFlags() & InCastFlags) == InCastFlags; }
	bool IsA(const FFieldClass* FieldType) const { return ClassPrivate && ClassPrivate->IsChildOf(FieldType); }
	template<class T> bool IsA() const { return HasAnyCastFlags(T::StaticClassCastFlagsPrivate()); }

	FFieldVariant GetOwnerVariant() const { return Owner; }
	template<class T> T* GetOwner() const { return Owner.Get<T>(); }
	UObject* GetOwnerUObject() const;
	UClass* GetOwnerClass() const;
	UStruct* GetOwnerStruct() const;
	UField* GetOwnerUField() const;
	UPackage* GetOutermost() const;

	FName GetFName() const { return NamePrivate; }
	FString GetName() const { return NamePrivate.ToString(); }
	void GetName(FString& OutName) const { OutName = NamePrivate.ToString(); }
	FString GetAuthoredName() const { return GetName(); }
	// "/Script/Module.Class:Property" (inner properties: "/Script/Module.Class:Property.Inner").
	FString GetPathName(const UObject* StopOuter = nullptr) const;
	// "IntProperty /Script/Module.Class:Property"
	FString GetFullName() const;

	EObjectFlags GetFlags() const { return FlagsPrivate; }
	void SetFlags(EObjectFlags NewFlags) { FlagsPrivate |= NewFlags; }
	void ClearFlags(EObjectFlags FlagsToClear) { FlagsPrivate &= ~FlagsToClear; }
	bool HasAnyFlags(EObjectFlags FlagsToCheck) const { return (FlagsPrivate & FlagsToCheck) != 0; }
	bool HasAllFlags(EObjectFlags FlagsToCheck) const { return (FlagsPrivate & FlagsToCheck) == FlagsToCheck; }
	bool IsValidLowLevel() const { return ClassPrivate != nullptr; }

	// Fields nested in this one (an array's inner property, a map's key and value).
	virtual void GetInnerFields(TArray<FField*>& OutFields) {}
	virtual FField* GetInnerFieldByName(const FName& InName) { return nullptr; }
	virtual void AddCppProperty(class FProperty* Property);

#if WITH_EDITORONLY_DATA
	const FString& GetMetaData(const TCHAR* Key) const;
	const FString& GetMetaData(const FName& Key) const;
	const FString* FindMetaData(const TCHAR* Key) const;
	const FString* FindMetaData(const FName& Key) const;
	bool HasMetaData(const TCHAR* Key) const { return FindMetaData(Key) != nullptr; }
	bool HasMetaData(const FName& Key) const { return FindMetaData(Key) != nullptr; }
	void SetMetaData(const TCHAR* Key, const TCHAR* InValue);
	void SetMetaData(const FName& Key, const TCHAR* InValue);
	void RemoveMetaData(const TCHAR* Key);
	bool GetBoolMetaData(const TCHAR* Key) const;
	int32 GetIntMetaData(const TCHAR* Key) const;
	float GetFloatMetaData(const TCHAR* Key) const;
	const TMap<FName, FString>* GetMetaDataMap() const { return MetaDataMap.Num() ? &MetaDataMap : nullptr; }
#endif
#if WITH_EDITOR
	// The DisplayName metadata when set, else the name made readable ("bEnabled" -> "Enabled" for bools).
	FText GetDisplayNameText() const;
	FText GetToolTipText(bool bShortTooltip = false) const;
#endif

	FFieldVariant Owner;
	FField* Next = nullptr;
	FName NamePrivate;
	EObjectFlags FlagsPrivate = RF_NoFlags;

protected:
	FFieldClass* ClassPrivate = nullptr;
	// Constructors of derived fields set their own class here; the base constructor has no virtual dispatch yet.
	void SetClass(FFieldClass* InClass) { ClassPrivate = InClass; }

private:
#if WITH_EDITORONLY_DATA
	TMap<FName, FString> MetaDataMap;
#endif
};

// The field cast to T when it is a T (or derived), else null.
template<class T>
T* CastField(FField* Src)
{
	return Src && Src->HasAnyCastFlags(T::StaticClassCastFlagsPrivate()) ? static_cast<T*>(Src) : nullptr;
}

template<class T>
const T* CastField(const FField* Src)
{
	return Src && Src->HasAnyCastFlags(T::StaticClassCastFlagsPrivate()) ? static_cast<const T*>(Src) : nullptr;
}

template<class T>
T* ExactCastField(FField* Src)
{
	return Src && Src->GetClass() == T::StaticClass() ? static_cast<T*>(Src) : nullptr;
}

template<class T>
const T* ExactCastField(const FField* Src)
{
	return Src && Src->GetClass() == T::StaticClass() ? static_cast<const T*>(Src) : nullptr;
}

template<class T>
T* CastFieldChecked(FField* Src)
{
	checkf(!Src || Src->HasAnyCastFlags(T::StaticClassCastFlagsPrivate()), TEXT("CastFieldChecked failed: %s is not a %s"),
		Src ? *Src->GetFullName() : TEXT("None"), *T::StaticClass()->GetName());
	return static_cast<T*>(Src);
}

template<class T>
const T* CastFieldChecked(const FField* Src)
{
	checkf(!Src || Src->HasAnyCastFlags(T::StaticClassCastFlagsPrivate()), TEXT("CastFieldChecked failed: %s is not a %s"),
		Src ? *Src->GetFullName() : TEXT("None"), *T::StaticClass()->GetName());
	return static_cast<const T*>(Src);
}

template<class T>
T* CastFieldCheckedNullAllowed(FField* Src)
{
	return CastFieldChecked<T>(Src);
}

// The name of a field, or "None" when null.
COREUOBJECT_API FString GetNameSafe(const FField* Field);
COREUOBJECT_API FString GetFullNameSafe(const FField* Field);
