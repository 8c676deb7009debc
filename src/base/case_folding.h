// Comparing "without regard to case": both texts are lower-cased letter by letter (the simple
// mappings of Unicode, which cover Latin, Greek, Cyrillic and the rest), then compared by code
// point.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tamrikon {

char32_t lowerCase(char32_t codePoint);

/// The capital of a letter: the simple mapping of Unicode.
char32_t upperCase(char32_t codePoint);

/// Whether no other character equals this one without regard to case.
bool isCaseless(char32_t codePoint);

/// `text` with each letter in lower case. Its length in bytes can differ from that of `text`.
std::string lowered(std::string_view text);

/// The same at the end of `result`, of which `text` must be no part.
void appendLowered(std::string& result, std::string_view text);

/// `text` with each letter as its capital.
std::string uppered(std::string_view text);

bool equalIgnoringCase(std::string_view a, std::string_view b);
bool startsWithIgnoringCase(std::string_view text, std::string_view prefix);

/// `text` with every occurrence of `find` replaced by `with`, from left to right and without
/// overlap. An empty `find` leaves the text as it is.
std::string replaceIgnoringCase(std::string_view text, std::string_view find,
                                std::string_view with);

/// Hash and equality for unordered containers whose keys ignore case; lookups by view make no copy.
struct CaseInsensitiveHash {
  using is_transparent = void;
  std::size_t operator()(std::string_view key) const;
};
struct CaseInsensitiveEqual {
  using is_transparent = void;
  bool operator()(std::string_view a, std::string_view b) const { return equalIgnoringCase(a, b); }
};

}  // namespace tamrikon
