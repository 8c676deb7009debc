// Opening a document in the program that belongs to it.
#pragma once

#include <string>

namespace tamrikon {

/// `target` is the path of a file or folder, or an address. False if it isn't there, or if the
/// desktop has nothing that opens it.
bool openDocument(const std::string& target);

}  // namespace tamrikon
