// Controls that show or take text.
#pragma once

#include <string>
#include <vector>

#include "toolkit/control.h"

namespace tamrikon {

/// The caption may have several lines, divided by CR or CR LF.
class Label final : public Control {
 public:
  using Control::Control;

  bool hasFixedFont() const { return fixedFont_; }
  void setFixedFont(bool fixed) { set(fixedFont_, fixed); }

  /// A heading stands out from the text below it.
  bool isHeading() const { return heading_; }
  void setHeading(bool heading) { set(heading_, heading); }

 private:
  bool fixedFont_ = false;
  bool heading_ = false;
};

/// The lines of a multi-line text are divided by CR LF, whatever was set; a renderer gives it so.
class TextBox final : public Control {
 public:
  using Control::Control;

  const std::string& text() const { return text_; }

  /// CR and LF alone count as line ends too.
  void setText(const std::string& text);

  /// Adds at the end, where the user then looks.
  void appendText(const std::string& text);

  bool isMultiLine() const { return multiLine_; }
  void setMultiLine(bool multiLine) { set(multiLine_, multiLine); }
  bool isReadOnly() const { return readOnly_; }
  void setReadOnly(bool readOnly) { set(readOnly_, readOnly); }
  bool hasFixedFont() const { return fixedFont_; }
  void setFixedFont(bool fixed) { set(fixedFont_, fixed); }

  /// Selects the whole text; no effect on a dialog that isn't shown.
  void selectAll();

  /// The user has changed the text, by one key or in another way.
  std::function<void()> onChange;

  // For renderers.
  void userEdited(const std::string& text);

 private:
  std::string text_;
  bool multiLine_ = false;
  bool readOnly_ = false;
  bool fixedFont_ = false;
};

class StatusBar final : public Control {
 public:
  StatusBar(Dialog& dialog, std::string name, int panels = 1)
      : Control(dialog, std::move(name)), panels_(static_cast<std::size_t>(panels)) {}

  int panelCount() const { return static_cast<int>(panels_.size()); }

  /// `number` counts from 1.
  const std::string& panel(int number) const {
    return panels_[static_cast<std::size_t>(number - 1)];
  }
  void setPanel(int number, const std::string& text) {
    set(panels_[static_cast<std::size_t>(number - 1)], text);
  }

 private:
  std::vector<std::string> panels_;
};

}  // namespace tamrikon
