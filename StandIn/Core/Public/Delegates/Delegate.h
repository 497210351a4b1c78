// TDelegate / TMulticastDelegate and the DECLARE_*DELEGATE* macros.
#pragma once

#include "CoreTypes.h"
#include "Containers/Array.h"
#include "Delegates/IDelegateInstance.h"
#include "Templates/SharedPointer.h"
#include "Templates/UnrealTemplate.h"

#include <functional>
#include <type_traits>

/**
 * Extension point for delegates bound to UObjects (CreateUObject, BindUObject, AddUObject, ...): CoreUObject
 * defines this template. It must be constructible from UserClass*, copyable, and offer
 * bool IsAlive() const, const void* GetObject() const, UObject* GetUObject() const and
 * UserClass* Get() const (the object to call, valid while IsAlive()).
 */
template <typename UserClass>
struct TDelegateUObjectBinding;

/** Extension point for lambdas tied to a UObject (CreateWeakLambda, AddWeakLambda): same contract. */
template <typename UserClass>
struct TDelegateWeakObjectBinding;

struct FDefaultDelegateUserPolicy
{
};

namespace UE::Delegates::Private
{
	/** No bound object: static functions and lambdas. */
	struct FNoObjectBinding
	{
		bool IsAlive() const { return true; }
		const void* GetObject() const { return nullptr; }
		UObject* GetUObject() const { return nullptr; }
	};

	/** A raw C++ object; the caller keeps it alive while bound. */
	template <typename UserClass>
	struct TRawBinding
	{
		UserClass* Object;
		explicit TRawBinding(UserClass* InObject) : Object(InObject) {}
		bool IsAlive() const { return true; }
		const void* GetObject() const { return Object; }
		UObject* GetUObject() const { return nullptr; }
		UserClass* Get() const { return Object; }
	};

	/** An object owned by shared pointers; the delegate is safe to run while the object lives. */
	template <typename UserClass, ESPMode Mode>
	struct TSPBinding
	{
		TWeakPtr<UserClass, Mode> Object;
		const void* RawObject;
		explicit TSPBinding(const TSharedRef<UserClass, Mode>& InObject) : Object(InObject), RawObject(&InObject.Get()) {}
		bool IsAlive() const { return Object.IsValid(); }
		const void* GetObject() const { return RawObject; }
		UObject* GetUObject() const { return nullptr; }
		TSharedPtr<UserClass, Mode> Pin() const { return Object.Pin(); }
	};

	template <typename Signature>
	class IBaseDelegateInstance;

	template <typename Ret, typename... ParamTypes>
	class IBaseDelegateInstance<Ret(ParamTypes...)> : public IDelegateInstance
	{
	public:
		virtual Ret Execute(ParamTypes... Params) const = 0;
		virtual IBaseDelegateInstance* Clone() const = 0;
	};

	/** A callable plus the object it is bound to; always lives on the heap, so delegates relocate bitwise. */
	template <typename Signature, typename FunctorType, typename BindingType>
	class TDelegateInstance;

	template <typename Ret, typename... ParamTypes, typename FunctorType, typename BindingType>
	class TDelegateInstance<Ret(ParamTypes...), FunctorType, BindingType> final : public IBaseDelegateInstance<Ret(ParamTypes...)>
	{
	public:
		TDelegateInstance(const BindingType& InBinding, FunctorType&& InFunctor) : Binding(InBinding), Functor(MoveTemp(InFunctor)) {}
		TDelegateInstance(const BindingType& InBinding, const FunctorType& InFunctor) : Binding(InBinding), Functor(InFunctor) {}

