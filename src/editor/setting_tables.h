// The settings of parameters: three lists at most, each with the rows of one parameter.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "editor/field_text.h"

namespace tamrikon {

using SettingTables = std::array<FieldList, 3>;

/// Constant, value and description, as the grid shows them.
using SettingCells = std::array<std::string, 3>;

/// The list of the parameter, or null.
const FieldList* findSettings(const SettingTables& tables, const std::string& name);

bool hasFreeTable(const SettingTables& tables);

/// Replaces the rows of a parameter, or takes a free list for them. The list then stands before
/// the others, or behind them if it is empty. Without a list nothing is stored.
void storeParameterSettings(SettingTables& tables, const std::string& name,
                            const std::vector<SettingCells>& rows);

/// Empties the lists of those that are none of `parameters`.
void keepSettingsOf(SettingTables& tables, const FieldList& parameters);

}  // namespace tamrikon
