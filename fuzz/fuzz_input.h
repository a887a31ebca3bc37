#pragma once

// What every fuzz target shares: the input as bytes, and how a broken promise ends the run.

#include <QByteArray>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace fuzz_input {

inline QByteArray bytesOf(const uint8_t* data, size_t size) {
    return QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
}

// libFuzzer keeps the input that made a target abort.
inline void keep(const char* broken) {
    if (!broken) return;
    std::fprintf(stderr, "broken promise: %s\n", broken);
    std::abort();
}

}  // namespace fuzz_input
