// TSharedPtr / TSharedRef / TWeakPtr / TSharedFromThis: reference-counted ownership.
#pragma once

#include "CoreTypes.h"
#include "Templates/SharedPointerFwd.h"
#include "Templates/TypeHash.h"
#include "Templates/UnrealTemplate.h"

#include <new>
#include <type_traits>

/** Stand-in choice: reference counts are plain integers in every mode; the editor runs its objects on one thread. */
namespace SharedPointerInternals
{
	class FReferenceControllerBase
	{
	public:
		FReferenceControllerBase() = default;
		FReferenceControllerBase(const FReferenceControllerBase&) = delete;
		FReferenceControllerBase& operator=(const FReferenceControllerBase&) = delete;
		virtual ~FReferenceControllerBase() = default;
		virtual void DestroyObject() = 0;

		int32 SharedReferenceCount = 1;
		int32 WeakReferenceCount = 1;

		void AddSharedReference() { ++SharedReferenceCount; }
		void AddWeakReference() { ++WeakReferenceCount; }

		bool ConditionallyAddSharedReference()
		{
			if (SharedReferenceCount == 0)
			{
				return false;
			}
			++SharedReferenceCount;
			return true;
		}

		void ReleaseSharedReference()
		{
			check(SharedReferenceCount > 0);
			if (--SharedReferenceCount == 0)
			{
				DestroyObject();
				ReleaseWeakReference();
			}
		}

		void ReleaseWeakReference()
		{
			check(WeakReferenceCount > 0);
			if (--WeakReferenceCount == 0)
			{
				delete this;
			}
		}
	};

	template <typename ObjectType, typename DeleterType>
	class TReferenceControllerWithDeleter final : public FReferenceControllerBase
	{
	public:
		TReferenceControllerWithDeleter(ObjectType* InObject, DeleterType&& InDeleter) : Object(InObject), Deleter(MoveTemp(InDeleter)) {}
		virtual void DestroyObject() override { Deleter(Object); }

	private:
		ObjectType* Object;
		DeleterType Deleter;
	};

	template <typename ObjectType>
	class TIntrusiveReferenceController final : public FReferenceControllerBase
	{
	public:
		template <typename... ArgTypes>
		explicit TIntrusiveReferenceController(ArgTypes&&... Args)
		{
			new ((void*)&Storage) ObjectType(Forward<ArgTypes>(Args)...);
		}

		ObjectType* GetObjectPtr() const { return (ObjectType*)&Storage; }
		virtual void DestroyObject() override { GetObjectPtr()->~ObjectType(); }

	private:
		alignas(ObjectType) mutable uint8 Storage[sizeof(ObjectType)];
	};

	template <typename ObjectType>
	struct DefaultDeleter
	{
		void operator()(ObjectType* Object) const { delete Object; }
	};

	/** Holds one shared reference to a controller. */
	class FSharedReferencer
	{
	public:
		FSharedReferencer() = default;
		explicit FSharedReferencer(FReferenceControllerBase* InController) : Controller(InController) {}
		FSharedReferencer(const FSharedReferencer& Other) : Controller(Other.Controller)
		{
			if (Controller)
			{
				Controller->AddSharedReference();
			}
		}
		FSharedReferencer(FSharedReferencer&& Other) : Controller(Other.Controller) { Other.Controller = nullptr; }
		~FSharedReferencer()
		{
			if (Controller)
			{
				Controller->ReleaseSharedReference();
			}
		}

		FSharedReferencer& operator=(const FSharedReferencer& Other)
		{
			FReferenceControllerBase* NewController = Other.Controller;
			if (NewController != Controller)
			{
				if (NewController)
				{
					NewController->AddSharedReference();
				}
				if (Controller)
				{
					Controller->ReleaseSharedReference();
				}
				Controller = NewController;
			}
			return *this;
		}

		FSharedReferencer& operator=(FSharedReferencer&& Other)
		{
			if (this != &Other)
			{
				FReferenceControllerBase* OldController = Controller;
				Controller = Other.Controller;
				Other.Controller = nullptr;
				if (OldController)
				{
					OldController->ReleaseSharedReference();
				}
			}
			return *this;
		}

