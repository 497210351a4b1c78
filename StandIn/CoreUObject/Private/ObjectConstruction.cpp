// Object construction: NewObject's StaticConstructObject_Internal, unique names, FObjectInitializer and default subobjects.

#include "UObject/UObjectGlobals.h"
#include "UObject/Object.h"
#include "UObject/Class.h"
#include "UObject/Package.h"
#include "UObject/UObjectArray.h"
#include "UObject/UnrealType.h"
#include "ObjectConstructionContext.h"

DEFINE_LOG_CATEGORY(LogUObjectGlobals);
DEFINE_LOG_CATEGORY(LogObj);

namespace
{
	TArray<FObjectConstructionContext*>& GetConstructionStack()
	{
		static TArray<FObjectConstructionContext*> Stack;
		return Stack;
	}

	// "Name_12" -> "Name": the engine keeps the number of a name apart from its text.
	FString StripNumberSuffix(const FString& Name)
	{
		int32 UnderscoreIndex = INDEX_NONE;
		if (!Name.FindLastChar(TEXT('_'), UnderscoreIndex) || UnderscoreIndex == 0 || UnderscoreIndex == Name.Len() - 1)
		{
			return Name;
		}
		const FString Digits = Name.RightChop(UnderscoreIndex + 1);
		for (int32 Index = 0; Index < Digits.Len(); ++Index)
		{
			if (!FChar::IsDigit(Digits[Index]))
			{
				return Name;
			}
		}
		const bool bHasLeadingZero = Digits.Len() > 1 && Digits[0] == TEXT('0');
		return bHasLeadingZero ? Name : Name.Left(UnderscoreIndex);
	}

	bool CanBeCreatedWithoutOuter(const UClass* Class)
	{
		return Class->IsChildOf(UPackage::StaticClass());
	}

	void CopyPropertiesFromTemplate(UObject* Object, const UObject* Template, bool bCopyTransients)
	{
		if (!Template->GetClass() || !Object->GetClass()->IsChildOf(Template->GetClass()))
		{
			return;
		}
		for (FProperty* Property = Template->GetClass()->PropertyLink; Property; Property = Property->PropertyLinkNext)
		{
			if (bCopyTransients || !Property->HasAnyPropertyFlags(CPF_Transient))
			{
				Property->CopyCompleteValue_InContainer(Object, Template);
			}
		}
	}

	// Destroys an object of the same class that is about to be replaced by a new one at the same address, index and serial number.
	void PrepareInPlaceReplacement(UObject* Existing, FObjectConstructionContext& Context)
	{
		Context.ReusedIndex = Existing->GetUniqueID();
		if (FUObjectItem* Item = GUObjectArray.IndexToObject(Context.ReusedIndex, true))
		{
			Context.ReusedSerialNumber = Item->GetSerialNumber();
			Context.ReusedRefCount = Item->GetRefCount();
			Context.InternalFlags |= Item->GetFlags() & (EInternalObjectFlags::RootSet | EInternalObjectFlags::RefCounted);
		}
		if (!Existing->HasAnyFlags(RF_FinishDestroyed))
		{
			Existing->ConditionalBeginDestroy();
			Existing->SetFlags(RF_FinishDestroyed);
			Existing->FinishDestroy();
		}
		UE::CoreUObject::StandIn::UnhashObject(Existing);
		Existing->~UObject();
	}
}

/*-----------------------------------------------------------------------------
	Construction context.
-----------------------------------------------------------------------------*/

void FStandInObjectConstruction::Push(FObjectConstructionContext& Context)
{
	GetConstructionStack().Add(&Context);
}

void FStandInObjectConstruction::Pop(FObjectConstructionContext& Context)
{
	TArray<FObjectConstructionContext*>& Stack = GetConstructionStack();
	check(Stack.Num() > 0 && Stack.Last() == &Context);
	Stack.Pop();
}

FObjectConstructionContext* FStandInObjectConstruction::Top()
{
	TArray<FObjectConstructionContext*>& Stack = GetConstructionStack();
	return Stack.Num() > 0 ? Stack.Last() : nullptr;
}

