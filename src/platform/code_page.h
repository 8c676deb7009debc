// The code page between a file's bytes and the program's UTF-8.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace tamrikon {

constexpr int kUtf8CodePage = 65001;

/// One of the Windows code pages 1250 to 1258, 874, 932, 936, 949, 950, or 65001 (UTF-8).
///
/// A byte that the page leaves undefined (in a double-byte page also a lead byte without its second
/// byte) decodes to the control character U+0080 + (byte - 0x80), and encodes back to that byte,
/// unless that would swallow the byte behind it: then the page lacks the character.
class CodePage {
 public:
  /// The page of that number, or null if it isn't one of those above. The tables are made on first
  /// use and shared from then on.
  static const CodePage* find(int number);

  /// The numbers of all pages, ascending.
  static const std::vector<int>& numbers();

  int number() const { return number_; }

  /// The name of the page as the web spells it, such as "windows-1252" or "shift_jis".
  std::string_view webName() const;

  std::string decode(std::string_view bytes) const;

  /// `text` in the page's bytes; a character that the page lacks becomes "?".
  std::string encode(std::string_view text) const;

  /// As encode(), but empty if the page lacks a character, whose offset (from 0, in bytes of
  /// `text`) is then in `lacking`.
  std::optional<std::string> encodeExactly(std::string_view text, std::size_t& lacking) const;

 private:
  explicit CodePage(int number);

  void fillTables();
  void appendDecoded(std::string& text, std::string_view bytes, std::size_t& offset) const;
  bool appendEncoded(std::string& bytes, std::string_view text, std::size_t& offset) const;
  bool swallows(unsigned byte, std::string_view rest) const;

  int number_;
  bool isDoubleByte_ = false;
  std::array<char32_t, 256> single_{};  // 0 where the byte alone means nothing
  std::vector<char16_t> pairs_;         // by lead byte * 256 + second byte, 0 where undefined
  std::unordered_map<char32_t, std::uint16_t> bytesOf_;
};

/// What the platform knows of a code page: the character that one byte, or a lead byte with its
/// second byte, stands for.
class CodePageTables {
 public:
  virtual ~CodePageTables() = default;

  /// The one character that all of `bytes` stand for, or nothing.
  virtual std::optional<char32_t> decode(std::string_view bytes) = 0;
};

/// The tables of the page of that number, or null if the platform lacks it.
std::unique_ptr<CodePageTables> platformCodePage(int number);

}  // namespace tamrikon
