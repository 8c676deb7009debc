#include "template/expansion.h"

#include <algorithm>
#include <utility>

#include "template/macro_scanner.h"

namespace tamrikon {

std::string Expansion::evaluate(const MacroName& name) {
  outermost_ = name.text;
  MacroText* text = name.slot->text.get();
  result_ = std::move(state_.spare);
  result_.clear();
  if (text != nullptr) result_.reserve(text->lastResult);
  call(name);
  run();
  if (text != nullptr) text->lastResult = result_.size();
  return std::move(result_);
}

std::string Expansion::expandText(std::string_view text) {
  MacroText source;
  if (!budget_.takeText(text.size())) endAt(outermost_);
  source.text = text;
  begin(source, false);
  run();
  return std::exchange(result_, std::string());
}

void Expansion::run() {
  while (!frames_.empty()) {
    Frame& frame = frames_.back();
    const MacroToken* token = nextToken(frame);
    const TextIndex literalEnd = token == nullptr ? frame.end : token->start;
    appendLiteral({frame.source->text.data() + frame.offset, literalEnd - frame.offset},
                  frame.translate);
    if (token == nullptr) {
      leave();
      continue;
    }
    frame.offset = token->end;
    ++frame.token;
    if (token->name->kind == MacroKind::plain) {
      call(*token->name);
    } else {
      answer(*token->name);
    }
  }
}

/// The next call of the part that `frame` works on, or null if there is none left.
inline const MacroToken* Expansion::nextToken(const Frame& frame) {
  const MacroText& source = *frame.source;
  if (frame.token >= source.tokens.size()) return nullptr;
  const MacroToken& token = source.tokens[frame.token];
  if (token.start >= frame.end) return nullptr;
  if (!source.wrongNames.empty() && source.isWrong(token)) {
    logWrongName(source, token);
    if (token.name->text.empty()) return nullptr;  // a lone "$" ends the search
  }
  return &token;
}

void Expansion::answer(const MacroName& name) {
  switch (name.kind) {
    case MacroKind::nextId: result_ += std::to_string(state_.nextId++); break;
    case MacroKind::counter: result_ += std::to_string(state_.counter); break;
    case MacroKind::resetCounter: state_.counter = 1; break;
    case MacroKind::incCounter: ++state_.counter; break;
    case MacroKind::decCounter: --state_.counter; break;
    case MacroKind::replaceOn: state_.replaceOn = true; break;
    case MacroKind::replaceOff: state_.replaceOn = false; break;
    case MacroKind::doList:
    case MacroKind::ifNotEmpty: expandConstruct(name); break;
    case MacroKind::plain:
    case MacroKind::elseIf:
    case MacroKind::endDoList:
    case MacroKind::endIfNotEmpty: call(name); break;
  }
}

inline void Expansion::call(const MacroName& name) {
  const MacroSlot& slot = *name.slot;
  const bool isText = slot.holds == MacroSlot::Holds::text;
  if (slot.holds == MacroSlot::Holds::nothing || depth_ >= ExpansionBudget::kMaxDepth) {
    appendUnknown(name.text);
    return;
  }
  if (!budget_.takeCalls(1, isText ? slot.text->text.size() : 0)) endAt(name.text);
  if (isText) {
    begin(*slot.text, name.isReadOnly || slot.text->isFromProject);
  } else {
    result_ += name.text;
  }
}

inline void Expansion::begin(MacroText& text, bool translate) {
  if (!text.isScanned) scanMacros(text, state_.slots);
  if (text.tokens.empty()) {
    appendLiteral(text.text, translate);
    return;
  }
  ++text.users;
  ++depth_;
  const auto end = static_cast<TextIndex>(text.text.size());
  frames_.push_back({&text, 0, end, 0, Frame::Role::macro, translate});
}

inline void Expansion::leave() {
  const Frame& frame = frames_.back();
  if (frame.role == Frame::Role::listBody) {
    nextListItem();
    return;
  }
  if (frame.role == Frame::Role::macro) {
    --frame.source->users;
    --depth_;
  }
  frames_.pop_back();
}

inline void Expansion::appendLiteral(std::string_view text, bool translate) {
  if (text.empty()) return;  // as half of them are
  if (translate && state_.replaceOn) {
    const std::size_t start = result_.size();
    const bool isWhole = state_.replaceTable.appendReplaced(text, result_, budget_);
    // Half translated it could be markup.
    if (!isWhole && state_.slots.limitsComments()) result_.resize(start);
  } else {
    result_ += text;
  }
}

void Expansion::appendUnknown(std::string_view name) {
  result_.append("$").append(name).append("$");
}

void Expansion::log(const Diagnostic& diagnostic) {
  if (!budget_.takeText(logLineOf(diagnostic).size())) endAt(outermost_);
  state_.log.report(diagnostic);
}

/// The log blames the template for each wrong name, also for one that a comment brought.
void Expansion::logWrongName(const MacroText& source, const MacroToken& token) {
  Diagnostic diagnostic = wrongNameWarning(source.written(token));
  std::string page;
  if (!source.isOfTemplate && state_.resolver != nullptr) page = state_.resolver->pageInWork();
  if (!page.empty()) {
    diagnostic.inLog = logLineOf(diagnostic);
    diagnostic.about = Diagnostic::About::comment;
    diagnostic.text = "Wrong macro name " + std::string(source.written(token)) +
                      " in the text of " + page + "; a dollar sign is written $$.";
    diagnostic.place.module = page.substr(0, page.find('.'));
    diagnostic.place.member =
        page.substr(std::min(page.size(), diagnostic.place.module.size() + 1));
  }
  log(diagnostic);
}

void Expansion::endAt(std::string_view call) const {
  throw BudgetUsedUp("The expansion of " + std::string(outermost_) +
                     " has no end: its bounds of calls and text are used up at $" +
                     std::string(call) + "$");
}

}  // namespace tamrikon
