// FTextProperty: a member of type FText.
#pragma once

#include "UObject/UnrealType.h"

typedef TProperty<FText, FProperty> FTextProperty_Super;

class COREUOBJECT_API FTextProperty : public FTextProperty_Super
{
	DECLARE_FIELD(FTextProperty, FTextProperty_Super, CASTCLASS_FTextProperty)

public:
	FTextProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags);

	FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override { return TEXT("FText"); }
	bool PassCPPArgsByRef() const override { return true; }
	// Texts are identical when their display strings are equal (case-sensitive) and both are or are not culture invariant.
	bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override;
	static bool Identical_Implementation(const FText& ValueA, const FText& ValueB, uint32 PortFlags);
	// NSLOCTEXT("Namespace", "Key", "Source") for a localized text, INVTEXT("...") for a culture-invariant one, else the
	// string itself (quoted when delimited).
	void ExportText_Internal(FString& ValueStr, const void* PropertyValueOrContainer, EPropertyPointerType PointerType, const void* DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope = nullptr) const override;
	const TCHAR* ImportText_Internal(const TCHAR* Buffer, void* ContainerOrPropertyPtr, EPropertyPointerType PointerType, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const override;
};