FObjectConstructionContext* FStandInObjectConstruction::FindForObject(const UObject* Object)
{
	TArray<FObjectConstructionContext*>& Stack = GetConstructionStack();
	for (int32 Index = Stack.Num() - 1; Index >= 0; --Index)
	{
		if (Stack[Index]->Initializer && Stack[Index]->Initializer->GetObj() == Object)
		{
			return Stack[Index];
		}
	}
	return nullptr;
}

void FStandInObjectConstruction::ApplyContext(UObject* Object, FObjectConstructionContext& Context)
{
	checkf(!Context.bConsumed, TEXT("An object was constructed twice from one construction context"));
	Context.bConsumed = true;
	Object->ObjectFlags = Context.Flags;
	Object->InternalIndex = INDEX_NONE;
	Object->ClassPrivate = Context.Class;
	Object->NamePrivate = Context.Name;
	Object->OuterPrivate = Context.Outer;
	if (Context.bRegisterInObjectArray)
	{
		GUObjectArray.AllocateUObjectIndex(Object, Context.InternalFlags | EInternalObjectFlags::PendingConstruction,
			Context.ReusedIndex, Context.ReusedSerialNumber);
		if (Context.ReusedRefCount > 0)
		{
			GUObjectArray.IndexToObject(Object->InternalIndex, true)->RefCount = Context.ReusedRefCount;
		}
		UE::CoreUObject::StandIn::HashObject(Object);
	}
}

void UObject::InitializeFromConstructionContext()
{
	FObjectConstructionContext* Context = FStandInObjectConstruction::Top();
	checkf(Context && !Context->bConsumed, TEXT("UObjects must be created with NewObject (or CreateDefaultSubobject), not with new or on the stack"));
	FStandInObjectConstruction::ApplyContext(this, *Context);
}

UObject::UObject()
{
	InitializeFromConstructionContext();
}

UObject::UObject(const FObjectInitializer& ObjectInitializer)
{
	InitializeFromConstructionContext();
}

/*-----------------------------------------------------------------------------
	Names.
-----------------------------------------------------------------------------*/

FName MakeUniqueObjectName(UObject* Outer, const UClass* Class, FName BaseName, EUniqueObjectNameOptions Options)
{
	check(Class);
	const FString BaseString = StripNumberSuffix(BaseName.IsNone() ? Class->GetName() : BaseName.ToString());
	UClass* MutableClass = const_cast<UClass*>(Class);
	for (;;)
	{
		const FName TestName(FString::Printf(TEXT("%s_%d"), *BaseString, MutableClass->ClassUnique++));
		if (!UE::CoreUObject::StandIn::FindObjectFast(Outer, TestName))
		{
			return TestName;
		}
	}
}

/*-----------------------------------------------------------------------------
	StaticConstructObject_Internal.
-----------------------------------------------------------------------------*/

