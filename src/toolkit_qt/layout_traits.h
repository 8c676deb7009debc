// What a part of a layout does with the room that a larger dialog has.
#pragma once

#include "toolkit/layout.h"

namespace tamrikon {

/// Whether the part is worth more height: a list, a tree, a box of several lines.
bool isTall(const Layout& part);

/// Whether the dialog's author gives it more height, or more width.
bool growsDown(const Layout& part);
bool growsAcross(const Layout& part);

/// Whether it takes width that nothing else wants.
bool takesWidth(const Layout& part);

/// Whether it is a control that only makes sense at its own width, such as a box for a number.
bool keepsWidth(const Layout& part);

bool isButton(const Layout& part);

/// A row of buttons, and nothing else than space.
bool isButtonRow(const Layout& part);

/// A row of a box and the arrows that belong to it.
bool isSpinPair(const Layout& part);

/// The layout with a row of its own round each spin control in a row and its box.
Layout withSpinPairs(Layout layout);

}  // namespace tamrikon
