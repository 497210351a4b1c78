// Reflection of the Core value types (TBaseStructure<T>), in the package "/Script/CoreUObject".

#include "UObject/UnrealType.h"
#include "Misc/DateTime.h"
#include "Misc/EngineVersionComparison.h"
#include "Misc/FrameNumber.h"
#include "Misc/FrameRate.h"
#include "Misc/Guid.h"
#include "Misc/Timecode.h"
#include "Misc/Timespan.h"
#include "Math/Color.h"
#include "Math/IntPoint.h"
#include "Math/IntRect.h"
#include "Math/Vector2D.h"

namespace
{
	// FDateTime's text is its ToString() form, "YYYY.MM.DD-HH.MM.SS", as the engine's FDateTime::ExportTextItem writes it.
	bool ExportDateTimeText(FString& ValueStr, const void* Value, const void* Default, UObject* Parent, int32 PortFlags, UObject* ExportRootScope)
	{
		ValueStr += static_cast<const FDateTime*>(Value)->ToString();
		return true;
	}

	bool ImportDateTimeText(const TCHAR*& Buffer, void* Value, int32 PortFlags, UObject* Parent, FOutputDevice* ErrorText)
	{
		constexpr int32 ExportedLength = 19;
		if (FCString::Strlen(Buffer) < ExportedLength)
		{
			return false;
		}
		FDateTime Parsed;
		if (!FDateTime::Parse(FString(ExportedLength, Buffer), Parsed))
		{
			return false;
		}
		*static_cast<FDateTime*>(Value) = Parsed;
		Buffer += ExportedLength;
		return true;
	}
}

STANDIN_IMPLEMENT_BASE_STRUCTURE(FIntPoint, "CoreUObject")
{
	STANDIN_PROPERTY(X, CPF_Edit);
	STANDIN_PROPERTY(Y, CPF_Edit);
}

STANDIN_IMPLEMENT_BASE_STRUCTURE(FIntRect, "CoreUObject")
{
	STANDIN_PROPERTY(Min, CPF_Edit);
	STANDIN_PROPERTY(Max, CPF_Edit);
}

STANDIN_IMPLEMENT_BASE_STRUCTURE(FVector2D, "CoreUObject")
{
	Builder.AddStructFlags(STRUCT_Atomic | STRUCT_Immutable);
	STANDIN_PROPERTY(X, CPF_Edit);
	STANDIN_PROPERTY(Y, CPF_Edit);
}

STANDIN_IMPLEMENT_BASE_STRUCTURE(FLinearColor, "CoreUObject")
{
	Builder.AddStructFlags(STRUCT_Atomic | STRUCT_Immutable);
	STANDIN_PROPERTY(R, CPF_Edit);
	STANDIN_PROPERTY(G, CPF_Edit);
	STANDIN_PROPERTY(B, CPF_Edit);
	STANDIN_PROPERTY(A, CPF_Edit);
}

STANDIN_IMPLEMENT_BASE_STRUCTURE(FColor, "CoreUObject")
{
	Builder.AddStructFlags(STRUCT_Atomic | STRUCT_Immutable);
	STANDIN_PROPERTY(B, CPF_Edit);
	STANDIN_PROPERTY(G, CPF_Edit);
	STANDIN_PROPERTY(R, CPF_Edit);
	STANDIN_PROPERTY(A, CPF_Edit);
}

STANDIN_IMPLEMENT_BASE_STRUCTURE(FGuid, "CoreUObject")
{
	Builder.AddStructFlags(STRUCT_Atomic | STRUCT_Immutable);
	STANDIN_PROPERTY(A, CPF_Edit);
	STANDIN_PROPERTY(B, CPF_Edit);
	STANDIN_PROPERTY(C, CPF_Edit);
	STANDIN_PROPERTY(D, CPF_Edit);
}

STANDIN_IMPLEMENT_BASE_STRUCTURE(FFrameRate, "CoreUObject")
{
	STANDIN_PROPERTY(Numerator, CPF_Edit);
	STANDIN_PROPERTY(Denominator, CPF_Edit);
}

STANDIN_IMPLEMENT_BASE_STRUCTURE(FFrameNumber, "CoreUObject")
{
	STANDIN_PROPERTY(Value, CPF_Edit);
}

STANDIN_IMPLEMENT_BASE_STRUCTURE(FDateTime, "CoreUObject")
{
	// The only member of FDateTime is its private Ticks count.
	static_assert(sizeof(FDateTime) == sizeof(int64), "FDateTime holds nothing but its ticks");
	Builder.AddStructFlags(STRUCT_Atomic | STRUCT_Immutable);
	Builder.AddProperty<int64>(TEXT("Ticks"), 0, CPF_None);
	Builder.SetNativeTextItem(&ExportDateTimeText, &ImportDateTimeText);
}

STANDIN_IMPLEMENT_BASE_STRUCTURE(FTimespan, "CoreUObject")
{
	// The only member of FTimespan is its private Ticks count.
	static_assert(sizeof(FTimespan) == sizeof(int64), "FTimespan holds nothing but its ticks");
	Builder.AddStructFlags(STRUCT_Atomic | STRUCT_Immutable);
	Builder.AddProperty<int64>(TEXT("Ticks"), 0, CPF_None);
}

STANDIN_IMPLEMENT_BASE_STRUCTURE(FTimecode, "CoreUObject")
{
	STANDIN_PROPERTY(Hours, CPF_Edit);
	STANDIN_PROPERTY(Minutes, CPF_Edit);
	STANDIN_PROPERTY(Seconds, CPF_Edit);
	STANDIN_PROPERTY(Frames, CPF_Edit);
#if !UE_VERSION_OLDER_THAN(5, 5, 0)
	STANDIN_PROPERTY(Subframe, CPF_Edit);
#endif
	STANDIN_PROPERTY(bDropFrameFormat, CPF_Edit);
}
