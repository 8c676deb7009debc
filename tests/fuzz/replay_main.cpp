// Gives a fuzz target the files of a folder, one after the other: what was found once stays found.
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>

void fuzz(const std::string& data);

int main(int argc, char** argv) {
  int count = 0;
  for (int n = 1; n < argc; ++n) {
    for (const auto& entry : std::filesystem::recursive_directory_iterator(argv[n])) {
      if (!entry.is_regular_file()) continue;
      std::cout << entry.path().string() << std::endl;
      std::ifstream file(entry.path(), std::ios::binary);
      fuzz(std::string(std::istreambuf_iterator<char>(file), {}));
      ++count;
    }
  }
  return count == 0 ? 1 : 0;
}