		/** Takes a shared reference from a weak one, if the object is still alive. */
		static FSharedReferencer FromWeak(FReferenceControllerBase* InController)
		{
			FSharedReferencer Result;
			if (InController && InController->ConditionallyAddSharedReference())
			{
				Result.Controller = InController;
			}
			return Result;
		}

		bool IsValid() const { return Controller != nullptr; }
		int32 GetSharedReferenceCount() const { return Controller ? Controller->SharedReferenceCount : 0; }
		bool IsUnique() const { return GetSharedReferenceCount() == 1; }
		FReferenceControllerBase* GetController() const { return Controller; }

	private:
		FReferenceControllerBase* Controller = nullptr;
	};

	/** Holds one weak reference to a controller. */
	class FWeakReferencer
	{
	public:
		FWeakReferencer() = default;
		FWeakReferencer(const FWeakReferencer& Other) { Assign(Other.Controller); }
		FWeakReferencer(FWeakReferencer&& Other) : Controller(Other.Controller) { Other.Controller = nullptr; }
		explicit FWeakReferencer(const FSharedReferencer& Shared) { Assign(Shared.GetController()); }
		~FWeakReferencer()
		{
			if (Controller)
			{
				Controller->ReleaseWeakReference();
			}
		}

		FWeakReferencer& operator=(const FWeakReferencer& Other)
		{
			Assign(Other.Controller);
			return *this;
		}

		FWeakReferencer& operator=(FWeakReferencer&& Other)
		{
			if (this != &Other)
			{
				FReferenceControllerBase* OldController = Controller;
				Controller = Other.Controller;
				Other.Controller = nullptr;
				if (OldController)
				{
					OldController->ReleaseWeakReference();
				}
			}
			return *this;
		}

		FWeakReferencer& operator=(const FSharedReferencer& Shared)
		{
			Assign(Shared.GetController());
			return *this;
		}

		bool IsValid() const { return Controller && Controller->SharedReferenceCount > 0; }
		FReferenceControllerBase* GetController() const { return Controller; }

	private:
		void Assign(FReferenceControllerBase* NewController)
		{
			if (NewController != Controller)
			{
				if (NewController)
				{
					NewController->AddWeakReference();
				}
				if (Controller)
				{
					Controller->ReleaseWeakReference();
				}
				Controller = NewController;
			}
		}

		FReferenceControllerBase* Controller = nullptr;
	};

	struct FStaticCastTag {};
	struct FConstCastTag {};
	struct FNullTag {};

	template <typename ObjectType, ESPMode Mode, typename PointeeType>
	void EnableSharedFromThis(const TSharedFromThis<ObjectType, Mode>* Base, const FSharedReferencer& Referencer, PointeeType* Object);

	inline void EnableSharedFromThis(const void*, const FSharedReferencer&, const void*) {}
}

/** Wraps a raw pointer until it is given to a shared pointer (MakeShareable). */
template <typename ObjectType, typename DeleterType = SharedPointerInternals::DefaultDeleter<ObjectType>>
struct TRawPtrProxy
{
	ObjectType* Object;
	DeleterType Deleter;

	explicit TRawPtrProxy(ObjectType* InObject) : Object(InObject) {}
	TRawPtrProxy(ObjectType* InObject, DeleterType&& InDeleter) : Object(InObject), Deleter(MoveTemp(InDeleter)) {}
};

template <class ObjectType, ESPMode Mode>
class TSharedRef
{
	template <class, ESPMode> friend class TSharedRef;
	template <class, ESPMode> friend class TSharedPtr;
	template <class, ESPMode> friend class TWeakPtr;

public:
	using ElementType = ObjectType;
	static constexpr ESPMode Mode_ = Mode;

	template <typename OtherType, typename = std::enable_if_t<std::is_convertible_v<OtherType*, ObjectType*>>>
	explicit TSharedRef(OtherType* InObject) : Object(InObject), SharedReferenceCount(MakeController(InObject))
	{
		checkf(InObject != nullptr, TEXT("A TSharedRef cannot be null"));
		SharedPointerInternals::EnableSharedFromThis(InObject, SharedReferenceCount, InObject);
	}

