#include "MovieSceneFrameRange.h"

#include "Misc/OutputDevice.h"
#include "UObject/UnrealType.h"

namespace
{
	FString BoundValueText(const TRangeBound<FFrameNumber>& Bound)
	{
		return Bound.IsOpen() ? FString() : FString::Printf(TEXT("%d"), Bound.GetValue().Value);
	}

	void SkipWhitespace(const TCHAR*& Buffer)
	{
		while (FChar::IsWhitespace(*Buffer))
		{
			++Buffer;
		}
	}

	// Reads an optional frame number; no digits make an open bound.
	bool ReadBoundValue(const TCHAR*& Buffer, bool bInclusive, TRangeBound<FFrameNumber>& OutBound)
	{
		SkipWhitespace(Buffer);
		const TCHAR* Start = Buffer;
		if (*Buffer == TEXT('-') || *Buffer == TEXT('+'))
		{
			++Buffer;
		}
		int64 Magnitude = 0;
		const TCHAR* DigitsStart = Buffer;
		while (FChar::IsDigit(*Buffer))
		{
			Magnitude = Magnitude * 10 + (*Buffer - TEXT('0'));
			if (Magnitude > int64(MAX_int32) + 1)
			{
				return false;
			}
			++Buffer;
		}
		if (Buffer == DigitsStart)
		{
			OutBound = TRangeBound<FFrameNumber>::Open();
			return Buffer == Start;
		}
		const int64 Frame = *Start == TEXT('-') ? -Magnitude : Magnitude;
		if (Frame > MAX_int32)
		{
			return false;
		}
		const FFrameNumber FrameNumber{ int32(Frame) };
		OutBound = bInclusive ? TRangeBound<FFrameNumber>::Inclusive(FrameNumber) : TRangeBound<FFrameNumber>::Exclusive(FrameNumber);
		SkipWhitespace(Buffer);
		return true;
	}
}

bool FMovieSceneFrameRange::ExportTextItem(FString& ValueStr, const FMovieSceneFrameRange& DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const
{
	const TRangeBound<FFrameNumber> Lower = Value.GetLowerBound();
	const TRangeBound<FFrameNumber> Upper = Value.GetUpperBound();
	ValueStr += FString::Printf(TEXT("%s%s,%s%s"), Lower.IsInclusive() ? TEXT("[") : TEXT("("), *BoundValueText(Lower),
		*BoundValueText(Upper), Upper.IsInclusive() ? TEXT("]") : TEXT(")"));
	return true;
}

bool FMovieSceneFrameRange::ImportTextItem(const TCHAR*& Buffer, int32 PortFlags, UObject* Parent, FOutputDevice* ErrorText, FArchive* InSerializingArchive)
{
	const TCHAR* Cursor = Buffer;
	SkipWhitespace(Cursor);
	const bool bLowerInclusive = *Cursor == TEXT('[');
	TRangeBound<FFrameNumber> Lower;
	TRangeBound<FFrameNumber> Upper;
	bool bParsed = (*Cursor == TEXT('[') || *Cursor == TEXT('(')) && ReadBoundValue(++Cursor, bLowerInclusive, Lower) && *Cursor == TEXT(',');
	if (bParsed)
	{
		const TCHAR* UpperStart = ++Cursor;
		while (*Cursor && *Cursor != TEXT(']') && *Cursor != TEXT(')'))
		{
			++Cursor;
		}
		const bool bUpperInclusive = *Cursor == TEXT(']');
		bParsed = *Cursor != 0 && ReadBoundValue(UpperStart, bUpperInclusive, Upper) && UpperStart == Cursor;
	}
	if (!bParsed)
	{
		if (ErrorText)
		{
			ErrorText->Log(TEXT("FMovieSceneFrameRange: expected a range such as [0,120000)"));
		}
		return false;
	}
	Value = TRange<FFrameNumber>(Lower, Upper);
	Buffer = Cursor + 1;
	return true;
}

STANDIN_IMPLEMENT_STRUCT(FMovieSceneFrameRange, "LevelSequence")
{
}
