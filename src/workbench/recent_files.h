// The projects that were opened last.
#pragma once

#include <QSettings>
#include <QStringList>

namespace tamrikon {

/// Keeps its list in the settings at once.
class RecentFiles {
 public:
  static constexpr int kMost = 10;

  /// `settings` must outlive this object.
  explicit RecentFiles(QSettings& settings) : settings_(settings) {}

  /// The last one first.
  QStringList paths() const;
  void add(const QString& path);
  void remove(const QString& path);

 private:
  QSettings& settings_;
};

}  // namespace tamrikon