	template <typename OtherType, typename DeleterType>
	TSharedRef(const TRawPtrProxy<OtherType, DeleterType>& Proxy)
		: Object(Proxy.Object)
		, SharedReferenceCount(new SharedPointerInternals::TReferenceControllerWithDeleter<OtherType, DeleterType>(Proxy.Object, DeleterType(Proxy.Deleter)))
	{
		checkf(Proxy.Object != nullptr, TEXT("A TSharedRef cannot be null"));
		SharedPointerInternals::EnableSharedFromThis(Proxy.Object, SharedReferenceCount, Proxy.Object);
	}

	template <typename OtherType, typename = std::enable_if_t<std::is_convertible_v<OtherType*, ObjectType*>>>
	TSharedRef(const TSharedRef<OtherType, Mode>& Other) : Object(Other.Object), SharedReferenceCount(Other.SharedReferenceCount) {}

	template <typename OtherType>
	TSharedRef(const TSharedRef<OtherType, Mode>& Other, SharedPointerInternals::FStaticCastTag)
		: Object(static_cast<ObjectType*>(Other.Object)), SharedReferenceCount(Other.SharedReferenceCount) {}

	template <typename OtherType>
	TSharedRef(const TSharedRef<OtherType, Mode>& Other, SharedPointerInternals::FConstCastTag)
		: Object(const_cast<ObjectType*>(Other.Object)), SharedReferenceCount(Other.SharedReferenceCount) {}

	template <typename OtherType>
	TSharedRef(const TSharedRef<OtherType, Mode>& OtherSharedRef, ObjectType* InObject)
		: Object(InObject), SharedReferenceCount(OtherSharedRef.SharedReferenceCount)
	{
		checkf(InObject != nullptr, TEXT("A TSharedRef cannot be null"));
	}

	TSharedRef(const TSharedRef&) = default;
	TSharedRef(TSharedRef&& Other) : Object(Other.Object), SharedReferenceCount(Other.SharedReferenceCount) {}
	TSharedRef& operator=(const TSharedRef&) = default;
	TSharedRef& operator=(TSharedRef&& Other)
	{
		// A moved-from reference stays valid, as the engine's: TSharedRef is never null.
		if (this != &Other)
		{
			Object = Other.Object;
			SharedReferenceCount = Other.SharedReferenceCount;
		}
		return *this;
	}

	FORCEINLINE ObjectType& Get() const { return *Object; }
	FORCEINLINE ObjectType& operator*() const { return *Object; }
	FORCEINLINE ObjectType* operator->() const { return Object; }
	FORCEINLINE TSharedPtr<ObjectType, Mode> ToSharedPtr() const;
	FORCEINLINE TWeakPtr<ObjectType, Mode> ToWeakPtr() const;
	FORCEINLINE int32 GetSharedReferenceCount() const { return SharedReferenceCount.GetSharedReferenceCount(); }
	FORCEINLINE bool IsUnique() const { return SharedReferenceCount.IsUnique(); }

	template <typename OtherType>
	bool operator==(const TSharedRef<OtherType, Mode>& Other) const { return Object == Other.Object; }
	template <typename OtherType>
	bool operator!=(const TSharedRef<OtherType, Mode>& Other) const { return Object != Other.Object; }

	// Used by MakeShared.
	TSharedRef(ObjectType* InObject, SharedPointerInternals::FReferenceControllerBase* InController)
		: Object(InObject), SharedReferenceCount(InController)
	{
		SharedPointerInternals::EnableSharedFromThis(InObject, SharedReferenceCount, InObject);
	}

private:
	template <typename OtherType>
	static SharedPointerInternals::FReferenceControllerBase* MakeController(OtherType* InObject)
	{
		return new SharedPointerInternals::TReferenceControllerWithDeleter<OtherType, SharedPointerInternals::DefaultDeleter<OtherType>>(InObject, SharedPointerInternals::DefaultDeleter<OtherType>());
	}

	// Used by TSharedPtr::ToSharedRef and TWeakPtr::Pin.
	TSharedRef(ObjectType* InObject, const SharedPointerInternals::FSharedReferencer& InReferencer) : Object(InObject), SharedReferenceCount(InReferencer) {}

	ObjectType* Object;
	SharedPointerInternals::FSharedReferencer SharedReferenceCount;
};

template <class ObjectType, ESPMode Mode>
class TSharedPtr
{
	template <class, ESPMode> friend class TSharedRef;
	template <class, ESPMode> friend class TSharedPtr;
	template <class, ESPMode> friend class TWeakPtr;

public:
	using ElementType = ObjectType;

