// FMapProperty and FScriptMapHelper: TMap members edited through the pair array of their FScriptMap view.

#include "UObject/UnrealType.h"
#include "PropertyTextParsing.h"

using namespace UE::CoreUObject::StandIn::PropertyText;

IMPLEMENT_FIELD(FMapProperty)

namespace
{
	int32 AlignUp(int32 Value, int32 Alignment)
	{
		return (Value + Alignment - 1) / Alignment * Alignment;
	}

	// The layout of TPair<Key, Value>: { Key; Value; } as the compiler lays out that struct.
	FScriptMapLayout ComputeMapLayout(const FProperty* KeyProp, const FProperty* ValueProp)
	{
		FScriptMapLayout Layout;
		const int32 KeyAlignment = KeyProp->GetMinAlignment();
		const int32 ValueAlignment = ValueProp->GetMinAlignment();
		Layout.PairAlignment = FMath::Max(KeyAlignment, ValueAlignment);
		Layout.ValueOffset = AlignUp(KeyProp->GetSize(), ValueAlignment);
		Layout.PairSize = AlignUp(Layout.ValueOffset + ValueProp->GetSize(), Layout.PairAlignment);
		return Layout;
	}
}

/*-----------------------------------------------------------------------------
	FScriptMapHelper.
-----------------------------------------------------------------------------*/

FScriptMapHelper::FScriptMapHelper(const FMapProperty* InProperty, const void* InMap)
	: KeyProp(InProperty->KeyProp)
	, ValueProp(InProperty->ValueProp)
	, Map(static_cast<FScriptMap*>(const_cast<void*>(InMap)))
	, MapLayout(InProperty->MapLayout)
{
}

uint8* FScriptMapHelper::GetPairPtr(int32 Index)
{
	checkf(IsValidIndex(Index), TEXT("Map index %d out of bounds (%d pairs)"), Index, Num());
	return static_cast<uint8*>(Map->Pairs.GetData()) + size_t(Index) * size_t(MapLayout.PairSize);
}

void FScriptMapHelper::DestructPairs(int32 Index, int32 Count)
{
	for (int32 Offset = 0; Offset < Count; ++Offset)
	{
		uint8* Pair = GetPairPtr(Index + Offset);
		KeyProp->DestroyValue(Pair);
		ValueProp->DestroyValue(Pair + MapLayout.ValueOffset);
	}
}

void FScriptMapHelper::EmptyValues(int32 Slack)
{
	DestructPairs(0, Num());
	Map->Pairs.Empty(Slack, MapLayout.PairSize, uint32(MapLayout.PairAlignment));
	Map->InvalidateIndex();
}

int32 FScriptMapHelper::AddUninitializedValue()
{
	const int32 Index = Map->Pairs.Add(1, MapLayout.PairSize, uint32(MapLayout.PairAlignment));
	Map->InvalidateIndex();
	return Index;
}

int32 FScriptMapHelper::AddDefaultValue_Invalid_NeedsRehash()
{
	const int32 Index = AddUninitializedValue();
	uint8* Pair = GetPairPtr(Index);
	KeyProp->InitializeValue(Pair);
	ValueProp->InitializeValue(Pair + MapLayout.ValueOffset);
	return Index;
}

int32 FScriptMapHelper::FindMapIndexWithKey(const void* KeyPtr, int32 IndexHint) const
{
	FScriptMapHelper* MutableThis = const_cast<FScriptMapHelper*>(this);
	for (int32 Index = 0; Index < Num(); ++Index)
	{
		if (KeyProp->Identical(MutableThis->GetPairPtr(Index), KeyPtr))
		{
			return Index;
		}
	}
	return INDEX_NONE;
}

uint8* FScriptMapHelper::FindMapPairPtrWithKey(const void* KeyPtr)
{
	const int32 Index = FindMapIndexWithKey(KeyPtr);
	return Index == INDEX_NONE ? nullptr : GetPairPtr(Index);
}

uint8* FScriptMapHelper::FindValueFromHash(const void* KeyPtr)
{
	uint8* Pair = FindMapPairPtrWithKey(KeyPtr);
	return Pair ? Pair + MapLayout.ValueOffset : nullptr;
}

uint8* FScriptMapHelper::FindOrAdd(const void* KeyPtr)
{
	if (uint8* Value = FindValueFromHash(KeyPtr))
	{
		return Value;
	}
	const int32 Index = AddDefaultValue_Invalid_NeedsRehash();
	uint8* Pair = GetPairPtr(Index);
	KeyProp->CopySingleValue(Pair, KeyPtr);
	Rehash();
	return Pair + MapLayout.ValueOffset;
}

