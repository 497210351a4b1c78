// FArrayProperty and FScriptArrayHelper: TArray members edited through their FScriptArray view.

#include "UObject/UnrealType.h"
#include "PropertyTextParsing.h"

using namespace UE::CoreUObject::StandIn::PropertyText;

IMPLEMENT_FIELD(FArrayProperty)

/*-----------------------------------------------------------------------------
	FScriptArrayHelper.
-----------------------------------------------------------------------------*/

FScriptArrayHelper::FScriptArrayHelper(const FProperty* InInnerProperty, const void* InArray, bool bFromInner)
	: InnerProperty(InInnerProperty)
	, Array(static_cast<FScriptArray*>(const_cast<void*>(InArray)))
	, ElementSize(InInnerProperty->GetElementSize())
	, ElementAlignment(uint32(InInnerProperty->GetMinAlignment()))
{
}

FScriptArrayHelper::FScriptArrayHelper(const FArrayProperty* InProperty, const void* InArray)
	: FScriptArrayHelper(InProperty->Inner, InArray, true)
{
}

FScriptArrayHelper FScriptArrayHelper::CreateHelperFormInnerProperty(const FProperty* InInnerProperty, const void* InArray)
{
	return FScriptArrayHelper(InInnerProperty, InArray, true);
}

uint8* FScriptArrayHelper::GetRawPtr(int32 Index)
{
	checkf(Index == 0 || IsValidIndex(Index), TEXT("Array index %d out of bounds (%d elements)"), Index, Num());
	return Array && Array->GetData() ? static_cast<uint8*>(Array->GetData()) + size_t(Index) * size_t(ElementSize) : nullptr;
}

const uint8* FScriptArrayHelper::GetRawPtr(int32 Index) const
{
	return const_cast<FScriptArrayHelper*>(this)->GetRawPtr(Index);
}

void FScriptArrayHelper::ConstructItems(int32 Index, int32 Count)
{
	uint8* Data = static_cast<uint8*>(Array->GetData()) + size_t(Index) * size_t(ElementSize);
	if (InnerProperty->HasAnyPropertyFlags(CPF_ZeroConstructor))
	{
		FMemory::Memzero(Data, size_t(Count) * size_t(ElementSize));
		return;
	}
	for (int32 Offset = 0; Offset < Count; ++Offset)
	{
		InnerProperty->InitializeValue(Data + size_t(Offset) * size_t(ElementSize));
	}
}

void FScriptArrayHelper::DestructItems(int32 Index, int32 Count)
{
	if (Count <= 0 || InnerProperty->HasAnyPropertyFlags(CPF_NoDestructor))
	{
		return;
	}
	uint8* Data = static_cast<uint8*>(Array->GetData()) + size_t(Index) * size_t(ElementSize);
	for (int32 Offset = 0; Offset < Count; ++Offset)
	{
		InnerProperty->DestroyValue(Data + size_t(Offset) * size_t(ElementSize));
	}
}

void FScriptArrayHelper::EmptyValues(int32 Slack)
{
	DestructItems(0, Num());
	Array->Empty(Slack, ElementSize, ElementAlignment);
}

void FScriptArrayHelper::EmptyAndAddValues(int32 Count)
{
	EmptyValues(Count);
	AddValues(Count);
}

void FScriptArrayHelper::EmptyAndAddUninitializedValues(int32 Count)
{
	EmptyValues(Count);
	AddUninitializedValues(Count);
}

bool FScriptArrayHelper::ExpandForIndex(int32 Index)
{
	if (Index < Num())
	{
		return false;
	}
	AddValues(Index - Num() + 1);
	return true;
}

void FScriptArrayHelper::Resize(int32 NewNum)
{
	const int32 OldNum = Num();
	if (NewNum > OldNum)
	{
		AddValues(NewNum - OldNum);
	}
	else if (NewNum < OldNum)
	{
		RemoveValues(NewNum, OldNum - NewNum);
	}
}

int32 FScriptArrayHelper::AddValues(int32 Count)
{
	const int32 OldNum = AddUninitializedValues(Count);
	ConstructItems(OldNum, Count);
	return OldNum;
}

