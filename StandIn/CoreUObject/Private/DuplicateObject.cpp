#include "UObject/UObjectGlobals.h"

#include "ObjectReferenceVisiting.h"
#include "UObject/Class.h"
#include "UObject/Package.h"
#include "UObject/StandInGarbageCollectionStress.h"
#include "UObject/UObjectArray.h"
#include "UObject/UObjectHash.h"
#include "UObject/UnrealType.h"

DEFINE_LOG_CATEGORY_STATIC(LogDuplicate, Log, All);

namespace UE::CoreUObject::StandIn::Private
{
	namespace
	{
		// Flags that describe an object's life so far, not what it is; a copy starts without them.
		constexpr EObjectFlags NonDuplicatedFlags = RF_ClassDefaultObject | RF_ArchetypeObject | RF_BeginDestroyed | RF_FinishDestroyed
			| RF_WasLoaded | RF_LoadCompleted | RF_NeedLoad | RF_NeedPostLoad | RF_NeedPostLoadSubobjects | RF_NeedInitialization
			| RF_MirroredGarbage | RF_MarkAsRootSet | RF_TagGarbageTemp | RF_WillBeLoaded;

		struct FDuplicationPair
		{
			const UObject* Source = nullptr;
			UObject* Copy = nullptr;
		};

		bool ShouldCopyProperty(const FProperty* Property, EDuplicateMode::Type DuplicateMode)
		{
			EPropertyFlags SkippedFlags = CPF_Transient | CPF_DuplicateTransient;
			if (DuplicateMode != EDuplicateMode::PIE)
			{
				SkippedFlags |= CPF_NonPIEDuplicateTransient;
			}
			return !Property->HasAnyPropertyFlags(SkippedFlags);
		}

		bool ShouldDuplicateInner(const UObject* Inner, EDuplicateMode::Type DuplicateMode)
		{
			if (!IsValid(Inner) || Inner->HasAnyFlags(RF_DuplicateTransient))
			{
				return false;
			}
			return DuplicateMode == EDuplicateMode::PIE || !Inner->HasAnyFlags(RF_NonPIEDuplicateTransient);
		}

		UObject* MakeCopy(const UObject* Source, UObject* Outer, FName Name, UClass* Class, EObjectFlags FlagMask)
		{
			// A default subobject made by the outer copy's constructor receives the values instead of a second copy.
			if (!Name.IsNone())
			{
				UObject* Existing = UE::CoreUObject::StandIn::FindObjectFast(Outer, Name);
				if (Existing && Existing->GetClass() == Class && Existing->HasAnyFlags(RF_DefaultSubObject) && IsValid(Existing))
				{
					return Existing;
				}
			}
			const EObjectFlags Flags = Source->GetMaskedFlags(FlagMask) & ~NonDuplicatedFlags;
			return NewObject<UObject>(Outer, Class, Name, Flags);
		}

		void CopyPropertyValues(const UObject* Source, UObject* Copy, EDuplicateMode::Type DuplicateMode)
		{
			if (!Copy->GetClass()->IsChildOf(Source->GetClass()))
			{
				return;
			}
			for (FProperty* Property = Source->GetClass()->PropertyLink; Property; Property = Property->PropertyLinkNext)
			{
				if (ShouldCopyProperty(Property, DuplicateMode))
				{
					Property->CopyCompleteValue(Property->ContainerPtrToValuePtr<void>(Copy), Property->ContainerPtrToValuePtr<void>(Source));
				}
			}
		}

		void RemapReferences(UObject* Copy, const TMap<const UObject*, UObject*>& SourceToCopy)
		{
			VisitObjectPropertyReferences(Copy, [&SourceToCopy](UObject*& Reference)
			{
				if (UObject* const* Remapped = SourceToCopy.Find(Reference))
				{
					Reference = *Remapped;
				}
			});
		}
	}
}

using namespace UE::CoreUObject::StandIn;
using namespace UE::CoreUObject::StandIn::Private;

UObject* StaticDuplicateObject(UObject const* SourceObject, UObject* DestOuter, const FName DestName, EObjectFlags FlagMask, UClass* DestClass, EDuplicateMode::Type DuplicateMode, EInternalObjectFlags InternalFlagsMask)
{
	if (!IsValid(SourceObject))
	{
		return nullptr;
	}
	if (!DestOuter)
	{
		DestOuter = GetTransientPackage();
	}
	if (DestOuter == SourceObject || DestOuter->IsIn(SourceObject))
	{
		UE_LOG(LogDuplicate, Error, TEXT("Cannot duplicate %s into an object inside itself (%s)"), *SourceObject->GetPathName(), *DestOuter->GetPathName());
		return nullptr;
	}
	const FGarbageCollectionStressGuard StressGuard;

	UClass* RootClass = DestClass ? DestClass : SourceObject->GetClass();
	UObject* RootCopy = MakeCopy(SourceObject, DestOuter, DestName, RootClass, FlagMask);
	if (!RootCopy)
	{
		return nullptr;
	}

	TMap<const UObject*, UObject*> SourceToCopy;
	TArray<FDuplicationPair> Pairs;
	SourceToCopy.Add(SourceObject, RootCopy);
	Pairs.Add({ SourceObject, RootCopy });

	TArray<UObject*> Inners;
	GetObjectsWithOuter(SourceObject, Inners, true);
	for (UObject* Inner : Inners)
	{
		UObject* const* OuterCopy = SourceToCopy.Find(Inner->GetOuter());
		if (!OuterCopy || !ShouldDuplicateInner(Inner, DuplicateMode))
		{
			continue;
		}
		if (UObject* InnerCopy = MakeCopy(Inner, *OuterCopy, Inner->GetFName(), Inner->GetClass(), FlagMask))
		{
			SourceToCopy.Add(Inner, InnerCopy);
			Pairs.Add({ Inner, InnerCopy });
		}
	}

	for (const FDuplicationPair& Pair : Pairs)
	{
		CopyPropertyValues(Pair.Source, Pair.Copy, DuplicateMode);
	}
	for (const FDuplicationPair& Pair : Pairs)
	{
		RemapReferences(Pair.Copy, SourceToCopy);
	}
	for (const FDuplicationPair& Pair : Pairs)
	{
		Pair.Copy->PostDuplicate(DuplicateMode == EDuplicateMode::PIE);
	}
	return RootCopy;
}
