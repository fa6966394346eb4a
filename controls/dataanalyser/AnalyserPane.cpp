#include "controls/dataanalyser/AnalyserPane.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QKeyEvent>
#include <QLabel>
#include <QMimeData>
#include <QPainter>
#include <QStackedWidget>
#include <QVBoxLayout>
#include <utility>

#include "controls/common/Appearance.h"
#include "controls/common/QtText.h"
#include "controls/dataanalyser/GraphStrip.h"
#include "controls/dataanalyser/look/MessageLine.h"
#include "controls/dataanalyser/look/StyleRules.h"
#include "controls/dataanalyser/model/TableText.h"
#include "controls/dataanalyser/table/TableStrip.h"
#include "controls/dataanalyser/table/TableView.h"

namespace controls::dataanalyser {

namespace {

constexpr QSize usualGraph{1000, 640};
constexpr QSize leastGraph{480, 320};
// A copied picture is sharp on paper too.
constexpr double pictureScale = 2;

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
    if (!strip_) build();
}

// What is made here belongs to its Qt parent.
// NOLINTBEGIN(cppcoreguidelines-owning-memory)

void AnalyserPane::build() {
    setFont(appearance::font(12));
    setStyleSheet(QString::fromUtf8(styleRules));
    strip_ = new TableStrip(analyser_, this);
    graphStrip_ = new GraphStrip(
        analyser_, [this](double factor) { graph_ ? graph_->zoom(factor) : void(); }, this);
    table_ = new TableView(
        analyser_, [this] { copySelected(); }, this);
    message_ = new MessageLine(this);
    views_ = new QStackedWidget(this);
    views_->addWidget(table_);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(strip_);
    column->addWidget(graphStrip_);
    column->addWidget(views_, 1);
    column->addWidget(message_);
    noteChange(Change::dataSet);
    refreshNow();
}

QWidget& AnalyserPane::shownGraph() {
    if (!graph_ && graphs()) {
        graph_ = graphs()->makePane(
            analyser_, [this] { copyGraph(); }, this);
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
    QMetaObject::invokeMethod(
        this, [this] { refreshNow(); }, Qt::QueuedConnection);
}

void AnalyserPane::refreshNow() {
    scheduled_ = false;
    if (!views_ || changes_.empty()) return;
    strip_->refresh();
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
    // What a narrow window cuts off is the end of the source.
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

void AnalyserPane::copyAll() const { copyRows(analyser_.rows()); }

void AnalyserPane::copySelected() const {
    std::vector<int> rows;
    for (const std::int16_t id : analyser_.selected()) rows.push_back(analyser_.placeOf(id));
    if (!rows.empty()) copyRows(std::move(rows));
}

void AnalyserPane::copyRows(std::vector<int> rows) const {
    const CopiedTable table{analyser_.dataSet(), analyser_.layout().shownColumns(), std::move(rows),
                            analyser_.unit()};
    auto copied = std::make_unique<QMimeData>();
    copied->setText(toQt(tabbedText(table)));
    copied->setHtml(toQt(htmlTable(table)));
    QGuiApplication::clipboard()->setMimeData(copied.release());
}

QSize AnalyserPane::graphSize() const {
    const bool visible = graph_ && graph_->widget().isVisible();
    return visible ? graph_->widget().size().expandedTo(leastGraph) : usualGraph;
}

bool AnalyserPane::copyGraph() {
    if (!analyser_.graphShown() || !graphs()) return false;
    QImage picture(graphSize() * pictureScale, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    graphs()->paint(analyser_, painter, QRectF(picture.rect()), pictureScale);
    painter.end();
    QGuiApplication::clipboard()->setImage(picture);
    return true;
}

}  // namespace controls::dataanalyser
