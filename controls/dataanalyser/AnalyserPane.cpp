#include "controls/dataanalyser/AnalyserPane.h"

#include <QKeyEvent>
#include <QLabel>
#include <QStackedWidget>
#include <QVBoxLayout>
#include <utility>

#include "controls/common/Appearance.h"
#include "controls/common/QtText.h"
#include "controls/dataanalyser/ClipboardCopy.h"
#include "controls/dataanalyser/DataStrip.h"
#include "controls/dataanalyser/GraphStrip.h"
#include "controls/dataanalyser/look/MessageLine.h"
#include "controls/dataanalyser/look/ShownText.h"
#include "controls/dataanalyser/look/StyleRules.h"
#include "controls/dataanalyser/model/Extremes.h"
#include "controls/dataanalyser/model/RowNames.h"
#include "controls/dataanalyser/table/TableView.h"
#include "controls/elements/NumberText.h"

namespace controls::dataanalyser {

namespace {

constexpr QSize usualGraph{1000, 640};
constexpr QSize minGraph{480, 320};

}  // namespace

AnalyserPane::AnalyserPane(Analyser& analyser, GraphPartsSource source, QWidget* parent)
    : QWidget(parent), analyser_(analyser), graphsSource_(source) {
    setAccessibleName(QStringLiteral("Αναλυτής δεδομένων"));
    setFocusPolicy(Qt::StrongFocus);
    analyser_.setListener([this](Change change) { noteChange(change); });
}

AnalyserPane::~AnalyserPane() { analyser_.setListener({}); }

QSize AnalyserPane::sizeHint() const { return {1016, 640}; }

void AnalyserPane::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (!dataStrip_) build();
}

// Qt parents own what is made here.
// NOLINTBEGIN(cppcoreguidelines-owning-memory)

void AnalyserPane::build() {
    setFont(appearance::font(12));
    setStyleSheet(appearance::withColors(styleRules));
    dataStrip_ = new DataStrip(analyser_, this);
    graphStrip_ =
        new GraphStrip(analyser_, [this](double factor) { graph_ ? graph_->zoom(factor) : void(); }, this);
    table_ = new TableView(analyser_, [this] { copySelectedRows(analyser_); }, this);
    message_ = new MessageLine(this);
    views_ = new QStackedWidget(this);
    views_->addWidget(table_);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(dataStrip_);
    column->addWidget(graphStrip_);
    column->addWidget(views_, 1);
    column->addWidget(message_);
    noteChange(Change::dataSet);
    refreshNow();
}

QWidget& AnalyserPane::shownGraph() {
    if (!graph_ && graphs()) {
        graph_ = graphs()->makePane(analyser_, [this] { copyGraph(); }, this);
        views_->addWidget(&graph_->widget());
    }
    if (graph_) return graph_->widget();
    if (!noGraph_) {
        noGraph_ = new QLabel(QStringLiteral("Δεν είναι δυνατό να φορτωθούν τα γραφήματα."), this);
        noGraph_->setObjectName(QStringLiteral("nograph"));
        noGraph_->setAlignment(Qt::AlignCenter);
        views_->addWidget(noGraph_);
    }
    return *noGraph_;
}

// NOLINTEND(cppcoreguidelines-owning-memory)

const GraphParts* AnalyserPane::graphs() {
    if (!graphs_) graphs_ = graphsSource_();
    return graphs_;
}

void AnalyserPane::noteChange(Change change) {
    if (!views_) return;
    changes_.insert(change);
    if (std::exchange(scheduled_, true)) return;
    QMetaObject::invokeMethod(this, [this] { refreshNow(); }, Qt::QueuedConnection);
}

void AnalyserPane::refreshNow() {
    scheduled_ = false;
    if (!views_ || changes_.empty()) return;
    dataStrip_->refresh();
    refreshTable();
    refreshView();
    refreshMessage();
    changes_.clear();
}

void AnalyserPane::refreshTable() {
    const auto has = [this](Change change) { return changes_.contains(change); };
    if (has(Change::dataSet) || has(Change::rows)) return table_->refreshRows();
    if (has(Change::unit)) table_->refreshUnit();
    if (has(Change::columns)) table_->refreshColumns();
    if (has(Change::selection)) table_->refreshSelection();
    if (has(Change::top)) table_->refreshTop();
}

void AnalyserPane::refreshView() {
    const bool graphShown = analyser_.graphShown();
    graphStrip_->setVisible(graphShown);
    QWidget* shown = graphShown ? &shownGraph() : table_;
    if (graphShown) graphStrip_->refresh();
    if (graphShown && graph_) graph_->refresh();
    const bool hadFocus = hasFocus() || views_->currentWidget()->hasFocus();
    views_->setCurrentWidget(shown);
    setFocusProxy(shown);
    if (hadFocus) shown->setFocus();
}

QString AnalyserPane::leftOutNote() const {
    const int rows = graph_ && analyser_.graphShown() ? graph_->leftOut() : 0;
    if (rows == 0) return {};
    return rows == 1 ? QStringLiteral("1 γραμμή δεν έχει τιμή που να φαίνεται εδώ")
                     : QStringLiteral("%1 γραμμές δεν έχουν τιμή που να φαίνεται εδώ").arg(rows);
}

QString AnalyserPane::extremesNote() const {
    const std::optional<std::size_t> column =
        analyser_.graphShown() ? analyser_.plan().y : analyser_.order().column;
    const formats::DataSet& set = analyser_.dataSet();
    if (!column || *column >= set.columns.size()) return {};
    const formats::DataColumn& values = set.columns[*column];
    const auto found = extremesOf(values, analyser_.rows(), analyser_.unit());
    if (!found) return {};
    const auto valueOf = [&](int row) {
        const auto place = static_cast<std::size_t>(row);
        return QStringLiteral("%1 (%2)").arg(shownCell(values, place, analyser_.unit()),
                                             toQt(shortRowName(set, place)));
    };
    return QStringLiteral("%1: από %2 ως %3, μέση τιμή %4")
        .arg(toQt(heading(values, analyser_.unit())), valueOf(found->smallest), valueOf(found->largest),
             shownFigures(toQt(shortNumber(found->mean))));
}

void AnalyserPane::refreshMessage() {
    const std::string& source = analyser_.dataSet().source;
    // The source comes last, because a narrow window cuts off the end.
    QStringList notes;
    for (const QString& note : {leftOutNote(), extremesNote()}) {
        if (!note.isEmpty()) notes += note;
    }
    if (!source.empty()) notes += QStringLiteral("Πηγή: %1").arg(toQt(source));
    QStringList warnings;
    for (const std::string& remark : analyser_.library().remarks()) warnings += toQt(remark);
    message_->setTexts(notes.join(QStringLiteral(" · ")), warnings);
}

void AnalyserPane::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_F8) {
        analyser_.setGraphShown(!analyser_.graphShown());
    } else {
        QWidget::keyPressEvent(event);
    }
}

QSize AnalyserPane::graphSize() const {
    const bool visible = graph_ && graph_->widget().isVisible();
    return visible ? graph_->widget().size().expandedTo(minGraph) : usualGraph;
}

bool AnalyserPane::copyGraph() {
    if (!analyser_.graphShown() || !graphs()) return false;
    copyGraphPicture(analyser_, *graphs(), graphSize());
    return true;
}

}  // namespace controls::dataanalyser
