// Any bytes, read as config.ini.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "reader_properties.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    if (const char* broken = reader_properties::checkConfigReader(bytes)) {
        std::fprintf(stderr, "broken promise: %s\n", broken);
        std::abort();
    }
    return 0;
}