		virtual Ret Execute(ParamTypes... Params) const override
		{
			if constexpr (requires { Binding.Pin(); })
			{
				auto Pinned = Binding.Pin();
				checkf(Pinned.IsValid(), TEXT("Executing a delegate whose object is gone"));
				return std::invoke(Functor, Pinned.Get(), Forward<ParamTypes>(Params)...);
			}
			else if constexpr (requires { Binding.Get(); })
			{
				return std::invoke(Functor, Binding.Get(), Forward<ParamTypes>(Params)...);
			}
			else
			{
				return std::invoke(Functor, Forward<ParamTypes>(Params)...);
			}
		}

		virtual IBaseDelegateInstance<Ret(ParamTypes...)>* Clone() const override
		{
			TDelegateInstance* Copy = new TDelegateInstance(Binding, Functor);
			Copy->SetHandle(this->GetHandle());
			return Copy;
		}

		virtual bool IsSafeToExecute() const override { return Binding.IsAlive(); }
		virtual bool HasSameObject(const void* InUserObject) const override { return InUserObject != nullptr && Binding.GetObject() == InUserObject; }
		virtual UObject* GetUObject() const override { return Binding.GetUObject(); }

	private:
		BindingType Binding;
		mutable FunctorType Functor;
	};

	template <typename MethodType, typename... VarTypes>
	auto MakeMethodCaller(MethodType InMethod, VarTypes... Vars)
	{
		return [InMethod, ... Payload = MoveTemp(Vars)](auto* Object, auto&&... Params) -> decltype(auto)
		{
			return std::invoke(InMethod, Object, Forward<decltype(Params)>(Params)..., Payload...);
		};
	}

	template <typename FunctorType, typename... VarTypes>
	auto MakePayloadCaller(FunctorType&& InFunctor, VarTypes... Vars)
	{
		if constexpr (sizeof...(VarTypes) == 0)
		{
			return std::decay_t<FunctorType>(Forward<FunctorType>(InFunctor));
		}
		else
		{
			return [Functor = std::decay_t<FunctorType>(Forward<FunctorType>(InFunctor)), ... Payload = MoveTemp(Vars)](auto&&... Params) mutable -> decltype(auto)
			{
				return std::invoke(Functor, Forward<decltype(Params)>(Params)..., Payload...);
			};
		}
	}

	/** Calls a functor that ignores the bound context object. */
	template <typename FunctorType>
	struct TIgnoreObjectCaller
	{
		FunctorType Functor;
		template <typename ObjectType, typename... ArgTypes>
		decltype(auto) operator()(ObjectType*, ArgTypes&&... Args) { return std::invoke(Functor, Forward<ArgTypes>(Args)...); }
	};
}

template <typename DelegateSignature, typename UserPolicy = FDefaultDelegateUserPolicy>
class TDelegate;

template <typename DelegateSignature, typename UserPolicy = FDefaultDelegateUserPolicy>
class TMulticastDelegate;

template <typename InRetValType, typename... ParamTypes, typename UserPolicy>
class TDelegate<InRetValType(ParamTypes...), UserPolicy>
{
	template <typename, typename>
	friend class TMulticastDelegate;

	using InstanceType = UE::Delegates::Private::IBaseDelegateInstance<InRetValType(ParamTypes...)>;

	template <typename FunctorType, typename BindingType>
	using TInstance = UE::Delegates::Private::TDelegateInstance<InRetValType(ParamTypes...), FunctorType, BindingType>;

public:
	typedef InRetValType RetValType;
	typedef InRetValType TFuncType(ParamTypes...);

	TDelegate() = default;
	TDelegate(TYPE_OF_NULLPTR) {}
	TDelegate(const TDelegate& Other) : Instance(Other.Instance ? Other.Instance->Clone() : nullptr) {}
	TDelegate(TDelegate&& Other) : Instance(Other.Instance) { Other.Instance = nullptr; }
	~TDelegate() { delete Instance; }

	TDelegate& operator=(const TDelegate& Other)
	{
		if (this != &Other)
		{
			InstanceType* NewInstance = Other.Instance ? Other.Instance->Clone() : nullptr;
			delete Instance;
			Instance = NewInstance;
		}
		return *this;
	}

