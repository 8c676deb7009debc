// Files that are written beside others, to take their places.
//
// One that a killed run has left is known by its name, which tells the machine, and by its lock,
// which its writer holds until it has taken its place: a lock ends with the process, whatever ends
// that, and no other process can come by it as it can by a number.
#pragma once

#include <string>
#include <string_view>

namespace tamrikon {

/// What the name of a file begins with that is to take the place of the one at `path`, all but its
/// last six characters, which make it a new one.
std::string replacementStart(const std::string& path);

/// As FileSystem::replaceAtomically(), for the path of a file that is no link. An errno value, 0
/// for success.
int replaceFile(const std::string& path, std::string_view bytes);

/// Removes the files of that kind that runs on this machine have left in the folder ("" is the
/// current one). What fails is left alone, and so is everything where the file system has no locks.
void removeDeadReplacements(const std::string& folder);

}  // namespace tamrikon
