// TObjectPtr<T>: the engine's object reference member type; here a thin wrapper with the raw pointer's layout.
#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"

#include <type_traits>

template<typename T>
class TObjectPtr
{
public:
	using ElementType = T;

	TObjectPtr() = default;
	TObjectPtr(TYPE_OF_NULLPTR) {}
	TObjectPtr(const TObjectPtr&) = default;
	TObjectPtr& operator=(const TObjectPtr&) = default;

	template<typename U> requires std::is_convertible_v<U*, T*>
	TObjectPtr(U* Object) : Pointer(Object) {}

	template<typename U> requires std::is_convertible_v<U*, T*>
	TObjectPtr(const TObjectPtr<U>& Other) : Pointer(Other.Get()) {}

	template<typename U> requires std::is_convertible_v<U*, T*>
	TObjectPtr& operator=(U* Object) { Pointer = Object; return *this; }

	template<typename U> requires std::is_convertible_v<U*, T*>
	TObjectPtr& operator=(const TObjectPtr<U>& Other) { Pointer = Other.Get(); return *this; }

	TObjectPtr& operator=(TYPE_OF_NULLPTR) { Pointer = nullptr; return *this; }

	FORCEINLINE T* Get() const { return Pointer; }
	FORCEINLINE operator T*() const { return Pointer; }
	template<typename U> requires (!std::is_same_v<U, T> && std::is_convertible_v<T*, U*>)
	FORCEINLINE explicit operator U*() const { return Pointer; }
	FORCEINLINE T* operator->() const { return Pointer; }
	FORCEINLINE T& operator*() const { return *Pointer; }
	FORCEINLINE explicit operator bool() const { return Pointer != nullptr; }
	FORCEINLINE bool operator!() const { return Pointer == nullptr; }

	bool IsNull() const { return Pointer == nullptr; }
	bool IsResolved() const { return true; }
	// Helpers the engine offers on TObjectPtr without resolving the object.
	FName GetFName() const { return Pointer ? static_cast<const UObject*>(Pointer)->GetFName() : FName(); }
	FString GetName() const { return Pointer ? static_cast<const UObject*>(Pointer)->GetName() : FString(TEXT("None")); }
	FString GetPathName() const { return Pointer ? static_cast<const UObject*>(Pointer)->GetPathName() : FString(TEXT("None")); }
	FString GetFullName() const { return Pointer ? static_cast<const UObject*>(Pointer)->GetFullName() : FString(TEXT("None")); }
	UClass* GetClass() const { return Pointer ? static_cast<const UObject*>(Pointer)->GetClass() : nullptr; }
	UObject* GetOuter() const { return Pointer ? static_cast<const UObject*>(Pointer)->GetOuter() : nullptr; }
	UPackage* GetPackage() const { return Pointer ? static_cast<const UObject*>(Pointer)->GetPackage() : nullptr; }
	bool IsA(const UClass* SomeBase) const { return Pointer && static_cast<const UObject*>(Pointer)->IsA(SomeBase); }
	template<typename U> bool IsA() const { return IsA(U::StaticClass()); }

	template<typename U> bool operator==(const TObjectPtr<U>& Other) const { return Pointer == Other.Get(); }
	template<typename U> bool operator!=(const TObjectPtr<U>& Other) const { return Pointer != Other.Get(); }
	template<typename U> bool operator==(U* Other) const { return Pointer == Other; }
	template<typename U> bool operator!=(U* Other) const { return Pointer != Other; }
	bool operator==(TYPE_OF_NULLPTR) const { return Pointer == nullptr; }
	bool operator!=(TYPE_OF_NULLPTR) const { return Pointer != nullptr; }
	template<typename U> bool operator<(const TObjectPtr<U>& Other) const { return Pointer < Other.Get(); }

	friend FORCEINLINE uint32 GetTypeHash(const TObjectPtr& InObjectPtr) { return GetTypeHash(static_cast<const void*>(InObjectPtr.Pointer)); }

private:
	T* Pointer = nullptr;
};

static_assert(sizeof(TObjectPtr<UObject>) == sizeof(UObject*), "TObjectPtr must have the raw pointer's layout");

template<typename T> struct TIsTObjectPtr { static constexpr bool Value = false; };
template<typename T> struct TIsTObjectPtr<TObjectPtr<T>> { static constexpr bool Value = true; };
template<typename T> inline constexpr bool TIsTObjectPtr_V = TIsTObjectPtr<std::remove_cv_t<T>>::Value;

template<typename T> FORCEINLINE T* ToRawPtr(const TObjectPtr<T>& Ptr) { return Ptr.Get(); }
template<typename T> FORCEINLINE T* ToRawPtr(T* Ptr) { return Ptr; }

// TObjectPtr has the raw pointer's layout, so an array of one is an array of the other.
template<typename T>
FORCEINLINE TArray<T*>& ToRawPtrTArrayUnsafe(TArray<TObjectPtr<T>>& Array) { return reinterpret_cast<TArray<T*>&>(Array); }
template<typename T>
FORCEINLINE const TArray<T*>& ToRawPtrTArrayUnsafe(const TArray<TObjectPtr<T>>& Array) { return reinterpret_cast<const TArray<T*>&>(Array); }
template<typename T>
FORCEINLINE TArray<TObjectPtr<T>>& MutableView(TArray<TObjectPtr<T>>& Array) { return Array; }

template<typename T>
FORCEINLINE TObjectPtr<T> MakeObjectPtrUnsafe(UObject* Object) { return TObjectPtr<T>(static_cast<T*>(Object)); }