	TDelegate& operator=(TDelegate&& Other)
	{
		if (this != &Other)
		{
			delete Instance;
			Instance = Other.Instance;
			Other.Instance = nullptr;
		}
		return *this;
	}

	// Creating

	template <typename... VarTypes>
	[[nodiscard]] static TDelegate CreateStatic(InRetValType (*InFunc)(ParamTypes..., VarTypes...), std::decay_t<VarTypes>... Vars)
	{
		return CreateFromParts(UE::Delegates::Private::FNoObjectBinding(), UE::Delegates::Private::MakePayloadCaller(InFunc, MoveTemp(Vars)...));
	}

	template <typename FunctorType, typename... VarTypes>
	[[nodiscard]] static TDelegate CreateLambda(FunctorType&& InFunctor, VarTypes&&... Vars)
	{
		return CreateFromParts(UE::Delegates::Private::FNoObjectBinding(), UE::Delegates::Private::MakePayloadCaller(Forward<FunctorType>(InFunctor), std::decay_t<VarTypes>(Forward<VarTypes>(Vars))...));
	}

	template <typename UserClass, typename MethodType, typename... VarTypes>
		requires std::is_member_function_pointer_v<MethodType>
	[[nodiscard]] static TDelegate CreateRaw(UserClass* InUserObject, MethodType InFunc, VarTypes&&... Vars)
	{
		return CreateFromParts(UE::Delegates::Private::TRawBinding<UserClass>(InUserObject), UE::Delegates::Private::MakeMethodCaller(InFunc, std::decay_t<VarTypes>(Forward<VarTypes>(Vars))...));
	}

	template <typename UserClass, ESPMode Mode, typename MethodType, typename... VarTypes>
		requires std::is_member_function_pointer_v<MethodType>
	[[nodiscard]] static TDelegate CreateSP(const TSharedRef<UserClass, Mode>& InUserObjectRef, MethodType InFunc, VarTypes&&... Vars)
	{
		return CreateFromParts(UE::Delegates::Private::TSPBinding<UserClass, Mode>(InUserObjectRef), UE::Delegates::Private::MakeMethodCaller(InFunc, std::decay_t<VarTypes>(Forward<VarTypes>(Vars))...));
	}

	template <typename UserClass, ESPMode Mode, typename MethodType, typename... VarTypes>
		requires std::is_member_function_pointer_v<MethodType>
	[[nodiscard]] static TDelegate CreateSP(const TSharedPtr<UserClass, Mode>& InUserObject, MethodType InFunc, VarTypes&&... Vars)
	{
		return CreateSP(InUserObject.ToSharedRef(), InFunc, Forward<VarTypes>(Vars)...);
	}

	/** Binds to an object that derives from TSharedFromThis. */
	template <typename UserClass, typename MethodType, typename... VarTypes>
		requires(std::is_member_function_pointer_v<MethodType> && requires(UserClass* Object) { Object->AsShared(); })
	[[nodiscard]] static TDelegate CreateSP(UserClass* InUserObject, MethodType InFunc, VarTypes&&... Vars)
	{
		return CreateSP(StaticCastSharedRef<UserClass>(InUserObject->AsShared()), InFunc, Forward<VarTypes>(Vars)...);
	}

	template <typename UserClass, ESPMode Mode, typename FunctorType, typename... VarTypes>
	[[nodiscard]] static TDelegate CreateSPLambda(const TSharedRef<UserClass, Mode>& InUserObjectRef, FunctorType&& InFunctor, VarTypes&&... Vars)
	{
		auto Caller = UE::Delegates::Private::MakePayloadCaller(Forward<FunctorType>(InFunctor), std::decay_t<VarTypes>(Forward<VarTypes>(Vars))...);
		return CreateFromParts(UE::Delegates::Private::TSPBinding<UserClass, Mode>(InUserObjectRef), UE::Delegates::Private::TIgnoreObjectCaller<decltype(Caller)>{ MoveTemp(Caller) });
	}

