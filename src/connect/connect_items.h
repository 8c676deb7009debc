// What the add-in puts into the bars of the IDE.
#pragma once

#include <memory>

#include "connect/connect.h"

namespace tamrikon {

struct connect::Item {
  const char* bar;
  int otherBar;  // the number of the one that serves where that is missing; 0: none does
  bool isBeforeLast;
  const char* caption;
  const char* toolTip;  // null: the IDE's own
  int bitmap;
  bool followsColour;  // its face is made anew when the colours of the system change
  std::unique_ptr<CommandBarEvents> connect::*source;
  void (connect::*click)();
  const char* failureText;
};

}  // namespace tamrikon
