#include "app/ButtonView.h"

#include <QPainter>
#include <QPushButton>
#include <QSignalBlocker>
#include <QStyleOptionFocusRect>
#include <algorithm>

#include "app/OptionCard.h"
#include "app/QtText.h"
#include "app/SignIcon.h"

namespace quilm {

namespace {

constexpr QSize signRoom(32, 18);
constexpr int leastThumbnail = 28;
constexpr int mostThumbnail = 40;
constexpr int twipsPerPixel = 15;

QAbstractButton* MakeToolButton(Qt::ToolButtonStyle style, bool flat, QWidget* parent) {
  auto* button = new QToolButton(parent);
  button->setToolButtonStyle(style);
  button->setAutoRaise(flat);
  return button;
}

QAbstractButton* MakeWidget(ButtonRole role, QWidget* parent) {
  switch (role) {
    case ButtonRole::Segment:
      return new SegmentButton(parent);
    case ButtonRole::Action:
      return MakeToolButton(Qt::ToolButtonTextBesideIcon, true, parent);
    case ButtonRole::Tool:
      return MakeToolButton(Qt::ToolButtonTextBesideIcon, false, parent);
    case ButtonRole::Thumbnail:
      return new ThumbnailButton(parent);
    case ButtonRole::Corner:
      return MakeToolButton(Qt::ToolButtonTextOnly, true, parent);
    case ButtonRole::Plain:
      break;
  }
  auto* button = new QPushButton(parent);
  button->setAutoDefault(false);
  return button;
}

QSize IconSize(ButtonRole role, const Picture& picture) {
  constexpr int besideText = 6;
  if (role != ButtonRole::Thumbnail) {
    return SignSize(picture, signRoom.height()).boundedTo(signRoom) + QSize(besideText, 0);
  }
  const int natural = static_cast<int>(picture.ScaleHeight) / twipsPerPixel;
  return SignSize(picture, std::clamp(natural, leastThumbnail, mostThumbnail));
}

QRadioButton* MakeOption(const OptionButton& option, QWidget* parent) {
  if (option.picture.Empty()) return new QRadioButton(parent);
  return new OptionCard(option.picture, parent);
}

}  // namespace

QSize SegmentButton::sizeHint() const {
  constexpr int sides = 28;
  constexpr int aboveAndBelow = 14;
  QFont bold = font();
  bold.setBold(true);  // the pressed one is; none may change its width
  const QFontMetrics metrics(bold);
  return QSize(metrics.size(Qt::TextShowMnemonic, text()).width() + sides, metrics.height() + aboveAndBelow);
}

void SegmentButton::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  const QPalette& colors = palette();
  const bool here = isChecked();
  QColor field = here ? colors.color(QPalette::Base) : colors.color(QPalette::Button);
  if (!here && isEnabled() && (underMouse() || isDown())) field = colors.color(QPalette::Light);
  // Neighbours share the line between them.
  const QRect box = rect().adjusted(FollowsAnother() ? -1 : 0, 0, -1, -1);
  painter.setPen(colors.color(QPalette::Mid));
  painter.setBrush(field);
  painter.drawRect(box);
  if (here) {
    constexpr int bar = 3;
    painter.fillRect(1, height() - bar, width() - 2, bar, colors.color(QPalette::Active, QPalette::Highlight));
    QFont bold = font();
    bold.setBold(true);
    painter.setFont(bold);
  }
  const auto group = isEnabled() || here ? QPalette::Active : QPalette::Disabled;
  painter.setPen(colors.color(group, QPalette::ButtonText));
  painter.drawText(rect(), Qt::AlignCenter | Qt::TextShowMnemonic, text());
  if (hasFocus()) {
    QStyleOptionFocusRect focus;
    focus.initFrom(this);
    constexpr int inset = 3;
    focus.rect = rect().adjusted(inset, inset, -inset, -inset);
    style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
  }
}

bool SegmentButton::FollowsAnother() const {
  constexpr int justBeside = 2;
  return qobject_cast<SegmentButton*>(parentWidget()->childAt(x() - justBeside, geometry().center().y())) != nullptr;
}

