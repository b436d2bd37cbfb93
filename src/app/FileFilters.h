// The filters of file dialogs, from the pages' form to the toolkit's.
#pragma once

#include <QString>
#include <QStringList>

namespace quilm {

// From "Quilm files (*.QLM)|*.QLM" to "Quilm files (*.QLM *.qlm)"; several pairs may follow one another. Patterns stand
// in capital and in small letters, since files come from both kinds of systems.
QStringList NameFilters(const QString& filter);

// The extension that such a filter stands for, "QLM"; empty for "*" and "*.*".
QString SuffixOf(const QString& nameFilter);

}  // namespace quilm
