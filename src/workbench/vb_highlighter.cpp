#include "workbench/vb_highlighter.h"

#include <algorithm>

namespace tamrikon {

VbHighlighter::VbHighlighter(QTextDocument* document, const CodeColours& colours)
    : QSyntaxHighlighter(document) {
  makeFormats(colours);
}

void VbHighlighter::setColours(const CodeColours& colours) {
  makeFormats(colours);
  rehighlight();
}

void VbHighlighter::setUserTags(const QStringList& tags) {
  if (userTags_ == tags) return;
  userTags_ = tags;
  rehighlight();
}

void VbHighlighter::makeFormats(const CodeColours& colours) {
  const auto set = [&](VbToken token, const QColor& colour) -> QTextCharFormat& {
    QTextCharFormat& format = formats_[static_cast<std::size_t>(token)];
    format.setForeground(colour);
    return format;
  };
  set(VbToken::keyword, colours.keyword);
  set(VbToken::comment, colours.comment);
  set(VbToken::marker, colours.marker).setFontWeight(QFont::Bold);
  set(VbToken::tag, colours.tag).setFontWeight(QFont::Bold);
  set(VbToken::string, colours.string);
  set(VbToken::number, colours.number);
  set(VbToken::directive, colours.directive);
}

void VbHighlighter::highlightBlock(const QString& text) {
  const int state = std::max(previousBlockState(), 0);  // -1 above the first line
  setCurrentBlockState(scanVbLine(text, state, userTags_, spans_));
  for (const VbSpan& span : spans_) {
    setFormat(static_cast<int>(span.start), static_cast<int>(span.length),
              formats_[static_cast<std::size_t>(span.token)]);
  }
}

}  // namespace tamrikon
