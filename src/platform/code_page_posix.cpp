#include <iconv.h>

#include <array>
#include <cstring>
#include <memory>
#include <string>

#include "platform/code_page.h"

namespace tamrikon {
namespace {

class IconvTables final : public CodePageTables {
 public:
  explicit IconvTables(int number)
      : converter_(::iconv_open("UTF-32LE", encodingName(number).c_str())) {}
  IconvTables(const IconvTables&) = delete;
  IconvTables& operator=(const IconvTables&) = delete;
  ~IconvTables() override {
    if (isOpen()) ::iconv_close(converter_);
  }

  // POSIX says that a converter of -1 is none. NOLINTNEXTLINE(performance-no-int-to-ptr)
  bool isOpen() const { return converter_ != reinterpret_cast<iconv_t>(-1); }

  std::optional<char32_t> decode(std::string_view bytes) override {
    std::string input(bytes);
    char* from = input.data();
    std::size_t fromLeft = input.size();
    std::array<char, 16> output{};
    char* to = output.data();
    std::size_t toLeft = output.size();
    ::iconv(converter_, nullptr, nullptr, nullptr, nullptr);
    if (::iconv(converter_, &from, &fromLeft, &to, &toLeft) == static_cast<std::size_t>(-1)) {
      return std::nullopt;
    }
    // Pages with combining marks hold a letter back until they know what follows it.
    ::iconv(converter_, nullptr, nullptr, &to, &toLeft);
    if (output.size() - toLeft != 4) return std::nullopt;
    char32_t codePoint;
    std::memcpy(&codePoint, output.data(), 4);
    return codePoint;
  }

 private:
  static std::string encodingName(int number) {
    return (number == 874 ? "WINDOWS-" : "CP") + std::to_string(number);
  }

  iconv_t converter_;
};

}  // namespace

std::unique_ptr<CodePageTables> platformCodePage(int number) {
  auto tables = std::make_unique<IconvTables>(number);
  if (!tables->isOpen()) return nullptr;
  return tables;
}

}  // namespace tamrikon
