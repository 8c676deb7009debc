// Small operations on texts. Trimming removes blanks (code 32) alone: tabs stay.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tamrikon {

std::string_view trimLeading(std::string_view text);
std::string_view trimTrailing(std::string_view text);
std::string_view trim(std::string_view text);

/// The pieces of `text` between the separators; one more than there are separators.
std::vector<std::string_view> split(std::string_view text, char separator);

/// The pieces of `text` joined with `separator`.
std::string join(const std::vector<std::string>& pieces, std::string_view separator);

/// `text` with every occurrence of `find` (not empty) replaced by `with`, case included.
std::string replaceAll(std::string_view text, std::string_view find, std::string_view with);

/// `text` with every "$" doubled, so that the macro expansion gives it back as it was.
std::string doubleDollars(std::string_view text);

/// Divides at the first `separator`: returns what stands before it (all, if there is none) and
/// leaves in `text` what stands behind it.
std::string_view cutField(std::string_view& text, char separator);

}  // namespace tamrikon
