// Replays inputs through a fuzz target without libFuzzer: each file named, or each file of
// each folder named, goes once to LLVMFuzzerTestOneInput. A crash, a sanitizer report or an
// escaped exception ends the process; otherwise it prints how many inputs ran and exits 0.
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace fs = std::filesystem;

int main(int argc, char** argv) {
  std::vector<fs::path> fichiers;
  for (int i = 1; i < argc; ++i) {
    const fs::path p = argv[i];
    if (fs::is_directory(p)) {
      for (const auto& e : fs::directory_iterator(p))
        if (e.is_regular_file()) fichiers.push_back(e.path());
    } else if (fs::is_regular_file(p)) {
      fichiers.push_back(p);
    } else {
      std::fprintf(stderr, "no such input: %s\n", argv[i]);
      return 2;
    }
  }
  std::sort(fichiers.begin(), fichiers.end());
  for (const auto& f : fichiers) {
    std::ifstream in(f, std::ios::binary);
    const std::string octets((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    std::fprintf(stderr, "%s\n", f.c_str());
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(octets.data()), octets.size());
  }
  std::printf("%zu inputs replayed\n", fichiers.size());
  return 0;
}
