#include "editor/setting_tables.h"

#include <algorithm>

namespace tamrikon {
namespace {

bool belongsTo(const FieldList& table, const std::string& name) {
  return !table.empty() && itemName(table.front()) == name;
}

}  // namespace

const FieldList* findSettings(const SettingTables& tables, const std::string& name) {
  const auto table = std::find_if(tables.begin(), tables.end(),
                                  [&](const FieldList& t) { return belongsTo(t, name); });
  return table == tables.end() ? nullptr : &*table;
}

bool hasFreeTable(const SettingTables& tables) {
  return std::any_of(tables.begin(), tables.end(), [](const FieldList& t) { return t.empty(); });
}

void storeParameterSettings(SettingTables& tables, const std::string& name,
                            const std::vector<SettingCells>& rows) {
  const auto target = std::find_if(tables.begin(), tables.end(), [&](const FieldList& t) {
    return t.empty() || belongsTo(t, name);
  });
  if (target == tables.end()) return;
  target->clear();
  for (const auto& [constant, value, description] : rows) {
    target->push_back(settingItem({name, constant, value, description}));
  }
  if (rows.empty()) {
    std::rotate(target, target + 1, tables.end());
  } else {
    std::rotate(tables.begin(), target, target + 1);
  }
}

void keepSettingsOf(SettingTables& tables, const FieldList& parameters) {
  for (FieldList& table : tables) {
    const bool isKept =
        std::any_of(parameters.begin(), parameters.end(),
                    [&](const std::string& item) { return belongsTo(table, itemName(item)); });
    if (!isKept) table.clear();
  }
  std::stable_partition(tables.begin(), tables.end(),
                        [](const FieldList& table) { return !table.empty(); });
}

}  // namespace tamrikon