void FScriptMapHelper::AddPair(const void* KeyPtr, const void* ValuePtr)
{
	uint8* Value = FindOrAdd(KeyPtr);
	ValueProp->CopySingleValue(Value, ValuePtr);
}

bool FScriptMapHelper::RemovePair(const void* KeyPtr)
{
	const int32 Index = FindMapIndexWithKey(KeyPtr);
	if (Index == INDEX_NONE)
	{
		return false;
	}
	RemoveAt(Index);
	return true;
}

void FScriptMapHelper::RemoveAt(int32 Index, int32 Count)
{
	check(Count >= 0 && Index >= 0 && Index + Count <= Num());
	DestructPairs(Index, Count);
	Map->Pairs.Remove(Index, Count, MapLayout.PairSize, uint32(MapLayout.PairAlignment));
	Map->InvalidateIndex();
}

void FScriptMapHelper::Rehash()
{
	Map->InvalidateIndex();
}

/*-----------------------------------------------------------------------------
	FMapProperty.
-----------------------------------------------------------------------------*/

FMapProperty::FMapProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags)
	: FProperty(InOwner, InName, InObjectFlags)
{
	SetClass(StaticClass());
	SetElementSize(sizeof(FScriptMap));
}

FMapProperty::~FMapProperty()
{
	delete KeyProp;
	delete ValueProp;
}

void FMapProperty::AddCppProperty(FProperty* Property)
{
	check(Property);
	Property->Owner = this;
	if (!KeyProp)
	{
		ensureAlwaysMsgf(Property->HasAllPropertyFlags(CPF_HasGetValueTypeHash),
			TEXT("Attempting to create Map Property with unhashable key type: %s - Provide a GetTypeHash function!"), *Property->GetName());
		KeyProp = Property;
		return;
	}
	checkf(!ValueProp, TEXT("%s already has a key and a value property"), *GetFullName());
	ValueProp = Property;
	LinkInternal();
}

void FMapProperty::LinkInternal()
{
	if (KeyProp && ValueProp)
	{
		MapLayout = ComputeMapLayout(KeyProp, ValueProp);
		KeyProp->SetOffset_Internal(0);
		ValueProp->SetOffset_Internal(MapLayout.ValueOffset);
	}
}

void FMapProperty::GetInnerFields(TArray<FField*>& OutFields)
{
	for (FProperty* InnerProperty : { KeyProp, ValueProp })
	{
		if (InnerProperty)
		{
			OutFields.Add(InnerProperty);
			InnerProperty->GetInnerFields(OutFields);
		}
	}
}

FField* FMapProperty::GetInnerFieldByName(const FName& InName)
{
	if (KeyProp && KeyProp->GetFName() == InName)
	{
		return KeyProp;
	}
	return ValueProp && ValueProp->GetFName() == InName ? ValueProp : nullptr;
}

FString FMapProperty::GetCPPType(FString* ExtendedTypeText, uint32 CPPExportFlags) const
{
	if (ExtendedTypeText)
	{
		FString KeyExtendedTypeText;
		const FString KeyTypeText = KeyProp->GetCPPType(&KeyExtendedTypeText, CPPExportFlags & ~CPPF_ArgumentOrReturnValue);
		if ((!KeyExtendedTypeText.IsEmpty() && KeyExtendedTypeText.Right(1) == TEXT(">"))
			|| (KeyExtendedTypeText.IsEmpty() && !KeyTypeText.IsEmpty() && KeyTypeText.Right(1) == TEXT(">")))
		{
			KeyExtendedTypeText += TEXT(" ");
		}
		FString ValueExtendedTypeText;
		const FString ValueTypeText = ValueProp->GetCPPType(&ValueExtendedTypeText, CPPExportFlags & ~CPPF_ArgumentOrReturnValue);
		if ((!ValueExtendedTypeText.IsEmpty() && ValueExtendedTypeText.Right(1) == TEXT(">"))
			|| (ValueExtendedTypeText.IsEmpty() && !ValueTypeText.IsEmpty() && ValueTypeText.Right(1) == TEXT(">")))
		{
			ValueExtendedTypeText += TEXT(" ");
		}
		*ExtendedTypeText = FString::Printf(TEXT("<%s%s,%s%s>"), *KeyTypeText, *KeyExtendedTypeText, *ValueTypeText, *ValueExtendedTypeText);
	}
	return TEXT("TMap");
}

