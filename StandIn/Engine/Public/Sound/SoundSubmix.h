// Sound submixes: audio routing targets a render may capture; the stand-in keeps only the class hierarchy.
#pragma once

#include "CoreMinimal.h"
#include "UObject/ObjectMacros.h"
#include "UObject/Object.h"

class ENGINE_API USoundSubmixBase : public UObject
{
	STANDIN_CLASS_BODY(USoundSubmixBase, UObject, ENGINE_API)

public:
	USoundSubmixBase();
};

class ENGINE_API USoundSubmixWithParentBase : public USoundSubmixBase
{
	STANDIN_CLASS_BODY(USoundSubmixWithParentBase, USoundSubmixBase, ENGINE_API)

public:
	USoundSubmixWithParentBase();
};

class ENGINE_API USoundSubmix : public USoundSubmixWithParentBase
{
	STANDIN_CLASS_BODY(USoundSubmix, USoundSubmixWithParentBase, ENGINE_API)

public:
	USoundSubmix();
};
