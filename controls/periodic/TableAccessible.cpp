#include "controls/periodic/TableAccessible.h"

#include <QAccessible>
#include <QAccessibleInterface>
#include <QAccessibleWidget>
#include <array>
#include <memory>

#include "controls/common/QtText.h"
#include "controls/periodic/ElementKinds.h"
#include "controls/periodic/FigureText.h"
#include "controls/periodic/Lettering.h"
#include "controls/periodic/PeriodicWidget.h"

namespace controls::periodic {

namespace {

/// The cell of one element.
class CellAccessible : public QAccessibleInterface, public QAccessibleActionInterface {
  public:
    CellAccessible(PeriodicWidget& table, int number) : table_(table), number_(number) {}

    bool isValid() const override { return true; }
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(&table_); }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessible::Role role() const override { return QAccessible::Button; }
    void setText(QAccessible::Text, const QString&) override {}

    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Name ? spokenText(*findElement(number_), table_.state()) : QString();
    }

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

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : nullptr;
    }
    QStringList actionNames() const override { return {pressAction()}; }
    void doAction(const QString& name) override {
        if (name == pressAction()) table_.choose(number_);
    }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

  private:
    PeriodicWidget& table_;
    int number_;
};

/// The table: the cells come first among its children, then its parts that are windows.
class TableAccessible : public QAccessibleWidget {
  public:
    explicit TableAccessible(PeriodicWidget& table)
        : QAccessibleWidget(&table, QAccessible::Grouping), table_(table) {}
    ~TableAccessible() override {
        for (const QAccessible::Id id : ids_) {
            if (id != 0) QAccessible::deleteAccessibleInterface(id);
        }
    }
    TableAccessible(const TableAccessible&) = delete;
    TableAccessible& operator=(const TableAccessible&) = delete;

    int childCount() const override { return elementCount + QAccessibleWidget::childCount(); }

    QAccessibleInterface* child(int index) const override {
        return index < elementCount ? cell(index) : QAccessibleWidget::child(index - elementCount);
    }

    int indexOfChild(const QAccessibleInterface* child) const override {
        for (int i = 0; i < elementCount; ++i) {
            if (ids_[static_cast<std::size_t>(i)] != 0 && cell(i) == child) return i;
        }
        const int window = QAccessibleWidget::indexOfChild(child);
        return window < 0 ? window : window + elementCount;
    }

    QAccessibleInterface* childAt(int x, int y) const override {
        const int number = table_.elementAt(table_.mapFromGlobal(QPoint(x, y)));
        return number != 0 ? cell(number - 1) : QAccessibleWidget::childAt(x, y);
    }

    QAccessibleInterface* focusChild() const override {
        const int selected = table_.state().selected;
        return table_.hasFocus() && selected != 0 ? cell(selected - 1) : QAccessibleWidget::focusChild();
    }

  private:
    /// The cell, made when it is first asked for; Qt keeps it until its id is given up.
    QAccessibleInterface* cell(int index) const {
        if (index < 0) return nullptr;
        QAccessible::Id& id = ids_[static_cast<std::size_t>(index)];
        if (id == 0) {
            auto made = std::make_unique<CellAccessible>(table_, index + 1);
            // NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDeleteLeaks): Qt destroys it
            id = QAccessible::registerAccessibleInterface(made.release());
        }
        return QAccessible::accessibleInterface(id);
    }

    PeriodicWidget& table_;
    mutable std::array<QAccessible::Id, elementCount> ids_{};
};

QAccessibleInterface* accessibleOf(const QString&, QObject* object) {
    // Not by type information: the browser engine's objects, asked about here too, carry none.
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
                                  ? Lettering::plain(valueWithUnit(element, *quantity))
                                  : QStringLiteral("χωρίς τιμή");
        return QStringLiteral("%1, %2: %3").arg(name, toQt(quantityName(*quantity)), value);
    }
    return QStringLiteral("%1, %2").arg(
        name, toQt(kindName(state.view, kindOf(element, state.view, state.kelvin))));
}

// Qt keeps one entry for each factory, and the module may go before the program does.
TableAccess::TableAccess() {
    if (tables++ == 0) QAccessible::installFactory(accessibleOf);
}

TableAccess::~TableAccess() {
    if (--tables == 0) QAccessible::removeFactory(accessibleOf);
}

void TableAccess::focused(PeriodicWidget& table, int number) {
    if (!QAccessible::isActive() || number == 0) return;
    QAccessibleEvent event(&table, QAccessible::Focus);
    event.setChild(number - 1);
    QAccessible::updateAccessibility(&event);
}

}  // namespace controls::periodic
