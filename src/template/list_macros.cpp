// The part of Expansion that knows IFNOTEMPTY and DOLIST.
#include "template/expansion.h"

#include <algorithm>
#include <utility>

#include "template/macro_scanner.h"

namespace tamrikon {
namespace {

constexpr TextIndex kElseTagLength = 8;  // of "$ELSEIF$"; a tag without its "$" takes what follows

Diagnostic wrongSyntax(const MacroName& tag, std::string_view problem) {
  return {Diagnostic::About::template_, Severity::warning, "macro-syntax",
          "Wrong syntax of " + tag.text + " macro. " + std::string(problem)};
}

bool isEmpty(const MacroSlot& slot) {
  switch (slot.holds) {
    case MacroSlot::Holds::nothing: return true;
    case MacroSlot::Holds::text: return slot.text->text.empty();
    case MacroSlot::Holds::list: return slot.list == nullptr || slot.list->empty();
  }
  return true;
}

}  // namespace

void Expansion::expandConstruct(const MacroName& tag) {
  const MacroText& source = *frames_.back().source;
  const TextIndex tagToken = frames_.back().token - 1;
  const auto construct =
      std::lower_bound(source.constructs.begin(), source.constructs.end(), tagToken,
                       [](const Construct& c, TextIndex token) { return c.tag < token; });
  const MacroName* argument = construct->soundArgument;
  const bool isSound =
      argument != nullptr && source.tokens[construct->endMarker].start < frames_.back().end;
  if (!isSound) {
    argument = findArgument(*construct, tag);
    if (argument == nullptr || !findEndMarker(*construct, tag)) return;
  }
  frames_.back().offset = source.tokens[construct->endMarker].end;
  frames_.back().token = construct->endMarker + 1;
  if (tag.kind == MacroKind::ifNotEmpty) {
    expandIfNotEmpty(*construct, *argument->slot);
  } else {
    expandDoList(*construct, *argument);
  }
}

void Expansion::endPart(Frame& frame) {
  frame.offset = frame.end;
  frame.token = static_cast<TextIndex>(frame.source->tokens.size());
}

/// The first macro behind the tag on its line. Null if that is none or unfit, which is logged;
/// the expansion then goes on behind what the construct takes.
const MacroName* Expansion::findArgument(const Construct& construct, const MacroName& tag) {
  Frame& frame = frames_.back();
  const MacroText& source = *frame.source;
  if (construct.lineEnd >= frame.end) {
    log(wrongSyntax(tag, "Unfinished line."));
    endPart(frame);
    return nullptr;
  }
  const MacroName* argument = nullptr;
  if (construct.tag + 1 < construct.bodyToken) {
    const MacroToken& token = source.tokens[construct.tag + 1];
    if (source.isWrong(token)) logWrongName(source, token);
    argument = token.name;
  }
  if (argument != nullptr && isArgument(*argument)) return argument;
  log({Diagnostic::About::template_, Severity::warning, "macro-argument",
       "Wrong argument \"" + (argument == nullptr ? "" : argument->text) + "\" of " + tag.text +
           " macro."});
  frame.offset = construct.lineEnd + 1;
  frame.token = construct.bodyToken;
  return nullptr;
}

bool Expansion::findEndMarker(const Construct& construct, const MacroName& tag) {
  Frame& frame = frames_.back();
  const MacroText& source = *frame.source;
  const bool isFound =
      construct.endMarker != kNowhere && source.tokens[construct.endMarker].start < frame.end;
  reportSearch(construct, isFound);
  if (isFound) return true;
  log(wrongSyntax(tag, "$END-" + tag.text + " tag missing."));
  endPart(frame);
  return false;
}

/// Logs the wrong names that the search for the end marker passes, the marker's own included.
void Expansion::reportSearch(const Construct& construct, bool isFound) {
  const Frame& frame = frames_.back();
  const MacroText& source = *frame.source;
  auto wrong =
      std::lower_bound(source.wrongNames.begin(), source.wrongNames.end(), construct.bodyToken);
  for (; wrong != source.wrongNames.end(); ++wrong) {
    const MacroToken& token = source.tokens[*wrong];
    if (isFound ? *wrong > construct.endMarker : token.start >= frame.end) return;
    logWrongName(source, token);
    if (token.name->text.empty()) return;
  }
}

void Expansion::expandIfNotEmpty(const Construct& construct, const MacroSlot& argument) {
  MacroText* source = frames_.back().source;
  const TextIndex end = source->tokens[construct.endMarker].start;
  const bool hasElse = construct.elseMarker != kNowhere;
  const TextIndex elseStart = hasElse ? source->tokens[construct.elseMarker].start : end;
  if (!isEmpty(argument)) {
    frames_.push_back({source, construct.lineEnd + 1, elseStart, construct.bodyToken,
                       Frame::Role::branch, source->isFromProject});
  } else if (hasElse) {
    frames_.push_back({source, elseStart + kElseTagLength, end, construct.elseMarker + 1,
                       Frame::Role::branch, source->isFromProject});
  }
}

void Expansion::expandDoList(const Construct& construct, const MacroName& argument) {
  const std::shared_ptr<const MacroList>& list = argument.slot->list;
  if (list == nullptr || list->empty()) return;
  MacroText* source = frames_.back().source;
  const TextIndex bodyEnd = source->tokens[construct.endMarker].start;
  ListFrame frame{ListWalk(argument.text, list), result_.size(), construct.lineEnd + 1, bodyEnd,
                  construct.bodyToken};
  if (frame.walk.isSorted()) {
    if (!budget_.takeCalls(list->size(), list->size() * sizeof(LinkItem))) endAt("DOLIST");
    if (!frame.walk.sort(state_.resolver)) return;
  }
  lists_.push_back(std::move(frame));
  frames_.push_back({source, bodyEnd, bodyEnd, construct.bodyToken, Frame::Role::listBody,
                     source->isFromProject});
  nextListItem();
}

/// Begins the next item of the innermost list, or ends its construct.
void Expansion::nextListItem() {
  ListFrame& list = lists_.back();
  bool goesOn = !list.walk.isAtEnd();
  if (goesOn && !budget_.takeCalls(1, list.bodyEnd - list.bodyStart + list.walk.nextLength())) {
    endAt("DOLIST");
  }
  if (goesOn && !list.walk.setNextItem(state_.slots, state_.items, state_.resolver)) {
    result_.resize(list.resultStart);
    goesOn = false;
  }
  if (goesOn) {
    frames_.back().offset = list.bodyStart;
    frames_.back().token = list.bodyToken;
  } else {
    lists_.pop_back();
    frames_.pop_back();
  }
}

}  // namespace tamrikon
