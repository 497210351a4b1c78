// EPropertyPortFlags: the flags of property text export and import (declared with the other flags in ObjectMacros.h).
#pragma once

#include "UObject/ObjectMacros.h"
