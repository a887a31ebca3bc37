// Any bytes, opened as a codeplug file of any layout.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

#include "reader_properties.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    // The length chooses the document the file is opened into.
    if (const char* broken = reader_properties::checkCodeplugReader(bytes, int(size % 2))) {
        std::fprintf(stderr, "broken promise: %s\n", broken);
        std::abort();
    }
    return 0;
}
