// Lines of source as the blocks of a document, which hold UTF-16, and their columns.
#pragma once

#include <QString>
#include <QStringList>
#include <string>
#include <string_view>

namespace tamrikon {

/// A line of source as one block of a document can hold it, and back. The few characters at which
/// a document would divide the line stand as surrogates of their own, which no source can hold.
QString toBlock(std::string_view line);
std::string fromBlock(QStringView block);

/// The lines of `text`, divided at CR LF, as blocks; an empty text is one empty line.
QStringList toBlocks(std::string_view text);

/// Columns count characters from 1, positions count UTF-16 units from 0. What lies behind the end
/// of the line gives its end.
int columnAt(QStringView block, qsizetype position);
int positionAt(QStringView block, int column);

}  // namespace tamrikon