	template <typename UserClass, typename FunctorType, typename... VarTypes>
		requires requires(UserClass* Object) { Object->AsShared(); }
	[[nodiscard]] static TDelegate CreateSPLambda(UserClass* InUserObject, FunctorType&& InFunctor, VarTypes&&... Vars)
	{
		return CreateSPLambda(StaticCastSharedRef<UserClass>(InUserObject->AsShared()), Forward<FunctorType>(InFunctor), Forward<VarTypes>(Vars)...);
	}

	template <typename UserClass, typename MethodType, typename... VarTypes>
		requires std::is_member_function_pointer_v<MethodType>
	[[nodiscard]] static TDelegate CreateUObject(UserClass* InUserObject, MethodType InFunc, VarTypes&&... Vars)
	{
		return CreateFromParts(TDelegateUObjectBinding<UserClass>(InUserObject), UE::Delegates::Private::MakeMethodCaller(InFunc, std::decay_t<VarTypes>(Forward<VarTypes>(Vars))...));
	}

	template <typename UserClass, typename FunctorType, typename... VarTypes>
	[[nodiscard]] static TDelegate CreateWeakLambda(UserClass* InUserObject, FunctorType&& InFunctor, VarTypes&&... Vars)
	{
		auto Caller = UE::Delegates::Private::MakePayloadCaller(Forward<FunctorType>(InFunctor), std::decay_t<VarTypes>(Forward<VarTypes>(Vars))...);
		return CreateFromParts(TDelegateWeakObjectBinding<UserClass>(InUserObject), UE::Delegates::Private::TIgnoreObjectCaller<decltype(Caller)>{ MoveTemp(Caller) });
	}

	// Binding

	template <typename... ArgTypes>
	void BindStatic(ArgTypes&&... Args) { *this = CreateStatic(Forward<ArgTypes>(Args)...); }
	template <typename... ArgTypes>
	void BindLambda(ArgTypes&&... Args) { *this = CreateLambda(Forward<ArgTypes>(Args)...); }
	template <typename... ArgTypes>
	void BindRaw(ArgTypes&&... Args) { *this = CreateRaw(Forward<ArgTypes>(Args)...); }
	template <typename... ArgTypes>
	void BindSP(ArgTypes&&... Args) { *this = CreateSP(Forward<ArgTypes>(Args)...); }
	template <typename... ArgTypes>
	void BindSPLambda(ArgTypes&&... Args) { *this = CreateSPLambda(Forward<ArgTypes>(Args)...); }
	template <typename... ArgTypes>
	void BindUObject(ArgTypes&&... Args) { *this = CreateUObject(Forward<ArgTypes>(Args)...); }
	template <typename... ArgTypes>
	void BindWeakLambda(ArgTypes&&... Args) { *this = CreateWeakLambda(Forward<ArgTypes>(Args)...); }

	// Querying and executing

	/** Whether a function is bound and its object (if any) is still alive. */
	FORCEINLINE bool IsBound() const { return Instance != nullptr && Instance->IsSafeToExecute(); }
	FORCEINLINE bool IsBoundToObject(const void* InUserObject) const { return Instance != nullptr && Instance->HasSameObject(InUserObject); }
	FORCEINLINE UObject* GetUObject() const { return Instance ? Instance->GetUObject() : nullptr; }
	FORCEINLINE FDelegateHandle GetHandle() const { return Instance ? Instance->GetHandle() : FDelegateHandle(); }

	void Unbind()
	{
		delete Instance;
		Instance = nullptr;
	}

	InRetValType Execute(ParamTypes... Params) const
	{
		checkf(IsBound(), TEXT("Execute called on an unbound delegate"));
		return Instance->Execute(Forward<ParamTypes>(Params)...);
	}

