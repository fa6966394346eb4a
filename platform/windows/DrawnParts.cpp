#include "platform/windows/DrawnParts.h"

#include <algorithm>
#include <memory>
#include <optional>

#include "platform/qt/QtConvert.h"
#include "platform/qt/WidgetWithParts.h"
#include "platform/qt/WindowTable.h"
#include "platform/windows/SurfaceWidget.h"

namespace platform {

namespace {

/// The object of a window, null when the window has ended.
CWnd* windowOf(const QWidget& widget) { return CWnd::FromHandle(WindowTable::instance().handleOf(&widget)); }

std::vector<DrawnPart> partsOf(const QWidget& widget) {
    const CWnd* const window = windowOf(widget);
    return window ? window->DrawnParts() : std::vector<DrawnPart>();
}

/// The place of a part on the screen.
QRect placeOf(const QWidget& widget, const DrawnPart& part) {
    const CWnd* const window = windowOf(widget);
    if (!window) return {};
    const CPoint corner = window->ClientToScreen(part.place.TopLeft());
    return {corner.x, corner.y, part.place.Width(), part.place.Height()};
}

/// One part. The window is asked for its parts each time, since they change.
class PartAccessible : public PushablePart {
  public:
    PartAccessible(QWidget& widget, int index) : PushablePart(widget), widget_(widget), index_(index) {}

    bool isValid() const override { return part().has_value(); }

    QRect rect() const override {
        const auto known = part();
        return known ? placeOf(widget_, *known) : QRect();
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

  protected:
    QString name() const override {
        const auto known = part();
        return known ? toQt(known->name) : QString();
    }
    void push() override { windowOf(widget_)->PushDrawnPart(index_); }

  private:
    std::optional<DrawnPart> part() const {
        std::vector<DrawnPart> parts = partsOf(widget_);
        const auto index = static_cast<std::size_t>(index_);
        return index < parts.size() ? std::optional(std::move(parts[index])) : std::nullopt;
    }

    QWidget& widget_;
    int index_;
};

class DrawnAccessible : public WidgetWithParts {
  public:
    explicit DrawnAccessible(QWidget& drawn) : WidgetWithParts(&drawn, QAccessible::Client) {}

  protected:
    int partCount() const override { return static_cast<int>(partsOf(*widget()).size()); }
    std::unique_ptr<PushablePart> makePart(int index) const override {
        return std::make_unique<PartAccessible>(*widget(), index);
    }
    int partAt(QPoint point) const override {
        return find([&](const DrawnPart& part) { return placeOf(*widget(), part).contains(point); });
    }
    int chosenPart() const override { return find(&DrawnPart::chosen); }

  private:
    template <class Condition>
    int find(Condition condition) const {
        const auto parts = partsOf(*widget());
        const auto found = std::ranges::find_if(parts, condition);
        return found == parts.end() ? -1 : static_cast<int>(found - parts.begin());
    }
};

QAccessibleInterface* accessibleOf(const QString&, QObject* object) {
    if (object == nullptr || !object->isWidgetType()) return nullptr;
    auto& widget = static_cast<QWidget&>(*object);
    return partsOf(widget).empty() ? nullptr : std::make_unique<DrawnAccessible>(widget).release();
}

}  // namespace

void installDrawnPartsAccess() {
    // Qt installs a factory only once.
    QAccessible::installFactory(accessibleOf);
}

void TellPartChosen(const CWnd& window, int index) {
    if (QWidget* const widget = SurfaceWidget::of(window)) tellPartChosen(*widget, index);
}

}  // namespace platform
