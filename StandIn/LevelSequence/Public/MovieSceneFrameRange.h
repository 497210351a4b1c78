// A movie scene's playback range in tick-resolution frames.
#pragma once

#include "CoreMinimal.h"
#include "Math/Range.h"
#include "Misc/FrameNumber.h"
#include "UObject/ObjectMacros.h"

class FOutputDevice;
class FArchive;

USTRUCT()
struct LEVELSEQUENCE_API FMovieSceneFrameRange
{
	STANDIN_STRUCT_BODY(FMovieSceneFrameRange, LEVELSEQUENCE_API)

public:
	FMovieSceneFrameRange() = default;
	explicit FMovieSceneFrameRange(const TRange<FFrameNumber>& InValue) : Value(InValue) {}

	// Stand-in choice of the text form: interval notation, "[0,120000)"; an open bound has no number: "[0,)".
	bool ExportTextItem(FString& ValueStr, const FMovieSceneFrameRange& DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const;
	bool ImportTextItem(const TCHAR*& Buffer, int32 PortFlags, UObject* Parent, FOutputDevice* ErrorText, FArchive* InSerializingArchive = nullptr);

	bool operator==(const FMovieSceneFrameRange& Other) const { return Value == Other.Value; }
	bool operator!=(const FMovieSceneFrameRange& Other) const { return !(*this == Other); }

	TRange<FFrameNumber> Value;
};
