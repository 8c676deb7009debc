#include "editor/parameters_page.h"

#include <utility>

#include "editor/compose_comment.h"
#include "editor/parameter_update.h"

namespace tamrikon {

ParametersPage::ParametersPage(Dialog& dialog, CommentFields& fields, FieldBoxes& boxes,
                               ProjectSettings& settings)
    : dialog_(dialog), settingsGrid(dialog, fields), fields_(fields), settings_(settings) {
  ParamText.setMultiLine(true);
  ReturnsText.setMultiLine(true);
  boxes.add(ReturnsText, fields.returns);
  ParamText.onLostFocus = [this] { take(); };
  ParamList.onClick = [this] { selectParameter(); };
  ParamUpdateBtn.onClick = [this] { update(); };
  updateOnStartCheck.onClick = [this] {
    settings_.autoUpdateParams = updateOnStartCheck.isChecked() ? 1 : 0;
  };
}

void ParametersPage::enable(bool enabled) {
  // Frames disable what they hold.
  ParametersFrame.setEnabled(enabled);
  ReturnsFrame.setEnabled(enabled);
  ParamUpdateBtn.setEnabled(enabled);
}

void ParametersPage::show() {
  updateOnStartCheck.setChecked(settings_.autoUpdateParams != 0);
  std::vector<std::string> names;
  for (const std::string& item : fields_.parameters) names.push_back(itemName(item));
  ParamList.setItems(std::move(names));
  shown_ = -1;
  ParamText.setText("");
  ParamText.setEnabled(false);
  settingsGrid.reset();
  if (ParamList.count() == 0) return;
  ParamList.select(0);
  selectParameter();
}

void ParametersPage::selectParameter() {
  take();
  shown_ = ParamList.selected();
  if (shown_ < 0) return;
  const std::string& item = fields_.parameters[static_cast<std::size_t>(shown_)];
  ParamText.setEnabled(true);
  ParamText.setText(parameterText(item));
  settingsGrid.showParameterSettings(itemName(item));
}

void ParametersPage::take() {
  if (shown_ < 0) return;
  std::string& item = fields_.parameters[static_cast<std::size_t>(shown_)];
  item = parameterItem(itemName(item), ParamText.text());
  settingsGrid.commit();
}

void ParametersPage::update() {
  fields_.returns = ReturnsText.text();
  take();
  const CommentFields gone =
      updateParameters(fields_, parseGeneratedFields(generatedLines, settings_));
  for (std::string& line : composeComment(gone, settings_)) lost.push_back(std::move(line));
  ReturnsText.setText(fields_.returns);
  show();
}

Layout ParametersPage::layout() {
  Layout parameter =
      row({labelled(ParamLabel, item(ParamList).sized(20, 6)),
           labelled(ParamTextLabel, item(ParamText).sized(40, 6).growing()).growing()})
          .growing();
  return column({
      framed(ParametersFrame, column({std::move(parameter), settingsGrid.layout()})).growing(),
      framed(ReturnsFrame, item(ReturnsText).sized(60, 3)),
      row({item(updateOnStartCheck), space(), item(ParamUpdateBtn)}),
  });
}

}  // namespace tamrikon
