#include "platform/result_file.h"

#include "base/runtime_error.h"
#include "base/text.h"
#include "platform/files.h"
#include "platform/progress.h"

namespace platform {

void ResultFile::open(std::string_view designPath)
{
    // What becomes of the file before is no matter of this one.
    base::quietly([this] { close(); });
    file_.begin(resolve(designPath));
}

void ResultFile::print(std::string_view line)
{
    if (isOpen()) file_.write(base::toWindows1250(line).append("\r\n"));
}

void ResultFile::close()
{
    if (!isOpen()) return;
    const LongWork work("Writing to the disk");
    file_.putInPlace();
}

}  // namespace platform
