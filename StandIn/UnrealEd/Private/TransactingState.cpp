#include "TransactingState.h"

bool& UE::UnrealEd::Private::IsTransactingFlag()
{
	static bool bIsTransacting = false;
	return bIsTransacting;
}
