// Any reply payload, taken as a settings record or as a channel record.
#include "fuzz_input.h"
#include "link_properties.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    fuzz_input::keep(link_properties::checkReplyDecoders(fuzz_input::bytesOf(data, size)));
    return 0;
}
