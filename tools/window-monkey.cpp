// quilm-window-monkey: real mouse and key events at random in the real window, by hand:
//
//   xvfb-run -a build/dev/bin/quilm-window-monkey --seed 1 --acts 20000
//
// After each event the widgets of the page on top must show what its controls hold. Every event is in the log before it
// is sent, so that the log's end tells what a crash came from. File dialogs get names in a folder of the run's own,
// since a key at random there could write over anything.
#include <unistd.h>

#include <CLI/CLI.hpp>
#include <QAbstractButton>
#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QPointer>
#include <QPrintDialog>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <fstream>
#include <iostream>
#include <random>

#include "app/Desktop.h"
#include "app/PageView.h"
#include "app/Palettes.h"
#include "desk/StartUp.h"
#include "pages/PageDirectory.h"
#include "shell/Page.h"

namespace {

using namespace quilm;

constexpr unsigned mostSecondsAnAct = 60;
constexpr int exitFound = 1;

// Takes what would go to a browser.
class NoBrowser : public QObject {
  Q_OBJECT

 public:
  using QObject::QObject;
 public slots:
  void Open(const QUrl& /*url*/) {}
};

struct Wanted {
  std::uint32_t seed = 1;
  int acts = 5000;
  std::string log = "window-monkey.log";
};

class WindowMonkey : public QObject {
 public:
  explicit WindowMonkey(const Wanted& wanted) : random_(wanted.seed), left_(wanted.acts), log_(wanted.log) {}

  // Until all acts are done, starting the program again where it was left. Gives what was wrong.
  std::string Run() {
    while (left_ > 0 && finding_.empty()) RunOnce();
    return finding_;
  }

  int Sessions() const { return sessions_; }

 private:
  void RunOnce() {
    ++sessions_;
    Tell("starts");
    Desktop desktop(AllPages(), folder_.path());
    desktop_ = &desktop;
    QEventLoop loop;
    desktop.onEnded = [&loop] { loop.quit(); };
    desktop.Start(StartProgram);
    Tick();
    if (!desktop.session.ended) loop.exec();
    desktop_ = nullptr;
  }

  int Below(int count) { return static_cast<int>(random_() % static_cast<unsigned>(count)); }

  void Tell(const std::string& what) { log_ << what << std::endl; }

  // The next act is on its way before this one is done, which may open a modal page or a dialog with a loop of its own.
  // One timer would not do: the toolkit does not fire it while its handler runs.
  void Tick() {
    Desktop* desktop = desktop_;
    QTimer::singleShot(0, this, [this, desktop] {
      if (desktop_ == desktop && !desktop->session.ended) Act();
    });
  }

  void Act() {
    alarm(mostSecondsAnAct);
    Tick();
    Look();
    if (left_ <= 0 || !finding_.empty()) {
      Leave();
      return;
    }
    --left_;
    QWidget* front = QApplication::activePopupWidget();
    if (front == nullptr) front = QApplication::activeModalWidget();
    if (front == nullptr) front = &desktop_->window;
    if (auto* dialog = qobject_cast<QDialog*>(front)) {
      if (AnswerDialog(*dialog)) return;
    }
    if (!front->isActiveWindow()) QApplication::setActiveWindow(front);  // there may be no window manager
    Below(10) < 6 ? MouseAt(*front) : KeyTo(*front);
  }

  void Leave() {
    if (QWidget* popup = QApplication::activePopupWidget()) popup->close();
    QWidget* modal = QApplication::activeModalWidget();
    if (auto* dialog = qobject_cast<QDialog*>(modal)) {
      dialog->reject();
    } else {
      desktop_->platform.Stage().PressCloseBox();
    }
  }

  bool AnswerDialog(QDialog& dialog) {
    if (auto* files = qobject_cast<QFileDialog*>(&dialog)) {
      const QString name = QDir(folder_.path()).filePath(QString::fromLatin1(Below(2) == 0 ? "a.QLM" : "b.QLM"));
      const bool cancels = Below(4) == 0 || (files->acceptMode() == QFileDialog::AcceptOpen && !QFile::exists(name));
      Tell(cancels ? "file dialog: cancel" : "file dialog: " + name.toStdString());
      if (cancels) {
        files->reject();
        return true;
      }
      files->setOption(QFileDialog::DontConfirmOverwrite);
      files->selectFile(name);
      static_cast<QDialog*>(files)->accept();
      if (files->isVisible()) files->reject();
      return true;
    }
    // A printer of the machine is none of a monkey's business.
    if (qobject_cast<QPrintDialog*>(&dialog) == nullptr) return false;
    Tell("print dialog: cancel");
    dialog.reject();
    return true;
  }

  // A widget that is seen, buttons and boxes above all.
  QWidget* Somewhere(QWidget& front) {
    QList<QWidget*> seen;
    for (QWidget* widget : front.findChildren<QWidget*>()) {
      if (!widget->isVisible() || widget->visibleRegion().isEmpty() || widget->window() != front.window()) continue;
      const bool takesPart =
          qobject_cast<QAbstractButton*>(widget) != nullptr || qobject_cast<QLineEdit*>(widget) != nullptr;
      seen.append(widget);
      if (takesPart) seen.append({widget, widget, widget});
    }
    return seen.isEmpty() ? &front : seen.at(Below(static_cast<int>(seen.size())));
  }

