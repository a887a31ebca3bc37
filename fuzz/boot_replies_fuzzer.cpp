// Whatever the boot loader's side of the line sends back during a read.
#include "boot_properties.h"
#include "fuzz_input.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    fuzz_input::keep(boot_properties::checkBootRead(fuzz_input::bytesOf(data, size)));
    return 0;
}
