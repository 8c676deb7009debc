// A key that the user pressed.
#pragma once

namespace tamrikon {

enum class Key { other, escape, enter, tab, up, down, left, right, home, end, f1, del };

struct KeyEvent {
  Key key = Key::other;
  bool control = false;
  bool shift = false;
  bool handled = false;  // set by a handler: the key has no further effect
};

}  // namespace tamrikon
