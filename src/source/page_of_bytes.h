// The code page that bytes look like, where nothing says it outright.
//
// Latin text is the one thing that must never be taken for another: its accented letters stand
// alone or in twos among ASCII letters. The pages of Latin scripts (1250, 1252, 1254, 1257, 1258)
// can't be told from each other, so that they aren't guessed at all. Others are, if they pass these
// tests.
//
// A double-byte page (932, 936, 949, 950): nearly all bytes are characters of it, nine of ten of
// them from its part for everyday use, two of three stand beside another one, and a quarter (of
// fewer than eight characters a half) are among the most frequent of the language.
//
// A page of another alphabet (1251, 1253, 1255, 1256, 874): half of the letters stand in runs of
// three and more that are neither rulers nor tables of letters; there are four different ones of
// these, with twenty letters; and the letters are about as frequent as in the languages of the
// page, clearly more so than in those of each other page.
#pragma once

#include <string>
#include <string_view>

namespace tamrikon {

/// Lines that hold bytes above 0x7F, from texts that aren't UTF-8.
class ByteSample {
 public:
  /// What goes beyond 256 KB in all isn't taken.
  void add(std::string_view text);

  bool empty() const { return lines_.empty(); }

  /// The number of the page that they look like, or 0.
  int page() const;

  /// Whether they may be text of the page, for which something else speaks: in a double-byte page
  /// they are such characters, and in a page of another alphabet half of the letters stand in
  /// runs of three and more. Latin pages, and no bytes at all, pass in any case.
  bool canBe(int page) const;

 private:
  std::string lines_;
};

}  // namespace tamrikon
