#include "Misc/FrameTime.h"

const float FFrameTime::MaxSubframe = 0.99999994f;
