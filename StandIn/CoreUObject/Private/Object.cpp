// UObject: identity, path names, outers, renaming, reflection calls and the class object of UObject itself.

#include "UObject/Object.h"
#include "UObject/Class.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"
#include "UObject/UObjectArray.h"
#include "ObjectConstructionContext.h"

STANDIN_IMPLEMENT_CLASS(UObject, CLASS_None, "CoreUObject")
{
}

UObject::~UObject() = default;

/*-----------------------------------------------------------------------------
	Identity and outers.
-----------------------------------------------------------------------------*/

UPackage* UObject::GetPackage() const
{
	const UObject* Top = this;
	while (Top->GetOuter())
	{
		Top = Top->GetOuter();
	}
	return Cast<UPackage>(const_cast<UObject*>(Top));
}

UObject* UObject::GetOutermostObject() const
{
	UObject* Top = const_cast<UObject*>(this);
	if (!Top->GetOuter())
	{
		return nullptr;
	}
	while (Top->GetOuter() && Top->GetOuter()->GetOuter())
	{
		Top = Top->GetOuter();
	}
	return Top;
}

UWorld* UObject::GetWorld() const
{
	if (UObject* Outer = GetOuter())
	{
		return Outer->GetWorld();
	}
	return nullptr;
}

void UObject::GetPathName(const UObject* StopOuter, FString& ResultString) const
{
	if (this == StopOuter)
	{
		ResultString += TEXT("None");
		return;
	}
	UObject* ObjOuter = GetOuter();
	if (ObjOuter && ObjOuter != StopOuter)
	{
		ObjOuter->GetPathName(StopOuter, ResultString);
		// ':' separates a top-level asset from its subobjects; deeper levels use '.'.
		const bool bOuterIsTopLevelAsset = ObjOuter->GetOuter() && !ObjOuter->GetOuter()->GetOuter();
		ResultString += bOuterIsTopLevelAsset ? TEXT(":") : TEXT(".");
	}
	NamePrivate.AppendString(ResultString);
}

FString UObject::GetPathName(const UObject* StopOuter) const
{
	FString Result;
	GetPathName(StopOuter, Result);
	return Result;
}

FString UObject::GetFullName(const UObject* StopOuter) const
{
	FString Result = GetClass() ? GetClass()->GetName() : FString(TEXT("None"));
	Result += TEXT(" ");
	GetPathName(StopOuter, Result);
	return Result;
}

bool UObject::IsIn(const UObject* SomeOuter) const
{
	for (const UObject* It = GetOuter(); It; It = It->GetOuter())
	{
		if (It == SomeOuter)
		{
			return true;
		}
	}
	return SomeOuter == nullptr;
}

bool UObject::IsInPackage(const UPackage* SomePackage) const
{
	return this != SomePackage && GetPackage() == SomePackage;
}

bool UObject::IsA(const UClass* SomeBase) const
{
	return ClassPrivate && ClassPrivate->IsChildOf(SomeBase);
}

UObject* UObject::GetTypedOuter(UClass* Target) const
{
	for (UObject* It = GetOuter(); It; It = It->GetOuter())
	{
		if (It->IsA(Target))
		{
			return It;
		}
	}
	return nullptr;
}

bool UObject::IsTemplate(EObjectFlags TemplateTypes) const
{
	for (const UObject* It = this; It; It = It->GetOuter())
	{
		if (It->HasAnyFlags(TemplateTypes))
		{
			return true;
		}
	}
	return false;
}

bool UObject::IsDefaultSubobject() const
{
	return HasAnyFlags(RF_DefaultSubObject);
}

UObject* UObject::GetArchetype() const
{
	// Stand-in choice: the archetype of every object is its class's default object (the super class's for a default object).
	if (HasAnyFlags(RF_ClassDefaultObject))
	{
		UClass* SuperClass = GetClass()->GetSuperClass();
		return SuperClass ? SuperClass->GetDefaultObject() : nullptr;
	}
	return GetClass()->GetDefaultObject();
}

