// The code pages of all projects that are opened together.
#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "base/diagnostic.h"
#include "platform/code_page.h"
#include "source/code_page_guess.h"
#include "source/page_of_bytes.h"

namespace tamrikon {

class ProjectPages {
 public:
  /// Adds a project: the page that was asked for or kept, or null, and what its files tell.
  void add(const CodePage* chosen, const CodePageGuess& guess);

  /// The page of the project, by its number from 0 in the order of add(). One whose files tell
  /// nothing takes that of most others, if its own bytes can be text of it; and 1252 if there is no
  /// such page, or if several are equally common.
  const CodePage& of(std::size_t project) const;

  /// The projects, those first whose page is the surest: asked for or kept, named by its files,
  /// guessed from its bytes, taken from others.
  std::vector<std::size_t> surestFirst() const;

  /// What somebody should know who sees wrong letters: a note for each page that was guessed from
  /// bytes, and one for bytes that were read as 1252 because nothing tells another page.
  std::vector<Diagnostic> notes(
      const std::function<std::string(std::size_t project)>& nameOf) const;

 private:
  enum class Source { asked, named, bytes, none };
  struct Found {
    int page = 0;  // 0: nothing tells it
    Source source = Source::none;
    bool needsPage = false;  // there are bytes that the page matters for
    ByteSample bytes;        // kept where nothing else tells the page
  };
  int ofOthers(const Found& project) const;

  std::vector<Found> projects_;
};

}  // namespace tamrikon
