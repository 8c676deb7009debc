// Paths as texts. Both "\" and "/" separate wherever a path is only looked at; a path that holds a
// backslash keeps that style when something is added to it.
#pragma once

#include <string>
#include <string_view>

namespace tamrikon {

/// The separator that goes with `path`: "\" if it holds one, otherwise the platform's.
char separatorOf(std::string_view path);

/// What stands behind the last separator, or all.
std::string_view lastName(std::string_view path);

/// What stands before the last separator; empty if there is none.
std::string_view folderOf(std::string_view path);

/// The last name without its extension (from the last dot on).
std::string_view baseName(std::string_view path);

bool hasExtension(std::string_view path);
bool endsInSeparator(std::string_view path);

/// `path` without one separator at its end, if there is one.
std::string_view withoutTrailingSeparator(std::string_view path);

/// `folder`, one separator in the style of `folder` and `name`.
std::string joinPath(std::string_view folder, std::string_view name);

/// Whether the path begins at a root: "/", "\" or a drive letter with its colon.
bool isAbsolutePath(std::string_view path);

/// The path as the platform opens it: "\" becomes "/" where backslashes don't separate.
std::string nativePath(std::string_view path);

}  // namespace tamrikon