bool UObject::IsAsset() const
{
	if (HasAnyFlags(RF_Transient | RF_ClassDefaultObject) || !HasAnyFlags(RF_Public) || !IsValid(this))
	{
		return false;
	}
	UPackage* OuterPackage = Cast<UPackage>(GetOuter());
	return OuterPackage && !OuterPackage->HasAnyFlags(RF_Transient) && OuterPackage != GetTransientPackage();
}

/*-----------------------------------------------------------------------------
	Renaming.
-----------------------------------------------------------------------------*/

void UObject::MoveToNameAndOuter(FName NewName, UObject* NewOuter)
{
	UE::CoreUObject::StandIn::UnhashObject(this);
	FStandInObjectConstruction::SetNameAndOuter(this, NewName, NewOuter);
	UE::CoreUObject::StandIn::HashObject(this);
}

bool UObject::Rename(const TCHAR* InName, UObject* NewOuter, ERenameFlags Flags)
{
	UObject* const TargetOuter = NewOuter ? NewOuter : GetOuter();
	if (InName)
	{
		const FName TestName(InName);
		UObject* Existing = UE::CoreUObject::StandIn::FindObjectFast(TargetOuter, TestName);
		if (TestName.IsNone() || (Existing && Existing != this))
		{
			// Stand-in choice: the engine stops with a fatal error (unless REN_Test); the rename is refused instead.
			if (!(Flags & REN_Test))
			{
				UE_LOG(LogObj, Error, TEXT("Renaming an object (%s) on top of an existing object (%s) is not allowed"),
					*GetFullName(), Existing ? *Existing->GetFullName() : TEXT("None"));
			}
			return false;
		}
	}
	if (Flags & REN_Test)
	{
		return true;
	}

	if (!(Flags & REN_NonTransactional))
	{
		Modify(!(Flags & REN_DoNotDirty));
	}

	UObject* const OldOuter = GetOuter();
	const FName OldName = GetFName();
	const FName NewName = InName ? FName(InName) : MakeUniqueObjectName(TargetOuter, GetClass());
	MoveToNameAndOuter(NewName, TargetOuter);

	if (!(Flags & REN_DoNotDirty))
	{
		MarkPackageDirty();
	}
	PostRename(OldOuter, OldName);
	return true;
}

/*-----------------------------------------------------------------------------
	Destruction hooks (the sequence is run by the garbage collector).
-----------------------------------------------------------------------------*/

void UObject::BeginDestroy()
{
}

void UObject::FinishDestroy()
{
}

/*-----------------------------------------------------------------------------
	Reflection calls.
-----------------------------------------------------------------------------*/

UFunction* UObject::FindFunction(FName InName) const
{
	return GetClass() ? GetClass()->FindFunctionByName(InName) : nullptr;
}

UFunction* UObject::FindFunctionChecked(FName InName) const
{
	UFunction* Result = FindFunction(InName);
	checkf(Result, TEXT("Failed to find function %s in %s"), *InName.ToString(), *GetFullName());
	return Result;
}

void UObject::ProcessEvent(UFunction* Function, void* Parms)
{
	if (!Function)
	{
		return;
	}
	// Stand-in choice: the engine asserts on these mistakes; they are logged and the call is skipped.
	UClass* FunctionClass = Function->GetOuterUClass();
	if (!FunctionClass || !IsA(FunctionClass))
	{
		UE_LOG(LogObj, Error, TEXT("ProcessEvent: %s cannot be called on %s"), *Function->GetFullName(), *GetFullName());
		return;
	}
	if (!Parms && Function->ParmsSize > 0)
	{
		UE_LOG(LogObj, Error, TEXT("ProcessEvent: %s was called without its parameters"), *Function->GetFullName());
		return;
	}
	Function->Invoke(this, Parms);
}

/*-----------------------------------------------------------------------------
	Null-safe names.
-----------------------------------------------------------------------------*/

FString GetNameSafe(const UObject* Object)
{
	return Object ? Object->GetName() : FString(TEXT("None"));
}

FString GetPathNameSafe(const UObject* Object)
{
	return Object ? Object->GetPathName() : FString(TEXT("None"));
}

FString GetFullNameSafe(const UObject* Object)
{
	return Object ? Object->GetFullName() : FString(TEXT("None"));
}
