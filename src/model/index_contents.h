// Which wrappers get a topic of their own, and the lists of a table of contents.
#pragma once

#include <vector>

#include "model/wrapper_collections.h"
#include "settings/project_settings.h"
#include "template/macro_table.h"

namespace tamrikon {

/// The wrappers that keep a topic, in the order of `all`. Those that don't take the help id of the
/// one that serves them, and hand it on to the IDE, to be kept in the source if the settings want
/// context IDs.
std::vector<WrapperRef> makeIndex(const WrapperCollections& wrappers,
                                  const ProjectSettings& settings);

/// Sets the CONT-...-LINK-LIST macros to the wrappers of each kind.
void makeContents(const std::vector<WrapperRef>& compiledList, MacroTable& macros);

/// For each wrapper that another one's topic serves, takes over that one's help id, as makeIndex().
void makeSameHelpIDs(const WrapperCollections& wrappers, const ProjectSettings& settings);

}  // namespace tamrikon
