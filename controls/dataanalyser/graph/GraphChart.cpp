#include "controls/dataanalyser/graph/GraphChart.h"

#include <QCategoryAxis>
#include <QGraphicsLayout>
#include <QLegend>
#include <QLegendMarker>
#include <QLineSeries>
#include <QLocale>
#include <QScatterSeries>
#include <QValueAxis>
#include <algorithm>
#include <cmath>
#include <set>

#include "controls/common/QtText.h"
#include "controls/dataanalyser/graph/GraphHover.h"
#include "controls/dataanalyser/graph/GraphMarks.h"
#include "controls/dataanalyser/look/CategoryLook.h"
#include "controls/dataanalyser/look/ShownText.h"
#include "controls/dataanalyser/model/Analyser.h"
#include "controls/dataanalyser/model/RowNames.h"
#include "controls/elements/NumberText.h"

namespace controls::dataanalyser {

namespace {

constexpr int labelPixels = 11;
constexpr int titlePixels = 12;
constexpr int headingPixels = 15;
// Minimal distances of ticks. Numbers beside each other need more room than numbers above each other.
constexpr double tickPixelsAcross = 80;
constexpr double tickPixelsUp = 45;
constexpr double decadePixelsUp = 25;
constexpr double aroundPlot = 90;
constexpr int spaceWithoutNames = 8;
constexpr int roomForLegend = 560;
constexpr double legendPixels = 10;
constexpr double legendLine = 22;
constexpr double legendSurroundings = 50;

QString figure(double value) { return shownFigures(toQt(shortNumber(value, 6))); }

std::vector<QString> markNames(const Analyser& analyser, const Graph& graph) {
    std::vector<QString> names;
    const bool named = graph.plan.hasPoints() ? graph.plan.names : graph.plan.kind == GraphKind::bar;
    if (!named) return names;
    for (const GraphMark& mark : graph.marks) {
        names.push_back(toQt(shortRowName(analyser.dataSet(), static_cast<std::size_t>(mark.row))));
    }
    return names;
}

/// What is drawn of the graph in a chart of this height; the graph itself is left out.
GraphContent contentOf(const Analyser& analyser, const Graph& graph, double height) {
    GraphContent content{{}, analyser.window(graph), {}, {}, markNames(analyser, graph), spaceWithoutNames};
    const auto& categories = analyser.categories();
    for (int i = 0; i < static_cast<int>(categories.names.size()); ++i) {
        content.categories.push_back(categoryLook(categories, i));
    }
    for (const std::int16_t id : analyser.selected()) content.selected.insert(analyser.placeOf(id));
    if (graph.plan.kind == GraphKind::bar && !content.names.empty()) {
        content.nameSpace = GraphMarks::spaceFor(content.names, height);
    }
    return content;
}

QScatterSeries::MarkerShape legendShape(PointShape shape) {
    switch (shape) {
        case PointShape::square:
            return QScatterSeries::MarkerShapeRectangle;
        case PointShape::triangle:
            return QScatterSeries::MarkerShapeTriangle;
        case PointShape::diamond:
            return QScatterSeries::MarkerShapeRotatedRectangle;
        case PointShape::star:
            return QScatterSeries::MarkerShapeStar;
        default:
            return QScatterSeries::MarkerShapeCircle;
    }
}

// The chart owns what is made here.
// NOLINTBEGIN(cppcoreguidelines-owning-memory)

int decadeOf(double power) { return static_cast<int>(std::lround(std::log10(power))); }

QString decadeText(int decade) {
    if (decade < -4 || decade > 6) return shownFormula(QStringLiteral("10^%1").arg(decade));
    return toQt(fixedNumber(std::pow(10, decade), std::max(0, -decade)));
}

/// Makes an axis of the decimal logarithms with texts of its own. Qt's logarithmic axis can only write
/// "1E-07".
QAbstractAxis* makeLogarithmicAxis(const AxisRange& range, double ticks) {
    auto* axis = new QCategoryAxis();
    axis->setLabelsPosition(QCategoryAxis::AxisLabelsPositionOnValue);
    const int first = decadeOf(range.from);
    const int last = decadeOf(range.to);
    axis->setStartValue(first);
    const int step = decadesPerTick(range, static_cast<int>(ticks));
    for (int decade = first; decade <= last; decade += step) axis->append(decadeText(decade), decade);
    axis->setRange(first, last);
    return axis;
}

/// A number as its axis counts it.
double onAxis(const AxisRange& range, double value) { return range.logarithmic ? std::log10(value) : value; }

QAbstractAxis* makeLinearAxis(const AxisRange& range, double ticks, double minDistance) {
    auto* axis = new QValueAxis();
    const int parts = std::max(2, static_cast<int>(ticks));
    const double distance = std::max(tickDistance(range.span(), parts), minDistance);
    axis->setTickType(QValueAxis::TicksDynamic);
    axis->setTickAnchor(0);
    axis->setTickInterval(distance);
    const bool plain = distance >= 1e-6 && std::max(std::abs(range.from), std::abs(range.to)) < 1e9;
    axis->setLabelFormat(plain ? QStringLiteral("%.%1f").arg(decimalsOfTick(distance))
                               : QStringLiteral("%.6g"));
    axis->setRange(range.from, range.to);
    return axis;
}

QAbstractAxis* makeAxis(const AxisRange& range, const QString& title, double ticks, double minDistance) {
    QAbstractAxis* axis =
        range.logarithmic ? makeLogarithmicAxis(range, ticks) : makeLinearAxis(range, ticks, minDistance);
    axis->setTitleText(title);
    axis->setTitleFont(appearance::font(titlePixels, QFont::DemiBold));
    axis->setLabelsFont(appearance::font(labelPixels));
    axis->setTitleBrush(appearance::deep);
    axis->setLabelsColor(appearance::text);
    axis->setLinePenColor(appearance::muted);
    axis->setGridLineColor(appearance::line);
    return axis;
}

}  // namespace

GraphChart::GraphChart() : marks_(new GraphMarks(this)), hover_(new GraphHover(this)) {
    // Qt writes Greek numbers with a hyphen for a minus. Finnish numbers are the same, but with a true minus.
    QLocale numbers(QLocale::Finnish);
    numbers.setNumberOptions(QLocale::OmitGroupSeparator);
    setLocale(numbers);
    setLocalizeNumbers(true);
    setAnimationOptions(NoAnimation);
    setContentsMargins(0, 0, 0, 0);
    layout()->setContentsMargins(0, 0, 0, 0);
    setBackgroundRoundness(0);
    setBackgroundBrush(appearance::paper);
    setDropShadowEnabled(false);
    setTitleFont(appearance::font(headingPixels, QFont::Bold));
    setTitleBrush(appearance::deep);
    legend()->setFont(appearance::font(labelPixels));
    legend()->setLabelColor(appearance::text);
    legend()->setAlignment(Qt::AlignRight);
    legend()->setMarkerShape(QLegend::MarkerShapeFromSeries);
    connect(this, &QChart::plotAreaChanged, this, [this] { placeMarks(); });
}

void GraphChart::showGraph(const Analyser& analyser) {
    // The hovered mark belongs to the former graph, which may be of another data set. Its row is hovered
    // again.
    const int row = shownSet_ == analyser.dataSet().number ? hoveredRow() : -1;
    setHovered(-1);
    analyser_ = &analyser;
    shownSet_ = analyser.dataSet().number;
    removeAllSeries();
    for (QAbstractAxis* axis : axes()) {
        removeAxis(axis);
        delete axis;
    }
    Graph graph = analyser.graph();
    const GraphWindow window = analyser.window(graph);
    setTitle(toQt(analyser.dataSet().title));
    if (graph.plan.kind == GraphKind::bar && !graph.xTitle.empty()) addToTitle(toQt(graph.xTitle));
    GraphContent content = contentOf(analyser, graph, size().height());
    setMargins(QMargins(12, 8, 12, content.nameSpace));
    setAxes(graph, window.x, window.y);
    addLines(graph, window);
    addLegendEntries(analyser, graph);
    content.graph = std::move(graph);
    marks_->setContent(std::move(content));
    placeMarks();
    const auto& marks = marks_->content().graph.marks;
    const auto still = std::ranges::find(marks, row, &GraphMark::row);
    if (row >= 0 && still != marks.end()) setHovered(static_cast<int>(still - marks.begin()));
}

int GraphChart::hoveredRow() const {
    return hovered_ < 0 ? -1 : marks_->content().graph.marks[static_cast<std::size_t>(hovered_)].row;
}

void GraphChart::setAxes(const Graph& graph, const AxisRange& x, const AxisRange& y) {
    const bool bars = graph.plan.kind == GraphKind::bar;
    const bool counts = graph.plan.kind == GraphKind::histogram;
    const double upright = y.logarithmic ? decadePixelsUp : tickPixelsUp;
    QAbstractAxis* across = makeAxis(x, toQt(graph.xTitle), size().width() / tickPixelsAcross, 0);
    QAbstractAxis* up = makeAxis(y, toQt(graph.yTitle), size().height() / upright, counts ? 1 : 0);
    const auto font = appearance::fittingFont(up->titleText(), static_cast<int>(size().height() - aroundPlot),
                                              titlePixels, labelPixels - 2, QFont::DemiBold);
    if (font) up->setTitleFont(*font);
    if (bars) {
        across->setLabelsVisible(false);
        across->setGridLineVisible(false);
        across->setTitleVisible(false);
        // The names of the bars take the place of ticks, so this axis has ticks at its ends only.
        static_cast<QValueAxis*>(across)->setTickAnchor(x.from);
        static_cast<QValueAxis*>(across)->setTickInterval(x.span());
    }
    addAxis(across, Qt::AlignBottom);
    addAxis(up, Qt::AlignLeft);
}

void GraphChart::addSeries(QXYSeries& series) {
    QChart::addSeries(&series);
    for (QAbstractAxis* axis : axes()) series.attachAxis(axis);
}

void GraphChart::addLines(const Graph& graph, const GraphWindow& window) {
    const auto pointAt = [&](double across, double up) {
        return QPointF(onAxis(window.x, across), onAxis(window.y, up));
    };
    if (graph.plan.kind == GraphKind::line) {
        auto* line = new QLineSeries();
        QList<QPointF> points;
        for (const GraphMark& mark : graph.marks) points.append(pointAt(mark.x, mark.y));
        line->append(points);
        line->setPen(QPen(appearance::accent, 1.5));
        addSeries(*line);
        for (QLegendMarker* marker : legend()->markers(line)) marker->setVisible(false);
    }
    if (!graph.fit) return;
    const QPointF left = pointAt(window.x.from, graph.fitted(window.x.from));
    const QPointF right = pointAt(window.x.to, graph.fitted(window.x.to));
    if (!std::isfinite(left.y()) || !std::isfinite(right.y())) return;
    auto* line = new QLineSeries();
    line->append({left, right});
    line->setPen(QPen(appearance::warm.darker(115), 2, Qt::DashLine));
    addSeries(*line);
    for (QLegendMarker* marker : legend()->markers(line)) marker->setVisible(false);
    const QString words = shownFigures(toQt(equation(*graph.fit, graph.plan.logX, graph.plan.logY))) +
                          QStringLiteral(",   r² = ") + toQt(fixedNumber(graph.fit->rSquared, 4));
    addToTitle(words);
}

void GraphChart::addToTitle(const QString& words) {
    setTitle(title() + QStringLiteral(":&nbsp; <span style=\"font-weight:normal\">%1</span>").arg(words));
}

void GraphChart::addLegendEntries(const Analyser& analyser, const Graph& graph) {
    const std::set<int> present = graph.categories();
    // A legend that does not fit is left out.
    const bool fits = size().width() > roomForLegend &&
                      static_cast<double>(present.size()) * legendLine < size().height() - legendSurroundings;
    legend()->setVisible(present.size() > 1 && fits);
    if (present.size() < 2) return;
    for (const int category : present) {
        auto* entry = new QScatterSeries();
        entry->setName(toQt(analyser.categories().names[static_cast<std::size_t>(category)]));
        const CategoryLook look = categoryLook(analyser.categories(), category);
        entry->setColor(look.colors.edge);
        entry->setMarkerShape(legendShape(look.shape));
        entry->setMarkerSize(legendPixels);
        entry->setBorderColor(Qt::transparent);
        addSeries(*entry);
    }
}

// NOLINTEND(cppcoreguidelines-owning-memory)

void GraphChart::placeMarks() {
    marks_->setPlotArea(plotArea());
    setHovered(hovered_);
}

void GraphChart::setHovered(int index) {
    const auto& marks = marks_->content().graph.marks;
    hovered_ = index >= 0 && index < static_cast<int>(marks.size()) ? index : -1;
    if (hovered_ < 0) return hover_->hide();
    const QPointF place = marks_->place(marks[static_cast<std::size_t>(hovered_)]);
    if (!plotArea().adjusted(-1, -1, 1, 1).contains(place) && marks_->content().graph.plan.hasPoints()) {
        return hover_->hide();
    }
    hover_->showAt(place, linesOf(hovered_), boundingRect());
}

QStringList GraphChart::hoverLines() const { return hovered_ < 0 ? QStringList() : hover_->lines(); }

QStringList GraphChart::linesOf(int index) const {
    const Graph& graph = marks_->content().graph;
    const GraphMark& mark = graph.marks[static_cast<std::size_t>(index)];
    if (graph.plan.kind == GraphKind::histogram) {
        return {QStringLiteral("%1 έως %2").arg(figure(mark.left), figure(mark.right)),
                QStringLiteral("Πλήθος: %1").arg(mark.y)};
    }
    const formats::DataSet& set = analyser_->dataSet();
    const auto row = static_cast<std::size_t>(mark.row);
    const auto line = [&](std::size_t column, const std::string& title) {
        return toQt(title) + QStringLiteral(": ") + shownCell(set.columns[column], row, analyser_->unit());
    };
    QStringList lines{shownRowName(set, row)};
    if (mark.category >= 0) {
        lines += toQt(analyser_->categories().names[static_cast<std::size_t>(mark.category)]);
    }
    if (graph.plan.hasPoints()) lines += line(graph.plan.x, graph.xTitle);
    lines += line(graph.plan.y, graph.yTitle);
    return lines;
}

}  // namespace controls::dataanalyser