	/** Runs the delegate when bound; returns whether it ran. Only for delegates that return nothing. */
	bool ExecuteIfBound(ParamTypes... Params) const
		requires std::is_void_v<InRetValType>
	{
		if (!IsBound())
		{
			return false;
		}
		Instance->Execute(Forward<ParamTypes>(Params)...);
		return true;
	}

private:
	template <typename BindingType, typename FunctorType>
	static TDelegate CreateFromParts(const BindingType& Binding, FunctorType&& Functor)
	{
		TDelegate Result;
		Result.Instance = new TInstance<std::decay_t<FunctorType>, BindingType>(Binding, Forward<FunctorType>(Functor));
		return Result;
	}

	InstanceType* ReleaseInstance()
	{
		InstanceType* Result = Instance;
		Instance = nullptr;
		return Result;
	}

	InstanceType* Instance = nullptr;
};

/**
 * A list of delegates run together by Broadcast. As in the engine, the bindings run from the most recently added
 * to the first, so bindings added during a broadcast do not run in it; bindings removed during a broadcast stop at once.
 */
template <typename... ParamTypes, typename UserPolicy>
class TMulticastDelegate<void(ParamTypes...), UserPolicy>
{
public:
	typedef TDelegate<void(ParamTypes...), UserPolicy> FDelegate;

	TMulticastDelegate() = default;
	TMulticastDelegate(const TMulticastDelegate& Other) : InvocationList(Other.InvocationList) {}
	TMulticastDelegate& operator=(const TMulticastDelegate& Other)
	{
		if (this != &Other)
		{
			Clear();
			InvocationList.Append(Other.InvocationList);
		}
		return *this;
	}
	~TMulticastDelegate()
	{
		FlushPendingDeletes();
	}

	FDelegateHandle Add(const FDelegate& InNewDelegate)
	{
		return AddDelegate(FDelegate(InNewDelegate));
	}

	FDelegateHandle Add(FDelegate&& InNewDelegate)
	{
		return AddDelegate(MoveTemp(InNewDelegate));
	}

	template <typename... ArgTypes>
	FDelegateHandle AddStatic(ArgTypes&&... Args) { return Add(FDelegate::CreateStatic(Forward<ArgTypes>(Args)...)); }
	template <typename... ArgTypes>
	FDelegateHandle AddLambda(ArgTypes&&... Args) { return Add(FDelegate::CreateLambda(Forward<ArgTypes>(Args)...)); }
	template <typename... ArgTypes>
	FDelegateHandle AddRaw(ArgTypes&&... Args) { return Add(FDelegate::CreateRaw(Forward<ArgTypes>(Args)...)); }
	template <typename... ArgTypes>
	FDelegateHandle AddSP(ArgTypes&&... Args) { return Add(FDelegate::CreateSP(Forward<ArgTypes>(Args)...)); }
	template <typename... ArgTypes>
	FDelegateHandle AddSPLambda(ArgTypes&&... Args) { return Add(FDelegate::CreateSPLambda(Forward<ArgTypes>(Args)...)); }
	template <typename... ArgTypes>
	FDelegateHandle AddUObject(ArgTypes&&... Args) { return Add(FDelegate::CreateUObject(Forward<ArgTypes>(Args)...)); }
	template <typename... ArgTypes>
	FDelegateHandle AddWeakLambda(ArgTypes&&... Args) { return Add(FDelegate::CreateWeakLambda(Forward<ArgTypes>(Args)...)); }

	/** Removes the binding with the handle; returns whether one was found. */
	bool Remove(FDelegateHandle Handle)
	{
		if (!Handle.IsValid())
		{
			return false;
		}
		for (int32 Index = 0; Index < InvocationList.Num(); ++Index)
		{
			if (InvocationList[Index].Instance && InvocationList[Index].GetHandle() == Handle)
			{
				RemoveAtIndex(Index);
				return true;
			}
		}
		return false;
	}

