// How the texts of a comment look in the boxes and lists of its editor. A line end is a CR in what
// the parser gives, and CR LF in a field.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "settings/project_settings.h"

namespace tamrikon {

/// A list box of several columns has one text an item, CR LF between them.
using FieldList = std::vector<std::string>;

/// With autoInsertEOL, the lines are joined with blanks, and only "$EOL$" ends a line.
std::string convertFieldText(std::string_view text, const ProjectSettings& settings);

/// The same for each item; its first `keep` CRs divide it, and stay line ends.
FieldList convertListItems(const FieldList& list, int keep, const ProjectSettings& settings);

/// Links as a list shows them: "link" or "link [label]".
FieldList formatLinkList(const FieldList& links);

/// What a list shows for a link; an empty label is left out.
std::string linkItem(std::string_view link, std::string_view label);

struct LinkAndLabel {
  std::string link;
  std::string label;
};

/// Divides what a list shows at its first "[". The label ends before the last character, whatever
/// that is.
LinkAndLabel splitLinkItem(std::string_view item);

/// The parameter that an item of parameters or settings is about: its first line.
std::string itemName(std::string_view item);

/// What stands behind the name of a parameter.
std::string parameterText(std::string_view item);
std::string parameterItem(std::string_view name, std::string_view text);

/// Parameter, constant, value and description, the latter with all further lines.
using SettingRow = std::array<std::string, 4>;
SettingRow settingRow(std::string_view item);
std::string settingItem(const SettingRow& row);

}  // namespace tamrikon
