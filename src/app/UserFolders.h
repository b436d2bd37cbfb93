// Where the program keeps what is the user's.
#pragma once

#include <QString>

namespace quilm {

// All absolute, without a separator at their end.
struct UserFolders {
  QString data;         // designs without a place of their own, the last session, overlays
  QString preferences;  // QuilmConfiguration.CFG
  QString state;        // the window's place

  // The XDG base directories as freedesktop.org lays them down, each with the program's name in it. A variable
  // that is empty or holds a relative path counts as not set.
  static UserFolders OfDesktop();

  // Everything in one folder.
  static UserFolders Within(const QString& folder);
};

// Makes the folders that are missing, readable by the user alone, and moves preferences and window place out of the
// data folder, in which earlier versions kept them. What is in its new place already stays, and so does what cannot be
// moved.
void PrepareFolders(const UserFolders& folders);

// The file with the window's place.
QString WindowPlaceFile(const UserFolders& folders);

}  // namespace quilm
