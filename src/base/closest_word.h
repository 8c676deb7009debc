// What somebody may have meant who misspelled a word.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tamrikon {

/// The one of `words` that takes the fewest edits (a character added, left out, exchanged for
/// another one or swapped with its neighbour) to become `word`, without regard to the case of ASCII
/// letters; empty if more than a third of its characters would have to change.
std::string closestWord(std::string_view word, const std::vector<std::string>& words);

/// " (did you mean 'WORD'?)" with the closest word, or nothing.
std::string didYouMean(std::string_view word, const std::vector<std::string>& words);

}  // namespace tamrikon
