#include "controls/dataanalyser/AnalyserPane.h"

#include <QButtonGroup>
#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QMimeData>
#include <QPushButton>
#include <QVBoxLayout>
#include <memory>

#include "controls/common/Appearance.h"
#include "controls/common/QtText.h"
#include "controls/dataanalyser/FamilyBox.h"
#include "controls/dataanalyser/TableText.h"

namespace controls::dataanalyser {

namespace {

constexpr const char* rules = R"(
#strip { background: #f3f6f9; }
#strip QLabel { background: transparent; color: #1c2733; }
#strip QLabel#title { color: #1f4e6b; font-size: 15px; font-weight: bold; }
#strip QLabel#count { color: #526070; }
QComboBox { background: #ffffff; color: #1c2733; border: 1px solid #a9bfcd; border-radius: 4px; padding: 2px 6px;
            min-height: 18px; min-width: 136px; }
QComboBox::drop-down { border: none; width: 20px; }
QComboBox:hover, QComboBox:focus { border-color: #3a7aa0; }
QComboBox QAbstractItemView { background: #ffffff; color: #1c2733; border: 1px solid #a9bfcd; outline: none;
                              selection-background-color: #d3e5f0; selection-color: #1c2733; }
QPushButton { background: #ffffff; color: #1c2733; border: 1px solid #a9bfcd; padding: 2px 10px; min-height: 18px; }
QPushButton:hover, QPushButton:focus { border-color: #1f4e6b; }
QPushButton:checked { background: #1f4e6b; color: #ffffff; border-color: #1f4e6b; }
QPushButton:checked:focus { border-color: #e0a030; }
QTableView { background: #ffffff; border: none; }
QTableView QTableCornerButton::section { background: #1f4e6b; border: none; }
QHeaderView { background: #1f4e6b; border: none; }
QScrollBar:vertical { background: #f3f6f9; width: 12px; margin: 0; border: none; }
QScrollBar:horizontal { background: #f3f6f9; height: 12px; margin: 0; border: none; }
QScrollBar::handle { background: #b5c8d4; border-radius: 4px; margin: 2px; }
QScrollBar::handle:vertical { min-height: 28px; }
QScrollBar::handle:horizontal { min-width: 28px; }
QScrollBar::handle:hover { background: #3a7aa0; }
QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; border: none; }
QScrollBar::add-page, QScrollBar::sub-page { background: #f3f6f9; }
QToolTip { background: #1f4e6b; color: #ffffff; border: 1px solid #1f4e6b; padding: 4px; }
)";

// What is made here belongs to its Qt parent.
// NOLINTBEGIN(cppcoreguidelines-owning-memory)

QButtonGroup* makeUnits(QWidget* parent) {
    auto* group = new QButtonGroup(parent);
    const auto add = [&](TemperatureUnit unit, const QString& sign, const QString& name) {
        auto* button = new QPushButton(sign, parent);
        button->setCheckable(true);
        button->setAccessibleName(name);
        button->setToolTip(name);
        group->addButton(button, static_cast<int>(unit));
    };
    add(TemperatureUnit::kelvin, QStringLiteral("K"), QStringLiteral("Θερμοκρασίες σε Κέλβιν"));
    add(TemperatureUnit::celsius, QStringLiteral("°C"), QStringLiteral("Θερμοκρασίες σε βαθμούς Κελσίου"));
    return group;
}

}  // namespace

AnalyserPane::AnalyserPane(QWidget* parent)
    : QWidget(parent), table_(new ElementView([this] { copySelected(); }, this)) {
    setFont(appearance::font(12));
    setStyleSheet(QString::fromUtf8(rules));
    setAccessibleName(QStringLiteral("Αναλυτής δεδομένων"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(makeStrip());
    column->addWidget(table_, 1);
    setFocusProxy(table_);
    connect(families_, &QComboBox::activated, this, [this] { listChosenFamily(); });
    connect(units_, &QButtonGroup::idClicked, this,
            [this](int id) { setUnit(static_cast<TemperatureUnit>(id)); });
    setOrder({});
    setUnit(TemperatureUnit::kelvin);
}

QWidget* AnalyserPane::makeStrip() {
    auto* strip = new QWidget(this);
    strip->setObjectName(QStringLiteral("strip"));
    strip->setAttribute(Qt::WA_StyledBackground);
    auto* title = new QLabel(QStringLiteral("Αναλυτής δεδομένων"), strip);
    title->setObjectName(QStringLiteral("title"));
    count_ = new QLabel(strip);
    count_->setObjectName(QStringLiteral("count"));
    families_ = new FamilyBox(strip);
    units_ = makeUnits(strip);
    auto* row = new QHBoxLayout(strip);
    row->setContentsMargins(10, 5, 10, 5);
    row->setSpacing(10);
    row->addWidget(title);
    row->addWidget(count_);
    row->addStretch(1);
    row->addWidget(families_);
    auto* buttons = new QHBoxLayout();
    buttons->setSpacing(0);
    for (QAbstractButton* button : units_->buttons()) buttons->addWidget(button);
    row->addLayout(buttons);
    return strip;
}

// NOLINTEND(cppcoreguidelines-owning-memory)

QSize AnalyserPane::sizeHint() const { return {1016, 640}; }

void AnalyserPane::setOrder(const RowOrder& order) {
    table_->setOrder(order);
    families_->setFamily(order.family);
    const std::size_t rows = table_->elements().numbers().size();
    count_->setText(QStringLiteral("%1 στοιχεία").arg(rows));
}

void AnalyserPane::listChosenFamily() {
    RowOrder order = table_->elements().order();
    order.family = families_->family();
    setOrder(order);
}

void AnalyserPane::setUnit(TemperatureUnit unit) {
    table_->elements().setUnit(unit);
    units_->button(static_cast<int>(unit))->setChecked(true);
}

void AnalyserPane::copyAll() const { copy(table_->elements().numbers()); }

void AnalyserPane::copySelected() const {
    const auto numbers = table_->selected();
    if (!numbers.empty()) copy(numbers);
}

void AnalyserPane::copy(const std::vector<int>& numbers) const {
    const TemperatureUnit unit = table_->elements().unit();
    auto copied = std::make_unique<QMimeData>();
    copied->setText(toQt(tabbedText(numbers, unit)));
    copied->setHtml(toQt(htmlTable(numbers, unit)));
    QGuiApplication::clipboard()->setMimeData(copied.release());
}

}  // namespace controls::dataanalyser
