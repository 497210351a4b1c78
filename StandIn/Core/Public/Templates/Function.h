// TFunction / TUniqueFunction / TFunctionRef: type-erased callables.
#pragma once

#include "CoreTypes.h"
#include "Templates/UnrealTemplate.h"

#include <functional>
#include <type_traits>

namespace UE::Core::Private::Function
{
	/** A callable kept on the heap, so the owning object can be relocated bitwise. */
	template <typename Ret, typename... ParamTypes>
	struct IFunctionCallable
	{
		virtual ~IFunctionCallable() = default;
		virtual Ret Call(ParamTypes... Params) = 0;
		virtual IFunctionCallable* Clone() const = 0;
	};

	template <typename FunctorType, typename Ret, typename... ParamTypes>
	struct TFunctionCallable final : IFunctionCallable<Ret, ParamTypes...>
	{
		template <typename ArgType>
		explicit TFunctionCallable(ArgType&& InFunctor) : Functor(Forward<ArgType>(InFunctor)) {}

		virtual Ret Call(ParamTypes... Params) override
		{
			if constexpr (std::is_void_v<Ret>)
			{
				std::invoke(Functor, Forward<ParamTypes>(Params)...);
			}
			else
			{
				return std::invoke(Functor, Forward<ParamTypes>(Params)...);
			}
		}

		virtual IFunctionCallable<Ret, ParamTypes...>* Clone() const override
		{
			if constexpr (std::is_copy_constructible_v<FunctorType>)
			{
				return new TFunctionCallable(Functor);
			}
			else
			{
				checkf(false, TEXT("Copying a function object that cannot be copied"));
				return nullptr;
			}
		}

		FunctorType Functor;
	};

	template <typename T>
	bool IsNullCallable(const T& Callable)
	{
		if constexpr (std::is_pointer_v<T> || std::is_member_pointer_v<T>)
		{
			return Callable == nullptr;
		}
		else
		{
			return false;
		}
	}

	template <bool bUnique, typename Signature>
	class TFunctionStorage;

	template <bool bUnique, typename Ret, typename... ParamTypes>
	class TFunctionStorage<bUnique, Ret(ParamTypes...)>
	{
	public:
		using CallableType = IFunctionCallable<Ret, ParamTypes...>;

		TFunctionStorage() = default;
		TFunctionStorage(TYPE_OF_NULLPTR) {}

		template <typename FunctorType>
		explicit TFunctionStorage(FunctorType&& Functor)
		{
			using DecayedType = std::decay_t<FunctorType>;
			if (!IsNullCallable(Functor))
			{
				Callable = new TFunctionCallable<DecayedType, Ret, ParamTypes...>(Forward<FunctorType>(Functor));
			}
		}

		TFunctionStorage(const TFunctionStorage& Other) requires(!bUnique) : Callable(Other.Callable ? Other.Callable->Clone() : nullptr) {}
		TFunctionStorage(TFunctionStorage&& Other) : Callable(Other.Callable) { Other.Callable = nullptr; }

		TFunctionStorage& operator=(const TFunctionStorage& Other) requires(!bUnique)
		{
			if (this != &Other)
			{
				CallableType* NewCallable = Other.Callable ? Other.Callable->Clone() : nullptr;
				delete Callable;
				Callable = NewCallable;
			}
			return *this;
		}

		TFunctionStorage& operator=(TFunctionStorage&& Other)
		{
			if (this != &Other)
			{
				delete Callable;
				Callable = Other.Callable;
				Other.Callable = nullptr;
			}
			return *this;
		}

		~TFunctionStorage() { delete Callable; }

		FORCEINLINE bool IsSet() const { return Callable != nullptr; }
		FORCEINLINE explicit operator bool() const { return Callable != nullptr; }

		Ret operator()(ParamTypes... Params) const
		{
			checkf(Callable, TEXT("Attempting to call an unbound TFunction!"));
			return Callable->Call(Forward<ParamTypes>(Params)...);
		}

		void Reset()
		{
			delete Callable;
			Callable = nullptr;
		}

	private:
		CallableType* Callable = nullptr;
	};
}

