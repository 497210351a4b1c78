// Creation of the class, struct and enum objects of native types, including the bootstrap of UObject/UClass/UPackage.
//
// A type object is constructed and published (through OutClass/OutStruct) before anything it depends on is asked for,
// so a type reached again while it is being built (UClass is the class of every class, UPackage the class of the
// package that holds UPackage) resolves to the half-built object. Reflection (properties and functions) is registered
// once the outermost registration finishes, and structs are linked after their super structs.

#include "UObject/Class.h"
#include "UObject/Package.h"
#include "UObject/UObjectArray.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"
#include "ObjectConstructionContext.h"

namespace
{
	struct FPendingReflection
	{
		UStruct* Struct = nullptr;
		void (*RegisterClass)(UClass*) = nullptr;
		void (*RegisterStruct)(UScriptStruct*, void*) = nullptr;
		void* Context = nullptr;
	};

	struct FRegistrationState
	{
		int32 Depth = 0;
		bool bProcessing = false;
		TArray<FPendingReflection> PendingReflection;
		TArray<UObject*> PendingObjects;
		TArray<UStruct*> StructsToLink;
	};

	FRegistrationState& GetRegistrationState()
	{
		static FRegistrationState State;
		return State;
	}

	constexpr EObjectFlags NativeTypeObjectFlags = RF_Public | RF_Standalone | RF_Transient | RF_MarkAsNative | RF_MarkAsRootSet;

	// The engine's cast flags of the native classes that have one.
	EClassCastFlags GetOwnCastFlags(const TCHAR* CppName)
	{
		static const struct { const TCHAR* Name; EClassCastFlags Flags; } KnownClasses[] = {
			{ TEXT("UField"), CASTCLASS_UField },
			{ TEXT("UEnum"), CASTCLASS_UEnum },
			{ TEXT("UStruct"), CASTCLASS_UStruct },
			{ TEXT("UScriptStruct"), CASTCLASS_UScriptStruct },
			{ TEXT("UClass"), CASTCLASS_UClass },
			{ TEXT("UFunction"), CASTCLASS_UFunction },
			{ TEXT("UPackage"), CASTCLASS_UPackage },
			{ TEXT("ULevel"), CASTCLASS_ULevel },
			{ TEXT("AActor"), CASTCLASS_AActor },
		};
		for (const auto& Known : KnownClasses)
		{
			if (FCString::Strcmp(Known.Name, CppName) == 0)
			{
				return Known.Flags;
			}
		}
		return CASTCLASS_None;
	}

	// "UMoviePipelineQueue" -> "MoviePipelineQueue", "FIntPoint" -> "IntPoint".
	FName NameWithoutPrefix(const TCHAR* CppName)
	{
		const bool bHasPrefix = CppName[0] != 0 && FChar::IsUpper(CppName[0]) && FChar::IsUpper(CppName[1]);
		return FName(bHasPrefix ? CppName + 1 : CppName);
	}

	UPackage* GetOrCreateScriptPackage(const TCHAR* ModuleName)
	{
		UPackage::StaticClass();
		const FString PackageName = FString(TEXT("/Script/")) + ModuleName;
		UPackage* Package = Cast<UPackage>(UE::CoreUObject::StandIn::FindObjectFast(nullptr, FName(PackageName)));
		if (!Package)
		{
			Package = CreatePackage(*PackageName);
			Package->SetFlags(RF_Public | RF_Standalone | RF_Transient | RF_MarkAsNative);
			Package->AddToRoot();
		}
		return Package;
	}

	void EnterRegistration()
	{
		++GetRegistrationState().Depth;
	}

	bool IsLinked(UStruct* Struct, const TArray<UStruct*>& Pending)
	{
		return !Pending.Contains(Struct);
	}

	void LinkSuperFirst(UStruct* Struct, TArray<UStruct*>& Pending)
	{
		if (IsLinked(Struct, Pending))
		{
			return;
		}
		Pending.Remove(Struct);
		if (UStruct* Super = Struct->GetSuperStruct())
		{
			LinkSuperFirst(Super, Pending);
		}
		if (UClass* Class = Cast<UClass>(Struct))
		{
			if (UClass* SuperClass = Class->GetSuperClass())
			{
				Class->ClassFlags |= SuperClass->ClassFlags & CLASS_Inherit;
				Class->ClassCastFlags = Class->ClassCastFlags | SuperClass->ClassCastFlags;
				if (!Class->ClassWithin)
				{
					Class->ClassWithin = SuperClass->ClassWithin;
				}
			}
		}
		Struct->Link();
	}

	void RegisterPendingObjects(FRegistrationState& State)
	{
		for (UObject* Object : State.PendingObjects)
		{
			GUObjectArray.AllocateUObjectIndex(Object, EInternalObjectFlags::RootSet | EInternalObjectFlags::Native);
			UE::CoreUObject::StandIn::HashObject(Object);
		}
		State.PendingObjects.Reset();
	}

	void ProcessPendingReflection(FRegistrationState& State)
	{
		State.bProcessing = true;
		while (State.PendingReflection.Num() > 0 || State.PendingObjects.Num() > 0)
		{
			RegisterPendingObjects(State);
			while (State.PendingReflection.Num() > 0)
			{
				const FPendingReflection Pending = State.PendingReflection[0];
				State.PendingReflection.RemoveAt(0);
				State.StructsToLink.Add(Pending.Struct);
				if (Pending.RegisterClass)
				{
					Pending.RegisterClass(static_cast<UClass*>(Pending.Struct));
				}
				else if (Pending.RegisterStruct)
				{
					Pending.RegisterStruct(static_cast<UScriptStruct*>(Pending.Struct), Pending.Context);
				}
				RegisterPendingObjects(State);
			}
			while (State.StructsToLink.Num() > 0)
			{
				LinkSuperFirst(State.StructsToLink[0], State.StructsToLink);
			}
		}
		State.bProcessing = false;
	}

