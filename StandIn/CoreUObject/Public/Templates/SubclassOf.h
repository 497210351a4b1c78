// TSubclassOf<T>: a class reference restricted to T and its subclasses.
#pragma once

#include "CoreMinimal.h"
#include "UObject/Class.h"
#include "UObject/ObjectPtr.h"

template<class T>
class TSubclassOf
{
public:
	using ElementType = T;

	TSubclassOf() = default;
	TSubclassOf(TYPE_OF_NULLPTR) {}
	TSubclassOf(UClass* From) : Class(From) {}
	template<class U> requires std::is_convertible_v<U*, T*>
	TSubclassOf(const TSubclassOf<U>& Other) : Class(*Other) {}

	TSubclassOf& operator=(UClass* From) { Class = From; return *this; }
	template<class U> requires std::is_convertible_v<U*, T*>
	TSubclassOf& operator=(const TSubclassOf<U>& Other) { Class = *Other; return *this; }

	// The class when it is T or a subclass of T, else null.
	UClass* Get() const
	{
		UClass* Result = Class;
		return Result && Result->IsChildOf(T::StaticClass()) ? Result : nullptr;
	}
	UClass* operator*() const { return Get(); }
	UClass* operator->() const { return Get(); }
	operator UClass*() const { return Get(); }

	T* GetDefaultObject() const
	{
		UClass* Result = Get();
		return Result ? static_cast<T*>(Result->GetDefaultObject()) : nullptr;
	}

	friend uint32 GetTypeHash(const TSubclassOf& SubclassOf) { return GetTypeHash(SubclassOf.Class); }

private:
	template<class U> friend class TSubclassOf;

	TObjectPtr<UClass> Class;
};

static_assert(sizeof(TSubclassOf<UObject>) == sizeof(UClass*), "TSubclassOf must have the raw class pointer's layout");
