// The number of the run-time error that a piece of work raises.
#pragma once

#include <utility>

#include "base/runtime_error.h"

namespace test {

/// 0 when the work raises none.
template <typename Work>
int errorOf(Work&& work)
{
    try {
        std::forward<Work>(work)();
    } catch (const base::RuntimeError& error) {
        return error.number();
    }
    return 0;
}

}  // namespace test
