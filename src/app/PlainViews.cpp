#include "app/PlainViews.h"

#include <QAccessible>
#include <QFontDatabase>
#include <QScrollArea>

#include "app/Palettes.h"
#include "app/QtText.h"
#include "shell/Page.h"
#include "shell/PictureName.h"
#include "shell/Session.h"

namespace quilm {

namespace {

constexpr int wrapBeyond = 90;  // characters in a line of a label
constexpr int wrappedWidth = 520;

bool HasLongLine(const QString& text) {
  for (const QString& line : text.split(QLatin1Char('\n'))) {
    if (line.size() > wrapBeyond) return true;
  }
  return false;
}

// Asks for the file and tells what became of it.
void SavePictureAs(Session& session, const PictureView& view, const std::string& page, int width) {
  static const std::string title = "Save picture";
  static const std::string png = "PNG picture (*.png)|*.png";
  static const std::string vectors = "|SVG drawing (*.svg)|*.svg|PDF document (*.pdf)|*.pdf";
  const auto path =
      session.platform.SaveDialog(title, width > 0 ? png : png + vectors, PictureName(session.identity, page) + ".png");
  if (!path) return;
  const WriteOutcome outcome = view.SaveAs(ToQt(*path), width);
  if (outcome) {
    session.note = "Wrote " + *path;
  } else {
    session.platform.MessageBox(*path + " was not written: " + outcome.failure, Buttons::Ok, Icon::Exclamation, title);
  }
}

}  // namespace

LabelView::LabelView(Label& label, QWidget* parent) : ControlView(label), label_(label), widget_(new QLabel(parent)) {
  widget_->setTextFormat(Qt::PlainText);
  widget_->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
  if (label.emphasised) {
    QFont font = widget_->font();
    constexpr f64 larger = 1.25;
    font.setPointSizeF(font.pointSizeF() * larger);
    font.setBold(true);
    widget_->setFont(font);
  }
  if (label.fixedPitch) {
    widget_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    widget_->setIndent(label.indent * widget_->fontMetrics().averageCharWidth());
  }
  SetWidget(widget_);
}

void LabelView::ShowValues() {
  const QString text = TakesMnemonic() ? MarkedCaption(label_.caption, mnemonic_) : ToQt(label_.caption);
  if (widget_->text() != text) {
    widget_->setText(text);
    const bool wraps = HasLongLine(text);
    if (wraps) widget_->setMinimumWidth(wrappedWidth);
    widget_->setWordWrap(wraps);
    // A window that is open already grows for a longer text by its least height alone.
    widget_->setMinimumHeight(wraps ? widget_->heightForWidth(wrappedWidth) : 0);
  }
  if (label_.foreColor == colorShown_ && label_.backColor == groundShown_) return;
  colorShown_ = label_.foreColor;
  groundShown_ = label_.backColor;
  QPalette colors = MarkedGround(label_.backColor, QPalette::Window, QPalette::WindowText);
  widget_->setAutoFillBackground(label_.backColor != colorWhite);
  colors.setColor(QPalette::WindowText,
                  ReadableOn(colors.color(QPalette::Window), colors.color(QPalette::WindowText), label_.foreColor));
  widget_->setPalette(colors);
}

ReadingView::ReadingView(Label& label, QWidget* parent) : ControlView(label), label_(label), text_(nullptr) {
  constexpr QSize least{640, 540};
  auto* area = new QScrollArea(parent);
  text_ = new QLabel(area);
  text_->setTextFormat(Qt::PlainText);
  text_->setWordWrap(true);
  text_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  text_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  const int margin = text_->fontMetrics().averageCharWidth();
  text_->setContentsMargins(margin, margin, margin, margin);
  area->setWidget(text_);
  area->setWidgetResizable(true);
  area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  area->setMinimumSize(least);
  SetWidget(area);
}

void ReadingView::ShowValues() {
  const QString text = ToQt(label_.caption);
  if (text_->text() != text) text_->setText(text);
}

FrameView::FrameView(Frame& frame, QWidget* parent) : ControlView(frame), frame_(frame), widget_(new GroupBox(parent)) {
  SetWidget(widget_);
}

// The layout gives the frame its heading.
void FrameView::ShowValues() {
  const QString caption = ToQt(frame_.caption);
  if (widget_->Heading() != nullptr && widget_->Title() != caption) widget_->SetTitle(caption);
}

SpinView::SpinView(Spin& spin, ActSink& sink, QWidget* parent)
    : ControlView(spin), spin_(spin), widget_(new SpinBox(parent)) {
  widget_->onStep = [this, &sink](int direction) {
    sink.Press([this, direction](Session& session) { Step(session, spin_, direction); });
  };
  widget_->large = spin.large;
  widget_->room = spin.room;
  if (spin.number != nullptr) {
    widget_->onNumber = [this, &sink](int number) {
      sink.Press([this, number](Session& session) { SetNumber(session, spin_, number); });
    };
    widget_->value = [this] { return spin_.Value(); };
  }
  SetWidget(widget_);
}

void SpinView::ShowValues() {
  widget_->lowest = spin_.lowest;
  widget_->highest = spin_.highest;
  if (spin_.Value() == valueShown_) return;
  valueShown_ = spin_.Value();
  QAccessibleValueChangeEvent changed(widget_, valueShown_);
  QAccessible::updateAccessibility(&changed);
}

TimerView::TimerView(Timer& timer, ActSink& sink, QWidget* parent)
    : ControlView(timer), timer_(timer), clock_(new QTimer(parent)) {
  QObject::connect(clock_, &QTimer::timeout, clock_,
                   [this, &sink] { sink.Perform([this](Session& session) { Tick(session, timer_); }); });
}

TimerView::~TimerView() { clock_->stop(); }

void TimerView::ShowValues() {
  if (!timer_.Active()) {
    clock_->stop();
  } else if (!clock_->isActive() || clock_->interval() != timer_.interval) {
    clock_->start(timer_.interval);
  }
}

PictureBoxView::PictureBoxView(PictureBox& box, ActSink& sink, QWidget* parent)
    : ControlView(box), box_(box), view_(new PictureView(parent)), areas_(new PictureAreas(*view_)) {
  view_->onMouse = [this, &sink](MouseAct act, f32 x, f32 y, MouseButton button) {
    if (!HearsMouse(box_, act, x, y, button)) return;
    sink.Perform([=, this](Session& session) { Mouse(session, box_, act, x, y, button); });
  };
  areas_->onPress = [this, &sink](const std::string& name) {
    sink.Press([this, name](Session& session) { PressArea(session, box_, name); });
  };
  QObject::connect(view_, &PictureView::SaveRequested, view_, [this, &sink](int width) {
    sink.Perform([view = view_, page = box_.Owner().title, width](Session& session) {
      RunHandler(session, [&] { SavePictureAs(session, *view, page, width); });
    });
  });
  SetWidget(view_);
}

void PictureBoxView::ShowValues() {
  view_->Show(box_.picture, box_.live, box_.mark);
  areas_->Show(box_.areas);
  const QString description = ToQt(box_.description);
  if (view_->accessibleDescription() != description) view_->setAccessibleDescription(description);
}

}  // namespace quilm
