// check / verify / ensure, as the engine defines them.
#pragma once

#include "HAL/Platform.h"

struct FDebug
{
	/** Logs "Assertion failed: <Expr> [File:<File>] [Line: <Line>]" plus the formatted message to GError, then aborts. */
	[[noreturn]] CORE_API static void CheckVerifyFailedImpl(const ANSICHAR* Expr, const ANSICHAR* File, int32 Line, const TCHAR* Format, ...);

	[[noreturn]] CORE_API static void AssertFailed(const ANSICHAR* Expr, const ANSICHAR* File, int32 Line, const TCHAR* Format = TEXT(""), ...);

	/** Logs "Ensure condition failed: <Expr> [File:<File>] [Line: <Line>]" plus the formatted message as an Error; returns false. */
	CORE_API static bool OptionallyLogFormattedEnsureMessageReturningFalse(bool bLog, const ANSICHAR* Expr, const ANSICHAR* File, int32 Line, const TCHAR* Format, ...);

	[[noreturn]] CORE_API static void LowLevelFatalErrorHandler(const ANSICHAR* File, int32 Line, const TCHAR* Format, ...);

	/** Number of ensures that failed in this process. */
	CORE_API static int32 GetNumEnsureFailures();
};

#if DO_CHECK
	#define UE_CHECK_IMPL(Expr) \
		do { if (UNLIKELY(!(Expr))) { FDebug::CheckVerifyFailedImpl(#Expr, __FILE__, __LINE__, TEXT("")); } } while (false)
	#define UE_CHECK_F_IMPL(Expr, Format, ...) \
		do { if (UNLIKELY(!(Expr))) { FDebug::CheckVerifyFailedImpl(#Expr, __FILE__, __LINE__, Format, ##__VA_ARGS__); } } while (false)

	#define check(Expr) UE_CHECK_IMPL(Expr)
	#define checkf(Expr, Format, ...) UE_CHECK_F_IMPL(Expr, Format, ##__VA_ARGS__)
	#define verify(Expr) UE_CHECK_IMPL(Expr)
	#define verifyf(Expr, Format, ...) UE_CHECK_F_IMPL(Expr, Format, ##__VA_ARGS__)
	#define checkCode(Code) do { Code; } while (false)
	#define checkNoEntry() FDebug::CheckVerifyFailedImpl("Enclosing block should never be called", __FILE__, __LINE__, TEXT(""))
	#define unimplemented() FDebug::CheckVerifyFailedImpl("Unimplemented function called", __FILE__, __LINE__, TEXT(""))
#else
	#define check(Expr) do { } while (false)
	#define checkf(Expr, Format, ...) do { } while (false)
	#define verify(Expr) do { if (Expr) { } } while (false)
	#define verifyf(Expr, Format, ...) do { if (Expr) { } } while (false)
	#define checkCode(Code) do { } while (false)
	#define checkNoEntry() do { } while (false)
	#define unimplemented() do { } while (false)
#endif

#if DO_GUARD_SLOW
	#define checkSlow(Expr) check(Expr)
	#define checkfSlow(Expr, Format, ...) checkf(Expr, Format, ##__VA_ARGS__)
	#define verifySlow(Expr) check(Expr)
#else
	#define checkSlow(Expr) do { } while (false)
	#define checkfSlow(Expr, Format, ...) do { } while (false)
	#define verifySlow(Expr) do { if (Expr) { } } while (false)
#endif

#if DO_ENSURE
	#define UE_ENSURE_IMPL(bAlways, Expr, Format, ...) \
		(LIKELY(!!(Expr)) || ([&]() -> bool \
		{ \
			static bool bExecuted = false; \
			const bool bLog = (bAlways) || !bExecuted; \
			bExecuted = true; \
			return FDebug::OptionallyLogFormattedEnsureMessageReturningFalse(bLog, #Expr, __FILE__, __LINE__, Format, ##__VA_ARGS__); \
		}()))

	#define ensure(Expr) UE_ENSURE_IMPL(false, Expr, TEXT(""))
	#define ensureMsgf(Expr, Format, ...) UE_ENSURE_IMPL(false, Expr, Format, ##__VA_ARGS__)
	#define ensureAlways(Expr) UE_ENSURE_IMPL(true, Expr, TEXT(""))
	#define ensureAlwaysMsgf(Expr, Format, ...) UE_ENSURE_IMPL(true, Expr, Format, ##__VA_ARGS__)
#else
	#define ensure(Expr) (!!(Expr))
	#define ensureMsgf(Expr, Format, ...) (!!(Expr))
	#define ensureAlways(Expr) (!!(Expr))
	#define ensureAlwaysMsgf(Expr, Format, ...) (!!(Expr))
#endif

#define LowLevelFatalError(Format, ...) FDebug::LowLevelFatalErrorHandler(__FILE__, __LINE__, Format, ##__VA_ARGS__)