void ThumbnailButton::paintEvent(QPaintEvent* event) {
  QToolButton::paintEvent(event);
  if (!isChecked()) return;
  constexpr int thickness = 2;
  constexpr int half = thickness / 2;
  QPainter painter(this);
  painter.setPen(QPen(palette().color(QPalette::Active, QPalette::Highlight), thickness, Qt::SolidLine, Qt::SquareCap,
                      Qt::MiterJoin));
  painter.drawRect(rect().adjusted(half, half, -half, -half));
}

ButtonView::ButtonView(Button& button, ActSink& sink, QWidget* parent)
    : ControlView(button), button_(button), widget_(MakeWidget(button.role, parent)) {
  widget_->setFocusPolicy(Qt::StrongFocus);
  widget_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  SetWidget(widget_);
  QObject::connect(widget_, &QAbstractButton::clicked, widget_,
                   [this, &sink] { sink.Press([this](Session& session) { Click(session, button_); }); });
}

// Pictures have none to show, tools and cards are walked with the arrow keys.
bool ButtonView::TakesMnemonic() const {
  switch (button_.role) {
    case ButtonRole::Plain:
    case ButtonRole::Segment:
    case ButtonRole::Action:
      return !button_.caption.empty();
    case ButtonRole::Tool:
    case ButtonRole::Thumbnail:
    case ButtonRole::Corner:
      break;
  }
  return false;
}

// What stands on the button itself.
QString ButtonView::Text() const {
  switch (button_.role) {
    case ButtonRole::Thumbnail:
      return {};
    case ButtonRole::Corner:
      return QStringLiteral("?");
    default:
      return MarkedCaption(button_.caption, mnemonic_);
  }
}

void ButtonView::SetDefault(bool isDefault) {
  if (auto* push = qobject_cast<QPushButton*>(widget_)) push->setDefault(isDefault);
}

void ButtonView::ShowValues() {
  const QSignalBlocker quiet(widget_);
  if (const QString text = Text(); widget_->text() != text) widget_->setText(text);
  ShowPressed();
  ShowPicture();
}

// Only what is pressed can be checked, so that a click changes nothing by itself. The toolkit repaints a button for its
// check alone, not when it ceases to be checkable.
void ButtonView::ShowPressed() {
  if (widget_->isChecked() == button_.pressed) return;
  widget_->setCheckable(true);
  widget_->setChecked(button_.pressed);
  widget_->setCheckable(button_.pressed);
}

void ButtonView::ShowPicture() {
  const Picture& picture = button_.picture;
  if (pictureShown_ == picture.Drawing() && operationsShown_ == picture.Operations().size()) return;
  pictureShown_ = picture.Drawing();
  operationsShown_ = picture.Operations().size();
  widget_->setIcon(picture.Empty() ? QIcon() : SignIcon(picture));
  if (!picture.Empty()) widget_->setIconSize(IconSize(button_.role, picture));
}

OptionView::OptionView(OptionButton& option, ActSink& sink, QWidget* parent)
    : ControlView(option), option_(option), widget_(MakeOption(option, parent)) {
  // The page's own groups decide which options exclude one another.
  widget_->setAutoExclusive(false);
  // Options that bear a letter are all of one width, so that what stands beside them lines up.
  constexpr std::size_t letters = 2;
  constexpr int letterWidth = 44;
  if (option.caption.size() <= letters) widget_->setMinimumWidth(letterWidth);
  if (option.picture.Empty()) widget_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  SetWidget(widget_);
  QObject::connect(widget_, &QAbstractButton::clicked, widget_,
                   [this, &sink] { sink.Press([this](Session& session) { Click(session, option_); }); });
}

void OptionView::ShowValues() {
  const QSignalBlocker quiet(widget_);
  const QString text = LiteralCaption(option_.caption);
  if (widget_->text() != text) widget_->setText(text);
  if (widget_->isChecked() != option_.Value()) widget_->setChecked(option_.Value());
}

}  // namespace quilm