template <typename FuncType>
class TFunction;

/** A copyable callable; copying copies the callable it holds. */
template <typename Ret, typename... ParamTypes>
class TFunction<Ret(ParamTypes...)> : public UE::Core::Private::Function::TFunctionStorage<false, Ret(ParamTypes...)>
{
	using Super = UE::Core::Private::Function::TFunctionStorage<false, Ret(ParamTypes...)>;

public:
	TFunction() = default;
	TFunction(TYPE_OF_NULLPTR) {}

	template <typename FunctorType>
		requires(!std::is_same_v<std::decay_t<FunctorType>, TFunction> && std::is_invocable_r_v<Ret, std::decay_t<FunctorType>&, ParamTypes...>)
	TFunction(FunctorType&& Functor) : Super(Forward<FunctorType>(Functor))
	{
	}

	TFunction(const TFunction&) = default;
	TFunction(TFunction&&) = default;
	TFunction& operator=(const TFunction&) = default;
	TFunction& operator=(TFunction&&) = default;

	TFunction& operator=(TYPE_OF_NULLPTR)
	{
		this->Reset();
		return *this;
	}

	friend bool operator==(const TFunction& Func, TYPE_OF_NULLPTR) { return !Func; }
};

template <typename FuncType>
class TUniqueFunction;

/** A move-only callable; it may hold callables that cannot be copied. */
template <typename Ret, typename... ParamTypes>
class TUniqueFunction<Ret(ParamTypes...)> : public UE::Core::Private::Function::TFunctionStorage<true, Ret(ParamTypes...)>
{
	using Super = UE::Core::Private::Function::TFunctionStorage<true, Ret(ParamTypes...)>;

public:
	TUniqueFunction() = default;
	TUniqueFunction(TYPE_OF_NULLPTR) {}

	template <typename FunctorType>
		requires(!std::is_same_v<std::decay_t<FunctorType>, TUniqueFunction> && std::is_invocable_r_v<Ret, std::decay_t<FunctorType>&, ParamTypes...>)
	TUniqueFunction(FunctorType&& Functor) : Super(Forward<FunctorType>(Functor))
	{
	}

	TUniqueFunction(TUniqueFunction&&) = default;
	TUniqueFunction& operator=(TUniqueFunction&&) = default;
	TUniqueFunction(const TUniqueFunction&) = delete;
	TUniqueFunction& operator=(const TUniqueFunction&) = delete;

	TUniqueFunction& operator=(TYPE_OF_NULLPTR)
	{
		this->Reset();
		return *this;
	}

	friend bool operator==(const TUniqueFunction& Func, TYPE_OF_NULLPTR) { return !Func; }
};

template <typename FuncType>
class TFunctionRef;

/** A non-owning reference to a callable; the callable must outlive it. */
template <typename Ret, typename... ParamTypes>
class TFunctionRef<Ret(ParamTypes...)>
{
public:
	template <typename FunctorType>
		requires(!std::is_same_v<std::decay_t<FunctorType>, TFunctionRef> && std::is_invocable_r_v<Ret, FunctorType&, ParamTypes...>)
	TFunctionRef(FunctorType&& Functor)
		: Object((void*)&Functor)
		, Invoker(&InvokeFunctor<std::remove_reference_t<FunctorType>>)
	{
	}

	TFunctionRef(const TFunctionRef&) = default;
	TFunctionRef& operator=(const TFunctionRef&) = delete;

	Ret operator()(ParamTypes... Params) const
	{
		return Invoker(Object, Forward<ParamTypes>(Params)...);
	}

private:
	template <typename FunctorType>
	static Ret InvokeFunctor(void* InObject, ParamTypes... Params)
	{
		if constexpr (std::is_void_v<Ret>)
		{
			std::invoke(*(FunctorType*)InObject, Forward<ParamTypes>(Params)...);
		}
		else
		{
			return std::invoke(*(FunctorType*)InObject, Forward<ParamTypes>(Params)...);
		}
	}

	void* Object;
	Ret (*Invoker)(void*, ParamTypes...);
};
