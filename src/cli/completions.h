// What can stand at the end of a command line: the shells' completions ask for it.
#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace tamrikon {

/// The words behind this one, up to the one at the caret, are to be completed.
constexpr const char* kCompleteWord = "__complete";

/// Prints a line for each word that may take the place of the last of `words`, with a tab and a
/// description behind it, and what a shell is to add itself: ":files EXT|EXT" (those files and the
/// folders), ":files", ":folders", and ":nospace" if more is to be typed behind the word.
void printCompletions(const CLI::App& app, const std::vector<std::string>& words,
                      std::ostream& out);

}  // namespace tamrikon
