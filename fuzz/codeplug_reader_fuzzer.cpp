// Any bytes, opened as a codeplug file: parsing only, into documents built once.
#include "fuzz_input.h"
#include "reader_properties.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    // The length chooses the document the file is opened into.
    fuzz_input::keep(reader_properties::checkCodeplugParse(fuzz_input::bytesOf(data, size),
                                                           static_cast<int>(size % 2)));
    return 0;
}
