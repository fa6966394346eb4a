#include "controls/dataanalyser/DataStrip.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <algorithm>

#include "controls/common/QtText.h"
#include "controls/dataanalyser/ColumnMenu.h"
#include "controls/dataanalyser/RangeMenu.h"
#include "controls/dataanalyser/look/Buttons.h"
#include "controls/dataanalyser/look/ChoiceBox.h"
#include "controls/dataanalyser/model/Analyser.h"

namespace controls::dataanalyser {

namespace {

// A narrower strip shows no title, or no count of rows.
constexpr int roomForTitle = 960;
constexpr int roomForCount = 780;

QString countText(std::size_t rows, std::size_t selected) {
    QString listed = rows == 1 ? QStringLiteral("1 γραμμή") : QStringLiteral("%1 γραμμές").arg(rows);
    if (selected == 0) return listed;
    const QString chosen =
        selected == 1 ? QStringLiteral("1 επιλεγμένη") : QStringLiteral("%1 επιλεγμένες").arg(selected);
    return listed + QStringLiteral(" · ") + chosen;
}

}  // namespace

// Qt parents own what is made here.
// NOLINTBEGIN(cppcoreguidelines-owning-memory)

DataStrip::DataStrip(Analyser& analyser, QWidget* parent)
    : QWidget(parent),
      analyser_(analyser),
      title_(new QLabel(QStringLiteral("Αναλυτής δεδομένων"), this)),
      sets_(new ChoiceBox(QStringLiteral("Σύνολο δεδομένων"), this)),
      categories_(new ChoiceBox(QStringLiteral("Κατηγορία"), this)),
      count_(new QLabel(this)),
      columns_(makeButton(QStringLiteral("Στήλες"), QStringLiteral("Ποιες στήλες φαίνονται"), this)),
      range_(makeButton({}, QStringLiteral("Από ποια ως ποια γραμμή"), this)),
      rangeMenu_(new RangeMenu(analyser, range_)),
      units_(new QButtonGroup(this)),
      views_(new QButtonGroup(this)) {
    setObjectName(QStringLiteral("strip"));
    setAttribute(Qt::WA_StyledBackground);
    title_->setObjectName(QStringLiteral("title"));
    count_->setObjectName(QStringLiteral("count"));
    makeChoices();
    layOut();
    connectChoices();
}

void DataStrip::makeChoices() {
    addChoice(*units_, static_cast<int>(TemperatureUnit::kelvin), QStringLiteral("K"),
              QStringLiteral("Θερμοκρασίες σε Κέλβιν"), this);
    addChoice(*units_, static_cast<int>(TemperatureUnit::celsius), QStringLiteral("°C"),
              QStringLiteral("Θερμοκρασίες σε βαθμούς Κελσίου"), this);
    addChoice(*views_, 0, QStringLiteral("Πίνακας"), QStringLiteral("Εμφάνιση του πίνακα (F8)"), this);
    addChoice(*views_, 1, QStringLiteral("Γράφημα"), QStringLiteral("Εμφάνιση του γραφήματος (F8)"), this);
    columns_->setMenu(new ColumnMenu(analyser_, columns_));
    range_->setMenu(rangeMenu_);
    sets_->setMinimumContentsLength(14);
    categories_->setMinimumContentsLength(13);
}

void DataStrip::layOut() {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(10, 5, 10, 5);
    row->setSpacing(8);
    row->addWidget(title_);
    row->addWidget(sets_, 3);
    row->addWidget(categories_, 2);
    row->addWidget(range_);
    row->addWidget(count_);
    row->addStretch(1);
    row->addWidget(columns_);
    row->addWidget(joinedButtons(*units_, this));
    row->addWidget(joinedButtons(*views_, this));
    sets_->setMaximumWidth(240);
    categories_->setMaximumWidth(240);
}

// NOLINTEND(cppcoreguidelines-owning-memory)

void DataStrip::connectChoices() {
    connect(sets_, &QComboBox::activated, this, [this] {
        analyser_.setSortColumn(-1);
        analyser_.setDescending(false);
        analyser_.setDataSet(static_cast<std::int16_t>(sets_->chosen()));
    });
    connect(categories_, &QComboBox::activated, this, [this] {
        analyser_.noteTop(0);
        analyser_.setCategory(categories_->chosen());
    });
    connect(units_, &QButtonGroup::idClicked, this,
            [this](int id) { analyser_.setUnit(static_cast<TemperatureUnit>(id)); });
    connect(views_, &QButtonGroup::idClicked, this, [this](int id) { analyser_.setGraphShown(id != 0); });
}

void DataStrip::refresh() {
    QList<QPair<QString, int>> sets;
    for (const auto& set : analyser_.library().sets()) sets.append({toQt(set.title), set.number});
    sets_->setItems(sets, analyser_.dataSet().number);

    QList<QPair<QString, int>> categories;
    const auto& names = analyser_.categories().names;
    if (!names.empty()) categories.append({QStringLiteral("Όλες οι κατηγορίες"), 0});
    for (std::size_t i = 0; i < names.size(); ++i)
        categories.append({toQt(names[i]), static_cast<int>(i + 1)});
    categories_->setItems(categories, analyser_.order().category);

    const bool hasTemperatures = std::ranges::any_of(analyser_.dataSet().columns, isTemperature);
    for (QAbstractButton* button : units_->buttons()) button->setEnabled(hasTemperatures);
    choose(*units_, static_cast<int>(analyser_.unit()));
    choose(*views_, analyser_.graphShown() ? 1 : 0);
    columns_->setVisible(!analyser_.graphShown());
    range_->setText(rangeMenu_->caption());
    refreshCount();
}

void DataStrip::refreshCount() {
    count_->setText(countText(analyser_.rows().size(), analyser_.selected().size()));
}

void DataStrip::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    title_->setVisible(width() >= roomForTitle);
    count_->setVisible(width() >= roomForCount);
}

}  // namespace controls::dataanalyser
