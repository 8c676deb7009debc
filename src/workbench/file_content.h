// The content of files, to be compared.
#pragma once

#include <QByteArray>
#include <QString>

namespace tamrikon {

/// Stands for the content of a file.
QByteArray contentOf(const QString& path);

}  // namespace tamrikon
