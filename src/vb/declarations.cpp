#include "vb/declarations.h"

#include <algorithm>

#include "vb/scanning.h"
#include "vb/statements.h"

namespace tamrikon {
namespace {

/// The word that opens a statement and says who sees what it declares.
enum class ScopeWord { none, public_, private_, friend_, global, dim };

ScopeWord takeScopeWord(std::string_view& rest) {
  struct Entry {
    std::string_view text;
    ScopeWord word;
  };
  constexpr Entry kEntries[] = {{"public", ScopeWord::public_},
                                {"private", ScopeWord::private_},
                                {"friend", ScopeWord::friend_},
                                {"global", ScopeWord::global},
                                {"dim", ScopeWord::dim}};
  std::string_view behind = rest;
  const std::string_view word = takeWord(behind);
  for (const Entry& entry : kEntries) {
    if (!isKeyword(word, entry.text)) continue;
    rest = behind;
    return entry.word;
  }
  return ScopeWord::none;
}

/// Cuts `keyword` from the start of `rest`: whether it is there.
bool takeKeyword(std::string_view& rest, std::string_view keyword) {
  std::string_view behind = rest;
  if (!isKeyword(takeWord(behind), keyword)) return false;
  rest = behind;
  return true;
}

std::string_view takeName(std::string_view& rest) {
  rest = skipBlanks(rest);
  if (!rest.starts_with('[')) return takeWord(rest);
  const std::size_t end = std::min(rest.find(']'), rest.size());
  const std::string_view name = rest.substr(1, end - 1);
  rest.remove_prefix(std::min(end + 1, rest.size()));
  return name;
}

/// Cuts what stands before the next comma outside parentheses and literals, and the comma.
void skipPastComma(std::string_view& rest) {
  int depth = 0;
  bool hasBrackets = true;
  std::size_t offset = 0;
  while (offset < rest.size()) {
    const char c = rest[offset];
    if (c == ',' && depth == 0) break;
    if (c == '(') ++depth;
    if (c == ')' && depth > 0) --depth;
    offset = std::max(offset + 1, skipLiteral(rest, offset, hasBrackets));
  }
  rest.remove_prefix(std::min(offset + 1, rest.size()));
}

void readNames(std::string_view rest, bool areVariables, std::vector<std::string_view>& names) {
  while (!rest.empty()) {
    if (areVariables) takeKeyword(rest, "withevents");
    const std::string_view name = takeName(rest);
    if (!name.empty()) names.push_back(name);
    skipPastComma(rest);
  }
}

class DeclarationReader {
 public:
  DeclarationReader(std::string_view statement, Declaration& declaration)
      : rest_(statement), result_(declaration) {}

  void read() {
    scope_ = takeScopeWord(rest_);
    result_.scope = scope_ == ScopeWord::private_ ? Scope::private_ : Scope::public_;
    if (scope_ == ScopeWord::friend_) result_.scope = Scope::friend_;
    if (scope_ != ScopeWord::dim && (readProcedure() || readOther())) return;
    if (scope_ == ScopeWord::none || scope_ == ScopeWord::friend_) return;
    const bool isPublic = scope_ == ScopeWord::public_ || scope_ == ScopeWord::global;
    result_.scope = isPublic ? Scope::public_ : Scope::private_;
    result_.kind = DeclarationKind::variable;
    readNames(rest_, true, result_.names);
  }

 private:
  /// Whether the statement is taken, also if it declares nothing.
  bool readProcedure() {
    const bool isStatic = takeKeyword(rest_, "static");
    if (takeKeyword(rest_, "property")) {
      result_.isProperty = true;
      if (takeKeyword(rest_, "get")) {
        result_.procKind = ProcKind::get;
      } else if (takeKeyword(rest_, "let")) {
        result_.procKind = ProcKind::let;
      } else if (takeKeyword(rest_, "set")) {
        result_.procKind = ProcKind::set;
      } else {
        return true;
      }
    } else if (!takeKeyword(rest_, "sub") && !takeKeyword(rest_, "function")) {
      return isStatic;
    }
    takeOneName(DeclarationKind::procedure);
    return true;
  }

  bool readOther() {
    if (takeKeyword(rest_, "declare")) {
      takeKeyword(rest_, "ptrsafe");
      const bool isProcedure = takeKeyword(rest_, "sub") || takeKeyword(rest_, "function");
      if (isProcedure && scopeIsAmong(ScopeWord::public_, ScopeWord::private_)) {
        takeOneName(DeclarationKind::declare);
      }
    } else if (takeKeyword(rest_, "event")) {
      if (scopeIsAmong(ScopeWord::public_, ScopeWord::public_)) {
        takeOneName(DeclarationKind::event);
      }
    } else if (takeKeyword(rest_, "const")) {
      if (scope_ == ScopeWord::friend_) return true;
      if (scope_ == ScopeWord::none) result_.scope = Scope::private_;
      result_.kind = DeclarationKind::constant;
      readNames(rest_, false, result_.names);
    } else if (takeKeyword(rest_, "type")) {
      result_.kind = DeclarationKind::type;
    } else if (takeKeyword(rest_, "enum")) {
      result_.kind = DeclarationKind::enumeration;
    } else {
      return false;
    }
    return true;
  }

  bool scopeIsAmong(ScopeWord one, ScopeWord other) const {
    return scope_ == ScopeWord::none || scope_ == one || scope_ == other;
  }

  void takeOneName(DeclarationKind kind) {
    const std::string_view name = takeName(rest_);
    if (name.empty()) return;
    result_.kind = kind;
    result_.names.push_back(name);
  }

  std::string_view rest_;
  Declaration& result_;
  ScopeWord scope_ = ScopeWord::none;
};

}  // namespace

void readDeclaration(std::string_view statement, Declaration& declaration) {
  declaration.kind = DeclarationKind::other;
  declaration.isProperty = false;
  declaration.procKind = ProcKind::procedure;
  declaration.names.clear();
  DeclarationReader(statement, declaration).read();
}

std::string_view endedBlock(std::string_view statement) {
  return takeKeyword(statement, "end") ? takeWord(statement) : std::string_view();
}

}  // namespace tamrikon