	void LeaveRegistration()
	{
		FRegistrationState& State = GetRegistrationState();
		if (--State.Depth == 0 && !State.bProcessing)
		{
			ProcessPendingReflection(State);
		}
	}

	// Constructs a type object (class, struct) in its own memory before its class object may exist.
	template<class TTypeObject>
	TTypeObject* ConstructTypeObject(FName Name)
	{
		void* Memory = FMemory::Malloc(sizeof(TTypeObject), alignof(TTypeObject));
		FMemory::Memzero(Memory, sizeof(TTypeObject));
		FObjectConstructionContext Context;
		Context.Name = Name;
		Context.Flags = NativeTypeObjectFlags;
		Context.bRegisterInObjectArray = false;
		FStandInObjectConstruction::Push(Context);
		TTypeObject* TypeObject = new (Memory) TTypeObject();
		FStandInObjectConstruction::Pop(Context);
		return TypeObject;
	}

	void PublishTypeObject(UObject* TypeObject, UClass* ClassOfTypeObject, const TCHAR* ModuleName)
	{
		FStandInObjectConstruction::SetClass(TypeObject, ClassOfTypeObject);
		FStandInObjectConstruction::SetNameAndOuter(TypeObject, TypeObject->GetFName(), GetOrCreateScriptPackage(ModuleName));
		GetRegistrationState().PendingObjects.Add(TypeObject);
	}
}

namespace UE::CoreUObject::StandIn
{
	void ConstructNativeClass(UClass*& OutClass, const FNativeClassParams& Params)
	{
		EnterRegistration();
		UClass* Class = ConstructTypeObject<UClass>(NameWithoutPrefix(Params.Name));
		OutClass = Class;

		Class->ClassFlags = Params.ClassFlags | CLASS_Native | CLASS_Constructed;
		Class->ClassCastFlags = GetOwnCastFlags(Params.Name);
		Class->ClassConstructor = Params.Construct;
		Class->ClassAddReferencedObjects = Params.AddReferencedObjects;
		Class->SetPropertiesSize(int32(Params.Size));
		Class->SetMinAlignment(int32(Params.Alignment));
		Class->SetSuperStruct(Params.SuperClass ? Params.SuperClass() : nullptr);
		if (!Params.SuperClass)
		{
			Class->ClassWithin = Class;
		}

		PublishTypeObject(Class, UClass::StaticClass(), Params.ModuleName);
		GetRegistrationState().PendingReflection.Add({ Class, Params.RegisterReflection, nullptr, nullptr });
		LeaveRegistration();
	}

	void ConstructNativeScriptStruct(UScriptStruct*& OutStruct, const TCHAR* Name, const TCHAR* ModuleName,
		const FStandInCppStructOps& Ops, void (*RegisterReflection)(UScriptStruct*, void*), void* RegisterContext)
	{
		EnterRegistration();
		UScriptStruct* Struct = ConstructTypeObject<UScriptStruct>(NameWithoutPrefix(Name));
		OutStruct = Struct;
		Struct->SetCppStructOps(Ops);

		PublishTypeObject(Struct, UScriptStruct::StaticClass(), ModuleName);
		GetRegistrationState().PendingReflection.Add({ Struct, nullptr, RegisterReflection, RegisterContext });
		LeaveRegistration();
	}

	UEnum* ConstructNativeEnum(const TCHAR* Name, const TCHAR* ModuleName, const TCHAR* CommaSeparatedNames,
		const TArray<int64>& Values, bool bIsEnumClass)
	{
		EnterRegistration();
		// "ENamespace::Type" is the C++ name of a namespaced enum; the enum object is named after the namespace.
		FString EnumName(Name);
		const bool bIsNamespaced = !bIsEnumClass && EnumName.EndsWith(TEXT("::Type"), ESearchCase::CaseSensitive);
		const FString ObjectName = bIsNamespaced ? EnumName.LeftChop(6) : EnumName;
		const UEnum::ECppForm CppForm = bIsEnumClass ? UEnum::ECppForm::EnumClass : (bIsNamespaced ? UEnum::ECppForm::Namespaced : UEnum::ECppForm::Regular);

		FStaticConstructObjectParameters ConstructParams(UEnum::StaticClass());
		ConstructParams.Outer = GetOrCreateScriptPackage(ModuleName);
		ConstructParams.Name = FName(ObjectName);
		ConstructParams.SetFlags = RF_Public | RF_Standalone | RF_Transient | RF_MarkAsNative;
		ConstructParams.InternalSetFlags = EInternalObjectFlags::RootSet | EInternalObjectFlags::Native;
		UEnum* Enum = static_cast<UEnum*>(StaticConstructObject_Internal(ConstructParams));
		Enum->SetCppType(EnumName);

		TArray<FString> ShortNames;
		FString(CommaSeparatedNames).ParseIntoArray(ShortNames, TEXT(","), true);
		checkf(ShortNames.Num() == Values.Num(), TEXT("Enum %s: %d names for %d values"), Name, ShortNames.Num(), Values.Num());
		TArray<TPair<FName, int64>> EnumNames;
		for (int32 Index = 0; Index < ShortNames.Num(); ++Index)
		{
			const FString ShortName = ShortNames[Index].TrimStartAndEnd();
			const FString FullName = CppForm == UEnum::ECppForm::Regular ? ShortName : ObjectName + TEXT("::") + ShortName;
			EnumNames.Emplace(FName(FullName), Values[Index]);
		}
		Enum->SetEnums(EnumNames, CppForm);
		LeaveRegistration();
		return Enum;
	}
}
