#include "platform/code_page.h"

#include <algorithm>
#include <iterator>
#include <map>

#include "base/utf8.h"

namespace tamrikon {
namespace {

struct PageName {
  int number;
  std::string_view webName;
};

// Names of the WHATWG Encoding Standard.
constexpr PageName kPages[] = {
    {874, "windows-874"},   {932, "shift_jis"},     {936, "gbk"},
    {949, "euc-kr"},        {950, "big5"},          {1250, "windows-1250"},
    {1251, "windows-1251"}, {1252, "windows-1252"}, {1253, "windows-1253"},
    {1254, "windows-1254"}, {1255, "windows-1255"}, {1256, "windows-1256"},
    {1257, "windows-1257"}, {1258, "windows-1258"}, {kUtf8CodePage, "utf-8"},
};

/// Whether the pair is there for reading alone, as Windows writes its character as a later pair.
bool isReadOnlyPair(int page, unsigned pair) {
  if (page == 932) return pair >= 0xED40 && pair <= 0xEEFC;
  return page == 950 && ((pair >= 0xA2A4 && pair <= 0xA2A7) || pair == 0xA2CC || pair == 0xA2CE);
}

unsigned char byteAt(std::string_view bytes, std::size_t offset) {
  return static_cast<unsigned char>(bytes[offset]);
}

/// Copies the run of ASCII at `offset`; most texts are nothing else.
void copyAscii(std::string& to, std::string_view from, std::size_t& offset) {
  const std::size_t start = offset;
  while (offset < from.size() && byteAt(from, offset) < 0x80) ++offset;
  to.append(from, start, offset - start);
}

}  // namespace

const CodePage* CodePage::find(int number) {
  // Immutable once made, so that sharing them isn't shared state.
  static std::map<int, std::unique_ptr<const CodePage>> pages;
  const bool known = std::any_of(std::begin(kPages), std::end(kPages),
                                 [&](const PageName& page) { return page.number == number; });
  if (!known) return nullptr;
  std::unique_ptr<const CodePage>& page = pages[number];
  if (!page) page.reset(new CodePage(number));
  return page.get();
}

const std::vector<int>& CodePage::numbers() {
  static const std::vector<int> numbers = [] {
    std::vector<int> all;
    for (const PageName& page : kPages) all.push_back(page.number);
    return all;
  }();
  return numbers;
}

std::string_view CodePage::webName() const {
  return std::find_if(std::begin(kPages), std::end(kPages),
                      [&](const PageName& page) { return page.number == number_; })
      ->webName;
}

CodePage::CodePage(int number)
    : number_(number),
      isDoubleByte_(number == 932 || number == 936 || number == 949 || number == 950) {
  if (number_ != kUtf8CodePage) fillTables();
}

void CodePage::fillTables() {
  const std::unique_ptr<CodePageTables> tables = platformCodePage(number_);
  const auto lookUp = [&](std::string_view bytes) {
    return tables ? tables->decode(bytes).value_or(0) : 0;
  };
  const auto remember = [&](char32_t codePoint, unsigned bytes) {
    bytesOf_.try_emplace(codePoint, static_cast<std::uint16_t>(bytes));
  };
  for (unsigned byte = 0x80; byte <= 0xFF; ++byte) {
    const char alone = static_cast<char>(byte);
    single_[byte] = lookUp(std::string_view(&alone, 1));
    if (single_[byte] != 0) remember(single_[byte], byte);
  }
  if (number_ == 936) {
    single_[0x80] = 0x20AC;  // the euro sign, which GBK proper lacks there
    remember(0x20AC, 0x80);
  }
  if (isDoubleByte_) {
    pairs_.resize(std::size_t{256} * 256);
    for (unsigned lead = 0x81; lead <= 0xFE; ++lead) {
      if (single_[lead] != 0) continue;
      for (unsigned second = 0x30; second <= 0xFE; ++second) {
        const char pair[] = {static_cast<char>(lead), static_cast<char>(second)};
        const char32_t codePoint = lookUp(std::string_view(pair, 2));
        if (codePoint == 0 || codePoint > 0xFFFF) continue;
        pairs_[lead * 256 + second] = static_cast<char16_t>(codePoint);
        const unsigned bytes = lead * 256 + second;
        if (!isReadOnlyPair(number_, bytes)) remember(codePoint, bytes);
      }
    }
  }
  for (unsigned byte = 0x80; byte <= 0xFF; ++byte) {
    if (single_[byte] == 0) remember(byte, byte);
  }
}

std::string CodePage::decode(std::string_view bytes) const {
  if (number_ == kUtf8CodePage && isValidUtf8(bytes)) return std::string(bytes);
  std::string text;
  text.reserve(bytes.size() + bytes.size() / 8);
  for (std::size_t offset = 0; offset < bytes.size();) {
    copyAscii(text, bytes, offset);
    if (offset < bytes.size()) appendDecoded(text, bytes, offset);
  }
  return text;
}

void CodePage::appendDecoded(std::string& text, std::string_view bytes, std::size_t& offset) const {
  const unsigned lead = byteAt(bytes, offset);
  if (number_ == kUtf8CodePage) {
    const std::size_t start = offset;
    appendCodePoint(text, readCodePoint(bytes, offset));
    if (offset - start > 1) return;
    return;
  }
  if (single_[lead] == 0 && isDoubleByte_ && offset + 1 < bytes.size()) {
    const char16_t pair = pairs_[lead * 256 + byteAt(bytes, offset + 1)];
    if (pair != 0) {
      appendCodePoint(text, pair);
      offset += 2;
      return;
    }
  }
  appendCodePoint(text, single_[lead] != 0 ? single_[lead] : lead);
  ++offset;
}

/// Whether a lead byte without its second one would get it from the text that follows.
bool CodePage::swallows(unsigned byte, std::string_view rest) const {
  if (!isDoubleByte_ || single_[byte] != 0 || rest.empty()) return false;
  unsigned next = byteAt(rest, 0);
  if (next >= 0x80) {
    std::size_t offset = 0;
    const auto found = bytesOf_.find(readCodePoint(rest, offset));
    if (found == bytesOf_.end()) return false;  // no pair ends in the "?" that stands for it
    next = found->second > 0xFF ? found->second >> 8 : found->second;
  }
  return pairs_[byte * 256 + next] != 0;
}

bool CodePage::appendEncoded(std::string& bytes, std::string_view text, std::size_t& offset) const {
  const auto found = bytesOf_.find(readCodePoint(text, offset));
  if (found == bytesOf_.end()) return false;
  if (found->second <= 0xFF && swallows(found->second, text.substr(offset))) return false;
  if (found->second > 0xFF) bytes += static_cast<char>(found->second >> 8);
  bytes += static_cast<char>(found->second & 0xFF);
  return true;
}

std::string CodePage::encode(std::string_view text) const {
  if (number_ == kUtf8CodePage) return std::string(text);
  std::string bytes;
  bytes.reserve(text.size());
  for (std::size_t offset = 0; offset < text.size();) {
    copyAscii(bytes, text, offset);
    if (offset < text.size() && !appendEncoded(bytes, text, offset)) bytes += '?';
  }
  return bytes;
}

std::optional<std::string> CodePage::encodeExactly(std::string_view text,
                                                   std::size_t& lacking) const {
  if (number_ == kUtf8CodePage) return std::string(text);
  std::string bytes;
  bytes.reserve(text.size());
  for (std::size_t offset = 0; offset < text.size();) {
    copyAscii(bytes, text, offset);
    if (offset == text.size()) break;
    lacking = offset;
    if (!appendEncoded(bytes, text, offset)) return std::nullopt;
  }
  return bytes;
}

}  // namespace tamrikon
