// A handle of Windows that is closed with its owner.
#pragma once

#include <windows.h>

#include <memory>

namespace desktop {

struct HandleCloser {
    using pointer = HANDLE;
    void operator()(HANDLE handle) const { CloseHandle(handle); }
};

/// Empty where the system gave none: of the two values that say so, nullptr is kept and INVALID_HANDLE_VALUE is not.
using WindowsHandle = std::unique_ptr<HANDLE, HandleCloser>;

}  // namespace desktop
