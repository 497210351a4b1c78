// UClass: class flags, the class default object and the function map.

#include "UObject/Class.h"
#include "UObject/GCObject.h"
#include "UObject/UnrealType.h"
#include "UObject/TopLevelAssetPath.h"

STANDIN_IMPLEMENT_CLASS(UClass, CLASS_None, "CoreUObject")
{
}

FTopLevelAssetPath UClass::GetClassPathName() const
{
	return GetStructPathName();
}

FName UClass::GetDefaultObjectName() const
{
	return FName(FString(DEFAULT_OBJECT_PREFIX) + GetName());
}

UObject* UClass::GetDefaultObject(bool bCreateIfNeeded) const
{
	if (ClassDefaultObject || !bCreateIfNeeded)
	{
		return ClassDefaultObject;
	}
	// The super class's default object exists before its subclass's, as in the engine.
	if (UClass* SuperClass = GetSuperClass())
	{
		SuperClass->GetDefaultObject();
	}
	if (ClassDefaultObject)
	{
		return ClassDefaultObject;
	}
	FStaticConstructObjectParameters Params(this);
	Params.Outer = GetOuter();
	Params.Name = GetDefaultObjectName();
	Params.SetFlags = RF_Public | RF_ClassDefaultObject | RF_ArchetypeObject;
	UClass* MutableThis = const_cast<UClass*>(this);
	MutableThis->ClassDefaultObject = StaticConstructObject_Internal(Params);
	return ClassDefaultObject;
}

UFunction* UClass::FindFunctionByName(FName InName, EIncludeSuperFlag::Type IncludeSuper) const
{
	for (const UClass* Class = this; Class; Class = Class->GetSuperClass())
	{
		if (UFunction* const* Function = Class->FuncMap.Find(InName))
		{
			return *Function;
		}
		if (IncludeSuper == EIncludeSuperFlag::ExcludeSuper)
		{
			break;
		}
	}
	return nullptr;
}

void UClass::AddFunctionToFunctionMap(UFunction* Function, FName FuncName)
{
	FuncMap.Add(FuncName, Function);
}

void UClass::RemoveFunctionFromFunctionMap(UFunction* Function)
{
	FuncMap.Remove(Function->GetFName());
}

FString UClass::GetPrefixCPPName() const
{
	return FString(GetPrefixCPP()) + GetName();
}

const TCHAR* UClass::GetPrefixCPP() const
{
	bool bIsActorClass = false;
	for (const UClass* Class = this; Class && !bIsActorClass; Class = Class->GetSuperClass())
	{
		bIsActorClass = Class->GetFName() == TEXT("Actor");
	}
	if (HasAnyClassFlags(CLASS_Deprecated))
	{
		return bIsActorClass ? TEXT("ADEPRECATED_") : TEXT("UDEPRECATED_");
	}
	return bIsActorClass ? TEXT("A") : TEXT("U");
}

void UClass::AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector)
{
	UClass* This = static_cast<UClass*>(InThis);
	Collector.AddReferencedObject(This->ClassDefaultObject);
	for (TPair<FName, UFunction*>& Pair : This->FuncMap)
	{
		Collector.AddReferencedObject(Pair.Value);
	}
}
