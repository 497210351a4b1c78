// Per-module boilerplate that IMPLEMENT_MODULE expands; a monolithic build needs none of it.
#pragma once

#include "CoreTypes.h"

#define PER_MODULE_BOILERPLATE
#define PER_MODULE_BOILERPLATE_ANYLINK(ModuleImplClass, ModuleName)
