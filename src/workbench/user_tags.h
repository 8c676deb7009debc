// The tags that a project has beside Tamrikon's own.
#pragma once

#include <QObject>
#include <QStringList>

#include "host/host_ide.h"
#include "workbench/file_watch.h"

namespace tamrikon {

class UserTags final : public QObject {
  Q_OBJECT
 public:
  UserTags();

  /// Follows the settings files of these projects from now on; null for none.
  void follow(const HostIde* ide);

  /// The tags of a project as comments have them, such as "@user1", by its settings file.
  static QStringList of(const HostProject& project);

 signals:
  /// Those of a project may be others now.
  void changed();

 private:
  FileWatch watch_;
};

}  // namespace tamrikon
