// Without libFuzzer, a fuzz target is a plain program that replays a corpus:
// every file named, or every file of every folder named, is one input. A
// crash, a sanitizer report or an abort of the target's checks fails it.
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* datos, size_t largo);
extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv);

int main(int argc, char** argv) {
    LLVMFuzzerInitialize(&argc, &argv);
    namespace fs = std::filesystem;
    std::vector<fs::path> entradas;
    for (int i = 1; i < argc; ++i) {
        const fs::path p(argv[i]);
        if (fs::is_directory(p)) {
            for (const auto& f : fs::directory_iterator(p))
                if (f.is_regular_file()) entradas.push_back(f.path());
        } else {
            entradas.push_back(p);
        }
    }
    std::sort(entradas.begin(), entradas.end());
    for (const fs::path& p : entradas) {
        std::ifstream f(p, std::ios::binary);
        if (!f) {
            std::fprintf(stderr, "no se puede leer %s\n", p.c_str());
            return 1;
        }
        const std::string bytes((std::istreambuf_iterator<char>(f)), std::istreambuf_iterator<char>());
        LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t*>(bytes.data()), bytes.size());
    }
    std::printf("%zu entradas repetidas\n", entradas.size());
    return entradas.empty() ? 1 : 0;
}