int32 FScriptArrayHelper::AddUninitializedValues(int32 Count)
{
	check(Count >= 0);
	return Array->Add(Count, ElementSize, ElementAlignment);
}

void FScriptArrayHelper::InsertValues(int32 Index, int32 Count)
{
	check(Index >= 0 && Index <= Num() && Count >= 0);
	Array->Insert(Index, Count, ElementSize, ElementAlignment);
	ConstructItems(Index, Count);
}

void FScriptArrayHelper::RemoveValues(int32 Index, int32 Count)
{
	check(Count >= 0 && Index >= 0 && Index + Count <= Num());
	DestructItems(Index, Count);
	Array->Remove(Index, Count, ElementSize, ElementAlignment);
}

void FScriptArrayHelper::ClearValues(int32 Index, int32 Count)
{
	check(Count >= 0 && Index >= 0 && Index + Count <= Num());
	for (int32 Offset = 0; Offset < Count; ++Offset)
	{
		InnerProperty->ClearValue(GetRawPtr(Index + Offset));
	}
}

void FScriptArrayHelper::SwapValues(int32 A, int32 B)
{
	check(IsValidIndex(A) && IsValidIndex(B));
	Array->SwapMemory(A, B, ElementSize);
}

void FScriptArrayHelper::MoveAssign(void* InOtherArray)
{
	FScriptArray* OtherArray = static_cast<FScriptArray*>(InOtherArray);
	if (OtherArray == Array)
	{
		return;
	}
	EmptyValues();
	Array->MoveAssign(*OtherArray, ElementSize, ElementAlignment);
}

/*-----------------------------------------------------------------------------
	FArrayProperty.
-----------------------------------------------------------------------------*/

FArrayProperty::FArrayProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags)
	: FProperty(InOwner, InName, InObjectFlags)
{
	SetClass(StaticClass());
	SetElementSize(sizeof(FScriptArray));
	PropertyFlags |= CPF_ZeroConstructor;
}

FArrayProperty::~FArrayProperty()
{
	delete Inner;
}

void FArrayProperty::AddCppProperty(FProperty* Property)
{
	checkf(!Inner && Property, TEXT("%s takes exactly one inner property"), *GetFullName());
	Inner = Property;
	Inner->Owner = this;
	if (Inner->HasAnyPropertyFlags(CPF_HasGetValueTypeHash))
	{
		PropertyFlags |= CPF_HasGetValueTypeHash;
	}
}

void FArrayProperty::GetInnerFields(TArray<FField*>& OutFields)
{
	if (Inner)
	{
		OutFields.Add(Inner);
		Inner->GetInnerFields(OutFields);
	}
}

FField* FArrayProperty::GetInnerFieldByName(const FName& InName)
{
	return Inner && Inner->GetFName() == InName ? Inner : nullptr;
}

FString FArrayProperty::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	if (ExtendedTypeText)
	{
		FString InnerExtendedTypeText;
		FString InnerTypeText = Inner->GetCPPType(&InnerExtendedTypeText, CPPExportFlags & ~CPPF_ArgumentOrReturnValue);
		// A space keeps the closing brackets of nested templates apart: "TArray<TObjectPtr<UX> >".
		if (!InnerExtendedTypeText.IsEmpty() && InnerExtendedTypeText.Right(1) == TEXT(">"))
		{
			InnerExtendedTypeText += TEXT(" ");
		}
		else if (InnerExtendedTypeText.IsEmpty() && !InnerTypeText.IsEmpty() && InnerTypeText.Right(1) == TEXT(">"))
		{
			InnerTypeText += TEXT(" ");
		}
		*ExtendedTypeText = FString::Printf(TEXT("<%s%s>"), *InnerTypeText, *InnerExtendedTypeText);
	}
	return TEXT("TArray");
}

FString FArrayProperty::GetCPPMacroType(FString& ExtendedTypeText) const
{
	ExtendedTypeText = Inner->GetCPPType();
	return TEXT("TARRAY");
}

bool FArrayProperty::SameType(const FProperty* Other) const
{
	return Super::SameType(Other) && Inner && Inner->SameType(static_cast<const FArrayProperty*>(Other)->Inner);
}

