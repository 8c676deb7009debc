// What the reference picker lists for a module, and the links that stand for it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "ide/ide.h"

namespace tamrikon {

inline constexpr std::string_view kModuleEntry = " [Module itself]";
inline constexpr std::string_view kLetEnding = " [PropertyLet]";
inline constexpr std::string_view kSetEnding = " [PropertySet]";
inline constexpr std::string_view kGetEnding = " [PropertyGet]";

/// The module itself, then its members, a property with an entry for each of its procedures.
/// Throws IdeError.
std::vector<std::string> memberEntries(const CodeModule& module);

/// How the entry ends that a link with this suffix stands for.
std::string_view endingOfSuffix(std::string_view suffix);

/// The link to an entry of `module`, as it is written in `ownModule`.
std::string linkToEntry(const std::string& module, const std::string& entry,
                        const std::string& ownModule);

}  // namespace tamrikon
