#include <gtest/gtest.h>

#include <QApplication>

namespace {

/// What Qt complains of is a fault, but for what this platform lacks.
void failOnWarning(QtMsgType type, const QMessageLogContext&, const QString& text) {
  const bool isOfPlatform = text.startsWith("This plugin does not support") ||
                            text.startsWith("QStandardPaths: XDG_RUNTIME_DIR");
  if (type != QtDebugMsg && !isOfPlatform) ADD_FAILURE() << text.toStdString();
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  qInstallMessageHandler(failOnWarning);
  const QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
