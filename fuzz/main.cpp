#include "fuzz/harnesses.h"

#include <QApplication>

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerInitialize(int* count, char*** arguments)
{
    static QApplication application(*count, *arguments);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Fuzz::RULES_FUZZ_HARNESS({reinterpret_cast<const char*>(data), size});
    return 0;
}
