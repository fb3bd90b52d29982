// The splitting of double-byte text into characters, and their decoding by the C library.
#include "editor/double_byte.h"

#include <iconv.h>

#include <array>

#include "base/text.h"

namespace editor {
namespace {

constexpr char32_t kUndecodable = 0xFFFD;

unsigned char valueOf(char byte) { return static_cast<unsigned char>(byte); }

// In the Japanese page the bytes A0 to DF are half-width letters by themselves.
bool isLead(int page, unsigned char byte) {
  if (page == 932) return (byte >= 0x81 && byte <= 0x9F) || (byte >= 0xE0 && byte <= 0xFC);
  return byte >= 0x81 && byte <= 0xFE;
}

bool isTrail(unsigned char byte) { return byte >= 0x31 && byte != 0x7F && byte != 0xFF; }

// A conversion of the C library from one code page to UTF-8, for as long as a stretch of text takes.
class Conversion {
 public:
  explicit Conversion(int page) : handle_(iconv_open("UTF-8", ("CP" + std::to_string(page)).c_str())) {}
  Conversion(const Conversion&) = delete;
  Conversion& operator=(const Conversion&) = delete;
  ~Conversion() {
    if (isOpen()) iconv_close(handle_);
  }

  void append(std::string& text, std::string_view character) {
    std::array<char, 16> converted{};
    std::string bytes(character);
    char* from = bytes.data();
    std::size_t left = bytes.size();
    char* to = converted.data();
    std::size_t room = converted.size();
    const bool failed = !isOpen() || iconv(handle_, &from, &left, &to, &room) == static_cast<std::size_t>(-1);
    if (failed && isOpen()) iconv(handle_, nullptr, nullptr, nullptr, nullptr);
    if (failed) return base::appendCodePoint(text, kUndecodable);
    text.append(converted.data(), converted.size() - room);
  }

 private:
  // NOLINTNEXTLINE(performance-no-int-to-ptr): the interface's own way to say that there is no conversion.
  [[nodiscard]] bool isOpen() const { return handle_ != reinterpret_cast<iconv_t>(-1); }

  iconv_t handle_;
};

}  // namespace

void appendDoubleByte(std::string& text, int page, std::string_view bytes) {
  Conversion conversion(page);
  while (!bytes.empty()) {
    const unsigned char first = valueOf(bytes.front());
    const bool pair = isLead(page, first) && bytes.size() > 1 && isTrail(valueOf(bytes[1]));
    if (first < 0x80) {
      text += bytes.front();
    } else if (page == 936 && first == 0x80) {
      base::appendCodePoint(text, U'€');
    } else {
      conversion.append(text, bytes.substr(0, pair ? 2 : 1));
    }
    bytes.remove_prefix(pair ? 2 : 1);
  }
}

}  // namespace editor
