// Scans source text for the classes that a module or member has to do with.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "ide/ide.h"
#include "model/wrapper.h"

namespace tamrikon {

/// A step that the IDE refuses is passed over: its result is empty.
class SourceCodeParser {
 public:
  using Names = std::vector<std::string>;

  /// The classes that the module implements, each with a CR behind its name.
  Names getImplements(const CodeModule& cmo) const;

  /// The classes of the active project that implement this one.
  Names getWhoImplements(const CodeModule& cmo, const VBE& VBInstance) const;

  /// The types in the declaration of a wrapper and in those of its source, in the order found; one
  /// that is used again comes again.
  Names getUsedObjects(const Wrapper& wrapper) const;

  /// Those of `classes` that are classes of the active project, each once and in its spelling.
  Names filterProjectClasses(const Names& classes, const VBE& VBInstance) const;

  /// The first item that equals `str` without regard to case, or empty.
  static std::string isStringInCollection(std::string_view str, const Names& col);

  /// The lines of a text, those that go on with " _" put together in the place of the first; the
  /// others of the group are empty.
  static Names joinContinuedLines(std::string_view text, std::string_view separator);
};

/// What the editor proposes as links: class names, each with a blank and "[implemented]",
/// "[implements]" or "[used]".
std::vector<std::string> findProposals(const Wrapper& member, const VBE& VBInstance);

}  // namespace tamrikon
