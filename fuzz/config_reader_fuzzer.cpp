// Any bytes, read as config.ini: parsing and completing only.
#include "fuzz_input.h"
#include "reader_properties.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    fuzz_input::keep(reader_properties::checkConfigParse(fuzz_input::bytesOf(data, size)));
    return 0;
}
