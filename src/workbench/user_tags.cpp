#include "workbench/user_tags.h"

#include <QFile>
#include <QFileInfo>

#include "workbench/renderer/qt_text.h"

namespace tamrikon {
namespace {

QString settingsFileOf(const HostProject& project) {
  const QFileInfo file(toQt(project.FileName()));
  return file.path() + '/' + file.completeBaseName() + ".tamrik";
}

}  // namespace

UserTags::UserTags() {
  connect(&watch_, &FileWatch::changed, this, &UserTags::changed);
}

void UserTags::follow(const HostIde* ide) {
  QStringList paths;
  for (int i = 1; ide != nullptr && i <= ide->VBProjects().Count(); ++i) {
    paths += settingsFileOf(ide->VBProjects().Item(i));
  }
  watch_.watch(paths);
}

QStringList UserTags::of(const HostProject& project) {
  QStringList tags{"@user1", "@user2", "@user3", "@user4", "@user5"};
  QFile file(settingsFileOf(project));
  if (!file.open(QIODevice::ReadOnly)) return tags;
  // The names are ASCII, whatever the code page of the rest is.
  for (const QByteArray& line : file.readAll().replace('\r', '\n').split('\n')) {
    const qsizetype divider = line.indexOf('=');
    if (divider < 0) continue;
    const QByteArray name = line.sliced(divider + 1).trimmed();
    for (int number = 1; number <= 5 && !name.isEmpty(); ++number) {
      const QByteArray key = "user" + QByteArray::number(number) + "Name";
      if (line.first(divider).trimmed() == key) tags[number - 1] = '@' + QString::fromLatin1(name);
    }
  }
  return tags;
}

}  // namespace tamrikon
