#include "Misc/AutomationTest.h"

FString FAutomationExecutionEntry::ToString() const
{
	FString Result = Event.Message;
	if (!Event.Context.IsEmpty())
	{
		Result += FString::Printf(TEXT(" [%s] "), *Event.Context);
	}
	if (!Filename.IsEmpty() && LineNumber > 0)
	{
		Result += FString::Printf(TEXT(" [%s(%d)]"), *Filename, LineNumber);
	}
	return Result;
}

void FAutomationTestExecutionInfo::Clear()
{
	ContextStack.Reset();
	Entries.Empty();
	AnalyticsItems.Empty();
	Errors = 0;
	Warnings = 0;
}

int32 FAutomationTestExecutionInfo::RemoveAllEvents(EAutomationEventType EventType)
{
	const int32 NumBefore = Entries.Num();
	Entries.RemoveAll([EventType](const FAutomationExecutionEntry& Entry) { return Entry.Event.Type == EventType; });
	const int32 NumRemoved = NumBefore - Entries.Num();
	if (EventType == EAutomationEventType::Error)
	{
		Errors -= NumRemoved;
	}
	else if (EventType == EAutomationEventType::Warning)
	{
		Warnings -= NumRemoved;
	}
	return NumRemoved;
}

void FAutomationTestExecutionInfo::AddEvent(const FAutomationEvent& Event, int StackOffset, bool bCaptureStack)
{
	switch (Event.Type)
	{
	case EAutomationEventType::Warning:
		++Warnings;
		break;
	case EAutomationEventType::Error:
		++Errors;
		break;
	default:
		break;
	}

	const int32 EntryIndex = Entries.Add(FAutomationExecutionEntry(Event));
	FAutomationExecutionEntry& NewEntry = Entries[EntryIndex];
	if (NewEntry.Event.Context.IsEmpty())
	{
		NewEntry.Event.Context = GetContext();
	}
}

void FAutomationTestExecutionInfo::AddWarning(const FString& WarningMessage)
{
	AddEvent(FAutomationEvent(EAutomationEventType::Warning, WarningMessage));
}

void FAutomationTestExecutionInfo::AddError(const FString& ErrorMessage)
{
	AddEvent(FAutomationEvent(EAutomationEventType::Error, ErrorMessage));
}

const FString& FAutomationTestExecutionInfo::GetContext() const
{
	static const FString EmptyContext;
	return ContextStack.Num() > 0 ? ContextStack.Last() : EmptyContext;
}
