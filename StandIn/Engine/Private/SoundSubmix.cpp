#include "Sound/SoundSubmix.h"
#include "UObject/UnrealType.h"

USoundSubmixBase::USoundSubmixBase() = default;

STANDIN_IMPLEMENT_CLASS(USoundSubmixBase, CLASS_Abstract, "Engine")
{
}

USoundSubmixWithParentBase::USoundSubmixWithParentBase() = default;

STANDIN_IMPLEMENT_CLASS(USoundSubmixWithParentBase, CLASS_Abstract, "Engine")
{
}

USoundSubmix::USoundSubmix() = default;

STANDIN_IMPLEMENT_CLASS(USoundSubmix, CLASS_None, "Engine")
{
}
