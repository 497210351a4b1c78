// FEnumProperty: a member of an enum type, stored in its underlying numeric type.
#pragma once

#include "UObject/UnrealType.h"

class COREUOBJECT_API FEnumProperty : public FProperty
{
	DECLARE_FIELD(FEnumProperty, FProperty, CASTCLASS_FEnumProperty)

public:
	FEnumProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags);
	FEnumProperty(FFieldVariant InOwner, const FName& InName, EObjectFlags InObjectFlags, int32 InOffset, EPropertyFlags InFlags, UEnum* InEnum);
	~FEnumProperty() override;

	// The numeric property of the underlying type ("UnderlyingType"); owned by the enum property.
	FNumericProperty* GetUnderlyingProperty() const { return UnderlyingProp; }
	UEnum* GetEnum() const { return Enum; }
	void SetEnum(UEnum* InEnum) { Enum = InEnum; }

	void AddCppProperty(FProperty* Property) override;
	void GetInnerFields(TArray<FField*>& OutFields) override;
	int32 GetMinAlignment() const override;
	// The enum's C++ name: "EMovieRenderPipelineState".
	FString GetCPPType(FString* ExtendedTypeText = nullptr, uint32 CPPExportFlags = 0) const override;
	FString GetCPPMacroType(FString& ExtendedTypeText) const override;
	bool SameType(const FProperty* Other) const override;
	bool Identical(const void* A, const void* B, uint32 PortFlags = 0) const override;
	// The short enumerator name; "(INVALID)" for a value outside the enum or its "_MAX" entry.
	void ExportText_Internal(FString& ValueStr, const void* PropertyValueOrContainer, EPropertyPointerType PointerType, const void* DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope = nullptr) const override;
	// Accepts the short or full enumerator name, or a number that is a value of the enum.
	const TCHAR* ImportText_Internal(const TCHAR* Buffer, void* ContainerOrPropertyPtr, EPropertyPointerType PointerType, UObject* OwnerObject, int32 PortFlags, FOutputDevice* ErrorText) const override;

protected:
	void CopyValuesInternal(void* Dest, void const* Src, int32 Count) const override;
	void ClearValueInternal(void* Data) const override;
	void InitializeValueInternal(void* Dest) const override;
	uint32 GetValueTypeHashInternal(const void* Src) const override;

private:
	FNumericProperty* UnderlyingProp = nullptr;
	UEnum* Enum = nullptr;
};
