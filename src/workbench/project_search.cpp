#include "workbench/project_search.h"

#include "toolkit_qt/qt_text.h"
#include "workbench/block_text.h"

namespace tamrikon {

QList<Message> searchProject(const HostProject& project, const TextSearch& search) {
  QList<Message> found;
  for (int i = 1; i <= project.VBComponents().Count(); ++i) {
    HostModule* module = project.VBComponents().Item(i).CodeModule();
    if (module == nullptr || module->CountOfLines() == 0) continue;
    const QString name = toQt(module->Name());
    const QStringList lines = toBlocks(module->Lines(1, module->CountOfLines()));
    for (int line = 1; line <= lines.size(); ++line) {
      const QString& text = lines[line - 1];
      for (qsizetype at = search.findIn(text); at >= 0;
           at = search.findIn(text, at + search.text.size())) {
        const Selection place{line, columnAt(text, at), line,
                              columnAt(text, at + search.text.size())};
        found += {QString("%1 (%2): %3").arg(name).arg(line).arg(text.trimmed()), module, place};
      }
    }
  }
  const QString matches = found.size() == 1 ? "1 match" : QString("%1 matches").arg(found.size());
  found.prepend({matches + QString::fromUtf8(" of “") + search.text + QString::fromUtf8("” in ") +
                     toQt(project.Name()),
                 nullptr,
                 {}});
  return found;
}

}  // namespace tamrikon
