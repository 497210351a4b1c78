#include "ObjectStateSnapshot.h"
#include "HAL/UnrealMemory.h"
#include "UObject/Class.h"
#include "UObject/Object.h"
#include "UObject/UnrealType.h"

namespace UE::UnrealEd::Private
{
	bool IsTransactionalProperty(const FProperty& Property)
	{
		return !Property.HasAnyPropertyFlags(CPF_Transient | CPF_NonTransactional);
	}
}

FObjectStateSnapshot::FObjectStateSnapshot(const UObject& Object)
	: Class(Object.GetClass())
	, Data(nullptr)
{
	for (const FProperty* Property = Class->PropertyLink; Property; Property = Property->PropertyLinkNext)
	{
		if (UE::UnrealEd::Private::IsTransactionalProperty(*Property))
		{
			Properties.Add(Property);
		}
	}
	Data = AllocateValues();
	CopyValues(Data, reinterpret_cast<const uint8*>(&Object));
}

FObjectStateSnapshot::~FObjectStateSnapshot()
{
	FreeValues(Data);
}

void FObjectStateSnapshot::ExchangeWith(UObject& Object)
{
	uint8* ObjectMemory = reinterpret_cast<uint8*>(&Object);
	uint8* PreviousState = AllocateValues();
	CopyValues(PreviousState, ObjectMemory);
	CopyValues(ObjectMemory, Data);
	FreeValues(Data);
	Data = PreviousState;
}

void FObjectStateSnapshot::VisitObjectReferences(TFunctionRef<void(UObject*& Reference)> Visitor)
{
	for (const FProperty* Property : Properties)
	{
		if (!Property->ContainsObjectReference())
		{
			continue;
		}
		for (int32 ArrayIndex = 0; ArrayIndex < Property->ArrayDim; ++ArrayIndex)
		{
			Property->VisitObjectReferences(Property->ContainerPtrToValuePtr<void>(Data, ArrayIndex), Visitor);
		}
	}
}

uint8* FObjectStateSnapshot::AllocateValues() const
{
	const int32 Size = FMath::Max(Class->GetPropertiesSize(), 1);
	uint8* Values = static_cast<uint8*>(FMemory::Malloc(Size, FMath::Max(Class->GetMinAlignment(), 1)));
	FMemory::Memzero(Values, Size);
	for (const FProperty* Property : Properties)
	{
		Property->InitializeValue(Property->ContainerPtrToValuePtr<void>(Values));
	}
	return Values;
}

void FObjectStateSnapshot::FreeValues(uint8* Values) const
{
	if (!Values)
	{
		return;
	}
	for (const FProperty* Property : Properties)
	{
		Property->DestroyValue(Property->ContainerPtrToValuePtr<void>(Values));
	}
	FMemory::Free(Values);
}

void FObjectStateSnapshot::CopyValues(uint8* DestContainer, const uint8* SourceContainer) const
{
	for (const FProperty* Property : Properties)
	{
		Property->CopyCompleteValue(Property->ContainerPtrToValuePtr<void>(DestContainer), Property->ContainerPtrToValuePtr<void>(SourceContainer));
	}
}
