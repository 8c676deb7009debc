#include "cli/source_places.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <utility>

#include "base/case_folding.h"

namespace tamrikon {
namespace {

constexpr int kMost = std::numeric_limits<int>::max();

/// A number from 1 on; one that is too large for any file reads as the largest.
std::optional<int> readNumber(std::string_view text) {
  const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
  if (text.empty() || !std::all_of(text.begin(), text.end(), isDigit)) return std::nullopt;
  int number = kMost;
  std::from_chars(text.data(), text.data() + text.size(), number);
  if (number == 0) return std::nullopt;
  return number;
}

struct Position {
  int line;
  std::optional<int> column;
};

/// LINE or LINE.COL.
std::optional<Position> readPosition(std::string_view text) {
  const std::size_t dot = text.find('.');
  const std::optional<int> line = readNumber(text.substr(0, dot));
  if (!line) return std::nullopt;
  if (dot == std::string_view::npos) return Position{*line, std::nullopt};
  const std::optional<int> column = readNumber(text.substr(dot + 1));
  if (!column) return std::nullopt;
  return Position{*line, column};
}

std::optional<Selection> readRange(std::string_view text) {
  const std::size_t dash = text.find('-');
  const std::optional<Position> start = readPosition(text.substr(0, dash));
  if (!start) return std::nullopt;
  if (dash == std::string_view::npos) {
    if (start->column) return std::nullopt;
    return Selection{start->line, 1, start->line, 1};  // no selection means the whole line
  }
  const std::optional<Position> end = readPosition(text.substr(dash + 1));
  if (!end || start->column.has_value() != end->column.has_value()) return std::nullopt;
  return Selection{start->line, start->column.value_or(1), end->line, end->column.value_or(kMost)};
}

/// Cuts the word of a procedure's kind from the end of a member's name. False if it is none.
bool cutKind(std::string& name, std::optional<ProcKind>& kind) {
  const std::size_t mark = name.rfind('\'');
  if (mark == std::string::npos) return true;
  const std::string_view word = std::string_view(name).substr(mark + 1);
  for (const auto& [known, meaning] : {std::pair<std::string_view, ProcKind>{"get", ProcKind::get},
                                       {"let", ProcKind::let},
                                       {"set", ProcKind::set}}) {
    if (equalIgnoringCase(word, known)) kind = meaning;
  }
  if (!kind) return false;
  name.resize(mark);
  return true;
}

}  // namespace

std::optional<CommentTarget> readCommentTarget(std::string_view text) {
  const std::size_t end = text.find_first_of(".:");
  CommentTarget target;
  target.module = text.substr(0, end);
  if (target.module.empty()) return std::nullopt;
  if (end == std::string_view::npos) return target;
  const std::string_view rest = text.substr(end + 1);
  if (text[end] == ':') {
    const std::optional<int> line = readNumber(rest);
    if (!line) return std::nullopt;
    target.line = *line;
    return target;
  }
  target.member = rest;
  if (!cutKind(target.member, target.kind) || target.member.empty()) return std::nullopt;
  return target;
}

std::optional<SourceRange> readSourceRange(std::string_view text) {
  const std::size_t colon = text.find(':');
  if (colon == std::string_view::npos || colon == 0) return std::nullopt;
  const std::optional<Selection> selection = readRange(text.substr(colon + 1));
  if (!selection) return std::nullopt;
  return SourceRange{std::string(text.substr(0, colon)), *selection};
}

std::string faultOfCommentTarget(const std::string& argument) {
  if (readCommentTarget(argument)) return {};
  return "'" + argument +
         "' is no target: Module, Module.Member, Module.Member'get ('let, 'set) or Module:LINE is "
         "needed, lines counting from 1";
}

std::string faultOfSourceRange(const std::string& argument) {
  if (readSourceRange(argument)) return {};
  return "'" + argument +
         "' is no MODULE:RANGE: the range is LINE, LINE-LINE or LINE.COL-LINE.COL, lines and "
         "columns counting from 1";
}

}  // namespace tamrikon