	/** Removes every binding to the object; returns how many were removed. */
	int32 RemoveAll(const void* InUserObject)
	{
		int32 NumRemoved = 0;
		for (int32 Index = InvocationList.Num() - 1; Index >= 0; --Index)
		{
			if (InvocationList[Index].IsBoundToObject(InUserObject))
			{
				RemoveAtIndex(Index);
				++NumRemoved;
			}
		}
		return NumRemoved;
	}

	void Clear()
	{
		for (int32 Index = InvocationList.Num() - 1; Index >= 0; --Index)
		{
			RemoveAtIndex(Index);
		}
	}

	bool IsBound() const
	{
		for (const FDelegate& Delegate : InvocationList)
		{
			if (Delegate.IsBound())
			{
				return true;
			}
		}
		return false;
	}

	bool IsBoundToObject(const void* InUserObject) const
	{
		for (const FDelegate& Delegate : InvocationList)
		{
			if (Delegate.IsBoundToObject(InUserObject))
			{
				return true;
			}
		}
		return false;
	}

	void Broadcast(ParamTypes... Params) const
	{
		TMulticastDelegate* MutableThis = const_cast<TMulticastDelegate*>(this);
		++MutableThis->LockCount;
		for (int32 Index = InvocationList.Num() - 1; Index >= 0; --Index)
		{
			if (Index >= InvocationList.Num())
			{
				continue;
			}
			const FDelegate& Delegate = InvocationList[Index];
			if (Delegate.IsBound())
			{
				Delegate.Instance->Execute(Params...);
			}
		}
		if (--MutableThis->LockCount == 0)
		{
			MutableThis->CompactInvocationList();
		}
	}

private:
	FDelegateHandle AddDelegate(FDelegate&& NewDelegate)
	{
		if (!NewDelegate.Instance)
		{
			return FDelegateHandle();
		}
		FDelegateHandle Handle(FDelegateHandle::GenerateNewHandle);
		NewDelegate.Instance->SetHandle(Handle);
		InvocationList.Add(MoveTemp(NewDelegate));
		return Handle;
	}

	void RemoveAtIndex(int32 Index)
	{
		if (LockCount > 0)
		{
			// The binding may be running right now: keep its callable alive until the broadcast ends.
			if (auto* Released = InvocationList[Index].ReleaseInstance())
			{
				PendingDeletes.Add(Released);
			}
			return;
		}
		InvocationList.RemoveAt(Index);
	}

	void CompactInvocationList()
	{
		InvocationList.RemoveAll([](const FDelegate& Delegate) { return Delegate.Instance == nullptr; });
		FlushPendingDeletes();
	}

	void FlushPendingDeletes()
	{
		for (auto* Instance : PendingDeletes)
		{
			delete Instance;
		}
		PendingDeletes.Empty();
	}

	TArray<FDelegate> InvocationList;
	TArray<UE::Delegates::Private::IBaseDelegateInstance<void(ParamTypes...)>*> PendingDeletes;
	int32 LockCount = 0;
};

#define FUNC_DECLARE_DELEGATE(DelegateName, ReturnType, ...) typedef TDelegate<ReturnType(__VA_ARGS__)> DelegateName;
#define FUNC_DECLARE_MULTICAST_DELEGATE(MulticastDelegateName, ReturnType, ...) typedef TMulticastDelegate<ReturnType(__VA_ARGS__)> MulticastDelegateName;

