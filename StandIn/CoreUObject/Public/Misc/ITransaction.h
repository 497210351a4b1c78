// ITransaction: the undo buffer's interface as UObject::Modify sees it.
#pragma once

#include "CoreMinimal.h"

class UObject;

// Stand-in choice: declared in CoreUObject (the engine has it in Core) because it is only reached through UObject::Modify.
class COREUOBJECT_API ITransaction
{
public:
	virtual ~ITransaction() = default;

	// Records the object's current state in the active transaction; false when it was not recorded.
	virtual bool SaveObject(UObject* Object) = 0;
};

// The active transaction while one is open, else null.
COREUOBJECT_API extern ITransaction* GUndo;
