// Where the help pages lie.
#pragma once

#include <QString>

namespace quilm {

// The folder with the help pages that belong to a program in the folder `program`: the data folder as the installation
// lays it out, else one beside the program or its folder, as a build folder has it. Without any the first: where they
// should be. The program holds no absolute path, so that an installation can be moved and its bytes do not tell where
// they were built.
QString FindHelp(const QString& program);

}  // namespace quilm