bool FArrayProperty::Identical(const void* A, const void* B, uint32 PortFlags) const
{
	FScriptArrayHelper ArrayHelperA(this, A);
	const int32 ArrayNum = ArrayHelperA.Num();
	if (!B)
	{
		return ArrayNum == 0;
	}
	FScriptArrayHelper ArrayHelperB(this, B);
	if (ArrayNum != ArrayHelperB.Num())
	{
		return false;
	}
	for (int32 Index = 0; Index < ArrayNum; ++Index)
	{
		if (!Inner->Identical(ArrayHelperA.GetRawPtr(Index), ArrayHelperB.GetRawPtr(Index), PortFlags))
		{
			return false;
		}
	}
	return true;
}

void FArrayProperty::ExportText_Internal(FString& ValueStr, const void* PropertyValueOrContainer, EPropertyPointerType PointerType, const void* DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const
{
	FScriptArrayHelper ArrayHelper(this, PointerToValuePtr(PropertyValueOrContainer, PointerType));
	int32 DefaultSize = 0;
	const void* DefaultElements = nullptr;
	if (DefaultValue)
	{
		FScriptArrayHelper DefaultArrayHelper(this, DefaultValue);
		DefaultSize = DefaultArrayHelper.Num();
		DefaultElements = DefaultArrayHelper.GetRawPtr(0);
	}
	ExportTextInnerItem(ValueStr, Inner, ArrayHelper.GetRawPtr(0), ArrayHelper.Num(), DefaultElements, DefaultSize, Parent, PortFlags, ExportRootScope);
}

void FArrayProperty::ExportTextInnerItem(FString& ValueStr, const FProperty* Inner, const void* PropertyValue, int32 NumElements, const void* DefaultValue, int32 DefaultSize, UObject* Parent, int32 PortFlags, UObject* ExportRootScope)
{
	const FStructProperty* StructProperty = CastField<FStructProperty>(Inner);
	const bool bExternalEditor = (PortFlags & PPF_ExternalEditor) != 0;

	// Struct elements are compared against a default-constructed element, as the import starts from one.
	void* StructDefaults = nullptr;
	if (StructProperty && !bExternalEditor)
	{
		StructDefaults = StructProperty->AllocateAndInitializeValue();
	}

	for (int32 Index = 0; Index < NumElements; ++Index)
	{
		ValueStr += Index == 0 ? TEXT("(") : TEXT(",");
		const uint8* PropData = static_cast<const uint8*>(PropertyValue) + size_t(Index) * size_t(Inner->GetElementSize());
		const void* PropDefault = nullptr;
		if (bExternalEditor)
		{
			PropDefault = PropData;
		}
		else if (StructProperty)
		{
			PropDefault = StructDefaults;
		}
		else if (DefaultValue && DefaultSize > Index)
		{
			PropDefault = static_cast<const uint8*>(DefaultValue) + size_t(Index) * size_t(Inner->GetElementSize());
		}
		Inner->ExportTextItem_Direct(ValueStr, PropData, PropDefault, Parent, PortFlags | PPF_Delimited, ExportRootScope);
	}
	if (NumElements > 0)
	{
		ValueStr += TEXT(")");
	}
	if (StructDefaults)
	{
		StructProperty->DestroyAndFreeValue(StructDefaults);
	}
}

const TCHAR* FArrayProperty::ImportText_Internal(const TCHAR* Buffer, void* ContainerOrPropertyPtr, EPropertyPointerType PointerType, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const
{
	void* Data = PointerToValuePtr(ContainerOrPropertyPtr, PointerType);
	FScratchPropertyValue Scratch(this, nullptr);
	FScriptArrayHelper ArrayHelper(this, Scratch.Get());

	// An empty array is exported as nothing, so nothing (or the end of the enclosing value) imports as an empty array.
	if (*Buffer == TCHAR('\0') || *Buffer == TCHAR(')') || *Buffer == TCHAR(','))
	{
		Scratch.CommitTo(Data);
		return Buffer;
	}
	if (*Buffer++ != TCHAR('('))
	{
		return nullptr;
	}
	SkipWhitespace(Buffer);
	if (*Buffer == TCHAR(')'))
	{
		Scratch.CommitTo(Data);
		return Buffer + 1;
	}

	int32 Index = 0;
	ArrayHelper.ExpandForIndex(0);
	while (*Buffer != TCHAR(')'))
	{
		SkipWhitespace(Buffer);
		if (*Buffer != TCHAR(','))
		{
			Buffer = Inner->ImportText_Direct(Buffer, ArrayHelper.GetRawPtr(Index), OwnerObject, PortFlags | PPF_Delimited, ErrorText);
			if (!Buffer)
			{
				return nullptr;
			}
			SkipWhitespace(Buffer);
		}
		if (*Buffer != TCHAR(','))
		{
			break;
		}
		++Buffer;
		++Index;
		ArrayHelper.ExpandForIndex(Index);
	}
	if (*Buffer++ != TCHAR(')'))
	{
		return nullptr;
	}
	Scratch.CommitTo(Data);
	return Buffer;
}

void FArrayProperty::VisitObjectReferences(void* Value, TFunctionRef<void(UObject*& Reference)> Visitor) const
{
	for (int32 ArrayIndex = 0; ArrayIndex < ArrayDim; ++ArrayIndex)
	{
		FScriptArrayHelper ArrayHelper(this, static_cast<uint8*>(Value) + ArrayIndex * ElementSize);
		for (int32 Index = 0; Index < ArrayHelper.Num(); ++Index)
		{
			Inner->VisitObjectReferences(ArrayHelper.GetRawPtr(Index), Visitor);
		}
	}
}

void FArrayProperty::CopyValuesInternal(void* Dest, void const* Src, int32 Count) const
{
	for (int32 ArrayIndex = 0; ArrayIndex < Count; ++ArrayIndex)
	{
		const void* SrcArray = static_cast<const uint8*>(Src) + ArrayIndex * ElementSize;
		void* DestArray = static_cast<uint8*>(Dest) + ArrayIndex * ElementSize;
		FScriptArrayHelper SrcHelper(this, SrcArray);
		FScriptArrayHelper DestHelper(this, DestArray);
		const int32 Num = SrcHelper.Num();
		if (Inner->HasAnyPropertyFlags(CPF_IsPlainOldData))
		{
			DestHelper.EmptyAndAddUninitializedValues(Num);
			FMemory::Memcpy(DestHelper.GetRawPtr(0), SrcHelper.GetRawPtr(0), size_t(Num) * size_t(Inner->GetElementSize()));
			continue;
		}
		DestHelper.EmptyAndAddValues(Num);
		for (int32 Index = 0; Index < Num; ++Index)
		{
			Inner->CopyCompleteValue(DestHelper.GetRawPtr(Index), SrcHelper.GetRawPtr(Index));
		}
	}
}

void FArrayProperty::ClearValueInternal(void* Data) const
{
	FScriptArrayHelper ArrayHelper(this, Data);
	ArrayHelper.EmptyValues();
}

void FArrayProperty::DestroyValueInternal(void* Dest) const
{
	for (int32 ArrayIndex = 0; ArrayIndex < ArrayDim; ++ArrayIndex)
	{
		void* ArrayData = static_cast<uint8*>(Dest) + ArrayIndex * ElementSize;
		FScriptArrayHelper ArrayHelper(this, ArrayData);
		ArrayHelper.EmptyValues();
		static_cast<FScriptArray*>(ArrayData)->~FScriptArray();
	}
}

void FArrayProperty::InitializeValueInternal(void* Dest) const
{
	for (int32 ArrayIndex = 0; ArrayIndex < ArrayDim; ++ArrayIndex)
	{
		new (static_cast<uint8*>(Dest) + ArrayIndex * ElementSize) FScriptArray();
	}
}

uint32 FArrayProperty::GetValueTypeHashInternal(const void* Src) const
{
	FScriptArrayHelper ArrayHelper(this, Src);
	uint32 Hash = 0;
	for (int32 Index = 0; Index < ArrayHelper.Num(); ++Index)
	{
		Hash = HashCombine(Hash, Inner->GetValueTypeHash(ArrayHelper.GetRawPtr(Index)));
	}
	return Hash;
}