	TSharedPtr() = default;
	TSharedPtr(TYPE_OF_NULLPTR) {}

	template <typename OtherType, typename = std::enable_if_t<std::is_convertible_v<OtherType*, ObjectType*>>>
	explicit TSharedPtr(OtherType* InObject) : Object(InObject)
	{
		if (InObject)
		{
			SharedReferenceCount = SharedPointerInternals::FSharedReferencer(
				new SharedPointerInternals::TReferenceControllerWithDeleter<OtherType, SharedPointerInternals::DefaultDeleter<OtherType>>(InObject, SharedPointerInternals::DefaultDeleter<OtherType>()));
			SharedPointerInternals::EnableSharedFromThis(InObject, SharedReferenceCount, InObject);
		}
	}

	template <typename OtherType, typename DeleterType>
	TSharedPtr(const TRawPtrProxy<OtherType, DeleterType>& Proxy) : Object(Proxy.Object)
	{
		if (Proxy.Object)
		{
			SharedReferenceCount = SharedPointerInternals::FSharedReferencer(
				new SharedPointerInternals::TReferenceControllerWithDeleter<OtherType, DeleterType>(Proxy.Object, DeleterType(Proxy.Deleter)));
			SharedPointerInternals::EnableSharedFromThis(Proxy.Object, SharedReferenceCount, Proxy.Object);
		}
	}

	TSharedPtr(const TSharedPtr&) = default;
	TSharedPtr(TSharedPtr&& Other) : Object(Other.Object), SharedReferenceCount(MoveTemp(Other.SharedReferenceCount)) { Other.Object = nullptr; }
	TSharedPtr& operator=(const TSharedPtr&) = default;
	TSharedPtr& operator=(TSharedPtr&& Other)
	{
		if (this != &Other)
		{
			Object = Other.Object;
			SharedReferenceCount = MoveTemp(Other.SharedReferenceCount);
			Other.Object = nullptr;
		}
		return *this;
	}

	template <typename OtherType, typename = std::enable_if_t<std::is_convertible_v<OtherType*, ObjectType*>>>
	TSharedPtr(const TSharedPtr<OtherType, Mode>& Other) : Object(Other.Object), SharedReferenceCount(Other.SharedReferenceCount) {}

	template <typename OtherType, typename = std::enable_if_t<std::is_convertible_v<OtherType*, ObjectType*>>>
	TSharedPtr(TSharedPtr<OtherType, Mode>&& Other) : Object(Other.Object), SharedReferenceCount(MoveTemp(Other.SharedReferenceCount))
	{
		Other.Object = nullptr;
	}

	template <typename OtherType, typename = std::enable_if_t<std::is_convertible_v<OtherType*, ObjectType*>>>
	TSharedPtr(const TSharedRef<OtherType, Mode>& Other) : Object(Other.Object), SharedReferenceCount(Other.SharedReferenceCount) {}

	template <typename OtherType>
	TSharedPtr(const TSharedPtr<OtherType, Mode>& Other, SharedPointerInternals::FStaticCastTag)
		: Object(static_cast<ObjectType*>(Other.Object)), SharedReferenceCount(Other.SharedReferenceCount) {}

	template <typename OtherType>
	TSharedPtr(const TSharedPtr<OtherType, Mode>& Other, SharedPointerInternals::FConstCastTag)
		: Object(const_cast<ObjectType*>(Other.Object)), SharedReferenceCount(Other.SharedReferenceCount) {}

	template <typename OtherType>
	TSharedPtr(const TSharedPtr<OtherType, Mode>& OtherSharedPtr, ObjectType* InObject)
		: Object(InObject), SharedReferenceCount(OtherSharedPtr.SharedReferenceCount) {}

	template <typename OtherType>
	TSharedPtr(const TSharedRef<OtherType, Mode>& OtherSharedRef, ObjectType* InObject)
		: Object(InObject), SharedReferenceCount(OtherSharedRef.SharedReferenceCount) {}

	TSharedPtr& operator=(TYPE_OF_NULLPTR)
	{
		Reset();
		return *this;
	}

	template <typename OtherType, typename DeleterType>
	TSharedPtr& operator=(const TRawPtrProxy<OtherType, DeleterType>& Proxy)
	{
		*this = TSharedPtr(Proxy);
		return *this;
	}

