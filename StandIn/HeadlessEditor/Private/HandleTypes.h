// The handle tables scripts receive from the Movie Render Queue and Graph bindings: their data fields and methods,
// in the order the bindings put them into the table. vlmr keeps this list to declare the handle classes for LuaLS.
#pragma once

#include "CoreMinimal.h"

namespace UE::Vlmr
{
	struct FHandleType
	{
		const TCHAR* Kind;
		TArray<const TCHAR*> StringFields;
		TArray<const TCHAR*> Methods;
	};

	const TArray<FHandleType>& GetHandleTypes();
}
