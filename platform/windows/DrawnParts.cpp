#include "platform/windows/DrawnParts.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <memory>

#include "platform/handles/WindowTable.h"
#include "platform/windows/DrawnPartsAccess.h"
#include "platform/windows/QtConvert.h"
#include "platform/windows/SurfaceWidget.h"

namespace platform {

namespace {

/// The object of a window, null once that has ended.
CWnd* windowOf(const QWidget& widget) { return CWnd::FromHandle(WindowTable::instance().handleOf(&widget)); }

std::vector<DrawnPart> partsOf(const QWidget& widget) {
    const CWnd* const window = windowOf(widget);
    return window ? window->DrawnParts() : std::vector<DrawnPart>();
}

/// One part. The window is asked anew each time, since parts come and go.
class PartAccessible : public QAccessibleInterface, public QAccessibleActionInterface {
  public:
    PartAccessible(QWidget& widget, int index) : widget_(widget), index_(index) {}

    bool isValid() const override { return part().has_value(); }
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(&widget_); }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessible::Role role() const override { return QAccessible::Button; }
    void setText(QAccessible::Text, const QString&) override {}

    QString text(QAccessible::Text kind) const override {
        const auto known = part();
        return known && kind == QAccessible::Name ? toQt(known->name) : QString();
    }

    QRect rect() const override {
        const CWnd* const window = windowOf(widget_);
        const auto known = part();
        if (!window || !known) return {};
        const CPoint corner = window->ClientToScreen(known->place.TopLeft());
        return {corner.x, corner.y, known->place.Width(), known->place.Height()};
    }

    QAccessible::State state() const override {
        QAccessible::State state;
        const auto known = part();
        state.invisible = !known || !widget_.isVisible();
        state.focusable = true;
        state.focused = known && known->chosen && widget_.hasFocus();
        state.selectable = true;
        state.selected = known && known->selected;
        return state;
    }

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : nullptr;
    }
    QStringList actionNames() const override { return {pressAction()}; }
    void doAction(const QString& name) override {
        CWnd* const window = windowOf(widget_);
        if (window && isValid() && name == pressAction()) window->PushDrawnPart(index_);
    }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

  private:
    std::optional<DrawnPart> part() const {
        std::vector<DrawnPart> parts = partsOf(widget_);
        const auto index = static_cast<std::size_t>(index_);
        return index < parts.size() ? std::optional(std::move(parts[index])) : std::nullopt;
    }

    QWidget& widget_;
    int index_;
};

/// A window with its parts: they come first among its children, then its child windows.
class DrawnAccessible : public QAccessibleWidget {
  public:
    explicit DrawnAccessible(QWidget& drawn) : QAccessibleWidget(&drawn, QAccessible::Client) {}
    ~DrawnAccessible() override {
        for (const QAccessible::Id id : ids_) QAccessible::deleteAccessibleInterface(id);
    }
    DrawnAccessible(const DrawnAccessible&) = delete;
    DrawnAccessible& operator=(const DrawnAccessible&) = delete;

    int childCount() const override { return partCount() + QAccessibleWidget::childCount(); }

    QAccessibleInterface* child(int index) const override {
        const int count = partCount();
        return index < count ? part(index) : QAccessibleWidget::child(index - count);
    }

    int indexOfChild(const QAccessibleInterface* child) const override {
        const int count = partCount();
        for (int i = 0; i < count; ++i) {
            if (part(i) == child) return i;
        }
        const int window = QAccessibleWidget::indexOfChild(child);
        return window < 0 ? window : window + count;
    }

    QAccessibleInterface* childAt(int x, int y) const override {
        for (int i = 0; i < partCount(); ++i) {
            if (part(i)->rect().contains(x, y)) return part(i);
        }
        return QAccessibleWidget::childAt(x, y);
    }

    QAccessibleInterface* focusChild() const override {
        const auto parts = partsOf(*widget());
        for (std::size_t i = 0; widget()->hasFocus() && i < parts.size(); ++i) {
            if (parts[i].chosen) return part(static_cast<int>(i));
        }
        return QAccessibleWidget::focusChild();
    }

  private:
    int partCount() const { return static_cast<int>(partsOf(*widget()).size()); }

    /// Made when it is first asked for; Qt keeps it until its id is given up.
    QAccessibleInterface* part(int index) const {
        if (index < 0) return nullptr;
        while (ids_.size() <= static_cast<std::size_t>(index)) {
            auto made = std::make_unique<PartAccessible>(*widget(), static_cast<int>(ids_.size()));
            // NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDeleteLeaks): Qt destroys it
            ids_.push_back(QAccessible::registerAccessibleInterface(made.release()));
        }
        return QAccessible::accessibleInterface(ids_[static_cast<std::size_t>(index)]);
    }

    mutable std::vector<QAccessible::Id> ids_;
};

QAccessibleInterface* accessibleOf(const QString&, QObject* object) {
    if (object == nullptr || !object->isWidgetType()) return nullptr;
    auto& widget = static_cast<QWidget&>(*object);
    return partsOf(widget).empty() ? nullptr : std::make_unique<DrawnAccessible>(widget).release();
}

}  // namespace

void tellOfDrawnParts() {
    // Qt keeps one entry for each factory.
    QAccessible::installFactory(accessibleOf);
}

void TellPartChosen(const CWnd& window, int index) {
    QWidget* const widget = SurfaceWidget::of(window);
    if (!widget || !QAccessible::isActive()) return;
    QAccessibleEvent event(widget, QAccessible::Focus);
    event.setChild(index);
    QAccessible::updateAccessibility(&event);
}

}  // namespace platform
