#pragma once

#include <QAccessibleWidget>
#include <QWidget>
#include <algorithm>
#include <memory>
#include <vector>

namespace platform {

/// A part that a widget draws itself and that the user can push like a button, as screen readers see it.
class PushablePart : public QAccessibleInterface, public QAccessibleActionInterface {
  public:
    explicit PushablePart(QWidget& widget) : widget_(widget) {}

    QObject* object() const override { return nullptr; }
    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(&widget_); }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessible::Role role() const override { return QAccessible::Button; }
    void setText(QAccessible::Text, const QString&) override {}
    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Name ? name() : QString();
    }

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : nullptr;
    }
    QStringList actionNames() const override { return {pressAction()}; }
    void doAction(const QString& action) override {
        if (action == pressAction() && isValid()) push();
    }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

  protected:
    virtual QString name() const = 0;
    virtual void push() = 0;

  private:
    QWidget& widget_;
};

/// A widget with such parts, as screen readers see it. Its children are first the parts, then its child
/// windows.
class WidgetWithParts : public QAccessibleWidget {
  public:
    using QAccessibleWidget::QAccessibleWidget;
    ~WidgetWithParts() override {
        for (const QAccessible::Id id : ids_) {
            if (id != 0) QAccessible::deleteAccessibleInterface(id);
        }
    }
    WidgetWithParts(const WidgetWithParts&) = delete;
    WidgetWithParts& operator=(const WidgetWithParts&) = delete;

    int childCount() const override { return partCount() + QAccessibleWidget::childCount(); }

    QAccessibleInterface* child(int index) const override {
        const int count = partCount();
        return index < count ? part(index) : QAccessibleWidget::child(index - count);
    }

    int indexOfChild(const QAccessibleInterface* child) const override {
        const int count = partCount();
        const auto found = std::ranges::find_if(ids_, [child](QAccessible::Id id) {
            return id != 0 && QAccessible::accessibleInterface(id) == child;
        });
        const auto index = static_cast<int>(found - ids_.begin());
        // The part may no longer be there.
        if (found != ids_.end()) return index < count ? index : -1;
        const int window = QAccessibleWidget::indexOfChild(child);
        return window < 0 ? window : window + count;
    }

    QAccessibleInterface* childAt(int x, int y) const override {
        const int index = partAt(QPoint(x, y));
        return index >= 0 ? part(index) : QAccessibleWidget::childAt(x, y);
    }

    QAccessibleInterface* focusChild() const override {
        const int index = widget()->hasFocus() ? chosenPart() : -1;
        return index >= 0 ? part(index) : QAccessibleWidget::focusChild();
    }

  protected:
    virtual int partCount() const = 0;
    virtual std::unique_ptr<PushablePart> makePart(int index) const = 0;
    /// The index of the part at a point of the screen, and of the part that the keyboard has chosen; −1 for
    /// none.
    virtual int partAt(QPoint point) const = 0;
    virtual int chosenPart() const = 0;

  private:
    /// The part's interface, made when it is first asked for. Qt keeps it until its id is deleted.
    QAccessibleInterface* part(int index) const {
        if (index < 0) return nullptr;
        const auto place = static_cast<std::size_t>(index);
        if (place >= ids_.size()) ids_.resize(place + 1);
        QAccessible::Id& id = ids_[place];
        // NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDeleteLeaks): Qt destroys it
        if (id == 0) id = QAccessible::registerAccessibleInterface(makePart(index).release());
        return QAccessible::accessibleInterface(id);
    }

    mutable std::vector<QAccessible::Id> ids_;
};

/// Tells screen readers that the keyboard has chosen a part of a widget.
inline void tellPartChosen(QWidget& widget, int index) {
    if (!QAccessible::isActive()) return;
    QAccessibleEvent event(&widget, QAccessible::Focus);
    event.setChild(index);
    QAccessible::updateAccessibility(&event);
}

}  // namespace platform
