#include "Math/IntPoint.h"

namespace UE::Math
{
	template<> const TIntPoint<int32> TIntPoint<int32>::ZeroValue(0, 0);
	template<> const TIntPoint<int32> TIntPoint<int32>::NoneValue(INDEX_NONE, INDEX_NONE);
	template<> const TIntPoint<int64> TIntPoint<int64>::ZeroValue(0, 0);
	template<> const TIntPoint<int64> TIntPoint<int64>::NoneValue(INDEX_NONE, INDEX_NONE);
	template<> const TIntPoint<uint32> TIntPoint<uint32>::ZeroValue(0, 0);
	template<> const TIntPoint<uint32> TIntPoint<uint32>::NoneValue(MAX_uint32, MAX_uint32);
}
