#include "controls/dataanalyser/GraphStrip.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QLabel>
#include <utility>

#include "controls/common/QtText.h"
#include "controls/dataanalyser/look/Buttons.h"
#include "controls/dataanalyser/look/ChoiceBox.h"
#include "controls/dataanalyser/model/Analyser.h"

namespace controls::dataanalyser {

namespace {

constexpr int roomForOneRow = 900;
constexpr double closerFactor = 0.7;
constexpr double fartherFactor = 1 / closerFactor;

}  // namespace

// Qt parents own what is made here.
// NOLINTBEGIN(cppcoreguidelines-owning-memory)

GraphStrip::GraphStrip(Analyser& analyser, std::function<void(double)> zoom, QWidget* parent)
    : QWidget(parent),
      analyser_(analyser),
      zoom_(std::move(zoom)),
      kinds_(new QButtonGroup(this)),
      xName_(new QLabel(QStringLiteral("x:"), this)),
      xs_(new ChoiceBox(QStringLiteral("Στήλη του οριζόντιου άξονα"), this)),
      logX_(makeToggle(QStringLiteral("λογ"), QStringLiteral("Λογαριθμικός οριζόντιος άξονας"), this)),
      yName_(new QLabel(QStringLiteral("y:"), this)),
      ys_(new ChoiceBox(QStringLiteral("Στήλη του κατακόρυφου άξονα"), this)),
      logY_(makeToggle(QStringLiteral("λογ"), QStringLiteral("Λογαριθμικός κατακόρυφος άξονας"), this)),
      fit_(makeToggle(QStringLiteral("Ευθεία"), QStringLiteral("Ευθεία βέλτιστης προσαρμογής"), this)),
      names_(makeToggle(QStringLiteral("Ονόματα"), QStringLiteral("Ονόματα δίπλα στα σημεία"), this)),
      closer_(makeButton(QStringLiteral("+"), QStringLiteral("Μεγέθυνση (+)"), this)),
      farther_(makeButton(QStringLiteral("−"), QStringLiteral("Σμίκρυνση (−)"), this)),
      whole_(makeButton(QStringLiteral("Όλο"), QStringLiteral("Ολόκληρο το γράφημα (Home)"), this)) {
    setObjectName(QStringLiteral("strip"));
    setAttribute(Qt::WA_StyledBackground);
    makeChoices();
    layOut();
    connectChoices();
}

void GraphStrip::makeChoices() {
    const auto add = [this](GraphKind kind, const QString& text, const QString& name) {
        addChoice(*kinds_, static_cast<int>(kind), text, name, this);
    };
    add(GraphKind::scatter, QStringLiteral("Σημεία"), QStringLiteral("Διάγραμμα διασποράς"));
    add(GraphKind::line, QStringLiteral("Γραμμή"), QStringLiteral("Σημεία ενωμένα με γραμμή"));
    add(GraphKind::bar, QStringLiteral("Ράβδοι"), QStringLiteral("Ραβδόγραμμα, με τη σειρά του πίνακα"));
    add(GraphKind::histogram, QStringLiteral("Ιστόγραμμα"), QStringLiteral("Ιστόγραμμα συχνοτήτων"));
}

void GraphStrip::layOut() {
    halves_ = new QBoxLayout(QBoxLayout::LeftToRight, this);
    halves_->setContentsMargins(10, 0, 10, 5);
    halves_->setSpacing(8);
    auto* axes = new QHBoxLayout();
    axes->setSpacing(5);
    axes->addWidget(xName_);
    axes->addWidget(xs_, 1);
    axes->addWidget(logX_);
    axes->addSpacing(4);
    axes->addWidget(yName_);
    axes->addWidget(ys_, 1);
    axes->addWidget(logY_);
    auto* actions = new QHBoxLayout();
    actions->setSpacing(5);
    actions->addWidget(joinedButtons(*kinds_, this));
    actions->addWidget(fit_);
    actions->addWidget(names_);
    for (QPushButton* button : {closer_, farther_, whole_}) actions->addWidget(button);
    actions->addStretch(1);
    halves_->addLayout(actions);
    halves_->addLayout(axes, 1);
    for (ChoiceBox* box : {xs_, ys_}) box->setMinimumContentsLength(3);
    for (QPushButton* button : {closer_, farther_}) button->setFixedWidth(28);
    // The Tab key follows the order in which the strip is read.
    QList<QWidget*> order;
    for (QAbstractButton* kind : kinds_->buttons()) order.append(kind);
    order << fit_ << names_ << closer_ << farther_ << whole_ << xs_ << logX_ << ys_ << logY_;
    for (qsizetype i = 1; i < order.size(); ++i) setTabOrder(order[i - 1], order[i]);
}

// NOLINTEND(cppcoreguidelines-owning-memory)

void GraphStrip::connectChoices() {
    connect(kinds_, &QButtonGroup::idClicked, this, [this](int id) { analyser_.setGraphKind(id); });
    connect(xs_, &QComboBox::activated, this, [this] {
        change([this](GraphPlan& plan) { plan.x = static_cast<std::size_t>(xs_->chosen()); });
    });
    connect(ys_, &QComboBox::activated, this, [this] {
        change([this](GraphPlan& plan) { plan.y = static_cast<std::size_t>(ys_->chosen()); });
    });
    connect(logX_, &QPushButton::clicked, this,
            [this](bool on) { change([on](GraphPlan& plan) { plan.logX = on; }); });
    connect(logY_, &QPushButton::clicked, this,
            [this](bool on) { change([on](GraphPlan& plan) { plan.logY = on; }); });
    connect(fit_, &QPushButton::clicked, this,
            [this](bool on) { change([on](GraphPlan& plan) { plan.bestFit = on; }); });
    connect(names_, &QPushButton::clicked, this,
            [this](bool on) { change([on](GraphPlan& plan) { plan.names = on; }); });
    connect(closer_, &QPushButton::clicked, this, [this] { zoom_(closerFactor); });
    connect(farther_, &QPushButton::clicked, this, [this] { zoom_(fartherFactor); });
    connect(whole_, &QPushButton::clicked, this, [this] { zoom_(0); });
}

void GraphStrip::change(const std::function<void(GraphPlan&)>& edit) {
    GraphPlan plan = analyser_.plan();
    edit(plan);
    analyser_.setPlan(plan);
}

void GraphStrip::refresh() {
    QList<QPair<QString, int>> numbers;
    const auto& columns = analyser_.dataSet().columns;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        if (columns[i].isNumber()) numbers.append({toQt(columns[i].title), static_cast<int>(i)});
    }
    const GraphPlan plan = analyser_.plan();
    xs_->setItems(numbers, static_cast<int>(plan.x));
    ys_->setItems(numbers, static_cast<int>(plan.y));
    choose(*kinds_, static_cast<int>(plan.kind));
    logX_->setChecked(plan.logX);
    logY_->setChecked(plan.logY);
    fit_->setChecked(plan.bestFit);
    names_->setChecked(plan.names);
    for (QWidget* widget : std::initializer_list<QWidget*>{xs_, xName_, logX_, fit_, names_})
        widget->setEnabled(plan.hasPoints());
}

void GraphStrip::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    halves_->setDirection(width() < roomForOneRow ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
}

}  // namespace controls::dataanalyser
