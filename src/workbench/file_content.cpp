#include "workbench/file_content.h"

#include <QCryptographicHash>
#include <QFile>

namespace tamrikon {

QByteArray contentOf(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return "gone";
  QCryptographicHash hash(QCryptographicHash::Sha1);
  hash.addData(&file);
  return hash.result();
}

}  // namespace tamrikon
