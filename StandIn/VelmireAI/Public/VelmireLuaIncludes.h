// The one way host and extensions include Lua and sol2: compiled without exceptions and RTTI, as the engine builds,
// with the engine's `check` macro saved around sol2 (sol2 uses `check` as an identifier).
#pragma once

#include "CoreMinimal.h"

#ifndef SOL_NO_EXCEPTIONS
#define SOL_NO_EXCEPTIONS 1
#endif
#ifndef SOL_NO_RTTI
#define SOL_NO_RTTI 1
#endif
#ifndef SOL_ALL_SAFETIES_ON
#define SOL_ALL_SAFETIES_ON 1
#endif
#ifndef SOL_USING_CXX_LUA
#define SOL_USING_CXX_LUA 0
#endif

#pragma push_macro("check")
#undef check
#include <lua.hpp>
#include "sol/sol.hpp"
#pragma pop_macro("check")
