#pragma once

#include "HAL/Platform.h"

enum class ESPMode : uint8
{
	NotThreadSafe = 0,
	ThreadSafe = 1,
	Fast = 0,
};

template <class ObjectType, ESPMode Mode = ESPMode::ThreadSafe> class TSharedRef;
template <class ObjectType, ESPMode Mode = ESPMode::ThreadSafe> class TSharedPtr;
template <class ObjectType, ESPMode Mode = ESPMode::ThreadSafe> class TWeakPtr;
template <class ObjectType, ESPMode Mode = ESPMode::ThreadSafe> class TSharedFromThis;