  void MouseAt(QWidget& front) {
    QWidget* widget = Somewhere(front);
    const QPoint at(Below(std::max(1, widget->width())), Below(std::max(1, widget->height())));
    const Qt::MouseButton button = Below(6) == 0 ? Qt::RightButton : Qt::LeftButton;
    const int kind = Below(10);
    const QString name =
        widget->objectName().isEmpty() ? QString::fromLatin1(widget->metaObject()->className()) : widget->objectName();
    Tell("mouse " + std::to_string(kind) + (button == Qt::LeftButton ? " left " : " right ") + name.toStdString() +
         " at " + std::to_string(at.x()) + " " + std::to_string(at.y()));
    if (kind == 7) {
      QTest::mouseMove(widget, at);
    } else if (kind == 9) {
      QTest::mouseDClick(widget, button, {}, at);
    } else {
      // What is pressed may be gone before it is released.
      const QPointer<QWidget> stays = widget;
      if (kind != 8) QTest::mousePress(widget, button, {}, at);
      if (kind != 6 && stays != nullptr) QTest::mouseRelease(widget, button, {}, at);
    }
  }

  void KeyTo(QWidget& front) {
    static const std::vector<Qt::Key> plain{Qt::Key_Tab,   Qt::Key_Backtab,   Qt::Key_Return, Qt::Key_Escape,
                                            Qt::Key_Space, Qt::Key_Up,        Qt::Key_Down,   Qt::Key_Left,
                                            Qt::Key_Right, Qt::Key_Backspace, Qt::Key_Delete, Qt::Key_Home,
                                            Qt::Key_End,   Qt::Key_F1,        Qt::Key_Menu};
    static const std::vector<Qt::Key> withControl{Qt::Key_Z, Qt::Key_Y, Qt::Key_C, Qt::Key_V, Qt::Key_A, Qt::Key_X};
    static const QByteArray typed("0123456789.-kMupn ");
    QWidget* focus = QApplication::focusWidget();
    QWidget& target = focus != nullptr && focus->window() == front.window() ? *focus : front;
    const int kind = Below(10);
    if (kind < 4) {
      const char key = typed.at(Below(static_cast<int>(typed.size())));
      Key(target, static_cast<Qt::Key>(QChar::fromLatin1(key).toUpper().unicode()), {},
          QString(QChar::fromLatin1(key)));
    } else if (kind < 7) {
      Key(target, plain[static_cast<std::size_t>(Below(static_cast<int>(plain.size())))], {});
    } else if (kind < 8) {
      Key(target, withControl[static_cast<std::size_t>(Below(static_cast<int>(withControl.size())))],
          Below(4) == 0 ? Qt::ControlModifier | Qt::ShiftModifier : Qt::ControlModifier);
    } else {
      Key(target, static_cast<Qt::Key>(Qt::Key_A + Below(26)), Qt::AltModifier);
    }
  }

  void Key(QWidget& target, Qt::Key key, Qt::KeyboardModifiers modifiers, const QString& text = {}) {
    Tell("key " + QKeySequence(QKeyCombination(modifiers, key)).toString().toStdString() + " to " +
         target.objectName().toStdString());
    const QPointer<QWidget> stays = &target;
    QTest::sendKeyEvent(QTest::Press, &target, key, text, modifiers);
    if (stays != nullptr) QTest::sendKeyEvent(QTest::Release, &target, key, text, modifiers);
  }

  // Between two events, when every handler has been shown.
  void Look() {
    const PageView* view = desktop_->TopView();
    const Page* page = view == nullptr ? nullptr : view->Shown();
    if (page == nullptr || page != desktop_->session.pages.Top()) return;
    for (const Control* control : page->Controls()) {
      const QWidget* widget = view->Find(QString::fromStdString(control->name));
      if (widget == nullptr) continue;
      if (widget->isVisibleTo(view) != control->Shown()) Find(*page, *control, "is not seen as it should be");
      if (control->Shown() && control->kind == ControlKind::Button && widget->isEnabled() != control->Active()) {
        Find(*page, *control, "is not enabled as it should be");
      }
      const auto* box = dynamic_cast<const TextBox*>(control);
      const auto* line = qobject_cast<const QLineEdit*>(widget);
      if (box != nullptr && line != nullptr && control->Shown() && line->text() != QString::fromStdString(box->text)) {
        Find(*page, *control, "shows \"" + line->text().toStdString() + "\" for \"" + box->text + "\"");
      }
    }
  }

  void Find(const Page& page, const Control& control, const std::string& what) {
    if (!finding_.empty()) return;
    finding_ = control.name + " of " + std::string(page.Name()) + " " + what;
    Tell("finding: " + finding_);
  }

  QTemporaryDir folder_;
  std::mt19937 random_;
  int left_;
  int sessions_ = 0;
  std::ofstream log_;
  Desktop* desktop_ = nullptr;
  std::string finding_;
};

}  // namespace

int main(int argc, char** argv) {
  CLI::App commands("Sends real events at random to the real window.");
  Wanted wanted;
  commands.add_option("--seed", wanted.seed, "what the events depend on")->capture_default_str();
  commands.add_option("--acts", wanted.acts, "how many to send")->capture_default_str();
  commands.add_option("--log", wanted.log, "where they are written down")->capture_default_str();
  CLI11_PARSE(commands, argc, argv);

  QApplication app(argc, argv);
  // The toolkit's own dialogs are the ones that can be answered.
  QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
  SetAppearance(QStringLiteral("light"));
  NoBrowser none;
  for (const char* scheme : {"file", "http", "https"}) {
    QDesktopServices::setUrlHandler(QString::fromLatin1(scheme), &none, "Open");
  }
  WindowMonkey monkey(wanted);
  const std::string finding = monkey.Run();
  std::cout << "seed " << wanted.seed << ": " << wanted.acts << " events in " << monkey.Sessions() << " sessions, "
            << (finding.empty() ? "nothing is wrong" : finding) << "\n";
  return finding.empty() ? 0 : exitFound;
}

#include "window-monkey.moc"
