// Letters of captions that, together with Alt, press a button or lead to a box.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace tamrikon {

/// Chooses a letter (a to z) of each caption so that none is chosen twice: the first letters of
/// words if that is possible, and for as many captions as there can be. `captions` are of controls
/// that are seen together; `taken` holds lower-case letters that others have already.
/// Result: for each caption the offset of its letter, or npos if it gets none.
std::vector<std::size_t> chooseAccelerators(const std::vector<std::string>& captions,
                                            const std::string& taken = "");

/// The caption with "&" before the letter at `accelerator` (none for npos), and each "&" that is
/// part of the caption doubled.
std::string markedCaption(const std::string& caption, std::size_t accelerator = std::string::npos);

}  // namespace tamrikon