	TSharedRef<ObjectType, Mode> ToSharedRef() const
	{
		checkf(IsValid(), TEXT("ToSharedRef called on a null TSharedPtr"));
		return TSharedRef<ObjectType, Mode>(Object, SharedReferenceCount);
	}

	TWeakPtr<ObjectType, Mode> ToWeakPtr() const;

	FORCEINLINE ObjectType* Get() const { return Object; }
	FORCEINLINE bool IsValid() const { return Object != nullptr; }
	FORCEINLINE explicit operator bool() const { return Object != nullptr; }
	FORCEINLINE ObjectType& operator*() const
	{
		check(IsValid());
		return *Object;
	}
	FORCEINLINE ObjectType* operator->() const
	{
		check(IsValid());
		return Object;
	}

	FORCEINLINE void Reset() { *this = TSharedPtr(); }
	FORCEINLINE int32 GetSharedReferenceCount() const { return SharedReferenceCount.GetSharedReferenceCount(); }
	FORCEINLINE bool IsUnique() const { return SharedReferenceCount.IsUnique(); }

	template <typename OtherType>
	bool operator==(const TSharedPtr<OtherType, Mode>& Other) const { return Object == Other.Object; }
	template <typename OtherType>
	bool operator!=(const TSharedPtr<OtherType, Mode>& Other) const { return Object != Other.Object; }
	template <typename OtherType>
	bool operator==(const TSharedRef<OtherType, Mode>& Other) const { return Object == Other.Object; }
	bool operator==(TYPE_OF_NULLPTR) const { return Object == nullptr; }
	bool operator!=(TYPE_OF_NULLPTR) const { return Object != nullptr; }

private:
	TSharedPtr(ObjectType* InObject, SharedPointerInternals::FSharedReferencer&& InReferencer) : Object(InObject), SharedReferenceCount(MoveTemp(InReferencer)) {}

	ObjectType* Object = nullptr;
	SharedPointerInternals::FSharedReferencer SharedReferenceCount;
};

template <class ObjectType, ESPMode Mode>
class TWeakPtr
{
	template <class, ESPMode> friend class TWeakPtr;
	template <class, ESPMode> friend class TSharedPtr;
	template <typename OtherObjectType, ESPMode OtherMode, typename PointeeType>
	friend void SharedPointerInternals::EnableSharedFromThis(const TSharedFromThis<OtherObjectType, OtherMode>*, const SharedPointerInternals::FSharedReferencer&, PointeeType*);

public:
	using ElementType = ObjectType;

	TWeakPtr() = default;
	TWeakPtr(TYPE_OF_NULLPTR) {}

	template <typename OtherType, typename = std::enable_if_t<std::is_convertible_v<OtherType*, ObjectType*>>>
	TWeakPtr(const TSharedRef<OtherType, Mode>& Shared) : Object(Shared.Object), WeakReferenceCount(Shared.SharedReferenceCount) {}

	template <typename OtherType, typename = std::enable_if_t<std::is_convertible_v<OtherType*, ObjectType*>>>
	TWeakPtr(const TSharedPtr<OtherType, Mode>& Shared) : Object(Shared.Object), WeakReferenceCount(Shared.SharedReferenceCount) {}

	template <typename OtherType, typename = std::enable_if_t<std::is_convertible_v<OtherType*, ObjectType*>>>
	TWeakPtr(const TWeakPtr<OtherType, Mode>& Other) : Object(Other.Object), WeakReferenceCount(Other.WeakReferenceCount) {}

	TWeakPtr(const TWeakPtr&) = default;
	TWeakPtr(TWeakPtr&& Other) : Object(Other.Object), WeakReferenceCount(MoveTemp(Other.WeakReferenceCount)) { Other.Object = nullptr; }
	TWeakPtr& operator=(const TWeakPtr&) = default;
	TWeakPtr& operator=(TWeakPtr&& Other)
	{
		if (this != &Other)
		{
			Object = Other.Object;
			WeakReferenceCount = MoveTemp(Other.WeakReferenceCount);
			Other.Object = nullptr;
		}
		return *this;
	}

	TWeakPtr& operator=(TYPE_OF_NULLPTR)
	{
		Reset();
		return *this;
	}

