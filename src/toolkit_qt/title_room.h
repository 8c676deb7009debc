// Room for the titles of windows.
#pragma once

#include <QMessageBox>
#include <QString>
#include <QWidget>

namespace tamrikon {

/// The width at which a window shows its whole title, beside what else its frame holds.
int widthForTitle(const QString& title);

/// The room for a window of that owner, without its frame.
QSize roomOnScreen(const QWidget* owner);

/// Makes the box as wide as its title. A title that is too long for that goes into its text as
/// well.
void makeRoomForTitle(QMessageBox& box);

}  // namespace tamrikon
