#include "desktop/sound_messages.h"

namespace desktop {

void silenceSoundLibraries()
{
}

}  // namespace desktop
