// FTSTicker: fires delegates after a delay, at most once per Tick, rescheduling those that return true.
#pragma once

#include "CoreTypes.h"
#include "Containers/Array.h"
#include "Delegates/Delegate.h"
#include "Templates/Function.h"
#include "Templates/SharedPointer.h"

// Returns true to fire again after the same delay, false to be removed. DeltaTime is the frame's, not the time since the last fire.
DECLARE_DELEGATE_RetVal_OneParam(bool, FTickerDelegate, float);

class FTSTicker
{
public:
	struct FElement
	{
		FElement(double InFireTime, float InDelayTime, TUniqueFunction<bool(float)>&& InFunction);

		// Time that this delegate must not fire before.
		double FireTime;
		// Delay that this delegate was scheduled with.
		float DelayTime;
		TUniqueFunction<bool(float)> Function;
		bool bRemoved = false;
	};

	using FElementPtr = TSharedPtr<FElement>;
	using FDelegateHandle = TWeakPtr<FElement>;

	// The ticker the editor ticks once per frame.
	CORE_API static FTSTicker& GetCoreTicker();

	// InDelay of 0 means "next frame".
	CORE_API FDelegateHandle AddTicker(const FTickerDelegate& InDelegate, float InDelay = 0.0f);
	CORE_API FDelegateHandle AddTicker(const TCHAR* InName, float InDelay, TUniqueFunction<bool(float)>&& Function);

	// Safe to call from inside a ticker delegate, including the one being removed.
	CORE_API static void RemoveTicker(FDelegateHandle Handle);

	// Fires every ticker whose delay has passed; tickers added during this call are considered from the next one.
	CORE_API void Tick(float DeltaTime);

	// Removes every ticker and restarts the clock.
	CORE_API void Reset();

private:
	FDelegateHandle AddElement(float InDelay, TUniqueFunction<bool(float)>&& Function);
	// Fires Element if due; returns whether it stays scheduled.
	bool FireIfDue(FElement& Element, float DeltaTime);

	double CurrentTime = 0.0;
	// Lets a Tick notice a Reset made by one of the delegates it fires.
	uint32 ResetCount = 0;
	TArray<FElementPtr> Elements;
	TArray<FElementPtr> AddedElements;
};
