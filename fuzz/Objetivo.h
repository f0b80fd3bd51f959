// What every fuzz target shares: the entry points libFuzzer calls, and the
// way a target says that an input broke a rule the program promises.
#pragma once
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* datos, size_t largo);
extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv);

namespace vedrano::fuzz {

// A broken promise is a crash for the fuzzer: it keeps the input.
[[noreturn]] inline void Incumple(const char* promesa) {
    std::fprintf(stderr, "incumplido: %s\n", promesa);
    std::abort();
}

}  // namespace vedrano::fuzz