	template <typename OtherType>
	TWeakPtr& operator=(const TSharedRef<OtherType, Mode>& Shared)
	{
		Object = Shared.Object;
		WeakReferenceCount = Shared.SharedReferenceCount;
		return *this;
	}

	template <typename OtherType>
	TWeakPtr& operator=(const TSharedPtr<OtherType, Mode>& Shared)
	{
		Object = Shared.Object;
		WeakReferenceCount = Shared.SharedReferenceCount;
		return *this;
	}

	/** A shared pointer to the object, or null once the last shared reference is gone. */
	TSharedPtr<ObjectType, Mode> Pin() const
	{
		SharedPointerInternals::FSharedReferencer Referencer = SharedPointerInternals::FSharedReferencer::FromWeak(WeakReferenceCount.GetController());
		if (!Referencer.IsValid())
		{
			return TSharedPtr<ObjectType, Mode>();
		}
		return TSharedPtr<ObjectType, Mode>(Object, MoveTemp(Referencer));
	}

	FORCEINLINE bool IsValid() const { return Object != nullptr && WeakReferenceCount.IsValid(); }
	FORCEINLINE void Reset() { *this = TWeakPtr(); }
	FORCEINLINE bool HasSameObject(const void* InOtherPtr) const { return Pin().Get() == InOtherPtr; }

	template <typename OtherType>
	bool operator==(const TWeakPtr<OtherType, Mode>& Other) const { return Pin().Get() == Other.Pin().Get(); }
	template <typename OtherType>
	bool operator!=(const TWeakPtr<OtherType, Mode>& Other) const { return !(*this == Other); }

private:
	ObjectType* Object = nullptr;
	SharedPointerInternals::FWeakReferencer WeakReferenceCount;
};

/** Derive from this to get shared pointers to this object from its own methods (AsShared, SharedThis). */
template <class ObjectType, ESPMode Mode>
class TSharedFromThis
{
public:
	TSharedRef<ObjectType, Mode> AsShared()
	{
		TSharedPtr<ObjectType, Mode> SharedThis(WeakThis.Pin());
		checkf(SharedThis.Get() == this, TEXT("AsShared called on an object that is not owned by a shared pointer"));
		return SharedThis.ToSharedRef();
	}

	TSharedRef<const ObjectType, Mode> AsShared() const
	{
		TSharedPtr<const ObjectType, Mode> SharedThis(WeakThis.Pin());
		checkf(SharedThis.Get() == this, TEXT("AsShared called on an object that is not owned by a shared pointer"));
		return SharedThis.ToSharedRef();
	}

	TWeakPtr<ObjectType, Mode> AsWeak() { return WeakThis; }
	TWeakPtr<const ObjectType, Mode> AsWeak() const { return WeakThis; }

	bool DoesSharedInstanceExist() const { return WeakThis.IsValid(); }

protected:
	TSharedFromThis() = default;
	TSharedFromThis(const TSharedFromThis&) {}
	TSharedFromThis& operator=(const TSharedFromThis&) { return *this; }
	~TSharedFromThis() = default;

	template <class OtherType>
	static TSharedRef<OtherType, Mode> SharedThis(OtherType* ThisPtr)
	{
		return StaticCastSharedRef<OtherType>(ThisPtr->AsShared());
	}

	template <class OtherType>
	static TSharedRef<const OtherType, Mode> SharedThis(const OtherType* ThisPtr)
	{
		return StaticCastSharedRef<const OtherType>(ThisPtr->AsShared());
	}

private:
	mutable TWeakPtr<ObjectType, Mode> WeakThis;

	template <typename OtherObjectType, ESPMode OtherMode, typename PointeeType>
	friend void SharedPointerInternals::EnableSharedFromThis(const TSharedFromThis<OtherObjectType, OtherMode>*, const SharedPointerInternals::FSharedReferencer&, PointeeType*);
};

namespace SharedPointerInternals
{
	template <typename ObjectType, ESPMode Mode, typename PointeeType>
	void EnableSharedFromThis(const TSharedFromThis<ObjectType, Mode>* Base, const FSharedReferencer& Referencer, PointeeType* Object)
	{
		if (Base && !Base->WeakThis.IsValid())
		{
			Base->WeakThis.Object = const_cast<ObjectType*>(static_cast<const ObjectType*>(Object));
			Base->WeakThis.WeakReferenceCount = Referencer;
		}
	}
}