FString FMapProperty::GetCPPMacroType(FString& ExtendedTypeText) const
{
	ExtendedTypeText = FString::Printf(TEXT("%s,%s"), *KeyProp->GetCPPType(), *ValueProp->GetCPPType());
	return TEXT("TMAP");
}

bool FMapProperty::SameType(const FProperty* Other) const
{
	const FMapProperty* OtherMap = static_cast<const FMapProperty*>(Other);
	return Super::SameType(Other) && KeyProp && ValueProp && KeyProp->SameType(OtherMap->KeyProp) && ValueProp->SameType(OtherMap->ValueProp);
}

// Maps are identical when they hold the same pairs, in any order.
bool FMapProperty::Identical(const void* A, const void* B, uint32 PortFlags) const
{
	FScriptMapHelper MapHelperA(this, A);
	if (!B)
	{
		return MapHelperA.Num() == 0;
	}
	FScriptMapHelper MapHelperB(this, B);
	if (MapHelperA.Num() != MapHelperB.Num())
	{
		return false;
	}
	for (int32 Index = 0; Index < MapHelperA.Num(); ++Index)
	{
		uint8* PairA = MapHelperA.GetPairPtr(Index);
		const uint8* ValueB = MapHelperB.FindValueFromHash(PairA);
		if (!ValueB || !ValueProp->Identical(PairA + MapLayout.ValueOffset, ValueB, PortFlags))
		{
			return false;
		}
	}
	return true;
}

