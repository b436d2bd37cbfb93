#include "app/AccessibleControls.h"

#include <QAccessibleWidget>
#include <QRadioButton>

#include "app/GroupBox.h"
#include "app/SpinBox.h"

namespace quilm {

namespace {

class AccessibleGroup : public QAccessibleWidget {
 public:
  explicit AccessibleGroup(GroupBox& box) : QAccessibleWidget(&box, QAccessible::Grouping) {}
};

// One control with a value: what stands in it is no child of its own.
class AccessibleSpin : public QAccessibleWidget, public QAccessibleValueInterface {
 public:
  explicit AccessibleSpin(SpinBox& box) : QAccessibleWidget(&box, QAccessible::SpinBox), box_(box) {}

  int childCount() const override { return 0; }
  QAccessibleInterface* child(int /*index*/) const override { return nullptr; }

  QString text(QAccessible::Text text) const override {
    if (text == QAccessible::Value && box_.value) return QString::number(box_.value());
    return QAccessibleWidget::text(text);
  }

  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::ValueInterface && box_.value) return static_cast<QAccessibleValueInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
  }

  QVariant currentValue() const override { return box_.value(); }
  void setCurrentValue(const QVariant& value) override { box_.onNumber(value.toInt()); }
  QVariant minimumValue() const override { return box_.lowest; }
  QVariant maximumValue() const override { return box_.highest; }
  QVariant minimumStepSize() const override { return 1; }

  QStringList actionNames() const override { return {increaseAction(), decreaseAction(), setFocusAction()}; }
  void doAction(const QString& action) override {
    if (!box_.isEnabled()) return;
    if (action == increaseAction()) {
      box_.onStep(+1);
    } else if (action == decreaseAction()) {
      box_.onStep(-1);
    } else {
      QAccessibleWidget::doAction(action);
    }
  }

 private:
  SpinBox& box_;
};

// The toolkit takes an option whose group is not its own for a check box.
class AccessibleOption : public QAccessibleWidget {
 public:
  explicit AccessibleOption(QRadioButton& option)
      : QAccessibleWidget(&option, QAccessible::RadioButton), option_(option) {}

  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.checkable = true;
    state.checked = option_.isChecked();
    return state;
  }

  QStringList actionNames() const override { return {pressAction(), setFocusAction()}; }
  void doAction(const QString& action) override {
    if (action == pressAction()) {
      option_.click();
    } else {
      QAccessibleWidget::doAction(action);
    }
  }

 private:
  QRadioButton& option_;
};

QAccessibleInterface* MakeAccessible(const QString& /*className*/, QObject* object) {
  if (auto* spin = qobject_cast<SpinBox*>(object)) return new AccessibleSpin(*spin);
  if (auto* group = qobject_cast<GroupBox*>(object)) return new AccessibleGroup(*group);
  if (auto* option = qobject_cast<QRadioButton*>(object)) return new AccessibleOption(*option);
  return nullptr;
}

}  // namespace

void InstallAccessibleControls() { QAccessible::installFactory(MakeAccessible); }

}  // namespace quilm
