#include "controls/dataanalyser/RangeMenu.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QWidgetAction>
#include <algorithm>

#include "controls/common/QtText.h"
#include "controls/dataanalyser/look/Buttons.h"
#include "controls/dataanalyser/look/ChoiceBox.h"
#include "controls/dataanalyser/look/ShownText.h"
#include "controls/dataanalyser/model/Analyser.h"
#include "controls/dataanalyser/model/RowNames.h"

namespace controls::dataanalyser {

// Qt parents own what is made here.
// NOLINTBEGIN(cppcoreguidelines-owning-memory)

RangeMenu::RangeMenu(Analyser& analyser, QWidget* parent) : QMenu(parent), analyser_(analyser) {
    setObjectName(QStringLiteral("range"));
    auto* panel = new QWidget(this);
    first_ = new ChoiceBox(QStringLiteral("Πρώτη γραμμή"), panel);
    last_ = new ChoiceBox(QStringLiteral("Τελευταία γραμμή"), panel);
    QPushButton* all = makeButton(QStringLiteral("Όλες"), QStringLiteral("Όλες οι γραμμές"), panel);
    auto* grid = new QGridLayout(panel);
    grid->addWidget(new QLabel(QStringLiteral("Από"), panel), 0, 0);
    grid->addWidget(first_, 0, 1);
    grid->addWidget(new QLabel(QStringLiteral("Ως"), panel), 1, 0);
    grid->addWidget(last_, 1, 1);
    grid->addWidget(all, 2, 1);
    for (ChoiceBox* box : {first_, last_}) {
        box->setMinimumContentsLength(18);
        connect(box, &QComboBox::activated, this, [this] { choose(); });
    }
    connect(all, &QPushButton::clicked, this, [this] {
        analyser_.setRange(0, 0);
        fill();
    });
    auto* action = new QWidgetAction(this);
    action->setDefaultWidget(panel);
    addAction(action);
    setFocusProxy(first_);
    connect(this, &QMenu::aboutToShow, this, [this] { fill(); });
}

// NOLINTEND(cppcoreguidelines-owning-memory)

void RangeMenu::fill() {
    const formats::DataSet& set = analyser_.dataSet();
    QList<QPair<QString, int>> rows;
    for (std::size_t row = 0; row < set.rowCount(); ++row)
        rows.append({shownRowName(set, row), set.rowIds[row]});
    const auto chosen = [&](std::int32_t word, int otherwise) {
        const std::int32_t id = analyser_.entry(word);
        return id == 0 ? otherwise : id;
    };
    if (rows.isEmpty()) return;
    first_->setItems(rows, chosen(firstRowWord, rows.front().second));
    last_->setItems(rows, chosen(lastRowWord, rows.back().second));
}

void RangeMenu::choose() {
    // When the first row would lie behind the last, the box that was not changed follows the other.
    const bool firstChanged = sender() == first_;
    const int first = firstChanged ? first_->chosen() : std::min(first_->chosen(), last_->chosen());
    const int last = std::max(first, last_->chosen());
    const auto& ids = analyser_.dataSet().rowIds;
    const bool whole = first == ids.front() && last == ids.back();
    analyser_.setRange(whole ? 0 : first, whole ? 0 : last);
    fill();
}

QString RangeMenu::caption() const {
    const formats::DataSet& set = analyser_.dataSet();
    const auto nameOf = [&](std::int32_t word, std::size_t otherwise) {
        const int place = analyser_.placeOf(analyser_.entry(word));
        return toQt(shortRowName(set, place < 0 ? otherwise : static_cast<std::size_t>(place)));
    };
    if (analyser_.entry(firstRowWord) == 0 && analyser_.entry(lastRowWord) == 0)
        return QStringLiteral("Εύρος");
    constexpr int maxLength = 22;
    const QString range =
        nameOf(firstRowWord, 0) + QStringLiteral(" – ") + nameOf(lastRowWord, set.rowCount() - 1);
    return range.size() > maxLength ? range.left(maxLength - 1) + u'…' : range;
}

void RangeMenu::keyPressEvent(QKeyEvent* event) {
    // Tab goes from one box to the next, as in a window.
    if (event->key() == Qt::Key_Tab || event->key() == Qt::Key_Backtab) {
        focusNextPrevChild(event->key() == Qt::Key_Tab);
    } else {
        QMenu::keyPressEvent(event);
    }
}

}  // namespace controls::dataanalyser
