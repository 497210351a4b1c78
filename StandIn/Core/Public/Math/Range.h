// TRange: a contiguous interval between a lower and an upper TRangeBound.
#pragma once

#include "CoreTypes.h"
#include "Math/RangeBound.h"
#include "Misc/FrameNumber.h"
#include "Templates/TypeHash.h"

template<typename ElementType>
class TRange
{
public:
	using BoundsType = TRangeBound<ElementType>;

	/** Both bounds open: the range of all values. */
	TRange() = default;

	/** The degenerate range [A, A]. */
	explicit TRange(const ElementType& A)
		: LowerBound(BoundsType::Inclusive(A))
		, UpperBound(BoundsType::Inclusive(A))
	{
	}

	/** [A, B): inclusive lower bound, exclusive upper bound. */
	explicit TRange(const ElementType& A, const ElementType& B)
		: LowerBound(BoundsType::Inclusive(A))
		, UpperBound(BoundsType::Exclusive(B))
	{
	}

	explicit TRange(const BoundsType& InLowerBound, const BoundsType& InUpperBound)
		: LowerBound(InLowerBound)
		, UpperBound(InUpperBound)
	{
	}

	bool operator==(const TRange& Other) const
	{
		if (IsEmpty() && Other.IsEmpty())
		{
			return true;
		}
		return LowerBound == Other.LowerBound && UpperBound == Other.UpperBound;
	}

	bool operator!=(const TRange& Other) const
	{
		return !(*this == Other);
	}

public:
	/** True if the ranges touch without overlapping, e.g. [1, 5) and [5, 10). */
	bool Adjoins(const TRange& Other) const
	{
		if (IsEmpty() || Other.IsEmpty())
		{
			return false;
		}
		if (UpperBound.IsClosed() && Other.LowerBound.IsClosed() && UpperBound.GetValue() == Other.LowerBound.GetValue())
		{
			return UpperBound.IsInclusive() != Other.LowerBound.IsInclusive();
		}
		if (Other.UpperBound.IsClosed() && LowerBound.IsClosed() && Other.UpperBound.GetValue() == LowerBound.GetValue())
		{
			return Other.UpperBound.IsInclusive() != LowerBound.IsInclusive();
		}
		return false;
	}

	/** True if the ranges overlap or touch. */
	bool Conjoins(const TRange& X, const TRange& Y) const
	{
		if (X.Overlaps(Y))
		{
			return false;
		}
		return Adjoins(X) && Adjoins(Y);
	}

	bool Contains(const ElementType& Element) const
	{
		return IsAboveLowerBound(Element) && IsBelowUpperBound(Element);
	}

	bool Contains(const TRange& Other) const
	{
		return BoundsType::MinLower(LowerBound, Other.LowerBound) == LowerBound
			&& BoundsType::MaxUpper(UpperBound, Other.UpperBound) == UpperBound;
	}

	/** True if the ranges overlap or touch, so that their union is a single range. */
	bool Contiguous(const TRange& Other) const
	{
		return Overlaps(Other) || Adjoins(Other);
	}

	BoundsType GetLowerBound() const { return LowerBound; }
	BoundsType GetUpperBound() const { return UpperBound; }
	void SetLowerBound(const BoundsType& NewBound) { LowerBound = NewBound; }
	void SetUpperBound(const BoundsType& NewBound) { UpperBound = NewBound; }
	void SetLowerBoundValue(const ElementType& NewValue) { LowerBound.SetValue(NewValue); }
	void SetUpperBoundValue(const ElementType& NewValue) { UpperBound.SetValue(NewValue); }
	ElementType GetLowerBoundValue() const { return LowerBound.GetValue(); }
	ElementType GetUpperBoundValue() const { return UpperBound.GetValue(); }
	bool HasLowerBound() const { return LowerBound.IsClosed(); }
	bool HasUpperBound() const { return UpperBound.IsClosed(); }

	/** True for a range [A, A] that contains exactly one value. */
	bool IsDegenerate() const
	{
		return LowerBound.IsInclusive() && LowerBound == UpperBound;
	}

