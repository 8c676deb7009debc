// Colours Visual Basic source.
#pragma once

#include <QSyntaxHighlighter>
#include <QTextCharFormat>
#include <array>
#include <vector>

#include "workbench/code_colours.h"
#include "workbench/vb_tokens.h"

namespace tamrikon {

class VbHighlighter final : public QSyntaxHighlighter {
  Q_OBJECT
 public:
  VbHighlighter(QTextDocument* document, const CodeColours& colours);

  /// Colours all lines anew.
  void setColours(const CodeColours& colours);
  void setUserTags(const QStringList& tags);

 private:
  void highlightBlock(const QString& text) override;
  void makeFormats(const CodeColours& colours);

  std::array<QTextCharFormat, 7> formats_;  // by VbToken
  QStringList userTags_;
  std::vector<VbSpan> spans_;  // kept, as lines come by thousands
};

}  // namespace tamrikon
