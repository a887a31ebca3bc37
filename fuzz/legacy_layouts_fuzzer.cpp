// Any lines, read by one of the old line-per-value readers. Random bytes almost never have the
// exact line count that chooses an old layout, so the first byte chooses it here and the lines
// are cut or padded to its count.
#include "fuzz_input.h"
#include "reader_properties.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size == 0) return 0;
    fuzz_input::keep(
        reader_properties::checkLegacyLayouts(fuzz_input::bytesOf(data + 1, size - 1), data[0]));
    return 0;
}