template <class ObjectType, ESPMode Mode>
FORCEINLINE TSharedPtr<ObjectType, Mode> TSharedRef<ObjectType, Mode>::ToSharedPtr() const
{
	return TSharedPtr<ObjectType, Mode>(*this);
}

template <class ObjectType, ESPMode Mode>
FORCEINLINE TWeakPtr<ObjectType, Mode> TSharedRef<ObjectType, Mode>::ToWeakPtr() const
{
	return TWeakPtr<ObjectType, Mode>(*this);
}

template <class ObjectType, ESPMode Mode>
FORCEINLINE TWeakPtr<ObjectType, Mode> TSharedPtr<ObjectType, Mode>::ToWeakPtr() const
{
	return TWeakPtr<ObjectType, Mode>(*this);
}

template <typename InObjectType, ESPMode InMode = ESPMode::ThreadSafe, typename... InArgTypes>
FORCEINLINE TSharedRef<InObjectType, InMode> MakeShared(InArgTypes&&... Args)
{
	auto* Controller = new SharedPointerInternals::TIntrusiveReferenceController<InObjectType>(Forward<InArgTypes>(Args)...);
	return TSharedRef<InObjectType, InMode>(Controller->GetObjectPtr(), (SharedPointerInternals::FReferenceControllerBase*)Controller);
}

template <class ObjectType>
FORCEINLINE TRawPtrProxy<ObjectType> MakeShareable(ObjectType* InObject)
{
	return TRawPtrProxy<ObjectType>(InObject);
}

template <class ObjectType, class DeleterType>
FORCEINLINE TRawPtrProxy<ObjectType, DeleterType> MakeShareable(ObjectType* InObject, DeleterType&& InDeleter)
{
	return TRawPtrProxy<ObjectType, DeleterType>(InObject, Forward<DeleterType>(InDeleter));
}

template <class CastToType, class CastFromType, ESPMode Mode>
FORCEINLINE TSharedRef<CastToType, Mode> StaticCastSharedRef(const TSharedRef<CastFromType, Mode>& InSharedRef)
{
	return TSharedRef<CastToType, Mode>(InSharedRef, SharedPointerInternals::FStaticCastTag());
}

template <class CastToType, class CastFromType, ESPMode Mode>
FORCEINLINE TSharedPtr<CastToType, Mode> StaticCastSharedPtr(const TSharedPtr<CastFromType, Mode>& InSharedPtr)
{
	return TSharedPtr<CastToType, Mode>(InSharedPtr, SharedPointerInternals::FStaticCastTag());
}

template <class CastToType, class CastFromType, ESPMode Mode>
FORCEINLINE TWeakPtr<CastToType, Mode> StaticCastWeakPtr(const TWeakPtr<CastFromType, Mode>& InWeakPtr)
{
	return TWeakPtr<CastToType, Mode>(StaticCastSharedPtr<CastToType>(InWeakPtr.Pin()));
}

template <class CastToType, class CastFromType, ESPMode Mode>
FORCEINLINE TSharedRef<CastToType, Mode> ConstCastSharedRef(const TSharedRef<CastFromType, Mode>& InSharedRef)
{
	return TSharedRef<CastToType, Mode>(InSharedRef, SharedPointerInternals::FConstCastTag());
}

template <class CastToType, class CastFromType, ESPMode Mode>
FORCEINLINE TSharedPtr<CastToType, Mode> ConstCastSharedPtr(const TSharedPtr<CastFromType, Mode>& InSharedPtr)
{
	return TSharedPtr<CastToType, Mode>(InSharedPtr, SharedPointerInternals::FConstCastTag());
}

template <class ObjectType, ESPMode Mode>
FORCEINLINE uint32 GetTypeHash(const TSharedPtr<ObjectType, Mode>& InSharedPtr)
{
	return PointerHash(InSharedPtr.Get());
}

template <class ObjectType, ESPMode Mode>
FORCEINLINE uint32 GetTypeHash(const TSharedRef<ObjectType, Mode>& InSharedRef)
{
	return PointerHash(&InSharedRef.Get());
}

template <class ObjectType, ESPMode Mode>
FORCEINLINE uint32 GetTypeHash(const TWeakPtr<ObjectType, Mode>& InWeakPtr)
{
	return PointerHash(InWeakPtr.Pin().Get());
}