UObject* StaticConstructObject_Internal(const FStaticConstructObjectParameters& Params)
{
	UClass* Class = const_cast<UClass*>(Params.Class);
	UObject* Outer = Params.Outer;
	const bool bIsClassDefaultObject = (Params.SetFlags & RF_ClassDefaultObject) != 0;

	// Stand-in choice: the engine treats the three refusals below as fatal errors; they are logged and NewObject returns null.
	if (!Class)
	{
		UE_LOG(LogUObjectGlobals, Error, TEXT("NewObject called with a nullptr class object"));
		return nullptr;
	}
	if (!Class->ClassConstructor)
	{
		UE_LOG(LogUObjectGlobals, Error, TEXT("Class %s has no constructor and cannot be instanced"), *Class->GetName());
		return nullptr;
	}
	if (Class->HasAnyClassFlags(CLASS_Abstract) && !bIsClassDefaultObject)
	{
		UE_LOG(LogUObjectGlobals, Error, TEXT("Class which was marked abstract was trying to be loaded in Outer %s.  It will be nulled out on save. %s %s"),
			*GetPathNameSafe(Outer), *Params.Name.ToString(), *Class->GetName());
		return nullptr;
	}
	if (!Outer && !CanBeCreatedWithoutOuter(Class))
	{
		UE_LOG(LogUObjectGlobals, Error, TEXT("Object is not packaged: %s %s"), *Class->GetName(), *Params.Name.ToString());
		return nullptr;
	}

	FObjectConstructionContext Context;
	Context.Class = Class;
	Context.Outer = Outer;
	Context.Flags = Params.SetFlags;
	Context.InternalFlags = Params.InternalSetFlags & ~EInternalObjectFlags::PendingConstruction;
	Context.Name = Params.Name.IsNone() ? MakeUniqueObjectName(Outer, Class) : Params.Name;

	void* Memory = nullptr;
	if (UObject* Existing = UE::CoreUObject::StandIn::FindObjectFast(Outer, Context.Name))
	{
		// Stand-in choice: the engine aborts here; the new object is refused instead.
		if (Existing->GetClass() != Class)
		{
			UE_LOG(LogUObjectGlobals, Error, TEXT("Cannot replace existing object of a different class.\n\tNew Object: %s %s.%s\n\tExisting Object: %s"),
				*Class->GetName(), Outer ? *Outer->GetPathName() : TEXT(""), *Context.Name.ToString(), *Existing->GetFullName());
			return nullptr;
		}
		if (Existing->HasAnyInternalFlags(EInternalObjectFlags::PendingConstruction))
		{
			UE_LOG(LogUObjectGlobals, Error, TEXT("Cannot replace %s while it is being constructed"), *Existing->GetFullName());
			return nullptr;
		}
		PrepareInPlaceReplacement(Existing, Context);
		Memory = Existing;
	}
	else
	{
		Memory = FMemory::Malloc(Class->GetPropertiesSize(), uint32(Class->GetMinAlignment()));
	}
	FMemory::Memzero(Memory, Class->GetPropertiesSize());

	// Every class derives from UObject first, so the object being built starts at Memory.
	UObject* const ObjectBeingBuilt = static_cast<UObject*>(Memory);
	UObject* const Archetype = Params.Template ? Params.Template : (bIsClassDefaultObject ? nullptr : Class->ClassDefaultObject);
	FObjectInitializer Initializer(ObjectBeingBuilt, Archetype, Params.bCopyTransientsFromClassDefaults, true);
	Context.Initializer = &Initializer;
	FStandInObjectConstruction::Push(Context);
	UObject* Result = Class->ClassConstructor(Memory);
	FStandInObjectConstruction::Pop(Context);
	checkf(Context.bConsumed, TEXT("The constructor of %s did not construct its UObject base"), *Class->GetName());

	if (FUObjectItem* Item = GUObjectArray.ObjectToObjectItem(Result))
	{
		Item->ClearFlags(EInternalObjectFlags::PendingConstruction);
	}
	if (Params.Template)
	{
		CopyPropertiesFromTemplate(Result, Params.Template, Params.bCopyTransientsFromClassDefaults);
	}
	Result->PostInitProperties();
	return Result;
}

namespace UE::CoreUObject::StandIn
{
	UObject* ConstructObjectOfClass(const UClass* RequiredBase, const FStaticConstructObjectParameters& Params)
	{
		// Stand-in choice: the engine checks this with a fatal assertion; the object is refused instead.
		if (Params.Class && !Params.Class->IsChildOf(RequiredBase))
		{
			UE_LOG(LogUObjectGlobals, Error, TEXT("NewObject: %s is not a child class of %s"), *Params.Class->GetName(), *RequiredBase->GetName());
			return nullptr;
		}
		return StaticConstructObject_Internal(Params);
	}
}

/*-----------------------------------------------------------------------------
	FObjectInitializer and default subobjects.
-----------------------------------------------------------------------------*/

FObjectInitializer::FObjectInitializer() = default;

FObjectInitializer::FObjectInitializer(UObject* InObj, UObject* InObjectArchetype, bool bInCopyTransientsFromClassDefaults, bool bInShouldInitializeProps)
	: Obj(InObj)
	, ObjectArchetype(InObjectArchetype)
{
}

FObjectInitializer::~FObjectInitializer() = default;

UClass* FObjectInitializer::GetClass() const
{
	return Obj ? Obj->GetClass() : nullptr;
}

