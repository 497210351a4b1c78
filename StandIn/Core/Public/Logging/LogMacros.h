// UE_LOG and the log category declaration macros.
#pragma once

#include "CoreTypes.h"
#include "Containers/UnrealString.h"
#include "Logging/LogCategory.h"
#include "Logging/LogVerbosity.h"

struct FMsg
{
	/** Formats the message and sends it to GLog; a Fatal line aborts the process after it is logged. */
	template <typename FmtType, typename... Types>
	static void Logf(const ANSICHAR* File, int32 Line, const FName& Category, ELogVerbosity::Type Verbosity, const FmtType& Fmt, Types... Args)
	{
		static_assert(std::is_convertible_v<const FmtType&, const TCHAR*>, "Formatting string must be a TCHAR array.");
		static_assert((TIsValidVariadicFunctionArg<Types>::Value && ...), "Invalid argument(s) passed to UE_LOG");
		LogfImpl(File, Line, Category, Verbosity, (const TCHAR*)Fmt, Args...);
	}

	CORE_API static void LogfImpl(const ANSICHAR* File, int32 Line, const FName& Category, ELogVerbosity::Type Verbosity, const TCHAR* Fmt, ...);
	/** Sends an already formatted line. */
	CORE_API static void Log(const ANSICHAR* File, int32 Line, const FName& Category, ELogVerbosity::Type Verbosity, const TCHAR* Message);
};

#define UE_LOG(CategoryName, Verbosity, Format, ...) \
	do \
	{ \
		static_assert((ELogVerbosity::Verbosity & ELogVerbosity::VerbosityMask) < ELogVerbosity::NumVerbosity && ELogVerbosity::Verbosity > 0, "Verbosity must be constant and in range."); \
		if constexpr ((ELogVerbosity::Verbosity & ELogVerbosity::VerbosityMask) <= decltype(CategoryName)::CompileTimeVerbosity) \
		{ \
			if (ELogVerbosity::Verbosity == ELogVerbosity::Fatal || !CategoryName.IsSuppressed(ELogVerbosity::Verbosity)) \
			{ \
				FMsg::Logf(__FILE__, __LINE__, CategoryName.GetCategoryName(), ELogVerbosity::Verbosity, Format, ##__VA_ARGS__); \
			} \
		} \
	} while (false)

#define UE_LOG_ACTIVE(CategoryName, Verbosity) \
	((ELogVerbosity::Verbosity & ELogVerbosity::VerbosityMask) <= decltype(CategoryName)::CompileTimeVerbosity && !CategoryName.IsSuppressed(ELogVerbosity::Verbosity))

#define UE_SUPPRESS(CategoryName, Verbosity, ExecuteIfUnsuppressed) \
	do \
	{ \
		if (UE_LOG_ACTIVE(CategoryName, Verbosity)) \
		{ \
			ExecuteIfUnsuppressed; \
		} \
	} while (false)

#define UE_CLOG(Condition, CategoryName, Verbosity, Format, ...) \
	do \
	{ \
		if (Condition) \
		{ \
			UE_LOG(CategoryName, Verbosity, Format, ##__VA_ARGS__); \
		} \
	} while (false)

#define DECLARE_LOG_CATEGORY_EXTERN(CategoryName, DefaultVerbosity, CompileTimeVerbosity) \
	extern struct FLogCategory##CategoryName : public FLogCategory<ELogVerbosity::DefaultVerbosity, ELogVerbosity::CompileTimeVerbosity> \
	{ \
		FORCEINLINE FLogCategory##CategoryName() : FLogCategory(TEXT(#CategoryName)) {} \
	} CategoryName;

#define DEFINE_LOG_CATEGORY(CategoryName) FLogCategory##CategoryName CategoryName;

#define DEFINE_LOG_CATEGORY_STATIC(CategoryName, DefaultVerbosity, CompileTimeVerbosity) \
	static struct FLogCategory##CategoryName : public FLogCategory<ELogVerbosity::DefaultVerbosity, ELogVerbosity::CompileTimeVerbosity> \
	{ \
		FORCEINLINE FLogCategory##CategoryName() : FLogCategory(TEXT(#CategoryName)) {} \
	} CategoryName;

#define DECLARE_LOG_CATEGORY_CLASS(CategoryName, DefaultVerbosity, CompileTimeVerbosity) \
	DEFINE_LOG_CATEGORY_STATIC(CategoryName, DefaultVerbosity, CompileTimeVerbosity)

#define DEFINE_LOG_CATEGORY_CLASS(Class, CategoryName)