void FMapProperty::ExportText_Internal(FString& ValueStr, const void* PropertyValueOrContainer, EPropertyPointerType PointerType, const void* DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const
{
	FScriptMapHelper MapHelper(this, PointerToValuePtr(PropertyValueOrContainer, PointerType));
	if (MapHelper.Num() == 0)
	{
		ValueStr += TEXT("()");
		return;
	}

	const bool bExternalEditor = (PortFlags & PPF_ExternalEditor) != 0;
	void* StructDefaults = CastField<FStructProperty>(ValueProp) && !bExternalEditor ? ValueProp->AllocateAndInitializeValue() : nullptr;
	FScriptMapHelper DefaultMapHelper(this, DefaultValue);

	for (int32 Index = 0; Index < MapHelper.Num(); ++Index)
	{
		uint8* PairPtr = MapHelper.GetPairPtr(Index);
		ValueStr += Index == 0 ? TEXT("((") : TEXT(",(");
		KeyProp->ExportText_Internal(ValueStr, PairPtr, EPropertyPointerType::Direct, nullptr, Parent, PortFlags | PPF_Delimited, ExportRootScope);
		ValueStr += TEXT(", ");

		const void* ValueDefault = StructDefaults;
		if (bExternalEditor)
		{
			ValueDefault = PairPtr + MapLayout.ValueOffset;
		}
		else if (!StructDefaults && DefaultValue)
		{
			ValueDefault = DefaultMapHelper.FindValueFromHash(PairPtr);
		}
		ValueProp->ExportText_Internal(ValueStr, PairPtr + MapLayout.ValueOffset, EPropertyPointerType::Direct, ValueDefault, Parent, PortFlags | PPF_Delimited, ExportRootScope);
		ValueStr += TEXT(")");
	}
	ValueStr += TEXT(")");

	if (StructDefaults)
	{
		ValueProp->DestroyAndFreeValue(StructDefaults);
	}
}

const TCHAR* FMapProperty::ImportText_Internal(const TCHAR* Buffer, void* ContainerOrPropertyPtr, EPropertyPointerType PointerType, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const
{
	void* Data = PointerToValuePtr(ContainerOrPropertyPtr, PointerType);
	if (*Buffer++ != TCHAR('('))
	{
		return nullptr;
	}
	FScratchPropertyValue Scratch(this, nullptr);
	FScriptMapHelper MapHelper(this, Scratch.Get());
	SkipWhitespace(Buffer);
	if (*Buffer == TCHAR(')'))
	{
		Scratch.CommitTo(Data);
		return Buffer + 1;
	}

	FScratchPropertyValue Key(KeyProp, nullptr);
	FScratchPropertyValue Value(ValueProp, nullptr);
	for (;;)
	{
		KeyProp->ClearValue(Key.Get());
		ValueProp->ClearValue(Value.Get());
		if (*Buffer++ != TCHAR('('))
		{
			return nullptr;
		}
		SkipWhitespace(Buffer);
		Buffer = KeyProp->ImportText_Internal(Buffer, Key.Get(), EPropertyPointerType::Direct, OwnerObject, PortFlags | PPF_Delimited, ErrorText);
		if (!Buffer)
		{
			return nullptr;
		}
		SkipWhitespace(Buffer);
		if (*Buffer++ != TCHAR(','))
		{
			return nullptr;
		}
		SkipWhitespace(Buffer);
		Buffer = ValueProp->ImportText_Internal(Buffer, Value.Get(), EPropertyPointerType::Direct, OwnerObject, PortFlags | PPF_Delimited, ErrorText);
		if (!Buffer)
		{
			return nullptr;
		}
		SkipWhitespace(Buffer);
		if (*Buffer++ != TCHAR(')'))
		{
			return nullptr;
		}
		// A key that appears twice keeps its first value, as the engine does.
		if (MapHelper.FindMapIndexWithKey(Key.Get()) == INDEX_NONE)
		{
			MapHelper.AddPair(Key.Get(), Value.Get());
		}
		SkipWhitespace(Buffer);
		const TCHAR Separator = *Buffer++;
		if (Separator == TCHAR(')'))
		{
			Scratch.CommitTo(Data);
			return Buffer;
		}
		if (Separator != TCHAR(','))
		{
			return nullptr;
		}
		SkipWhitespace(Buffer);
	}
}

void FMapProperty::VisitObjectReferences(void* Value, TFunctionRef<void(UObject*& Reference)> Visitor) const
{
	for (int32 ArrayIndex = 0; ArrayIndex < ArrayDim; ++ArrayIndex)
	{
		FScriptMapHelper MapHelper(this, static_cast<uint8*>(Value) + ArrayIndex * ElementSize);
		for (int32 Index = 0; Index < MapHelper.Num(); ++Index)
		{
			uint8* Pair = MapHelper.GetPairPtr(Index);
			KeyProp->VisitObjectReferences(Pair, Visitor);
			ValueProp->VisitObjectReferences(Pair + MapLayout.ValueOffset, Visitor);
		}
		// A visitor may have changed keys (garbage references are nulled), so the index is rebuilt.
		if (KeyProp->ContainsObjectReference())
		{
			MapHelper.Rehash();
		}
	}
}

bool FMapProperty::ContainsObjectReference() const
{
	return (KeyProp && KeyProp->ContainsObjectReference()) || (ValueProp && ValueProp->ContainsObjectReference());
}

void FMapProperty::CopyValuesInternal(void* Dest, void const* Src, int32 Count) const
{
	for (int32 ArrayIndex = 0; ArrayIndex < Count; ++ArrayIndex)
	{
		FScriptMapHelper SrcHelper(this, static_cast<const uint8*>(Src) + ArrayIndex * ElementSize);
		FScriptMapHelper DestHelper(this, static_cast<uint8*>(Dest) + ArrayIndex * ElementSize);
		DestHelper.EmptyValues(SrcHelper.Num());
		for (int32 Index = 0; Index < SrcHelper.Num(); ++Index)
		{
			const int32 DestIndex = DestHelper.AddDefaultValue_Invalid_NeedsRehash();
			uint8* SrcPair = SrcHelper.GetPairPtr(Index);
			uint8* DestPair = DestHelper.GetPairPtr(DestIndex);
			KeyProp->CopyCompleteValue_InContainer(DestPair, SrcPair);
			ValueProp->CopyCompleteValue_InContainer(DestPair, SrcPair);
		}
		DestHelper.Rehash();
	}
}

void FMapProperty::ClearValueInternal(void* Data) const
{
	FScriptMapHelper MapHelper(this, Data);
	MapHelper.EmptyValues();
}

void FMapProperty::DestroyValueInternal(void* Dest) const
{
	for (int32 ArrayIndex = 0; ArrayIndex < ArrayDim; ++ArrayIndex)
	{
		void* MapData = static_cast<uint8*>(Dest) + ArrayIndex * ElementSize;
		FScriptMapHelper MapHelper(this, MapData);
		MapHelper.EmptyValues();
		static_cast<FScriptMap*>(MapData)->~FScriptMap();
	}
}

void FMapProperty::InitializeValueInternal(void* Dest) const
{
	for (int32 ArrayIndex = 0; ArrayIndex < ArrayDim; ++ArrayIndex)
	{
		new (static_cast<uint8*>(Dest) + ArrayIndex * ElementSize) FScriptMap();
	}
}
