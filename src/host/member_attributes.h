// Descriptions and help context IDs, which source files keep in hidden attribute lines.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "base/case_folding.h"
#include "host/source_file.h"

namespace tamrikon {

/// Whose attributes are meant.
struct AttributeOwner {
  std::string_view name;         // as the program knows it; empty for the module itself
  std::string_view writtenName;  // as an attribute line spells it
  bool isVariable = false;
  int declarationEnd = 0;  // the visible line behind which a new attribute goes; 0 is the head
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

  /// The first ID that isn't 0; never negative.
  int helpContextID(const AttributeOwner& owner);
  void setHelpContextID(const AttributeOwner& owner, int id);

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

  /// Writes `value`, in the form of the source, where the attribute reads as another one.
  void write(const AttributeOwner& owner, Property property, const std::string& value,
             bool isEmpty);

  SourceFile& file_;
  bool isFresh_ = false;
  unsigned revision_ = 0;  // of the file when byName_ was made
  std::unordered_map<std::string, std::vector<Reference>, CaseInsensitiveHash, CaseInsensitiveEqual>
      byName_;  // the module's own under the empty name
};

}  // namespace tamrikon
