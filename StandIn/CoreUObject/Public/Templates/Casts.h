// Cast<T>, CastChecked<T> and ExactCast<T>: checked downcasts of objects through their reflected class.
#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "UObject/Class.h"

#include <type_traits>

template<typename T> class TObjectPtr;

namespace ECastCheckedType
{
	enum Type
	{
		NullAllowed,
		NullChecked
	};
}

// The object as a To when it is one (or derived), else null.
template<class To, class From>
FORCEINLINE std::conditional_t<std::is_const_v<From>, const To*, To*> Cast(From* Src)
{
	using FResult = std::conditional_t<std::is_const_v<From>, const To*, To*>;
	if constexpr (std::is_base_of_v<To, std::remove_cv_t<From>>)
	{
		return static_cast<FResult>(Src);
	}
	else
	{
		const UObject* Object = Src;
		return Object && Object->IsA(To::StaticClass()) ? static_cast<FResult>(const_cast<UObject*>(Object)) : nullptr;
	}
}

template<class To, class From>
FORCEINLINE To* Cast(const TObjectPtr<From>& Src)
{
	return Cast<To>(Src.Get());
}

// The object as a To when its class is exactly To, else null.
template<class To, class From>
FORCEINLINE std::conditional_t<std::is_const_v<From>, const To*, To*> ExactCast(From* Src)
{
	using FResult = std::conditional_t<std::is_const_v<From>, const To*, To*>;
	const UObject* Object = Src;
	return Object && Object->GetClass() == To::StaticClass() ? static_cast<FResult>(const_cast<UObject*>(Object)) : nullptr;
}

template<class To, class From>
FORCEINLINE To* ExactCast(const TObjectPtr<From>& Src)
{
	return ExactCast<To>(Src.Get());
}

// Like Cast, but a failed cast (or null, with NullChecked) is a fatal error.
template<class To, class From>
std::conditional_t<std::is_const_v<From>, const To*, To*> CastChecked(From* Src, ECastCheckedType::Type CheckType = ECastCheckedType::NullChecked)
{
	auto* Result = Cast<To>(Src);
	checkf(Result || (!Src && CheckType == ECastCheckedType::NullAllowed), TEXT("Cast of %s to %s failed"),
		*GetFullNameSafe(Src), *To::StaticClass()->GetName());
	return Result;
}

template<class To, class From>
To* CastChecked(const TObjectPtr<From>& Src, ECastCheckedType::Type CheckType = ECastCheckedType::NullChecked)
{
	return CastChecked<To>(Src.Get(), CheckType);
}
