// FAutomationEvent / FAutomationExecutionEntry: one error, warning or info recorded by an automation test.
#pragma once

#include "CoreTypes.h"
#include "Containers/UnrealString.h"
#include "Misc/DateTime.h"
#include "Misc/Guid.h"

enum class EAutomationEventType : uint8
{
	Info,
	Warning,
	Error
};

struct FAutomationEvent
{
public:
	FAutomationEvent(EAutomationEventType InType, const FString& InMessage)
		: Type(InType)
		, Message(InMessage)
	{
	}

	FAutomationEvent(EAutomationEventType InType, const FString& InMessage, const FString& InContext)
		: Type(InType)
		, Message(InMessage)
		, Context(InContext)
	{
	}

public:
	EAutomationEventType Type;
	FString Message;
	FString Context;
	FGuid Artifact;
};

struct FAutomationExecutionEntry
{
	FAutomationEvent Event;
	FString Filename;
	int32 LineNumber;
	FDateTime Timestamp;

	FAutomationExecutionEntry(FAutomationEvent InEvent)
		: Event(InEvent)
		, LineNumber(-1)
		, Timestamp(FDateTime::UtcNow())
	{
	}

	FAutomationExecutionEntry(FAutomationEvent InEvent, FString InFilename, int32 InLineNumber)
		: Event(InEvent)
		, Filename(InFilename)
		, LineNumber(InLineNumber)
		, Timestamp(FDateTime::UtcNow())
	{
	}

	/** The message, then " [Context] " when there is a context, then " [File(Line)]" when the source is known. */
	CORE_API FString ToString() const;
};
