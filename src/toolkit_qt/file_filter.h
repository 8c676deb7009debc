// Filters of file dialogs, in the form that the toolkit has them in and in Qt's.
#pragma once

#include <QString>
#include <QStringList>
#include <string>

namespace tamrikon {

/// "Text (*.txt)|*.txt|All files (*.*)|*.*" becomes "Text (*.txt)" and "All files (*)".
QStringList nameFilters(const std::string& filter);

/// The extension that names chosen with one of Qt's filters get if they have none; empty if the
/// filter doesn't say which.
QString extensionOf(const QString& nameFilter);

}  // namespace tamrikon
