// TOptional: a value that may be unset.
#pragma once

#include "CoreTypes.h"
#include "Templates/TypeCompatibleBytes.h"
#include "Templates/TypeHash.h"
#include "Templates/UnrealTemplate.h"

#include <new>

struct FNullOpt
{
	explicit constexpr FNullOpt(int) {}
};

inline constexpr FNullOpt NullOpt{0};

template <typename OptionalType>
struct TOptional
{
	using ElementType = OptionalType;

	TOptional() = default;
	TOptional(FNullOpt) {}

	TOptional(const OptionalType& InValue) { new (&Value) OptionalType(InValue); bIsSet = true; }
	TOptional(OptionalType&& InValue) { new (&Value) OptionalType(MoveTempIfPossible(InValue)); bIsSet = true; }

	template <typename... ArgTypes>
	explicit TOptional(EInPlace, ArgTypes&&... Args)
	{
		new (&Value) OptionalType(Forward<ArgTypes>(Args)...);
		bIsSet = true;
	}

	TOptional(const TOptional& Other)
	{
		if (Other.bIsSet)
		{
			new (&Value) OptionalType(*Other.Value.GetTypedPtr());
			bIsSet = true;
		}
	}

	TOptional(TOptional&& Other)
	{
		if (Other.bIsSet)
		{
			new (&Value) OptionalType(MoveTempIfPossible(*Other.Value.GetTypedPtr()));
			bIsSet = true;
		}
	}

	~TOptional() { Reset(); }

	TOptional& operator=(const TOptional& Other)
	{
		if (this != &Other)
		{
			if (Other.bIsSet)
			{
				Emplace(*Other.Value.GetTypedPtr());
			}
			else
			{
				Reset();
			}
		}
		return *this;
	}

	TOptional& operator=(TOptional&& Other)
	{
		if (this != &Other)
		{
			if (Other.bIsSet)
			{
				Emplace(MoveTempIfPossible(*Other.Value.GetTypedPtr()));
			}
			else
			{
				Reset();
			}
		}
		return *this;
	}

	TOptional& operator=(const OptionalType& InValue)
	{
		if (&InValue != Value.GetTypedPtr())
		{
			Emplace(InValue);
		}
		return *this;
	}

	TOptional& operator=(OptionalType&& InValue)
	{
		if (&InValue != Value.GetTypedPtr())
		{
			Emplace(MoveTempIfPossible(InValue));
		}
		return *this;
	}

	void Reset()
	{
		if (bIsSet)
		{
			bIsSet = false;
			Value.GetTypedPtr()->~OptionalType();
		}
	}

	template <typename... ArgsType>
	OptionalType& Emplace(ArgsType&&... Args)
	{
		OptionalType Temp(Forward<ArgsType>(Args)...);
		Reset();
		OptionalType* Result = new (&Value) OptionalType(MoveTemp(Temp));
		bIsSet = true;
		return *Result;
	}

	FORCEINLINE bool IsSet() const { return bIsSet; }
	FORCEINLINE explicit operator bool() const { return bIsSet; }

	OptionalType& GetValue()
	{
		checkf(IsSet(), TEXT("It is an error to call GetValue() on an unset TOptional. Please either check IsSet() or use Get(DefaultValue) instead."));
		return *Value.GetTypedPtr();
	}

	const OptionalType& GetValue() const
	{
		checkf(IsSet(), TEXT("It is an error to call GetValue() on an unset TOptional. Please either check IsSet() or use Get(DefaultValue) instead."));
		return *Value.GetTypedPtr();
	}

	OptionalType* operator->() { return &GetValue(); }
	const OptionalType* operator->() const { return &GetValue(); }
	OptionalType& operator*() { return GetValue(); }
	const OptionalType& operator*() const { return GetValue(); }

	const OptionalType& Get(const OptionalType& DefaultValue) const { return IsSet() ? *Value.GetTypedPtr() : DefaultValue; }

	OptionalType* GetPtrOrNull() { return IsSet() ? Value.GetTypedPtr() : nullptr; }
	const OptionalType* GetPtrOrNull() const { return IsSet() ? Value.GetTypedPtr() : nullptr; }

	friend bool operator==(const TOptional& Lhs, const TOptional& Rhs)
	{
		if (Lhs.bIsSet != Rhs.bIsSet)
		{
			return false;
		}
		return !Lhs.bIsSet || *Lhs.Value.GetTypedPtr() == *Rhs.Value.GetTypedPtr();
	}

	friend bool operator!=(const TOptional& Lhs, const TOptional& Rhs) { return !(Lhs == Rhs); }

private:
	TTypeCompatibleBytes<OptionalType> Value;
	bool bIsSet = false;
};

template <typename OptionalType>
FORCEINLINE TOptional<std::decay_t<OptionalType>> MakeOptional(OptionalType&& Value)
{
	return TOptional<std::decay_t<OptionalType>>(Forward<OptionalType>(Value));
}

template <typename T>
inline uint32 GetTypeHash(const TOptional<T>& Optional)
{
	return Optional.IsSet() ? GetTypeHash(*Optional) : 0;
}
