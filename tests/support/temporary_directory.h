// A directory of its own for a test, gone with it.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>

namespace support {

class TemporaryDirectory {
 public:
  TemporaryDirectory() {
    std::string name = (std::filesystem::temp_directory_path() / "tessik-test-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("no temporary directory");
    directory_ = name;
  }
  ~TemporaryDirectory() {
    std::error_code ignored;
    std::filesystem::remove_all(directory_, ignored);
  }
  TemporaryDirectory(const TemporaryDirectory&) = delete;
  TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;

  /// The path of `name` in the directory; of the directory itself when the name is empty.
  [[nodiscard]] std::string path(std::string_view name) const {
    return name.empty() ? directory_.string() : (directory_ / name).string();
  }
  void write(std::string_view name, std::string_view bytes) const {
    std::ofstream(path(name), std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  }
  [[nodiscard]] std::string read(std::string_view name) const {
    std::ifstream file(path(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  }

 private:
  std::filesystem::path directory_;
};

}  // namespace support
