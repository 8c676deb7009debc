#include "template/macro_scanner.h"

#include <cstdint>

namespace tamrikon {
namespace {

bool endsName(char c) {
  return c == '$' || c == ' ' || c == '\t' || c == '\r';
}

/// Gives each tag the end of its line and the first token of the lines behind it.
void findTagLines(MacroText& text) {
  std::size_t lineEnd = 0;
  TextIndex bodyToken = 0;
  for (Construct& construct : text.constructs) {
    const TextIndex tagEnd = text.tokens[construct.tag].end;
    if (lineEnd < tagEnd) lineEnd = text.text.find('\r', tagEnd);
    if (lineEnd == std::string::npos) return;  // none of the later tags has a line end either
    construct.lineEnd = static_cast<TextIndex>(lineEnd);
    while (bodyToken < text.tokens.size() && text.tokens[bodyToken].start < lineEnd) ++bodyToken;
    construct.bodyToken = bodyToken;
  }
}

/// Notes which constructs can be expanded without a further look.
void findSoundArguments(MacroText& text) {
  if (!text.wrongNames.empty()) return;
  for (Construct& construct : text.constructs) {
    if (construct.endMarker == kNowhere || construct.tag + 1 >= construct.bodyToken) continue;
    const MacroName* argument = text.tokens[construct.tag + 1].name;
    if (isArgument(*argument)) construct.soundArgument = argument;
  }
}

/// Pairs the tags of one kind with their end markers, in one pass: the search of a tag begins
/// behind its line, counts the tags and end markers that it meets, and stops at a lone "$".
class MarkerMatcher {
 public:
  MarkerMatcher(MacroText& text, MacroKind opening, MacroKind closing)
      : text_(text), opening_(opening), closing_(closing) {}

  void run() {
    for (TextIndex token = 0; token < text_.tokens.size(); ++token) {
      beginSearches(token);
      const MacroName& name = *text_.tokens[token].name;
      if (name.text.empty()) searches_.clear();
      if (name.kind == opening_) ++level_;
      if (name.kind == closing_) close(token);
      if (name.kind == MacroKind::elseIf) noteElse(token);
    }
  }

 private:
  // A search is at depth 0 as long as the level is the one at which it began. The levels of both
  // stacks never fall from bottom to top, and none is above the current one.
  struct Search {
    std::int64_t level;
    Construct* construct;
  };
  struct Else {
    std::int64_t level;
    TextIndex token;  // the last one of that level
  };

  void beginSearches(TextIndex token) {
    for (; next_ < text_.constructs.size() && text_.constructs[next_].bodyToken <= token; ++next_) {
      Construct& construct = text_.constructs[next_];
      if (text_.tokens[construct.tag].name->kind == opening_) {
        searches_.push_back({level_, &construct});
      }
    }
  }

  void close(TextIndex token) {
    const bool hasElse = !elses_.empty() && elses_.back().level == level_;
    while (!searches_.empty() && searches_.back().level == level_) {
      Construct& construct = *searches_.back().construct;
      construct.endMarker = token;
      if (hasElse && elses_.back().token >= construct.bodyToken) {
        construct.elseMarker = elses_.back().token;
      }
      searches_.pop_back();
    }
    if (hasElse) elses_.pop_back();
    --level_;
  }

  void noteElse(TextIndex token) {
    if (elses_.empty() || elses_.back().level != level_) elses_.push_back({level_, 0});
    elses_.back().token = token;
  }

  MacroText& text_;
  MacroKind opening_;
  MacroKind closing_;
  std::int64_t level_ = 0;
  std::size_t next_ = 0;  // the first construct whose search hasn't begun
  std::vector<Search> searches_;
  std::vector<Else> elses_;
};

}  // namespace

bool isArgument(const MacroName& name) {
  return !name.text.empty() && name.kind != MacroKind::doList && name.kind != MacroKind::ifNotEmpty;
}

ParsedName parseMacroName(std::string_view text) {
  std::size_t end = 1;
  while (end < text.size() && !endsName(text[end])) ++end;
  return {text.substr(1, end - 1), end < text.size() && text[end] == '$'};
}

Diagnostic wrongNameWarning(std::string_view written) {
  return {Diagnostic::About::template_, Severity::warning, "macro-name",
          std::string("Wrong macro name ").append(written).append(".")};
}

void scanMacros(MacroText& text, MacroSlots& slots) {
  text.beginScan();
  const std::string_view all = text.text;
  std::size_t offset = 0;
  const MacroName* last = nullptr;
  while ((offset = all.find('$', offset)) != std::string_view::npos) {
    const std::string_view rest = all.substr(offset);
    if (rest.starts_with("$$")) {
      offset += 2;
      continue;
    }
    const ParsedName parsed = parseMacroName(rest);
    // The same name comes again and again: source code calls EOL for each line.
    if (last == nullptr || last->text != parsed.name) last = &slots.intern(parsed.name);
    const MacroName& name = *last;
    const auto token = static_cast<TextIndex>(text.tokens.size());
    if (!parsed.isClosed) text.wrongNames.push_back(token);
    if (name.kind == MacroKind::doList || name.kind == MacroKind::ifNotEmpty) {
      text.constructs.push_back({token, kNowhere, kNowhere, kNowhere, kNowhere, nullptr});
    }
    const std::size_t end = offset + parsed.length();
    text.tokens.push_back({static_cast<TextIndex>(offset), static_cast<TextIndex>(end), &name});
    offset = end;
  }
  if (text.constructs.empty()) return;
  findTagLines(text);
  MarkerMatcher(text, MacroKind::doList, MacroKind::endDoList).run();
  MarkerMatcher(text, MacroKind::ifNotEmpty, MacroKind::endIfNotEmpty).run();
  findSoundArguments(text);
}

}  // namespace tamrikon
