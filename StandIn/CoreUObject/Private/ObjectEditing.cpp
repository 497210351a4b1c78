// Editing objects: Modify and the transaction hook, package dirtying and property change notifications.

#include "UObject/Object.h"
#include "UObject/Class.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"
#include "Misc/ITransaction.h"

ITransaction* GUndo = nullptr;

FCoreUObjectDelegates::FOnObjectModified FCoreUObjectDelegates::OnObjectModified;
FCoreUObjectDelegates::FOnObjectPropertyChanged FCoreUObjectDelegates::OnObjectPropertyChanged;

TMulticastDelegate<void()>& FCoreUObjectDelegates::GetPreGarbageCollectDelegate()
{
	static TMulticastDelegate<void()> Delegate;
	return Delegate;
}

TMulticastDelegate<void()>& FCoreUObjectDelegates::GetPostGarbageCollect()
{
	static TMulticastDelegate<void()> Delegate;
	return Delegate;
}

namespace
{
	// Native type packages ("/Script/...") are never dirtied nor recorded.
	bool IsInScriptPackage(const UObject* Object)
	{
		const UPackage* Package = Object->GetPackage();
		return Package && Package->GetName().StartsWith(TEXT("/Script/"), ESearchCase::CaseSensitive);
	}

	bool SaveToTransactionBuffer(UObject* Object, bool bMarkDirty)
	{
		if (!GUndo || !Object->HasAnyFlags(RF_Transactional))
		{
			return false;
		}
		if (bMarkDirty)
		{
			Object->MarkPackageDirty();
		}
		GUndo->SaveObject(Object);
		return true;
	}
}

bool UObject::Modify(bool bAlwaysMarkDirty)
{
	bool bSavedToTransactionBuffer = false;
	if (!HasAnyFlags(RF_NeedInitialization) && IsValid(this))
	{
		if (!IsInScriptPackage(this))
		{
			bSavedToTransactionBuffer = SaveToTransactionBuffer(this, bAlwaysMarkDirty);
			if (!bSavedToTransactionBuffer && bAlwaysMarkDirty)
			{
				MarkPackageDirty();
			}
		}
		FCoreUObjectDelegates::OnObjectModified.Broadcast(this);
	}
	return bSavedToTransactionBuffer;
}

bool UObject::MarkPackageDirty() const
{
	// Transient objects are never saved, so they never dirty their package.
	if (HasAnyFlags(RF_Transient))
	{
		return true;
	}
	UPackage* Package = GetPackage();
	if (!Package)
	{
		return true;
	}
	if (!Package->IsDirty())
	{
		Package->SetDirtyFlag(true);
	}
	return true;
}

void UObject::PreEditChange(FProperty* PropertyAboutToChange)
{
	Modify();
}

void UObject::PostEditChangeProperty(FPropertyChangedEvent& PropertyChangedEvent)
{
	FCoreUObjectDelegates::OnObjectPropertyChanged.Broadcast(this, PropertyChangedEvent);
}

void UObject::PostEditChange()
{
	FPropertyChangedEvent EmptyPropertyUpdateStruct(nullptr);
	PostEditChangeProperty(EmptyPropertyUpdateStruct);
}

void UObject::PostEditUndo()
{
	if (IsValid(this))
	{
		PostEditChange();
	}
}

bool UObject::CanEditChange(const FProperty* InProperty) const
{
	return InProperty && !InProperty->HasAnyPropertyFlags(CPF_EditConst);
}

/*-----------------------------------------------------------------------------
	FPropertyChangedEvent.
-----------------------------------------------------------------------------*/

FPropertyChangedEvent::FPropertyChangedEvent(FProperty* InProperty, EPropertyChangeType::Type InChangeType, TArrayView<const UObject* const> InTopLevelObjects)
	: Property(InProperty)
	, MemberProperty(InProperty)
	, ChangeType(InChangeType)
	, TopLevelObjects(InTopLevelObjects)
{
}

FName FPropertyChangedEvent::GetPropertyName() const
{
	return Property ? Property->GetFName() : FName();
}

FName FPropertyChangedEvent::GetMemberPropertyName() const
{
	return MemberProperty ? MemberProperty->GetFName() : FName();
}
