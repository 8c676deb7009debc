#include "workbench/user_tags.h"

#include <QFile>
#include <QFileInfo>

#include "platform/text_decoding.h"
#include "settings/user_tag_import.h"
#include "toolkit_qt/qt_text.h"

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
  ProjectSettings settings;
  QFile file(settingsFileOf(project));
  if (file.open(QIODevice::ReadOnly)) {
    readUserTags(decodeText(file.readAll().toStdString(), project.codePage()).text, settings);
  }
  QStringList tags;
  for (const std::string& name : settings.userName) tags += '@' + toQt(name);
  return tags;
}

}  // namespace tamrikon
