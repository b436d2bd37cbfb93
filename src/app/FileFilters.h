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

// The path with an ending that tells what will be written. Where the filters offer several kinds, one of their endings
// decides, in capitals or not; any other is put right for the chosen filter: the ending of a picture that is none of
// them is replaced, and what may be a part of the name ("at 1.5 GHz") is kept. A single filter leaves the path as it
// is, and so does the one for all files.
QString WithRightEnding(const QString& path, const QStringList& nameFilters, const QString& chosen);

}  // namespace quilm
