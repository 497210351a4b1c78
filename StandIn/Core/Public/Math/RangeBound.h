// TRangeBound: one end of a TRange, inclusive, exclusive or open.
#pragma once

#include "CoreTypes.h"
#include "Misc/FrameNumber.h"
#include "Templates/TypeHash.h"

namespace ERangeBoundTypes
{
	enum Type : int
	{
		/** The range excludes the bound. */
		Exclusive,

		/** The range includes the bound. */
		Inclusive,

		/** The bound is open (unbounded). */
		Open
	};
}

template<typename ElementType>
class TRangeBound
{
public:
	/** An open bound. */
	TRangeBound()
		: Type(ERangeBoundTypes::Open)
		, Value()
	{
	}

	/** An inclusive bound at InValue. */
	TRangeBound(const ElementType& InValue)
		: Type(ERangeBoundTypes::Inclusive)
		, Value(InValue)
	{
	}

public:
	bool operator==(const TRangeBound& Other) const
	{
		return Type == Other.Type && (IsOpen() || Value == Other.Value);
	}

	bool operator!=(const TRangeBound& Other) const
	{
		return !(*this == Other);
	}

	/** Stand-in choice: an open bound gives its stored default value where the engine fails a check. */
	const ElementType& GetValue() const
	{
		return Value;
	}

	/** Keeps the bound's inclusion; ignored on an open bound. */
	void SetValue(const ElementType& NewValue)
	{
		if (IsClosed())
		{
			Value = NewValue;
		}
	}

	bool IsClosed() const { return Type != ERangeBoundTypes::Open; }
	bool IsExclusive() const { return Type == ERangeBoundTypes::Exclusive; }
	bool IsInclusive() const { return Type == ERangeBoundTypes::Inclusive; }
	bool IsOpen() const { return Type == ERangeBoundTypes::Open; }

	friend uint32 GetTypeHash(const TRangeBound& Bound)
	{
		return GetTypeHash((uint8)Bound.Type) + 23 * GetTypeHash(Bound.Value);
	}

public:
	static TRangeBound Exclusive(const ElementType& InValue)
	{
		TRangeBound Result;
		Result.Type = ERangeBoundTypes::Exclusive;
		Result.Value = InValue;
		return Result;
	}

	static TRangeBound Inclusive(const ElementType& InValue)
	{
		TRangeBound Result;
		Result.Type = ERangeBoundTypes::Inclusive;
		Result.Value = InValue;
		return Result;
	}

	static TRangeBound Open()
	{
		return TRangeBound();
	}

	/** Inclusive becomes exclusive and the other way round; open stays open. */
	static TRangeBound FlipInclusion(const TRangeBound& Bound)
	{
		if (Bound.IsExclusive())
		{
			return Inclusive(Bound.Value);
		}
		if (Bound.IsInclusive())
		{
			return Exclusive(Bound.Value);
		}
		return Bound;
	}

	/** The greater of two lower bounds: open is the least, and at equal values exclusive is greater. */
	static const TRangeBound& MaxLower(const TRangeBound& A, const TRangeBound& B)
	{
		if (A.IsOpen()) { return B; }
		if (B.IsOpen()) { return A; }
		if (A.Value > B.Value) { return A; }
		if (B.Value > A.Value) { return B; }
		return A.IsExclusive() ? A : B;
	}

	/** The greater of two upper bounds: open is the greatest, and at equal values inclusive is greater. */
	static const TRangeBound& MaxUpper(const TRangeBound& A, const TRangeBound& B)
	{
		if (A.IsOpen()) { return A; }
		if (B.IsOpen()) { return B; }
		if (A.Value > B.Value) { return A; }
		if (B.Value > A.Value) { return B; }
		return A.IsInclusive() ? A : B;
	}

	/** The lesser of two lower bounds: open is the least, and at equal values inclusive is lesser. */
	static const TRangeBound& MinLower(const TRangeBound& A, const TRangeBound& B)
	{
		if (A.IsOpen()) { return A; }
		if (B.IsOpen()) { return B; }
		if (A.Value < B.Value) { return A; }
		if (B.Value < A.Value) { return B; }
		return A.IsInclusive() ? A : B;
	}

	/** The lesser of two upper bounds: open is the greatest, and at equal values exclusive is lesser. */
	static const TRangeBound& MinUpper(const TRangeBound& A, const TRangeBound& B)
	{
		if (A.IsOpen()) { return B; }
		if (B.IsOpen()) { return A; }
		if (A.Value < B.Value) { return A; }
		if (B.Value < A.Value) { return B; }
		return A.IsExclusive() ? A : B;
	}

private:
	ERangeBoundTypes::Type Type;
	ElementType Value;
};