FObjectInitializer& FObjectInitializer::Get()
{
	FObjectConstructionContext* Context = FStandInObjectConstruction::Top();
	checkf(Context && Context->Initializer, TEXT("No object initializer found during construction."));
	return *Context->Initializer;
}

void FObjectInitializer::AssertIfInConstructor(UObject* Outer, const TCHAR* ErrorMessage)
{
	// Stand-in choice: the engine stops with a fatal error; the mistake is logged and construction goes on.
	FObjectConstructionContext* Context = FStandInObjectConstruction::Top();
	if (Context && Context->Initializer && Context->Initializer->GetObj() == Outer && Outer)
	{
		UE_LOG(LogUObjectGlobals, Error, TEXT("%s"), ErrorMessage);
	}
}

const FObjectInitializer& FObjectInitializer::SetDefaultSubobjectClass(FName SubobjectName, UClass* Class) const
{
	SubobjectClassOverrides.Add(SubobjectName, Class);
	return *this;
}

const FObjectInitializer& FObjectInitializer::DoNotCreateDefaultSubobject(FName SubobjectName) const
{
	SubobjectsNotToCreate.AddUnique(SubobjectName);
	return *this;
}

UObject* FObjectInitializer::CreateDefaultSubobject(UObject* Outer, FName SubobjectFName, const UClass* ReturnType, const UClass* ClassToCreateByDefault, bool bIsRequired, bool bIsTransient) const
{
	// Stand-in choice: the engine's fatal errors for bad subobject requests are logged and the subobject is not created.
	if (!Outer || SubobjectFName.IsNone())
	{
		UE_LOG(LogObj, Error, TEXT("Illegal default subobject name: %s"), *SubobjectFName.ToString());
		return nullptr;
	}
	if (!bIsRequired && SubobjectsNotToCreate.Contains(SubobjectFName))
	{
		return nullptr;
	}

	const UClass* ClassToCreate = ClassToCreateByDefault;
	if (UClass* const* Override = SubobjectClassOverrides.Find(SubobjectFName))
	{
		ClassToCreate = *Override;
	}
	if (!ClassToCreate || !ClassToCreate->IsChildOf(ReturnType))
	{
		UE_LOG(LogObj, Error, TEXT("Default subobject %s of %s: class %s is not a %s"), *SubobjectFName.ToString(), *Outer->GetFullName(),
			*GetNameSafe(ClassToCreate), *GetNameSafe(ReturnType));
		return nullptr;
	}
	if (ClassToCreate->HasAnyClassFlags(CLASS_Abstract))
	{
		if (bIsRequired)
		{
			UE_LOG(LogObj, Error, TEXT("Required default subobject %s of %s has the abstract class %s"), *SubobjectFName.ToString(), *Outer->GetFullName(), *ClassToCreate->GetName());
		}
		return nullptr;
	}

	EObjectFlags SubobjectFlags = Outer->GetMaskedFlags(RF_PropagateToSubObjects) | RF_DefaultSubObject;
	if (bIsTransient)
	{
		SubobjectFlags |= RF_Transient;
	}
	if (Outer->IsTemplate())
	{
		SubobjectFlags |= RF_ArchetypeObject;
	}

	FStaticConstructObjectParameters Params(ClassToCreate);
	Params.Outer = Outer;
	Params.Name = SubobjectFName;
	Params.SetFlags = SubobjectFlags;
	return StaticConstructObject_Internal(Params);
}

UObject* UObject::CreateDefaultSubobject(FName SubobjectFName, UClass* ReturnType, UClass* ClassToCreateByDefault, bool bIsRequired, bool bIsTransient)
{
	FObjectConstructionContext* Context = FStandInObjectConstruction::FindForObject(this);
	if (!Context)
	{
		// Stand-in choice: the engine stops with a fatal error when called outside the constructor; null is returned instead.
		UE_LOG(LogObj, Error, TEXT("CreateDefaultSubobject %s of %s was called outside of its constructor"), *SubobjectFName.ToString(), *GetFullName());
		return nullptr;
	}
	return Context->Initializer->CreateDefaultSubobject(this, SubobjectFName, ReturnType, ClassToCreateByDefault, bIsRequired, bIsTransient);
}
