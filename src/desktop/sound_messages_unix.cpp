#include <QLibrary>

#include "desktop/sound_messages.h"

namespace desktop {

namespace {

/// In the form that the library asks for.
using ErrorHandler = void (*)(const char* file, int line, const char* function, int error, const char* format, ...);

void sayNothing(const char*, int, const char*, int, const char*, ...)
{
}

}  // namespace

void silenceSoundLibraries()
{
    // Only for whoever did not ask for more.
    if (!qEnvironmentVariableIsSet("ALSOFT_LOGLEVEL")) qputenv("ALSOFT_LOGLEVEL", "0");
    QLibrary alsa(QStringLiteral("asound"), 2);
    const auto setHandler = reinterpret_cast<int (*)(ErrorHandler)>(alsa.resolve("snd_lib_error_set_handler"));
    if (setHandler != nullptr) setHandler(sayNothing);
}

}  // namespace desktop
