// Log categories: a name and the verbosity below which lines are suppressed.
#pragma once

#include "CoreTypes.h"
#include "Logging/LogVerbosity.h"
#include "UObject/NameTypes.h"

struct FLogCategoryBase
{
	CORE_API FLogCategoryBase(const TCHAR* CategoryName, ELogVerbosity::Type InDefaultVerbosity, ELogVerbosity::Type InCompileTimeVerbosity);
	CORE_API ~FLogCategoryBase();

	/** Whether lines of this verbosity are dropped. */
	FORCEINLINE bool IsSuppressed(ELogVerbosity::Type VerbosityLevel) const
	{
		return !((VerbosityLevel & ELogVerbosity::VerbosityMask) <= Verbosity);
	}

	FORCEINLINE const FName& GetCategoryName() const { return CategoryName; }
	FORCEINLINE ELogVerbosity::Type GetVerbosity() const { return (ELogVerbosity::Type)Verbosity; }
	FORCEINLINE ELogVerbosity::Type GetCompileTimeVerbosity() const { return CompileTimeVerbosity; }
	CORE_API void SetVerbosity(ELogVerbosity::Type Verbosity);

private:
	ELogVerbosity::Type Verbosity;
	ELogVerbosity::Type DefaultVerbosity;
	ELogVerbosity::Type CompileTimeVerbosity;
	FName CategoryName;
};

template <ELogVerbosity::Type InDefaultVerbosity, ELogVerbosity::Type InCompileTimeVerbosity>
struct FLogCategory : public FLogCategoryBase
{
	static_assert((InDefaultVerbosity & ELogVerbosity::VerbosityMask) < ELogVerbosity::NumVerbosity, "Bogus default verbosity.");
	static_assert(InCompileTimeVerbosity < ELogVerbosity::NumVerbosity, "Bogus compile time verbosity.");
	static constexpr ELogVerbosity::Type CompileTimeVerbosity = InCompileTimeVerbosity;

	FORCEINLINE FLogCategory(const TCHAR* InCategoryName) : FLogCategoryBase(InCategoryName, InDefaultVerbosity, CompileTimeVerbosity) {}
};
