// Forward declarations of the Core types.
#pragma once

#include "CoreTypes.h"
#include "Containers/ContainersFwd.h"
#include "Templates/SharedPointerFwd.h"

class FName;
class FText;
class FString;
class FOutputDevice;
class FFeedbackContext;
class FOutputDeviceRedirector;
class FDelegateHandle;
template <typename FuncType> class TFunction;
template <typename FuncType> class TFunctionRef;
template <typename FuncType> class TUniqueFunction;
template <typename OptionalType> struct TOptional;
template <typename T, typename Deleter> class TUniquePtr;
