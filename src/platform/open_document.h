// Opening a document in the program that belongs to it.
#pragma once

#include <optional>
#include <string>

namespace tamrikon {

/// A document on its way into the program that belongs to it. The program runs on by itself, also
/// when this one ends.
class DocumentOpener {
 public:
  enum class State { atWork, opened, failed };

  /// `target` is the path of a file or folder, or an address. Nothing if it isn't there, or if the
  /// system has no service that opens documents.
  static std::optional<DocumentOpener> start(const std::string& target);

  /// How far it is, without waiting. To be asked until it is no longer at work, which may be as
  /// long as the document is shown: only that gives the system back what it keeps of an ended
  /// process.
  State poll();

 private:
  explicit DocumentOpener(long process) : process_(process) {}

  long process_;
  State state_ = State::atWork;
};

/// Opens `target` and waits until that has worked or failed, but no longer than 3 seconds.
bool openDocument(const std::string& target);

}  // namespace tamrikon
