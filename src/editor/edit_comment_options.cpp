#include "editor/edit_comment_options.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>

#include "base/text.h"

namespace tamrikon {
namespace {

constexpr int kShortest = 10;
constexpr int kLongest = 500;

/// A whole number of any size, clamped; nothing for any other text.
std::optional<int> lineLengthOf(std::string_view text) {
  text = trim(text);
  const bool isNegative = text.starts_with('-');
  if (isNegative || text.starts_with('+')) text.remove_prefix(1);
  const bool isNumber = !text.empty() && std::all_of(text.begin(), text.end(),
                                                     [](char c) { return c >= '0' && c <= '9'; });
  if (!isNumber) return std::nullopt;
  int number = 0;
  for (const char digit : text) number = std::min(number * 10 + (digit - '0'), kLongest + 1);
  return clampLineLength(isNegative ? -number : number);
}

}  // namespace

int clampLineLength(int n) {
  return std::clamp(n, kShortest, kLongest);
}

EditCommentOptions::EditCommentOptions(Toolkit& toolkit, ProjectSettings& settings)
    : Dialog(toolkit, "EditCommentOptions", "Comment Editor Options"),
      UpDown1(*this, "UpDown1", Text1, kShortest, kLongest),
      settings_(settings) {
  UpDown1.setToolTip(Text1.toolTip());
  OKButton.setRole(ButtonRole::default_);
  CancelButton.setRole(ButtonRole::cancel);
  Check1.onClick = [this] { enableLength(); };
  Text1.onLostFocus = [this] {
    if (const auto length = lineLengthOf(Text1.text())) Text1.setText(std::to_string(*length));
  };
  OKButton.onClick = [this] { takeSettings(); };
  CancelButton.onClick = [this] { close(); };
}

void EditCommentOptions::onLoad() {
  const int stored = settings_.wordWrapLength;
  Text1.setText(std::to_string(clampLineLength(std::abs(stored))));
  Check1.setChecked(stored >= 0);
  Check2.setChecked(settings_.autoInsertEOL != 0);
  enableLength();
}

void EditCommentOptions::enableLength() {
  Label1.setEnabled(Check1.isChecked());
  Text1.setEnabled(Check1.isChecked());
  UpDown1.setEnabled(Check1.isChecked());
}

void EditCommentOptions::takeSettings() {
  const auto length = lineLengthOf(Text1.text());
  if (!length) return;
  settings_.wordWrapLength = static_cast<std::int16_t>(Check1.isChecked() ? *length : -*length);
  settings_.autoInsertEOL = Check2.isChecked() ? 1 : 0;
  close();
}

Layout EditCommentOptions::layout() {
  return column({item(Check1),
                 labelled(Label1, row({item(Text1).sized(6), item(UpDown1), space()})),
                 item(Check2), space(), row({space(), item(OKButton), item(CancelButton)})});
}

}  // namespace tamrikon
