#include "app/AccessibleAreas.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QPointer>
#include <vector>

#include "app/PictureAreas.h"
#include "app/PictureView.h"
#include "app/QtText.h"

namespace quilm {

namespace {

class AccessibleArea : public QAccessibleInterface, public QAccessibleActionInterface {
 public:
  AccessibleArea(PictureAreas& areas, int index) : areas_(&areas), index_(index) {}

  bool isValid() const override { return Area() != nullptr; }
  QObject* object() const override { return nullptr; }
  QWindow* window() const override { return areas_ ? areas_->window()->windowHandle() : nullptr; }
  QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
  QAccessibleInterface* parent() const override {
    return areas_ ? QAccessible::queryAccessibleInterface(areas_->parentWidget()) : nullptr;
  }
  QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }
  void setText(QAccessible::Text /*text*/, const QString& /*value*/) override {}
  QAccessible::Role role() const override { return QAccessible::PushButton; }

  QString text(QAccessible::Text text) const override {
    const HitArea* area = Area();
    if (area == nullptr) return {};
    if (text == QAccessible::Name) return ToQt(area->SpokenName());
    return text == QAccessible::Description ? ToQt(area->name) : QString();
  }

  QRect rect() const override {
    const HitArea* area = Area();
    if (area == nullptr) return {};
    const QRect place = areas_->PlaceOf(*area);
    return {areas_->parentWidget()->mapToGlobal(place.topLeft()), place.size()};
  }

  QAccessible::State state() const override {
    QAccessible::State state;
    const HitArea* area = Area();
    state.invalid = area == nullptr;
    if (area == nullptr) return state;
    state.disabled = !area->enabled || !areas_->parentWidget()->isEnabled();
    state.focusable = area->enabled;
    state.focused = areas_->Present() == static_cast<std::size_t>(index_) && areas_->parentWidget()->hasFocus();
    return state;
  }

  void* interface_cast(QAccessible::InterfaceType type) override {
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
  }
  QStringList actionNames() const override { return {pressAction()}; }
  void doAction(const QString& action) override {
    if (areas_ && action == pressAction()) areas_->Press(static_cast<std::size_t>(index_));
  }
  QStringList keyBindingsForAction(const QString& /*action*/) const override { return {}; }

 private:
  const HitArea* Area() const {
    const auto index = static_cast<std::size_t>(index_);
    return areas_ && index < areas_->Areas().size() ? &areas_->Areas()[index] : nullptr;
  }

  QPointer<PictureAreas> areas_;
  int index_;
};

class AccessiblePicture : public QAccessibleWidget {
 public:
  explicit AccessiblePicture(PictureView& view)
      : QAccessibleWidget(&view, QAccessible::Graphic),
        areas_(view.findChild<PictureAreas*>(QString(), Qt::FindDirectChildrenOnly)) {}
  ~AccessiblePicture() override {
    for (const QAccessible::Id id : children_) QAccessible::deleteAccessibleInterface(id);
  }

  int childCount() const override { return areas_ ? static_cast<int>(areas_->Areas().size()) : 0; }

  // Made when first asked for; what there are fewer of is not valid any more and stays for when there are more again.
  QAccessibleInterface* child(int index) const override {
    if (index < 0 || index >= childCount()) return nullptr;
    while (static_cast<int>(children_.size()) <= index) {
      auto* made = new AccessibleArea(*areas_, static_cast<int>(children_.size()));
      children_.push_back(QAccessible::registerAccessibleInterface(made));
    }
    return QAccessible::accessibleInterface(children_[static_cast<std::size_t>(index)]);
  }

  int indexOfChild(const QAccessibleInterface* searched) const override {
    for (int i = 0; i < childCount(); ++i) {
      if (child(i) == searched) return i;
    }
    return -1;
  }

  QAccessibleInterface* childAt(int x, int y) const override {
    for (int i = childCount() - 1; i >= 0; --i) {
      if (child(i)->rect().contains(x, y)) return child(i);
    }
    return nullptr;
  }

  QAccessibleInterface* focusChild() const override {
    if (!areas_ || !widget()->hasFocus()) return nullptr;
    const auto present = areas_->Present();
    return present ? child(static_cast<int>(*present)) : nullptr;
  }

 private:
  QPointer<PictureAreas> areas_;
  mutable std::vector<QAccessible::Id> children_;
};

QAccessibleInterface* MakeAccessible(const QString& /*className*/, QObject* object) {
  auto* view = qobject_cast<PictureView*>(object);
  return view == nullptr ? nullptr : new AccessiblePicture(*view);
}

}  // namespace

void InstallAccessiblePictures() { QAccessible::installFactory(MakeAccessible); }

}  // namespace quilm
