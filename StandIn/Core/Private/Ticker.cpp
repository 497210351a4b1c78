#include "Containers/Ticker.h"

FTSTicker::FElement::FElement(double InFireTime, float InDelayTime, TUniqueFunction<bool(float)>&& InFunction)
	: FireTime(InFireTime)
	, DelayTime(InDelayTime)
	, Function(MoveTemp(InFunction))
{
}

FTSTicker& FTSTicker::GetCoreTicker()
{
	static FTSTicker CoreTicker;
	return CoreTicker;
}

FTSTicker::FDelegateHandle FTSTicker::AddTicker(const FTickerDelegate& InDelegate, float InDelay)
{
	return AddElement(InDelay, [Delegate = InDelegate](float DeltaTime) mutable
	{
		return Delegate.IsBound() && Delegate.Execute(DeltaTime);
	});
}

FTSTicker::FDelegateHandle FTSTicker::AddTicker(const TCHAR* InName, float InDelay, TUniqueFunction<bool(float)>&& Function)
{
	return AddElement(InDelay, MoveTemp(Function));
}

FTSTicker::FDelegateHandle FTSTicker::AddElement(float InDelay, TUniqueFunction<bool(float)>&& Function)
{
	FElementPtr Element = MakeShared<FElement>(CurrentTime + InDelay, InDelay, MoveTemp(Function));
	AddedElements.Add(Element);
	return Element;
}

void FTSTicker::RemoveTicker(FDelegateHandle Handle)
{
	if (FElementPtr Element = Handle.Pin())
	{
		Element->bRemoved = true;
	}
}

void FTSTicker::Tick(float DeltaTime)
{
	Elements.Append(AddedElements);
	AddedElements.Reset();
	CurrentTime += DeltaTime;

	TArray<FElementPtr> TickingElements = MoveTemp(Elements);
	Elements.Reset();
	const uint32 ResetCountAtStart = ResetCount;
	for (FElementPtr& Element : TickingElements)
	{
		const bool bKeep = ResetCount == ResetCountAtStart && FireIfDue(*Element, DeltaTime) && ResetCount == ResetCountAtStart;
		if (bKeep)
		{
			Elements.Add(Element);
		}
		else
		{
			Element->bRemoved = true;
		}
	}
}

bool FTSTicker::FireIfDue(FElement& Element, float DeltaTime)
{
	if (Element.bRemoved)
	{
		return false;
	}
	if (Element.FireTime > CurrentTime)
	{
		return true;
	}
	const bool bReschedule = Element.Function && Element.Function(DeltaTime);
	if (!bReschedule || Element.bRemoved)
	{
		return false;
	}
	Element.FireTime = CurrentTime + Element.DelayTime;
	return true;
}

void FTSTicker::Reset()
{
	for (FElementPtr& Element : Elements)
	{
		Element->bRemoved = true;
	}
	for (FElementPtr& Element : AddedElements)
	{
		Element->bRemoved = true;
	}
	Elements.Reset();
	AddedElements.Reset();
	CurrentTime = 0.0;
	++ResetCount;
}
