// Descriptions and help context IDs, which source files keep in hidden attribute lines.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "base/case_folding.h"
#include "source/source_file.h"

namespace tamrikon {

/// Whose attributes are meant.
struct AttributeOwner {
  std::string_view name;         // as the program knows it; empty for the module itself
  std::string_view writtenName;  // as an attribute line spells it
  bool isVariable = false;
  int declarationEnd = 0;  // the visible line behind which a new attribute goes; 0 is the head
};

/// A description that was too long for an attribute line.
struct CutDescription {
  std::string name;        // of the member; empty for the module
  int line = 0;            // where its declaration ends; 0 for the module
  std::size_t kept = 0;    // characters of it
  std::size_t length = 0;  // in characters
};

/// The attributes of one source file. All lookups are by name, wherever in the file a line stands.
class MemberAttributes {
 public:
  /// The file must outlive this object.
  explicit MemberAttributes(SourceFile& file) : file_(file) {}

  /// The module's name by its head, or empty.
  std::string moduleName();

  /// The first description that isn't empty, line breaks as CR LF.
  std::string description(const AttributeOwner& owner);
  void setDescription(const AttributeOwner& owner, std::string_view text);

  /// Those of which setDescription() has dropped the end, so that their line isn't longer than the
  /// IDE reads, since this was asked last.
  std::vector<CutDescription> takeCutDescriptions() { return std::exchange(cuts_, {}); }

  /// The first ID that isn't 0; never negative.
  int helpContextID(const AttributeOwner& owner);
  void setHelpContextID(const AttributeOwner& owner, int id);

  /// The number is the owner's until another one is set, but the file stays as it is.
  void holdHelpContextID(const AttributeOwner& owner, int id);

  /// From now on, numbers that are to be held are set.
  void writeHeldIds() { writesHeldIds_ = true; }
  void forgetHeldIds() { heldIds_.clear(); }

 private:
  enum class Property { name, description, helpId };
  struct Reference {
    std::uint32_t number;  // of the attribute in the file
    Property property;
    bool isForVariables;
  };

  void refresh();
  void remember(std::uint32_t number, bool isInHead);
  std::vector<std::uint32_t> find(const AttributeOwner& owner, Property property);

  /// Writes `value`, the text or number itself, where the attribute reads as another one.
  void write(const AttributeOwner& owner, Property property, std::string_view value, bool isEmpty);
  void noteCut(const AttributeOwner& owner, std::string_view kept, std::string_view all);

  SourceFile& file_;
  bool isFresh_ = false;
  unsigned revision_ = 0;  // of the file when byName_ was made
  std::unordered_map<std::string, std::vector<Reference>, CaseInsensitiveHash, CaseInsensitiveEqual>
      byName_;  // the module's own under the empty name
  std::vector<CutDescription> cuts_;
  std::unordered_map<std::string, int, CaseInsensitiveHash, CaseInsensitiveEqual> heldIds_;
  bool writesHeldIds_ = false;
};

}  // namespace tamrikon
