#include "UObject/StandInGarbageCollectionStress.h"

#include "UObject/UObjectGlobals.h"

#include <cstdlib>

namespace UE::CoreUObject::StandIn
{
	namespace
	{
		int32& GetStressGuardDepth()
		{
			static int32 Depth = 0;
			return Depth;
		}
	}

	bool IsGarbageCollectionStressEnabled()
	{
		static const bool bEnabled = []()
		{
			const char* Value = std::getenv("VLMR_GC_STRESS");
			return Value != nullptr && Value[0] == '1' && Value[1] == '\0';
		}();
		return bEnabled;
	}

	void CollectGarbageForStress()
	{
		if (IsGarbageCollectionStressEnabled() && GetStressGuardDepth() == 0 && !IsGarbageCollecting())
		{
			CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS, true);
		}
	}

	FGarbageCollectionStressGuard::FGarbageCollectionStressGuard()
	{
		++GetStressGuardDepth();
	}

	FGarbageCollectionStressGuard::~FGarbageCollectionStressGuard()
	{
		--GetStressGuardDepth();
	}
}
