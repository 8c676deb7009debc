// What the workbench asks the user.
#pragma once

#include <QString>
#include <QStringList>

class QWidget;

namespace tamrikon {

struct Question {
  QString text;
  QString details;      // what follows from the answers; may be empty
  QStringList answers;  // as the buttons say it; one alone is a mere message
  int proposed = 0;     // index of the answer that the Enter key gives
  int refused = 0;      // of the one that the Esc key gives
};

class Prompts {
 public:
  virtual ~Prompts() = default;

  /// The index of the answer.
  virtual int ask(const Question& question) = 0;

  /// The path of a project that is to be opened; empty if none is.
  virtual QString chooseProject(const QString& folder) = 0;

  /// A line from 1 to `last`; 0 if none is chosen.
  virtual int chooseLine(int current, int last) = 0;
};

/// Asks in boxes above a window, which must outlive them.
class BoxPrompts final : public Prompts {
 public:
  explicit BoxPrompts(QWidget& window) : window_(window) {}
  int ask(const Question& question) override;
  QString chooseProject(const QString& folder) override;
  int chooseLine(int current, int last) override;

 private:
  QWidget& window_;
};

}  // namespace tamrikon
