// Looking for a text in all modules of a project.
#pragma once

#include <QList>

#include "host/host_project.h"
#include "workbench/message_list.h"
#include "workbench/text_search.h"

namespace tamrikon {

/// A message that says how many matches there are, then one with its place for each.
QList<Message> searchProject(const HostProject& project, const TextSearch& search);

}  // namespace tamrikon
