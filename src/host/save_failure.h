// Why a source or project file wasn't saved.
#pragma once

#include <string>

namespace tamrikon {

struct SaveFailure {
  std::string text;  // one line for people, which names the file and the place
  std::string path;  // of the file, absolute

  // Where the caret belongs, in the lines that the IDE shows.
  int line = 0;    // 0 if no line of the code is to blame
  int column = 0;  // in characters from 1; 0 if what is to blame is hidden behind the line
};

}  // namespace tamrikon