#define DECLARE_DELEGATE(DelegateName) FUNC_DECLARE_DELEGATE(DelegateName, void)
#define DECLARE_DELEGATE_OneParam(DelegateName, Param1Type) FUNC_DECLARE_DELEGATE(DelegateName, void, Param1Type)
#define DECLARE_DELEGATE_TwoParams(DelegateName, Param1Type, Param2Type) FUNC_DECLARE_DELEGATE(DelegateName, void, Param1Type, Param2Type)
#define DECLARE_DELEGATE_ThreeParams(DelegateName, Param1Type, Param2Type, Param3Type) FUNC_DECLARE_DELEGATE(DelegateName, void, Param1Type, Param2Type, Param3Type)
#define DECLARE_DELEGATE_FourParams(DelegateName, Param1Type, Param2Type, Param3Type, Param4Type) FUNC_DECLARE_DELEGATE(DelegateName, void, Param1Type, Param2Type, Param3Type, Param4Type)
#define DECLARE_DELEGATE_FiveParams(DelegateName, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type) FUNC_DECLARE_DELEGATE(DelegateName, void, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type)

#define DECLARE_DELEGATE_RetVal(ReturnValueType, DelegateName) FUNC_DECLARE_DELEGATE(DelegateName, ReturnValueType)
#define DECLARE_DELEGATE_RetVal_OneParam(ReturnValueType, DelegateName, Param1Type) FUNC_DECLARE_DELEGATE(DelegateName, ReturnValueType, Param1Type)
#define DECLARE_DELEGATE_RetVal_TwoParams(ReturnValueType, DelegateName, Param1Type, Param2Type) FUNC_DECLARE_DELEGATE(DelegateName, ReturnValueType, Param1Type, Param2Type)
#define DECLARE_DELEGATE_RetVal_ThreeParams(ReturnValueType, DelegateName, Param1Type, Param2Type, Param3Type) FUNC_DECLARE_DELEGATE(DelegateName, ReturnValueType, Param1Type, Param2Type, Param3Type)
#define DECLARE_DELEGATE_RetVal_FourParams(ReturnValueType, DelegateName, Param1Type, Param2Type, Param3Type, Param4Type) FUNC_DECLARE_DELEGATE(DelegateName, ReturnValueType, Param1Type, Param2Type, Param3Type, Param4Type)

#define DECLARE_MULTICAST_DELEGATE(DelegateName) FUNC_DECLARE_MULTICAST_DELEGATE(DelegateName, void)
#define DECLARE_MULTICAST_DELEGATE_OneParam(DelegateName, Param1Type) FUNC_DECLARE_MULTICAST_DELEGATE(DelegateName, void, Param1Type)
#define DECLARE_MULTICAST_DELEGATE_TwoParams(DelegateName, Param1Type, Param2Type) FUNC_DECLARE_MULTICAST_DELEGATE(DelegateName, void, Param1Type, Param2Type)
#define DECLARE_MULTICAST_DELEGATE_ThreeParams(DelegateName, Param1Type, Param2Type, Param3Type) FUNC_DECLARE_MULTICAST_DELEGATE(DelegateName, void, Param1Type, Param2Type, Param3Type)
#define DECLARE_MULTICAST_DELEGATE_FourParams(DelegateName, Param1Type, Param2Type, Param3Type, Param4Type) FUNC_DECLARE_MULTICAST_DELEGATE(DelegateName, void, Param1Type, Param2Type, Param3Type, Param4Type)
#define DECLARE_MULTICAST_DELEGATE_FiveParams(DelegateName, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type) FUNC_DECLARE_MULTICAST_DELEGATE(DelegateName, void, Param1Type, Param2Type, Param3Type, Param4Type, Param5Type)

#define DECLARE_TS_MULTICAST_DELEGATE(DelegateName) DECLARE_MULTICAST_DELEGATE(DelegateName)
#define DECLARE_TS_MULTICAST_DELEGATE_OneParam(DelegateName, Param1Type) DECLARE_MULTICAST_DELEGATE_OneParam(DelegateName, Param1Type)
#define DECLARE_TS_MULTICAST_DELEGATE_TwoParams(DelegateName, Param1Type, Param2Type) DECLARE_MULTICAST_DELEGATE_TwoParams(DelegateName, Param1Type, Param2Type)
