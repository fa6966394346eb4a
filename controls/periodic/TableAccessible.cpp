#include "controls/periodic/TableAccessible.h"

#include <memory>

#include "controls/common/QtText.h"
#include "controls/periodic/PeriodicWidget.h"
#include "controls/periodic/TextFitter.h"
#include "controls/periodic/ValueText.h"
#include "controls/periodic/model/ElementKinds.h"
#include "platform/qt/WidgetWithParts.h"

namespace controls::periodic {

namespace {

/// The cell of one element.
class CellAccessible : public platform::PushablePart {
  public:
    CellAccessible(PeriodicWidget& table, int number) : PushablePart(table), table_(table), number_(number) {}

    bool isValid() const override { return true; }

    QRect rect() const override {
        const QRect cell = table_.cellOf(number_);
        return {table_.mapToGlobal(cell.topLeft()), cell.size()};
    }

    QAccessible::State state() const override {
        QAccessible::State state;
        state.focusable = true;
        state.selectable = true;
        state.selected = table_.state().selected == number_;
        state.focused = state.selected && table_.hasFocus();
        return state;
    }

  protected:
    QString name() const override { return spokenText(*findElement(number_), table_.state()); }
    void push() override { table_.choose(number_); }

  private:
    PeriodicWidget& table_;
    int number_;
};

class TableAccessible : public platform::WidgetWithParts {
  public:
    explicit TableAccessible(PeriodicWidget& table)
        : WidgetWithParts(&table, QAccessible::Grouping), table_(table) {}

  protected:
    int partCount() const override { return elementCount; }
    std::unique_ptr<platform::PushablePart> makePart(int index) const override {
        return std::make_unique<CellAccessible>(table_, index + 1);
    }
    int partAt(QPoint point) const override { return table_.elementAt(table_.mapFromGlobal(point)) - 1; }
    int chosenPart() const override { return table_.state().selected - 1; }

  private:
    PeriodicWidget& table_;
};

QAccessibleInterface* accessibleOf(const QString&, QObject* object) {
    // qobject_cast, because the browser engine's objects, which come here too, have no C++ type information.
    auto* table = qobject_cast<PeriodicWidget*>(object);
    return table ? std::make_unique<TableAccessible>(*table).release() : nullptr;
}

int tables = 0;

}  // namespace

QString spokenText(const Element& element, const TableState& state) {
    const QString name = QStringLiteral("%1, %2, ατομικός αριθμός %3")
                             .arg(toQt(element.greekName), toQt(element.symbol))
                             .arg(element.number);
    if (const auto quantity = quantityOf(state.view)) {
        const QString value = quantityValue(element, *quantity)
                                  ? TextFitter::plain(valueWithUnit(element, *quantity))
                                  : QStringLiteral("χωρίς τιμή");
        return QStringLiteral("%1, %2: %3").arg(name, toQt(quantityName(*quantity)), value);
    }
    if (state.view == TableView::groups) {
        return element.group() == 0 ? name + QStringLiteral(", χωρίς ομάδα")
                                    : QStringLiteral("%1, ομάδα %2").arg(name).arg(element.group());
    }
    return QStringLiteral("%1, %2").arg(
        name, toQt(kindName(state.view, kindOf(element, state.view, state.kelvin))));
}

// Installed for all tables together, and removed with the last: the module may be unloaded before the program
// ends.
TableAccess::TableAccess() {
    if (tables++ == 0) QAccessible::installFactory(accessibleOf);
}

TableAccess::~TableAccess() {
    if (--tables == 0) QAccessible::removeFactory(accessibleOf);
}

void TableAccess::focused(PeriodicWidget& table, int number) {
    if (number != 0) platform::tellPartChosen(table, number - 1);
}

}  // namespace controls::periodic
