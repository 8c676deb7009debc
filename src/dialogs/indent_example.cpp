#include "dialogs/indent_example.h"

namespace tamrikon {
namespace {

struct Example {
  const char* file;
  const char* html;
  const char* rtf;
};

constexpr const char* kComment =
    "'**\r"
    "'@rem This is\r"
    "'an example\r"
    "'     of current\r"
    "''    indent mode";

constexpr Example kKept = {
    "This is\r"
    "an example\r"
    "     of current\r"
    "'    indent mode",
    "This is an example of current ' indent mode",
    "This is an example      of current '    indent mode",
};

constexpr Example kIgnored = {
    "This is\r"
    "  an example\r"
    "  of current\r"
    "      indent mode",
    "This is an example of current indent mode",
    "This is an example of current     indent mode",
};

const Example& exampleOf(int mode) {
  return mode == 1 ? kIgnored : kKept;
}

}  // namespace

IndentExample::IndentExample(Toolkit& toolkit, int mode)
    : Dialog(toolkit, "IndentExample", "Indentation example"),
      Label2(*this, "Label2", kComment),
      Label4(*this, "Label4", exampleOf(mode).file),
      Label6(*this, "Label6", exampleOf(mode).html),
      Label8(*this, "Label8", exampleOf(mode).rtf) {
  for (Label* label : {&Label1, &Label3, &Label5, &Label7}) label->setHeading(true);
  // The blanks at the beginning of a line are what these two show.
  Label2.setFixedFont(true);
  Label4.setFixedFont(true);
  CancelButton.setRole(ButtonRole::cancel);
  CancelButton.onClick = [this] { close(); };
}

Layout IndentExample::layout() {
  return column({
      labelled(Label1, item(Label2)),
      labelled(Label3, item(Label4)),
      labelled(Label5, item(Label6)),
      labelled(Label7, item(Label8)),
      space(),
      row({space(), item(CancelButton)}),
  });
}

}  // namespace tamrikon
