// UMovieGraphValueContainer: one value of a type chosen at run time, as graph members and pins carry them.
#pragma once

#include "CoreMinimal.h"
#include "Graph/MovieGraphCommon.h"
#include "StructUtils/PropertyBag.h"
#include "StructUtils/StructView.h"
#include "UObject/Object.h"

#define UE_API STANDIN_MINIMALAPI_FUNCTION(MOVIERENDERPIPELINECORE_API)

class UEnum;

UCLASS(MinimalAPI, BlueprintType)
class STANDIN_MINIMALAPI_CLASS(MOVIERENDERPIPELINECORE_API) UMovieGraphValueContainer : public UObject
{
	STANDIN_MINIMALAPI_CLASS_BODY(UMovieGraphValueContainer, UObject, MOVIERENDERPIPELINECORE_API)

public:
	// A Float holding 0.
	UE_API UMovieGraphValueContainer();

	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API bool GetValueBool(bool& bOutValue) const;

	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API bool GetValueByte(uint8& OutValue) const;

	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API bool GetValueInt32(int32& OutValue) const;

	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API bool GetValueInt64(int64& OutValue) const;

	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API bool GetValueFloat(float& OutValue) const;

	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API bool GetValueDouble(double& OutValue) const;

	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API bool GetValueName(FName& OutValue) const;

	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API bool GetValueString(FString& OutValue) const;

	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API bool GetValueText(FText& OutValue) const;

	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API bool GetValueEnum(uint8& OutValue, const UEnum* RequestedEnum = nullptr) const;

	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API bool GetValueObject(UObject*& OutValue, const UClass* RequestedClass = nullptr) const;

	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API bool GetValueClass(UClass*& OutValue) const;

	UE_API bool GetValueStruct(FStructView& OutValue, const UScriptStruct* RequestedStruct = nullptr) const;

	// The value as the property's text export writes it.
	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API FString GetValueSerializedString();

	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API bool SetValueBool(const bool bInValue);

	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API bool SetValueByte(const uint8 InValue);

	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API bool SetValueInt32(const int32 InValue);

	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API bool SetValueInt64(const int64 InValue);

	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API bool SetValueFloat(const float InValue);

	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API bool SetValueDouble(const double InValue);

	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API bool SetValueName(const FName InValue);

	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API bool SetValueString(const FString& InValue);

	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API bool SetValueText(const FText& InValue);

	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API bool SetValueEnum(const uint8 InValue, const UEnum* Enum);

	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API bool SetValueObject(UObject* InValue);

	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API bool SetValueClass(UClass* InValue);

	UE_API bool SetValueStruct(FConstStructView InValue);

	// Parses the text as the property's text import does; text it cannot parse changes nothing and answers false.
	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API bool SetValueSerializedString(const FString& NewValue);

	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API EMovieGraphValueType GetValueType() const;

	// Changes the type, resetting the value to the new type's default.
	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API void SetValueType(EMovieGraphValueType ValueType, UObject* InValueTypeObject = nullptr);

	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API const UObject* GetValueTypeObject() const;

	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API void SetValueTypeObject(const UObject* ValueTypeObject);

	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API EMovieGraphContainerType GetValueContainerType() const;

	UFUNCTION(BlueprintCallable, Category = "Movie Graph")
	UE_API void SetValueContainerType(EMovieGraphContainerType ContainerType);

	UE_API TValueOrError<FPropertyBagArrayRef, EPropertyBagResult> GetArrayRef();

	UE_API void SetPropertyName(const FName& InName);
	UE_API FName GetPropertyName() const;

protected:
	// The bag's one property: its name, type, type object and container type.
	const FPropertyBagPropertyDesc* FindValueDesc() const;

	// Lays the bag out again with one property of this type; the value starts as the type's default.
	void RebuildValue(EMovieGraphValueType InValueType, const UObject* InValueTypeObject, EMovieGraphContainerType InContainerType);

	UPROPERTY()
	FName PropertyName;

	UPROPERTY()
	FInstancedPropertyBag Value;
};

#undef UE_API
