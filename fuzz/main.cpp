#include "fuzz/harnesses.h"

#include <QApplication>

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerInitialize(int* count, char*** arguments)
{
    // Stays until the process ends, as the widgets that a harness keeps do.
    static auto* const application = new QApplication(*count, *arguments);
    return application ? 0 : 1;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Fuzz::RULES_FUZZ_HARNESS({reinterpret_cast<const char*>(data), size});
    return 0;
}
