// Any bytes, imported as a CSV file; an imported plan goes out and back in again.
#include "csv_properties.h"
#include "fuzz_input.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    // The length chooses the document the file is imported into.
    fuzz_input::keep(csv_properties::checkCsvImport(fuzz_input::bytesOf(data, size),
                                                    static_cast<int>(size % 2)));
    return 0;
}
