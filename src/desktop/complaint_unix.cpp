#include <cstdio>

#include "desktop/complaint.h"

namespace desktop {

void complain(const QString& text)
{
    std::fprintf(stderr, "%s\n", qPrintable(text));
}

}  // namespace desktop
