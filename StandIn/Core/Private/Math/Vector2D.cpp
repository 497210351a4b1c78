#include "Math/Vector2D.h"

namespace UE::Math
{
	template<> const TVector2<double> TVector2<double>::ZeroVector(0.0, 0.0);
	template<> const TVector2<double> TVector2<double>::UnitVector(1.0, 1.0);
	template<> const TVector2<float> TVector2<float>::ZeroVector(0.f, 0.f);
	template<> const TVector2<float> TVector2<float>::UnitVector(1.f, 1.f);
}
