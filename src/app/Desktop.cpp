#include "app/Desktop.h"

#include <QFileInfo>
#include <utility>

#include "app/PageView.h"
#include "shell/Acts.h"

namespace quilm {

Desktop::Desktop(PageDirectory directory, const QString& folder)
    : platform(folder), session(platform, std::move(directory)), window(session, platform.SettingsPath()) {
  PageStage& stage = platform.Stage();
  stage.Attach(session, window);
  stage.onEnded = [this] {
    window.KeepPlace();
    if (onEnded) onEnded();
  };
  const auto press = [&stage](void (*act)(Session&)) {
    return [&stage, act] {
      if (PageView* view = stage.TopView()) view->Press(act);
    };
  };
  window.onUndo = press(Undo);
  window.onRedo = press(Redo);
  window.onFile = [this](const QString& path) { OpenFile(path); };
  window.onCloseBox = [&stage] { stage.PressCloseBox(); };
}

Desktop::~Desktop() { platform.Stage().Close(); }

void Desktop::Start(const std::function<void(Session&)>& start) {
  window.show();
  platform.Stage().Perform([&](Session& started) { RunHandler(started, [&] { start(started); }); });
}

void Desktop::OpenFile(const QString& path) {
  PageView* view = TopView();
  if (view == nullptr) return;
  platform.GiveFile(QFileInfo(path).absoluteFilePath().toStdString());
  if (!view->PressNamed("cmdGet")) view->PressNamed("cmdRetrieveOld");
  platform.GiveFile({});
}

}  // namespace quilm
