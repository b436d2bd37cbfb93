// Where the help pages lie.
#pragma once

#include <QString>
#include <QStringList>

namespace quilm {

// The folder with the help pages that belong to a program in the folder `program`: beside it as an installation lays
// them out, else in the build folder that it was built in, else the first of `elsewhere` that has them. Without any the
// first of those: where they should be.
QString FindHelp(const QString& program, const QStringList& elsewhere);

// Where this build is to be installed, and the folder that it was built in.
QStringList OtherHelpPlaces();

}  // namespace quilm
