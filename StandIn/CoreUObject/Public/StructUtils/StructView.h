// FStructView and FConstStructView: a struct type and memory holding a value of it, without ownership.
#pragma once

#include "CoreMinimal.h"
#include "UObject/Class.h"

struct FConstStructView
{
public:
	FConstStructView() = default;
	FConstStructView(const UScriptStruct* InScriptStruct, const uint8* InStructMemory = nullptr)
		: ScriptStruct(InScriptStruct)
		, StructMemory(InStructMemory)
	{
	}

	template<typename T>
	static FConstStructView Make(const T& InStruct)
	{
		return FConstStructView(StaticStruct<T>(), reinterpret_cast<const uint8*>(&InStruct));
	}

	const UScriptStruct* GetScriptStruct() const { return ScriptStruct; }
	const uint8* GetMemory() const { return StructMemory; }
	bool IsValid() const { return StructMemory != nullptr && ScriptStruct != nullptr; }

	template<typename T>
	const T& Get() const
	{
		check(StructMemory && ScriptStruct && ScriptStruct->IsChildOf(StaticStruct<T>()));
		return *reinterpret_cast<const T*>(StructMemory);
	}

	template<typename T>
	const T* GetPtr() const
	{
		return StructMemory && ScriptStruct && ScriptStruct->IsChildOf(StaticStruct<T>()) ? reinterpret_cast<const T*>(StructMemory) : nullptr;
	}

private:
	const UScriptStruct* ScriptStruct = nullptr;
	const uint8* StructMemory = nullptr;
};

struct FStructView
{
public:
	FStructView() = default;
	FStructView(const UScriptStruct* InScriptStruct, uint8* InStructMemory = nullptr)
		: ScriptStruct(InScriptStruct)
		, StructMemory(InStructMemory)
	{
	}

	template<typename T>
	static FStructView Make(T& InStruct)
	{
		return FStructView(StaticStruct<T>(), reinterpret_cast<uint8*>(&InStruct));
	}

	operator FConstStructView() const { return FConstStructView(ScriptStruct, StructMemory); }

	const UScriptStruct* GetScriptStruct() const { return ScriptStruct; }
	uint8* GetMemory() const { return StructMemory; }
	bool IsValid() const { return StructMemory != nullptr && ScriptStruct != nullptr; }

	template<typename T>
	T& Get() const
	{
		check(StructMemory && ScriptStruct && ScriptStruct->IsChildOf(StaticStruct<T>()));
		return *reinterpret_cast<T*>(StructMemory);
	}

	template<typename T>
	T* GetPtr() const
	{
		return StructMemory && ScriptStruct && ScriptStruct->IsChildOf(StaticStruct<T>()) ? reinterpret_cast<T*>(StructMemory) : nullptr;
	}

private:
	const UScriptStruct* ScriptStruct = nullptr;
	uint8* StructMemory = nullptr;
};
