// A project file (.vbp). Its bytes are read first, as the components' files help to find the code
// page in which its texts are then read.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ide/ide.h"
#include "platform/code_page.h"
#include "source/source_file.h"

namespace tamrikon {

class ProjectFile {
 public:
  /// Name and path are bytes in the file's code page; the name is empty unless the line has one.
  struct ComponentLine {
    ComponentType type;
    std::string_view name;
    std::string_view path;
  };

  explicit ProjectFile(std::string bytes);
  ProjectFile(const ProjectFile&) = delete;
  ProjectFile& operator=(const ProjectFile&) = delete;

  /// Whether the bytes are those of a project file: one with a line "Type=", and no source.
  static bool isProject(std::string_view bytes);

  /// In the order of the lines.
  const std::vector<ComponentLine>& components() const { return components_; }

  /// What was read.
  std::string_view undecoded() const { return bytes_; }

  /// To be called before what follows. `page` must outlive this object.
  void setCodePage(const CodePage& page);

  /// A text of this file, decoded.
  std::string text(std::string_view bytes) const;

  std::string name() const { return text(name_); }
  std::string conditionalConstants() const { return text(conditionalConstants_); }

  const std::string& helpFile() const { return helpFile_; }

  /// Of a text of several lines, the first is taken.
  void setHelpFile(const std::string& path);
  bool isChanged() const { return changed_; }
  void setSaved() { changed_ = false; }

  /// The file's bytes, with nothing changed but the help file's line; nothing if the code page
  /// lacks a character of the help file's path.
  std::optional<std::string> bytes(LackingCharacter& lacking) const;

 private:
  void readLines();
  void readLine(std::string_view line, std::string_view value);

  std::string bytes_;
  bool isUtf8_ = false;
  const CodePage* page_ = nullptr;
  std::vector<ComponentLine> components_;
  std::string_view name_;
  std::string_view conditionalConstants_;
  std::optional<std::string_view> helpFileValue_;  // what stands behind the "=", quotes included
  std::size_t insertionOffset_ = 0;                // where a missing line goes
  std::string helpFile_;
  bool changed_ = false;
  bool isAsRead_ = true;
};

/// `text` without the quotes around it.
std::string_view withoutQuotes(std::string_view text);

}  // namespace tamrikon
