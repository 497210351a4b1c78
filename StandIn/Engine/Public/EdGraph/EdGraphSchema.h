// The answer a graph schema gives when asked whether two pins may be connected.
#pragma once

#include "CoreMinimal.h"
#include "Containers/EnumAsByte.h"

enum ECanCreateConnectionResponse : int
{
	CONNECT_RESPONSE_MAKE,
	CONNECT_RESPONSE_DISALLOW,
	CONNECT_RESPONSE_BREAK_OTHERS_A,
	CONNECT_RESPONSE_BREAK_OTHERS_B,
	CONNECT_RESPONSE_BREAK_OTHERS_AB,
	CONNECT_RESPONSE_MAKE_WITH_CONVERSION_NODE,
	CONNECT_RESPONSE_MAKE_WITH_PROMOTION,
	CONNECT_RESPONSE_MAX,
};

struct FPinConnectionResponse
{
	FPinConnectionResponse()
		: Message()
		, Response(CONNECT_RESPONSE_MAKE)
	{
	}

	FPinConnectionResponse(const ECanCreateConnectionResponse InResponse, FText InMessage)
		: Message(MoveTemp(InMessage))
		, Response(InResponse)
	{
	}

	FPinConnectionResponse(const ECanCreateConnectionResponse InResponse, const TCHAR* InMessage)
		: Message(FText::FromString(InMessage))
		, Response(InResponse)
	{
	}

	bool CanSafeConnect() const { return Response == CONNECT_RESPONSE_MAKE; }
	bool IsFatal() const { return Response == CONNECT_RESPONSE_DISALLOW; }

	FText Message;
	TEnumAsByte<ECanCreateConnectionResponse> Response;
};