	/** True when no value lies inside: the lower value above the upper one, or equal values with an exclusive bound. */
	bool IsEmpty() const
	{
		if (LowerBound.IsClosed() && UpperBound.IsClosed())
		{
			if (LowerBound.GetValue() > UpperBound.GetValue())
			{
				return true;
			}
			return LowerBound.GetValue() == UpperBound.GetValue() && (LowerBound.IsExclusive() || UpperBound.IsExclusive());
		}
		return false;
	}

	/** True if at least one value lies in both ranges. */
	bool Overlaps(const TRange& Other) const
	{
		if (IsEmpty() || Other.IsEmpty())
		{
			return false;
		}
		return EndsAfterStartOf(*this, Other) && EndsAfterStartOf(Other, *this);
	}

	/** Upper minus lower value; Stand-in choice: an open bound gives DifferenceType() where the engine fails a check. */
	template<typename DifferenceType>
	DifferenceType Size() const
	{
		if (!LowerBound.IsClosed() || !UpperBound.IsClosed())
		{
			return DifferenceType();
		}
		return static_cast<DifferenceType>(UpperBound.GetValue() - LowerBound.GetValue());
	}

public:
	/** The smallest range that contains both. */
	static TRange Hull(const TRange& X, const TRange& Y)
	{
		if (X.IsEmpty())
		{
			return Y;
		}
		if (Y.IsEmpty())
		{
			return X;
		}
		return TRange(BoundsType::MinLower(X.LowerBound, Y.LowerBound), BoundsType::MaxUpper(X.UpperBound, Y.UpperBound));
	}

	/** The values in both ranges, or Empty() when they do not overlap. */
	static TRange Intersection(const TRange& X, const TRange& Y)
	{
		if (!X.Overlaps(Y))
		{
			return Empty();
		}
		return TRange(BoundsType::MaxLower(X.LowerBound, Y.LowerBound), BoundsType::MinUpper(X.UpperBound, Y.UpperBound));
	}

	static TRange All() { return TRange(BoundsType::Open(), BoundsType::Open()); }
	static TRange AtLeast(const ElementType& Value) { return TRange(BoundsType::Inclusive(Value), BoundsType::Open()); }
	static TRange AtMost(const ElementType& Value) { return TRange(BoundsType::Open(), BoundsType::Inclusive(Value)); }
	static TRange Empty() { return TRange(BoundsType::Exclusive(ElementType()), BoundsType::Exclusive(ElementType())); }
	static TRange Exclusive(const ElementType& Min, const ElementType& Max) { return TRange(BoundsType::Exclusive(Min), BoundsType::Exclusive(Max)); }
	static TRange GreaterThan(const ElementType& Value) { return TRange(BoundsType::Exclusive(Value), BoundsType::Open()); }
	static TRange Inclusive(const ElementType& Min, const ElementType& Max) { return TRange(BoundsType::Inclusive(Min), BoundsType::Inclusive(Max)); }
	static TRange LessThan(const ElementType& Value) { return TRange(BoundsType::Open(), BoundsType::Exclusive(Value)); }

	friend uint32 GetTypeHash(const TRange& Range)
	{
		return HashCombine(GetTypeHash(Range.LowerBound), GetTypeHash(Range.UpperBound));
	}

private:
	bool IsAboveLowerBound(const ElementType& Element) const
	{
		if (LowerBound.IsOpen())
		{
			return true;
		}
		return LowerBound.IsInclusive() ? !(Element < LowerBound.GetValue()) : LowerBound.GetValue() < Element;
	}

	bool IsBelowUpperBound(const ElementType& Element) const
	{
		if (UpperBound.IsOpen())
		{
			return true;
		}
		return UpperBound.IsInclusive() ? !(UpperBound.GetValue() < Element) : Element < UpperBound.GetValue();
	}

	/** True if First's upper bound lies at or after Second's lower bound, so that they share a value there. */
	static bool EndsAfterStartOf(const TRange& First, const TRange& Second)
	{
		if (First.UpperBound.IsOpen() || Second.LowerBound.IsOpen())
		{
			return true;
		}
		const bool bEitherExclusive = First.UpperBound.IsExclusive() || Second.LowerBound.IsExclusive();
		return bEitherExclusive
			? Second.LowerBound.GetValue() < First.UpperBound.GetValue()
			: !(First.UpperBound.GetValue() < Second.LowerBound.GetValue());
	}

	BoundsType LowerBound;
	BoundsType UpperBound;
};

