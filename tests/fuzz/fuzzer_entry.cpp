// One fuzzer: the target KELVO_FUZZ_TARGET under the engine of the compiler.
#include <cstdlib>
#include <iostream>

#include "fuzz/targets.h"
#include "fuzz/watch.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const fuzz::Target& target = *fuzz::targetNamed(KELVO_FUZZ_TARGET);
    try {
        target.run({data, size}, {});
    } catch (const fuzz::Broken& broken) {
        std::cerr << "\nBroken: " << broken.what << '\n';
        std::abort();
    }
    return 0;
}
