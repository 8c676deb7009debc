// Texts on their way between the toolkit, in UTF-8, and Qt.
#pragma once

#include <QString>
#include <string>

namespace tamrikon {

QString toQt(const std::string& text);
std::string fromQt(const QString& text);

/// Text of several lines: CR LF, CR and LF become "\n".
QString linesToQt(const std::string& text);

/// "\n" becomes CR LF.
std::string linesFromQt(const QString& text);

/// A caption that Qt shows as it is, with its "&".
QString literalCaption(const std::string& caption);

/// Qt takes texts with tags for HTML and breaks no lines in others; both must not happen.
QString toolTipToQt(const std::string& toolTip);

}  // namespace tamrikon
