// Any bytes, as a codeplug file and as config.ini: what a reader makes of them survives being
// saved and read again. Slower than the parse-only targets, so it runs on its own.
#include "fuzz_input.h"
#include "reader_properties.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const QByteArray bytes = fuzz_input::bytesOf(data, size);
    fuzz_input::keep(reader_properties::checkCodeplugReader(bytes, static_cast<int>(size % 2)));
    fuzz_input::keep(reader_properties::checkConfigReader(bytes));
    return 0;
}
