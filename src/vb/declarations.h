// What a statement outside procedures declares.
#pragma once

#include <string_view>
#include <vector>

#include "vb/declaration_kinds.h"

namespace tamrikon {

enum class DeclarationKind {
  other,
  procedure,
  declare,
  variable,
  event,
  constant,
  type,
  enumeration
};

struct Declaration {
  DeclarationKind kind = DeclarationKind::other;
  Scope scope = Scope::public_;
  bool isProperty = false;
  ProcKind procKind = ProcKind::procedure;

  /// As they are written, brackets cut; empty for a type or an enumeration. Views into the
  /// statement.
  std::vector<std::string_view> names;
};

/// Reads one statement into `declaration`, whose earlier content is replaced.
void readDeclaration(std::string_view statement, Declaration& declaration);

/// What `statement` ends if it is an End statement: the word behind End. Empty otherwise.
std::string_view endedBlock(std::string_view statement);

}  // namespace tamrikon
