#include "workbench/vb_tokens.h"

#include <QLatin1String>
#include <algorithm>
#include <array>
#include <string_view>

namespace tamrikon {
namespace {

// Sorted, in lower case.
constexpr auto kKeywords = std::to_array<std::string_view>(
    {"addressof", "alias",   "and",        "any",        "append",   "as",       "attribute",
     "binary",    "boolean", "byref",      "byte",       "byval",    "call",     "case",
     "cbool",     "cbyte",   "ccur",       "cdate",      "cdbl",     "cdec",     "cint",
     "clng",      "close",   "compare",    "const",      "csng",     "cstr",     "currency",
     "cvar",      "cverr",   "date",       "debug",      "decimal",  "declare",  "defbool",
     "defbyte",   "defcur",  "defdate",    "defdbl",     "defdec",   "defint",   "deflng",
     "defobj",    "defsng",  "defstr",     "defvar",     "dim",      "do",       "double",
     "each",      "else",    "elseif",     "empty",      "end",      "endif",    "enum",
     "eqv",       "erase",   "error",      "event",      "exit",     "explicit", "false",
     "for",       "friend",  "function",   "get",        "global",   "gosub",    "goto",
     "if",        "imp",     "implements", "in",         "input",    "integer",  "is",
     "lbound",    "len",     "lenb",       "let",        "lib",      "like",     "lock",
     "long",      "loop",    "lset",       "me",         "mod",      "new",      "next",
     "not",       "nothing", "null",       "object",     "on",       "open",     "option",
     "optional",  "or",      "output",     "paramarray", "preserve", "print",    "private",
     "property",  "public",  "put",        "raiseevent", "random",   "redim",    "resume",
     "return",    "rset",    "seek",       "select",     "set",      "shared",   "single",
     "static",    "step",    "stop",       "string",     "sub",      "then",     "to",
     "true",      "type",    "typeof",     "ubound",     "unlock",   "until",    "variant",
     "wend",      "while",   "with",       "withevents", "write",    "xor"});
static_assert(std::is_sorted(kKeywords.begin(), kKeywords.end()));

constexpr auto kTags = std::to_array<std::string_view>({"@see", "@example", "@param", "@set",
                                                        "@rem", "@return", "@author", "@revision",
                                                        "@version", "@same", "@includesource"});

bool isBlank(QChar c) {
  return c == u' ' || c == u'\t';
}
bool isDigit(QChar c) {
  return c >= u'0' && c <= u'9';
}
bool isNameStart(QChar c) {
  return (c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z') || c.unicode() > 0x7F;
}
bool isNameCharacter(QChar c) {
  return isNameStart(c) || isDigit(c) || c == u'_';
}

QLatin1String latin(std::string_view text) {
  return {text.data(), static_cast<qsizetype>(text.size())};
}

bool isKeyword(QStringView word) {
  const auto isLess = [](std::string_view keyword, QStringView text) {
    return text.compare(latin(keyword), Qt::CaseInsensitive) > 0;
  };
  const auto found = std::lower_bound(kKeywords.begin(), kKeywords.end(), word, isLess);
  return found != kKeywords.end() && word.compare(latin(*found), Qt::CaseInsensitive) == 0;
}

/// A line is continued if it ends so; it is the same rule for comments and code.
bool isContinued(QStringView line) {
  return line.endsWith(QLatin1String(" _"));
}

class LineScanner {
 public:
  LineScanner(QStringView line, const QStringList& userTags, std::vector<VbSpan>& spans)
      : line_(line), userTags_(userTags), spans_(spans) {}

  int scan(int state) {
    spans_.clear();
    if ((state & kInComment) != 0) {
      add(0, line_.size(), VbToken::comment);
      return isContinued(line_) ? kInComment : kPlain;
    }
    bool startsStatement = true;  // where Rem begins a comment
    while (at_ < line_.size()) {
      const QChar c = line_[at_];
      if (isBlank(c)) {
        ++at_;
        continue;
      }
      if (c == u'\'') return scanComment(state);
      if (isNameStart(c)) {
        const QStringView word = wordAt(at_);
        if (startsStatement && word.compare(QLatin1String("rem"), Qt::CaseInsensitive) == 0) {
          add(at_, line_.size() - at_, VbToken::comment);
          return isContinued(line_) ? kInComment : kPlain;
        }
        scanWord(word);
      } else if (c == u'"') {
        scanString();
      } else if (c == u'#') {
        scanHash();
      } else if (c == u'[') {
        const qsizetype end = line_.indexOf(u']', at_);
        at_ = end < 0 ? at_ + 1 : end + 1;
      } else if (!scanNumber()) {
        ++at_;
      }
      startsStatement = c == u':';
    }
    return kPlain;
  }

 private:
  void add(qsizetype start, qsizetype length, VbToken token) {
    if (length > 0) spans_.push_back({start, length, token});
  }

  QStringView wordAt(qsizetype start) const {
    qsizetype end = start;
    while (end < line_.size() && isNameCharacter(line_[end])) ++end;
    return line_.sliced(start, end - start);
  }

  bool skipsOnlyBlanks(qsizetype end) const {
    const QStringView before = line_.first(end);
    return std::all_of(before.begin(), before.end(), [](QChar c) { return c == u' '; });
  }

  int scanComment(int state) {
    const qsizetype start = at_;
    const bool isLine = skipsOnlyBlanks(start);
    const bool isMarker = isLine && line_.sliced(start).startsWith(QLatin1String("'**"));
    const bool isDocumentation = isMarker || (isLine && (state & kInDocumentation) != 0);
    if (isMarker) {
      add(start, 3, VbToken::marker);
      add(start + 3, line_.size() - start - 3, VbToken::comment);
    } else {
      scanCommentText(start, isDocumentation);
    }
    return (isContinued(line_) ? kInComment : kPlain) |
           (isDocumentation ? kInDocumentation : kPlain);
  }

  void scanCommentText(qsizetype start, bool isDocumentation) {
    qsizetype tag = start + 1;
    while (tag < line_.size() && line_[tag] == u' ') ++tag;
    if (!isDocumentation || !hasTag(line_.sliced(tag)))
      return add(start, line_.size() - start, VbToken::comment);
    const qsizetype end = tag + 1 + wordAt(tag + 1).size();
    add(start, tag - start, VbToken::comment);
    add(tag, end - tag, VbToken::tag);
    add(end, line_.size() - end, VbToken::comment);
  }

  /// Tags are found by their beginnings, so the whole word shows as one.
  bool hasTag(QStringView text) const {
    const auto isTag = [&](std::string_view tag) { return text.startsWith(latin(tag)); };
    const auto isUserTag = [&](const QString& tag) { return text.startsWith(tag); };
    return std::any_of(kTags.begin(), kTags.end(), isTag) ||
           std::any_of(userTags_.begin(), userTags_.end(), isUserTag);
  }

  void scanWord(QStringView word) {
    const bool isMember = at_ > 0 && (line_[at_ - 1] == u'.' || line_[at_ - 1] == u'!');
    if (!isMember && isKeyword(word)) add(at_, word.size(), VbToken::keyword);
    at_ += word.size();
  }

  void scanString() {
    const qsizetype start = at_++;
    while (at_ < line_.size() && line_[at_] != u'"') ++at_;
    if (at_ < line_.size()) ++at_;
    add(start, at_ - start, VbToken::string);
  }

  /// A directive, a date or the number of a file.
  void scanHash() {
    qsizetype wordStart = at_ + 1;
    while (wordStart < line_.size() && isBlank(line_[wordStart])) ++wordStart;
    if (skipsOnlyBlanks(at_)) {
      for (const char* directive : {"if", "elseif", "else", "end", "const"}) {
        const QStringView word = wordAt(wordStart);
        if (word.compare(QLatin1String(directive), Qt::CaseInsensitive) != 0) continue;
        qsizetype end = wordStart + word.size();
        if (QLatin1String(directive) == QLatin1String("end")) {  // its If belongs to it
          while (end < line_.size() && isBlank(line_[end])) ++end;
          end += wordAt(end).size();
        }
        add(at_, end - at_, VbToken::directive);
        at_ = end;
        return;
      }
    }
    const qsizetype end = endOfDate();
    if (end > 0) add(at_, end - at_, VbToken::number);
    at_ = end > 0 ? end : at_ + 1;
  }

  /// Behind the date that begins at the "#", or 0. A date holds digits with a "/", "-" or ":"
  /// between them, and AM or PM.
  qsizetype endOfDate() const {
    bool hasDivider = false;
    for (qsizetype i = at_ + 1; i < line_.size(); ++i) {
      const QChar c = line_[i];
      if (c == u'#') return hasDivider ? i + 1 : 0;
      const bool divides = c == u'/' || c == u'-' || c == u':';
      const bool isDatePart = isDigit(c) || c == u' ' || QStringView(u"AaPpMm").contains(c);
      if (divides && (i + 1 == line_.size() || !isDigit(line_[i + 1]))) return 0;
      if (!divides && !isDatePart) return 0;
      hasDivider |= divides;
    }
    return 0;
  }

  bool scanNumber() {
    const qsizetype start = at_;
    qsizetype end = start;
    const auto skip = [&](auto belongs) {
      const qsizetype from = end;
      while (end < line_.size() && belongs(line_[end])) ++end;
      return end > from;
    };
    const QChar next = start + 1 < line_.size() ? line_[start + 1].toLower() : QChar();
    if (line_[start] == u'&' && (next == u'h' || next == u'o')) {
      end += 2;
      const auto isHex = [](QChar c) {
        return isDigit(c) || (c.toLower() >= u'a' && c.toLower() <= u'f');
      };
      if (!skip(isHex)) return false;
    } else {
      const bool hasWhole = skip(isDigit);
      bool hasFraction = false;
      if (end < line_.size() && line_[end] == u'.') {
        ++end;
        hasFraction = skip(isDigit);
      }
      if (!hasWhole && !hasFraction) return false;
      skipExponent(end);
    }
    if (end < line_.size() && QStringView(u"%&!#@").contains(line_[end])) ++end;
    add(start, end - start, VbToken::number);
    at_ = end;
    return true;
  }

  void skipExponent(qsizetype& end) const {
    if (end >= line_.size() || !QStringView(u"EeDd").contains(line_[end])) return;
    qsizetype digits = end + 1;
    if (digits < line_.size() && (line_[digits] == u'+' || line_[digits] == u'-')) ++digits;
    if (digits >= line_.size() || !isDigit(line_[digits])) return;
    while (digits < line_.size() && isDigit(line_[digits])) ++digits;
    end = digits;
  }

  QStringView line_;
  const QStringList& userTags_;
  std::vector<VbSpan>& spans_;
  qsizetype at_ = 0;
};

}  // namespace

int scanVbLine(QStringView line, int state, const QStringList& userTags,
               std::vector<VbSpan>& spans) {
  return LineScanner(line, userTags, spans).scan(state);
}

}  // namespace tamrikon
