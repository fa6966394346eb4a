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
#include "controls/dataanalyser/look/StyleRules.h"
#include "controls/dataanalyser/table/TableView.h"

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

void AnalyserPane::refreshMessage() {
    const std::string& source = analyser_.dataSet().source;
    // The source comes last, because a narrow window cuts off the end.
    QStringList notes;
    if (const QString leftOut = leftOutNote(); !leftOut.isEmpty()) notes += leftOut;
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
